#include "airfuel/time_area_panel.h"

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "cam/cam_timing.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr int kReportFontSize = 8;
constexpr double kHalfTurn = 180;
/// The most lifts that timing is told at.
constexpr double kMostTimingLifts = 100;

constexpr const char* kAboveZero = "must be above 0.";
constexpr const char* kShortRod = "is too short: it must reach over half of the stroke.";
constexpr const char* kManyLifts = "must be larger: there would be more than 100 lines of timing.";
constexpr const char* kNoRise = "must be above the lift before it.";
constexpr const char* kNoFall = "must be shorter than that of the lift before it.";
constexpr const char* kFewRows =
    "Lift Table needs two rows with durations at least. Please enter them, or press \"Set Lift "
    "Table\" with a cam loaded.";
constexpr const char* kNoCam =
    "No cam is loaded. Please read a lift file by \"Read Cam Lift File\" first.";
constexpr const char* kNoCamNote =
    "No cam is loaded: Port Time Area works with the lift tables alone, all else needs a lift "
    "file.";
constexpr const char* kNoIntakeLobe =
    "The lift file has no intake: its lift table is as it was. The exhaust's is that of the cam.";
constexpr const char* kNoExhaustLobe =
    "The lift file has no exhaust: its lift table is as it was. The intake's is that of the cam.";
constexpr const char* kCutTable =
    "The highest lift of the flow table has no row: the first row of a lift table is that of no "
    "lift.";
constexpr const char* kImpossibleReport =
    "The report cannot be made: the values give numbers that are too large or none. Please check "
    "the engine, the valves, the flow and the cam.";
constexpr const char* kImpossibleGraph =
    "The graph cannot be drawn: the values give numbers that are too large or none. Please check "
    "the engine, the valves, the flow and the cam.";

CamSide SideOf(const TimeAreaSide& side) {
  return side.port.isExhaust ? CamSide::Exhaust : CamSide::Intake;
}

}  // namespace

TimeAreaPanel::TimeAreaPanel(Screen& screen, const Parts& parts, CamFiles& files, Grapher& grapher)
    : ScreenPart(screen), parts_(parts), files_(files), grapher_(grapher) {
  Skip.SetOn(true);
  for (Control* control :
       std::initializer_list<Control*>{&Text92, &Text88, &Text93, &Text91, &Text85, &Text87,
                                       &Text74, &Text75, &Dohc, &CamDegrees, &Skip}) {
    control->WhenChanged([this] { ShowCam(); });
  }
  const auto dim = [this](Table& table, const FieldArray& durations) {
    table.DimRows([this, &durations](int row) {
      const std::string& text = durations[row].text();
      return !IsNumber(text, mark()) || !(ParseNumber(text, mark()) > 0);
    });
  };
  dim(IntakeTable, Text96);
  dim(ExhaustTable, Text96Exhaust);
  ShowCam();
}

void TimeAreaPanel::Open() {
  ShowCam();
  Frame12.Open();
}

void TimeAreaPanel::TakeLashes(std::optional<double> intake, std::optional<double> exhaust) {
  const auto show = [this](Field& field, double inches) {
    field.SetText(FormatValue<"0.0####">(AsShown(field, inches), mark()));
  };
  if (intake) show(Text88, *intake);
  if (exhaust) show(Text91, *exhaust);
  // Whoever has read the file, it is in the tables now.
  ShowCam();
}

TimeAreaPanel::SideFields TimeAreaPanel::FieldsOf(CamSide side) {
  if (side == CamSide::Intake) return {Text92, Text88, Text72, Text85, Text95, Text96};
  return {Text93, Text91, Text73, Text87, Text95Exhaust, Text96Exhaust};
}

void TimeAreaPanel::ConvertUnits() {
  ReadFields({&Text88, &Text91, &Text77, &Text68});
  SwitchUnits();
  if (screen().metric()) screen().ShowHelp(screen().context().rules.messages().PartialMetricNote);
  ShowCam();
}

