#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "airfuel/airflow_page.h"
#include "airfuel/choke_panel.h"
#include "airfuel/flow_panel.h"
#include "airfuel/graph_panel.h"
#include "airfuel/mach_panel.h"
#include "airfuel/time_area_graphs.h"
#include "airfuel/time_area_reports.h"
#include "airfuel/valve_panel.h"
#include "cam/cam_files.h"
#include "core/field_array.h"
#include "core/field_copy.h"
#include "core/frame_row.h"
#include "core/kept.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"
#include "core/table.h"
#include "graph/grapher.h"

namespace veldox {

/// Port time area of the air and fuel screen: what a cam, a cylinder head and a piston make of
/// each other, degree by degree. Flow, valves and engine are those of other panels, the lobes
/// those of the lift file that was read last.
class TimeAreaPanel : public ScreenPart {
 public:
  /// The parts that it works with.
  struct Parts {
    AirflowPage& page;
    ValvePanel& valves;
    MachPanel& mach;
    FlowPanel& flow;
    ChokePanel& choke;
    GraphPanel& graphs;
  };
  TimeAreaPanel(Screen& screen, const Parts& parts, CamFiles& files, Grapher& grapher);

  void Open();

  /// Tells which cam is loaded, and when its valves open.
  void ShowCam();
  void TakeLashes(std::optional<double> intake, std::optional<double> exhaust);

 private:
  void ReportLiftTable();
  void ReportLiftFile();
  void ReportCamSpec();
  void GraphFirst() { Graph(false); }
  void GraphFurther() { Graph(true); }
  void SetLiftTable();
  void ReadLiftFile();
  void ConvertUnits();

  /// The fields of a side.
  struct SideFields {
    Field& ratio;
    Field& lash;
    Field& valveAngle;
    Field& valveOpen;
    FieldArray& lifts;
    FieldArray& durations;
  };
  SideFields FieldsOf(CamSide side);

  /// Parses the valve gear of a side, and where its lobe stands.
  TimeAreaSide ReadGear(CamSide side);
  /// Parses engine, valves, flow and valve gear. The curves are empty.
  TimeAreaValues ReadValues();
  /// The lobes of the lift file. @throws CommandError without one
  void TakeLiftFile(TimeAreaValues& values);
  ValveCurve CurveOfFile(const TimeAreaSide& side) const;
  /// @throws CommandError without a lift file
  void RequireCam() const;
  bool HasCam() const;
  std::string CamName() const;
  /// The steps of the lift file are degrees of the cam.
  bool HasCamDegrees() const;
  /// Crank degrees between the records of a side.
  double CrankStep(const LiftTable& table) const;
  std::vector<LiftDuration> ReadLiftTable(CamSide side);
  /// Parses the lift step that the timing of the valves is told at.
  void ReadTimingLifts(TimeAreaValues& values);
  void ShowTimeArea(std::string (*make)(const TimeAreaValues&, DecimalMark),
                    const TimeAreaValues& values);
  void Graph(bool adds);
  /// The graph that stands there is over crank degrees, as a further curve is.
  bool ShowsDegrees(const FlowPlot& plot) const;
  /// The rows of a lift table by the lifts of the flow table and the cam, as many as it has.
  /// @param isCut  is set where a lift that the cam reaches has no row
  std::vector<LiftDuration> LiftTableOfCam(CamSide side, bool& isCut);
  /// The cam that the rows of a lift table are of; empty where they are not, or not any more.
  std::string CamOfTable(CamSide side, std::span<const LiftDuration> rows) const;
  std::string CamText();
  std::string SideText(CamSide side);

  Parts parts_;
  CamFiles& files_;
  Grapher& grapher_;

  /// What "Set Lift Table" has made of a side's table.
  struct FilledTable {
    std::string cam;
    std::vector<LiftDuration> rows;  ///< those with a duration
  };
  Kept<FilledTable> intakeFilled_{screen()};
  Kept<FilledTable> exhaustFilled_{screen()};

 public:
  Panel Frame12{screen(), "Frame12", "Valve - Cam Details"};

