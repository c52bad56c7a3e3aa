#pragma once

#include <optional>

#include "core/kept.h"
#include "core/panel.h"
#include "core/screen.h"
#include "graph/grapher.h"
#include "vehicle/acceleration_page.h"
#include "vehicle/drag.h"
#include "vehicle/dyno_panel.h"
#include "vehicle/gearbox.h"
#include "vehicle/nitrous_stages_panel.h"
#include "vehicle/road_charts.h"
#include "vehicle/run_inputs.h"
#include "vehicle/shift_panel.h"
#include "vehicle/torque_table_panel.h"

namespace veldox {

/// Acceleration and top speed: a run down the strip, worked out in small steps of engine speed from
/// the torque table, the gearbox and the car. Its main page and its panels take turns, each a class
/// of its own; the commands that run the car stay beside them.
class Form13 : public Screen, public GearboxTaker, public DragTaker {
  // Parts are handed it, which are made before what is declared behind them.
  Grapher& grapher_;

 public:
  Form13(ProgramContext& context, Grapher& grapher);

  Control* HelpPlace() override { return &Text58; }
  ReportBox* ReportPane() override { return &Text58; }
  void TakeGearbox(const Gearbox& gearbox) override;
  void TakeDrag(const DragFigures& figures) override;

 private:
  void SolveWheelTorque();
  void RunCar();
  void RunCvt();
  /// A closed screen may hold old values: it takes the shared ones as if it opened, so that its
  /// commands put nothing back.
  void TakeShared();
  void CompareWithLastRun();
  /// Shows the chart of a run and keeps what it came to.
  void ShowRun(AccelerationChart chart, bool isCvt);

  /// The run whose chart was shown last.
  struct LastRun {
    RunResult result;
    bool isCvt = false;
  };
  Kept<std::optional<LastRun>> lastRun_{*this};

 public:
  AccelerationPage Page{*this, Torques};
  Command Command23{Page.WheelFrame, "Command23", "&Wheel Torque",
                    "Calculate Wheel Drive Torque, Wheel Thrust and G Force in first gear using "
                    "Torque, Trans Gear Ratio 1, Rear Gear Ratio, % Drive Train Power Loss, Tire "
                    "Rolling Radius, and Vehicle Weight.",
                    &Form13::SolveWheelTorque};
  ShiftPanel Shifts{*this};
  NitrousStagesPanel Stages{*this};
  TorqueTablePanel Torques{*this};
  RunInputs Inputs{*this, Page, Shifts, Stages};
  RoadCharts Roads{*this, Inputs};
  DynoPanel Dyno{*this, Inputs, grapher_};

  Frame RunFrame{*this, "RunFrame", "Run", 0};
  Command Command25{
      RunFrame, "Command25", "A&cceleration",
      "Acceleration and Top Speed Prediction Chart with 60 foot, 330 foot, 1/8 Mile, and 1/4 Mile "
      "ET using RPM and Torque from Parameter File also Coefficient of Drag, Frontal Area, Tire "
      "Rolling Resistance, Tire Diameter, Tire Rolling Radius, Launch RPM, % Rear End Power Loss, "
      "% Power Loss, Vehicle Weight with Driver, Dyno Correction Factor, Shift RPMs, Tire Growth "
      "Percentages, Shift Times, Rollout, Coefficient of Mu, Track - BP or Air Density and Wind.",
      &Form13::RunCar};
  Command Command13{
      RunFrame, "Command13", "CVT",
      "Acceleration and Top Speed Prediction Chart of a Continuously Variable Transmission, which "
      "keeps the engine at the CVT RPM, using CVT Power Loss in place of gears and shifts.",
      &Form13::RunCvt};
  Command Command34{
      RunFrame, "Command34", "Compare With Last Run",
      "Run the car with the present values beside the last chart of Acceleration or CVT: time and "
      "speed at each mark, top speed and traction of both runs, and the difference.",
      &Form13::CompareWithLastRun};
  Frame CarFrame{*this, "CarFrame", "Gears and Nitrous", 1};
  Command Command21{CarFrame, "Command21", "Trans/Shift RPM",
                    "Trans Gear Ratios, Tire Growth, Power Loss, Shift RPM and Shift Times.",
                    Opens(&Form13::Shifts)};
  Command Command11{CarFrame, "Command11", "Nitrous Screen",
                    "The stages of nitrous, by gear and by time.", Opens(&Form13::Stages)};
  Frame EngineFrame{*this, "EngineFrame", "Engine", 2};
  Command TorqueTable{EngineFrame, "TorqueTable", "Torque Table",
                      "The points of RPM and torque that a run takes, to be seen and edited.",
                      Opens(&Form13::Torques)};
  Frame GraphFrame{*this, "GraphFrame", "Graphs and Reports", 3};
  Command Command15{GraphFrame, "Command15", "Graph Accel / Dyno / Report",
                    "Graphs of the run and of the dyno sheet, and the dyno sheet as a text report.",
                    Opens(&Form13::Dyno)};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text58{HelpFrame, "Text58"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
