#include "core/text.h"

namespace veldox {

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
