#include "core/steps_panel.h"

#include <utility>
#include <vector>

namespace veldox {

StepsPanel::StepsPanel(Screen& screen) : ScreenPart(screen) {
  SetFrames({&StepsFrame});
  SetAreOptions();
}

void StepsPanel::Open() {
  ShowSteps();
  Show();
  StepList.Focus();
}

void StepsPanel::Follow() {
  if (StepsFrame.visible()) ShowSteps();
}

void StepsPanel::ShowSteps() {
  History& history = screen().context().history;
  const std::vector<std::string> told = history.Told();
  const std::size_t done = history.done();
  std::vector<PickRow> rows;
  rows.push_back({PickRow::Kind::Choice, "Before the first step", {}});
  for (std::size_t i = 0; i < told.size(); ++i) {
    const bool isUndone = i >= done;
    rows.push_back({PickRow::Kind::Choice, (isUndone ? "(undone) " : "") + told[i],
                    isUndone ? "This step was undone. A click takes it again." : ""});
  }
  constexpr int kRowsAbove = 8;
  const int current = static_cast<int>(done);
  StepList.Offer(std::move(rows), {current, current - kRowsAbove});
}

void StepsPanel::GoToPicked() {
  const int step = StepList.place().picked;
  if (step >= 0) screen().context().history.GoTo(static_cast<std::size_t>(step));
}

}  // namespace veldox
