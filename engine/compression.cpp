#include "engine/compression.h"

#include <cmath>

#include "core/numbers.h"
#include "core/units.h"
#include "engine/displacement.h"

namespace veldox {

namespace {

constexpr double kCubicMillimetresPerCc = 1000;
/// Steps of the dish solvers, whose fillet depends on what they look for.
constexpr int kDishRounds = 101;

/// Power of an engine by its ratio, up to a factor.
double FittedPower(double ratio) {
  return std::exp(-14.278697783 / ratio + 12.52666512 - 4.201130093 * std::log(ratio));
}

double DishBoreFor(double volume, double depth) {
  return 2 * std::sqrt(volume / (depth * kPi));
}

}  // namespace

double ToCc(double volume, bool metric) {
  return metric ? volume / kCubicMillimetresPerCc : volume / kCubicInchesPerCc;
}

double FromCc(double cc, bool metric) {
  return metric ? cc * kCubicMillimetresPerCc : cc * kCubicInchesPerCc;
}

double DiscVolume(double diameter, double height) {
  return PistonArea(diameter) * height;
}

double RingLandVolume(double bore, double landDiameter, double ringDepth) {
  return DiscVolume(bore, ringDepth) - DiscVolume(landDiameter, ringDepth);
}

double RatioOfVolumes(double swept, double clearance) {
  return (swept + clearance) / clearance;
}

double ClearanceForRatio(double swept, double ratio) {
  return swept / (ratio - 1);
}

double GasketThickness(double volume, double gasketBore) {
  return volume / PistonArea(gasketBore);
}

double HorsepowerGainOfRatio(double horsepower, double oldRatio, double newRatio) {
  const double byRatio =
      ((newRatio / oldRatio - 1) / (oldRatio * oldRatio * newRatio)) * horsepower * 255;
  const double byFit = (FittedPower(oldRatio) - FittedPower(newRatio)) * horsepower / 100 * 1.5;
  return (byRatio + byFit) / 2;
}

Dish WithFittingRadius(Dish dish) {
  if (dish.radius > dish.depth) dish.radius = dish.depth;
  return dish;
}

double DishBottomCorner(const Dish& dish) {
  const double square = dish.radius * dish.radius;
  return (square - square * kPi / 4) * dish.bore * kPi;
}

double DishVolume(const Dish& dish) {
  return DiscVolume(dish.bore, dish.depth) - DishBottomCorner(dish);
}

Dish DishWithDepthFor(double volume, Dish dish) {
  const double area = PistonArea(dish.bore);
  dish.depth = volume / area;
  if (dish.radius == 0) return dish;
  if (dish.depth < dish.radius) dish.depth = dish.radius;
  for (int round = 0; round < kDishRounds; ++round) {
    dish = WithFittingRadius(dish);
    dish.depth = (volume + DishBottomCorner(dish)) / area;
  }
  return dish;
}

Dish DishWithBoreFor(double volume, Dish dish) {
  dish.bore = DishBoreFor(volume, dish.depth);
  if (dish.radius == 0) return dish;
  dish = WithFittingRadius(dish);
  for (int round = 0; round < kDishRounds; ++round) {
    dish.bore = DishBoreFor(volume + DishBottomCorner(dish), dish.depth);
  }
  return dish;
}

}  // namespace veldox
