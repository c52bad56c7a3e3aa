#include "airfuel/report_table.h"

namespace veldox {

void TableRow::EndAt(std::size_t end, const std::string& cell) {
  if (!text_.empty()) text_ += ' ';
  if (text_.size() + cell.size() < end) text_.append(end - cell.size() - text_.size(), ' ');
  text_ += cell;
}

std::vector<std::size_t> EndsOf(std::string_view heads) {
  std::vector<std::size_t> ends;
  for (std::size_t i = 0; i < heads.size(); ++i) {
    if (heads[i] != ' ' && (i + 1 == heads.size() || heads[i + 1] == ' ')) ends.push_back(i + 1);
  }
  return ends;
}

void AddPair(ReportWriter& report, const std::string& left, const std::string& right) {
  constexpr int kLeftWidth = 43;
  report.LeftCellText = left;
  report.PadTextCell(kLeftWidth);
  report.Add(right).EndLine();
}

}  // namespace veldox
