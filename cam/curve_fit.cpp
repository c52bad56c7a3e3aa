#include "cam/curve_fit.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <utility>

#include "core/error.h"

namespace veldox {

namespace {

using Points = std::vector<CurvePoint>;
using Row = std::vector<double>;

[[noreturn]] void Fail(const char* message) {
  throw CommandError(ErrorKind::InvalidArgument, message);
}

// ---------------------------------------------------------------- polynomial

/// Takes the range of the points to -1 to 1, where high powers stay in proportion.
struct UnitRange {
  double middle = 0;
  double half = 1;

  explicit UnitRange(const Points& points) {
    const auto [low, high] = std::ranges::minmax_element(points, {}, &CurvePoint::x);
    middle = (low->x + high->x) / 2;
    half = (high->x - low->x) / 2;
    if (!(half > 0)) half = 1;
  }
  double Of(double x) const { return (x - middle) / half; }
};

double ValueOf(const Row& coefficients, double x) {
  double sum = 0;
  for (std::size_t p = coefficients.size(); p-- > 0;) sum = sum * x + coefficients[p];
  return sum;
}

/// Solves a system of linear equations in place. The last column holds the right sides.
Row Solve(std::vector<Row> rows) {
  const std::size_t n = rows.size();
  for (std::size_t pivot = 0; pivot < n; ++pivot) {
    if (rows[pivot][pivot] == 0) {
      const auto below = std::find_if(rows.begin() + static_cast<std::ptrdiff_t>(pivot), rows.end(),
                                      [pivot](const Row& row) { return row[pivot] != 0; });
      if (below == rows.end()) Fail(kTooFewPoints);
      std::swap(rows[pivot], *below);
    }
    const double divisor = rows[pivot][pivot];
    for (double& number : rows[pivot]) number /= divisor;
    for (std::size_t other = 0; other < n; ++other) {
      if (other == pivot) continue;
      const double factor = rows[other][pivot];
      for (std::size_t i = pivot; i <= n; ++i) rows[other][i] -= factor * rows[pivot][i];
    }
  }
  Row solution(n);
  for (std::size_t i = 0; i < n; ++i) solution[i] = rows[i][n];
  return solution;
}

/// The polynomial that misses the points by the least sum of squares, by the normal equations.
Row LeastSquares(const Points& points, std::size_t terms) {
  std::vector<Row> rows(terms, Row(terms + 1, 0));
  for (const CurvePoint& point : points) {
    Row powers(terms, 1);
    for (std::size_t p = 1; p < terms; ++p) powers[p] = powers[p - 1] * point.x;
    for (std::size_t i = 0; i < terms; ++i) {
      for (std::size_t k = 0; k < terms; ++k) rows[i][k] += powers[i] * powers[k];
      rows[i][terms] += powers[i] * point.y;
    }
  }
  return Solve(std::move(rows));
}

/// The same polynomial in x where `coefficients` are those of (x - middle) / half.
Row InPowersOfX(const Row& coefficients, const UnitRange& range) {
  // Horner's scheme on polynomials.
  Row sum;
  for (std::size_t p = coefficients.size(); p-- > 0;) {
    Row next(sum.size() + 1, 0);
    for (std::size_t i = 0; i < sum.size(); ++i) {
      next[i + 1] += sum[i] / range.half;
      next[i] -= sum[i] * range.middle / range.half;
    }
    next[0] += coefficients[p];
    sum = std::move(next);
  }
  return sum;
}

FittedCurve FitPolynomial(Points points, int degree) {
  if (points.size() < 2) Fail(kTooFewPoints);
  const UnitRange range(points);
  std::set<double> places;
  for (CurvePoint& point : points) {
    point.x = range.Of(point.x);
    places.insert(point.x);
  }
  const std::size_t terms = std::min(places.size(), static_cast<std::size_t>(degree) + 1);
  Row coefficients = LeastSquares(points, terms);
  // What the normal equations lose in digits comes back from what is left over.
  for (int pass = 0; pass < 2; ++pass) {
    Points rest = points;
    for (CurvePoint& point : rest) point.y -= ValueOf(coefficients, point.x);
    const Row more = LeastSquares(rest, terms);
    for (std::size_t p = 0; p < terms; ++p) coefficients[p] += more[p];
  }
  Row inX = InPowersOfX(coefficients, range);
  return {[coefficients = std::move(coefficients), range](double x) {
            return ValueOf(coefficients, range.Of(x));
          },
          std::move(inX)};
}

// ---------------------------------------------------------------- splines

void RequireAscending(const Points& points) {
  if (points.size() < kFewestSplinePoints) Fail(kTooFewPoints);
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (!(points[i].x > points[i - 1].x)) Fail(i == 1 ? kNotAscendingAtStart : kNotAscending);
  }
}

/// Widths of the intervals between points and the slopes of the straight lines in them.
struct Intervals {
  Row width;
  Row slope;

