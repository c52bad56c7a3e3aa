#include "vehicle/elapsed_time.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/units.h"

namespace veldox {
namespace {

constexpr double kPiExact = 3.14159265358979323846;

TEST(Constants, AreThoseOfPhysics) {
  EXPECT_NEAR(kRpmOfEqualTorqueAndPower, 33000 / (2 * kPiExact), 5252 * 5e-5);
  // A mean pressure of a four-stroke engine: work of a turn by half its size.
  EXPECT_NEAR(MeanPressureForTorque(1, 1), 48 * kPiExact, 150.8 * 5e-5);
  EXPECT_EQ(MeanPressureForPower(1, 1, 1), 33000.0 * 12 * 2);
}

TEST(QuarterMile, KeepsThePublishedRules) {
  for (const double weight : {900.0, 2350.0, 7100.0}) {
    for (const double horsepower : {55.0, 555.0, 9000.0}) {
      const double root = std::cbrt(weight / horsepower);
      EXPECT_NEAR(ElapsedTimeForPower(weight, horsepower), 5.825 * root, 1e-7 * root);
      // The rules' 234 MPH stands rounded in the screen's 0.00426.
      EXPECT_NEAR(TrapSpeedForPower(SpeedTrap::SixtySixFeet, weight, horsepower), 234 / root,
                  0.0032 * 234 / root);
      EXPECT_NEAR(TrapSpeedForPower(SpeedTrap::ThirtyThreeFeet, weight, horsepower), 230.5 / root,
                  1e-6 / root * 230.5);
    }
  }
}

TEST(QuarterMile, TimeBySpeedIsTheSameForEveryCar) {
  for (const double weight : {900.0, 2350.0, 7100.0}) {
    const double time = ElapsedTimeForPower(weight, 500);
    EXPECT_NEAR(time * TrapSpeedForPower(SpeedTrap::SixtySixFeet, weight, 500), 5.825 / 0.00426,
                1e-6 * 1367.37);
    EXPECT_NEAR(time * TrapSpeedForPower(SpeedTrap::ThirtyThreeFeet, weight, 500), 5.825 * 230.5,
                1e-6 * 1342.66);
  }
  for (const double speed : {40.0, 120.0, 330.0}) {
    EXPECT_NEAR(ElapsedTimeForSpeed(SpeedTrap::SixtySixFeet, speed) * speed, 1363.05, 1e-6 * 1363);
    EXPECT_NEAR(ElapsedTimeForSpeed(SpeedTrap::ThirtyThreeFeet, speed) * speed, 1342.6625,
                1e-6 * 1343);
  }
}

TEST(QuarterMile, PowerComesBackFromTimeAndSpeed) {
  for (const double horsepower : {55.0, 555.0, 9000.0}) {
    const double time = ElapsedTimeForPower(2350, horsepower);
    EXPECT_NEAR(PowerForElapsedTime(2350, time), horsepower, 1e-7 * horsepower);
    for (const SpeedTrap trap : {SpeedTrap::SixtySixFeet, SpeedTrap::ThirtyThreeFeet}) {
      const double speed = TrapSpeedForPower(trap, 2350, horsepower);
      EXPECT_NEAR(PowerForTrapSpeed(trap, 2350, speed), horsepower, 1e-7 * horsepower);
    }
  }
}

TEST(QuarterMile, OneMphMoreIsTheDifferenceOfTwoPowers) {
  EXPECT_NEAR(PowerForOneMphMore(3000, 120),
              PowerForTrapSpeed(SpeedTrap::ThirtyThreeFeet, 3000, 121) -
                  PowerForTrapSpeed(SpeedTrap::ThirtyThreeFeet, 3000, 120),
              1e-9);
}

TEST(EighthMile, StandsInFixedProportion) {
  EXPECT_DOUBLE_EQ(EighthMileTime(15.6), 10);
  EXPECT_DOUBLE_EQ(EighthMileSpeed(123), 100);
  // 234 x 5.825 / 123 / 1.56 at 100 MPH
  EXPECT_NEAR(EighthMileTimeForSpeed(100), 1363.05 / 123 / 1.56, 1e-12);
}

TEST(Conversions, AreInverse) {
  EXPECT_NEAR(PowerForTorque(TorqueForPower(317, 5400), 5400), 317, 1e-12);
  EXPECT_DOUBLE_EQ(TorqueForPower(400, 5252), 400);
  // The same engine by torque and by power: 150.8 is 792000 / 5252 to five digits.
  EXPECT_NEAR(MeanPressureForTorque(TorqueForPower(400, 6000), 350),
              MeanPressureForPower(400, 350, 6000), 189 * 5e-5);
}

TEST(SixtyFeet, AtSteadyAcceleration) {
  // 60 feet in 1.5 s: 80 ft/s at the end, 54.545 MPH, 53.33 ft/s^2
  EXPECT_NEAR(SixtyFootSpeed(1.5), 80 * 3600.0 / 5280, 1e-9);
  EXPECT_NEAR(SixtyFootGs(1.5), 160.0 / 3 / 32.17405, 1e-6);
  EXPECT_NEAR(SixtyFootGs(1.5) / SixtyFootGs3110(1.5), std::sqrt(2), 1e-6);
  EXPECT_DOUBLE_EQ(SixtyFootTime(10), 1.2 + 0.1 + 0.12);
}

TEST(RunPower, OfARunAtSteadySpeedIsThatOfItsStart) {
  // 100 feet a second all the way: power only over the first 60 feet, 100 / 0.6 ft/s^2 of a slug
  // of 32.17405 lb at 100 ft/s.
  const RunPowers powers = RunPower(32.17405, {0.6, 3.3, 6.6, 10, 13.2});
  EXPECT_NEAR(powers.peak, 100 / 0.6 * 100 / 550, 1e-9);
  // Rounded times leave next to nothing, of either sign, in the others.
  EXPECT_NEAR(powers.average * 5, powers.peak, 1e-9);
}

TEST(RunPower, CountsASlowingCarInTheMeanAlone) {
  const RunPowers powers = RunPower(2350, {2, 6, 10, 15, 20});
  const RunPowers slower = RunPower(2350, {2, 6, 10, 15, 25});
  EXPECT_EQ(powers.peak, slower.peak);
  EXPECT_LT(slower.average, powers.average);
}

TEST(RunPower, WorkedOutByHand) {
  // Segments 60, 270, 330, 340, 320 feet in 2, 3, 3, 2, 2 s: 30, 90, 110, 170, 160 ft/s; gains
  // 15, 20, 6.667, 30, -5 ft/s^2; times speed: 450, 1800, 733.3, 5100, -800; mass 100 slug / 550
  const RunPowers powers = RunPower(3217.405, {2, 5, 8, 10, 12});
  EXPECT_NEAR(powers.peak, 5100 * 100 / 550.0, 1e-9);
  EXPECT_NEAR(powers.average, (450 + 1800 + 2200 / 3.0 + 5100 - 800) / 5 * 100 / 550, 1e-9);
}

}  // namespace
}  // namespace veldox
