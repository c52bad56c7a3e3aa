#include "vehicle/acceleration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <vector>

#include "tests/support/sample_cars.h"
#include "tests/support/strip_integration.h"

namespace veldox {
namespace {

using test::CarOf;
using test::SampleCar;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr double kGravity = 32.17405;

/// Keeps what a run hands over.
class KeepingSink final : public RunSink {
 public:
  void Row(const RunRow& row) override { (rollingOut ? rolledOut : rows).push_back(row); }
  void RolloutEnds(double elapsed) override { rollout.push_back(elapsed); }
  void GearChange(int from, int to, bool belowTable) override {
    changes.push_back(std::to_string(from) + '-' + std::to_string(to) +
                      (belowTable ? " below" : ""));
  }
  void GearTooShort(int from, int to) override {
    changes.push_back(std::to_string(from) + '-' + std::to_string(to) + " too short");
  }
  void ThrottleStopStarts() override { stops.push_back(rows.size()); }
  void ThrottleStopEnds() override { stops.push_back(rows.size()); }
  void Message(std::string_view text) override { messages.emplace_back(text); }
  void TireDiameterRaised(double inches) override { diameter = inches; }
  void WindDirectionLowered(double degrees) override { direction = degrees; }
  void ExtensionBegins() override { rollingOut = true; }
  bool TakesSamples() const override { return takesSamples; }
  void Sample(const RunRow& row) override { samples.push_back(row); }

  std::vector<RunRow> rows;
  std::vector<RunRow> rolledOut;
  std::vector<RunRow> samples;
  std::vector<double> rollout;
  std::vector<std::string> changes;
  std::vector<std::size_t> stops;
  std::vector<std::string> messages;
  double diameter = 0;
  double direction = 0;
  bool rollingOut = false;
  bool takesSamples = false;
};

RunResult RunOf(SampleCar car) {
  RunSink nothing;
  return SimulateRun(car.Run(), nothing);
}

// ------------------------------------------------------------ against steps of time

class AgainstTimeSteps : public testing::TestWithParam<SampleCar> {};

TEST_P(AgainstTimeSteps, AllMarksAgree) {
  SampleCar car = GetParam();
  const RunResult run = RunOf(car);
  test::StripIntegration truth(car.Run());
  int marks = 0;
  const auto compare = [&](double feet, const RunMark& mark) {
    // The last step before the top speed is one long one.
    if (feet > run.last.distance || mark.mph > run.topSpeed - 0.01) return;
    SCOPED_TRACE(feet);
    const auto passing = truth.At(feet);
    ASSERT_TRUE(passing.has_value());
    EXPECT_NEAR(mark.time, passing->seconds, 2e-4 * passing->seconds);
    // A mark has the speed of the end of its step.
    EXPECT_NEAR(mark.mph, passing->mph, 2e-4 * passing->mph + 0.015);
    ++marks;
  };
  for (std::size_t i = 0; i < kStripMarks.size(); ++i) compare(kStripMarks[i], run.strip[i]);
  for (std::size_t i = 0; i < kFurtherMarks; ++i) compare(FurtherMarkFeet(i), run.further[i]);
  EXPECT_GE(marks, 7);
}

INSTANTIATE_TEST_SUITE_P(Cars, AgainstTimeSteps,
                         testing::Values(test::StartCar(), test::StockCar(), test::DragCar(),
                                         test::Motorcycle(), test::Truck(), test::TopSpeedCar()),
                         [](const auto& car) {
                           std::string name = car.param.name;
                           std::erase(name, ' ');
                           return name;
                         });

TEST(Acceleration, ASingleTallGearAgreesWithStepsOfTimeToAPercent) {
  SampleCar car = test::Kart();
  const RunResult run = RunOf(car);
  test::StripIntegration truth(car.Run());
  for (std::size_t i = 0; i < kStripMarks.size() && kStripMarks[i] < run.last.distance; ++i) {
    SCOPED_TRACE(kStripMarks[i]);
    const auto passing = truth.At(kStripMarks[i]);
    ASSERT_TRUE(passing.has_value());
    EXPECT_NEAR(run.strip[i].time, passing->seconds, 0.01 * passing->seconds);
    EXPECT_NEAR(run.strip[i].mph, passing->mph, 0.01 * passing->mph);
  }
  EXPECT_GT(run.last.distance, 330);
}

// ------------------------------------------------------------ against formulas

TEST(Acceleration, ThrustHeldByTheTiresIsEvenAcceleration) {
  SampleCar car = test::StartCar();
  car.inputs.frictionMu = 1.2;
  const RunResult run = RunOf(car);
  const double a = 0.5 * 1.2 * kGravity / (1 - 21 * 1.2 / 108);
  const double rollout = 11.75 / 12;
  EXPECT_NEAR(run.Et60(), std::sqrt(2 * (60 + rollout) / a) - std::sqrt(2 * rollout / a), 1e-3);
  ASSERT_TRUE(run.tractionLimitedFeet.has_value());
  EXPECT_GT(*run.tractionLimitedFeet, 60);
  EXPECT_LT(*run.tractionLimitedFeet, 1000);
}

TEST(Acceleration, AFrictionOfFiveIsNoLimit) {
  EXPECT_NEAR(TractionLimit(2000, 5), 90 * 2000, 1e-6);
  SampleCar car = test::StartCar();
  EXPECT_FALSE(RunOf(car).tractionLimitedFeet.has_value());
}

/// Of a car whose table peaks at a power at 6000 RPM, launched from where its tires just hold.
double QuarterMileOf(double weight, double horsepower, double rear) {
  const double peak = horsepower * 5252 / 6000;
  SampleCar car = CarOf("", weight, {2500, 3500, 4500, 5250, 6000, 6500},
                        {peak * 1.12, peak * 1.17, peak * 1.14, peak * 1.09, peak, peak * 0.9});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {2.48, 1.48, 1.0};
  in.shiftRpm.fill(6400);
  in.shiftTime.fill(0.2);
  in.rearGearRatio = rear;
  in.tireDiameter = 28;
  in.tireRollingRadius = 14;
  in.launchRpm = 3500;
  in.frictionMu = 1.5;
  return RunOf(car).Et();
}

TEST(Acceleration, QuarterMilesFollowTheCubeRootOfWeightByPower) {
  const auto rule = [](double weight, double hp) { return 5.825 * std::cbrt(weight / hp); };
  EXPECT_NEAR(QuarterMileOf(3550, 388, 4.1), rule(3550, 388), 0.05 * rule(3550, 388));
  EXPECT_NEAR(QuarterMileOf(2875, 597, 3.7), rule(2875, 597), 0.05 * rule(2875, 597));
  EXPECT_NEAR(QuarterMileOf(7200, 468, 4.56), rule(7200, 468), 0.05 * rule(7200, 468));
}

TEST(Acceleration, SpeedAndDragOfARowAreThoseOfPhysics) {
  SampleCar car = test::StartCar();
  KeepingSink sink;
  SimulateRun(car.Run(), sink);
  ASSERT_FALSE(sink.rows.empty());
  for (const RunRow& row : sink.rows) {
    if (row.gear != 1) break;
    const double wheel = row.rpm / (3.25 * 4.1);  // turns a minute
    EXPECT_NEAR(row.mph, wheel * std::numbers::pi * 24 / 12 * 60 / 5280, 1e-6 * row.mph);
    const double metres = row.mph * 0.44704;
    const double density = 0.076501 * 0.45359237 / std::pow(0.3048, 3);
    const double watts = 0.5 * density * 0.34 * 19.4 * 0.3048 * 0.3048 * std::pow(metres, 3);
    EXPECT_NEAR(row.aeroHp, watts / 745.69987, 2e-4 * row.aeroHp);
    EXPECT_NEAR(row.rollHp, 3500 * 0.015 * row.feetASecond / 550, 1e-9);
  }
}

TEST(Acceleration, TheRunsOwnSpeedsAndTimesGiveThePowerBack) {
  SampleCar car = test::StartCar();
  KeepingSink sink;
  sink.takesSamples = true;
  SimulateRun(car.Run(), sink);
  int checked = 0;
  for (std::size_t i = 1; i < sink.samples.size(); ++i) {
    const RunRow &a = sink.samples[i - 1], &b = sink.samples[i];
    const double seconds = b.elapsed - a.elapsed;
    if (a.gear != b.gear || a.rpm < 5200 || !(seconds > 1e-4)) continue;
    const double gained = 3500 / kGravity *
                          (b.feetASecond * b.feetASecond - a.feetASecond * a.feetASecond) / 2 /
                          seconds / 550;
    const double power = gained + (a.aeroHp + b.aeroHp) / 2 + (a.rollHp + b.rollHp) / 2;
    const double atWheels = (a.rpm + b.rpm) / 2 * (a.torque + b.torque) / 2 * 0.94 * 0.935 / 5252;
    EXPECT_NEAR(power, atWheels, 1e-3 * atWheels) << a.rpm;
    ++checked;
  }
  EXPECT_GT(checked, 100);
}

TEST(Acceleration, TopSpeedIsWhereNoThrustIsLeft) {
  SampleCar car = test::StockCar();
  const RunResult run = RunOf(car);
  EXPECT_EQ(run.end, RunEnd::Power);
  test::StripIntegration truth(car.Run(), 0.01);
  EXPECT_NEAR(run.topSpeed, truth.ToTheEnd(), 1e-3 * run.topSpeed);
  EXPECT_EQ(run.topSpeedGear, 4);
}

TEST(Acceleration, TopSpeedOfGearingIsThatOfTheLastRow) {
  const RunResult run = RunOf(test::StartCar());
  EXPECT_EQ(run.end, RunEnd::Gearing);
  EXPECT_NEAR(run.topSpeed, 10000 * 12 / (0.87 * 4.1 * 168.06762), 0.01);
  EXPECT_EQ(run.topSpeedGear, 5);
  EXPECT_NEAR(run.topSpeedRpm, 10000, 0.01);
}

// ------------------------------------------------------------ the launch

TEST(Acceleration, LaunchHoldsTheTorqueOfItsRpm) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  SimulateRun(car.Run(), sink);
  EXPECT_NEAR(sink.rows.front().torque, 700 + 20 * 0.4, 1e-9);
  EXPECT_NEAR(sink.rows.front().mph, 5, 0.01);
  EXPECT_THAT(sink.messages, IsEmpty());
  EXPECT_EQ(sink.rollout.size(), 1U);
}

TEST(Acceleration, LaunchAboveTheTableIsNotUsed) {
  for (const double rpm : {10000.0, 12000.0}) {
    KeepingSink sink;
    SampleCar car = test::StartCar();
    car.inputs.launchRpm = rpm;
    SimulateRun(car.Run(), sink);
    EXPECT_THAT(sink.messages, ElementsAre("Launch RPM to High -- Not Used",
                                           "Abnormal ET Reset -- Final ET MAY NOT be Correct"));
    EXPECT_NEAR(sink.rows.front().rpm, 5000, 5);
  }
}

TEST(Acceleration, LaunchBelowTheTableBeginsAtItsFirstRow) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.launchRpm = 3000;
  SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.messages, ElementsAre("Launch RPM Lower than any RPM in table -- Not Used"));
  EXPECT_NEAR(sink.rows.front().torque, 700, 1e-9);
  KeepingSink same;
  car.inputs.launchRpm = 5000;
  SimulateRun(car.Run(), same);
  EXPECT_EQ(same.rows.size(), sink.rows.size());
  EXPECT_EQ(same.rows.back().elapsed, sink.rows.back().elapsed);
}

