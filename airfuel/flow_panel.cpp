#include "airfuel/flow_panel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "core/files.h"
#include "core/text.h"
#include "core/units.h"
#include "core/version.h"
#include "graph/axis_growth.h"
#include "graph/graph_again.h"

namespace veldox {

namespace {

constexpr int kReportFontSize = 9;
/// No valve opens that far in inches, and every one does in millimeters.
constexpr double kLargestLift = 2;
/// A fall of flow from one lift to the next that a port hardly has.
constexpr double kOddFall = 0.03;

constexpr const char* kFlowFilter =
    "Flow Files (*.flw, *.dfw)|*.flw; *.dfw|DeskTop Dyno Files (*.dyn)|*.dyn|Cam Quest Files "
    "(*.cqu)|*.cqu|Dynomation Files (*.dym)|*.dym|All Files (*.*)|*.*";
constexpr const char* kExportFilter = "Flow Data Files (*.dfw)|*.dfw";
constexpr const char* kNoFile = "No Flow File Selected";
constexpr const char* kManyPoints =
    "There are more than 10 Data Point. This may cause problems with some software / programs.";
constexpr const char* kImpossibleReport =
    "The report cannot be made: the values give numbers that are too large or none. Please check "
    "the flow tables, the valves and the engine.";
constexpr const char* kImpossibleGraph =
    "The graph cannot be drawn: the values give numbers that are too large or none. Please check "
    "the flow tables and the valves.";
constexpr const char* kAboveZero = "must be above 0.";

/// The entry of the dialog's filter that a file belongs to, from 1.
int FilterIndexOf(const std::filesystem::path& path) {
  constexpr std::array<std::string_view, 5> kEndings = {".flw", ".dfw", ".dyn", ".cqu", ".dym"};
  constexpr std::array<int, 5> kIndexes = {1, 1, 2, 3, 4};
  constexpr int kAllFiles = 5;
  const std::string ending = Lower(path.extension().string());
  const auto* const found = std::ranges::find(kEndings, ending);
  return found == kEndings.end() ? kAllFiles
                                 : kIndexes[static_cast<std::size_t>(found - kEndings.begin())];
}

std::string RowText(int row) {
  return std::to_string(row + 1);
}

/// The discharge coefficient that goes with the figures of a table.
double CoefficientOf(FlowFigures figures, const FlowPort& port, const FlowPoint& point,
                     double testVelocity) {
  switch (figures) {
    case FlowFigures::Original:
    case FlowFigures::Curtain: break;
    case FlowFigures::Throat:
    case FlowFigures::FlowPerArea: return ThroatCoefficient(port, point.flow, testVelocity);
    case FlowFigures::Valve: return ValveCoefficient(port, point.flow, testVelocity);
  }
  return CurtainCoefficient(port, point, testVelocity);
}

/// What is odd about a port's flow, a line each.
std::string NotesOn(const char* name, const FlowPort& port, const FlowTable& table,
                    FlowFigures figures, double testVelocity) {
  std::string coefficients, falls, order, gaps, large;
  const auto add = [](std::string& rows, std::size_t row) {
    rows += (rows.empty() ? "" : ", ") + RowText(static_cast<int>(row));
  };
  FlowPoint before;
  bool skipped = false;  // a row with lift and no flow stands before this one
  for (std::size_t row = 0; row < table.size(); ++row) {
    const FlowPoint& point = table[row];
    if (!(point.lift > 0)) continue;
    if (point.lift > kLargestLift) add(large, row);
    if (point.lift <= before.lift) add(order, row);
    if (CoefficientOf(figures, port, point, testVelocity) > 1) add(coefficients, row);
    if (point.flow > 0) {
      if (point.flow < before.flow * (1 - kOddFall)) add(falls, row);
      if (skipped) add(gaps, row);
      before = point;
    } else {
      skipped = true;
      before.lift = point.lift;
    }
  }
  std::string notes;
  const auto tell = [&](const std::string& rows, const char* what) {
    if (!rows.empty()) notes += std::string(name) + what + rows + ".\r\n";
  };
  tell(large, ": the lift is more than 2 inches, perhaps millimeters, in row ");
  tell(order, ": the lift does not rise in row ");
  tell(gaps, ": rows before have lift but no flow, row ");
  tell(coefficients, ": more flow than the area passes, a coefficient above 1, in row ");
  tell(falls, ": the flow falls oddly in row ");
  return notes;
}

}  // namespace

FlowPanel::FlowPanel(Screen& screen, ValvePanel& valves, MachPanel& mach, GraphPanel& graphs,
                     Grapher& grapher)
    : ScreenPart(screen), valves_(valves), mach_(mach), graphs_(graphs), grapher_(grapher) {}

void FlowPanel::Tell(const std::string& text, Icon icon) const {
  const ProgramContext& context = screen().context();
  context.host.Ask({icon, context.rules.messages().MessageTitle, text, {Button::OK}});
}

// ---------------------------------------------------------------- tables

FlowTable FlowPanel::ReadTable(const Columns& columns) const {
  FlowTable table;
  for (std::size_t row = 0; row < table.size(); ++row) {
    Field& lift = columns.lifts[static_cast<int>(row)];
    Field& flow = columns.flows[static_cast<int>(row)];
    // A row that was emptied is none.
    if (Trim(lift.text()).empty() && Trim(flow.text()).empty()) continue;
    ReadFields({&lift, &flow});
    table[row] = {Read(lift), Read(flow)};
  }
  return table;
}

FlowTable FlowPanel::ReadIntake() {
  return ReadTable(IntakeColumns());
}

FlowTable FlowPanel::ReadExhaust() {
  return ReadTable(ExhaustColumns());
}

FlowReportValues FlowPanel::ReadFlow() {
  ValvePanel::Ports ports = valves_.ThroatAreas();
  ReadFields({&Text70});
  Require(block().TestDepression > 0, Text70, kAboveZero);
  valves_.McsaDefaults(ports);
  FlowReportValues values;
  values.testVelocity = TestVelocity(block().TestDepression);
  RequireResult(Text70, values.testVelocity);
  values.intake = ports.intake;
  values.exhaust = ports.exhaust;
  values.intakeFlow = ReadIntake();
  values.exhaustFlow = ReadExhaust();
  return values;
}

void FlowPanel::ReadEngine(FlowReportValues& values) {
  ReadFields({&mach_.Text52, &mach_.Text53, &Text113});
  const ParameterBlock& b = block();
  values.bore = b.Bore;
  values.stroke = b.Stroke;
  values.rod = b.RodLength;
}

void FlowPanel::ShowNotes(std::string lines) {
  while (lines.ends_with('\n') || lines.ends_with('\r')) lines.pop_back();
  ShowText(FlowNotes, std::move(lines));
}

void FlowPanel::NoteFlow(const FlowReportValues& values) {
  const ValvePanel::Ports ports{values.intake, values.exhaust};
  const auto figures = static_cast<FlowFigures>(Option2.chosen());
  ShowText(
      FlowNotes,
      *source_ + ValvePanel::ThroatNotes(ports) +
          NotesOn("Intake", values.intake, values.intakeFlow, figures, values.testVelocity) +
          NotesOn("Exhaust", values.exhaust, values.exhaustFlow, figures, values.testVelocity));
}

void FlowPanel::ShowFigures(const Columns& columns, const FlowPort& port, const FlowTable& table,
                            double testVelocity) {
  const auto figures = static_cast<FlowFigures>(Option2.chosen());
  for (std::size_t row = 0; row < table.size(); ++row) {
    Field& first = columns.firstFigures[static_cast<int>(row)];
    Field& second = columns.secondFigures[static_cast<int>(row)];
    if (!(table[row].lift > 0)) {
      ShowText(first, "-");
      ShowText(second, "-");
      continue;
    }
    const FlowFigurePair pair = FiguresOf(figures, port, table[row], testVelocity);
    ShowAs<".000">(first, pair.first);
    if (figures == FlowFigures::FlowPerArea) {
      ShowAs<".000">(second, pair.second);
    } else {
      Show(second, pair.second);
    }
  }
}

void FlowPanel::Calculate() {
  const FlowReportValues values = ReadFlow();
  const FlowFigureHeads heads = HeadsOf(static_cast<FlowFigures>(Option2.chosen()));
  constexpr int kFirstFigure = 2;
  for (Table* table : {&IntakeTable, &ExhaustTable}) {
    table->SetHead(kFirstFigure, heads.first);
    table->SetHead(kFirstFigure + 1, heads.second);
  }
  ShowFigures(IntakeColumns(), values.intake, values.intakeFlow, values.testVelocity);
  ShowFigures(ExhaustColumns(), values.exhaust, values.exhaustFlow, values.testVelocity);
  NoteFlow(values);
}

void FlowPanel::ClearTable(const Columns& columns) const {
  for (int row = 0; row < columns.lifts.count(); ++row) {
    ShowText(columns.lifts[row], FormatValue<"0.000">(0, mark()));
    ShowText(columns.flows[row], FormatValue<"0.0">(0, mark()));
    ShowText(columns.firstFigures[row], "-");
    ShowText(columns.secondFigures[row], "-");
  }
}

void FlowPanel::ClearTables() {
  ClearTable(IntakeColumns());
  ClearTable(ExhaustColumns());
  source_ = {};
  ShowNotes({});
}

void FlowPanel::LiftsToInches() {
  bool found = false;
  for (const Columns& columns : {IntakeColumns(), ExhaustColumns()}) {
    const FlowTable table = ReadTable(columns);
    const bool isMetric = std::ranges::any_of(
        table, [](const FlowPoint& point) { return point.lift > kLargestLift; });
    if (!isMetric) continue;
    found = true;
    for (std::size_t row = 0; row < table.size(); ++row) {
      if (table[row].lift == 0) continue;
      Field& lift = columns.lifts[static_cast<int>(row)];
      ShowAs<"0.0####">(lift, table[row].lift / kMillimetresPerInch);
    }
  }
  ShowNotes(found ? "Valve lifts were changed from millimeters to inches.\r\n"
                  : "No valve lift is above 2, so all are taken as inches.\r\n");
}

// ---------------------------------------------------------------- files

void FlowPanel::ShowPort(const Columns& columns, const FlowFilePort& port) const {
  for (std::size_t row = 0; row < port.lifts.size(); ++row) {
    ShowAs<"0.0####">(columns.lifts[static_cast<int>(row)], port.lifts[row]);
  }
  for (std::size_t row = 0; row < port.flows.size(); ++row) {
    ShowAs<"0.0####">(columns.flows[static_cast<int>(row)],
                      FlowAtTablePressure(port.flows[row], port.testPressure));
  }
}

void FlowPanel::ShowFile(const FlowFile& file, const std::string& name) {
  if (!file.intake.valveSize) return;
  ShowAs<".000">(valves_.Text42, *file.intake.valveSize);
  ClearTable(IntakeColumns());
  ClearTable(ExhaustColumns());
  ShowPort(IntakeColumns(), file.intake);
  if (file.exhaust.valveSize) ShowAs<".000">(valves_.Text45, *file.exhaust.valveSize);
  ShowPort(ExhaustColumns(), file.exhaust);
  if (file.fault) return;
  ShowText(valves_.Text62, std::to_string(file.intakeValves.value_or(1)));
  ShowText(valves_.Text63, std::to_string(file.exhaustValves.value_or(1)));
  // The flow stands at this pressure now, whatever it was measured at.
  ShowText(Text70, FormatInt(kTablePressure, mark()));
  source_ = "Flow of " + name + ", at 28 inches of water.\r\n";
  ShowNotes(source_);
}

void FlowPanel::ReadFlowFile() {
  Host& host = screen().context().host;
  const auto path =
      host.AskFile({FileDialog::Kind::Open, kFlowFilter, filterIndex_, host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::InvalidArgument, kNoFile);
  filterIndex_ = FilterIndexOf(*path);
  const std::string name = PathText(path->filename());
  const FlowFile file = ParseFlowFile(DecodeText(LoadFile(*path)), name, mark());
  if (file.hasNoFlow) {
    Tell(kNoFlowInformation, Icon::Warning);
    return;
  }
  ShowFile(file, name);
  if (file.fault) {
    source_ = file.fault->message() + "\r\n";
    ShowNotes(source_);
    Tell(kFlowFileProblem, Icon::Warning);
  }
  Tell(FormatValue<"#,##0">(file.linesRead, mark()) + " Records Read");
}

void FlowPanel::ExportFlowFile() {
  const ValvePanel::Ports ports = valves_.ReadValves();
  const FlowTable intake = ReadIntake();
  const FlowTable exhaust = ReadExhaust();
  Host& host = screen().context().host;
  const auto path = host.AskFile({FileDialog::Kind::Save, kExportFilter, 1, host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  const std::string version = std::to_string(kVersionMajor) + '.' + std::to_string(kVersionMinor) +
                              '.' + std::to_string(kVersionRevision);
  const std::string title =
      FlowFileTitle(screen().context().rules.messages().MessageTitle, version);
  const FlowExportText file = WriteFlowFile(
      {ports.intake.valves.size, ports.exhaust.valves.size, intake, exhaust}, title, mark());
  SaveFile(*path, file.text);
  if (std::max(file.intakePoints, file.exhaustPoints) > kMostPointsOfOthers) Warn(kManyPoints);
}

// ---------------------------------------------------------------- reports and graphs

void FlowPanel::ReportFlow() {
  FlowReportValues values = ReadFlow();
  valves_.RequireSeats({values.intake, values.exhaust});
  ReadEngine(values);
  ShowReport(BuildReport([&] { return FlowReport(values, mark()); }, kImpossibleReport),
             kReportFontSize);
  NoteFlow(values);
}

void FlowPanel::ReportPistonDemand() {
  FlowReportValues values = ReadFlow();
  ReadEngine(values);
  Require(values.stroke > 0, mach_.Text53, kAboveZero);
  Require(values.rod > 0, Text113, kAboveZero);
  ShowReport(BuildReport([&] { return PistonDemandReport(values, mark()); }, kImpossibleReport),
             kReportFontSize);
  NoteFlow(values);
}

void FlowPanel::Graph(const FlowGraph& graph, bool adds) {
  const FlowReportValues values = ReadFlow();
  FlowPlot plot = PlotFlow(graph, values);
  if (const double largest = graphs_.ReadMaxLift(); largest > 0) plot.frame.range.xHigh = largest;
  // Flags of what was computed tell of numbers that are none.
  BuildReport([] { return std::string{}; }, kImpossibleGraph);
  for (const GraphCurve& curve : plot.curves) PlotEngine::RequireSeries(curve.points, curve.note);
  if (adds && ShowsFlow(plot)) {
    AxisRange range = grapher_.plot().scale();
    for (const GraphCurve& curve : plot.curves) range = GrownBy(range, curve, plot.frame.range);
    graphs_.AddTo(grapher_, plot.curves, range);
  } else {
    graphs_.Draw(grapher_, plot.frame, plot.curves);
    lastGraph_ = graph;
    if (graph.curve == FlowCurve::Flow) DrawLimits(values.testVelocity, plot);
  }
  grapher_.ShowGraph();
  NoteFlow(values);
}

bool FlowPanel::ShowsFlow(const FlowPlot& plot) const {
  const PlotEngine& shown = grapher_.plot();
  return grapher_.HasGraph() && shown.Caption(kXNameCaption) == plot.frame.xName &&
         shown.Caption(kYPointerCaption) == plot.frame.yPointer;
}

void FlowPanel::DrawLimits(double testVelocity, const FlowPlot& plot) {
  PlotEngine& engine = grapher_.ChangePlot();
  for (std::size_t i = 0; i < plot.ports.size(); ++i) {
    const std::vector<GraphPoint> points =
        FlowLimit(*plot.ports[i], testVelocity, plot.frame.range);
    const Pen pen{engine.series()[i].color, 1, LineStyle::Dash};
    for (std::size_t j = 1; j < points.size(); ++j) {
      engine.PlotAdjustedLine(points[j - 1], points[j], pen);
    }
  }
}

void FlowPanel::GraphAgain() {
  if (!lastGraph_->has_value()) RefuseGraphAgain("flow graph");
  Graph(**lastGraph_, true);
}

}  // namespace veldox
