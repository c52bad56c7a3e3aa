#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Texts on the lines of a report.

namespace veldox {

/// The number of characters that a text takes on a line.
std::size_t TextLength(std::string_view text);

/// The text with blanks behind it, up to a width.
std::string Padded(std::string text, std::size_t width);

/// The text with blanks before it, up to a width.
std::string RightAligned(const std::string& text, std::size_t width);

/// A line without blanks at its end, which may not look like a mark of the printer.
std::string WithoutMark(std::string line);

/// A text in lines of whole words.
std::vector<std::string> Wrapped(const std::string& text, std::size_t width);

}  // namespace veldox
