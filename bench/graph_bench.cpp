// Graphs of the displacement screen computed, and a redraw of four long curves.

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/null_surface.h"
#include "engine/piston_graphs.h"
#include "graph/plot_engine.h"

namespace veldox {
namespace {

PistonGraphInput Engine(int graph, double offset) {
  PistonGraphInput in;
  in.graph = static_cast<PistonGraph>(graph);
  in.table.bore = 4;
  in.table.stroke = 3.25;
  in.table.rodLength = 5.7;
  in.table.rpm = 6500;
  in.table.offset = offset;
  in.table.cylinders = 8;
  in.table.weights = {600.25, 700.5, 233.5};
  in.journalDiameter = 2.5;
  in.portDiameter = 2.25;
  in.volumetricEfficiency = 0.85;
  in.compressionRatio = 13.5;
  return in;
}

void ComputeGraph(benchmark::State& state) {
  const PistonGraphInput in = Engine(static_cast<int>(state.range(0)), 0.06);
  for (auto _ : state) {
    benchmark::DoNotOptimize(PistonGraphFrame(in));
    benchmark::DoNotOptimize(PistonGraphCurve(in, DecimalMark::Point));
  }
}
BENCHMARK(ComputeGraph)->DenseRange(0, kPistonGraphCount - 1)->Unit(benchmark::kMicrosecond);

void RedrawFourCurves(benchmark::State& state) {
  ParameterBlock block;
  PlotEngine plot(block);
  const PistonGraphInput in = Engine(0, 0);
  plot.SetScale(PistonGraphFrame(in).range);
  plot.DrawGrid();
  plot.DrawAxes();
  const GraphCurve curve = PistonGraphCurve(in, DecimalMark::Point);
  for (int i = 0; i < 4; ++i) plot.PlotSeries(curve.points, curve.note);
  NullSurface surface;
  for (auto _ : state) benchmark::DoNotOptimize(plot.DrawOn(surface, {}));
}
BENCHMARK(RedrawFourCurves)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veldox
