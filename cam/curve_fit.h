#pragma once

#include <functional>
#include <vector>

namespace veldox {

struct CurvePoint {
  double x = 0;
  double y = 0;
};

/// How a curve is laid through points.
enum class FitMethod {
  Poly,          ///< a polynomial by least squares: near the points
  Spline,        ///< a cubic spline with not-a-knot ends: through the points, smoothly
  SplineInterp,  ///< cubics without overshoot: through the points, never beyond two neighbours
};

/// A curve through points.
struct FittedCurve {
  std::function<double(double x)> at;
  /// Of a polynomial, by ascending powers of x; empty for others.
  std::vector<double> coefficients;
};

inline constexpr const char* kTooFewPoints = "Not enough data points -- Entry more and Retry";
inline constexpr const char* kNotAscending = "Input data points are not ascending";
/// Of the first two points.
inline constexpr const char* kNotAscendingAtStart = "Input data points are not ascending 0";

/// The fewest points of a spline.
inline constexpr int kFewestSplinePoints = 3;
inline constexpr int kLowestDegree = 3;
inline constexpr int kHighestDegree = 9;
inline constexpr int kUsualDegree = 5;

/// Lays a curve through points.
/// @param points  by ascending x; a polynomial takes them in any order
/// @param degree  of the polynomial; points of fewer different x give a lower one
/// @throws CommandError (InvalidArgument) with one of the three messages
FittedCurve FitCurve(std::vector<CurvePoint> points, FitMethod method, int degree = kUsualDegree);

}  // namespace veldox
