#pragma once

#include <span>

#include "core/report.h"

namespace veldox {

/// A column of a chart: its head in two lines and its width in characters. Heads and numbers end at
/// the right of the column.
struct ChartColumn {
  const char* upper;
  const char* lower;
  int width;
};

/// Writes the heads of all columns, which pages repeat, and an empty line.
inline void WriteHeads(ReportWriter& report, std::span<const ChartColumn> columns) {
  for (const auto line : {&ChartColumn::upper, &ChartColumn::lower}) {
    int width = 0;
    for (const ChartColumn& column : columns) {
      width += column.width;
      // A column without a head here leaves its room to the next that has one.
      if (*(column.*line) == 0) continue;
      report.CellText = column.*line;
      report.AddPadCell(width);
      width = 0;
    }
    report.EndLine(LineMark::Heading);
  }
  report.EndLine();
}

/// Adds a number that ends at the right of its column, with a blank before it however wide it is.
template <PatternText Pattern>
void AddNumber(ReportWriter& report, double value, int width) {
  report.Cell<Pattern>(value, width);
  if (!report.CellText.starts_with(' ')) report.Add(" ");
  report.Add(report.CellText);
}

}  // namespace veldox