  Frame EngineFrame{Frame12, "TimeAreaEngineFrame", "Engine", 0};
  FieldTwin Bore{EngineFrame, parts_.mach.Text52};
  FieldTwin Stroke{EngineFrame, parts_.mach.Text53};
  FieldTwin RodLength{EngineFrame, parts_.flow.Text113};
  Field Text94{EngineFrame, "Text94", "Wrist Pin Offset", "0.0",
               Entry(KeyRule::SignedReal, Unit::Inches, Holds(&P::WristPinOffset).ShownAtOpening(),
                     LeaveCheck::HasDigits)};
  FieldTwin Rpm{EngineFrame, parts_.page.Text2};
  FieldTwin UserDc{EngineFrame, parts_.choke.Text61};
  CheckBox Metric{EngineFrame, "Check1(4)", "Metric",
                  "Lifts, lashes and the clearance of this form in millimeters. Engine, valves "
                  "and flow stay as they are.",
                  [this] { ConvertUnits(); }};

  Frame ValveFrame{Frame12, "TimeAreaValveFrame", "Valves and Flow", 0};
  FieldCopy IntakeValve{ValveFrame, parts_.valves.Text42};
  FieldCopy IntakeCount{ValveFrame, parts_.valves.Text62};
  FieldCopy ExhaustValve{ValveFrame, parts_.valves.Text45};
  FieldCopy ExhaustCount{ValveFrame, parts_.valves.Text63};
  Command Command50{ValveFrame, "Command50(1)", "Valve Sizing",
                    "Get Valve Size, Valve Stem Size, Throat Information and Number of Valves.",
                    CommandWork([this] { parts_.valves.Open(); })};
  Command Read1{ValveFrame, "Read(1)", "&Read *.FLW File",
                "Read in Flow Information from a file. There are many *.flw or *.dfw files on the "
                "Internet for use with Engine Simulation Programs. Also *.dyn DeskTop Dyno Files "
                "or *.dym Dynomation Files.",
                CommandWork([this] { parts_.flow.ReadFlowFile(); }, CommandRole::Serves)};

  Frame GraphFrame{Frame12, "TimeAreaGraphFrame", "Graph", 0};
  OptionGroup Option6{
      GraphFrame,
      "Option6",
      "",
      {{0, "Flow", "What the flow tables give at the valve's lift."},
       {1, "Lift", "The lift of the valves."},
       {2, "Cur DC", "The discharge coefficient at the curtain."},
       {3, "Cur Area", "The area that is open at the valve."},
       {4, "Time Area", "Area by time, in square centimeters by milliseconds."},
       {5, "Time Area/cc", "The same by the cylinder's volume in cc."},
       {6, "Lift Vert", "The lift of the valves along the bore."},
       {7, "Lift Horiz", "The lift of the valves across the bore."},
       {8, "Piston Travel", "How far the piston stands below its top."},
       {9, "Piston Flow", "The flow that the piston asks for."},
       {10, "Cur Vel",
        "The velocity of the piston's demand at the valve, from .050 inches of lift on."},
       {11, "Throat Vel", "The velocity of the piston's demand in the throat."},
       {12, "Min CSA Vel",
        "The velocity of the piston's demand in the port's smallest cross-section."},
       {13, "Piston Velocity", "The velocity of the piston, times Scale Size 2."},
       {14, "Piston Acceler", "The acceleration of the piston, times Scale Size 2."}},
      0,
      3};
  CheckBox Wide{GraphFrame, "Check1(8)", "360-360",
                "Graphs begin at -360 degrees and end at 360, not at 280."};
  FieldTwin Zoom{GraphFrame, parts_.graphs.Text65};
  FieldTwin PistonScale{GraphFrame, parts_.graphs.Text66};
  Command Command67{GraphFrame, "Command67", "Graph", "Draw what is chosen over crank degrees.",
                    Runs(&TimeAreaPanel::GraphFirst)};
  Command Command68{GraphFrame, "Command68", "Graph Plus",
                    "Draw what is chosen onto the graph that stands there.",
                    Runs(&TimeAreaPanel::GraphFurther)};

  Frame CamFrame{Frame12, "TimeAreaCamFrame", "Cam", 1};
  ResultLines CamNotes{CamFrame, "CamNotes", "Cam", "The cam whose lift file was read last."};
  Command ReadCam{CamFrame, "ReadCam", "Read Cam Lift File",
                  "Read a lift file, *.cmm or Cam Doctor, into the lift tables of all screens.",
                  Runs(&TimeAreaPanel::ReadLiftFile, CommandRole::Serves)};