TEST(Acceleration, WithoutRolloutTheClockStartsBehindTheFirstStep) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.rollout = 0;
  SimulateRun(car.Run(), sink);
  // One jump to 100 RPM at the thrust of 708 foot pounds less the rolling resistance.
  const double speed = 100 * 12 / (3.25 * 4.1 * 168.06762) * 22 / 15;
  const double a = 3.25 * 4.1 * 708 * 0.94 * 0.935 / (3500 / kGravity) - 0.015 * kGravity;
  ASSERT_EQ(sink.rollout.size(), 1U);
  EXPECT_NEAR(sink.rollout.front(), speed / a, 2e-6);
}

TEST(Acceleration, TorqueGoesOnOverATablePoint) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  SimulateRun(car.Run(), sink);
  // One step of 0.05 went beyond 5500 where those of 0.075 begin, and one of 0.075 beyond 7500,
  // where those of -0.05 begin.
  for (const RunRow& row : sink.rows) {
    if (row.gear == 1 && std::abs(row.rpm - 8000) < 0.01) {
      EXPECT_NEAR(row.torque, 820 + (0.05 - 0.075) + (0.075 + 0.05), 1e-6);
      return;
    }
  }
  FAIL() << "no row at 8000 RPM";
}

TEST(Acceleration, AnIntervalThatAStepPassesOverKeepsItsRise) {
  SampleCar car = test::StartCar();
  car.rpm = {5000, 7000, 7000.5, 10000};
  car.torque = {700, 700, 900, 900};
  car.inputs.transRatio = {3.25};
  KeepingSink sink;
  SimulateRun(car.Run(), sink);
  EXPECT_NEAR(sink.rows.back().torque, 900, 1e-9);
}

