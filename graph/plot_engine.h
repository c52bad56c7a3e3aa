#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "core/parameter_block.h"
#include "graph/curve_colors.h"
#include "graph/surface.h"

namespace veldox {

/// A point of a curve in value units.
struct GraphPoint {
  double x = 0;
  double y = 0;
  friend bool operator==(const GraphPoint&, const GraphPoint&) = default;
};

/// A curve needs two points, unless it is told that fewer will do.
inline constexpr std::size_t kFewestCurvePoints = 2;

/// The value range of both axes.
struct AxisRange {
  double xLow = 0;
  double xHigh = 0;
  double yLow = 0;
  double yHigh = 0;
  friend bool operator==(const AxisRange&, const AxisRange&) = default;
};

/// Looks of a window or page, for what the user has chosen no colour of.
struct PlotTheme {
  Color background{255, 255, 255};
  Color text{0, 0, 0};
  Color grid{200, 200, 200};
  double fontSize = 10;  ///< points of the graph's texts at "100%"
  /// Colours that are hard to see on a dark background are drawn lighter. Files and prints keep
  /// the colours that were given.
  bool lightensFaint = false;
};

/// The colours a graph is drawn in: the user's where they can be read, else the theme's.
struct PlotColors {
  Color background;
  Color text;
  Color grid;
};
PlotColors ResolveColors(const ParameterBlock& block, const PlotTheme& theme);

/// The size in points of the graph's texts by the option "Graph Font Size".
double GraphFontPoints(int option, double fullSize);

/// The text of a tick: "#.0#####", from 100 on "#.0###"; whole numbers lose their ".0".
/// @throws CommandError (Overflow, InvalidArgument) for what is no finite number
std::string FormatAxisValue(double value, DecimalMark mark);
/// Takes an ending of only a decimal mark and zeros off a tick's text; what is nothing
/// else becomes "0".
std::string TrimAxisLabel(std::string label, DecimalMark mark);

/// One curve as it was drawn. Points from a start to the next are joined by lines.
struct PlotSeriesRecord {
  std::string name;  ///< colour word of the legend
  std::string note;  ///< legend text where there is more to tell than the colour
  Color color;
  Pen pen;
  AxisRange range;
  std::vector<GraphPoint> points;
  std::vector<std::size_t> starts;  ///< indices of points that no line leads to

  /// The legend's text.
  const std::string& Legend() const { return note.empty() ? name : note; }
  friend bool operator==(const PlotSeriesRecord&, const PlotSeriesRecord&) = default;
};

/// A single line with both ends given: zero lines, free drawing.
struct PlotLineRecord {
  GraphPoint from;
  GraphPoint to;
  Pen pen;
  AxisRange range;
  /// The colour follows the texts' colour, so that it shows on every background.
  bool inTextColor = false;
  friend bool operator==(const PlotLineRecord&, const PlotLineRecord&) = default;
};

struct PlotCircleRecord {
  GraphPoint center;
  double radius = 0;  ///< X units
  double aspect = 1;  ///< height by width
  Pen pen;
  AxisRange range;
  friend bool operator==(const PlotCircleRecord&, const PlotCircleRecord&) = default;
};

struct PlotBoxRecord {
  GraphPoint center;
  Color color;
  AxisRange range;
  friend bool operator==(const PlotBoxRecord&, const PlotBoxRecord&) = default;
};

/// Numbers of the labels that a graph has: 1 and 2 stand at the X axis, 3 at the Y axis,
/// 4 to 6 are title lines, 11 to 20 lines of text under them.
inline constexpr int kLastCaption = 20;
inline constexpr int kXPointerCaption = 1;
inline constexpr int kXNameCaption = 2;
inline constexpr int kYPointerCaption = 3;
inline constexpr int kTitleCaption = 4;
/// True for the numbers 1 to 6 and 11 to 20.
constexpr bool IsCaptionNumber(int number) {
  return (number >= 1 && number <= 6) || (number >= 11 && number <= kLastCaption);
}

/// The place of the frame on a surface, and the drawing units it was made for.
struct PlotLayout {
  SurfaceRect frame;
};

/// What a pointer over the graph is told: the nearest point of a curve.
struct NearestPoint {
  std::size_t series = 0;
  GraphPoint point;
};

/// Keeps what was drawn, in value units, and draws it on any surface at any size.
///
/// Callers set the scale, draw the frame and hand over points; nothing here knows of
/// engines. Drawing X counts from the frame's left edge and drawing Y from the top.
class PlotEngine {
 public:
  explicit PlotEngine(ParameterBlock& block);

