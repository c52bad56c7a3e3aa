#include "airfuel/injectors.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "airfuel/airflow.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr double kExactGramsPerPound = 453.59237;
/// Of gasoline.
constexpr double kCcPerMinuteOfPoundPerHour = 10.51;
constexpr double kPoundsPerGallon = 6.2;
/// Cubic feet that a pound of air fills.
constexpr double kCubicFeetPerPound = 13.7;

/// Ratings that catalogues of injectors for gasoline engines commonly list, in pounds an hour.
constexpr std::array<double, 15> kStandardRatings{14, 17, 19, 21, 24,  30,  32, 36,
                                                  39, 42, 60, 80, 120, 160, 220};

}  // namespace

double CycleMs(double rpm) {
  return 1 / (rpm / 60) * 2 * 1000;
}

double FullPulse(double rpm) {
  return 2000 / (rpm / 60);
}

double GramsPerMinuteOf(double poundsPerHour) {
  return poundsPerHour * kExactGramsPerPound / 60;
}

double CcPerMinuteOf(double poundsPerHour) {
  return poundsPerHour * kCcPerMinuteOfPoundPerHour;
}

double FuelPumpFlowOf(double rating, double injectors, double dutyCycle) {
  return rating * injectors / kPoundsPerGallon * dutyCycle;
}

double RatingForHorsepower(double horsepower, double bsfc, double injectors, double dutyCycle) {
  return horsepower * bsfc / injectors / dutyCycle;
}

double HorsepowerOfInjectors(double rating, double ratedPressure, double pressure, double dutyCycle,
                             double injectors, double bsfc) {
  return RatingAtPressure(rating, ratedPressure, pressure) * dutyCycle * injectors / bsfc;
}

double RatingAtPressure(double rating, double ratedPressure, double pressure) {
  return std::pow(pressure / ratedPressure, 0.5) * rating;
}

double DutyAtPressure(double dutyCycle, double ratedPressure, double pressure) {
  return std::pow(ratedPressure / pressure, 0.5) * dutyCycle;
}

double PressureForRating(double wantedRating, double rating, double ratedPressure) {
  return (wantedRating / rating) * (wantedRating / rating) * ratedPressure;
}

double FuelFlowOf(double cubicInches, double rpm, double volumetricEfficiency,
                  double airFuelRatio) {
  return CarburetorFlow(cubicInches, rpm, volumetricEfficiency) *
         (60 / (airFuelRatio * kCubicFeetPerPound));
}

double ThrottleBodyFlowOf(double cubicInches, double rpm, double volumetricEfficiency) {
  return CarburetorFlow(cubicInches, rpm, volumetricEfficiency) * kThrottleBodyFactor;
}

double RatingForEngine(const InjectedEngine& engine, double dutyCycle) {
  return (engine.cubicInches * engine.rpm / kSweptPerCubicFoot) *
         ((engine.boost + kStandardAtmospherePsi) / kStandardAtmospherePsi) *
         engine.volumetricEfficiency *
         (60 / (engine.airFuelRatio * dutyCycle * engine.injectors * kCubicFeetPerPound));
}

double NextStandardRating(double rating) {
  const auto next = std::lower_bound(kStandardRatings.begin(), kStandardRatings.end(), rating);
  return next == kStandardRatings.end() ? 0 : *next;
}

}  // namespace veldox
