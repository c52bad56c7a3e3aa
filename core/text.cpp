#include "core/text.h"

#include <algorithm>

namespace veldox {

namespace {

constexpr char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), LowerLetter);
  return lower;
}

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, LowerLetter, LowerLetter);
}

bool StartsIgnoringCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && SameIgnoringCase(text.substr(0, prefix.size()), prefix);
}

std::string Clipped(std::string_view text, std::size_t most) {
  std::size_t characters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsContinuationByte(text[i])) continue;
    if (++characters > most) return std::string(text.substr(0, i)) + "...";
  }
  return std::string(text);
}

std::size_t CharacterCount(std::string_view text) {
  return text.size() -
         static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsContinuationByte));
}

void AppendUtf8(std::string& text, char32_t c) {
  const auto byte = [&](char32_t value) { text += static_cast<char>(value); };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | (c >> 6));
    byte(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    byte(0xE0 | (c >> 12));
    byte(0x80 | ((c >> 6) & 0x3F));
    byte(0x80 | (c & 0x3F));
  } else {
    byte(0xF0 | (c >> 18));
    byte(0x80 | ((c >> 12) & 0x3F));
    byte(0x80 | ((c >> 6) & 0x3F));
    byte(0x80 | (c & 0x3F));
  }
}

namespace {

std::size_t MissingBlanks(std::string_view text, std::size_t width) {
  const std::size_t characters = CharacterCount(text);
  return characters < width ? width - characters : 0;
}

}  // namespace

std::string LeftAligned(std::string text, std::size_t width) {
  text.append(MissingBlanks(text, width), ' ');
  return text;
}

std::string RightAligned(std::string text, std::size_t width) {
  text.insert(0, MissingBlanks(text, width), ' ');
  return text;
}

std::string SwitchCaption(std::string_view caption, bool on) {
  return std::string(caption.substr(0, caption.rfind(' ') + 1)) + (on ? "ON" : "OFF");
}

}  // namespace veldox
