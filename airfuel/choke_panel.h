#pragma once

#include "airfuel/airflow_page.h"
#include "airfuel/choke_reports.h"
#include "airfuel/flow_panel.h"
#include "airfuel/mach_panel.h"
#include "airfuel/valve_panel.h"
#include "core/field_copy.h"
#include "core/panel.h"
#include "core/screen_part.h"
#include "graph/grapher.h"

namespace veldox {

/// Choking ports of the air and fuel screen: the speed that each valve lift is enough for, and the
/// flow and cross-sections that go with it. Valves and lifts are those of other panels.
class ChokePanel : public ScreenPart {
 public:
  ChokePanel(Screen& screen, AirflowPage& page, ValvePanel& valves, MachPanel& mach,
             FlowPanel& flow, Grapher& grapher)
      : ScreenPart(screen),
        page_(page),
        valves_(valves),
        mach_(mach),
        flow_(flow),
        grapher_(grapher) {}

  void Open() { Frame15.Open(); }

 private:
  void ReportChoke();
  void GraphChoke();

  /// Parses all that report and graph are made of.
  ChokeValues ReadValues();

  AirflowPage& page_;
  ValvePanel& valves_;
  MachPanel& mach_;
  FlowPanel& flow_;
  Grapher& grapher_;

 public:
  Panel Frame15{screen(), "Frame15", "Port Flow / CSA"};

  Frame EngineFrame{Frame15, "ChokeEngineFrame", "Engine", 0};
  FieldTwin Bore{EngineFrame, mach_.Text52};
  FieldTwin Stroke{EngineFrame, mach_.Text53};
  FieldTwin PeakPowerRpm{EngineFrame, page_.Text27};
  FieldTwin VolumetricEfficiency{EngineFrame, page_.Text11};
  Field Text83{EngineFrame,
               "Text83",
               "USER Velocity - fps",
               "280",
               Entry(KeyRule::UnsignedReal, Unit::FeetPerSecond, Holds(&P::UserVelocityfps),
                     LeaveCheck::HasDigits),
               "The air speed that the report's last cross-sections are told for."};
  Field Text61{EngineFrame,
               "Text61",
               "User DC",
               ".55",
               Entry(KeyRule::UnsignedReal, Holds(&P::UserDC), LeaveCheck::HasDigits),
               "The discharge coefficient at the valve's curtain that the flow is told for."};

  Frame ValveFrame{Frame15, "ChokeValveFrame", "Valves and Lifts", 1};
  FieldCopy IntakeValve{ValveFrame, valves_.Text42};
  FieldCopy IntakeCount{ValveFrame, valves_.Text62};
  FieldCopy ExhaustValve{ValveFrame, valves_.Text45};
  FieldCopy ExhaustCount{ValveFrame, valves_.Text63};
  Command Command50{ValveFrame, "Command50(2)", "Valve Sizing",
                    "Get Valve Size, Valve Stem Size, Throat Information and Number of Valves.",
                    CommandWork([this] { valves_.Open(); })};
  Label LiftsNote{ValveFrame, "LiftsNote",
                  "The lifts are those of the intake in\r\n\"Analyze Flow Data\"."};

  Frame Frame19{Frame15, "Frame19", "Exhaust Logic", 2};
  OptionGroup Option9{Frame19,
                      "Option9",
                      "",
                      {{0, "Use Old Exhaust Logic", "The exhaust is told by its own valve size."},
                       {1, "Use New Exhaust Logic - 4.4.4",
                        "The exhaust follows the intake, by the ratio of the valve sizes."}}};

  Frame ReportFrame{Frame15, "ChokeReportFrame", "Choke RPM", 2};
  Command Command57{ReportFrame, "Command57", "&Calculate - Text",
                    "Calculate Choke RPM, Minimum CFM, CSA, Throat Velocity and L/D Ratio of both "
                    "ports for each valve lift. The RPM Max HP becomes the RPM of all screens.",
                    Runs(&ChokePanel::ReportChoke)};
  Command Command60{ReportFrame, "Command60", "&Graph",
                    "Graph Choke RPM of both ports over valve lift, with a line at RPM Max HP.",
                    Runs(&ChokePanel::GraphChoke)};

  Command Command91{Frame15, "Command91(3)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
