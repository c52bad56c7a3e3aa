#include "reference/weather.h"

#include <cmath>
#include <limits>

#include "core/units.h"

namespace veldox {

namespace {

// The Magnus formula.
constexpr double kMagnusFactor = 7.5;
constexpr double kMagnusCelsius = 237.7;
constexpr double kMagnusMillibars = 6.112;
constexpr double kMillibarsInVaporFormula = 33.8653;

constexpr double kRankineAtZero = 459.67;
constexpr double kRoundedRankineAtZero = 460;
/// What the standard atmosphere cools by, degrees a foot.
constexpr double kLapseRate = 0.00356616;

double NotANumber() {
  return std::numeric_limits<double>::quiet_NaN();
}

/// A divisor that stands for something real: 0 divides by zero, less is no number.
double NotBelowZero(double value) {
  return value < 0 ? NotANumber() : value;
}

/// An absolute temperature by the rounded zero of the dyno rules.
double RoundedRankine(double fahrenheit) {
  return NotBelowZero(fahrenheit + kRoundedRankineAtZero);
}

/// The air, or no numbers where there is none.
Air Existing(Air air) {
  if (air.vaporPressure > air.pressure || air.pressure <= 0 || air.temperature <= -kRankineAtZero) {
    air.pressure = NotANumber();
  }
  return air;
}

StandardAir Existing(StandardAir standard) {
  standard.pressure = NotBelowZero(standard.pressure);
  return standard;
}

double DryPressure(const Air& air) {
  return air.pressure - air.vaporPressure;
}

/// A pressure of the rules for dynos over that of the air.
double PressureFactor(double standardPressure, const Air& air) {
  return standardPressure / DryPressure(Existing(air));
}

double TemperatureFactor(double standardTemperature, const Air& air) {
  return RoundedRankine(air.temperature) / (standardTemperature + kRoundedRankineAtZero);
}

double FrictionCorrection(double standardPressure, const Air& air) {
  return 1.18 * PressureFactor(standardPressure, air) * std::pow(TemperatureFactor(77, air), 0.5) -
         0.18;
}

/// Height of the standard atmosphere down to a temperature of absolute zero.
double AtmosphereHeight(const StandardAir& standard) {
  return (kRankineAtZero + standard.temperature) / kLapseRate;
}

/// Density altitude by the pressure that weighs.
double AltitudeOfDensity(double pressure, double temperature, const StandardAir& standard) {
  const double densityPart = ((kRankineAtZero + standard.temperature) / standard.pressure) *
                             (pressure / (kRankineAtZero + temperature));
  return (1 - std::pow(densityPart, 1 / 4.256)) * AtmosphereHeight(standard);
}

/// Pressure of the water in millibars by the dew point in Kelvin.
double WaterPressureAtDewPoint(double kelvin) {
  const double power = 23.832241 - 5.02808 * (std::log(kelvin) / std::log(10)) -
                       1.3816e-7 * std::pow(10, 11.344 - 0.0303998 * kelvin) +
                       0.0081328 * std::pow(10, 3.49149 - 1302.8833 / kelvin) - 2949.076 / kelvin;
  return std::pow(10, power);
}

}  // namespace

double SaturationVaporPressure(double celsius) {
  // What a temperature in Fahrenheit leaves of the pole counts as the pole.
  constexpr double kNear = 1e-9;
  double abovePole = kMagnusCelsius + celsius;
  if (std::abs(abovePole) < kNear) abovePole = 0;
  const double power = (kMagnusFactor * celsius) / NotBelowZero(abovePole);
  return std::isfinite(power) ? (kMagnusMillibars * std::pow(10, power)) / kMillibarsInVaporFormula
                              : NotANumber();
}

double VaporPressureAt(double humidity, double saturation, double last) {
  return humidity > 0 ? (humidity / 100) * saturation : last;
}

double TemperatureRatio(double before, double after) {
  return RoundedRankine(before) / RoundedRankine(after);
}

double HorsepowerGainOfTemperature(double horsepower, double before, double after) {
  return TemperatureRatio(before, after) * horsepower - horsepower;
}

double HorsepowerGainOfHumidity(double horsepower, double before, double after) {
  return ((before - after) / 2500) * horsepower;
}

double HorsepowerGainOfBarometer(double horsepower, double before, double after) {
  return (NotBelowZero(after) / NotBelowZero(before)) * horsepower - horsepower;
}

double HorsepowerGainOfAltitude(double horsepower, double before, double after) {
  return ((before - after) / 1000) * horsepower * 0.035;
}

double DewPoint(double vaporPressure) {
  const double power = std::log10((vaporPressure * kMillibarsInVaporFormula) / kMagnusMillibars);
  return FahrenheitOf((kMagnusCelsius * power) / NotBelowZero(kMagnusFactor - power));
}

double J816Correction(const Air& air) {
  return PressureFactor(29.92, air) * TemperatureFactor(60, air);
}

double J607FordCorrection(const Air& air) {
  return std::pow(PressureFactor(29.92, air), 1.2) * std::pow(TemperatureFactor(60, air), 0.6);
}

double J607DtsCorrection(const Air& air) {
  return std::pow(TemperatureFactor(60, air), 0.5) * PressureFactor(29.92, air);
}

double J1349PlainCorrection(const Air& air) {
  return PressureFactor(29.23, air) * TemperatureFactor(77, air);
}

double J1349Correction(const Air& air) {
  return FrictionCorrection(29.31, air);
}

double J1349Jun90Correction(const Air& air) {
  return FrictionCorrection(29.235, air);
}

double QuarterMileCorrection(double correction) {
  return std::exp(std::log(correction) / 3);
}

double AirDensityPercent(const Air& air, const StandardAir& standard) {
  return 1 /
         (PressureFactor(Existing(standard).pressure, air) *
          TemperatureFactor(standard.temperature, air)) *
         100;
}

double AirDensity(const Air& given) {
  constexpr double kGasConstant = 287;
  constexpr double kMetricInPoundsPerCubicFoot = 1.22556 / 0.07651;
  const Air air = Existing(given);
  const double millibars = air.pressure * kMillibarsPerInchMercury;
  const double waterPart = (air.vaporPressure * kMillibarsPerInchMercury) / millibars;
  const double kelvin = CelsiusOf(air.temperature) + 273;
  const double virtualKelvin = kelvin / (1 - waterPart * (1 - 0.622));
  return ((millibars * 100) / (virtualKelvin * kGasConstant)) / kMetricInPoundsPerCubicFoot;
}

double DensityAltitude(const Air& given, const StandardAir& givenStandard) {
  const Air air = Existing(given);
  const StandardAir standard = Existing(givenStandard);
  const double kelvin = CelsiusOf(air.temperature) + 273.15;
  const double millibars = (1013.777 / standard.pressure) * air.pressure;
  const double water =
      air.vaporPressure > 0
          ? WaterPressureAtDewPoint(CelsiusOf(DewPoint(air.vaporPressure)) + 273.15)
          : 0;
  const double virtualKelvin = kelvin / (1 - (water / millibars) * 0.379);
  return (1 - std::pow((0.28424 * millibars) / virtualKelvin, 0.235)) * AtmosphereHeight(standard);
}

double CorrectedBarometer(const Air& air) {
  return DryPressure(Existing(air));
}

double PressureAltitude(double pressure, const StandardAir& standard) {
  return (1 - std::pow(pressure / Existing(standard).pressure, 1 / 5.256)) *
         AtmosphereHeight(standard);
}

double DryDensityAltitude(const Air& given, const StandardAir& standard) {
  const Air air = Existing(given);
  return AltitudeOfDensity(DryPressure(air), air.temperature, Existing(standard));
}

double MoistDensityAltitude(const Air& given, const StandardAir& standard) {
  const Air air = Existing(given);
  return AltitudeOfDensity(air.pressure - 0.378 * air.vaporPressure, air.temperature,
                           Existing(standard));
}

double GrainsOfWater(const Air& given) {
  constexpr double kGrainsPerPound = 7000;
  const Air air = Existing(given);
  return ((0.622 * air.vaporPressure) / DryPressure(air)) * kGrainsPerPound;
}

double DryVirtualTemperature(const Air& given) {
  const Air air = Existing(given);
  return (kRankineAtZero + air.temperature) / (1 - air.vaporPressure / air.pressure) -
         kRankineAtZero;
}

double MoistVirtualTemperature(const Air& given) {
  const Air air = Existing(given);
  return (kRankineAtZero + air.temperature) / (1 - (0.378 * air.vaporPressure) / air.pressure) -
         kRankineAtZero;
}

double BarometerAtAltitude(double altitude, const StandardAir& standard) {
  return std::pow(1 - (kLapseRate * altitude) / (kRankineAtZero + standard.temperature), 5.256) *
         Existing(standard).pressure;
}

}  // namespace veldox
