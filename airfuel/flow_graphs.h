#pragma once

#include <string>
#include <vector>

#include "airfuel/flow_reports.h"
#include "graph/grapher.h"

namespace veldox {

/// What a flow graph shows over valve lift, at the curtain.
enum class FlowCurve { Coefficient, Speed, FlowPerArea, Flow };

struct FlowGraph {
  FlowCurve curve = FlowCurve::Flow;
  bool hasIntake = true;
  bool hasExhaust = true;
};

struct FlowPlot {
  GraphFrame frame;
  std::vector<GraphCurve> curves;
  std::vector<const FlowPort*> ports;  ///< that the curves belong to
};

/// The curves of a graph, a point a row with lift, on axes that hold them. Of two ports one that
/// has no curve, for want of rows, is left out.
FlowPlot PlotFlow(const FlowGraph& graph, const FlowReportValues& values);

/// What a port would flow without loss through its curtain and throat, from no lift up to the
/// graph's right or upper limit.
std::vector<GraphPoint> FlowLimit(const FlowPort& port, double testVelocity,
                                  const AxisRange& range);

}  // namespace veldox
