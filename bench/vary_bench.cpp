// Series of values: of a command that takes microseconds and of one that simulates a run.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "core/series_report.h"
#include "core/vary.h"
#include "program/program.h"
#include "script/script_host.h"

namespace veldox {
namespace {

constexpr int kValues = 1000;

struct Series {
  const char* field;
  double from;
  double to;
  const char* command;
  const char* result;
};

void VaryThousandValues(benchmark::State& state, const Series& series) {
  ScriptHost host({std::filesystem::temp_directory_path(), DecimalMark::Point, std::nullopt});
  Program program(host);
  program.Start();
  const auto control = [&](const char* name) { return program.shell().FindControl(name); };
  auto& field = static_cast<Field&>(*control(series.field));
  auto& command = static_cast<Command&>(*control(series.command));
  const ValueRange range{series.from, series.to, (series.to - series.from) / (kValues - 1)};
  for (auto _ : state) {
    const std::vector<VariedLine> lines = Vary(field, range, command, {control(series.result)});
    if (lines.size() != kValues || !lines.front().error.empty()) {
      state.SkipWithError(lines.front().error.c_str());
    }
  }
}
BENCHMARK_CAPTURE(VaryThousandValues, EngineSize,
                  Series{"Form1.Text1", 3, 5, "Form1.Command1", "Form1.Text6"})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(VaryThousandValues, RodStrokeRatio,
                  Series{"Form1.Text4", 5, 7, "Form1.Command23", "Form1.Text12"})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(VaryThousandValues, SpringRate,
                  Series{"Form16.Text1", 0.2, 1, "Form16.Command1", "Form16.Text4"})
    ->Unit(benchmark::kMillisecond);
/// A run down the strip for each weight of the car.
BENCHMARK_CAPTURE(VaryThousandValues, Acceleration,
                  Series{"Form13.Text51", 2000, 3000, "Form13.Command25", "Form13.Text51"})
    ->Unit(benchmark::kMillisecond);

void SeekEngineSize(benchmark::State& state) {
  ScriptHost host({std::filesystem::temp_directory_path(), DecimalMark::Point, std::nullopt});
  Program program(host);
  program.Start();
  const auto control = [&](const char* name) { return program.shell().FindControl(name); };
  auto& bore = static_cast<Field&>(*control("Form1.Text1"));
  auto& size = static_cast<Command&>(*control("Form1.Command1"));
  for (auto _ : state)
    benchmark::DoNotOptimize(Seek(bore, {3, 5, 400}, size, *control("Form1.Text6")));
}
BENCHMARK(SeekEngineSize)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veldox
