#pragma once

namespace veldox {

/// What the weather does to an engine. Pressures are in inches of mercury, temperatures in degrees
/// Fahrenheit, altitudes in feet and humidities in percent, unless a name says otherwise.
///
/// The constants are those of the rules themselves. Near ones differ on purpose: 460 and 459.67
/// for absolute zero, 273 and 273.15, 0.378 and 0.379 for the weight of water in air.

/// Air as an engine takes it in.
struct Air {
  double pressure = 0;  ///< of the barometer, not corrected to sea level
  double temperature = 0;
  double vaporPressure = 0;  ///< the part of the pressure that is water
};

/// The air that altitudes and the density in percent are counted from.
struct StandardAir {
  double pressure = 29.92;
  double temperature = 59;
};

/// Pressure of water in saturated air, by a Magnus formula. Not finite at the formula's pole of
/// -237.7 degrees Celsius and below it.
double SaturationVaporPressure(double celsius);

/// Pressure of water in air of a relative humidity.
/// @param last  what stays where the humidity is 0 or less
double VaporPressureAt(double humidity, double saturation, double last);

/// The proportion of two absolute temperatures, by which the mass of air changes. Not finite from
/// 460 degrees below zero down.
double TemperatureRatio(double before, double after);

// Horsepower that a change of one quantity brings, by rules of thumb.

/// By their TemperatureRatio.
double HorsepowerGainOfTemperature(double horsepower, double before, double after);
/// By a 2500th for each percent of humidity less.
double HorsepowerGainOfHumidity(double horsepower, double before, double after);
/// By the pressures. Not finite for pressures that are not above 0.
double HorsepowerGainOfBarometer(double horsepower, double before, double after);
/// By 3.5 % for each 1000 feet less.
double HorsepowerGainOfAltitude(double horsepower, double before, double after);

/// The temperature at which air of that vapor pressure is saturated: the inverse of
/// SaturationVaporPressure. Not finite without water.
double DewPoint(double vaporPressure);

// What follows of air is not finite where there is none: at or below absolute zero, and where the
// vapor pressure is not below the barometer's.

/// Factors from measured horsepower to that in the standard air of each rule.
double J816Correction(const Air& air);
double J607FordCorrection(const Air& air);
double J607DtsCorrection(const Air& air);
/// J1349 without a share for friction: 29.23 in Hg of dry air and 77 degrees.
double J1349PlainCorrection(const Air& air);
/// J1349 with 85 % mechanical efficiency, from 29.31 in Hg of dry air and 77 degrees.
double J1349Correction(const Air& air);
/// J1349 of June 1990: the same from 29.235 in Hg.
double J1349Jun90Correction(const Air& air);

/// Factor from a measured quarter mile's time to that in standard air. @param correction  of power
double QuarterMileCorrection(double correction);

/// Density of the dry part of the air in percent of the standard's.
double AirDensityPercent(const Air& air, const StandardAir& standard);
/// Density of the air in pounds a cubic foot.
double AirDensity(const Air& air);
/// Altitude at which standard air has the density of this air, with the water weighed by a fit of
/// its pressure at the dew point. Air without water has no such share.
double DensityAltitude(const Air& air, const StandardAir& standard);
/// The barometer without the water.
double CorrectedBarometer(const Air& air);
/// Altitude at which standard air has a pressure.
double PressureAltitude(double pressure, const StandardAir& standard);
/// Density altitude of the dry part of the air.
double DryDensityAltitude(const Air& air, const StandardAir& standard);
/// Density altitude with the water weighed by its pressure.
double MoistDensityAltitude(const Air& air, const StandardAir& standard);
/// Water in grains for each pound of dry air.
double GrainsOfWater(const Air& air);
/// Temperature at which dry air would have the density of the dry part of this air.
double DryVirtualTemperature(const Air& air);
/// Temperature at which dry air would have the density of this air.
double MoistVirtualTemperature(const Air& air);

/// Pressure of standard air at an altitude: the inverse of PressureAltitude. Not finite beyond the
/// height at which the standard atmosphere ends, some 145,000 feet.
double BarometerAtAltitude(double altitude, const StandardAir& standard);

}  // namespace veldox
