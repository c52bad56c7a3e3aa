#include "cam/cam_files.h"

#include "core/files.h"

namespace veldox {

namespace {

constexpr const char* kLiftFilter =
    "Cam Lift Files (*.cmm)|*.cmm|Cam Doctor (*.Cx)|*.c?|All Files (*.*)|*.*";
constexpr double kMmPerInch = 25.4;

}  // namespace

std::filesystem::path CamFiles::AskFile(FileDialog::Kind kind, const char* filter,
                                        int filterIndex) {
  const auto path =
      context_.host.AskFile({kind, filter, filterIndex, context_.host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  return *path;
}

void CamFiles::Tell(const std::string& text, Icon icon) {
  context_.host.Ask({icon, context_.rules.messages().MessageTitle, text, {Button::OK}});
}

void CamFiles::TellCount(int lines, const char* what) {
  Tell(FormatValue<"#,##0">(lines, context_.mark()) + what);
}

std::string CamFiles::TextOf(const std::filesystem::path& file) {
  return DecodeText(LoadFile(file));
}

bool CamFiles::ReadCamLiftFile(const Screen& asker) {
  const std::filesystem::path path = AskFile(FileDialog::Kind::Open, kLiftFilter);
  const std::string title = PathText(path.filename());
  const auto file = ParseLiftFile(TextOf(path), title, context_.mark());
  if (!file) {
    Tell(kNoIntakeLift, Icon::Warning);
    return false;
  }
  StoreLifts(*file, title, context_.block);
  context_.block.CurrentFileName = PathText(path);
  // A file for a screen that shows millimetres is in millimetres.
  const auto inInches = [&](std::optional<double> lash) {
    if (lash && asker.metric()) *lash /= kMmPerInch;
    return lash;
  };
  for (LashTaker* taker : takers_) {
    taker->TakeLashes(inInches(file->intakeLash), inInches(file->exhaustLash));
  }
  if (file->hasBadRow) Tell(kInvalidRow, Icon::Warning);
  TellCount(file->linesRead, " Records Read");
  return true;
}

}  // namespace veldox
