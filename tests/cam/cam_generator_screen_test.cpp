#include "cam/cam_generator_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "cam/lift_file.h"
#include "core/files.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::Each;
using testing::Eq;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Form33Test : public testing::Test {
 protected:
  Form33Test() { host_.folder = folder_.path(); }
  void SetUp() override {
    program_.Start();
    program_.shell().Choose(*Shell::FindMenuItem("Cam_Gen"));
    screen().Text58[24].SetText("0.36");
    screen().Text59[0].SetText("300");
  }

  Form33& screen() { return static_cast<Form33&>(*program_.shell().FindScreen("Form33")); }
  ParameterBlock& block() { return program_.context().block; }
  /// Clicks a command that writes a file, and gives what the file holds.
  std::string FileOf(Command& command, const std::string& name = "lobe.cmm") {
    host_.AnswerFile(folder_ / name);
    EXPECT_TRUE(command.Click());
    return LoadFile(folder_ / name);
  }
  std::vector<double> LiftsOf(Command& command) {
    const auto file = ParseLiftFile(FileOf(command), "lobe.cmm", DecimalMark::Point);
    EXPECT_TRUE(file.has_value());
    return file ? file->intake.lifts : std::vector<double>{};
  }
  std::vector<Command*> LawCommands() {
    Form33& s = screen();
    return {&s.Command16, &s.Command17, &s.Command18, &s.Command1,  &s.Command12, &s.Command13,
            &s.Command2,  &s.Command19, &s.Command7,  &s.Command3,  &s.Command20, &s.Command11,
            &s.Command4,  &s.Command5,  &s.Command6,  &s.Command10, &s.Command15};
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(Form33Test, EveryLawWritesAFileThatIsReadBack) {
  for (Command* command : LawCommands()) {
    const std::vector<double> lifts = LiftsOf(*command);
    ASSERT_EQ(lifts.size(), 152U) << command->caption();
    EXPECT_EQ(lifts[76], 0.36) << command->caption();  // the nose
    for (std::size_t i = 1; i < 75; ++i) {
      EXPECT_EQ(lifts[76 - i], lifts[76 + i]) << command->caption() << ' ' << i;
      EXPECT_LT(lifts[76 - i], 0.36) << command->caption() << ' ' << i;
    }
    EXPECT_EQ(lifts.back(), 0);
  }
}

TEST_F(Form33Test, TheFileIsTheTextShown) {
  const std::string file = FileOf(screen().Command2);
  EXPECT_EQ(file, screen().Text38.text() + "\r\n");
  EXPECT_THAT(file, StartsWith(";  Polynomial 5th Degree\r\n;  300 - .000\r\n;  0.36\r\n"
                               "every x degrees = 2.0\r\nintake\r\n0.0\r\n"));
  // The report's own key writes the same.
  host_.AnswerFile(folder_ / "again.cmm");
  screen().Text38.FilterKey(U'.');
  EXPECT_EQ(LoadFile(folder_ / "again.cmm"), file);
}

TEST_F(Form33Test, ALobeGoesIntoTheTablesWithoutAFile) {
  FileOf(screen().Command10, "intake.cmm");
  ASSERT_TRUE(screen().IntakeTable.Click());
  screen().Text2.SetText("1");
  screen().Text58[24].SetText("0.3");
  FileOf(screen().Command10, "exhaust.cmm");
  ASSERT_TRUE(screen().ExhaustTable.Click());
  EXPECT_EQ(block().IntakeLiftCount, 151);
  EXPECT_EQ(block().ExhaustLiftCount, 301);
  EXPECT_NEAR(block().IntakeCamLift[76], 0.36, 1e-12);
  EXPECT_NEAR(block().ExhaustCamLift[151], 0.3, 1e-12);
  EXPECT_EQ(block().ExhaustCamLift[301], 0);
  EXPECT_EQ(block().CamStepDegrees.Intake, 2);
  EXPECT_EQ(block().CamStepDegrees.Exhaust, 1);
}

TEST_F(Form33Test, ALobeInMillimetresGoesIntoTheTablesInInches) {
  screen().Check1.Click();
  EXPECT_THAT(FileOf(screen().Command10), HasSubstr("\r\n9.144\r\n"));
  ASSERT_TRUE(screen().IntakeTable.Click());
  EXPECT_NEAR(block().IntakeCamLift[76], 0.36, 1e-12);
  screen().Quit();
  EXPECT_EQ(screen().Text58[24].text(), "0.36");
}

TEST_F(Form33Test, SingleColumnsHaveTheirNoseOnLine91) {
  screen().Check3.Click();
  screen().Check2.Click();
  screen().Text20.SetText("340");
  const std::string text = FileOf(screen().Command6, "lobe.s96");
  std::vector<std::string> lines;
  for (std::size_t from = 0; from < text.size(); from = text.find('\n', from) + 1) {
    lines.push_back(text.substr(from, text.find('\r', from) - from));
  }
  ASSERT_EQ(lines.size(), 180U);
  EXPECT_EQ(lines[90], "0.36");
  // 150 degrees up: 15 lines of padding, then the 0 of the flank.
  EXPECT_THAT(std::vector(lines.begin(), lines.begin() + 15), Each(Eq("0.00000000")));
  EXPECT_EQ(lines[15], "0.0");
  // 170 degrees down in 84 records.
  EXPECT_NE(lines[174], "0.00000000");
  EXPECT_THAT(std::vector(lines.begin() + 175, lines.end()), Each(Eq("0.00000000")));
  const LiftColumnFile column = ParseS96(text, "lobe.s96", DecimalMark::Point);
  EXPECT_EQ(column.side.lifts.size(), 1U + 75 + 84 + 1);
}

TEST_F(Form33Test, ThePeakVelocityIsComparedWithTheTappet) {
  screen().Text5.SetText(".842");
  screen().Command9.Click();
  // Cycloidal: twice the lift by the flank. By degree of the camshaft it is twice that again.
  FileOf(screen().Command10);
  EXPECT_NEAR(std::stod(screen().PeakVelocityText.text()), 4 * 0.36 / 150, 2e-6);
  EXPECT_THAT(screen().VelocityNote.caption(), StartsWith("Above Max Velocity"));
  screen().Option3.Pick(1);
  EXPECT_NEAR(std::stod(screen().PeakVelocityText.text()), 2 * 0.36 / 150, 2e-6);
  EXPECT_THAT(screen().VelocityNote.caption(), StartsWith("Within Max Velocity"));
  screen().Text1.Edit(".0047");
  EXPECT_THAT(screen().VelocityNote.caption(), StartsWith("Above Max Velocity"));
}

TEST_F(Form33Test, TheReportOfALobeGivesTheLobeBack) {
  // Durations of a symmetrical lobe at rising lifts, finely enough for its spline.
  Form33& s = screen();
  for (int i = 0; i < 24; ++i) {
    const double x = i / 24.0;
    s.Text58[i].SetText(FormatShortest(0.36 * kPolynomial7.lift(x)));
    s.Text59[i].SetText(FormatShortest(300 * (1 - x)));
  }
  s.Option2.Pick(1);
  const std::vector<double> lifts = LiftsOf(s.Generate);
  ASSERT_EQ(lifts.size(), 152U);
  for (int i = 0; i <= 75; ++i) {
    const double lift = 0.36 * kPolynomial7.lift(i / 75.0);
    EXPECT_NEAR(lifts[static_cast<std::size_t>(i) + 1], lift, 2e-5) << i;
  }
  // The same with the events of a lobe whose middle stays.
  for (int i = 0; i < 24; ++i) {
    const double half = 150 * (1 - i / 24.0);
    s.Text60[i].SetText(FormatShortest(half - 106));
    s.Text61[i].SetText(FormatShortest(half - 74));
  }
  EXPECT_EQ(LiftsOf(s.Generate_OC), lifts);
}

TEST_F(Form33Test, ADecimalCommaIsWrittenAndRead) {
  TestHost host;
  host.decimalMark = DecimalMark::Comma;
  host.folder = folder_.path();
  Program program(host);
  host.Answer(Button::OK);  // which mark the program is set for
  program.Start();
  program.shell().Choose(*Shell::FindMenuItem("Cam_Gen"));
  auto& s = static_cast<Form33&>(*program.shell().FindScreen("Form33"));
  EXPECT_EQ(s.Text2.text(), "2,0");
  s.Text58[24].SetText("0,36");
  s.Text59[0].SetText("300");
  host.AnswerFile(folder_ / "comma.cmm");
  s.Command2.Click();
  const auto file = ParseLiftFile(LoadFile(folder_ / "comma.cmm"), "comma.cmm", DecimalMark::Comma);
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(file->step, 2);
  EXPECT_EQ(file->intake.lifts[76], 0.36);
  // The straight line from the nose to 150 degrees falls by .36 / 150 = .0024 a degree.
  s.Combo1.Choose(0);
  host.AnswerFile(folder_ / "poly.cmm");
  ASSERT_TRUE(s.Generate.Click());
  const std::string start = ";  (X ^ 1 * ";
  const std::string text = s.Text38.text();
  ASSERT_THAT(text, HasSubstr(start));
  const std::size_t from = text.find(start) + start.size();
  const std::string slope = text.substr(from, text.find(')', from) - from);
  EXPECT_THAT(slope, Not(HasSubstr(".")));
  EXPECT_NEAR(ParseNumber(slope, DecimalMark::Comma), -0.0024, 1e-12);
}

TEST_F(Form33Test, ARowWithHalfOfItsEventsIsTold) {
  Form33& s = screen();
  for (int row = 1; row < 24; ++row) s.Text58[row].SetText("");
  const auto setRow = [&s](int row, const char* lift, const char* open, const char* close) {
    s.Text58[row].SetText(lift);
    s.Text60[row].SetText(open);
    s.Text61[row].SetText(close);
  };
  setRow(0, ".000", "44", "76");
  setRow(1, ".05", "20", "");
  setRow(2, ".1", "-1", "33");
  setRow(3, ".2", "soon", "3");
  setRow(4, ".25", "", "");
  for (int row = 5; row < 24; ++row) setRow(row, "", "", "");
  s.Text59[1].SetText("150");
  s.Text59[4].SetText("100");
  host_.Answer(Button::OK);
  EXPECT_TRUE(s.Command26.Click());
  ASSERT_EQ(host_.messages.size(), 1U);
  EXPECT_EQ(host_.messages[0].text,
            "Invalid Data -->.05 - 150 -- Data Ignored\r\nInvalid Data -->.2 - 0 -- Data Ignored");
  EXPECT_EQ(s.Text59[0].text(), "300.0");
  EXPECT_EQ(s.Text59[1].text(), "150");
  EXPECT_EQ(s.Text59[2].text(), "212.0");
  EXPECT_EQ(s.Text59[3].text(), "0");
  EXPECT_EQ(s.Text59[4].text(), "100");
  // Row 3 has no duration, so that there is nothing to leave out of the lobe.
  host_.Answer(Button::OK);
  FileOf(s.Generate_OC);
  ASSERT_EQ(host_.messages.size(), 2U);
  EXPECT_EQ(host_.messages[1].text, "Invalid Data -->.05 - 150 -- Data Ignored");
  EXPECT_THAT(s.Text38.text(),
              StartsWith(";  0.0 - 300.0\r\n;  0.1 - 212.0\r\n;  0.25 - 100.0\r\n"));
  // The second pair counts only for a flank of its own.
  s.Check2.Click();
  s.Text62[2].SetText("x");
  s.Text59[1].SetText("0");
  host_.Answer(Button::OK);
  FileOf(s.Generate_OC);
  EXPECT_THAT(host_.messages.back().text, HasSubstr("Invalid Data -->.1 - 212.0 -- Data Ignored"));
  EXPECT_THAT(s.Text38.text(), StartsWith(";  0.0 - 300.0\r\n;  0.25 - 100.0\r\n"));
}

}  // namespace
}  // namespace veldox
