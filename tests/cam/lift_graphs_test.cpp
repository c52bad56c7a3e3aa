#include "cam/lift_graphs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace veldox {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

LiftGraphInput InputOf(LiftGraph graph, const std::vector<double>& lifts, double step) {
  LiftGraphInput input;
  input.graph = graph;
  input.analysis.table = {lifts, step, static_cast<int>(lifts.size()) - 1};
  input.analysis.ratio = 1.5;
  input.analysis.lash = 0.024;
  input.analysis.rpm = 6000;
  input.fileName = "cam.cmm";
  input.title = "cam.cmm  A test cam";
  return input;
}

const std::vector<double> kLifts{0, 0.01, 0.05, 0.12, 0.05, 0.01, 0};

TEST(LiftGraphs, ShowTheLobeFromStartToEnd) {
  const LiftGraphInput input = InputOf(LiftGraph::CamLift, kLifts, 4);
  const GraphCurve curve = LiftGraphCurve(input, DecimalMark::Point);
  ASSERT_EQ(curve.points.size(), 7U);
  EXPECT_EQ(curve.points.front(), (GraphPoint{0, 0}));
  EXPECT_EQ(curve.points[3], (GraphPoint{12, 0.12}));
  EXPECT_EQ(curve.points.back(), (GraphPoint{24, 0}));
  EXPECT_EQ(curve.note, "Intake Cam Lift  cam.cmm");
  EXPECT_EQ(curve.standardLine, 0.05);
  EXPECT_FALSE(curve.boxes);
  const GraphFrame frame = LiftGraphFrame(input, curve, DecimalMark::Point);
  EXPECT_EQ(frame.range, (AxisRange{0, 24, -0.05, 0.2}));
  EXPECT_EQ(frame.title, "cam.cmm  A test cam   Rocker Ratio = 1.5   Lash = 0.024   RPM = 6000");
  EXPECT_EQ(frame.yPointer, "<--- Cam Lift  in");
}

TEST(LiftGraphs, ShowTheValveOnlyOffItsSeat) {
  LiftGraphInput input = InputOf(LiftGraph::ValveLift, kLifts, 4);
  GraphCurve curve = LiftGraphCurve(input, DecimalMark::Comma);
  ASSERT_EQ(curve.points.size(), 3U);
  EXPECT_EQ(curve.points[0].x, 8);
  EXPECT_NEAR(curve.points[0].y, 0.051, 1e-15);
  EXPECT_NEAR(curve.points[1].y, 0.156, 1e-15);
  EXPECT_EQ(curve.note, "Intake Valve Lift  cam.cmm  Ratio 1,5  Lash 0,024");
  // Without lash all of it.
  input.analysis.lash = 0;
  curve = LiftGraphCurve(input, DecimalMark::Point);
  EXPECT_EQ(curve.points.size(), 7U);
  EXPECT_EQ(curve.points[0], (GraphPoint{0, 0}));
}

TEST(LiftGraphs, DoNotJoinTwoOpenings) {
  const std::vector<double> lifts{0, 0.1, 0.2, 0, 0, 0.1, 0.1, 0};
  const GraphCurve curve =
      LiftGraphCurve(InputOf(LiftGraph::ValveLift, lifts, 1), DecimalMark::Point);
  EXPECT_EQ(curve.points.size(), 4U);
  EXPECT_THAT(curve.moves, ElementsAre(2U));
}

TEST(LiftGraphs, BeginDifferencesWithTheFirstThatThereIs) {
  const auto firstDegrees = [](LiftGraph graph) {
    return LiftGraphCurve(InputOf(graph, kLifts, 4), DecimalMark::Point).points.front().x;
  };
  EXPECT_EQ(firstDegrees(LiftGraph::CamVelocity), 4);
  EXPECT_EQ(firstDegrees(LiftGraph::CamVelocityFps), 4);
  EXPECT_EQ(firstDegrees(LiftGraph::CamAcceleration), 8);
  EXPECT_EQ(firstDegrees(LiftGraph::CamAccelerationFps), 8);
  EXPECT_EQ(firstDegrees(LiftGraph::CamJerk), 12);
}

