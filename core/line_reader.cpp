#include "core/line_reader.h"

#include <algorithm>

#include "core/text.h"

namespace veldox {

bool LineReader::Next() {
  if (rest_.empty()) return false;
  ++number_;
  const std::size_t end = rest_.find('\n');
  line_ = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  if (line_.ends_with('\r')) line_.remove_suffix(1);
  if (line_.size() > kLongestLine) {
    throw Refusal("A line of the file is longer than " + std::to_string(kLongestLine >> 10) +
                  " KB.");
  }
  if (line_.find('\0') != std::string_view::npos) {
    throw Refusal("The file is no text: a line of it holds a NUL byte.");
  }
  return true;
}

std::string LineReader::File() const {
  return "File: " + fileName_;
}

std::string LineReader::Place() const {
  return File() + "   Record # " + std::to_string(number_);
}

CommandError LineReader::Refusal(const std::string& reason) const {
  constexpr std::size_t kShownCharacters = 300;
  std::string shown = Clipped(line_, kShownCharacters);
  std::replace_if(
      shown.begin(), shown.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
  return {ErrorKind::File, reason + "\r\n" + Place() + "\r\nData --> " + shown};
}

}  // namespace veldox
