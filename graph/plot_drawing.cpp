// How a graph that was kept is drawn on a surface.

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "graph/plot_engine.h"

namespace veldox {

namespace {

constexpr double kLabelLine = 1.15;   ///< height of a line of tick labels in text heights
constexpr double kLegendLeft = 10;    ///< drawing units from the frame's left edge
constexpr double kSwatchWidth = 1.6;  ///< length of the legend's sample line in text heights
constexpr double kColumnGap = 2;      ///< between columns of the legend, in text heights
constexpr double kLegendGap = 0.4;    ///< between the sample and the name, in text heights
constexpr double kLargeLineWidth = 2;
constexpr double kSwatchLineWidth = 2.5;
constexpr double kYPointerLines = 1.5;  ///< text lines that the Y caption takes over the frame
constexpr double kEdgeWidth = 1.4;      ///< added to the width of a faint curve
constexpr double kTickLength = 0.4;     ///< of the semi grid, in text heights
constexpr double kTickGap = 0.4;        ///< between the frame and the labels under it
constexpr double kBoxSize = 0.25;       ///< half of a plotted box, in text heights
constexpr double kSmallestFrame = 20;
constexpr double kTitleGrowth = 1.2;
/// Drawing places beyond this many units say nothing and would only strain a toolkit.
constexpr double kFarAway = 1e6;

/// Maps the values of one range onto a frame, in the surface's own units.
class FrameMapping {
 public:
  FrameMapping(const SurfaceRect& frame, const AxisRange& range)
      : left_(frame.left),
        bottom_(frame.bottom()),
        xLow_(range.xLow),
        yLow_(range.yLow),
        xUnits_((range.xHigh - range.xLow) / frame.width),
        yUnits_((range.yHigh - range.yLow) / frame.height) {}

  SurfacePoint operator()(GraphPoint point) const {
    return {std::clamp(left_ + (point.x - xLow_) / xUnits_, -kFarAway, kFarAway),
            std::clamp(bottom_ - (point.y - yLow_) / yUnits_, -kFarAway, kFarAway)};
  }
  double XLength(double units) const { return units / xUnits_; }

 private:
  double left_, bottom_, xLow_, yLow_, xUnits_, yUnits_;
};

bool IsDrawable(const AxisRange& range) {
  return range.xLow < range.xHigh && range.yLow < range.yHigh;
}

/// One drawing of a graph: what all its steps share.
struct Drawing {
  const PlotEngine& engine;
  const ParameterBlock& block;
  Surface& surface;
  PlotColors colors;
  bool lightensFaint;  ///< on a dark background
  double font;         ///< points of all texts but titles
  double lineHeight;   ///< of that font
  SurfaceRect frame;
};

double TitleFont(double font) {
  return font * kTitleGrowth;
}

void Grid(const Drawing& d) {
  const int switchedTo = d.block.GridSwitch;
  const Pen framePen{d.colors.text, 1, LineStyle::Solid};
  const auto line = [&](double x1, double y1, double x2, double y2, const Pen& pen) {
    d.surface.DrawLine({x1, y1}, {x2, y2}, pen);
  };
  const double left = d.frame.left;
  const double top = d.frame.top;
  const double right = d.frame.right();
  const double bottom = d.frame.bottom();
  const int columns = d.engine.GridLinesX();
  const int rows = d.engine.GridLinesY();
  const auto columnX = [&](int i) { return left + d.frame.width * i / columns; };
  const auto rowY = [&](int i) { return bottom - d.frame.height * i / rows; };
  if (switchedTo == 1) {
    const Pen pen{d.colors.grid, d.block.LargeLines != 0 ? kLargeLineWidth : 1,
                  d.block.SolidSwitch == 1 ? LineStyle::Solid : LineStyle::Dash};
    for (int i = 1; i <= columns; ++i) line(columnX(i), top, columnX(i), bottom, pen);
    for (int i = 1; i <= rows; ++i) line(left, rowY(i), right, rowY(i), pen);
  } else if (switchedTo == 2) {
    const Pen pen{d.colors.grid, 1, LineStyle::Solid};
    const double tick = kTickLength * d.lineHeight;
    if (d.block.SemiGridBoxLines != 0) {
      for (int i = 1; i < columns; ++i) {
        line(columnX(i), top, columnX(i), top + tick, pen);
        line(columnX(i), bottom - tick, columnX(i), bottom, pen);
      }
      for (int i = 1; i < rows; ++i) {
        line(left, rowY(i), left + tick, rowY(i), pen);
        line(right - tick, rowY(i), right, rowY(i), pen);
      }
    }
    if (d.block.SemiGridCrossLines != 0) {
      const double arm = tick / 2;
      for (int i = 1; i < columns; ++i) {
        for (int k = 1; k < rows; ++k) {
          line(columnX(i) - arm, rowY(k), columnX(i) + arm, rowY(k), pen);
          line(columnX(i), rowY(k) - arm, columnX(i), rowY(k) + arm, pen);
        }
      }
    }
  }
  line(left, top, right, top, framePen);
  line(right, top, right, bottom, framePen);
  line(right, bottom, left, bottom, framePen);
  line(left, bottom, left, top, framePen);
}

/// A piece of text under the X axis, kept from running into the one before.
class LabelRow {
 public:
  LabelRow(const Drawing& d, double top) : d_(d), top_(top) {}

