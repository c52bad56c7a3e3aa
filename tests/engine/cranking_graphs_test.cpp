#include "engine/cranking_graphs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "core/units.h"

namespace veldox {
namespace {

CrankingGraphInput InputOf(CrankingGraph graph) {
  CrankingGraphInput input;
  input.graph = graph;
  input.size = {4, 3.25, 5.7, 0};
  input.compressionRatio = 10;
  input.intakeClose = 70;
  input.dynamicRatio = 8;
  input.gauge = 180;
  input.barometer = 29.92;
  input.vapor = 0.5;
  input.temperature = 80;
  input.humidity = 40;
  input.inletAir = 120;
  input.water = 170;
  input.startDegrees = 15;
  input.exponent = 1.3;
  return input;
}

CrankingPlot Plot(const CrankingGraphInput& input) {
  const auto plot = PlotCranking(input, DecimalMark::Point);
  EXPECT_TRUE(plot.has_value());
  return plot.value_or(CrankingPlot{});
}

/// The value of a curve at a point that it has.
double At(const CrankingPlot& plot, double x) {
  for (const GraphPoint& point : plot.curve.points) {
    if (std::abs(point.x - x) < 1e-9) return point.y;
  }
  ADD_FAILURE() << "no point at " << x;
  return 0;
}

TEST(AxisTop, IsTheNextTenOrBelowTenTheNextWhole) {
  EXPECT_EQ(AxisTop(0), 1);
  EXPECT_EQ(AxisTop(7.2), 8);
  EXPECT_EQ(AxisTop(9.99), 10);
  EXPECT_EQ(AxisTop(10), 10);
  EXPECT_EQ(AxisTop(10.01), 20);
  EXPECT_EQ(AxisTop(199.9), 200);
}

TEST(CrankingGraphs, SweepFiftyDegreesToEitherSideByWholeTens) {
  CrankingGraphInput input = InputOf(CrankingGraph::DynamicRatio);
  const auto limits = [&](double closing) {
    input.intakeClose = closing;
    const AxisRange range = Plot(input).frame.range;
    return std::pair(range.xLow, range.xHigh);
  };
  EXPECT_EQ(limits(70), std::pair(20.0, 120.0));
  EXPECT_EQ(limits(95.5), std::pair(40.0, 140.0));
  EXPECT_EQ(limits(5), std::pair(0.0, 100.0));
  EXPECT_EQ(limits(170), std::pair(70.0, 170.0));
  input.intakeClose = 70;
  const CrankingPlot plot = Plot(input);
  ASSERT_EQ(plot.curve.points.size(), 101U);
  EXPECT_EQ(plot.curve.points[33].x, 53);
}

TEST(CrankingGraphs, KeepToTheAxisOfTheGraphThatTheyAreAddedTo) {
  CrankingGraphInput input = InputOf(CrankingGraph::DynamicRatio);
  const auto plot = PlotCranking(input, DecimalMark::Point, AxisRange{40, 140, 0, 10});
  ASSERT_TRUE(plot);
  EXPECT_EQ(plot->curve.points.front().x, 40);
  EXPECT_EQ(plot->curve.points.back().x, 140);
}

TEST(CrankingGraphs, LetNoCurveLeaveItsAxes) {
  std::mt19937 random(15);
  std::uniform_real_distribution<double> strokes(1.5, 5), ratios(6, 15), closings(0, 170),
      offsets(-0.1, 0.1), starts(1, 90), gauges(60, 190);
  for (int i = 0; i < 450; ++i) {
    CrankingGraphInput input = InputOf(static_cast<CrankingGraph>(i % kCrankingGraphCount));
    input.size = {strokes(random), strokes(random), 8, offsets(random)};
    input.compressionRatio = ratios(random);
    input.intakeClose = closings(random);
    input.startDegrees = starts(random);
    input.gauge = gauges(random);
    input.metric = i % 2 == 1;
    if (input.metric) {
      input.size = {input.size.bore * 25.4, input.size.stroke * 25.4, 8 * 25.4,
                    input.size.offset * 25.4};
      input.gauge *= kGaugeUnitsPerPsi;
    }
    const CrankingPlot plot = Plot(input);
    const AxisRange& range = plot.frame.range;
    for (const GraphPoint& point : plot.curve.points) {
      ASSERT_GE(point.x, range.xLow - 1e-9) << i;
      ASSERT_LE(point.x, range.xHigh + 1e-9) << i;
      ASSERT_GE(point.y, range.yLow) << i;
      ASSERT_LE(point.y, range.yHigh) << i;
    }
  }
}

TEST(CrankingGraphs, OfTheRatiosMeetAtTheirOwnEngine) {
  // The dynamic ratio at some closing, put into the graph of the ratio, gives the ratio there.
  const double dynamic = At(Plot(InputOf(CrankingGraph::DynamicRatio)), 60);
  CrankingGraphInput back = InputOf(CrankingGraph::CompressionRatio);
  back.dynamicRatio = dynamic;
  EXPECT_NEAR(At(Plot(back), 60), 10, 1e-9);
}

TEST(CrankingGraphs, OfTheGaugeFollowThePolytropicLaw) {
  const double dynamic = At(Plot(InputOf(CrankingGraph::DynamicRatio)), 70);
  const double reading = std::pow(dynamic, 1.29) * 29.92 * 0.4911542;
  EXPECT_NEAR(At(Plot(InputOf(CrankingGraph::GaugeOverClosing)), 70), reading, 1e-9);
  EXPECT_NEAR(At(Plot(InputOf(CrankingGraph::GaugeOverClosingFixedRatio)), 70), reading, 1e-9);
  // Over the barometer they are straight lines through nothing.
  const double perPsi = std::pow(dynamic, 1.29);
  EXPECT_NEAR(At(Plot(InputOf(CrankingGraph::GaugeOverPsi)), 14), 14 * perPsi, 1e-9);
  EXPECT_NEAR(At(Plot(InputOf(CrankingGraph::GaugeOverInchesMercury)), 30), 30 * 0.4911542 * perPsi,
              1e-9);
  // A cylinder filled to its whole volume is compressed by the whole ratio.
  EXPECT_NEAR(At(Plot(InputOf(CrankingGraph::GaugeOverVolumetricEfficiency)), 0.85),
              0.85 * std::pow(10, 1.29) * 29.92 * 0.4911542, 1e-9);
  CrankingGraphInput older = InputOf(CrankingGraph::GaugeOverClosingFixedRatio);
  older.rule = DosRule::On;
  EXPECT_NEAR(At(Plot(older), 70), (std::pow(dynamic, 1.29) - 1) * (29.92 - 0.5) * 0.4911542, 1e-9);
}

TEST(CrankingGraphs, OfAFixedReadingGiveThatReadingBack) {
  for (const DosRule rule : {DosRule::Off, DosRule::On}) {
    CrankingGraphInput input = InputOf(CrankingGraph::RatioOverClosing);
    input.rule = rule;
    const double ratio = At(Plot(input), 70);
    CrankingGraphInput reading = InputOf(CrankingGraph::GaugeOverClosingFixedRatio);
    reading.rule = rule;
    reading.compressionRatio = ratio;
    EXPECT_NEAR(At(Plot(reading), 70), 180, 1e-9);

    input.graph = CrankingGraph::ClosingOverInchesMercury;
    const double beforeTop = At(Plot(input), 30);
    input.intakeClose = 180 - beforeTop;
    reading = input;
    const ClosedCylinder cylinder = ClosedCylinderAt(input.size, 180 - beforeTop);
    const double base = (rule == DosRule::On ? 29.5 : 30) * 0.4911542;
    const double clearance = cylinder.sweptCc / 9;
    EXPECT_NEAR(CrankingPressure((clearance + cylinder.closedCc) / clearance, base, rule), 180,
                0.01);
  }
}

TEST(CrankingGraphs, OfAReadingOutOfReachHaveNoCurve) {
  CrankingGraphInput input = InputOf(CrankingGraph::ClosingOverInchesMercury);
  input.gauge = 5000;
  EXPECT_FALSE(PlotCranking(input, DecimalMark::Point));
}

TEST(CrankingGraphs, TakeTheHighLimitThatIsGiven) {
  CrankingGraphInput input = InputOf(CrankingGraph::GaugeOverInchesMercury);
  input.highValue = 74.32;
  EXPECT_EQ(Plot(input).frame.range.xHigh, 74.32);
  EXPECT_EQ(Plot(input).curve.points.back().x, 74.32);
  input = InputOf(CrankingGraph::RatioOverClosing);
  input.highValue = 12;
  const CrankingPlot plot = Plot(input);
  EXPECT_EQ(plot.frame.range.yHigh, 12);
  EXPECT_LE(plot.curve.points.back().y, 12);
  EXPECT_LT(plot.curve.points.size(), 101U);
}

TEST(CrankingGraphs, OfTheExpansionStartAtTheReading) {
  const CrankingPlot pressure = Plot(InputOf(CrankingGraph::CylinderPressure));
  EXPECT_EQ(pressure.curve.points.front(), (GraphPoint{15, 180}));
  EXPECT_EQ(pressure.curve.points.back().x, 180);
  EXPECT_EQ(pressure.frame.range.yHigh, 180);
  EXPECT_NEAR(At(Plot(InputOf(CrankingGraph::PistonPressure)), 15), 180 * 4 * std::acos(-1), 1e-9);
  const double force = At(Plot(InputOf(CrankingGraph::TurningForce)), 40);
  EXPECT_NEAR(force,
              TurningForce(InputOf(CrankingGraph::TurningForce).size, At(pressure, 40), 40, 12),
              1e-9);
}

TEST(CrankingGraphs, OfAConstantForceInvertTheTurningForce) {
  const CrankingGraphInput input = InputOf(CrankingGraph::ConstantTurningForce);
  const CrankingPlot plot = Plot(input);
  EXPECT_NEAR(plot.curve.points.front().y, 180, 1e-9);
  const double force = TurningForce(input.size, 180, 15, 12);
  for (const GraphPoint& point : plot.curve.points) {
    EXPECT_NEAR(TurningForce(input.size, point.y, point.x, 12), force, 1e-9);
  }
  // Four times 180 psi x 4 pi x 0.47 x 3.25 / 2 / 12 = 575.8..., to the next ten
  EXPECT_EQ(plot.frame.range.yHigh, 580);
}

TEST(CrankingGraphs, InMetricShowTheSameEngine) {
  CrankingGraphInput input = InputOf(CrankingGraph::CylinderPressure);
  CrankingGraphInput metric = input;
  metric.metric = true;
  metric.size = {4 * 25.4, 3.25 * 25.4, 5.7 * 25.4, 0};
  metric.gauge = input.gauge * kGaugeUnitsPerPsi;
  EXPECT_NEAR(At(Plot(metric), 90), At(Plot(input), 90) * kGaugeUnitsPerPsi, 1e-9);
  // A foot-pound is 1.3558179 Nm, and the metric graph counts in tens of them.
  input.graph = metric.graph = CrankingGraph::TurningForce;
  EXPECT_NEAR(At(Plot(metric), 40), At(Plot(input), 40) * kNewtonMetresPerFootPound / 10, 1e-5);
  input.graph = metric.graph = CrankingGraph::Octane;
  EXPECT_NEAR(At(Plot(metric), 70), At(Plot(input), 70), 1e-9);
}

TEST(CrankingGraphs, TellTheirEngine) {
  CrankingGraphInput input = InputOf(CrankingGraph::GaugeOverClosing);
  input.size.offset = 0.06;
  EXPECT_EQ(CrankingGraphTitle(input, DecimalMark::Point),
            "Cranking Compression vs Intake Valve Close ABDC      Bore = 4.0  Stroke = 3.25  Rod = "
            "5.7  CR = 10.0:1      BP = 29.92 Offset = 0.06");
  input.graph = CrankingGraph::RatioOverClosing;
  input.size.offset = 0;
  input.rule = DosRule::On;
  EXPECT_EQ(CrankingGraphNote(input, DecimalMark::Comma),
            "Bore = 4,0  Stroke = 3,25  Rod = 5,7   BP = 29,92   Temp = 80,0  RH = 40,0   CGP = "
            "180,0   ");
}

}  // namespace
}  // namespace veldox
