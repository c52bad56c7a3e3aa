#pragma once

#include <vector>

#include "core/units.h"
#include "engine/piston_motion.h"

namespace veldox {

/// What a compression gauge tells of an engine at cranking speed, and what the closing angle
/// of the intake valve has to do with it. The charge is taken to be compressed from the volume
/// at closing, at the pressure of the air outside, by a polytropic law with one exponent.
///
/// Lengths are in one unit throughout. Volumes named cc are cubic centimetres where the unit
/// is the inch; where it is the millimetre they are out by a factor that all of them share, so
/// that ratios hold. Pressures of one call share a unit.

inline constexpr double kBarsPerPsi = 0.0689475729;

/// Pressures of water in air.
struct VaporPressures {
  double saturated = 0;  ///< inches of mercury
  double actual = 0;     ///< inches of mercury
};

/// Water in air at a temperature in degrees Celsius and a relative humidity in percent, by a
/// Magnus formula. A humidity of exactly 0 still gives a trace.
VaporPressures VaporPressuresAt(double celsius, double humidity);

/// The sizes of a cylinder that decide its volumes.
struct CylinderSize {
  double bore = 0;
  double stroke = 0;
  double rodLength = 0;
  double offset = 0;  ///< of the wrist pin

  CrankSlider Slider() const { return {stroke / 2, rodLength, offset}; }
};

/// A cylinder at the moment in which its intake valve closes.
struct ClosedCylinder {
  double dynamicStroke = 0;  ///< from there to the top
  double actualStroke = 0;   ///< between the ends, more than the stroke with an offset
  double pistonArea = 0;
  double sweptCc = 0;   ///< over the actual stroke
  double closedCc = 0;  ///< over the dynamic stroke
};

/// The cylinder when the intake valve closes so many degrees after bottom dead centre. Not
/// finite where the rod cannot reach.
ClosedCylinder ClosedCylinderAt(const CylinderSize& size, double intakeClose);

/// The same with the crank turned so many degrees from the top instead. As top counts the
/// angle at which an offset piston stands at its bottom, less half a turn.
ClosedCylinder CylinderAfterTop(const CylinderSize& size, double degrees);

/// The crank's own angle at so many degrees from that top.
double CrankAngleAfterTop(const CylinderSize& size, double degrees);

/// The older rule, kept from the DOS version: readings count from the pressure outside, which
/// the water in the air lowers. Without it they count from vacuum.
enum class DosRule { Off = 0, On = 1 };

/// Pressure at the top of the stroke.
/// @param ratio  volume at closing over clearance: the dynamic compression ratio
/// @param base   pressure outside
double CrankingPressure(double ratio, double base, DosRule rule);

/// Compression ratio of a cylinder that shows a pressure. Not finite without a base or where
/// nothing is swept after closing.
double CompressionRatioForPressure(double reading, double base, DosRule rule,
                                   const ClosedCylinder& cylinder);

/// Compression ratio of a cylinder with a dynamic compression ratio.
double CompressionRatioForDynamicRatio(double dynamicRatio, const ClosedCylinder& cylinder);

/// Offset of the wrist pin that puts top dead centre at a crank angle in degrees.
double OffsetForTopAngle(double degrees, double stroke, double rodLength);

/// Degrees after bottom dead centre at which an engine without offset has a piston that far
/// from the top; beyond the stroke the end of the stroke stands for it.
double IntakeCloseForTravel(double stroke, double rodLength, double travel);

/// The crank angle behind it: degrees before top dead centre.
double DegreesBeforeTop(double stroke, double rodLength, double travel);

/// Degrees after bottom dead centre at which the intake valve closes for a dynamic
/// compression ratio: in closed form without offset, else digit by digit, truncated at the
/// seventh decimal.
/// @throws CommandError (InvalidArgument) unless 1 <= dynamicRatio < compressionRatio
double IntakeCloseForDynamicRatio(const CylinderSize& size, double compressionRatio,
                                  double dynamicRatio);

/// Distance of the piston from the top at closing for which the gauge shows a reading, found
/// digit by digit to 0.00001; the offset has no part in it.
/// @throws CommandError (InvalidArgument) for a reading that no closing angle gives: at or
///         below the pressure outside, or above what the whole stroke compresses to; also
///         unless bore, base and compressionRatio - 1 are positive
double TravelForCrankingPressure(const CylinderSize& size, double compressionRatio, double reading,
                                 double base, DosRule rule);

/// Octane number that iron heads may need: a rule of thumb from 93 at 185 psi with 120 degrees
/// of inlet air and 170 of water.
/// @param gauge  psi
/// @param inletAir  degrees Fahrenheit
/// @param water     degrees Fahrenheit
double EstimatedOctane(double gauge, double inletAir, double water);

// ---------------------------------------------------------------- pressure over crank angle

/// A cylinder that expands from its highest pressure.
struct Expansion {
  CylinderSize size;
  double compressionRatio = 0;
  double startDegrees = 0;   ///< after top dead centre, where the pressure is highest
  double startPressure = 0;  ///< there
  double exponent = 0;       ///< polytropic
};

/// A point of the expansion.
struct ExpansionPoint {
  double degrees = 0;  ///< after top dead centre
  double pressure = 0;
};

/// The pressure in steps of half a degree from the start to 180 degrees, the start among them.
std::vector<ExpansionPoint> PressureCurve(const Expansion& expansion);

/// Torque of a pressure on the crank, by the angle of the rod.
/// @param degrees  after top dead centre
/// @param armUnits  units of length in one of the arm: 12 for inches and feet, 1000 for
///                  millimetres and metres
double TurningForce(const CylinderSize& size, double pressure, double degrees, double armUnits);

/// The same by the approximation for long rods, which needs no angle of the rod.
double TurningForceByRatio(const CylinderSize& size, double pressure, double degrees,
                           double armUnits);

/// The part of pressure times area times crank arm that the torque of an expansion reaches at
/// most, by the angle in degrees at which it starts.
double LargestTurningForcePart(double startDegrees);

}  // namespace veldox
