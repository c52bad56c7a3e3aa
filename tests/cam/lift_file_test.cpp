#include "cam/lift_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <numeric>
#include <string>

#include "core/error.h"
#include "core/files.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr DecimalMark kPoint = DecimalMark::Point;

LiftFile Parsed(std::string_view text, const std::string& name = "test.cmm",
                DecimalMark mark = kPoint) {
  const auto file = ParseLiftFile(text, name, mark);
  EXPECT_TRUE(file.has_value());
  return file.value_or(LiftFile{});
}

std::string RefusalOf(std::string_view text, const std::string& name = "test.cmm") {
  try {
    ParseLiftFile(text, name, kPoint);
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::File);
    return error.message();
  }
  return "not refused";
}

std::string Records(int count) {
  std::string text;
  for (int i = 1; i <= count; ++i) text += std::to_string(i) + "\n";
  return text;
}

/// The line of a header and its 14 lines.
const std::string kHeader =
    "11-205,108.5,112\n14.5\n11\n41\n232\n0.3200\n0.480\n21.5\n49\n3.5\n232.5\n0.321\n0.4815\n22\n"
    "hydraulic\n";

TEST(LiftFile, OwnFormatHasRecordsBetweenTwoZeros) {
  const LiftFile file = Parsed(
      "; a comment\r\nevery x degrees = 4\r\n; another\r\nINTAKE Street cam\r\n0.1\r\n;\r\n0.2\r\n"
      "exhaust\r\n0.3\r\n");
  EXPECT_EQ(file.format, LiftFormat::Cmm);
  EXPECT_THAT(file.intake.lifts, ElementsAre(0, 0.1, 0.2, 0));
  EXPECT_THAT(file.exhaust.lifts, ElementsAre(0, 0.3, 0));
  EXPECT_EQ(file.intake.count(), 3);
  EXPECT_EQ(file.exhaust.count(), 2);
  EXPECT_EQ(file.step, 4);
  EXPECT_EQ(file.intake.step, 4);
  EXPECT_EQ(file.exhaust.step, 4);
  EXPECT_EQ(file.header, "test.cmm  Street cam");
  EXPECT_EQ(file.linesRead, 9);
  EXPECT_FALSE(file.intakeLash);
}

TEST(LiftFile, WithoutStepLineTheStepIsTenAndTheFirstLineIsNotLost) {
  const LiftFile file = Parsed("intake\n.1\n.2\n");
  EXPECT_EQ(file.step, 10);
  EXPECT_EQ(file.intake.step, 10);
  EXPECT_THAT(file.intake.lifts, ElementsAre(0, 0.1, 0.2, 0));
  EXPECT_TRUE(file.exhaust.lifts.empty());
  EXPECT_EQ(file.exhaust.count(), 0);
  EXPECT_EQ(file.linesRead, 3);
}

TEST(LiftFile, StepLineGivesLashes) {
  const LiftFile file = Parsed("Every X Degrees = 2.5 I_Lash = .020 e_lash = 0.022\nintake\n.1\n");
  EXPECT_EQ(file.step, 2.5);
  EXPECT_EQ(file.intakeLash, 0.020);
  EXPECT_EQ(file.exhaustLash, 0.022);
  const LiftFile one = Parsed("every x degrees = 1 e_lash = 0.01 hot\nintake\n.1\n");
  EXPECT_FALSE(one.intakeLash);
  EXPECT_EQ(one.exhaustLash, 0.01);
}

TEST(LiftFile, ExhaustHasAStepOfItsOwnBehindColumnNine) {
  const std::string head = "every x degrees = 2\nintake\n.1\n";
  EXPECT_EQ(Parsed(head + "exhaust\n.1\n").exhaust.step, 2);
  EXPECT_EQ(Parsed(head + "exhaust 4\n.1\n").exhaust.step, 4);
  EXPECT_EQ(Parsed(head + "EXHAUST 4 degrees\n.1\n").exhaust.step, 4);
  EXPECT_EQ(Parsed(head + "exhaust4\n.1\n").exhaust.step, 2);
  EXPECT_EQ(Parsed(head + "exhaust 4\n.1\n").intake.step, 2);
}

TEST(LiftFile, BlankLinesArePassedOverAndCounted) {
  const LiftFile file = Parsed("\nintake\n\n.1\n   \n.2\n\n");
  EXPECT_THAT(file.intake.lifts, ElementsAre(0, 0.1, 0.2, 0));
  EXPECT_EQ(file.linesRead, 7);
}

