#include "airfuel/blower_screen.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "core/report.h"

namespace veldox {

namespace {

constexpr const char* kAboveZero = "must be greater than 0 for this command.";
constexpr double kHighestMapRpm = 32767;  ///< what a 16-bit count holds
constexpr const char* kCannotMap =
    "The flow map cannot be computed. Please check the Engine Size, Volumetric Efficiency, "
    "Temperature, Barometric Pressure, Blower Efficiency and BSAC.";

}  // namespace

Form14::Form14(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form14", "Blower / SuperCharger / Turbo", "Blowers"), grapher_(grapher) {}

TableRows Form14::RpmRows() {
  TableRows rows{"RPM", {}};
  for (int i = 0; i < kRpmTableRows; ++i) {
    rows.captions.push_back(FormatInt(kFirstTableRpm + i * kTableRpmStep, DecimalMark::Point));
  }
  return rows;
}

// ---------------------------------------------------------------- reading

BlowerAir Form14::Air() const {
  const ParameterBlock& b = block();
  return {metric() ? kMetricAir : kInchAir, b.BlowerPressure, b.BarometricPressure, b.Temperature};
}

AirConsumer Form14::Engine() const {
  return {InInches(Text7, block().CubicInches), Check2.on()};
}

void Form14::RequireAir() {
  Require(block().BarometricPressure > 0, Text15, kAboveZero);
}

void Form14::RequireBoostedAir() {
  RequireAir();
  Require(Air().Compressed() > 0, Text3, "leaves no air at this Barometric Pressure.");
}

void Form14::RequireTemperature(Field& field, double temperature) {
  Require(
      Air().Absolute(temperature) > 0, field,
      metric() ? "must be above -237.8 for this command." : "must be above -460 for this command.");
}

ValueByRpm Form14::ReadByRpm(Field& field, const CheckBox& usesTable, FieldArray& table) {
  if (!usesTable.on()) {
    ReadFields({&field});
    return {Read(field), {}};
  }
  ValueByRpm value;
  value.table.emplace();
  for (std::size_t i = 0; i < value.table->size(); ++i) {
    Field& row = table[static_cast<int>(i)];
    ReadFields({&row});
    (*value.table)[i] = Read(row);
  }
  return value;
}

std::optional<double> Form14::NumberIn(const Field& field) const {
  if (!IsNumber(field.text(), mark())) return {};
  return ParseNumber(field.text(), mark());
}

// ---------------------------------------------------------------- power and compression

void Form14::EstimateHorsepower() {
  ReadFields({&Text1, &Text3});
  const double horsepower = block().HorsePower;
  Show(Text2, BoostHorsepowerGain(horsepower, BoostPsi()));
  Store(Text1, BoostedHorsepower(horsepower, BoostPsi()));
}

void Form14::EstimateBoostForHorsepower() {
  ReadFields({&Text1});
  const double gain = Read(Text2);
  Store(Text3, AsShown(Text3, BoostForHorsepowerGain(block().HorsePower, gain)), {&Text1});
}

void Form14::EstimateNormalHorsepower() {
  ReadFields({&Text1, &Text3});
  Require(BoostPsi() > -kStandardAtmospherePsi, Text3, "leaves no air for this command.");
  Store(Text1, UnblownHorsepower(block().HorsePower, BoostPsi()));
}

void Form14::EstimateEffectiveRatio() {
  ReadFields({&Text3, &Text4});
  Store(Text6, EffectiveCompressionRatio(block().CompressionRatio, BoostPsi()));
}

void Form14::EstimateRatioForBoost() {
  ReadFields({&Text3, &Text5});
  Require(BoostPsi() > -kStandardAtmospherePsi, Text3, "leaves no air for this command.");
  Store(Text4, CompressionRatioForBoost(block().MaxCompressionRatio, BoostPsi()));
}

void Form14::EstimateBoostForRatio() {
  ReadFields({&Text4, &Text6});
  const ParameterBlock& b = block();
  Store(Text3,
        AsShown(Text3, BoostForEffectiveRatio(b.EffectiveCompressionRatio, b.CompressionRatio)),
        {&Text4});
}

// ---------------------------------------------------------------- blower drive

void Form14::StoreBlowerRatio(DividesBy zeros) {
  Store(Text12, block().CrankGear / block().BlowerGear, zeros);
}

void Form14::SolveDrive() {
  ReadFields({&Text8, &Text10, &Text11});
  std::int16_t rpm = 0;
  ReadCount(rpm, Text8);
  StoreBlowerRatio({&Text11});
  Store(Text13, rpm * block().BlowerRatio);
}

void Form14::SolveCrankGear() {
  ReadFields({&Text8, &Text11, &Text13});
  const ParameterBlock& b = block();
  Store(Text10, b.BlowerGear * b.BlowerRPM / b.RPM, {&Text8});
  StoreBlowerRatio({&Text11});
}

void Form14::SolveBlowerGear() {
  ReadFields({&Text8, &Text10, &Text13});
  const ParameterBlock& b = block();
  Store(Text11, b.CrankGear * b.RPM / b.BlowerRPM, {&Text13});
  // A gear of 0 was not typed: it comes of these.
  StoreBlowerRatio({&Text8, &Text10});
}

// ---------------------------------------------------------------- compressed air

void Form14::SolvePressureRatio() {
  ReadFields({&Text3, &Text15});
  RequireBoostedAir();
  Store(Text17, PressureRatio(Air()));
}

void Form14::SolveOutletTemperature() {
  ReadFields({&Text14, &Text16, &Text17});
  const ParameterBlock& b = block();
  Require(b.PressureRatio >= 0, Text17, "must not be negative for this command.");
  Store(Text18, CompressedTemperature(Air(), b.PressureRatio, b.BlowerEfficiency), {&Text16});
}

void Form14::SolveBlowerDensityRatio() {
  ReadFields({&Text3, &Text14, &Text15, &Text18});
  RequireBoostedAir();
  RequireTemperature(Text14, block().Temperature);
  RequireTemperature(Text18, block().ICInTemp);
  Store(Text23, BlowerDensityRatio(Air(), block().ICInTemp));
}

void Form14::SolveIntercoolerEfficiency() {
  ReadFields({&Text14, &Text18, &Text19});
  const ParameterBlock& b = block();
  Require(b.ICInTemp != b.Temperature, Text18,
          "must differ from the Temperature for this command.");
  Show(Text21, IntercoolerEfficiency(b.ICInTemp, b.ICOutTemp, b.Temperature));
}

void Form14::SolveIntercoolerOutlet() {
  ReadFields({&Text14, &Text18});
  const double efficiency = Read(Text21);
  Store(Text19, IntercoolerOutlet(block().ICInTemp, efficiency, block().Temperature));
}

void Form14::SolveIntercoolerDensityRatio() {
  ReadFields({&Text3, &Text15, &Text18, &Text19, &Text20});
  const ParameterBlock& b = block();
  RequireBoostedAir();
  RequireTemperature(Text18, b.ICInTemp);
  RequireTemperature(Text19, b.ICOutTemp);
  Show(Text22, IntercoolerDensityRatio(Air(), b.ICInTemp, b.ICOutTemp, b.ICPressureLoss));
}

void Form14::SolveSystemDensityRatio() {
  const double intercooler = Read(Text22);
  ReadFields({&Text23});
  Show(Text24, intercooler * block().BlowerDensityRatio);
}

void Form14::SolveFlow() {
  ReadFields({&Text7, &Text8, &Text9, &Text23, &Text25});
  std::int16_t rpm = 0;
  ReadCount(rpm, Text8);
  const ParameterBlock& b = block();
  const double flow = Engine().FlowCfm(rpm, b.VolumetricEfficiency, b.BlowerDensityRatio);
  Show(Text26, flow / b.NumberofTurbos, {&Text25});
}

// ---------------------------------------------------------------- graphs and maps

void Form14::GraphDensityGain() {
  const double old = Read(Text27);
  const double now = Read(Text28);
  Require(old != 0, Text27, "must not be 0 for this command.");
  const ParameterBlock& b = block();
  const auto rows = static_cast<std::size_t>(
      std::clamp<int>(b.AccelRowCount, 0, static_cast<int>(b.AccelRpm.size())));
  if (rows < 2) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "The torque table has fewer than two rows, which is no curve to graph.");
  }
  const BlowerPlot plot = PlotDensityGain(std::span(b.AccelRpm).first(rows),
                                          std::span(b.AccelTorque).first(rows), now / old);
  grapher_.DrawGraph(plot.frame, plot.curves);
  grapher_.ShowGraph();
}