// ------------------------------------------------------------ gears

TEST(Acceleration, ARatioOfZeroEndsTheGearbox) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.transRatio[2] = 0;
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.changes, ElementsAre("1-2"));
  EXPECT_EQ(run.topSpeedGear, 2);
}

TEST(Acceleration, EighteenGearsAreAllRun) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  for (std::size_t i = 0; i < kGears; ++i) {
    car.inputs.transRatio[i] = 4 * std::pow(0.9, static_cast<double>(i));
  }
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_EQ(sink.changes.size(), 17U);
  EXPECT_EQ(run.topSpeedGear, 18);
}

TEST(Acceleration, EngineThatFallsBelowTheTableGoesOnAtItsFirstRow) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25, 1.0};
  SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.changes, ElementsAre("1-2 below"));
}

TEST(Acceleration, AGearTooShortForTheSpeedEndsTheRun) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.tireGrowth[1] = -60;
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.changes, ElementsAre("1-2 too short"));
  EXPECT_EQ(run.end, RunEnd::GearTooShort);
  EXPECT_NEAR(run.topSpeed, 10000 * 12 / (3.25 * 4.1 * 168.06762), 0.01);
}

TEST(Acceleration, ShiftAtAnRpmBetweenRowsIsWhereItIs) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.shiftRpm.fill(9733);
  SimulateRun(car.Run(), sink);
  double last = 0;
  for (const RunRow& row : sink.rows) {
    if (row.gear == 1) last = row.rpm;
  }
  // The last of the steps of 1.25 RPM that are not above it.
  EXPECT_GT(last, 9733 - 1.25);
  EXPECT_LE(last, 9733);
}

TEST(Acceleration, ThrottleStopKeepsTheSpeed) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.throttleStop = true;
  car.inputs.throttleStopRpm = 7000;
  car.inputs.throttleStopTime = 0.3;
  SimulateRun(car.Run(), sink);
  ASSERT_EQ(sink.stops.size(), 2U);
  ASSERT_EQ(sink.stops[1], sink.stops[0] + 2);
  const RunRow &before = sink.rows[sink.stops[0]], &after = sink.rows[sink.stops[0] + 1];
  EXPECT_NEAR(after.elapsed - before.elapsed, 0.3, 1e-12);
  EXPECT_NEAR(after.distance - before.distance, 0.3 * before.feetASecond, 1e-9);
  EXPECT_EQ(after.mph, before.mph);
  EXPECT_EQ(before.acceleration, 0);
  EXPECT_NEAR(before.rpm, 7000, 1.25);
}

TEST(Acceleration, AThrottleStopOnAStepStopsAtThatStep) {
  SampleCar car = test::StartCar();
  car.rpm = {4400, 4730, 5280};
  car.torque = {700, 710, 720};
  car.inputs.transRatio = {3.25};
  car.inputs.launchRpm = 4400;
  car.inputs.throttleStop = true;
  // 160 steps of 0.825 RPM, whose sum is a little less.
  car.inputs.throttleStopRpm = 4532;
  KeepingSink sink;
  SimulateRun(car.Run(), sink);
  ASSERT_EQ(sink.stops.size(), 2U);
  // The row shows the last step before the stop.
  EXPECT_NEAR(sink.rows[sink.stops[0]].rpm, 4532 - 0.825, 1e-6);
}

TEST(Acceleration, TheRateIsThatOfARealRiseAndNoRowComesTwice) {
  SampleCar car = test::StartCar();
  car.rpm = {3500, 3850, 3960, 5000};
  car.torque = {556, 650, 635, 600};
  car.inputs.transRatio = {3.25, 2.9, 2.5};
  car.inputs.throttleStop = true;
  // Behind the launch and the stop there is one step, of the same RPM but for its rounding.
  car.inputs.launchRpm = car.inputs.shiftRpm[0] = 3861;
  car.inputs.throttleStopRpm = 3000;
  car.inputs.throttleStopTime = 0.3;
  KeepingSink sink;
  SimulateRun(car.Run(), sink);
  ASSERT_EQ(sink.stops.size(), 2U);
  for (std::size_t i = 0; i < sink.rows.size(); ++i) {
    const RunRow& row = sink.rows[i];
    const double perRpm =
        12 / (car.inputs.transRatio[static_cast<std::size_t>(row.gear - 1)] * 4.1 * 168.06762) *
        22 / 15;
    const bool stopped = i == sink.stops[0] || i == sink.stops[0] + 1;
    // A row's acceleration is the rate that its speed gains at.
    if (!stopped) {
      EXPECT_NEAR(row.rpsRate * perRpm / row.acceleration, 1, 1e-6) << row.rpm;
    }
    const bool isForced = stopped || i == sink.stops[1];
    if (i > 0 && !isForced) {
      EXPECT_GT(std::abs(row.rpm - sink.rows[i - 1].rpm), 1e-3) << row.rpm;
    }
  }
}

TEST(Acceleration, AThrottleStopDirectlyBehindAShiftShowsTheStepOfTheGearBefore) {
  SampleCar car = test::StartCar();
  // A tire that shrinks lifts the engine to the stop's RPM with the change itself.
  car.inputs.transRatio = {3.25, 3.25};
  car.inputs.tireGrowth[1] = -3;
  car.inputs.shiftRpm[0] = 8000;
  car.inputs.throttleStop = true;
  car.inputs.throttleStopRpm = 8200;
  car.inputs.throttleStopTime = 0.3;
  KeepingSink sink;
  SimulateRun(car.Run(), sink);
  ASSERT_THAT(sink.changes, ElementsAre("1-2"));
  ASSERT_EQ(sink.stops.size(), 2U);
  ASSERT_EQ(sink.stops[1], sink.stops[0] + 2);
  for (const std::size_t i : {sink.stops[0], sink.stops[0] + 1}) {
    const RunRow& row = sink.rows[i];
    EXPECT_EQ(row.gear, 1);
    EXPECT_NEAR(row.mph, row.rpm * 12 / (3.25 * 4.1 * 168.06762), 1e-9);
    EXPECT_NEAR(row.wheelForce, 3.25 * 4.1 * row.torque * 0.94 * 0.935, 1e-6);
  }
  // The run goes on in the gear that it was shifted to.
  const RunRow& next = sink.rows[sink.stops[1]];
  EXPECT_EQ(next.gear, 2);
  EXPECT_NEAR(next.wheelForce, 3.25 * 4.1 * next.torque * 0.94 * 0.935 / 0.97, 1e-6);
}

// ------------------------------------------------------------ air, tires, nitrous

