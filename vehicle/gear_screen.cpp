#include "vehicle/gear_screen.h"

#include <array>

namespace veldox {

namespace {

constexpr const char* kRpmInGear = "RPM in Gear";
constexpr const char* kRpmAfterShift = "RPM After Shift";
constexpr const char* kShiftRpm = "Shift RPM";
constexpr int kShiftColumn = 3;
constexpr double kFewestSpreadGears = 3;

}  // namespace

Form5::Form5(ProgramContext& context)
    : Screen(context, "Form5", "Gear / Tire / Speed Information Calculator", "Gear") {
  SetPattern(&FormatValue<"0.00000">);
  Gears.DimRows([this](int gear) { return IsZero(Text2[gear]); });
  Teeth.DimRows([this](int gear) { return IsZero(Text11[gear]) || IsZero(Text12[gear]); });
  constexpr std::array<const char*, kMostGears - 1> kShifts{
      "1 - 2", "2 - 3", "3 - 4", "4 - 5", "5 - 6", "6 - 7", "7 - 8", "8 - 9", "9 - 10"};
  for (std::size_t i = 0; i < kShifts.size(); ++i) {
    ShiftRpms[static_cast<int>(i)].SetHelp("RPM in this gear, or at the shift " +
                                           std::string(kShifts[i]) + '.');
  }
}

double Form5::TransRatio(int gear) const {
  return block().TGear[static_cast<std::size_t>(gear)];
}

void Form5::TakeGearbox(const Gearbox& gearbox) {
  // A closed screen may hold old values: it takes the shared ones as if it opened, so that its
  // commands put nothing back.
  if (!visible() && block().FormsCleared != 1) CopyShared();
  const ParameterBlock& b = block();
  const auto show = [this](Field& field, double number) {
    ShowShared(field, number);
    field.SetMark(Mark::Changed);
  };
  Check2.SetOn(gearbox.primaryDrive.has_value());
  foreignTeeth_ = std::nullopt;
  if (gearbox.primaryDrive) show(Text62, b.PrimaryDrive);
  if (gearbox.primaryTeeth) {
    show(Text61, b.RearSprocket);
    show(Text60, b.FrontSprocket);
  } else if (gearbox.primaryDrive) {
    foreignTeeth_ = std::pair(Text60.text(), Text61.text());
  }
  if (gearbox.finalDrive) show(Text18, b.RearGearRatio);
  if (gearbox.finalTeeth) {
    show(Text29, b.RingGear);
    show(Text30, b.PinionGear);
  }
  for (int i = 0; i < kMostGears; ++i) show(Text2[i], TransRatio(i));
}

void Form5::ConvertUnits() {
  SwitchUnits();
  if (metric()) ShowHelp(context().rules.messages().PartialMetricNote);
}

bool Form5::IsZero(const Field& field) const {
  return IsNumber(field.text(), mark()) && ParseNumber(field.text(), mark()) == 0;
}

// ---------------------------------------------------------------- reading and showing

void Form5::ReadPrimaryDrive() {
  if (!Check2.on()) return;
  if (foreignTeeth_->has_value() && **foreignTeeth_ == std::pair(Text60.text(), Text61.text()))
    return;
  foreignTeeth_ = std::nullopt;
  ReadFields({&Text60, &Text61});
  const double rear = block().RearSprocket;
  Store(Text62, rear / block().FrontSprocket, {&Text60});
}

double Form5::PrimaryDriveInUse() const {
  return Check2.on() ? block().PrimaryDrive : 1;
}

double Form5::ReadEffectiveRear() {
  ReadPrimaryDrive();
  ReadFields({&Text18});
  return block().RearGearRatio * PrimaryDriveInUse();
}

double Form5::ReadTransRatios() {
  const double effectiveRear = ReadEffectiveRear();
  for (int i = 0; i < kMostGears; ++i) {
    ReadFields({&Text2[i]});
    Show(OverallRatios[i], effectiveRear * TransRatio(i));
  }
  return effectiveRear;
}

double Form5::ReadSpeed() {
  ReadFields({&Text1});
  return metric() ? block().MPH / kKilometresPerMile : block().MPH;
}

double Form5::ReadPower() {
  ReadFields({&Text20});
  return metric() ? block().HorsePower / kKilowattsPerHorsepower : block().HorsePower;
}

void Form5::ShowSpeed(double mph) {
  Store(Text1, metric() ? mph * kKilometresPerMile : mph, {&Text32});
}

// ---------------------------------------------------------------- speed and RPM

void Form5::SolveSpeeds() {
  ReadFields({&Text17, &Text18, &Text21});
  const double effectiveRear = ReadTransRatios();
  double speed = 0;
  for (int i = 0; i < kMostGears; ++i) {
    if (TransRatio(i) > 0) {
      speed = RoadSpeed(block().TireDiameter, block().RPM, effectiveRear * TransRatio(i));
      if (metric()) speed *= kKilometresPerMile;
    }
    // A gear that is not there shows the speed of the one before.
    Show(Speeds[i], speed, {&Text18, &Text61});
  }
}

void Form5::SolveRpm() {
  const double speed = ReadSpeed();
  ReadFields({&Text21});
  const double effectiveRear = ReadEffectiveRear();
  const double rpm = EngineSpeed(speed, effectiveRear, block().TireDiameter);
  Store(Text17, rpm, {&Text21});
  ReadTransRatios();
  Gears.SetHead(kShiftColumn, kRpmInGear);
  for (int i = 0; i < kMostGears; ++i) Show(ShiftRpms[i], TransRatio(i) * rpm);
}

void Form5::SolveRearRatio() {
  const double speed = ReadSpeed();
  ReadFields({&Text17, &Text21, &Text2[0]});
  ReadPrimaryDrive();
  const double ratio = RearRatioForSpeed(block().TireDiameter, block().RPM, TransRatio(0), speed);
  Store(Text18, ratio / PrimaryDriveInUse(), {&Text2[0], &Text1, &Text61});
}

void Form5::SolveRearRatioFromTeeth() {
  ReadFields({&Text29, &Text30});
  const double ring = block().RingGear;
  Store(Text18, ring / block().PinionGear, {&Text30});
}

void Form5::SolveRpmOfNewRatio() {
  const double speed = ReadSpeed();
  ReadPrimaryDrive();
  ReadFields({&Text18, &Text34, &Text21});
  const ParameterBlock& b = block();
  const double primary = PrimaryDriveInUse();
  // The RPM goes by the speed as the field shows it, in km/h too; the new one by the speed in MPH.
  Store(Text17, EngineSpeed(b.MPH, b.RearGearRatio * primary, b.TireDiameter), {&Text21});
  Show(Text39, EngineSpeed(speed, b.NewRearGearRatio * primary, b.TireDiameter));
}

void Form5::SolveRatioForNewTire() {
  ReadFields({&Text35, &Text21, &Text18});
  const double growth = block().NewTireDiameter / block().TireDiameter;
  Store(Text34, growth * block().RearGearRatio, {&Text21});
  Show(Text40, 100 - growth * 100);
}

void Form5::EstimateFirstGearManual() {
  const double speed = ReadSpeed();
  const double horsepower = ReadPower();
  ReadFields({&Text28});
  Store(Text2[0], FirstGearManual(speed, block().TireWidth, horsepower), {&Text20});
}

void Form5::EstimateFirstGearAutomatic() {
  const double speed = ReadSpeed();
  const double horsepower = ReadPower();
  ReadFields({&Text28});
  Store(Text2[0], FirstGearAutomatic(speed, block().TireWidth, horsepower), {&Text20});
}

void Form5::SolveConverterSlip() {
  ReadSpeed();
  ReadFields({&Text17, &Text18, &Text21});
  ReadTransRatios();
  const ParameterBlock& b = block();
  const double topGear = TransRatio(kMostGears - 1);
  const double ratio = topGear > 0 ? b.RearGearRatio * topGear : b.RearGearRatio;
  Store(Text41, ConverterSlip(b.MPH, b.TireDiameter, b.RPM, ratio), {&Text17, &Text21, &Text18});
}

void Form5::SolveEffectiveRatio() {
  ReadFields({&Text73});
  const double effectiveRear = ReadTransRatios();
  Show(Text74, EffectiveRatio(effectiveRear * TransRatio(0), block().TireRollingRadius), {&Text73});
}

// ---------------------------------------------------------------- shifts and gears

void Form5::ShowShifts(const char* head, const std::function<std::string(int)>& textOf) {
  Gears.SetHead(kShiftColumn, head);
  for (int i = 0; i < kMostGears; ++i) {
    const bool shifts = i + 1 < kMostGears && TransRatio(i + 1) > 0;
    if (shifts) {
      ShowText(ShiftRpms[i], textOf(i));
    } else {
      ShiftRpms[i].SetText({});
    }
  }
}

void Form5::SolveRpmAfterShift() {
  ReadFields({&Text17});
  ReadTransRatios();
  ShowShifts(kRpmAfterShift, [this](int gear) {
    const double rpm = block().RPM * TransRatio(gear + 1) / TransRatio(gear);
    RequireResult(ShiftRpms[gear], rpm, {&Text2[gear]});
    const double percent = 100 * TransRatio(gear + 1) / TransRatio(gear);
    return FormatInt(rpm, mark()) + '-' + FormatValue<"0.00">(percent, mark()) + '%';
  });
}

void Form5::SolveShiftRpm() {
  ReadFields({&Text19});
  ReadTransRatios();
  ShowShifts(kShiftRpm, [this](int gear) {
    const double rpm = block().PeakTorqueRPM * TransRatio(gear) / TransRatio(gear + 1);
    RequireResult(ShiftRpms[gear], rpm);
    return FormatValue<".00">(rpm, mark());
  });
}

void Form5::StepGearsDown() {
  const double step = Read(Text75) / 100;
  ReadFields({&Text2[0]});
  for (int i = 1; i < kMostGears; ++i) Store(Text2[i], TransRatio(i - 1) * step);
  SolveRpmAfterShift();
}

void Form5::StepGearsUp() {
  const double step = Read(Text75) / 100;
  ReadFields({&Text2[kMostGears - 1]});
  for (int i = kMostGears - 1; i > 0; --i) Store(Text2[i - 1], TransRatio(i) / step, {&Text75});
  SolveRpmAfterShift();
}

void Form5::SpreadGears() {
  ReadFields({&Text2[0]});
  Field& highGear = Text2[kMostGears - 2];
  Field& gearCount = Text2[kMostGears - 1];
  const double high = Read(highGear);
  const double gears = Floor(Read(gearCount));
  if (gears < kFewestSpreadGears || gears > kMostGears) {
    FailAt(gearCount, "Number of Trans Grears must be between 3 and 10");
  }
  Require(high > 0, highGear, "must be greater than 0 for this command.");
  Show(Text75, GearStep(TransRatio(0), high, gears) * 100, {&Text2[0]});
  StepGearsDown();
}

void Form5::SolveGearsFromTeeth() {
  const double input = Read(Text13) / Read(Text14);
  for (int i = 0; i < kMostGears; ++i) {
    const double cluster = Read(Text11[i]);
    const double output = Read(Text12[i]);
    const bool meshes = cluster != 0 && output != 0;
    Store(Text2[i], meshes ? output * input / cluster : 0, {&Text14});
  }
}

void Form5::ClearTeeth() {
  for (int i = 0; i < kMostGears; ++i) {
    Text11[i].SetText("0");
    Text12[i].SetText("0");
  }
  Text13.SetText("0");
  Text14.SetText("0");
}

// ---------------------------------------------------------------- tires

void Form5::SolveTire(Field& diameter) {
  ReadFields({&Text28, &Text37, &Text36});
  const ParameterBlock& b = block();
  Store(diameter, NominalTireDiameter(b.TireWidth, b.AspectRatio, b.WheelDiameter));
}

void Form5::SolveTireDiameter() {
  SolveTire(Text21);
}

void Form5::SolveNewTireDiameter() {
  SolveTire(Text35);
}

// ---------------------------------------------------------------- track and acceleration

void Form5::SolveLapSpeed() {
  ReadFields({&Text31, &Text32});
  Store(Text1, LapSpeed(block().TrackSize, block().TrackTime), {&Text32});
}

void Form5::SolveLapTime() {
  const double speed = ReadSpeed();
  ReadFields({&Text31});
  Store(Text32, LapTime(block().TrackSize, speed), {&Text1});
}

void Form5::SolveTrackSize() {
  const double speed = ReadSpeed();
  ReadFields({&Text32});
  Store(Text31, LapLength(speed, block().TrackTime), {&Text32});
}

void Form5::CheckSpeedometer() {
  ReadFields({&Text32});
  ShowSpeed(LapSpeed(1, block().TrackTime));
}

void Form5::SolveSkidPadGs() {
  ReadFields({&Text38, &Text32});
  Store(Text33, SkidPadAcceleration(block().TurnRadius, block().TrackTime), {&Text32});
}

void Form5::SolveCorneringGs() {
  const double speed = ReadSpeed();
  ReadFields({&Text38});
  Store(Text33, CorneringAcceleration(block().TurnRadius, speed), {&Text38});
}

void Form5::SolveGsOverDistance() {
  ReadFields({&Text31, &Text32});
  Store(Text33, MeanAccelerationOver(block().TrackSize, block().TrackTime), {&Text32});
}

void Form5::SolveGsToSpeed() {
  const double speed = ReadSpeed();
  ReadFields({&Text32});
  Store(Text33, MeanAccelerationTo(speed, block().TrackTime), {&Text32});
}

void Form5::TabulateLapSpeed() {
  ReadFields({&Text31, &Text44, &Text42, &Text43});
  const ParameterBlock& b = block();
  const LapChart chart{b.TrackSize, b.StartSeconds, b.EndSeconds, b.EveryXSeconds};
  Require(chart.everySeconds != 0, Text44, "must be greater than 0 for a chart.");
  std::string report = LapChartErrors(chart, mark());
  if (report.empty()) {
    Require(chart.everySeconds > 0, Text44, "must be greater than 0 for a chart.");
    Require(chart.startSeconds > 0, Text42, "must be greater than 0 for a chart.");
    report = BuildReport([&] { return LapChartReport(chart, mark()); },
                         "The chart cannot be computed: a number of it is too large.");
  }
  ShowReport(std::move(report));
}

}  // namespace veldox
