#include "cam/lift_graphs.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/units.h"

namespace veldox {

namespace {

struct GraphKind {
  const char* name;
  LiftQuantity quantity;
};

constexpr std::array<GraphKind, kLiftGraphCount> kKinds = {{
    {"Cam Lift", {0, false, false}},
    {"Valve Lift", {0, true, false}},
    {"Vel Cam", {1, false, false}},
    {"Vel Cam fps", {1, false, true}},
    {"Vel Valve", {1, true, false}},
    {"Accel Cam", {2, false, false}},
    {"Accel Cam fps", {2, false, true}},
    {"Jerk Cam", {3, false, false}},
    {"Vel Valve fps", {1, true, true}},
    {"Accel Valve fps", {2, true, true}},
    {"Accel Valve", {2, true, false}},
}};

const GraphKind& KindOf(LiftGraph graph) {
  return kKinds.at(static_cast<std::size_t>(graph));
}

/// The unit of a quantity, with what its degrees are taken for.
std::string UnitOf(const LiftGraphInput& input) {
  const LiftQuantity quantity = QuantityOf(input.graph);
  std::string unit = quantity.inFeetASecond ? "ft/s" : input.metric ? "mm" : "in";
  if (quantity.order > 0 && !quantity.inFeetASecond) unit += "/deg";
  for (int order = 2; order <= quantity.order; ++order) {
    unit += input.analysis.differencesByRecord ? " per record" : "/deg";
  }
  if (quantity.inFeetASecond) {
    unit += input.camDegrees ? "  (cam degrees of the file taken as crank degrees: twice too high)"
                             : "  (degrees of the file taken as crank degrees)";
  }
  return unit;
}

std::string NumberText(double value, DecimalMark mark) {
  return FormatValue<"0.0#####">(value, mark);
}

}  // namespace

LiftQuantity QuantityOf(LiftGraph graph) {
  return KindOf(graph).quantity;
}

const char* NameOf(LiftGraph graph) {
  return KindOf(graph).name;
}

GraphCurve LiftGraphCurve(const LiftGraphInput& input, DecimalMark mark) {
  constexpr double kStandardLift = 0.050;
  constexpr double kLowStandardLift = 0.040;
  const LiftQuantity quantity = QuantityOf(input.graph);
  const LiftAnalysis& analysis = input.analysis;
  GraphCurve curve;
  curve.fewestPoints = 0;
  curve.boxes = input.boxes;
  const LiftValues values = Analyse(analysis, quantity);
  const std::vector<double> lifts =
      quantity.ofValve ? AnalysedLifts(analysis) : std::vector<double>();
  curve.points.reserve(values.values.size());
  bool interrupted = false;
  for (int i = values.first; i <= values.last(); ++i) {
    if (quantity.ofValve && !IsOffSeat(analysis, lifts[static_cast<std::size_t>(i)])) {
      interrupted = true;
      continue;
    }
    if (interrupted && !curve.points.empty()) curve.moves.push_back(curve.points.size());
    interrupted = false;
    curve.points.push_back({i * analysis.table.step, values[i]});
  }
  if (quantity.order == 0) {
    curve.standardLine = (input.standardLineAt040 ? kLowStandardLift : kStandardLift) *
                         (input.metric ? kMillimetresPerInch : 1);
  }
  curve.note = std::string(input.exhaust ? "Exhaust " : "Intake ") + NameOf(input.graph);
  if (!input.fileName.empty()) curve.note += "  " + input.fileName;
  if (quantity.ofValve) {
    curve.note += "  Ratio " + NumberText(analysis.ratio, mark);
    curve.note += "  Lash " + NumberText(analysis.lash, mark);
  }
  if (quantity.inFeetASecond) curve.note += "  RPM " + FormatInt(analysis.rpm, mark);
  if (analysis.smoothing) {
    curve.note += "  Smooth ";
    curve.note += NameOf(*analysis.smoothing);
    if (analysis.smoothsLift) curve.note += " S L D";
  }
  return curve;
}

double RoundedPeak(const LiftQuantity& quantity, double largest) {
  constexpr double kRoundSpeed = 100;
  const double peak = std::max(largest, 0.0);
  if (quantity.inFeetASecond && peak >= kRoundSpeed) {
    return (Floor(peak / kRoundSpeed) + 1) * kRoundSpeed;
  }
  struct Rule {
    double from;
    double factor;
  };
  constexpr std::array<Rule, 5> kRules = {
      {{0.1, 10}, {0.01, 100}, {0.001, 1000}, {0.0001, 100000}, {0, 1000000}}};
  // Lifts have no finer rule than the thousandth.
  constexpr double kFinestOfLifts = 1000;
  for (const Rule& rule : kRules) {
    if (peak >= rule.from || (quantity.order == 0 && rule.factor == kFinestOfLifts)) {
      return Floor(peak * rule.factor + 1) / rule.factor;
    }
  }
  return 1;
}

GraphFrame LiftGraphFrame(const LiftGraphInput& input, const GraphCurve& curve, DecimalMark mark) {
  constexpr double kUnderBaseCircle = -0.05;  // inches
  constexpr double kEmptyAxis = 360;          // degrees
  const LiftQuantity quantity = QuantityOf(input.graph);
  const LiftAnalysis& analysis = input.analysis;
  const bool isLift = quantity.order == 0;
  double largest = 0;
  for (const GraphPoint& point : curve.points) {
    largest = std::max(largest, isLift ? point.y : std::abs(point.y));
  }
  GraphFrame frame;
  frame.range.xHigh = analysis.table.count * analysis.table.step;
  if (!(frame.range.xHigh > 0)) frame.range.xHigh = kEmptyAxis;
  frame.range.yHigh = RoundedPeak(quantity, largest);
  frame.range.yLow =
      isLift ? kUnderBaseCircle * (input.metric ? kMillimetresPerInch : 1) : -frame.range.yHigh;
  frame.zeroLine = true;
  frame.xPointer = "<--- Degrees";
  frame.xName = input.camDegrees ? "Cam Degrees" : "Degrees";
  frame.yPointer = std::string("<--- ") + NameOf(input.graph) + "  " + UnitOf(input);
  frame.title = input.title;
  if (!frame.title.empty()) frame.title += "   ";
  frame.title += "Rocker Ratio = " + NumberText(analysis.ratio, mark) +
                 "   Lash = " + NumberText(analysis.lash, mark) +
                 "   RPM = " + FormatInt(analysis.rpm, mark);
  return frame;
}

}  // namespace veldox
