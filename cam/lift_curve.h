#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "cam/motion_laws.h"

namespace veldox {

/// Lifts degree by degree.
struct LiftCurve {
  std::vector<double> lifts;
  std::size_t nose = 0;  ///< index of the last record of the opening flank
};

/// The size of a lobe.
struct LobeSize {
  double openHalf = 0;   ///< degrees from the base circle to the nose
  double closeHalf = 0;  ///< degrees from the nose to the base circle
  double step = 0;       ///< degrees between records, above 0
};

/// How many whole steps go into a length. Lengths that are a step's multiple but for the last
/// digits count as such.
/// @param step  above 0
double WholeSteps(double length, double step);

/// How many records a lobe has: from its first zero to the last one above the closing zero,
/// which is not counted.
double RecordCount(const LobeSize& size);

/// Lift at a distance in degrees.
using LiftAt = std::function<double(double degrees)>;

/// A lobe record by record. The opening flank goes up from the base circle to the nose, or short
/// of it where the step does not divide it; the closing flank begins a step beyond the nose.
/// @param opening  lift by the degrees since the base circle was left
/// @param closing  lift by the degrees that are left to the base circle
LiftCurve LobeOf(const LobeSize& size, const LiftAt& opening, const LiftAt& closing);

/// A lobe by a motion law. @param lift  at the nose
LiftCurve LobeOf(const LobeSize& size, const MotionLaw& law, double lift);
/// A lobe by a law of unit rise over a flank.
LiftCurve LobeOf(const LobeSize& size, const std::function<double(double x)>& law, double lift);

/// The steepest rise or fall between two records, the base circle at both ends included, in lift
/// by degree.
double PeakVelocity(const LiftCurve& curve, double step);

/// The area under a lobe, in lift times degrees.
double LobeArea(const LiftCurve& curve, double step);

/// A rising ramp that takes up the lash: height * (d / length) ^ exponent.
/// @param length  degrees
std::vector<double> LashRamp(double height, double length, double step, int exponent);
/// A rising ramp by a rate: each record adds d ^ (exponent - 1) * rate * step / 6.
std::vector<double> LashRampByRate(double rate, double length, double step, int exponent);

/// How far the contact of a flat tappet stays inside its edge.
inline constexpr double kTappetMargin = 0.01;  // inches
inline constexpr double kDegreesPerRadian = 180 / kPi;

/// The fastest lift in inches by cam degree at which a flat tappet's contact stays on its face.
/// @param diameter  of tappet or bucket, inches
constexpr double MaxTappetVelocity(double diameter) {
  return (diameter / 2 - kTappetMargin) / kDegreesPerRadian;
}
/// The smallest flat tappet or bucket, in inches, for a lift in inches by cam degree.
constexpr double MinTappetDiameter(double velocity) {
  return 2 * (kDegreesPerRadian * velocity + kTappetMargin);
}

}  // namespace veldox
