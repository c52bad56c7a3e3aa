#include "graph/graph_conversion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Beginnings of lines that take each other's place.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kPairs = {{
    {"xlow =", "ylow ="},
    {"xhigh =", "yhigh ="},
    {"x scale =", "y scale ="},
    {"x shift =", "y shift ="},
    {"grid x l =", "grid y l ="},
    {"caption1 =", "caption3 ="},
}};
constexpr std::string_view kXNameLine = "caption2 =";
constexpr std::string_view kYPointerLine = "caption3 =";

/// What stands behind the beginning of a line; nothing when it begins otherwise.
std::optional<std::string_view> Behind(std::string_view line, std::string_view start) {
  if (!StartsIgnoringCase(line, start)) return std::nullopt;
  return Trim(line.substr(start.size()));
}

class AxisReverser {
 public:
  /// @param yName  what the Y axis is called
  explicit AxisReverser(std::string yName) : yName_(std::move(yName)) {}

  void Take(const LineReader& lines) {
    const std::string_view line = Trim(lines.line());
    if (Point(line)) return;
    for (const auto& [x, y] : kPairs) {
      if (const auto value = Behind(line, x)) return Add(y, *value);
      if (const auto value = Behind(line, y)) return Add(x, *value);
    }
    if (Behind(line, kXNameLine) && !yName_.empty()) return Add(kXNameLine, yName_);
    if (const auto value = Behind(line, "line to ="))
      return Add("line to =", Turned(lines, *value));
    if (const auto value = Behind(line, "line =")) return Add("line =", Turned(lines, *value));
    if (const auto value = Behind(line, "circle =")) return Add("circle =", Turned(lines, *value));
    text_ += lines.line();
    text_ += kLineEnd;
  }

  std::string text() && { return std::move(text_); }

 private:
  /// A point is drawn by its "y = " line, so the "x = " line has to stand before it again.
  bool Point(std::string_view line) {
    if (const auto x = Behind(line, "x =")) {
      x_ = std::string(*x);
    } else if (const auto y = Behind(line, "y =")) {
      if (!x_) return true;  // one without X draws nothing
      Add("x =", *y);
      Add("y =", *std::exchange(x_, std::nullopt));
    } else {
      return false;
    }
    return true;
  }

  void Add(std::string_view start, std::string_view value) {
    text_ += start;
    text_ += ' ';
    text_ += value;
    text_ += kLineEnd;
  }

  /// Numbers with commas between them, each pair turned; a radius behind them stays.
  static std::string Turned(const LineReader& lines, std::string_view values) {
    constexpr char kSeparator = ',';
    std::vector<std::string_view> numbers;
    for (;;) {
      const std::size_t end = values.find(kSeparator);
      numbers.push_back(Trim(values.substr(0, end)));
      if (end == std::string_view::npos) break;
      values.remove_prefix(end + 1);
    }
    if (numbers.size() < 2) throw lines.Refusal("A place has an X and a Y with a comma between.");
    std::string turned;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) std::swap(numbers[i], numbers[i + 1]);
    for (const std::string_view number : numbers) {
      if (!turned.empty()) turned += ", ";
      turned += number;
    }
    return turned;
  }

  std::string yName_;
  std::string text_;
  std::optional<std::string> x_;
};

struct AxisLimits {
  double low;
  double high;
};

/// Round numbers that a column of numbers lies between.
AxisLimits LimitsOf(std::span<const std::vector<double>> rows, std::size_t column) {
  double low = rows.front()[column];
  double high = low;
  for (const std::vector<double>& row : rows) {
    low = std::min(low, row[column]);
    high = std::max(high, row[column]);
  }
  if (!(high > low)) return {low - 1, low + 1};
  const double step = std::pow(10, std::floor(std::log10(high - low)));
  return {std::floor(low / step) * step, std::ceil(high / step) * step};
}

/// What the Y axis is called, from its caption "<--- Horse Power".
std::string YNameOf(std::string_view text, const std::string& fileName) {
  constexpr std::string_view kArrow = "<- ";
  for (LineReader lines(text, fileName); lines.Next();) {
    if (auto name = Behind(Trim(lines.line()), kYPointerLine)) {
      name->remove_prefix(std::min(name->find_first_not_of(kArrow), name->size()));
      return std::string(*name);
    }
  }
  return {};
}

}  // namespace

std::string GraphScriptOf(std::span<const std::vector<double>> rows, DecimalMark mark) {
  std::string text;
  const auto add = [&](const char* start, double value) {
    text += start + FormatValue<"0.0#########">(value, mark) + "\r\n";
  };
  const auto addLimits = [&](std::size_t column, const char* low, const char* high) {
    const AxisLimits limits = LimitsOf(rows, column);
    add(low, limits.low);
    add(high, limits.high);
  };
  addLimits(0, "xlow = ", "xhigh = ");
  addLimits(1, "ylow = ", "yhigh = ");
  for (const std::vector<double>& row : rows) {
    add("x = ", row[0]);
    add("y = ", row[1]);
  }
  return text;
}

ReversedScript ReverseAxes(std::string_view text, const std::string& fileName) {
  AxisReverser reverser(YNameOf(text, fileName));
  LineReader lines(text, fileName);
  while (lines.Next()) reverser.Take(lines);
  ReversedScript script{std::move(reverser).text(), lines.number()};
  if (script.text.empty()) {
    throw CommandError(ErrorKind::File, "The file holds no line of a graph.\r\n" + lines.File());
  }
  return script;
}

}  // namespace veldox
