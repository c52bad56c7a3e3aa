#include "cam/timing_tape.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace veldox {
namespace {

using testing::Each;

constexpr double kTwipsPerInch = 1440;

std::vector<PlacedText> Printed(double diameter) {
  PageRecorder page(true);
  PrintTimingTape(page, diameter, DecimalMark::Point);
  EXPECT_TRUE(page.ended());
  EXPECT_EQ(page.pages().size(), 1U);
  return page.pages().front().texts;
}

std::vector<PlacedText> Row(const std::vector<PlacedText>& texts, int y) {
  std::vector<PlacedText> row;
  for (const PlacedText& text : texts) {
    if (text.y == y) row.push_back(text);
  }
  return row;
}

struct Band {
  double diameter;
  int labelSize, tickSize, coarse, fine, degrees;
};

TEST(TimingTape, SizesAndCountsFollowTheDiameter) {
  for (const Band& band : {Band{3.5, 13, 36, 18, 90, 180}, Band{3.999, 13, 36, 18, 90, 180},
                           Band{4, 16, 39, 18, 90, 180}, Band{6.7, 16, 39, 18, 90, 180},
                           Band{6.75, 19, 42, 12, 60, 120}, Band{7.5, 19, 42, 12, 60, 120},
                           Band{10, 19, 42, 12, 60, 120}, Band{10.01, 20, 44, 11, 110, 110}}) {
    const TimingTape tape = TimingTapeOf(band.diameter);
    EXPECT_EQ(tape.labelSize, band.labelSize) << band.diameter;
    EXPECT_EQ(tape.tickSize, band.tickSize) << band.diameter;
    EXPECT_EQ(tape.coarseCount, band.coarse) << band.diameter;
    EXPECT_EQ(tape.fineCount, band.fine) << band.diameter;
    // The last marks of both rows stand at the same degree: the arc of a circle.
    const double arc = band.diameter * std::acos(-1.0) * band.degrees / 360 * kTwipsPerInch;
    EXPECT_NEAR(tape.length(), arc, 1e-6) << band.diameter;
    EXPECT_NEAR(tape.fine * tape.fineCount, arc, 1e-6) << band.diameter;
  }
}

TEST(TimingTape, TenDegreesOfTheUsualBalancerAreHalfAnInchAndSome) {
  // 6.75 * pi * 10 / 360
  EXPECT_NEAR(TimingTapeOf(6.75).coarse / kTwipsPerInch, 0.5890, 5e-5);
}

TEST(TimingTape, StandsInRowsOfMarksBetweenTwoScales) {
  const auto texts = Printed(3.5);
  EXPECT_EQ(texts.front().text, "Balancer Diameter = 3.5");
  EXPECT_EQ(texts.front().x, 2000);
  EXPECT_EQ(texts.front().y, 1550);
  EXPECT_EQ(texts.front().font, (PageFont{"Tahoma", 13}));
  for (const int y : {2125, 5100}) {
    const auto scale = Row(texts, y);
    ASSERT_EQ(scale.size(), 19U);
    for (int i = 0; i <= 18; ++i) {
      const PlacedText& label = scale[static_cast<std::size_t>(i)];
      EXPECT_EQ(label.text, std::to_string(i * 10));
      EXPECT_EQ(label.x, std::lround(3.5 * std::acos(-1.0) * i * 10 / 360 * kTwipsPerInch));
      EXPECT_EQ(label.font, (PageFont{"Tahoma", 13}));
    }
  }
  for (const auto& [y, count] : {std::pair{2500, 19}, {2950, 91}, {3700, 91}, {4200, 19}}) {
    const auto marks = Row(texts, y);
    ASSERT_EQ(marks.size(), static_cast<std::size_t>(count)) << y;
    for (int i = 0; i < count; ++i) {
      const PlacedText& mark = marks[static_cast<std::size_t>(i)];
      EXPECT_EQ(mark.text, "|");
      EXPECT_EQ(mark.font, (PageFont{"Courier", 36}));
      EXPECT_EQ(mark.x, std::lround(3.5 * std::acos(-1.0) * i / (count - 1) / 2 * kTwipsPerInch));
    }
  }
}

TEST(TimingTape, TheLargestHaveAMarkForEveryDegree) {
  const auto texts = Printed(12);
  EXPECT_EQ(Row(texts, 2500).size(), 12U);
  EXPECT_EQ(Row(texts, 2950).size(), 111U);
  EXPECT_EQ(Row(texts, 2950).back().x, Row(texts, 2500).back().x);
}

TEST(TimingTape, ACheckBarIsFourInchesLong) {
  const auto bar = Row(Printed(6.75), 6200);
  ASSERT_EQ(bar.size(), 2U);
  EXPECT_EQ(bar[1].x - bar[0].x, 4 * 1440);
}

}  // namespace
}  // namespace veldox
