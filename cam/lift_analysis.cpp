#include "cam/lift_analysis.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"

namespace veldox {

namespace {

struct SmoothingKind {
  std::string_view name;
  Smoothing smoothing;
  double reach;  ///< degrees to either side
  int fewest;    ///< neighbours to either side
};
// A parabola goes through three points whatever they are; it takes five to smooth them.
constexpr std::array<SmoothingKind, 3> kSmoothings = {{
    {"SG", Smoothing::SavitzkyGolay, 10, 2},
    {"MA", Smoothing::MovingAverage, 5, 1},
    {"TR", Smoothing::Triangle, 5, 1},
}};

const SmoothingKind& KindOf(Smoothing smoothing) {
  return kSmoothings.at(static_cast<std::size_t>(smoothing));
}

constexpr double kRevolution = 360;  ///< degrees
constexpr double kSecondsInMinute = 60;
constexpr double kInchesInFoot = 12;

/// Differences of neighbours; there is one fewer.
template <class Function>
std::vector<double> Differences(const std::vector<double>& values, Function function) {
  std::vector<double> differences;
  if (values.empty()) return differences;
  differences.reserve(values.size() - 1);
  for (std::size_t i = 1; i < values.size(); ++i) {
    differences.push_back(function(values[i] - values[i - 1]));
  }
  return differences;
}

}  // namespace

std::optional<Smoothing> SmoothingOf(std::string_view name) {
  for (const SmoothingKind& kind : kSmoothings) {
    if (SameIgnoringCase(Trim(name), kind.name)) return kind.smoothing;
  }
  return std::nullopt;
}

std::string_view NameOf(Smoothing smoothing) {
  return KindOf(smoothing).name;
}

std::vector<double> SmoothingWeights(Smoothing smoothing, double stepDegrees) {
  const SmoothingKind& kind = KindOf(smoothing);
  constexpr int kMost = (kMostWeights - 1) / 2;
  const double wanted = kind.reach / stepDegrees;
  const int side =
      wanted < kMost ? std::max(kind.fewest, static_cast<int>(std::lround(wanted))) : kMost;
  std::vector<double> weights;
  const double m = side;
  for (int k = -side; k <= side; ++k) {
    switch (smoothing) {
      case Smoothing::SavitzkyGolay:
        weights.push_back(3 * (3 * m * m + 3 * m - 1 - 5.0 * k * k) /
                          ((2 * m - 1) * (2 * m + 1) * (2 * m + 3)));
        break;
      case Smoothing::MovingAverage: weights.push_back(1 / (2 * m + 1)); break;
      case Smoothing::Triangle:
        weights.push_back((m + 1 - std::abs(k)) / ((m + 1) * (m + 1)));
        break;
    }
  }
  return weights;
}

std::vector<double> Smoothed(std::span<const double> numbers, std::span<const double> weights,
                             double outside) {
  const auto count = static_cast<std::ptrdiff_t>(numbers.size());
  const auto side = static_cast<std::ptrdiff_t>(weights.size() / 2);
  std::vector<double> smoothed;
  smoothed.reserve(numbers.size());
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    double sum = 0;
    for (std::ptrdiff_t k = -side; k <= side; ++k) {
      const std::ptrdiff_t at = i + k;
      const bool isInside = at >= 0 && at < count;
      sum += weights[static_cast<std::size_t>(k + side)] *
             (isInside ? numbers[static_cast<std::size_t>(at)] : outside);
    }
    smoothed.push_back(sum);
  }
  return smoothed;
}

std::vector<double> AnalysedLifts(const LiftAnalysis& analysis) {
  const LiftTable& table = analysis.table;
  if (analysis.smoothing && analysis.smoothsLift && !table.lifts.empty()) {
    return Smoothed(table.lifts, SmoothingWeights(*analysis.smoothing, table.step), 0);
  }
  return {table.lifts.begin(), table.lifts.end()};
}

bool IsOffSeat(const LiftAnalysis& analysis, double camLift) {
  return analysis.lash == 0 || camLift * analysis.ratio > analysis.lash;
}

