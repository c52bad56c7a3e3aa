#include "airfuel/choke_panel.h"

namespace veldox {

namespace {

constexpr int kReportFontSize = 9;
constexpr const char* kAboveZero = "must be above 0.";
constexpr const char* kImpossibleReport =
    "The report cannot be made: the values give numbers that are too large or none. Please check "
    "the engine, the valves and the lifts.";
constexpr const char* kImpossibleGraph =
    "The graph cannot be drawn: the values give numbers that are too large or none. Please check "
    "the engine, the valves and the lifts.";

}  // namespace

ChokeValues ChokePanel::ReadValues() {
  ReadFields({&page_.Text27});
  // The speed of most horsepower is the one that other screens work with now.
  block().RPM = block().RPMMaxHorsePower;
  ReadFields({&page_.Text11, &Text83, &Text61, &mach_.Text52, &mach_.Text53});
  const ParameterBlock& b = block();
  Require(b.RPMMaxHorsePower > 0, page_.Text27, kAboveZero);
  Require(b.UserVelocityfps > 0, Text83, kAboveZero);
  Require(b.UserDC > 0, Text61, kAboveZero);
  Require(b.Bore > 0, mach_.Text52, kAboveZero);
  Require(b.Stroke > 0, mach_.Text53, kAboveZero);
  const ValvePanel::Ports ports = valves_.ThroatAreas();
  ChokeValues values;
  values.engine.bore = b.Bore;
  values.engine.stroke = b.Stroke;
  values.engine.intakeValve = ports.intake.valves.size;
  values.engine.exhaustValve = ports.exhaust.valves.size;
  values.engine.intakeCount = ports.intake.valves.count;
  values.engine.exhaustCount = ports.exhaust.valves.count;
  values.engine.dischargeCoefficient = b.UserDC;
  values.engine.logic = static_cast<ExhaustLogic>(Option9.chosen());
  values.rpm = b.RPMMaxHorsePower;
  values.volumetricEfficiency = b.VolumetricEfficiency;
  values.userVelocity = b.UserVelocityfps;
  values.throats = {ports.intake.ThroatTotal(), ports.exhaust.ThroatTotal()};
  for (const FlowPoint& point : flow_.ReadIntake()) {
    if (point.lift > 0) values.lifts.push_back(point.lift);
  }
  return values;
}

void ChokePanel::ReportChoke() {
  const ChokeValues values = ReadValues();
  ShowReport(BuildReport([&] { return ChokeReport(values, mark()); }, kImpossibleReport),
             kReportFontSize);
}

void ChokePanel::GraphChoke() {
  const ChokeValues values = ReadValues();
  const ChokePlot plot = PlotChoke(values);
  // Flags of what was computed tell of numbers that are none.
  BuildReport([] { return std::string{}; }, kImpossibleGraph);
  for (const GraphCurve& curve : plot.curves) PlotEngine::RequireSeries(curve.points, curve.note);
  grapher_.DrawGraph(plot.frame, plot.curves);
  grapher_.ShowGraph();
}

}  // namespace veldox
