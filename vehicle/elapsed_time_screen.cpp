#include "vehicle/elapsed_time_screen.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "graph/power_curves.h"

namespace veldox {

namespace {

constexpr const char* kBadCurveType = "Type of Curve may only be 1 Thru 11.";
constexpr const char* kReportFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Printer Files (*.prt)|*.prt|Parameter Files "
    "(*.prm)|*.prm";
constexpr int kPrinterFiles = 3;
constexpr int kParameterFiles = 4;
constexpr const char* kReplacesTable =
    "Saved as a parameter file, these lines replace the torque table of the Acceleration and Top "
    "Speed Calculator when the file is read.";
constexpr const char* kTorqueAsShown =
    " The torque stands as the fields show it; the file is read as foot pounds, so untick Metric "
    "first.";
constexpr int kReportFontSize = 10;

}  // namespace

Form3::Form3(ProgramContext& context)
    : Screen(context, "Form3", "ET / MPH / Horsepower Calculator", "ET_MPH") {
  SetPattern(&FormatSmart);
  ChooseTransmission();
}

void Form3::CopyFromBlock() {
  Screen::CopyFromBlock();
  TellSlippage();
}

void Form3::Hover(Control* control) {
  // Other screens and files change it too.
  TellSlippage();
  Screen::Hover(control);
}

void Form3::TellSlippage() {
  Label77.SetCaption(
      Check2.on() ? "Slippage in use: " + FormatSmart(block().ConverterSlippage, mark()) + " %"
                  : "");
}

void Form3::ChooseTransmission() {
  Text26.SetEnabled(Check2.on());
  TellSlippage();
}

void Form3::TakeGearbox(const Gearbox& gearbox) {
  Check2.SetOn(gearbox.isAutomatic);
  ChooseTransmission();
}

void Form3::ConvertUnits() {
  ReadConversionFields();
  SwitchUnits();
}

// ---------------------------------------------------------------- reading and showing

void Form3::ReadConversionFields() {
  ReadFields({&Text2, &Text3, &Text9, &Text5, &Text6, &Text12, &Text15, &Text14, &Text11, &Text26});
  TellSlippage();
}

double Form3::ReadWeight() {
  ReadFields({&Text2});
  return metric() ? block().CarWeight / kKilogramsPerPound : block().CarWeight;
}

double Form3::ReadPower() {
  ReadFields({&Text5});
  return metric() ? block().HorsePower / kKilowattsPerHorsepower : block().HorsePower;
}

double Form3::ReadTrapSpeed() {
  ReadFields({&Text3});
  double speed = block().MPH;
  if (Check2.on()) {
    Require(block().ConverterSlippage < 100, Text26, "must be less than 100.");
    speed *= 1 / (1 - block().ConverterSlippage / 100);
  }
  return metric() ? speed / kKilometresPerMile : speed;
}

double Form3::ReadEighthSpeed() {
  ReadFields({&Text9});
  return metric() ? block().MPH8 / kKilometresPerMile : block().MPH8;
}

void Form3::ShowPower(double horsepower) {
  Store(Text5, metric() ? horsepower * kKilowattsPerHorsepower : horsepower);
}

void Form3::ShowPowerIncrease(double horsepower) {
  Store(Text6, metric() ? horsepower * kKilowattsPerHorsepower : horsepower);
}

void Form3::ShowSpeeds(double mph) {
  double speed = mph;
  if (Check2.on()) speed *= 1 - block().ConverterSlippage / 100;
  const double unit = metric() ? kKilometresPerMile : 1;
  Store(Text3, speed * unit, {&Text2});
  Store(Text9, EighthMileSpeed(speed) * unit);
}

// ---------------------------------------------------------------- estimates

void Form3::EstimateTime() {
  const double weightLb = ReadWeight();
  const double powerHp = ReadPower();
  const double elapsedTime = ElapsedTimeForPower(weightLb, powerHp);
  Store(Text1, elapsedTime, {&Text5});
  Store(Text8, EighthMileTime(elapsedTime));
}

void Form3::EstimateSpeed(SpeedTrap trap) {
  const double weightLb = ReadWeight();
  const double powerHp = ReadPower();
  ShowSpeeds(TrapSpeedForPower(trap, weightLb, powerHp));
}

void Form3::EstimateSpeed66() {
  EstimateSpeed(SpeedTrap::SixtySixFeet);
}

void Form3::EstimateSpeed33() {
  EstimateSpeed(SpeedTrap::ThirtyThreeFeet);
}

void Form3::EstimateTimeForSpeed(SpeedTrap trap) {
  Store(Text1, ElapsedTimeForSpeed(trap, ReadTrapSpeed()), {&Text3});
}

void Form3::EstimateTimeForSpeed66() {
  EstimateTimeForSpeed(SpeedTrap::SixtySixFeet);
}

void Form3::EstimateTimeForSpeed33() {
  EstimateTimeForSpeed(SpeedTrap::ThirtyThreeFeet);
}

void Form3::EstimateEighthMileTime() {
  Store(Text8, EighthMileTimeForSpeed(ReadEighthSpeed()), {&Text9});
}

void Form3::EstimatePowerForTime() {
  const double weightLb = ReadWeight();
  ReadFields({&Text1});
  Store(Text5, PowerForElapsedTime(weightLb, block().ET), {&Text1});
}

void Form3::EstimatePowerForSpeed(SpeedTrap trap) {
  const double weightLb = ReadWeight();
  Store(Text5, PowerForTrapSpeed(trap, weightLb, ReadTrapSpeed()));
}

void Form3::EstimatePowerForSpeed66() {
  EstimatePowerForSpeed(SpeedTrap::SixtySixFeet);
}

void Form3::EstimatePowerForSpeed33() {
  EstimatePowerForSpeed(SpeedTrap::ThirtyThreeFeet);
}

void Form3::EstimatePowerForOneMph() {
  const double weightLb = ReadWeight();
  ReadTrapSpeed();
  // The speed as the field shows it, in km/h too, and whatever the converter loses.
  ShowPowerIncrease(PowerForOneMphMore(weightLb, block().MPH));
}

void Form3::EstimatePowerForTimeAndSpeed(SpeedTrap trap) {
  const double weightLb = ReadWeight();
  const double trapMph = ReadTrapSpeed();
  ReadFields({&Text1});
  const double elapsedTime = block().ET;
  const double power =
      (PowerForTrapSpeed(trap, weightLb, trapMph) + PowerForElapsedTime(weightLb, elapsedTime)) / 2;
  Store(Text5, power, {&Text1});
  Store(Text18, trapMph * elapsedTime);
}

void Form3::EstimatePowerForTimeAndSpeed66() {
  EstimatePowerForTimeAndSpeed(SpeedTrap::SixtySixFeet);
}

void Form3::EstimatePowerForTimeAndSpeed33() {
  EstimatePowerForTimeAndSpeed(SpeedTrap::ThirtyThreeFeet);
}

// ---------------------------------------------------------------- horsepower, torque, pressure

void Form3::ConvertPowerToTorque() {
  ReadConversionFields();
  Store(Text12, TorqueForPower(block().HorsePower, block().RPM), {&Text11});
}

void Form3::ConvertTorqueToPower() {
  ReadConversionFields();
  ShowPower(PowerForTorque(block().Torque, block().RPM));
}

void Form3::SolveMeanPressureForTorque() {
  ReadConversionFields();
  const double torque = block().Torque;
  const double size = block().CubicInches;
  const double cubicInches = metric() ? size * kCubicInchesPerCc : size;
  const double litres = (metric() ? size : size / kCubicInchesPerCc) / 1000;
  if (metric()) {
    Store(Text14,
          MeanPressureForTorque(torque / kMetreKilogramsPerFootPound, cubicInches) * kBarPerPsi,
          {&Text15});
  } else {
    Store(Text14, MeanPressureForTorque(torque, cubicInches), {&Text15});
  }
  Show(Text35, torque / cubicInches);
  Show(Text36, torque / litres);
}

void Form3::SolveMeanPressureForPower() {
  ReadConversionFields();
  const double power = block().HorsePower;
  const double size = block().CubicInches;
  Store(Text14, MeanPressureForPower(power, size, block().RPM), {&Text15, &Text11});
  Show(Text37, power / (metric() ? size * kCubicInchesPerCc : size));
  Show(Text39, power / ((metric() ? size : size / kCubicInchesPerCc) / 1000));
}

// ---------------------------------------------------------------- 60 feet

void Form3::EstimateSixtyFootTime() {
  ReadFields({&Text1});
  Store(Text19, SixtyFootTime(block().ET), {&Text1});
}

void Form3::EstimateSixtyFootSpeed() {
  ReadFields({&Text19});
  Store(Text20, SixtyFootSpeed(block().ET60), {&Text19});
}

void Form3::EstimateSixtyFootGs() {
  ReadFields({&Text19});
  Show(Text25, SixtyFootGs(block().ET60), {&Text19});
  Show(Text34, SixtyFootGs3110(block().ET60), {&Text19});
}

// ---------------------------------------------------------------- split times

std::array<Form3::Run, 3> Form3::AllRuns() {
  return {{{{&Text4, &Text10, &Text13, &Text17, &Text21}, 0, &Text40, &Text41},
           {{&Text22, &Text23, &Text24, &Text27, &Text28}, 4, &Text42, &Text43},
           {{&Text29, &Text30, &Text31, &Text32, &Text33}, 8, &Text44, &Text45}}};
}

bool Form3::IsUnused(const Run& run) const {
  return std::all_of(run.times.begin(), run.times.end(), [this](const Field* time) {
    return time->text().empty() ||
           (IsNumber(time->text(), mark()) && ParseNumber(time->text(), mark()) == 0);
  });
}

void Form3::ShowSplits(const Run& run) {
  for (std::size_t i = 0; i + 1 < kSplits; ++i) {
    const double before = Read(*run.times[i]);
    Show(Text7[run.firstSplit + static_cast<int>(i)], Read(*run.times[i + 1]) - before);
  }
}

void Form3::EmptyResults(const Run& run) {
  for (int i = 0; i + 1 < static_cast<int>(kSplits); ++i) Text7[run.firstSplit + i].SetText({});
  run.peak->SetText({});
  run.average->SetText({});
}

void Form3::ShowRunPower(const Run& run, double weightLb) {
  std::array<double, kSplits> times{};
  for (std::size_t i = 0; i < kSplits; ++i) {
    Field& field = *run.times[i];
    times[i] = Read(field);
    Require(i > 0 || times[i] != 0, field, "must not be 0.");
    Require(i == 0 || times[i] != times[i - 1], field, "must differ from the time before it.");
  }
  const RunPowers powers = RunPower(weightLb, times);
  ShowAs<".00">(*run.peak, powers.peak, {&Text2});
  ShowAs<".00">(*run.average, powers.average);
}

void Form3::AnalyseRuns() {
  const std::array<Run, 3> runs = AllRuns();
  for (const Run& run : runs) IsUnused(run) ? EmptyResults(run) : ShowSplits(run);
  const double weightLb = ReadWeight();
  for (const Run& run : runs) {
    if (!IsUnused(run)) ShowRunPower(run, weightLb);
  }
}

// ---------------------------------------------------------------- horsepower curve

ScaledCurve Form3::ReadCurve() {
  const double type = Read(Text16);
  const bool isWhole = type == Floor(type);
  if (!(type >= kFirstCurveType && type <= kLastCurveType) ||
      (!isWhole && !lastCurve_->has_value())) {
    FailAt(Text16, kBadCurveType);
  }
  ReadFields({&Text16});
  ReadConversionFields();
  if (!isWhole) return **lastCurve_;
  return {static_cast<int>(type), {block().RPM, block().HorsePower, block().Torque}};
}

void Form3::GenerateCurve() {
  const ScaledCurve curve = ReadCurve();
  const double rpm = block().RPM;
  Require(rpm > 0, Text11, "must be greater than 0 for this command.");
  Require(CanWalk(curve, rpm), Text11, "is too large for a curve in steps of 100 RPM.");
  const bool forFile = Check3.on();
  const double bsfc = forFile ? Read(Text46) : 0;
  Require(forFile || block().CubicInches != 0, Text15, "must not be 0 for this command.");
  std::string report = BuildReport(
      [&] {
        const std::vector<HorsepowerPoint> points = WalkCurve(curve, rpm);
        return forFile ? AccelerationCurveReport(points, bsfc, mark())
                       : HorsepowerCurveReport(points, block().CubicInches, mark());
      },
      "The curve cannot be computed: a number of it is too large.");
  lastCurve_ = curve;
  std::string note;
  if (forFile) note = std::string(kReplacesTable) + (metric() ? kTorqueAsShown : "");
  Text38.SetHelp(note);
  ShowReport(std::move(report), kReportFontSize,
             {kReportFilter, forFile ? kParameterFiles : kPrinterFiles, !forFile});
  ShowHelp(note);
}

}  // namespace veldox
