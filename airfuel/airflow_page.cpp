#include "airfuel/airflow_page.h"

#include <cmath>
#include <utility>

namespace veldox {

namespace {

constexpr int kReportFontSize = 10;
/// Of reports in 115 columns, of which a page holds 94 in the usual size.
constexpr int kWideReportFontSize = 8;

constexpr const char* kBelowAbsoluteZero = "must be above -459.67, which is absolute zero.";
constexpr const char* kImpossibleReport =
    "The report cannot be made: the values give numbers that are too large. Please check the "
    "engine, its RPM and the air.";

}  // namespace

AirflowPage::AirflowPage(Screen& screen, FuelPanel& fuel) : ScreenPart(screen), fuel_(fuel) {
  Text30.WhenChanged([this] { ShowMixture(); });
  fuel_.Option7.WhenChanged([this] { ShowMixture(); });
  ShowMixture();
}

void AirflowPage::ShowMixture() {
  const std::string& text = Text30.text();
  const double entered = IsNumber(text, mark()) ? ParseNumber(text, mark()) : NAN;
  const bool isRatio = entered > kLargestLambda;
  Mixture.SetCaption((isRatio ? "Lambda of " : "Air Fuel Ratio of ") + fuel_.FuelName());
  const double other = isRatio ? entered / fuel_.StoichRatio() : entered * fuel_.StoichRatio();
  Mixture.SetText(std::isfinite(other) ? FormatValue<"0.0##">(other, mark()) : std::string{});
}

// ---------------------------------------------------------------- air flow and horsepower

void AirflowPage::EstimateAirflow(double flowPerHorsepower) {
  ReadFields({&Text3, &Text29, &Text1, &Text21});
  ParameterBlock& b = block();
  const double intake = IntakeFlowOf(b.HorsePower, b.NumberofCylinders, flowPerHorsepower);
  RequireResult(Text19, intake, {&Text29});
  b.IntakeFlow = intake;
  const double exhaust = intake * b.IntakeExhaustRatio;
  RequireResult(Text20, exhaust);
  b.ExhaustFlow = exhaust;
  const double rpm = RpmOfMostHorsepower(intake, b.CubicInches, b.NumberofCylinders);
  RequireResult(Text27, rpm, {&Text1});
  Store(Text19, intake);
  Store(Text20, exhaust);
  Store(Text27, rpm);
}

void AirflowPage::EstimateHorsepower(double flowPerHorsepower) {
  ReadFields({&Text3, &Text29, &Text19});
  Store(Text3, HorsepowerOfFlow(block().IntakeFlow, block().NumberofCylinders, flowPerHorsepower));
}

void AirflowPage::EstimateHorsepowerByFormula() {
  ReadFields({&Text3, &Text29, &Text19});
  Store(Text3, block().IntakeFlow * kHorsepowerPerFlow * block().NumberofCylinders);
}

void AirflowPage::EstimateAlcoholHorsepower() {
  ReadFields({&Text3});
  Show(Text39, AlcoholHorsepower(block().HorsePower));
}

void AirflowPage::EstimateVolumetricEfficiency() {
  ReadFields({&Text3, &Text1, &Text2, &Text84});
  const ParameterBlock& b = block();
  Store(Text11, VolumetricEfficiencyOfPower(b.HorsePower, b.CubicInches, b.RPM, b.CompressionRatio),
        {&Text1, &Text2, &Text84});
}

void AirflowPage::EstimateBsfc() {
  ReadFields({&Text84});
  Store(Text10, BsfcOfCompression(block().CompressionRatio));
}

// ---------------------------------------------------------------- carburettor, runner, filter

void AirflowPage::SizeCarburetor() {
  ReadFields({&Text1, &Text2, &Text11});
  const ParameterBlock& b = block();
  ShowCarburetor(CarburetorFlow(b.CubicInches, b.RPM, b.VolumetricEfficiency));
}

void AirflowPage::SizeBlownCarburetor() {
  ReadFields({&Text1, &Text2, &Text11, &Text4});
  const ParameterBlock& b = block();
  ShowCarburetor(
      BlownCarburetorFlow(b.CubicInches, b.RPM, b.BlowerPressure, b.VolumetricEfficiency));
}

void AirflowPage::ShowCarburetor(double flow) {
  Store(Text5, flow);
  ReadFields({&Text124});
  Show(Text86, RaceCarburetorFlow(flow, wideOpenVacuum_), {&Text124});
}

void AirflowPage::SizeRunner() {
  ReadFields({&Text1, &Text32, &Text33});
  const ParameterBlock& b = block();
  Show(Text34, RunnerLength(b.CubicInches, b.PortDiameter, b.PeakTorqueRPM), {&Text32, &Text33});
}

void AirflowPage::SizeRunnerForPower() {
  ReadFields({&Text27});
  Show(Text34, RunnerLengthForPower(block().RPMMaxHorsePower), {&Text27});
}

void AirflowPage::SizePaperFilter() {
  SizeFilter(kPaperElement);
}

void AirflowPage::SizeFoamFilter() {
  SizeFilter(kFoamElement);
}

void AirflowPage::SizeFilter(double element) {
  ReadFields({&Text1, &Text2, &Text35});
  const ParameterBlock& b = block();
  const double area = FilterArea(b.CubicInches, b.RPM, element);
  Show(Text36, FilterHeight(area, b.AirFilterDiameter), {&Text35});
  Show(Text37, area);
}

// ---------------------------------------------------------------- air flow at another depression

void AirflowPage::ConvertAirflow() {
  ParameterBlock& b = block();
  ReadFields({&Text15});
  if (Option3.chosen() == 1) b.OldDepression /= kMillimetresWaterPerInch;
  ReadFields({&Text16, &Text17});
  if (Option4.chosen() == 1) b.OldAirFlow /= kCubicMetresPerSecondOfCfm;
  Show(Text18, FlowAtDepression(b.OldAirFlow, b.OldDepression, b.NewDepression), {&Text15});
}

// ---------------------------------------------------------------- mass air flow

void AirflowPage::ReadAirFuelValue() {
  block().AirFuelRatio = AirFuelRatioOf(Read(Text30), fuel_.StoichRatio());
}

InletAir AirflowPage::ReadMassAirInputs() {
  ReadFields({&Text1, &Text2, &Text4, &Text11});
  ReadAirFuelValue();
  ReadFields({&Text71, &Text79});
  const ParameterBlock& b = block();
  const InletAir air = InletAirOf(b.Temperature, b.BarometricPressure, b.BlowerPressure);
  Require(air.AirDensityK > 0, Text71, kBelowAbsoluteZero);
  return air;
}

double AirflowPage::SweptAir() const {
  return SweptM3PerSec(block().CubicInches, block().RPM);
}

void AirflowPage::SolveMassAirFlow() {
  const InletAir air = ReadMassAirInputs();
  const ParameterBlock& b = block();
  const double kilograms = AirKgPerSec(SweptAir(), air, b.VolumetricEfficiency);
  Show(Text80, kilograms);
  Store(Text81, PoundsPerHourOf(kilograms));
  Show(Text69, b.MassAirFlow / b.AirFuelRatio, {&Text30});
  ReadFields({&Text10});
  // The fuel flow with the digits that it is shown with.
  const double horsepower = Read(Text69) / b.BSFC;
  RequireResult(Text3, horsepower, {&Text10});
  Store(Text3, ParseNumber(FormatValue<".00">(horsepower, mark()), mark()));
}

void AirflowPage::SolveVolumetricEfficiency() {
  ReadFields({&Text81});
  const InletAir air = ReadMassAirInputs();
  Store(Text11, VolumetricEfficiencyOf(block().MassAirFlow, SweptAir(), air),
        {&Text1, &Text2, &Text79});
}

void AirflowPage::SolveRpm() {
  const double flow = Read(Text81);
  const InletAir air = ReadMassAirInputs();
  const ParameterBlock& b = block();
  Store(Text2, RpmOfMassAirFlow(flow, b.CubicInches, b.VolumetricEfficiency, air),
        {&Text11, &Text1, &Text79});
}

// ---------------------------------------------------------------- reports

MassAirValues AirflowPage::ReadReportValues() {
  MassAirValues values;
  values.air = ReadMassAirInputs();
  ReadFields({&Text10});
  const ParameterBlock& b = block();
  values.cubicInches = b.CubicInches;
  values.cylinders = b.NumberofCylinders;
  values.rpm = b.RPM;
  values.boost = b.BlowerPressure;
  values.volumetricEfficiency = b.VolumetricEfficiency;
  values.airFuelRatio = b.AirFuelRatio;
  values.lambdaOrRatio = Read(Text30);
  values.bsfc = b.BSFC;
  values.fahrenheit = b.Temperature;
  values.inchesMercury = b.BarometricPressure;
  return values;
}

MassAirLayout AirflowPage::ReportLayout() const {
  return {ReportGridOf(Option8.chosen()), Check1.on(), mark()};
}

Field& AirflowPage::FieldOf(ReportAxis axis) {
  switch (axis) {
    case ReportAxis::Rpm: return Text2;
    case ReportAxis::VolumetricEfficiency: return Text11;
    case ReportAxis::AirFuel: return Text30;
    case ReportAxis::Bsfc: return Text10;
    case ReportAxis::Cylinders: break;
  }
  return Text29;
}

std::string AirflowPage::MakeReport(const std::function<std::string()>& make) {
  try {
    return BuildReport(make, kImpossibleReport);
  } catch (const ReportFault& fault) {
    throw CommandError(fault.kind, fault.message, &FieldOf(fault.axis));
  }
}

void AirflowPage::ShowGridReport(ReportOf make, int largeFontSize) {
  const MassAirValues values = ReadReportValues();
  const MassAirLayout layout = ReportLayout();
  std::string report = MakeReport([&] { return make(values, layout); });
  ShowReportOfMixture(std::move(report), layout.grid.isLarge ? largeFontSize : kReportFontSize,
                      " The middle column, under \\|/, holds the value entered.");
}

void AirflowPage::ShowReportOfMixture(std::string report, int fontSize, const std::string& note) {
  ShowReport(std::move(report), fontSize);
  const double ratio = block().AirFuelRatio;
  screen().ReportPane()->ShowSentence(
      fuel_.FuelName() + ", air fuel ratio " + FormatValue<"0.0##">(ratio, mark()) + ", lambda " +
      FormatValue<"0.0##">(ratio / fuel_.StoichRatio(), mark()) + '.' + note);
}

void AirflowPage::ReportAirFuel() {
  ShowGridReport(&AirFuelReport, kReportFontSize);
}

void AirflowPage::ReportBsfc() {
  ShowGridReport(&BsfcReport, kWideReportFontSize);
}

void AirflowPage::ReportSpeed() {
  ShowGridReport(&SpeedReport, kWideReportFontSize);
}

void AirflowPage::ReportDyno() {
  MassAirValues values = ReadReportValues();
  ReadFields({&Text29});
  values.cylinders = block().NumberofCylinders;
  DynoPoint last{};
  std::string report = MakeReport([&] {
    DynoSheet sheet = DynoReport(values, Check1.on(), mark());
    last = sheet.last;
    return std::move(sheet.report);
  });
  block().MassAirFlow = last.poundsOfAir;
  block().FuelFlow = last.poundsOfFuel;
  block().HorsePower = last.horsepower;
  ShowReportOfMixture(std::move(report), kReportFontSize, {});
}

}  // namespace veldox
