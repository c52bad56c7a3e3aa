#pragma once

#include <functional>
#include <string>

#include "airfuel/airflow.h"
#include "airfuel/fuel_panel.h"
#include "airfuel/mass_air.h"
#include "airfuel/mass_air_reports.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"

namespace veldox {

/// The main page of the air and fuel screen: the engine that all its panels work with, air flow,
/// horsepower, carburettor, intake runner and filter; mass air flow and its reports. All in
/// inches and pounds, whatever other screens show.
class AirflowPage : public ScreenPart {
 public:
  /// @param fuel  what a lambda value is taken for
  AirflowPage(Screen& screen, FuelPanel& fuel);

  /// Parses "Air Fuel Ratio / Lambda Value" into the shared air/fuel ratio: up to 1.5 it is a
  /// lambda value of the fuel chosen.
  void ReadAirFuelValue();

 private:
  void EstimateAirflowProStock() { EstimateAirflow(kProStockFlow); }
  void EstimateAirflowRacing() { EstimateAirflow(kRacingFlow); }
  void EstimateAirflowStreet() { EstimateAirflow(kStreetFlow); }
  void EstimateHorsepowerProStock() { EstimateHorsepower(kProStockFlow); }
  void EstimateHorsepowerRacing() { EstimateHorsepower(kRacingFlow); }
  void EstimateHorsepowerStreet() { EstimateHorsepower(kStreetFlow); }
  void EstimateHorsepowerByFormula();
  void SizeCarburetor();
  void SizeBlownCarburetor();
  void EstimateAlcoholHorsepower();
  void SizeRunner();
  void SizeRunnerForPower();
  void SizePaperFilter();
  void SizeFoamFilter();
  void ConvertAirflow();
  void EstimateVolumetricEfficiency();
  void EstimateBsfc();
  void SolveMassAirFlow();
  void SolveVolumetricEfficiency();
  void SolveRpm();
  void ReportAirFuel();
  void ReportBsfc();
  void ReportSpeed();
  void ReportDyno();

  void EstimateAirflow(double flowPerHorsepower);
  void EstimateHorsepower(double flowPerHorsepower);
  void ShowHorsepower(double horsepower);
  /// Shows a carburettor's size, then what of it a race engine needs.
  void ShowCarburetor(double flow);
  void SizeFilter(double element);

  /// Parses the engine, its fuel and its inlet air.
  InletAir ReadMassAirInputs();
  /// Air that the engine sweeps. @return cubic metres in a second
  double SweptAir() const;
  /// What the reports are made of.
  MassAirValues ReadReportValues();
  MassAirLayout ReportLayout() const;
  using ReportOf = std::string (*)(const MassAirValues& values, const MassAirLayout& layout);
  /// Shows one of the reports that go around the values. @param largeFontSize  in wide columns
  void ShowGridReport(ReportOf make, int largeFontSize);
  /// Makes a report; a value that makes it impossible is told by its field.
  std::string MakeReport(const std::function<std::string()>& make);
  Field& FieldOf(ReportAxis axis);
  /// Shows a report, and beside it the mixture that it is made for.
  /// @param note  what more is to be said of it
  void ShowReportOfMixture(std::string report, int fontSize, const std::string& note);
  void ShowMixture();

  FuelPanel& fuel_;
  double wideOpenVacuum_ = 0;  ///< inches of mercury

