#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/screen.h"
#include "engine/displacement.h"
#include "engine/piston_graphs.h"
#include "engine/piston_reports.h"

namespace veldox {

/// The engine displacement calculator: states the engine, solves bore, stroke, rod and
/// deck stack for each other and derives the ratios.
class Form1 : public Screen {
 public:
  /// @param grapher  where the graphs appear
  Form1(ProgramContext& context, Grapher& grapher);

  /// What opens the engine finder.
  void SetEngineFinder(std::function<void()> open) { openEngineFinder_ = std::move(open); }

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Label7; }
  ReportBox* ReportPane() override { return &Text38; }

 private:
  void SolveEngineSize();
  void SolveBore();
  void SolveStroke();
  void SolveSizeForBoreStrokeRatio();
  void SolveSizeForStrokeBoreRatio();
  void SolveRodLength();
  void SolveMaxRpm();
  void SolveStrokeForPistonSpeed();
  void SolveDeckHeight();
  void SolvePistonHeight();
  void SolveDeckClearance();
  void EstimateHorsepowerGain();
  void SolveBoreStrokeRatios();
  void SolveRodStrokeRatio();
  void SolveBearingSpeed();
  void SolveEqualSpeedAngle();
  void TabulateCrankpinForce();
  void TabulateCrankpinLoad();
  void TabulateDegreeWheel();
  void TabulateVelocity();
  void TabulateTravel();
  void SolvePistonTravel();
  void SolveCrankDegrees();
  void GraphFirst();
  void GraphFurther();
  void OpenEngineFinder() {
    if (openEngineFinder_) openEngineFinder_();
  }

  void ReadEngineFields();
  void ConvertEngineUnits();
  void DeriveEngineFields();
  void StoreMeanPistonSpeed();
  void StoreBoreAndStroke(const BoreAndStroke& size);
  /// The mean piston speed in feet a minute when the stroke is in inches; in Metric in the
  /// unit that makes the same formulas fit millimetres.
  double PistonSpeedInFormulaUnits() const;
  double EngineSizeInFieldUnits() const;
  double CylinderVolume();

  /// Parses the degree range. False when it cannot make a table: the report box then tells why.
  bool CheckDegreeRange();
  void ReadWeights();
  /// The engine and the degree range as the last commands have read them.
  PistonTable Table() const;
  /// Builds a table of the engine and shows it.
  void ShowTable(const std::function<std::string(const PistonTable&)>& build);
  void ShowVelocityTable(AngleOrigin origin);
  /// Parses what the chosen graph is made of.
  PistonGraphInput ReadGraphInput();
  void GraphPiston(bool first);
  /// Ends a command that no engine of these sizes can do. @throws CommandError
  [[noreturn]] void FailForGeometry(const CommandError& error);

  Grapher& grapher_;
  std::function<void()> openEngineFinder_;

