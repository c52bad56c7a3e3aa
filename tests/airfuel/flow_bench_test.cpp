#include "airfuel/flow_bench.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace veldox {
namespace {

PortValves UsualIntake() {
  return {2.02, 0.3415, 0.91, 1, 45, 0.08};
}

TEST(FlowTest, VelocityIsThatOfAirAtTheDepression) {
  // Bernoulli: 28 inches of water against air of 14.7 psi and 68 F.
  constexpr double kPoundsPerSquareFootOfInchWater = 5.20233;
  constexpr double kSlugsPerCubicFoot = 14.7 * 144 / (1716.49 * (459.67 + 68));
  const double fps = std::sqrt(2 * 28 * kPoundsPerSquareFootOfInchWater / kSlugsPerCubicFoot);
  EXPECT_NEAR(fps, 353, 1);
  EXPECT_NEAR(TestVelocity(28) / (fps * 60 / 144), 1, 0.01);
  EXPECT_NEAR(TestVelocity(28), 145.957, 0.0005);
  EXPECT_NEAR(TestVelocity(7), TestVelocity(28) / 2, 1e-12);
}

TEST(FlowTest, FlowGoesWithTheRootOfThePressure) {
  EXPECT_DOUBLE_EQ(FlowAtTablePressure(123.4, 28), 123.4);
  EXPECT_NEAR(FlowAtTablePressure(100, 10), 100 * std::sqrt(2.8), 1e-12);
  EXPECT_NEAR(FlowAtTablePressure(100, 7), 200, 1e-12);
}

TEST(FlowTest, ThroatIsTakenInThreeMeasures) {
  PortValves valves = UsualIntake();
  const double stem = kPi * 0.3415 * 0.3415 / 4;
  // 2.02 x 0.91 = 1.8382 inches
  EXPECT_NEAR(ThroatArea(valves, ThroatMeasure::RatioOfValve), kPi * 1.8382 * 1.8382 / 4 - stem,
              1e-12);
  valves.throat = 2.5;
  EXPECT_NEAR(ThroatArea(valves, ThroatMeasure::Area), 2.5 - stem, 1e-12);
  valves.throat = 1.8;
  EXPECT_NEAR(ThroatArea(valves, ThroatMeasure::Diameter), kPi * 0.81 - stem, 1e-12);
  // A ratio that is taken for a diameter leaves little, one for a ratio of a small valve nothing.
  valves.throat = 0.34;
  EXPECT_LT(ThroatArea(valves, ThroatMeasure::Diameter), 0);
}

TEST(FlowTest, UsualMinimumCrossSectionsDiffer) {
  PortValves valves = UsualIntake();
  valves.count = 2;
  EXPECT_NEAR(UsualMcsa(valves, kIntakeMcsaPart), 2 * kPi * 1.0201 * 0.77654321, 1e-12);
  EXPECT_NEAR(UsualMcsa(valves, kExhaustMcsaPart) - UsualMcsa(valves, kIntakeMcsaPart),
              2 * kPi * 1.0201 * 0.011111111, 1e-12);
}

TEST(FlowArea, HasThePublishedStages) {
  const PortValves valves = UsualIntake();
  const double w = 0.08, b = kPi / 4, size = 2.02;
  const double seat = w * std::cos(b);
  for (const double lift : {0.02, 0.08, 0.11}) {
    const double frustum =
        kPi * lift * std::cos(b) * (size - 2 * seat + lift * std::sin(b) * std::cos(b));
    EXPECT_NEAR(FlowAreaAtLift(valves, lift, 9), frustum, 1e-12) << lift;
  }
  for (const double lift : {0.17, 0.25, 0.4}) {
    const double above =
        kPi * (size - seat) *
        std::sqrt((lift - seat * std::tan(b)) * (lift - seat * std::tan(b)) + seat * seat);
    EXPECT_NEAR(FlowAreaAtLift(valves, lift, 9), above, 1e-12) << lift;
  }
  EXPECT_DOUBLE_EQ(FlowAreaAtLift(valves, 0.7, 2.5), 2.5);
}

TEST(FlowArea, StagesMeetWhereTheSeatsPart) {
  // w / (sin b cos b), with w the seat as seen along the stem
  const double seat = 0.08 * std::cos(kPi / 4);
  const double lift = seat / 0.5;
  const double low = FlowAreaAtLift(UsualIntake(), lift - 1e-13, 9);
  const double mid = FlowAreaAtLift(UsualIntake(), lift + 1e-13, 9);
  EXPECT_NEAR(low, 0.493464, 1e-6);
  EXPECT_NEAR(low, mid, 5e-12);
  const double frustum = kPi * lift * std::cos(kPi / 4) * (2.02 - 2 * seat + lift / 2);
  EXPECT_NEAR(kPi * (2.02 - seat) * std::hypot(lift - seat, seat), frustum, 1e-12);
  EXPECT_NEAR(low, frustum, 2e-12);
}

TEST(FlowArea, CountsAllValves) {
  PortValves valves = UsualIntake();
  const double one = FlowAreaAtLift(valves, 0.05, 99), other = FlowAreaAtLift(valves, 0.3, 99);
  valves.count = 3;
  EXPECT_NEAR(FlowAreaAtLift(valves, 0.05, 99), 3 * one, 1e-12);
  EXPECT_NEAR(FlowAreaAtLift(valves, 0.3, 99), 3 * other, 1e-12);
}

FlowPort PortOf(const PortValves& valves) {
  FlowPort port;
  port.valves = valves;
  port.throatArea = ThroatArea(valves, ThroatMeasure::RatioOfValve);
  port.mcsa = UsualMcsa(valves, kIntakeMcsaPart);
  port.CountAsIntake();
  return port;
}

TEST(FlowFigures, GiveTheFlowBack) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> sizes(0.9, 2.4), lifts(0.05, 0.9), flows(10, 500);
  for (int i = 0; i < 300; ++i) {
    PortValves valves = UsualIntake();
    valves.size = sizes(random);
    valves.count = 1 + i % 3;
    const FlowPort port = PortOf(valves);
    const FlowPoint point{lifts(random), flows(random)};
    const double velocity = TestVelocity(28);
    const double f = point.flow, n = valves.count;
    const auto expectFlow = [&](double flow) { EXPECT_NEAR(flow / f, 1, 1e-12); };
    expectFlow(CurtainCoefficient(port, point, velocity) * velocity *
               CurtainArea(port, point.lift));
    expectFlow(ThroatCoefficient(port, f, velocity) * velocity * port.throatArea * n);
    expectFlow(ValveCoefficient(port, f, velocity) * velocity * CircleArea(valves.size) * n);
    expectFlow(McsaCoefficient(port, f, velocity) * velocity * port.mcsa);
    expectFlow(CurtainFlow(port, point) * CurtainArea(port, point.lift));
    // fps = CFM / area x 2.4
    EXPECT_NEAR(ThroatSpeed(port, f) / (ThroatFlow(port, f) * 2.4), 1, 1e-12);
    EXPECT_NEAR(ValveSpeed(port, f) / (ValveFlow(port, f) * 2.4), 1, 1e-12);
    EXPECT_NEAR(McsaSpeed(port, f) / (McsaFlow(port, f) * 2.4), 1, 1e-12);
    EXPECT_NEAR(CurtainSpeed(port, point) / (CurtainFlow(port, point) * 2.4), 1, 1e-12);
    EXPECT_NEAR(ThroatSpeed(port, f) / ValveSpeed(port, f),
                CircleArea(valves.size) / port.throatArea, 1e-12);
    EXPECT_NEAR(CurtainSpeed(port, point) / ValveSpeed(port, f), valves.size / (4 * point.lift),
                1e-12);
  }
}

