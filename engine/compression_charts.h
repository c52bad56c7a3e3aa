#pragma once

#include <string>

#include "core/numbers.h"
#include "engine/compression.h"

namespace veldox {

/// A cylinder as the charts and graphs of the compression ratio take it. Lengths are in the unit
/// of the screen's fields: inches, or millimetres in metric mode.
struct CompressionInput {
  double bore = 0;
  double stroke = 0;
  double deckClearance = 0;
  double gasketThickness = 0;
  double gasketBore = 0;
  double sweptCc = 0;
  ClearanceVolumes volumes;
  bool metric = false;
};

/// The total volume that each ratio around a given one needs. This and the other charts throw
/// CommandError where a value is no finite number.
std::string TotalVolumeChart(const CompressionInput& input, double ratio, DecimalMark mark);

/// The lowest ratio of the charts around a calculated ratio, before it is lifted to
/// kLowestChartedRatio.
double FirstChartedRatio(double ratio);
inline constexpr double kLowestChartedRatio = 1.1;

/// What a chart around the calculated ratio tells the need of.
enum class RatioChart { TotalVolume, Chamber, Dome, GasketThickness };

/// What each ratio around the input's own needs when all else stays.
std::string NeededChart(RatioChart chart, const CompressionInput& input, DecimalMark mark);

/// One value of such a chart, in cc; the gasket's thickness in the unit of the lengths.
double NeededForRatio(RatioChart chart, const CompressionInput& input, double ratio);

}  // namespace veldox
