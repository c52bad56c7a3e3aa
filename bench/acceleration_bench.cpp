// A run down the strip: a step of it, a quarter mile with its chart, a run with all options, and a
// graph.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <vector>

#include "vehicle/acceleration_graphs.h"

namespace {

using namespace veldox;

constexpr std::size_t kRows = 961;

/// A car with a torque table of as many rows as there can be.
struct BenchCar {
  std::vector<double> rpm;
  std::vector<double> torque;
  AccelerationInputs inputs;

  explicit BenchCar(std::size_t rows) {
    for (std::size_t i = 0; i < rows; ++i) {
      const double part = static_cast<double>(i) / static_cast<double>(rows - 1);
      rpm.push_back(4000 + 6000 * part);
      torque.push_back(640 + 400 * part * (1 - part));
    }
    inputs.tableRpm = rpm;
    inputs.tableTorque = torque;
    inputs.transRatio = {3.25, 2.25, 1.25, 1.0, 0.87};
    inputs.gearLoss.fill(6);
    inputs.shiftRpm.fill(10000);
    inputs.shiftTime.fill(0.05);
    inputs.rearGearRatio = 4.1;
    inputs.tireDiameter = 24;
    inputs.tireRollingRadius = 12;
    inputs.rearEndLoss = 6.5;
    inputs.carWeight = 3500;
    inputs.dragCoefficient = 0.34;
    inputs.frontalArea = 19.4;
    inputs.rollingResistance = 0.015;
    inputs.launchRpm = 5200;
    inputs.rollout = 11.75;
    inputs.frictionMu = 5;
    inputs.trackPressure = 29.92126;
  }

  void UseAllOptions() {
    inputs.automatic = inputs.usesPrimaryDrive = inputs.nitrous = inputs.hoodScoop = true;
    inputs.throttleStop = true;
    inputs.primaryDrive = 1.1;
    inputs.converterSlippage = 5;
    inputs.converterStallSpeed = 6500;
    inputs.torqueMultiplier = 1.7;
    inputs.throttleStopRpm = 7000;
    inputs.throttleStopTime = 0.3;
    inputs.windSpeed = 10;
    inputs.windDirection = 30;
    inputs.tireGrowth.fill(1);
    for (std::size_t i = 0; i < kGearStages; ++i) {
      inputs.nitrousStages[i] = {static_cast<double>(1 + i % 5), 50, 6000, 40, 8000};
    }
    for (std::size_t i = kGearStages; i < kNitrousStages; ++i) {
      inputs.nitrousStages[i] = {20, 1, 50, 2, 6};
    }
  }
};

void Steps(benchmark::State& state, bool allOptions) {
  BenchCar car(kRows);
  if (allOptions) car.UseAllOptions();
  RunSink nothing;
  std::size_t steps = 0;
  for (auto _ : state) steps += SimulateRun(car.inputs, nothing).steps;
  state.counters["step"] = benchmark::Counter(
      static_cast<double>(steps), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK_CAPTURE(Steps, plain, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Steps, allOptions, true)->Unit(benchmark::kMillisecond);

void QuarterMile(benchmark::State& state) {
  BenchCar car(11);
  RunSink nothing;
  for (auto _ : state) benchmark::DoNotOptimize(SimulateRun(car.inputs, nothing).Et());
}
BENCHMARK(QuarterMile)->Unit(benchmark::kMicrosecond);

void Chart(benchmark::State& state, std::size_t rows, bool allOptions) {
  BenchCar car(rows);
  if (allOptions) car.UseAllOptions();
  for (auto _ : state) {
    benchmark::DoNotOptimize(ChartRun(car.inputs, true, DecimalMark::Point).report);
  }
}
BENCHMARK_CAPTURE(Chart, elevenRows, 11, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Chart, allOptions, 11, true)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Chart, longestTable, kRows, true)->Unit(benchmark::kMicrosecond);

void CvtChart(benchmark::State& state) {
  BenchCar car(11);
  car.inputs.cvtRpm = 9500;
  car.inputs.cvtLoss = 20;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ChartCvtRun(car.inputs, DecimalMark::Point).report);
  }
}
BENCHMARK(CvtChart)->Unit(benchmark::kMicrosecond);

void Graph(benchmark::State& state, RunGraph graph, std::size_t rows) {
  BenchCar car(rows);
  for (auto _ : state) benchmark::DoNotOptimize(PlotRun(graph, car.inputs, {}, true).curves);
}
BENCHMARK_CAPTURE(Graph, forceOverTime, RunGraph::AccelerationOverTime, 11)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Graph, longestTable, RunGraph::WheelTorqueOverRpm, kRows)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
