#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "core/screen.h"

namespace veldox {

/// A part of a screen in a class of its own: frames that stand on the screen, show and go
/// together, and the commands behind their controls. The screen has it as a member where its
/// frames stand in reading order; its controls are the screen's like all others.
class ScreenPart {
 public:
  ScreenPart(const ScreenPart&) = delete;
  ScreenPart& operator=(const ScreenPart&) = delete;

  /// Its frames in reading order.
  const std::vector<Frame*>& frames() const { return frames_; }
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }

 protected:
  explicit ScreenPart(Screen& screen) : screen_(screen) {}
  ~ScreenPart() = default;

  /// Tells the frames that stand in the part; they are put away.
  void SetFrames(std::vector<Frame*> frames) {
    frames_ = std::move(frames);
    for (Frame* frame : frames_) frame->SetVisible(false);
  }
  /// The part's controls hold options of the main form.
  void SetAreOptions() {
    for (Frame* frame : frames_) {
      for (Control* control : frame->controls()) control->SetIsOption();
    }
  }

  Screen& screen() const { return screen_; }
  ParameterBlock& block() const { return screen_.block(); }
  DecimalMark mark() const { return screen_.mark(); }

  // What a screen's own commands do.
  double Read(Field& field) const { return screen_.Read(field); }
  void ReadCount(std::int16_t& slot, Field& field) const { screen_.ReadCount(slot, field); }
  static void Require(bool holds, Field& field, const char* message) {
    Screen::Require(holds, field, message);
  }

 private:
  void SetVisible(bool visible) {
    for (Frame* frame : frames_) frame->SetVisible(visible);
    // The help sentence was one of what stood there before.
    screen_.ShowHelp({});
  }

  Screen& screen_;
  std::vector<Frame*> frames_;
};

}  // namespace veldox
