#pragma once

#include "airfuel/nitrous.h"
#include "core/caution_frame.h"
#include "core/screen.h"

namespace veldox {

/// Nitrous: horsepower, jet sizes and pressures solved for each other, with advice on timing and
/// plugs, fuel jets for other fuels and the flow of all jets together.
class Form17 : public Screen {
 public:
  explicit Form17(ProgramContext& context);

  Control* HelpPlace() override { return &Text38; }

 private:
  void SolveHorsepower();
  void SolveNitrousJet();
  void SolveFuelPressure();
  void ConvertGasJet();
  void SolveFlowJet();
  void SolveFlowJetOfTwoStages();

  void ReadNitrousInputs();
  /// Shows the advice on timing and plugs, then the fuel jets. @param hp  horsepower of nitrous
  void NitrousAdvice(double hp);
  void ShowRange(Field& field, const AdviceRange& range);
  const NitrousBaseline& Baseline() const { return NitrousBaselineOf(Option1.chosen()); }

 public:
  CautionFrame Frame1{*this, "Frame1", "Warning", 0};
  Label Label1{Frame1, "Label1",
               "Baseline calculations at 950 psi bottle pressure and fuel specific gravity of .740 "
               "and pressure at 6 psi."};
  Label Label2{Frame1, "Label2",
               "This is a starting point and final tuning has to be done using an oxygen sensor, "
               "or EGT exhaust gas temperature or reading your spark plugs."};
  Label Label3{Frame1, "Label3",
               "By changing Fuel Pressure this will work for both a Carb (low pressure) and EFI "
               "(high pressure) setup."};
  Label Label4{Frame1, "Label4",
               "It is up to the user to ensure that no damage will result from as a result of "
               "following these instructions."};
  Label Label5{Frame1, "Label5",
               "Always read and follow the instructions that came with your nitrous kit."};

  Frame Frame2{*this, "Frame2", "Baseline", 0};
  OptionGroup Option1{
      Frame2,
      "Option1",
      "",
      {{0, "Standard", "This will calculate values that are the same as most web calculator."},
       {1, "Base 1",
        "This will calculate values that are like many NOS Fogger systems also Nitrous Express "
        "(NX) plate, Speedtech plate, Nitrous Pro-Flow plate and a good number of Edelbrock Dual "
        "Stage Plate kits."},
       {2, "Base 1.26",
        "This will calculate values that are like many Nitrous-Oxide Systems (NOS) Cheater "
        "systems."},
       {3, "Base 0.7",
        "This will calculate values that are like some Cheater systems, Nitrous Works plate and "
        "ZEX plate."}},
      0,
      2};

  CautionFrame Frame3{*this, "Frame3", "Leaner Baselines", 0};
  OptionPart LeanBaselines{
      Frame3,
      Option1,
      {{4, "Base K-Y",
        "This will calculate values that are Leaner than the others methods -- be VERY VERY "
        "careful about running these setups."},
       {5, "Base K-Y 5.5",
        "This will calculate values that are Leaner than the others methods -- be VERY VERY "
        "careful about running these setups."}},
      2};

