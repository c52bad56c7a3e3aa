#include "core/report_columns.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "core/text.h"

namespace veldox {

namespace {

std::size_t Characters(int width) {
  return static_cast<std::size_t>(std::max(width, 0));
}

}  // namespace

std::string ReportColumns::StartValueLine(double value, std::string_view label) const {
  std::string line = FormatField11(value, mark_);
  line += label;
  line += "\r\n";
  return line;
}

void ReportColumns::AddValueLine(double value, std::string_view label) {
  ReportLine += FormatField11(value, mark_);
  ReportLine += label;
  ReportLine += "\r\n";
}

const std::string& ReportColumns::PadCell(int width) {
  return CellText = RightAligned(std::move(CellText), Characters(width));
}

void ReportColumns::AddPadCell(int width) {
  ReportLine += PadCell(width);
}

void ReportColumns::AddPadCell2(int width) {
  ReportLine2 += PadCell(width);
}

void ReportColumns::PadTextCell(int width) {
  LeftCellText = LeftAligned(std::move(LeftCellText), Characters(width));
  ReportLine += LeftCellText;
}

}  // namespace veldox
