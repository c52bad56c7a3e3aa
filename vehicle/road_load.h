#pragma once

namespace veldox {

/// What the pressure or density of the track's air makes of drag: 1 in standard air.
/// @param track  above 0.1 inches of mercury, else pounds a cubic foot
double TrackDensityFactor(double track);

/// Horsepower that the air takes of a car. @param mph  miles an hour  @param area  square feet
/// @param track  as TrackDensityFactor  @param headWind  miles an hour
double AeroHorsepower(double mph, double dragCoefficient, double area, double track,
                      double headWind = 0);

/// Horsepower that the tires take. @param weight  pounds  @param resistance  of the weight
double RollingHorsepower(double weight, double resistance, double mph);

/// Frontal area of a car in square feet, taken as four fifths of its outline.
/// @param width  inches  @param height  inches
double FrontalAreaOf(double width, double height);

}  // namespace veldox
