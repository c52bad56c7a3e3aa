#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "core/numbers.h"

namespace veldox {

// Power worked out backwards from a car's own speeds and times on the road. Speeds are in MPH,
// times in seconds, weights in pounds, lengths in inches.

/// The car and the air that it was driven in.
struct RoadCar {
  double weight = 0;  ///< with the driver, above 0
  double dragCoefficient = 0;
  double frontalArea = 0;  ///< square feet
  double rollingResistance = 0;
  double trackPressure = 0;  ///< above 0.1 inches of mercury, else pounds a cubic foot
  double headWind = 0;       ///< MPH
};

/// The gear that it was driven in. All are above 0.
struct RoadDrive {
  double gear = 1;  ///< ratio of the transmission
  double rearGearRatio = 1;
  double primaryDrive = 1;
  double tireGrowth = 0;  ///< percent, in that gear
  double tireDiameter = 0;

  double OverallRatio() const { return gear * rearGearRatio * primaryDrive; }
  double DriveRadius() const { return (1 + tireGrowth / 100) * tireDiameter / 2; }
  double RpmAt(double mph) const;
  double MphAt(double rpm) const;
};

/// Horsepower between two points of a road table, at the mean of both.
struct RoadPower {
  double mph = 0;      ///< the mean
  double seconds = 0;  ///< from one point to the other
  double accelerationHp = 0;
  double aeroHp = 0;
  double rollHp = 0;

  double TotalHp() const { return accelerationHp + aeroHp + rollHp; }
};

/// The power between each point of a road table and the next.
/// @throws CommandError (InvalidArgument) for fewer than two points, for a speed below 0, and for a
///         speed or a time that does not rise
std::vector<RoadPower> RoadPowerOf(const RoadCar& car, std::span<const double> mph,
                                   std::span<const double> seconds);

/// Times of points at which the engine gains speed steadily, from 0 on.
/// @param rate  RPM a second, above 0
std::vector<double> TimesAtRate(std::span<const double> rpm, double rate);

/// Names the gear in the head of a chart.
struct RoadGear {
  int number = 1;  ///< from 1
  RoadDrive drive;
};

// The charts. They throw what RoadPowerOf does.

/// Power and torque of a table of speeds and times.
std::string RoadSpeedChart(const RoadCar& car, const RoadGear& gear, std::span<const double> mph,
                           std::span<const double> seconds, DecimalMark mark);

/// The same of a table of engine speeds and times.
/// @param rate  RPM a second, which takes the place of the times; 0 for the times
std::string RoadEngineChart(const RoadCar& car, const RoadGear& gear, std::span<const double> rpm,
                            std::span<const double> seconds, double rate, DecimalMark mark);

/// Power of a table of speeds and times without gears or tires: what accelerates the car, and what
/// the air takes where drag, area and air are told.
std::string RoadWeightChart(const RoadCar& car, std::span<const double> mph,
                            std::span<const double> seconds, DecimalMark mark);

/// A chart of starting line ratios.
struct StartingLine {
  double firstGear = 1;  ///< above 0, as the two that follow
  double rearGearRatio = 1;
  double primaryDrive = 1;
  double tireDiameter = 0;
  bool automatic = false;
  double converterSlippage = 0;  ///< percent, below 100; only with an automatic

  /// First gear times rear gear, with the primary drive where there is one.
  double Ratio() const { return firstGear * rearGearRatio * primaryDrive; }
  /// Engine speed for each MPH.
  double RpmPerMph(double ratio, double diameter) const;
};

/// Engine speed for each MPH by tire diameter and starting line ratio, around those of the car.
std::string StartingLineChart(const StartingLine& line, DecimalMark mark);

}  // namespace veldox
