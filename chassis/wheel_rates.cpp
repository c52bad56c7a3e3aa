#include "chassis/wheel_rates.h"

#include <cmath>

#include "core/numbers.h"

namespace veldox {

namespace {

/// Cycles a minute of a weight that presses its spring by one inch.
constexpr double kCyclesPerMinute = 187.8;
constexpr double kDegreesPerRadian = 180 / kPi;
constexpr double kInchesPerFoot = 12;

}  // namespace

double WheelRate(double rate, double move) {
  return move * move * rate;
}

double SpringRateForWheel(double wheelRate, double move) {
  return wheelRate / (move * move);
}

double SuspensionFrequency(double wheelRate, double sprungWeight) {
  return kCyclesPerMinute * std::sqrt(wheelRate / sprungWeight);
}

double WheelRateForFrequency(double frequency, double sprungWeight) {
  const double ratio = frequency / kCyclesPerMinute;
  return ratio * ratio * sprungWeight;
}

double StaticDeflection(double wheelRate, double sprungWeight) {
  return sprungWeight / wheelRate;
}

double RollStiffness(double trackWidth, double leftSpring, double rightSpring, double leftBar,
                     double rightBar) {
  const double square = trackWidth * trackWidth;
  const double springs =
      (square / (2 * kDegreesPerRadian * kInchesPerFoot)) * ((leftSpring + rightSpring) / 2);
  const double bar = (square / (kDegreesPerRadian * kInchesPerFoot)) * ((leftBar + rightBar) / 2);
  return springs + bar;
}

double MotionRatio(double length1, double length2, double angle) {
  // The spring takes the part of the arm's way that goes along it.
  return (length1 / length2) * std::cos((90 - angle) * (kPi / 180));
}

}  // namespace veldox
