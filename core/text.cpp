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

std::string SwitchCaption(std::string_view caption, bool on) {
  return std::string(caption.substr(0, caption.rfind(' ') + 1)) + (on ? "ON" : "OFF");
}

}  // namespace veldox
