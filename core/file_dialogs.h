#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/screen.h"

namespace veldox {

/// What tools that work on files ask the user, and tell.
class FileDialogs {
 public:
  explicit FileDialogs(ProgramContext& context) : context_(context) {}

  /// Asks for a file by a dialog in the program's folder. @throws CommandError (Cancelled)
  std::filesystem::path AskFile(FileDialog::Kind kind, const char* filter,
                                int filterIndex = 1) const;
  /// A box with a text.
  void Tell(const std::string& text, Icon icon = Icon::Information) const;
  /// Tells how many lines were read or written. @param what  such as " Records Read"
  void TellCount(int lines, const char* what) const { Tell(CountText(lines, what)); }
  /// "1,234 Records Read"
  std::string CountText(int lines, const char* what) const;
  /// The decoded text of a file. @throws CommandError (File)
  static std::string TextOf(const std::filesystem::path& file);
  /// Lines of a text that is written.
  static int LinesOf(std::string_view text);

 protected:
  ProgramContext& context() const { return context_; }
  ParameterBlock& block() const { return context_.block; }
  DecimalMark mark() const { return context_.mark(); }

 private:
  ProgramContext& context_;
};

inline constexpr const char* kRecordsRead = " Records Read";
inline constexpr const char* kRecordsWritten = " Records Written";

}  // namespace veldox