// ---------------------------------------------------------------- what is entered

TimeAreaSide TimeAreaPanel::ReadGear(CamSide side) {
  const SideFields fields = FieldsOf(side);
  ReadFields(
      {&fields.ratio, &fields.lash, &fields.valveAngle, &fields.valveOpen, &Text74, &Text75});
  const ParameterBlock& b = block();
  const bool isExhaust = side == CamSide::Exhaust;
  TimeAreaSide read;
  read.port.isExhaust = isExhaust;
  read.port.valveAngle = isExhaust ? b.ExhaustValveAngle : b.IntakeValveAngle;
  const double ratio = isExhaust ? b.ExhaustRockerArmRatio : b.RockerArmRatio;
  Require(ratio > 0, fields.ratio, kAboveZero);
  read.gear = {ratio, isExhaust ? b.ExhaustLash : b.IntakeLash, ratio};
  read.valveOpen = isExhaust ? b.ExhaustOpenBBDC : b.IntakeOpenBTDC;
  read.advance = isExhaust && Dohc.on() ? b.ExhAdvanceRetard : b.AFAdvanceRetard;
  return read;
}

TimeAreaValues TimeAreaPanel::ReadValues() {
  ReadFields({&parts_.mach.Text52, &parts_.mach.Text53, &parts_.flow.Text113, &Text94,
              &parts_.page.Text2, &parts_.choke.Text61, &Text77});
  const ParameterBlock& b = block();
  TimeAreaValues values;
  values.engine = {b.Bore, b.Stroke, b.RodLength, b.WristPinOffset, b.RPM};
  values.userCoefficient = b.UserDC;
  values.valveClearance = b.ValvetoPistonCl;
  values.inMillimetres = screen().metric();
  Require(b.Bore > 0, parts_.mach.Text52, kAboveZero);
  Require(b.Stroke > 0, parts_.mach.Text53, kAboveZero);
  Require(b.RodLength > b.Stroke / 2 + std::abs(b.WristPinOffset), parts_.flow.Text113, kShortRod);
  Require(b.RPM > 0, parts_.page.Text2, kAboveZero);
  Require(b.UserDC > 0, parts_.choke.Text61, kAboveZero);
  values.intake = ReadGear(CamSide::Intake);
  values.exhaust = ReadGear(CamSide::Exhaust);
  ValvePanel::Ports ports = parts_.valves.ThroatAreas();
  parts_.valves.RequireSeatsInUse(ports);
  parts_.valves.McsaDefaults(ports);
  values.intake.port.port = ports.intake;
  values.exhaust.port.port = ports.exhaust;
  values.intake.port.flow = parts_.flow.ReadIntake();
  values.exhaust.port.flow = parts_.flow.ReadExhaust();
  return values;
}

std::vector<LiftDuration> TimeAreaPanel::ReadLiftTable(CamSide side) {
  const SideFields fields = FieldsOf(side);
  const auto& table = side == CamSide::Intake ? block().IntakeLiftTable : block().ExhaustLiftTable;
  std::vector<LiftDuration> rows;
  for (int row = 0; row < fields.lifts.count(); ++row) {
    Field& lift = fields.lifts[row];
    Field& duration = fields.durations[row];
    // A row that was emptied is none.
    if (Trim(lift.text()).empty() && Trim(duration.text()).empty()) continue;
    ReadFields({&lift, &duration});
    const LiftPair& pair = table.at(static_cast<std::size_t>(row));
    const LiftDuration read{pair.Lift, pair.Flow};
    if (!(read.duration > 0)) continue;
    Require(rows.empty() || read.lift > rows.back().lift, lift, kNoRise);
    Require(rows.empty() || read.duration < rows.back().duration, duration, kNoFall);
    rows.push_back(read);
  }
  if (rows.size() < 2) {
    const char* name = side == CamSide::Intake ? "The Intake " : "The Exhaust ";
    FailAt(fields.durations[0], std::string(name) + kFewRows);
  }
  return rows;
}

