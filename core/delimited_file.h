#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"

namespace veldox {

/// Numbers from chosen columns of a delimited file.
struct DelimitedRows {
  std::vector<std::vector<double>> rows;  ///< in the order of the columns asked for
  int linesRead = 0;
  int incomplete = 0;  ///< lines with a number in some of the columns, but not in all
};

/// Takes the lines in which all of the columns hold numbers; headings, comments and blank lines
/// are passed over.
/// @param delimiter  what stands between the fields of a line; empty: any number of blanks or tabs
/// @param columns    from 1
/// @throws CommandError (File) for a file without such a line, and as LineReader does
DelimitedRows ParseDelimited(std::string_view text, const std::string& fileName,
                             std::string_view delimiter, std::span<const int> columns,
                             DecimalMark mark);

}  // namespace veldox
