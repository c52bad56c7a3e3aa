#include "graph/graph_script.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "core/error.h"
#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr char kSeparator = ',';
constexpr const char* kErrorTitle = "VELDOX - Error Message";

/// A line that cannot be understood.
struct BadLine {
  GraphScriptFailure failure;
};

class Reader {
 public:
  Reader(LineReader& lines, DecimalMark mark, GraphScript& script)
      : lines_(lines), mark_(mark), script_(script) {}

  /// Takes the line that has come.
  void Read() {
    script_.records = lines_.number();
    line_ = Trim(lines_.line());
    lower_ = Lower(line_);
    if (lower_.empty() || lower_.front() == ';') return;
    try {
      if (!Axes() && !Points() && !Looks() && !Texts()) Invalid();
    } catch (const CommandError& error) {
      if (error.kind() == ErrorKind::File) throw;
      Invalid();  // a number that is none, or none that a count can hold
    }
  }

 private:
  [[noreturn]] void Invalid() const {
    Fail(kErrorTitle, "Invalid Input Recorder - " + std::to_string(script_.records) + ' ',
         lines_.File());
  }

  [[noreturn]] void Fail(const char* title, const std::string& what,
                         const std::string& where) const {
    constexpr std::size_t kShownCharacters = 300;
    throw BadLine{{title, what + Clipped(line_, kShownCharacters) + "\r\n" + where}};
  }

  void CountCurve() {
    if (++pieces_ <= kMostScriptCurves) return;
    throw lines_.Refusal("The file holds more than 10,000 curves, the most that a graph shows.");
  }

  /// True when the line begins with a prefix; what is behind it becomes the value.
  bool Is(std::string_view prefix) {
    // The blank that ends a prefix may be missing.
    const std::string_view stem =
        prefix.ends_with("= ") ? prefix.substr(0, prefix.size() - 1) : prefix;
    if (!std::string_view(lower_).starts_with(stem)) return false;
    value_ = Trim(std::string_view(lower_).substr(stem.size()));
    text_ = Trim(line_.substr(stem.size()));
    return true;
  }

  double Number() const { return ParseNumber(value_, mark_); }

  template <std::size_t N>
  std::array<double, N> Numbers() const {
    std::array<double, N> numbers{};
    std::string_view rest = value_;
    for (std::size_t i = 0; i < N; ++i) {
      const auto end = rest.find(kSeparator);
      if ((end == std::string_view::npos) != (i + 1 == N)) Invalid();
      numbers[i] = ParseNumber(Trim(rest.substr(0, end)), mark_);
      if (i + 1 < N) rest.remove_prefix(end + 1);
    }
    return numbers;
  }

  int Count(int fewest, int most) const {
    const double number = Number();
    if (number != Floor(number) || number < fewest || number > most) Invalid();
    return static_cast<int>(number);
  }

  GraphPoint Placed(double x, double y) const {
    const GraphPoint point{x * xScale_ + xShift_, y * yScale_ + yShift_};
    if (!std::isfinite(point.x) || !std::isfinite(point.y)) Invalid();
    return point;
  }

  bool Axes() {
    if (Is("overlay")) {
      script_.overlay = true;
    } else if (Is("xlow = ")) {
      script_.xLow = Number();
    } else if (Is("xhigh = ")) {
      script_.xHigh = Number();
    } else if (Is("ylow = ")) {
      script_.yLow = Number();
    } else if (Is("yhigh = ")) {
      script_.yHigh = Number();
    } else if (Is("x scale = ")) {
      xScale_ = Number();
    } else if (Is("y scale = ")) {
      yScale_ = Number();
    } else if (Is("x shift = ")) {
      xShift_ = Number();
    } else if (Is("y shift = ")) {
      yShift_ = Number();
    } else if (Is("grid y l = ")) {
      script_.gridLinesY = Count(2, 400);
    } else if (Is("grid x l = ")) {
      script_.gridLinesX = Count(2, 400);
    } else {
      return false;
    }
    return true;
  }

