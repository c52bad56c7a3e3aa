// The tools of the menu that convert files, with what stands in the files they write.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class FileToolsTest : public testing::Test {
 protected:
  FileToolsTest() {
    host_.folder = folder_.path();
    program_.Start();
  }

  Shell& shell() { return program_.shell(); }
  void Choose(const char* item) { shell().Choose(*Shell::FindMenuItem(item)); }
  void Write(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  std::string Load(const std::string& name) { return LoadFile(folder_ / name); }
  void Set(const char* control, const std::string& text) {
    dynamic_cast<Field&>(*shell().FindControl(control)).SetText(text);
  }
  void Click(const char* control) { dynamic_cast<Command&>(*shell().FindControl(control)).Click(); }
  /// Converts a file by a menu item and returns what it became; one box is told.
  std::string Converted(const char* item, const std::string& name, const std::string& text) {
    Write(name, text);
    host_.AnswerFile(folder_ / name);
    host_.AnswerFile(folder_ / "new.txt");
    host_.Answer(Button::OK);
    Choose(item);
    return Load("new.txt");
  }
  /// The same by a menu item that opens the panel of the fields first.
  std::string ConvertedFields(const char* item, const std::string& text) {
    Choose(item);
    Write("rows.csv", text);
    host_.AnswerFile(folder_ / "rows.csv");
    host_.AnswerFile(folder_ / "new.txt");
    host_.Answer(Button::OK);
    Click("Main.Command14");
    return Load("new.txt");
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(FileToolsTest, InchesBecomeMillimetresAndBack) {
  const std::string mm =
      Converted("CMM_Inches_MM", "a.cmm", "; x\nintake A\n0.1\n.02\nexhaust 2\n1\n");
  EXPECT_EQ(mm, "; x\r\nintake A\r\n2.54\r\n0.508\r\nexhaust 2\r\n25.4\r\n");
  EXPECT_EQ(Converted("CMM_MM_Inches", "b.cmm", mm),
            "; x\r\nintake A\r\n0.1\r\n0.02\r\nexhaust 2\r\n1.0\r\n");
}

TEST_F(FileToolsTest, CamDoctorBecomesACmmFileThatReadsAlike) {
  const std::string header = "1,2,3\na\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk\nl\nm\nn\n";
  host_.Answer(Button::OK);
  const std::string text = Converted("Cx_File", "a.c1", header + "0.0,0.01\n0.125,0.2\n0.1,0.15\n");
  EXPECT_EQ(text,
            "; PVN = 1    ICL = 2    ECL = 3\r\n; 0.050 Overlap = a\r\n"
            "; Intake 0.050 Open = b    Close = c    Duration = d\r\n"
            "; Intake Cam Lift = e    Valve Lift = f    Area = g\r\n"
            "; Exhaust 0.050 Open = h    Close = i    Duration = j\r\n"
            "; Exhaust Cam Lift = k    Valve Lift = l    Area = m\r\n; n\r\n"
            "every x degrees = 2\r\nintake\r\n0.0\r\n0.125\r\n0.1\r\n0.0\r\nexhaust\r\n0.01\r\n"
            "0.2\r\n0.15\r\n0.0\r\n");
  const auto file = ParseLiftFile(text, "new.cmm", DecimalMark::Point);
  ASSERT_TRUE(file);
  EXPECT_THAT(file->intake.lifts, ElementsAre(0, 0, 0.125, 0.1, 0, 0));
  EXPECT_THAT(file->exhaust.lifts, ElementsAre(0, 0.01, 0.2, 0.15, 0, 0));
  EXPECT_EQ(file->step, 2);
}

TEST_F(FileToolsTest, AHeaderlessFileHasNoCommentAndACmmAWholeOne) {
  host_.Answer(Button::OK);
  EXPECT_EQ(Converted("Cx_File", "a.c2", "cam pro plus\n0.1,0.2\n"),
            "every x degrees = 2\r\nintake\r\n0.1\r\n0.0\r\nexhaust\r\n0.2\r\n0.0\r\n");
  host_.Answer(Button::OK);
  EXPECT_EQ(Converted("Cx_File", "b.cmm", "every x degrees = 5\nintake Nr 7\n0.1\nexhaust\n0.2\n"),
            "; b.cmm  Nr 7\r\nevery x degrees = 2\r\nintake\r\n0.0\r\n0.1\r\nexhaust\r\n0.0\r\n"
            "0.2\r\n");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("every 5.0 degrees"));
}

TEST_F(FileToolsTest, SingleColumnsBecomeACmmFile) {
  Write("in.s96", "0\n0.1\n0.3\n0.0\n");
  Write("ex.s96", "0.2\n");
  host_.AnswerFile(folder_ / "in.s96");
  host_.Answer(Button::OK);
  host_.AnswerFile(folder_ / "ex.s96");
  host_.AnswerFile(folder_ / "new.txt");
  host_.Answer(Button::OK);
  Choose("S96_File");
  EXPECT_EQ(Load("new.txt"),
            "every x degrees = 2\r\nintake\r\n0.0\r\n0.1\r\n0.3\r\nexhaust\r\n0.0\r\n0.2\r\n");
  EXPECT_EQ(host_.messages[0].text,
            "Please Select Exhaust Lift S96 on next screen or Click Cancel if NONE WANTED");
  EXPECT_EQ(program_.context().block.IntakeLiftCount, 3);
  EXPECT_EQ(program_.context().block.ExhaustLiftCount, 2);
  EXPECT_EQ(program_.context().block.LiftsOfCamDoctor, 0);
  // Without an exhaust.
  host_.AnswerFile(folder_ / "in.s96");
  host_.Answer(Button::OK);
  host_.AnswerFile(std::nullopt);
  host_.AnswerFile(folder_ / "new.txt");
  host_.Answer(Button::OK);
  Choose("S96_File");
  EXPECT_EQ(Load("new.txt"), "every x degrees = 2\r\nintake\r\n0.0\r\n0.1\r\n0.3\r\nexhaust\r\n");
  EXPECT_EQ(program_.context().block.ExhaustLiftCount, 0);
}

TEST_F(FileToolsTest, PowerOfADelimitedFileBecomesTorqueRows) {
  const std::string rows =
      "RPM,HP,Torque\n3000,228.5,400\n3500,279.9,420\n3500,280,420\n4000,327.9,\"430.5\"\n";
  Set("Main.Text11", ",");
  Set("Main.Text12", "3");
  EXPECT_EQ(ConvertedFields("CheckT", rows),
            "Acceleration = 3000.0 400.0\r\nAcceleration = 3500.0 420.0\r\nAcceleration = 4000.0 "
            "430.5\r\n");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("does not rise: 1"));
  Set("Main.Text12", "2");
  EXPECT_EQ(ConvertedFields("CheckH", rows),
            "Accelerat HP = 3000.0 228.5\r\nAccelerat HP = 3500.0 279.9\r\nAccelerat HP = 4000.0 "
            "327.9\r\n");
}

