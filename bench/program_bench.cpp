// Creation of all screen models, and the commands of the displacement screen.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

#include "engine/displacement_screen.h"
#include "program/program.h"
#include "script/script_host.h"

namespace veldox {
namespace {

ScriptHost::Settings InTemporaryFolder() {
  return {std::filesystem::temp_directory_path(), DecimalMark::Point, std::nullopt};
}

void CreateAllScreens(benchmark::State& state) {
  ScriptHost host(InTemporaryFolder());
  for (auto _ : state) {
    Program program(host);
    benchmark::DoNotOptimize(&program);
  }
}
BENCHMARK(CreateAllScreens)->Unit(benchmark::kMicrosecond);

void StartProgram(benchmark::State& state) {
  ScriptHost host(InTemporaryFolder());
  for (auto _ : state) {
    Program program(host);
    program.Start();
    benchmark::DoNotOptimize(&program);
  }
}
BENCHMARK(StartProgram)->Unit(benchmark::kMicrosecond);

void ClickEngineSize(benchmark::State& state) {
  ScriptHost host(InTemporaryFolder());
  Program program(host);
  program.Start();
  auto& form1 = static_cast<Form1&>(*program.shell().FindScreen("Form1"));
  for (auto _ : state) form1.Command1.Click();
}
BENCHMARK(ClickEngineSize)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veldox
