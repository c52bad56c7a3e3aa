#include "core/delimited_file.h"

#include <algorithm>
#include <optional>

#include "core/line_reader.h"
#include "core/text.h"

namespace veldox {

namespace {

/// The fields of a line without the blanks and quotes around them.
void Split(std::string_view line, std::string_view delimiter,
           std::vector<std::string_view>& fields) {
  constexpr std::string_view kBlanks = " \t";
  fields.clear();
  const bool byBlanks = Trim(delimiter).empty() && delimiter != "\t";
  if (byBlanks) line = Trim(line);
  while (true) {
    const std::size_t end = byBlanks ? line.find_first_of(kBlanks) : line.find(delimiter);
    std::string_view field = Trim(line.substr(0, end));
    if (field.size() >= 2 && field.starts_with('"') && field.ends_with('"')) {
      field = Trim(field.substr(1, field.size() - 2));
    }
    fields.push_back(field);
    if (end == std::string_view::npos) return;
    line.remove_prefix(end + (byBlanks ? 1 : delimiter.size()));
    if (byBlanks) line = Trim(line);
  }
}

std::optional<std::vector<double>> RowOf(const std::vector<std::string_view>& fields,
                                         std::span<const int> columns, DecimalMark mark) {
  std::vector<double> row;
  row.reserve(columns.size());
  for (const int column : columns) {
    if (column < 1 || static_cast<std::size_t>(column) > fields.size()) return std::nullopt;
    const std::string_view field = fields[static_cast<std::size_t>(column) - 1];
    if (!IsNumber(field, mark)) return std::nullopt;
    row.push_back(ParseNumber(field, mark));
  }
  return row;
}

/// A heading has texts in all of the columns; where one holds a number, a row was meant.
bool HoldsANumber(const std::vector<std::string_view>& fields, std::span<const int> columns,
                  DecimalMark mark) {
  return std::ranges::any_of(columns, [&](int column) {
    return column >= 1 && static_cast<std::size_t>(column) <= fields.size() &&
           IsNumber(fields[static_cast<std::size_t>(column) - 1], mark);
  });
}

std::string ListOf(std::span<const int> columns) {
  std::string list;
  for (const int column : columns) {
    if (!list.empty()) list += ", ";
    list += std::to_string(column);
  }
  return list;
}

}  // namespace

DelimitedRows ParseDelimited(std::string_view text, const std::string& fileName,
                             std::string_view delimiter, std::span<const int> columns,
                             DecimalMark mark) {
  LineReader lines(text, fileName);
  DelimitedRows file;
  std::vector<std::string_view> fields;
  while (lines.Next()) {
    if (lines.line().starts_with(';')) continue;
    Split(lines.line(), delimiter, fields);
    if (auto row = RowOf(fields, columns, mark)) {
      file.rows.push_back(*std::move(row));
    } else if (HoldsANumber(fields, columns, mark)) {
      ++file.incomplete;
    }
  }
  file.linesRead = lines.number();
  if (file.rows.empty()) {
    throw CommandError(ErrorKind::File,
                       "No line of the file has numbers in the fields " + ListOf(columns) +
                           ". Check the field numbers and the separator.\r\n" + lines.File());
  }
  return file;
}

}  // namespace veldox
