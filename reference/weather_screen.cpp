#include "reference/weather_screen.h"

#include <cmath>
#include <string>

#include "core/units.h"
#include "reference/pulleys.h"

namespace veldox {

namespace {

constexpr double kRoundedAbsoluteZero = -460;

}  // namespace

Form7::Form7(ProgramContext& context)
    : Screen(context, "Form7", "Weather / Pulley Ratio", "Weather") {}

void Form7::ReadWeather() {
  ReadFields({&Text10, &Text1, &Text11, &Text3, &Text12, &Text4, &Text8, &Text9, &Text15, &Text39,
              &Text19, &Text21, &Text26, &Text27, &Text28, &Text29});
  StdTemp = Option1.chosen() == 0 ? 59 : 60;
}

double Form7::SaturationAt(Field& temperature, double fahrenheit) {
  const double saturation = SaturationVaporPressure(CelsiusOf(fahrenheit));
  Require(std::isfinite(saturation), temperature,
          "gives no Vapor Pressure: the formula ends at -237.7 degrees Celsius, which is -395.86 "
          "degrees Fahrenheit.");
  return saturation;
}

void Form7::VaporPressure() {
  const ParameterBlock& b = block();
  const double saturation = SaturationAt(Text11, b.Temperature);
  Show(Text17, saturation);
  Store(Text13, VaporPressureAt(b.Humidity, saturation, vaporPressure_));
  const double saturationNew = SaturationAt(Text3, b.TemperatureNew);
  vaporPressureNew_ = VaporPressureAt(b.HumidityNew, saturationNew, vaporPressureNew_);
}

Air Form7::OldAir() const {
  const ParameterBlock& b = block();
  return {b.BarometricPressure, b.Temperature, vaporPressure_};
}

Air Form7::NewAir() const {
  const ParameterBlock& b = block();
  return {b.BarometricPressureNew, b.TemperatureNew, vaporPressureNew_};
}

void Form7::RequireAir(const Air& air, double humidity, const WeatherFields& fields) {
  Require(air.pressure > 0, fields.pressure, "must be greater than 0.");
  if (air.vaporPressure < air.pressure) return;
  Require(humidity > 0, fields.pressure,
          "is not above the last Vapor Pressure, which holds while there is no Humidity: no air "
          "would be left.");
  Require(false, humidity > 100 ? fields.humidity : fields.temperature,
          "makes the Vapor Pressure as high as the Barometric Pressure: no air would be left.");
}

void Form7::RequireStandardPressure() {
  Require(StdBaro > 0, Text39, "must be greater than 0.");
}

// ---------------------------------------------------------------- horsepower

void Form7::EstimateGainOfTemperature() {
  ReadWeather();
  const ParameterBlock& b = block();
  Require(b.Temperature > kRoundedAbsoluteZero, Text11, "must be above absolute zero.");
  Require(b.TemperatureNew > kRoundedAbsoluteZero, Text3, "must be above absolute zero.");
  Store(Text18, HorsepowerGainOfTemperature(b.HorsePower, b.Temperature, b.TemperatureNew));
}

void Form7::EstimateGainOfHumidity() {
  ReadWeather();
  const ParameterBlock& b = block();
  Store(Text18, HorsepowerGainOfHumidity(b.HorsePower, b.Humidity, b.HumidityNew));
}

void Form7::EstimateGainOfBarometer() {
  ReadWeather();
  const ParameterBlock& b = block();
  Require(b.BarometricPressure > 0, Text10, "must be greater than 0.");
  Require(b.BarometricPressureNew > 0, Text1, "must be greater than 0.");
  Store(Text18,
        HorsepowerGainOfBarometer(b.HorsePower, b.BarometricPressure, b.BarometricPressureNew));
}

void Form7::EstimateGainOfAltitude() {
  ReadWeather();
  const ParameterBlock& b = block();
  Store(Text18, HorsepowerGainOfAltitude(b.HorsePower, b.Altitude, b.AltitudeNew));
}

// ---------------------------------------------------------------- air

void Form7::SolveAir() {
  ReadWeather();
  VaporPressure();
  const Air air = OldAir();
  // Air that has never held water has no dew point.
  if (air.vaporPressure > 0) Show(Text14, DewPoint(air.vaporPressure));
  RequireAir(air, block().Humidity, {Text10, Text11, Text12});
  Show(Text5, J816Correction(air));
  Show(Text35, J607FordCorrection(air));
  Show(Text38, J607DtsCorrection(air));
  Show(Text23, J1349PlainCorrection(air));
  Show(Text7, J1349Correction(air));
  const double correction = J1349Jun90Correction(air);
  Show(Text24, correction);
  Show(Text25, QuarterMileCorrection(correction));
  RequireStandardPressure();
  const StandardAir standard = Standard();
  Show(Text16, AirDensityPercent(air, standard));
  Show(Text2, AirDensity(air));
  Show(Text6, DensityAltitude(air, standard));
  Show(Text33, CorrectedBarometer(air));
  Show(Text34, PressureAltitude(air.pressure, standard));
  Show(Text36, DryDensityAltitude(air, standard));
  Show(Text37, MoistDensityAltitude(air, standard));
  Show(Text40, GrainsOfWater(air));
  Show(Text41, DryVirtualTemperature(air));
  Show(Text42, MoistVirtualTemperature(air));
}

void Form7::SolveAirDensity() {
  ReadWeather();
  VaporPressure();
  const Air air = OldAir();
  RequireAir(air, block().Humidity, {Text10, Text11, Text12});
  Show(Text2, AirDensity(air));
}

void Form7::EstimateBarometer() {
  ReadWeather();
  RequireStandardPressure();
  const double barometer = BarometerAtAltitude(block().Altitude, Standard());
  Require(barometer > 0, Text8, "is above the height at which the standard atmosphere ends.");
  Store(Text10, barometer);
}

// ---------------------------------------------------------------- jets

WeatherChange Form7::ReadJetWeather() {
  ReadWeather();
  const ParameterBlock& b = block();
  Require(b.JetSize > 0, Text19, "must be greater than 0.");
  VaporPressure();
  const WeatherChange change{OldAir(), NewAir()};
  RequireAir(change.before, b.Humidity, {Text10, Text11, Text12});
  RequireAir(change.after, b.HumidityNew, {Text1, Text3, Text4});
  return change;
}

void Form7::RequireRodInJet() {
  const ParameterBlock& b = block();
  Require(b.MeteringRodSize >= 0, Text21, "must not be negative for this command.");
  Require(b.MeteringRodSize <= b.JetSize, Text21, "must not be thicker than the Jet.");
}

void Form7::SolveJet() {
  const WeatherChange change = ReadJetWeather();
  Show(Text20, JetForWeather(block().JetSize, change));
}

void Form7::SolveBypassJet() {
  const WeatherChange change = ReadJetWeather();
  Show(Text20, BypassJetForWeather(block().JetSize, change));
}

void Form7::SolveMeteringRod() {
  const WeatherChange change = ReadJetWeather();
  RequireRodInJet();
  const ParameterBlock& b = block();
  const double rod = MeteringRodForWeather(b.JetSize, b.MeteringRodSize, change);
  Require(!std::isnan(rod), Text19,
          "is too small for the new weather: even without a Metering Rod it lets too little fuel "
          "through.");
  Show(Text22, rod);
}

void Form7::SolveJetWithRod() {
  const WeatherChange change = ReadJetWeather();
  RequireRodInJet();
  const ParameterBlock& b = block();
  Show(Text20, JetWithRodForWeather(b.JetSize, b.MeteringRodSize, change));
}

void Form7::ReportJets() {
  const WeatherChange change = ReadJetWeather();
  RequireRodInJet();
  const ParameterBlock& b = block();
  const JettingReportInput input{b.JetSize,  b.MeteringRodSize, change,
                                 b.Humidity, b.HumidityNew,     metric()};
  const auto build = [&] {
    try {
      return JettingReport(input, mark());
    } catch (const CommandError& error) {
      if (error.kind() != ErrorKind::InvalidArgument) throw;
      throw CommandError(error.kind(), error.message(), &Text19);
    }
  };
  ShowReport(BuildReport(build, "A value of the weather is too large for a report."));
}

// ---------------------------------------------------------------- pulleys

void Form7::SolvePulleyRatio() {
  ReadWeather();
  const ParameterBlock& b = block();
  const double original = DriveRatio(b.CrankPulley, b.AccessoryPulley);
  Show(Text30, original, {&Text27});
  const double changed = DriveRatio(b.NewCrankPulley, b.NewAccessoryPulley);
  Show(Text31, changed, {&Text29});
  Show(Text32, DriveChangePercent(original, changed), {&Text26});
}

void Form7::ConvertWeatherUnits() {
  ReadWeather();
  SwitchUnits();
}

}  // namespace veldox
