#pragma once

namespace veldox {

/// The volume budget of one cylinder: what forms the clearance volume over the piston at the top,
/// and the compression ratio that comes of it. Lengths are in one unit throughout, inches or
/// millimetres, and volumes in its cube; a volume in cc says so.

/// cc of a volume in cubic inches, or in metric in cubic millimetres.
double ToCc(double volume, bool metric);

/// The volume in cubic inches, or in metric in cubic millimetres, of cc.
double FromCc(double cc, bool metric);

/// Volume of a round disc, such as a cylinder's stroke, a gasket's hole or the deck clearance.
double DiscVolume(double diameter, double height);

/// Volume of the gap between bore and piston above the top ring.
double RingLandVolume(double bore, double landDiameter, double ringDepth);

/// What stands over the piston at top dead centre, in cc.
struct ClearanceVolumes {
  double chamber = 0;
  double dome = 0;  ///< of the piston; negative for a dish
  double gasket = 0;
  double deck = 0;  ///< negative with the piston above the deck
  double ring = 0;

  /// All but the chamber.
  double WithoutChamber() const { return gasket + deck + ring - dome; }
  /// All but the dome.
  double WithoutDome() const { return gasket + deck + ring + chamber; }
  double Total() const { return chamber - dome + gasket + deck + ring; }
};

/// Compression ratio of a swept and a clearance volume. Not finite without clearance.
double RatioOfVolumes(double swept, double clearance);

/// Clearance volume that gives a ratio. Not finite at a ratio of 1.
double ClearanceForRatio(double swept, double ratio);

/// Compressed thickness of a head gasket from its volume. Not finite without a bore.
double GasketThickness(double volume, double gasketBore);

/// Horsepower that another compression ratio may gain, the mean of two rules of thumb.
/// Not finite for ratios that are not above 0.
double HorsepowerGainOfRatio(double horsepower, double oldRatio, double newRatio);

/// A round dish in a piston crown, with a fillet round its bottom.
struct Dish {
  double bore = 0;
  double depth = 0;
  double radius = 0;  ///< of the fillet
};

/// The dish with a radius that is no greater than its depth.
Dish WithFittingRadius(Dish dish);

/// What the fillet takes from the dish with a flat bottom.
double DishBottomCorner(const Dish& dish);

double DishVolume(const Dish& dish);

/// The dish of a given volume, bore and radius; its depth is found. A radius that is greater than
/// the depth becomes the depth. Not finite without a bore.
Dish DishWithDepthFor(double volume, Dish dish);

/// The dish of a given volume, depth and radius; its bore is found, its radius limited as above.
/// Not finite without a depth.
Dish DishWithBoreFor(double volume, Dish dish);

}  // namespace veldox
