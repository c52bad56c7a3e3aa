#include "core/report_text.h"

#include <sstream>
#include <string_view>

#include "core/text.h"

namespace veldox {

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
    } else if (CharacterCount(line) + 1 + CharacterCount(word) <= width) {
      line.append(1, ' ').append(word);
    } else {
      lines.emplace_back(word);
    }
  }
  return lines;
}

}  // namespace veldox
