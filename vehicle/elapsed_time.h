#pragma once

#include <array>
#include <cstddef>

namespace veldox {

// Elapsed time, trap speed and power of a drag run, by the drag strip's rules of thumb. They take
// the weight of the car with its driver in pounds, horsepower, seconds and miles an hour. A value
// of 0 that a rule divides by gives no finite number.

/// Over how many feet the speed at the end of a quarter mile is taken, which decides what speed
/// goes with a power.
enum class SpeedTrap { SixtySixFeet, ThirtyThreeFeet };

/// Speed of a quarter mile in MPH. @param horsepower  must not be below 0 @param weight  pounds
double TrapSpeedForPower(SpeedTrap trap, double weight, double horsepower);

/// Time of a quarter mile in seconds. @param weight  pounds
double ElapsedTimeForPower(double weight, double horsepower);

/// Time of a quarter mile in seconds. @param speed  at its end, MPH
double ElapsedTimeForSpeed(SpeedTrap trap, double speed);

/// Time of an eighth of a mile, from that of a quarter mile, in seconds.
double EighthMileTime(double elapsedTime);

/// Speed of an eighth of a mile, from that of a quarter mile, in MPH.
double EighthMileSpeed(double trapSpeed);

/// Time of an eighth of a mile in seconds. @param speed  at its end, MPH
double EighthMileTimeForSpeed(double speed);

/// Horsepower that runs a quarter mile in a time. @param weight  pounds @param elapsedTime  seconds
double PowerForElapsedTime(double weight, double elapsedTime);

/// Horsepower that reaches a speed. @param weight  pounds @param speed  MPH
double PowerForTrapSpeed(SpeedTrap trap, double weight, double speed);

/// Horsepower that one MPH more takes, by the rule of the 33-foot trap.
/// @param weight  pounds @param speed  MPH
double PowerForOneMphMore(double weight, double speed);

/// Torque in foot pounds.
double TorqueForPower(double horsepower, double rpm);

/// Horsepower. @param torque  foot pounds
double PowerForTorque(double torque, double rpm);

/// Brake mean effective pressure in psi. @param torque  foot pounds
double MeanPressureForTorque(double torque, double cubicInches);

/// Brake mean effective pressure in psi.
double MeanPressureForPower(double horsepower, double cubicInches, double rpm);

/// Time of the first 60 feet in seconds, from that of a quarter mile.
double SixtyFootTime(double elapsedTime);

/// Speed after 60 feet in MPH, of a car that gains speed evenly. @param time  seconds
double SixtyFootSpeed(double time);

/// Mean acceleration over 60 feet from rest in g. @param time  seconds
double SixtyFootGs(double time);

/// The same by the rule of version 3.11.0, which is smaller by the square root of two.
double SixtyFootGs3110(double time);

/// The places of a drag strip where the time is taken: 60, 330, 660, 1000 and 1320 feet.
inline constexpr std::size_t kSplits = 5;

/// Horsepower that moved a car, from its split times.
struct RunPowers {
  double peak = 0;
  double average = 0;
};

/// @param weight  pounds
/// @param times  at the five places, in seconds
RunPowers RunPower(double weight, const std::array<double, kSplits>& times);

}  // namespace veldox
