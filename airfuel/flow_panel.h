#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "airfuel/flow_bench.h"
#include "airfuel/flow_file.h"
#include "airfuel/flow_graphs.h"
#include "airfuel/flow_reports.h"
#include "airfuel/graph_panel.h"
#include "airfuel/mach_panel.h"
#include "airfuel/valve_panel.h"
#include "core/field_array.h"
#include "core/field_copy.h"
#include "core/kept.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"
#include "core/table.h"
#include "graph/grapher.h"

namespace veldox {

/// Flow bench sheets of both ports: velocities, discharge coefficients and flow per area, as
/// tables, reports and graphs; flow files of other programs.
class FlowPanel : public ScreenPart {
 public:
  FlowPanel(Screen& screen, ValvePanel& valves, MachPanel& mach, GraphPanel& graphs,
            Grapher& grapher);

  void Open() { Frame11.Open(); }

  /// Asks for a flow file and reads it into valves and tables.
  void ReadFlowFile();
  /// Parses the flow table of a port. @throws CommandError that names the cell
  FlowTable ReadIntake();
  FlowTable ReadExhaust();

 private:
  void ExportFlowFile();
  void ClearTables();
  void LiftsToInches();
  void Calculate();
  void ReportFlow();
  void ReportPistonDemand();
  void GraphCoefficient(int port) { Graph({FlowCurve::Coefficient, port == 0, port == 1}); }
  void GraphSpeed(int port) { Graph({FlowCurve::Speed, port == 0, port == 1}); }
  void GraphFlowPerArea(int port) { Graph({FlowCurve::FlowPerArea, port == 0, port == 1}); }
  void GraphFlow() { Graph({FlowCurve::Flow, true, true}); }
  void GraphAgain();

  /// A port's part of the table.
  struct Columns {
    FieldArray& lifts;
    FieldArray& flows;
    FieldArray& firstFigures;
    FieldArray& secondFigures;
  };
  Columns IntakeColumns() { return {Text48, Text49, Text50, Text51}; }
  Columns ExhaustColumns() { return {Text48Exhaust, Text49Exhaust, Text50Exhaust, Text51Exhaust}; }
  FlowTable ReadTable(const Columns& columns) const;
  /// All that figures, reports and graphs are made of, bore, stroke and rod left out.
  FlowReportValues ReadFlow();
  void ReadEngine(FlowReportValues& values);
  void ShowFigures(const Columns& columns, const FlowPort& port, const FlowTable& table,
                   double testVelocity);
  void ClearTable(const Columns& columns) const;
  void ShowPort(const Columns& columns, const FlowFilePort& port) const;
  void ShowFile(const FlowFile& file, const std::string& name);
  /// Tells what is odd about the flow.
  void NoteFlow(const FlowReportValues& values);
  /// @param lines  each ended by a line break
  void ShowNotes(std::string lines);
  void Graph(const FlowGraph& graph, bool adds = false);
  /// True when the grapher shows a graph with the names of this one at its axes.
  bool ShowsFlow(const FlowPlot& plot) const;
  /// Draws dashed lines onto a graph of the ports' flow: what would pass without loss.
  void DrawLimits(double testVelocity, const FlowPlot& plot);
  void Tell(const std::string& text, Icon icon = Icon::Information) const;

  ValvePanel& valves_;
  MachPanel& mach_;
  GraphPanel& graphs_;
  Grapher& grapher_;
  int filterIndex_ = 1;
  Kept<std::string> source_{screen()};  ///< what is told of the file that was read
  Kept<std::optional<FlowGraph>> lastGraph_{screen()};

 public:
  Panel Frame11{screen(), "Frame11", "Air Flow Details"};

