#include "graph/plot_engine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/error.h"

namespace veldox {

namespace {

/// The value of "Draw Line Color" that means no selection.
constexpr std::int32_t kNoColor = 99999;
constexpr double kShortLabelsFrom = 100;
constexpr int kFewestGridLines = 2;
constexpr int kMostGridLines = 400;
constexpr int kWidestLine = 50;
/// Far above where a pixel of the axis would round to nothing.
constexpr double kNarrowestAxis = 1e-300;
constexpr double kUsualCurveWidth = 1.5;  ///< where no width is chosen

[[noreturn]] void FailForPoint(const std::string& what) {
  throw CommandError(ErrorKind::Overflow,
                     "The graph cannot be drawn: a point of it is too large or is no number (" +
                         what + "). Please check the values that it is computed from.");
}

/// @param shape  what the point belongs to, for the refusal
void RequireFinite(double x, double y, const char* shape) {
  if (!std::isfinite(x) || !std::isfinite(y)) FailForPoint(shape);
}

void RequireFiniteOn(std::string_view curve, double x, double y) {
  if (std::isfinite(x) && std::isfinite(y)) return;
  FailForPoint(curve.empty() ? "a curve" : "the curve \"" + std::string(curve) + '"');
}

void RequireAxis(const char* axis, double low, double high, DecimalMark mark) {
  const std::string begin = std::string("The graph cannot be drawn: the ") + axis + " axis ";
  if (!std::isfinite(low) || !std::isfinite(high) || !std::isfinite(high - low)) {
    throw CommandError(ErrorKind::Overflow, begin + "has a limit that is too large.");
  }
  if (low < high && high - low < kNarrowestAxis) {
    throw CommandError(ErrorKind::InvalidArgument,
                       begin + "has limits that are too close to each other.");
  }
  if (!(low < high)) {
    throw CommandError(ErrorKind::InvalidArgument,
                       begin + "runs from " + FormatAxisValue(low, mark) + " to " +
                           FormatAxisValue(high, mark) +
                           ", and its high limit must be above its low limit.");
  }
}

double Brightness(Color color) {
  return 0.299 * color.red + 0.587 * color.green + 0.114 * color.blue;
}

}  // namespace

PlotColors ResolveColors(const ParameterBlock& block, const PlotTheme& theme) {
  constexpr double kReadable = 60;
  constexpr std::int32_t kUnchosenGrid = 16777215;
  const Color background = Color::FromValue(block.GraphBackGroundColor);
  const Color text = Color::FromValue(block.GraphFontColor);
  const bool chosen = block.GraphBackGroundColor != 0 || block.GraphFontColor != 0;
  PlotColors colors{theme.background, theme.text, theme.grid};
  if (chosen) {
    colors.background = background;
    colors.text = text;
    if (std::abs(Brightness(text) - Brightness(background)) < kReadable) {
      colors.text = Brightness(background) < 128 ? Color{255, 255, 255} : Color{0, 0, 0};
    }
  }
  if (chosen || block.GridColor != kUnchosenGrid) {
    colors.grid = Color::FromValue(block.GridColor);
    if (colors.grid == colors.background) colors.grid = theme.grid;
  }
  return colors;
}

double GraphFontPoints(int option, double fullSize) {
  constexpr double kSmallest = 4;
  switch (option) {
    case 1: return std::max(kSmallest, fullSize * 0.75);
    case 2: return std::max(kSmallest, fullSize * 0.5);
    case 3: return std::max(kSmallest, fullSize * 0.25);
    case 4: return 8;
    case 5: return 10;
    case 6: return 12;
    case 7: return 14;
    default: return fullSize;
  }
}

std::string TrimAxisLabel(std::string label, DecimalMark mark) {
  for (const int zeros : {3, 2, 1, 0}) {
    const std::string ending =
        std::string(1, static_cast<char>(mark)) + std::string(static_cast<std::size_t>(zeros), '0');
    if (label == ending || label == '-' + ending) return "0";
    if (label.ends_with(ending)) {
      label.resize(label.size() - ending.size());
      return label;
    }
  }
  return label;
}

std::string FormatAxisValue(double value, DecimalMark mark) {
  if (value == 0) return "0";
  return TrimAxisLabel(std::abs(value) < kShortLabelsFrom ? FormatValue<"#.0#####">(value, mark)
                                                          : FormatValue<"#.0###">(value, mark),
                       mark);
}

PlotEngine::PlotEngine(ParameterBlock& block) : block_(&block) {}

DecimalMark PlotEngine::mark() const {
  return block_->DecimalCommaMode != 0 ? DecimalMark::Comma : DecimalMark::Point;
}

void PlotEngine::Clear() {
  ClearDrawing();
  ClearCaptions();
  CurveIndex = 0;
  penUsed_ = false;
  hasGrid_ = false;
  hasAxes_ = false;
  crankAngleAxis = false;
  gridLinesX_.reset();
  gridLinesY_.reset();
}

void PlotEngine::ClearDrawing() {
  series_.clear();
  lines_.clear();
  freeLines_.clear();
  circles_.clear();
  boxes_.clear();
  picture_.clear();
}

bool PlotEngine::Empty() const {
  return series_.empty() && lines_.empty() && freeLines_.empty() && circles_.empty() &&
         boxes_.empty() && picture_.empty() && !hasGrid_;
}

// ---------------------------------------------------------------- scale

void PlotEngine::SetScale(const AxisRange& range) {
  RequireAxis("X", range.xLow, range.xHigh, mark());
  RequireAxis("Y", range.yLow, range.yHigh, mark());
  XLow = range.xLow;
  XHigh = range.xHigh;
  YLow = range.yLow;
  YHigh = range.yHigh;
}

void PlotEngine::Rescale(const AxisRange& range) {
  SetScale(range);
  for (PlotSeriesRecord& series : series_) series.range = range;
  for (PlotLineRecord& line : lines_) line.range = range;
  for (PlotCircleRecord& circle : circles_) circle.range = range;
  for (PlotBoxRecord& box : boxes_) box.range = range;
}

void PlotEngine::FitFrame(const SurfaceRect& frame) {
  GraphBottom = frame.bottom();
  XUnitsPerPixel = (XHigh - XLow) / frame.width;
  YUnitsPerPixel = (YHigh - YLow) / frame.height;
}

SurfacePoint PlotEngine::Map(GraphPoint point) {
  GraphScreenY = GraphBottom - (point.y - YLow) / YUnitsPerPixel;
  GraphScreenX = (point.x - XLow) / XUnitsPerPixel;
  return {GraphScreenX, GraphScreenY};
}

GraphPoint PlotEngine::Unmap(SurfacePoint place) const {
  return {place.x * XUnitsPerPixel + XLow, (GraphBottom - place.y) * YUnitsPerPixel + YLow};
}

// ---------------------------------------------------------------- frame and texts

void PlotEngine::DrawGrid() {
  hasGrid_ = true;
  gridLinesX_.reset();
  gridLinesY_.reset();
}

void PlotEngine::DrawAxes() {
  hasGrid_ = true;
  hasAxes_ = true;
}

void PlotEngine::SetGridLines(std::optional<int> countX, std::optional<int> countY) {
  for (const auto& count : {countX, countY}) {
    if (count && (*count < kFewestGridLines || *count > kMostGridLines)) {
      throw CommandError(ErrorKind::InvalidArgument,
                         "The number of grid lines must be from 2 to 400.");
    }
  }
  if (countX) gridLinesX_ = countX;
  if (countY) gridLinesY_ = countY;
}

int PlotEngine::GridLinesX() const {
  return std::clamp<int>(gridLinesX_.value_or(block_->CustomGridLineCountx), kFewestGridLines,
                         kMostGridLines);
}

int PlotEngine::GridLinesY() const {
  return std::clamp<int>(gridLinesY_.value_or(block_->CustomGridLineCounty), kFewestGridLines,
                         kMostGridLines);
}

void PlotEngine::SetCaption(int number, std::string text) {
  if (!IsCaptionNumber(number)) {
    throw CommandError(ErrorKind::IndexOutOfRange, "A graph has no caption of this number.");
  }
  captions_[static_cast<std::size_t>(number)] = std::move(text);
}

const std::string& PlotEngine::Caption(int number) const {
  return captions_[IsCaptionNumber(number) ? static_cast<std::size_t>(number) : 0];
}

void PlotEngine::ClearCaptions() {
  for (std::string& caption : captions_) caption.clear();
}

std::vector<std::string> PlotEngine::Titles() const {
  std::vector<std::string> titles;
  for (std::size_t i = kTitleCaption; i < captions_.size(); ++i) {
    if (!captions_[i].empty()) titles.push_back(captions_[i]);
  }
  return titles;
}

// ---------------------------------------------------------------- curves

void PlotEngine::BeginSeries(const CurveColorEntry& color) {
  PlotSeriesRecord series;
  series.name = color.name;
  series.color = color.color;
  series.pen.color = color.color;
  series.pen.width = block_->GraphLineWidth > 0
                         ? std::min<double>(block_->GraphLineWidth, kWidestLine)
                         : kUsualCurveWidth;
  series.range = scale();
  series_.push_back(std::move(series));
}

void PlotEngine::CurveColor() {
  if (penUsed_) ++CurveIndex;
  penUsed_ = true;
  BeginSeries(CurveColorOf(CurveIndex));
}

void PlotEngine::CurveInColor(const CurveColorEntry& color) {
  penUsed_ = true;
  BeginSeries(color);
}

PlotSeriesRecord& PlotEngine::Current() {
  if (series_.empty()) CurveColor();
  return series_.back();
}

void PlotEngine::SetCurveNote(std::string note) {
  Current().note = std::move(note);
}

void PlotEngine::NameCurves(std::string_view name, std::size_t count) {
  for (PlotSeriesRecord& series : std::span(series_).first(std::min(count, series_.size()))) {
    series.note = std::string(name) + ", " + series.Legend();
  }
}

void PlotEngine::SetCurvePen(double width, LineStyle style) {
  Current().pen.width = std::clamp<double>(width, 1, kWidestLine);
  Current().pen.style = style;
}

void PlotEngine::ReservePoints(std::size_t count) {
  Current().points.reserve(count);
}

void PlotEngine::Add(GraphPoint point, bool start) {
  std::string_view name;
  if (!series_.empty())
    name = series_.back().note.empty() ? series_.back().name : series_.back().note;
  RequireFiniteOn(name, point.x, point.y);
  PlotSeriesRecord& series = Current();
  if (start || series.points.empty()) series.starts.push_back(series.points.size());
  series.points.push_back(point);
}

void PlotEngine::PlotPoint(double x, double y) {
  Add({x, y}, true);
}

void PlotEngine::PlotLine(double x, double y) {
  Add({x, y}, false);
}

void PlotEngine::PlotPoint(double x, double y, Color color) {
  RequireFinite(x, y, "a curve");
  if (series_.empty() || series_.back().color != color) CurveInColor({"", color});
  PlotPoint(x, y);
}

void PlotEngine::PlotLine(double x, double y, Color color) {
  RequireFinite(x, y, "a curve");
  if (series_.empty() || series_.back().color != color) {
    const std::optional<GraphPoint> last = series_.empty() || series_.back().points.empty()
                                               ? std::nullopt
                                               : std::optional(series_.back().points.back());
    CurveInColor({"", color});
    if (last) PlotPoint(last->x, last->y);
  }
  PlotLine(x, y);
}

void PlotEngine::RequireSeries(std::span<const GraphPoint> points, std::string_view curve,
                               std::size_t fewest) {
  if (points.empty() && fewest > 0) {
    throw CommandError(ErrorKind::InvalidArgument, "There is nothing to graph: no point came out.");
  }
  if (points.size() < fewest) {
    throw CommandError(
        ErrorKind::InvalidArgument,
        "There is nothing to graph: only one point came out, and a curve needs two.");
  }
  for (const GraphPoint& point : points) RequireFiniteOn(curve, point.x, point.y);
}

void PlotEngine::PlotSeries(std::span<const GraphPoint> points, std::string note,
                            std::span<const std::size_t> moves, std::size_t fewest,
                            const std::optional<CurveColorEntry>& color) {
  RequireSeries(points, note.empty() ? Caption(kTitleCaption) : note, fewest);
  if (color) {
    CurveInColor(*color);
  } else {
    CurveColor();
  }
  PlotSeriesRecord& series = series_.back();
  series.note = std::move(note);
  series.points.assign(points.begin(), points.end());
  if (points.empty()) return;
  series.starts.push_back(0);
  for (const std::size_t move : moves) {
    if (move > series.starts.back() && move < points.size()) series.starts.push_back(move);
  }
}

void PlotEngine::PlotBox(double x, double y, Color color) {
  RequireFinite(x, y, "a box");
  boxes_.push_back({{x, y}, color, scale()});
}

void PlotEngine::PlotCircle(double x, double y, double radius, Pen pen, double aspect) {
  RequireFinite(x, y, "a circle");
  RequireFinite(radius, aspect, "a circle");
  if (radius < 0 || aspect <= 0) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "A circle needs a radius that is not negative, and an aspect above 0.");
  }
  if (pen.width <= 0) pen.width = std::clamp<int>(block_->GraphLineWidth, 1, kWidestLine);
  circles_.push_back({{x, y}, radius, aspect, pen, scale()});
}

