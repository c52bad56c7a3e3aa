// What windows do under a user's hands: the grapher's surface drawn anew, and the engine
// finder opened and narrowed.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <cmath>
#include <memory>

#include "core/parameter_block.h"
#include "graph/plot_engine.h"
#include "program/program.h"
#include "script/script_host.h"
#include "ui/painter_surface.h"
#include "ui/theme.h"
#include "ui/window_manager.h"

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

/// The program with its windows.
struct Windows {
  Windows() { program.Start(); }
  ScriptHost host{{"/nowhere", DecimalMark::Point, ClockTime{2026, 11, 21, 0, 0, 0}}};
  Program program{host};
  WindowManager manager{program.shell()};
  Screen& finder = *program.shell().FindScreen("Form21");

  /// Opens the list of all makes. @return its window, painted
  QWidget& Open() {
    program.shell().Choose(*Shell::FindMenuItem("Engine_Spec"));
    return Paint();
  }
  QWidget& Paint() {
    QCoreApplication::processEvents();
    QWidget& window = *manager.WindowOf(finder);
    window.grab();
    return window;
  }
};

/// From the choice in the menu to the painted window, the first time.
void OpenEngineFinder(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto windows = std::make_unique<Windows>();
    state.ResumeTiming();
    windows->Open();
    state.PauseTiming();
    windows.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(OpenEngineFinder)->Unit(benchmark::kMillisecond);

/// The same once the window is there.
void ReopenEngineFinder(benchmark::State& state) {
  Windows windows;
  windows.Open();
  for (auto _ : state) {
    state.PauseTiming();
    windows.finder.Quit();
    state.ResumeTiming();
    windows.Open();
  }
}
BENCHMARK(ReopenEngineFinder)->Unit(benchmark::kMillisecond);

/// A letter typed into the list of all makes, until the window shows what it found.
void TypeIntoEngineFinder(benchmark::State& state) {
  Windows windows;
  auto& line = *windows.Open().findChild<QLineEdit*>(QStringLiteral("Combo1"));
  const QString typed = QStringLiteral("chevy 350 4.0 5.7 ");
  qsizetype length = 0;
  for (auto _ : state) {
    length = length % typed.size() + 1;
    line.setText(typed.left(length));
    windows.Paint();
  }
}
BENCHMARK(TypeIntoEngineFinder)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  veldox::ApplyTheme(app, veldox::Theme::System);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
