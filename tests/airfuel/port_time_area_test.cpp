#include "airfuel/port_time_area.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "airfuel/time_area_graphs.h"
#include "airfuel/time_area_reports.h"

namespace veldox {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr double kExact = 1e-12;
constexpr double kCm2PerSquareInch = 6.4516;

TimeAreaEngine Engine() {
  return {4, 3.25, 5.7, 0.1, 6500};
}

FlowPort Port(double size, double count) {
  FlowPort port;
  port.valves = {size, 0.3415, 0.91, count, 0, 0};
  port.throatArea = ThroatArea(port.valves, ThroatMeasure::RatioOfValve);
  port.mcsa = UsualMcsa(port.valves, kIntakeMcsaPart);
  return port;
}

FlowTable Flow() {
  FlowTable flow{};
  flow[0] = {.1, 85};
  flow[1] = {.4, 294};
  flow[2] = {.5, 350};
  flow[3] = {1.0, 0};  // lift that nobody has measured
  return flow;
}

TimeAreaPort IntakePort() {
  TimeAreaPort port;
  port.port = Port(2.02, 1);
  port.flow = Flow();
  port.valveAngle = 23;
  return port;
}

/// A lobe of 0.35 inches over 300 crank degrees, a half turn of a cosine.
std::vector<double> Lobe(double step = 2) {
  std::vector<double> lifts;
  for (int i = 0; i * step <= 300; ++i) {
    lifts.push_back(.35 / 2 * (1 - std::cos(2 * std::numbers::pi * i * step / 300)));
  }
  lifts.front() = lifts.back() = 0;
  return lifts;
}

ValveGear Gear(double lash = 0.02) {
  return {1.5, lash, 1.5};
}

TimeAreaValues Values() {
  TimeAreaValues values;
  values.engine = Engine();
  values.userCoefficient = 0.55;
  for (TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    const bool isExhaust = side == &values.exhaust;
    side->port = IntakePort();
    side->port.isExhaust = isExhaust;
    side->gear = Gear();
    side->valveOpen = isExhaust ? 80 : 42;
    side->curve = CurveOfLobe(Lobe(), 2, isExhaust ? -260 : -42, side->gear);
    side->lifts = {0, .05, .3};
  }
  values.cam.title = "lobe.cmm";
  return values;
}

// ---------------------------------------------------------------- one place of the way

TEST(PortTimeArea, APlaceAgreesWithAHandCalculation) {
  const ValveCurve curve = {{70, 0, .382}, {72, 0, .398}, {74, 0, .412}, {76, 0, .42}};
  const std::vector<TimeAreaRow> rows = WalkCurve(curve, IntakePort(), Engine(), 0.55);
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_FALSE(rows[0].rise.has_value());
  const TimeAreaRow& row = rows[2];
  EXPECT_NEAR(row.area, 2.614559070023569, kExact);
  EXPECT_NEAR(row.timeArea, 0.8650302203161055, kExact);
  EXPECT_NEAR(row.timeAreaPerCc, 0.0012925189065027315, kExact);
  EXPECT_NEAR(row.travel, 1.4241054187387823, kExact);
  EXPECT_NEAR(row.volume, 293.260218281407, 1e-9);
  EXPECT_NEAR(row.demand, 252.2421444876428, 1e-10);
  EXPECT_NEAR(row.areaSpeed, 231.5423482724701, 1e-10);
  EXPECT_NEAR(row.throatSpeed, 236.26942669604097, 1e-10);
  EXPECT_NEAR(row.depression, 12.233335549038852, 1e-10);
  EXPECT_NEAR(row.userDepression, 40.44077867450859, 1e-10);
  EXPECT_NEAR(row.effectiveSpeed, 231.5423482724701 / 0.55, 1e-9);
  EXPECT_NEAR(*row.rise, .007, kExact);
  EXPECT_NEAR(*row.speed, 22.75, 1e-10);
  EXPECT_NEAR(*row.acceleration, -12.675, 1e-9);
  EXPECT_NEAR(row.flow, 300.72, kExact);
  EXPECT_NEAR(row.coefficient, 0.7880215478379897, kExact);
  EXPECT_NEAR(row.liftRatio, .412 / 2.02, kExact);
  EXPECT_NEAR(row.vertical, .412 * std::cos(23 * std::numbers::pi / 180), kExact);
  EXPECT_NEAR(row.horizontal, .412 * std::sin(23 * std::numbers::pi / 180), kExact);
  // The velocities stand as the inverse areas.
  EXPECT_NEAR(row.mcsaSpeed / row.areaSpeed, row.area / IntakePort().port.mcsa, kExact);
}

TEST(PortTimeArea, PistonVelocityIsTheDerivativeOfItsTravel) {
  constexpr double kStep = 1e-4;
  const TimeAreaEngine engine = Engine();
  for (const double d : {-77.0, 20.0, 74.0, 139.0}) {
    const ValveCurve curve = {{d - kStep, 0, .4}, {d, 0, .4}, {d + kStep, 0, .4}};
    const std::vector<TimeAreaRow> rows = WalkCurve(curve, IntakePort(), engine, 1);
    const double inchesPerDegree = (rows[2].travel - rows[0].travel) / (2 * kStep);
    const double feetPerSecond = inchesPerDegree / 12 * engine.rpm * 6;
    // The demand is half of what the piston sweeps in a minute.
    const double sweptArea = std::numbers::pi * 4 / 144;
    EXPECT_NEAR(rows[1].demand * 2 / 60 / sweptArea, feetPerSecond, 1e-5);
  }
}

TEST(PortTimeArea, TheCylindersVolumeIsThatOfItsStroke) {
  TimeAreaEngine engine = Engine();
  // 4 by 3.25 inches are 40.84070 cubic inches.
  EXPECT_NEAR(engine.VolumeCc(), 4 * std::numbers::pi * 3.25 * 16.387064, 1e-3);
  const double volume = engine.VolumeCc();
  engine.offset = .5;
  EXPECT_EQ(engine.VolumeCc(), volume);
}

TEST(PortTimeArea, TravelAtBottomIsTheStroke) {
  TimeAreaEngine engine = Engine();
  engine.offset = 0;
  const ValveCurve curve = {{180, .3, .4}};
  const auto rows = WalkCurve(curve, IntakePort(), engine, 1);
  EXPECT_NEAR(rows[0].travel, 3.25, 1e-9);
  EXPECT_NEAR(rows[0].volume, engine.VolumeCc(), 1e-6);
}

TEST(PortTimeArea, TheExhaustsDemandIsOutOfTheCylinder) {
  TimeAreaPort exhaust = IntakePort();
  exhaust.isExhaust = true;
  const ValveCurve curve = {{-74, .3, .4}};
  EXPECT_GT(WalkCurve(curve, exhaust, Engine(), 1)[0].demand, 0);
  EXPECT_LT(WalkCurve(curve, IntakePort(), Engine(), 1)[0].demand, 0);
  // A piston that pushes the other way asks for pressure, not for depression.
  EXPECT_LT(WalkCurve(curve, IntakePort(), Engine(), 1)[0].depression, 0);
}

TEST(PortTimeArea, AreaCountsThePortsOwnValves) {
  TimeAreaPort port = IntakePort();
  const double one = OpenArea(port, .3);
  port.port.valves.count = 3;
  port.port.CountAsExhaust(1);
  EXPECT_NEAR(OpenArea(port, .3), 3 * one, kExact);
  EXPECT_NEAR(CurtainCoefficientOf(port.port.valves, 300, .3) * 3,
              CurtainCoefficientOf(IntakePort().port.valves, 300, .3), kExact);
}

TEST(PortTimeArea, CoefficientTimesCurtainGivesTheFlowBack) {
  const PortValves valves = IntakePort().port.valves;
  const double coefficient = CurtainCoefficientOf(valves, 261, .35);
  EXPECT_NEAR(coefficient * 145.95728 * valves.size * std::numbers::pi * .35, 261, 1e-9);
}

TEST(PortTimeArea, ASeatThatIsToldMakesTheAreaOfThreeStages) {
  TimeAreaPort port = IntakePort();
  const double curtain = 2.02 * std::numbers::pi * .1;
  EXPECT_NEAR(OpenArea(port, .1), curtain, kExact);
  port.port.valves.seatAngle = 45;  // without a width it is not told
  EXPECT_NEAR(OpenArea(port, .1), curtain, kExact);
  port.port.valves.seatWidth = .08;
  // Low lift, by Heywood: pi L cos b (D - 2 w + L sin b cos b), w = .08 cos 45.
  const double cosine = std::sqrt(.5);
  EXPECT_NEAR(OpenArea(port, .1),
              std::numbers::pi * .1 * cosine * (2.02 - 2 * .08 * cosine + .1 * .5), kExact);
  // High lift: the throat less its stem.
  EXPECT_NEAR(OpenArea(port, .9), port.port.ThroatTotal(), kExact);
}

TEST(PortTimeArea, FlowGoesStraightFromRowToRow) {
  EXPECT_EQ(FlowAtLift(Flow(), 0), 0);
  EXPECT_NEAR(FlowAtLift(Flow(), .05), 42.5, kExact);
  EXPECT_NEAR(FlowAtLift(Flow(), .25), (85 + 294) / 2.0, kExact);
  EXPECT_EQ(FlowAtLift(Flow(), .5), 350);
  EXPECT_EQ(FlowAtLift(Flow(), .8), 350);
  EXPECT_EQ(FlowAtLift(FlowTable{}, .3), 0);
}

// ---------------------------------------------------------------- the whole way

TEST(PortTimeArea, TheSumIsTheIntegralOfAClosedLobe) {
  const ValveCurve curve = CurveOfLobe(Lobe(), 2, -42, Gear());
  const TimeAreaEngine engine = Engine();
  const auto rows = WalkCurve(curve, IntakePort(), engine, 1);
  // Trapezoids over milliseconds: 39000 degrees go in a second.
  double integral = 0;
  for (std::size_t i = 1; i < curve.size(); ++i) {
    integral += (curve[i].lift + curve[i - 1].lift) / 2 * 2.02 * std::numbers::pi *
                kCm2PerSquareInch * (2 / 39.0);
  }
  const TimeAreaTotals totals = TotalsOf(rows, IntakePort(), engine, 0);
  EXPECT_NEAR(totals.timeArea, integral, 1e-9);
  EXPECT_NEAR(totals.timeAreaPerCc, integral / engine.VolumeCc(), kExact);
}

TEST(PortTimeArea, PhasesSumToTheTotal) {
  const auto rows = WalkCurve(CurveOfLobe(Lobe(3), 3, -43.3, Gear()), IntakePort(), Engine(), 1);
  constexpr double kEnd = std::numeric_limits<double>::max();
  const double whole = TotalsOf(rows, IntakePort(), Engine(), 0).timeArea;
  const double before = TimeAreaBetween(rows, -kEnd, 0);
  EXPECT_NEAR(before + TimeAreaBetween(rows, 0, 180) + TimeAreaBetween(rows, 180, kEnd), whole,
              1e-10);
  EXPECT_GT(before, 0);
  // A lobe that is the same on both sides of bottom dead centre has half of its area there.
  const auto even = WalkCurve(CurveOfLobe(Lobe(), 2, 30, Gear(0)), IntakePort(), Engine(), 1);
  EXPECT_NEAR(TimeAreaBetween(even, -kEnd, 180),
              TotalsOf(even, IntakePort(), Engine(), 0).timeArea / 2, 1e-10);
}

TEST(PortTimeArea, TotalsAgreeWithASteadyFlow) {
  // Open at .4 at once and for 200 degrees: 294 CFM.
  ValveCurve curve;
  for (int d = 0; d <= 200; ++d) curve.push_back({static_cast<double>(d), .3, .4});
  const auto rows = WalkCurve(curve, IntakePort(), Engine(), 1);
  const TimeAreaTotals totals = TotalsOf(rows, IntakePort(), Engine(), 200);
  const double valve = std::numbers::pi * 1.01 * 1.01;
  const double stem = std::numbers::pi * .17075 * .17075;
  EXPECT_NEAR(totals.maxTotal, 200 * 146, 1e-9);
  EXPECT_NEAR(totals.valveTotal, 294 * 200 / valve, 1e-6);
  EXPECT_NEAR(totals.netValveTotal, 294 * 200 / (valve - stem), 1e-6);
  EXPECT_NEAR(totals.throatTotal, 294 * 200 / IntakePort().port.throatArea, 1e-6);
  // 294 CFM are 138752.5 cc a second, the cylinder has 669.259 cc; 200 degrees at 6500 RPM
  // are 5.128 milliseconds.
  EXPECT_NEAR(totals.cycleEfficiency, 294 * 28316.84659 / 60 * (200 / 39000.0) / 669.2592394, 1e-7);
}

TEST(PortTimeArea, LashThatIsJustTakenUpIsClosed) {
  const std::vector<double> lifts = {0, .02, .04, .06, .02, 0};
  const ValveCurve curve = CurveOfLobe(lifts, 4, -20, {1.5, .03, 1.5});
  EXPECT_EQ(curve[1].lift, 0);
  EXPECT_NEAR(curve[2].lift, .03, kExact);
  EXPECT_EQ(curve[4].lift, 0);
  EXPECT_EQ(curve[2].degrees, -12);
  const auto events = EventsAt(curve, 0, &ValvePoint::lift);
  ASSERT_TRUE(events.has_value());
  EXPECT_NEAR(events->opens, -16, kExact);
  EXPECT_NEAR(events->closes, -4, kExact);
  // Two trapezoid ends of .03 and .06 over four degrees each.
  EXPECT_NEAR(events->area, 4 * (.03 + .06), kExact);
}

TEST(PortTimeArea, EventsCrossBetweenRecords) {
  const ValveCurve curve = {{0, 0, 0}, {10, .1, .2}, {20, .2, .4}, {40, 0, 0}};
  const auto events = EventsAt(curve, .3, &ValvePoint::lift);
  ASSERT_TRUE(events.has_value());
  EXPECT_NEAR(events->opens, 15, kExact);
  EXPECT_NEAR(events->closes, 25, kExact);
  EXPECT_NEAR(events->area, 3.5, kExact);
  const auto peak = EventsAt(curve, .4, &ValvePoint::lift);
  ASSERT_TRUE(peak.has_value());
  EXPECT_EQ(peak->duration(), 0);
  EXPECT_FALSE(EventsAt(curve, .41, &ValvePoint::lift).has_value());
  EXPECT_FALSE(EventsAt({}, 0, &ValvePoint::lift).has_value());
  // Where a curve that begins or ends above a level has risen to it is not known.
  EXPECT_FALSE(EventsAt({{0, .02, 0}, {10, .1, .2}, {40, 0, 0}}, .01, &ValvePoint::camLift));
  EXPECT_FALSE(EventsAt({{0, 0, 0}, {10, .1, .2}, {40, .02, 0}}, .01, &ValvePoint::camLift));
  // .05 at the lobe from 5 to 35, .01 from 1 to 39, .02 from 2 to 38.
  EXPECT_NEAR(*IntensityOf(curve, kMinorIntensityLift), 38 - 30, kExact);
  EXPECT_NEAR(*IntensityOf(curve, kMajorIntensityLift), 36 - 30, kExact);
}

TEST(PortTimeArea, ATableOfDurationsGivesThemBack) {
  const std::vector<LiftDuration> table = {{.05, 262}, {.1, 242}, {.3, 174}, {.55, 42}};
  const ValveCurve curve = CurveOfDurations(table, 108, Gear());
  for (std::size_t i = 0; i < table.size(); ++i) {
    const auto events = EventsAt(curve, table[i].lift, &ValvePoint::lift);
    ASSERT_TRUE(events.has_value());
    EXPECT_NEAR(events->duration(), table[i].duration, 1e-10);
    EXPECT_NEAR(events->middle(), 108, 1e-10);
    // The lobe has the lash to take up first. Its highest lift may round above the curve's.
    if (i + 1 == table.size()) break;
    const auto lobe = EventsAt(curve, (table[i].lift + .02) / 1.5, &ValvePoint::camLift);
    ASSERT_TRUE(lobe.has_value());
    EXPECT_NEAR(lobe->duration(), table[i].duration, 1e-9);
  }
  // Straight down to the seat: 20 degrees for each .05.
  EXPECT_NEAR(EventsAt(curve, 0, &ValvePoint::lift)->duration(), 282, 1e-10);
}

TEST(PortTimeArea, TheLeastClearanceIsFoundOnTheWay) {
  const ValveCurve curve = {{-10, .2, .2}, {0, .3, .3}, {10, .4, .4}};
  TimeAreaPort port = IntakePort();
  port.valveAngle = 0;
  TimeAreaEngine engine = Engine();
  engine.offset = 0;
  const auto rows = WalkCurve(curve, port, engine, 1);
  const auto clearance = LeastClearance(rows, .5);
  ASSERT_TRUE(clearance.has_value());
  EXPECT_EQ(clearance->degrees, 10);
  // r (1 - cos) + r^2 sin^2 / 2 L to the fourth power of a small angle.
  const double travel =
      1.625 * (1 - std::cos(std::numbers::pi / 18)) +
      5.7 * (1 - std::sqrt(1 - std::pow(1.625 * std::sin(std::numbers::pi / 18) / 5.7, 2)));
  EXPECT_NEAR(clearance->least, .5 + travel - .4, 1e-10);
  EXPECT_FALSE(LeastClearance({}, .5).has_value());
}

// ---------------------------------------------------------------- reports

TEST(PortTimeArea, ReportsTellTimingOfBothSides) {
  const std::string report = CamSpecReport(Values(), DecimalMark::Point);
  EXPECT_THAT(report, HasSubstr("       I  N  T  A  K  E^\r\nRocker Arm Ratio = 1.5\r\n"));
  EXPECT_THAT(report, HasSubstr("Intake - Rocker Arm Ratio = 1.5 - Valve Open = 42.0 BTDC - Valve "
                                "Lash = 0.02  A/R = 0.0"));
  EXPECT_THAT(report, HasSubstr("Exhaust - Rocker Arm Ratio = 1.5 - Valve Open = 80.0 BBDC"));
  EXPECT_THAT(report, HasSubstr("Cam = lobe.cmm"));
  EXPECT_THAT(report, Not(HasSubstr("C1 File")));
  EXPECT_THAT(report, Not(HasSubstr("Totals")));
}

TEST(PortTimeArea, ReportsNameTheSeatOnlyWhereItCounts) {
  TimeAreaValues values = Values();
  const std::string seat = "Using Valve Seat Angle and Width for Area Calculation";
  EXPECT_THAT(TimeAreaReport2(values, DecimalMark::Point), Not(HasSubstr(seat)));
  values.exhaust.port.port.valves.seatAngle = 45;
  values.exhaust.port.port.valves.seatWidth = .06;
  const std::string report = TimeAreaReport2(values, DecimalMark::Point);
  EXPECT_GT(report.find(seat), report.find("E  X  H  A  U  S  T"));
}

TEST(PortTimeArea, ReportsOfASideWithoutLiftSaySo) {
  TimeAreaValues values = Values();
  values.exhaust.curve.clear();
  const std::string report = TimeAreaReport2(values, DecimalMark::Point);
  EXPECT_THAT(report, HasSubstr("No lift data."));
  EXPECT_THAT(report, Not(HasSubstr("Exhaust Blow-Down")));
  EXPECT_THAT(report, Not(HasSubstr("Intake Overlap")));
  EXPECT_THAT(report, HasSubstr("Intake Pumping (TDC to BDC) = "));
}

TEST(PortTimeArea, LiftTablesTellNothingOfTheLobeBelowTheLash) {
  TimeAreaValues values = Values();
  for (TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    side->curve = CurveOfDurations({{{0, 290}, {.1, 242}, {.3, 174}, {.5, 86}}}, 108, Gear());
  }
  // .02 at the valve are .01333 at the lobe.
  std::string report = TimeAreaReport(values, DecimalMark::Point);
  EXPECT_THAT(report, HasSubstr("The lobe is not known below 0.013, where its lift data begins"));
  EXPECT_THAT(report, Not(HasSubstr("\n         0.006 ")));
  EXPECT_THAT(report, HasSubstr("\n         0.020 "));
  EXPECT_THAT(report, Not(HasSubstr("Minor Intensity")));
  EXPECT_THAT(report, HasSubstr("Major Intensity"));
  // The rise of the valve is in the unit of the lifts.
  EXPECT_THAT(report, HasSubstr("     cc     Inch/Deg       28\" CFM"));
  values.inMillimetres = true;
  report = TimeAreaReport(values, DecimalMark::Point);
  EXPECT_THAT(report, Not(HasSubstr("Inch/Deg")));
  EXPECT_THAT(report, HasSubstr("     cc       mm/Deg       28\" CFM"));
}

TEST(PortTimeArea, ReportsTellLiftsInMillimetres) {
  TimeAreaValues values = Values();
  values.inMillimetres = true;
  const std::string report = TimeAreaReport2(values, DecimalMark::Point);
  EXPECT_THAT(report, HasSubstr("Valve Lash = 0.508\r\n"));
  EXPECT_THAT(report, HasSubstr("Lifts and Lash in Millimeters"));
  // The nose: .35 inches at the lobe.
  EXPECT_THAT(report, HasSubstr(" 8.890 "));
}

// ---------------------------------------------------------------- graphs

TEST(PortTimeArea, GraphsStandOnAxesOfTheirCurve) {
  TimeAreaGraph graph;
  graph.curve = TimeAreaCurve::Lift;
  FlowPlot plot = PlotTimeArea(graph, Values());
  ASSERT_EQ(plot.curves.size(), 2U);
  // Largest lift .35 * 1.5 - .02 = .505: Int(50.5 + 2) / 100.
  EXPECT_EQ(plot.frame.range, (AxisRange{-280, 280, 0, .52}));
  EXPECT_TRUE(plot.frame.crankAngle);
  EXPECT_EQ(plot.frame.xPointer, "<--- Degrees");
  EXPECT_EQ(plot.frame.xName, "Degrees");
  graph.isWide = true;
  graph.zoom = .5;
  plot = PlotTimeArea(graph, Values());
  EXPECT_EQ(plot.frame.range, (AxisRange{-180, 180, 0, .26}));
  graph.hasExhaust = false;
  EXPECT_EQ(PlotTimeArea(graph, Values()).curves.size(), 1U);
}

TEST(PortTimeArea, FlowStandsOnWholeTens) {
  TimeAreaGraph graph;
  graph.curve = TimeAreaCurve::Flow;
  // 350 CFM at .5: Int(350 / 10 + 1) * 10.
  EXPECT_EQ(PlotTimeArea(graph, Values()).frame.range.yHigh, 360);
  EXPECT_EQ(PlotTimeArea(graph, Values()).frame.yPointer, "<--- Flow / CFM");
}

TEST(PortTimeArea, TheAreasCaptionsAreSpelledInTwoWays) {
  TimeAreaGraph graph;
  graph.curve = TimeAreaCurve::Area;
  const FlowPlot plot = PlotTimeArea(graph, Values());
  EXPECT_THAT(plot.frame.title, HasSubstr("Curtain/Fow Area"));
  EXPECT_EQ(plot.frame.yPointer, "<--- Curtain/Flow Area");
  // 2.02 pi .505 is 3.2047: Int(320.47 + 2) / 100.
  EXPECT_EQ(plot.frame.range.yHigh, 3.22);
}

TEST(PortTimeArea, PistonCurvesNeedNoCam) {
  TimeAreaValues values = Values();
  values.intake.curve.clear();
  values.exhaust.curve.clear();
  TimeAreaGraph graph;
  graph.curve = TimeAreaCurve::PistonSpeed;
  graph.pistonScale = 2;
  const FlowPlot plot = PlotTimeArea(graph, values);
  ASSERT_EQ(plot.curves.size(), 1U);
  ASSERT_EQ(plot.curves[0].points.size(), 281U);
  // 96.3494 feet a second at 74 degrees.
  EXPECT_NEAR(plot.curves[0].points[(280 + 74) / 2].y, 2 * 96.34940196314024, 1e-9);
  for (const GraphPoint& point : plot.curves[0].points) EXPECT_GE(point.y, 0);
}

TEST(PortTimeArea, GraphedVelocitiesBeginWhereTheValveIsOpen) {
  TimeAreaGraph graph;
  graph.curve = TimeAreaCurve::AreaSpeed;
  const FlowPlot speed = PlotTimeArea(graph, Values());
  graph.curve = TimeAreaCurve::ThroatSpeed;
  const FlowPlot throat = PlotTimeArea(graph, Values());
  EXPECT_LT(speed.curves[0].points.size(), throat.curves[0].points.size());
  EXPECT_EQ(speed.frame.yPointer, "<--- Velocity fps");
  // The axis holds both flanks of both ports, and no more than the next ten.
  double highest = 0;
  for (const GraphCurve& curve : speed.curves) {
    for (const GraphPoint& point : curve.points) highest = std::max(highest, point.y);
  }
  EXPECT_GE(speed.frame.range.yHigh, highest);
  EXPECT_LE(speed.frame.range.yHigh, highest + 10);
}

}  // namespace
}  // namespace veldox
