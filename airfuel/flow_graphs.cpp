#include "airfuel/flow_graphs.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "graph/axis_growth.h"

namespace veldox {

namespace {

/// What a port's curve is called.
struct CurveTitles {
  std::string_view added;  ///< without the pen, as a further curve has it
  std::string_view first;  ///< of a graph that begins with it
};
CurveTitles TitlesOf(FlowCurve curve, bool isIntake) {
  switch (curve) {
    case FlowCurve::Coefficient:
      return isIntake ? CurveTitles{"Intake Curtain DC   ", "Intake Curtain DC   Green"}
                      : CurveTitles{"Exhaust Curtain DC   ", "Exhaust Curtain DC   Green"};
    case FlowCurve::Speed:
      return isIntake ? CurveTitles{"Intake Curtain fps   ", "Intake Curtain fps   Green"}
                      : CurveTitles{"Exhaust Curtain fps   ", "Exhaust Curtain fps   Green"};
    case FlowCurve::FlowPerArea:
      return isIntake ? CurveTitles{"Intake Curtain   ", "Intake Curtain   Green"}
                      : CurveTitles{"Exhaust Curtain   ", "Exhaust Curtain   Green"};
    case FlowCurve::Flow: break;
  }
  return isIntake ? CurveTitles{"Intake CFM   ", "Intake CFM   Green"}
                  : CurveTitles{"Exhaust CFM   ", "Exhaust CFM   Green"};
}

const char* PointerOf(FlowCurve curve) {
  switch (curve) {
    case FlowCurve::Coefficient: return "<--- Discharge Coefficient";
    case FlowCurve::Speed: return "<--- Velocity fps";
    case FlowCurve::FlowPerArea: return "<--- CFM Sq Inch";
    case FlowCurve::Flow: break;
  }
  return "<--- CFM";
}

double ValueOf(FlowCurve curve, const FlowPort& port, const FlowPoint& point, double testVelocity) {
  switch (curve) {
    case FlowCurve::Coefficient: return CurtainCoefficient(port, point, testVelocity);
    case FlowCurve::Speed: return CurtainSpeed(port, point);
    case FlowCurve::FlowPerArea: return CurtainFlow(port, point);
    case FlowCurve::Flow: break;
  }
  return point.flow;
}

/// A curve needs two rows with lift.
bool HasCurve(const FlowTable& table) {
  return std::ranges::count_if(table, [](const FlowPoint& point) { return point.lift > 0; }) > 1;
}

}  // namespace

FlowPlot PlotFlow(const FlowGraph& graph, const FlowReportValues& values) {
  FlowPlot plot;
  double largestLift = 0, highest = 0;
  const auto add = [&](bool isIntake, const FlowPort& port, const FlowTable& table) {
    const CurveTitles titles = TitlesOf(graph.curve, isIntake);
    if (plot.curves.empty()) plot.frame.title = titles.first;
    // The grapher puts the last two blanks before the pen's word itself.
    constexpr std::size_t kOwnBlanks = 2;
    GraphCurve curve;
    curve.note = titles.added.substr(0, titles.added.size() - kOwnBlanks);
    for (const FlowPoint& point : table) {
      if (!(point.lift > 0)) continue;
      const double y = ValueOf(graph.curve, port, point, values.testVelocity);
      curve.points.push_back({point.lift, y});
      largestLift = std::max(largestLift, point.lift);
      highest = std::max(highest, y);
    }
    plot.curves.push_back(std::move(curve));
    plot.ports.push_back(&port);
  };
  const bool isOfBoth = graph.hasIntake && graph.hasExhaust;
  const bool hasIntake = HasCurve(values.intakeFlow);
  const bool hasExhaust = HasCurve(values.exhaustFlow);
  if (graph.hasIntake && !(isOfBoth && !hasIntake && hasExhaust)) {
    add(true, values.intake, values.intakeFlow);
  }
  if (graph.hasExhaust && !(isOfBoth && !hasExhaust && hasIntake)) {
    add(false, values.exhaust, values.exhaustFlow);
  }
  plot.frame.range = {0, AxisLimit(largestLift), 0, AxisLimit(highest)};
  plot.frame.xPointer = "<--- Lift";
  plot.frame.xName = "Lift";
  plot.frame.yPointer = PointerOf(graph.curve);
  if (graph.curve == FlowCurve::Flow) {
    plot.frame.yPointer += "     Dashed: " + FormatInt(values.testVelocity, DecimalMark::Point) +
                           " CFM per Sq. Inch of Curtain and Throat";
  }
  return plot;
}

std::vector<GraphPoint> FlowLimit(const FlowPort& port, double testVelocity,
                                  const AxisRange& range) {
  const double throat = port.ThroatTotal() * testVelocity;
  const double perInch = port.valves.size * kPi * port.valves.count * testVelocity;
  // The curtain's line turns into the throat's, or leaves the graph before.
  const double top = std::min(throat, range.yHigh);
  std::vector<GraphPoint> points{{0, 0}};
  if (perInch * range.xHigh <= top) {
    points.push_back({range.xHigh, perInch * range.xHigh});
    return points;
  }
  points.push_back({top / perInch, top});
  if (throat < range.yHigh) points.push_back({range.xHigh, top});
  return points;
}

}  // namespace veldox