  Frame IntakeFrame{Frame12, "TimeAreaIntakeFrame", "Intake", 1};
  Field Text92{IntakeFrame, "Text92", "Rocker Arm Ratio", "1.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::RockerArmRatio).ShownAtOpening(),
                     LeaveCheck::HasDigits)};
  Field Text88{IntakeFrame, "Text88", "Valve Lash", ".024",
               Entry(KeyRule::UnsignedReal, Unit::Length,
                     Holds(&P::IntakeLash).ShownAtOpening().KeptInUs(), LeaveCheck::HasDigits)};
  Field Text72{
      IntakeFrame,
      "Text72",
      "Valve Angle",
      "20",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeValveAngle), LeaveCheck::HasDigits),
      "The angle of the valve's stem to the bore."};

  Frame ExhaustFrame{Frame12, "TimeAreaExhaustFrame", "Exhaust", 1};
  Field Text93{ExhaustFrame, "Text93", "Rocker Arm Ratio", "1.5",
               Entry(KeyRule::UnsignedReal, Holds(&P::ExhaustRockerArmRatio).ShownAtOpening(),
                     LeaveCheck::HasDigits)};
  Field Text91{ExhaustFrame, "Text91", "Valve Lash", ".030",
               Entry(KeyRule::UnsignedReal, Unit::Length,
                     Holds(&P::ExhaustLash).ShownAtOpening().KeptInUs(), LeaveCheck::HasDigits)};
  Field Text73{ExhaustFrame,
               "Text73",
               "Valve Angle",
               "20",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhaustValveAngle),
                     LeaveCheck::HasDigits),
               "The angle of the valve's stem to the bore."};

  Frame FileFrame{Frame12, "TimeAreaFileFrame", "Only used by the Port Time Area2 / Graphing", 1};
  Field Text85{
      FileFrame,
      "Text85",
      "Degrees BTDC Intake Open",
      "42",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeOpenBTDC), LeaveCheck::HasDigits),
      "Where the intake valve leaves its seat, in crank degrees before top dead center."};
  Field Text87{
      FileFrame,
      "Text87",
      "Degrees BBDC Exhaust Open",
      "86",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhaustOpenBBDC), LeaveCheck::HasDigits),
      "Where the exhaust valve leaves its seat, in crank degrees before bottom dead "
      "center."};
  Field Text74{
      FileFrame,
      "Text74",
      "Advance Retard (-) / Intake",
      "0.0",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::AFAdvanceRetard), LeaveCheck::HasDigits),
      "Crank degrees that the camshaft stands early, a minus sign stands for late; of the "
      "intake's alone where there are two."};
  Field Text75{
      FileFrame,
      "Text75",
      "Advance Retard (-) / Exhaust DOHC",
      "0.0",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhAdvanceRetard), LeaveCheck::HasDigits),
      "The same of the exhaust's own camshaft; without \"DOHC\" it stands as the intake."};
  CheckBox Dohc{FileFrame, "Check1(5)", "DOHC", "Intake and exhaust have camshafts of their own."};
  CheckBox CamDegrees{FileFrame, "CamDegrees", "Cam Degrees",
                      "The steps of the lift file are cam degrees, of which each is two of the "
                      "crank. Those of Cam Doctor files always are; a *.cmm that was converted "
                      "from one needs this box."};
  CheckBox Skip{FileFrame, "Check1(6)", "DR CPP Skip",
                "Records of Cam Doctor and Cam Pro Plus files before the valve opens are passed "
                "over, as in all other files. Without this their first record stands at the "
                "degrees above."};
  Field Text77{
      FileFrame,
      "Text77",
      "Valve to Piston Cl",
      "0.0",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ValvetoPistonCl).KeptInUs(),
            LeaveCheck::HasDigits),
      "Valve to piston clearance along the bore with the piston at top dead center and the "
      "valve closed. The report tells the least one then; 0 leaves it out."};
  Field Text68{FileFrame,
               "Text68",
               "Calculate Every x.xx lift",
               ".05",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::CalculateEveryLift).KeptInUs(),
                     LeaveCheck::HasDigits),
               "The valve's timing is told at each of these lifts."};

  Frame ReportFrame{Frame12, "TimeAreaReportFrame", "Text Reports", 2};
  Command Command52{
      ReportFrame, "Command52", "Port Time Area",
      "Calculate Time Area, Piston Flow, Velocities and Depressions of both ports "
      "for each lift of the lift tables. The averages are those of the rows where the "
      "air goes the port's own way.",
      Runs(&TimeAreaPanel::ReportLiftTable)};
  Command Command71{ReportFrame, "Command71", "Port Time Area 2",
                    "Calculate Time Area, Valve Velocity, Lift, Piston Travel, Flow and Discharge "
                    "Coefficient of both ports for each record of the lift file.",
                    Runs(&TimeAreaPanel::ReportLiftFile)};
  Command Command111{ReportFrame, "Command111", "Just Cam Spec",
                     "Tell only when the valves of the lift file open and close.",
                     Runs(&TimeAreaPanel::ReportCamSpec)};

  Command Command53{ReportFrame, "Command53", "&Done", "Back to the air and fuel flow.",
                    PutsAway()};
  Command Command91{ReportFrame, "Command91(5)", "Done", "Back to the air and fuel flow.",
                    PutsAway()};

  FrameRow TableRow{Frame12, "TimeAreaTableRow", 2};
  Frame IntakeTableFrame{TableRow, "IntakeLiftFrame", "Intake Lift Table", 0};
  FieldArray Text95{IntakeTableFrame,
                    "Text95",
                    kFlowRows,
                    "Lift",
                    {"0.0", ".050", ".100", ".200", ".300", ".400", ".500", ".550", "0.0"},
                    Entry(KeyRule::UnsignedReal, Unit::Length,
                          HoldsColumn<&P::IntakeLiftTable>(0).KeptInUs(), LeaveCheck::HasDigits)};
  FieldArray Text96{IntakeTableFrame,
                    "Text96",
                    kFlowRows,
                    "Duration",
                    {"290", "262", "242", "208", "174", "136", "86", "42", "0.0"},
                    Entry(KeyRule::UnsignedReal, Unit::Degrees, HoldsColumn<&P::IntakeLiftTable>(1),
                          LeaveCheck::HasDigits),
                    "Crank degrees during which the valve is open by the lift. Rows without are "
                    "passed over."};
  Table IntakeTable{IntakeTableFrame, "IntakeLiftTable", "Intake Lift", {Text95, Text96}};
  Frame ExhaustTableFrame{TableRow, "ExhaustLiftFrame", "Exhaust Lift Table", 1};
  FieldArray Text95Exhaust{
      ExhaustTableFrame,
      "Text95",
      kFlowRows,
      "Lift",
      {"0.0", ".050", ".100", ".200", ".300", ".400", ".500", ".550", "0.0"},
      Entry(KeyRule::UnsignedReal, Unit::Length, HoldsColumn<&P::ExhaustLiftTable>(0).KeptInUs(),
            LeaveCheck::HasDigits),
      "",
      kFlowRows};
  FieldArray Text96Exhaust{ExhaustTableFrame,
                           "Text96",
                           kFlowRows,
                           "Duration",
                           {"298", "270", "250", "216", "182", "144", "94", "50", "0.0"},
                           Entry(KeyRule::UnsignedReal, Unit::Degrees,
                                 HoldsColumn<&P::ExhaustLiftTable>(1), LeaveCheck::HasDigits),
                           "Crank degrees during which the valve is open by the lift. Rows without "
                           "are passed over.",
                           kFlowRows};
  Table ExhaustTable{
      ExhaustTableFrame, "ExhaustLiftTable", "Exhaust Lift", {Text95Exhaust, Text96Exhaust}};

  Frame LiftTableFrame{Frame12, "LiftTableFrame", "Only used by the Port Time Area", 2};
  Field Text64{
      LiftTableFrame,
      "Text64",
      "Degrees TDC / Intake Centerline",
      "108",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::DegreeTDC), LeaveCheck::HasDigits),
      "Crank degrees after top dead center of the middle of the intake's durations."};
  Field Text76{
      LiftTableFrame,
      "Text76",
      "Lobe Sep Angle",
      "110",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::AFLobeSepAngle), LeaveCheck::HasDigits),
      "Cam degrees between the middles of intake and exhaust; it places the exhaust."};
  Command Command87{LiftTableFrame, "Command87", "Set Lift Table",
                    "The lift tables get a row without lift and the lifts of the flow tables, and "
                    "their durations from the cam that is loaded.",
                    Runs(&TimeAreaPanel::SetLiftTable, CommandRole::Serves)};
};

}  // namespace veldox
