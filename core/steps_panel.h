#pragma once

#include "core/pick_list.h"
#include "core/screen_part.h"

namespace veldox {

/// The steps that the user has taken, in words, in the launcher's place. A pick goes back to the
/// state behind that step, or forward to it.
class StepsPanel : public ScreenPart {
 public:
  explicit StepsPanel(Screen& screen);

  void Open();
  /// Shows the steps as they are now, where the panel is open.
  void Follow();

 private:
  void ShowSteps();
  void GoToPicked();

 public:
  Frame StepsFrame{screen(), "StepsFrame", "Steps Taken"};
  PickList StepList{StepsFrame, "StepList", "Steps",
                    "A click or Enter takes everything back to how it was behind this step. Type "
                    "to find a step.",
                    [this] { GoToPicked(); }};
  Command Steps_Done{StepsFrame, "Steps_Done", "Done", "Close this list.",
                     CommandWork([this] { Hide(); }, CommandRole::Closes)};
};

}  // namespace veldox