  // Scale state
  double YLow = 0;
  double YHigh = 0;
  double XLow = 0;
  double XHigh = 0;
  double YUnitsPerPixel = 0;
  double XUnitsPerPixel = 0;
  double GraphBottom = 0;
  double GraphScreenX = 0;
  double GraphScreenY = 0;
  int CurveIndex = 0;  ///< 0: no colour yet

  /// Throws away all that was drawn; the pen is the first one again.
  void Clear();
  /// Nothing has been drawn.
  bool Empty() const;
  /// The same was drawn, on the same scale.
  bool SameAs(const PlotEngine& other) const { return *this == other; }

  /// Sets the limits of the axes. @throws CommandError (InvalidArgument) unless all are
  /// finite and each high limit is above its low one; nothing changes then
  void SetScale(const AxisRange& range);
  /// The same, and all that has been drawn moves to its values on the new axes.
  void Rescale(const AxisRange& range);
  AxisRange scale() const { return {XLow, XHigh, YLow, YHigh}; }
  /// The X axis is a crank angle: "TDC" and "BDC" stand under it.
  bool crankAngleAxis = false;

  /// Fits the scale to a frame: its size and its bottom in drawing units.
  void FitFrame(const SurfaceRect& frame);
  /// The drawing place of a value, and it becomes the last mapped point.
  SurfacePoint Map(GraphPoint point);
  /// The value at a drawing place.
  GraphPoint Unmap(SurfacePoint place) const;

  /// The graph has a frame and a grid from here on, and no line count of its own.
  void DrawGrid();
  /// The graph has tick labels and captions from here on.
  void DrawAxes();
  /// Grid lines of this graph instead of the option's, 2 to 400.
  /// @throws CommandError (InvalidArgument)
  void SetGridLines(std::optional<int> countX, std::optional<int> countY);
  int GridLinesX() const;
  int GridLinesY() const;

  /// Begins a new curve in the next colour, with its legend entry: the first graph's is
  /// green and has the index 0, which Clear sets.
  void CurveColor();
  /// Begins a new curve in a colour of its own; the pens do not move on.
  void CurveInColor(const CurveColorEntry& color);
  /// The note that the legend shows for the present curve.
  void SetCurveNote(std::string note);
  /// Puts a name before the legend of the first curves. @param count  how many
  void NameCurves(std::string_view name, std::size_t count);
  void SetCurvePen(double width, LineStyle style);
  /// Room for points of the present curve.
  void ReservePoints(std::size_t count);

  /// A point, with no line that leads to it; the colour is the curve's.
  /// @throws CommandError (Overflow) for a point that is not finite
  void PlotPoint(double x, double y);
  /// The line from the last point to this one. @throws CommandError as PlotPoint
  void PlotLine(double x, double y);
  /// The same in a colour of their own, which the user's choice still replaces.
  void PlotPoint(double x, double y, Color color);
  void PlotLine(double x, double y, Color color);
  /// CurveColor, PlotPoint for the first point and PlotLine for the rest.
  /// @param moves   indices of further points that no line leads to
  /// @param fewest  how many points the curve needs: 0 for one that may be empty
  /// @param color   in place of the next pen
  /// @throws CommandError (InvalidArgument) for fewer
  void PlotSeries(std::span<const GraphPoint> points, std::string note = {},
                  std::span<const std::size_t> moves = {}, std::size_t fewest = kFewestCurvePoints,
                  const std::optional<CurveColorEntry>& color = std::nullopt);
  /// Throws what PlotSeries would, so that a graph can be checked before the old one goes.
  /// @param curve  its name, which a refusal tells
  static void RequireSeries(std::span<const GraphPoint> points, std::string_view curve = {},
                            std::size_t fewest = kFewestCurvePoints);
  /// A small box around a point.
  void PlotBox(double x, double y, Color color);
  /// A circle; its radius is in X units. @throws CommandError (Overflow, InvalidArgument)
  /// @param pen  its width is the option's where it is 0
  void PlotCircle(double x, double y, double radius, Pen pen, double aspect = 1);
  /// A line with both ends given, in value units.
  void PlotAdjustedLine(GraphPoint from, GraphPoint to, const Pen& pen, bool inTextColor = false);

