#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "core/error.h"

namespace veldox {

/// The longest line that is read from a file, in bytes: far more than any record has, and still
/// quick to show.
inline constexpr std::size_t kLongestLine = 64U << 10;

/// Takes the text of a file apart, line by line, and tells file, line and text where one of them
/// cannot be used. Lines end with CR LF or LF; the last one may have no end. What a blank line
/// means is the caller's affair.
class LineReader {
 public:
  /// @param text      the decoded text; it must stay as long as the reader
  /// @param fileName  the name that refusals tell
  LineReader(std::string_view text, std::string fileName)
      : rest_(text), fileName_(std::move(fileName)) {}

  /// Goes to the next line. @return false at the end
  /// @throws CommandError (File) for a line beyond kLongestLine, and for one with a NUL, which no
  ///         text has
  bool Next();

  /// The line without its end.
  std::string_view line() const { return line_; }
  /// Its number, from 1; 0 before the first.
  int number() const { return number_; }
  /// "File: NAME"
  std::string File() const;
  /// "File: NAME   Record # N"
  std::string Place() const;

  /// A refusal of this line: the reason, then file, line and text.
  /// @param reason  a sentence
  CommandError Refusal(const std::string& reason) const;

 private:
  std::string_view rest_;
  std::string_view line_;
  std::string fileName_;
  int number_ = 0;
};

}  // namespace veldox
