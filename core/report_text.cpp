#include "core/report_text.h"

#include <algorithm>
#include <sstream>

#include "core/text.h"

namespace veldox {

std::size_t TextLength(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuationByte(c); }));
}

std::string Padded(std::string text, std::size_t width) {
  const std::size_t length = TextLength(text);
  if (length < width) text.append(width - length, ' ');
  return text;
}

std::string RightAligned(const std::string& text, std::size_t width) {
  const std::size_t length = TextLength(text);
  return length < width ? std::string(width - length, ' ') + text : text;
}

std::string WithoutMark(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  if (!line.empty() && std::string_view("_^~").find(line.back()) != std::string_view::npos) {
    line += ' ';
  }
  return line;
}

std::vector<std::string> Wrapped(const std::string& text, std::size_t width) {
  std::vector<std::string> lines(1);
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    std::string& line = lines.back();
    if (line.empty()) {
      line = word;
    } else if (TextLength(line) + 1 + TextLength(word) <= width) {
      line.append(1, ' ').append(word);
    } else {
      lines.emplace_back(word);
    }
  }
  return lines;
}

}  // namespace veldox