  Frame IntakeFrame{Frame11, "IntakeFlowFrame", "Intake Port", 0};
  FieldArray Text48{IntakeFrame,
                    "Text48",
                    kFlowRows,
                    "Valve Lift",
                    {".100", ".200", ".300", ".400", ".500", ".550", ".600", ".650", ".700", ".750",
                     ".800", ".850", ".900", "1.00", "1.100", "1.200"},
                    Entry(KeyRule::UnsignedReal, Unit::Inches, HoldsColumn<&P::IntakeFlowTable>(0),
                          LeaveCheck::HasDigits),
                    "Rows without lift are passed over."};
  FieldArray Text49{
      IntakeFrame,
      "Text49",
      kFlowRows,
      "Flow CFM @ Test Pressure",
      {"85", "166", "229", "294", "350", "400", "425", "430", "435", "437", "439", "440", "438",
       "0", "0", "0"},
      Entry(KeyRule::UnsignedReal, HoldsColumn<&P::IntakeFlowTable>(1), LeaveCheck::HasDigits)};
  FieldArray Text50{IntakeFrame, "Text50", kFlowRows, "Velocity @ Throat", "", KeyRule::OutputOnly};
  FieldArray Text51{IntakeFrame, "Text51",           kFlowRows, "Discharge Coefficient",
                    "",          KeyRule::OutputOnly};
  Table IntakeTable{IntakeFrame, "IntakeTable", "Intake Flow", {Text48, Text49, Text50, Text51}};

  Frame ExhaustFrame{Frame11, "ExhaustFlowFrame", "Exhaust Port", 1};
  FieldArray Text48Exhaust{ExhaustFrame,
                           "Text48",
                           kFlowRows,
                           "Valve Lift",
                           {".100", ".200", ".300", ".400", ".500", ".550", ".600", ".650", ".700",
                            ".750", ".800", ".850", ".900", "1.00", "1.100", "1.200"},
                           Entry(KeyRule::UnsignedReal, Unit::Inches,
                                 HoldsColumn<&P::ExhaustFlowTable>(0), LeaveCheck::HasDigits),
                           "Rows without lift are passed over.",
                           kFlowRows};
  FieldArray Text49Exhaust{
      ExhaustFrame,
      "Text49",
      kFlowRows,
      "Flow CFM @ Test Pressure",
      {"66", "114", "168", "215", "238", "255", "266", "280", "285", "290", "292", "291", "0", "0",
       "0", "0"},
      Entry(KeyRule::UnsignedReal, HoldsColumn<&P::ExhaustFlowTable>(1), LeaveCheck::HasDigits),
      "",
      kFlowRows};
  FieldArray Text50Exhaust{ExhaustFrame,        "Text50", kFlowRows, "Velocity @ Throat", "",
                           KeyRule::OutputOnly, "",       kFlowRows};
  FieldArray Text51Exhaust{ExhaustFrame,        "Text51", kFlowRows, "Discharge Coefficient", "",
                           KeyRule::OutputOnly, "",       kFlowRows};
  Table ExhaustTable{ExhaustFrame,
                     "ExhaustTable",
                     "Exhaust Flow",
                     {Text48Exhaust, Text49Exhaust, Text50Exhaust, Text51Exhaust}};

  Frame TestFrame{Frame11, "FlowTestFrame", "Flow Test", 2};
  Field Text70{
      TestFrame,
      "Text70",
      "Test Pressure",
      "28",
      Entry(KeyRule::UnsignedReal, Unit::InchesWater, Holds(&P::TestDepression).NotConverted(),
            LeaveCheck::HasDigits),
      "The depression of the flow bench. It moves the coefficients; the flow of the table stays."};
  Command Command50{TestFrame, "Command50(0)", "Valve Sizing",
                    "Get Valve Size, Valve Stem Size, Throat Information and Number of Valves.",
                    CommandWork([this] { valves_.Open(); })};
  Command Read0{TestFrame, "Read(0)", "&Read *.FLW File",
                "Read in Flow Information from a file. There are many *.flw or *.dfw files on the "
                "Internet for use with Engine Simulation Programs. Also *.dyn DeskTop Dyno Files "
                "or *.dym Dynomation Files.",
                Runs(&FlowPanel::ReadFlowFile, CommandRole::Serves)};
  Command Export_Flow_Data{TestFrame, "Export_Flow_Data", "Export Flow Data",
                           "Export Flow Data to in DFW File Format for Use with other Software.",
                           Runs(&FlowPanel::ExportFlowFile, CommandRole::Serves)};
  Command Command66{TestFrame, "Command66", "Clear Fields",
                    "Empties the flow tables of both ports.",
                    Runs(&FlowPanel::ClearTables, CommandRole::Serves)};
  Command MillimetersToInches{TestFrame, "MillimetersToInches", "Lifts mm to Inches",
                              "Valve lifts that were entered in millimeters become inches.",
                              Runs(&FlowPanel::LiftsToInches, CommandRole::Serves)};

