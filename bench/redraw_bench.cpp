// The grapher's surface drawn anew: what a window does when it is resized or its graph
// changes.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "core/parameter_block.h"
#include "graph/plot_engine.h"
#include "ui/painter_surface.h"

namespace {

using namespace veldox;

constexpr QSize kSize(1600, 1000);

/// Four curves over two turns of a crank in steps of half a degree.
PlotEngine FourCurves(ParameterBlock& block) {
  constexpr int kPoints = 1441;
  PlotEngine plot(block);
  plot.SetScale({0, 720, -1.2, 1.2});
  plot.DrawGrid();
  plot.DrawAxes();
  plot.SetCaption(kXNameCaption, "Degrees");
  for (int curve = 0; curve < 4; ++curve) {
    std::vector<GraphPoint> points;
    for (int i = 0; i < kPoints; ++i) {
      const double angle = i / 2.0;
      points.push_back({angle, std::sin((angle + 40 * curve) * 3.14159265358979 / 180)});
    }
    plot.PlotSeries(points, "Curve");
  }
  return plot;
}

void RedrawFourCurves(benchmark::State& state) {
  ParameterBlock block;
  block.GraphLineWidth = static_cast<std::int16_t>(state.range(0));
  PlotEngine plot = FourCurves(block);
  QImage image(kSize, QImage::Format_RGB32);
  for (auto _ : state) {
    QPainter painter(&image);
    PainterSurface surface(painter, image.size());
    plot.DrawOn(surface, PlotTheme{});
  }
}
BENCHMARK(RedrawFourCurves)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
