#include "cam/lift_curve.h"

#include <algorithm>
#include <cmath>

namespace veldox {

namespace {

/// Parts of a step by which a length may miss a multiple of it.
constexpr double kStepTolerance = 1e-9;

/// The walk of both kinds of ramp.
std::vector<double> DegreesOfRamp(double length, double step) {
  std::vector<double> degrees;
  const auto steps = static_cast<std::size_t>(WholeSteps(length, step));
  for (std::size_t i = 0; i <= steps; ++i) {
    degrees.push_back(std::min(static_cast<double>(i) * step, length));
  }
  return degrees;
}

/// Records of a closing flank.
double ClosingRecords(double half, double step) {
  return std::max(0.0, std::ceil(half / step - kStepTolerance) - 1);
}

/// A flank's lift by degrees.
LiftAt FlankOf(const std::function<double(double)>& law, double half, double lift) {
  return [&law, half, lift](double degrees) { return law(degrees / half) * lift; };
}

}  // namespace

double WholeSteps(double length, double step) {
  return std::floor(length / step + kStepTolerance);
}

double RecordCount(const LobeSize& size) {
  return WholeSteps(size.openHalf, size.step) + 1 + ClosingRecords(size.closeHalf, size.step);
}

LiftCurve LobeOf(const LobeSize& size, const LiftAt& opening, const LiftAt& closing) {
  LiftCurve curve;
  for (const double degrees : DegreesOfRamp(size.openHalf, size.step)) {
    curve.lifts.push_back(opening(degrees));
  }
  curve.nose = curve.lifts.size() - 1;
  const auto records = static_cast<std::size_t>(ClosingRecords(size.closeHalf, size.step));
  for (std::size_t i = 1; i <= records; ++i) {
    curve.lifts.push_back(closing(size.closeHalf - static_cast<double>(i) * size.step));
  }
  return curve;
}

LiftCurve LobeOf(const LobeSize& size, const std::function<double(double)>& law, double lift) {
  return LobeOf(size, FlankOf(law, size.openHalf, lift), FlankOf(law, size.closeHalf, lift));
}

LiftCurve LobeOf(const LobeSize& size, const MotionLaw& law, double lift) {
  const double atNose = law.span == LawSpan::Duration ? 0.5 : 1;
  return LobeOf(
      size, [&](double x) { return law.lift(x * atNose); }, lift);
}

double PeakVelocity(const LiftCurve& curve, double step) {
  double fastest = 0;
  double before = 0;
  for (const double lift : curve.lifts) {
    fastest = std::max(fastest, std::abs(lift - before));
    before = lift;
  }
  return std::max(fastest, std::abs(before)) / step;
}

double LobeArea(const LiftCurve& curve, double step) {
  double sum = 0;
  for (const double lift : curve.lifts) sum += lift;
  return sum * step;
}

std::vector<double> LashRamp(double height, double length, double step, int exponent) {
  std::vector<double> lifts = DegreesOfRamp(length, step);
  for (double& lift : lifts) lift = height * std::pow(lift / length, exponent);
  return lifts;
}

std::vector<double> LashRampByRate(double rate, double length, double step, int exponent) {
  std::vector<double> lifts = DegreesOfRamp(length, step);
  double sum = 0;
  for (double& lift : lifts) {
    sum += std::pow(lift, exponent - 1) * rate * step / 6;
    lift = sum;
  }
  return lifts;
}

}  // namespace veldox