TEST(LiftFile, DecimalCommaIsReadInCommaMode) {
  const LiftFile file =
      Parsed("every x degrees = 2,5\nintake\n0,125\n0.25\n", "a.cmm", DecimalMark::Comma);
  EXPECT_EQ(file.step, 2.5);
  EXPECT_THAT(file.intake.lifts, ElementsAre(0, 0.125, 0.25, 0));
}

TEST(LiftFile, CamDoctorWithHeaderStartsAtIndexZero) {
  const LiftFile file = Parsed(kHeader + "0.0,0.001\n; note\n0.10,0.11\n0.2,0.21\n", "test.c1");
  EXPECT_EQ(file.format, LiftFormat::CamDoctor);
  EXPECT_EQ(file.step, 2);
  EXPECT_EQ(file.intake.step, 2);
  EXPECT_EQ(file.exhaust.step, 2);
  EXPECT_THAT(file.intake.lifts, ElementsAre(0, 0.1, 0.2, 0, 0));
  EXPECT_THAT(file.exhaust.lifts, ElementsAre(0.001, 0.11, 0.21, 0, 0));
  EXPECT_EQ(file.intake.count(), 4);
  EXPECT_EQ(file.exhaust.count(), 4);
  EXPECT_EQ(file.linesRead, 19);
  EXPECT_FALSE(file.hasBadRow);
  EXPECT_EQ(file.header,
            "; PVN = 11-205    ICL = 108.5    ECL = 112\r\n"
            "; 0.050 Overlap = 14.5\r\n"
            "; Intake 0.050 Open = 11    Close = 41    Duration = 232\r\n"
            "; Intake Cam Lift = 0.3200    Valve Lift = 0.480    Area = 21.5\r\n"
            "; Exhaust 0.050 Open = 49    Close = 3.5    Duration = 232.5\r\n"
            "; Exhaust Cam Lift = 0.321    Valve Lift = 0.4815    Area = 22\r\n"
            "; hydraulic\r\n");
}

TEST(LiftFile, CamDoctorRowWithoutCommaEndsTheReading) {
  const LiftFile file = Parsed(kHeader + "0.1,0.2\n0.3\n0.5,0.6\n", "test.C12");
  EXPECT_TRUE(file.hasBadRow);
  EXPECT_THAT(file.intake.lifts, ElementsAre(0.1, 0, 0));
  EXPECT_EQ(file.linesRead, 17);
}

TEST(LiftFile, CamProPlusHasNoHeaderAndPassesOverABadFirstRow) {
  const LiftFile file = Parsed("Made with CAM Pro Plus 4\n0.1,0.2\n0.3,0.4\n", "test.c3");
  EXPECT_THAT(file.intake.lifts, ElementsAre(0.1, 0.3, 0, 0));
  EXPECT_EQ(file.header, "");
  EXPECT_EQ(file.linesRead, 3);
  const LiftFile titled = Parsed("cam pro plus\nlifts\n0.1,0.2\nend\n0.3,0.4\n", "test.c3");
  EXPECT_TRUE(titled.hasBadRow);
  EXPECT_THAT(titled.intake.lifts, ElementsAre(0.1, 0, 0));
  EXPECT_EQ(titled.linesRead, 4);
}

TEST(LiftFile, CamDoctorIsToldByTheEndOfTheName) {
  for (const char* name : {"a.c1", "a.C9", "a.c10", "A.C11", "a.c12", "NOTC2", "tailc7"}) {
    EXPECT_TRUE(IsCamDoctorName(name)) << name;
  }
  for (const char* name : {"a.c0", "a.c13", "a.cmm", "c", "", "a.c1x"}) {
    EXPECT_FALSE(IsCamDoctorName(name)) << name;
  }
}

TEST(LiftFile, AnotherKindOfFileHasNoLift) {
  EXPECT_FALSE(ParseLiftFile("", "a.cmm", kPoint));
  EXPECT_FALSE(ParseLiftFile("", "a.c1", kPoint));
  EXPECT_FALSE(ParseLiftFile("; only comments\n", "a.cmm", kPoint));
  EXPECT_FALSE(ParseLiftFile("bore = 4\nstroke = 3\n", "a.prm", kPoint));
  EXPECT_FALSE(ParseLiftFile("every x degrees = 2\n", "a.cmm", kPoint));
  EXPECT_FALSE(ParseLiftFile("every x degrees = 2\nexhaust\n.1\n", "a.cmm", kPoint));
  EXPECT_FALSE(ParseLiftFile("every x degrees = 2\n.1,.2\n", "a.c1", kPoint));
}