FlowMapInput Form14::ReadMapInput(FlowMapKind kind) {
  const bool byBoost = kind != FlowMapKind::PressureRatio;
  FlowMapInput input;
  input.kind = kind;
  ReadFields({&Text7, &Text33});
  const double maxRpm = block().MaxRPM;
  Require(maxRpm >= kFirstTableRpm, Text33, "must be at least 1000 for a flow map.");
  Require(maxRpm <= kHighestMapRpm, Text33, "must not be above 32767 for a flow map.");
  input.maxRpm = maxRpm;
  input.volumetricEfficiency = ReadByRpm(Text9, Check4, Text29);
  input.inPounds = Option1.chosen() == 1;
  // The horsepower of a report is of pounds of air as well.
  if (byBoost || input.inPounds || !Check3.on()) {
    ReadFields({&Text14, &Text15});
    RequireAir();
    RequireTemperature(Text14, block().Temperature);
    input.poundsPerCubicFoot = PoundsPerCubicFoot(InInches(Text15, block().BarometricPressure),
                                                  InInches(Text14, block().Temperature));
  }
  if (kind == FlowMapKind::Boost) {
    ReadFields({&Text16});
    Require(block().BlowerEfficiency > 0, Text16, kAboveZero);
    input.blowerEfficiency = block().BlowerEfficiency;
  }
  if (kind == FlowMapKind::Intercooled) {
    ReadFields({&Text19});
    RequireTemperature(Text19, block().ICOutTemp);
    input.intercoolerOutlet = block().ICOutTemp;
  }
  input.engine = Engine();
  input.air = Air();
  ReadFields({&Text25});
  input.turbos = block().NumberofTurbos;
  return input;
}

