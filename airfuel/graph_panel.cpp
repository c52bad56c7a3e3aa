#include "airfuel/graph_panel.h"

#include <algorithm>
#include <numeric>

namespace veldox {

namespace {

constexpr std::size_t kMarksOfGroups = 12;
/// Of a circle, by the width of the graph.
constexpr double kCircleRadius = 0.005;

constexpr const char* kAboveZero = "must be above 0.";

}  // namespace

GraphPanel::GraphPanel(Screen& screen) : ScreenPart(screen) {
  Line.SetOn(true);
}

double GraphPanel::ReadMaxLift() {
  ReadFields({&Text67});
  return block().GraphMaxLift;
}

double GraphPanel::ReadZoom() {
  ReadFields({&Text65});
  return block().ScaleSize > 0 ? block().ScaleSize : 1;
}

double GraphPanel::ReadPistonScale() {
  ReadFields({&Text66});
  Require(block().ScaleSize2 > 0, Text66, kAboveZero);
  return block().ScaleSize2;
}

void GraphPanel::TakeLinesOff(std::vector<GraphCurve>& curves) const {
  if (Line.on()) return;
  for (GraphCurve& curve : curves) {
    if (curve.points.empty()) continue;
    curve.moves.resize(curve.points.size() - 1);
    std::iota(curve.moves.begin(), curve.moves.end(), 1);
  }
}

void GraphPanel::Draw(Grapher& grapher, const GraphFrame& frame, std::vector<GraphCurve> curves) {
  TakeLinesOff(curves);
  grapher.DrawGraph(frame, curves);
  AddMarks(grapher.ChangePlot(), 0);
}

void GraphPanel::AddTo(Grapher& grapher, std::vector<GraphCurve> curves, const AxisRange& range) {
  TakeLinesOff(curves);
  const std::size_t first = grapher.plot().series().size();
  grapher.AddToGraph(curves, range);
  AddMarks(grapher.ChangePlot(), first);
}

void GraphPanel::AddMarks(PlotEngine& plot, std::size_t first) const {
  const bool hasDots = ShowDots.on() || (!Line.on() && !Circle.on());
  const double radius = (plot.XHigh - plot.XLow) * kCircleRadius;
  for (std::size_t i = first; i < plot.series().size(); ++i) {
    const Color color = plot.series()[i].color;
    const std::vector<GraphPoint>& points = plot.series()[i].points;
    const std::size_t step =
        ShowLargeGrouping.on() ? std::max<std::size_t>(1, points.size() / kMarksOfGroups) : 1;
    for (std::size_t at = 0; at < points.size(); at += step) {
      const GraphPoint point = points[at];
      if (hasDots) plot.PlotBox(point.x, point.y, color);
      if (Circle.on()) plot.PlotCircle(point.x, point.y, radius, {color, 1, LineStyle::Solid});
    }
  }
}

}  // namespace veldox