TEST_F(FileToolsTest, ADynoSheetTakesFuelToo) {
  Set("Main.Text11", "T");
  EXPECT_EQ(ConvertedFields("CheckT_All", "3000\t400\t110\t.48\t12.9\nlast\tline\n"),
            "Acceleration = 3000.0 400.0 110.0 0.48 12.9\r\n");
}

TEST_F(FileToolsTest, TwoColumnsBecomeAGraph) {
  EXPECT_EQ(ConvertedFields("CheckVELDOX", " 1   10\n 3   25\n"),
            "xlow = 1.0\r\nxhigh = 3.0\r\nylow = 10.0\r\nyhigh = 30.0\r\nx = 1.0\r\ny = "
            "10.0\r\nx = 3.0\r\ny = 25.0\r\n");
}

TEST_F(FileToolsTest, AxesOfAGraphAreTurned) {
  EXPECT_EQ(Converted("CheckAxis", "a.prm",
                      "; note\nXLow = 1\nyhigh = 9\nx = 1\ny = 2\ny = 5\nline to = 3, 4\ncircle = "
                      "1,2,3\ncaption3 = <--- HP\ncaption2 = RPM\nreset =\n"),
            "; note\r\nylow = 1\r\nxhigh = 9\r\nx = 2\r\ny = 1\r\nline to = 4, 3\r\ncircle = 2, "
            "1, 3\r\ncaption1 = <--- HP\r\ncaption2 = HP\r\nreset =\r\n");
}