TEST(LiftGraphs, HaveEveryKind) {
  // By the records at 12 degrees: .01, .05, .12 and a step of 4; 6000 RPM are 100 turns a second.
  const auto at12 = [](LiftGraph graph) {
    const GraphCurve curve = LiftGraphCurve(InputOf(graph, kLifts, 4), DecimalMark::Point);
    for (const GraphPoint& point : curve.points) {
      if (point.x == 12) return point.y;
    }
    return std::nan("");
  };
  EXPECT_NEAR(at12(LiftGraph::CamLift), 0.12, 1e-15);
  EXPECT_NEAR(at12(LiftGraph::ValveLift), 0.156, 1e-15);
  EXPECT_NEAR(at12(LiftGraph::CamVelocity), 0.0175, 1e-15);
  EXPECT_NEAR(at12(LiftGraph::CamVelocityFps), 0.07 / 12 * 100 * 90, 1e-12);
  EXPECT_NEAR(at12(LiftGraph::ValveVelocity), 0.02625, 1e-15);
  // .0175 after .01
  EXPECT_NEAR(at12(LiftGraph::CamAcceleration), 0.001875, 1e-15);
  EXPECT_NEAR(at12(LiftGraph::CamAccelerationFps), (52.5 - 30) / 4, 1e-12);
  // .001875 after (.01 - .0025) / 4 = .001875
  EXPECT_NEAR(at12(LiftGraph::CamJerk), 0, 1e-15);
  EXPECT_NEAR(at12(LiftGraph::ValveVelocityFps), 78.75, 1e-12);
  EXPECT_NEAR(at12(LiftGraph::ValveAccelerationFps), 5.625 * 1.5, 1e-12);
  EXPECT_NEAR(at12(LiftGraph::ValveAcceleration), 0.0028125, 1e-15);
}

TEST(LiftGraphs, OnlyThoseOfLiftHaveTheStandardLine) {
  for (int kind = 0; kind < kLiftGraphCount; ++kind) {
    LiftGraphInput input = InputOf(static_cast<LiftGraph>(kind), kLifts, 4);
    EXPECT_EQ(LiftGraphCurve(input, DecimalMark::Point).standardLine.has_value(), kind < 2) << kind;
    const GraphCurve curve = LiftGraphCurve(input, DecimalMark::Point);
    const GraphFrame frame = LiftGraphFrame(input, curve, DecimalMark::Point);
    if (kind >= 2) {
      EXPECT_EQ(frame.range.yLow, -frame.range.yHigh) << kind;
    }
    for (const GraphPoint& point : curve.points) {
      EXPECT_GE(point.y, frame.range.yLow) << kind;
      EXPECT_LE(point.y, frame.range.yHigh) << kind;
    }
  }
  LiftGraphInput input = InputOf(LiftGraph::CamLift, kLifts, 4);
  input.standardLineAt040 = true;
  EXPECT_EQ(LiftGraphCurve(input, DecimalMark::Point).standardLine, 0.04);
  input.metric = true;
  EXPECT_NEAR(*LiftGraphCurve(input, DecimalMark::Point).standardLine, 1.016, 1e-12);
  EXPECT_NEAR(LiftGraphFrame(input, {}, DecimalMark::Point).range.yLow, -1.27, 1e-12);
  EXPECT_EQ(LiftGraphFrame(input, {}, DecimalMark::Point).yPointer, "<--- Cam Lift  mm");
}

TEST(LiftGraphs, TellTheirUnits) {
  const auto yPointer = [](LiftGraph graph, bool byRecord, bool camDegrees) {
    LiftGraphInput input = InputOf(graph, kLifts, 4);
    input.analysis.differencesByRecord = byRecord;
    input.camDegrees = camDegrees;
    return LiftGraphFrame(input, {}, DecimalMark::Point).yPointer;
  };
  EXPECT_EQ(yPointer(LiftGraph::CamVelocity, false, false), "<--- Vel Cam  in/deg");
  EXPECT_EQ(yPointer(LiftGraph::CamJerk, false, false), "<--- Jerk Cam  in/deg/deg/deg");
  EXPECT_EQ(yPointer(LiftGraph::CamJerk, true, false),
            "<--- Jerk Cam  in/deg per record per record");
  EXPECT_THAT(yPointer(LiftGraph::CamAccelerationFps, false, false),
              HasSubstr("<--- Accel Cam fps  ft/s/deg"));
  EXPECT_THAT(yPointer(LiftGraph::ValveVelocityFps, false, false), Not(HasSubstr("too high")));
  EXPECT_THAT(yPointer(LiftGraph::ValveVelocityFps, false, true), HasSubstr("twice too high"));
}

