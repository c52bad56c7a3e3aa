#include "chassis/car_plan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace veldox {
namespace {

std::vector<std::string> NamesOf(const Sketch& sketch) {
  std::vector<std::string> names;
  for (const SketchName& name : sketch.names) names.push_back(name.text);
  return names;
}

/// The middle of the mark at the center of gravity: its name stands under it.
SketchPoint CenterOf(const Sketch& sketch) {
  const auto name = std::ranges::find(sketch.names, "CG", &SketchName::text);
  EXPECT_NE(name, sketch.names.end());
  return name->top;
}

/// How far the bar of the cross diagonal goes: the longest of the thick lines below the car.
double BarLength(const Sketch& sketch) {
  double longest = 0;
  for (const SketchLine& line : sketch.lines) {
    if (line.from.lines > 1 && line.from.lines == line.to.lines &&
        line.stroke == SketchStroke::Outline) {
      longest = std::max(longest, line.to.x - line.from.x);
    }
  }
  return longest;
}

TEST(CarPlan, NamesWhatStandsOnEachTire) {
  const std::vector<std::string> names =
      NamesOf(SketchOf({634.5, 611, 564, 540.5}, DecimalMark::Comma));
  EXPECT_NE(std::ranges::find(names, "Left Front  634,5 lb  27,0 %"), names.end());
  EXPECT_NE(std::ranges::find(names, "Right Front  611,0 lb  26,0 %"), names.end());
  EXPECT_NE(std::ranges::find(names, "Left Rear  564,0 lb  24,0 %"), names.end());
  EXPECT_NE(std::ranges::find(names, "Right Rear  540,5 lb  23,0 %"), names.end());
  EXPECT_NE(std::ranges::find(names, "Cross (RF + LR) 50,00 %,  wedge 0,0 lb"), names.end());
}

TEST(CarPlan, TellsWedgeInPoundsWithItsSign) {
  const std::vector<std::string> names =
      NamesOf(SketchOf({700, 500, 500, 700}, DecimalMark::Point));
  EXPECT_EQ(names.back(), "Cross (RF + LR) 41.67 %,  wedge -400.0 lb");
}

TEST(CarPlan, MovesItsCenterToTheHeavyEndAndSide) {
  const SketchPoint middle = CenterOf(SketchOf({500, 500, 500, 500}, DecimalMark::Point));
  const SketchPoint rear = CenterOf(SketchOf({400, 400, 600, 600}, DecimalMark::Point));
  const SketchPoint left = CenterOf(SketchOf({600, 400, 600, 400}, DecimalMark::Point));
  // The front is at the left, the car's left side at the bottom.
  EXPECT_GT(rear.x, middle.x);
  EXPECT_EQ(rear.y, middle.y);
  EXPECT_GT(left.y, middle.y);
  EXPECT_EQ(left.x, middle.x);
}

TEST(CarPlan, FillsItsBarByTheCrossWeight) {
  const Sketch even = SketchOf({500, 500, 500, 500}, DecimalMark::Point);
  EXPECT_DOUBLE_EQ(BarLength(even), even.width / 2);
  EXPECT_NEAR(BarLength(SketchOf({300, 700, 700, 300}, DecimalMark::Point)), 0.7 * even.width,
              1e-9);
}

}  // namespace
}  // namespace veldox
