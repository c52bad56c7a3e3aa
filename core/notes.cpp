#include "core/notes.h"

#include <algorithm>

#include "core/line_reader.h"

namespace veldox {

std::string WithFileLineEnds(std::string_view notes) {
  std::string text;
  text.reserve(notes.size());
  for (std::size_t i = 0; i < notes.size(); ++i) {
    if (notes[i] == '\r' || notes[i] == '\n') {
      text += "\r\n";
      if (notes[i] == '\r' && i + 1 < notes.size() && notes[i + 1] == '\n') ++i;
    } else {
      text += notes[i];
    }
  }
  return text;
}

std::string ReasonAgainstNotes(std::string_view text) {
  // The first line stands behind its key.
  constexpr std::size_t kLongestNote = kLongestLine - std::string_view("Notes = ").size();
  if (text.size() > kMostNoteBytes) return kNotesTooLong;
  const std::string written = WithFileLineEnds(text);
  if (written.size() > kMostNoteBytes) return kNotesTooLong;
  if (written.find('\0') != std::string::npos) {
    return "The notes hold a NUL byte, which no text does.";
  }
  for (std::size_t from = 0; from < written.size();) {
    const std::size_t end = std::min(written.find('\r', from), written.size());
    if (end - from > kLongestNote) {
      return "A line of the notes is longer than " + std::to_string(kLongestLine >> 10) +
             " KB, the most that it may be.";
    }
    from = end + 2;
  }
  return {};
}

}  // namespace veldox
