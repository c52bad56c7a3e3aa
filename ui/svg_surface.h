#pragma once

#include <QString>

#include "graph/surface.h"

namespace veldox {

/// Writes a graph as an SVG drawing. A drawing unit is a pixel.
class SvgSurface : public Surface {
 public:
  SvgSurface(double width, double height);

  /// The whole drawing as the bytes of its file.
  std::string Document() const;

  double Width() const override { return width_; }
  double Height() const override { return height_; }
  void Fill(const SurfaceRect& area, Color color) override;
  void DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) override;
  void DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) override;
  void DrawText(SurfacePoint at, std::string_view text, double size, Color color,
                TextAlign align) override;
  double TextWidth(std::string_view text, double size) const override;
  double TextHeight(double size) const override;
  void SetClip(const SurfaceRect& area) override;
  void ClearClip() override;
  void DrawPicture(const SurfaceRect& area, const std::string& bytes) override;

 private:
  double width_;
  double height_;
  QString body_;
  int clips_ = 0;
  bool clipped_ = false;
};

}  // namespace veldox
