#include "vehicle/nitrous_stages_panel.h"

namespace veldox {

NitrousStagesPanel::NitrousStagesPanel(Screen& screen) : ScreenPart(screen) {
  GearStages.DimRows([this](int stage) {
    const std::string& gear = Text90[stage].text();
    return IsNumber(gear, mark()) && ParseNumber(gear, mark()) == kUnusedStageGear;
  });
  TimedStages.DimRows([this](int stage) {
    const std::string& power = TimedText90[stage].text();
    return IsNumber(power, mark()) && ParseNumber(power, mark()) == 0;
  });
}

void NitrousStagesPanel::Open() {
  NitrousFrame.Open();
  Text90[0].Focus();
}

Field& NitrousStagesPanel::Cell(std::size_t stage, std::size_t column) {
  const Table& table = stage < kGearStages ? GearStages : TimedStages;
  const auto row = static_cast<int>(stage < kGearStages ? stage : stage - kGearStages);
  return *table.Cell(row, static_cast<int>(column));
}

void NitrousStagesPanel::ReadStages() {
  for (Field* cell : Cells()) ReadFields({cell});
}

void NitrousStagesPanel::KeepStages() {
  TakeTyped(Cells());
}

std::vector<Field*> NitrousStagesPanel::Cells() {
  std::vector<Field*> cells;
  for (std::size_t stage = 0; stage < kNitrousStages; ++stage) {
    for (std::size_t column = 0; column < std::tuple_size_v<NitrousStage>; ++column) {
      cells.push_back(&Cell(stage, column));
    }
  }
  return cells;
}

void NitrousStagesPanel::TakeStages() {
  ReadStages();
  screen().pages().front()->Open();
}

}  // namespace veldox
