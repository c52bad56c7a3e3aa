#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "core/settings.h"
#include "program/file_argument.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// What the program does with files and remembers of its desktop.
class DesktopTest : public testing::Test {
 protected:
  DesktopTest() {
    host_.folder = folder_.path();
    host_.settingsFile = folder_.path() / "config" / "settings.txt";
    for (const char* name : {"a.prm", "b.prm"}) {
      std::ofstream(folder_ / name, std::ios::binary) << "Bore = 4.5\r\n";
    }
    program_.Start();
  }

  Shell& shell() { return program_.shell(); }
  ParameterBlock& block() { return program_.context().block; }
  static const MenuItem& Item(std::string_view name) { return *Shell::FindMenuItem(name); }
  void Choose(std::string_view name) { shell().Choose(Item(name)); }
  void Read(const char* name) {
    host_.AnswerFile(folder_ / name);
    host_.Answer(Button::OK);
    Choose("Read");
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(DesktopTest, FilesThatWereReadAndWrittenAreListedTheLatestFirst) {
  EXPECT_FALSE(shell().MenuEnabled(Item("Recent")));
  EXPECT_FALSE(shell().MenuVisible(Item("Recent(0)")));
  Choose("Recent(0)");  // nothing there
  Read("a.prm");
  host_.AnswerFile(folder_ / "c & d.prm");
  host_.Answer(Button::OK);
  Choose("Write");
  Read("b.prm");
  Read("a.prm");
  EXPECT_THAT(shell().settings().recentFiles(),
              ElementsAre(folder_ / "a.prm", folder_ / "b.prm", folder_ / "c & d.prm"));
  EXPECT_TRUE(shell().MenuEnabled(Item("Recent")));
  EXPECT_EQ(shell().MenuCaption(Item("Recent(0)")), "&1  a.prm - " + folder_.path().string());
  EXPECT_EQ(shell().MenuCaption(Item("Recent(2)")), "&3  c && d.prm - " + folder_.path().string());
  EXPECT_FALSE(shell().MenuVisible(Item("Recent(3)")));
  // They are there at the next start.
  Program next(host_);
  next.Start();
  EXPECT_EQ(next.shell().settings().recentFiles(), shell().settings().recentFiles());
}

TEST_F(DesktopTest, ARecentFileIsReadAsByTheCommand) {
  Read("a.prm");
  Read("b.prm");
  block().Bore = 1;
  block().DataChanged = 1;
  host_.Answer(Button::No);
  host_.Answer(Button::OK);
  Choose("Recent(1)");
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(shell().Label8.caption(), "Parameter File -- a.prm");
  EXPECT_EQ(shell().settings().recentFiles().front(), folder_ / "a.prm");
}

TEST_F(DesktopTest, AMissingRecentFileIsToldAndDropped) {
  Read("a.prm");
  Read("b.prm");
  std::filesystem::remove(folder_ / "a.prm");
  block().DataChanged = 1;
  host_.Answer(Button::OK);
  Choose("Recent(1)");
  EXPECT_EQ(host_.messages.back().text,
            "This file is not there any more. It was taken off the list:\r\n" +
                (folder_ / "a.prm").string());
  EXPECT_THAT(shell().settings().recentFiles(), ElementsAre(folder_ / "b.prm"));
  EXPECT_EQ(block().DataChanged, 1) << "nothing was asked and nothing lost";
}

TEST_F(DesktopTest, AFileThatIsGivenIsReadAsByTheCommand) {
  block().DataChanged = 1;
  host_.Answer(Button::Yes);
  host_.AnswerFile(std::nullopt);  // the save is cancelled: nothing is read
  shell().OpenFile(folder_ / "a.prm");
  EXPECT_EQ(block().Bore, 4.0);
  EXPECT_EQ(block().DataChanged, 1);
  host_.Answer(Button::No);
  host_.Answer(Button::OK);
  shell().OpenFile(folder_ / "a.prm");
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(host_.messages.back().text, "1 Records Read");
  host_.Answer(Button::OK);
  shell().OpenFile(folder_.path());
  EXPECT_EQ(host_.messages.back().icon, Icon::Warning);
  EXPECT_EQ(shell().settings().recentFiles().size(), 1U) << "what cannot be read is not listed";
}

TEST_F(DesktopTest, TheTitleTellsTheFileAndWhatHasChanged) {
  const std::string given = "VELDOX-Math-Formula-Calculator";
  EXPECT_EQ(shell().WindowTitle(), given);
  program_.context().rules.NoteChange();
  EXPECT_EQ(shell().WindowTitle(), given + " *");
  host_.Answer(Button::No);
  Read("a.prm");
  EXPECT_EQ(shell().WindowTitle(), given + " - a.prm");
  program_.context().rules.NoteChange();
  EXPECT_EQ(shell().WindowTitle(), given + " - a.prm *");
  host_.AnswerFile(folder_ / "saved.prm");
  host_.Answer(Button::OK);
  Choose("Write");
  EXPECT_EQ(shell().WindowTitle(), given + " - saved.prm");
}

TEST_F(DesktopTest, LightOrDarkIsTickedAndRememberedButNotInTheParameterFile) {
  EXPECT_EQ(shell().MenuTicked(Item("Look_Desktop")), true);
  EXPECT_EQ(shell().MenuTicked(Item("Look_Dark")), false);
  EXPECT_EQ(shell().MenuTicked(Item("Metric")), std::nullopt);
  Choose("Look_Dark");
  EXPECT_EQ(shell().MenuTicked(Item("Look_Desktop")), false);
  EXPECT_EQ(shell().MenuTicked(Item("Look_Dark")), true);
  EXPECT_EQ(block().DataChanged, 0);
  Program next(host_);
  next.Start();
  EXPECT_EQ(next.shell().settings().look, LookChoice::Dark);
  Choose("Look_Light");
  EXPECT_EQ(shell().MenuTicked(Item("Look_Light")), true);
  Choose("Default_Look");
  EXPECT_EQ(shell().settings().look, LookChoice::Light) << "it is the desktop's affair";
}

TEST_F(DesktopTest, AColorIsJudgedInTheLookThatShows) {
  constexpr std::int32_t kPale = 0xE0E0E0;
  Choose("Look_Dark");
  host_.AnswerColor(kPale);
  Choose("LabelColor");
  EXPECT_EQ(shell().Label77.caption(), "");
  Choose("Look_Light");
  host_.AnswerColor(kPale);
  Choose("LabelColor");
  EXPECT_THAT(shell().Label77.caption(), HasSubstr("hard to read"));
}

TEST_F(DesktopTest, ADamagedSettingsFileIsPassedOverInSilence) {
  std::filesystem::create_directories(host_.settingsFile.parent_path());
  std::ofstream(host_.settingsFile, std::ios::binary) << std::string("\0\xFF", 2) << "Look = ?\n";
  Program next(host_);
  next.Start();
  EXPECT_EQ(next.shell().settings().look, LookChoice::Desktop);
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(DesktopTest, TheHandbookOpensFromTheMenuAndTheAboutScreen) {
  Choose("Handbook");
  EXPECT_EQ(host_.handbooks, 1);
  Choose("About");
  static_cast<Command*>(shell().FindControl("Form15.Handbook"))->Click();
  EXPECT_EQ(host_.handbooks, 2);
}

TEST_F(DesktopTest, AGraphFileThatIsDroppedIsDrawn) {
  std::ofstream(folder_ / "curve.txt", std::ios::binary) << "nonsense";
  Choose("GRAPHER");
  host_.Answer(Button::OK);
  program_.grapher().OpenFile(folder_ / "missing.txt");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("missing.txt"));
  host_.messages.clear();
  host_.Answer(Button::OK);
  program_.grapher().OpenFile(std::filesystem::path(VELDOX_SOURCE_DIR) /
                              "fuzz/seeds/graph_script/curves.txt");
  EXPECT_EQ(host_.messages.at(0).text, "16 Records Read");
  EXPECT_FALSE(program_.grapher().plot().series().empty());
}

// ---------------------------------------------------------------- the argument

TEST(FileArgument, IsOneFileOrNone) {
  const TemporaryFolder folder;
  std::ofstream(folder / "a.prm") << "Bore = 4\n";
  const std::string file = (folder / "a.prm").string();
  EXPECT_EQ(ParseFileArgument({}).wrong, "");
  EXPECT_TRUE(ParseFileArgument({}).file.empty());
  EXPECT_EQ(ParseFileArgument({file}).wrong, "");
  EXPECT_EQ(ParseFileArgument({file}).file, file);
  EXPECT_EQ(ParseFileArgument({"--help"}).wrong, "unknown option --help");
  EXPECT_EQ(ParseFileArgument({"-"}).wrong, "unknown option -");
  EXPECT_EQ(ParseFileArgument({""}).wrong, "the name of the file is empty");
  EXPECT_EQ(ParseFileArgument({file, "b.prm"}).wrong, "more than one file: b.prm");
  EXPECT_EQ(ParseFileArgument({"no-such.prm"}).wrong, "there is no file no-such.prm");
  EXPECT_EQ(ParseFileArgument({folder.path().string()}).wrong,
            folder.path().string() + " is no file");
  EXPECT_NE(ParseFileArgument({std::string(5000, 'x')}).wrong, "");
  EXPECT_NE(ParseFileArgument({file + "/under"}).wrong, "");
}

TEST(FileArgument, IsMadeAbsolute) {
  const TemporaryFolder folder;
  std::ofstream(folder / "a.prm") << "Bore = 4\n";
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  const FileArgument argument = ParseFileArgument({"a.prm"});
  std::filesystem::current_path(before);
  EXPECT_TRUE(argument.file.is_absolute());
  EXPECT_TRUE(std::filesystem::exists(argument.file));
}

}  // namespace
}  // namespace veldox