TEST_F(FileToolsTest, SimulationsGivePower) {
  EXPECT_EQ(Converted("CheckCQU", "a.dyn", "x\n19\n 2000\t150.5 1\n2500 200.25\nend\n9 9\n"),
            "Accelerat HP = 2000.0 150.5\r\nAccelerat HP = 2500.0 200.25\r\n");
  // In a *.dym file a short line shows that the number was none of a head.
  EXPECT_EQ(Converted("CheckCQU", "a.dym", "56\n12\n56\n2000   150.5  9\n2500 200\nend\n"),
            "Accelerat HP = 2000.0 150.5\r\nAccelerat HP = 2500.0 200.0\r\n");
  EXPECT_EQ(Converted("CheckCQU", "a.txt", "RPM   HP\n---   --\n2000 150\n"),
            "Accelerat HP = 2000.0 150.0\r\n");
}

TEST_F(FileToolsTest, ATableOfMoreRowsThanTheProgramTakesIsRefused) {
  std::string text = "RPM  HP\n";
  for (int i = 1; i <= 962; ++i) text += std::to_string(i) + " 1\n";
  Write("a.txt", text);
  host_.AnswerFile(folder_ / "a.txt");
  host_.Answer(Button::OK);
  Choose("CheckCQU");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("961 rows"));
}

TEST_F(FileToolsTest, TheTapeIsPrintedTrueToSizeAcrossThePage) {
  host_.printer = std::make_unique<PageRecorder>(true);
  Choose("Timing_Tape");
  Click("Main.Command13");
  EXPECT_EQ(host_.printJob, PageJob::Measured);
  EXPECT_EQ(program_.context().block.BalancerDiameter, 6.75);
  EXPECT_EQ(program_.context().block.DataChanged, 0);
}

TEST_F(FileToolsTest, ATapeThatPaperDoesNotHoldIsTold) {
  host_.printer = std::make_unique<PageRecorder>(true);
  Choose("Timing_Tape");
  Set("Main.Text18", "12");
  host_.Answer(Button::OK);
  Click("Main.Command13");
  // 12 * pi * 110 / 360
  EXPECT_THAT(host_.messages.back().text, HasSubstr("The tape is 11.5 inches long"));
}

TEST_F(FileToolsTest, AFailedReadLeavesTheTables) {
  host_.Answer(Button::OK);
  Converted("Cx_File", "a.cmm", "every x degrees = 2\nintake\n0.1\n");
  ParameterBlock& block = program_.context().block;
  for (const char* text : {"intake\n0.1\nx\n", "bore = 4\n", ""}) {
    Write("bad.cmm", text);
    host_.AnswerFile(folder_ / "bad.cmm");
    host_.Answer(Button::OK);
    Choose("Cx_File");
    EXPECT_EQ(block.CamFileTitle, "a.cmm");
    EXPECT_EQ(block.IntakeCamLift[1], 0.1);
    EXPECT_EQ(block.IntakeLiftCount, 2);
  }
}

TEST_F(FileToolsTest, RowsWithoutRisingRpmAreRefusedBeforeAFileIsAskedFor) {
  Write("torque.prm", "Acceleration = 1000.0 100.0\r\n");
  Choose("CheckT");
  Set("Main.Text11", ",");
  Set("Main.Text13", "1");
  Set("Main.Text12", "2");
  Write("rows.csv", "-1,-2\n-3,-4.5\n0,0\n");
  host_.AnswerFile(folder_ / "rows.csv");
  host_.Answer(Button::OK);
  Click("Main.Command14");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("No row of the file has an RPM above 0"));
  EXPECT_EQ(Load("torque.prm"), "Acceleration = 1000.0 100.0\r\n");
}

TEST_F(FileToolsTest, RowsThatLackANumberAreCounted) {
  Choose("CheckT");
  Set("Main.Text11", ",");
  Set("Main.Text13", "1");
  Set("Main.Text12", "2");
  EXPECT_EQ(ConvertedFields("CheckT", "RPM,Torque\n4000,210\n4500,,200\n5000,abc\n5500,190\n"),
            "Acceleration = 4000.0 210.0\r\nAcceleration = 5500.0 190.0\r\n");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("not all of their fields hold numbers: 2"));
}

TEST_F(FileToolsTest, AnEmptyFileHasNoAxesToTurn) {
  Write("empty.prm", "");
  host_.AnswerFile(folder_ / "empty.prm");
  host_.Answer(Button::OK);
  Choose("CheckAxis");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("holds no line of a graph"));
}

}  // namespace
}  // namespace veldox