 public:
  Frame Frame1{*this, "Frame1", "Engine", 0};
  Field Text1{Frame1, "Text1", "Bore", "4.000",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
  Field Text3{Frame1, "Text3", "Stroke", "3.25",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Stroke))};
  Field Text2{Frame1, "Text2", "Number Of Cylinders", "8",
              Entry(KeyRule::Digits, Holds(&P::NumberofCylinders))};
  Field Text4{Frame1, "Text4", "Rod Length", "5.7",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::RodLength))};
  Field Text5{Frame1, "Text5", "Engine RPM", "6500",
              Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM).Pattern<"0">())};
  Field Text6{Frame1, "Text6", "Engine Size", "0.0",
              Entry(KeyRule::UnsignedReal, Unit::Volume, Holds(&P::CubicInches).DerivedAnew())};
  CheckBox Check1{
      Frame1, "Check1", "Metric",
      "Show and enter lengths in millimetres, the engine size in cc and power in kilowatts.",
      &Form1::ConvertEngineUnits};
  Command Command1{
      Frame1, "Command1", "&Engine Size",
      "Calculate Engine Size in Cubic Inches from Bore, Stroke and number of cylinders",
      &Form1::SolveEngineSize};
  Command Command2{Frame1, "Command2", "&Bore",
                   "Calculate Bore needed from Cubic Inches, Stroke and number of cylinders",
                   &Form1::SolveBore};
  Command Command3{Frame1, "Command3", "&Stroke",
                   "Calculate Stroke needed from Cubic Inches, Bore and number of cylinders",
                   &Form1::SolveStroke};
  Command Command4{Frame1, "Command4", "&C Bore Stroke",
                   "Calculate Bore and Stroke needed from Cubic Inches, Bore Stroke Ratio, and "
                   "Number of Cylinders",
                   &Form1::SolveSizeForBoreStrokeRatio};
  Command Command11{Frame1, "Command11", "Bore Stroke",
                    "Calculate Bore and Stroke needed from Cubic Inches, Stroke Bore Ratio, and "
                    "Number of Cylinders",
                    &Form1::SolveSizeForStrokeBoreRatio};
  Command EngineFinder{Frame1, "EngineFinder", "Engine &Finder",
                       "Pick a production engine from a list; its Bore, Stroke, Rod Length and "
                       "Number of Cylinders go into this screen.",
                       Serves(&Form1::OpenEngineFinder)};

  Frame Frame2{*this, "Frame2", "Deck Stack", 0};
  Field Text8{Frame2, "Text8", "Block Deck Height", "9.245",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::BlockDeckHeight))};
  Field Text9{Frame2, "Text9", "Piston Comp Height", "1.904",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::PistonCompressionHeight))};
  Field Text10{Frame2, "Text10", "Piston to Deck Clearance", ".016",
               Entry(KeyRule::SignedReal, Unit::Length, Holds(&P::DeckClearance).ShownAtOpening())};
  Command Command7{Frame2, "Command7", "&Deck Height",
                   "Calculate Block Deck Height from Stroke, Rod Length, Piston Comp Height, and "
                   "Piston to Deck Clearance",
                   &Form1::SolveDeckHeight};
  Command Command8{Frame2, "Command8", "&Piston Comp",
                   "Calculate Piston Comp Height from Stroke, Rod Length, Block Deck Height, and "
                   "Piston to Deck Clearance",
                   &Form1::SolvePistonHeight};
  Command Command9{Frame2, "Command9", "Piston &Deck",
                   "Calculate Piston to Deck Clearance from Stroke, Rod Length, Block Deck Height, "
                   "and Piston Comp Height",
                   &Form1::SolveDeckClearance};

  Frame Frame3{*this, "Frame3", "Ratios", 1};
  Field Text11{Frame3, "Text11", "Bore Stroke Ratio", "1.23077",
               Entry(KeyRule::UnsignedReal, Holds(&P::BoreStrokeRatio))};
  Field Text16{Frame3, "Text16", "Stroke Bore Ratio", "0.8125",
               Entry(KeyRule::UnsignedReal, Holds(&P::StrokeBoreRatio))};
  Field Text12{Frame3, "Text12", "Rod Stroke Ratio", "1.75385",
               Entry(KeyRule::UnsignedReal, Holds(&P::RodStrokeRatio))};
  Field Text7{Frame3, "Text7", "L/r Ratio", "3.5077", KeyRule::OutputOnly};
  Command Command22{Frame3, "Command22", "B&ore Stroke Ratio",
                    "Calculate Bore Stroke Ratio and Stroke Bore Ratio.",
                    &Form1::SolveBoreStrokeRatios};
  Command Command23{Frame3, "Command23", "Ro&d Stroke Ratio", "Calculate Rod Stroke Ratio.",
                    &Form1::SolveRodStrokeRatio};
  Command Command5{Frame3, "Command5", "Rod &Length",
                   "Calculate Rod Length needed from Stroke, and Rod Stroke ratio",
                   &Form1::SolveRodLength};

  Frame Frame4{*this, "Frame4", "Piston Speed and Area", 1};
  Field Text13{
      Frame4, "Text13", "Average Piston Speed", "3520.833",
      Entry(KeyRule::UnsignedReal, Unit::PistonSpeed, Holds(&P::AveragePistonSpeed).DerivedAnew())};
  Field Text24{Frame4, "Text24", "Piston Area", "12.56637",
               Entry(KeyRule::OutputOnly, Unit::Area, Holds(&P::PistonArea).DerivedAnew())};
  Command Command6{Frame4, "Command6", "Max RP&M",
                   "Calculate Max RPM from Stroke, and Mean / Average Piston Speed",
                   &Form1::SolveMaxRpm};
  Command Command14{Frame4, "Command14", "MPS - Stroke",
                    "Calculate Stroke Needed from RPM, and Mean / Average Piston Speed",
                    &Form1::SolveStrokeForPistonSpeed};

  Frame Frame5{*this, "Frame5", "Crank Angle", 1};
  Field Text25{Frame5, "Text25", "Crank Rod 90 Degree", "74.0878",
               Entry(KeyRule::OutputOnly, Unit::Degrees)};
  Field Text15{Frame5, "Text15", "Crank Angle", "0.0", Entry(KeyRule::OutputOnly, Unit::Degrees)};
  Command Command10{Frame5, "Command10", "Crank Angle",
                    "Calculate Crank Angle at which Piston and Crank Speed are the same using Rod "
                    "Length and Stroke",
                    &Form1::SolveEqualSpeedAngle};

  Frame Frame6{*this, "Frame6", "Horsepower from a Larger Bore", 1};
  Field Text26{Frame6, "Text26", "Bore Increase", "0.060",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::BoreIncrease))};
  Field Text27{Frame6, "Text27", "HorsePower", "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower))};
  Field Text28{
      Frame6, "Text28", "HP Increase", "0.0",
      Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePowerIncrease).NotShownAtOpening())};
  Command Command16{Frame6, "Command16", "HP &Increase",
                    "Estimate the Horsepower gain from increasing the Bore and keeping the Cubic "
                    "Inches and Rod stroke Ratio the same.",
                    &Form1::EstimateHorsepowerGain};

  Frame Frame7{*this, "Frame7", "Piston Travel", 2};
  Field Text47{Frame7, "Text47", "Crank Degrees ATDC", "74.123",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::CrankDegrees))};
  Field Text48{
      Frame7, "Text48", "Piston Travel", "1.399",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::PistonTravel).ConvertedAsShown())};
  Field Text32{
      Frame7, "Text32", "Wrist Pin Offset", "0.0",
      Entry(KeyRule::SignedReal, Unit::Length, Holds(&P::WristPinOffset).ShownAtOpening())};
  Field Text17{Frame7, "Text17", "Rod Length 2", "6.2",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::RodLength2))};
  Field Text18{Frame7, "Text18", "Piston Travel 2", "1.381",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text19{Frame7, "Text19", "Pist T - Pist T2", "0.018",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Command Command24{Frame7, "Command24", "Piston Tra&vel",
                    "Calculate Piston Travel [ Piston Travel 2 and Difference ], using Stroke, Rod "
                    "Length [ Rod Length 2 ], Wrist Pin Offset and Crank Degrees Rotation.",
                    &Form1::SolvePistonTravel};
  Command Command25{Frame7, "Command25", "Crank De&grees",
                    "Calculate Crank Degrees Rotation, using Stroke, Rod Length, Wrist Pin Offset "
                    "and Piston Travel.",
                    &Form1::SolveCrankDegrees};

  Frame Frame8{*this, "Frame8", "Bearing Speed", 2};
  Field Text33{
      Frame8, "Text33", "Journal Diameter", "2.5",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::JournalDiameter).ConvertedAsShown())};
  Field Text34{Frame8, "Text34", "Bearing Speed", "0.0",
               Entry(KeyRule::OutputOnly, Unit::SurfaceSpeed)};
  Command Command26{Frame8, "Command26", "B&earing Speed",
                    "Calculate Bearing Speed from Journal Diameter and RPM.",
                    &Form1::SolveBearingSpeed};

  Frame Frame9{*this, "Frame9", "Weights", 2};
  Field Text30{Frame9, "Text30", "Piston Weight", "600.25",
               Entry(KeyRule::UnsignedReal, Unit::Grams, Holds(&P::PistonWeight))};
  Field Text31{Frame9, "Text31", "Rod Weight", "700.5",
               Entry(KeyRule::UnsignedReal, Unit::Grams, Holds(&P::RodWeight))};
  Field Text14{Frame9, "Text14", "Rod Small End Weight", "233.5",
               Entry(KeyRule::UnsignedReal, Unit::Grams, Holds(&P::SmallEndRodWeight))};
  CheckBox Check2{Frame9, "Check2", "Use Rod Small End Weight"};

  Frame Frame10{*this, "Frame10", "Intake and Compression", 2};
  Field Text20{
      Frame10, "Text20", "Port Diameter", "2.25",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::PortDiameter).ShownAtOpening())};
  Field Text21{Frame10, "Text21", "Volumetric Efficiency", "0.85",
               Entry(KeyRule::UnsignedReal, Holds(&P::VolumetricEfficiency))};
  Field Text22{Frame10, "Text22", "Compress Ratio", "13.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio))};

  Frame Frame11{*this, "Frame11", "Tables", 3};
  Field Text39{Frame11, "Text39", "X Degrees", "5.0",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::EveryXDegrees))};
  Field Text40{Frame11, "Text40", "Start Degrees", "0",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::StartDegrees))};
  Field Text41{Frame11, "Text41", "End Degrees", "360.0",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::EndDegrees))};
  CheckBox Check3{Frame11, "Check3", "Show 3 Decimals"};
  Command Command20{Frame11, "Command20", "Piston &Vel",
                    "Calculate Piston Speed, Piston Acceleration and Velocity also Piston Flow @ "
                    "28\", showing result ever X Crankshaft Degrees. Using Bore, Stroke, Wrist Pin "
                    "Offset, RPM, and Rod Length.",
                    &Form1::TabulateVelocity};
  Command Command19{
      Frame11, "Command19", "&Piston Vel/Trv",
      "Calculate Piston Travel, Piston Acceleration and Velocity, (Degree Wheel) showing result "
      "ever X Degrees. Using Bore, Stroke, Wrist Pin Offset, RPM, and Rod Length.",
      &Form1::TabulateDegreeWheel};
  Command Command21{Frame11, "Command21", "Piston T&rv",
                    "Calculate Piston Travel, Crank Rod Angle, Rod Bore Angle, and Cylinder "
                    "Volume, showing results every X Crankshaft Degrees. Using Bore, Stroke, Wrist "
                    "Pin Offset, RPM, and Rod Length.",
                    &Form1::TabulateTravel};
  Command Command17{
      Frame11, "Command17", "Crankpin Force",
      "Calculate Crankpin Force, showing result ever X Crankshaft Degrees. Using Bore, Stroke, "
      "RPM, Rod Length, Piston Weight (this includes the weight of the rings, wrist pin, and any "
      "locks or buttons), Wrist Pin Offset, and Rod Weight.",
      &Form1::TabulateCrankpinForce};
  Command Command18{
      Frame11, "Command18", "Crankpin Load",
      "Calculate Crankpin Load, showing result ever X Crankshaft Degrees. Using Bore, Stroke, RPM, "
      "Rod Length, Piston Weight (this includes the weight of the rings, wrist pin, and any locks "
      "or buttons), Wrist Pin Offset, and Rod Weight.",
      &Form1::TabulateCrankpinLoad};

  Frame Frame12{*this, "Frame12", "Graphs", 3};
  OptionGroup Option1{
      Frame12,
      "Option1",
      "Graph",
      {{0, "Vel", "Graph Piston Velocity on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {1, "Acc", "Graph Piston Acceleration on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {2, "CFM",
        "Graph Piston Flow CFM @ 28 Inches of Water on Y-Axis, 0 to 180 Degrees on X-Axis."},
       {3, "PT", "Graph Piston Travel on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {4, "RA", "Graph Rod Angle On Y-Axis, 0 to 180 Degrees on X-Axis."},
       {5, "CV", "Graph Cylinder Volume on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {6, "DW- PT",
        "Using Piston TDC / DW Graph Piston Travel on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {7, "DW- Vel",
        "Using Piston TDC / DW Graph Piston Velocity on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {8, "DW- Acc",
        "Using Piston TDC / DW Graph Piston Acceleration on Y-Axis, 0 to 360 Degrees on X-Axis."},
       {9, "DW- CFM",
        "Using Piston TDC / DW Graph Piston Flow CFM @ 28 Inches of Water on Y-Axis, 0 to 180 "
        "Degrees on X-Axis."},
       {10, "SF",
        "Side Force, Bore, Stroke, RPM, Rod Length, Piston Weight (this includes the weight of the "
        "rings, wrist pin, and any locks or buttons), Wrist Pin Offset, and Rod Weight."},
       {11, "RF",
        "Reciprocating Force, Bore, Stroke, RPM, Rod Length, Piston Weight (this includes the "
        "weight of the rings, wrist pin, and any locks or buttons), Wrist Pin Offset, and Rod "
        "Weight."},
       {12, "MPS", "Mean Piston Speed, Stroke, RPM."},
       {13, "MPV-RPM", "Max Piston Speed, Stroke, RPM, Rod Lenght, Wrist Pin Offset."},
       {14, "JBS", "Bearing Speed, Journal Diameter, RPM."},
       {15, "PIF",
        "Piston Inertia Force, Bore, Stroke, RPM, Rod Length, Piston Weight (this includes the "
        "weight of the rings, wrist pin, and any locks or buttons), Wrist Pin Offset."},
       {16, "CPTF",
        "Crank Pin Tangent Force, Bore, Stroke, RPM, Rod Length, Piston Weight (this includes the "
        "weight of the rings, wrist pin, and any locks or buttons), Wrist Pin Offset."},
       {17, "IT",
        "Instantaneous Torque, Bore, Stroke, RPM, Rod Length, Piston Weight (this includes the "
        "weight of the rings, wrist pin, and any locks or buttons), Wrist Pin Offset."},
       {18, "CRA", "Graph Crank Rod Angle On Y-Axis, 0 to 180 Degrees on X-Axis."},
       {19, "PV",
        "Graph Piston Demand - Port Velocity on Y-Axis, 0 to 180 Degrees on X-Axis. Using Bore, "
        "Stroke, Wrist Pin Offset, Rod Length, RPM, Port Diameter and Volumetric Efficiency."},
       {20, "CVC", "Graph Cylinder Volume Change cc's on Y-Axis, 0 to 180 Degrees on X-Axis."},
       {21, "PD",
        "Graph Piston Demand - Port Depression on Y-Axis, 0 to 180 Degrees on X-Axis. Using Bore, "
        "Stroke, Wrist Pin Offset, Rod Length, RPM, Port Diameter and Volumetric Efficiency."},
       {22, "CVC-TV",
        "Graph % Total Volume Change on Y-Axis, 0 to 180 Degrees on X-Axis Using Bore, Stroke, Rod "
        "Length and Compression Ratio."},
       {23, "CVC-PD",
        "Graph Pressure Differential from Total Volume Change on Y-Axis, 0 to 180 Degrees on "
        "X-Axis Using Bore, Stroke, Rod Length and Compression Ratio."},
       // Shown by the port time area panel only.
       {100, "Acceleration", "", false},
       {101, "Velocity", "", false}},
      0,
      4};
  OptionGroup Option2{Frame12,
                      "Option2",
                      "Crank Axis",
                      {{0, "0 To 360", "Default show 0 to 360 Graphs from 0 to 360 on the x-axis."},
                       {1, "0 To 180",
                        "This will cause Graphs that show from 0 to 360 on the x-axis to show from "
                        "0 to 180 on the x-axis."},
                       {2, "-180 To 180",
                        "This will cause Graphs that show from 0 to 360 on the x-axis to show from "
                        "-180 to 180 on the x-axis."}},
                      0,
                      3};
  CheckBox Check4{
      Frame12, "Check4", "Graph Absolute Value",
      "When Checked and Graphing Piston Acceleration the low y-axis will be set to zero."};
  Command Command12{Frame12, "Command12", "Graph First",
                    "Graph First based on selected option, this clears and starts a new Graph.",
                    &Form1::GraphFirst};
  Command Command13{
      Frame12, "Command13", "Graph +1",
      "Graph Second or more based on selected option, this adds to an existing Graph.",
      &Form1::GraphFurther};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label7{HelpFrame, "Label7", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
