#include "graph/sketch.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/pages.h"

namespace veldox {

namespace {

// Widths of strokes in lines of text.
constexpr double kOutlineWidth = 0.12;
constexpr double kThinWidth = 0.06;
/// Room between what is drawn and the edge, and between two names, in lines of text.
constexpr double kMargin = 0.7;
constexpr double kNameGap = 0.3;

constexpr PlotTheme kOnPaper{{255, 255, 255}, {0, 0, 0}, {0, 0, 0}, 9, false};
constexpr const char* kPageFont = "Arial";
// Of a broken line on a page, in twips.
constexpr double kDash = 160;
constexpr double kDashGap = 80;

Pen PenOf(SketchStroke stroke, const PlotTheme& theme, double line) {
  switch (stroke) {
    case SketchStroke::Outline: return {theme.text, kOutlineWidth * line};
    case SketchStroke::Seam: return {theme.text, kThinWidth * line};
    case SketchStroke::Measure: return {theme.grid, kThinWidth * line};
    case SketchStroke::Axis: return {theme.grid, kThinWidth * line, LineStyle::DashDot};
  }
  return {};
}

bool Overlap(const SurfaceRect& a, const SurfaceRect& b, double gap) {
  return a.left < b.right() + gap && b.left < a.right() + gap && a.top < b.bottom() &&
         b.top < a.bottom();
}

PageFont FontOf(double size) {
  return {kPageFont, static_cast<int>(std::lround(size)), false};
}

}  // namespace

double DrawSketch(const Sketch& sketch, Surface& surface, const PlotTheme& theme) {
  if (sketch.Empty()) return 0;
  const double line = surface.TextHeight(theme.fontSize);
  const double margin = kMargin * line;
  const double wide = surface.Width() - 2 * margin;
  const double high =
      surface.Height() - 2 * margin - (sketch.linesAbove + sketch.linesBelow) * line;
  const double scale = std::min(wide / sketch.width, high / sketch.height);
  if (!(scale > 0)) return 0;
  const double left = margin + (wide - sketch.width * scale) / 2;
  const double top = margin + sketch.linesAbove * line + (high - sketch.height * scale) / 2;
  const auto place = [&](const SketchPoint& point) {
    return SurfacePoint{left + point.x * scale, top + point.y * scale + point.lines * line};
  };
  for (const SketchLine& drawn : sketch.lines) {
    surface.DrawLine(place(drawn.from), place(drawn.to), PenOf(drawn.stroke, theme, line));
  }
  std::vector<SurfaceRect> taken;
  for (const SketchName& name : sketch.names) {
    SurfacePoint at = place(name.top);
    const double width = surface.TextWidth(name.text, theme.fontSize);
    SurfaceRect room{at.x - width / 2, at.y, width, line};
    const bool isTaken = std::ranges::any_of(
        taken, [&](const SurfaceRect& other) { return Overlap(room, other, kNameGap * line); });
    if (isTaken) {
      at.y += name.aside * line;
      room.top = at.y;
    }
    taken.push_back(room);
    surface.DrawText(at, name.text, theme.fontSize, theme.text, TextAlign::Center);
  }
  return scale;
}

void PagePart::PlaceLine(SurfacePoint from, SurfacePoint to, double width) {
  const auto whole = [](double twips) { return static_cast<int>(std::lround(twips)); };
  page_.PlaceLine(area_.left + whole(from.x), area_.top + whole(from.y), area_.left + whole(to.x),
                  area_.top + whole(to.y), std::max(1, whole(width)));
}

void PagePart::DrawLine(SurfacePoint from, SurfacePoint to, const Pen& pen) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (pen.style == LineStyle::Solid || !(length > 0)) {
    PlaceLine(from, to, pen.width);
    return;
  }
  const auto at = [&](double along) {
    const double part = std::min(along / length, 1.0);
    return SurfacePoint{from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
  };
  const auto dashes = static_cast<int>(std::ceil(length / (kDash + kDashGap)));
  for (int i = 0; i < dashes; ++i) {
    const double begin = i * (kDash + kDashGap);
    PlaceLine(at(begin), at(begin + kDash), pen.width);
  }
}

void PagePart::DrawPolyline(std::span<const SurfacePoint> points, const Pen& pen) {
  for (std::size_t i = 1; i < points.size(); ++i) DrawLine(points[i - 1], points[i], pen);
}

void PagePart::DrawText(SurfacePoint at, std::string_view text, double size, Color /*color*/,
                        TextAlign align) {
  const double width = TextWidth(text, size);
  double left = at.x;
  if (align == TextAlign::Center) left -= width / 2;
  if (align == TextAlign::Right) left -= width;
  page_.PlaceText(area_.left + static_cast<int>(std::lround(left)),
                  area_.top + static_cast<int>(std::lround(at.y)), FontOf(size), text);
}

double PagePart::TextWidth(std::string_view text, double size) const {
  return veldox::TextWidth(FontOf(size), text);
}

double PagePart::TextHeight(double size) const {
  return LineHeight(FontOf(size));
}

PagePicture PictureOf(Sketch sketch, int height) {
  return {height, [sketch = std::move(sketch)](PageSurface& page, const PageArea& area) {
            PagePart part(page, area);
            DrawSketch(sketch, part, kOnPaper);
          }};
}

}  // namespace veldox
