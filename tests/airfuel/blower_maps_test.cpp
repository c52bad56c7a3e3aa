#include "airfuel/blower_maps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/error.h"
#include "core/report.h"

namespace veldox {
namespace {

FlowMapInput UsualMap(FlowMapKind kind) {
  FlowMapInput input;
  input.kind = kind;
  input.engine.cubicInches = 345.6;  // 0.1 cubic feet a revolution
  input.air = {kInchAir, 0, 29.92, 59};
  input.blowerEfficiency = 0.7;
  input.intercoolerOutlet = 95;
  input.volumetricEfficiency.always = 1;
  input.poundsPerCubicFoot = 0.0765;
  input.maxRpm = 2000;
  return input;
}

std::vector<std::string> Lines(const std::string& report) {
  std::vector<std::string> lines;
  for (const MarkedLine& line : ReportLines(report)) lines.emplace_back(line.text);
  return lines;
}

std::string Report(const FlowMapInput& input, const ValueByRpm& bsac = {6, {}}) {
  return FlowMapReport(input, bsac, {"Engine Size = 345.6 cu in"}, DecimalMark::Point);
}

bool Holds(const std::string& report, const std::string& line) {
  const auto lines = Lines(report);
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(FlowMapSpeeds, AreEveryFiveHundred) {
  EXPECT_EQ(FlowMapSpeeds(2499), (std::vector<double>{1000, 1500, 2000}));
  EXPECT_EQ(FlowMapSpeeds(1000), (std::vector<double>{1000}));
  EXPECT_TRUE(FlowMapSpeeds(999).empty());
  EXPECT_EQ(FlowMapSpeeds(27500).size(), 54U);
}

TEST(FlowMapReport, TellsTheFlowByPressureRatio) {
  // 0.1 cubic feet a turn and 1000 RPM: 100 CFM, and in proportion to both.
  const std::string report = Report(UsualMap(FlowMapKind::PressureRatio));
  EXPECT_TRUE(Holds(report, "Flow in CFM"));
  EXPECT_TRUE(Holds(
      report, "Pressure Ratio   1.0   1.2   1.4   1.6   1.8   2.0   2.2   2.4   2.6   2.8   3.0"));
  EXPECT_TRUE(Holds(
      report, "          1000   100   120   140   160   180   200   220   240   260   280   300"));
  EXPECT_TRUE(Holds(
      report, "          2000   200   240   280   320   360   400   440   480   520   560   600"));
  // Behind it the horsepower: 100 CFM are 459 lb/h, 76.5 HP at 6 lb/h each.
  EXPECT_TRUE(Holds(report, "Horsepower of this Flow by a BSAC of 6.0"));
  EXPECT_TRUE(Holds(
      report, "          2000   153   184   214   245   275   306   337   367   398   428   459"));
  EXPECT_EQ(FontSizeByWidth(report), 10);
}

TEST(FlowMapReport, TellsTheFlowInPounds) {
  FlowMapInput input = UsualMap(FlowMapKind::PressureRatio);
  input.inPounds = true;
  input.maxRpm = 1000;
  const std::string report = Report(input);
  EXPECT_TRUE(Holds(report, "Flow in Lbs / Min"));
  EXPECT_TRUE(Holds(
      report, "          1000   7.7   9.2  10.7  12.2  13.8  15.3  16.8  18.4  19.9  21.4  23.0"));
}

TEST(FlowMapReport, TellsTheFlowOfOneOfSeveralTurbos) {
  FlowMapInput input = UsualMap(FlowMapKind::PressureRatio);
  input.maxRpm = 1000;
  input.turbos = 2;
  const std::string report = Report(input);
  EXPECT_TRUE(Holds(report, "Flow in CFM, all 2 Turbos together"));
  EXPECT_TRUE(Holds(
      report, "          1000   100   120   140   160   180   200   220   240   260   280   300"));
  EXPECT_TRUE(Holds(report, "Flow in CFM of one of 2 Turbos"));
  EXPECT_TRUE(Holds(
      report, "          1000    50    60    70    80    90   100   110   120   130   140   150"));
}

TEST(FlowMapReport, TakesTheValuesOfTheTables) {
  FlowMapInput input = UsualMap(FlowMapKind::PressureRatio);
  input.volumetricEfficiency.table.emplace().fill(0.5);
  (*input.volumetricEfficiency.table)[2] = 2;
  ValueByRpm bsac;
  bsac.table.emplace().fill(4.59);
  (*bsac.table)[1] = 9.18;
  const std::string report = Report(input, bsac);
  EXPECT_TRUE(Holds(
      report, "          1000    50    60    70    80    90   100   110   120   130   140   150"));
  EXPECT_TRUE(Holds(
      report, "          2000   400   480   560   640   720   800   880   960  1040  1120  1200"));
  EXPECT_TRUE(Holds(report, "Horsepower of this Flow by the B S A C Table"));
  // 75 CFM of 1500 RPM are 344.25 lb/h.
  EXPECT_TRUE(Holds(
      report, "          1500    38    45    53    60    68    75    83    90    98   105   113"));
}

TEST(FlowMapReport, BySeveralPressuresIsPrintedSmaller) {
  const std::string report = Report(UsualMap(FlowMapKind::Boost));
  EXPECT_TRUE(Holds(report,
                    "     Boost psi     0     2     4     6     8    10    12    14    16    "
                    "18    20    22    24"));
  EXPECT_EQ(FontSizeByWidth(report), 9);
}

TEST(FlowMapReport, InMetricTellsTheBoostInBothUnits) {
  FlowMapInput input = UsualMap(FlowMapKind::Boost);
  input.air = {kMetricAir, 0, 1013.25, 15};
  const std::string report = Report(input);
  EXPECT_TRUE(Holds(report,
                    "     Boost psi     0     2     4     6     8    10    12    14    16    "
                    "18    20    22    24"));
  EXPECT_TRUE(Holds(report,
                    "     Boost kPa   0.0  13.8  27.6  41.4  55.2  68.9  82.7  96.5 110.3 "
                    "124.1 137.9 151.7 165.5"));
}

TEST(FlowMapReport, OfAnIntercoolerTakesItsTemperature) {
  const FlowMapInput input = UsualMap(FlowMapKind::Intercooled);
  // 519 / 555 of the pressure ratio, whatever the compressor heats.
  EXPECT_NEAR(input.DensityRatio(7.5, 1.510366), 1.510366 * 519 / 555, 1e-6);
  EXPECT_NEAR(UsualMap(FlowMapKind::Boost).DensityRatio(7.5, 1.510366), 1.283425, 1e-6);
  EXPECT_EQ(UsualMap(FlowMapKind::PressureRatio).DensityRatio(0, 1.51), 1.51);
}

TEST(PlotFlowMap, HasACurveForEveryRow) {
  const BlowerPlot plot =
      PlotFlowMap(UsualMap(FlowMapKind::PressureRatio), {}, {}, DecimalMark::Point);
  ASSERT_EQ(plot.curves.size(), 3U);
  EXPECT_EQ(plot.curves[0].note, "1000 RPM");
  EXPECT_EQ(plot.curves[2].note, "2000 RPM");
  EXPECT_EQ(plot.curves[2].points.front(), (GraphPoint{200, 1}));
  EXPECT_NEAR(plot.curves[2].points.back().x, 600, 1e-9);
  EXPECT_NEAR(plot.curves[2].points.back().y, 3, 1e-12);
  EXPECT_EQ(plot.frame.range, (AxisRange{0, 600, 1, 3}));
  EXPECT_EQ(plot.frame.yPointer, "<--- Pressure Ratio");
  EXPECT_EQ(plot.frame.xName, "CFM");
}

TEST(PlotFlowMap, ReachesToTheLimitsOfTheUser) {
  for (const FlowMapKind kind :
       {FlowMapKind::PressureRatio, FlowMapKind::Boost, FlowMapKind::Intercooled}) {
    const BlowerPlot plot = PlotFlowMap(UsualMap(kind), {750, 4.5}, {}, DecimalMark::Point);
    EXPECT_EQ(plot.frame.range, (AxisRange{0, 750, 1, 4.5}));
    for (const GraphCurve& curve : plot.curves) EXPECT_GE(curve.points.back().y, 4.5);
  }
}

TEST(PlotFlowMap, HoldsAllItsPoints) {
  for (const FlowMapKind kind :
       {FlowMapKind::PressureRatio, FlowMapKind::Boost, FlowMapKind::Intercooled}) {
    for (const double ratio : {1.5, 3.3, 4.7}) {
      const BlowerPlot plot =
          PlotFlowMap(UsualMap(kind), {}, OperatingPoint{3000, ratio}, DecimalMark::Point);
      for (const GraphCurve& curve : plot.curves) {
        for (const GraphPoint& point : curve.points) {
          EXPECT_LE(point.y, plot.frame.range.yHigh);
          EXPECT_LE(point.x, plot.frame.range.xHigh);
        }
      }
    }
  }
  // Steps of 2 psi at 29.92 inches of mercury: 3 is passed by 1 + 30 / (29.92 x 0.4911542).
  const BlowerPlot boost = PlotFlowMap(UsualMap(FlowMapKind::Boost), {}, {}, DecimalMark::Point);
  EXPECT_NEAR(boost.curves[0].points.back().y, 3.0414644, 1e-7);
  EXPECT_EQ(boost.frame.range.yHigh, 3.5);
}

TEST(PlotFlowMap, DrawsNoMorePointsThanCanBeSeen) {
  for (const FlowMapKind kind : {FlowMapKind::PressureRatio, FlowMapKind::Boost}) {
    FlowMapInput input = UsualMap(kind);
    const BlowerPlot plot = PlotFlowMap(input, {{}, 1e9}, {}, DecimalMark::Point);
    EXPECT_LE(plot.curves[0].points.size(), 202U);
    EXPECT_GE(plot.curves[0].points.back().y, 1e9);
    input.air.barometer = 1e7;
    EXPECT_LE(PlotFlowMap(input, {}, {}, DecimalMark::Point).curves[0].points.size(), 202U);
  }
}

TEST(PlotFlowMap, ShowsWhereTheEngineStands) {
  FlowMapInput input = UsualMap(FlowMapKind::PressureRatio);
  input.turbos = 4;
  const BlowerPlot plot = PlotFlowMap(input, {}, OperatingPoint{1800, 1.5}, DecimalMark::Point);
  ASSERT_EQ(plot.curves.size(), 5U);
  EXPECT_EQ(plot.curves[3].note, "Now 1800 RPM at 1.5");
  // 100 CFM x 1.8 x 1.5, read on both axes.
  EXPECT_NEAR(plot.curves[3].points[1].x, 270, 1e-12);
  EXPECT_EQ(plot.curves[3].points[0], (GraphPoint{0, 1.5}));
  EXPECT_NEAR(plot.curves[3].points[2].x, 270, 1e-12);
  EXPECT_EQ(plot.curves[3].points[2].y, 1);
  EXPECT_EQ(plot.curves[4].note, "One of 4 Turbos");
  EXPECT_NEAR(plot.curves[4].points[1].x, 67.5, 1e-12);
}

TEST(PlotFlowMap, ShowsThePointOnItsCurveWhateverTheUnits) {
  FlowMapInput input = UsualMap(FlowMapKind::Boost);
  const BlowerPlot inches = PlotFlowMap(input, {}, OperatingPoint{2000, 2}, DecimalMark::Point);
  EXPECT_NEAR(inches.curves[3].points[1].x, input.Flow(2000, input.DensityRatio(14.69533, 2)),
              1e-3);
  input.air = {kMetricAir, 0, 1013.25, 15};
  const BlowerPlot metric = PlotFlowMap(input, {}, OperatingPoint{2000, 2}, DecimalMark::Point);
  EXPECT_NEAR(metric.curves[3].points[1].x, input.Flow(2000, input.DensityRatio(101.325, 2)), 1e-9);
}

TEST(PlotDensityGain, GraphsPowerAndTorqueOldAndNew) {
  const std::vector<double> rpm{2626, 5252}, torque{300, 400};
  const BlowerPlot plot = PlotDensityGain(rpm, torque, 1.5);
  ASSERT_EQ(plot.curves.size(), 4U);
  // Power and torque are the same number at 5252 RPM.
  EXPECT_EQ(plot.curves[0].points, (std::vector<GraphPoint>{{2626, 150}, {5252, 400}}));
  EXPECT_EQ(plot.curves[1].points, (std::vector<GraphPoint>{{2626, 300}, {5252, 400}}));
  EXPECT_EQ(plot.curves[2].points, (std::vector<GraphPoint>{{2626, 225}, {5252, 600}}));
  EXPECT_EQ(plot.curves[3].points, (std::vector<GraphPoint>{{2626, 450}, {5252, 600}}));
  EXPECT_EQ(plot.frame.range, (AxisRange{2500, 5500, 0, 600}));
}

TEST(PlotDensityGain, HasAxesWhateverTheTable) {
  const std::vector<double> rpm{1000, 1000.5}, torque{0, 0};
  const AxisRange none = PlotDensityGain(rpm, torque, 1).frame.range;
  EXPECT_LT(none.xLow, none.xHigh);
  EXPECT_LT(none.yLow, none.yHigh);
  const std::vector<double> drag{-10, -20};
  const BlowerPlot braking = PlotDensityGain(rpm, drag, 1);
  EXPECT_LE(braking.frame.range.yLow, -20);
  EXPECT_TRUE(braking.frame.zeroLine);
}

}  // namespace
}  // namespace veldox
