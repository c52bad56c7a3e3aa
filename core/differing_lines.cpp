#include "core/differing_lines.h"

#include <algorithm>

#include "core/text.h"

namespace veldox {

namespace {

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

std::string WithSingleBlanks(std::string_view line) {
  std::string words(Trim(line));
  const auto end =
      std::unique(words.begin(), words.end(), [](char a, char b) { return a == ' ' && b == ' '; });
  words.erase(end, words.end());
  return words;
}

}  // namespace

std::pair<std::string, std::string> DifferingLines(std::string_view before,
                                                   std::string_view after) {
  const auto isOneLine = [](std::string_view text) { return text.find('\n') == text.npos; };
  if (isOneLine(before) || isOneLine(after)) return {std::string(before), std::string(after)};
  std::string_view lineBefore, lineAfter;
  do {
    lineBefore = TakeLine(before);
    lineAfter = TakeLine(after);
  } while (lineBefore == lineAfter && !(before.empty() && after.empty()));
  return {WithSingleBlanks(lineBefore), WithSingleBlanks(lineAfter)};
}

}  // namespace veldox
