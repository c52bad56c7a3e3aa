#pragma once

#include <span>
#include <vector>

#include "cam/curve_fit.h"

namespace veldox {

/// When a valve opens and closes at some lift, in degrees before and behind its two dead centers.
struct ValveEvents {
  double open = 0;
  double close = 0;

  /// A row without events has 0 in both.
  bool given() const { return open != 0 || close != 0; }
  /// Degrees between them.
  double duration() const { return open + close + 180; }
};

/// A row of a cam report.
struct DurationRow {
  double lift = 0;
  double duration = 0;  ///< at that lift, degrees; 0 for a row that does not count
  ValveEvents events;
  ValveEvents closing;  ///< of the cam that gives the closing flank, where that is another
};

/// The flanks that rows are laid into.
enum class FlankSource {
  Duration,   ///< both flanks are half of the duration
  Events,     ///< parted by how the middle between the events moves from row to row
  TwoEvents,  ///< the closing flank is that of the second events
};

/// The points of a lobe, from the nose outwards: x is the distance to it in degrees, y the lift.
struct LobePoints {
  std::vector<CurvePoint> opening;
  std::vector<CurvePoint> closing;
  std::vector<int> kept;     ///< rows that are in it
  std::vector<int> ignored;  ///< rows that would count, but do not rise above the one before
  double top = 0;            ///< lift at the nose: the one given, or the highest of the rows
};

/// Lays the rows of a cam report into the flanks of a lobe.
/// @param rows  by rising lift, the first with the duration at no lift. Lifts and durations below
///              0 do not count
/// @param top   lift at the nose
/// @param closingDuration  for TwoEvents: what the second cam has for a duration in the first row,
///                         degrees
LobePoints PointsOfLobe(std::span<const DurationRow> rows, double top, FlankSource source,
                        double closingDuration = 0);

}  // namespace veldox