TEST(LiftFile, RefusalsTellLineAndReason) {
  EXPECT_EQ(RefusalOf("intake\n.1\nlift\n"),
            "The lift holds \"lift\", which is not a number.\r\nFile: test.cmm   Record # "
            "3\r\nData --> lift");
  EXPECT_THAT(RefusalOf("every x degrees = two\nintake\n.1\n"), HasSubstr("Record # 1"));
  EXPECT_THAT(RefusalOf("every x degrees = 0\nintake\n.1\n"), HasSubstr("has to be above 0"));
  EXPECT_THAT(RefusalOf("every x degrees = 2 i_lash = x\nintake\n"),
              HasSubstr("The intake lash holds \"x\""));
  EXPECT_THAT(RefusalOf("intake\n.1\nexhaust -1\n"), HasSubstr("has to be above 0"));
  EXPECT_THAT(RefusalOf("1,2,3\n1\n2\n", "a.c1"), HasSubstr("cut short"));
  EXPECT_THAT(RefusalOf("1\n1\n2\n", "a.c1"), HasSubstr("PVN, ICL and ECL"));
  EXPECT_THAT(RefusalOf(kHeader + "0.1,a\n", "a.c1"), HasSubstr("Record # 16"));
}

TEST(LiftFile, TakesThreeThousandSixHundredRecordsAndNoMore) {
  const LiftFile file = Parsed("intake\n" + Records(3600));
  EXPECT_EQ(file.intake.count(), 3601);
  EXPECT_THAT(RefusalOf("intake\n" + Records(3601)), HasSubstr("more than 3,600"));
  std::string rows = kHeader;
  for (int i = 0; i < 3600; ++i) rows += "0.1,0.2\n";
  EXPECT_EQ(Parsed(rows, "a.c1").intake.count(), 3601);
  EXPECT_THAT(RefusalOf(rows + "0.1,0.2\n", "a.c1"), HasSubstr("Record # 3616"));
}

TEST(LiftFile, SingleColumnDropsItsZeroLines) {
  const LiftColumnFile file =
      ParseS96("0.00000000\n0\n0.01\n0.0\n0.02\n0.00000000\n", "a.s96", kPoint);
  EXPECT_THAT(file.side.lifts, ElementsAre(0, 0.01, 0.02, 0));
  EXPECT_EQ(file.side.step, 2);
  EXPECT_EQ(file.linesRead, 6);
  EXPECT_THROW(ParseS96("0.1\nx\n", "a.s96", kPoint), CommandError);
}

TEST(LiftTables, ValveLiftsTakeRatioAndLash) {
  ParameterBlock block;
  block.RockerArmRatio = 1.5;
  block.ExhaustRockerArmRatio = 1.6;
  block.IntakeLash = 0.03;
  block.ExhaustLash = 0.032;
  // 0.02 * 1.5 is the lash; 0.02 * 1.6 is it in the exhaust.
  const std::string text = "every x degrees = 2\nintake\n0.02\n0.2\nexhaust\n0.02\n0.2\n";
  StoreLifts(Parsed(text), "test.cmm", block);
  EXPECT_EQ(block.IntakeLiftCount, 3);
  EXPECT_EQ(block.IntakeCamLift[1], 0.02);
  EXPECT_EQ(block.IntakeValveLift[1], 0);
  EXPECT_DOUBLE_EQ(block.IntakeValveLift[2], 0.27);
  // The program's own format takes the intake ratio for the exhaust lift.
  EXPECT_EQ(block.ExhaustValveLift[1], 0);
  EXPECT_DOUBLE_EQ(block.ExhaustValveLift[2], 0.2 * 1.5 - 0.032);
  EXPECT_EQ(block.CamStepDegrees.Intake, 2);
  EXPECT_EQ(block.CamFileTitle, "test.cmm");
  // Cam Doctor files take the exhaust's own.
  StoreLifts(Parsed("cam pro plus\n0.2,0.2\n", "test.c1"), "test.c1", block);
  EXPECT_DOUBLE_EQ(block.IntakeValveLift[0], 0.27);
  EXPECT_DOUBLE_EQ(block.ExhaustValveLift[0], 0.2 * 1.6 - 0.032);
}

