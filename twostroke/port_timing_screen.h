#pragma once

#include <string>
#include <vector>

#include "core/frame_row.h"
#include "core/screen.h"
#include "core/table.h"
#include "graph/grapher.h"
#include "twostroke/port_timing.h"
#include "twostroke/squish.h"

namespace veldox {

/// Two-stroke port timing: heights, angles and open times of the ports, what they leave of the
/// compression ratio, their time areas, and the squish band.
class Form18 : public Screen {
 public:
  /// @param grapher  where the squish velocities appear
  Form18(ProgramContext& context, Grapher& grapher);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Label7; }

 private:
  /// The fields of one port.
  struct PortRow {
    Field& distance;
    Field& degrees;
    Field& duration;
    Field& time;
    Field& area;
    Field& timeArea;
    Field& angleArea;
  };

  void SolveExhaustDistance() { SolvePortDistance(Exhaust()); }
  void SolveBoostDistance() { SolvePortDistance(Boost()); }
  void SolveTransferDistance() { SolvePortDistance(Transfer()); }
  void SolveExhaustDuration() { SolvePortDuration(Exhaust()); }
  void SolveBoostDuration() { SolvePortDuration(Boost()); }
  void SolveTransferDuration() { SolvePortDuration(Transfer()); }
  void SolveExhaustTimeArea() { SolvePortTimeArea(Exhaust()); }
  void SolveBoostTimeArea() { SolvePortTimeArea(Boost()); }
  void SolveTransferTimeArea() { SolvePortTimeArea(Transfer()); }
  void SolveBlowdown();
  void SolveDynamicRatio();
  void SolveCompressionRatio();
  void SolveExhaustDistanceForRatio();
  void SolveMeanPressure();
  void SolveSquishArea();
  void SolveSquishVolume();
  void SolveSquishVelocityFine();
  void SolveSquishVelocityByDegree();
  void GraphSquishFirst() { GraphSquish(true); }
  void GraphSquishFurther() { GraphSquish(false); }
  void EstimateTimeAreasOfPressure();
  void EstimateTimeAreasOfPower();
  void ConvertFields();

  PortRow Exhaust() { return {Text48, Text47, Text2, Text6, Text23, Text26, Text51}; }
  PortRow Boost() { return {Text8, Text9, Text11, Text12, Text24, Text27, Text52}; }
  PortRow Transfer() { return {Text13, Text14, Text15, Text16, Text25, Text28, Text53}; }
  void SolvePortDistance(const PortRow& port);
  void SolvePortDuration(const PortRow& port);
  void SolvePortTimeArea(const PortRow& port);

  void ReadBaseFields();
  TrappedCylinder Trapped() const;
  /// @throws CommandError that names the ratio where it is 1
  void RequireRatio();
  /// @throws CommandError that names the port's distance where it is the deck clearance
  void RequireStrokeAbovePort();
  /// The swept volume of a cylinder in the cube of the screen's length.
  double SweptVolume() const;
  /// Shows it. @return in cc
  double ShowSweptVolume();
  /// A volume in the cube of the screen's length, in its unit of volumes.
  double InShownVolume(double volume) const;
  /// Shows the time of a revolution.
  void TimeOneRev();
  void StoreMeanPressure();
  void ShowPistonSpeed();
  void ShowTargetTimeAreas();
  bool isMetric() const { return block().MetricSwitch == 1; }
  /// Parses what the squish velocity is made of. @throws CommandError that names what is wrong
  std::vector<SquishFlow> ReadSquishFlows(double stepDegrees);
  void SolveSquishVelocity(double stepDegrees);
  /// The engine of a squish graph in one line.
  std::string SquishCaption() const;
  void GraphSquish(bool first);

  Grapher& grapher_;

