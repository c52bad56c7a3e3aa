#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/field_array.h"
#include "core/kept.h"
#include "core/screen.h"
#include "core/table.h"
#include "vehicle/elapsed_time.h"
#include "vehicle/gearbox.h"
#include "vehicle/horsepower_curve.h"

namespace veldox {

/// Elapsed time, speed and power of a drag run, each estimated from the others; the conversions of
/// horsepower, torque and mean pressure; split times of up to three runs; and standard horsepower
/// curves, also as a file for the acceleration screen.
class Form3 : public Screen, public GearboxTaker {
 public:
  explicit Form3(ProgramContext& context);

  void CopyFromBlock() override;
  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Label7; }
  ReportBox* ReportPane() override { return &Text38; }
  void Hover(Control* control) override;
  void TakeGearbox(const Gearbox& gearbox) override;

 private:
  /// A run down the strip as its fields stand in its column.
  struct Run {
    std::array<Field*, kSplits> times;
    int firstSplit;  ///< of Text7
    Field* peak;
    Field* average;
  };

  void EstimateTime();
  void EstimateSpeed66();
  void EstimateSpeed33();
  void EstimateTimeForSpeed66();
  void EstimateTimeForSpeed33();
  void EstimateEighthMileTime();
  void EstimatePowerForTime();
  void EstimatePowerForSpeed66();
  void EstimatePowerForSpeed33();
  void EstimatePowerForOneMph();
  void EstimatePowerForTimeAndSpeed66();
  void EstimatePowerForTimeAndSpeed33();
  void ConvertPowerToTorque();
  void ConvertTorqueToPower();
  void SolveMeanPressureForTorque();
  void SolveMeanPressureForPower();
  void EstimateSixtyFootTime();
  void EstimateSixtyFootSpeed();
  void EstimateSixtyFootGs();
  void AnalyseRuns();
  void GenerateCurve();
  void ChooseTransmission();
  void ConvertUnits();

  void ReadConversionFields();
  /// Parses the weight. @return pounds
  double ReadWeight();
  /// Parses the horsepower. @return in horsepower, also in Metric
  double ReadPower();
  /// Parses the speed. @return MPH, what the converter loses given back
  double ReadTrapSpeed();
  /// Parses the speed of the eighth mile. @return MPH
  double ReadEighthSpeed();
  /// Show results that were worked out in horsepower.
  void ShowPower(double horsepower);
  void ShowPowerIncrease(double horsepower);
  /// Shows a speed in MPH less what the converter loses, and that of the eighth mile.
  void ShowSpeeds(double mph);
  void EstimateSpeed(SpeedTrap trap);
  void EstimateTimeForSpeed(SpeedTrap trap);
  void EstimatePowerForSpeed(SpeedTrap trap);
  void EstimatePowerForTimeAndSpeed(SpeedTrap trap);
  std::array<Run, 3> AllRuns();
  /// True for a run whose times are all left empty or 0.
  bool IsUnused(const Run& run) const;
  void ShowSplits(const Run& run);
  void EmptyResults(const Run& run);
  void ShowRunPower(const Run& run, double weightLb);
  /// The curve that the type field asks for: a fraction asks for the one drawn last.
  ScaledCurve ReadCurve();
  void TellSlippage();

  Kept<std::optional<ScaledCurve>> lastCurve_{*this};  ///< of a whole type

