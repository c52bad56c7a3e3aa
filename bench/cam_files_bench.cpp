// A lift file of as many records as the tables take, read into them, written and edited.

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <string>

#include "cam/lift_file.h"

namespace veldox {
namespace {

/// A *.cmm file of 3,600 records a side.
std::string LongestFile() {
  std::vector<double> lifts(kMostLiftRecords);
  for (std::size_t i = 0; i < lifts.size(); ++i) {
    lifts[i] = 0.42 * std::pow(std::sin(kPi * static_cast<double>(i + 1) / 3601), 4);
  }
  return CmmText({"; the longest file\r\n", "0.1", lifts, lifts}, DecimalMark::Point);
}

void ReadLongestLiftFile(benchmark::State& state) {
  const std::string text = LongestFile();
  const auto block = std::make_unique<ParameterBlock>();
  for (auto _ : state) {
    StoreLifts(*ParseLiftFile(text, "long.cmm", DecimalMark::Point), "long.cmm", *block);
    benchmark::DoNotOptimize(block->IntakeValveLift[1800]);
  }
}
BENCHMARK(ReadLongestLiftFile)->Unit(benchmark::kMicrosecond);

void WriteLongestLiftFile(benchmark::State& state) {
  const auto file = ParseLiftFile(LongestFile(), "long.cmm", DecimalMark::Point);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        CmmText({"", "0.1", file->intake.lifts, file->exhaust.lifts}, DecimalMark::Point));
  }
}
BENCHMARK(WriteLongestLiftFile)->Unit(benchmark::kMicrosecond);

void EditLongestLiftFile(benchmark::State& state) {
  // Two records less: an edited file has at most 7,202 lines.
  std::string text = LongestFile();
  text.erase(0, text.find('\n') + 1);
  text.erase(0, text.find('\n') + 1);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        EditLifts(text, "long.cmm", LiftEdit::InchesToMm, 0, DecimalMark::Point).lines);
  }
}
BENCHMARK(EditLongestLiftFile)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veldox
