#include "graph/axis_growth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace veldox {

namespace {

constexpr double kDigits = 1 - 1e-12;  // what a limit may be off by the last digits

/// A digit times a power of ten. Whole powers are exact, their fractions are not.
double Scaled(double digits, int exponent) {
  const double power = std::pow(10, std::abs(exponent));
  return exponent < 0 ? digits / power : digits * power;
}

}  // namespace

double AxisLimit(double value) {
  if (!(value > 0)) return 1;
  if (!std::isfinite(value)) return value;  // the plot refuses it
  constexpr std::array<double, 11> kLimits = {1, 1.2, 1.5, 2, 2.5, 3, 4, 5, 6, 8, 10};
  const int exponent = static_cast<int>(std::floor(std::log10(value)));
  const auto scaled = [&](double limit) { return Scaled(limit, exponent); };
  const auto found =
      std::ranges::find_if(kLimits, [&](double limit) { return scaled(limit) >= value * kDigits; });
  return found == kLimits.end() ? scaled(kLimits.back()) : scaled(*found);
}

AxisSpan AxisSpanOf(double low, double high) {
  if (!(high > low) || !std::isfinite(low) || !std::isfinite(high)) return {low, high};
  constexpr std::array<double, 4> kSteps = {1, 2, 2.5, 5};
  constexpr double kGridLines = 10;
  for (int exponent = static_cast<int>(std::floor(std::log10((high - low) / kGridLines)));;
       ++exponent) {
    for (const double digits : kSteps) {
      const double step = Scaled(digits, exponent);
      const double first = std::floor(low / step / kDigits) * step;
      const double last = first + kGridLines * step;
      if (last >= high * kDigits) return {first, last};
    }
  }
}

}  // namespace veldox
