#pragma once

#include <vector>

#include "core/panel.h"
#include "core/screen_part.h"
#include "vehicle/torque_table.h"
#include "vehicle/torque_table_panel.h"

namespace veldox {

/// The main page of the acceleration screen: the car, its drive and its tires, the air it runs in,
/// the launch; and what of it is worked out without a run. All in inches and pounds, whatever other
/// screens show.
class AccelerationPage : public ScreenPart {
 public:
  /// @param torques  the panel that shows the torque table
  AccelerationPage(Screen& screen, TorqueTablePanel& torques);

  void Open() { Frame1.Open(); }
  /// The primary drive where it is in use, else 1. @throws CommandError that names the field
  double ReadPrimaryDrive();
  /// Shows the drag, and where it was picked with it the frontal area, of the shared values as
  /// changed.
  void ShowDrag(bool withArea);

 private:
  void SolveRoadLoad();
  void EstimateFrontalArea();
  void SolveTopSpeedPower();
  void ShiftTorqueCurve();
  void CorrectTorqueCurve();

  /// Horsepower that air and tires take at the speed on the screen.
  struct RoadLoad {
    double aero;
    double rolling;
  };
  RoadLoad ReadRoadLoad();
  /// Torque, and fuel where it was measured.
  static void ScaleTorque(TorquePoint& point, double factor);
  /// Puts changed points into use. @param field  what a number that is too large is told by
  void TakeTorqueCurve(const std::vector<TorquePoint>& points, Field& field);

  TorqueTablePanel& torques_;

 public:
  ScreenPage Frame1{screen(), "Frame1", "Acceleration / Top Speed"};

