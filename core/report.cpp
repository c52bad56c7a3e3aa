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

int FontSizeByWidth(std::string_view report) {
  constexpr std::size_t kUsualWidth = 80;
  const std::vector<MarkedLine> lines = ReportLines(report);
  // The first line is never printed.
  const bool wide = std::any_of(lines.begin() + 1, lines.end(), [](const MarkedLine& line) {
    return line.text.size() > kUsualWidth;
  });
  return wide ? 9 : 10;
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
