#pragma once

#include <optional>

#include "airfuel/airflow_page.h"
#include "airfuel/choke_panel.h"
#include "airfuel/exhaust_panel.h"
#include "airfuel/flow_panel.h"
#include "airfuel/fuel_panel.h"
#include "airfuel/graph_panel.h"
#include "airfuel/injector_panel.h"
#include "airfuel/mach_panel.h"
#include "airfuel/port_panel.h"
#include "airfuel/time_area_panel.h"
#include "airfuel/valve_panel.h"
#include "cam/cam_files.h"
#include "core/panel.h"
#include "core/screen.h"

namespace veldox {

/// Air, fuel and exhaust: a main page, and panels that its buttons show over it. Each of them is a
/// class of its own.
class Form4 : public Screen, public LashTaker {
  // Parts are handed it, which are made before what is declared behind them.
  Grapher& grapher_;
  CamFiles& camFiles_;

 public:
  /// @param camFiles  what reads lift files
  Form4(ProgramContext& context, Grapher& grapher, CamFiles& camFiles);

  CheckBox* MetricBox() override { return &TimeArea.Metric; }
  void CopyFromBlock() override;
  void TakeLashes(std::optional<double> intake, std::optional<double> exhaust) override;
  Control* HelpPlace() override { return &Text78; }
  ReportBox* ReportPane() override { return &Text78; }

  FuelPanel Fuel{*this};
  AirflowPage Page{*this, Fuel};

  Frame PanelsFrame{Page.Frame1, "PanelsFrame", "Panels", 0};
  Command Command35{PanelsFrame, "Command35", "Analyze Flow Data",
                    "Show Analyze Air Flow Data Form.", Opens(&Form4::Flow)};
  Command Command37{PanelsFrame, "Command37", "EFI - Sizing", "Show EFI - Injector Sizing Form.",
                    Opens(&Form4::Injectors)};
  Command Command39{PanelsFrame, "Command39", "Valve Mach Sizing",
                    "Show Valve / Mach - Sizing Data Form.", Opens(&Form4::Mach)};
  Command Command43{PanelsFrame, "Command43", "Exhaust / Header", "Show Exhaust/Header Form.",
                    Opens(&Form4::Exhaust)};
  Command Command48{PanelsFrame, "Command48", "Port Time Area", "Show Analyze Port Time Area Form.",
                    Opens(&Form4::TimeArea)};
  Command Command55{PanelsFrame, "Command55", "Port Flow / CSA", "Show Port Flow / CSA Form.",
                    Opens(&Form4::Choke)};
  Command Command50{PanelsFrame, "Command50(3)", "Valve Sizing",
                    "Get Valve Size, Valve Stem Size, Throat Information and Number of Valves.",
                    Opens(&Form4::Valves)};
  Command Command80{PanelsFrame, "Command80", "Calculators", "Show Calculators Form.",
                    Opens(&Form4::Ports)};
  Command Command34{PanelsFrame, "Command34", "Set Lambda Fuel",
                    "Select Fuel Type for Use with Lambda Value.", Opens(&Form4::Fuel)};
  Command Command69{PanelsFrame, "Command69", "Graphing", "Show Graphing Options Form.",
                    Opens(&Form4::Graphs)};

  InjectorPanel Injectors{*this, Page};
  ValvePanel Valves{*this};
  MachPanel Mach{*this, Page, grapher_};
  GraphPanel Graphs{*this};
  FlowPanel Flow{*this, Valves, Mach, Graphs, grapher_};
  PortPanel Ports{*this};
  ExhaustPanel Exhaust{*this, Page};
  ChokePanel Choke{*this, Page, Valves, Mach, Flow, grapher_};
  TimeAreaPanel TimeArea{*this, {Page, Valves, Mach, Flow, Choke, Graphs}, camFiles_, grapher_};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text78{HelpFrame, "Text78"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
