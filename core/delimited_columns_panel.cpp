#include "core/delimited_columns_panel.h"

namespace veldox {

int DelimitedColumnsPanel::ReadColumn(Field& field) const {
  std::int16_t column = 0;
  ReadCount(column, field);
  Require(column >= 1, field, "has to be 1 or more: the fields of a line are counted from 1.");
  return column;
}

void DelimitedColumnsPanel::ReadEntries() {
  Columns columns;
  columns.x = ReadColumn(Text13);
  columns.y = ReadColumn(Text12);
  columns.delimiter = Text11.text() == "T" ? "\t" : Text11.text();
  columns.fuel = ReadColumn(Text15);
  columns.bsfc = ReadColumn(Text16);
  columns.airFuel = ReadColumn(Text17);
  columns_ = std::move(columns);
}

}  // namespace veldox
