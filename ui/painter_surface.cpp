#include "ui/painter_surface.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "ui/qt_text.h"

namespace veldox {

namespace {

/// Lines of a curve that are drawn at once.
constexpr qsizetype kPiece = 32;

QRectF ToQtRect(const SurfaceRect& rect) {
  return {rect.left, rect.top, rect.width, rect.height};
}

/// Round joins would cost the most of a wide curve, and pointed ones look no worse.
QPen ToQtPen(const Pen& pen, double width) {
  QPen drawn(ToQtColor(pen.color), width, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
  const std::vector<double> dashes = DashesOf(pen.style);
  if (!dashes.empty()) {
    drawn.setDashPattern(QList<qreal>(dashes.begin(), dashes.end()));
    drawn.setCapStyle(Qt::FlatCap);
  }
  return drawn;
}

}  // namespace

QFont GraphFont(double points, double unitsPerPoint) {
  QFont font;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * unitsPerPoint))));
  return font;
}

std::vector<double> DashesOf(LineStyle style) {
  switch (style) {
    case LineStyle::LongDash: return {9, 4};
    case LineStyle::Dash: return {4, 3};
    case LineStyle::DashDot: return {6, 3, 1, 3};
    case LineStyle::DashDotDot: return {6, 3, 1, 3, 1, 3};
    case LineStyle::Solid: break;
  }
  return {};
}

QColor ToQtColor(Color color) {
  return {color.red, color.green, color.blue};
}

Color FromQtColor(const QColor& color) {
  return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
          static_cast<std::uint8_t>(color.blue())};
}

PainterSurface::PainterSurface(QPainter& painter, QSizeF size, double unitsPerPoint)
    : painter_(painter),
      size_(size),
      unitsPerPoint_(unitsPerPoint),
      pixels_(painter.paintEngine()->type() == QPaintEngine::Raster),
      metrics_(font_) {
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                          QPainter::SmoothPixmapTransform);
}

void PainterSurface::Fill(const SurfaceRect& area, Color color) {
  painter_.fillRect(ToQtRect(area), ToQtColor(color));
}

double PainterSurface::Snapped(double place, double scale, double offset, double pixels) const {
  const double device = place * scale + offset;
  const bool odd = std::fmod(pixels, 2) != 0;
  return ((odd ? std::floor(device) + 0.5 : std::round(device)) - offset) / scale;
}

void PainterSurface::DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) {
  const QTransform& device = painter_.deviceTransform();
  const bool upright = from.x == to.x;
  const bool level = from.y == to.y;
  if (!pixels_ || upright == level || device.type() > QTransform::TxScale) {
    DrawPolyline(std::array{from, to}, pen);
    return;
  }
  const double scale = upright ? device.m11() : device.m22();
  const double pixels = std::max(1.0, std::round(pen.width * scale));
  if (upright) {
    from.x = to.x = Snapped(from.x, scale, device.dx(), pixels);
  } else {
    from.y = to.y = Snapped(from.y, scale, device.dy(), pixels);
  }
  QPen drawn = ToQtPen(pen, pixels / scale);
  drawn.setCapStyle(Qt::FlatCap);
  painter_.setPen(drawn);
  painter_.drawLine(QPointF(from.x, from.y), QPointF(to.x, to.y));
}

void PainterSurface::DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) {
  polyline_.clear();
  for (const SurfacePoint& point : points) polyline_.append(QPointF(point.x, point.y));
  QPen drawn = ToQtPen(pen, pen.width);
  if (polyline_.size() == 2 && polyline_.front() == polyline_.back()) {
    drawn.setStyle(Qt::SolidLine);
    drawn.setCapStyle(Qt::RoundCap);
    painter_.setPen(drawn);
    painter_.drawPoint(polyline_.front());
    return;
  }
  painter_.setPen(drawn);
  // A wide line over many points is filled much faster in pieces. Dashes must run through,
  // and a drawing for a printer stays in one.
  const bool pieces = pixels_ && pen.style == LineStyle::Solid;
  const qsizetype step = pieces ? kPiece : polyline_.size();
  for (qsizetype i = 0; i == 0 || i + 1 < polyline_.size(); i += step) {
    const qsizetype count = std::min(step + 1, polyline_.size() - i);
    painter_.drawPolyline(polyline_.constData() + i, static_cast<int>(count));
  }
}

const QFont& PainterSurface::FontOf(double size) const {
  if (size == fontSize_) return font_;
  fontSize_ = size;
  font_ = GraphFont(size, unitsPerPoint_);
  // Letters hinted for the pixels of one size would not stand where they are measured.
  if (!pixels_) font_.setHintingPreference(QFont::PreferNoHinting);
  metrics_ = QFontMetricsF(font_);
  return font_;
}

void PainterSurface::DrawText(SurfacePoint at, std::string_view text, double size, Color color,
                              TextAlign align) {
  painter_.setFont(FontOf(size));
  painter_.setPen(ToQtColor(color));
  double left = at.x;
  if (align != TextAlign::Left) {
    const double width = TextWidth(text, size);
    left -= align == TextAlign::Center ? width / 2 : width;
  }
  painter_.drawText(QPointF(left, at.y + metrics_.ascent()), ToQt(text));
}

double PainterSurface::TextWidth(std::string_view text, double size) const {
  FontOf(size);
  return metrics_.horizontalAdvance(ToQt(text));
}

double PainterSurface::TextHeight(double size) const {
  FontOf(size);
  return metrics_.height();
}

void PainterSurface::SetClip(const SurfaceRect& area) {
  painter_.setClipRect(ToQtRect(area));
}

void PainterSurface::ClearClip() {
  painter_.setClipping(false);
}

void PainterSurface::DrawPicture(const SurfaceRect& area, const std::string& bytes) {
  const QImage picture = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                          static_cast<int>(bytes.size()));
  if (!picture.isNull()) painter_.drawImage(ToQtRect(area), picture);
}

}  // namespace veldox
