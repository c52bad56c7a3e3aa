#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace veldox {

/// What of a change of a text is told: both texts, or of two texts of several lines the first line
/// in which they differ, with single blanks between its words.
std::pair<std::string, std::string> DifferingLines(std::string_view before, std::string_view after);

}  // namespace veldox