void TimeAreaPanel::ReadTimingLifts(TimeAreaValues& values) {
  ReadFields({&Text68});
  const double every = block().CalculateEveryLift;
  Require(every > 0, Text68, kAboveZero);
  for (TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    double highest = 0;
    for (const ValvePoint& point : side->curve) highest = std::max(highest, point.lift);
    Require(highest / every <= kMostTimingLifts, Text68, kManyLifts);
    const int last = static_cast<int>(highest / every);
    for (int i = 0; i <= last; ++i) side->lifts.push_back(i * every);
  }
}

// ---------------------------------------------------------------- the cam

void TimeAreaPanel::RequireCam() const {
  if (!HasCam()) throw CommandError(ErrorKind::InvalidArgument, kNoCam);
}

bool TimeAreaPanel::HasCam() const {
  return block().IntakeLiftCount > 0 || block().ExhaustLiftCount > 0;
}

std::string TimeAreaPanel::CamName() const {
  const std::string& title = block().CamFileTitle;
  return title.empty() ? "A cam without a name" : title;
}

bool TimeAreaPanel::HasCamDegrees() const {
  return CamDegrees.on() || block().LiftsOfCamDoctor != 0;
}

double TimeAreaPanel::CrankStep(const LiftTable& table) const {
  return table.step * (HasCamDegrees() ? kCrankDegreesPerCamDegree : 1);
}

ValveCurve TimeAreaPanel::CurveOfFile(const TimeAreaSide& side) const {
  const LiftTable table = files_.TableOf(SideOf(side));
  // The tables are in millimetres for a screen that works in them.
  std::vector<double> inches(table.lifts.begin(), table.lifts.end());
  for (double& lift : inches) lift /= files_.UnitsPerInch();
  // The record that the valve leaves its seat at. Files of lift testers begin anywhere on the base
  // circle.
  std::size_t opens = 0;
  const bool opensAtFirst = block().LiftsOfCamDoctor != 0 && !Skip.on();
  if (!opensAtFirst) {
    while (opens + 1 < inches.size() && !(ValveLiftOf(inches[opens + 1], side.gear) > 0)) ++opens;
  }
  const double deadCentre = side.port.isExhaust ? -kHalfTurn : 0;
  const double step = CrankStep(table);
  const double opensAt = deadCentre - side.valveOpen - side.advance;
  return CurveOfLobe(inches, step, opensAt - static_cast<double>(opens) * step, side.gear);
}

void TimeAreaPanel::TakeLiftFile(TimeAreaValues& values) {
  RequireCam();
  const ParameterBlock& b = block();
  values.cam = {b.CamFileTitle, b.CamFileHeader, b.LiftsOfCamDoctor != 0, HasCamDegrees()};
  for (TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    side->curve = CurveOfFile(*side);
    side->step = CrankStep(files_.TableOf(SideOf(*side)));
  }
}

void TimeAreaPanel::ReadLiftFile() {
  files_.ReadCamLiftFile(screen());
  ShowCam();
}

std::vector<LiftDuration> TimeAreaPanel::LiftTableOfCam(CamSide side, bool& isCut) {
  const FlowTable flow =
      side == CamSide::Intake ? parts_.flow.ReadIntake() : parts_.flow.ReadExhaust();
  const ValveCurve curve = CurveOfFile(ReadGear(side));
  const auto durationAt = [&](double lift) {
    const auto events = EventsAt(curve, lift, &ValvePoint::lift);
    return events ? events->duration() : 0;
  };
  // The valve on its seat, whatever the lowest lift of the bench is.
  std::vector<LiftDuration> rows{{0, durationAt(0)}};
  for (const FlowPoint& point : flow) {
    if (point.lift > 0) rows.push_back({point.lift, durationAt(point.lift)});
  }
  const auto most = static_cast<std::size_t>(Text95.count());
  isCut = isCut || (rows.size() > most && rows[most].duration > 0);
  rows.resize(most);
  return rows;
}

