#pragma once

#include <optional>
#include <string>

#include "cam/cam_files.h"
#include "cam/cam_timing.h"
#include "cam/lift_analysis.h"
#include "cam/lift_graphs.h"
#include "core/field_array.h"
#include "core/results.h"
#include "core/screen.h"
#include "graph/grapher.h"

namespace veldox {

/// Camshaft information: events, durations, centerlines and lobe separation made of each other,
/// durations that suit an engine, specification cards, and lift files as graphs and tables.
class Form2 : public Screen, public LashTaker {
 public:
  /// @param grapher  where the graphs appear
  /// @param files    what reads lift files and cards
  Form2(ProgramContext& context, Grapher& grapher, CamFiles& files);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }
  void CopyFromBlock() override;
  void Closed() override;
  void Edited(const Control& control) override;
  void TakeLashes(std::optional<double> intake, std::optional<double> exhaust) override;

 private:
  void SolveLobes();
  void SolveEvents();
  void SolveEventsForSeparation();
  void SolveValveLift();
  void SolveCamLift();
  void EstimateDuration();
  void EstimateDurationForEngine();
  void AdvanceLobes();
  void AdvanceEvents();
  void GraphCamLift();
  void GraphFirst();
  void GraphFurther();
  void GraphFurtherFile();
  void ReportCam() { ReportLift(false); }
  void ReportValve() { ReportLift(true); }
  void ReadCamCard();
  void ConvertUnits();

  CamEvents ReadEvents();
  CamLobes ReadLobes();
  void StoreLobes(const CamLobes& lobes);
  void StoreEvents(const CamEvents& events);
  void StorePhase(const LobePhase& phase);
  /// What turning the cam changes: the centerlines, the events and how the lobes stand.
  void StoreTurned(const CamLobes& lobes);

  CamSide ChosenSide() const { return Option1.chosen() == 1 ? CamSide::Exhaust : CamSide::Intake; }
  double UnitsPerInch() const;
  /// Parses what graphs and tables of the chosen side are made of.
  LiftAnalysis ReadAnalysis();
  LiftGraphInput ReadGraphInput(LiftGraph graph);
  /// Reads a lift file that the user picks. False for one without lift.
  bool ReadLiftFile();
  void DrawGraph(const LiftGraphInput& input);
  void AddToGraph(const LiftGraphInput& input);
  LiftGraph ChosenGraph() const { return static_cast<LiftGraph>(Option2.chosen()); }
  void ReportLift(bool ofValve);
  /// Brings the lift tables into the units of the screen, before anything is made of them.
  void MatchTables() { files_.ConvertTables(metric()); }
  void ShowFigures();
  std::string FiguresText(CamSide side) const;

  Grapher& grapher_;
  CamFiles& files_;
  int cardFilter_ = 1;