void PlotEngine::PlotAdjustedLine(GraphPoint from, GraphPoint to, const Pen& pen,
                                  bool inTextColor) {
  RequireFinite(from.x, from.y, "a line");
  RequireFinite(to.x, to.y, "a line");
  lines_.push_back({from, to, pen, scale(), inTextColor});
}

void PlotEngine::PlotFreeLine(GraphPoint from, GraphPoint to, const Pen& pen, bool inTextColor) {
  RequireFinite(from.x, from.y, "a line");
  RequireFinite(to.x, to.y, "a line");
  freeLines_.push_back({from, to, pen, scale(), inTextColor});
}

std::optional<Color> PlotEngine::UserColor() const {
  if (block_->GraphLineColor == 0 || block_->DrawLineColor == kNoColor) return std::nullopt;
  return Color::FromValue(block_->DrawLineColor);
}

Color PlotEngine::ShownColor(const PlotSeriesRecord& series) const {
  return UserColor().value_or(series.color);
}

Color PlotEngine::ShownColor(const PlotSeriesRecord& series, const PlotTheme& theme) const {
  const Color color = ShownColor(series);
  return theme.lightensFaint ? SeenOn(color, ResolveColors(*block_, theme).background) : color;
}

std::string PlotEngine::LegendText(const PlotSeriesRecord& series) const {
  if (series.note.empty()) return UserColor() ? std::string(kUserColorName) : series.name;
  // A note ends with the colour's word.
  std::string text = series.note;
  if (UserColor() && !series.name.empty() && text.ends_with(series.name)) {
    text.resize(text.size() - series.name.size());
    text += kUserColorName;
  }
  return text;
}

