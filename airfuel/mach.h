#pragma once

#include <optional>

// Intake Mach index and tuned length. Lengths in inches, areas in square inches, velocities in feet
// per second.

namespace veldox {

/// Speeds of sound that the solutions are based on, feet per second.
inline constexpr double kSoundOfMachIndex = 1159.766667;
inline constexpr double kSoundOfArea = 1200;
inline constexpr double kSoundOfCoefficient = 1128;

/// An engine and the valve that its Mach index is told for.
struct MachEngine {
  double bore = 0;           ///< inches
  double stroke = 0;         ///< inches
  double valveDiameter = 0;  ///< inches
  double valveLift = 0;      ///< inches
  double rpm = 0;
};

/// The mean speed through the valve by the speed of sound.
double MachIndex(const MachEngine& engine);

/// What a walk over the Mach index looks for.
enum class MachTerm { Rpm, Lift, Diameter };

/// The last step of a walk at which the index is still on the side that the walk began on: speeds
/// in steps of 1 RPM, lift and diameter in steps of 0.00001 inch. So a speed has an index not
/// above the one asked for, a lift or a diameter one not below it.
/// @param index  the Mach index asked for
/// @return nothing where the walk would go beyond 32767 RPM or 100 inches
std::optional<double> WalkToMachIndex(MachTerm term, MachEngine engine, double index);

/// Velocity through a cross-section.
double SpeedThroughArea(const MachEngine& engine, double area);
/// The cross-section for a velocity, square inches.
double AreaForSpeed(const MachEngine& engine, double speed);

/// Velocity through valves of which a part is open.
/// @param valves       number of valves or ports
/// @param coefficient  coefficient of discharge
double SpeedByCoefficient(const MachEngine& engine, double valves, double coefficient);

/// A cylinder with its intake as a resonator.
struct HelmholtzIntake {
  double bore = 0;     ///< inches
  double stroke = 0;   ///< inches
  double area = 0;     ///< cross-section of port and runner, square inches
  double ratio = 0;    ///< static compression ratio, above 1
  double hFactor = 0;  ///< 77 in usual engines
  double sound = 0;    ///< speed of sound, feet per second
};
/// Speed of the torque peak. @param length  of port and runner, inches @return RPM
double TunedRpm(const HelmholtzIntake& intake, double length);
/// Length of port and runner, inches. @param rpm  of the torque peak
double TunedLength(const HelmholtzIntake& intake, double rpm);

}  // namespace veldox
