// The engine finder's list: loading all makes, and one keystroke in it.

#include <benchmark/benchmark.h>

#include <string>

#include "engine/engine_finder_screen.h"
#include "program/program.h"
#include "script/script_host.h"

namespace {

using namespace veldox;

struct Finder {
  Finder() {
    program.Start();
    screen.LoadList("Engine_Spec");
  }
  ScriptHost host{{"/nowhere", DecimalMark::Point, ClockTime{2026, 11, 21, 0, 0, 0}}};
  Program program{host};
  Form21& screen = static_cast<Form21&>(*program.shell().FindScreen("Form21"));
};

void LoadAllMakes(benchmark::State& state) {
  Finder finder;
  for (auto _ : state) finder.screen.LoadList("Engine_Spec");
}
BENCHMARK(LoadAllMakes)->Unit(benchmark::kMicrosecond);

/// Types a text letter by letter; the time is that of a letter.
void Keystroke(benchmark::State& state) {
  Finder finder;
  PickList& list = finder.screen.Combo1;
  const std::string typed = "chevy 350 4.0 5.7 ";
  std::size_t length = 0;
  for (auto _ : state) {
    length = length % typed.size() + 1;
    list.Narrow(typed.substr(0, length));
  }
}
BENCHMARK(Keystroke)->Unit(benchmark::kMicrosecond);

/// The first letter, which makes all rows ready for the search.
void FirstKeystroke(benchmark::State& state) {
  Finder finder;
  PickList& list = finder.screen.Combo1;
  for (auto _ : state) {
    state.PauseTiming();
    finder.screen.LoadList("Engine_Spec");
    state.ResumeTiming();
    list.Narrow("3");
  }
}
BENCHMARK(FirstKeystroke)->Unit(benchmark::kMicrosecond);

}  // namespace