FlowMapLimits Form14::ReadMapLimits() {
  ReadFields({&Text31, &Text32});
  FlowMapLimits limits;
  if (block().GraphXMax > 0) limits.flow = block().GraphXMax;
  if (block().GraphYMax > 0) {
    Require(block().GraphYMax > 1, Text32,
            "must be above 1, the pressure ratio that the graph begins with.");
    limits.pressureRatio = block().GraphYMax;
  }
  return limits;
}

std::optional<OperatingPoint> Form14::PointNow(FlowMapKind kind) const {
  const std::optional<double> rpm = NumberIn(Text8);
  std::optional<double> ratio;
  if (kind == FlowMapKind::PressureRatio) {
    ratio = NumberIn(Text17);
  } else if (const std::optional<double> boost = NumberIn(Text3)) {
    BlowerAir air = Air();
    air.boost = *boost;
    ratio = PressureRatio(air);
  }
  if (!rpm || !ratio || !(*rpm > 0) || !(*ratio >= 1)) return {};
  return OperatingPoint{*rpm, *ratio};
}

std::string Form14::Told(const Field& field) const {
  const std::string unit(UnitSign(field.unit(), metric()));
  return field.PlainCaption() + " = " + field.text() + (unit.empty() ? "" : " " + unit);
}

std::vector<std::string> Form14::MapTitle(FlowMapKind kind) const {
  constexpr const char* kGap = "   ";
  const std::string efficiency = Check4.on() ? "Volumetric Efficiency by the Table" : Told(Text9);
  std::vector<std::string> lines{Told(Text7) + kGap + efficiency +
                                 (Check2.on() ? kGap + Check2.PlainCaption() : "")};
  lines.push_back(Told(Text14) + kGap + Told(Text15));
  if (kind == FlowMapKind::Boost) lines.push_back(Told(Text16));
  if (kind == FlowMapKind::Intercooled) lines.push_back(Told(Text19));
  return lines;
}

void Form14::MakeMap(FlowMapKind kind) {
  const FlowMapInput input = ReadMapInput(kind);
  if (Check3.on()) {
    const BlowerPlot plot = PlotFlowMap(input, ReadMapLimits(), PointNow(kind), mark());
    grapher_.DrawGraph(plot.frame, plot.curves);
    grapher_.ShowGraph();
    return;
  }
  const ValueByRpm bsac = ReadByRpm(Text30, Check5, Text34);
  for (const double rpm : FlowMapSpeeds(input.maxRpm)) {
    if (bsac.At(rpm) != 0) continue;
    const auto row = static_cast<int>((rpm - kFirstTableRpm) / kTableRpmStep);
    Field& field = bsac.table ? Text34[std::min(row, kRpmTableRows - 1)] : Text30;
    Require(false, field, "must not be 0 for this command.");
  }
  std::string report =
      BuildReport([&] { return FlowMapReport(input, bsac, MapTitle(kind), mark()); }, kCannotMap);
  const int fontSize = FontSizeByWidth(report);
  ShowReport(std::move(report), fontSize);
}

void Form14::MapByPressureRatio() {
  MakeMap(FlowMapKind::PressureRatio);
}

void Form14::MapByBoost() {
  MakeMap(FlowMapKind::Boost);
}

void Form14::MapWithIntercooler() {
  MakeMap(FlowMapKind::Intercooled);
}

void Form14::ResetColumn(Field& from, FieldArray& column) {
  Read(from);
  for (const auto& field : column.fields()) {
    ShowText(*field, from.text());
    ReadFields({field.get()});
  }
}

void Form14::ResetEfficiencies() {
  ResetColumn(Text9, Text29);
}

void Form14::ResetBsacs() {
  ResetColumn(Text30, Text34);
}

// ---------------------------------------------------------------- units

void Form14::ConvertUnits() {
  ReadFields({&Text1,  &Text2,  &Text3,  &Text4,  &Text5,  &Text6,  &Text7,  &Text8,
              &Text9,  &Text10, &Text11, &Text13, &Text14, &Text15, &Text16, &Text17,
              &Text18, &Text19, &Text20, &Text21, &Text22, &Text23, &Text25, &Text27,
              &Text28, &Text30, &Text31, &Text32, &Text33});
  SwitchUnits();
}

}  // namespace veldox