  bool Points() {
    if (Is("x = ")) {
      x_ = Number();
    } else if (Is("y = ")) {
      const double y = Number();
      if (x_) Add(Placed(*x_, y), false);
      x_.reset();
    } else if (Is("line to = ")) {
      const auto [x, y] = Numbers<2>();
      Add(Placed(x, y), false);
    } else if (Is("line = ")) {
      const auto [x1, y1, x2, y2] = Numbers<4>();
      const GraphPoint from = Placed(x1, y1);
      const GraphPoint to = Placed(x2, y2);
      Add(from, true);
      Add(to, false);
    } else if (Is("circle = ")) {
      const auto [x, y, radius] = Numbers<3>();
      const double shown = radius * std::abs(xScale_);
      if (radius < 0 || !std::isfinite(shown)) Invalid();
      CountCurve();
      script_.circles.push_back({Placed(x, y), shown, color_, width_, style_});
    } else if (Is("reset =")) {
      EndCurve();
    } else {
      return false;
    }
    return true;
  }

  bool Looks() {
    if (Is("color = ")) {
      const auto color = ColorByName(value_);
      if (!color) {
        Fail("", "Bad Color Parameter check Manual for available colors --> ", lines_.Place());
      }
      ChangePen();
      color_ = color;
      colorChanged_ = true;
    } else if (Is("drawwidth = ")) {
      const int width = Count(1, 50);
      ChangePen();
      width_ = width;
    } else if (Is("drawstyle = ")) {
      if (value_.size() != 1 || value_.front() < '1' || value_.front() > '4') {
        Fail("", "Bad DrawStyle Parameter must be 1 to 4 --> ", lines_.Place());
      }
      ChangePen();
      style_ = static_cast<LineStyle>(value_.front() - '0');
    } else {
      return false;
    }
    return true;
  }

  bool Texts() {
    constexpr std::string_view kWord = "caption";
    if (!std::string_view(lower_).starts_with(kWord)) return false;
    for (int number = 1; number <= kLastCaption; ++number) {
      if (IsCaptionNumber(number) && Is(std::string(kWord) + std::to_string(number) + " = ")) {
        script_.captions[number] = std::string(text_);
        return true;
      }
    }
    return false;
  }

  void Add(GraphPoint point, bool start) {
    if (!open_) {
      GraphScript::Curve curve;
      // A curve behind a "reset =" keeps the colour; the first one takes the next pen.
      curve.sameColor = !colorChanged_ && !script_.curves.empty();
      if (!curve.sameColor) curve.color = color_;
      curve.width = width_;
      curve.style = style_;
      script_.curves.push_back(std::move(curve));
      open_ = true;
      colorChanged_ = false;
      // A new pen alone does not break the line.
      if (carried_ && !start) {
        CountCurve();
        script_.curves.back().starts.push_back(0);
        script_.curves.back().points.push_back(*carried_);
      }
      carried_.reset();
    }
    GraphScript::Curve& curve = script_.curves.back();
    if (start || curve.points.empty()) {
      CountCurve();
      curve.starts.push_back(curve.points.size());
    }
    curve.points.push_back(point);
  }

  void EndCurve() {
    open_ = false;
    carried_.reset();
  }

  void ChangePen() {
    if (!open_) return;
    carried_ = script_.curves.back().points.back();
    open_ = false;
  }

  LineReader& lines_;
  DecimalMark mark_;
  GraphScript& script_;
  std::string_view line_;
  std::string lower_;
  std::string_view value_;  // behind the prefix, in small letters
  std::string_view text_;   // the same as it stands in the file
  std::size_t pieces_ = 0;
  std::optional<double> x_;
  double xScale_ = 1;
  double yScale_ = 1;
  double xShift_ = 0;
  double yShift_ = 0;
  std::optional<CurveColorEntry> color_;
  bool colorChanged_ = false;
  int width_ = 0;
  LineStyle style_ = LineStyle::Solid;
  bool open_ = false;  // the last curve takes further points
  std::optional<GraphPoint> carried_;
};

}  // namespace

bool GraphScript::HasDrawing() const {
  return !circles.empty() || !curves.empty();
}

std::optional<GraphScript> ReadGraphScript(std::string_view text, const std::string& fileName,
                                           DecimalMark mark, GraphScriptFailure& failure) {
  GraphScript script;
  LineReader lines(text, fileName);
  Reader reader(lines, mark, script);
  try {
    while (lines.Next()) reader.Read();
  } catch (const BadLine& bad) {
    failure = bad.failure;
    return std::nullopt;
  }
  return script;
}

}  // namespace veldox
