#include "airfuel/injector_panel.h"

namespace veldox {

namespace {

constexpr double kHighestDuty = 0.95;
constexpr const char* DutyWarning = "Warning! Duty Cycle is Greater Than 95%";
constexpr const char* PulseWarning = "Warning! Pulse Width is to Great for Entered RPM";
constexpr const char* kNeverOpens =
    "must be less than the pulse width, or the injectors never open.";

}  // namespace

InjectorPanel::InjectorPanel(Screen& screen, AirflowPage& page) : ScreenPart(screen), page_(page) {
  Text6.WhenChanged([this] { ShowStandardRating(); });
  ShowStandardRating();
}

void InjectorPanel::ShowStandardRating() {
  const std::string& text = Text6.text();
  const double rating = IsNumber(text, mark()) ? NextStandardRating(ParseNumber(text, mark())) : 0;
  StandardRating.SetText(rating > 0 ? FormatInt(rating, mark()) : std::string{});
}

void InjectorPanel::ShowInjectorConversions() {
  const ParameterBlock& b = block();
  Show(Text7Grams, GramsPerMinuteOf(b.LbsHour));
  Show(Text7Ccs, CcPerMinuteOf(b.LbsHour));
  Store(Text28, FuelPumpFlowOf(b.LbsHour, b.NumberInjectors, b.DutyCycle));
}

void InjectorPanel::CheckPulseWidth() const {
  if (CycleMs(block().RPM) <= block().PulseWidth) Warn(PulseWarning);
}

InjectedEngine InjectorPanel::EngineOfPage() const {
  const ParameterBlock& b = block();
  return {b.CubicInches,          b.RPM,          b.BlowerPressure,
          b.VolumetricEfficiency, b.AirFuelRatio, static_cast<double>(b.NumberInjectors)};
}

void InjectorPanel::InjectorSizeFromHp() {
  ReadFields({&page_.Text10, &page_.Text3, &Text12, &Text14});
  const ParameterBlock& b = block();
  Store(Text6, RatingForHorsepower(b.HorsePower, b.BSFC, b.NumberInjectors, b.DutyCycle),
        {&Text12, &Text14});
  ShowInjectorConversions();
  PulseWidthFromDuty();
}

void InjectorPanel::MaxHpFromInjector() {
  ReadFields({&Text8, &Text9, &page_.Text10, &Text12, &Text14, &Text6});
  const ParameterBlock& b = block();
  Store(page_.Text3,
        HorsepowerOfInjectors(b.LbsHour, b.OldFuelPressure, b.NewFuelPressure, b.DutyCycle,
                              b.NumberInjectors, b.BSFC),
        {&Text8, &page_.Text10});
}

void InjectorPanel::InjectorAtNewPressure() {
  ReadFields({&Text8, &Text9, &Text6});
  const ParameterBlock& b = block();
  Store(Text13, RatingAtPressure(b.LbsHour, b.OldFuelPressure, b.NewFuelPressure), {&Text8});
  ReadFields({&Text12});
  Show(Text125, DutyAtPressure(b.DutyCycle, b.OldFuelPressure, b.NewFuelPressure), {&Text9});
  // What the field shows is what is judged.
  if (Read(Text125) > kHighestDuty) Warn(DutyWarning);
}

void InjectorPanel::PressureForInjector() {
  ReadFields({&Text8, &Text6, &Text13});
  const ParameterBlock& b = block();
  Store(Text9, PressureForRating(b.NewLbsHour, b.LbsHour, b.OldFuelPressure), {&Text6});
}

void InjectorPanel::EstimateFuelFlow() {
  ReadFields({&page_.Text1, &page_.Text2});
  page_.ReadAirFuelValue();
  ReadFields({&page_.Text11});
  const ParameterBlock& b = block();
  Store(Text31, FuelFlowOf(b.CubicInches, b.RPM, b.VolumetricEfficiency, b.AirFuelRatio),
        {&page_.Text30});
}

void InjectorPanel::ThrottleBodyFlow() {
  ReadFields({&page_.Text1, &page_.Text2, &page_.Text11});
  const ParameterBlock& b = block();
  Show(Text40, ThrottleBodyFlowOf(b.CubicInches, b.RPM, b.VolumetricEfficiency));
}

void InjectorPanel::PulseWidthFromDuty() {
  ReadFields({&Text12, &page_.Text2});
  const ParameterBlock& b = block();
  Store(Text41, FullPulse(b.RPM) * b.DutyCycle, {&page_.Text2});
  CheckPulseWidth();
}

void InjectorPanel::DutyFromPulseWidth() {
  ReadFields({&Text41, &page_.Text2});
  CheckPulseWidth();
  const ParameterBlock& b = block();
  Store(Text12, b.PulseWidth / FullPulse(b.RPM), {&page_.Text2});
  if (b.DutyCycle > kHighestDuty) Warn(DutyWarning);
}

void InjectorPanel::InjectorSizeFromDuty() {
  ReadFields({&page_.Text1, &page_.Text2});
  page_.ReadAirFuelValue();
  ReadFields({&page_.Text11, &Text12, &Text14, &page_.Text4});
  Store(Text6, RatingForEngine(EngineOfPage(), block().DutyCycle),
        {&page_.Text30, &Text12, &Text14});
  ShowInjectorConversions();
  PulseWidthFromDuty();
}

void InjectorPanel::InjectorSizeFromPulse() {
  ReadFields({&page_.Text1, &page_.Text2});
  page_.ReadAirFuelValue();
  ReadFields({&page_.Text11, &Text41});
  CheckPulseWidth();
  ReadFields({&Text82});
  const ParameterBlock& b = block();
  const bool opens = b.InjectorDeadTime < b.PulseWidth;
  Require(opens || (b.PulseWidth == 0 && b.InjectorDeadTime == 0), Text82, kNeverOpens);
  const double effectiveDuty = (b.PulseWidth - b.InjectorDeadTime) / FullPulse(b.RPM);
  ReadFields({&Text14, &page_.Text4});
  Store(Text6, RatingForEngine(EngineOfPage(), effectiveDuty),
        {&page_.Text2, &page_.Text30, &Text41, &Text14});
  ShowInjectorConversions();
}

}  // namespace veldox