TEST(Acceleration, DensityAndPressureOfStandardAirAreTheSame) {
  SampleCar pressure = test::StartCar(), density = test::StartCar();
  density.inputs.trackPressure = 0.076501;
  EXPECT_NEAR(RunOf(pressure).Et(), RunOf(density).Et(), 1e-10);
  // 0.1 itself is a density, and heavy air.
  SampleCar heavy = test::StartCar();
  heavy.inputs.trackPressure = 0.1;
  EXPECT_GT(RunOf(heavy).Et(), RunOf(density).Et() + 0.01);
}

TEST(Acceleration, ATireSmallerThanItsRollingRadiusIsRaised) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.tireRollingRadius = 13;
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.messages,
              ElementsAre("Tire Rolling Radius is Greater Than Half of the Tire Diameter! Tire "
                          "Diameter set to Radius * 2"));
  EXPECT_EQ(sink.diameter, 26);
  EXPECT_EQ(run.tireDiameter, 26);
}

TEST(Acceleration, AWindDirectionAbove359IsLowered) {
  KeepingSink sink;
  SampleCar car = test::StartCar();
  car.inputs.windSpeed = 20;
  car.inputs.windDirection = 400;
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_EQ(sink.direction, 359);
  SampleCar same = test::StartCar();
  same.inputs.windSpeed = 20;
  same.inputs.windDirection = 359;
  EXPECT_EQ(run.Et(), RunOf(same).Et());
}

TEST(Acceleration, NitrousAtTheWheelsIsThatOfTheEngineLessItsLosses) {
  SampleCar wheels = test::StartCar(), engine = test::StartCar();
  wheels.inputs.nitrous = engine.inputs.nitrous = true;
  wheels.inputs.nitrousAtWheels = true;
  wheels.inputs.nitrousStages[0] = {2, 100, 6000, 100, 6000};
  engine.inputs.nitrousStages[0] = {2, 100 / (0.94 * 0.935), 6000, 100, 6000};
  EXPECT_NEAR(RunOf(wheels).Et(), RunOf(engine).Et(), 1e-9);
  EXPECT_LT(RunOf(wheels).Et(), RunOf(test::StartCar()).Et() - 0.005);
}

TEST(Acceleration, AStageOfGearNineIsUnused) {
  SampleCar car = test::StartCar();
  for (std::size_t i = 0; i < kGears; ++i) {
    car.inputs.transRatio[i] = 4 * std::pow(0.9, static_cast<double>(i));
  }
  const double without = RunOf(car).Et();
  car.inputs.nitrous = true;
  car.inputs.nitrousStages[0] = {9, 500, 0, 100, 0};
  EXPECT_EQ(RunOf(car).Et(), without);
}

TEST(Acceleration, NitrousRisesEvenlyToItsFullShot) {
  SampleCar car = test::StartCar();
  car.inputs.nitrous = true;
  car.inputs.nitrousStages[0] = {1, 200, 6000, 25, 8000};
  KeepingSink sink;
  sink.takesSamples = true;
  SimulateRun(car.Run(), sink);
  for (const RunRow& row : sink.samples) {
    const double percent = row.rpm < 6000   ? 0
                           : row.rpm > 8000 ? 100
                                            : 25 + 75 * (row.rpm - 6000) / 2000;
    EXPECT_NEAR(row.nitrousHp, row.gear == 1 ? 2 * percent : 0, 1e-6) << row.rpm;
  }
  EXPECT_EQ(NitrousShot(car.Run(), 1), 200);
  EXPECT_EQ(NitrousShot(car.Run(), 2), 0);
  EXPECT_NEAR(EngineNitrous(car.Run(), 1, 7000), 200 * 0.625, 1e-9);
}

TEST(Acceleration, ATimedStageActsUntilItsStop) {
  SampleCar car = test::StartCar();
  car.inputs.nitrous = true;
  car.inputs.nitrousStages[7] = {100, 1, 50, 2, 3};
  KeepingSink sink;
  sink.takesSamples = true;
  SimulateRun(car.Run(), sink);
  for (const RunRow& row : sink.samples) {
    if (row.distance < 0) continue;
    const double t = row.elapsed;
    const double percent = t < 1 || t > 3.01 ? 0 : t > 2 ? 100 : 50 + 50 * (t - 1);
    if (t > 2.99 && t <= 3.01) continue;
    // The stage's time is that of the step's beginning.
    EXPECT_NEAR(row.nitrousHp, percent, t > 0.99 && t < 1.01 ? 51 : 0.2) << t;
  }
}

// ------------------------------------------------------------ the end of a run

/// Each row is a moment of one drive: nothing goes back, and no speed is beyond the top speed.
void ExpectOneDrive(const KeepingSink& sink, const RunResult& run) {
  for (std::size_t i = 0; i < sink.rows.size(); ++i) {
    const RunRow& row = sink.rows[i];
    EXPECT_LE(row.mph, run.topSpeed) << i;
    EXPECT_GE(row.acceleration, 0) << i;
    if (i == 0) continue;
    EXPECT_GE(row.mph, sink.rows[i - 1].mph) << i;
    EXPECT_GE(row.distance, sink.rows[i - 1].distance) << i;
  }
}

TEST(Acceleration, NoRowHasASpeedThatTheCarNeverHas) {
  for (SampleCar car : {test::StockCar(), test::TopSpeedCar(), test::Truck()}) {
    SCOPED_TRACE(car.name);
    KeepingSink sink;
    const RunResult run = SimulateRun(car.Run(), sink);
    ExpectOneDrive(sink, run);
    EXPECT_EQ(sink.rows.back().mph, run.topSpeed);
    EXPECT_EQ(run.last.mph, run.topSpeed);
    EXPECT_EQ(run.last.elapsed, run.topSpeedTime);
  }
}

/// The start's car in air that is thicker by far: its power ends before its last gear.
SampleCar CarInThickAir(double dragCoefficient) {
  SampleCar car = test::StartCar();
  car.inputs.dragCoefficient = dragCoefficient;
  return car;
}

/// Horsepower that the wheels have in the start's car. The table stands 500 RPM apart.
double WheelPower(const SampleCar& car, double rpm) {
  const auto i = std::min(static_cast<std::size_t>((rpm - 5000) / 500), car.rpm.size() - 2);
  const double part = (rpm - car.rpm[i]) / 500;
  const double torque = car.torque[i] + part * (car.torque[i + 1] - car.torque[i]);
  return rpm * torque * 0.94 * 0.935 / 5252;
}

double Resistance(const SampleCar& car, double mph) {
  return mph * mph * mph * car.inputs.dragCoefficient * 19.4 / 146625 + 3500 * 0.015 * mph / 375;
}

