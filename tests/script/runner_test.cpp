#include "script/runner.h"

#include <gtest/gtest.h>

#include <string>

#include "script/model_driver.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class RunnerTest : public testing::Test {
 protected:
  RunnerTest() { program_.Start(); }

  /// Runs a script and gives its output, or what was wrong.
  std::string Run(const std::string& script) {
    std::string output;
    ScriptRunner runner(program_, host_, driver_, folder_.path(), [&](std::string_view line) {
      output += line;
      output += '\n';
    });
    return runner.Run(script) ? output : output + runner.wrong();
  }

  TemporaryFolder folder_;
  ScriptHost host_{{folder_.path(), DecimalMark::Point, std::nullopt}};
  Program program_{host_};
  ModelDriver driver_{program_.shell()};
};

TEST_F(RunnerTest, SkipsBlankLinesAndComments) {
  EXPECT_EQ(Run("\n# a comment\n   \npause done\n"), "done\n");
}

TEST_F(RunnerTest, TakesLinesThatEndWithCarriageReturns) {
  EXPECT_EQ(Run("set Form1.Text1 4.5\r\nget Form1.Text1\r\n"), "Form1.Text1 = 4.5\n");
}

TEST_F(RunnerTest, KeepsInnerAndTrailingBlanksOfATextAndItsEscapes) {
  EXPECT_EQ(Run("set Main.Text22  a\\n\\tb\\\\ c \nget Main.Text22\nshow Main.Text22\n"),
            "Main.Text22 =  a\\n\\tb\\\\ c \n|  a\n| \tb\\ c \n");
}

TEST_F(RunnerTest, EmptyTextEmptiesAField) {
  EXPECT_EQ(Run("set Form1.Text1 \nget Form1.Text1\nset Form1.Text3\nget Form1.Text3\n"),
            "Form1.Text1 = \nForm1.Text3 = \n");
}

TEST_F(RunnerTest, TellsBoxesOptionsAndStates) {
  EXPECT_EQ(Run("get Form1.Check3\ncheck Form1.Check3\ncheck Form1.Check3\nget Form1.Check3\n"
                "get Form1.Option1\nchoose Form1.Option1(7)\nget Form1.Option1\n"
                "get Form1.Option1(7)\nget Form1.Option1(0)\nvalue Cubicin Option\n"
                "state Form1.Option1(100)\nstate Form1.Command12\nget Form1.Command1\n"),
            "Form1.Check3 = off\nForm1.Check3 = on\nForm1.Option1 = 0\nForm1.Option1 = 7\n"
            "Form1.Option1(7) = on\nForm1.Option1(0) = off\nCubicin Option = 7\n"
            "Form1.Option1(100) = hidden enabled\nForm1.Command12 = visible enabled\n"
            "Form1.Command1 = &Engine Size\n");
}

TEST_F(RunnerTest, TellsAndPicksRowsOfLists) {
  EXPECT_EQ(Run("rows Main.Combo4\nget Main.Combo4\nselect Main.Combo4 0 - None\n"
                "get Main.Combo4\n"),
            "2\n0 - None\n1 - 3d Fixed (Default)\nMain.Combo4 = 1 - 3d Fixed (Default)\n"
            "Main.Combo4 = 0 - None\n");
}

TEST_F(RunnerTest, TellsSharedValuesByTheirKeys) {
  EXPECT_EQ(Run("value Bore\nvalue bore\nvalue Cubic Inches\nvalue T Gear 0\nvalue T Gear 4\n"
                "value Shift RPM 1-2\n"),
            "Bore = 4\nbore = 4\nCubic Inches = 326.72564\nT Gear 0 = 3.25\nT Gear 4 = 0.87\n"
            "Shift RPM 1-2 = 0\n");
}

TEST_F(RunnerTest, NamesWhatItDoesNotKnowAndStops) {
  EXPECT_EQ(Run("pause a\njump Form1.Text1\npause b\n"), "a\nscript line 2: unknown verb: jump");
  EXPECT_EQ(Run("get Form1.Text999\n"), "script line 1: no such control: Form1.Text999");
  EXPECT_EQ(Run("get Form77.Text1\n"), "script line 1: no such control: Form77.Text1");
  EXPECT_EQ(Run("value Wheels\n"), "script line 1: no such key: Wheels");
  EXPECT_EQ(Run("value T Gear 18\n"), "script line 1: no such key: T Gear 18");
  EXPECT_EQ(Run("menu Nothing\n"), "script line 1: no such menu item: Nothing");
  EXPECT_EQ(Run("select Main.Combo4 2 - None\n"), "script line 1: no such row: 2 - None");
  EXPECT_EQ(Run("click Form1.Text1\n"), "script line 1: Form1.Text1 is no command");
  EXPECT_EQ(Run("choose Form1.Option1(24)\n"), "script line 1: no such control: Form1.Option1(24)");
  EXPECT_EQ(Run("picture Form1 a.png\n"),
            "script line 1: no picture: it needs --windows and an open window");
}

