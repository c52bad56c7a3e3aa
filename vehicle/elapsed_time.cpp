#include "vehicle/elapsed_time.h"

#include <algorithm>
#include <cmath>

#include "core/units.h"

namespace veldox {

namespace {

/// The cube root of the rules, which is not the exact third.
constexpr double kThird = 0.333333333;
constexpr double kTimeFactor = 5.825;
constexpr double kSpeedFactor66 = 0.00426;
constexpr double kSpeedFactor33 = 230.5;
/// Speed by time of the 66-foot trap where a time is wanted.
constexpr double kTimeSpeed66 = 234.0;
constexpr double kTimeOfEighth = 1.56;
constexpr double kSpeedOfEighth = 1.23;
constexpr double kFootPoundsASecond = 550;  ///< of one horsepower
/// Metres in a foot as the acceleration has it.
constexpr double kMetresInFoot = 0.30479999999999996;
constexpr double kSixtyFeet = 60;

double Cube(double x) {
  return x * x * x;
}

double SpeedByTime(SpeedTrap trap) {
  return trap == SpeedTrap::SixtySixFeet ? kTimeSpeed66 : kSpeedFactor33;
}

}  // namespace

double TrapSpeedForPower(SpeedTrap trap, double weight, double horsepower) {
  const double root = std::pow(horsepower / weight, kThird);
  return trap == SpeedTrap::SixtySixFeet ? root / kSpeedFactor66 : root * kSpeedFactor33;
}

double ElapsedTimeForPower(double weight, double horsepower) {
  return std::pow(weight / horsepower, kThird) * kTimeFactor;
}

double ElapsedTimeForSpeed(SpeedTrap trap, double speed) {
  return SpeedByTime(trap) / speed * kTimeFactor;
}

double EighthMileTime(double elapsedTime) {
  return elapsedTime / kTimeOfEighth;
}

double EighthMileSpeed(double trapSpeed) {
  return trapSpeed / kSpeedOfEighth;
}

double EighthMileTimeForSpeed(double speed) {
  return EighthMileTime(ElapsedTimeForSpeed(SpeedTrap::SixtySixFeet, speed * kSpeedOfEighth));
}

double PowerForElapsedTime(double weight, double elapsedTime) {
  return weight / Cube(elapsedTime / kTimeFactor);
}

double PowerForTrapSpeed(SpeedTrap trap, double weight, double speed) {
  return Cube(trap == SpeedTrap::SixtySixFeet ? speed * kSpeedFactor66 : speed / kSpeedFactor33) *
         weight;
}

double PowerForOneMphMore(double weight, double speed) {
  return (Cube(speed + 1) - Cube(speed)) / Cube(kSpeedFactor33) * weight;
}

double TorqueForPower(double horsepower, double rpm) {
  return horsepower * kRpmOfEqualTorqueAndPower / rpm;
}

double PowerForTorque(double torque, double rpm) {
  return torque * rpm / kRpmOfEqualTorqueAndPower;
}

double MeanPressureForTorque(double torque, double cubicInches) {
  return torque * 150.8 / cubicInches;
}

double MeanPressureForPower(double horsepower, double cubicInches, double rpm) {
  return horsepower * 792000 / (cubicInches * rpm);
}

double SixtyFootTime(double elapsedTime) {
  return 0.12 * elapsedTime + 1 / elapsedTime + 0.12;
}

double SixtyFootSpeed(double time) {
  return 81.8181818181818 / time;
}

double SixtyFootGs(double time) {
  return (2 * kSixtyFeet * kMetresInFoot / (time * time)) / kMetresASecondSquared;
}

double SixtyFootGs3110(double time) {
  return (std::pow(2, 0.5) * kSixtyFeet / (time * time)) / kFeetASecondSquared;
}

RunPowers RunPower(double weight, const std::array<double, kSplits>& times) {
  // Length of each part of the strip.
  const std::array<double, kSplits> splitFeet{60, 330 - 60, 660 - 330, 1000 - 660, 1320 - 1000};
  const double mass = weight / kFeetASecondSquared;
  RunPowers powers;
  double sum = 0;
  int count = 0;
  double speedBefore = 0;
  for (std::size_t i = 0; i < kSplits; ++i) {
    const double splitTime = times[i] - (i == 0 ? 0 : times[i - 1]);
    const double splitSpeed = splitFeet[i] / splitTime;
    const double splitAccel = (splitSpeed - speedBefore) / splitTime;
    const double power = splitAccel * mass * splitSpeed / kFootPoundsASecond;
    speedBefore = splitSpeed;
    if (power == 0) continue;
    sum += power;
    ++count;
    powers.peak = std::max(powers.peak, power);
  }
  powers.average = sum / count;
  return powers;
}

}  // namespace veldox
