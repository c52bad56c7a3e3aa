#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "graph/surface.h"

namespace veldox {

/// A surface that keeps what is drawn on it. Every letter is half its size wide.
class RecordingSurface : public Surface {
 public:
  RecordingSurface(double width, double height) : width_(width), height_(height) {}

  struct Line {
    SurfacePoint from;
    SurfacePoint to;
    Pen pen;
  };
  struct Polyline {
    std::vector<SurfacePoint> points;
    Pen pen;
  };
  struct Text {
    SurfacePoint at;
    std::string text;
    TextAlign align;
    double size;
  };
  std::vector<Line> lines;
  std::vector<Polyline> polylines;
  std::vector<Text> texts;
  std::vector<Color> fills;

  const Text* Find(std::string_view text) const {
    for (const Text& entry : texts) {
      if (entry.text == text) return &entry;
    }
    return nullptr;
  }

  double Width() const override { return width_; }
  double Height() const override { return height_; }
  void Fill(const SurfaceRect&, Color color) override { fills.push_back(color); }
  void DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) override {
    lines.push_back({from, to, pen});
  }
  void DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) override {
    polylines.push_back({{points.begin(), points.end()}, pen});
  }
  void DrawText(SurfacePoint at, std::string_view text, double size, Color,
                TextAlign align) override {
    texts.push_back({at, std::string(text), align, size});
  }
  double TextWidth(std::string_view text, double size) const override {
    return 0.5 * size * static_cast<double>(text.size());
  }
  double TextHeight(double size) const override { return size; }
  void SetClip(const SurfaceRect&) override {}
  void ClearClip() override {}

 private:
  double width_;
  double height_;
};

}  // namespace veldox
