#include "twostroke/port_timing_screen.h"

#include <cmath>

#include "engine/compression.h"
#include "engine/displacement.h"
#include "graph/axis_growth.h"
#include "twostroke/mean_pressure.h"

namespace veldox {

namespace {

constexpr double kSquareMillimetresPerSquareCentimetre = 100;
constexpr double kMillimetresPerCentimetre = 10;
/// A piston speed formula in inches gives feet; with millimetres in it, this gives metres.
constexpr double kFootFormulaToMetres = 12.0 / 1000;
constexpr double kFineStep = 0.01;
constexpr double kDegreeStep = 1;

}  // namespace

Form18::Form18(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form18", "2 Stroke Port Timing", "2_S_PortTiming"), grapher_(grapher) {}

void Form18::ReadBaseFields() {
  ReadFields({&Text1, &Text3, &Text4, &Text5, &Text10});
  Require(block().Stroke > 0, Text3, "must be greater than 0.");
}

TrappedCylinder Form18::Trapped() const {
  const ParameterBlock& b = block();
  return {b.Stroke, b.DeckClearance, b.TwoSExhaustDistance};
}

void Form18::RequireRatio() {
  Require(block().CompressionRatio != 1, Text20,
          "must not be 1 for this command: no volume is as large as the cylinder with the piston "
          "at the bottom and at the top.");
}

void Form18::RequireStrokeAbovePort() {
  Require(block().TwoSExhaustDistance != block().DeckClearance, Text48,
          "must not be the Piston to Deck Clearance for this command: no stroke would be left "
          "above the port.");
}

double Form18::SweptVolume() const {
  return DiscVolume(block().Bore, block().Stroke);
}

double Form18::InShownVolume(double volume) const {
  return isMetric() ? ToCc(volume, true) : volume;
}

double Form18::ShowSweptVolume() {
  const double volume = SweptVolume();
  Show(Text29, InShownVolume(volume));
  return ToCc(volume, isMetric());
}

void Form18::TimeOneRev() {
  Show(Text22, RevolutionTime(block().RPM), {&Text5});
}

void Form18::SolvePortDistance(const PortRow& port) {
  ReadBaseFields();
  ReadFields({&port.degrees});
  const ParameterBlock& b = block();
  const double distance = PortDistance(b.Stroke, b.RodLength, Read(port.degrees));
  Require(std::isfinite(distance), Text4, "is too short for this Stroke and these Crank Degrees.");
  Store(port.distance, distance);
}

void Form18::SolvePortDuration(const PortRow& port) {
  ReadBaseFields();
  ReadFields({&port.distance});
  const ParameterBlock& b = block();
  const double travel = Read(port.distance) - b.DeckClearance;
  const double degrees = PortOpenDegrees(b.Stroke, b.RodLength, travel);
  if (!std::isfinite(degrees)) {
    Require(travel >= 0, port.distance,
            "must not be less than the Piston to Deck Clearance for this command.");
    Require(travel <= b.Stroke, port.distance,
            "must not be more than Stroke and Piston to Deck Clearance together for this command.");
    Require(false, Text4, "is too short for this Stroke.");
  }
  Store(port.degrees, degrees);
  const double duration = PortDuration(degrees);
  Show(port.duration, duration);
  Show(port.time, CrankTime(duration, b.RPM), {&Text5});
  TimeOneRev();
}

void Form18::SolveBlowdown() {
  ReadBaseFields();
  ReadFields({&Text47, &Text14});
  const ParameterBlock& b = block();
  const double degrees = b.TwoSTransferDegrees - b.TwoSExhaustDegrees;
  Show(Text17, degrees);
  Show(Text18, CrankTime(degrees, b.RPM), {&Text5});
  ReadFields({&Text48, &Text13});
  Show(Text19, b.TwoSTransferDistance - b.TwoSExhaustDistance);
  TimeOneRev();
}

void Form18::SolveDynamicRatio() {
  ReadFields({&Text20});
  ReadBaseFields();
  const double sweptCc = ShowSweptVolume();
  ReadFields({&Text48});
  const ParameterBlock& b = block();
  Store(Text21, DynamicRatio(Trapped(), b.CompressionRatio));
  Show(Text30, InShownVolume(DiscVolume(b.Bore, b.TwoSExhaustDistance)));
  RequireRatio();
  Store(Text31, ClearanceForRatio(sweptCc, b.CompressionRatio));
}

void Form18::SolveCompressionRatio() {
  ReadFields({&Text21});
  ReadBaseFields();
  ReadFields({&Text48});
  RequireStrokeAbovePort();
  Store(Text20, RatioForDynamicRatio(Trapped(), block().DynamicCompressionRatio));
}

void Form18::SolveExhaustDistanceForRatio() {
  ReadFields({&Text20, &Text21});
  ReadBaseFields();
  RequireRatio();
  const ParameterBlock& b = block();
  Store(Text48, ExhaustDistanceForRatios(Trapped(), b.CompressionRatio, b.DynamicCompressionRatio));
}

void Form18::SolvePortTimeArea(const PortRow& port) {
  ReadBaseFields();
  const double sweptCc = ShowSweptVolume();
  ReadFields({&port.area});
  const double area =
      isMetric() ? Read(port.area) : Read(port.area) * kSquareCentimetresPerSquareInch;
  Show(port.timeArea, area / sweptCc * Read(port.time), {&Text1});
  Show(port.angleArea, area / sweptCc * Read(port.duration), {&Text1});
}

void Form18::StoreMeanPressure() {
  ReadFields({&Text32, &Text50});
  const ParameterBlock& b = block();
  const double sweptCc = ShowSweptVolume();
  const double power = b.HorsePower / b.NumberofCylinders;
  const double pressure = isMetric() ? MeanPressureBar(power, sweptCc, b.RPM)
                                     : MeanPressurePsi(power, SweptVolume(), b.RPM);
  Store(Text33, pressure, {&Text50, &Text1, &Text5});
}

void Form18::ShowPistonSpeed() {
  const double speed = MeanPistonSpeed(block().Stroke, block().RPM);
  Show(Text34, isMetric() ? speed * kFootFormulaToMetres : speed);
}

void Form18::SolveMeanPressure() {
  ReadBaseFields();
  StoreMeanPressure();
  ShowPistonSpeed();
}

void Form18::ShowTargetTimeAreas() {
  const double pressure = block().BMEP;
  const TimeAreas areas = TargetTimeAreas(isMetric() ? pressure : pressure * kBarPerPsi);
  Show(Text43, areas.inlet);
  Show(Text44, areas.exhaust);
  Show(Text45, areas.blowdown);
  Show(Text46, areas.transfer);
}

void Form18::EstimateTimeAreasOfPressure() {
  ReadFields({&Text33});
  ShowTargetTimeAreas();
}

void Form18::EstimateTimeAreasOfPower() {
  ReadBaseFields();
  StoreMeanPressure();
  ShowTargetTimeAreas();
}

void Form18::SolveSquishArea() {
  ReadBaseFields();
  const ParameterBlock& b = block();
  const double unit = isMetric() ? kSquareMillimetresPerSquareCentimetre : 1;
  Show(Text35, PistonArea(b.Bore) / unit);
  ReadFields({&Text37});
  const double area = SquishArea(b.Bore, b.SquishRatio);
  Show(Text36, area / unit);
  Show(Text40, SquishCircle(area));
}

void Form18::SolveSquishVolume() {
  ReadFields({&Text36, &Text38});
  const double volume = Read(Text36) * block().SquishClearance;
  Show(Text39, isMetric() ? volume / kMillimetresPerCentimetre : volume / kCubicInchesPerCc);
}

std::vector<SquishFlow> Form18::ReadSquishFlows(double stepDegrees) {
  ReadBaseFields();
  ReadFields({&Text20, &Text47, &Text37, &Text38});
  const ParameterBlock& b = block();
  Require(b.Bore > 0, Text1, "must be greater than 0 for this command.");
  Require(b.CompressionRatio > 1, Text20, "must be greater than 1 for this command.");
  Require(b.TwoSExhaustDegrees >= stepDegrees, Text47,
          "is too small for this command: the exhaust port would close at the top.");
  Require(b.SquishRatio > 0, Text37, "must be greater than 0 for this command.");
  Require(b.SquishClearance >= 0, Text38, "must not be less than 0 for this command.");
  const double scale = isMetric() ? 1 : kMillimetresPerInch;
  std::vector<SquishFlow> flows =
      SquishFlows({b.Bore * scale, b.Stroke * scale, b.RodLength * scale, b.CompressionRatio,
                   b.SquishRatio, b.SquishClearance * scale},
                  b.RPM, b.TwoSExhaustDegrees, stepDegrees);
  const double mean = Summarize(flows).mean;
  Require(std::isfinite(mean) || 2 * b.RodLength >= b.Stroke, Text4,
          "is too short for this Stroke.");
  RequireResult(Text41, mean);
  return flows;
}

void Form18::SolveSquishVelocity(double stepDegrees) {
  const SquishSummary summary = Summarize(ReadSquishFlows(stepDegrees));
  const auto shown = [this](double velocity) {
    return isMetric() ? velocity : kSurfaceSpeedRule.toInches(velocity);
  };
  Show(Text41, shown(summary.highest.velocity));
  Show(Text42, summary.highest.degrees);
  Show(Text49, shown(summary.mean));
}

void Form18::SolveSquishVelocityFine() {
  SolveSquishVelocity(kFineStep);
}

void Form18::SolveSquishVelocityByDegree() {
  SolveSquishVelocity(kDegreeStep);
}

std::string Form18::SquishCaption() const {
  const ParameterBlock& b = block();
  const auto text = [this](double value) { return FormatField(value, mark()); };
  return "B=" + text(b.Bore) + " S=" + text(b.Stroke) + " CR=" + text(b.CompressionRatio) +
         " Rod=" + text(b.RodLength) + " RPM=" + FormatInt(b.RPM, mark()) +
         " Exh=" + text(b.TwoSExhaustDegrees) + " SqR=" + text(b.SquishRatio) +
         " SqC=" + text(b.SquishClearance);
}

void Form18::GraphSquish(bool first) {
  const std::vector<SquishFlow> flows = ReadSquishFlows(kDegreeStep);
  Require(flows.size() > 1, Text47, "must be at least 2 for a graph.");
  const bool adds = !first && grapher_.HasGraph();
  // A further curve keeps to the units of the axes that it is drawn on.
  const bool metric =
      adds ? IsMetricSquishGraph(grapher_.plot().Caption(kYPointerCaption)).value_or(isMetric())
           : isMetric();
  const SquishPlot plot = PlotSquish(flows, block().TwoSExhaustDegrees, metric, SquishCaption());
  if (adds) {
    grapher_.AddToGraph({&plot.curve, 1},
                        GrownBy(grapher_.plot().scale(), plot.curve, plot.frame.range));
  } else {
    grapher_.DrawGraph(plot.frame, {&plot.curve, 1});
  }
  grapher_.ShowGraph();
}

void Form18::ConvertFields() {
  ReadFields({&Text1, &Text3, &Text4, &Text5, &Text10});
  SwitchUnits([this] { ShowPistonSpeed(); });
}

}  // namespace veldox