  bool Place(double x, const std::string& text) {
    const double half = d_.surface.TextWidth(text, d_.font) / 2;
    const double gap = d_.surface.TextWidth("M", d_.font) / 2;
    for (const auto& [left, right] : taken_) {
      if (x - half < right + gap && x + half > left - gap) return false;
    }
    taken_.emplace_back(x - half, x + half);
    d_.surface.DrawText({x, top_}, text, d_.font, d_.colors.text, TextAlign::Center);
    return true;
  }

 private:
  const Drawing& d_;
  double top_;
  std::vector<std::pair<double, double>> taken_;
};

void XLabels(const Drawing& d, const AxisRange& range, DecimalMark mark) {
  const FrameMapping map(d.frame, range);
  // Beside the tick where the grid is of ticks only.
  const double shift = d.block.GridSwitch == 2 ? d.surface.TextWidth("M", d.font) / 2 : 0;
  LabelRow row(d, d.frame.bottom() + kTickGap * d.lineHeight);
  if (d.engine.crankAngleAxis) {
    for (const auto& [angle, text] :
         {std::pair{-360.0, "TDC"}, std::pair{-180.0, "BDC"}, std::pair{0.0, "TDC"},
          std::pair{180.0, "BDC"}, std::pair{360.0, "TDC"}}) {
      if (angle >= range.xLow && angle <= range.xHigh) row.Place(map({angle, range.yLow}).x, text);
    }
  }
  const int columns = d.engine.GridLinesX();
  for (int i = 0; i <= columns; ++i) {
    const double value = range.xLow + (range.xHigh - range.xLow) * i / columns;
    row.Place(map({value, range.yLow}).x + (i > 0 && i < columns ? shift : 0),
              FormatAxisValue(value, mark));
  }
}

void YLabels(const Drawing& d, const AxisRange& range, DecimalMark mark) {
  const FrameMapping map(d.frame, range);
  const double gap = d.surface.TextWidth("M", d.font) / 2;
  const double shift = d.block.GridSwitch == 2 ? d.lineHeight / 2 : 0;
  const int rows = d.engine.GridLinesY();
  double lastTop = d.frame.bottom() + 2 * d.lineHeight;
  for (int i = 0; i <= rows; ++i) {
    const double value = range.yLow + (range.yHigh - range.yLow) * i / rows;
    const double top =
        map({range.xLow, value}).y - d.lineHeight / 2 - (i > 0 && i < rows ? shift : 0);
    if (lastTop - top < d.lineHeight) continue;
    lastTop = top;
    d.surface.DrawText({d.frame.left - gap, top}, FormatAxisValue(value, mark), d.font,
                       d.colors.text, TextAlign::Right);
  }
}

/// The letters of a title, smaller where it would not find room over the middle of the graph.
double TitleFontFor(const Drawing& d, const std::string& title, double middle) {
  const double font = TitleFont(d.font);
  const double room = 2 * std::min(middle, d.surface.Width() - middle);
  const double width = d.surface.TextWidth(title, font);
  return width <= room ? font : font * room / width;
}

void Captions(const Drawing& d) {
  const PlotEngine& engine = d.engine;
  const double under = d.frame.bottom() + 2 * kLabelLine * d.lineHeight;
  const double middle = d.frame.left + d.frame.width / 2;
  if (!engine.Caption(kXNameCaption).empty()) {
    d.surface.DrawText({middle, under}, engine.Caption(kXNameCaption), d.font, d.colors.text,
                       TextAlign::Center);
  }
  if (!engine.Caption(kXPointerCaption).empty()) {
    d.surface.DrawText({d.frame.right(), under}, engine.Caption(kXPointerCaption), d.font,
                       d.colors.text, TextAlign::Right);
  }
  if (!engine.Caption(kYPointerCaption).empty()) {
    d.surface.DrawText({d.frame.left, d.frame.top - kLabelLine * d.lineHeight},
                       engine.Caption(kYPointerCaption), d.font, d.colors.text, TextAlign::Left);
  }
  if (d.block.GraphHeads != 0) {
    double top = (kLabelLine - 1) * d.lineHeight;
    for (const std::string& title : engine.Titles()) {
      d.surface.DrawText({middle, top}, title, TitleFontFor(d, title, middle), d.colors.text,
                         TextAlign::Center);
      top += kLabelLine * d.surface.TextHeight(TitleFont(d.font));
    }
    d.surface.DrawText({d.surface.Width(), d.frame.top - kLabelLine * d.lineHeight}, " ->", d.font,
                       d.colors.text, TextAlign::Right);
  }
  if (d.block.GraphLogo != 0) {
    d.surface.DrawText({d.frame.left, under + kLabelLine * d.lineHeight},
                       "VELDOX-Math-Formula-Calculator", d.font, d.colors.text, TextAlign::Left);
  }
}

/// A line of the legend: the name of a curve, or what of it the line before has no room for.
struct LegendLine {
  std::string text;
  const PlotSeriesRecord* series;
  bool begins;  ///< the curve's first line, which has its sample
};

/// The legend in rows and columns, filled column by column.
struct LegendSheet {
  std::vector<LegendLine> lines;
  std::size_t rows = 0;
  double widest = 0;       ///< of its texts
  double columnWidth = 0;  ///< from a column's left edge to the next one's
  double width = 0;
};

/// The names of the curves. A long one goes on in the next line, from where two blanks part it;
/// very many stand in columns. The graph itself keeps the larger part of a surface.
LegendSheet LayOutLegend(const PlotEngine& engine, const Surface& surface, double font,
                         double frameLeft) {
  constexpr double kMostOfHeight = 0.4;
  constexpr std::size_t kTallColumn = 8;
  constexpr std::string_view kParting = "  ";
  const double lineHeight = surface.TextHeight(font);
  const double sample = (kSwatchWidth + kLegendGap) * lineHeight;
  const double room = surface.Width() - frameLeft - kLegendLeft - sample - kLegendGap * lineHeight;
  std::vector<LegendLine> lines;
  for (const PlotSeriesRecord& series : engine.series()) {
    std::string rest = engine.LegendText(series);
    if (rest.empty()) continue;
    bool begins = true;
    while (surface.TextWidth(rest, font) > room) {
      std::size_t end = rest.rfind(kParting);
      while (end != std::string::npos && end > 0 &&
             surface.TextWidth(std::string_view(rest).substr(0, end), font) > room) {
        end = rest.rfind(kParting, end - 1);
      }
      if (end == std::string::npos || end == 0) break;
      lines.push_back({rest.substr(0, end), &series, begins});
      rest.erase(0, end + kParting.size());
      begins = false;
    }
    lines.push_back({std::move(rest), &series, begins});
  }
  LegendSheet sheet;
  for (const LegendLine& line : lines) {
    sheet.widest = std::max(sheet.widest, surface.TextWidth(line.text, font));
  }
  sheet.columnWidth = sample + sheet.widest + kColumnGap * lineHeight;
  const double fitting = std::floor((room + sample + kColumnGap * lineHeight) / sheet.columnWidth);
  const std::size_t columns =
      std::min(static_cast<std::size_t>(std::max(1.0, fitting)),
               std::max<std::size_t>(1, (lines.size() + kTallColumn - 1) / kTallColumn));
  const auto most = static_cast<std::size_t>(kMostOfHeight * surface.Height() / lineHeight);
  if (most * columns < lines.size()) {
    lines.resize(most * columns);
    if (most > 0) lines.back().text = "...";
  }
  sheet.rows = (lines.size() + columns - 1) / columns;
  sheet.width = static_cast<double>(columns) * sheet.columnWidth - kColumnGap * lineHeight;
  sheet.lines = std::move(lines);
  return sheet;
}

Color Halfway(Color a, Color b) {
  const auto mix = [](int x, int y) { return static_cast<std::uint8_t>((x + y) / 2); };
  return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)};
}

