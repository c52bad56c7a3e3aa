#include "cam/curve_fit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/error.h"

namespace veldox {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

std::string RefusalOf(std::vector<CurvePoint> points, FitMethod method) {
  try {
    FitCurve(std::move(points), method);
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::InvalidArgument);
    return error.message();
  }
  return "not refused";
}

double Cubic(double x) {
  return 2 - 3 * x + 0.5 * x * x - 0.25 * x * x * x;
}

TEST(Poly, IsTheLineOfLeastSquares) {
  // By hand: the sums of squares are 5 and 5.5 around the middle (1.5, 2.75).
  const FittedCurve line = FitCurve({{0, 1}, {1, 3}, {2, 2}, {3, 5}}, FitMethod::Poly, 1);
  EXPECT_THAT(line.coefficients, ElementsAre(DoubleNear(1.1, 1e-13), DoubleNear(1.1, 1e-13)));
  EXPECT_NEAR(line.at(2.5), 3.85, 1e-13);
}

TEST(Poly, FindsThePolynomialThatItsPointsLieOn) {
  std::vector<CurvePoint> points;
  for (double x = -2; x <= 6; x += 0.5) points.push_back({x, Cubic(x)});
  const FittedCurve curve = FitCurve(points, FitMethod::Poly, 3);
  EXPECT_THAT(curve.coefficients, ElementsAre(DoubleNear(2, 1e-12), DoubleNear(-3, 1e-12),
                                              DoubleNear(0.5, 1e-12), DoubleNear(-0.25, 1e-12)));
  EXPECT_NEAR(curve.at(5.3), Cubic(5.3), 1e-11);
}

TEST(Poly, OfTheHighestDegreeKeepsItsDigitsOverALongFlank) {
  // Powers of 185 up to the eighteenth meet in the equations.
  const auto lift = [](double x) { return 0.4 * std::pow(1 - x / 185, 9); };
  std::vector<CurvePoint> points;
  for (int i = 0; i <= 23; ++i) points.push_back({185.0 * i / 23, lift(185.0 * i / 23)});
  const FittedCurve curve = FitCurve(points, FitMethod::Poly, 9);
  ASSERT_EQ(curve.coefficients.size(), 10U);
  for (double x = 0; x <= 185; x += 2.5) EXPECT_NEAR(curve.at(x), lift(x), 1e-12) << x;
  EXPECT_NEAR(curve.coefficients[1], -0.4 * 9 / 185, 1e-10);
}

TEST(Poly, OfFewPointsHasALowerDegree) {
  const FittedCurve parabola = FitCurve({{0, 1}, {1, 2}, {3, 10}}, FitMethod::Poly, 5);
  EXPECT_THAT(parabola.coefficients,
              ElementsAre(DoubleNear(1, 1e-12), DoubleNear(0, 1e-12), DoubleNear(1, 1e-12)));
  // Two points above each other count once for the degree.
  const FittedCurve line = FitCurve({{0, 1}, {0, 3}, {2, 6}}, FitMethod::Poly, 5);
  EXPECT_THAT(line.coefficients, ElementsAre(DoubleNear(2, 1e-12), DoubleNear(2, 1e-12)));
}

TEST(Spline, GoesThroughItsPointsAndGivesACubicBack) {
  std::vector<CurvePoint> points;
  for (const double x : {0.0, 0.7, 2.0, 2.5, 4.0, 6.0}) points.push_back({x, Cubic(x)});
  const FittedCurve curve = FitCurve(points, FitMethod::Spline);
  for (double x = 0; x <= 6; x += 0.125) EXPECT_NEAR(curve.at(x), Cubic(x), 1e-11) << x;
  EXPECT_TRUE(curve.coefficients.empty());
}

