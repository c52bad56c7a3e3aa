#pragma once

namespace veldox {

/// What air and fuel a four-stroke engine takes, by what it sweeps and the density of the air.

/// The air/fuel ratio at which a fuel burns completely, by weight.
/// @param fuel  0 gasoline, 1 E85, 2 ethanol, 3 methanol, 4 diesel, 5 propane, 6 natural gas
/// @throws std::out_of_range for any other
double StoichiometricRatio(int fuel);

/// The largest number that is taken for a lambda value; what is above is an air/fuel ratio.
inline constexpr double kLargestLambda = 1.5;

/// The air/fuel ratio that a lambda value, or a ratio as it stands, means.
/// @param stoichiometric  of the fuel
constexpr double AirFuelRatioOf(double lambdaOrRatio, double stoichiometric) {
  return lambdaOrRatio > kLargestLambda ? lambdaOrRatio : lambdaOrRatio * stoichiometric;
}

/// The air in the inlet.
struct InletAir {
  double AirDensityK;    ///< temperature, in kelvin
  double AirPressurePa;  ///< absolute, in pascal
};

/// The air in the inlet of an engine.
/// @param fahrenheit  temperature
/// @param inchesMercury  barometric pressure
/// @param boost  psi above it
InletAir InletAirOf(double fahrenheit, double inchesMercury, double boost);

/// Cubic metres of air in a second that a four-stroke engine sweeps.
double SweptM3PerSec(double cubicInches, double rpm);

/// Kilograms of air in a second.
/// @param swept  cubic metres in a second
/// @param volumetricEfficiency  a fraction
double AirKgPerSec(double swept, const InletAir& air, double volumetricEfficiency);

/// Pounds in an hour of a flow of kilograms in a second, and the reverse.
double PoundsPerHourOf(double kilogramsPerSecond);
double KilogramsPerSecondOf(double poundsPerHour);

/// The volumetric efficiency, a fraction, of an engine that takes a flow of air.
/// @param poundsPerHour  of air
/// @param swept  cubic metres in a second
double VolumetricEfficiencyOf(double poundsPerHour, double swept, const InletAir& air);

/// The speed in RPM at which an engine takes a flow of air.
/// @param poundsPerHour  of air
double RpmOfMassAirFlow(double poundsPerHour, double cubicInches, double volumetricEfficiency,
                        const InletAir& air);

/// Standard cubic feet of air in a minute of a flow of pounds in an hour: air of 60 degrees F and
/// 14.696 psi.
double StandardCubicFeet(double poundsPerHour);

/// The volumetric efficiency at a speed of an engine whose efficiency at its peak is known: it
/// falls faster above the peak's speed than it rises below.
double VolumetricEfficiencyAt(double rpm, double peakRpm, double peakEfficiency);

}  // namespace veldox
