#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/kept.h"
#include "core/screen.h"
#include "engine/compression.h"
#include "engine/compression_charts.h"
#include "engine/compression_graphs.h"

namespace veldox {

/// The swept volume stands in cubic inches or, in metric, in cc.
inline constexpr UnitRule kSweptVolumeRule{
    [](double volume) { return volume * (1 / kCubicInchesPerCc); },
    [](double cc) { return cc * kCubicInchesPerCc; }};

/// The compression ratio: the volumes that form the clearance over the piston, each solved for
/// from the others; a dish calculator, charts and graphs.
class Form1CR : public Screen {
 public:
  /// @param grapher  where the graphs appear
  Form1CR(ProgramContext& context, Grapher& grapher);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }

 private:
  void SolveRatio();
  void SolveChamberVolume();
  void SolveDomeVolume();
  void SolveTotalVolume();
  void SolveRatioFromTotal();
  void SolveDomeFromPoured();
  void EstimateHorsepowerGain();
  void SolveDishVolume();
  void SolveDishDepth();
  void SolveDishBore();
  void SolveGasketThickness();
  void ChartTotalVolume();
  void ChartTotalVolumeNeeded();
  void ChartChamber();
  void ChartDome();
  void ChartGasketThickness();
  void GraphTotalVolume();
  void GraphChamber();
  void GraphFurther();
  void SwitchGasketEntry();
  void SwitchRingEntry();

  void ReadRatioFields();
  void ConvertRatioUnits();
  void UpdateSweptVolume();
  void UpdateClearanceVolumes();
  void Warn(const std::string& text);
  /// The bore as the volumes of a thousandth of an inch take it.
  double InchesForThousandth(double bore) const;
  void ReadRatio();
  void ReadChamberAndDome();
  ClearanceVolumes Volumes() const;
  /// Ratio and total volume from all that forms it.
  void SumVolumes();
  /// The field whose volume takes most from the room above the piston.
  Field& LargestTaker();
  void StoreTotalForRatio();
  Dish ReadDish();
  /// Shows a radius that was limited, and says so.
  void ShowLimitedRadius(const Dish& dish);
  CompressionInput Input() const;
  /// Reads and sums what a chart or graph around the calculated ratio stands on.
  void CalculateChartBase();
  void ShowChart(const std::function<std::string()>& build);
  void ShowNeededChart(RatioChart chart);
  void GraphRatio(RatioGraph graph, const RatioSweep& sweep);
  GraphCurve Curve(bool first);
  /// The grapher shows a graph of this screen.
  bool GraphStands() const;

  /// The graph that was drawn last, which further curves are added to.
  struct DrawnGraph {
    RatioGraph graph;
    RatioSweep sweep;
    AxisRange axes;
  };

  Grapher& grapher_;
  Kept<std::optional<DrawnGraph>> drawn_{*this};
  Kept<double> sweptCc_{*this};
  Kept<double> deckCc_{*this};

