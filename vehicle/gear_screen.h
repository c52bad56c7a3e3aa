#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "core/field_array.h"
#include "core/kept.h"
#include "core/panel.h"
#include "core/screen.h"
#include "core/table.h"
#include "vehicle/gearbox.h"
#include "vehicle/gearing.h"

namespace veldox {

/// Gears, tires and road speed: engine speed, transmission, final drive and tire, each from the
/// others; what a shift does to the engine speed; laps, skid pad and mean acceleration.
class Form5 : public Screen, public GearboxTaker {
 public:
  explicit Form5(ProgramContext& context);

  /// What opens the transmission finder.
  void SetGearboxFinder(std::function<void()> open) { openGearboxFinder_ = std::move(open); }

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text58; }
  ReportBox* ReportPane() override { return &Text58; }
  void TakeGearbox(const Gearbox& gearbox) override;

 private:
  void SolveSpeeds();
  void SolveRpm();
  void EstimateFirstGearManual();
  void EstimateFirstGearAutomatic();
  void SolveRpmAfterShift();
  void SolveRearRatio();
  void SolveRearRatioFromTeeth();
  void SolveRpmOfNewRatio();
  void SolveRatioForNewTire();
  void SolveLapSpeed();
  void TabulateLapSpeed();
  void SolveLapTime();
  void SolveTrackSize();
  void SolveSkidPadGs();
  void CheckSpeedometer();
  void SolveShiftRpm();
  void SolveTireDiameter();
  void SolveNewTireDiameter();
  void SolveCorneringGs();
  void SolveGsOverDistance();
  void SolveGsToSpeed();
  void SolveConverterSlip();
  void SolveEffectiveRatio();
  void StepGearsDown();
  void StepGearsUp();
  void SpreadGears();
  void SolveGearsFromTeeth();
  void ClearTeeth();
  void ConvertUnits();
  void OpenGearboxFinder() {
    if (openGearboxFinder_) openGearboxFinder_();
  }

  /// Parses the tooth counts where the primary drive is in use, and shows its ratio.
  void ReadPrimaryDrive();
  /// The primary drive where it is in use, else 1.
  double PrimaryDriveInUse() const;
  /// Parses the rear gear and the teeth in front of it. @return EffectiveRear
  double ReadEffectiveRear();
  /// Parses all gears, and shows their overall ratios. @return EffectiveRear
  double ReadTransRatios();
  /// Parses the speed. @return MPH
  double ReadSpeed();
  /// Parses the horsepower. @return in horsepower, also in Metric
  double ReadPower();
  /// Shows a speed in MPH.
  void ShowSpeed(double mph);
  double TransRatio(int gear) const;
  /// True for a field of a gear that the gearbox does not have.
  bool IsZero(const Field& field) const;
  /// Shows a number of every gear but the last beside it; gears that no shift leads from stay
  /// empty.
  void ShowShifts(const char* head, const std::function<std::string(int)>& textOf);
  void SolveTire(Field& diameter);

  std::function<void()> openGearboxFinder_;
  /// The texts of the tooth counts that do not belong to the primary drive picked with them.
  Kept<std::optional<std::pair<std::string, std::string>>> foreignTeeth_{*this};

