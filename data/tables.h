#pragma once

#include <span>
#include <string_view>

namespace veldox {

/// A row of a table of published figures.
struct TableRow {
  enum class Kind {
    Header,    ///< heads the rows below it; without a name it sets them apart
    Figures,   ///< a name with its figures
    NameOnly,  ///< a name whose figures are not verified
  };
  Kind kind;
  std::string_view name;
  std::string_view figures;  ///< the figures as they stand in the file, single blanks between them
  std::string_view source;   ///< where the figures come from
};

/// The rows that belong together, in the order of the file.
struct TableGroup {
  std::string_view name;
  std::span<const TableRow> rows;
};

/// Production engines by make: bore, stroke and rod length in inches (a rod length of 0.0 is
/// not known), number of cylinders. Made from engines.tsv by the build.
std::span<const TableGroup> EngineTable();

}  // namespace veldox
