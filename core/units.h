#pragma once

#include <string_view>

namespace veldox {

inline constexpr double kMillimetresPerInch = 25.4;
inline constexpr double kMetresPerFoot = 0.3048;
inline constexpr double kFeetPerMetre = 3.280839895;
inline constexpr double kCubicInchesPerCc = 0.061023744;
inline constexpr double kKilowattsPerHorsepower = 0.745701;
inline constexpr double kNewtonsPerPound = 4.448222;
inline constexpr double kNewtonMetresPerFootPound = 1.3558179;
inline constexpr double kGramsPerPound = 453.5923696;
inline constexpr double kMillibarsPerInchMercury = 33.8638867;
/// Centimetres of mercury in a pound a square inch: the unit of gauges in metric.
inline constexpr double kGaugeUnitsPerPsi = 5.171507;
inline constexpr double kKilogramsPerPound = 0.4535923696;
inline constexpr double kKilometresPerMile = 1.609344;
inline constexpr double kMetreKilogramsPerFootPound = 0.13825499407704847;
inline constexpr double kBarPerPsi = 0.0689475729;
inline constexpr double kKilopascalsPerPsi = 6.89475729;
inline constexpr double kPsiPerInchMercury = 0.4911542;
/// What the atmosphere weighs where no barometer tells it.
inline constexpr double kStandardAtmospherePsi = 14.69595;
/// Gravity.
inline constexpr double kMetresASecondSquared = 9.80665;
inline constexpr double kFeetASecondSquared = 32.17405;
/// Horsepower of one foot pound at this RPM: torque is horsepower times it by RPM.
inline constexpr double kRpmOfEqualTorqueAndPower = 5252;

/// How a value changes between inches, pounds and Fahrenheit and the metric units.
struct UnitRule {
  double (*toMetric)(double);
  double (*toInches)(double);