/// A pen in the colour that it has on this drawing's background.
Pen Shown(const Drawing& d, Pen pen) {
  if (d.lightensFaint) pen.color = SeenOn(pen.color, d.colors.background);
  return pen;
}

/// The edge of a curve whose colour is hard to see on the background.
std::optional<Pen> EdgeOf(const Drawing& d, const Pen& pen) {
  if (Contrast(pen.color, d.colors.background) >= kFaintContrast) return std::nullopt;
  return Pen{Halfway(d.colors.background, d.colors.text), pen.width + kEdgeWidth, LineStyle::Solid};
}

/// The names of the curves: over the graph, under it, or in its middle.
void Legend(const Drawing& d) {
  const LegendSheet sheet = LayOutLegend(d.engine, d.surface, d.font, d.frame.left);
  const double height = static_cast<double>(sheet.rows) * d.lineHeight;
  const double swatch = kSwatchWidth * d.lineHeight;
  const double gap = kLegendGap * d.lineHeight;
  double left = d.frame.left + kLegendLeft;
  if (d.block.CaptionSide == 1) left = d.frame.left + (d.frame.width - sheet.width) / 2;
  if (d.block.CaptionSide == 2) left = d.frame.right() - sheet.width - kLegendLeft;
  left = std::max(left, gap);
  double first = d.frame.top - kYPointerLines * d.lineHeight - height;
  if (!d.engine.hasAxes()) first = d.frame.top + gap;
  if (d.block.CaptionTop == 1) first = d.frame.top + (d.frame.height - height) / 2;
  if (d.block.CaptionTop == 2) first = d.surface.Height() - height - gap;
  double top = first;
  std::size_t row = 0;
  for (const LegendLine& line : sheet.lines) {
    if (line.begins) {
      Pen pen = line.series->pen;
      pen.color = d.engine.ShownColor(*line.series);
      pen = Shown(d, pen);
      pen.width = std::max(pen.width, kSwatchLineWidth);
      const double middle = top + d.lineHeight / 2;
      const SurfacePoint from{left, middle};
      const SurfacePoint to{left + swatch, middle};
      if (const auto edge = EdgeOf(d, pen)) d.surface.DrawLine(from, to, *edge);
      d.surface.DrawLine(from, to, pen);
    }
    d.surface.DrawText({left + swatch + gap, top}, line.text, d.font, d.colors.text,
                       TextAlign::Left);
    top += d.lineHeight;
    if (++row < sheet.rows) continue;
    row = 0;
    top = first;
    left += sheet.columnWidth;
  }
}