 public:
  Frame Frame1{*this, "Frame1", "Intake", 0};
  Field Text1{Frame1,
              "Text1",
              "Open BTDC",
              "42.5",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeOpen)),
              "Crank degrees before top dead center at which the intake valve opens."};
  Field Text2{Frame1,
              "Text2",
              "Close ABDC",
              "95.5",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeClose)),
              "Crank degrees after bottom dead center at which the intake valve closes."};
  Field Text6{Frame1, "Text6", "Duration", "318.0",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeDuration))};
  Field Text5{Frame1,
              "Text5",
              "CenterLine",
              "116.5",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::IntakeCL)),
              "Crank degrees after top dead center of the middle of the intake lobe."};
  Field Text12{Frame1, "Text12", "Cam Lift", "0.4",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::CamLIft))};
  Field Text13{Frame1, "Text13", "Valve Lift", "0.6",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ValveLIft))};
  Field Text14{
      Frame1, "Text14", "Rocker Ratio", "1.5",
      Entry(KeyRule::UnsignedReal, Unit::None, Holds(&P::RockerArmRatio).ShownAtOpening())};
  Field Text23{Frame1, "Text23", "Lash", ".024",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::IntakeLash).ShownAtOpening())};

  Frame Frame2{*this, "Frame2", "Exhaust", 0};
  Field Text3{Frame2,
              "Text3",
              "Open BTDC",
              "95.5",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhaustOpen)),
              "Crank degrees before bottom dead center at which the exhaust valve opens."};
  Field Text4{Frame2,
              "Text4",
              "Close ABDC",
              "40.5",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhaustClose)),
              "Crank degrees after top dead center at which the exhaust valve closes."};
  Field Text9{Frame2, "Text9", "Duration", "316.0",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhaustDuration))};
  Field Text8{Frame2,
              "Text8",
              "CenterLine",
              "117.5",
              Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::ExhaustCL)),
              "Crank degrees before top dead center of the middle of the exhaust lobe."};
  Field Text20{Frame2, "Text20", "Cam Lift", "0.4",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ExhaustCamLIft))};
  Field Text21{Frame2, "Text21", "Valve Lift", "0.6",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ExhaustValveLIft))};
  Field Text22{
      Frame2, "Text22", "Rocker Ratio", "1.5",
      Entry(KeyRule::UnsignedReal, Unit::None, Holds(&P::ExhaustRockerArmRatio).ShownAtOpening())};
  Field Text24{Frame2, "Text24", "Lash", ".030",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ExhaustLash).ShownAtOpening())};

  Frame Frame3{*this, "Frame3", "Lobes", 1};
  Field Text10{Frame3, "Text10", "Lobe Separation Angle", "117.5",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::LobeSepAngle))};
  Field Text11{Frame3,
               "Text11",
               "Advance Retarded (-)",
               "0.0",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::AdvanceRetard)),
               "Crank degrees that the cam stands early; a minus sign stands for late."};
  Field Text16{Frame3,
               "Text16",
               "Over Lap",
               "83.0",
               Entry(KeyRule::SignedReal, Unit::Degrees, Holds(&P::Overlap)),
               "Crank degrees while which both valves are open."};

  Frame Frame4{*this, "Frame4", "From Events", 1};
  Command Command1{Frame4, "Command1", "&Timing",
                   "Calculate Cam Duration, Centerline, Lobe Separation Angle from Cam Events",
                   &Form2::SolveLobes};
  Command Command8{Frame4, "Command8", "Adv / &Ret Timing",
                   "Adjust All Cam Events using Advance / Retard and Cam Events",
                   &Form2::AdvanceEvents};

  Frame Frame5{*this, "Frame5", "From Duration and CenterLine", 1};
  Command Command2{Frame5, "Command2", "&Timing", "Calculate Cam Events from Duration, Centerlines",
                   &Form2::SolveEvents};
  Command Command7{Frame5, "Command7", "&Adv / Ret Timing",
                   "Adjust All Cam Events using Advance / Retard, Duration and Centerlines",
                   &Form2::AdvanceLobes};

  Frame Frame6{*this, "Frame6", "From Lobe Separation Angle", 1};
  Command Command3{Frame6, "Command3", "T&iming",
                   "Calculate Cam Events from Duration, Intake Centerline, Lobe Separation Angle",
                   &Form2::SolveEventsForSeparation};

  Frame Frame7{*this, "Frame7", "Lift", 1};
  Command Command4{Frame7, "Command4", "&Valve Lift",
                   "Calculate Valve Lift from Cam Lift and Rocker Arm Ratio",
                   &Form2::SolveValveLift};
  Command Command5{Frame7, "Command5", "&Cam Lift",
                   "Calculate Cam Lift from Valve Lift and Rocker Arm Ratio", &Form2::SolveCamLift};
  CheckBox Check1{Frame7, "Check1", "Metric",
                  "Show and enter lifts and lash in millimetres; lift files are then taken for "
                  "files in millimetres.",
                  &Form2::ConvertUnits};

  Frame Frame8{*this, "Frame8", "Duration for Compression", 2};
  Field Text15{Frame8, "Text15", "Compression Ratio", "0.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::CompressionRatio).ShownAtOpening())};
  Command Command6{Frame8, "Command6", "D&uration",
                   "Calculate Intake Duration from Compression Ratio", &Form2::EstimateDuration};

  Frame Frame9{*this, "Frame9", "Duration for Compression, Size and RPM", 2};
  Field Text18{
      Frame9, "Text18", "Engine Size", "0.0",
      Entry(KeyRule::UnsignedReal, Unit::CubicInches, Holds(&P::CubicInches).ShownAtOpening())};
  Field Text19{Frame9, "Text19", "Number of Cylinders", "8",
               Entry(KeyRule::Digits, Holds(&P::NumberofCylinders).ShownAtOpening())};
  Field Text17{Frame9, "Text17", "RPM", "0",
               Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM).ShownAtOpening())};
  Command Command9{Frame9, "Command9", "Durati&on",
                   "Calculate Intake Duration from Compression Ratio, Engine Size, Number of "
                   "Cylinders and RPM",
                   &Form2::EstimateDurationForEngine};

  Frame Frame10{*this, "Frame10", "Cam Card", 2};
  LabelArray Label1{Frame10, "Label1", {{15, "---"}}};
  CheckBox Check2{Frame10, "Check2", "0.050 - CQU or DYM File",
                  "If Checked and the file being read is a \"CQU\" or \"DYM\" file then the "
                  "0.050\" Cam Timing numbers will be pulled."};
  Command Read{Frame10, "Read", "R&ead *.CAM Data",
               "Read valve lifts and timing from a specification card and calculate the rest.",
               Serves(&Form2::ReadCamCard)};

  Frame Frame11{*this, "Frame11", "Lift Data", 2};
  Field Text27{
      Frame11,
      "Text27",
      "Engine Size",
      "0.000",
      Entry(KeyRule::OutputOnly, Unit::CubicInches, Holds(&P::CubicInches).ShownAtOpening()),
      "The engine that the lifts belong to, as it is entered above."};
  ResultLines LiftFigures{Frame11, "LiftFigures", "Lobes",
                          "The lobes of the lift file in figures, in the file's degrees."};

  Frame Frame12{*this, "Frame12", "Lift File", 3};
  OptionGroup Option1{Frame12,
                      "Option1",
                      "",
                      {{0, "Intake", "Graphs and tables show the intake side."},
                       {1, "Exhaust", "Graphs and tables show the exhaust side."}},
                      0,
                      2};
  OptionGroup Option2{Frame12,
                      "Option2",
                      "",
                      {{0, "Cam Lift", "Lift at the lobe."},
                       {1, "Valve Lift", "Lift at the valve: times the rocker ratio less lash."},
                       {2, "Vel Cam", "Lift at the lobe per degree."},
                       {3, "Vel Cam fps",
                        "Speed at the lobe in feet a second at the RPM, the file's degrees taken "
                        "for crank degrees."},
                       {4, "Vel Valve", "Lift at the valve per degree."},
                       {5, "Accel Cam", "Velocity at the lobe per degree."},
                       {6, "Accel Cam fps", "Speed at the lobe in feet a second, per degree."},
                       {7, "Jerk Cam", "Acceleration at the lobe per degree."},
                       {8, "Vel Valve fps",
                        "Speed of the valve in feet a second at the RPM, the file's degrees taken "
                        "for crank degrees."},
                       {9, "Accel Valve fps", "Speed of the valve in feet a second, per degree."},
                       {10, "Accel Valve", "Velocity of the valve per degree."}},
                      0,
                      2};
  CheckBox Check3{Frame12, "Check3", "Smooth Data Graph / Text Report",
                  "When Checked Smooth Graph will use the User selected algorithm to smooth the "
                  "Graphed data."};
  Field Text25{Frame12,
               "Text25",
               "Smooth Type",
               "SG",
               KeyRule::AnyText,
               "SG: Savitzky-Golay, a parabola through the neighbours. MA: moving average. TR: "
               "triangle, near neighbours count more."};
  CheckBox Check6{Frame12, "Check6", "S L D - Smooth Lift Data",
                  "If Smooth Graph is Checked. Checking this box will cause the Lift Data to also "
                  "be Smoothed before being used."};
  CheckBox Check7{Frame12, "Check7", "4.2.0",
                  "You will only see a difference if 'Every x degrees' is not equal to 1.\r\n"
                  "If 4.2.0 is Checked. Checking this box will cause the program to use a "
                  "different way to calculate Acceleration and Jerk."};
  CheckBox Check4{Frame12, "Check4", "0.040",
                  "If Checked it will Cause the Standard Line to be drawn at 0.040\" instead of "
                  "0.050\"."};
  CheckBox Check5{Frame12, "Check5", "Dots",
                  "If Checked it will Cause the Software to place a Dot at Each Data Point on the "
                  "Graph."};
  Command Command10{Frame12, "Command10", "Graph Lift",
                    "Read a lift file and draw the lift of its intake or exhaust lobe.",
                    Serves(&Form2::GraphCamLift)};
  Command Command11{Frame12, "Command11", "Graph First",
                    "Read a lift file and start a graph of what is chosen above.",
                    Serves(&Form2::GraphFirst)};
  Command Command12{Frame12, "Command12", "Graph Plus",
                    "Add what is chosen above to the graph, from the lift file that was read last.",
                    Serves(&Form2::GraphFurther)};
  Command Command15{Frame12, "Command15", "Graph Plus File",
                    "Read another lift file and add what is chosen above to the graph, so that two "
                    "cams can be compared.",
                    Serves(&Form2::GraphFurtherFile)};
  Command Command13{Frame12, "Command13", "Text Report Cam",
                    "Show lift, velocity, acceleration and jerk of the lobe record by record.",
                    Serves(&Form2::ReportCam)};
  Command Command14{Frame12, "Command14", "Text Report Valve",
                    "Show lift, velocity, acceleration and jerk of the valve record by record.",
                    Serves(&Form2::ReportValve)};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
