#include "core/report_columns.h"

#include <algorithm>
#include <cstddef>

namespace veldox {

namespace {

/// Blanks that a UTF-8 text lacks to fill a column.
std::size_t MissingBlanks(std::string_view text, int width) {
  const auto characters = std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;  // no continuation byte
  });
  return characters < width ? static_cast<std::size_t>(width - characters) : 0;
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
  CellText.insert(0, MissingBlanks(CellText, width), ' ');
  return CellText;
}

void ReportColumns::AddPadCell(int width) {
  ReportLine += PadCell(width);
}

void ReportColumns::AddPadCell2(int width) {
  ReportLine2 += PadCell(width);
}

void ReportColumns::PadTextCell(int width) {
  LeftCellText.append(MissingBlanks(LeftCellText, width), ' ');
  ReportLine += LeftCellText;
}

}  // namespace veldox
