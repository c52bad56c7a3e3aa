#pragma once

#include <string>
#include <vector>

#include "graph/sketch.h"

namespace veldox {

/// Expansion chambers of two-stroke engines: what the exhaust pulse needs to be back at the port
/// in time. Lengths are in millimetres, temperatures in Celsius, angles of ports in crank degrees.

/// Diameter of a round port of the same area.
double HeaderDiameter(double portWidth, double portHeight);

/// Temperature of the exhaust gas by a rule for engines of a mean pressure in bar.
double ExhaustGasTemperature(double meanPressureBar);

/// Metres a second: sqrt(1.4 x 287 T). Not finite below absolute zero.
double SpeedOfSound(double celsius);

/// Length from the port to where the pulse turns, so that it is back when the port closes. Not
/// finite for a speed of 0. @param speedOfSound  metres a second
double TunedLength(double speedOfSound, double exhaustDuration, double rpm);

/// Parts of the tuned length in chambers of several stages.
inline constexpr double kHeaderPart = 0.1;
inline constexpr double kBafflePart = 0.24;
inline constexpr double kBellyPart = 0.11;
inline constexpr double kTwoStageDiffusers[] = {0.41, 0.14};
inline constexpr double kThreeStageDiffusers[] = {0.275, 0.183, 0.092};

/// Diameter between the two cones of a two-stage diffuser. @param part  of its length before it
double DiameterBetweenCones(double part, double bellyDiameter);

/// Diameter along a diffuser in the form of a horn. @param part  of its length before it
/// @param growth  natural logarithm of the end's diameter by the start's
double HornDiameter(double start, double part, double coefficient, double growth);

/// Length of a cone between two diameters; negative where the narrow one is wider. Not finite for
/// an angle of 0. @param degrees  of its side to its axis
double ConeLength(double narrowDiameter, double wideDiameter, double degrees);

/// A part of a chamber by the row that tells its length.
struct ChamberSection {
  std::string row;   ///< such as "L3"
  std::string part;  ///< such as "Diffuser 1"
  double length = 0;
  double from = 0;  ///< diameters
  double to = 0;
};

/// A length of a chamber that is no section of it.
struct ChamberMeasure {
  std::string row;
  double from = 0;  ///< from the port
  double length = 0;
};

struct Chamber {
  std::vector<ChamberSection> sections;  ///< from the port on
  /// In the order in which they stand under the drawing; those of one line do not overlap.
  std::vector<std::vector<ChamberMeasure>> measures;
  /// Names of diameters: where sections begin ("D1" of the second one) or in their middle.
  struct Diameter {
    std::string row;
    std::size_t section = 0;
    bool inMiddle = false;
  };
  std::vector<Diameter> diameters;
};

/// The chamber to scale, cut along its axis. Sections that are not longer than 0 are left out.
Sketch SketchOf(const Chamber& chamber);

}  // namespace veldox
