#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldox {

/// True for a byte that goes on with a character of a UTF-8 text.
constexpr bool IsContinuationByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Adds a character of Unicode to a UTF-8 text.
void AppendUtf8(std::string& text, char32_t c);

/// A text without the blanks and tabs around it.
constexpr std::string_view Trim(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// A text with the letters A to Z made small; what is beyond ASCII stays.
std::string Lower(std::string_view text);

/// True where two texts differ at most in the case of the letters A to Z.
bool SameIgnoringCase(std::string_view a, std::string_view b);

/// True where a text begins with another, whatever the case of the letters A to Z.
bool StartsIgnoringCase(std::string_view text, std::string_view prefix);

/// A UTF-8 text for a message: what is longer is cut between two characters and ends in "...".
/// @param most  characters that are shown
std::string Clipped(std::string_view text, std::size_t most);

/// How many characters a UTF-8 text has.
std::size_t CharacterCount(std::string_view text);

/// A text with blanks behind it that bring it to a width in characters.
std::string LeftAligned(std::string text, std::size_t width);
/// A text with blanks before it that bring it to a width in characters.
std::string RightAligned(std::string text, std::size_t width);

/// The caption of a switch, whose last word tells how it stands: ON or OFF.
std::string SwitchCaption(std::string_view caption, bool on);

}  // namespace veldox
