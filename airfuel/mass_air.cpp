#include "airfuel/mass_air.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "airfuel/airflow.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr std::array<double, 7> kStoichiometric{14.7, 9.77, 9.0, 6.4, 14.6, 15.5, 17.2};

/// Joules that a kilogram of air takes up for a kelvin, over its change of volume.
constexpr double kGasConstantOfAir = 287;
constexpr double kCcPerCubicFoot = 28316.84659;
/// Pounds of a cubic foot of standard air.
constexpr double kStandardAirDensity = 0.076333;

constexpr double kFallAbovePeak = 1.275;
constexpr double kRiseBelowPeak = 0.75;

}  // namespace

double StoichiometricRatio(int fuel) {
  return kStoichiometric.at(static_cast<std::size_t>(fuel));
}

InletAir InletAirOf(double fahrenheit, double inchesMercury, double boost) {
  constexpr double kZeroCelsius = 273.15;
  return {(fahrenheit - 32) * (5.0 / 9) + kZeroCelsius,
          (inchesMercury * kPsiPerInchMercury + boost) * kKilopascalsPerPsi * 1000};
}

double SweptM3PerSec(double cubicInches, double rpm) {
  return cubicInches * rpm / kSweptPerCubicFoot * kCcPerCubicFoot / 60000000;
}

double AirKgPerSec(double swept, const InletAir& air, double volumetricEfficiency) {
  return swept * air.AirPressurePa / (kGasConstantOfAir * air.AirDensityK) * volumetricEfficiency;
}

double PoundsPerHourOf(double kilogramsPerSecond) {
  return kilogramsPerSecond * 3600 / kKilogramsPerPound;
}

double KilogramsPerSecondOf(double poundsPerHour) {
  return poundsPerHour / 3600 * kKilogramsPerPound;
}

double VolumetricEfficiencyOf(double poundsPerHour, double swept, const InletAir& air) {
  return KilogramsPerSecondOf(poundsPerHour) /
         (swept * air.AirPressurePa / (kGasConstantOfAir * air.AirDensityK));
}

double RpmOfMassAirFlow(double poundsPerHour, double cubicInches, double volumetricEfficiency,
                        const InletAir& air) {
  return (KilogramsPerSecondOf(poundsPerHour) / volumetricEfficiency * kGasConstantOfAir *
          air.AirDensityK / air.AirPressurePa * 1000000 * 60) /
         (cubicInches * kCcPerCubicFoot / kSweptPerCubicFoot);
}

double StandardCubicFeet(double poundsPerHour) {
  return poundsPerHour / (60 * kStandardAirDensity);
}

double VolumetricEfficiencyAt(double rpm, double peakRpm, double peakEfficiency) {
  return peakEfficiency * std::pow(peakRpm / rpm, rpm > peakRpm ? kFallAbovePeak : kRiseBelowPeak);
}

}  // namespace veldox