TEST_F(RunnerTest, AnAnswerThatNothingAskedForIsAnError) {
  EXPECT_EQ(Run("answer Yes\npause a\n"),
            "a\nscript line 2: the answer of line 1 was never asked for");
  host_.answers.clear();
  EXPECT_EQ(Run("file a.prm\n"), "script line 1: the file of line 1 was never asked for");
  host_.files.clear();
  EXPECT_EQ(Run("pause a\nprinter cancel\n"),
            "a\nscript line 2: the printer of line 2 was never asked for");
}

TEST_F(RunnerTest, APrinterIsLandscapePortraitOrCancel) {
  EXPECT_EQ(Run("printer sideways\n"), "script line 1: a printer is landscape, portrait or cancel");
  EXPECT_TRUE(host_.printers.empty());
}

TEST_F(RunnerTest, AnAnswerMustBeAButtonOfItsBox) {
  EXPECT_EQ(Run("answer Yes\nmenu Clear\n").rfind("script line 2: the box has no button Yes", 0),
            0U);
}

TEST_F(RunnerTest, BoxesWithOneButtonTakeNoPreparedAnswer) {
  EXPECT_EQ(Run("answer Cancel\nmenu ScrRes\nmenu Clear\nmessages\nmessages\n"),
            "message [VELDOX-Math-Formula-Calculator] information: Screen Resolution: 1366 X 768 "
            "  <-->   Screen DPI: 96 -> OK\n"
            "message [VELDOX-Math-Formula-Calculator] question: This Function will Clear All Data "
            "Fields on All Forms! Make Sure you have Saved your data. -> Cancel\n");
}

TEST_F(RunnerTest, AFileDialogWithoutAPreparedNameIsCancelled) {
  EXPECT_EQ(Run("menu Write\nmessages\nget Main.Label8\n"), "Main.Label8 = \n");
}

TEST_F(RunnerTest, PicturesNeedWindows) {
  EXPECT_EQ(Run("menu GRAPHER\nclick Form8.Save_Form_JPG\nmessages\n"),
            "message [VELDOX-Math-Formula-Calculator] warning: Pictures can be made only while "
            "windows are shown. -> OK\n");
}

TEST_F(RunnerTest, NamesAreRelativeToTheScriptsFolder) {
  EXPECT_EQ(Run("file here.prm\nmenu Write\nget Main.Label8\n"),
            "Main.Label8 = Parameter File -- here.prm\n");
  EXPECT_TRUE(std::filesystem::exists(folder_ / "here.prm"));
}

TEST(ScriptArguments, AreRead) {
  std::string wrong;
  const auto arguments = ParseScriptArguments(
      {"--windows", "--folder", "here", "--decimal-comma", "--date", "2024-02-29 23:59:58", "-"},
      wrong);
  ASSERT_TRUE(arguments) << wrong;
  EXPECT_TRUE(arguments->windows);
  EXPECT_TRUE(arguments->decimalComma);
  EXPECT_EQ(arguments->folder, "here");
  EXPECT_EQ(arguments->date->month, 2);
  EXPECT_EQ(arguments->date->second, 58);
  EXPECT_EQ(arguments->file, "-");
}

TEST(ScriptArguments, ThatAreWrongAreTold) {
  using Arguments = std::vector<std::string>;
  for (const Arguments& given :
       {Arguments{}, Arguments{"a", "b"}, Arguments{"--fast", "a"}, Arguments{"a", "--folder"},
        Arguments{"--date", "yesterday", "a"}, Arguments{"--date", "2024-13-01 00:00:00", "a"},
        Arguments{"--date", "2024-1-1 0:0:0", "a"}}) {
    std::string wrong;
    EXPECT_FALSE(ParseScriptArguments(given, wrong));
    EXPECT_FALSE(wrong.empty());
  }
}

TEST(Escapes, TurnBackToTheSameText) {
  for (const char* text : {"", "a\r\nb", "\t\\n\\", "\\\\"}) {
    EXPECT_EQ(UnescapeText(EscapeText(text)), text);
  }
  EXPECT_EQ(EscapeText("a\nb\r\nc\td\\e"), "a\\nb\\nc\\td\\\\e");
}

}  // namespace
}  // namespace veldox