  Frame DriveFrame{Frame1, "DriveFrame", "Gears and Tires", 0};
  Field Text18{DriveFrame, "Text18", "Rear Gear Ratio", "4.1",
               Entry(KeyRule::UnsignedReal, Holds(&P::RearGearRatio))};
  Field Text21{DriveFrame, "Text21", "Tire Diameter", "28.0",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::TireDiameter).NotConverted())};
  Field Text49{DriveFrame,
               "Text49",
               "Tire Rolling Radius",
               "13.75",
               Entry(KeyRule::UnsignedReal, Unit::Inches,
                     Holds(&P::TireRollingRadius).ShownAtOpening().ZeroKeepsText().NotConverted()),
               "From the ground to the middle of the wheel, with the car standing on it."};
  Field Text12{DriveFrame,
               "Text12",
               "Trans Gear",
               "1",
               Entry(KeyRule::Digits, Holds(&P::TransGear).ZeroKeepsText()),
               "The gear, counted from 1, that the car was in for the road horsepower charts."};
  CheckBox Check2{
      DriveFrame, "Check2", "Primary Drive",
      "NOTE: The Primary Drive can also be used for Gear Vendors and other Overdrive Unit."};
  Field Text62{
      DriveFrame, "Text62", "Primary Gear Ratio", "2.00",
      Entry(KeyRule::UnsignedReal, Holds(&P::PrimaryDrive).ShownAtOpening().ZeroKeepsText())};
  Field Text28{DriveFrame, "Text28", "% Rear End Power Loss", "6.5",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentRearEndPowerLoss))};
  Field Text47{DriveFrame,
               "Text47",
               "% Drive Train Power Loss",
               "12.5",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentDriveTrainPowerLoss)),
               "For wheel torque and top speed power; a run takes the loss of each gear instead."};

  Frame ConverterFrame{Frame1, "ConverterFrame", "Torque Converter", 0};
  CheckBox Check1{
      ConverterFrame, "Check1", "Automatic Trans",
      "If Automatic Trans Box is checked then user may enter  % Converter Slippage, Converter "
      "Stall Speed (For best results this should be about peak torque RPM) and Converter Torque "
      "Multiplier."};
  Field Text41{ConverterFrame, "Text41", "% Converter Slippage", "11.34",
               Entry(KeyRule::UnsignedReal, Unit::Percent,
                     Holds(&P::ConverterSlippage).ShownAtOpening().ZeroKeepsText())};
  Field Text30{ConverterFrame, "Text30", "Converter Stall Speed", "2350",
               Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::ConverterStallSpeed))};
  Field Text31{ConverterFrame, "Text31", "Torque Multiplier", "1.6",
               Entry(KeyRule::UnsignedReal, Holds(&P::TorqueMultiplier))};

  Frame LaunchFrame{Frame1, "LaunchFrame", "Launch and CVT", 0};
  Field Text69{
      LaunchFrame, "Text69", "Launch RPM", "5200",
      Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::LaunchRPM).ZeroKeepsText())};
  Field Text29{LaunchFrame,
               "Text29",
               "Rollout Distance inches",
               "11.75",
               Entry(KeyRule::UnsignedReal, Holds(&P::RollOut)),
               "How far the car rolls before its wheel leaves the beam that starts the clock."};
  Field Text42{LaunchFrame,
               "Text42",
               "Coefficient of Mu",
               "5.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::CoefficientofMu).ZeroKeepsText()),
               "The grip of the driven tires. 5 is as good as no limit; it must be below 36/7."};
  Field Text67{LaunchFrame,
               "Text67",
               "Dyno Correct Factor",
               "1.00",
               Entry(KeyRule::UnsignedReal, Holds(&P::DynoCorrection).ZeroKeepsText()),
               "What the torque of the table was corrected by; the engine's own is the table "
               "divided by it."};
  Field Text77{
      LaunchFrame, "Text77", "CVT RPM", "9500",
      Entry(KeyRule::UnsignedReal, Unit::RevolutionsPerMinute, Holds(&P::CVTRPM).ZeroKeepsText())};
  Field Text78{LaunchFrame, "Text78", "CVT Power Loss", "20.0",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::CVTPowerLoss))};

  Frame VehicleFrame{Frame1, "VehicleFrame", "Vehicle", 1};
  Field Text51{VehicleFrame, "Text51", "Vehicle Weight plus driver", "2350",
               Entry(KeyRule::UnsignedReal, Unit::Weight,
                     Holds(&P::CarWeight).ZeroKeepsText().NotConverted())};
  Field Text64{VehicleFrame, "Text64", "Coefficient of Drag (CD)", "0.34",
               Entry(KeyRule::UnsignedReal, Holds(&P::CoefficientofDrag).ShownAtOpening())};
  Field Text65{VehicleFrame, "Text65", "Frontal Area Sq.Ft.", "19.4",
               Entry(KeyRule::UnsignedReal, Holds(&P::FrontalArea).ShownAtOpening())};
  Field Text10{VehicleFrame, "Text10", "Width", "74.5",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::VehWidth))};
  Field Text11{VehicleFrame, "Text11", "Height", "55.75",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::VehHeight))};
  Command Command28{VehicleFrame, "Command28", "&Est Frontal Area",
                    "Estimate Frontal Area using Width and Height of the vehicle.",
                    Runs(&AccelerationPage::EstimateFrontalArea)};
  Field Text66{VehicleFrame, "Text66", "Tire Rolling Resistance", "0.015",
               Entry(KeyRule::UnsignedReal, Holds(&P::TireRollingResistance).NotShownAtOpening())};

  Frame SpeedFrame{Frame1, "SpeedFrame", "Power at a Speed", 1};
  Field Text1{SpeedFrame, "Text1", "MPH", "42.5",
              Entry(KeyRule::UnsignedReal, Unit::MilesPerHour, Holds(&P::MPH).NotConverted())};
  Field Text63{SpeedFrame, "Text63", "Aerodynamic HP Loss", "777.77",
               Entry(KeyRule::OutputOnly, Unit::Horsepower)};
  Field Text68{SpeedFrame, "Text68", "Roll Resistance HP Loss", "27.77",
               Entry(KeyRule::OutputOnly, Unit::Horsepower)};
  Field Text81{SpeedFrame, "Text81", "Top Speed Track HP", "436.4",
               Entry(KeyRule::OutputOnly, Unit::Horsepower)};
  Field Text82{SpeedFrame, "Text82", "SAE Corrected HP", "436.4",
               Entry(KeyRule::OutputOnly, Unit::Horsepower)};
  Command Command24{
      SpeedFrame, "Command24", "&Aero/Roll Hp",
      "Calculate Aerodynamic and Rolling Resistance HP Loss using MPH, Coefficient of "
      "Drag, Frontal Area, Tire Rolling Resistance, Vehicle Weight, and Track - BP or "
      "Air Density.",
      Runs(&AccelerationPage::SolveRoadLoad)};
  Command Command17{
      SpeedFrame, "Command17", "Top Speed HP",
      "Estimate HP for Top Speed Prediction / MPH using MPH, Coefficient of Drag, Frontal Area, "
      "Tire Rolling Resistance, Tire Diameter, % Rear End Power Loss, % Power Loss, Dyno "
      "Correction "
      "Factor, Track - BP or Air Density. -- For Bonneville try TRR = 0.09, DCF = 1.2134, Track BP "
      "= 25.65\r\nNOTE: This is NOT for 1/4 Mile or Drag Racing",
      Runs(&AccelerationPage::SolveTopSpeedPower)};

  /// The charts of power from times taken on the road stand here, behind its field.
  Frame RoadFrame{Frame1, "RoadFrame", "Road Horsepower", 1};
  Field Text70{RoadFrame, "Text70",
               "ROad HP RPM Rate per Sec. If other than 0 used in place of Parameter File Times",
               "0", KeyRule::UnsignedReal};

  Frame AirFrame{Frame1, "AirFrame", "Air", 2};
  Field Text73{
      AirFrame,
      "Text73",
      "Track - BP or Air Density",
      "29.92126",
      Entry(KeyRule::UnsignedReal, Holds(&P::TrackBP).ZeroKeepsText().NotConverted()),
      "Above 0.1 it is the track's barometer in inches of mercury, else the density of its "
      "air in pounds a cubic foot: 29.92126 and 0.076501 are the same."};
  Field Text37{AirFrame,
               "Text37",
               "Wind Speed",
               "0",
               Entry(KeyRule::UnsignedReal, Unit::MilesPerHour, Holds(&P::WindSpeed)),
               "The wind that the car runs into."};
  Field Text38{AirFrame,
               "Text38",
               "Wind Direction",
               "0",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::WindDirection)),
               "0 is from ahead, 90 from the side, 180 from behind; at most 359."};
  CheckBox Check4{
      AirFrame, "Check4", "Hood Scoop",
      "Lets the user have a Hood Scoop. The program will calculate a Ram Air factor / positive "
      "pressure in the intake track."};

  Frame OptionsFrame{Frame1, "OptionsFrame", "Run Options", 2};
  CheckBox Check3{
      OptionsFrame, "Check3", "Nitrous",
      "Lets the user have up to Four (7) time based and up to Seven (7) Tran Gear based Stages of "
      "Nitrous using Trans Gear, Nitrous HP, Nitrous RPM-Start, Nitrous HP Starting %, and Nitrous "
      "RPM Full or can have Nitrous start at the shift into any gear - - NOTES: 1) Set Trans Gear "
      "to 9 for any Stages you will not use.  2) If you want a given Stage to start at the "
      "beginning of a Trans Gear set its Nitrous RPM Start to 0."};
  CheckBox Check5{OptionsFrame, "Check5", "Rear Wheel HP",
                  "Lets the user have the Nitrous rating based on Rear Wheel HP)"};
  CheckBox Check6{
      OptionsFrame, "Check6", "Throttle Stop",
      "When Checked, Then the simulated run will use the Throttle S(top Start) RPM and Throttle "
      "S(top On) Time during the simulated Run."};
  Field Text79{OptionsFrame, "Text79", "Throttle S RPM", "4000",
               Entry(KeyRule::Digits, Unit::RevolutionsPerMinute,
                     Holds(&P::ThrottleStopRPM).NotShownAtOpening())};
  Field Text80{OptionsFrame, "Text80", "Throttle S Time", "0.3",
               Entry(KeyRule::UnsignedReal, Unit::Seconds, Holds(&P::ThrottleStopTime))};
  CheckBox Check7{
      OptionsFrame, "Check7", "Show RPS Rate",
      "When Checked, the RPS (Revolutions Per Second) rate of acceleration will be shown on the "
      "Report"};

  Frame WheelFrame{Frame1, "WheelFrame", "Wheel Torque", 2};
  Field Text45{WheelFrame, "Text45", "Torque", "555.0",
               Entry(KeyRule::UnsignedReal, Unit::Torque, Holds(&P::Torque).NotConverted())};
  Field Text46{WheelFrame, "Text46", "Wheel Drive Torque", "2874.12",
               Entry(KeyRule::OutputOnly, Unit::Torque, Holds().NotConverted())};
  Field Text48{WheelFrame, "Text48", "Wheel Thrust / Force", "2874.34",
               Entry(KeyRule::OutputOnly, Unit::Weight, Holds().NotConverted())};
  Field Text50{WheelFrame, "Text50", "G Force from Acceleration", "1.234",
               Entry(KeyRule::OutputOnly, Holds(&P::LongAcelGs))};

  Frame CurveFrame{Frame1, "CurveFrame", "Torque Curve", 2};
  Field Text72{CurveFrame, "Text72", "Shift Torque Up + or Down - \"xxxx\" RPM", "2350",
               Entry(KeyRule::SignedDigits, Unit::RevolutionsPerMinute,
                     Holds(&P::ShiftTorque).NotShownAtOpening())};
  Command Command8{CurveFrame, "Command8", "Shift Torq Data",
                   "This will Shift the Torque Curve Up / Increase 'XXXX' RPM or Down / Decrease "
                   "'-XXXX' RPM\r\nNote if Fuel lbs/hr is present it is also Modified",
                   Runs(&AccelerationPage::ShiftTorqueCurve)};
  Command Command14{CurveFrame, "Command14", "DCF Torq Data",
                    "This will Modify the Torque Curve Up / Increase or Down / Decrease using Dyno "
                    "Correction Factor\r\nNote if Fuel lbs/hr is present it is also Modified",
                    Runs(&AccelerationPage::CorrectTorqueCurve)};
};

}  // namespace veldox