  explicit Intervals(const Points& points) {
    for (std::size_t i = 1; i < points.size(); ++i) {
      width.push_back(points[i].x - points[i - 1].x);
      slope.push_back((points[i].y - points[i - 1].y) / width.back());
    }
  }
  /// Of a parabola through the three points of two intervals, at the far end of the first one.
  double ParabolaAtEnd(std::size_t end, std::size_t next) const {
    return slope[end] + width[end] * (slope[end] - slope[next]) / (width[end] + width[next]);
  }
};

/// Slopes at the points of the cubic spline whose first two and last two intervals are one cubic
/// each (C. de Boor, A Practical Guide to Splines, chapter IV).
Row NotAKnotSlopes(const Points& points) {
  const std::size_t n = points.size();
  const Intervals in(points);
  const Row& h = in.width;
  const Row& m = in.slope;
  if (n == kFewestSplinePoints) {
    // Both ends tell the same: it is the parabola.
    return {in.ParabolaAtEnd(0, 1), (h[1] * m[0] + h[0] * m[1]) / (h[0] + h[1]),
            in.ParabolaAtEnd(1, 0)};
  }
  Row lower(n);
  Row diagonal(n);
  Row upper(n);
  Row right(n);
  const double first = h[0] + h[1];
  diagonal[0] = h[1];
  upper[0] = first;
  right[0] = ((h[0] + 2 * first) * h[1] * m[0] + h[0] * h[0] * m[1]) / first;
  for (std::size_t i = 1; i + 1 < n; ++i) {
    lower[i] = h[i];
    diagonal[i] = 2 * (h[i - 1] + h[i]);
    upper[i] = h[i - 1];
    right[i] = 3 * (h[i] * m[i - 1] + h[i - 1] * m[i]);
  }
  const double last = h[n - 3] + h[n - 2];
  lower[n - 1] = last;
  diagonal[n - 1] = h[n - 3];
  right[n - 1] =
      (h[n - 2] * h[n - 2] * m[n - 3] + (2 * last + h[n - 2]) * h[n - 3] * m[n - 2]) / last;
  for (std::size_t i = 1; i < n; ++i) {
    const double factor = lower[i] / diagonal[i - 1];
    diagonal[i] -= factor * upper[i - 1];
    right[i] -= factor * right[i - 1];
  }
  Row slopes(n);
  slopes[n - 1] = right[n - 1] / diagonal[n - 1];
  for (std::size_t i = n - 1; i-- > 0;) {
    slopes[i] = (right[i] - upper[i] * slopes[i + 1]) / diagonal[i];
  }
  return slopes;
}

/// Slope at an end that keeps the shape of the two intervals there.
double ShapedEndSlope(const Intervals& in, std::size_t end, std::size_t next) {
  const double slope = in.ParabolaAtEnd(end, next);
  if (slope * in.slope[end] <= 0) return 0;
  const bool turns = in.slope[end] * in.slope[next] <= 0;
  if (turns && std::abs(slope) > 3 * std::abs(in.slope[end])) return 3 * in.slope[end];
  return slope;
}

/// Slopes at the points of cubics that rise and fall only where the points do: the weighted
/// harmonic mean of both sides (F. N. Fritsch and J. Butland, SIAM J. Sci. Stat. Comput. 5, 1984).
Row ShapedSlopes(const Points& points) {
  const Intervals in(points);
  const std::size_t n = points.size();
  Row slopes(n);
  slopes[0] = ShapedEndSlope(in, 0, 1);
  slopes[n - 1] = ShapedEndSlope(in, n - 2, n - 3);
  for (std::size_t i = 1; i + 1 < n; ++i) {
    if (in.slope[i - 1] * in.slope[i] <= 0) continue;
    const double before = 2 * in.width[i] + in.width[i - 1];
    const double behind = in.width[i] + 2 * in.width[i - 1];
    slopes[i] = (before + behind) / (before / in.slope[i - 1] + behind / in.slope[i]);
  }
  return slopes;
}

/// The cubics between points, each fixed by the values and slopes at its ends.
double CubicAt(const Points& points, const Row& slopes, double x) {
  const auto above =
      std::upper_bound(points.begin() + 1, points.end() - 1, x,
                       [](double place, const CurvePoint& p) { return place < p.x; });
  const auto i = static_cast<std::size_t>(above - points.begin());
  const CurvePoint& from = points[i - 1];
  const CurvePoint& to = points[i];
  const double width = to.x - from.x;
  const double t = (x - from.x) / width;
  const double rest = 1 - t;
  return rest * rest * (1 + 2 * t) * from.y + t * t * (3 - 2 * t) * to.y +
         t * rest * width * (rest * slopes[i - 1] - t * slopes[i]);
}

}  // namespace

FittedCurve FitCurve(std::vector<CurvePoint> points, FitMethod method, int degree) {
  if (method == FitMethod::Poly) return FitPolynomial(std::move(points), degree);
  RequireAscending(points);
  Row slopes = method == FitMethod::Spline ? NotAKnotSlopes(points) : ShapedSlopes(points);
  return {[points = std::move(points), slopes = std::move(slopes)](double x) {
            return CubicAt(points, slopes, x);
          },
          {}};
}

}  // namespace veldox
