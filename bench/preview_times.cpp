// How long the preview of every command takes, with the defaults and with the samples: a line for
// each of the slowest. The pointer never waits longer than a frame of the display, 16 ms. With the
// argument "odd", each field in turn holds numbers that nobody needs, and previews are ended after
// a while.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "core/dry_run.h"
#include "program/program.h"
#include "script/script_host.h"

namespace {

using namespace veldox;

struct Time {
  double milliseconds = 0;
  std::string with;
  bool isEnded = false;
};
using Times = std::map<std::string, Time>;

std::vector<Command*> CommandsOf(const Screen& screen) {
  std::vector<Command*> commands;
  for (Control* control : screen.controls()) {
    if (control->kind() != ControlKind::Command) continue;
    auto* command = static_cast<Command*>(control);
    if (command->role() == CommandRole::Calculates && command->isBuilt()) {
      commands.push_back(command);
    }
  }
  return commands;
}

void Note(Times& times, const Command& command, const Preview& preview, std::string with) {
  const double milliseconds = static_cast<double>(preview.took.count()) / 1000;
  Time& time = times[command.screen().name() + '.' + command.name()];
  if (milliseconds > time.milliseconds) {
    time = {milliseconds, std::move(with), preview.ranOutOfTime};
  }
}

void Measure(const char* sample, Times& times) {
  ScriptHost host({});
  Program program(host);
  program.Start();
  if (*sample != '\0') {
    program.shell().OpenFile(std::filesystem::path(VELDOX_SOURCE_DIR) / "samples" / sample);
  }
  for (Screen* screen : program.shell().screens()) program.shell().Open(*screen);
  for (Screen* screen : program.shell().screens()) {
    for (Command* command : CommandsOf(*screen)) {
      // The second time all is in memory, as it is for the pointer.
      PreviewOf(*command);
      Note(times, *command, PreviewOf(*command), sample);
    }
  }
}

void MeasureOddNumbers(Times& times) {
  ScriptHost host({});
  Program program(host);
  program.Start();
  for (Screen* screen : program.shell().screens()) program.shell().Open(*screen);
  for (Screen* screen : program.shell().screens()) {
    const std::vector<Command*> commands = CommandsOf(*screen);
    for (Control* control : screen->controls()) {
      auto* field = dynamic_cast<Field*>(control);
      if (field == nullptr || field->rule() == KeyRule::OutputOnly) continue;
      const std::string before = field->text();
      for (const char* text : {"0.0001", "0.01", "360", "10000", "99999999"}) {
        field->SetText(text);
        for (Command* command : commands) {
          Note(times, *command, PreviewOf(*command, std::chrono::milliseconds(16)),
               control->PlainCaption() + " = " + text);
        }
      }
      field->SetText(before);
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  Times times;
  if (argc > 1 && std::string(argv[1]) == "odd") {
    MeasureOddNumbers(times);
  } else {
    for (const char* sample :
         {"", "small_block_drag.prm", "motorcycle.prm", "road_race_four.prm"}) {
      Measure(sample, times);
    }
  }
  std::vector<std::pair<std::string, Time>> slowest(times.begin(), times.end());
  std::sort(slowest.begin(), slowest.end(), [](const auto& a, const auto& b) {
    return a.second.milliseconds > b.second.milliseconds;
  });
  std::printf("%zu commands\n", slowest.size());
  slowest.resize(std::min<std::size_t>(slowest.size(), 40));
  for (const auto& [name, time] : slowest) {
    std::printf("%9.3f ms  %-24s %s%s\n", time.milliseconds, name.c_str(), time.with.c_str(),
                time.isEnded ? " (ended)" : "");
  }
  return 0;
}
