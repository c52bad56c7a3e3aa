#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "core/vary.h"

namespace veldox {

/// A series of values as a report: what was varied by what, and under a head of captions and
/// units a line for each value, the decimal marks under each other. A value that the command
/// cannot work with has its reason on its line. With a second field there is a table for each of
/// its values.
/// @param wanted  how many values there would have been; where there are fewer, the report says so
/// @return a report
std::string SeriesReport(const Variation& variation, std::span<const VariedSeries> all,
                         std::size_t wanted);

/// The same as lines of a table that other programs read: a head, then a row for each value, with
/// the value of the second field first where there is one. Numbers have the system's decimal mark,
/// and a semicolon parts the columns where that is a comma. A reason stands in the last column.
std::string SeriesCsv(const Variation& variation, std::span<const VariedSeries> all);

}  // namespace veldox