 public:
  Frame Frame1{*this, "Frame1", "Vehicle Details", 0};
  Field Text1{
      Frame1, "Text1", "1/4 Mile ET", "7.105",
      Entry(KeyRule::UnsignedReal, Unit::Seconds, Holds(&P::ET).ShownAtOpening().ZeroKeepsText())};
  Field Text8{
      Frame1, "Text8", "1/8 Mile ET", "4.554",
      Entry(KeyRule::UnsignedReal, Unit::Seconds, Holds(&P::ET8).ShownAtOpening().ZeroKeepsText())};
  Field Text3{Frame1, "Text3", "1/4 Speed", "192.453",
              Entry(KeyRule::UnsignedReal, Unit::RoadSpeed, Holds(&P::MPH))};
  Field Text9{Frame1, "Text9", "1/8 Speed", "156.466",
              Entry(KeyRule::UnsignedReal, Unit::RoadSpeed,
                    Holds(&P::MPH8).ShownAtOpening().ZeroKeepsText())};
  Field Text2{Frame1, "Text2", "Vehicle Weight plus Driver", "2350",
              Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::CarWeight))};
  Field Text5{Frame1, "Text5", "Horsepower", "1295",
              Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower))};
  Field Text6{Frame1, "Text6", "Horsepower Increase", "0.0",
              Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePowerIncrease))};
  Field Text18{Frame1, "Text18", "Hook Factor", "1320.0",
               Entry(KeyRule::UnsignedReal,
                     Holds(&P::HookFactor).ShownAtOpening().ZeroKeepsText().Pattern<".00">())};
  CheckBox Check1{Frame1, "Check1", "Metric",
                  "Show and enter weight in kilograms, power in kilowatts, torque in metre "
                  "kilograms, speed in km/h, engine size in cc and BMEP in bar.",
                  &Form3::ConvertUnits};
  CheckBox Check2{Frame1, "Check2", "Automatic Trans",
                  "The car has a torque converter, which loses part of the speed.",
                  &Form3::ChooseTransmission};
  Field Text26{Frame1,
               "Text26",
               "% Converter Slippage",
               "3.25",
               Entry(KeyRule::UnsignedReal, Unit::Percent,
                     Holds(&P::ConverterSlippage).ShownAtOpening().ZeroKeepsText()),
               "The estimates use the slippage that is told below. What is typed here comes into "
               "use with the next horsepower, torque or BMEP conversion, Gen Digital HP, or the "
               "Metric box."};
  Label Label77{Frame1, "Label77", ""};

  Frame Frame2{*this, "Frame2", "Estimates for a 66 Foot Trap Speed", 0};
  Command Command1{Frame2, "Command1", "&ET",
                   "Estimate 1/8 & 1/4 Mile ET from Vehicle Weight and Horsepower",
                   &Form3::EstimateTime};
  Command Command2{Frame2, "Command2", "&MPH",
                   "Estimate 1/8 & 1/4 Mile MPH from Vehicle Weight and Horsepower",
                   &Form3::EstimateSpeed66};
  Command Command3{Frame2, "Command3", "1/4 E&T", "Estimate 1/4 Mile ET from 1/4 Mile MPH",
                   &Form3::EstimateTimeForSpeed66};
  Command Command11{Frame2, "Command11", "1/&8 ET", "Estimate 1/8 Mile ET from 1/8 Mile MPH",
                    &Form3::EstimateEighthMileTime};
  Command Command9{Frame2, "Command9", "ET &HP",
                   "Estimate 1/4 Mile Horsepower requirement from ET and Vehicle Weight.",
                   &Form3::EstimatePowerForTime};
  Command Command10{Frame2, "Command10", "MPH H&P",
                    "Estimate 1/4 Mile Horsepower requirement from MPH and Vehicle Weight.",
                    &Form3::EstimatePowerForSpeed66};
  Command Command20{Frame2, "Command20", "ET/MPH &66 HP",
                    "Estimate 1/4 Mile Horsepower requirement from ET and MPH - 66 foot Trap Speed",
                    &Form3::EstimatePowerForTimeAndSpeed66};

  Frame Frame4{*this, "Frame4", "Estimates for a 33 Foot Trap Speed", 0};
  Command Command15{
      Frame4, "Command15", "&l MPH 33",
      "Estimate 1/4 Mile MPH from Vehicle Weight and Horsepower for 33 foot Trap Speed",
      &Form3::EstimateSpeed33};
  Command Command16{Frame4, "Command16", "1/&4 ET 33",
                    "Estimate 1/4 Mile ET from 1/4 Mile MPH for 33 foot Trap Speed",
                    &Form3::EstimateTimeForSpeed33};
  Command Command17{Frame4, "Command17", "&C MPH HP 33",
                    "Estimate 1/4 Mile Horsepower requirement from MPH - 33 foot Trap Speed",
                    &Form3::EstimatePowerForSpeed33};
  Command Command18{Frame4, "Command18", "&a MPH HP 33",
                    "Estimate 1/4 Mile Horsepower Increase required to increase MPH by one - 33 "
                    "foot Trap Speed",
                    &Form3::EstimatePowerForOneMph};
  Command Command21{Frame4, "Command21", "ET/MPH &33 HP",
                    "Estimate 1/4 Mile Horsepower requirement from ET and MPH - 33 foot Trap Speed",
                    &Form3::EstimatePowerForTimeAndSpeed33};

  Frame Frame5{*this, "Frame5", "Horsepower, Torque and BMEP", 1};
  Field Text15{
      Frame5, "Text15", "Engine Size     ", "327",
      Entry(KeyRule::UnsignedReal, Unit::Volume, Holds(&P::CubicInches).By(kEngineSizeRule))};
  Field Text11{Frame5, "Text11", "RPM", "6500",
               Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM).Pattern<"0">())};
  Field Text12{Frame5, "Text12", "Torque", "1046.36",
               Entry(KeyRule::UnsignedReal, Unit::Torque, Holds(&P::Torque))};
  Field Text14{Frame5, "Text14", "BMEP", "0.0",
               Entry(KeyRule::UnsignedReal, Unit::MeanPressure, Holds(&P::BMEP))};
  Field Text37{Frame5, "Text37", "HP - ci", "0.0", KeyRule::OutputOnly};
  Field Text39{Frame5, "Text39", "HP - liter", "0.0", KeyRule::OutputOnly};
  Field Text35{Frame5, "Text35", "Torque - ci", "0.0", KeyRule::OutputOnly};
  Field Text36{Frame5, "Text36", "Torque-liter", "0.0", KeyRule::OutputOnly};
  Command Command12{Frame5, "Command12", "Conv HP - &Torque",
                    "Convert Horsepower to Torque with RPM.", &Form3::ConvertPowerToTorque};
  Command Command24{Frame5, "Command24", "Conv Tor&que - HP",
                    "Convert Torque with RPM to Horsepower.", &Form3::ConvertTorqueToPower};
  Command Command13{Frame5, "Command13", "BMEP - Tor&que",
                    "Calculate BMEP, Torque per Cubic Inch, and Torque per Liter from Torque and "
                    "Cubic Inches.",
                    &Form3::SolveMeanPressureForTorque};
  Command Command14{Frame5, "Command14", "&BMEP - HP",
                    "Calculate BMEP, HP per Cubic Inch, and HP per Liter from Horsepower, Cubic "
                    "Inches and RPM.",
                    &Form3::SolveMeanPressureForPower};

  Frame Frame6{*this, "Frame6", "Generic Horsepower Curve", 1};
  Field Text16{Frame6,
               "Text16",
               "Type Curve",
               "1",
               Entry(KeyRule::UnsignedReal, Holds(&P::TypeCurve).ShownAtOpening().ZeroKeepsText()),
               "1 to 9 are shapes for a peak horsepower, 10 and 11 for a peak torque."};
  Field Text46{Frame6,
               "Text46",
               "BSFC",
               "0.0",
               KeyRule::UnsignedReal,
               "Pounds of fuel an hour and horsepower. Above 0, the lines for the acceleration "
               "calculator hold the fuel as well."};
  CheckBox Check3{Frame6, "Check3", "Acceleration Chart File",
                  "Check the Acceleration Chart File box - So you can have the program write this "
                  "data to a file for use with the Acceleration and Top Speed Calculator. -- New "
                  "Ver 4.6.0 Will use BSFC and Calculate Fuel lbs/hr"};
  Command Command19{
      Frame6, "Command19", "&Gen Digital HP",
      "Generate Generic Digital Horsepower Curve using Horsepower, RPM, Engine Size for Type Curve "
      "1 - 9. --- Type 10  and 11 uses Peak Torque with RPM, Engine Size. Use Type 11 for - Turbo "
      "Charged or Diesel.",
      &Form3::GenerateCurve};

  Frame Frame3{*this, "Frame3", "60 Foot", 2};
  Field Text19{Frame3, "Text19", "60 Ft Time", "1.1133",
               Entry(KeyRule::UnsignedReal, Unit::Seconds,
                     Holds(&P::ET60).ShownAtOpening().ZeroKeepsText())};
  Field Text20{Frame3, "Text20", "60 Ft MPH", "73.4916",
               Entry(KeyRule::UnsignedReal, Unit::MilesPerHour,
                     Holds(&P::MPH60).ShownAtOpening().ZeroKeepsText())};
  Field Text25{Frame3, "Text25", "60 Ft G's", "1.234", KeyRule::OutputOnly};
  Field Text34{Frame3, "Text34", "60 Ft G's 3.11.0", "1.234", KeyRule::OutputOnly};
  Command Command22{Frame3, "Command22", "6&0 Foot Time", "Estimate 60 Foot Time form 1/4 ET",
                    &Form3::EstimateSixtyFootTime};
  Command Command23{Frame3, "Command23", "60 F&oot MPH", "Estimate 60 Foot MPH from 60 Foot Time",
                    &Form3::EstimateSixtyFootSpeed};
  Command Command27{Frame3, "Command27", "60 Foot G'&s",
                    "Estimate Average Rate of Acceleration from Rest to 60 Foot using 60 Foot "
                    "Time.",
                    &Form3::EstimateSixtyFootGs};

  Frame Frame7{*this, "Frame7", "Split Times of up to 3 Runs, in Seconds", 2};
  Field Text4{Frame7, "Text4", "60 Foot", "2.287", Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text10{Frame7, "Text10", "330 Foot", "6.341", Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text13{Frame7, "Text13", "1/8 Mile ET", "9.658",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text17{Frame7, "Text17", "1000 Foot", "12.506",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text21{Frame7, "Text21", "1/4 Mile ET", "14.864",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text22{Frame7, "Text22", "60 Foot", "2.141", Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text23{Frame7, "Text23", "330 Foot", "5.976", Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text24{Frame7, "Text24", "1/8 Mile ET", "9.322",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text27{Frame7, "Text27", "1000 Foot", "12.175",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text28{Frame7, "Text28", "1/4 Mile ET", "14.534",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text29{Frame7, "Text29", "60 Foot", "2.056", Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text30{Frame7, "Text30", "330 Foot", "5.845", Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text31{Frame7, "Text31", "1/8 Mile ET", "9.043",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text32{Frame7, "Text32", "1000 Foot", "11.801",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  Field Text33{Frame7, "Text33", "1/4 Mile ET", "14.122",
               Entry(KeyRule::UnsignedReal, Unit::Seconds)};
  FieldArray Text7{Frame7, "Text7", 12, "Split", "0.0", Entry(KeyRule::OutputOnly, Unit::Seconds)};
  Field Text40{Frame7, "Text40", "Peak HP", "131.04", KeyRule::OutputOnly};
  Field Text41{Frame7, "Text41", "Average HP", "98.95", KeyRule::OutputOnly};
  Field Text42{Frame7, "Text42", "Peak HP", "125.88", KeyRule::OutputOnly};
  Field Text43{Frame7, "Text43", "Average HP", "100.50", KeyRule::OutputOnly};
  Field Text44{Frame7, "Text44", "Peak HP", "136.88", KeyRule::OutputOnly};
  Field Text45{Frame7, "Text45", "Average HP", "106.30", KeyRule::OutputOnly};
  Table Runs{Frame7,
             "Runs",
             "Runs",
             {{"Run 1",
               {&Text4, &Text7[0], &Text10, &Text7[1], &Text13, &Text7[2], &Text17, &Text7[3],
                &Text21, &Text40, &Text41}},
              {"Run 2",
               {&Text22, &Text7[4], &Text23, &Text7[5], &Text24, &Text7[6], &Text27, &Text7[7],
                &Text28, &Text42, &Text43}},
              {"Run 3",
               {&Text29, &Text7[8], &Text30, &Text7[9], &Text31, &Text7[10], &Text32, &Text7[11],
                &Text33, &Text44, &Text45}}},
             {"",
              {"60 Foot", "60 - 330 Foot", "330 Foot", "330 Foot - 1/8 Mile", "1/8 Mile ET",
               "1/8 Mile - 1000 Foot", "1000 Foot", "1000 Foot - 1/4 Mile", "1/4 Mile ET",
               "Peak HP", "Average HP"}}};
  Command Command4{
      Frame7, "Command4", "1/4 Split Times",
      "Calculate Split Time for up to 3 Different Runs, also Estimate Peak and Average "
      "HP during run.",
      &Form3::AnalyseRuns};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label7{HelpFrame, "Label7", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
