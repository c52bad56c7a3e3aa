#include "core/file_dialogs.h"

#include <algorithm>

#include "core/files.h"

namespace veldox {

std::filesystem::path FileDialogs::AskFile(FileDialog::Kind kind, const char* filter,
                                           int filterIndex) const {
  const auto path =
      context_.host.AskFile({kind, filter, filterIndex, context_.host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  return *path;
}

void FileDialogs::Tell(const std::string& text, Icon icon) const {
  context_.host.Ask({icon, context_.rules.messages().MessageTitle, text, {Button::OK}});
}

std::string FileDialogs::CountText(int lines, const char* what) const {
  return FormatValue<"#,##0">(lines, mark()) + what;
}

std::string FileDialogs::TextOf(const std::filesystem::path& file) {
  return DecodeText(LoadFile(file));
}

int FileDialogs::LinesOf(std::string_view text) {
  return static_cast<int>(std::ranges::count(text, '\n'));
}

}  // namespace veldox