void Curves(const Drawing& d) {
  std::vector<SurfacePoint> places;
  for (const PlotSeriesRecord& series : d.engine.series()) {
    if (!IsDrawable(series.range)) continue;
    const FrameMapping map(d.frame, series.range);
    Pen pen = series.pen;
    pen.color = d.engine.ShownColor(series);
    pen = Shown(d, pen);
    const std::optional<Pen> edge = EdgeOf(d, pen);
    for (std::size_t i = 0; i < series.starts.size(); ++i) {
      const std::size_t from = series.starts[i];
      const std::size_t to =
          i + 1 < series.starts.size() ? series.starts[i + 1] : series.points.size();
      places.clear();
      places.reserve(to - from);
      std::transform(series.points.begin() + static_cast<std::ptrdiff_t>(from),
                     series.points.begin() + static_cast<std::ptrdiff_t>(to),
                     std::back_inserter(places), map);
      if (places.size() == 1) places.push_back(places.front());  // a dot
      if (edge) d.surface.DrawPolyline(places, *edge);
      d.surface.DrawPolyline(places, pen);
    }
  }
}

void Lines(const Drawing& d, const std::vector<PlotLineRecord>& lines) {
  for (const PlotLineRecord& line : lines) {
    if (!IsDrawable(line.range)) continue;
    const FrameMapping map(d.frame, line.range);
    Pen pen = Shown(d, line.pen);
    if (line.inTextColor) pen.color = d.colors.text;
    d.surface.DrawLine(map(line.from), map(line.to), pen);
  }
}

