// The longest lift file read, analysed and drawn.

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

#include "bench/null_surface.h"
#include "cam/lift_file.h"
#include "cam/lift_graphs.h"
#include "cam/lift_reports.h"
#include "core/numbers.h"
#include "graph/plot_engine.h"

namespace veldox {
namespace {

/// 3,600 records of a lobe, a tenth of a degree apart, on either side.
std::string LongestLiftFile() {
  std::string lobe;
  for (int i = 0; i < kMostLiftRecords; ++i) {
    lobe += LiftText(0.2 * (1 - std::cos(2 * kPi * i / kMostLiftRecords)), DecimalMark::Point);
    lobe += "\r\n";
  }
  return "every x degrees = .1\r\nintake  a long lobe\r\n" + lobe + "exhaust\r\n" + lobe;
}

LiftGraphInput InputOf(const ParameterBlock& block) {
  LiftGraphInput input;
  input.analysis.table = {
      std::span(block.IntakeCamLift).first(static_cast<std::size_t>(block.IntakeLiftCount) + 1),
      block.CamStepDegrees.Intake, block.IntakeLiftCount};
  input.analysis.ratio = block.RockerArmRatio;
  input.analysis.lash = block.IntakeLash;
  input.analysis.rpm = block.RPM;
  input.analysis.smoothing = Smoothing::SavitzkyGolay;
  input.analysis.smoothsLift = true;
  input.boxes = true;
  return input;
}

/// All that a click on "Graph First" does but the dialog: read, store, analyse with both
/// smoothings, and draw the curve with a box at each point.
void ReadAnalyseAndGraph(benchmark::State& state) {
  const std::string text = LongestLiftFile();
  ParameterBlock block;
  NullSurface surface;
  for (auto _ : state) {
    StoreLifts(*ParseLiftFile(text, "long.cmm", DecimalMark::Point), "long.cmm", block);
    LiftGraphInput input = InputOf(block);
    input.graph = static_cast<LiftGraph>(state.range(0));
    const GraphCurve curve = LiftGraphCurve(input, DecimalMark::Point);
    PlotEngine plot(block);
    plot.SetScale(LiftGraphFrame(input, curve, DecimalMark::Point).range);
    plot.DrawAxes();
    plot.PlotSeries(curve.points, curve.note, curve.moves);
    for (const GraphPoint& point : curve.points) plot.PlotBox(point.x, point.y, {});
    benchmark::DoNotOptimize(FiguresOf(input.analysis.table, 1));
    benchmark::DoNotOptimize(plot.DrawOn(surface, {}));
  }
}
BENCHMARK(ReadAnalyseAndGraph)->DenseRange(0, kLiftGraphCount - 1)->Unit(benchmark::kMillisecond);

void WriteLiftReport(benchmark::State& state) {
  ParameterBlock block;
  StoreLifts(*ParseLiftFile(LongestLiftFile(), "long.cmm", DecimalMark::Point), "long.cmm", block);
  const LiftAnalysis analysis = InputOf(block).analysis;
  for (auto _ : state) {
    benchmark::DoNotOptimize(LiftReport(analysis, true, false, "SG", DecimalMark::Point));
  }
}
BENCHMARK(WriteLiftReport)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace veldox
