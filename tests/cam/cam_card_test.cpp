#include "cam/cam_card.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace veldox {
namespace {

using testing::HasSubstr;

constexpr DecimalMark kPoint = DecimalMark::Point;

/// A card with lines between the standard and the first lift.
std::string Card(int skipped, const std::string& standard = "0.500-Lift timing") {
  std::string text = "A maker's card\nRoller Street\n" + standard + "\n";
  for (int i = 0; i < skipped; ++i) text += "skipped\n";
  return text + " .510\n .520\nskip\nskip\n 31\n 71.5\n 76\n 30\n";
}

TEST(CamCard, HasTypeStandardLiftsAndTiming) {
  for (const char* name : {"a.cam", "a.DYN", "a.txt"}) {
    const CamCard card = ParseCamCard(Card(3), name, false, kPoint);
    EXPECT_TRUE(card.found);
    EXPECT_FALSE(card.fault);
    EXPECT_EQ(card.caption, "0.500-L - Roller Street");
    EXPECT_EQ(card.intakeValveLift, 0.51);
    EXPECT_EQ(card.exhaustValveLift, 0.52);
    EXPECT_EQ(card.intakeOpen, 31);
    EXPECT_EQ(card.intakeClose, 71.5);
    EXPECT_EQ(card.exhaustOpen, 76);
    EXPECT_EQ(card.exhaustClose, 30);
    EXPECT_EQ(card.linesRead, 14);
  }
}

TEST(CamCard, SimulationsHaveTwoLinesMore) {
  EXPECT_EQ(ParseCamCard(Card(5), "a.cqu", false, kPoint).intakeValveLift, 0.51);
  EXPECT_EQ(ParseCamCard(Card(5), "a.DYM", false, kPoint).exhaustClose, 30);
  EXPECT_TRUE(ParseCamCard(Card(5), "a.cam", false, kPoint).fault);
}

TEST(CamCard, TheFirstStandardIsTheOneUsed) {
  const std::string text = Card(3, "Seat-To-Seat") + Card(3, "0.050-Lift");
  EXPECT_EQ(ParseCamCard(text, "a.cam", false, kPoint).caption, "Seat-To - Roller Street");
  for (const char* standard : {" Seat-To", "0.050 L", "seat-to-seat"}) {
    EXPECT_FALSE(ParseCamCard(Card(3, standard), "a.cam", false, kPoint).found) << standard;
  }
}

TEST(CamCard, TimingAt050ReplacesTheFirst) {
  const std::string text = Card(5, "Seat-To-Seat") + "more\n0.050-Inch timing\n 5\n 45\n 50\n -2\n";
  const CamCard at050 = ParseCamCard(text, "a.cqu", true, kPoint);
  EXPECT_EQ(at050.caption, "0.050-Inch timing");
  EXPECT_EQ(at050.intakeOpen, 5);
  EXPECT_EQ(at050.exhaustClose, -2);
  EXPECT_EQ(at050.intakeValveLift, 0.51);
  const CamCard seat = ParseCamCard(text, "a.cqu", false, kPoint);
  EXPECT_EQ(seat.caption, "Seat-To - Roller Street");
  EXPECT_EQ(seat.intakeOpen, 31);
  // Other cards have one block.
  EXPECT_EQ(ParseCamCard(Card(3), "a.cam", true, kPoint).intakeOpen, 31);
}

TEST(CamCard, WithoutTimingAt050KeepsTheFirst) {
  const std::string first = Card(5, "Seat-To-Seat");
  const std::string block = "more\n0.050-Inch timing\n";
  const auto reason = [](const CamCard& card) { return card.fault ? card.fault->message() : ""; };
  const CamCard none = ParseCamCard(first, "a.dym", true, kPoint);
  EXPECT_THAT(reason(none), HasSubstr("no timing at 0.050"));
  const CamCard cut = ParseCamCard(first + block + " 5\n 45\n 50\n", "a.cqu", true, kPoint);
  EXPECT_THAT(reason(cut), HasSubstr("The exhaust closing is missing"));
  const CamCard word = ParseCamCard(first + block + " 5\n 45\n late\n -2\n", "a.cqu", true, kPoint);
  EXPECT_THAT(reason(word), HasSubstr("The exhaust opening holds"));
  for (const CamCard& card : {none, cut, word}) {
    EXPECT_TRUE(card.complete);
    EXPECT_EQ(card.caption, "Seat-To - Roller Street");
    EXPECT_EQ(card.intakeOpen, 31);
    EXPECT_EQ(card.intakeClose, 71.5);
    EXPECT_EQ(card.exhaustOpen, 76);
    EXPECT_EQ(card.exhaustClose, 30);
  }
  // A first timing that is cut short is none to calculate with.
  EXPECT_FALSE(ParseCamCard(first.substr(0, first.find(" 76")), "a.cqu", true, kPoint).complete);
}

TEST(CamCard, OneCutShortKeepsWhatWasRead) {
  const std::string whole = Card(3);
  const CamCard card = ParseCamCard(whole.substr(0, whole.find(" 71.5")), "a.cam", false, kPoint);
  EXPECT_TRUE(card.found);
  EXPECT_EQ(card.intakeOpen, 31);
  EXPECT_FALSE(card.intakeClose);
  ASSERT_TRUE(card.fault);
  EXPECT_EQ(card.fault->kind(), ErrorKind::File);
  EXPECT_THAT(card.fault->message(), HasSubstr("The intake closing is missing"));
}

TEST(CamCard, WhatIsNoNumberIsTold) {
  const CamCard card = ParseCamCard("0.050-L\n1\n2\n3\n xx\n", "a.cam", false, kPoint);
  EXPECT_EQ(card.caption, "0.050-L - ---");
  ASSERT_TRUE(card.fault);
  EXPECT_THAT(card.fault->message(), HasSubstr("The intake valve lift holds \"xx\""));
  EXPECT_THAT(card.fault->message(), HasSubstr("Record # 5"));
}

TEST(CamCard, NothingFoundHasADash) {
  const CamCard card = ParseCamCard("Solid\nnothing\n", "a.cam", false, kPoint);
  EXPECT_FALSE(card.found);
  EXPECT_EQ(card.caption, "---");
  EXPECT_FALSE(card.fault);
  EXPECT_FALSE(ParseCamCard("", "a.cqu", true, kPoint).found);
}

TEST(CamCard, NumbersTakeTheDecimalComma) {
  EXPECT_EQ(ParseCamCard(Card(3), "a.cam", false, DecimalMark::Comma).intakeClose, 71.5);
}

}  // namespace
}  // namespace veldox