TEST(FlowFigures, OfTheExhaustCountTheIntakeValvesInSixPlaces) {
  PortValves valves{1.6, 0.3415, 0.91, 4, 45, 0.08};
  FlowPort own = PortOf(valves);
  FlowPort port = own;
  port.CountAsExhaust(3);
  const FlowPoint point{0.4, 215};
  const double velocity = TestVelocity(28);
  // Own count:
  EXPECT_DOUBLE_EQ(ThroatSpeed(port, 215), ThroatSpeed(own, 215));
  EXPECT_DOUBLE_EQ(CurtainCoefficient(port, point, velocity),
                   CurtainCoefficient(own, point, velocity));
  EXPECT_DOUBLE_EQ(CurtainArea(port, 0.4), CurtainArea(own, 0.4));
  EXPECT_DOUBLE_EQ(CurtainFlow(port, point), CurtainFlow(own, point));
  // The intake's, 4 / 3 of what its own would give:
  EXPECT_NEAR(CurtainSpeed(port, point) / CurtainSpeed(own, point), 4.0 / 3, 1e-14);
  EXPECT_NEAR(ValveSpeed(port, 215) / ValveSpeed(own, 215), 4.0 / 3, 1e-14);
  EXPECT_NEAR(ThroatCoefficient(port, 215, 146) / ThroatCoefficient(own, 215, 146), 4.0 / 3, 1e-14);
  EXPECT_NEAR(ValveCoefficient(port, 215, 146) / ValveCoefficient(own, 215, 146), 4.0 / 3, 1e-14);
  EXPECT_NEAR(ThroatFlow(port, 215) / ThroatFlow(own, 215), 4.0 / 3, 1e-14);
  EXPECT_NEAR(ValveFlow(port, 215) / ValveFlow(own, 215), 4.0 / 3, 1e-14);
}

