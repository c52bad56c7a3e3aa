#pragma once

#include <span>

#include "core/units.h"

namespace veldox {

/// What boost does to power and compression, what a compressor does to the air, and how much of
/// it an engine takes. Boost is above the pressure of the atmosphere, in psi unless a screen's
/// units say otherwise.

/// Horsepower with boost of an engine that has this horsepower without.
double BoostedHorsepower(double horsepower, double boostPsi);

/// What boost adds to a horsepower.
double BoostHorsepowerGain(double horsepower, double boostPsi);

/// Boost in psi that adds to a horsepower. Not finite at a horsepower of 0.
double BoostForHorsepowerGain(double horsepower, double gain);

/// Horsepower without boost of an engine that has this horsepower with it: the inverse of
/// BoostedHorsepower. Not finite without any air.
double UnblownHorsepower(double horsepower, double boostPsi);

/// The compression ratio that does to the charge without boost what this one does with it.
double EffectiveCompressionRatio(double compressionRatio, double boostPsi);

/// The highest compression ratio with boost for the same fuel. Not finite without any air.
/// @param unblownMost  the highest ratio without boost
double CompressionRatioForBoost(double unblownMost, double boostPsi);

/// Boost in psi of an effective compression ratio: the inverse of EffectiveCompressionRatio. Not
/// finite at a compression ratio of 0.
double BoostForEffectiveRatio(double effectiveRatio, double compressionRatio);

/// How a screen's pressures and temperatures enter the formulas of compressed air.
struct AirUnits {
  double barometerToAir;  ///< makes the barometer the air's pressure
  double boostToAir;      ///< makes boost a pressure of the same unit
  double absoluteZero;    ///< added to a temperature, it counts from absolute zero
  bool celsius;
};

/// Boost in psi, the barometer in inches of mercury, degrees Fahrenheit.
inline constexpr AirUnits kInchAir{kPsiPerInchMercury, 1, 460, false};
/// Boost in kPa, the barometer in millibars, degrees Celsius. The fitted offset is no kelvin.
inline constexpr AirUnits kMetricAir{1, 10, 237.8, true};

/// The air at a compressor: what the screen's fields hold, in its units.
struct BlowerAir {
  AirUnits units = kInchAir;
  double boost = 0;
  double barometer = 0;
  double temperature = 0;  ///< at the inlet

  double Absolute(double degrees) const { return degrees + units.absoluteZero; }
  /// The pressure outside, and that of the compressed air, in one unit.
  double Outside() const { return barometer * units.barometerToAir; }
  double Compressed() const { return boost * units.boostToAir + Outside(); }
};

/// Pressure behind the compressor to that before it. Not finite at a barometer of 0.
double PressureRatio(const BlowerAir& air);

/// Temperature of compressed air, in the units of the inlet's.
/// @param efficiency  of the compressor, as a fraction; not finite at 0
double CompressedTemperature(const BlowerAir& air, double pressureRatio, double efficiency);

/// Density behind the compressor to that before it, by the law of ideal gases.
/// @param outletTemperature  behind the compressor
double BlowerDensityRatio(const BlowerAir& air, double outletTemperature);

/// The part of the heat of compression that an intercooler takes away. Not finite for air that
/// comes in as warm as the outside.
double IntercoolerEfficiency(double inTemperature, double outTemperature, double outside);

/// Temperature behind an intercooler: the inverse of IntercoolerEfficiency.
double IntercoolerOutlet(double inTemperature, double efficiency, double outside);

/// Density behind an intercooler to that before it.
/// @param pressureLoss  in the unit of the boost
double IntercoolerDensityRatio(const BlowerAir& air, double inTemperature, double outTemperature,
                               double pressureLoss);

/// An engine as it takes air.
struct AirConsumer {
  double cubicInches = 0;
  bool fillsEachTurn = false;  ///< a two-stroke or rotary: its whole size every revolution

  /// Air of all compressors together at their inlet, in cubic feet a minute.
  double FlowCfm(double rpm, double volumetricEfficiency, double densityRatio) const;
};

/// Pounds in a cubic foot of air, from 0.0765 at 59 degrees and 29.92 inches.
/// @param fahrenheit  above -460
double PoundsPerCubicFoot(double inchesMercury, double fahrenheit);

/// Horsepower that an air flow feeds. @param bsac  pounds of air an hour and horsepower
double HorsepowerOfAir(double poundsPerMinute, double bsac);

/// A table of a value by RPM: a row every 500 RPM from 1000 on.
inline constexpr double kFirstTableRpm = 1000;
inline constexpr double kTableRpmStep = 500;
inline constexpr int kRpmTableRows = 54;

/// The value of such a table at an RPM: between two rows in proportion, beyond the ends the row
/// at the end.
double TableValueAt(std::span<const double, kRpmTableRows> rows, double rpm);

}  // namespace veldox
