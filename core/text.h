#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldox {

/// True for a byte that goes on with a character of a UTF-8 text.
constexpr bool IsContinuationByte(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// A UTF-8 text for a message: what is longer is cut between two characters and ends in "...".
/// @param most  characters that are shown
std::string Clipped(std::string_view text, std::size_t most);

/// The caption of a switch, whose last word tells how it stands: ON or OFF.
std::string SwitchCaption(std::string_view caption, bool on);

}  // namespace veldox
