#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/report.h"

// Lines of the reports on ports and their flow.

namespace veldox {

/// A row of a table: each number ends under the end of a head, and what is too long for its
/// column moves only what follows it at once.
class TableRow {
 public:
  TableRow(std::string_view text, DecimalMark mark) : text_(text), mark_(mark) {}

  void EndAt(std::size_t end, const std::string& cell);
  template <PatternText Pattern>
  void EndAt(std::size_t end, double value) {
    EndAt(end, FormatValue<Pattern>(value, mark_));
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
  DecimalMark mark_;
};

/// Where the heads of a line end.
std::vector<std::size_t> EndsOf(std::string_view heads);

/// A line that tells the same of the intake and of the exhaust.
void AddPair(ReportWriter& report, const std::string& left, const std::string& right);

}  // namespace veldox
