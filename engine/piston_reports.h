#pragma once

#include <string>

#include "core/numbers.h"
#include "engine/piston_motion.h"

namespace veldox {

/// What the degree-by-degree tables are made of. Lengths are in the unit of the screen's fields:
/// inches, or millimetres in metric mode.
struct PistonTable {
  double bore = 0;
  double stroke = 0;
  double rodLength = 0;
  double offset = 0;
  double rpm = 0;
  double cylinders = 0;
  RodWeights weights;
  bool metric = false;
  bool compact = false;  ///< three decimals
  double startDegrees = 0;
  double endDegrees = 0;
  double everyDegrees = 0;

  /// A length of the table in inches.
  double Inches(double length) const;
  CrankSlider Slider() const;
};

/// What the angles of a table count from.
enum class AngleOrigin {
  Crank,        ///< the crank's own top
  DegreeWheel,  ///< the true top of the piston; the same where the wrist pin has no offset
};

/// A row of the velocity tables in the units shown: inches and feet a second (squared), or
/// millimetres and metres a second (squared).
struct VelocityRow {
  double travel = 0;
  double velocity = 0;
  double acceleration = 0;
  double flow = 0;  ///< CFM, or cubic metres a second
};
VelocityRow VelocityRowAt(const PistonTable& table, AngleOrigin origin, double degrees);

/// The fastest point of the piston's way down.
struct FastestPoint {
  double degrees = 0;  ///< from the table's origin
  double speed = 0;    ///< feet or metres a minute
};
/// @throws CommandError (InvalidArgument) where there is none
FastestPoint FastestPointOf(const PistonTable& table, AngleOrigin origin);

/// A row of the travel table; the travel is in the unit shown.
struct TravelRow {
  double travel = 0;
  double crankRodAngle = 0;  ///< between crank and rod, degrees
  double rodAngle = 0;       ///< between rod and bore, degrees
  double cubicInches = 0;    ///< over the piston, from its top
  double cc = 0;
};
TravelRow TravelRowAt(const PistonTable& table, double degrees);

/// How many rows a range of degrees asks for; not a whole number, and not finite for a step of 0.
double DegreeLines(double startDegrees, double endDegrees, double everyDegrees);

/// The most rows of a table.
inline constexpr double kMostDegreeLines = 3602;

/// Velocity, acceleration and flow by crank degrees, or by the degree wheel with the travel
/// beside them. This and the other reports throw CommandError where a value is no finite number.
std::string VelocityReport(const PistonTable& table, AngleOrigin origin, DecimalMark mark);

/// Travel, rod angles and cylinder volume.
std::string TravelReport(const PistonTable& table, DecimalMark mark);

/// Forces at the crank pin.
std::string CrankpinForceReport(const PistonTable& table, DecimalMark mark);

/// Load of the crank pin.
std::string CrankpinLoadReport(const PistonTable& table, DecimalMark mark);

}  // namespace veldox
