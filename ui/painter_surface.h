#pragma once

#include <QFont>
#include <QPainter>
#include <QPolygonF>
#include <vector>

#include "graph/surface.h"

namespace veldox {

/// Drawing units in a point where a unit is a pixel of a screen with 96 dots an inch.
inline constexpr double kUnitsPerPoint = 96.0 / 72.0;

/// The font of a graph's texts. @param points  its size; @param unitsPerPoint  drawing units
QFont GraphFont(double points, double unitsPerPoint);
/// The lengths of a line style's dashes and gaps in pen widths; empty for a solid line.
std::vector<double> DashesOf(LineStyle style);
QColor ToQtColor(Color color);
Color FromQtColor(const QColor& color);

/// Draws a graph with a QPainter: on a window, a picture, a printer's page. Pen widths are
/// drawing units, so that they grow with the painter's scale; upright and level lines are
/// put onto whole pixels, so that they stay sharp at any scale.
class PainterSurface : public Surface {
 public:
  /// @param size  of the surface in the painter's units, which are the drawing units
  PainterSurface(QPainter& painter, QSizeF size, double unitsPerPoint = kUnitsPerPoint);

  double Width() const override { return size_.width(); }
  double Height() const override { return size_.height(); }
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
  /// The font of a size; the one asked for last is kept with its metrics.
  const QFont& FontOf(double size) const;
  double Snapped(double place, double scale, double offset, double pixels) const;

  QPainter& painter_;
  QSizeF size_;
  double unitsPerPoint_;
  bool pixels_;  ///< the device has pixels that lines can be put onto
  QPolygonF polyline_;
  mutable double fontSize_ = 0;
  mutable QFont font_;
  mutable QFontMetricsF metrics_;
};

}  // namespace veldox
