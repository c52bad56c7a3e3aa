#include "ui/svg_surface.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <array>

#include "ui/painter_surface.h"
#include "ui/qt_text.h"

namespace veldox {

namespace {

QString Number(double value) {
  QString text = QString::number(value, 'f', 2);
  while (text.endsWith(QLatin1Char('0'))) text.chop(1);
  if (text.endsWith(QLatin1Char('.'))) text.chop(1);
  return text;
}

QString Attribute(const char* name, const QString& value) {
  return QLatin1Char(' ') + QLatin1String(name) + QLatin1String("=\"") + value + QLatin1Char('"');
}

QString Place(const SurfaceRect& area) {
  return Attribute("x", Number(area.left)) + Attribute("y", Number(area.top)) +
         Attribute("width", Number(area.width)) + Attribute("height", Number(area.height));
}

QFont FontOf(double size) {
  QFont font = GraphFont(size, kUnitsPerPoint);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

SvgSurface::SvgSurface(double width, double height) : width_(width), height_(height) {}

std::string SvgSurface::Document() const {
  const QString size = Number(width_) + QLatin1Char(' ') + Number(height_);
  return FromQt(QLatin1String("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg") +
                Attribute("xmlns", QStringLiteral("http://www.w3.org/2000/svg")) +
                Attribute("xmlns:xlink", QStringLiteral("http://www.w3.org/1999/xlink")) +
                Attribute("width", Number(width_)) + Attribute("height", Number(height_)) +
                Attribute("viewBox", QLatin1String("0 0 ") + size) + QLatin1String(">\n") + body_ +
                (clipped_ ? QLatin1String("</g>\n") : QLatin1String()) + QLatin1String("</svg>\n"));
}

void SvgSurface::Fill(const SurfaceRect& area, Color color) {
  body_ += QLatin1String("<rect") + Place(area) + Attribute("fill", ToQtColor(color).name()) +
           QLatin1String("/>\n");
}

void SvgSurface::DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) {
  DrawPolyline(std::array{from, to}, pen);
}

void SvgSurface::DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) {
  QString places;
  for (const SurfacePoint& point : points) {
    if (!places.isEmpty()) places += QLatin1Char(' ');
    places += Number(point.x) + QLatin1Char(',') + Number(point.y);
  }
  QString dashes;
  for (const double dash : DashesOf(pen.style)) {
    if (!dashes.isEmpty()) dashes += QLatin1Char(' ');
    dashes += Number(dash * pen.width);
  }
  const QString round = QStringLiteral("round");
  body_ += QLatin1String("<polyline") + Attribute("fill", QStringLiteral("none")) +
           Attribute("stroke", ToQtColor(pen.color).name()) +
           Attribute("stroke-width", Number(pen.width)) + Attribute("stroke-linejoin", round) +
           (dashes.isEmpty() ? Attribute("stroke-linecap", round)
                             : Attribute("stroke-dasharray", dashes)) +
           Attribute("points", places) + QLatin1String("/>\n");
}

void SvgSurface::DrawText(SurfacePoint at, std::string_view text, double size, Color color,
                          TextAlign align) {
  const QFont font = FontOf(size);
  const char* anchor = align == TextAlign::Left     ? "start"
                       : align == TextAlign::Center ? "middle"
                                                    : "end";
  body_ += QLatin1String("<text") + Attribute("x", Number(at.x)) +
           Attribute("y", Number(at.y + QFontMetricsF(font).ascent())) +
           Attribute("font-family", font.family().toHtmlEscaped() + QLatin1String(", sans-serif")) +
           Attribute("font-size", Number(font.pixelSize())) +
           Attribute("text-anchor", QLatin1String(anchor)) +
           Attribute("fill", ToQtColor(color).name()) +
           Attribute("xml:space", QStringLiteral("preserve")) + QLatin1Char('>') +
           ToQt(text).toHtmlEscaped() + QLatin1String("</text>\n");
}

double SvgSurface::TextWidth(std::string_view text, double size) const {
  return QFontMetricsF(FontOf(size)).horizontalAdvance(ToQt(text));
}

double SvgSurface::TextHeight(double size) const {
  return QFontMetricsF(FontOf(size)).height();
}

void SvgSurface::SetClip(const SurfaceRect& area) {
  ClearClip();
  const QString id = QLatin1String("clip") + QString::number(++clips_);
  body_ += QLatin1String("<clipPath") + Attribute("id", id) + QLatin1String("><rect") +
           Place(area) + QLatin1String("/></clipPath>\n<g") +
           Attribute("clip-path", QLatin1String("url(#") + id + QLatin1Char(')')) +
           QLatin1String(">\n");
  clipped_ = true;
}

void SvgSurface::ClearClip() {
  if (clipped_) body_ += QLatin1String("</g>\n");
  clipped_ = false;
}

void SvgSurface::DrawPicture(const SurfaceRect& area, const std::string& bytes) {
  const QImage picture = QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                                          static_cast<int>(bytes.size()));
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  if (picture.isNull() || !picture.save(&png, "PNG")) return;
  body_ += QLatin1String("<image") + Place(area) +
           Attribute("preserveAspectRatio", QStringLiteral("none")) +
           Attribute("xlink:href", QLatin1String("data:image/png;base64,") +
                                       QString::fromLatin1(png.data().toBase64())) +
           QLatin1String("/>\n");
}

}  // namespace veldox
