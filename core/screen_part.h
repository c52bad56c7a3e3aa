#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/screen.h"

namespace veldox {

/// A part of a screen in a class of its own: a page, a panel, or frames that show and go together,
/// and the commands behind their controls. The screen has it as a member where its frames stand
/// in reading order; its controls are the screen's like all others.
class ScreenPart {
 public:
  ScreenPart(const ScreenPart&) = delete;
  ScreenPart& operator=(const ScreenPart&) = delete;

  /// The frames that show and go together, in reading order.
  const std::vector<Frame*>& frames() const { return frames_; }
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }

 protected:
  explicit ScreenPart(Screen& screen) : screen_(screen) {}
  ~ScreenPart() = default;

  /// Tells the frames that stand in the part; they are put away.
  void SetFrames(std::vector<Frame*> frames) {
    frames_ = std::move(frames);
    for (Frame* frame : frames_) {
      frame->SetIsSheet();
      frame->SetVisible(false);
    }
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

  /// The work of a command of the part: `Runs(&InjectorPanel::SolvePulseWidth)`.
  template <class Part>
  CommandWork Runs(void (Part::*routine)(), CommandRole role = CommandRole::Calculates) {
    return CommandWork([this, routine] { (static_cast<Part*>(this)->*routine)(); }, role);
  }
  /// The same routine for several commands of an array, which is told the index.
  template <class Part>
  CommandWork Runs(void (Part::*routine)(int), CommandRole role = CommandRole::Calculates) {
    return {[this, routine](Screen&, int index) { (static_cast<Part*>(this)->*routine)(index); },
            role};
  }

  // What a screen's own commands do.
  using P = ParameterBlock;
  using DividesBy = std::initializer_list<Field*>;
  double Read(Field& field) const { return screen_.Read(field); }
  void ReadCount(std::int16_t& slot, Field& field) const { screen_.ReadCount(slot, field); }
  void ReadFields(std::initializer_list<Field*> fields) const { screen_.ReadFields(fields); }
  /// Takes the numbers of fields that stand for shared values, whether a command needs them or not,
  /// so that none is lost when a file is written or the screen opens anew. What is no number is
  /// left to the command that needs it.
  void TakeTyped(const std::vector<Field*>& fields) const;
  /// The same of all fields of the screen.
  void TakeTyped() const { TakeTyped(screen_.Fields()); }
  void ReadChoice(const ComboList& list) const { screen_.ReadChoice(list); }
  void Store(Field& field, double value, DividesBy divisors = {}) const {
    screen_.Store(field, value, divisors);
  }
  void Show(Field& field, double value, DividesBy divisors = {}) const {
    screen_.Show(field, value, divisors);
  }
  template <PatternText Pattern>
  void ShowAs(Field& field, double value, DividesBy divisors = {}) const {
    screen_.ShowAs<Pattern>(field, value, divisors);
  }
  void RequireResult(Field& field, double value, DividesBy divisors = {}) const {
    screen_.RequireResult(field, value, divisors);
  }
  void ShowText(TextControl& field, std::string text) const {
    screen_.ShowText(field, std::move(text));
  }
  void ShowReport(std::string report, int fontSize = 10, const ReportFile& file = {}) const {
    screen_.ShowReport(std::move(report), fontSize, file);
  }
  static std::string BuildReport(const std::function<std::string()>& build,
                                 const char* impossible) {
    return Screen::BuildReport(build, impossible);
  }
  double AsShown(const Field& field, double inches) const { return screen_.AsShown(field, inches); }
  double InInches(const Field& field, double shown) const { return screen_.InInches(field, shown); }
  /// The Click of the "Metric" box, where that stands in the part.
  void SwitchUnits() const { screen_.SwitchUnits(); }
  static void Require(bool holds, Field& field, const char* message) {
    Screen::Require(holds, field, message);
  }
  /// A warning that stops nothing.
  void Warn(const std::string& text) const;
  [[noreturn]] static void FailAt(Field& field, std::string message) {
    Screen::FailAt(field, std::move(message));
  }

 private:
  void SetVisible(bool visible) {
    // One that is shown already comes to the front again.
    if (visible) frames_.front()->SetVisible(false);
    for (Frame* frame : frames_) frame->SetVisible(visible);
    // The help sentence was one of what stood there before.
    screen_.ShowHelp({});
  }

  Screen& screen_;
  std::vector<Frame*> frames_;
};

}  // namespace veldox