  Frame FigureFrame{Frame11, "FlowFigureFrame", "Velocity and Coefficient", 2};
  OptionGroup Option2{
      FigureFrame,
      "Option2",
      "",
      {{0, "Original",
        "This is the Original and does Velocity at Throat and Discharge Coefficient at Curtain "
        "Area."},
       {1, "Curtain", "This does Velocity and Discharge Coefficient at Curtain Area."},
       {2, "Throat", "This does Velocity and Discharge Coefficient at Throat Area."},
       {3, "Valve", "This does Velocity and Discharge Coefficient at Valve Area."},
       {4, "CFM Sq. In", "CFM flow per Sq. Inch at Throat Area and at Valve Area."}},
      0,
      2};
  Command Command33{FigureFrame, "Command33", "&Calculate",
                    "Calculate the two columns that are chosen here for both ports.",
                    Runs(&FlowPanel::Calculate)};

  Frame ReportFrame{Frame11, "FlowReportFrame", "Reports", 2};
  FieldTwin Bore{ReportFrame, mach_.Text52};
  FieldTwin Stroke{ReportFrame, mach_.Text53};
  Field Text113{ReportFrame, "Text113", "Rod Length", "5.7",
                Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::RodLength).NotConverted(),
                      LeaveCheck::HasDigits)};
  Command Command51{ReportFrame, "Command51", "Text Report",
                    "Calculate Intake and Exhaust Curtain fps, Dc, Area, Effective Area, Throat "
                    "fps, Dc, Valve fps, DC, MCSA fps, DC, CFM per sq. In. Throat, Valve, Curtain, "
                    "MCSA and L/D Ratio, Lift mm.",
                    Runs(&FlowPanel::ReportFlow)};
  Command Command95{ReportFrame, "Command95", "Text Report 2",
                    "Using Peak Piston Flow Demand @ RPM from 1000 to 18000. Calculate Intake "
                    "Throat fps, Dc, Valve fps, DC, MCSA fps, DC, CFM per sq. In. Throat, Valve, "
                    "MCSA.",
                    Runs(&FlowPanel::ReportPistonDemand)};

  Frame GraphFrame{Frame11, "FlowGraphFrame", "Graphs", 2};
  CommandArray Command61{
      GraphFrame,
      "Command61",
      {{0, "Graph Int DC", "Graph the intake's Discharge Coefficient at Curtain Area over lift.",
        Runs(&FlowPanel::GraphCoefficient)},
       {1, "Graph Exh DC", "Graph the exhaust's Discharge Coefficient at Curtain Area over lift.",
        Runs(&FlowPanel::GraphCoefficient)}}};
  CommandArray Command62{
      GraphFrame,
      "Command62",
      {{0, "Graph Int fps", "Graph the intake's Velocity at Curtain Area over lift.",
        Runs(&FlowPanel::GraphSpeed)},
       {1, "Graph Exh fps", "Graph the exhaust's Velocity at Curtain Area over lift.",
        Runs(&FlowPanel::GraphSpeed)}}};
  CommandArray Command72{
      GraphFrame,
      "Command72",
      {{0, "Graph Int Sq Inch", "Graph the intake's CFM per Sq. Inch of Curtain Area over lift.",
        Runs(&FlowPanel::GraphFlowPerArea)},
       {1, "Graph Exh Sq Inch", "Graph the exhaust's CFM per Sq. Inch of Curtain Area over lift.",
        Runs(&FlowPanel::GraphFlowPerArea)}}};
  Command Command63{GraphFrame, "Command63", "Graph CFM",
                    "Graph the flow of both ports over lift. Dashed lines show what curtain and "
                    "throat would flow without loss.",
                    Runs(&FlowPanel::GraphFlow)};
  Command Command64{GraphFrame, "Command64", "Graph Plus",
                    "Draw the last of these graphs again from the table as it is now, onto the "
                    "graph that stands there.",
                    Runs(&FlowPanel::GraphAgain)};

  Frame NotesFrame{Frame11, "FlowNotesFrame", "Notes on the Flow", 0};
  ResultLines FlowNotes{NotesFrame, "FlowNotes", "Notes on the Flow",
                        "Where the tables come from, and what is odd about them."};

  Command Command91{Frame11, "Command91(9)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
