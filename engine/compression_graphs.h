#pragma once

#include "core/numbers.h"
#include "engine/compression_charts.h"
#include "graph/grapher.h"

namespace veldox {

/// What the ratio is graphed over, both in cc.
enum class RatioGraph { TotalVolume, Chamber };

/// The volumes of a graph's X axis, and the distance of its points.
struct RatioSweep {
  double low = 0;
  double high = 0;
  double step = 0;
};

/// The axis around a total volume, which has to be above kSmallestGraphedVolume.
RatioSweep SweepAroundTotal(double totalCc);
inline constexpr double kSmallestGraphedVolume = 2;

/// The axis around a chamber volume.
RatioSweep SweepAroundChamber(double chamberCc);

/// The frame of a graph: its limits and texts.
GraphFrame RatioGraphFrame(RatioGraph graph, const CompressionInput& input,
                           const RatioSweep& sweep);

/// The points of a graph; volumes that leave no clearance have none.
/// @param totalCc  the total volume as entered, which the text of the first graph tells
/// @param first    the curve begins a graph; those that are added have a shorter text
GraphCurve RatioGraphCurve(RatioGraph graph, const CompressionInput& input, const RatioSweep& sweep,
                           double totalCc, bool first, DecimalMark mark);

}  // namespace veldox