 public:
  Frame Frame1{*this, "Frame1", "Cylinder", 0};
  Field Text1{Frame1, "Text1", "Bore", "4.000",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
  Field Text3{Frame1, "Text3", "Stroke", "3.25",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Stroke))};
  Field Text4{Frame1, "Text4", "Swept / Cylinder Volume", "40.84",
              Entry(KeyRule::OutputOnly, Unit::Volume, Holds().By(kSweptVolumeRule))};
  Field Text44{Frame1, "Text44", "Cylinder Volume  - cc", "669.259", KeyRule::OutputOnly};
  CheckBox Check1{Frame1, "Check1", "Metric",
                  "Show and enter lengths in millimetres, the swept volume in cc and power in "
                  "kilowatts. The other volumes are in cc always.",
                  &Form1CR::ConvertRatioUnits};

  Frame Frame2{*this, "Frame2", "Compression Ratio", 0};
  Field Text17{Frame2, "Text17", "Comp Ratio", "13.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio))};
  Field Text15{Frame2, "Text15", "Combustion Chamber Vol", "65.0",
               Entry(KeyRule::UnsignedReal, Unit::Cc, Holds(&P::CombChamberVol))};
  Field Text16{Frame2, "Text16", "Dome/Dish Volume cc", "19.5",
               Entry(KeyRule::SignedReal, Holds(&P::DomeVol))};
  Field Text21{Frame2, "Text21", "Total Vol", "75.3",
               Entry(KeyRule::UnsignedReal, Unit::Cc, Holds(&P::TotalVol))};
  Command Command10{
      Frame2, "Command10", "C&R",
      "Calculate Compression Ratio from Bore, Stroke, Combustion Chamber Volume, Dome Volume, "
      "Piston to Deck Clearance, Head Gasket Compressed Thickness, Head Gasket Bore Size, Depth of "
      "First Ring and Piston Top Ring Land Diameter",
      &Form1CR::SolveRatio};
  Command Command11{
      Frame2, "Command11", "Chamber &Vol ",
      "Calculate Combustion Chamber Volume from Bore, Stroke, CR and all other inputs needed to "
      "calculate CR except Combustion Chamber Volume.",
      &Form1CR::SolveChamberVolume};
  Command Command14{
      Frame2, "Command14", "D&ome Vol",
      "Calculate Dome Volume from Bore, Stroke, CR and all other inputs needed to calculate CR "
      "except Dome Volume.",
      &Form1CR::SolveDomeVolume};
  Command Command12{
      Frame2, "Command12", "&Total Vol",
      "Calculate Total Volume from Bore, Stroke, and CR - This is the Total Volume measured with "
      "the piston ATDC and the head with the gasket installed, and valves closed thru the spark "
      "plug hole.",
      &Form1CR::SolveTotalVolume};
  Command Command13{
      Frame2, "Command13", "CR T&otal Vol",
      "Calculate CR from Bore, Stroke, and Total Volume - This is the Total Volume measured with "
      "the piston ATDC and the head with the gasket installed, and valves closed thru the spark "
      "plug hole.",
      &Form1CR::SolveRatioFromTotal};

  Frame Frame3{*this, "Frame3", "Deck", 1};
  Field Text10{Frame3, "Text10", "Piston to Deck Clearance", ".016",
               Entry(KeyRule::SignedReal, Unit::Length, Holds(&P::DeckClearance).ShownAtOpening())};
  Field Text2{Frame3, "Text2", "Quench / Squish Clearance", "0.039",
              Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text9{Frame3, "Text9", "Deck Volume @ TDC", "0.0", Entry(KeyRule::OutputOnly, Unit::Cc)};
  Field Text11{Frame3, "Text11", "Inch of Deck per cc", "0.00485", KeyRule::OutputOnly};
  Field Text46{Frame3, "Text46", "cc per 0.001 Deck", "0.2059", KeyRule::OutputOnly};

  Frame Frame4{*this, "Frame4", "Head Gasket", 1};
  Field Text14{Frame4, "Text14", "Compressed Head Gasket Thickness", ".021",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::HeadGasket))};
  Field Text18{Frame4, "Text18", "Head Gasket Bore Size", "4.01",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::HeadGasketBore))};
  CheckBox Check2{Frame4, "Check2", "Head Gasket CC",
                  "If the Head Gasket CC box is checked the USER will enter the Head Gasket Volume "
                  "cc amount, or else the program will calculate it from Head Gasket Thickness and "
                  "Head Gasket Bore Size.",
                  &Form1CR::SwitchGasketEntry};
  Field Text42{Frame4, "Text42", "Head Gasket Volume  - cc", "4.347",
               Entry(KeyRule::UnsignedReal, Holds(&P::HeadGasketCC))};
  Field Text45{Frame4, "Text45", "cc per 0.001 Head Gasket", "0.2069", KeyRule::OutputOnly};
  Command Command20{Frame4, "Command20", "Gasket Thickness",
                    "Calculate Head Gasket Thickness Needed from Head Gasket Bore Size, and Head "
                    "Gasket Volume - cc Wanted",
                    &Form1CR::SolveGasketThickness};

  Frame Frame5{*this, "Frame5", "Top Ring Land", 1};
  Field Text19{Frame5, "Text19", "Depth of First Ring", "0.250",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::DepthFirstRing))};
  Field Text20{Frame5, "Text20", "Top Ring Land Diameter", "3.965",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TopLandDiameter))};
  CheckBox Check3{Frame5, "Check3", "Ring CC",
                  "If the Ring CC box is checked the USER will enter the Ring Volume cc which is "
                  "the amount of cc's above the top ring, or else the program will calculate this "
                  "value from Top Ring Land Diameter, Depth of First Ring and Bore.",
                  &Form1CR::SwitchRingEntry};
  Field Text43{Frame5, "Text43", "Ring Volume  - cc", "0.897",
               Entry(KeyRule::UnsignedReal, Holds(&P::RingCC))};

  Frame Frame6{*this, "Frame6", "Dome by CC's Poured", 2};
  Field Text22{Frame6, "Text22", "Piston Depth", "1.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::PistonDepth))};
  Field Text23{Frame6, "Text23", "CC's Poured", "197.1",
               Entry(KeyRule::UnsignedReal, Holds(&P::CCsPoured))};
  Command Command15{
      Frame6, "Command15", "Do&me Vol",
      "Calculate Dome Volume from Bore and piston depth using CC's poured into cylinder.",
      &Form1CR::SolveDomeFromPoured};

  Frame Frame7{*this, "Frame7", "Dish", 2};
  Field Text5{Frame7, "Text5", "Dish Bore", "3.880",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::DishBore))};
  Field Text6{Frame7, "Text6", "Dish Depth", "0.060",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::DishDepth))};
  Field Text7{Frame7, "Text7", "Dish Volume - cc", "11.63",
              Entry(KeyRule::UnsignedReal, Holds(&P::DishCC))};
  Field Text8{Frame7, "Text8", "Bore Bottom Radius", "0.0",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::DishRadius).NotConverted())};
  Command Command2{Frame7, "Command2", "Dish Volume",
                   "Calculate the Dish Volume in cc's from Dish Bore and Dish Depth.",
                   &Form1CR::SolveDishVolume};
  Command Command3{Frame7, "Command3", "Dish Depth",
                   "Calculate the Dish Depth From dish Volume in cc's and Dish Bore.",
                   &Form1CR::SolveDishDepth};
  Command Command5{
      Frame7, "Command5", "Dish Bore",
      "Calculate the Dish Bore From Dish Volume in cc's, Dish Depth and Dish Bottom Radius.",
      &Form1CR::SolveDishBore};

  Frame Frame8{*this, "Frame8", "Horsepower from a Higher Ratio", 2};
  Field Text29{Frame8, "Text29", "New CR", "0.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::NewCompressionRatio))};
  Field Text27{Frame8, "Text27", "HorsePower", "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::HorsePower))};
  Field Text28{Frame8, "Text28", "HP Increase", "0.0",
               Entry(KeyRule::OutputOnly, Unit::Power, Holds(&P::HorsePowerIncrease))};
  Command Command17{Frame8, "Command17", "HP I&ncrease",
                    "Estimate the Horsepower gain from increasing the Compress Ratio.",
                    &Form1CR::EstimateHorsepowerGain};

  Frame Frame9{*this, "Frame9", "Charts", 3};
  Command Command6{
      Frame9, "Command6", "Chart CR Tot Vol",
      "Chart CR against needed Total Volume from Bore, Stroke. Total Volume - is the Total Volume "
      "measured with the piston ATDC and the head with the gasket installed, and valves closed "
      "thru the spark plug hole.",
      &Form1CR::ChartTotalVolume};
  Command Command8{
      Frame9, "Command8", "Chart CR Tot Vol",
      "Chart CR against needed Total Volume from all Inputs needed to Calculate CR - Total Volume "
      "is the Volume measured with the piston ATDC and valves closed thru the spark plug hole.",
      &Form1CR::ChartTotalVolumeNeeded};
  Command Command9{
      Frame9, "Command9", "Chart CR CC Vol",
      "Chart CR against needed Combustion Chamber from all Inputs needed to Calculate CR.",
      &Form1CR::ChartChamber};
  Command Command18{
      Frame9, "Command18", "CR Dome/Dish Vol",
      "Chart CR against needed Dome / Dish Volume from all Inputs needed to Calculate CR.",
      &Form1CR::ChartDome};
  Command Command19{Frame9, "Command19", "CR Gasket Thick.",
                    "Chart CR against needed Compressed Head Gasket Thickness from all Inputs "
                    "needed to Calculate CR.",
                    &Form1CR::ChartGasketThickness};

  Frame Frame10{*this, "Frame10", "Graphs", 3};
  Command Command1{
      Frame10, "Command1", "Graph CR Tot Vol",
      "Graph CR against Total Volume from Bore, Stroke, and Total Volume - is the Total Volume "
      "measured with the piston ATDC and the head with the gasket installed, and valves closed "
      "thru the spark plug hole.",
      &Form1CR::GraphTotalVolume};
  Command Command4{Frame10, "Command4", "Graph CC Vol CR",
                   "Graph CR against Combustion Chamber Volume using Bore, Stroke. Combustion "
                   "Chamber Volume.",
                   &Form1CR::GraphChamber};
  Command Command7{
      Frame10, "Command7", "Graph Plus",
      "Graph Second or more Based on Previous Selected Graph. This adds to the existing Graph",
      &Form1CR::GraphFurther};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