 public:
  Frame Frame1{*this, "Frame1", "Speed and Final Drive", 0};
  Field Text1{Frame1, "Text1", "MPH", "42.50",
              Entry(KeyRule::UnsignedReal, Unit::RoadSpeed, Holds(&P::MPH).ConvertedAsShown())};
  Field Text17{
      Frame1, "Text17", "RPM", "6500",
      Entry(KeyRule::UnsignedReal, Unit::RevolutionsPerMinute, Holds(&P::RPM).Pattern<".00">())};
  Field Text39{Frame1, "Text39", "New RPM", "6666",
               Entry(KeyRule::OutputOnly, Unit::RevolutionsPerMinute, Holds().Pattern<".00">())};
  Field Text18{Frame1, "Text18", "Rear Gear Ratio", "4.10",
               Entry(KeyRule::UnsignedReal, Holds(&P::RearGearRatio))};
  Field Text34{
      Frame1, "Text34", "New Rear Gear Ratio", "4.56",
      Entry(KeyRule::UnsignedReal, Holds(&P::NewRearGearRatio).ShownAtOpening().ZeroKeepsText())};
  Field Text29{Frame1, "Text29", "Ring Gear", "41",
               Entry(KeyRule::Digits, Holds(&P::RingGear).ShownAtOpening().ZeroKeepsText())};
  Field Text30{Frame1, "Text30", "Pinion Gear", "10",
               Entry(KeyRule::Digits, Holds(&P::PinionGear).ShownAtOpening().ZeroKeepsText())};
  CheckBox Check1{Frame1, "Check1", "Metric",
                  "Show speed in km/h, power in kilowatts, tires in millimetres, the track in "
                  "kilometres and the turn in metres.",
                  &Form5::ConvertUnits};
  Command Command2{Frame1, "Command2", "&RPM",
                   "Calculate RPM from MPH, Rear Gear Ratio, and Tire Diameter\r\n"
                   "3.11.1 Added Calculate RPM for each Trans Gear Ratio",
                   &Form5::SolveRpm};
  Command Command6{
      Frame1, "Command6", "&Gear Ratio",
      "Calculate Rear Gear Ratio needed using MPH, RPM, Tire Diameter, and Trans Gear Ratio 1.",
      &Form5::SolveRearRatio};
  Command Command7{Frame1, "Command7", "G&ear Ratio",
                   "Calculate Rear Gear Ratio from tooth count of Ring (Motorcycle Front Sprocket) "
                   "and Pinion Gears (Motorcycle Rear Sprocket).",
                   &Form5::SolveRearRatioFromTeeth};
  Command Command8{Frame1, "Command8", "Gear RP&M",
                   "Calculate Rear Gear Ratio change on RPM using Rear Gear Ratio, New Rear Gear "
                   "Ratio, MPH, and Tire Diameter. Output is RPM will be for Rear Gear Ratio and "
                   "New RPM will be for New Rear Gear Ratio.",
                   &Form5::SolveRpmOfNewRatio};

  Frame Frame4{*this, "Frame4", "Track and Acceleration", 0};
  Field Text31{Frame4, "Text31", "Track Size", "1.366",
               Entry(KeyRule::UnsignedReal, Unit::Miles,
                     Holds(&P::TrackSize)
                         .ShownAtOpening()
                         .ZeroKeepsText()
                         .ConvertedAsShown()
                         .SwitchedPattern<".000">())};
  Field Text32{Frame4, "Text32", "Track / Lap Time", "29.56",
               Entry(KeyRule::UnsignedReal, Unit::Seconds,
                     Holds(&P::TrackTime).ShownAtOpening().ZeroKeepsText())};
  Field Text38{Frame4, "Text38", "Turn Radius", "100.0",
               Entry(KeyRule::UnsignedReal, Unit::Feet,
                     Holds(&P::TurnRadius)
                         .ShownAtOpening()
                         .ZeroKeepsText()
                         .ConvertedAsShown()
                         .SwitchedPattern<".000">())};
  Field Text33{Frame4, "Text33", "Skid Pad G's Lateral Acell", "3.25000",
               Entry(KeyRule::OutputOnly, Holds(&P::SkidPadGs))};
  Field Text42{Frame4, "Text42", "Start Time", "23.0",
               Entry(KeyRule::UnsignedReal, Unit::Seconds,
                     Holds(&P::StartSeconds).ShownAtOpening().ZeroKeepsText())};
  Field Text43{Frame4, "Text43", "End Time", "30.0",
               Entry(KeyRule::UnsignedReal, Unit::Seconds,
                     Holds(&P::EndSeconds).ShownAtOpening().ZeroKeepsText())};
  Field Text44{Frame4, "Text44", "Every X Seconds", "0.025",
               Entry(KeyRule::UnsignedReal, Unit::Seconds,
                     Holds(&P::EveryXSeconds).ShownAtOpening().ZeroKeepsText())};
  Command Command10{Frame4, "Command10", "&Lap Speed",
                    "Calculate Lap Speed (MPH) over Measured Distance (Track Size) in Miles and "
                    "Track / Lap Time in seconds.",
                    &Form5::SolveLapSpeed};
  Command Command22{Frame4, "Command22", "La&p Spd Chart",
                    "Calculate Lap Speed (MPH) Chart over Measured Distance (Track Size) in Miles "
                    "and Start/End/Every Time in seconds.",
                    &Form5::TabulateLapSpeed};
  Command Command11{Frame4, "Command11", "L&ap Time",
                    "Calculate Lap Time in second from Measured Distance (Track Size) in miles and "
                    "Lap Speed (MPH).",
                    &Form5::SolveLapTime};
  Command Command12{Frame4, "Command12", "Track Si&ze",
                    "Calculate Measured Distance (Track Size) in miles from Lap time in seconds "
                    "and Lap Speed (MPH).",
                    &Form5::SolveTrackSize};
  Command Command13{Frame4, "Command13", "&Skip Pad G's",
                    "Calculate Skip Pad G's (Lateral Acceleration) from Turn Radius in feet and "
                    "Lap Time in seconds.",
                    &Form5::SolveSkidPadGs};
  Command Command18{Frame4, "Command18", "&Lateral Acc G's",
                    "Calculate Cornering G's (Lateral Acceleration) from Turn Radius in feet and "
                    "MPH.",
                    &Form5::SolveCorneringGs};
  Command Command19{Frame4, "Command19", "Avg Rate Acc",
                    "Calculate Average Rate of Acceleration from Rest to x Feet using Track Size, "
                    "Track / Lap Time showing results in Skip Pad G's.",
                    &Form5::SolveGsOverDistance};
  Command Command20{Frame4, "Command20", "Avg (De)Accel",
                    "Calculate Average Rate of (DE)Acceleration from Rest to x MPH using Track / "
                    "Lap Time and MPH, showing results in Skip Pad G's. Can also Calculate Rate "
                    "for change in MPH, enter (High MPH - Low MPH) Value in MPH.",
                    &Form5::SolveGsToSpeed};
  Command Command14{Frame4, "Command14", "Spedomtr Chk",
                    "Speedometer Check maintain constant 60 MPH and enter time to travel one mile "
                    "in Track /Lap Time in seconds. MPH will show True MPH.",
                    &Form5::CheckSpeedometer};

