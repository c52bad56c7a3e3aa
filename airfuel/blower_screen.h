#pragma once

#include <optional>
#include <string>
#include <vector>

#include "airfuel/blower_maps.h"
#include "core/field_array.h"
#include "core/panel.h"
#include "core/screen.h"
#include "core/table.h"
#include "graph/grapher.h"

namespace veldox {

/// Blowers, superchargers and turbos: what boost does to power and compression ratio, the gears of
/// a blower drive, the state of the compressed air behind blower and intercooler, and the air flow
/// as a number and as maps.
class Form14 : public Screen {
 public:
  /// @param grapher  where the graphs appear
  Form14(ProgramContext& context, Grapher& grapher);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }

 private:
  void EstimateHorsepower();
  void EstimateBoostForHorsepower();
  void EstimateNormalHorsepower();
  void EstimateEffectiveRatio();
  void EstimateRatioForBoost();
  void EstimateBoostForRatio();
  void SolveDrive();
  void SolveCrankGear();
  void SolveBlowerGear();
  void SolvePressureRatio();
  void SolveOutletTemperature();
  void SolveBlowerDensityRatio();
  void SolveIntercoolerEfficiency();
  void SolveIntercoolerOutlet();
  void SolveIntercoolerDensityRatio();
  void SolveSystemDensityRatio();
  void SolveFlow();
  void GraphDensityGain();
  void MapByPressureRatio();
  void MapByBoost();
  void MapWithIntercooler();
  void ResetEfficiencies();
  void ResetBsacs();
  void ConvertUnits();

  /// The boost in psi, as the shared values hold it after reading.
  double BoostPsi() const { return InInches(Text3, block().BlowerPressure); }
  /// The air at the blower, as the shared values hold it after reading.
  BlowerAir Air() const;
  AirConsumer Engine() const;
  /// Ends a command for a barometer, or a boost, that leaves no air. @throws CommandError
  void RequireAir();
  void RequireBoostedAir();
  /// Ends a command for a temperature that no air has. @throws CommandError
  void RequireTemperature(Field& field, double temperature);
  /// @param zeros  what is to blame for a blower gear of 0
  void StoreBlowerRatio(DividesBy zeros);
  /// A value of the screen, or a whole table where that is in use.
  ValueByRpm ReadByRpm(Field& field, const CheckBox& usesTable, FieldArray& table);
  /// What a field says, where that is a number.
  std::optional<double> NumberIn(const Field& field) const;

  void MakeMap(FlowMapKind kind);
  FlowMapInput ReadMapInput(FlowMapKind kind);
  FlowMapLimits ReadMapLimits();
  std::optional<OperatingPoint> PointNow(FlowMapKind kind) const;
  std::vector<std::string> MapTitle(FlowMapKind kind) const;
  /// "Engine Size = 326.7256 cu in" of a field.
  std::string Told(const Field& field) const;
  void ResetColumn(Field& from, FieldArray& column);

  Grapher& grapher_;

