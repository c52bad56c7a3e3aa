#pragma once

#include <functional>
#include <string>

#include "core/field_array.h"
#include "core/kept.h"
#include "core/panel.h"
#include "core/screen_part.h"
#include "graph/grapher.h"
#include "vehicle/acceleration_graphs.h"
#include "vehicle/dyno_sheet.h"
#include "vehicle/run_inputs.h"

namespace veldox {

/// Graphs of the acceleration run, graphs of the dyno sheet, and the sheet as text.
class DynoPanel : public ScreenPart {
 public:
  DynoPanel(Screen& screen, RunInputs& inputs, Grapher& grapher);

  void Open() { Frame8.Open(); }
  const ScreenPage& page() const { return Frame8; }

 private:
  /// What can be drawn again by "Graph Plus".
  using Graph = std::function<void(bool adds)>;

  /// The work of a button that graphs the run.
  CommandWork Graphs(RunGraph graph);
  void GraphColumn(int index);
  void GraphTorquePower();
  void GraphAgain();
  void ReportSheet();
  void Close() { screen().pages().front()->Open(); }
  void Quit() { screen().Quit(); }

  /// Draws a graph and keeps it for "Graph Plus".
  void Draw(const Graph& graph);
  void DrawRun(RunGraph graph, bool adds);
  void DrawColumn(DynoGraph graph, bool adds);
  void DrawTorquePower(bool adds);
  void ShowPlot(const RunPlot& plot, bool adds);
  RunGraphLimits ReadLimits(RunGraph graph);
  SheetCorrection ReadCorrection();
  DynoColumns Columns() const;
  DynoGraphValues ReadValues();

  RunInputs& inputs_;
  Grapher& grapher_;
  Kept<Graph> last_{screen()};           ///< empty before the first graph
  Kept<int> runs_{screen()};             ///< that were drawn onto one graph
  Kept<std::string> legends_{screen()};  ///< of that graph, which tell whether it is there still

 public:
  ScreenPage Frame8{screen(), "Frame8", "Graphing and Dyno Sheet / Text Report"};

  Frame RunGraphFrame{Frame8, "RunGraphFrame", "Graphs of the Run", 0};
  Command Command1{RunGraphFrame, "Command1", "Wheel Torque",
                   "Graph Wheel Torque, RPM on X-axis and Wheel Torque on Y-axis using same inputs "
                   "as Acceleration / Top Speed",
                   Graphs(RunGraph::WheelTorqueOverRpm)};
  Command Command7{RunGraphFrame, "Command7", "MPH/WTq",
                   "Graph Wheel Torque, MPH on X-axis and Wheel Torque on Y-axis using same inputs "
                   "as Acceleration / Top Speed and Graph X high value / Graph Y high value.",
                   Graphs(RunGraph::WheelTorqueOverSpeed)};
  Command Command2{RunGraphFrame, "Command2", "G Force Time",
                   "Graph G Forces, Time on X-axis and G force on Y-axis using same inputs as "
                   "Acceleration / Top Speed",
                   Graphs(RunGraph::AccelerationOverTime)};
  Command Command3{RunGraphFrame, "Command3", "G Force RPM",
                   "Graph G Forces, RPM on X-axis and G force on Y-axis using same inputs as "
                   "Acceleration / Top Speed",
                   Graphs(RunGraph::AccelerationOverRpm)};
  CheckBox Check8{RunGraphFrame, "Check8", "Coast G's",
                  "If Checked. Show the Coast Down G's. This also sets the Y-axis to -0.5 instead "
                  "of 0"};
  Command Command4{
      RunGraphFrame, "Command4", "Aero &Drag HP",
      "Graph MPH on X-axis, Aero Drag HP, Tire Rolling Resistance HP, Total HP Drag (DARK BLUE) "
      "and Corrected HP at Drive Wheel(s) on Y-axis using same inputs as Acceleration / Top Speed "
      "and Graph X high value / Graph Y high value.",
      Graphs(RunGraph::DragPowerOverSpeed)};
  Command Command5{RunGraphFrame, "Command5", "MPH/E&T",
                   "Graph MPH on X-axis, ET on Y-axis using same inputs as Acceleration / Top "
                   "Speed and Graph X high value / Graph Y high value.",
                   Graphs(RunGraph::TimeOverSpeed)};
  Command Command6{RunGraphFrame, "Command6", "MPH/RPM",
                   "Graph MPH on X-axis, RPM on Y-axis using same inputs as Acceleration / Top "
                   "Speed and Graph X high value / Graph Y high value.",
                   Graphs(RunGraph::RpmOverSpeed)};
  Command Command20{RunGraphFrame, "Command20", "RPM/MPH",
                    "Graph RPM on X-axis, MPH on Y-axis using same inputs as Acceleration / Top "
                    "Speed and Graph X high value / Graph Y high value.",
                    Graphs(RunGraph::SpeedOverRpm)};
  Command Command12{RunGraphFrame, "Command12", "ET/Nitr HP",
                    "Graph ET on X-axis, Nitrous HP on Y-axis using same inputs as Acceleration / "
                    "Top Speed and Graph X high value / Graph Y high value.",
                    Graphs(RunGraph::NitrousOverTime)};
  Command Command30{RunGraphFrame, "Command30", "ET/RPS Rate",
                    "Graph ET on X-axis, RPS Acceleration Rate on Y-axis using same inputs as "
                    "Acceleration / Top Speed and Graph X high value / Graph Y high value.",
                    Graphs(RunGraph::RateOverTime)};

