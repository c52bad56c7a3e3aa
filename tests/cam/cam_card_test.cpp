#include "cam/cam_card.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace veldox {
namespace {

using testing::HasSubstr;

constexpr DecimalMark kPoint = DecimalMark::Point;

/// Lines between a standard and the first lift.
std::string Skipped(int lines) {
  std::string text;
  for (int i = 0; i < lines; ++i) text += "line\r\n";
  return text;
}

std::string CardOf(const std::string& standard, int skipped) {
  return "A maker\r\nSolid Flat Tappet\r\n" + standard + "\r\n" + Skipped(skipped) +
         " .480\r\n .490\r\n" + Skipped(2) + " 18.5\r\n 54.5\r\n 62\r\n -20\r\nmore\r\n";
}

TEST(CamCards, AreReadFromTheirStandardOn) {
  for (const char* name : {"a.cam", "A.DYN", "a.txt"}) {
    const CamCard card = ParseCamCard(CardOf("0.050-Lift timing", 3), name, false, kPoint);
    EXPECT_TRUE(card.found);
    EXPECT_FALSE(card.fault.has_value());
    EXPECT_EQ(card.caption, "0.050-L - Solid Flat Tappet");
    EXPECT_EQ(card.intakeValveLift, 0.48);
    EXPECT_EQ(card.exhaustValveLift, 0.49);
    EXPECT_EQ(card.intakeOpen, 18.5);
    EXPECT_EQ(card.intakeClose, 54.5);
    EXPECT_EQ(card.exhaustOpen, 62);
    EXPECT_EQ(card.exhaustClose, -20);
    EXPECT_EQ(card.linesRead, 14);
  }
}

TEST(CamCards, OfSimulationsHaveTwoLinesMore) {
  for (const char* name : {"a.cqu", "A.Dym"}) {
    const CamCard card = ParseCamCard(CardOf("Seat-To-Seat", 5), name, false, kPoint);
    EXPECT_EQ(card.caption, "Seat-To - Solid Flat Tappet");
    EXPECT_EQ(card.intakeValveLift, 0.48);
    EXPECT_EQ(card.exhaustClose, -20);
  }
}

TEST(CamCards, KnowTheStandardsAndTypes) {
  for (const char* standard : {"0.500-Lift", "0.050-Lift", "Seat-To-Seat"}) {
    EXPECT_TRUE(ParseCamCard(CardOf(standard, 3), "a.cam", false, kPoint).found) << standard;
  }
  for (const char* standard : {" Seat-To", "0.050 L", "seat-to-seat"}) {
    EXPECT_FALSE(ParseCamCard(CardOf(standard, 3), "a.cam", false, kPoint).found) << standard;
  }
  const auto caption = [](const std::string& type) {
    return ParseCamCard(type + "\nSeat-To\n", "a.cam", false, kPoint).caption;
  };
  EXPECT_EQ(caption("Roller, solid"), "Seat-To - Roller, solid");
  EXPECT_EQ(caption("Hydraulic"), "Seat-To - Hydraulic");
  EXPECT_EQ(caption("none of them"), "Seat-To - ---");
}

TEST(CamCards, TakeTheFirstStandard) {
  const std::string text = CardOf("Seat-To-Seat", 3) + CardOf("0.050-Lift", 3);
  EXPECT_EQ(ParseCamCard(text, "a.cam", false, kPoint).caption, "Seat-To - Solid Flat Tappet");
}

TEST(CamCards, TakeTheTimingAt050WhereTheyAreTold) {
  const std::string text =
      CardOf("Seat-To-Seat", 5) + "0.050-Inch Timing\r\n 5\r\n 41\r\n 46\r\n 2\r\n";
  const CamCard card = ParseCamCard(text, "a.cqu", true, kPoint);
  EXPECT_EQ(card.caption, "0.050-Inch Timing");
  EXPECT_EQ(card.intakeValveLift, 0.48);
  EXPECT_EQ(card.intakeOpen, 5);
  EXPECT_EQ(card.intakeClose, 41);
  EXPECT_EQ(card.exhaustOpen, 46);
  EXPECT_EQ(card.exhaustClose, 2);
  EXPECT_EQ(ParseCamCard(text, "a.cqu", false, kPoint).intakeOpen, 18.5);
  EXPECT_EQ(
      ParseCamCard(CardOf("Seat-To", 3) + "0.050-Inch\n 5\n", "a.cam", true, kPoint).intakeOpen,
      18.5);
}

TEST(CamCards, KeepWhatStandsBeforeACut) {
  const std::string whole = CardOf("Seat-To-Seat", 3);
  const CamCard card = ParseCamCard(whole.substr(0, whole.find(" 62")), "short.cam", false, kPoint);
  EXPECT_TRUE(card.found);
  ASSERT_TRUE(card.fault.has_value());
  EXPECT_EQ(card.fault->kind(), ErrorKind::File);
  EXPECT_THAT(card.fault->message(), HasSubstr("cut short"));
  EXPECT_THAT(card.fault->message(), HasSubstr("File: short.cam   Record # 12"));
  EXPECT_EQ(card.intakeClose, 54.5);
  EXPECT_FALSE(card.exhaustOpen.has_value());
}

TEST(CamCards, TellALineThatIsNoNumber) {
  std::string text = CardOf("Seat-To-Seat", 3);
  text.replace(text.find(" 54.5"), 5, " late");
  const CamCard card = ParseCamCard(text, "a.cam", false, kPoint);
  ASSERT_TRUE(card.fault.has_value());
  EXPECT_THAT(card.fault->message(), HasSubstr("Record # 12"));
  EXPECT_THAT(card.fault->message(), HasSubstr("late"));
  EXPECT_EQ(card.intakeOpen, 18.5);
  EXPECT_FALSE(card.intakeClose.has_value());
}

TEST(CamCards, ThatAreNone) {
  for (const char* text : {"", "\r\n", "Roller\r\nno standard\r\n", "Lift 0.050-L\r\n"}) {
    const CamCard card = ParseCamCard(text, "a.cam", true, kPoint);
    EXPECT_FALSE(card.found);
    EXPECT_EQ(card.caption, "---");
    EXPECT_FALSE(card.fault.has_value());
  }
}

TEST(CamCards, MayHaveADecimalComma) {
  std::string text = CardOf("Seat-To-Seat", 3);
  text.replace(text.find("18.5"), 4, "18,5");
  EXPECT_EQ(ParseCamCard(text, "a.cam", false, DecimalMark::Comma).intakeOpen, 18.5);
  EXPECT_EQ(ParseCamCard(text, "a.cam", false, DecimalMark::Comma).intakeClose, 54.5);
}

}  // namespace
}  // namespace veldox
