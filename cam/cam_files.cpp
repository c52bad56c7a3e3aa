#include "cam/cam_files.h"

#include "core/files.h"

namespace veldox {

namespace {

constexpr const char* kLiftFilter =
    "Cam Lift Files (*.cmm)|*.cmm|Cam Doctor (*.Cx)|*.c?|All Files (*.*)|*.*";
constexpr double kMmPerInch = 25.4;

}  // namespace

std::optional<LiftFile> CamFiles::ReadCamLiftFile(const Screen& asker) {
  const std::filesystem::path path = AskFile(FileDialog::Kind::Open, kLiftFilter);
  const std::string title = PathText(path.filename());
  std::optional<LiftFile> file = ParseLiftFile(TextOf(path), title, mark());
  if (!file) {
    Tell(kNoIntakeLift, Icon::Warning);
    return std::nullopt;
  }
  StoreLifts(*file, title, block());
  block().CurrentFileName = PathText(path);
  // A file for a screen that shows millimetres is in millimetres.
  const auto inInches = [&](std::optional<double> lash) {
    if (lash && asker.metric()) *lash /= kMmPerInch;
    return lash;
  };
  for (LashTaker* taker : takers_) {
    taker->TakeLashes(inInches(file->intakeLash), inInches(file->exhaustLash));
  }
  if (file->hasBadRow) Tell(kInvalidRow, Icon::Warning);
  TellCount(file->linesRead, kRecordsRead);
  return file;
}

}  // namespace veldox
