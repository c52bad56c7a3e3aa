#include "core/report.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace veldox {

namespace {

constexpr std::string_view kLineBreak = "\r\n";

LineMark MarkOf(std::string_view line) {
  if (line.empty()) return LineMark::None;
  switch (line.back()) {
    case '_': return LineMark::Heading;
    case '^': return LineMark::Bold;
    case '~': return LineMark::HeadingsEnd;
    default: return LineMark::None;
  }
}

}  // namespace

std::vector<MarkedLine> ReportLines(std::string_view report) {
  std::vector<MarkedLine> lines;
  for (bool last = false; !last;) {
    const auto end = report.find(kLineBreak);
    last = end == std::string_view::npos;
    std::string_view line = report.substr(0, end);
    const LineMark mark = MarkOf(line);
    if (mark != LineMark::None) line.remove_suffix(1);
    lines.push_back({line, mark});
    if (!last) report.remove_prefix(end + kLineBreak.size());
  }
  return lines;
}

namespace {

/// True for a row of numbers alone: no head, whose words may stand beside their column.
bool IsRowOfNumbers(std::string_view line) {
  return !line.empty() && line.find_first_not_of("0123456789.,-+ ") == std::string_view::npos;
}

/// Widens a column by the number of a line that lies under the arrow.
void WidenBy(SetOffColumn& column, std::string_view line, std::size_t arrow) {
  const auto isBlank = [line](std::size_t at) { return line[at] == ' '; };
  std::size_t begin = arrow;
  while (begin < std::min(arrow + kColumnArrow.size(), line.size()) && isBlank(begin)) ++begin;
  if (begin >= arrow + kColumnArrow.size() || begin >= line.size()) return;
  std::size_t end = begin;
  while (begin > 0 && !isBlank(begin - 1)) --begin;
  while (end < line.size() && !isBlank(end)) ++end;
  column.begin = column.end == 0 ? begin : std::min(column.begin, begin);
  column.end = std::max(column.end, end);
}

}  // namespace

std::vector<SetOffColumn> SetOffColumns(const std::vector<MarkedLine>& lines) {
  std::vector<SetOffColumn> columns;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::size_t arrow = lines[i].text.find(kColumnArrow);
    if (arrow == std::string_view::npos) continue;
    SetOffColumn column{i + 1, i + 1};
    while (column.firstLine < lines.size() && !lines[column.firstLine].text.empty() &&
           !IsRowOfNumbers(lines[column.firstLine].text)) {
      ++column.firstLine;
    }
    column.endLine = column.firstLine;
    while (column.endLine < lines.size() && IsRowOfNumbers(lines[column.endLine].text)) {
      WidenBy(column, lines[column.endLine].text, arrow);
      ++column.endLine;
    }
    if (column.end != 0) columns.push_back(column);
  }
  return columns;
}

std::string ReportBoxText(std::string_view report) {
  std::string text;
  text.reserve(report.size() + kLineBreak.size());
  for (auto end = report.find(kLineBreak); end != std::string_view::npos;
       end = report.find(kLineBreak)) {
    std::string_view line = report.substr(0, end);
    if (MarkOf(line) != LineMark::None) line.remove_suffix(1);
    text += line;
    text += kLineBreak;
    report.remove_prefix(end + kLineBreak.size());
  }
  text += report;
  return text;
}

std::string ReportFileText(std::string_view report) {
  return ReportBoxText(report).append(kLineBreak);
}

namespace {

/// The characters of the widest line that is printed; the first one never is.
std::size_t PrintedWidth(std::string_view report) {
  std::size_t widest = 0;
  const std::vector<MarkedLine> lines = ReportLines(report);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    widest = std::max(widest, lines[i].text.size());
  }
  return widest;
}

}  // namespace

int FontSizeForPage(std::string_view report) {
  // A character is as wide as 0.6 of its size, and a page has room for 94 of 10 points.
  constexpr std::size_t kPagePoints = 940;
  constexpr int kLargest = 10;
  constexpr int kSmallest = 5;
  const std::size_t width = std::max<std::size_t>(1, PrintedWidth(report));
  return std::clamp(static_cast<int>(kPagePoints / width), kSmallest, kLargest);
}

int FontSizeByWidth(std::string_view report) {
  constexpr std::size_t kUsualWidth = 80;
  return PrintedWidth(report) > kUsualWidth ? 9 : 10;
}

void ReportWriter::EndLine(LineMark mark) {
  if (mark != LineMark::None) ReportLine += static_cast<char>(mark);
  ReportLine += kLineBreak;
}

void ReportWriter::AddLines(std::initializer_list<std::string_view> lines) {
  for (const std::string_view line : lines) {
    ReportLine += line;
    ReportLine += kLineBreak;
  }
}

std::string ReportWriter::Finish() {
  if (ReportLine.ends_with(kLineBreak)) ReportLine.resize(ReportLine.size() - kLineBreak.size());
  return std::exchange(ReportLine, {});
}

}  // namespace veldox
