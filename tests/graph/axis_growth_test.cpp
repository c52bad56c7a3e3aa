#include "graph/axis_growth.h"

#include <gtest/gtest.h>

namespace veldox {
namespace {

GraphCurve Curve(std::vector<GraphPoint> points) {
  return {"", std::move(points), {}};
}

TEST(AxisGrowth, LimitsAreRoundAndHoldTheirValue) {
  EXPECT_EQ(AxisLimit(0.73), 0.8);
  EXPECT_EQ(AxisLimit(200.17), 250);
  EXPECT_EQ(AxisLimit(250), 250);
  EXPECT_EQ(AxisLimit(8436), 10000);
  EXPECT_EQ(AxisLimit(0), 1);
}

TEST(AxisGrowth, AnAxisThatDoesNotBeginAtZeroHasTenRoundSteps) {
  const auto expect = [](double low, double high, double first, double last) {
    const AxisSpan span = AxisSpanOf(low, high);
    EXPECT_NEAR(span.low, first, 1e-9 * last);
    EXPECT_NEAR(span.high, last, 1e-9 * last);
  };
  expect(5000, 10000, 5000, 10000);
  expect(4800, 8400, 4500, 9500);
  expect(1000, 5500, 1000, 6000);
  expect(0, 10, 0, 10);
  expect(0.12, 0.18, 0.12, 0.22);
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
