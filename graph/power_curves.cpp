#include "graph/power_curves.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "core/error.h"
#include "core/numbers.h"

namespace veldox {

namespace {

constexpr int kFirstPolynomial = 5;  ///< types from here on are polynomials of degree six
constexpr double kTopOfTypes1To4 = 10000;
constexpr double kWalkStep = 5;

struct CurveConstants {
  double peakSpeed;
  double powerDivisor;
};

constexpr std::array<CurveConstants, kLastCurveType> kConstants = {{
    {8450, 1200},
    {8300, 1187.5},
    {8300, 1187},
    {8300, 1188.3},
    {9250, 945},
    {5500, 454.4},
    {5500, 454.4},
    {6300, 607.5},
}};

/// Coefficients of types 5 to 8 in rising powers.
constexpr std::array<std::array<double, 7>, 4> kPolynomials = {{
    {668831.27, -483.07043, 0.14434746, -2.2835705e-5, 2.0182187e-9, -9.4487038e-14, 1.8302308e-18},
    {-332.91625, 1.098885859, -0.00099424077, 4.4949464e-7, -1.0343154e-10, 1.1877344e-14,
     -5.4540345e-19},
    {1409.03095, -1.35742759, 0.00039221351, 5.0823535e-8, -4.2383156e-11, 7.2358098e-15,
     -4.1345892e-19},
    {-1495.9221, 2.14563149, -0.0012780671, 4.2071523e-7, -7.4536106e-11, 6.7631764e-15,
     -2.4934621e-19},
}};

constexpr std::array<ModelRange, 4> kPolynomialRanges = {{
    {7000, 10450},
    {3100, 6300},
    {3100, 6300},
    {3300, 7000},
}};

const CurveConstants& Constants(int type) {
  if (type < kFirstCurveType || type > kLastCurveType) {
    throw CommandError(ErrorKind::IndexOutOfRange, "Type of Curve may only be 1 Thru 8.");
  }
  return kConstants[static_cast<std::size_t>(type - 1)];
}

double Shape(int type, double x) {
  switch (type) {
    case 1: return 3627.16248366368 + -0.19029397547758 * x + -5.851512e10 / (x * x);
    case 2: return 1 / (0.004031132866486 + -7.61061847e-7 * x + 4.5371e-11 * x * x);
    case 3: return -4506.7698 + 1.3835755 * x + -8.4052988e-5 * x * x;
    case 4: return 1027.7167 + 161.171967610618 * std::cos(0.0011114925 * x + -2.8517494);
    default: break;
  }
  double power = 0;
  const auto& coefficients = kPolynomials[static_cast<std::size_t>(type - kFirstPolynomial)];
  for (std::size_t i = coefficients.size(); i-- > 0;) power = power * x + coefficients[i];
  return power;
}

/// How far below the peak types 1 to 4 begin, in RPM.
double ReachBelowPeak(double peakRpm) {
  if (peakRpm < 6500) return 1600;
  if (peakRpm < 9500) return 1800;
  if (peakRpm < 12500) return 2200;
  if (peakRpm < 15500) return 2600;
  return 3000;
}

}  // namespace

double ModelPeakSpeed(int type) {
  return Constants(type).peakSpeed;
}

double ModelHorsepower(int type, double modelSpeed, double peakHorsepower) {
  const CurveConstants& constants = Constants(type);
  return Shape(type, modelSpeed) * (peakHorsepower / constants.powerDivisor);
}

ModelRange ModelSpeeds(int type, double peakRpm) {
  const CurveConstants& constants = Constants(type);
  if (type >= kFirstPolynomial) {
    return kPolynomialRanges[static_cast<std::size_t>(type - kFirstPolynomial)];
  }
  const double scale = constants.peakSpeed / peakRpm;
  double low = (peakRpm - ReachBelowPeak(peakRpm)) * scale;
  // A slow peak would begin below standstill, or where its model gives no power.
  if (low <= 0 || Shape(type, low) <= 0) low = (peakRpm - peakRpm / 4) * scale;
  return {kWalkStep * Floor(low / kWalkStep), kTopOfTypes1To4};
}

}  // namespace veldox
