#pragma once

#include <functional>
#include <utility>

#include "core/screen_part.h"

namespace veldox {

/// A panel of the main form that asks for what a tool of the menu needs. Its enter command puts
/// the panel away and runs the tool.
class EntryPanel : public ScreenPart {
 public:
  /// Shows the panel. @param tool  what its enter command runs
  void Open(std::function<void()> tool) {
    tool_ = std::move(tool);
    Show();
    first_->Focus();
  }

 protected:
  /// @param first  what has the focus when the panel is opened
  EntryPanel(Screen& screen, Frame& frame, Control& first) : ScreenPart(screen), first_(&first) {
    frame_ = &frame;
  }
  ~EntryPanel() = default;

  /// Called at construction, when the frame stands.
  void SetUp() {
    SetFrames({frame_});
    SetAreOptions();
  }

  /// Reads what was entered. @throws CommandError for what the tool cannot use; the panel stays
  virtual void ReadEntries() = 0;

  void Enter() {
    ReadEntries();
    Hide();
    if (tool_) tool_();
  }
  CommandWork Enters() {
    return CommandWork([this] { Enter(); });
  }
  CommandWork Cancels() {
    return {[this](Screen&, int) { Hide(); }, CommandRole::Closes};
  }

 private:
  Frame* frame_;
  Control* first_;
  std::function<void()> tool_;
};

}  // namespace veldox
