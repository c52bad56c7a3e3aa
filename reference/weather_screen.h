#pragma once

#include "core/kept.h"
#include "core/screen.h"
#include "reference/jetting.h"
#include "reference/weather.h"

namespace veldox {

/// Weather and pulleys: what the air does to an engine's power, its dyno figures and its jets,
/// and the ratio of a belt drive. Formulas and shared values are in US units all the while;
/// "Metric" changes what the fields show.
class Form7 : public Screen {
 public:
  explicit Form7(ProgramContext& context);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text43; }
  ReportBox* ReportPane() override { return &Text43; }

 private:
  void EstimateGainOfTemperature();
  void EstimateGainOfHumidity();
  void EstimateGainOfBarometer();
  void EstimateGainOfAltitude();
  void SolveAir();
  void SolveAirDensity();
  void EstimateBarometer();
  void SolveJet();
  void SolveBypassJet();
  void SolveMeteringRod();
  void SolveJetWithRod();
  void ReportJets();
  void SolvePulleyRatio();
  void ConvertWeatherUnits();

  /// Where a weather is entered.
  struct WeatherFields {
    Field& pressure;
    Field& temperature;
    Field& humidity;
  };

  void ReadWeather();
  /// Works out the vapor pressures of both weathers and shows those of the old one.
  void VaporPressure();
  /// @param fahrenheit  what the field holds. @throws CommandError that names the field
  static double SaturationAt(Field& temperature, double fahrenheit);
  Air OldAir() const;
  Air NewAir() const;
  StandardAir Standard() const { return {StdBaro, StdTemp}; }
  /// Ends a command for weather without any air. @throws CommandError that names the field
  static void RequireAir(const Air& air, double humidity, const WeatherFields& fields);
  /// Ends a command unless there is a standard pressure. @throws CommandError
  void RequireStandardPressure();
  /// Both weathers for a jet. @throws CommandError where there is no air or no jet
  WeatherChange ReadJetWeather();
  /// Ends a command for a metering rod that does not go into its jet. @throws CommandError
  void RequireRodInJet();

  // What no other screen and no file knows, in US units.
  double vaporPressure_ = 0;
  Kept<double> vaporPressureNew_{*this};
  double StdBaro = 29.92;
  double StdTemp = 59;

