#include "vehicle/road_load.h"

namespace veldox {

namespace {

constexpr double kLeastPressure = 0.1;  // what is not above it is a density
constexpr double kStandardPressure = 29.92126;
constexpr double kStandardDensity = 0.076501;

}  // namespace

double TrackDensityFactor(double track) {
  return track > kLeastPressure ? track / kStandardPressure : track / kStandardDensity;
}

double AeroHorsepower(double mph, double dragCoefficient, double area, double track,
                      double headWind) {
  const double airSpeed = mph + headWind;
  return airSpeed * airSpeed * mph * dragCoefficient * area / 146625 * TrackDensityFactor(track);
}

double RollingHorsepower(double weight, double resistance, double mph) {
  return weight * resistance * mph / 375;
}

double FrontalAreaOf(double width, double height) {
  constexpr double kSquareInchesPerSquareFoot = 144;
  return (width * height / kSquareInchesPerSquareFoot) * 0.8;
}

}  // namespace veldox