// ---------------------------------------------------------------- reading the graph

std::vector<NearestPoint> PlotEngine::NearestPoints(double x) const {
  std::vector<NearestPoint> nearest;
  for (std::size_t i = 0; i < series_.size(); ++i) {
    const auto& points = series_[i].points;
    if (points.empty()) continue;
    const auto found = std::min_element(points.begin(), points.end(),
                                        [x](const GraphPoint& a, const GraphPoint& b) {
                                          return std::abs(a.x - x) < std::abs(b.x - x);
                                        });
    nearest.push_back({i, *found});
  }
  return nearest;
}

std::string PlotEngine::PointsAsCsv() const {
  const auto quoted = [](const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
      if (c == '"') result += '"';
      result += c;
    }
    return result + '"';
  };
  std::string csv = "series,name,x,y\r\n";
  for (std::size_t i = 0; i < series_.size(); ++i) {
    const std::string begin = std::to_string(i + 1) + ',' + quoted(series_[i].Legend()) + ',';
    for (const GraphPoint& point : series_[i].points) {
      csv += begin + FormatShortest(point.x) + ',' + FormatShortest(point.y) + "\r\n";
    }
  }
  return csv;
}

// ---------------------------------------------------------------- overlays of the dyno sheet

struct PlotEngine::DynoTexts {
  std::array<const char*, 2> legend;
  std::array<const char*, 4> values;
};