TEST(LiftTables, LashesOfTheFileCountAtOnce) {
  ParameterBlock block;
  block.RockerArmRatio = 1.5;
  StoreLifts(Parsed("every x degrees = 2 i_lash = 0.05\nintake\n0.2\n"), "", block);
  EXPECT_EQ(block.IntakeLash, 0.05);
  EXPECT_EQ(block.ExhaustLash, 0.03);
  EXPECT_DOUBLE_EQ(block.IntakeValveLift[1], 0.25);
}

TEST(LiftTables, AShorterFileLeavesNothingOfALongerOne) {
  ParameterBlock block;
  StoreLifts(Parsed("intake\n" + Records(3600) + "exhaust\n" + Records(3600)), "", block);
  EXPECT_EQ(block.IntakeCamLift[3600], 3600);
  EXPECT_EQ(block.IntakeCamLift[3601], 0);
  StoreLifts(Parsed("cam pro plus\n0.1,0.2\n", "a.c1"), "", block);
  EXPECT_EQ(block.IntakeLiftCount, 2);
  EXPECT_TRUE(std::all_of(block.IntakeCamLift.begin() + 1, block.IntakeCamLift.end(),
                          [](double lift) { return lift == 0; }));
  EXPECT_TRUE(std::all_of(block.ExhaustValveLift.begin() + 1, block.ExhaustValveLift.end(),
                          [](double lift) { return lift == 0; }));
}

TEST(LiftTables, WhatDoesNotFitChangesNothing) {
  ParameterBlock block;
  StoreLifts(Parsed("intake\n0.1\n"), "good.cmm", block);
  EXPECT_THROW(StoreLifts(Parsed("intake\n1.5e308\n"), "bad.cmm", block), CommandError);
  EXPECT_EQ(block.CamFileTitle, "good.cmm");
  EXPECT_EQ(block.IntakeCamLift[1], 0.1);
}

TEST(LiftText, WritesWhatIsReadAgain) {
  const std::vector<double> intake = {0, 0.00000012, 0.125, 0.36012345};
  const std::vector<double> exhaust = {0.3333333, 12.5};
  const std::string text = CmmText({"; made here\r\n", "2.5", intake, exhaust}, kPoint);
  EXPECT_EQ(text,
            "; made here\r\nevery x degrees = 2.5\r\nintake\r\n0.0\r\n0.00000012\r\n0.125\r\n"
            "0.36012345\r\nexhaust\r\n0.3333333\r\n12.5\r\n");
  EXPECT_THAT(Parsed(text).exhaust.lifts, ElementsAre(0, 0.3333333, 12.5, 0));
  EXPECT_EQ(Parsed(text).step, 2.5);
  EXPECT_THAT(CmmText({"", "2", intake, {}}, kPoint), Not(HasSubstr("exhaust")));
}

TEST(LiftText, SingleColumnHasItsNoseOnLine91) {
  std::vector<std::string> records;
  for (int i = 0; i < 150; ++i) records.push_back("r" + std::to_string(i));
  const std::string text = S96Text(records, 75);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  ASSERT_EQ(lines.size(), 180U);
  EXPECT_EQ(lines[14], "0.00000000");
  EXPECT_EQ(lines[15], "r0");
  EXPECT_EQ(lines[90], "r75");
  EXPECT_EQ(lines[164], "r149");
  EXPECT_EQ(lines[165], "0.00000000");
}

TEST(LiftText, SingleColumnRefusesAFlankOver180Degrees) {
  const std::vector<std::string> whole(180, "1");
  EXPECT_NO_THROW(S96Text(whole, 90));
  EXPECT_THROW(S96Text(whole, 91), CommandError);
  EXPECT_THROW(S96Text(whole, 89), CommandError);
}

/// A lobe as it comes in: it rises to its nose, and falls from there.
void ExpectLobe(const LiftSide& side, double peak) {
  const auto nose = std::max_element(side.lifts.begin(), side.lifts.end());
  EXPECT_NEAR(*nose, peak, 1e-9);
  EXPECT_TRUE(std::is_sorted(side.lifts.begin(), nose));
  EXPECT_TRUE(std::is_sorted(nose, side.lifts.end(), std::greater<>()));
}

