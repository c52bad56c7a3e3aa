#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "graph/plot_engine.h"

namespace veldox {

/// The frame of a graph: limits, what the X axis is, and the texts around it.
struct GraphFrame {
  AxisRange range;
  bool crankAngle = false;  ///< "TDC" and "BDC" stand under the X axis
  std::string xPointer;     ///< such as "<--- RPM"
  std::string xName;        ///< such as "RPM"
  std::string yPointer;     ///< such as "<--- Horse Power"
  std::string title;        ///< such as "Horsepower Torque"
  /// A line through the value 0 where the Y axis runs below it.
  bool zeroLine = false;
};

/// One curve of a graph.
struct GraphCurve {
  std::string note;  ///< the legend's text before the pen's colour word; may be empty
  std::vector<GraphPoint> points;
  std::vector<std::size_t> moves;                 ///< indices of points that no line leads to
  std::size_t fewestPoints = kFewestCurvePoints;  ///< 0: without points it is an empty graph
  bool boxes = false;                             ///< a small box around each point
  /// A line across the graph that the curve is read against, such as the lift a cam is rated at.
  /// It is drawn once, however many curves bring it, and is no curve itself.
  std::optional<double> standardLine = std::nullopt;
  /// A colour of its own; the pens do not move on.
  std::optional<CurveColorEntry> color = std::nullopt;
};

/// The grapher as other screens see it: a graph command computes its curves and hands
/// them over. What stood on the surface stays when something is wrong with them.
class Grapher {
 public:
  Grapher() = default;
  Grapher(const Grapher&) = delete;
  Grapher& operator=(const Grapher&) = delete;
  virtual ~Grapher() = default;

  /// Clears the surface and draws a new graph; the first pen is green.
  /// @throws CommandError for limits or points that cannot be drawn
  virtual void DrawGraph(const GraphFrame& frame, std::span<const GraphCurve> curves) = 0;
  /// The same for a graph that the plot engine draws in a way of its own.
  /// @param draw  what is drawn into the frame; an engine that it has thrown in is not kept
  virtual void DrawOwnGraph(const GraphFrame& frame,
                            const std::function<void(PlotEngine&)>& draw) = 0;
  /// Draws curves onto the present graph with the next pens; axes stay.
  /// @throws CommandError for points that cannot be drawn, or without a graph
  virtual void AddToGraph(std::span<const GraphCurve> curves) = 0;
  /// The same, and the axes grow where they do not hold a range yet. What was drawn keeps its
  /// values.
  virtual void AddToGraph(std::span<const GraphCurve> curves, const AxisRange& range) = 0;
  /// There is a graph that curves can be added to.
  virtual bool HasGraph() const = 0;
  /// Opens the grapher's window with what was drawn.
  virtual void ShowGraph() = 0;
  /// The plot engine itself, for screens whose graphs are more than curves.
  virtual const PlotEngine& plot() const = 0;
  /// The same, to draw on.
  virtual PlotEngine& ChangePlot() = 0;
};

}  // namespace veldox
