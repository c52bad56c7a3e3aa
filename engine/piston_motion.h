#pragma once

namespace veldox {

/// Kinematics of a crank slider: a piston on a rod on a crank pin, whose bore may stand beside
/// the crank's axis. Lengths are in inches, crank angles in degrees after the point where crank
/// and bore are parallel with the piston up, crank speeds in RPM, piston speeds in feet a
/// second, accelerations in feet a second squared.
///
/// With the crank at the angle t, the rod leans by asin((r sin t + e) / L), and the piston
/// stands r cos t + L cos(rod) over the axis; travel, velocity and acceleration are that height
/// under its largest value and its derivatives.
struct CrankSlider {
  double radius = 0;  ///< of the crank pin's circle, r: half the stroke of an engine without offset
  double rodLength = 0;  ///< between the centres, L
  double offset = 0;     ///< of the wrist pin from the crank's axis, e; negative to the other side
};

/// Where the piston is and how it moves.
struct PistonState {
  double travel = 0;        ///< from top dead centre, inches
  double velocity = 0;      ///< downwards, feet a second
  double acceleration = 0;  ///< downwards, feet a second squared
  double rodAngle = 0;      ///< of the rod to the bore, radians
};

/// The piston at a crank angle. Not finite where the rod cannot reach.
PistonState PistonStateAt(const CrankSlider& slider, double rpm, double degrees);

/// Travel from top dead centre in inches (or in the unit of the slider) alone.
double PistonTravelAt(const CrankSlider& slider, double degrees);

/// Angle of the rod to the bore in radians.
double RodAngleAt(const CrankSlider& slider, double degrees);

/// Crank angle in degrees at which the piston is fastest on its way down: where the
/// acceleration falls through zero, found digit by digit to the thirteenth decimal.
/// @param origin  crank angle in degrees that the walk and its result count from
/// @throws CommandError (InvalidArgument) where the piston never slows down within a turn
double FastestCrankAngle(const CrankSlider& slider, double rpm, double origin = 0);

/// Highest speed of the piston of an engine without offset, in feet a minute, by a continued
/// fraction for the angle of the crank; stroke and rod length in inches.
double FastestPistonSpeed(double stroke, double rodLength, double rpm);

/// Crank angle in degrees of the true top of the piston of an engine with offset.
double TopDeadCentre(const CrankSlider& slider);

/// The same for the bottom.
double BottomDeadCentre(const CrankSlider& slider);

/// What the piston of an engine with offset travels between its ends: more than twice the radius.
double ActualStroke(const CrankSlider& slider);

/// Crank angle in degrees after the top at which crank and rod stand at a right angle.
double RightAngleCrankDegrees(const CrankSlider& slider);

/// Crank angle in degrees, 0 to 180, at which the piston of an engine without offset has
/// travelled so far; exactly 180 at the whole stroke.
/// @throws CommandError (InvalidArgument) for a travel beyond the stroke
double CrankDegreesAtTravel(double stroke, double rodLength, double travel);

/// The same for an engine with offset, found digit by digit and truncated at the seventh decimal.
double CrankDegreesAtTravel(const CrankSlider& slider, double travel);

/// Air that a piston moves, as it is measured at 28 inches of water: in cubic feet a minute
/// from the bore in inches, at a piston speed in feet a second.
double PistonFlowCfm(double bore, double velocity);

/// The same in cubic metres a second from the bore in millimetres.
double PistonFlowCubicMetres(double bore, double velocity);

/// Air speed in the port over piston speed: volumetric efficiency times the squares of the
/// diameters. Not finite for a port diameter of 0.
double PortSpeedRatio(double volumetricEfficiency, double bore, double portDiameter);

/// Weights in grams of what a crank pin moves.
struct RodWeights {
  double piston = 0;    ///< with rings, wrist pin and locks
  double rod = 0;       ///< the whole rod
  double smallEnd = 0;  ///< the part of the rod that moves with the piston

  double BigEnd() const { return rod - smallEnd; }
};

/// Forces at a crank pin without gas pressure.
struct CrankpinForces {
  double reciprocatingNewtons = 0;
  double totalPounds = 0;  ///< of rotating and reciprocating weight together
  double sidePounds = 0;   ///< of the piston on the bore
  double inertiaNewtons = 0;
  double tangentNewtons = 0;
  double torqueNewtonMetres = 0;
};

/// The forces at a crank angle. Not finite when the rod weighs nothing.
CrankpinForces CrankpinForcesAt(const CrankSlider& slider, double rpm, const RodWeights& weights,
                                double degrees);

/// Load on a crank pin in newtons that counts the whole rod as moving with the piston.
double CrankpinLoadNewtons(const RodWeights& weights, double acceleration);

/// Acceleration of the crank pin towards the axis, in feet or metres a second squared.
/// @param perUnit  what the stroke's unit goes into one of them: 12 for inches and feet, 1000
///                 for millimetres and metres
double CrankpinAcceleration(double stroke, double rpm, double perUnit);

/// Pull of the rod's big end away from the axis in newtons; weight in grams, stroke in
/// millimetres.
double BigEndRotationalForce(double bigEndWeight, double stroke, double rpm);

}  // namespace veldox