  /// A stroke drawn by hand.
  void PlotFreeLine(GraphPoint from, GraphPoint to, const Pen& pen, bool inTextColor);
  void ClearFreeLines() { freeLines_.clear(); }

  /// Drops curves, lines, boxes, circles and the picture; texts and scale stay.
  void ClearDrawing();

  void SetCaption(int number, std::string text);
  const std::string& Caption(int number) const;
  void ClearCaptions();
  /// Title lines in their order: the captions 4 to 6 and 11 to 20 that are not empty.
  std::vector<std::string> Titles() const;

  /// A picture under the graph, as the bytes of its file.
  void SetPicture(std::string bytes) { picture_ = std::move(bytes); }
  const std::string& picture() const { return picture_; }

  const std::vector<PlotSeriesRecord>& series() const { return series_; }
  const std::vector<PlotLineRecord>& lines() const { return lines_; }
  const std::vector<PlotLineRecord>& freeLines() const { return freeLines_; }
  const std::vector<PlotCircleRecord>& circles() const { return circles_; }
  const std::vector<PlotBoxRecord>& boxes() const { return boxes_; }
  bool hasGrid() const { return hasGrid_; }
  bool hasAxes() const { return hasAxes_; }
  /// The colour a curve shows: the user's when that is switched on and chosen.
  Color ShownColor(const PlotSeriesRecord& series) const;
  /// The same as it is drawn in a theme, where that lightens what is hard to see.
  Color ShownColor(const PlotSeriesRecord& series, const PlotTheme& theme) const;
  /// The colour that the user chose for curves, when it is switched on.
  std::optional<Color> UserColor() const;
  /// The legend's text of a curve.
  std::string LegendText(const PlotSeriesRecord& series) const;

  /// The nearest point of each curve to a value, by X. Curves without points have none.
  std::vector<NearestPoint> NearestPoints(double x) const;
  /// All points of all curves as rows "series, name, x, y"; CR LF ends each.
  std::string PointsAsCsv() const;

  /// The place of the frame for a surface, by the texts' size on it.
  PlotLayout LayOut(const Surface& surface, const PlotTheme& theme) const;
  /// Draws all on a surface and fits the scale state to it.
  PlotLayout DrawOn(Surface& surface, const PlotTheme& theme);

  // Overlays of the dyno sheet
  /// Curves of a dyno run: horsepower and torque, and the same corrected.
  struct DynoRow {
    double rpm = 0;
    double horsepower = 0;
    double torque = 0;
    double otherHorsepower = 0;  ///< corrected, or with nitrous
    double otherTorque = 0;      ///< corrected, or with nitrous
  };
  /// Graphs a dyno run with its corrected values on the present scale.
  void DrawDynoGraph(std::span<const DynoRow> rows);
  /// Graphs a dyno run with the values under nitrous. @param shot  horsepower of the shot
  void DrawNitrousGraph(std::span<const DynoRow> rows, double shot);

 private:
  struct DynoTexts;
  friend bool operator==(const PlotEngine&, const PlotEngine&) = default;
  void DrawDyno(std::span<const DynoRow> rows, const DynoTexts& texts);
  PlotSeriesRecord& Current();
  void Add(GraphPoint point, bool start);
  void BeginSeries(const CurveColorEntry& color);
  DecimalMark mark() const;

  ParameterBlock* block_;
  bool penUsed_ = false;  ///< the pen of CurveIndex has drawn a curve
  bool hasGrid_ = false;
  bool hasAxes_ = false;
  std::optional<int> gridLinesX_;
  std::optional<int> gridLinesY_;
  std::array<std::string, kLastCaption + 1> captions_;
  std::string picture_;
  std::vector<PlotSeriesRecord> series_;
  std::vector<PlotLineRecord> lines_;
  std::vector<PlotLineRecord> freeLines_;
  std::vector<PlotCircleRecord> circles_;
  std::vector<PlotBoxRecord> boxes_;
};

}  // namespace veldox