void TimeAreaPanel::SetLiftTable() {
  RequireCam();
  struct Filled {
    CamSide side;
    std::vector<LiftDuration> rows;
  };
  std::vector<Filled> tables;
  std::string note;
  bool isCut = false;
  for (const CamSide side : {CamSide::Intake, CamSide::Exhaust}) {
    if (files_.TableOf(side).lifts.empty()) {
      note = side == CamSide::Intake ? kNoIntakeLobe : kNoExhaustLobe;
    } else {
      tables.push_back({side, LiftTableOfCam(side, isCut)});
    }
  }
  for (const auto& [side, rows] : tables) {
    const SideFields fields = FieldsOf(side);
    for (int row = 0; row < fields.lifts.count(); ++row) {
      const LiftDuration& read = rows.at(static_cast<std::size_t>(row));
      Store(fields.lifts[row], read.lift);
      Store(fields.durations[row], read.duration);
    }
    FilledTable& filled = (side == CamSide::Intake ? intakeFilled_ : exhaustFilled_).Change();
    filled = {CamName(), rows};
    std::erase_if(filled.rows, [](const LiftDuration& row) { return !(row.duration > 0); });
  }
  ShowCam();
  if (isCut) note = kCutTable;
  if (!note.empty()) screen().ShowHelp(note);
}

std::string TimeAreaPanel::CamOfTable(CamSide side, std::span<const LiftDuration> rows) const {
  const FilledTable& filled = *(side == CamSide::Intake ? intakeFilled_ : exhaustFilled_);
  // What fields show is rounded.
  const auto same = [](const LiftDuration& a, const LiftDuration& b) {
    return std::abs(a.lift - b.lift) < 1e-4 && std::abs(a.duration - b.duration) < 1e-2;
  };
  return std::ranges::equal(filled.rows, rows, same) ? filled.cam : std::string{};
}

void TimeAreaPanel::ShowCam() {
  // What is shown at once is no part of the command that has changed a field.
  std::fexcept_t flags{};
  std::fegetexceptflag(&flags, FE_ALL_EXCEPT);
  std::string text;
  try {
    text = CamText();
  } catch (const CommandError&) {
    // Fields may hold anything, and the panel shows all the same.
    text = block().CamFileTitle + "\r\nPlease check ratio, lash and degrees.";
  }
  CamNotes.SetText(text);
  std::fesetexceptflag(&flags, FE_ALL_EXCEPT);
}

std::string TimeAreaPanel::CamText() {
  if (!HasCam()) return kNoCamNote;
  return CamName() + "\r\nIntake: " + SideText(CamSide::Intake) +
         "\r\nExhaust: " + SideText(CamSide::Exhaust);
}

std::string TimeAreaPanel::SideText(CamSide side) {
  const LiftTable table = files_.TableOf(side);
  if (table.lifts.empty()) return "no lift data";
  const SideFields fields = FieldsOf(side);
  const auto number = [this](const Field& field) {
    return InInches(field, ParseNumber(field.text(), mark()));
  };
  // What the fields show, and no command has read yet.
  TimeAreaSide shown;
  shown.port.isExhaust = side == CamSide::Exhaust;
  const double ratio = number(fields.ratio);
  shown.gear = {ratio, number(fields.lash), ratio};
  shown.valveOpen = number(fields.valveOpen);
  shown.advance = number(shown.port.isExhaust && Dohc.on() ? Text75 : Text74);
  const auto degrees = [this](double value) { return FormatValue<"0.0">(value, mark()); };
  std::string text = "every " + FormatValue<"0.0##">(CrankStep(table), mark()) + " crank degrees";
  const ValveCurve curve = CurveOfFile(shown);
  const auto open = EventsAt(curve, 0, &ValvePoint::lift);
  if (!open) return text + ", the valve never opens";
  const double deadCentre = shown.port.isExhaust ? -kHalfTurn : 0;
  text += "\r\n  Open " + degrees(deadCentre - open->opens) +
          (shown.port.isExhaust ? " BBDC, close " : " BTDC, close ") +
          degrees(open->closes - deadCentre - kHalfTurn) +
          (shown.port.isExhaust ? " ATDC" : " ABDC");
  const auto rated = EventsAt(curve, kIntensityTop, &ValvePoint::camLift);
  if (!rated) return text;
  return text + "\r\n  .050 at the lobe: " + degrees(rated->duration()) + ", middle " +
         degrees(shown.port.isExhaust ? -rated->middle() : rated->middle()) +
         (shown.port.isExhaust ? " BTDC" : " ATDC");
}

