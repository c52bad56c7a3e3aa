#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/screen_part.h"

namespace veldox {

class Shell;

/// A report of the main form, in the launcher's place: a build sheet or a comparison. It changes
/// no data and is no step that could be undone.
class SheetBox : public ReportBox {
 public:
  using ReportBox::ReportBox;

 protected:
  Aspect reportAspect() const override { return Aspect::Place; }
};

/// Shows the main form's reports.
class SheetPanel : public ScreenPart {
 public:
  explicit SheetPanel(Screen& screen);

  /// @param title  what stands over it
  void ShowSheet(std::string report, std::string title);

  Frame SheetFrame{screen(), "SheetFrame", "Build Sheet"};
  SheetBox Sheet{SheetFrame, "Sheet"};
};

/// Chooses the screens of a build sheet, in the launcher's place: at first those that are open.
class SheetChoicePanel : public ScreenPart {
 public:
  explicit SheetChoicePanel(Shell& shell);

  void Open();

 private:
  void ChooseOpen();
  void MakeSheet();

  Shell& shell_;

 public:
  Frame SheetChoiceFrame{screen(), "SheetChoiceFrame", "Screens of the Build Sheet", 0};
  Frame SheetMoreFrame{screen(), "SheetMoreFrame", "More Screens", 1};
  /// One for each screen that the Print menu has, called by the screen's name: `Sheet_Form1`.
  std::vector<std::unique_ptr<CheckBox>> boxes;
  Frame SheetCommandFrame{screen(), "SheetCommandFrame", "Build Sheet", 2};
  Command Sheet_Make{SheetCommandFrame, "Sheet_Make", "&Make Build Sheet",
                     "Show what the chosen screens hold as a report, to be saved or printed.",
                     CommandWork([this] { MakeSheet(); }, CommandRole::Serves)};
  Command Sheet_Open{SheetCommandFrame, "Sheet_Open", "Screens That Are &Open",
                     "Choose the screens that are open now.",
                     CommandWork([this] { ChooseOpen(); }, CommandRole::Serves)};
  Command Sheet_Done{SheetCommandFrame, "Sheet_Done", "Done", "Back to the launcher.",
                     CommandWork([this] { Hide(); }, CommandRole::Closes)};
};

}  // namespace veldox