 public:
  Frame Frame1{*this, "Frame1", "Engine", 0};
  Field Text1{Frame1, "Text1", "Bore", "4.000",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
  Field Text3{Frame1, "Text3", "Stroke", "3.25",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Stroke))};
  Field Text4{Frame1, "Text4", "Rod Length", "5.7",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::RodLength))};
  Field Text50{Frame1, "Text50", "Number of Cylinders", "1",
               Entry(KeyRule::Digits, Holds(&P::NumberofCylinders))};
  Field Text5{Frame1, "Text5", "Engine RPM", "6500",
              Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM).Pattern<"0">())};
  Field Text22{Frame1, "Text22", "Time 1 Rev in Milli Seconds", "9.2308", KeyRule::OutputOnly};
  Field Text10{Frame1, "Text10", "Piston to Deck Clearance", ".016",
               Entry(KeyRule::SignedReal, Unit::Length, Holds(&P::DeckClearance).ShownAtOpening())};
  Field Text20{Frame1, "Text20", "Compression Ratio", "10.1",
               Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio))};
  Field Text21{Frame1, "Text21", "Dynamic Comp Ratio", "4.917",
               Entry(KeyRule::UnsignedReal, Holds(&P::DynamicCompressionRatio))};
  Field Text29{Frame1, "Text29", "Swept/Cylinder Volume", "40.84",
               Entry(KeyRule::OutputOnly, Unit::Volume, Holds().By(kEngineSizeRule))};
  Field Text30{Frame1,
               "Text30",
               "Effective Cylinder Volume",
               "17.58",
               Entry(KeyRule::OutputOnly, Unit::Volume, Holds().By(kEngineSizeRule)),
               "The cylinder above the exhaust port."};
  Field Text31{Frame1,
               "Text31",
               "Trapped Volume",
               "53.14",
               Entry(KeyRule::OutputOnly, Unit::Cc, Holds(&P::TotalVol)),
               "What is left of the cylinder with the piston at the top, in cc."};
  CheckBox Check1{Frame1, "Check1", "Metric",
                  "Show and enter lengths in millimetres, areas in square centimetres, volumes in "
                  "cc, power in kilowatts and BMEP in bar.",
                  &Form18::ConvertFields};
  Command Command8{Frame1, "Command8", "&Dynamic CR",
                   "Calculate Dynamic Compression Ratio and Trapped Volume from Compression Ratio, "
                   "Bore, Stroke, Distance to Exhaust Port from top of Cylinder, and Piston to "
                   "Deck Clearance.",
                   &Form18::SolveDynamicRatio};
  Command Command9{Frame1, "Command9", "&Comp Ratio",
                   "Calculate Compression Ratio from Dynamic Compression Ratio, Stroke, Distance "
                   "to Exhaust Port from top of Cylinder, and Piston to Deck Clearance.",
                   &Form18::SolveCompressionRatio};
  Command Command10{Frame1, "Command10", "Ex&haust Port D2",
                    "Calculate Distance to Exhaust Port from top of Cylinder from Compression "
                    "Ratio from Dynamic Compression Ratio, Stroke, and Piston to Deck Clearance.",
                    &Form18::SolveExhaustDistanceForRatio};

  Frame Frame4{*this, "Frame4", "Power", 0};
  Field Text32{Frame4, "Text32", "Horse Power", "55.5",
               Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower).ConvertedAsShown())};
  Field Text33{
      Frame4, "Text33", "BMEP", "82.79",
      Entry(KeyRule::UnsignedReal, Unit::MeanPressure, Holds(&P::BMEP).ConvertedAsShown())};
  Field Text34{Frame4, "Text34", "Average Piston Speed", "3520.83",
               Entry(KeyRule::OutputOnly, Unit::PistonSpeed, Holds().DerivedAnew())};
  Command Command14{Frame4, "Command14", "B&MEP",
                    "Calculate Average Piston Speed, and BMEP from Horsepower, number of "
                    "cylinders, Bore, Stroke and RPM.",
                    &Form18::SolveMeanPressure};

  Frame Frame2{*this, "Frame2", "Ports", 1};
  Field Text48{Frame2, "Text48", "Exhaust Distance", "1.399",
               Entry(KeyRule::UnsignedReal, Unit::Length,
                     Holds(&P::TwoSExhaustDistance).ConvertedAsShown())};
  Field Text47{Frame2, "Text47", "Exhaust Degrees", "74.125",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::TwoSExhaustDegrees))};
  Field Text2{Frame2, "Text2", "Exhaust Duration", "211.749",
              Entry(KeyRule::UnsignedReal, Unit::Degrees)};
  Field Text6{Frame2, "Text6", "Exhaust Time", "5.4295", KeyRule::UnsignedReal};
  Field Text23{Frame2, "Text23", "Exhaust Port Area", "4.309",
               Entry(KeyRule::UnsignedReal, Unit::PortArea,
                     Holds(&P::TwoSExhaustPortArea).ConvertedAsShown())};
  Field Text26{Frame2, "Text26", "Exhaust Time Area", "0.2255", KeyRule::OutputOnly};
  Field Text51{Frame2, "Text51", "Exhaust Angle Area", "8.7957", KeyRule::OutputOnly};
  Field Text8{
      Frame2, "Text8", "Boost Distance", "1.499",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TwoSBoostDistance).ConvertedAsShown())};
  Field Text9{Frame2, "Text9", "Boost Degrees", "77.516",
              Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::TwoSBoostDegrees))};
  Field Text11{Frame2, "Text11", "Boost Duration", "204.967",
               Entry(KeyRule::UnsignedReal, Unit::Degrees)};
  Field Text12{Frame2, "Text12", "Boost Time", "5.25557", KeyRule::UnsignedReal};
  Field Text24{Frame2, "Text24", "Boost Port Area", "3.984",
               Entry(KeyRule::UnsignedReal, Unit::PortArea,
                     Holds(&P::TwoSBoostPortArea).ConvertedAsShown())};
  Field Text27{Frame2, "Text27", "Boost Time Area", "0.2018", KeyRule::OutputOnly};
  Field Text52{Frame2, "Text52", "Boost Angle Area", "7.872", KeyRule::OutputOnly};
  Field Text13{Frame2, "Text13", "Transfer Distance", "1.599",
               Entry(KeyRule::UnsignedReal, Unit::Length,
                     Holds(&P::TwoSTransferDistance).ConvertedAsShown())};
  Field Text14{Frame2, "Text14", "Transfer Degrees", "80.917",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::TwoSTransferDegrees))};
  Field Text15{Frame2, "Text15", "Transfer Duration", "198.165",
               Entry(KeyRule::UnsignedReal, Unit::Degrees)};
  Field Text16{Frame2, "Text16", "Transfer Time", "5.0812", KeyRule::UnsignedReal};
  Field Text25{Frame2, "Text25", "Transfer Port Area", "2.217",
               Entry(KeyRule::UnsignedReal, Unit::PortArea,
                     Holds(&P::TwoSTransferPortArea).ConvertedAsShown())};
  Field Text28{Frame2, "Text28", "Transfer Time Area", "0.1086", KeyRule::OutputOnly};
  Field Text53{Frame2, "Text53", "Transfer Angle Area", "4.235", KeyRule::OutputOnly};
  Table Ports{Frame2,
              "Ports",
              "Ports",
              {{"Distance to Port from Top of Cylinder", {&Text48, &Text8, &Text13}},
               {"Crank Degrees ATDC - Open", {&Text47, &Text9, &Text14}},
               {"Duration Degrees ", {&Text2, &Text11, &Text15}},
               {"Time Port open in Milli Seconds", {&Text6, &Text12, &Text16}},
               {"Total Port Area Inch^2 / cm^2", {&Text23, &Text24, &Text25}},
               {"Port Time Area cm^2/cm^3 Milli seconds", {&Text26, &Text27, &Text28}},
               {"Angle Area deg cm^2/cm^3", {&Text51, &Text52, &Text53}}},
              {"Port", {"Exhaust ", "Boost", "Transfer"}}};
  Command Command1{Frame2, "Command1", "E&xhaust Port Dist",
                   "Calculate Exhaust Piston Travel, using Stroke, Rod Length and Crank Degrees "
                   "Rotation.",
                   &Form18::SolveExhaustDistance};
  Command Command2{Frame2, "Command2", "&Exhaust Duration",
                   "Calculate Exhaust Duration in Degrees / Crank Degrees ATDC it Opens / Time "
                   "Port Open in Milli Seconds, using RPM, Stroke, Rod Length, Deck Clearance and "
                   "the Distance the Top of the Exhaust Port is from The Top of the Cylinder.",
                   &Form18::SolveExhaustDuration};
  Command Command11{Frame2, "Command11", "Exh&aust Port TA",
                    "Calculate Exhaust Port Time Area and Angle Area, using Stroke, Bore, Time "
                    "Port open in Milli Seconds and Total Port Area.",
                    &Form18::SolveExhaustTimeArea};
  Command Command3{
      Frame2, "Command3", "B&oost Port Dist",
      "Calculate Boost Piston Travel, using Stroke, Rod Length and Crank Degrees Rotation.",
      &Form18::SolveBoostDistance};
  Command Command4{Frame2, "Command4", "&Boost Duration",
                   "Calculate Boost Duration in Degrees / Crank Degrees ATDC it Opens / Time Port "
                   "Open in Milli Seconds, using RPM, Stroke, Rod Length, Deck Clearance and the "
                   "Distance the Top of the Boost Port is from The Top of the Cylinder.",
                   &Form18::SolveBoostDuration};
  Command Command12{Frame2, "Command12", "Boo&st Port TA",
                    "Calculate Boost Port Time Area nad Angle Area, using Stroke, Bore, Time Port "
                    "open in Milli Seconds and Total Port Area.",
                    &Form18::SolveBoostTimeArea};
  Command Command5{Frame2, "Command5", "T&ransfer Port Dist",
                   "Calculate Transfer Piston Travel, using Stroke, Rod Length and Crank Degrees "
                   "Rotation.",
                   &Form18::SolveTransferDistance};
  Command Command6{Frame2, "Command6", "&Transfer Duration",
                   "Calculate Transfer Duration in Degrees / Crank Degrees ATDC it Opens / Time "
                   "Port Open in Milli Seconds, using RPM, Stroke, Rod Length, Deck Clearance and "
                   "the Distance the Top of the Transfer Port is from The Top of the Cylinder.",
                   &Form18::SolveTransferDuration};
  Command Command13{Frame2, "Command13", "Tr&ansfer Port TA",
                    "Calculate Transfer Port Time Area and Angle Area, using Stroke, Bore, Time "
                    "Port open in Milli Seconds and Total Port Area.",
                    &Form18::SolveTransferTimeArea};

  FrameRow BelowPorts{*this, "BelowPorts", 1};

  Frame Frame3{BelowPorts, "Frame3", "Blowdown", 0};
  Field Text19{Frame3, "Text19", "Blowdown Distance", "0.2",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text17{Frame3, "Text17", "Blowdown Degrees", "6.792",
               Entry(KeyRule::OutputOnly, Unit::Degrees)};
  Field Text18{Frame3, "Text18", "Blowdown Time in Milli Seconds", "0.1742", KeyRule::OutputOnly};
  Command Command7{Frame3, "Command7", "B&lowdown",
                   "Calculate Blowdown Degrees / Time in Milli Seconds, using RPM, Exhaust Degrees "
                   "ATDC and Transfer Degrees ATDC.",
                   &Form18::SolveBlowdown};

  Frame Frame5{BelowPorts, "Frame5", "Squish Band", 0};
  Field Text35{Frame5, "Text35", "Piston  / Cylinder Area", "12.566",
               Entry(KeyRule::OutputOnly, Unit::PortArea)};
  Field Text36{Frame5, "Text36", "Squish Area", "6.66",
               Entry(KeyRule::UnsignedReal, Unit::PortArea)};
  Field Text37{Frame5,
               "Text37",
               "Squish Ratio",
               "0.53",
               Entry(KeyRule::UnsignedReal, Holds(&P::SquishRatio)),
               "The squish band's part of the piston's area."};
  Field Text38{
      Frame5, "Text38", "Squish Clearance", "0.047244",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::SquishClearance).ConvertedAsShown())};
  Field Text39{Frame5, "Text39", "Squish Volume", "2.309", Entry(KeyRule::OutputOnly, Unit::Cc)};
  Field Text40{Frame5,
               "Text40",
               "Bowl Diameter",
               "2.309",
               Entry(KeyRule::OutputOnly, Unit::Length),
               "Diameter of a circle of the squish area, not of what the band leaves of the bore."};
  Command Command15{Frame5, "Command15", "&Squish Area",
                    "Calculate Squish and Piston areas from Bore and Squish Ratio.",
                    &Form18::SolveSquishArea};
  Command Command16{Frame5, "Command16", "S&quish Volume",
                    "Calculate Squish Volume from Squish Areas and Squish Clearance.",
                    &Form18::SolveSquishVolume};

  Frame Frame6{BelowPorts, "Frame6", "Squish Velocity", 1};
  Field Text41{Frame6, "Text41", "Max. Squish Velocity", "137.67",
               Entry(KeyRule::OutputOnly, Unit::SurfaceSpeed, Holds().Pattern<".000">())};
  Field Text42{Frame6,
               "Text42",
               "Max. Squish Velocity Degrees",
               "9.7",
               Entry(KeyRule::OutputOnly, Unit::Degrees, Holds().Pattern<".000">()),
               "Before the top, where the velocity is highest."};
  Field Text49{Frame6,
               "Text49",
               "Mean. Squish Velocity",
               "49.0",
               Entry(KeyRule::OutputOnly, Unit::SurfaceSpeed, Holds().Pattern<".000">()),
               "From the closing of the exhaust port to the top."};

  FrameRow VelocitySteps{BelowPorts, "VelocitySteps", 1};

  Frame Frame8{VelocitySteps, "Frame8", "Squish Velocity every .01 Degrees", 0};
  Command Command17{Frame8, "Command17", "Max. Squish Vel.",
                    "Calculate Max Squish Velocity and at what Degrees by every .01 Degrees from "
                    "Bore, Stroke, Rod Length, Compression Ratio, RPM, Exhaust Crank Degrees ATDC "
                    "- Open, Squish Ratio, and Squish Clearance.",
                    &Form18::SolveSquishVelocityFine};

  Frame Frame7{VelocitySteps, "Frame7", "Squish Velocity by Degree", 1};
  Command Command20{Frame7, "Command20", "Max. Squish Vel.",
                    "Calculate Max Squish Velocity and at what Degrees by Degree from Bore, "
                    "Stroke, Rod Length, Compression Ratio, RPM, Exhaust Crank Degrees ATDC - "
                    "Open, Squish Ratio, and Squish Clearance.",
                    &Form18::SolveSquishVelocityByDegree};
  Command Command21{Frame7, "Command21", "Graph MSV 1",
                    "Graph Squish Velocity by Degree from Bore, Stroke, Rod Length, Compression "
                    "Ratio, RPM, Exhaust Crank Degrees ATDC - Open, Squish Ratio, and Squish "
                    "Clearance.",
                    &Form18::GraphSquishFirst};
  Command Command22{Frame7, "Command22", "Graph MSV 2 +",
                    "Graph Squish Velocity by Degree from Bore, Stroke, Rod Length, Compression "
                    "Ratio, RPM, Exhaust Crank Degrees ATDC - Open, Squish Ratio, and Squish "
                    "Clearance.",
                    &Form18::GraphSquishFurther};

  Frame Frame9{BelowPorts, "Frame9", "Target Time Areas", 1};
  Field Text43{Frame9, "Text43", "Inlet TA", "0.1089", KeyRule::OutputOnly};
  Field Text44{Frame9, "Text44", "Exhaust TA", "0.1089", KeyRule::OutputOnly};
  Field Text45{Frame9, "Text45", "Blowdown TA", "0.1089", KeyRule::OutputOnly};
  Field Text46{Frame9, "Text46", "Transfer TA", "0.1089", KeyRule::OutputOnly};
  Command Command18{Frame9, "Command18", "TA's from BMEP",
                    "Estimate Inlet TA, Exhaust TA, Transfer TA, and Blowdown TA from BMEP.",
                    &Form18::EstimateTimeAreasOfPressure};
  Command Command19{Frame9, "Command19", "TA's from HP",
                    "Estimate Inlet TA, Exhaust TA, Transfer TA, and Blowdown TA from HP, number "
                    "of cylinders, RPM, and Engine Size.",
                    &Form18::EstimateTimeAreasOfPower};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label7{HelpFrame, "Label7", ""};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
