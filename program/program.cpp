#include "program/program.h"

#include "airfuel/airflow_screen.h"
#include "airfuel/blower_screen.h"
#include "airfuel/nitrous_screen.h"
#include "cam/cam_files.h"
#include "cam/cam_generator_screen.h"
#include "cam/cam_information_screen.h"
#include "chassis/corner_weights_screen.h"
#include "chassis/springs_screen.h"
#include "core/seek_screen.h"
#include "engine/compression_gauge_screen.h"
#include "engine/compression_ratio_screen.h"
#include "engine/displacement_screen.h"
#include "engine/engine_finder_screen.h"
#include "graph/vary_screen.h"
#include "reference/charts_screen.h"
#include "reference/unit_conversion_screen.h"
#include "reference/weather_screen.h"
#include "twostroke/expansion_chamber_screen.h"
#include "twostroke/port_timing_screen.h"
#include "vehicle/acceleration_screen.h"
#include "vehicle/drag_finder_screen.h"
#include "vehicle/elapsed_time_screen.h"
#include "vehicle/gear_screen.h"
#include "vehicle/gearbox_finder_screen.h"

namespace veldox {

template <class S, class... Arguments>
S& Program::AddScreen(Arguments&&... arguments) {
  auto screen = std::make_unique<S>(*context_, arguments...);
  S& added = *screen;
  screens_.push_back(std::move(screen));
  shell_->Add(added);
  return added;
}

Program::Program(Host& host)
    : context_(std::make_unique<ProgramContext>(host)),
      shell_(std::make_unique<Shell>(*context_)),
      camFiles_(std::make_unique<CamFiles>(*context_)),
      camTools_(std::make_unique<CamTools>(*shell_, *camFiles_)),
      fileTools_(std::make_unique<FileTools>(*shell_)) {
  grapher_ = &AddScreen<Form8>();
  auto& displacement = AddScreen<Form1>(static_cast<Grapher&>(*grapher_));
  AddScreen<Form1CR>(static_cast<Grapher&>(*grapher_));
  auto& camInformation = AddScreen<Form2>(static_cast<Grapher&>(*grapher_), *camFiles_);
  camFiles_->AddLashTaker(camInformation);
  AddScreen<Form12>(static_cast<Grapher&>(*grapher_));
  AddScreen<Form21>(displacement);
  AddScreen<Form16>();
  AddScreen<Form6>();
  AddScreen<Form11>();
  AddScreen<Form18>(static_cast<Grapher&>(*grapher_));
  AddScreen<Form9>();
  AddScreen<Form10>();
  AddScreen<Form14>(static_cast<Grapher&>(*grapher_));
  AddScreen<Form17>();
  auto& airflow = AddScreen<Form4>(static_cast<Grapher&>(*grapher_), *camFiles_);
  camFiles_->AddLashTaker(airflow);
  displacement.SetEngineFinder([this] { shell_->Choose(*Shell::FindMenuItem("Engine_Spec")); });
  AddScreen<Form7>();
  AddScreen<Form33>(*camFiles_);
  auto& elapsedTime = AddScreen<Form3>();
  auto& gear = AddScreen<Form5>();
  auto& gearboxFinder = AddScreen<Form19>();
  gearboxFinder.AddTaker(elapsedTime);
  gearboxFinder.AddTaker(gear);
  auto& acceleration = AddScreen<Form13>(static_cast<Grapher&>(*grapher_));
  torques_ = &acceleration.Torques;
  gearboxFinder.AddTaker(acceleration);
  gear.SetGearboxFinder([this] { shell_->Choose(*Shell::FindMenuItem("Trans")); });
  AddScreen<Form20>().AddTaker(acceleration);
  about_ = &AddScreen<Form15>();
  AddTools();
  shell_->graphOptions.SetListener([this] { grapher_->OptionsChanged(); });
  grapher_->SetOptionListener([this] { shell_->graphOptions.ShowOptions(); });
  shell_->SetReadListener([this] { torques_->Follow(); });
  // The grapher's own commands would draw over what another screen has put on its surface.
  shell_->SetOpenListener([this](Screen& screen) {
    if (&screen == grapher_) {
      grapher_->EnableGrapherCommands();
    } else {
      grapher_->DisableGrapherCommands();
    }
  });
}

void Program::AddTools() {
  auto& vary = AddScreen<VaryScreen>(static_cast<Grapher&>(*grapher_));
  auto& seek = AddScreen<SeekScreen>();
  const auto open = [this](ToolScreen& tool, Control& control, bool asks) {
    return [this, &tool, &control, asks] {
      context_->NoteVisit(control.screen());
      if (asks) {
        tool.AskFor(static_cast<Field&>(control));
      } else {
        tool.WorkOn(control);
      }
      shell_->Open(tool);
    };
  };
  context_->toolsOf = [this, &vary, &seek, open](Control& shown) {
    Control& control = OriginalOf(shown);
    std::vector<ControlTool> tools;
    if (&control.screen() == shell_.get() || !ToolScreen::CanWorkOn(control.screen())) return tools;
    auto* command = dynamic_cast<Command*>(&control);
    if (command != nullptr && ToolScreen::ShowsResults(*command)) {
      tools.push_back({"Vary a Field of This Command ...", open(vary, control, false)});
      tools.push_back({"Seek With This Command ...", open(seek, control, false)});
    }
    if (ToolScreen::IsEntry(control)) {
      tools.push_back({"Vary This Field ...", open(vary, control, false)});
      tools.push_back({"Seek a Value of This Field ...", open(seek, control, false)});
    }
    if (ToolScreen::IsResult(control)) {
      tools.push_back({"Show How This Result Varies ...", open(vary, control, true)});
      tools.push_back({"Seek What Gives This Result ...", open(seek, control, true)});
    }
    return tools;
  };
}

void Program::Start() {
  shell_->Start();
  torques_->Follow();
  about_->SetLines(shell_->VersionLine(), shell_->DateLine());
  context_->history.Begin();
}

}  // namespace veldox