void Shapes(const Drawing& d) {
  Lines(d, d.engine.lines());
  constexpr int kCorners = 72;
  for (const PlotCircleRecord& circle : d.engine.circles()) {
    if (!IsDrawable(circle.range)) continue;
    const FrameMapping map(d.frame, circle.range);
    const SurfacePoint center = map(circle.center);
    const double radius = std::min(map.XLength(circle.radius), kFarAway);
    std::vector<SurfacePoint> corners;
    for (int i = 0; i <= kCorners; ++i) {
      const double angle = 2 * kPi * i / kCorners;
      corners.push_back({center.x + radius * std::cos(angle),
                         center.y - radius * circle.aspect * std::sin(angle)});
    }
    d.surface.DrawPolyline(corners, Shown(d, circle.pen));
  }
  const double half = kBoxSize * d.lineHeight;
  for (const PlotBoxRecord& box : d.engine.boxes()) {
    if (!IsDrawable(box.range)) continue;
    const SurfacePoint at = FrameMapping(d.frame, box.range)(box.center);
    const std::array<SurfacePoint, 5> corners = {{{at.x - half, at.y - half},
                                                  {at.x + half, at.y - half},
                                                  {at.x + half, at.y + half},
                                                  {at.x - half, at.y + half},
                                                  {at.x - half, at.y - half}}};
    d.surface.DrawPolyline(corners, Shown(d, {box.color, 1, LineStyle::Solid}));
  }
}

}  // namespace

PlotLayout PlotEngine::LayOut(const Surface& surface, const PlotTheme& theme) const {
  const double font = GraphFontPoints(block_->GraphFontSize, theme.fontSize);
  const double lineHeight = surface.TextHeight(font);
  const double letter = surface.TextWidth("M", font);
  double left = letter;
  double top = lineHeight;
  double right = letter;
  double bottom = lineHeight;
  if (hasAxes_) {
    double widest = 0;
    for (int i = 0; i <= GridLinesY(); ++i) {
      const double value = YLow + (YHigh - YLow) * i / GridLinesY();
      widest = std::max(widest, surface.TextWidth(FormatAxisValue(value, mark()), font));
    }
    left = widest + 2 * letter;
    right =
        std::max(2 * letter, surface.TextWidth(FormatAxisValue(XHigh, mark()), font) / 2 + letter);
    top = (kYPointerLines + kTickGap) * lineHeight;
    if (block_->GraphHeads != 0) {
      top +=
          static_cast<double>(Titles().size()) * kLabelLine * surface.TextHeight(TitleFont(font));
    }
    const double legend =
        lineHeight * static_cast<double>(LayOutLegend(*this, surface, font, left).rows);
    if (block_->CaptionTop == 0) top += legend;
    bottom = (block_->CaptionTop == 2 ? legend : 0) +
             (block_->GraphLogo != 0 ? 4.2 : 3.2) * kLabelLine * lineHeight;
  }
  return {{left, top, std::max(kSmallestFrame, surface.Width() - left - right),
           std::max(kSmallestFrame, surface.Height() - top - bottom)}};
}

PlotLayout PlotEngine::DrawOn(Surface& surface, const PlotTheme& theme) {
  const PlotLayout layout = LayOut(surface, theme);
  const double font = GraphFontPoints(block_->GraphFontSize, theme.fontSize);
  const Drawing drawing{*this,
                        *block_,
                        surface,
                        ResolveColors(*block_, theme),
                        theme.lightensFaint,
                        font,
                        surface.TextHeight(font),
                        layout.frame};
  const SurfaceRect all{0, 0, surface.Width(), surface.Height()};
  surface.Fill(all, drawing.colors.background);
  if (!picture_.empty()) surface.DrawPicture(all, picture_);
  if (hasGrid_) Grid(drawing);
  if (hasAxes_) {
    XLabels(drawing, scale(), mark());
    YLabels(drawing, scale(), mark());
    Captions(drawing);
    FitFrame(layout.frame);
  }
  surface.SetClip(layout.frame);
  Shapes(drawing);
  Curves(drawing);
  Lines(drawing, freeLines_);
  surface.ClearClip();
  Legend(drawing);
  return layout;
}

}  // namespace veldox