void PlotEngine::DrawDyno(std::span<const DynoRow> rows, const DynoTexts& texts) {
  using Column = double DynoRow::*;
  struct DynoCurve {
    Column column;
    CurveColorEntry color;
  };
  const std::array<DynoCurve, 4> curves = {{
      {&DynoRow::torque, *ColorByName("blue")},
      {&DynoRow::otherTorque, *ColorByName("yellow")},
      {&DynoRow::horsepower, *ColorByName("green")},
      {&DynoRow::otherHorsepower, *ColorByName("red")},
  }};
  std::array<std::vector<GraphPoint>, 4> points;
  for (std::size_t i = 0; i < curves.size(); ++i) {
    points[i].reserve(rows.size());
    for (const DynoRow& row : rows) points[i].push_back({row.rpm, row.*curves[i].column});
    RequireSeries(points[i], i < 2 ? "Torque" : "Horsepower");
  }
  SetCaption(kXPointerCaption, "<--- RPM");
  SetCaption(kXNameCaption, "RPM");
  SetCaption(kYPointerCaption, "<--- HP/Torque");
  SetCaption(kTitleCaption, "HorsePower Torque");
  SetCaption(11, texts.legend[0]);
  SetCaption(12, texts.legend[1]);
  DrawAxes();
  for (std::size_t i = 0; i < curves.size(); ++i) {
    CurveInColor(curves[i].color);
    const auto peak =
        std::max_element(points[i].begin(), points[i].end(),
                         [](const GraphPoint& a, const GraphPoint& b) { return a.y < b.y; });
    SetCurveNote(texts.values[i] + FormatValue<"0.0">(peak->y, mark()));
    ReservePoints(rows.size());
    PlotPoint(points[i].front().x, points[i].front().y);
    for (std::size_t k = 1; k < points[i].size(); ++k) PlotLine(points[i][k].x, points[i][k].y);
  }
}

void PlotEngine::DrawDynoGraph(std::span<const DynoRow> rows) {
  DrawDyno(rows,
           {{"Green is HP - Blue is Torque", "Red is Corrected HP - Yellow is Corrected Torque"},
            {"Torque   ", "Corrected Torque   ", "HP   ", "Corrected HP   "}});
}

void PlotEngine::DrawNitrousGraph(std::span<const DynoRow> rows, double shot) {
  DrawDyno(rows,
           {{"Green is HP - Blue is Torque     ", "Red is Nitrous HP - Yellow is Nitrous Torque"},
            {"Torque   ", "Nitrous Torque   ", "HP   ", "Nitrous HP   "}});
  SetCaption(13, FormatValue<"0">(shot, mark()) + " HP Nitrous Shot");
}

}  // namespace veldox