 public:
  Frame Frame1{screen(), "Frame1", "Air Fuel Flow Details", 0};
  Field Text1{Frame1, "Text1", "Engine Size", "327",
              Entry(KeyRule::UnsignedReal, Unit::CubicInches, Holds(&P::CubicInches).NotConverted(),
                    LeaveCheck::HasDigits)};
  Field Text29{Frame1, "Text29", "Number of Cylinders", "8",
               Entry(KeyRule::Digits, Holds(&P::NumberofCylinders), LeaveCheck::HasDigits)};
  Field Text2{Frame1, "Text2", "RPM", "6500",
              Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM).Pattern<"0">(),
                    LeaveCheck::HasDigits)};
  Field Text3{
      Frame1, "Text3", "Horsepower", "1295",
      Entry(KeyRule::UnsignedReal, Unit::Horsepower, Holds(&P::HorsePower), LeaveCheck::HasDigits)};
  Field Text4{
      Frame1, "Text4", "Blower Pressure", "7.5",
      Entry(KeyRule::UnsignedReal, Unit::Psi, Holds(&P::BlowerPressure), LeaveCheck::HasDigits)};
  Field Text84{Frame1, "Text84", "Comp Ratio", "12.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio), LeaveCheck::HasDigits)};
  Field Text11{Frame1,
               "Text11",
               "Volumetric Efficiency",
               ".85",
               Entry(KeyRule::UnsignedReal, Holds(&P::VolumetricEfficiency), LeaveCheck::HasDigits),
               "The air that the engine takes, of what it sweeps: .85 is 85 percent."};
  Field Text30{Frame1,
               "Text30",
               "Air Fuel Ratio / Lambda Value",
               "12.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::AirFuelRatio), LeaveCheck::HasDigits),
               "Up to 1.5 it is a lambda value of the fuel that \"Set Lambda Fuel\" chooses, above "
               "it is pounds of air for a pound of fuel."};
  ResultLabel Mixture{Frame1, "Mixture", "Lambda of Gasoline", Unit::None,
                      "The same mixture in the other measure: the ratio of a lambda value, the "
                      "lambda of a ratio."};
  Field Text10{Frame1, "Text10", "BSFC", ".5",
               Entry(KeyRule::UnsignedReal, Unit::PoundsPerHorsepowerHour,
                     Holds(&P::BSFC).Pattern<"0.0000">(), LeaveCheck::HasDigits)};
  Field Text39{Frame1, "Text39", "Alcohol Horsepower", "575",
               Entry(KeyRule::OutputOnly, Unit::Horsepower)};
  Command Command65{Frame1, "Command65", "Estimate VE",
                    "Estimate VE from Horsepower, Engine Size, RPM and Comp Ratio.",
                    Runs(&AirflowPage::EstimateVolumetricEfficiency)};
  Command Command99{Frame1, "Command99", "Estimate BSFC", "Estimate BSFC from Comp Ratio.",
                    Runs(&AirflowPage::EstimateBsfc)};
  Command Command26{Frame1, "Command26", "&Gas -> Alcohol",
                    "Estimate Horsepower from running Alcohol over gas using Horsepower.",
                    Runs(&AirflowPage::EstimateAlcoholHorsepower)};

  Frame Frame6{Frame1, "Frame6", "Air Flow", 1};
  Field Text19{Frame6, "Text19", "Intake Flow", "300.0",
               Entry(KeyRule::UnsignedReal, Unit::CubicFeetPerMinute, Holds(&P::IntakeFlow),
                     LeaveCheck::HasDigits)};
  Field Text20{Frame6, "Text20", "Exhaust Flow", "210.0",
               Entry(KeyRule::UnsignedReal, Unit::CubicFeetPerMinute, Holds(&P::ExhaustFlow),
                     LeaveCheck::HasDigits)};
  Field Text21{Frame6, "Text21", "Intake Exhaust Ratio", ".7",
               Entry(KeyRule::UnsignedReal, Holds(&P::IntakeExhaustRatio), LeaveCheck::HasDigits)};
  Field Text27{Frame6, "Text27", "RPM Max HP", "6500",
               Entry(KeyRule::Digits, Unit::RevolutionsPerMinute,
                     Holds(&P::RPMMaxHorsePower).Pattern<"0">(), LeaveCheck::HasDigits)};
  Frame ProStockFrame{Frame6, "ProStockFrame", "Pro Stock Style", 1};
  Command Command6{ProStockFrame, "Command6", "Estim Ai&rflow",
                   "Estimate Intake and Exhaust Airflow and RPM of Max HP from Horsepower, Intake "
                   "Exhaust Ratio and Number of Cylinders - Pro Stock Style.",
                   Runs(&AirflowPage::EstimateAirflowProStock)};
  Command Command17{
      ProStockFrame, "Command17", "Estimate H&P",
      "Estimate Horsepower from Intake Airflow and Number of Cylinders - Pro Stock Style.",
      Runs(&AirflowPage::EstimateHorsepowerProStock)};
  Frame RacingFrame{Frame6, "RacingFrame", "Racing Only Engine", 1};
  Command Command15{RacingFrame, "Command15", "Estim Airf&low",
                    "Estimate Intake and Exhaust Airflow and RPM of Max HP from Horsepower, Intake "
                    "Exhaust Ratio and Number of Cylinders - Racing Only Engine.",
                    Runs(&AirflowPage::EstimateAirflowRacing)};
  Command Command18{
      RacingFrame, "Command18", "E&stimate HP",
      "Estimate Horsepower from Intake Airflow and Number of Cylinders - Racing Only Engine.",
      Runs(&AirflowPage::EstimateHorsepowerRacing)};
  Frame StreetFrame{Frame6, "StreetFrame", "Street Engine", 1};
  Command Command16{StreetFrame, "Command16", "Estim Airflo&w",
                    "Estimate Intake and Exhaust Airflow and RPM of Max HP from Horsepower, Intake "
                    "Exhaust Ratio and Number of Cylinders - Street Engine.",
                    Runs(&AirflowPage::EstimateAirflowStreet)};
  Command Command19{
      StreetFrame, "Command19", "Es&timate HP",
      "Estimate Horsepower from Intake Airflow and Number of Cylinders - Street Engine.",
      Runs(&AirflowPage::EstimateHorsepowerStreet)};
  Frame FormulaFrame{Frame6, "FormulaFrame", "AFR Formula", 1};
  Command Command20{FormulaFrame, "Command20", "Esti&mate HP",
                    "Estimate Horsepower from Intake Airflow and Number of Cylinders - Using AFR "
                    "Formula as seen in many magazines.",
                    Runs(&AirflowPage::EstimateHorsepowerByFormula)};

  Frame CarburetorFrame{Frame1, "CarburetorFrame", "Carburetor", 1};
  Field Text124{CarburetorFrame, "Text124", "Vac @ WOT", "0.9877",
                Entry(KeyRule::UnsignedReal, Unit::InchesMercury, Holds(wideOpenVacuum_),
                      LeaveCheck::HasDigits)};
  Field Text5{
      CarburetorFrame, "Text5", "Carb Size", "650",
      Entry(KeyRule::OutputOnly, Unit::CubicFeetPerMinute, Holds(&P::CarbSize).Pattern<".00">())};
  Field Text86{CarburetorFrame, "Text86", "Carb Size Race", "801",
               Entry(KeyRule::OutputOnly, Unit::CubicFeetPerMinute, Holds().Pattern<".00">())};
  Command Command8{
      CarburetorFrame, "Command8", "Carb Size",
      "Calculate Carburetor Size in CFM. Using Engine Size, Rpm, and Volumetric Efficiency",
      Runs(&AirflowPage::SizeCarburetor)};
  Command Command27{CarburetorFrame, "Command27", "Carb Size w BP",
                    "Calculate Carburetor Size in CFM. Using Engine Size, RPM, and Blower Pressure "
                    "-- in 2.1.4 Volumetric Efficiency was added. To get same results as previous "
                    "versions use VE of 1",
                    Runs(&AirflowPage::SizeBlownCarburetor)};

  Frame RunnerFrame{Frame1, "RunnerFrame", "Intake Runner", 2};
  Field Text32{
      RunnerFrame, "Text32", "Peak Torque RPM", "5900",
      Entry(KeyRule::Digits, Unit::RevolutionsPerMinute,
            Holds(&P::PeakTorqueRPM).ShownAtOpening().Pattern<"0">(), LeaveCheck::HasDigits)};
  Field Text33{RunnerFrame, "Text33", "Port Diam", "2.25",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::PortDiameter).ShownAtOpening(),
                     LeaveCheck::HasDigits)};
  Field Text34{RunnerFrame, "Text34", "Intake Runner Len", "7.55",
               Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits)};
  Frame PeakTorqueFrame{RunnerFrame, "PeakTorqueFrame", "By Peak Torque RPM", 2};
  Command Command9{
      PeakTorqueFrame, "Command9", "&Intake Len",
      "Estimate Intake Runner Length using Engine Size, Peak Torque RPM and Port Diameter.",
      Runs(&AirflowPage::SizeRunner)};
  Frame PeakPowerFrame{RunnerFrame, "PeakPowerFrame", "By RPM Max HP", 2};
  Command Command28{PeakPowerFrame, "Command28", "I&ntake Len",
                    "Estimate Intake Runner Length using Peak HP RPM.",
                    Runs(&AirflowPage::SizeRunnerForPower)};

  Frame Frame5{Frame1, "Frame5", "Air Filter", 2};
  Field Text35{Frame5, "Text35", "Filter Diameter", "14.0",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::AirFilterDiameter),
                     LeaveCheck::HasDigits)};
  Field Text36{Frame5, "Text36", "Filter Height", "1.929",
               Entry(KeyRule::OutputOnly, Unit::Inches, Holds().Pattern<".000">())};
  Field Text37{Frame5, "Text37", "Filter Sq Inches", "84.83",
               Entry(KeyRule::OutputOnly, Unit::SquareInches, Holds().Pattern<".000">())};
  Frame PaperFrame{Frame5, "PaperFrame", "Paper Element", 2};
  Command Command14{PaperFrame, "Command14", "F&ilter Size",
                    "Calculate Air Filter Size Paper Element using Engine Size, RPM, and Filter "
                    "Diameter.",
                    Runs(&AirflowPage::SizePaperFilter)};
  Frame FoamFrame{Frame5, "FoamFrame", "Foam Element", 2};
  Command Command24{FoamFrame, "Command24", "Filte&r Size",
                    "Calculate Air Filter Size Foam Element using Engine Size, RPM, and Filter "
                    "Diameter.",
                    Runs(&AirflowPage::SizeFoamFilter)};

  Frame Frame13{Frame1, "Frame13", "Mass Air Flow", 3};
  Field Text71{
      Frame13, "Text71", "Inlet Temperature", "104.0",
      Entry(KeyRule::SignedReal, Unit::Fahrenheit, Holds(&P::Temperature), LeaveCheck::HasDigits)};
  Field Text79{Frame13, "Text79", "Barometric Pressure", "29.53",
               Entry(KeyRule::UnsignedReal, Unit::InchesMercury, Holds(&P::BarometricPressure),
                     LeaveCheck::HasDigits)};
  Field Text80{Frame13, "Text80", "Mass Air Flow kg/s", ".274",
               Entry(KeyRule::OutputOnly, Unit::KilogramsPerSecond)};
  Field Text81{Frame13, "Text81", "Mass Air Flow lbs/hr", "2176.8",
               Entry(KeyRule::UnsignedReal, Unit::PoundsPerHour, Holds(&P::MassAirFlow),
                     LeaveCheck::HasDigits)};
  Field Text69{Frame13, "Text69", "Mass Fuel Flow lbs/hr", "203.8",
               Entry(KeyRule::OutputOnly, Unit::PoundsPerHour)};
  Command Command54{
      Frame13, "Command54", "Calculate",
      "Calculate Engine Mass Air Flow. Using Engine Size, RPM, Volumetric Efficiency, Inlet "
      "Temperature, Barometric Pressure and Blower Pressure -- Calculate Mass Fuel Flow Using Air "
      "Fuel Ratio / Lambda Value. -- Calculate HP Using BSFC.",
      Runs(&AirflowPage::SolveMassAirFlow)};
  Command Command82{Frame13, "Command82", "Calculate VE",
                    "Calculate VE / Volumetric Efficiency Using Engine Mass Air Flow, Engine Size, "
                    "RPM, Inlet Temperature, Barometric Pressure.",
                    Runs(&AirflowPage::SolveVolumetricEfficiency)};
  Command Command88{Frame13, "Command88", "Calculate RPM",
                    "Calculate RPM Using VE / Volumetric Efficiency, Engine Mass Air Flow, Engine "
                    "Size, Inlet Temperature, Barometric Pressure.",
                    Runs(&AirflowPage::SolveRpm)};

  Frame ReportFrame{Frame13, "ReportFrame", "Text Reports", 3};
  OptionGroup Option8{
      ReportFrame,
      "Option8",
      "",
      {{0, "Org Rep", "This is the Original Text Report."},
       {1, "Org SI",
        "Added 4.3.0 - This has the Same number of Rows and Columns as the Original Text Report "
        "but at Half the increments."},
       {4, "Org QI",
        "Added 4.4.2 - This has the Same number of Rows and Columns as the Original Text Report "
        "but at a Quarter the increments."},
       {2, "Sml Rep",
        "Added 4.3.0 - This has less Rows and Columns then the Original Text Report."},
       {3, "SR SI",
        "Added 4.3.0 - This has less Rows and Columns then the Original Text Report and also at "
        "Half of the increment."},
       {5, "SR QI",
        "Added 4.4.2 - This has less Rows and Columns then the Original Text Report and also at "
        "Quarter of the increment."}},
      0,
      3};
  CheckBox Check1{ReportFrame, "Check1(7)", "Single Grouping",
                  "The reports have only the block, or row, of the value entered."};
  Command Command36{
      ReportFrame, "Command36", "Text Rep A/F",
      "Calculate Engine Mass Air / Fuel Flow. Using Engine Size, RPM (Varying), Volumetric "
      "Efficiency (Varying), Air/Fuel Ratio (Varying), Inlet Temperature, Barometric Pressure and "
      "Blower Pressure -- Calculate Mass Fuel Flow using Air Fuel Ratio / Lambda Value.",
      Runs(&AirflowPage::ReportAirFuel)};
  Command Command38{
      ReportFrame, "Command38", "Text Rep BSFC",
      "Calculate Engine Mass Air / Fuel Flow / HP. Using Engine Size, RPM (Varying), Volumetric "
      "Efficiency (Varying), Air/Fuel Ratio, BSFC (Varying), Inlet Temperature, Barometric "
      "Pressure and Blower Pressure -- Calculate Mass Fuel Flow using Air Fuel Ratio / Lambda "
      "Value.",
      Runs(&AirflowPage::ReportBsfc)};
  Command Command42{
      ReportFrame, "Command42", "Text Rep RPM",
      "Calculate Engine Mass Air / Fuel Flow / HP. Using Engine Size, RPM (Fixed), Volumetric "
      "Efficiency (Varying), Air/Fuel Ratio (Varying), BSFC (Varying), Inlet Temperature, "
      "Barometric Pressure and Blower Pressure -- Calculate Mass Fuel Flow using Air Fuel Ratio / "
      "Lambda Value.",
      Runs(&AirflowPage::ReportSpeed)};
  Command Command123{
      ReportFrame, "Command123", "Text Rep Dyno",
      "Using Engine Size, RPM, Volumetric Efficiency, Inlet Temperature, Barometric Pressure -- "
      "Calculate Mass Fuel Flow Using Air Fuel Ratio / Lambda Value. -- Calculate Dyno UNcorrected "
      "HP Using BSFC.",
      Runs(&AirflowPage::ReportDyno)};

  Frame Frame4{Frame1, "Frame4", "Air Flow Conversion", 3};
  Field Text15{Frame4, "Text15", "Old Depression", "5.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::OldDepression), LeaveCheck::HasDigits)};
  OptionGroup Option3{Frame4,
                      "Option3",
                      "",
                      {{0, "Inch Water", "The old depression is in inches of water."},
                       {1, "mm Water",
                        "The old depression is in millimeters of water; the new one is in inches "
                        "all the same."}},
                      0,
                      2};
  Field Text16{Frame4, "Text16", "New Depression", "28.0",
               Entry(KeyRule::UnsignedReal, Unit::InchesWater, Holds(&P::NewDepression),
                     LeaveCheck::HasDigits)};
  Field Text17{Frame4, "Text17", "Old Air Flow", "105.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::OldAirFlow), LeaveCheck::HasDigits)};
  OptionGroup Option4{Frame4,
                      "Option4",
                      "",
                      {{0, "CFM", "The old flow is in cubic feet in a minute."},
                       {1, "M^3/s",
                        "The old flow is in cubic meters in a second; the new one is in CFM all "
                        "the same."}},
                      0,
                      2};
  Field Text18{Frame4, "Text18", "New Air Flow", "248.475",
               Entry(KeyRule::OutputOnly, Unit::CubicFeetPerMinute, Holds().Pattern<".000">())};
  Command Command1{Frame4, "Command1", "Convert &Airflow",
                   "Convert Airflow from one Depression to a different Depression Using Old "
                   "Depression, New Depression, and Old AirFlow.",
                   Runs(&AirflowPage::ConvertAirflow)};
};

}  // namespace veldox
