#include "cam/cam_files.h"

#include <algorithm>
#include <limits>
#include <span>

#include "core/files.h"

namespace veldox {

namespace {

constexpr const char* kLiftFilter =
    "Cam Lift Files (*.cmm)|*.cmm|Cam Doctor (*.Cx)|*.c?|All Files (*.*)|*.*";

}  // namespace

std::optional<LiftFile> CamFiles::ReadCamLiftFile(const Screen& asker) {
  const std::filesystem::path path = AskFile(FileDialog::Kind::Open, kLiftFilter);
  const std::string title = PathText(path.filename());
  std::optional<LiftFile> file = ParseLiftFile(TextOf(path), title, mark());
  if (!file) {
    Tell(kNoIntakeLift, Icon::Warning);
    return std::nullopt;
  }
  StoreTables(*file, title, asker.metric());
  block().CurrentFileName = PathText(path);
  // A file for a screen that shows millimetres is in millimetres.
  const auto inInches = [&](std::optional<double> lash) {
    if (lash && asker.metric()) *lash /= kMillimetresPerInch;
    return lash;
  };
  for (LashTaker* taker : takers_) {
    taker->TakeLashes(inInches(file->intakeLash), inInches(file->exhaustLash));
  }
  if (file->hasBadRow) Tell(kInvalidRow, Icon::Warning);
  TellCount(file->linesRead, kRecordsRead);
  return file;
}

void CamFiles::StoreTables(const LiftFile& file, const std::string& title, bool areMillimetres) {
  StoreLifts(file, title, block());
  tablesAreMillimetres_ = areMillimetres;
}

LiftTable CamFiles::TableOf(CamSide side) const {
  const ParameterBlock& b = block();
  const bool isIntake = side == CamSide::Intake;
  const int count = isIntake ? b.IntakeLiftCount : b.ExhaustLiftCount;
  if (count <= 0) return {};
  const LiftColumn& lifts = isIntake ? b.IntakeCamLift : b.ExhaustCamLift;
  // The count of a Cam Doctor file is one more than the index of its closing zero.
  const int last = b.LiftsOfCamDoctor != 0 ? count - 1 : count;
  return {std::span(lifts).first(static_cast<std::size_t>(last) + 1),
          isIntake ? b.CamStepDegrees.Intake : b.CamStepDegrees.Exhaust, count};
}

void CamFiles::ConvertTables(bool toMillimetres) {
  if (tablesAreMillimetres_ == toMillimetres) return;
  ParameterBlock& b = block();
  for (LiftColumn* table :
       {&b.IntakeCamLift, &b.IntakeValveLift, &b.ExhaustCamLift, &b.ExhaustValveLift}) {
    for (double& lift : *table) {
      // A lift beyond all cams must not become an infinity, which nothing can show.
      constexpr double kLargest = std::numeric_limits<double>::max();
      lift = std::clamp(kLengthRule.Convert(lift, toMillimetres), -kLargest, kLargest);
    }
  }
  tablesAreMillimetres_ = toMillimetres;
}

}  // namespace veldox
