#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Texts on the lines of a report.

namespace veldox {

/// A line without blanks at its end, which may not look like a mark of the printer.
std::string WithoutMark(std::string line);

/// A text in lines of whole words.
std::vector<std::string> Wrapped(const std::string& text, std::size_t width);

}  // namespace veldox