/// Agrees with steps of time up to the run's end.
void ExpectMarksOfTruth(SampleCar& car, const RunResult& run) {
  test::StripIntegration truth(car.Run());
  int marks = 0;
  for (std::size_t i = 0; i < kStripMarks.size() && kStripMarks[i] < run.last.distance; ++i) {
    if (run.strip[i].mph > run.topSpeed - 0.1) break;
    const auto passing = truth.At(kStripMarks[i]);
    ASSERT_TRUE(passing.has_value());
    EXPECT_NEAR(run.strip[i].time, passing->seconds, 2e-4 * passing->seconds);
    ++marks;
  }
  EXPECT_GE(marks, 1);
}

TEST(Acceleration, ARunEndsWhereTheNextGearCannotPull) {
  SampleCar car = CarInThickAir(15);
  // Gear 2 pulls up to its last RPM, gear 3 does not at the same speed.
  const double speed = 10000 * 12 / (2.25 * 4.1 * 168.06762);
  ASSERT_GT(WheelPower(car, 10000), Resistance(car, speed));
  ASSERT_LT(WheelPower(car, 10000 * 1.25 / 2.25), Resistance(car, speed));
  KeepingSink sink;
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.changes, ElementsAre("1-2"));
  EXPECT_EQ(run.end, RunEnd::NextGear);
  EXPECT_EQ(run.topSpeedGear, 2);
  EXPECT_NEAR(run.topSpeed, speed, 0.01);
  EXPECT_NEAR(run.topSpeedRpm, 10000, 0.01);
  ExpectOneDrive(sink, run);
  ExpectMarksOfTruth(car, run);
  // It rolls out from its last step: no time and no way of a change that there was not.
  EXPECT_EQ(run.last.elapsed, sink.rows.back().elapsed);
  EXPECT_EQ(run.last.distance, sink.rows.back().distance);
  ASSERT_EQ(run.rest, RunRest::Deceleration);
  ASSERT_FALSE(sink.rolledOut.empty());
  EXPECT_NEAR(sink.rolledOut.front().mph, 75, 0.025);
  EXPECT_GT(sink.rolledOut.front().distance, run.last.distance);
  EXPECT_GT(sink.rolledOut.front().elapsed, run.last.elapsed);
}

TEST(Acceleration, ARunEndsWhereDragTakesTheThrustBeforeTheLastGear) {
  SampleCar car = CarInThickAir(25);
  const auto speedAt = [](double rpm) { return rpm * 12 / (2.25 * 4.1 * 168.06762); };
  double low = 7000, high = 10000;
  ASSERT_GT(WheelPower(car, low), Resistance(car, speedAt(low)));
  ASSERT_LT(WheelPower(car, high), Resistance(car, speedAt(high)));
  while (high - low > 1e-6) {
    const double rpm = (low + high) / 2;
    (WheelPower(car, rpm) > Resistance(car, speedAt(rpm)) ? low : high) = rpm;
  }
  KeepingSink sink;
  const RunResult run = SimulateRun(car.Run(), sink);
  EXPECT_THAT(sink.changes, ElementsAre("1-2"));
  EXPECT_EQ(run.end, RunEnd::Power);
  EXPECT_EQ(run.topSpeedGear, 2);
  // Within a step of 1.25 RPM.
  EXPECT_LE(run.topSpeedRpm, low + 0.1);
  EXPECT_GT(run.topSpeedRpm, low - 1.35);
  ExpectOneDrive(sink, run);
  ExpectMarksOfTruth(car, run);
  ASSERT_EQ(run.rest, RunRest::ConstantVelocity);
  const double fps = run.topSpeed * 22 / 15;
  EXPECT_NEAR(run.Et(), run.last.elapsed + (1320 - run.last.distance) / fps, 1e-9);
}

TEST(Acceleration, AnEngineThatLosesItsTorqueIsShiftedWhereTheNextGearPulls) {
  SampleCar car = test::StartCar();
  car.torque[8] = car.torque[9] = car.torque[10] = -50;  // from 9000 RPM on
  KeepingSink sink;
  const RunResult run = SimulateRun(car.Run(), sink);
  // Gear 3 takes the engine from just below 9000 to 5000 RPM, where the table begins.
  EXPECT_THAT(sink.changes, ElementsAre("1-2", "2-3 below", "3-4", "4-5"));
  EXPECT_EQ(run.end, RunEnd::Power);
  EXPECT_EQ(run.topSpeedGear, 5);
  for (const RunRow& row : sink.rows) EXPECT_LT(row.rpm, 9000);
  ExpectOneDrive(sink, run);
}

TEST(Acceleration, AChangeThatLastsForeverDoesNotRollTheCarBack) {
  SampleCar car = test::StartCar();
  car.inputs.shiftTime[0] = 1e6;
  KeepingSink sink;
  const RunResult run = SimulateRun(car.Run(), sink);
  ExpectOneDrive(sink, run);
}

TEST(Acceleration, ACarThatCannotMoveHasNoTimes) {
  SampleCar car = test::StartCar();
  for (double& torque : car.torque) torque = 1;
  const RunResult run = RunOf(car);
  EXPECT_EQ(run.end, RunEnd::NoThrust);
  EXPECT_EQ(run.Et(), 0);
  EXPECT_EQ(run.Et60(), 0);
  EXPECT_FALSE(run.tryRearGearRatio.has_value());
}

/// A car of one short gear and no air: beyond its last RPM only its tires slow it.
SampleCar ShortGear() {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25};
  car.inputs.dragCoefficient = 0;
  return car;
}

TEST(Acceleration, BeyondItsLastGearACarRollsOut) {
  KeepingSink sink;
  SampleCar car = ShortGear();
  const RunResult run = SimulateRun(car.Run(), sink);
  ASSERT_EQ(run.rest, RunRest::Deceleration);
  // The loss of power by rolling grows with speed, so that speed falls exponentially.
  const double k = 0.015 * kGravity / (375 * 22.0 / 15);
  const double v0 = run.last.feetASecond, t0 = run.last.elapsed, x0 = run.last.distance;
  const auto timeAt = [&](double feet) { return t0 - std::log(1 - (feet - x0) * k / v0) / k; };
  EXPECT_NEAR(run.Et(), timeAt(1320), 1e-3);
  EXPECT_NEAR(run.Et8(), timeAt(660), 1e-3);
  EXPECT_NEAR(run.at(StripMark::Feet1320).mph, (v0 - k * (1320 - x0)) * 15 / 22, 0.03);
  EXPECT_FALSE(sink.rolledOut.empty());
}

