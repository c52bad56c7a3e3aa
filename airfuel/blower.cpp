#include "airfuel/blower.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace veldox {

namespace {

/// Cubic inches in a cubic foot, of which a four-stroke fills half its size every revolution.
constexpr double kCubicInchesPerCubicFoot = 1728;
constexpr double kFourStrokeDivisor = 3456;
constexpr double kStandardDensity = 0.0765;  ///< pounds in a cubic foot at the standard air
constexpr double kStandardInchesMercury = 29.92;
constexpr double kStandardFahrenheit = 59;
constexpr double kMinutesPerHour = 60;

}  // namespace

double BoostedHorsepower(double horsepower, double boostPsi) {
  return (boostPsi + kStandardAtmospherePsi) * horsepower / kStandardAtmospherePsi;
}

double BoostHorsepowerGain(double horsepower, double boostPsi) {
  return boostPsi * horsepower / kStandardAtmospherePsi;
}

double BoostForHorsepowerGain(double horsepower, double gain) {
  return ((horsepower + gain) / horsepower - 1) * kStandardAtmospherePsi;
}

double UnblownHorsepower(double horsepower, double boostPsi) {
  return horsepower * kStandardAtmospherePsi / (boostPsi + kStandardAtmospherePsi);
}

double EffectiveCompressionRatio(double compressionRatio, double boostPsi) {
  return (boostPsi + kStandardAtmospherePsi) * compressionRatio / kStandardAtmospherePsi;
}

double CompressionRatioForBoost(double unblownMost, double boostPsi) {
  return std::sqrt(kStandardAtmospherePsi) * unblownMost /
         std::sqrt(boostPsi + kStandardAtmospherePsi);
}

double BoostForEffectiveRatio(double effectiveRatio, double compressionRatio) {
  return (effectiveRatio / compressionRatio - 1) * kStandardAtmospherePsi;
}

double PressureRatio(const BlowerAir& air) {
  return air.Compressed() / air.Outside();
}

double CompressedTemperature(const BlowerAir& air, double pressureRatio, double efficiency) {
  const bool celsius = air.units.celsius;
  const double inlet = celsius ? FahrenheitOf(air.temperature) : air.temperature;
  const double outlet =
      (std::pow(pressureRatio, 0.283) - 1) * (inlet + kInchAir.absoluteZero) / efficiency + inlet;
  return celsius ? CelsiusOf(outlet) : outlet;
}

double BlowerDensityRatio(const BlowerAir& air, double outletTemperature) {
  return air.Absolute(air.temperature) / air.Absolute(outletTemperature) * PressureRatio(air);
}

double IntercoolerEfficiency(double inTemperature, double outTemperature, double outside) {
  return (inTemperature - outTemperature) / (inTemperature - outside);
}

double IntercoolerOutlet(double inTemperature, double efficiency, double outside) {
  return ((inTemperature - outside) * efficiency - inTemperature) * -1;
}

double IntercoolerDensityRatio(const BlowerAir& air, double inTemperature, double outTemperature,
                               double pressureLoss) {
  const double compressed = air.Compressed();
  return air.Absolute(inTemperature) / air.Absolute(outTemperature) *
         (compressed - pressureLoss * air.units.boostToAir) / compressed;
}

double AirConsumer::FlowCfm(double rpm, double volumetricEfficiency, double densityRatio) const {
  const double divisor = fillsEachTurn ? kCubicInchesPerCubicFoot : kFourStrokeDivisor;
  return cubicInches * rpm / divisor * volumetricEfficiency * densityRatio;
}

double PoundsPerCubicFoot(double inchesMercury, double fahrenheit) {
  return kStandardDensity * (inchesMercury / kStandardInchesMercury) *
         (kStandardFahrenheit + kInchAir.absoluteZero) / (fahrenheit + kInchAir.absoluteZero);
}

double HorsepowerOfAir(double poundsPerMinute, double bsac) {
  return poundsPerMinute * kMinutesPerHour / bsac;
}

double TableValueAt(std::span<const double, kRpmTableRows> rows, double rpm) {
  const double place =
      std::clamp((rpm - kFirstTableRpm) / kTableRpmStep, 0.0, double{kRpmTableRows - 1});
  const auto below = static_cast<std::size_t>(place);
  const double part = place - static_cast<double>(below);
  if (part == 0) return rows[below];
  return rows[below] + (rows[below + 1] - rows[below]) * part;
}

}  // namespace veldox