 public:
  Frame Frame1{*this, "Frame1", "Horsepower", 0};
  Field Text1{Frame1, "Text1", "Horse Power", "555.0",
              Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower))};
  Field Text2{Frame1, "Text2", "Horsepower Increase", "0.0",
              Entry(KeyRule::UnsignedReal, Unit::Power)};
  Field Text3{Frame1, "Text3", "Blower Pressure", "7.5",
              Entry(KeyRule::UnsignedReal, Unit::BoostPressure, Holds(&P::BlowerPressure))};
  CheckBox Check1{
      Frame1, "Check1", "Metric",
      "Show and enter power in kilowatts, boost and pressure loss in kPa, the barometer "
      "in millibars, the engine size in cc and temperatures in Celsius.",
      &Form14::ConvertUnits};
  Command Command4{Frame1, "Command4", "&HP with Blower",
                   "Estimate Horsepower (Increase) from Adding Blower Pressure",
                   &Form14::EstimateHorsepower};
  Command Command5{Frame1, "Command5", "Pressure for H&P",
                   "Estimate Blower Pressure needed from engine Horsepower and Horsepower Increase "
                   "wanted",
                   &Form14::EstimateBoostForHorsepower};
  Command Command6{Frame1, "Command6", "&Normal HP",
                   "Estimate Orginal (N/A - Normal) Horsepower from Horsepower and Blower Pressure",
                   &Form14::EstimateNormalHorsepower};

  Frame Frame2{*this, "Frame2", "Compression Ratio", 0};
  Field Text4{Frame2, "Text4", "Compression Ratio", "8.5",
              Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio))};
  Field Text5{Frame2, "Text5", "Max Compression Ratio", "10.5",
              Entry(KeyRule::UnsignedReal, Holds(&P::MaxCompressionRatio))};
  Field Text6{Frame2, "Text6", "Effective Compression Ratio", "12.83793",
              Entry(KeyRule::UnsignedReal, Holds(&P::EffectiveCompressionRatio))};
  Command Command7{
      Frame2, "Command7", "Effecti&ve CR",
      "Estimate Effective Compression Ratio from Compression Ratio and Blower Pressure",
      &Form14::EstimateEffectiveRatio};
  Command Command8{Frame2, "Command8", "CR with &Blower",
                   "Estimate Max Compression Ratio with Blower Pressure from normal (unblown) Max "
                   "Compression Ratio Running the same fuel",
                   &Form14::EstimateRatioForBoost};
  Command Command9{Frame2, "Command9", "Pressure for C&R",
                   "Estimate Blower Pressure needed from Effective Compression Ratio wanted and "
                   "Compression Ratio.",
                   &Form14::EstimateBoostForRatio};

  Frame Frame3{*this, "Frame3", "Engine and Blower Drive", 0};
  Field Text7{
      Frame3, "Text7", "Engine Size", "326.7256",
      Entry(KeyRule::UnsignedReal, Unit::Volume, Holds(&P::CubicInches).By(kEngineSizeRule))};
  Field Text8{Frame3, "Text8", "Engine RPM", "6500",
              Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM))};
  Field Text9{Frame3,
              "Text9",
              "Volumetric Efficiency",
              "0.85",
              Entry(KeyRule::UnsignedReal, Holds(&P::VolumetricEfficiency)),
              "As a fraction: 0.85 is 85 percent."};
  CheckBox Check2{Frame3, "Check2", "Rotary / 2 Stroke",
                  "The engine takes its whole size of air every revolution, not every second one; "
                  "it counts in all flows."};
  Field Text10{Frame3, "Text10", "Crank Gear", "60",
               Entry(KeyRule::UnsignedReal, Holds(&P::CrankGear))};
  Field Text11{Frame3, "Text11", "Blower Gear", "40",
               Entry(KeyRule::UnsignedReal, Holds(&P::BlowerGear))};
  Field Text12{Frame3, "Text12", "Blower Ratio", "1.5",
               Entry(KeyRule::OutputOnly, Holds(&P::BlowerRatio))};
  Field Text13{Frame3, "Text13", "Blower RPM", "9750",
               Entry(KeyRule::UnsignedReal, Unit::RevolutionsPerMinute,
                     Holds(&P::BlowerRPM).Pattern<"0">())};
  Command Command10{Frame3, "Command10", "Blo&wer Ratio",
                    "Calculate Blower Drive Ratio and Blower RPM from RPM, Blower Gear and Crank "
                    "Gear Tooth count",
                    &Form14::SolveDrive};
  Command Command11{Frame3, "Command11", "&Crank Gear",
                    "Calculate Crank Gear from RPM, Blower Gear and Blower RPM",
                    &Form14::SolveCrankGear};
  Command Command12{Frame3, "Command12", "Blower &Gear",
                    "Calculate Blower Gear from RPM, Crank Gear and Blower RPM",
                    &Form14::SolveBlowerGear};

  Frame Frame4{*this, "Frame4", "Compressed Air", 1};
  Field Text14{Frame4, "Text14", "Temperature", "59.0",
               Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::Temperature))};
  Field Text15{Frame4, "Text15", "Barometric Pressure", "29.92",
               Entry(KeyRule::UnsignedReal, Unit::Barometer, Holds(&P::BarometricPressure))};
  Field Text16{Frame4,
               "Text16",
               "Blower Efficiency",
               "0.7",
               Entry(KeyRule::UnsignedReal, Holds(&P::BlowerEfficiency)),
               "As a fraction: 0.7 is 70 percent."};
  Field Text17{Frame4, "Text17", "Pressure Ratio", "1.510366",
               Entry(KeyRule::UnsignedReal, Holds(&P::PressureRatio))};
  Field Text18{Frame4, "Text18", "Blower Outlet / Intercooler Inlet Temperature", "150.7719",
               Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::ICInTemp))};
  Field Text23{Frame4, "Text23", "Blower Density Ratio", "1.283425",
               Entry(KeyRule::UnsignedReal, Holds(&P::BlowerDensityRatio))};
  Command Command13{Frame4, "Command13", "Press&ure Ratio",
                    "Calculate Pressure Ratio from Blower Pressure and Barometric Pressure",
                    &Form14::SolvePressureRatio};
  Command Command16{Frame4, "Command16", "&Air Temperature",
                    "Estimate Compressed Air Temperature from Pressure Ratio, Temperature, and "
                    "Blower Efficiency",
                    &Form14::SolveOutletTemperature};
  Command Command17{Frame4, "Command17", "Blower &Density",
                    "Calculate Blower Density Ratio from Blower Pressure, Barometric Pressure, "
                    "Blower Inlet Temperature, and Blower Outlet Temperature.",
                    &Form14::SolveBlowerDensityRatio};

  Frame Frame5{*this, "Frame5", "Intercooler", 1};
  Field Text19{Frame5, "Text19", "Intercooler Outlet Temperature", "95",
               Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::ICOutTemp))};
  Field Text20{Frame5, "Text20", "Intercooler Pressure Loss", "1.0",
               Entry(KeyRule::UnsignedReal, Unit::BoostPressure, Holds(&P::ICPressureLoss))};
  Field Text21{Frame5,
               "Text21",
               "Intercooler Efficiency",
               "0.607723",
               KeyRule::UnsignedReal,
               "As a fraction: 0.6 is 60 percent."};
  Field Text22{Frame5, "Text22", "Intercooler Density Ratio", "1.050908", KeyRule::UnsignedReal};
  Field Text24{Frame5, "Text24", "System Density Ratio", "1.348762", KeyRule::OutputOnly};
  Command Command14{Frame5, "Command14", "IC Efficienc&y",
                    "Calculate Intercooler Efficiency from Blower Outlet / Intercooler Inlet "
                    "Temperature, Intercooler Outlet Temperature and Air Temperature",
                    &Form14::SolveIntercoolerEfficiency};
  Command Command19{Frame5, "Command19", "IC &Outlet Temp",
                    "Calculate Intercooler Outlet Temperature from Intercooler Efficiency, Blower "
                    "Outlet / Intercooler Inlet Temperature, and Air Temperature",
                    &Form14::SolveIntercoolerOutlet};
  Command Command15{Frame5, "Command15", "&IC Density",
                    "Calculate Intercooler Density Ratio from Blower Pressure, Barometric "
                    "Pressure, Intercooler Inlet Temperature, Intercooler Outlet Temperature, and "
                    "Intercooler Pressure Loss",
                    &Form14::SolveIntercoolerDensityRatio};
  Command Command21{
      Frame5, "Command21", "&System Density",
      "Calculate System Density Ratio from Intercooler Density Ratio and Blower Density Ratio",
      &Form14::SolveSystemDensityRatio};

  Frame Frame6{*this, "Frame6", "Compressor Flow", 2};
  Field Text25{Frame6, "Text25", "Number of Turbos", "1",
               Entry(KeyRule::Digits, Holds(&P::NumberofTurbos))};
  Field Text26{Frame6, "Text26", "Compressor Inlet Flow - CFM", "670.3664", KeyRule::OutputOnly};
  Command Command18{Frame6, "Command18", "Compressor &Flow",
                    "Calculate Compressor Inlet Flow in CFM per Turbo. Using Engine Size, Rpm, "
                    "Volumetric Efficiency, Blower Density Ratio, and Number of Turbos.",
                    &Form14::SolveFlow};

  Frame Frame7{*this, "Frame7", "Flow Maps", 2};
  OptionGroup Option1{
      Frame7,
      "Option1",
      "Flow in",
      {{0, "CFM", "The flow maps tell cubic feet a minute."},
       {1, "Lbs / Min",
        "The flow maps tell pounds a minute, of air at Temperature and Barometric Pressure."}},
      0,
      2};
  CheckBox Check3{Frame7, "Check3", "Graph",
                  "A flow map is drawn as a graph; otherwise it is a report."};
  Field Text30{Frame7,
               "Text30",
               "BSAC",
               "6.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::BSAC)),
               "Pounds of air an hour and horsepower."};
  Field Text33{
      Frame7,
      "Text33",
      "Max RPM",
      "8000",
      Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::MaxRPM).ZeroKeepsText()),
      "The flow maps go from 1000 RPM to here."};
  Field Text31{Frame7,
               "Text31",
               "Graph X Max",
               "0.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::GraphXMax)),
               "The highest flow of the graph; 0 fits the curves."};
  Field Text32{Frame7,
               "Text32",
               "Graph Y Max",
               "0.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::GraphYMax)),
               "The highest pressure ratio of the graph; 0 fits the curves."};
  CheckBox Check4{Frame7, "Check4", "Use VE Table",
                  "The flow maps take the volumetric efficiency of each RPM from its table."};
  CheckBox Check5{Frame7, "Check5", "Use BSAC Table",
                  "The flow maps take the BSAC of each RPM from its table."};
  Command Command22{Frame7, "Command22", "Volumetric Eff. Table",
                    "Show the table of Volumetric Efficiency by RPM.", Opens(&Form14::Frame9)};
  Command Command25{Frame7, "Command25", "B S A C Table", "Show the table of BSAC by RPM.",
                    Opens(&Form14::Frame10)};
  Command Command2{Frame7, "Command2", "Flow &Map PR",
                   "Generate Blower / Turbo Flow Map Driven by Pressure Ratio using Engine Size "
                   "and Volumetric Efficiency.",
                   &Form14::MapByPressureRatio};
  Command Command3{Frame7, "Command3", "Flow Map Boos&t",
                   "Generate Blower / Turbo Flow Map Driven by Boost Pressure and Density Ratio "
                   "using Engine Size, Volumetric Efficiency, Temperature, Blower Efficiency and "
                   "Barometric Pressure.",
                   &Form14::MapByBoost};
  Command Command20{Frame7, "Command20", "F&low Map IC",
                    "Generate Blower / Turbo Flow Map Driven by Boost Pressure and Density Ratio "
                    "using Engine Size, Volumetric Efficiency, Temperature, Blower Efficiency, "
                    "Barometric Pressure and Intercooler Outlet Temperature.",
                    &Form14::MapWithIntercooler};

  Frame Frame8{*this, "Frame8", "Old and New Density Ratio", 2};
  Field Text27{Frame8, "Text27", "Old Density Ratio", "1.0", KeyRule::UnsignedReal};
  Field Text28{Frame8, "Text28", "New Density Ratio", "1.348762", KeyRule::UnsignedReal};
  Command Command1{Frame8, "Command1", "Graph HP / Torqu&e",
                   "Graph HP and Torque also New HP and Torque. Using Old and New Density Ratio's. "
                   "Note when adding a Blower to Naturally Aspirated engine use an Old Density "
                   "Ratio of 1.",
                   &Form14::GraphDensityGain};

  Panel Frame9{*this, "Frame9", "Volumetric Efficiency - RPMs Table"};
  Frame EfficiencyFrame{Frame9, "EfficiencyFrame", "Value for each RPM"};
  FieldArray Text29{EfficiencyFrame, "Text29",
                    kRpmTableRows,   "Volumetric Efficiency",
                    "0.75",          Entry(KeyRule::UnsignedReal, HoldsColumn<&P::VERPM>())};
  Table Efficiencies{EfficiencyFrame, "Efficiencies", "Volumetric Efficiency", {Text29}, RpmRows()};
  Command Command24{EfficiencyFrame, "Command24", "Reset",
                    "Reset ALL Volumetric Efficiency values to Value of Volumetric Efficiency on "
                    "the Main screen.",
                    CommandWork(&Form14::ResetEfficiencies, CommandRole::Serves)};
  Command Command23{Frame9, "Command23", "Done", "Back to the blower.", PutsAway()};

  Panel Frame10{*this, "Frame10", "B S A C - RPMs Table"};
  Frame BsacFrame{Frame10, "BsacFrame", "Value for each RPM"};
  FieldArray Text34{BsacFrame, "Text34", kRpmTableRows,
                    "BSAC",    "6.0",    Entry(KeyRule::UnsignedReal, HoldsColumn<&P::BSACRPM>())};
  Table Bsacs{BsacFrame, "Bsacs", "BSAC", {Text34}, RpmRows()};
  Command Command27{BsacFrame, "Command27", "Reset",
                    "Reset ALL BSAC values to Value of BSAC on the Main screen.",
                    CommandWork(&Form14::ResetBsacs, CommandRole::Serves)};
  Command Command26{Frame10, "Command26", "Done", "Back to the blower.", PutsAway()};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};

 private:
  /// The rows of both tables: an RPM each.
  static TableRows RpmRows();
};

}  // namespace veldox
