#include "twostroke/port_timing.h"

#include <cmath>
#include <limits>

#include "core/numbers.h"
#include "engine/piston_motion.h"

namespace veldox {

double PortDistance(double stroke, double rodLength, double openDegrees) {
  return PistonTravelAt(CrankSlider{stroke / 2, rodLength, 0}, openDegrees);
}

double PortOpenDegrees(double stroke, double rodLength, double distance) {
  const double radius = stroke / 2;
  const double height = rodLength + radius - distance;
  const double cosine =
      (height * height + radius * radius - rodLength * rodLength) / (height * 2 * radius);
  // At the ends of the stroke the quotient may be rounded to either side of 1.
  constexpr double kLastBits = 8 * std::numeric_limits<double>::epsilon();
  if (std::abs(cosine - 1) <= kLastBits) return 0;
  if (std::abs(cosine + 1) <= kLastBits) return 180;
  if (!(std::abs(cosine) < 1)) return std::numeric_limits<double>::quiet_NaN();
  return ArcCos(cosine) * 180 / kPi;
}

double DynamicRatio(const TrappedCylinder& cylinder, double compressionRatio) {
  return (cylinder.exhaustDistance - cylinder.deckClearance) * (compressionRatio - 1) /
             cylinder.stroke +
         1;
}

double RatioForDynamicRatio(const TrappedCylinder& cylinder, double dynamicRatio) {
  return (dynamicRatio - 1) * cylinder.stroke /
             (cylinder.exhaustDistance - cylinder.deckClearance) +
         1;
}

double ExhaustDistanceForRatios(const TrappedCylinder& cylinder, double compressionRatio,
                                double dynamicRatio) {
  return (dynamicRatio - 1) * cylinder.stroke / (compressionRatio - 1) + cylinder.deckClearance;
}

TimeAreas TargetTimeAreas(double meanPressureBar) {
  const double b = meanPressureBar;
  return {((b + 1.528) / 77.4 + (b * 11.903 + 37.725) / 1000) / 2,
          ((b + 5.975) / 0.105 + (b * 8.3548 + 69.102)) / 2000,
          ((b - 1.75) / 0.8187 + (b * 1.0383 + 0.5684)) / 2000,
          ((b + 9.66) / 0.24 + 2 * (b * 5.9181 + 26.06)) / 3000};
}

}  // namespace veldox
