#pragma once

#include <string>
#include <vector>

#include "core/kept.h"
#include "core/screen.h"
#include "engine/cranking_graphs.h"
#include "engine/cranking_pressure.h"
#include "graph/grapher.h"

namespace veldox {

/// Compression gauge and octane: what a gauge, the intake valve's closing angle and the weather
/// tell of the compression ratio, and graphs of the pressure in the cylinder.
class Form12 : public Screen {
 public:
  /// @param grapher  where the graphs appear
  Form12(ProgramContext& context, Grapher& grapher);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }

 private:
  void EstimateGaugeReading();
  void EstimateGaugeReadingDos();
  void EstimateRatioOfReading();
  void EstimateRatioOfReadingDos();
  void SolveRatioForDynamicRatio();
  void SolveOffset();
  void SolveClosingForDynamicRatio();
  void SolveClosingForReading();
  void GraphFirst();
  void GraphFurther();

  void ReadCompFields();
  void ConvertCompFields();
  void EstimateGauge(DosRule rule);
  void EstimateRatio(DosRule rule);
  void EstimateOctane();
  CylinderSize Size() const;
  /// The cylinder at closing, with a finite answer. @throws CommandError that names the field
  ClosedCylinder CylinderGeometry();
  /// The same with its strokes and swept volume shown.
  ClosedCylinder ShowCylinderGeometry();
  VaporPressures WeatherVapor() const;
  /// Shows the vapor pressures where the rule needs them. @return GaugeBase
  double AtmosphereBase(DosRule rule);
  double GaugeBase(DosRule rule) const;
  /// Ends a command for a rod that cannot follow the crank. @throws CommandError
  void RequireRod();
  /// Ends a command for weather that leaves no pressure to the air. @throws CommandError
  void RequireAir(DosRule rule);
  /// A volume in the unit of the formulas in cc.
  double CcOf(double volume) const;
  double FahrenheitShown(double temperature) const;
  void ShowIntakeClose(double degrees);

  CrankingGraphInput ReadGraphInput();
  void GraphCranking(bool first);

  Grapher& grapher_;
  // What the grapher was last given, so that a further curve can keep to its axis.
  Kept<CrankingGraph> graphed_{*this, CrankingGraph::DynamicRatio};
  Kept<std::string> graphedTitle_{*this};
  // Temperatures that no other screen shares, as shown.
  double dewPoint_ = 0;
  double inletAir_ = 0;
  double water_ = 0;

