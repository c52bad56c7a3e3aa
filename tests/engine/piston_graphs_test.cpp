#include "engine/piston_graphs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace veldox {
namespace {

constexpr double kTurn = 3.14159265358979 / 180;

/// The engine of the screen's default texts.
PistonGraphInput Engine(PistonGraph graph) {
  PistonGraphInput in;
  in.graph = graph;
  in.table.bore = 4;
  in.table.stroke = 3.25;
  in.table.rodLength = 5.7;
  in.table.rpm = 6500;
  in.table.cylinders = 8;
  in.table.weights = {600.25, 700.5, 233.5};
  in.journalDiameter = 2.5;
  in.portDiameter = 2.25;
  in.volumetricEfficiency = 0.85;
  in.compressionRatio = 13.5;
  return in;
}

PistonGraphInput MetricEngine(PistonGraph graph) {
  PistonGraphInput in = Engine(graph);
  in.table.metric = true;
  in.table.bore *= 25.4;
  in.table.stroke *= 25.4;
  in.table.rodLength *= 25.4;
  in.journalDiameter *= 25.4;
  in.portDiameter *= 25.4;
  return in;
}

GraphPoint PointAt(const GraphCurve& curve, double x) {
  return *std::min_element(curve.points.begin(), curve.points.end(),
                           [x](const GraphPoint& a, const GraphPoint& b) {
                             return std::abs(a.x - x) < std::abs(b.x - x);
                           });
}

GraphCurve CurveOf(const PistonGraphInput& in) {
  return PistonGraphCurve(in, DecimalMark::Point);
}

/// Travel in inches of the engine without offset, by plain geometry.
double TravelOf(double degrees) {
  const double t = degrees * kTurn;
  const double r = 3.25 / 2;
  return 5.7 + r - r * std::cos(t) - std::sqrt(5.7 * 5.7 - r * r * std::sin(t) * std::sin(t));
}

TEST(PistonGraphs, TravelIsTheGeometryOfTheCrank) {
  const GraphCurve curve = CurveOf(Engine(PistonGraph::Travel));
  EXPECT_EQ(curve.points.size(), 901U);
  for (const GraphPoint& point : curve.points) EXPECT_NEAR(point.y, TravelOf(point.x), 1e-9);
  const GraphFrame frame = PistonGraphFrame(Engine(PistonGraph::Travel));
  EXPECT_EQ(frame.range, (AxisRange{0, 360, 0, 3.25}));
}

TEST(PistonGraphs, VelocityIsTheSlopeOfTheTravel) {
  const GraphCurve curve = CurveOf(Engine(PistonGraph::Velocity));
  ASSERT_EQ(curve.points.size(), 1441U);
  const double degreesPerSecond = 6500 * 6.0;
  double largest = 0;
  for (const GraphPoint& point : curve.points) {
    constexpr double kStep = 0.01;
    const double slope = (TravelOf(point.x + kStep) - TravelOf(point.x - kStep)) / (2 * kStep);
    EXPECT_NEAR(point.y, slope * degreesPerSecond / 12, 1e-5);
    largest = std::max(largest, point.y);
  }
  // 95.87 feet a second at the peak
  EXPECT_NEAR(largest, 95.868, 0.001);
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::Velocity)).range.yHigh, 100);
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::Velocity)).range.yLow, -100);
  // In metres a second the peak is 29.22.
  EXPECT_EQ(PistonGraphFrame(MetricEngine(PistonGraph::Velocity)).range.yHigh, 30);
}

TEST(PistonGraphs, AHalfTurnNeedsNoNegativeVelocity) {
  PistonGraphInput in = Engine(PistonGraph::Velocity);
  in.axis = CrankAxis::To180;
  EXPECT_EQ(PistonGraphFrame(in).range, (AxisRange{0, 180, 0, 100}));
  EXPECT_FALSE(PistonGraphFrame(in).zeroLine);
  EXPECT_EQ(CurveOf(in).points.back().x, 180);
}

TEST(PistonGraphs, TheTurnRoundTopStepsBackOnce) {
  PistonGraphInput in = Engine(PistonGraph::Velocity);
  in.axis = CrankAxis::From180To180;
  const GraphCurve curve = CurveOf(in);
  EXPECT_EQ(PistonGraphFrame(in).range.xLow, -180);
  EXPECT_EQ(PistonGraphFrame(in).range.xHigh, 180);
  ASSERT_EQ(curve.points.size(), 1441U);
  EXPECT_THAT(curve.moves, testing::ElementsAre(721U));
  EXPECT_EQ(curve.points[720].x, 180);
  EXPECT_EQ(curve.points[721].x, -179.75);
  EXPECT_EQ(curve.points.back().x, 0);
  // The piston rises where the angle is negative.
  EXPECT_LT(PointAt(curve, -90).y, 0);
}

