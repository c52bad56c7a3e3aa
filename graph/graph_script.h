#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "graph/plot_engine.h"

namespace veldox {

/// What a graph-script file says, checked and ready to be drawn.
struct GraphScript {
  /// One stroke of the pen: a colour, a width and a style, and the points drawn with them.
  struct Curve {
    std::optional<CurveColorEntry> color;  ///< nothing: the pen that is next in the row
    bool sameColor = false;                ///< goes on in the colour of the curve before
    int width = 0;                         ///< 0: the option's width
    LineStyle style = LineStyle::Solid;
    std::vector<GraphPoint> points;
    std::vector<std::size_t> starts;
  };
  struct Circle {
    GraphPoint center;
    double radius = 0;
    std::optional<CurveColorEntry> color;
    int width = 0;  ///< 0: the option's width
    LineStyle style = LineStyle::Solid;
  };

  bool overlay = false;
  std::optional<double> xLow, xHigh, yLow, yHigh;
  std::optional<int> gridLinesX, gridLinesY;
  std::map<int, std::string> captions;
  std::vector<Curve> curves;
  std::vector<Circle> circles;
  int records = 0;

  bool HasDrawing() const;
};

/// A file that is no graph script: the message as it is shown.
struct GraphScriptFailure {
  std::string title;  ///< empty: the usual title
  std::string text;
};

/// The most curves that a graph script may draw: circles, and pieces of a line that nothing joins
/// to the one before, count each as one.
inline constexpr std::size_t kMostScriptCurves = 10000;

/// Reads a graph script. Every line is a record; the first one that cannot be understood
/// ends the reading.
/// @param fileName  the name that messages tell
/// @return the script, or nothing with the failure in `failure`
/// @throws CommandError (File) for more than kMostScriptCurves curves, and as LineReader does
std::optional<GraphScript> ReadGraphScript(std::string_view text, const std::string& fileName,
                                           DecimalMark mark, GraphScriptFailure& failure);

}  // namespace veldox