  Frame Frame4{*this, "Frame4", "Nitrous", 1};
  Field Text1{Frame4, "Text1", "Fuel Pressure", "6.0",
              Entry(KeyRule::UnsignedReal, Unit::GaugePressure,
                    Holds(&P::FuelPressure).Pattern<"0.0000">())};
  Field Text2{Frame4, "Text2", "Nitrous Pressure", "950",
              Entry(KeyRule::UnsignedReal, Unit::GaugePressure, Holds(&P::NitrousPressure))};
  Field Text3{Frame4, "Text3", "Nitrous Jet Size", "0.024",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::NitrousJetSize))};
  Field Text4{Frame4, "Text4", "Number of NO Jets", "8",
              Entry(KeyRule::Digits, Holds(&P::NumberNitrousJets))};
  Field Text5{Frame4, "Text5", "Number of Cylinders", "8",
              Entry(KeyRule::Digits, Holds(&P::NumberofCylinders))};
  Field Text18{Frame4, "Text18", "Horse Power", "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Power, Holds().Pattern<".0">())};
  Field Text11{Frame4, "Text11", "Timing Retard Degrees", "0.0",
               Entry(KeyRule::OutputOnly, Unit::Degrees)};
  Field Text16{Frame4, "Text16", "Plug Heat Range Colder", "0.0", KeyRule::OutputOnly};
  Command Command1{
      Frame4, "Command1", "&Fuel Jet Size/NO HP",
      "NOTE: Number of Cylinders is ONLY used in Calculating Timing Retard in Degrees and Plug "
      "Heat Range Change.\r\nCalculate Horse Power, Timing Retard in Degrees, Plug Heat Range "
      "Change, and Fuel Jet Size using Fuel Pressure, Nitrous Pressure, Nitrous Jet Size, and "
      "Number of Nitrous Jets used.",
      &Form17::SolveHorsepower};
  Command Command6{
      Frame4, "Command6", "Nitrous Jet Size",
      "NOTE: Number of Cylinders is ONLY used in Calculating Timing Retard in Degrees and Plug "
      "Heat Range Change.\r\nCalculate Nitrous Jet Size, Timing Retard in Degrees, Plug Heat Range "
      "Change, and Fuel Jet Size using Fuel Pressure, Nitrous Pressure, Nitrous HP, and Number of "
      "Nitrous Jets used.",
      &Form17::SolveNitrousJet};
  Command Command5{
      Frame4, "Command5", "Fuel Pressure",
      "Calculate Fuel Pressure using Fuel Jet Size, Nitrous Pressure, Nitrous Jet Size.",
      &Form17::SolveFuelPressure};

  Frame Frame5{*this, "Frame5", "Fuel Jets", 2};
  Field Text19{Frame5, "Text19", "Fuel (Gas) Jet Size", "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::FuelJetSize))};
  Field Text20{Frame5, "Text20", "Methanol Jet Size", "0.0",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text21{Frame5, "Text21", "Ethanol Jet Size", "0.0",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text14{Frame5, "Text14", "E85 Jet Size", "0.0", Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text6{Frame5, "Text6", "Specific Gravity of Gas", "0.740",
              Entry(KeyRule::UnsignedReal, Holds(&P::SpecificGravityGas))};
  Field Text12{Frame5, "Text12", "Specific Gravity of Methanol", "0.790",
               Entry(KeyRule::UnsignedReal, Holds(&P::SpecificGravityMethanol))};
  Field Text13{Frame5, "Text13", "Specific Gravity of Ethanol", "0.790",
               Entry(KeyRule::UnsignedReal, Holds(&P::SpecificGravityEthanol))};
  Field Text15{Frame5, "Text15", "Specific Gravity of E85", "0.780",
               Entry(KeyRule::UnsignedReal, Holds(&P::SpecificGravityE85))};
  Command Command4{
      Frame5, "Command4", "Convert Gas Jet Size",
      "Convert Gas Jet Size using Specific Gravity of Gas, Specific Gravity of E85, Specific "
      "Gravity of Ethanol, and Specific Gravity of Methanol giving E85, Ethanol, and Methanol Fuel "
      "Jet Sizes.",
      &Form17::ConvertGasJet};

  Frame Frame6{*this, "Frame6", "Flow of All Fuel Jets", 2};
  Field Text7{Frame6, "Text7", "Number of Fuel Jets", "8",
              Entry(KeyRule::Digits, Holds(&P::NumberFuelJets))};
  Field Text8{Frame6, "Text8", "Flow / Fuel Jet Size", "0.0",
              Entry(KeyRule::OutputOnly, Unit::Length, Holds().Pattern<"0.0000">())};
  Command Command2{
      Frame6, "Command2", "Flow / Fuel Jet Size ",
      "Calculate Flow / Fuel Jet Size need to simulate the pressure at your Jets / Nozzles, using "
      "Fuel (Gas) Jet Size and Number of Fuels Jets.",
      &Form17::SolveFlowJet};

  Frame Frame7{*this, "Frame7", "Stage II", 2};
  Field Text9{Frame7, "Text9", "Number of Fuel Jets", "2",
              Entry(KeyRule::Digits, Holds(&P::NumberFuelJetsS2))};
  Field Text10{Frame7, "Text10", "Fuel (Gas) Jet Size", "0.048",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::FuelJetSizeS2))};
  Command Command3{
      Frame7, "Command3", "Flow Jet Size 2 Stages",
      "Calculate Flow / Fuel Jet Size need to simulate the pressure at your Jets / Nozzles for TWO "
      "Stages, using Fuel (Gas) Jet Size and Number of Fuels Jets, Plus 'Stage II' Fuel (Gas) Jet "
      "Size and Number of Fuels Jets.",
      &Form17::SolveFlowJetOfTwoStages};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