TEST(Acceleration, RowsOfTheRollOutStandAtWholeFives) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25, 2.25};
  car.inputs.dragCoefficient = 3;
  KeepingSink sink;
  const RunResult run = SimulateRun(car.Run(), sink);
  ASSERT_EQ(run.rest, RunRest::Deceleration);
  double next = 75;  // from 77.4 MPH down
  for (const RunRow& row : sink.rolledOut) {
    const bool isMark = std::ranges::any_of(
        kStripMarks, [&](double feet) { return row.distance >= feet && row.distance - feet < 10; });
    if (isMark && std::abs(row.mph - next) > 0.025) continue;
    // The first of the steps of 0.025 MPH that is there.
    EXPECT_NEAR(row.mph, next - 0.0125, 0.01251);
    next -= 5;
  }
  EXPECT_LT(next, 65);
}

TEST(Acceleration, RollingOutTheAirSlowsACarMoreTheMoreItsGearsLose) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25};
  KeepingSink sink;
  SimulateRun(car.Run(), sink);
  ASSERT_FALSE(sink.rolledOut.empty());
  const RunRow& row = sink.rolledOut.front();
  const double slugs = 3500 / kGravity;
  const double air = row.feetASecond * row.feetASecond * 0.076474 * 0.34 * 19.4 / (2 * 3500);
  EXPECT_NEAR(-row.acceleration, row.rollHp / slugs + air / (0.94 * 0.935), 1e-9);
  car.inputs.rearEndLoss = 3;
  KeepingSink low;
  SimulateRun(car.Run(), low);
  ASSERT_FALSE(low.rolledOut.empty());
  const RunRow& other = low.rolledOut.front();
  const double lowAir = other.feetASecond * other.feetASecond * 0.076474 * 0.34 * 19.4 / 7000;
  EXPECT_NEAR(-other.acceleration, other.rollHp / slugs + lowAir / (0.94 * 0.97 - 0.02), 1e-9);
}

TEST(Acceleration, ACarWithoutAnyResistanceKeepsItsSpeed) {
  SampleCar car = ShortGear();
  car.inputs.rollingResistance = 0;
  const RunResult run = RunOf(car);
  EXPECT_EQ(run.rest, RunRest::ConstantVelocity);
  EXPECT_NEAR(run.Et(), run.last.elapsed + (1320 - run.last.distance) / run.last.feetASecond, 1e-9);
  EXPECT_NEAR(run.QuarterMileMph(), run.last.mph, 1e-9);
}

TEST(Acceleration, ACarHeldByDragBeforeTheQuarterKeepsItsTopSpeed) {
  SampleCar car = test::StartCar();
  car.inputs.dragCoefficient = 100;
  const RunResult run = RunOf(car);
  ASSERT_EQ(run.end, RunEnd::Power);
  ASSERT_LT(run.last.distance, 1320);
  EXPECT_EQ(run.rest, RunRest::ConstantVelocity);
  EXPECT_NEAR(run.at(StripMark::Feet1320).mph, run.topSpeed, 1e-9);
}

TEST(Acceleration, AdviceBringsTheLastRpmToTheQuarterMile) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25, 2.25, 1.25};
  car.inputs.usesPrimaryDrive = true;
  car.inputs.primaryDrive = 1;
  const RunResult run = RunOf(car);
  ASSERT_TRUE(run.tryRearGearRatio.has_value());
  const double speed = std::sqrt(run.last.feetASecond * run.last.feetASecond +
                                 2 * run.last.acceleration * (1320 - run.last.distance)) *
                       15 / 22;
  EXPECT_NEAR(*run.tryRearGearRatio, run.last.rpm * 24 / (336.13524 * speed * 1.25), 1e-9);
  // The same car of other gears has the same speeds, and so the same product.
  car.inputs.primaryDrive = 2;
  car.inputs.rearGearRatio = 2.05;
  EXPECT_NEAR(*RunOf(car).tryRearGearRatio, *run.tryRearGearRatio / 2, 1e-6);
  EXPECT_FALSE(RunOf(test::StartCar()).tryRearGearRatio.has_value());
}

TEST(Acceleration, FurtherMarksStandAQuarterOfAMileApart) {
  EXPECT_EQ(FurtherMarkName(0), "1/2 Mile");
  EXPECT_EQ(FurtherMarkName(1), "3/4 Mile");
  EXPECT_EQ(FurtherMarkName(2), "1 Mile");
  EXPECT_EQ(FurtherMarkName(3), "1 1/4 Mile");
  EXPECT_EQ(FurtherMarkName(26), "7 Mile");
  EXPECT_EQ(FurtherMarkFeet(0), 2640);
  EXPECT_EQ(FurtherMarkFeet(26), 7 * 5280);
}

// ------------------------------------------------------------ a CVT

SampleCar CvtCar() {
  SampleCar car = test::StartCar();
  car.inputs.cvtRpm = 9250;
  car.inputs.cvtLoss = 20;
  return car;
}

TEST(Acceleration, ConstantPowerIsTheLawOfTheCvt) {
  SampleCar car = CvtCar();
  car.inputs.dragCoefficient = car.inputs.rollingResistance = 0;
  car.inputs.frictionMu = 5.1;
  RunSink nothing;
  const RunResult run = SimulateCvtRun(car.Run(), nothing);
  // The torque between 780 at 9000 and 737 at 9500 RPM; x = sqrt(8 P / 9 m) t^1.5.
  const double power = 9250 * 758.5 * 0.8 / 5252 * 550;
  const double c = std::sqrt(8 * power / 9 / (3500 / kGravity));
  const double rollout = 11.75 / 12;
  const auto timeAt = [&](double feet) { return std::pow((feet + rollout) / c, 2.0 / 3); };
  for (std::size_t i = 0; i < kStripMarks.size(); ++i) {
    EXPECT_NEAR(run.strip[i].time, timeAt(kStripMarks[i]) - timeAt(0), 2e-4);
  }
  EXPECT_EQ(run.end, RunEnd::Distance);
  EXPECT_TRUE(run.further.back().reached());
}

TEST(Acceleration, ARowOfTheCvtTellsTheDragOfItsOwnSpeed) {
  SampleCar car = CvtCar();
  KeepingSink sink;
  SimulateCvtRun(car.Run(), sink);
  ASSERT_GT(sink.rows.size(), 20U);
  const double power = 9250 * 758.5 * 0.8 / 5252;
  for (const RunRow& row : sink.rows) {
    const double aero = std::pow(row.mph, 3) * 0.34 * 19.4 / 146625;
    const double roll = 3500 * 0.015 * row.mph / 375;
    EXPECT_NEAR(row.aeroHp, aero, 1e-9 * aero);
    EXPECT_NEAR(row.rollHp, roll, 1e-9 * roll);
    const double thrust = std::min((power - aero - roll) * 375 / row.mph, 90.0 * 3500);
    EXPECT_NEAR(row.acceleration / kGravity, thrust / 3500, 1e-9 * thrust / 3500);
  }
}

