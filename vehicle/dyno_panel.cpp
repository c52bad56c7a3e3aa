#include "vehicle/dyno_panel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "core/report.h"
#include "core/text.h"
#include "graph/graph_again.h"
#include "vehicle/field_bounds.h"

namespace veldox {
namespace {

constexpr const char* kImpossibleReport =
    "The report cannot be made: the values give numbers that are too large or none. Please check "
    "the torque table and the correction.";
constexpr const char* kImpossibleGraph =
    "The graph cannot be drawn: the values give numbers that are too large or none. Please check "
    "the torque table, the car and the correction.";

constexpr const char* kNoNitrous =
    "There is no Nitrous HP to graph: the Nitrous box is not checked.";

/// The columns of the sheet in the order of their buttons.
constexpr std::array kColumnGraphs{DynoGraph::Fuel,
                                   DynoGraph::Bsfc,
                                   DynoGraph::AirFuel,
                                   DynoGraph::Scfm,
                                   DynoGraph::VolumetricEfficiency,
                                   DynoGraph::Power,
                                   DynoGraph::Torque,
                                   DynoGraph::MeanPressure,
                                   DynoGraph::CorrectedPower,
                                   DynoGraph::CorrectedTorque,
                                   DynoGraph::CorrectionFactor,
                                   DynoGraph::Bsac};

/// The legends of all curves, a line each.
std::string LegendsOf(const PlotEngine& plot) {
  std::string legends;
  for (const PlotSeriesRecord& series : plot.series()) legends += series.Legend() + '\n';
  return legends;
}

/// True for a graph whose axes end where the user says.
bool HasLimits(RunGraph graph) {
  return graph != RunGraph::WheelTorqueOverRpm && graph != RunGraph::AccelerationOverTime &&
         graph != RunGraph::AccelerationOverRpm;
}

/// The four curves of torque and power, for a graph that stands already.
std::vector<GraphCurve> CurvesOf(const TorquePowerPlot& plot) {
  using Row = PlotEngine::DynoRow;
  struct Column {
    double Row::*value;
    const char* note;
    const char* noteOfShot;
  };
  constexpr std::array kColumns{
      Column{&Row::torque, "Torque", "Torque"},
      Column{&Row::otherTorque, "Corrected Torque", "Nitrous Torque"},
      Column{&Row::horsepower, "HP", "HP"},
      Column{&Row::otherHorsepower, "Corrected HP", "Nitrous HP"},
  };
  std::vector<GraphCurve> curves;
  for (const Column& column : kColumns) {
    GraphCurve curve;
    curve.note = plot.shot ? column.noteOfShot : column.note;
    for (const Row& row : plot.rows) curve.points.push_back({row.rpm, row.*column.value});
    curves.push_back(std::move(curve));
  }
  return curves;
}

}  // namespace

DynoPanel::DynoPanel(Screen& screen, RunInputs& inputs, Grapher& grapher)
    : ScreenPart(screen), inputs_(inputs), grapher_(grapher) {}

// ---------------------------------------------------------------- what is read

SheetCorrection DynoPanel::ReadCorrection() {
  Field& entered = inputs_.page.Text67;
  ReadFields({&entered, &Text83, &Text84, &Text85});
  const ParameterBlock& b = block();
  RequireUsual(b.DynoCorrection, entered);
  const SheetCorrection correction =
      CorrectionOfSheet(b.DynoCorrection, {b.DynoBP, b.DynoTemp, b.DynoVP});
  if (!correction.isEntered) {
    RequireUsual(b.DynoBP, Text83);
    Require(b.DynoVP >= 0 && b.DynoVP < b.DynoBP, Text84,
            "must be from 0 to below the Dyno Baro Pressure.");
    RequireUsable(b.DynoTemp, Text85);
    // Far below every weather, the rule ends.
    constexpr double kAbsoluteZero = -460;
    Require(b.DynoTemp > kAbsoluteZero, Text85, "must be above -460.");
    Require(correction.factor > 0, Text83, "gives no correction with the air of the dyno.");
    RequireResult(Text83, correction.factor, {&Text83, &Text84});
  }
  return correction;
}

DynoColumns DynoPanel::Columns() const {
  const ParameterBlock& b = block();
  const auto rows = static_cast<std::size_t>(
      std::clamp<int>(b.AccelRowCount, 0, static_cast<int>(b.AccelRpm.size())));
  const auto column = [rows](const auto& whole) {
    return std::span<const double>(whole).first(rows);
  };
  return {column(b.AccelRpm),     column(b.AccelTorque), column(b.AccelFuel), column(b.AccelBsfc),
          column(b.AccelAirFuel), column(b.AccelScfm),   column(b.AccelBsac)};
}

DynoGraphValues DynoPanel::ReadValues() {
  DynoGraphValues values;
  values.correction = ReadCorrection().factor;
  values.cubicInches = block().CubicInches;
  const std::string smooth = Lower(Trim(Text40.text()));
  Require(smooth == "y" || smooth == "n", Text40, "must be Y or N.");
  values.smooth = smooth == "y";
  block().SmoothHPGraph = Text40.text();
  return values;
}

RunGraphLimits DynoPanel::ReadLimits(RunGraph graph) {
  if (!HasLimits(graph)) return {};
  ReadFields({&Text7, &Text39, &Text3});
  const ParameterBlock& b = block();
  RequireUsual(b.GraphDynoXHigh, Text7);
  RequireUsable(b.GraphDynoYHigh, Text39);
  RequireUsable(b.GraphDynoYLow, Text3);
  Require(b.GraphDynoYHigh > b.GraphDynoYLow, Text39, "must be above the Graph Y Low Value.");
  return {b.GraphDynoXHigh, b.GraphDynoYHigh, b.GraphDynoYLow};
}

// ---------------------------------------------------------------- graphs

CommandWork DynoPanel::Graphs(RunGraph graph) {
  return {[this, graph](Screen&, int) { Draw([this, graph](bool adds) { DrawRun(graph, adds); }); },
          CommandRole::Calculates};
}

void DynoPanel::GraphColumn(int index) {
  const DynoGraph graph = kColumnGraphs.at(static_cast<std::size_t>(index));
  Draw([this, graph](bool adds) { DrawColumn(graph, adds); });
}

void DynoPanel::GraphTorquePower() {
  Draw([this](bool adds) { DrawTorquePower(adds); });
}

void DynoPanel::Draw(const Graph& graph) {
  graph(false);
  last_ = graph;
}

void DynoPanel::GraphAgain() {
  if (*last_ == nullptr) RefuseGraphAgain("graph");
  (*last_)(grapher_.HasGraph());
}

void DynoPanel::DrawRun(RunGraph graph, bool adds) {
  if (graph == RunGraph::NitrousOverTime && !inputs_.page.Check3.on()) {
    throw CommandError(ErrorKind::InvalidArgument, kNoNitrous);
  }
  const RunGraphLimits limits = ReadLimits(graph);
  RunPlot plot = inputs_.Told(
      [&] { return PlotRun(graph, inputs_.ReadRun(), limits, Check8.on(), inputs_.Listener()); });
  const std::size_t before = grapher_.plot().series().size();
  const bool addsToRuns = adds && *runs_ > 0 && LegendsOf(grapher_.plot()) == *legends_;
  if (addsToRuns) {
    const std::string name = "Run " + std::to_string(*runs_ + 1);
    for (GraphCurve& curve : plot.curves) {
      curve.note = curve.note.empty() ? name : name + ", " + curve.note;
    }
  }
  ShowPlot(plot, adds);
  if (addsToRuns && *runs_ == 1) grapher_.ChangePlot().NameCurves("Run 1", before);
  runs_ = addsToRuns ? *runs_ + 1 : adds ? 0 : 1;
  legends_ = LegendsOf(grapher_.plot());
  // Graphs of the gears apart know nothing of the strip.
  if (plot.result.Et() > 0) inputs_.KeepResult(plot.result);
}

void DynoPanel::DrawColumn(DynoGraph graph, bool adds) {
  ShowPlot(PlotDyno(graph, Columns(), ReadValues()), adds);
}

void DynoPanel::ShowPlot(const RunPlot& plot, bool adds) {
  // Flags of what was computed tell of numbers that are none.
  BuildReport([] { return std::string{}; }, kImpossibleGraph);
  for (const GraphCurve& curve : plot.curves) {
    PlotEngine::RequireSeries(curve.points, curve.note, curve.fewestPoints);
  }
  if (adds) {
    grapher_.AddToGraph(plot.curves, plot.frame.range);
  } else {
    grapher_.DrawGraph(plot.frame, plot.curves);
  }
  grapher_.ShowGraph();
}

void DynoPanel::DrawTorquePower(bool adds) {
  const DynoGraphValues values = ReadValues();
  AccelerationInputs inputs;
  const DynoColumns columns = Columns();
  inputs.tableRpm = columns.rpm;
  inputs.tableTorque = columns.torque;
  AccelerationPage& page = inputs_.page;
  ReadFields({&page.Text12});
  inputs.nitrous = page.Check3.on();
  if (inputs.nitrous) {
    inputs_.stages.ReadStages();
    inputs.nitrousStages = block().NitrousMS;
  }
  const TorquePowerPlot plot =
      inputs_.Told([&] { return PlotTorquePower(inputs, values, block().TransGear); });
  GraphFrame frame;
  frame.range = plot.range;
  if (adds) {
    ShowPlot({frame, CurvesOf(plot), {}}, true);
    return;
  }
  BuildReport([] { return std::string{}; }, kImpossibleGraph);
  grapher_.DrawOwnGraph(frame, [&plot](PlotEngine& engine) {
    if (plot.shot) {
      engine.DrawNitrousGraph(plot.rows, *plot.shot);
    } else {
      engine.DrawDynoGraph(plot.rows);
    }
  });
  grapher_.ShowGraph();
}

// ---------------------------------------------------------------- the sheet

void DynoPanel::ReportSheet() {
  DynoSheetLayout layout;
  layout.correction = ReadCorrection();
  layout.cubicInches = block().CubicInches;
  layout.compact = Check9.on();
  layout.newtonMetres = Check10.on();
  std::string report =
      BuildReport([&] { return DynoSheetReport(Columns(), layout, mark()); }, kImpossibleReport);
  const int size = FontSizeByWidth(report);
  ShowReport(std::move(report), size);
}

}  // namespace veldox