TEST(PistonGraphs, AccelerationStandsOnItsTopValue) {
  const GraphFrame frame = PistonGraphFrame(Engine(PistonGraph::Acceleration));
  // w^2 r (1 + r / L) with w = 6500 * 2 pi / 60 and r in feet: 80628.5
  const double w = 6500 * 2 * 3.14159265358979 / 60;
  const double top = w * w * (1.625 / 12) * (1 + 1.625 / 5.7);
  EXPECT_NEAR(CurveOf(Engine(PistonGraph::Acceleration)).points.front().y, top, 1e-6);
  EXPECT_EQ(frame.range.yHigh, 100 * std::floor(top / 100) + 100);
  EXPECT_EQ(frame.range.yLow, -frame.range.yHigh);
  PistonGraphInput in = Engine(PistonGraph::Acceleration);
  in.absolute = true;
  EXPECT_EQ(PistonGraphFrame(in).range.yLow, 0);
  const GraphCurve curve = CurveOf(in);
  EXPECT_TRUE(std::all_of(curve.points.begin(), curve.points.end(),
                          [](const GraphPoint& point) { return point.y >= 0; }));
}

TEST(PistonGraphs, VolumeAndItsChangeAddUp) {
  const double area = 3.14159265358979 * 4;
  const GraphCurve change = CurveOf(Engine(PistonGraph::VolumeChange));
  ASSERT_EQ(change.points.size(), 181U);
  double sum = 0;
  for (const GraphPoint& point : change.points) sum += point.y;
  EXPECT_NEAR(sum, area * 3.25 / 0.061023744, 1e-6) << "the swept volume in cc";
  // 669.26 cc: Int(66.926) / 10
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::VolumeChange)).range.yHigh, 6.6);
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::CylinderVolume)).range.yHigh, 670);
}

TEST(PistonGraphs, PercentOfVolumeAndItsPressure) {
  const GraphCurve percent = CurveOf(Engine(PistonGraph::TotalVolumeChange));
  const double swept = 3.14159265358979 * 4 * 3.25;
  const double clearance = swept / 12.5;
  const auto volume = [&](double d) { return clearance + 3.14159265358979 * 4 * TravelOf(d); };
  EXPECT_EQ(percent.points[0].y, 0);
  const double expected = 100 * (volume(40) - volume(39)) / volume(39);
  EXPECT_NEAR(percent.points[40].y, expected, 1e-9);
  const GraphCurve pressure = CurveOf(Engine(PistonGraph::PressureDifferential));
  EXPECT_NEAR(pressure.points[40].y, (14.69595 - 14.69595 / (1 + expected / 100)) * 27.707258364,
              1e-9);
  struct Step {
    double ratio;
    double high;
  };
  for (const auto& [ratio, high] :
       {Step{25.1, 8}, Step{25, 5}, Step{15, 5}, Step{14.9, 4}, Step{9.5, 4}, Step{9.4, 3}}) {
    PistonGraphInput in = Engine(PistonGraph::TotalVolumeChange);
    in.compressionRatio = ratio;
    EXPECT_DOUBLE_EQ(PistonGraphFrame(in).range.yHigh, high) << ratio;
  }
}

TEST(PistonGraphs, RpmGraphsHaveAPointForEachRpm) {
  const GraphCurve mean = CurveOf(Engine(PistonGraph::MeanPistonSpeed));
  ASSERT_EQ(mean.points.size(), 6501U);
  EXPECT_DOUBLE_EQ(mean.points[6000].y, 3250) << "3.25 * 6000 / 6";
  EXPECT_NEAR(CurveOf(MetricEngine(PistonGraph::MeanPistonSpeed)).points[6000].y, 3250 * 0.3048,
              1e-9);
  // A journal of 2.5 inches at 6000 turns a minute: pi * 2.5 / 12 * 100 feet a second
  EXPECT_NEAR(CurveOf(Engine(PistonGraph::BearingSpeed)).points[6000].y,
              3.14159265358979 * 2.5 / 12 * 100, 1e-9);
  const GraphFrame frame = PistonGraphFrame(Engine(PistonGraph::MaxPistonSpeed));
  EXPECT_EQ(frame.range.xHigh, 6500);
  EXPECT_NEAR(frame.range.yHigh, 95.868458 * 60, 0.01);
  EXPECT_EQ(frame.xPointer, "<--- RPM");
  EXPECT_FALSE(frame.crankAngle);
}

TEST(PistonGraphs, PortVelocityIsPistonVelocityByTheAreas) {
  const GraphCurve piston = CurveOf(Engine(PistonGraph::Velocity));
  const GraphCurve port = CurveOf(Engine(PistonGraph::PortVelocity));
  const double ratio = 0.85 * 16 / (2.25 * 2.25);
  EXPECT_NEAR(port.points[300].y, piston.points[300].y * ratio, 1e-9);
  const GraphCurve depression = CurveOf(Engine(PistonGraph::PortDepression));
  EXPECT_NEAR(depression.points[300].y, std::pow(2 * port.points[300].y / 1.25 / 66.2, 2), 1e-9);
  // 257.5 feet a second and 38.7 inches of water at 73 degrees
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::PortVelocity)).range.yHigh, 300);
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::PortDepression)).range.yHigh, 40);
}

