#include "airfuel/flow_file.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr std::string_view kValueMark = "1 ";

/// Where in a file the flow stands, and what it consists of.
struct FlowLayout {
  int titles = 0;          ///< how often the title comes again before the flow
  bool hasCounts = false;  ///< a count for each port, and the numbers of valves
};

FlowLayout LayoutOf(const std::string& fileName) {
  constexpr std::size_t kEnding = 3;
  const std::string name = Lower(fileName);
  const std::string ending =
      name.size() < kEnding ? std::string{} : name.substr(name.size() - kEnding);
  if (ending == "dfw") return {0, true};
  if (ending == "dyn") return {2, false};
  if (ending == "cqu" || ending == "dym") return {4, true};
  return {};
}

class FlowReader {
 public:
  FlowReader(std::string_view text, const std::string& fileName, DecimalMark mark)
      : lines_(text, fileName), mark_(mark) {}

  void Read(FlowFile& file, const FlowLayout& layout) {
    FindFlow(layout.titles);
    const std::size_t intakeCount = Count("The number of intake points");
    const std::size_t exhaustCount =
        layout.hasCounts ? Count("The number of exhaust points") : intakeCount;
    NextOf("The intake valve diameter");
    if (!lines_.line().starts_with(kValueMark)) {
      file.hasNoFlow = true;
      return;
    }
    file.intake.valveSize = NumberHere("The intake valve diameter");
    ReadPort(file.intake, intakeCount, "intake");
    file.exhaust.valveSize = Value("The exhaust valve diameter");
    ReadPort(file.exhaust, exhaustCount, "exhaust");
    if (!layout.hasCounts) return;
    file.intakeValves = Valves("The number of intake valves");
    file.exhaustValves = Valves("The number of exhaust valves");
  }

  int number() const { return lines_.number(); }

 private:
  /// Goes to the line before the first count. A file that ends on the way fails there.
  void FindFlow(int titles) {
    constexpr int kSkipped = 2;
    if (!lines_.Next()) return;
    const std::string title(lines_.line());
    for (int met = 0; met < titles;) {
      if (!lines_.Next()) return;
      if (lines_.line() == title) ++met;
    }
    for (int i = 0; i < kSkipped && lines_.Next(); ++i) {
    }
  }

  void ReadPort(FlowFilePort& port, std::size_t count, const std::string& name) {
    port.testPressure = Value("The " + name + " test pressure");
    if (!(port.testPressure > 0)) {
      throw lines_.Refusal("The " + name + " test pressure must be above 0.");
    }
    while (port.lifts.size() < count) port.lifts.push_back(Value("The " + name + " valve lift"));
    while (port.flows.size() < count) {
      const double flow = Value("The " + name + " flow");
      if (!std::isfinite(FlowAtTablePressure(flow, port.testPressure))) {
        throw lines_.Refusal("The " + name + " flow is too large.");
      }
      port.flows.push_back(flow);
    }
  }

  void NextOf(const std::string& what) {
    if (!lines_.Next()) throw lines_.Refusal("The file is cut short: " + what + " is missing.");
  }
  /// The number in this line from its third column on.
  double NumberHere(const std::string& what) const {
    return Number(lines_.line().substr(std::min(kValueMark.size(), lines_.line().size())), what);
  }
  double Value(const std::string& what) {
    NextOf(what);
    return NumberHere(what);
  }
  /// A number of a line that has no mark.
  double PlainValue(const std::string& what) {
    NextOf(what);
    return Number(lines_.line(), what);
  }
  double Number(std::string_view text, const std::string& what) const {
    try {
      return ParseNumber(text, mark_);
    } catch (const CommandError& error) {
      throw lines_.Refusal(what + ' ' + error.message());
    }
  }
  std::size_t Count(const std::string& what) {
    const double count = std::nearbyint(PlainValue(what));
    if (!(count >= 0 && count <= static_cast<double>(kFlowRows))) {
      throw lines_.Refusal(what + " must be from 0 to " + std::to_string(kFlowRows) + '.');
    }
    return static_cast<std::size_t>(count);
  }
  std::int16_t Valves(const std::string& what) {
    const double count = std::nearbyint(PlainValue(what));
    constexpr double kMostValves = 100;
    if (!(count >= 1 && count <= kMostValves)) {
      throw lines_.Refusal(what + " must be from 1 to 100.");
    }
    return static_cast<std::int16_t>(count);
  }

  LineReader lines_;
  DecimalMark mark_;
};

/// Replaces the first place of a text, if there is one.
void Replace(std::string& text, std::string_view what, std::string_view by) {
  if (const auto at = text.find(what); at != std::string::npos) text.replace(at, what.size(), by);
}

class FlowWriter {
 public:
  explicit FlowWriter(DecimalMark mark) : mark_(mark) {}

  void Line(std::string_view line) {
    text_ += line;
    text_ += "\r\n";
  }
  template <PatternText Pattern>
  void Value(double value) {
    Line(std::string(kValueMark) + FormatValue<Pattern>(value, mark_));
  }
  void Port(double valve, const std::vector<FlowPoint>& points) {
    Value<"0.0#####">(valve);
    Line("1 28");
    for (const FlowPoint& point : points) Value<"0.0000000">(point.lift);
    for (const FlowPoint& point : points) Value<"0.0000000">(point.flow);
  }
  std::string Finish() { return std::move(text_); }

 private:
  std::string text_;
  DecimalMark mark_;
};

std::vector<FlowPoint> Measured(std::span<const FlowPoint> table) {
  std::vector<FlowPoint> points;
  std::ranges::copy_if(table, std::back_inserter(points),
                       [](const FlowPoint& p) { return p.lift != 0 && p.flow != 0; });
  return points;
}

}  // namespace

FlowFile ParseFlowFile(std::string_view text, const std::string& fileName, DecimalMark mark) {
  FlowReader reader(text, fileName, mark);
  FlowFile file;
  try {
    reader.Read(file, LayoutOf(fileName));
  } catch (const CommandError& error) {
    file.fault = error;
  }
  file.linesRead = reader.number();
  return file;
}

FlowExportText WriteFlowFile(const FlowExport& data, const std::string& title, DecimalMark mark) {
  const std::vector<FlowPoint> intake = Measured(data.intake);
  const std::vector<FlowPoint> exhaust = Measured(data.exhaust);
  FlowWriter writer(mark);
  writer.Line(title);
  writer.Line("0");
  writer.Line(std::to_string(intake.size()));
  writer.Line(std::to_string(exhaust.size()));
  writer.Port(data.intakeValve, intake);
  writer.Port(data.exhaustValve, exhaust);
  for (const char* line : {"1", "1", "***", "***"}) writer.Line(line);
  return {writer.Finish(), static_cast<int>(intake.size()), static_cast<int>(exhaust.size())};
}

std::string FlowFileTitle(const std::string& program, const std::string& version) {
  constexpr std::size_t kLongestTitle = 79;
  std::string title = "5.00 Exported From " + program + " Version: " + version;
  if (title.size() > kLongestTitle) Replace(title, "Version: ", "Ver: ");
  if (title.size() > kLongestTitle) Replace(title, " Exported From ", " ");
  if (title.size() > kLongestTitle) title.resize(kLongestTitle);
  return title;
}

}  // namespace veldox
