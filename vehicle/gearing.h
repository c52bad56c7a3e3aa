#pragma once

#include <string>

#include "core/numbers.h"

namespace veldox {

// Engine speed, gears, tires and road speed. Tire diameters are in inches, speeds in MPH. A value
// of 0 that a formula divides by gives no finite number.

/// Speed in MPH. @param ratio  of the engine's turns to the wheel's
double RoadSpeed(double tireDiameter, double rpm, double ratio);

/// Engine speed in RPM. @param speed  MPH @param ratio  of the engine's turns to the wheel's
double EngineSpeed(double speed, double ratio, double tireDiameter);

/// Rear gear ratio. @param gear  ratio of the transmission
double RearRatioForSpeed(double tireDiameter, double rpm, double gear, double speed);

/// First gear needed with a manual transmission, by a rule of thumb.
double FirstGearManual(double speed, double tireWidth, double horsepower);

/// First gear needed with an automatic transmission.
double FirstGearAutomatic(double speed, double tireWidth, double horsepower);

/// The nominal diameter of a tire in inches.
/// @param width  millimetres @param aspectRatio  percent @param wheel  inches
double NominalTireDiameter(double width, double aspectRatio, double wheel);

/// Speed over a lap in MPH. @param miles  length of the lap @param seconds  its time
double LapSpeed(double miles, double seconds);

/// Seconds of a lap.
double LapTime(double miles, double speed);

/// Miles of a lap.
double LapLength(double speed, double seconds);

/// Lateral acceleration on a skid pad in g. @param radius  feet @param seconds  of a full circle
double SkidPadAcceleration(double radius, double seconds);

/// Lateral acceleration in a turn in g. @param radius  feet @param speed  MPH
double CorneringAcceleration(double radius, double speed);

/// Mean acceleration from rest over a distance in g. @param feet  the distance
double MeanAccelerationOver(double feet, double seconds);

/// Mean acceleration that changes the speed in g. @param speed  the change, MPH
double MeanAccelerationTo(double speed, double seconds);

/// What a torque converter loses, in percent. @param ratio  of the engine's turns to the wheel's
double ConverterSlip(double speed, double tireDiameter, double rpm, double ratio);

/// What of the engine's ratio is left for a tire of this radius instead of one of a foot.
/// @param radius  inches
double EffectiveRatio(double ratio, double radius);

/// The ratio of one gear to the one before, so that this many gears lead from first to last.
double GearStep(double first, double last, double gears);

/// A table of lap times.
struct LapChart {
  double miles;         ///< length of the lap
  double startSeconds;  ///< first time, above 0
  double endSeconds;
  double everySeconds;  ///< from time to time, above 0
};

/// What stands in place of a chart that cannot be, a line each; empty for one that can.
std::string LapChartErrors(const LapChart& chart, DecimalMark mark);

/// The chart in three columns of one table.
std::string LapChartReport(const LapChart& chart, DecimalMark mark);

}  // namespace veldox
