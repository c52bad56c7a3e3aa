// The longest table that the displacement screen makes: built, and laid out on pages.

#include <benchmark/benchmark.h>

#include <string>

#include "core/pages.h"
#include "core/report.h"
#include "engine/piston_reports.h"

namespace {

using namespace veldox;

PistonTable LongestTable(bool compact) {
  PistonTable table;
  table.bore = 4;
  table.stroke = 3.25;
  table.rodLength = 5.7;
  table.rpm = 6500;
  table.cylinders = 8;
  table.offset = 0.06;
  table.weights = {600.25, 700.5, 233.5};
  table.compact = compact;
  table.startDegrees = -90.125;
  table.endDegrees = 360;
  table.everyDegrees = 0.125;
  return table;
}

void BuildVelocityReport(benchmark::State& state, bool compact) {
  const PistonTable table = LongestTable(compact);
  for (auto _ : state) {
    benchmark::DoNotOptimize(VelocityReport(table, AngleOrigin::Crank, DecimalMark::Point));
  }
}
BENCHMARK_CAPTURE(BuildVelocityReport, wide, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BuildVelocityReport, compact, true)->Unit(benchmark::kMicrosecond);

void BuildForceReport(benchmark::State& state) {
  const PistonTable table = LongestTable(false);
  for (auto _ : state) {
    benchmark::DoNotOptimize(CrankpinForceReport(table, DecimalMark::Point));
  }
}
BENCHMARK(BuildForceReport)->Unit(benchmark::kMicrosecond);

void ShowReport(benchmark::State& state) {
  const std::string report =
      VelocityReport(LongestTable(false), AngleOrigin::Crank, DecimalMark::Point);
  for (auto _ : state) benchmark::DoNotOptimize(ReportBoxText(report));
}
BENCHMARK(ShowReport)->Unit(benchmark::kMicrosecond);

void LayOutOnPages(benchmark::State& state) {
  const std::string report =
      VelocityReport(LongestTable(false), AngleOrigin::Crank, DecimalMark::Point);
  for (auto _ : state) {
    PageRecorder pages;
    ReportPrinter(pages, {}).PrintReport(report, 10);
    benchmark::DoNotOptimize(pages.pages().size());
  }
}
BENCHMARK(LayOutOnPages)->Unit(benchmark::kMicrosecond);

}  // namespace
