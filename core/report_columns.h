#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

namespace veldox {

/// The work lines of a report and the helpers that set its columns: numbers end at the right of
/// their column, texts begin at its left. A width counts characters of UTF-8 text; what is wider
/// than its column overflows and is never cut.
///
/// The number helpers throw what FormatByPattern throws, and then leave every line as it was.
class ReportColumns {
 public:
  explicit ReportColumns(DecimalMark mark) : mark_(mark) {}

  std::string ReportLine;    ///< the main work line
  std::string ReportLine2;   ///< the second work line, of reports in two columns
  std::string CellText;      ///< the cell just made, ended at the right of its column
  std::string LeftCellText;  ///< a text cell, to be begun at the left of its column

  /// The value by FormatField11, the label and a line break (CR LF).
  std::string StartValueLine(double value, std::string_view label) const;
  /// Appends the same to ReportLine.
  void AddValueLine(double value, std::string_view label);

  /// Makes CellText the value by a pattern, with blanks on its left up to `width`.
  template <PatternText Pattern>
  const std::string& Cell(double value, int width) {
    CellText = FormatValue<Pattern>(value, mark_);
    return PadCell(width);
  }

  /// Makes the cell and appends it to ReportLine.
  template <PatternText Pattern>
  void AddCell(double value, int width) {
    ReportLine += Cell<Pattern>(value, width);
  }

  /// Makes the cell and appends it to ReportLine2.
  template <PatternText Pattern>
  void AddCell2(double value, int width) {
    ReportLine2 += Cell<Pattern>(value, width);
  }

  /// Puts blanks on the left of the text that stands in CellText, up to `width`.
  const std::string& PadCell(int width);
  /// Does so and appends CellText to ReportLine.
  void AddPadCell(int width);
  /// Does so and appends CellText to ReportLine2.
  void AddPadCell2(int width);

  /// Puts blanks on the right of LeftCellText, up to `width`, and appends it to ReportLine.
  void PadTextCell(int width);

 private:
  DecimalMark mark_;
};

}  // namespace veldox