TEST(LiftFile, SamplesAreWholeLobes) {
  const std::filesystem::path folder = std::filesystem::path(VELDOX_SOURCE_DIR) / "samples";
  const auto sample = [&](const char* name) {
    return Parsed(DecodeText(LoadFile(folder / name)), name);
  };
  const LiftFile street = sample("street_hydraulic.cmm");
  EXPECT_EQ(street.step, 2);
  EXPECT_EQ(street.intake.count(), 340 / 2 + 1);
  ExpectLobe(street.intake, 0.310);
  ExpectLobe(street.exhaust, 0.315);
  const LiftFile drag = sample("drag_solid_roller.cmm");
  EXPECT_EQ(drag.step, 1);
  EXPECT_EQ(drag.intakeLash, 0.022);
  EXPECT_EQ(drag.exhaustLash, 0.024);
  EXPECT_EQ(drag.exhaust.count(), 388 + 1);
  ExpectLobe(drag.intake, 0.420);
  ExpectLobe(drag.exhaust, 0.430);
  const LiftFile pair = sample("lobe_pair.c1");
  EXPECT_EQ(pair.format, LiftFormat::CamDoctor);
  EXPECT_FALSE(pair.hasBadRow);
  ExpectLobe(pair.intake, 0.335);
  ExpectLobe(pair.exhaust, 0.340);
}

TEST(LiftEdit, ChangesLiftsWhereTheyStand) {
  const std::string text =
      "; note 1\nevery x degrees = 2 i_lash = 0.02\n\nintake Nr 5\n0.1\nEXHAUST 4\n-0.2\n";
  const EditedLiftFile mm = EditLifts(text, "a.cmm", LiftEdit::InchesToMm, 0, kPoint);
  EXPECT_EQ(mm.text,
            "; note 1\r\nevery x degrees = 2 i_lash = 0.02\r\n\r\nintake Nr 5\r\n2.54\r\nEXHAUST "
            "4\r\n-5.08\r\n");
  EXPECT_EQ(mm.lines, 7);
  EXPECT_TRUE(mm.hasLashes);
  const EditedLiftFile more = EditLifts("intake\n0.1\n", "a", LiftEdit::Multiply, -1.05, kPoint);
  EXPECT_EQ(more.text, "intake\r\n0.105\r\n");
  EXPECT_FALSE(more.hasLashes);
  EXPECT_EQ(EditLifts("0.1\n", "a", LiftEdit::Add, -0.01, kPoint).text, "0.09\r\n");
  EXPECT_EQ(EditLifts("12345.678901\n", "a", LiftEdit::Add, 0, kPoint).text, "12345.678901\r\n");
}

TEST(LiftEdit, InchesToMmAndBackGivesTheLiftsAgain) {
  std::string text = "intake\n";
  for (int i = 0; i <= 360; ++i) {
    text += FormatValue<"0.0#####">(0.36 * std::pow(std::sin(i * kPi / 360), 2), kPoint) + "\n";
  }
  const EditedLiftFile mm = EditLifts(text, "a", LiftEdit::InchesToMm, 0, kPoint);
  const EditedLiftFile back = EditLifts(mm.text, "a", LiftEdit::MmToInches, 0, kPoint);
  const LiftFile before = Parsed(text);
  const LiftFile after = Parsed(back.text);
  ASSERT_EQ(before.intake.lifts.size(), after.intake.lifts.size());
  for (std::size_t i = 0; i < before.intake.lifts.size(); ++i) {
    EXPECT_NEAR(before.intake.lifts[i], after.intake.lifts[i], 5e-7) << i;
  }
}

TEST(LiftEdit, RefusesWhatIsNoLiftAndTooManyLines) {
  EXPECT_THROW(EditLifts("intake\nx\n", "a", LiftEdit::Add, 1, kPoint), CommandError);
  EXPECT_THROW(EditLifts("1e308\n", "a", LiftEdit::InchesToMm, 1, kPoint), CommandError);
  EXPECT_EQ(EditLifts(Records(7202), "a", LiftEdit::Add, 1, kPoint).lines, 7202);
  EXPECT_THROW(EditLifts(Records(7203), "a", LiftEdit::Add, 1, kPoint), CommandError);
}

}  // namespace
}  // namespace veldox