TEST(Acceleration, TheCvtEndsWhereDragTakesItsPower) {
  SampleCar car = CvtCar();
  car.inputs.dragCoefficient = 2;
  KeepingSink sink;
  const RunResult run = SimulateCvtRun(car.Run(), sink);
  ExpectOneDrive(sink, run);
  EXPECT_EQ(run.end, RunEnd::Power);
  const double v = run.topSpeed;
  const double power = 9250 * 758.5 * 0.8 / 5252;
  EXPECT_NEAR(v * v * v * 2 * 19.4 / 146625 + 3500 * 0.015 * v / 375, power, 1e-3 * power);
}

TEST(Acceleration, TheCvtRefusesAnEngineSpeedBesideTheTable) {
  RunSink nothing;
  for (const double rpm : {4999.0, 10001.0, std::numeric_limits<double>::quiet_NaN()}) {
    SampleCar car = CvtCar();
    car.inputs.cvtRpm = rpm;
    try {
      SimulateCvtRun(car.Run(), nothing);
      ADD_FAILURE() << rpm;
    } catch (const RunInputError& error) {
      EXPECT_EQ(error.message(), "CVT RPM must lie within the RPM of the torque table.");
    }
  }
}

// ------------------------------------------------------------ each gear

TEST(Acceleration, EachGearRunsOverTheWholeTable) {
  KeepingSink sink;
  sink.takesSamples = true;
  SampleCar car = test::StartCar();
  car.inputs.launchRpm = 20000;
  car.inputs.shiftRpm.fill(6000);
  SimulateRun(car.Run(), sink, RunKind::EachGear);
  EXPECT_THAT(sink.messages, IsEmpty());
  EXPECT_THAT(sink.rollout, IsEmpty());
  for (int gear = 1; gear <= 5; ++gear) {
    std::vector<double> rpms;
    for (const RunRow& row : sink.samples) {
      if (row.gear == gear) rpms.push_back(row.rpm);
    }
    ASSERT_GE(rpms.size(), 11U) << gear;
    EXPECT_EQ(rpms.front(), 5000);
    EXPECT_NEAR(rpms.back(), 10000, 1e-6);
    for (const double point : car.rpm) {
      EXPECT_TRUE(std::any_of(rpms.begin(), rpms.end(), [&](double rpm) {
        return std::abs(rpm - point) < 1e-6;
      })) << point;
    }
  }
}

// ------------------------------------------------------------ what is refused

struct Refusal {
  const char* what;
  void (*spoil)(SampleCar& car);
  RunField field;
  const char* message;
};

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, WithTheFieldsCaption) {
  SampleCar car = test::StartCar();
  GetParam().spoil(car);
  KeepingSink sink;
  try {
    SimulateRun(car.Run(), sink);
    FAIL() << "nothing was refused";
  } catch (const RunInputError& error) {
    EXPECT_EQ(error.field(), GetParam().field);
    EXPECT_THAT(error.message(), HasSubstr(GetParam().message));
    EXPECT_THAT(error.message(), HasSubstr(CaptionOf(error.field(), error.index())));
    EXPECT_THAT(error.message(), testing::EndsWith(error.reason()));
  }
  EXPECT_THAT(sink.rows, IsEmpty());
  EXPECT_THAT(sink.messages, IsEmpty());
}

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

