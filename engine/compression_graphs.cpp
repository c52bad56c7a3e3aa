#include "engine/compression_graphs.h"

#include <cmath>
#include <cstddef>
#include <string>

namespace veldox {

namespace {

/// The end of an axis is met in spite of rounding.
constexpr double kEndTolerance = 0.000001;
/// More than an axis around any volume takes.
constexpr double kMostSteps = 1000;

std::string Note(RatioGraph graph, const CompressionInput& in, double totalCc, DecimalMark mark) {
  const auto text = [mark](double value) { return FormatValue<"0.0#####">(value, mark); };
  if (graph == RatioGraph::TotalVolume) {
    return "Bore = " + text(in.bore) + "  Stroke = " + text(in.stroke) +
           "  Using USER Entered Total Volume of " + text(totalCc) + " cc's";
  }
  return "Bore=" + text(in.bore) + "  Stroke=" + text(in.stroke) +
         "  Dome Vol=" + text(in.volumes.dome) + " Deck Clearance=" + text(in.deckClearance) +
         "  Gasket Bore=" + text(in.gasketBore) + "  Thickness=" + text(in.gasketThickness) +
         "  Head Gasket CC's=" + text(in.volumes.gasket) +
         " Ring Vol CC's=" + text(in.volumes.ring) +
         "  Quench / Squish Clearance=" + text(in.gasketThickness + in.deckClearance);
}

std::string AddedNote(RatioGraph graph, const CompressionInput& in, DecimalMark mark) {
  const auto text = [mark](double value) { return FormatValue<"0.0##">(value, mark); };
  if (graph == RatioGraph::TotalVolume) {
    return "Bore = " + text(in.bore) + "  Stroke = " + text(in.stroke);
  }
  return "B=" + text(in.bore) + " S=" + text(in.stroke) + " Dome=" + text(in.volumes.dome) +
         " Deck=" + text(in.deckClearance) + " HGB=" + text(in.gasketBore) +
         " HGT=" + text(in.gasketThickness) + " H G CC=" + text(in.volumes.gasket) +
         " R V CC=" + text(in.volumes.ring);
}

}  // namespace

RatioSweep SweepAroundTotal(double totalCc) {
  return {totalCc * 0.5 - 1, totalCc * 1.5 + 1, totalCc * 0.005};
}

RatioSweep SweepAroundChamber(double chamberCc) {
  constexpr double kReach = 20;
  return {chamberCc - kReach, chamberCc + kReach, 0.2};
}

GraphFrame RatioGraphFrame(RatioGraph graph, const CompressionInput& input,
                           const RatioSweep& sweep) {
  GraphFrame frame;
  frame.range.xLow = sweep.low;
  frame.range.xHigh = sweep.high;
  if (graph == RatioGraph::TotalVolume) {
    frame.range.yLow = RatioOfVolumes(input.sweptCc, sweep.high);
    frame.range.yHigh = RatioOfVolumes(input.sweptCc, sweep.low) + 1;
    frame.xName = "Total Volume";
    frame.xPointer = "<--- Total Volume";
  } else {
    const double ratio = RatioOfVolumes(input.sweptCc, input.volumes.Total());
    frame.range.yLow = ratio - 6;
    frame.range.yHigh = ratio + 7;
    frame.xName = "Chamber Volume";
    frame.xPointer = "<--- Chamber Volume";
  }
  frame.title = "CR";
  frame.yPointer = "<--- CR";
  return frame;
}

GraphCurve RatioGraphCurve(RatioGraph graph, const CompressionInput& input, const RatioSweep& sweep,
                           double totalCc, bool first, DecimalMark mark) {
  GraphCurve curve;
  curve.note = first ? Note(graph, input, totalCc, mark) : AddedNote(graph, input, mark);
  const double rest = graph == RatioGraph::Chamber ? input.volumes.WithoutChamber() : 0;
  // By count: beside a huge volume a step would lead nowhere.
  const double steps = Floor((sweep.high - sweep.low + kEndTolerance) / sweep.step);
  const int last = static_cast<int>(std::fmin(steps, kMostSteps));
  curve.points.reserve(static_cast<std::size_t>(last) + 1);
  for (int i = 0; i <= last; ++i) {
    const double x = sweep.low + i * sweep.step;
    if (x + rest > 0) curve.points.push_back({x, RatioOfVolumes(input.sweptCc, x + rest)});
  }
  return curve;
}

}  // namespace veldox
