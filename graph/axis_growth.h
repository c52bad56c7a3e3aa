#pragma once

#include "graph/grapher.h"

namespace veldox {

/// The axes of a graph that a curve is added to: an end that does not hold the curve moves to
/// where it is on the axes of a graph of the curve alone, the others stay.
inline AxisRange GrownBy(AxisRange range, const GraphCurve& curve, const AxisRange& own) {
  for (const GraphPoint& point : curve.points) {
    if (point.x < range.xLow) range.xLow = own.xLow;
    if (point.x > range.xHigh) range.xHigh = own.xHigh;
    if (point.y < range.yLow) range.yLow = own.yLow;
    if (point.y > range.yHigh) range.yHigh = own.yHigh;
  }
  return range;
}

}  // namespace veldox
