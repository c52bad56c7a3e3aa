#include "airfuel/flow_graphs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldox {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::FieldsAre;

FlowReportValues Head() {
  FlowReportValues values;
  values.bore = 4;
  values.stroke = 3.48;
  values.rod = 5.7;
  values.testVelocity = TestVelocity(28);
  const auto port = [](double size, double count) {
    FlowPort made;
    made.valves = {size, 0.3415, 0.91, count, 45, 0.08};
    made.throatArea = ThroatArea(made.valves, ThroatMeasure::RatioOfValve);
    made.mcsa = UsualMcsa(made.valves, kIntakeMcsaPart);
    return made;
  };
  values.intake = port(2.02, 1);
  values.exhaust = port(1.6, 2);
  values.intake.CountAsIntake();
  values.exhaust.CountAsExhaust(1);
  values.intakeFlow[0] = {.1, 62};
  values.intakeFlow[2] = {.35, 201};
  values.intakeFlow[3] = {.55, 247};
  values.exhaustFlow[0] = {.2, 120};
  values.exhaustFlow[1] = {.41, 205};
  return values;
}

TEST(FlowGraph, HasAPointForEachRowWithLift) {
  const FlowPlot plot = PlotFlow({FlowCurve::Flow, true, true}, Head());
  ASSERT_EQ(plot.curves.size(), 2U);
  EXPECT_THAT(plot.curves[0].points,
              ElementsAre(GraphPoint{.1, 62}, GraphPoint{.35, 201}, GraphPoint{.55, 247}));
  EXPECT_THAT(plot.curves[1].points, ElementsAre(GraphPoint{.2, 120}, GraphPoint{.41, 205}));
  EXPECT_EQ(plot.frame.title, "Intake CFM   Green");
  EXPECT_EQ(plot.curves[1].note, "Exhaust CFM ");
}

TEST(FlowGraph, AxesBeginAtZeroAndEndAtRoundNumbers) {
  EXPECT_EQ(PlotFlow({FlowCurve::Flow, true, true}, Head()).frame.range,
            (AxisRange{0, 0.6, 0, 250}));
  EXPECT_EQ(PlotFlow({FlowCurve::Flow, false, true}, Head()).frame.range,
            (AxisRange{0, 0.5, 0, 250}));
  FlowReportValues head = Head();
  head.intakeFlow[5] = {1.2, 1000};
  EXPECT_EQ(PlotFlow({FlowCurve::Flow, true, false}, head).frame.range,
            (AxisRange{0, 1.2, 0, 1000}));
  head.intakeFlow[5] = {1.21, 1000.1};
  EXPECT_EQ(PlotFlow({FlowCurve::Flow, true, false}, head).frame.range,
            (AxisRange{0, 1.5, 0, 1200}));
}

TEST(FlowGraph, ShowsTheCurtain) {
  const FlowReportValues head = Head();
  // The exhaust's velocity counts the intake's valve, its coefficient its own two.
  const double curtain = kPi * 1.6 * .41;
  const auto second = [&](FlowCurve curve) {
    return PlotFlow({curve, false, true}, head).curves[0].points[1];
  };
  EXPECT_THAT(second(FlowCurve::Speed), FieldsAre(.41, DoubleNear(205 / curtain * 2.4, 1e-9)));
  EXPECT_THAT(second(FlowCurve::Coefficient),
              FieldsAre(.41, DoubleNear(205 / (2 * curtain * TestVelocity(28)), 1e-12)));
  EXPECT_THAT(second(FlowCurve::FlowPerArea),
              FieldsAre(.41, DoubleNear(205 / (2 * curtain), 1e-10)));
  EXPECT_EQ(PlotFlow({FlowCurve::FlowPerArea, true, false}, head).frame.yPointer,
            "<--- CFM Sq Inch");
  EXPECT_EQ(PlotFlow({FlowCurve::Coefficient, false, true}, head).frame.title,
            "Exhaust Curtain DC   Green");
  EXPECT_EQ(PlotFlow({FlowCurve::Speed, true, false}, head).frame.title,
            "Intake Curtain fps   Green");
}

TEST(FlowLimitLine, RisesWithTheCurtainUpToTheThroat) {
  const FlowReportValues head = Head();
  const double velocity = head.testVelocity;
  const double throat = head.intake.throatArea * velocity;
  const double meets = head.intake.throatArea / (kPi * 2.02);
  EXPECT_THAT(FlowLimit(head.intake, velocity, {0, 0.8, 0, 500}),
              ElementsAre(FieldsAre(0, 0), FieldsAre(DoubleNear(meets, 1e-12), throat),
                          FieldsAre(0.8, throat)));
  // It leaves a lower graph at its top, and a narrow one at its right.
  EXPECT_THAT(
      FlowLimit(head.intake, velocity, {0, 0.8, 0, 200}),
      ElementsAre(FieldsAre(0, 0), FieldsAre(DoubleNear(meets * 200 / throat, 1e-12), 200)));
  EXPECT_THAT(
      FlowLimit(head.intake, velocity, {0, 0.2, 0, 500}),
      ElementsAre(FieldsAre(0, 0), FieldsAre(0.2, DoubleNear(kPi * 2.02 * .2 * velocity, 1e-9))));
}

}  // namespace
}  // namespace veldox
