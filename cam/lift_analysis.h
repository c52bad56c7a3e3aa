#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace veldox {

/// The lifts of one side of a cam file, in the unit of the file.
struct LiftTable {
  /// From index 0, the start of the lobe, to the closing zero; empty without a table.
  std::span<const double> lifts;
  double step = 0;  ///< degrees between two of them, above 0 where there are any
  int count = 0;    ///< the graphs' axis is this many steps long
};

/// How ragged numbers are smoothed. Every way is a symmetric filter whose weights add up to 1, so
/// that it leaves straight lines as they are.
enum class Smoothing {
  SavitzkyGolay,  ///< a parabola through the neighbours (Savitzky and Golay, 1964)
  MovingAverage,
  Triangle,  ///< neighbours count the less the further they are
};
/// By the short name that the user enters, in any case: "SG", "MA" or "TR"; else nothing.
std::optional<Smoothing> SmoothingOf(std::string_view name);
std::string_view NameOf(Smoothing smoothing);

/// The most weights of a filter.
inline constexpr int kMostWeights = 21;
/// The weights of a filter, the middle one in the middle. A filter reaches some degrees to either
/// side, and over at least one neighbour.
std::vector<double> SmoothingWeights(Smoothing smoothing, double stepDegrees);

/// Numbers smoothed, as many as there were.
/// @param outside  what the numbers before the first and behind the last one are taken for
std::vector<double> Smoothed(std::span<const double> numbers, std::span<const double> weights,
                             double outside);

/// What is analysed, and how.
struct LiftAnalysis {
  LiftTable table;
  double ratio = 1;         ///< of the rocker arm
  double lash = 0;          ///< in the unit of the lifts
  double rpm = 0;           ///< of the crank
  double unitsPerInch = 1;  ///< the lifts' unit: 25.4 where they are millimetres
  /// Acceleration and jerk are differences from record to record, whatever the step.
  bool differencesByRecord = false;
  std::optional<Smoothing> smoothing;  ///< of what comes out
  bool smoothsLift = false;            ///< of the lifts before all else, while there is smoothing
};

/// One of the quantities that follow from lifts.
struct LiftQuantity {
  int order = 0;  ///< 0 lift, 1 velocity, 2 acceleration, 3 jerk
  bool ofValve = false;
  /// Velocity in feet a second, its steps taken for crank degrees; acceleration and jerk are still
  /// differences over degrees.
  bool inFeetASecond = false;
};

/// A quantity by the index of its record.
struct LiftValues {
  int first = 0;  ///< index of the first value: as many records as differences go before it
  std::vector<double> values;

  int last() const { return first + static_cast<int>(values.size()) - 1; }
  bool Has(int index) const { return index >= first && index <= last(); }
  double operator[](int index) const { return values[static_cast<std::size_t>(index - first)]; }
};

/// The quantity of all records. A valve's lift is the lobe's times the ratio less the lash, below 0
/// while the lash is not taken up. Velocity is a difference from the record before over the step,
/// acceleration and jerk are the same of it.
LiftValues Analyse(const LiftAnalysis& analysis, const LiftQuantity& quantity);

/// The lifts that the analysis starts from: smoothed ones where it says so.
std::vector<double> AnalysedLifts(const LiftAnalysis& analysis);

/// The lash is taken up at a record, so that the valve is off its seat; always without lash.
bool IsOffSeat(const LiftAnalysis& analysis, double camLift);

/// Lobe lifts in inches at which cams are compared by their duration.
inline constexpr std::array<double, 5> kRatedLifts = {0.006, 0.020, 0.050, 0.100, 0.200};

/// The one of them that timing is told at.
inline constexpr double kTimingLift = 0.050;

/// A lobe in figures, in the table's degrees and the unit of its lifts.
struct LobeFigures {
  int records = 0;
  double step = 0;
  double peakLift = 0;
  double peakDegrees = 0;   ///< of the nose, from the start of the table
  double peakVelocity = 0;  ///< per degree, without sign
  double area = 0;          ///< lift by degrees
  /// At each of kRatedLifts, nothing where the lobe is not that high.
  std::array<std::optional<double>, kRatedLifts.size()> durations;
  /// Halfway between opening and closing at kTimingLift.
  std::optional<double> centerline;
  /// Opening side less closing side at kTimingLift: 0 for a lobe that is the same on both.
  std::optional<double> asymmetry;
};
/// @param unitsPerInch  25.4 where the lifts are millimetres
/// @return nothing without a table
std::optional<LobeFigures> FiguresOf(const LiftTable& table, double unitsPerInch);

}  // namespace veldox