 public:
  Frame Frame1{*this, "Frame1", "Engine", 0};
  Field Text1{Frame1, "Text1", "Bore", "4.000",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
  Field Text3{Frame1, "Text3", "Stroke", "3.25",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Stroke))};
  Field Text4{Frame1, "Text4", "Rod Length", "5.7",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::RodLength))};
  Field Text22{Frame1, "Text22", "Wrist Pin Offset", "0.0",
               Entry(KeyRule::SignedReal, Unit::Length,
                     Holds(&P::WristPinOffset).ShownAtOpening().As(&FormatField11))};
  Field Text17{Frame1, "Text17", "Comp Ratio", "13.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio))};
  CheckBox Check1{Frame1, "Check1", "Metric",
                  "Show and enter lengths in millimetres, the barometer in millibars, the "
                  "compression gauge in centimetres of mercury and temperatures in Celsius.",
                  &Form12::ConvertCompFields};

  Frame Frame2{*this, "Frame2", "Intake Closing", 0};
  Field Text36{Frame2, "Text36", "Intake Closes ABDC", "95.5",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeClose))};
  Field Text45{Frame2, "Text45", "Dynamic CR", "7.432",
               Entry(KeyRule::UnsignedReal, Holds(&P::DynamicCompressionRatio))};
  Field Text46{Frame2, "Text46", "% Cylinder Vol @ Intake Closing", "52.123",
               Entry(KeyRule::OutputOnly, Unit::Percent)};
  CheckBox Check2{Frame2, "Check2", "IC PSI - DOS",
                  "Intake Close PSI reads the Compression Gauge as the DOS version does."};
  Command Command7{Frame2, "Command7", "DCR -> Comp &Ratio",
                   "Calculate Compression Ratio from Dynamic Compression Ratio, Stroke, Rod "
                   "Length, Wrist Pin Offset, and Intake Valve Closing Degrees.",
                   &Form12::SolveRatioForDynamicRatio};
  Command Command1{Frame2, "Command1", "Intake Close DCR",
                   "Calculate Intake Valve Close ABDC using Bore, Stroke, Rod Length, Comp Ratio, "
                   "Dynamic CR and Wrist Pin Offset.",
                   &Form12::SolveClosingForDynamicRatio};
  Command Command2{Frame2, "Command2", "Intake Close PSI",
                   "Calculate Intake Valve Close ABDC using Bore, Stroke, Rod Length, Comp Ratio, "
                   "Barometric Pressure, Temperature, Humidity and Compression Gauge Reading.",
                   &Form12::SolveClosingForReading};

  Frame Frame3{*this, "Frame3", "Crank Angle", 0};
  Field Text10{Frame3, "Text10", "Crank Angle", "10",
               Entry(KeyRule::SignedReal, Unit::Degrees,
                     Holds(&P::CrankAngleCG).NotShownAtOpening().ZeroKeepsText())};
  ComboList Combo1{Frame3, "Combo1", "k Exponent",
                   Holds(&P::BaseExponent).NotShownAtOpening().ZeroKeepsText()};
  Command Command10{Frame3, "Command10", "Offset Needed",
                    "Calculate amount of offset required for crank angle, to have the piston to be "
                    "at TDC. Using Crank Angle, Rod Length, and Stroke.",
                    &Form12::SolveOffset};

  Frame Frame4{*this, "Frame4", "Compression Gauge", 1};
  Field Text35{Frame4, "Text35", "Compression Gauge", "165.5",
               Entry(KeyRule::UnsignedReal, Unit::GaugePressure, Holds(&P::CompressionGauge))};
  Command Command18{Frame4, "Command18", "Compress &Gauge",
                    "Estimate the Compression Gauge from the Compression Ratio, Cylinder Size, Rod "
                    "Length, Intake Closing Cam Timing, Barometric Pressure, Wrist Pin Offset, and "
                    "Temperature.",
                    &Form12::EstimateGaugeReading};
  Command Command8{Frame4, "Command8", "Comp G&auge DOS",
                   "Estimate the Compression Gauge (Same as DOS Version) from the Compression "
                   "Ratio, Cylinder Size, Rod Length, Intake Closing Cam Timing, Barometric "
                   "Pressure, Temperature, Wrist Pin Offset, and Humidity.",
                   &Form12::EstimateGaugeReadingDos};
  Command Command19{Frame4, "Command19", "CR Comp Ga&uge",
                    "Estimate the Compression Ratio from the Compression Gauge Reading, Cylinder "
                    "Size, Rod Length, Intake Closing Cam Timing, Barometric Pressure, Wrist Pin "
                    "Offset, and Temperature.",
                    &Form12::EstimateRatioOfReading};
  Command Command9{Frame4, "Command9", "&CR Comp Ga DOS",
                   "Estimate the Compression Ratio (Same as DOS Version) from the Compression "
                   "Gauge Reading, Cylinder Size, Rod Length, Intake Closing Cam Timing, "
                   "Barometric Pressure, Temperature, Wrist Pin Offset, and Humidity.",
                   &Form12::EstimateRatioOfReadingDos};

  Frame Frame5{*this, "Frame5", "Weather", 1};
  Field Text30{Frame5, "Text30", "Barometric Pressure", "29.92",
               Entry(KeyRule::UnsignedReal, Unit::Barometer, Holds(&P::BarometricPressure))};
  Field Text31{Frame5, "Text31", "Temperature", "80",
               Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::Temperature))};
  Field Text32{Frame5, "Text32", "Humidity", "5.0",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::Humidity))};
  Field Text34{Frame5, "Text34", "Dew Point", "55.0",
               Entry(KeyRule::SignedReal, Unit::Temperature, Holds(dewPoint_))};
  Field Text33{Frame5, "Text33", "Vapor Pressure", "0.563",
               Entry(KeyRule::OutputOnly, Unit::Barometer)};
  Field Text37{Frame5, "Text37", "Sat Vapor Pressure", "1.03028",
               Entry(KeyRule::OutputOnly, Unit::Barometer)};

  Frame Frame6{*this, "Frame6", "Octane", 1};
  Field Text6{Frame6, "Text6", "Running Inlet Air Temperature", "120",
              Entry(KeyRule::SignedReal, Unit::Temperature, Holds(inletAir_))};
  Field Text2{Frame6, "Text2", "Water Temperature", "170",
              Entry(KeyRule::SignedReal, Unit::Temperature, Holds(water_))};
  Field Text5{Frame6, "Text5", "Est. Octane Needed Iron Heads", "96.16", KeyRule::OutputOnly};

  Frame Frame7{*this, "Frame7", "Strokes and Volumes", 2};
  Field Text8{Frame7, "Text8", "Dynamic Stroke", "1.7036",
              Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text9{Frame7, "Text9", "Actual Piston Stroke", "3.25",
              Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text12{Frame7, "Text12", "Swept / Cylinder Volume", "669.259",
               Entry(KeyRule::OutputOnly, Unit::Cc)};
  Field Text7{Frame7, "Text7", "Cylinder Vol @ Intake Close cc's", "350.8098",
              Entry(KeyRule::OutputOnly, Unit::Cc)};
  Field Text11{Frame7, "Text11", "Cylinder Vol @ Intake Close ci", "21.40772",
               Entry(KeyRule::OutputOnly, Unit::CubicInches)};

  Frame Frame8{*this, "Frame8", "Graphs", 2};
  OptionGroup Option1{
      Frame8,
      "Option1",
      "Graph",
      {{0, "DCR",
        "Graph change in DCR (Dynamic Compression Ratio) for change in Intake Valve Closing. Using "
        "Bore, Rod Length, Stroke, Compression Ratio and Wrist Pin Offset."},
       {1, "CR",
        "Graph change in CR (Compression Ratio) for change in Intake Valve Closing. Using Bore, "
        "Rod Length, Stroke, Dynamic Compression Ratio and Wrist Pin Offset."},
       {2, "CGP/Cam",
        "Graph change in Cranking Compression Pressure for change in Intake Valve Closing. Using "
        "Barometric Pressure, Bore, Rod Length, Stroke, Compression Ratio and Wrist Pin Offset."},
       {3, "CGP/BP (PSI)",
        "Graph change in Cranking Compression Pressure for change in Barometric Pressure (PSI) "
        "with a fixed Intake Valve Closing. Using Bore, Rod Length, Stroke, Compression Ratio and "
        "Wrist Pin Offset."},
       {4, "CGP/BP (In Hg)",
        "Graph change in Cranking Compression Pressure for change in Barometric Pressure (In Hg) "
        "with a fixed Intake Valve Closing. Using Bore, Rod Length, Stroke, Compression Ratio and "
        "Wrist Pin Offset."},
       {5, "IVC/BP (In Hg)",
        "Graph change in Intake Valve Closing for change in Barometric Pressure (In Hg) with a "
        "fixed Cranking Compression Pressure. Using Bore, Rod Length, Stroke, Compression Ratio "
        "and Wrist Pin Offset."},
       {6, "IVC/CR CGP",
        "Graph Intake Valve Closing and CR for with a fixed Cranking Compression Pressure. Using "
        "Bore, Rod Length, Stroke, Barometric Pressure (In Hg), Wrist Pin Offset, and Cranking "
        "Compression Compression."},
       {7, "CGP",
        "Graph change in Cranking Compression Pressure against change in Intake Valve Closing with "
        "a fixed Compression Ratio. Using Bore, Rod Length, Stroke, Barometric Pressure (In Hg), "
        "Compression Ratio, and Wrist Pin Offset."},
       {8, "Cylinder Pressure",
        "Graph change in Cylinder Pressure against Crank Rotational Angle Using Bore, Rod Length, "
        "Stroke, Compression Ratio, Crank Angle (Degrees ATDC of Max Cylinder Pressure), "
        "Compression Gauge (Max Cylinder Pressure), Wrist Pin Offset and k exponent."},
       {9, "Piston Pressure",
        "Graph change in Piston Pressure against Crank Rotational Angle Using Bore, Rod Length, "
        "Stroke, Compression Ratio, Crank Angle (Degrees ATDC of Max Cylinder Pressure), "
        "Compression Gauge (Max Cylinder Pressure) and Wrist Pin Offset."},
       {10, "Turning Force",
        "Graph Turning Force against Crank Rotational Angle Using Bore, Rod Length, Stroke, "
        "Compression Ratio, Crank Angle (Degrees ATDC of Max Cylinder Pressure), Compression Gauge "
        "(Max Cylinder Pressure) and Wrist Pin Offset."},
       {11, "CGP VE",
        "Graph change in Cylinder Pressure against change in Volumetric Efficiency. Using Bore, "
        "Rod Length, Stroke, Compression Ratio, Barometric Pressure (In Hg)."},
       {12, "Turning Force 4.3.1",
        "Graph Turning Force against Crank Rotational Angle Using Bore, Rod Length, Stroke, "
        "Compression Ratio, Crank Angle (Degrees ATDC of Max Cylinder Pressure), Compression Gauge "
        "(Max Cylinder Pressure) and Wrist Pin Offset."},
       {13, "Constant T Force",
        "Graph Cylinder Pressure Needed against Crank Rotational Angle to Produce the USER Entered "
        "Turning Force. Using Bore, Rod Length, Stroke, Compression Ratio, Crank Angle (Degrees "
        "ATDC of Max Cylinder Pressure), Compression Gauge (Max Cylinder Pressure), Wrist Pin "
        "Offset and k exponent."},
       {14, "Octane Req.",
        "NOTE: This is only an approximation and not an absolute, as there are too many other "
        "factors not include.\r\nGraph change in Octane Requirement for change in Intake Valve "
        "Closing. Using Barometric Pressure, Bore, Rod Length, Stroke, Compression Ratio, Wrist "
        "Pin Offset, Running Inlet Air Temp, and Water Temp."}},
      0,
      2};
  Field Text13{Frame8, "Text13", "High Axis Value", "74.32", KeyRule::UnsignedReal};
  CheckBox Check3{
      Frame8, "Check3", "Use PSI / Hg Limit [CR]",
      "4.7.2 - The Program will use the User Entered CR As the Y-Axis High Value for the IVC/CR "
      "CGP Graph.\r\nIf Checked the Program will use the User Entered BP In Hg As X-Axis High "
      "Value."};
  Command Command6{Frame8, "Command6", "Graph First",
                   "Graph First based on selected option, this clears and starts a new Graph.",
                   &Form12::GraphFirst};
  Command Command5{Frame8, "Command5", "Graph +1",
                   "Graph Second or more based on selected option, this adds to an existing Graph.",
                   &Form12::GraphFurther};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