 public:
  Frame Frame1{*this, "Frame1", "Weather", 0};
  Field Text10{
      Frame1, "Text10", "Barometric Pressure", "29.92",
      Entry(KeyRule::UnsignedReal, Unit::Barometer, Holds(&P::BarometricPressure).KeptInUs())};
  Field Text11{Frame1, "Text11", "Temperature", "59",
               Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::Temperature).KeptInUs())};
  Field Text12{Frame1, "Text12", "Humidity", "5.0",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::Humidity))};
  Field Text8{Frame1, "Text8", "Altitude", "33.33",
              Entry(KeyRule::SignedReal, Unit::Altitude, Holds(&P::Altitude))};
  CheckBox Check1{Frame1, "Check1", "Metric",
                  "Show and enter pressures in millibars, temperatures in Celsius and power in "
                  "kilowatts.",
                  &Form7::ConvertWeatherUnits};
  Command Command5{Frame1, "Command5", "&VP DP DC",
                   "Calculate Vapor Pressure, Saturation Vapor Pressure, Dew Point, Dyno "
                   "Correction Factory (3 Different), 1/4 ET Correction, Air Density, Density "
                   "Altitude, and Pressure Altitude.",
                   &Form7::SolveAir};
  Command Command8{Frame1, "Command8", "&Air Density",
                   "Calculate Air Density, using Barometric Pressure, Humidity, and Temperature.",
                   &Form7::SolveAirDensity};
  Command Command11{Frame1, "Command11", "&Estimate BP Altitude",
                    "Estimate Barometric Pressure from Altitude.", &Form7::EstimateBarometer};

  Frame Frame2{*this, "Frame2", "New Weather", 1};
  Field Text1{
      Frame2, "Text1", "Barometric Pressure New", "29.62",
      Entry(KeyRule::UnsignedReal, Unit::Barometer, Holds(&P::BarometricPressureNew).KeptInUs())};
  Field Text3{Frame2, "Text3", "Temperature New", "60",
              Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::TemperatureNew).KeptInUs())};
  Field Text4{Frame2, "Text4", "Humidity New", "25.0",
              Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::HumidityNew))};
  Field Text9{Frame2, "Text9", "Altitude New", "80",
              Entry(KeyRule::SignedReal, Unit::Altitude, Holds(&P::AltitudeNew))};

  Frame Frame3{*this, "Frame3", "Standard Air", 0};
  Field Text39{Frame3, "Text39", "Std Barometric Pressure", "29.92",
               Entry(KeyRule::UnsignedReal, Unit::Barometer, Holds(StdBaro).KeptInUs())};
  OptionGroup Option1{Frame3,
                      "Option1",
                      "Std Temperature",
                      {{0, "59 Deg", "Standard air has a temperature of 59 degrees Fahrenheit."},
                       {1, "60 Deg", "Standard air has a temperature of 60 degrees Fahrenheit."}},
                      0,
                      2};

  Frame Frame4{*this, "Frame4", "Horsepower", 0};
  Field Text15{Frame4, "Text15", "HorsePower", "555",
               Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower).KeptInUs())};
  Field Text18{Frame4, "Text18", "HP Increase", "0.0",
               Entry(KeyRule::OutputOnly, Unit::Power, Holds(&P::HorsePowerIncrease).KeptInUs())};
  Command Command1{Frame4, "Command1", "Change &Temp",
                   "Estimate the Change in Horse Power from the change in Temperature.",
                   &Form7::EstimateGainOfTemperature};
  Command Command2{Frame4, "Command2", "Change &Humidity",
                   "Estimate the Change in Horse Power from the change in Humidity.",
                   &Form7::EstimateGainOfHumidity};
  Command Command3{Frame4, "Command3", "Change &Barometer",
                   "Estimate the Change in Horse Power from the change in Barometric Pressure.",
                   &Form7::EstimateGainOfBarometer};
  Command Command4{Frame4, "Command4", "Change &Altitude",
                   "Estimate the Change in Horse Power from the change in Altitude.",
                   &Form7::EstimateGainOfAltitude};

  Frame Frame5{*this, "Frame5", "Jets", 1};
  Field Text19{Frame5, "Text19", "Jet Size", "0.082",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::JetSize))};
  Field Text21{Frame5, "Text21", "Metering Rod Size", "0.033",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::MeteringRodSize))};
  Field Text20{Frame5, "Text20", "Jet Size New", "0.0808",
               Entry(KeyRule::OutputOnly, Unit::Inches)};
  Field Text22{Frame5, "Text22", "Metering Rod Size New", "0.034",
               Entry(KeyRule::OutputOnly, Unit::Inches)};
  Command Command6{Frame5, "Command6", "Jet &Size",
                   "Estimate the Change in Jet Size from the change in Barometric Pressure, "
                   "Humidity, and Temperature.",
                   &Form7::SolveJet};
  Command Command10{Frame5, "Command10", "&Bypass Jet Size",
                    "Estimate the Change in Bypass Jet Size for FI from the change in Barometric "
                    "Pressure, Humidity, and Temperature.",
                    &Form7::SolveBypassJet};
  Command Command7{Frame5, "Command7", "&Metering Rod",
                   "Estimate the Change in Metering Rod Size while Jet Size stays the same, from "
                   "the change in Barometric Pressure, Humidity, and Temperature.",
                   &Form7::SolveMeteringRod};
  Command Command13{Frame5, "Command13", "Jet Size W MR",
                    "Estimate the Change in Jet Size With Metering Rod from the change in "
                    "Barometric Pressure, Humidity, and Temperature.",
                    &Form7::SolveJetWithRod};
  Command Command12{Frame5, "Command12", "Jet Text Report",
                    "Estimate the Change in Jet and Metering Rod Size from the change in "
                    "Barometric Pressure, Humidity, and Temperature and Produce a Report of "
                    "different Jet and Rod size that work.",
                    &Form7::ReportJets};

  Frame Frame6{*this, "Frame6", "Water in the Air", 2};
  Field Text17{Frame6, "Text17", "Satura. Vapor Pressure", "0.503",
               Entry(KeyRule::OutputOnly, Unit::Barometer, Holds().KeptInUs())};
  Field Text13{Frame6, "Text13", "Vapor Pressure", "0.02515",
               Entry(KeyRule::OutputOnly, Unit::Barometer, Holds(vaporPressure_).KeptInUs())};
  Field Text33{Frame6, "Text33", "Corrected B P", "29.89",
               Entry(KeyRule::OutputOnly, Unit::Barometer, Holds().KeptInUs())};
  Field Text14{Frame6, "Text14", "Dew Point", "-11.82",
               Entry(KeyRule::OutputOnly, Unit::Temperature, Holds().KeptInUs())};
  Field Text40{Frame6, "Text40", "Grains of Water", "3.66",
               Entry(KeyRule::OutputOnly, Unit::GrainsPerPound)};

  Frame Frame7{*this, "Frame7", "Dyno Correction", 2};
  Field Text5{Frame7,
              "Text5",
              "J816 Dyno Correction",
              "0.9989",
              KeyRule::OutputOnly,
              "Factor to 29.92 inches of mercury of dry air and 60 degrees Fahrenheit."};
  Field Text35{Frame7,
               "Text35",
               "J607 Dyno Correction - Ford",
               "0.99985",
               KeyRule::OutputOnly,
               "The J607 factor with the powers 1.2 of the pressures and 0.6 of the temperatures."};
  Field Text38{Frame7,
               "Text38",
               "J607 Dyno Correction-DTS",
               "0.99988",
               KeyRule::OutputOnly,
               "The J607 factor with the square root of the temperatures."};
  Field Text23{Frame7,
               "Text23",
               "J1349 Dyno Correction",
               "0.94499",
               KeyRule::OutputOnly,
               "Factor to 29.23 inches of mercury of dry air and 77 degrees Fahrenheit, without a "
               "share for friction."};
  Field Text7{Frame7,
              "Text7",
              "J1349 Dyno Correction",
              "0.9573",
              KeyRule::OutputOnly,
              "Factor to 29.31 inches of mercury of dry air and 77 degrees Fahrenheit, with a "
              "share for friction."};
  Field Text24{Frame7,
               "Text24",
               "SAE Jun90 J1349-DynoJet",
               "0.95445",
               KeyRule::OutputOnly,
               "Factor to 29.235 inches of mercury of dry air and 77 degrees Fahrenheit, with a "
               "share for friction."};
  Field Text25{Frame7,
               "Text25",
               "1/4 ET Correction",
               "0.984",
               KeyRule::OutputOnly,
               "Factor from a measured time of the quarter mile to that in the air of the J1349 of "
               "June 1990."};

  Frame Frame8{*this, "Frame8", "Density and Altitude", 2};
  Field Text2{Frame8, "Text2", "Air Density", "0.0762400",
              Entry(KeyRule::OutputOnly, Unit::PoundsPerCubicFoot)};
  Field Text16{Frame8, "Text16", "Air Density %", "99.916",
               Entry(KeyRule::OutputOnly, Unit::Percent)};
  Field Text6{Frame8, "Text6", "Density Altitude", "29.417",
              Entry(KeyRule::OutputOnly, Unit::Altitude)};
  Field Text36{Frame8, "Text36", "Density Altitude Dry Air", "28.73",
               Entry(KeyRule::OutputOnly, Unit::Altitude)};
  Field Text37{Frame8, "Text37", "Density Altitude Moist Air", "10.86",
               Entry(KeyRule::OutputOnly, Unit::Altitude)};
  Field Text34{Frame8, "Text34", "Pressure Altitude", "1.165",
               Entry(KeyRule::OutputOnly, Unit::Altitude)};
  Field Text41{Frame8, "Text41", "Virtual Temp. Dry Air", "59.44",
               Entry(KeyRule::OutputOnly, Unit::Temperature, Holds().KeptInUs())};
  Field Text42{Frame8, "Text42", "Virtual Temperat. Moist Air", "59.16",
               Entry(KeyRule::OutputOnly, Unit::Temperature, Holds().KeptInUs())};

  Frame Frame9{*this, "Frame9", "Pulleys", 1};
  Field Text26{Frame9, "Text26", "Crank", "5.25",
               Entry(KeyRule::UnsignedReal, Holds(&P::CrankPulley))};
  Field Text27{Frame9, "Text27", "Accessory", "7.25",
               Entry(KeyRule::UnsignedReal, Holds(&P::AccessoryPulley))};
  Field Text28{Frame9, "Text28", "New Crank", "6.25",
               Entry(KeyRule::UnsignedReal, Holds(&P::NewCrankPulley))};
  Field Text29{Frame9, "Text29", "New Accessory", "7.25",
               Entry(KeyRule::UnsignedReal, Holds(&P::NewAccessoryPulley))};
  Field Text30{Frame9, "Text30", "Org. Drive Ratio", "0.724", KeyRule::OutputOnly};
  Field Text31{Frame9, "Text31", "New Drive Ratio", "0.826", KeyRule::OutputOnly};
  Field Text32{Frame9, "Text32", "% Change", "-19.05", Entry(KeyRule::OutputOnly, Unit::Percent)};
  Command Command9{Frame9, "Command9", "&Pulley Ratio",
                   "Calculate Pulley Drive Ratio and % Change in Drive Ratio from the Diameters "
                   "of Crank Pulley, Accessory Pulley, New Crank Pulley, New Accessory Pulley.",
                   &Form7::SolvePulleyRatio};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text43{HelpFrame, "Text43"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
