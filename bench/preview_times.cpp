// How long the preview of every command takes, with the defaults and with the samples: a line for
// each of the slowest. The pointer never waits longer than a frame of the display, 16 ms.

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
  const char* sample = "";
};

void Measure(const char* sample, std::map<std::string, Time>& times) {
  ScriptHost host({});
  Program program(host);
  program.Start();
  if (*sample != '\0') {
    program.shell().OpenFile(std::filesystem::path(VELDOX_SOURCE_DIR) / "samples" / sample);
  }
  for (Screen* screen : program.shell().screens()) program.shell().Open(*screen);
  for (Screen* screen : program.shell().screens()) {
    for (Control* control : screen->controls()) {
      if (control->kind() != ControlKind::Command) continue;
      auto& command = static_cast<Command&>(*control);
      if (command.role() != CommandRole::Calculates || !command.isBuilt()) continue;
      // The second time all is in memory, as it is for the pointer.
      PreviewOf(command);
      const Preview preview = PreviewOf(command);
      const double milliseconds = static_cast<double>(preview.took.count()) / 1000;
      Time& time = times[screen->name() + '.' + command.name()];
      if (milliseconds > time.milliseconds) time = {milliseconds, sample};
    }
  }
}

}  // namespace

int main() {
  std::map<std::string, Time> times;
  for (const char* sample :
       {"", "small_block_drag.prm", "motorcycle.prm", "road_race_four.prm"}) {
    Measure(sample, times);
  }
  std::vector<std::pair<std::string, Time>> slowest(times.begin(), times.end());
  std::sort(slowest.begin(), slowest.end(), [](const auto& a, const auto& b) {
    return a.second.milliseconds > b.second.milliseconds;
  });
  std::printf("%zu commands\n", slowest.size());
  slowest.resize(std::min<std::size_t>(slowest.size(), 40));
  for (const auto& [name, time] : slowest) {
    std::printf("%9.3f ms  %-24s %s\n", time.milliseconds, name.c_str(), time.sample);
  }
  return 0;
}