  Frame SheetGraphFrame{Frame8, "SheetGraphFrame", "Graphs of the Dyno Sheet", 1};
  Command Command10{
      SheetGraphFrame, "Command10", "Torq/HP",
      "Graph Engine RPM (X-axis) / Torque (BLUE) / Corrected Torque (YELLOW) / Horse Power (GREEN) "
      "/ Corrected Horse Power (RED) Y-axis using Torque and RPM inputs for Acceleration / Top "
      "Speed",
      Runs(&DynoPanel::GraphTorquePower)};
  CommandArray Command31{
      SheetGraphFrame,
      "Command31",
      {{0, "Fuel lbs/hr", "Graph Fuel lbs/hr", Runs(&DynoPanel::GraphColumn)},
       {1, "BSFC", "Graph BSFC", Runs(&DynoPanel::GraphColumn)},
       {2, "A/F Ratio", "Graph Air / Fuel Ratio", Runs(&DynoPanel::GraphColumn)},
       {3, "SCFM", "Graph SCFM", Runs(&DynoPanel::GraphColumn)},
       {4, "% VE", "Graph % VE", Runs(&DynoPanel::GraphColumn)},
       {5, "UnCorr HP", "Graph UnCorrected HP", Runs(&DynoPanel::GraphColumn)},
       {6, "UnCorr TQ", "Graph UnCorrected Torque", Runs(&DynoPanel::GraphColumn)},
       {7, "UnCorr BMEP", "Graph UnCorrected BMEP", Runs(&DynoPanel::GraphColumn)},
       {8, "Corr HP", "Graph Corrected HP", Runs(&DynoPanel::GraphColumn)},
       {9, "Corr TQ", "Graph Corrected Torque", Runs(&DynoPanel::GraphColumn)},
       {10, "Corr Factor", "Graph Corrected TorqueFactor", Runs(&DynoPanel::GraphColumn)},
       {11, "BSAC", "Graph BSAC", Runs(&DynoPanel::GraphColumn)}}};

  Frame AxesFrame{Frame8, "AxesFrame", "Graph", 2};
  Field Text7{AxesFrame,
              "Text7",
              "Graph X High Value",
              "10",
              Entry(KeyRule::UnsignedReal, Holds(&P::GraphDynoXHigh).ZeroKeepsText()),
              "Where the X axis ends, for the graphs whose help names it. It grows where a curve "
              "goes beyond."};
  Field Text39{AxesFrame,
               "Text39",
               "Graph Y High Value",
               "10",
               Entry(KeyRule::UnsignedReal, Holds(&P::GraphDynoYHigh).ZeroKeepsText()),
               "Where the Y axis ends, for the graphs whose help names it. It grows where a curve "
               "goes beyond."};
  Field Text3{AxesFrame,
              "Text3",
              "Graph Y Low Value",
              "0",
              Entry(KeyRule::SignedReal, Holds(&P::GraphDynoYLow)),
              "Where the Y axis begins, for the graphs whose help names its end."};
  Field Text40{AxesFrame,
               "Text40",
               "Smooth HP Graph",
               "N",
               KeyRule::AnyText,
               "Y smooths the power of the dyno sheet's graphs, N draws it as it stands."};
  Command Command19{AxesFrame, "Command19", "Graph Plus",
                    "Draw the last of these graphs again with the values as they are now, onto the "
                    "graph already shown.",
                    Runs(&DynoPanel::GraphAgain)};

  Frame SheetFrame{Frame8, "SheetFrame", "Dyno Sheet", 2};
  Field Text83{SheetFrame,
               "Text83",
               "Dyno Baro Pressure",
               "29.92",
               Entry(KeyRule::UnsignedReal, Unit::InchesMercury,
                     Holds(&P::DynoBP).ZeroKeepsText().NotConverted()),
               "Of the room the engine was measured in: where the Dyno Correct Factor is 1, the "
               "correction follows of its air."};
  Field Text84{SheetFrame, "Text84", "Dyno Vapor Pressure", "0.45",
               Entry(KeyRule::UnsignedReal, Unit::InchesMercury,
                     Holds(&P::DynoVP).ZeroKeepsText().NotConverted())};
  Field Text85{SheetFrame, "Text85", "Dyno Temperature", "95.5",
               Entry(KeyRule::SignedReal, Unit::Temperature,
                     Holds(&P::DynoTemp).NotShownAtOpening().NotConverted())};
  CheckBox Check9{SheetFrame, "Check9", "Compact Text Report",
                  "When Checked, fuel and air are left out of the Text Report."};
  CheckBox Check10{SheetFrame, "Check10", "Torque NM",
                   "When Checked, the Text Report shows torque in newton meters."};
  Command Command18{
      SheetFrame, "Command18", "Text Report RPM/HP/Torq/BMEP",
      "Text Report Engine RPM Torque Horse Power BMEP using Engine Size (CI), Torque and RPM "
      "inputs for Acceleration / Top Speed",
      Runs(&DynoPanel::ReportSheet)};

  Command Command16{Frame8, "Command16", "Done", "Back to the car.",
                    Runs(&DynoPanel::Close, CommandRole::Closes)};
  Command Command22{Frame8, "Command22", "Quit", "Close this screen.",
                    Runs(&DynoPanel::Quit, CommandRole::Serves)};
};

}  // namespace veldox