  double Convert(double value, bool metric) const {
    return metric ? toMetric(value) : toInches(value);
  }
};

inline constexpr UnitRule kLengthRule{[](double inches) { return inches * kMillimetresPerInch; },
                                      [](double mm) { return mm * (1 / kMillimetresPerInch); }};
inline constexpr UnitRule kAreaRule{
    [](double inches) { return inches * (kMillimetresPerInch * kMillimetresPerInch); },
    [](double mm) { return mm / (kMillimetresPerInch * kMillimetresPerInch); }};
/// Of a port or a piston: square centimetres in metric.
inline constexpr double kSquareCentimetresPerSquareInch = 6.4516;
inline constexpr UnitRule kPortAreaRule{
    [](double inches) { return inches * kSquareCentimetresPerSquareInch; },
    [](double cm) { return cm / kSquareCentimetresPerSquareInch; }};
inline constexpr double kCcPerCubicInch =
    kMillimetresPerInch * kMillimetresPerInch * kMillimetresPerInch / 1000;
inline constexpr UnitRule kVolumeRule{[](double inches) { return inches * kCcPerCubicInch; },
                                      [](double cc) { return cc / kCcPerCubicInch; }};
inline constexpr UnitRule kSurfaceSpeedRule{[](double feet) { return feet * kMetresPerFoot; },
                                            [](double metres) { return metres * kFeetPerMetre; }};
inline constexpr UnitRule kPistonSpeedRule{[](double feet) { return feet * kMetresPerFoot; },
                                           [](double metres) { return metres / kMetresPerFoot; }};
inline constexpr UnitRule kPowerRule{[](double hp) { return hp * kKilowattsPerHorsepower; },
                                     [](double kw) { return kw / kKilowattsPerHorsepower; }};
inline constexpr UnitRule kBarometerRule{
    [](double inHg) { return inHg * kMillibarsPerInchMercury; },
    [](double mbar) { return mbar * (1 / kMillibarsPerInchMercury); }};
inline constexpr UnitRule kGaugePressureRule{
    [](double psi) { return psi * kGaugeUnitsPerPsi; },
    [](double units) { return units * (1 / kGaugeUnitsPerPsi); }};

/// Engine sizes where the metric screen works with the rounded number of cubic inches in a cc.
inline constexpr UnitRule kEngineSizeRule{[](double inches) { return inches / kCubicInchesPerCc; },
                                          [](double cc) { return cc * kCubicInchesPerCc; }};
inline constexpr UnitRule kWeightRule{[](double lb) { return lb * kKilogramsPerPound; },
                                      [](double kg) { return kg / kKilogramsPerPound; }};
inline constexpr UnitRule kRoadSpeedRule{[](double mph) { return mph * kKilometresPerMile; },
                                         [](double kmh) { return kmh / kKilometresPerMile; }};
inline constexpr UnitRule kFeetRule{[](double feet) { return feet * kMetresPerFoot; },
                                    [](double metres) { return metres / kMetresPerFoot; }};
inline constexpr UnitRule kTorqueRule{
    [](double footPounds) { return footPounds * kMetreKilogramsPerFootPound; },
    [](double metreKg) { return metreKg / kMetreKilogramsPerFootPound; }};
inline constexpr UnitRule kMeanPressureRule{[](double psi) { return psi * kBarPerPsi; },
                                            [](double bar) { return bar / kBarPerPsi; }};

inline constexpr UnitRule kBoostPressureRule{[](double psi) { return psi * kKilopascalsPerPsi; },
                                             [](double kpa) { return kpa / kKilopascalsPerPsi; }};

/// Temperature in degrees Celsius.
inline constexpr double CelsiusOf(double fahrenheit) {
  return (fahrenheit - 32) * 5 / 9;
}
/// Temperature in degrees Fahrenheit.
inline constexpr double FahrenheitOf(double celsius) {
  return celsius * 9 / 5 + 32;
}
inline constexpr UnitRule kTemperatureRule{&CelsiusOf, &FahrenheitOf};

/// What a field measures; the face shows the unit's sign beside it.
enum class Unit {
  None,
  Length,
  Area,
  Volume,
  Cc,  ///< cc in both modes
  PistonSpeed,
  SurfaceSpeed,
  Power,
  Degrees,
  Grams,
  RevolutionsPerMinute,
  CubicInches,
  Barometer,
  GaugePressure,
  Temperature,
  Percent,
  SpringRate,
  Modulus,             ///< of elasticity or rigidity
  Inches,              ///< in both modes
  Altitude,            ///< feet in both modes
  PoundsPerCubicFoot,  ///< in both modes
  GrainsPerPound,      ///< in both modes
  Weight,
  RoadSpeed,
  MilesPerHour,  ///< in both modes
  Torque,
  MeanPressure,
  BoostPressure,  ///< above the atmosphere's
  Seconds,
  Feet,  ///< lengths on the road
  Miles,
  LengthPerDegree,  ///< velocity of a cam's lift
  LengthDegrees,    ///< area under a cam's lift
  PortArea,
  // The same in both modes: of screens, or parts of them, that know no metric units.
  SquareInches,
  Horsepower,
  Psi,
  Fahrenheit,
  InchesMercury,
  InchesWater,
  CubicFeetPerMinute,
  PoundsPerHour,
  KilogramsPerSecond,
  GramsPerMinute,
  CcPerMinute,
  GallonsPerHour,
  PoundsPerHorsepowerHour,
  Milliseconds,
  FeetPerSecond,
};

/// The sign of a unit as shown beside a field, in inches or in metric mode.
constexpr std::string_view UnitSign(Unit unit, bool metric) {
  switch (unit) {
    case Unit::None: return "";
    case Unit::Length: return metric ? "mm" : "in";
    case Unit::Area: return metric ? "sq mm" : "sq in";
    case Unit::Volume: return metric ? "cc" : "cu in";
    case Unit::Cc: return "cc";
    case Unit::PistonSpeed: return metric ? "m/min" : "ft/min";
    case Unit::SurfaceSpeed: return metric ? "m/s" : "ft/s";
    case Unit::Power: return metric ? "kW" : "HP";
    case Unit::Degrees: return "deg";
    case Unit::Grams: return "g";
    case Unit::RevolutionsPerMinute: return "RPM";
    case Unit::CubicInches: return "cu in";
    case Unit::Barometer: return metric ? "mbar" : "in Hg";
    case Unit::GaugePressure: return metric ? "cm Hg" : "psi";
    case Unit::Temperature: return metric ? "deg C" : "deg F";
    case Unit::Percent: return "%";
    case Unit::SpringRate: return "lb/in";
    case Unit::Modulus: return "psi";
    case Unit::Inches: return "in";
    case Unit::Altitude: return "ft";
    case Unit::PoundsPerCubicFoot: return "lb/cu ft";
    case Unit::GrainsPerPound: return "gr/lb";
    case Unit::Weight: return metric ? "kg" : "lb";
    case Unit::RoadSpeed: return metric ? "km/h" : "MPH";
    case Unit::MilesPerHour: return "MPH";
    case Unit::Torque: return metric ? "m-kg" : "lb-ft";
    case Unit::MeanPressure: return metric ? "bar" : "psi";
    case Unit::BoostPressure: return metric ? "kPa" : "psi";
    case Unit::Seconds: return "s";
    case Unit::Feet: return metric ? "m" : "ft";
    case Unit::Miles: return metric ? "km" : "mi";
    case Unit::LengthPerDegree: return metric ? "mm/deg" : "in/deg";
    case Unit::LengthDegrees: return metric ? "mm deg" : "in deg";
    case Unit::PortArea: return metric ? "sq cm" : "sq in";
    case Unit::SquareInches: return "sq in";
    case Unit::Horsepower: return "HP";
    case Unit::Psi: return "psi";
    case Unit::Fahrenheit: return "deg F";
    case Unit::InchesMercury: return "in Hg";
    case Unit::InchesWater: return "in H2O";
    case Unit::CubicFeetPerMinute: return "CFM";
    case Unit::PoundsPerHour: return "lb/hr";
    case Unit::KilogramsPerSecond: return "kg/s";
    case Unit::GramsPerMinute: return "g/min";
    case Unit::CcPerMinute: return "cc/min";
    case Unit::GallonsPerHour: return "gal/hr";
    case Unit::PoundsPerHorsepowerHour: return "lb/hp-hr";
    case Unit::Milliseconds: return "ms";
    case Unit::FeetPerSecond: return "ft/s";
  }
  return "";
}

/// How "Metric" converts a unit; null for those that are the same in both.
constexpr const UnitRule* RuleOf(Unit unit) {
  switch (unit) {
    case Unit::Length:
    case Unit::LengthPerDegree:
    case Unit::LengthDegrees: return &kLengthRule;
    case Unit::Area: return &kAreaRule;
    case Unit::PortArea: return &kPortAreaRule;
    case Unit::Volume: return &kVolumeRule;
    case Unit::PistonSpeed: return &kPistonSpeedRule;
    case Unit::SurfaceSpeed: return &kSurfaceSpeedRule;
    case Unit::Power: return &kPowerRule;
    case Unit::Barometer: return &kBarometerRule;
    case Unit::GaugePressure: return &kGaugePressureRule;
    case Unit::Temperature: return &kTemperatureRule;
    case Unit::Weight: return &kWeightRule;
    case Unit::RoadSpeed:
    case Unit::Miles: return &kRoadSpeedRule;
    case Unit::Feet: return &kFeetRule;
    case Unit::Torque: return &kTorqueRule;
    case Unit::MeanPressure: return &kMeanPressureRule;
    case Unit::BoostPressure: return &kBoostPressureRule;
    default: return nullptr;
  }
}

}  // namespace veldox
