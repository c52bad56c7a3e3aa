#pragma once

#include <cmath>

#include "core/numbers.h"

// How a cam lobe lifts. A law is the lift of a flank on unit rise: x goes from 0, where the flank
// leaves the base circle, to 1 at the nose, and the lift with it from 0 to 1.

namespace veldox {

/// What the place in a flank is measured by.
enum class LawSpan {
  Flank,     ///< x is 1 at the nose
  Duration,  ///< x is over both flanks together, .5 at the nose
};

/// A motion law by its name in lift files.
struct MotionLaw {
  const char* name;
  double (*lift)(double x);  ///< both without unit
  LawSpan span = LawSpan::Flank;
};

/// A polynomial of x whose terms begin with the power `first`.
/// @param coefficients  of ascending powers
template <std::size_t N>
constexpr double PolynomialFrom(int first, const double (&coefficients)[N], double x) {
  double sum = 0;
  for (std::size_t i = N; i-- > 0;) sum = sum * x + coefficients[i];
  for (int i = 0; i < first; ++i) sum *= x;
  return sum;
}

inline constexpr double kHalfPi = 1.570796326794895;
inline constexpr double kTwoPi = 6.28318530717958;

// clang-format off
inline constexpr MotionLaw kPolynomial3{"Polynomial 3th Degree", [](double x) { return PolynomialFrom(2, {3, -2}, x); }};
inline constexpr MotionLaw kPolynomial5{"Polynomial 5th Degree", [](double x) { return PolynomialFrom(3, {10, -15, 6}, x); }};
inline constexpr MotionLaw kPolynomial5N1{"Polynomial 5th Degree N1", [](double x) { return 1 - PolynomialFrom(2, {10, 0, -15, 8}, 1 - x) / 3; }};
inline constexpr MotionLaw kPolynomial5N2{"Polynomial 5th Degree N2", [](double x) { return PolynomialFrom(2, {10, 0, -15, 8}, x) / 3; }};
inline constexpr MotionLaw kPolynomial7{"Polynomial 7th Degree", [](double x) { return PolynomialFrom(4, {35, -84, 70, -20}, x); }};
inline constexpr MotionLaw kPolynomial9{"Polynomial 9th Degree", [](double x) { return PolynomialFrom(5, {126, -420, 540, -315, 70}, x); }};
inline constexpr MotionLaw kPolynomial11{"Polynomial 11th Degree", [](double x) { return PolynomialFrom(5, {336, -1890, 4740, -6615, 5320, -2310, 420}, x); }};
inline constexpr MotionLaw kPolynomial11Dwell{"Polynomial 11th Degree Dwell", [](double x) { return PolynomialFrom(5, {490, -2968, 7820, -11235, 9170, -4004, 728}, x); }};
inline constexpr MotionLaw kPolynomial345{"Polynomial 3-4-5", [](double x) { return PolynomialFrom(3, {20.0 / 3, -25.0 / 3, 8.0 / 3}, x); }};
inline constexpr MotionLaw kPolynomial3456{"Polynomial 3-4-5-6", [](double x) { return PolynomialFrom(3, {64, -192, 192, -64}, x); }, LawSpan::Duration};
inline constexpr MotionLaw kPolynomial34567D{"Polynomial 34567 D", [](double x) { return PolynomialFrom(3, {12.1, -25.5, 24.9, -14.7, 4.2}, x); }};
inline constexpr MotionLaw kPolynomial34567E{"Polynomial 34567 E", [](double x) { return PolynomialFrom(3, {5.35, 8.2, -35.74, 32.46, -9.27}, x); }};
inline constexpr MotionLaw kDoubleHarmonic1{"Double Harmonic 1", [](double x) { return std::pow(std::cos((1 - x) * kHalfPi), 4); }};
inline constexpr MotionLaw kDoubleHarmonic2{"Double Harmonic 2", [](double x) { return 1 - std::pow(std::cos(x * kHalfPi), 4); }};
inline constexpr MotionLaw kHarmonic{"Harmonic (Sinusoidal)", [](double x) { return 0.5 * (1 - std::cos(x * kPi)); }};
inline constexpr MotionLaw kCycloidal{"Cycloidal (Purdue)", [](double x) { return (x * kPi - 0.5 * std::sin(x * kTwoPi)) / kPi; }};
// clang-format on

/// The name of the law that has a ratio besides.
inline constexpr const char* kModifiedEllipseName = "Modified Ellipse";
/// Harmonic motion that a ratio above 0 makes steeper in the middle of the flank, and one below 0
/// flatter.
/// @param ratio  above -1 and below 1
inline double ModifiedEllipse(double x, double ratio) {
  const double sine = std::sin(x * kPi);
  return 0.5 * (1 - std::cos(x * kPi) / std::sqrt(1 - ratio * sine * sine));
}

/// The largest ratio of a modified ellipse that is used, without its sign.
inline constexpr double kLargestEllipseRatio = 0.9999;
inline constexpr double kUsualEllipseRatio = 0.005;

}  // namespace veldox