LiftValues Analyse(const LiftAnalysis& analysis, const LiftQuantity& quantity) {
  LiftValues result{quantity.order, AnalysedLifts(analysis)};
  std::vector<double>& values = result.values;
  if (values.empty()) return {0, {}};
  const double stepDeg = analysis.table.step;
  if (quantity.ofValve) {
    for (double& lift : values) lift = lift * analysis.ratio - analysis.lash;
  }
  if (quantity.order > 0 && quantity.inFeetASecond) {
    const double turnsASecond = analysis.rpm / kSecondsInMinute;
    values = Differences(values, [&](double difference) {
      const double feet = difference / analysis.unitsPerInch / kInchesInFoot;
      return feet * turnsASecond * (kRevolution / stepDeg);
    });
  } else if (quantity.order > 0) {
    values = Differences(values, [stepDeg](double difference) { return difference / stepDeg; });
  }
  const double divisor = analysis.differencesByRecord ? 1 : stepDeg;
  for (int order = 2; order <= quantity.order; ++order) {
    values = Differences(values, [divisor](double difference) { return difference / divisor; });
  }
  if (analysis.smoothing) {
    // Around the lobe lies the base circle, where nothing moves.
    const double outside = quantity.order == 0 && quantity.ofValve ? -analysis.lash : 0;
    values = Smoothed(values, SmoothingWeights(*analysis.smoothing, stepDeg), outside);
  }
  return result;
}

// ---------------------------------------------------------------- a lobe in figures

namespace {

/// Where the lifts rise above a level first and fall to it last, by straight lines between them.
struct OpenSpan {
  double from = 0;  ///< degrees
  double to = 0;    ///< degrees
};

std::optional<OpenSpan> SpanAbove(const LiftTable& table, double level) {
  const std::span<const double> lifts = table.lifts;
  const auto isAbove = [level](double lift) { return lift > level; };
  const auto first = std::find_if(lifts.begin(), lifts.end(), isAbove);
  if (first == lifts.end()) return std::nullopt;
  const auto last = std::find_if(lifts.rbegin(), lifts.rend(), isAbove);
  const std::ptrdiff_t from = first - lifts.begin();
  const std::ptrdiff_t to = lifts.rend() - last - 1;
  const auto at = [&](std::ptrdiff_t i) { return lifts[static_cast<std::size_t>(i)]; };
  // How far from the record below the level to the one above it.
  const auto part = [&](double below, double above) { return (level - below) / (above - below); };
  OpenSpan span;
  span.from = static_cast<double>(from);
  if (from > 0) span.from += part(at(from - 1), at(from)) - 1;
  span.to = static_cast<double>(to);
  if (to + 1 < static_cast<std::ptrdiff_t>(lifts.size())) {
    span.to += 1 - part(at(to + 1), at(to));
  }
  return OpenSpan{span.from * table.step, span.to * table.step};
}

}  // namespace

std::optional<LobeFigures> FiguresOf(const LiftTable& table, double unitsPerInch) {
  const std::span<const double> lifts = table.lifts;
  if (lifts.empty()) return std::nullopt;
  LobeFigures figures;
  figures.records = std::max(table.count - 1, 0);
  figures.step = table.step;
  const auto peak = std::max_element(lifts.begin(), lifts.end());
  figures.peakLift = *peak;
  // The middle of a nose that is flat on top.
  const auto flatEnd = std::find_if(peak, lifts.end(), [&](double lift) { return lift != *peak; });
  figures.peakDegrees =
      static_cast<double>((peak - lifts.begin()) + (flatEnd - 1 - lifts.begin())) / 2 * table.step;
  for (std::size_t i = 1; i < lifts.size(); ++i) {
    figures.peakVelocity =
        std::max(figures.peakVelocity, std::abs(lifts[i] - lifts[i - 1]) / table.step);
    figures.area += (lifts[i] + lifts[i - 1]) / 2 * table.step;
  }
  for (std::size_t i = 0; i < kRatedLifts.size(); ++i) {
    if (const auto span = SpanAbove(table, kRatedLifts.at(i) * unitsPerInch)) {
      figures.durations.at(i) = span->to - span->from;
    }
  }
  if (const auto span = SpanAbove(table, kTimingLift * unitsPerInch)) {
    figures.centerline = (span->from + span->to) / 2;
    figures.asymmetry = (figures.peakDegrees - span->from) - (span->to - figures.peakDegrees);
  }
  return figures;
}

}  // namespace veldox
