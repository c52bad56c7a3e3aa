#pragma once

#include <benchmark/benchmark.h>

#include "graph/surface.h"

namespace veldox {

/// A surface that measures texts and throws lines away: the engine's own part of a redraw.
class NullSurface : public Surface {
 public:
  double Width() const override { return 1600; }
  double Height() const override { return 1000; }
  void Fill(const SurfaceRect&, Color) override {}
  void DrawLine(SurfacePoint, SurfacePoint, const Pen&) override {}
  void DrawPolyline(std::span<const SurfacePoint> points, const Pen&) override {
    benchmark::DoNotOptimize(points.data());
  }
  void DrawText(SurfacePoint, std::string_view, double, Color, TextAlign) override {}
  double TextWidth(std::string_view text, double size) const override {
    return 0.5 * size * static_cast<double>(text.size());
  }
  double TextHeight(double size) const override { return size; }
  void SetClip(const SurfaceRect&) override {}
  void ClearClip() override {}
};

}  // namespace veldox
