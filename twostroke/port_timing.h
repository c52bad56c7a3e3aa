#pragma once

namespace veldox {

/// Ports of a two-stroke cylinder, which the piston opens on its way down and closes on its way
/// up. Lengths are in one unit throughout, angles in crank degrees after top dead centre, times in
/// milliseconds.

/// A port's distance from the top of the piston's travel at the angle at which it opens. Not
/// finite where the rod cannot reach.
double PortDistance(double stroke, double rodLength, double openDegrees);

/// The angle at which the piston opens a port this far below the top of its travel, 0 to 180. Not
/// finite for a port beyond the stroke, but for what rounding may add at its ends.
double PortOpenDegrees(double stroke, double rodLength, double distance);

/// How long a port is open in crank degrees: from opening to closing round the bottom.
constexpr double PortDuration(double openDegrees) {
  return (180 - openDegrees) * 2;
}

/// Time of an angle of the crank. Not finite for a speed of 0.
constexpr double CrankTime(double degrees, double rpm) {
  return 1000 / (rpm * 6) * degrees;
}

/// Time of one revolution. Not finite for a speed of 0.
constexpr double RevolutionTime(double rpm) {
  return 1000.0 * 60 / rpm;
}

/// The cylinder that the closed exhaust port leaves. The dynamic ratio counts the stroke above
/// the port only.
struct TrappedCylinder {
  double stroke = 0;
  double deckClearance = 0;
  double exhaustDistance = 0;  ///< of the port from the top of the cylinder
};

double DynamicRatio(const TrappedCylinder& cylinder, double compressionRatio);
/// The compression ratio of a dynamic ratio. Not finite for a port at the deck clearance.
double RatioForDynamicRatio(const TrappedCylinder& cylinder, double dynamicRatio);
/// The port's distance for a dynamic ratio; the one of the argument is left unread. Not finite for
/// a compression ratio of 1.
double ExhaustDistanceForRatios(const TrappedCylinder& cylinder, double compressionRatio,
                                double dynamicRatio);

/// What a port must offer for the power that is wanted, in square centimetres by cc times seconds.
struct TimeAreas {
  double inlet = 0;
  double exhaust = 0;
  double blowdown = 0;
  double transfer = 0;
};

/// Time areas of good engines at a mean pressure in bar: the means of two fitted lines each.
TimeAreas TargetTimeAreas(double meanPressureBar);

}  // namespace veldox