INSTANTIATE_TEST_SUITE_P(
    Inputs, Refused,
    testing::Values(
        Refusal{"NoTable", [](SampleCar& c) { c.rpm.clear(), c.torque.clear(); },
                RunField::TorqueTable, "The torque table has no rows."},
        Refusal{"OneRow", [](SampleCar& c) { c.rpm.resize(1), c.torque.resize(1); },
                RunField::TorqueTable, "only one row"},
        Refusal{"NotAscending", [](SampleCar& c) { c.rpm[4] = 6500; }, RunField::TorqueTable,
                "ascending order by RPM, which it is not in row 5."},
        Refusal{"TableOfNoNumber", [](SampleCar& c) { c.torque[2] = kNone; }, RunField::TorqueTable,
                "torque of usual size in row 3."},
        Refusal{"HugeRpm", [](SampleCar& c) { c.rpm.back() = 1e12; }, RunField::TorqueTable,
                "in row 11."},
        Refusal{"RearRatio", [](SampleCar& c) { c.inputs.rearGearRatio = 0; },
                RunField::RearGearRatio, "Rear Gear Ratio must be above 0."},
        Refusal{"FirstGear", [](SampleCar& c) { c.inputs.transRatio[0] = 0; }, RunField::TransRatio,
                "1st must be above 0."},
        Refusal{"RisingRatio", [](SampleCar& c) { c.inputs.transRatio[2] = 2.5; },
                RunField::TransRatio, "3rd must not be above that of the gear before it."},
        Refusal{"TinyRatio", [](SampleCar& c) { c.inputs.transRatio[4] = 2e-6; },
                RunField::TransRatio, "beyond 10000 MPH"},
        Refusal{"Tire", [](SampleCar& c) { c.inputs.tireDiameter = 0; }, RunField::TireDiameter,
                "Tire Diameter must be above 0."},
        Refusal{"Radius", [](SampleCar& c) { c.inputs.tireRollingRadius = 0; },
                RunField::TireRollingRadius, "Tire Rolling Radius must be above 0."},
        Refusal{"Weight", [](SampleCar& c) { c.inputs.carWeight = 0; }, RunField::CarWeight,
                "Vehicle Weight plus driver must be above 0."},
        Refusal{"Friction", [](SampleCar& c) { c.inputs.frictionMu = kFrictionLimit; },
                RunField::FrictionMu, "Coefficient of Mu must be below 36 / 7"},
        Refusal{"NoFriction", [](SampleCar& c) { c.inputs.frictionMu = 0; }, RunField::FrictionMu,
                "Coefficient of Mu must be above 0."},
        Refusal{"TinyWeight", [](SampleCar& c) { c.inputs.carWeight = 1e-300; },
                RunField::CarWeight, "Vehicle Weight plus driver must be a number of usual size."},
        Refusal{"TinyFriction", [](SampleCar& c) { c.inputs.frictionMu = 1e-300; },
                RunField::FrictionMu, "Coefficient of Mu must be a number of usual size."},
        Refusal{"TinyDynoFactor", [](SampleCar& c) { c.inputs.dynoCorrection = 1e-300; },
                RunField::DynoCorrection, "Dyno Correct Factor must be a number of usual size."},
        Refusal{"TinyTire", [](SampleCar& c) { c.inputs.tireDiameter = 1e-300; },
                RunField::TireDiameter, "Tire Diameter must be a number of usual size."},
        Refusal{"TinyGear", [](SampleCar& c) { c.inputs.transRatio[0] = 1e-300; },
                RunField::TransRatio, "Trans Gear Ratio 1st must be a number of usual size."},
        Refusal{"TinyRear", [](SampleCar& c) { c.inputs.rearGearRatio = 1e-300; },
                RunField::RearGearRatio, "Rear Gear Ratio must be a number of usual size."},
        Refusal{"DynoFactor", [](SampleCar& c) { c.inputs.dynoCorrection = 0; },
                RunField::DynoCorrection, "Dyno Correct Factor must be above 0."},
        Refusal{"RearLoss", [](SampleCar& c) { c.inputs.rearEndLoss = 100; }, RunField::RearEndLoss,
                "% Rear End Power Loss must be a loss"},
        Refusal{"GearLoss", [](SampleCar& c) { c.inputs.gearLoss[1] = 130; }, RunField::GearLoss,
                "2nd must be a loss"},
        Refusal{"Growth", [](SampleCar& c) { c.inputs.tireGrowth[0] = -100; }, RunField::TireGrowth,
                "must be above -100 percent."},
        Refusal{"ShiftRpm", [](SampleCar& c) { c.inputs.shiftRpm[0] = 0; }, RunField::ShiftRpm,
                "1 - 2 must be above 0."},
        Refusal{"ShiftTime", [](SampleCar& c) { c.inputs.shiftTime[1] = -0.1; },
                RunField::ShiftTime, "2 - 3 must not be below 0."},
        Refusal{"Rollout", [](SampleCar& c) { c.inputs.rollout = -1; }, RunField::Rollout,
                "Rollout Distance inches must not be below 0."},
        Refusal{"Drag", [](SampleCar& c) { c.inputs.dragCoefficient = -1; },
                RunField::DragCoefficient, "Coefficient of Drag (CD) must not be below 0."},
        Refusal{"Area", [](SampleCar& c) { c.inputs.frontalArea = kNone; }, RunField::FrontalArea,
                "Frontal Area Sq.Ft. must be a number"},
        Refusal{"Rolling", [](SampleCar& c) { c.inputs.rollingResistance = -1; },
                RunField::RollingResistance, "Tire Rolling Resistance must not be below 0."},
        Refusal{"Air", [](SampleCar& c) { c.inputs.trackPressure = -1; }, RunField::TrackPressure,
                "Track - BP or Air Density must not be below 0."},
        Refusal{"Wind", [](SampleCar& c) { c.inputs.windSpeed = kNone; }, RunField::WindSpeed,
                "Wind Speed must be a number"},
        Refusal{"Launch", [](SampleCar& c) { c.inputs.launchRpm = -5; }, RunField::LaunchRpm,
                "Launch RPM must not be below 0."},
        Refusal{"Slip",
                [](SampleCar& c) {
                  c.inputs.automatic = true;
                  c.inputs.converterSlippage = 100;
                },
                RunField::ConverterSlippage, "% Converter Slippage must be a loss"},
        Refusal{"Primary",
                [](SampleCar& c) {
                  c.inputs.usesPrimaryDrive = true;
                  c.inputs.primaryDrive = 0;
                },
                RunField::PrimaryDrive, "Primary Gear Ratio must be above 0."},
        Refusal{"StopTime",
                [](SampleCar& c) {
                  c.inputs.throttleStop = true;
                  c.inputs.throttleStopTime = -1;
                },
                RunField::ThrottleStopTime, "Throttle S Time must not be below 0."},
        Refusal{"Nitrous",
                [](SampleCar& c) {
                  c.inputs.nitrous = true;
                  c.inputs.nitrousStages[3][1] = kNone;
                },
                RunField::Nitrous, "Nitrous stage 4 must be a number"}),
    [](const auto& refusal) { return refusal.param.what; });

TEST(Acceleration, WhatASwitchDoesNotUseIsNotRefused) {
  SampleCar car = test::StartCar();
  car.inputs.primaryDrive = 0;
  car.inputs.converterSlippage = 150;
  car.inputs.throttleStopTime = -1;
  car.inputs.cvtRpm = -4;
  car.inputs.nitrousStages[3][1] = kNone;
  car.inputs.gearLoss[12] = 200;
  EXPECT_GT(RunOf(car).Et(), 7);
}

TEST(Acceleration, NoNumbersMakeARunWithoutEndOrMeaning) {
  unsigned state = 12345;
  const auto random = [&] {
    state = state * 1664525 + 1013904223;
    return static_cast<double>(state >> 8) / (1 << 24);
  };
  int runs = 0;
  for (int i = 0; i < 400; ++i) {
    SampleCar car = i % 3 == 0 ? test::DragCar() : i % 3 == 1 ? test::StockCar() : test::Truck();
    AccelerationInputs& in = car.inputs;
    double* const numbers[] = {&in.rearGearRatio,
                               &in.tireDiameter,
                               &in.tireRollingRadius,
                               &in.converterSlippage,
                               &in.rearEndLoss,
                               &in.carWeight,
                               &in.dragCoefficient,
                               &in.rollingResistance,
                               &in.launchRpm,
                               &in.rollout,
                               &in.frictionMu,
                               &in.trackPressure,
                               &in.windSpeed,
                               &in.dynoCorrection,
                               &in.transRatio[1],
                               &in.tireGrowth[1],
                               &in.shiftRpm[0],
                               &in.throttleStopRpm,
                               &in.converterStallSpeed,
                               &car.torque[1],
                               &car.rpm[0],
                               &in.nitrousStages[0][1],
                               &in.shiftTime[0]};
    for (int k = 0; k < 3; ++k) {
      double& number = *numbers[static_cast<std::size_t>(random() * 23)];
      const double scale[] = {0, 1e-6, 0.01, 0.5, 2, 100, 1e6, -1};
      number *= scale[static_cast<std::size_t>(random() * 8)];
    }
    RunSink nothing;
    try {
      const RunResult run = SimulateRun(car.Run(), nothing);
      ++runs;
      EXPECT_LT(run.steps, 12'000'000U);
      for (const RunMark& mark : run.strip) {
        EXPECT_TRUE(std::isfinite(mark.time) && std::isfinite(mark.mph)) << i;
      }
      EXPECT_TRUE(std::isfinite(run.last.elapsed) && std::isfinite(run.topSpeed)) << i;
    } catch (const CommandError&) {
      // said in words
    }
  }
  EXPECT_GT(runs, 50);
}

}  // namespace
}  // namespace veldox