TEST(PistonGraphs, ForcesFollowTheAcceleration) {
  const GraphCurve acceleration = CurveOf(Engine(PistonGraph::Acceleration));
  const GraphCurve inertia = CurveOf(Engine(PistonGraph::InertiaForce));
  for (const double degrees : {0.0, 45.0, 120.0, 250.0}) {
    const double newtons = PointAt(acceleration, degrees).y * 0.3048 * 600.25 / 1000;
    EXPECT_NEAR(PointAt(inertia, degrees).y, newtons / 4.448222, 1e-6);
  }
  const GraphCurve metric = CurveOf(MetricEngine(PistonGraph::InertiaForce));
  EXPECT_NEAR(metric.points[0].y, inertia.points[0].y * 4.448222, 1e-6);
  const GraphCurve reciprocating = CurveOf(Engine(PistonGraph::ReciprocatingForce));
  const double top = reciprocating.points[0].y;
  EXPECT_NEAR(top, acceleration.points[0].y * 0.3048 * (600.25 + 233.5) / 1000 / 4.448222, 1e-6);
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::ReciprocatingForce)).range.yHigh,
            100 * std::floor(top / 100) + 200);
  // Force at the crank pin times the crank's radius in feet
  const GraphCurve tangent = CurveOf(Engine(PistonGraph::TangentForce));
  const GraphCurve torque = CurveOf(Engine(PistonGraph::Torque));
  EXPECT_NEAR(PointAt(torque, 60).y, PointAt(tangent, 60).y * 1.625 / 12, 1e-3);
}

TEST(PistonGraphs, AnOffsetShowsTheRodOnBothSides) {
  PistonGraphInput in = Engine(PistonGraph::RodAngle);
  EXPECT_EQ(PistonGraphFrame(in).range, (AxisRange{0, 180, 0, 17})) << "asin(1.625 / 5.7) = 16.56";
  in.table.offset = 0.06;
  // asin(1.685 / 5.7) = 17.19
  EXPECT_EQ(PistonGraphFrame(in).range, (AxisRange{0, 360, -18, 18}));
  EXPECT_TRUE(PistonGraphFrame(in).zeroLine);
}

TEST(PistonGraphs, WheelGraphsBeginAtTheTrueTop) {
  PistonGraphInput in = Engine(PistonGraph::WheelTravel);
  in.table.offset = 0.4;
  const GraphCurve curve = CurveOf(in);
  EXPECT_NEAR(curve.points.front().y, 0, 1e-9);
  EXPECT_EQ(curve.points.size(), 1080U);
  in.graph = PistonGraph::WheelVelocity;
  EXPECT_NEAR(CurveOf(in).points.front().y, 0, 1e-9);
  EXPECT_EQ(PistonGraphFrame(Engine(PistonGraph::WheelTravel)).range.yHigh, 3.26);
  EXPECT_NEAR(PistonGraphFrame(MetricEngine(PistonGraph::WheelTravel)).range.yHigh, 82.6, 1e-9);
}

TEST(PistonGraphs, NotesTellTheEngine) {
  PistonGraphInput in = Engine(PistonGraph::SideForce);
  EXPECT_EQ(PistonGraphNote(in, DecimalMark::Point),
            "Bore = 4.0   Stroke = 3.25   Rod Length = 5.7   RPM = 6500  Piston = 600.25  Rod = "
            "700.5  ");
  in.graph = PistonGraph::PortVelocity;
  in.table.offset = -0.06;
  EXPECT_EQ(PistonGraphNote(in, DecimalMark::Comma),
            "Bore = 4,0   Stroke = 3,25   Rod Length = 5,7   RPM = 6500  Wrist Pin Offset = -0,06"
            "  VE = 0,85  Port Dia = 2,25   ");
  in = Engine(PistonGraph::TotalVolumeChange);
  EXPECT_THAT(PistonGraphNote(in, DecimalMark::Point), testing::EndsWith("  CR = 13.5   "));
  in.graph = PistonGraph::BearingSpeed;
  EXPECT_THAT(PistonGraphNote(in, DecimalMark::Point),
              testing::EndsWith("RPM = 6500Journal Diameter = 2.5   "));
}

TEST(PistonGraphs, AllHaveAFrameThatHoldsTheirCurve) {
  for (const bool metric : {false, true}) {
    for (int i = 0; i < kPistonGraphCount; ++i) {
      const auto graph = static_cast<PistonGraph>(i);
      const PistonGraphInput in = metric ? MetricEngine(graph) : Engine(graph);
      const GraphFrame frame = PistonGraphFrame(in);
      const GraphCurve curve = CurveOf(in);
      EXPECT_EQ(frame.yPointer, "<--- " + frame.title);
      EXPECT_LT(frame.range.yLow, frame.range.yHigh) << i;
      for (const GraphPoint& point : curve.points) {
        ASSERT_GE(point.y, frame.range.yLow - 1e-9) << i;
        ASSERT_LE(point.y, frame.range.yHigh + 1e-9) << i;
      }
    }
  }
}

}  // namespace
}  // namespace veldox