// ---------------------------------------------------------------- reports and graphs

void TimeAreaPanel::ShowTimeArea(std::string (*make)(const TimeAreaValues&, DecimalMark),
                                 const TimeAreaValues& values) {
  ShowReport(BuildReport([&] { return make(values, mark()); }, kImpossibleReport), kReportFontSize);
}

void TimeAreaPanel::ReportLiftTable() {
  TimeAreaValues values = ReadValues();
  ReadFields({&Text64, &Text76});
  const ParameterBlock& b = block();
  const auto take = [&](TimeAreaSide& side, CamSide which, double centerline) {
    const std::vector<LiftDuration> rows = ReadLiftTable(which);
    side.curve = CurveOfDurations(rows, centerline, side.gear);
    side.tableCam = CamOfTable(which, rows);
    for (const LiftDuration& row : rows) side.lifts.push_back(row.lift);
  };
  take(values.intake, CamSide::Intake, b.DegreeTDC);
  take(values.exhaust, CamSide::Exhaust, -ExhaustCenterlineFor(b.AFLobeSepAngle, b.DegreeTDC));
  ShowTimeArea(&TimeAreaReport, values);
}

void TimeAreaPanel::ReportLiftFile() {
  TimeAreaValues values = ReadValues();
  TakeLiftFile(values);
  ReadTimingLifts(values);
  ShowTimeArea(&TimeAreaReport2, values);
}

void TimeAreaPanel::ReportCamSpec() {
  TimeAreaValues values = ReadValues();
  TakeLiftFile(values);
  ReadTimingLifts(values);
  ShowTimeArea(&CamSpecReport, values);
}

bool TimeAreaPanel::ShowsDegrees(const FlowPlot& plot) const {
  const PlotEngine& shown = grapher_.plot();
  return grapher_.HasGraph() && shown.crankAngleAxis &&
         shown.Caption(kXNameCaption) == plot.frame.xName;
}

void TimeAreaPanel::Graph(bool adds) {
  TimeAreaValues values = ReadValues();
  TimeAreaGraph graph;
  graph.curve = static_cast<TimeAreaCurve>(Option6.chosen());
  graph.isWide = Wide.on();
  graph.zoom = parts_.graphs.ReadZoom();
  graph.pistonScale = parts_.graphs.ReadPistonScale();
  graph.hasIntake = parts_.graphs.showsIntake();
  graph.hasExhaust = parts_.graphs.showsExhaust();
  if (!IsOfPiston(graph.curve)) TakeLiftFile(values);
  const FlowPlot plot = PlotTimeArea(graph, values);
  // Flags of what was computed tell of numbers that are none.
  BuildReport([] { return std::string{}; }, kImpossibleGraph);
  for (const GraphCurve& curve : plot.curves) {
    PlotEngine::RequireSeries(curve.points, curve.note, curve.fewestPoints);
  }
  // A curve of another quantity keeps the axes, which its own scale fits it to.
  if (adds && ShowsDegrees(plot)) {
    parts_.graphs.AddTo(grapher_, plot.curves, grapher_.plot().scale());
  } else {
    parts_.graphs.Draw(grapher_, plot.frame, plot.curves);
  }
  grapher_.ShowGraph();
}

}  // namespace veldox
