#include "twostroke/squish.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/units.h"
#include "engine/displacement.h"
#include "engine/piston_motion.h"

namespace veldox {
namespace {

constexpr double kFeetASecond = 3.280839895;

SquishCylinder InMillimetres(double compressionRatio) {
  return {4 * 25.4, 3.25 * 25.4, 5.7 * 25.4, compressionRatio, 0.53, 0.047244 * 25.4};
}

/// The speed of the gas by continuity (J. B. Heywood, Internal Combustion Engine Fundamentals,
/// chapter 8): what the band loses beyond its share of the compression leaves through the gap.
double ContinuityVelocity(const SquishCylinder& cylinder, double rpm, double degrees) {
  const double area = kPi / 4 * cylinder.bore * cylinder.bore;
  const double band = area * cylinder.squishRatio;
  const double circle = cylinder.bore * std::sqrt(cylinder.squishRatio);
  const double clearance = area * cylinder.stroke / (cylinder.compressionRatio - 1);
  const CrankSlider slider{cylinder.stroke / 2, cylinder.rodLength, 0};
  const double travel = PistonTravelAt(slider, degrees);
  const CrankSlider inches{slider.radius / 25.4, slider.rodLength / 25.4, 0};
  const double pistonSpeed = PistonStateAt(inches, rpm, degrees).velocity * 0.3048;
  const double bowl = clearance - cylinder.squishClearance * area;
  return pistonSpeed * band / (kPi * circle * (travel + cylinder.squishClearance)) * bowl /
         (travel * area + clearance);
}

TEST(Squish, IsFastestShortlyBeforeTheTop) {
  // Worked out apart from the program by the same steps.
  const SquishSummary fine = Summarize(SquishFlows(InMillimetres(13.59405), 6500, 74.125, 0.01));
  EXPECT_NEAR(fine.highest.velocity * kFeetASecond, 137.6737785478482, 1e-9);
  EXPECT_NEAR(fine.highest.degrees, 9.745, 1e-9);
  EXPECT_NEAR(fine.mean * kFeetASecond, 49.84846080081863, 1e-9);
  const SquishSummary coarse = Summarize(SquishFlows(InMillimetres(10.1), 6500, 74.125, 1));
  EXPECT_NEAR(coarse.highest.velocity, 45.46373159070799, 1e-10);
  EXPECT_NEAR(coarse.highest.degrees, 10.125, 1e-12);
}

TEST(Squish, ObeysContinuity) {
  for (const double ratio : {8.0, 10.1, 13.59405}) {
    const SquishCylinder cylinder = InMillimetres(ratio);
    for (const SquishFlow& flow : SquishFlows(cylinder, 6500, 80, 0.01)) {
      // The flow is that of the middle between two angles.
      const double expected = ContinuityVelocity(cylinder, 6500, flow.degrees + 0.005);
      ASSERT_NEAR(flow.velocity / expected, 1, 3e-4) << flow.degrees;
    }
  }
}

TEST(Squish, StepsDownToTheTop) {
  const auto flows = SquishFlows(InMillimetres(10.1), 6500, 75, 0.01);
  ASSERT_EQ(flows.size(), 7500U);
  EXPECT_NEAR(flows.front().degrees, 74.99, 1e-12);
  EXPECT_EQ(flows.back().degrees, 0);
  EXPECT_EQ(SquishFlows(InMillimetres(10.1), 6500, 74.12, 0.01).size(), 7412U);
  EXPECT_EQ(SquishFlows(InMillimetres(10.1), 6500, 74.125, 1).size(), 74U);
  EXPECT_EQ(SquishFlows(InMillimetres(10.1), 6500, 0.5, 1).size(), 0U);
  EXPECT_EQ(SquishFlows(InMillimetres(10.1), 6500, -3, 1).size(), 0U);
}

TEST(Squish, StartsAt175AtTheLatest) {
  const auto flows = SquishFlows(InMillimetres(10.1), 6500, 1e300, 1);
  ASSERT_EQ(flows.size(), 175U);
  EXPECT_EQ(flows.front().degrees, 174);
}

TEST(Squish, BandAndCircleAreOfThePistonsArea) {
  const double area = SquishArea(4, 0.53);
  EXPECT_NEAR(area, 6.660176425610355, 1e-12);
  EXPECT_NEAR(SquishCircle(area), 2.9120439557122073, 1e-12);
  // A circle of all of the area is the bore.
  EXPECT_NEAR(SquishCircle(SquishArea(4, 1)), 4, 1e-14);
}

TEST(SquishGraph, RunsFromTheTopToTheStart) {
  const auto flows = SquishFlows(InMillimetres(10.1), 6500, 75, 1);
  const SquishPlot metric = PlotSquish(flows, 75, true, "B=4.0");
  EXPECT_EQ(metric.frame.range, (AxisRange{0, 75, 0, 50}));
  EXPECT_EQ(metric.frame.title, "B=4.0");
  EXPECT_EQ(metric.curve.points.size(), 75U);
  EXPECT_EQ(metric.curve.points.front().x, 74);
  EXPECT_EQ(metric.curve.points.back().x, 0);
  EXPECT_EQ(IsMetricSquishGraph(metric.frame.yPointer), true);
  const SquishPlot feet = PlotSquish(flows, 75, false, "B=4.0");
  EXPECT_EQ(feet.frame.range, (AxisRange{0, 75, 0, 150}));
  EXPECT_NEAR(feet.curve.points[10].y, metric.curve.points[10].y * kFeetASecond, 1e-9);
  EXPECT_EQ(IsMetricSquishGraph(feet.frame.yPointer), false);
  EXPECT_EQ(IsMetricSquishGraph("<--- RPM"), std::nullopt);
}

TEST(SquishGraph, ShowsAFlowBackIntoTheBand) {
  // With a clearance that leaves nothing to the bowl the gas flows outwards.
  SquishCylinder cylinder = InMillimetres(10.1);
  cylinder.squishClearance = 20;
  const auto flows = SquishFlows(cylinder, 6500, 75, 1);
  EXPECT_LT(Summarize(flows).mean, 0);
  const SquishPlot plot = PlotSquish(flows, 75, true, "");
  EXPECT_LT(plot.frame.range.yLow, 0);
  EXPECT_TRUE(plot.frame.zeroLine);
}

}  // namespace
}  // namespace veldox
