#include "graph/axis_growth.h"

#include <gtest/gtest.h>

namespace veldox {
namespace {

GraphCurve Curve(std::vector<GraphPoint> points) {
  return {"", std::move(points), {}};
}

TEST(AxisGrowth, LeavesAxesThatHoldTheCurve) {
  const AxisRange axes{0, 75, 0, 150};
  EXPECT_EQ(GrownBy(axes, Curve({{0, 0}, {75, 150}}), {0, 100, -50, 200}), axes);
  EXPECT_EQ(GrownBy(axes, Curve({}), {0, 100, -50, 200}), axes);
}

TEST(AxisGrowth, MovesOnlyTheEndsThatTheCurvePasses) {
  const AxisRange axes{0, 75, 0, 150};
  const AxisRange own{-10, 120, -20, 300};
  EXPECT_EQ(GrownBy(axes, Curve({{50, 299}}), own), (AxisRange{0, 75, 0, 300}));
  EXPECT_EQ(GrownBy(axes, Curve({{119, 100}}), own), (AxisRange{0, 120, 0, 150}));
  EXPECT_EQ(GrownBy(axes, Curve({{-5, -1}, {2, 3}}), own), (AxisRange{-10, 75, -20, 150}));
}

}  // namespace
}  // namespace veldox