TEST(Spline, OfFourPointsIsOneCubicAndOfThreeAParabola) {
  std::vector<CurvePoint> four;
  for (const double x : {-1.0, 0.5, 1.0, 3.0}) four.push_back({x, Cubic(x)});
  EXPECT_NEAR(FitCurve(four, FitMethod::Spline).at(2.2), Cubic(2.2), 1e-12);
  const FittedCurve parabola = FitCurve({{0, 1}, {1, 2}, {3, 10}}, FitMethod::Spline);
  for (double x = 0; x <= 3; x += 0.25) EXPECT_NEAR(parabola.at(x), 1 + x * x, 1e-13) << x;
}

TEST(Spline, IsSmoothAtItsPointsAndHasNoKnotNextToTheEnds) {
  const std::vector<CurvePoint> points = {{0, 0}, {1, 2}, {2, 1}, {3.5, 4}, {5, 0}, {6, 3}};
  const FittedCurve curve = FitCurve(points, FitMethod::Spline);
  constexpr double kStep = 0.05;
  const auto second = [&](double x, double side) {
    return (curve.at(x) - 2 * curve.at(x + side * kStep) + curve.at(x + 2 * side * kStep)) /
           (kStep * kStep);
  };
  // From one side only; extrapolated to the point itself, which is exact for a cubic.
  const auto secondAt = [&](double x, double side) {
    const double near = second(x, side);
    const double far = second(x + side * kStep, side);
    return 2 * near - far;
  };
  for (std::size_t i = 1; i + 1 < points.size(); ++i) {
    const double x = points[i].x;
    EXPECT_NEAR(curve.at(x), points[i].y, 1e-12);
    EXPECT_NEAR((curve.at(x + 1e-6) - curve.at(x)) * 1e6, (curve.at(x) - curve.at(x - 1e-6)) * 1e6,
                1e-4)
        << x;
    EXPECT_NEAR(secondAt(x, 1), secondAt(x, -1), 1e-6) << x;
  }
  const auto third = [&](double x, double side) {
    return (second(x + side * kStep, side) - second(x, side)) / (side * kStep);
  };
  EXPECT_NEAR(third(1, 1), third(1, -1), 1e-6);
  EXPECT_NEAR(third(5, 1), third(5, -1), 1e-6);
}

TEST(SplineInterp, TakesTheHarmonicMeanOfTheSlopes) {
  // By hand: slopes 1 and 3 give 1.5 at the middle point, and 4 at the end.
  const FittedCurve curve = FitCurve({{0, 0}, {1, 1}, {2, 4}}, FitMethod::SplineInterp);
  EXPECT_NEAR(curve.at(1.5), 2.1875, 1e-13);
  EXPECT_NEAR(curve.at(1), 1, 1e-15);
  EXPECT_NEAR(curve.at(2), 4, 1e-15);
}

TEST(SplineInterp, NeverGoesBeyondItsNeighbours) {
  const std::vector<CurvePoint> points = {{0, 0.5}, {10, 0.49}, {12, 0.1}, {40, 0.099}, {41, 0}};
  const FittedCurve curve = FitCurve(points, FitMethod::SplineInterp);
  double before = curve.at(0);
  for (double x = 0.05; x <= 41; x += 0.05) {
    EXPECT_LE(curve.at(x), before + 1e-12) << x;
    before = curve.at(x);
  }
  EXPECT_GE(before, -1e-12);
}

TEST(Fits, RefuseWhatIsNoCurve) {
  for (const FitMethod method : {FitMethod::Spline, FitMethod::SplineInterp}) {
    EXPECT_EQ(RefusalOf({{0, 1}, {1, 2}}, method),
              "Not enough data points -- Entry more and Retry");
    EXPECT_EQ(RefusalOf({{0, 1}, {2, 2}, {2, 3}}, method), "Input data points are not ascending");
    EXPECT_EQ(RefusalOf({{0, 1}, {0, 2}, {2, 3}}, method), "Input data points are not ascending 0");
  }
  EXPECT_EQ(RefusalOf({{0, 1}}, FitMethod::Poly), "Not enough data points -- Entry more and Retry");
}

}  // namespace
}  // namespace veldox
