#include "engine/compression_gauge_screen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace veldox {

namespace {

constexpr double kSmallestStroke = 0.00001;
constexpr double kCubicMillimetresPerCc = 1000;
/// Of the exponents, the one nearest to that of cranking.
constexpr int kUsualExponent = 6;

}  // namespace

Form12::Form12(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form12", "Compression Gauge / Octane Requirements", "CompGauge"),
      grapher_(grapher) {
  Combo1.SetRows({"1.00", "1.05", "1.10", "1.15", "1.20", "1.25", "1.30", "1.35", "1.40", "1.45",
                  "1.48", "1.50"});
  Combo1.Choose(kUsualExponent);
}

void Form12::ReadCompFields() {
  ParameterBlock& b = block();
  ReadFields({&Text1, &Text3, &Text4, &Text22, &Text17, &Text36, &Text45, &Text35, &Text30, &Text31,
              &Text32, &Text34, &Text6, &Text2, &Text10});
  ReadChoice(Combo1);
  if (b.Stroke <= 0) b.Stroke = kSmallestStroke;
}

CylinderSize Form12::Size() const {
  const ParameterBlock& b = block();
  return {b.Bore, b.Stroke, b.RodLength, b.WristPinOffset};
}

void Form12::RequireRod() {
  const ParameterBlock& b = block();
  const double reach = b.Stroke / 2 + std::abs(b.WristPinOffset);
  Require(reach < b.RodLength || b.WristPinOffset == 0, Text22,
          "is too large for this Stroke and Rod Length: the rod cannot follow the crank all the "
          "way round.");
  Require(reach < b.RodLength, Text4,
          "is too short for this Stroke: the rod cannot follow the crank all the way round.");
}

void Form12::RequireAir(DosRule rule) {
  const ParameterBlock& b = block();
  if (GaugeBase(rule) > 0) return;
  Require(b.BarometricPressure > 0, Text30, "must be greater than 0.");
  Require(false, b.Humidity > 100 ? Text32 : Text31,
          "makes the Vapor Pressure as high as the Barometric Pressure: no air would be left.");
}

ClosedCylinder Form12::CylinderGeometry() {
  const ClosedCylinder cylinder = ClosedCylinderAt(Size(), block().IntakeClose);
  if (!std::isfinite(cylinder.dynamicStroke) || !std::isfinite(cylinder.actualStroke)) {
    RequireRod();
  }
  RequireResult(Text8, cylinder.dynamicStroke, {&Text4});
  RequireResult(Text9, cylinder.actualStroke);
  RequireResult(Text12, cylinder.sweptCc);
  return cylinder;
}

ClosedCylinder Form12::ShowCylinderGeometry() {
  const ClosedCylinder cylinder = CylinderGeometry();
  Show(Text8, cylinder.dynamicStroke);
  Show(Text9, cylinder.actualStroke);
  Show(Text12, CcOf(cylinder.sweptCc));
  return cylinder;
}

double Form12::CcOf(double volume) const {
  return block().MetricSwitch == 1 ? volume * kCubicInchesPerCc / kCubicMillimetresPerCc : volume;
}

double Form12::FahrenheitShown(double temperature) const {
  return block().MetricSwitch == 1 ? FahrenheitOf(temperature) : temperature;
}

VaporPressures Form12::WeatherVapor() const {
  const ParameterBlock& b = block();
  const bool metric = b.MetricSwitch == 1;
  VaporPressures vapor =
      VaporPressuresAt(metric ? b.Temperature : CelsiusOf(b.Temperature), b.Humidity);
  if (metric) {
    vapor.saturated *= kMillibarsPerInchMercury;
    vapor.actual *= kMillibarsPerInchMercury;
  }
  return vapor;
}

double Form12::GaugeBase(DosRule rule) const {
  const ParameterBlock& b = block();
  double pressure = b.BarometricPressure;
  if (rule == DosRule::On) pressure -= WeatherVapor().actual;
  if (b.MetricSwitch == 1) {
    return (pressure / kMillibarsPerInchMercury) * kPsiPerInchMercury * kGaugeUnitsPerPsi;
  }
  return pressure * kPsiPerInchMercury;
}

double Form12::AtmosphereBase(DosRule rule) {
  if (rule == DosRule::On) {
    const VaporPressures vapor = WeatherVapor();
    Show(Text33, vapor.actual);
    Show(Text37, vapor.saturated);
  }
  return GaugeBase(rule);
}

void Form12::EstimateGauge(DosRule rule) {
  ReadCompFields();
  ParameterBlock& b = block();
  Require(b.CompressionRatio > 1, Text17, "must be greater than 1 for this command.");
  RequireAir(rule);
  const double base = AtmosphereBase(rule);
  const ClosedCylinder cylinder = ShowCylinderGeometry();
  const double clearance = cylinder.sweptCc / (b.CompressionRatio - 1);
  const double ratio = (clearance + cylinder.closedCc) / clearance;
  Store(Text35, CrankingPressure(ratio, base, rule), {&Text1});
  Store(Text45, ratio);
  Show(Text46, cylinder.closedCc / cylinder.sweptCc * 100);
  const double closed = CcOf(cylinder.closedCc);
  Show(Text7, closed);
  Show(Text11, closed * kCubicInchesPerCc);
  EstimateOctane();
}

void Form12::EstimateOctane() {
  const ParameterBlock& b = block();
  const double gauge =
      b.MetricSwitch == 1 ? b.CompressionGauge / kGaugeUnitsPerPsi : b.CompressionGauge;
  Show(Text5, EstimatedOctane(gauge, FahrenheitShown(inletAir_), FahrenheitShown(water_)));
}

void Form12::EstimateRatio(DosRule rule) {
  ReadCompFields();
  ParameterBlock& b = block();
  RequireAir(rule);
  Require(rule == DosRule::Off || b.CompressionGauge > 0, Text35,
          "must be greater than 0 for this command.");
  Require(rule == DosRule::On || b.CompressionGauge > GaugeBase(rule), Text35,
          "must be greater than the pressure of the air for this command.");
  const double base = AtmosphereBase(rule);
  const ClosedCylinder cylinder = ShowCylinderGeometry();
  Store(Text17, CompressionRatioForPressure(b.CompressionGauge, base, rule, cylinder), {&Text1});
  EstimateOctane();
}

void Form12::EstimateGaugeReading() {
  EstimateGauge(DosRule::Off);
}

void Form12::EstimateGaugeReadingDos() {
  EstimateGauge(DosRule::On);
}

void Form12::EstimateRatioOfReading() {
  EstimateRatio(DosRule::Off);
}

void Form12::EstimateRatioOfReadingDos() {
  EstimateRatio(DosRule::On);
}

void Form12::SolveRatioForDynamicRatio() {
  ReadCompFields();
  ParameterBlock& b = block();
  Require(b.DynamicCompressionRatio >= 1, Text45, "must be at least 1 for this command.");
  ClosedCylinder cylinder = CylinderGeometry();
  if (b.WristPinOffset == 0) cylinder.actualStroke = b.Stroke;
  Show(Text8, cylinder.dynamicStroke);
  Store(Text17, CompressionRatioForDynamicRatio(b.DynamicCompressionRatio, cylinder));
}

void Form12::SolveOffset() {
  ReadCompFields();
  ParameterBlock& b = block();
  const double offset = OffsetForTopAngle(b.CrankAngleCG, b.Stroke, b.RodLength);
  Store(Text22, offset);
}

void Form12::ShowIntakeClose(double degrees) {
  if (degrees >= 1) {
    ShowAs<"0.0000000">(Text36, degrees);
  } else {
    ShowAs<"0.0##">(Text36, degrees);
  }
}

void Form12::SolveClosingForDynamicRatio() {
  ReadCompFields();
  ParameterBlock& b = block();
  if (b.CompressionRatio <= b.DynamicCompressionRatio) {
    FailAt(Text45, "Comp Ratio is Less Than or Equal to Dynamic CR");
  }
  Require(b.DynamicCompressionRatio >= 1, Text45, "must be at least 1 for this command.");
  Require(b.Bore != 0, Text1, "must not be 0 for this command.");
  RequireRod();
  CylinderSize size = Size();
  // The offset counts in inches here whatever the other lengths are in.
  if (b.MetricSwitch == 1) size.offset /= kMillimetresPerInch;
  const double degrees =
      IntakeCloseForDynamicRatio(size, b.CompressionRatio, b.DynamicCompressionRatio);
  ShowIntakeClose(degrees);
  b.IntakeClose = degrees;
}

void Form12::SolveClosingForReading() {
  ReadCompFields();
  ParameterBlock& b = block();
  const DosRule rule = Check2.on() ? DosRule::On : DosRule::Off;
  const double base = GaugeBase(rule);
  Require(b.Bore != 0, Text1, "must not be 0 for this command.");
  Require(b.CompressionRatio > 1, Text17, "must be greater than 1 for this command.");
  RequireAir(rule);
  RequireRod();
  const std::string shown = Text35.text();
  const double reading = b.CompressionGauge;
  double travel = 0;
  try {
    travel = TravelForCrankingPressure(Size(), b.CompressionRatio, reading, base, rule);
  } catch (const CommandError& error) {
    FailAt(Text35, error.message());
  }
  ShowIntakeClose(IntakeCloseForTravel(b.Stroke, b.RodLength, travel));
  EstimateGauge(rule);
  ShowText(Text35, shown);
  Text35.SetMark(Mark::None);
  b.CompressionGauge = reading;
}

CrankingGraphInput Form12::ReadGraphInput() {
  ReadCompFields();
  const ParameterBlock& b = block();
  CrankingGraphInput input;
  input.graph = static_cast<CrankingGraph>(Option1.chosen());
  Require(b.Bore > 0, Text1, "must be greater than 0 for a graph.");
  if (input.graph != CrankingGraph::CompressionRatio &&
      input.graph != CrankingGraph::RatioOverClosing) {
    Require(b.CompressionRatio > 1, Text17, "must be greater than 1 for a graph.");
  }
  RequireRod();
  input.metric = b.MetricSwitch == 1;
  input.size = Size();
  input.compressionRatio = b.CompressionRatio;
  input.intakeClose = b.IntakeClose;
  input.dynamicRatio = b.DynamicCompressionRatio;
  input.gauge = b.CompressionGauge;
  const double millibars = input.metric ? kMillibarsPerInchMercury : 1;
  input.barometer = b.BarometricPressure / millibars;
  input.vapor = WeatherVapor().actual / millibars;
  input.temperature = b.Temperature;
  input.humidity = b.Humidity;
  input.inletAir = FahrenheitShown(inletAir_);
  input.water = FahrenheitShown(water_);
  input.startDegrees = b.CrankAngleCG;
  input.exponent = b.BaseExponent;
  if (Check2.on()) input.rule = DosRule::On;
  if (IsOverClosing(input.graph)) {
    Require(b.IntakeClose >= kEarliestGraphedClosing && b.IntakeClose <= kLatestGraphedClosing,
            Text36, "must be from 0 to 170 for this graph.");
  }
  if (IsOverCrankAngle(input.graph)) {
    Require(b.CompressionGauge > 0, Text35, "must be greater than 0 for this graph.");
    Require(b.CrankAngleCG >= 0 && b.CrankAngleCG < 180, Text10,
            "must be from 0 up to below 180 for this graph.");
    Require(b.CrankAngleCG > 0 || input.graph != CrankingGraph::ConstantTurningForce, Text10,
            "must be greater than 0 for this graph: at the top no pressure turns the crank.");
  } else if (input.graph != CrankingGraph::DynamicRatio &&
             input.graph != CrankingGraph::CompressionRatio) {
    RequireAir(input.rule);
  }
  if (Check3.on() && HasHighValue(input.graph)) {
    const double high = Read(Text13);
    Require(high > 0, Text13, "must be greater than 0 for this graph.");
    input.highValue = high;
  }
  return input;
}

void Form12::GraphCranking(bool first) {
  const CrankingGraphInput input = ReadGraphInput();
  const bool adds = !first && grapher_.HasGraph();
  std::optional<AxisRange> range;
  if (adds && input.graph == graphed_ && grapher_.plot().Caption(kTitleCaption) == *graphedTitle_) {
    range = grapher_.plot().scale();
  }
  const std::optional<CrankingPlot> plot = PlotCranking(input, mark(), range);
  if (!plot) {
    if (input.graph == CrankingGraph::ClosingOverInchesMercury) {
      FailAt(Text35,
             "No closing angle of the intake valve gives this Compression Gauge reading "
             "at the pressures of this graph.");
    }
    Require(!input.highValue, Text13, "leaves no point of this graph on its axes.");
    Require(false, Text10, "leaves no point of this graph on its axes.");
  }
  if (adds) {
    grapher_.AddToGraph({&plot->curve, 1});
  } else {
    grapher_.DrawGraph(plot->frame, {&plot->curve, 1});
    graphed_ = input.graph;
    graphedTitle_ = plot->frame.title;
  }
  grapher_.ShowGraph();
}

void Form12::GraphFirst() {
  GraphCranking(true);
}

void Form12::GraphFurther() {
  GraphCranking(false);
}

void Form12::ConvertCompFields() {
  ReadCompFields();
  SwitchUnits();
}

}  // namespace veldox
