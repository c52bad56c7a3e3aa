#pragma once

namespace veldox {

/// Jets, pressures and power of nitrous systems. Jet sizes are diameters in inches, pressures
/// are in psi. What flows through a jet goes with its area and the square root of the pressure;
/// the figures hold at 950 psi in the bottle and at the fuel pressure of the baseline.

/// How much power a kit makes of a jet, and how rich it is laid out.
struct NitrousBaseline {
  double hpFactor;          ///< horsepower of a square inch of nitrous jet
  double fuelRatio;         ///< area of the fuel jet to that of the nitrous jet
  double baseFuelPressure;  ///< psi at which that ratio holds
  bool lean = false;        ///< leaner than the others: its advice on timing and plugs differs
};

inline constexpr int kNitrousBaselineCount = 6;

/// The baselines by their number. @throws std::out_of_range beyond them
const NitrousBaseline& NitrousBaselineOf(int option);

/// Area in square inches of a jet.
double JetArea(double diameter);

/// Horsepower that a number of nitrous jets adds.
double NitrousHorsepower(const NitrousBaseline& baseline, double nitrousPressure, double jetSize,
                         double jets);

/// The nitrous jet that adds a horsepower: the inverse of NitrousHorsepower. Not finite when the
/// pressure or the number of jets is 0, no number below.
double NitrousJetSize(const NitrousBaseline& baseline, double nitrousPressure, double horsepower,
                      double jets);

/// Horsepower of nitrous in eight cylinders of an engine that has another number of them.
double HorsepowerPerEight(double horsepower, double cylinders);

/// What an advice reaches from and to.
struct AdviceRange {
  double lower;
  double upper;
};

/// Degrees of ignition retard. @param perEight  horsepower in eight cylinders
AdviceRange TimingRetard(const NitrousBaseline& baseline, double perEight);

/// Steps to colder spark plugs. @param perEight  horsepower in eight cylinders
AdviceRange PlugHeatRange(const NitrousBaseline& baseline, double perEight);

/// The jet for gasoline of the specific gravity 0.74 that goes with one nitrous jet. Not finite
/// at a fuel pressure of 0, no number below.
double BaseFuelJet(const NitrousBaseline& baseline, double nitrousPressure, double nitrousJet,
                   double fuelPressure);

enum class NitrousFuel { Gas, Methanol, Ethanol, E85 };

/// The jet for a fuel of a specific gravity in place of the base jet: the lighter the fuel,
/// the larger. Not finite at a gravity of 0, no number below.
double FuelJetForGravity(NitrousFuel fuel, double baseJet, double gravity);

/// The jet for a fuel of a specific gravity in place of a jet for gasoline: the heavier the
/// gasoline was, the larger. Not finite at a gravity of 0, no number below.
double FuelJetForGasJet(NitrousFuel fuel, double gasJet, double gasGravity, double gravity);

/// The one jet that flows as much as a number of jets.
double JetOfSameFlow(double jetSize, double jets);

/// The same for the jets of two stages.
double JetOfSameFlow(double jetSize, double jets, double jetSize2, double jets2);

/// The fuel pressure at which a gasoline jet goes with one nitrous jet: the inverse of
/// BaseFuelJet. Not finite when the fuel jet is 0.
double FuelPressureForJets(const NitrousBaseline& baseline, double nitrousPressure,
                           double nitrousJet, double fuelJet);

}  // namespace veldox
