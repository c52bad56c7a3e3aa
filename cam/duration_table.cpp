#include "cam/duration_table.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>

namespace veldox {

namespace {

/// How much later than in the first row the middle between the events lies, in degrees of both
/// flanks together. Rows without events have their middle where the first one has it.
class MiddleShift {
 public:
  double Of(const ValveEvents& events) {
    if (!events.given()) return 0;
    const double difference = events.close - events.open;
    if (!hasFirst_) first_ = difference;
    hasFirst_ = true;
    return difference - first_;
  }

 private:
  bool hasFirst_ = false;
  double first_ = 0;  ///< degrees
};

/// How far from the nose the flanks have a row's lift.
struct RowHalves {
  double opening = 0;             ///< degrees
  std::optional<double> closing;  ///< degrees; nothing where no row tells it

  bool areThere() const { return opening > 0 && closing.value_or(1) > 0; }
};

/// Parts the durations of rows, the first one first.
class DurationParter {
 public:
  DurationParter(FlankSource source, double closingDuration)
      : source_(source), closingDuration_(closingDuration) {}

  /// @param isFirst  the row has the duration at no lift
  RowHalves Part(const DurationRow& row, bool isFirst) {
    const double half = row.duration / 2;
    if (source_ == FlankSource::Duration) return {half, half};
    const double shift = shift_.Of(row.events) / 2;
    if (source_ == FlankSource::Events) return {half - shift, half + shift};
    const double closingShift = closingShift_.Of(row.closing) / 2;
    if (isFirst) return {half - shift, closingDuration_ / 2};
    if (!row.closing.given()) return {half - shift, std::nullopt};
    return {half - shift, row.closing.duration() / 2 + closingShift};
  }

 private:
  FlankSource source_;
  double closingDuration_;
  MiddleShift shift_;
  MiddleShift closingShift_;
};

}  // namespace

LobePoints PointsOfLobe(std::span<const DurationRow> rows, double top, FlankSource source,
                        double closingDuration) {
  LobePoints points;
  DurationParter parter(source, closingDuration);
  double previous = -std::numeric_limits<double>::min();  // 0 is above it
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const DurationRow& row = rows[i];
    if (row.duration == 0) continue;
    const bool rises = row.lift > previous;
    const RowHalves halves = rises ? parter.Part(row, i == 0) : RowHalves{};
    if (!halves.areThere()) {
      points.ignored.push_back(static_cast<int>(i));
      continue;
    }
    previous = row.lift;
    points.kept.push_back(static_cast<int>(i));
    points.opening.push_back({halves.opening, row.lift});
    if (halves.closing) points.closing.push_back({*halves.closing, row.lift});
  }
  points.top = std::max(top, previous);
  for (std::vector<CurvePoint>* flank : {&points.opening, &points.closing}) {
    flank->push_back({0, points.top});
    std::ranges::reverse(*flank);
  }
  return points;
}

}  // namespace veldox