TEST(FlowFigures, AreChosenInPairs) {
  const FlowPort port = PortOf(UsualIntake());
  const FlowPoint point{0.4, 294};
  const double v = TestVelocity(28);
  const auto expect = [&](FlowFigures figures, double first, double second) {
    const FlowFigurePair pair = FiguresOf(figures, port, point, v);
    EXPECT_DOUBLE_EQ(pair.first, first);
    EXPECT_DOUBLE_EQ(pair.second, second);
  };
  expect(FlowFigures::Original, ThroatSpeed(port, 294), CurtainCoefficient(port, point, v));
  expect(FlowFigures::Curtain, CurtainSpeed(port, point), CurtainCoefficient(port, point, v));
  expect(FlowFigures::Throat, ThroatSpeed(port, 294), ThroatCoefficient(port, 294, v));
  expect(FlowFigures::Valve, ValveSpeed(port, 294), ValveCoefficient(port, 294, v));
  expect(FlowFigures::FlowPerArea, ThroatFlow(port, 294), ValveFlow(port, 294));
  EXPECT_STREQ(HeadsOf(FlowFigures::Original).first, "Velocity @ Throat fps");
  EXPECT_STREQ(HeadsOf(FlowFigures::Curtain).first, "Velocity @ Curtain fps");
  EXPECT_STREQ(HeadsOf(FlowFigures::Throat).second, "Discharge Coefficient");
  EXPECT_STREQ(HeadsOf(FlowFigures::Valve).first, "Velocity @ Valve fps");
  EXPECT_STREQ(HeadsOf(FlowFigures::FlowPerArea).first, "CFM per Sq In @ Throat");
  EXPECT_STREQ(HeadsOf(FlowFigures::FlowPerArea).second, "CFM per Sq In @ Valve");
}

/// The largest flow that a slider crank draws, half of it as port flow is told, worked out from
/// the pin's place alone.
double LargestDemand(double bore, double stroke, double rod, double rpm) {
  const double crank = stroke / 2;
  const auto place = [&](double a) {
    return crank * std::cos(a) + std::sqrt(rod * rod - crank * crank * std::sin(a) * std::sin(a));
  };
  double fastest = 0;
  constexpr double kStep = 1e-4;
  for (double a = 0; a < kPi; a += kStep) {
    fastest = std::max(fastest, (place(a) - place(a + kStep)) / kStep);
  }
  const double inchesPerMinute = fastest * rpm * 2 * kPi;
  return kPi * bore * bore / 4 * inchesPerMinute / 1728 / 2;
}

TEST(PeakPistonFlow, FollowsTheSliderCrank) {
  for (const auto& [ratio, within] :
       {std::pair{1.4, 0.003}, {1.6, 0.003}, {1.8, 0.003}, {2.0, 0.006}, {2.2, 0.011}}) {
    const double exact = LargestDemand(4, 3.48, 3.48 * ratio, 6500);
    EXPECT_NEAR(PeakPistonCfm(4, 3.48, 3.48 * ratio, 6500) / exact, 1, within) << ratio;
  }
}

}  // namespace
}  // namespace veldox