  Frame Frame2{*this, "Frame2", "Tires", 1};
  Field Text21{
      Frame2, "Text21", "Tire Diameter", "28.4",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TireDiameter).ConvertedAsShown())};
  Field Text35{
      Frame2, "Text35", "New Tire Diameter", "29.75",
      Entry(KeyRule::UnsignedReal, Unit::Length,
            Holds(&P::NewTireDiameter).ShownAtOpening().ZeroKeepsText().ConvertedAsShown())};
  Field Text28{Frame2,
               "Text28",
               "Tire Width",
               "195.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::TireWidth).ShownAtOpening().ZeroKeepsText()),
               "The width of a tire in millimetres, in Metric or not."};
  Field Text36{
      Frame2,
      "Text36",
      "Wheel Diameter",
      "16.0",
      Entry(KeyRule::UnsignedReal, Unit::Length,
            Holds(&P::WheelDiameter).ShownAtOpening().ZeroKeepsText().ConvertedAsShown()),
      "The tire diameter commands take the wheel in inches, in Metric too, and give inches."};
  Field Text37{Frame2, "Text37", "Aspect Ratio", "75.0",
               Entry(KeyRule::UnsignedReal, Unit::Percent,
                     Holds(&P::AspectRatio).ShownAtOpening().ZeroKeepsText())};
  Field Text40{Frame2, "Text40", "Speedometer Error", "101.5",
               Entry(KeyRule::OutputOnly, Unit::Percent)};
  Command Command16{
      Frame2, "Command16", "Tire &Diam",
      "Calculate Tire's nominal Diameter using Wheel Size, Tire width, and Aspect Ratio.",
      &Form5::SolveTireDiameter};
  Command Command17{
      Frame2, "Command17", "New Tire Di&am",
      "Calculate New Tire's nominal Diameter using Wheel Size, Tire width, and Aspect Ratio.",
      &Form5::SolveNewTireDiameter};
  Command Command9{Frame2, "Command9", "Gear &Tire",
                   "Calculate Rear Gear Ratio needed after Tire Size Change using Tire Diameter, "
                   "New Tire Diameter, and Gear Ratio. Also speedometer error if not Rear Ratio "
                   "change.",
                   &Form5::SolveRatioForNewTire};

  Frame Frame5{*this, "Frame5", "Engine and Converter", 1};
  Field Text20{Frame5, "Text20", "Horsepower", "1295",
               Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower).ConvertedAsShown())};
  Field Text19{Frame5, "Text19", "Peak Torque RPM", "5900",
               Entry(KeyRule::UnsignedReal, Unit::RevolutionsPerMinute,
                     Holds(&P::PeakTorqueRPM).ShownAtOpening().ZeroKeepsText())};
  Field Text73{
      Frame5, "Text73", "Tire Radius", "14.2",
      Entry(KeyRule::UnsignedReal, Unit::Length,
            Holds(&P::TireRollingRadius).ShownAtOpening().ZeroKeepsText().ConvertedAsShown())};
  Field Text74{Frame5, "Text74", "Effective Rear Ratio", "3.96", KeyRule::OutputOnly};
  Field Text41{Frame5, "Text41", "% Converter Slippage", "11.34",
               Entry(KeyRule::OutputOnly, Unit::Percent,
                     Holds(&P::ConverterSlippage).ShownAtOpening().ZeroKeepsText())};
  Command Command3{Frame5, "Command3", "&First Gear M",
                   "Estimate Trans First Gear Ratio Needed -- Manual",
                   &Form5::EstimateFirstGearManual};
  Command Command4{Frame5, "Command4", "F&irst Gear Aut",
                   "Estimate Trans First Gear Ratio Needed -- Automatic",
                   &Form5::EstimateFirstGearAutomatic};
  Command Command23{
      Frame5, "Command23", "Effective R Ratio",
      "Calculate Effective Rear Ratio Using Tire Radius, Rear Gear Ratio, and Trans 1st Gear "
      "Ratio.",
      &Form5::SolveEffectiveRatio};
  Command Command21{Frame5, "Command21", "Converter Slip",
                    "Calculate Percent of Converter Slippage from RPM, Rear Gear Ratio, Tire "
                    "Diameter, MPH and Trans Gear 10 if other than 0.",
                    &Form5::SolveConverterSlip};

  Frame Frame3{*this, "Frame3", "Transmission", 2};
  FieldArray Text2{Frame3,
                   "Text2",
                   kMostGears,
                   "Gear Ratio",
                   {"3.25", "2.25", "1.25", "1.00", "0.87", "0.0"},
                   Entry(KeyRule::UnsignedReal, HoldsColumn<&P::TGear>().ShownAtOpening())};
  FieldArray OverallRatios{Frame3,
                           "Label2",
                           kMostGears,
                           "Overall",
                           "",
                           KeyRule::OutputOnly,
                           "Rear gear, primary drive and transmission together.",
                           13};
  FieldArray Speeds{Frame3,
                    "Label2",
                    kMostGears,
                    "Speed",
                    "",
                    Entry(KeyRule::OutputOnly, Unit::RoadSpeed),
                    "Speed in the gear at this RPM.",
                    30};
  FieldArray ShiftRpms{
      Frame3,     "Label2",
      kMostGears, "RPM",
      "",         Entry(KeyRule::OutputOnly, Unit::RevolutionsPerMinute, Holds().Pattern<".00">()),
      "",         50};
  Table Gears{Frame3,
              "Gears",
              "Gears",
              {Text2, OverallRatios, Speeds, ShiftRpms},
              {"",
               {"1st Gear", "2nd Gear", "3rd Gear", "4th Gear", "5th Gear", "6th Gear", "7th Gear",
                "8th Gear", "9th Gear", "10th Gear"}}};
  Command Command1{Frame3, "Command1", "&Speed (MPH)",
                   "Calculate Speed (MPH) from RPM, Rear Gear Ratio, Trans Gear Ratio(s), and Tire "
                   "Diameter",
                   &Form5::SolveSpeeds};
  Command Command5{Frame3, "Command5", "R&PM After",
                   "Calculate RPM after Trans Gear Change (Shift) and percent of original RPM "
                   "using RPM, and Trans Gear Ratios",
                   &Form5::SolveRpmAfterShift};
  Command Command15{Frame3, "Command15", "Shi&ft RPM ",
                    "Calculate Trans Gear Change (Shift) using Peak Torque RPM, and Trans Gear "
                    "Ratios. Note: If the engine has a flat torque curve, use the RPM at which the "
                    "curve starts to dip.",
                    &Form5::SolveShiftRpm};
  Command GearboxFinder{Frame3, "GearboxFinder", "Trans Finder",
                        "Pick a production transmission from a list; its ratios go into this "
                        "screen.",
                        CommandWork(&Form5::OpenGearboxFinder, CommandRole::Serves)};

  Frame Frame7{*this, "Frame7", "Gear Ratios by Steps or Teeth", 2};
  Field Text75{Frame7, "Text75", "Trans Drop %", "81.25",
               Entry(KeyRule::UnsignedReal, Unit::Percent)};
  Command Command24{Frame7, "Command24", "Trans G Drop %",
                    "Calculate Trans Gear Ratios Using Trans Drop %, and Trans 1st Gear Ratio.",
                    &Form5::StepGearsDown};
  Command Command30{Frame7, "Command30", "Trans G Up %",
                    "Calculate Trans Gear Ratios Using Trans Drop %, and Trans 10th Gear Ratio.",
                    &Form5::StepGearsUp};
  Command Command25{Frame7, "Command25", "Trans G Spread",
                    "Calculate Trans Drop % Needed Using Trans 1st Gear Ratio (low gear), Trans "
                    "9th Gear Ratio (high gear), and Trans 10th Gear Ratio (number of gears).",
                    &Form5::SpreadGears};
  Command Command29{Frame7, "Command29", "Trans Ratios T C",
                    "Calculate Trans Gear Ratios using the user supplied Input Shaft, Cluster "
                    "Gears, and Output Shaft Gears Tooth Counts).",
                    Opens(&Form5::Frame8)};
  Frame Frame6{*this, "Frame6", "Primary Drive", 2};
  CheckBox Check2{Frame6, "Check2", "Primary Drive",
                  "The engine drives the transmission through a primary drive, as motorcycles have "
                  "it; it counts in all ratios."};
  Field Text60{Frame6, "Text60", "Front Sprocket", "12",
               Entry(KeyRule::Digits, Holds(&P::FrontSprocket).ShownAtOpening().ZeroKeepsText())};
  Field Text61{Frame6, "Text61", "Rear Sprocket", "24",
               Entry(KeyRule::Digits, Holds(&P::RearSprocket).ShownAtOpening().ZeroKeepsText())};
  Field Text62{
      Frame6, "Text62", "Primary Gear Ratio", "2.00",
      Entry(KeyRule::OutputOnly, Holds(&P::PrimaryDrive).ShownAtOpening().ZeroKeepsText())};

  Panel Frame8{*this, "Frame8", "Trans Gear Ratios from Tooth Counts"};
  Frame InputFrame{Frame8, "InputFrame", "Input", 0};
  Field Text13{InputFrame, "Text13", "Input Cluster Gear Tooth Count", "10", KeyRule::Digits};
  Field Text14{InputFrame, "Text14", "Input Shaft Gear Tooth Count", "10", KeyRule::Digits};
  Frame TeethFrame{Frame8, "TeethFrame", "Gears", 1};
  FieldArray Text11{TeethFrame,
                    "Text11",
                    kMostGears,
                    "Cluster Gear Tooth Count",
                    {"14", "15", "17", "19", "21", "10", "25", "27", "0", "0"},
                    KeyRule::Digits};
  FieldArray Text12{TeethFrame,
                    "Text12",
                    kMostGears,
                    "Output Shaft Gear Tooth Count",
                    {"34", "31", "29", "27", "25", "10", "21", "19", "0", "0"},
                    KeyRule::Digits};
  Table Teeth{TeethFrame,
              "Teeth",
              "Teeth",
              {Text11, Text12},
              {"",
               {"1st Gear", "2nd Gear", "3rd Gear", "4th Gear", "5th Gear", "6th Gear", "7th Gear",
                "8th Gear", "9th Gear", "10th Gear"}}};
  Command Command26{TeethFrame, "Command26", "Calculate",
                    "Calculate the Trans Gear Ratios from these tooth counts. A gear with a count "
                    "of 0 becomes 0.",
                    &Form5::SolveGearsFromTeeth};
  Command Command27{TeethFrame, "Command27", "Clear Fields", "Set all tooth counts to 0.",
                    &Form5::ClearTeeth};
  Command Command28{Frame8, "Command28", "Done", "Back to the gears.", PutsAway()};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text58{HelpFrame, "Text58"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