TEST(LiftGraphs, RoundTheirAxes) {
  constexpr LiftQuantity kLift{0, false, false};
  EXPECT_NEAR(RoundedPeak(kLift, 0.35), 0.4, 1e-12);
  EXPECT_NEAR(RoundedPeak(kLift, 0.4), 0.5, 1e-12);
  EXPECT_NEAR(RoundedPeak(kLift, 12.7), 12.8, 1e-12);
  EXPECT_NEAR(RoundedPeak(kLift, 0.085), 0.09, 1e-12);
  EXPECT_NEAR(RoundedPeak(kLift, 0.0035), 0.004, 1e-12);
  EXPECT_NEAR(RoundedPeak(kLift, 0), 0.001, 1e-12);
  EXPECT_NEAR(RoundedPeak(kLift, -0.01), 0.001, 1e-12);
  constexpr LiftQuantity kVelocity{1, false, false};
  EXPECT_NEAR(RoundedPeak(kVelocity, 0.0068), 0.007, 1e-12);
  EXPECT_NEAR(RoundedPeak(kVelocity, 0.000402), 0.00041, 1e-12);
  EXPECT_NEAR(RoundedPeak(kVelocity, 0.0000301), 0.000031, 1e-12);
  EXPECT_NEAR(RoundedPeak(kVelocity, 0), 0.000001, 1e-15);
  constexpr LiftQuantity kFps{1, true, true};
  EXPECT_EQ(RoundedPeak(kFps, 250), 300);
  EXPECT_EQ(RoundedPeak(kFps, 100), 200);
  EXPECT_NEAR(RoundedPeak(kFps, 19.53), 19.6, 1e-12);
}

TEST(LiftGraphs, OfNoTableAreEmpty) {
  for (int kind = 0; kind < kLiftGraphCount; ++kind) {
    LiftGraphInput input;
    input.graph = static_cast<LiftGraph>(kind);
    const GraphCurve curve = LiftGraphCurve(input, DecimalMark::Point);
    EXPECT_TRUE(curve.points.empty());
    EXPECT_EQ(curve.fewestPoints, 0U);
    const GraphFrame frame = LiftGraphFrame(input, curve, DecimalMark::Point);
    EXPECT_EQ(frame.range.xHigh, 360);
    EXPECT_GT(frame.range.yHigh, frame.range.yLow);
  }
}

TEST(LiftGraphs, EndTheAxisAtTheCount) {
  // Rows of a Cam Doctor file begin at index 0: the closing zero stands one before the count.
  const std::vector<double> lifts{0.001, 0.1, 0.2, 0.1, 0};
  LiftGraphInput input = InputOf(LiftGraph::CamLift, lifts, 2);
  input.analysis.table.count = 5;
  const GraphCurve curve = LiftGraphCurve(input, DecimalMark::Point);
  EXPECT_EQ(curve.points.back(), (GraphPoint{8, 0}));
  EXPECT_EQ(LiftGraphFrame(input, curve, DecimalMark::Point).range.xHigh, 10);
}

TEST(LiftGraphs, TellTheSmoothing) {
  LiftGraphInput input = InputOf(LiftGraph::CamVelocity, kLifts, 10);
  input.exhaust = true;
  input.boxes = true;
  input.analysis.smoothing = Smoothing::Triangle;
  input.analysis.smoothsLift = true;
  const GraphCurve curve = LiftGraphCurve(input, DecimalMark::Point);
  EXPECT_EQ(curve.note, "Exhaust Vel Cam  cam.cmm  Smooth TR S L D");
  EXPECT_TRUE(curve.boxes);
  EXPECT_EQ(curve.points.size(), 6U);
}

}  // namespace
}  // namespace veldox
