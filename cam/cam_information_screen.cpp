#include "cam/cam_information_screen.h"

#include <array>
#include <string_view>

#include "cam/cam_card.h"
#include "cam/lift_reports.h"
#include "core/files.h"
#include "core/text.h"
#include "graph/axis_growth.h"

namespace veldox {

namespace {

constexpr const char* kCardFilter =
    "Cam Files (*.cam)|*.cam|Dyno Files (*.dyn)|*.dyn|Dynomation Files (*.dym)|*.dym|CamQuest6 "
    "Files (*.cqu)|*.cqu|All Files (*.*)|*.*";
/// The endings of the filter in its order; behind them it has all files.
constexpr std::array<std::string_view, 4> kCardEndings = {".cam", ".dyn", ".dym", ".cqu"};

/// The entry of the filter that a file was picked by.
int FilterIndexOf(std::string_view fileName) {
  const std::string name = Lower(fileName);
  int index = 1;
  for (const std::string_view ending : kCardEndings) {
    if (name.ends_with(ending)) break;
    ++index;
  }
  return index;
}

}  // namespace

Form2::Form2(ProgramContext& context, Grapher& grapher, CamFiles& files)
    : Screen(context, "Form2", "Camshaft Information", "Cam_Info"),
      grapher_(grapher),
      files_(files) {
  ShowFigures();
}

void Form2::CopyFromBlock() {
  Screen::CopyFromBlock();
  ShowFigures();
}

void Form2::Closed() {
  MatchTables();
}

void Form2::Edited(const Control& control) {
  if (&control == &Text18) Text27.SetText(Text18.text());
}

void Form2::TakeLashes(std::optional<double> intake, std::optional<double> exhaust) {
  const auto show = [this](Field& field, double inches) {
    field.SetText(FormatValue<"0.0####">(AsShown(field, inches), mark()));
  };
  if (intake) show(Text23, *intake);
  if (exhaust) show(Text24, *exhaust);
  // Whoever has read the file, it is in the tables now.
  ShowFigures();
}

void Form2::ConvertUnits() {
  ReadFields({&Text12, &Text13, &Text20, &Text21, &Text23, &Text24});
  SwitchUnits();
  ShowFigures();
}

// ---------------------------------------------------------------- timing

CamEvents Form2::ReadEvents() {
  ReadFields({&Text1, &Text2, &Text3, &Text4});
  const ParameterBlock& b = block();
  return {b.IntakeOpen, b.IntakeClose, b.ExhaustOpen, b.ExhaustClose};
}

CamLobes Form2::ReadLobes() {
  ReadFields({&Text6, &Text9, &Text5, &Text8});
  const ParameterBlock& b = block();
  return {b.IntakeDuration, b.ExhaustDuration, b.IntakeCL, b.ExhaustCL};
}

void Form2::StoreLobes(const CamLobes& lobes) {
  Store(Text6, lobes.intakeDuration);
  Store(Text9, lobes.exhaustDuration);
  Store(Text5, lobes.intakeCenterline);
  Store(Text8, lobes.exhaustCenterline);
}

void Form2::StoreEvents(const CamEvents& events) {
  Store(Text1, events.intakeOpen);
  Store(Text2, events.intakeClose);
  Store(Text3, events.exhaustOpen);
  Store(Text4, events.exhaustClose);
}

void Form2::StorePhase(const LobePhase& phase) {
  Store(Text10, phase.separation);
  Store(Text16, phase.overlap);
}

void Form2::StoreTurned(const CamLobes& lobes) {
  const CamEvents events = EventsOf(lobes);
  StoreLobes(lobes);
  StoreEvents(events);
  StorePhase(PhaseOf(lobes, events));
}

void Form2::SolveLobes() {
  const CamEvents events = ReadEvents();
  const CamLobes lobes = LobesOf(events);
  const LobePhase phase = PhaseOf(lobes, events);
  StoreLobes(lobes);
  StorePhase(phase);
  Store(Text11, phase.advance);
}

void Form2::SolveEvents() {
  const CamLobes lobes = ReadLobes();
  const CamEvents events = EventsOf(lobes);
  const LobePhase phase = PhaseOf(lobes, events);
  StoreEvents(events);
  StorePhase(phase);
  Store(Text11, phase.advance);
}

void Form2::SolveEventsForSeparation() {
  ReadFields({&Text6, &Text9, &Text5, &Text10});
  const ParameterBlock& b = block();
  const CamLobes lobes{b.IntakeDuration, b.ExhaustDuration, b.IntakeCL,
                       ExhaustCenterlineFor(b.LobeSepAngle, b.IntakeCL)};
  const CamEvents events = EventsOf(lobes);
  const LobePhase phase = PhaseOf(lobes, events);
  Store(Text8, lobes.exhaustCenterline);
  StoreEvents(events);
  StorePhase(phase);
  Store(Text11, phase.advance);
}

void Form2::AdvanceLobes() {
  ReadFields({&Text11});
  StoreTurned(Advanced(ReadLobes(), block().AdvanceRetard));
}

void Form2::AdvanceEvents() {
  ReadFields({&Text11});
  StoreTurned(Advanced(LobesOf(ReadEvents()), block().AdvanceRetard));
}

// ---------------------------------------------------------------- lift and duration

void Form2::SolveValveLift() {
  ReadFields({&Text12, &Text14, &Text20, &Text22});
  const ParameterBlock& b = block();
  Store(Text13, b.CamLIft * b.RockerArmRatio);
  Store(Text21, b.ExhaustCamLIft * b.ExhaustRockerArmRatio);
}

void Form2::SolveCamLift() {
  ReadFields({&Text13, &Text14, &Text21, &Text22});
  const ParameterBlock& b = block();
  Store(Text12, b.ValveLIft / b.RockerArmRatio, {&Text14});
  Store(Text20, b.ExhaustValveLIft / b.ExhaustRockerArmRatio, {&Text22});
}

void Form2::EstimateDuration() {
  ReadFields({&Text15});
  Store(Text6, EstimateDurationFromRatio(block().CompressionRatio));
}

void Form2::EstimateDurationForEngine() {
  ReadFields({&Text15, &Text18, &Text19, &Text17});
  const ParameterBlock& b = block();
  ShowText(Text27, Text18.text());
  Require(b.CubicInches >= 0, Text18, "must not be negative for this command.");
  Require(b.NumberofCylinders >= 0, Text19, "must not be negative for this command.");
  Store(Text6,
        EstimateDurationFromEngine(b.CompressionRatio, b.CubicInches, b.NumberofCylinders, b.RPM),
        {&Text19});
}

// ---------------------------------------------------------------- cards

void Form2::ReadCamCard() {
  const std::filesystem::path path =
      files_.AskFile(FileDialog::Kind::Open, kCardFilter, cardFilter_);
  const std::string name = PathText(path.filename());
  cardFilter_ = FilterIndexOf(name);
  const CamCard card = ParseCamCard(CamFiles::TextOf(path), name, Check2.on(), mark());
  Label1[15].SetCaption(card.caption);
  // Cards are in inches.
  const auto show = [this](Field& field, const std::optional<double>& value) {
    if (value) ShowAs<"0.0####">(field, AsShown(field, *value));
  };
  show(Text13, card.intakeValveLift);
  show(Text21, card.exhaustValveLift);
  show(Text1, card.intakeOpen);
  show(Text2, card.intakeClose);
  show(Text3, card.exhaustOpen);
  show(Text4, card.exhaustClose);
  if (!card.found && !card.fault) {
    files_.Tell(kNoCamInformation, Icon::Warning);
    return;
  }
  if (card.complete) {
    SolveLobes();
    SolveCamLift();
  }
  // A card without the timing at 0.050 that was asked for still is a card.
  if (card.fault) throw CommandError(*card.fault);
}

// ---------------------------------------------------------------- lift files

double Form2::UnitsPerInch() const {
  return metric() ? kMillimetresPerInch : 1;
}

bool Form2::ReadLiftFile() {
  return files_.ReadCamLiftFile(*this).has_value();
}

LiftAnalysis Form2::ReadAnalysis() {
  ReadFields({&Text14, &Text23, &Text22, &Text24, &Text17});
  MatchTables();
  const ParameterBlock& b = block();
  const CamSide side = ChosenSide();
  const bool isIntake = side == CamSide::Intake;
  LiftAnalysis analysis;
  analysis.table = files_.TableOf(side);
  analysis.ratio = isIntake ? b.RockerArmRatio : b.ExhaustRockerArmRatio;
  analysis.lash = isIntake ? b.IntakeLash : b.ExhaustLash;
  analysis.rpm = b.RPM;
  analysis.unitsPerInch = UnitsPerInch();
  analysis.differencesByRecord = Check7.on();
  if (Check3.on()) {
    analysis.smoothing = SmoothingOf(Text25.text());
    Require(analysis.smoothing.has_value(), Text25,
            "must be SG (Savitzky-Golay), MA (moving average) or TR (triangle).");
    analysis.smoothsLift = Check6.on();
  }
  return analysis;
}

LiftGraphInput Form2::ReadGraphInput(LiftGraph graph) {
  LiftGraphInput input;
  input.graph = graph;
  input.analysis = ReadAnalysis();
  const ParameterBlock& b = block();
  input.exhaust = ChosenSide() == CamSide::Exhaust;
  input.metric = metric();
  input.camDegrees = b.LiftsOfCamDoctor != 0;
  input.boxes = Check5.on();
  input.standardLineAt040 = Check4.on();
  input.fileName = b.CamFileTitle;
  // The header of a Cam Doctor file is lines of comment.
  const bool isTitle = !input.camDegrees && b.CamFileHeader.find('\n') == std::string::npos;
  input.title = isTitle && !b.CamFileHeader.empty() ? Trim(b.CamFileHeader) : b.CamFileTitle;
  return input;
}

void Form2::DrawGraph(const LiftGraphInput& input) {
  const GraphCurve curve = LiftGraphCurve(input, mark());
  grapher_.DrawGraph(LiftGraphFrame(input, curve, mark()), {&curve, 1});
  grapher_.ShowGraph();
}

void Form2::AddToGraph(const LiftGraphInput& input) {
  if (!grapher_.HasGraph()) {
    DrawGraph(input);
    return;
  }
  const GraphCurve curve = LiftGraphCurve(input, mark());
  grapher_.AddToGraph({&curve, 1}, GrownBy(grapher_.plot().scale(), curve,
                                           LiftGraphFrame(input, curve, mark()).range));
  grapher_.ShowGraph();
}

void Form2::GraphCamLift() {
  if (ReadLiftFile()) DrawGraph(ReadGraphInput(LiftGraph::CamLift));
}

void Form2::GraphFirst() {
  if (ReadLiftFile()) DrawGraph(ReadGraphInput(ChosenGraph()));
}

void Form2::GraphFurther() {
  AddToGraph(ReadGraphInput(ChosenGraph()));
}

void Form2::GraphFurtherFile() {
  if (ReadLiftFile()) AddToGraph(ReadGraphInput(ChosenGraph()));
}

void Form2::ReportLift(bool ofValve) {
  const LiftAnalysis analysis = ReadAnalysis();
  const bool isExhaust = ChosenSide() == CamSide::Exhaust;
  ShowReport(
      BuildReport([&] { return LiftReport(analysis, ofValve, isExhaust, Text25.text(), mark()); },
                  "The report cannot be computed: a number of it is too large."));
}

// ---------------------------------------------------------------- lobes in figures

void Form2::ShowFigures() {
  MatchTables();
  std::string text;
  if (!block().CamFileTitle.empty()) text = block().CamFileTitle + "\r\n";
  for (const CamSide side : {CamSide::Intake, CamSide::Exhaust}) {
    text += side == CamSide::Intake ? "Intake: " : "\r\nExhaust: ";
    try {
      text += FiguresText(side);
    } catch (const CommandError&) {
      // A file may hold any number, and the screen opens all the same.
      text += "lifts too large";
    }
  }
  LiftFigures.SetText(text);
}

std::string Form2::FiguresText(CamSide side) const {
  const auto figures = FiguresOf(files_.TableOf(side), UnitsPerInch());
  if (!figures) return "no lift data";
  const auto number = [this](double value) { return FormatValue<"0.0###">(value, mark()); };
  const auto degrees = [this](double value) { return FormatValue<"0.0">(value, mark()); };
  const std::string unit = metric() ? " mm" : " in";
  std::string text = FormatInt(figures->records, mark()) + " records every " +
                     FormatValue<"0.0##">(figures->step, mark());
  const auto add = [&text](const std::string& line) { text += "\r\n  " + line; };
  add("Peak lift " + number(figures->peakLift) + unit + " at " + degrees(figures->peakDegrees));
  add("Velocity " + FormatValue<"0.00000">(figures->peakVelocity, mark()) + unit + " / deg");
  add("Area " + FormatValue<"0.00">(figures->area, mark()) + unit + " x deg");
  for (std::size_t i = 0; i < kRatedLifts.size(); ++i) {
    const double lift = kRatedLifts.at(i) * UnitsPerInch();
    if (!figures->durations.at(i)) continue;
    add("Duration at " + FormatValue<"0.000">(lift, mark()) + unit + ": " +
        degrees(*figures->durations.at(i)));
  }
  if (figures->centerline) {
    add("Middle at " + FormatValue<"0.000">(kTimingLift * UnitsPerInch(), mark()) + unit + ": " +
        degrees(*figures->centerline));
    add("Opening less closing: " + degrees(*figures->asymmetry));
  }
  return text;
}

}  // namespace veldox
