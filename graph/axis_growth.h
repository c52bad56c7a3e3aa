#pragma once

#include "graph/grapher.h"

namespace veldox {

/// The limit of an axis that holds a value, with round numbers at ten lines of a grid.
double AxisLimit(double value);

/// Both ends of an axis.
struct AxisSpan {
  double low = 0;
  double high = 0;
};
/// The ends of an axis that need not begin at 0: they hold both values, with round numbers at ten
/// lines of a grid.
/// @param low  not below 0
AxisSpan AxisSpanOf(double low, double high);

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
