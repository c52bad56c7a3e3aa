#pragma once

#include <cfenv>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/history.h"
#include "core/host_gate.h"
#include "core/parameter_block.h"
#include "core/screen.h"

namespace veldox {

/// Keeps the marks that floating-point arithmetic leaves out of what goes on outside.
class FloatGuard {
 public:
  FloatGuard() { std::feholdexcept(&before_); }
  ~FloatGuard() { std::fesetenv(&before_); }
  FloatGuard(const FloatGuard&) = delete;
  FloatGuard& operator=(const FloatGuard&) = delete;

 private:
  std::fenv_t before_{};
};

/// Runs commands to see what they do, and puts everything back as it was, to the last bit: while
/// it lives, no face is told, no box, dialog, file or page comes out of the program, and whatever
/// changes is taken down. A command that needs one of these ends there.
class DryRun {
 public:
  /// @param context  the program's; no other dry run may be on
  explicit DryRun(ProgramContext& context);
  DryRun(const DryRun&) = delete;
  DryRun& operator=(const DryRun&) = delete;
  /// Puts everything back.
  ~DryRun();

  /// Ends commands after this long.
  void SetLimit(std::chrono::microseconds limit) {
    log_.end = std::chrono::steady_clock::now() + limit;
  }
  /// Puts back what was changed so far, and goes on.
  void PutBack();
  /// Whether any data are other ones than at the beginning.
  bool ChangesValues();
  /// Whether `again` changes any data beyond what was changed so far, or fails. What it changes is
  /// put back.
  bool ChangesAgain(const std::function<bool()>& again);

  const DryRunLog& log() const { return log_; }
  Recording& recording() { return recording_; }

 private:
  FloatGuard floats_;
  ProgramContext& context_;
  DryRunLog log_;
  Recording recording_{Recording::Scope::DryRun};
  ProgramMarks marks_;
  Recording* before_ = nullptr;
};

/// What a command would do.
struct Preview {
  std::string error;  ///< why it cannot, empty where it can
  std::vector<ControlChange> changes;
  bool report = false;             ///< it would show a report
  bool graph = false;              ///< it would draw a graph
  bool unshown = false;            ///< it would change values that no control shows, and no other
  std::vector<std::string> notes;  ///< of the boxes it would show
  bool ranOutOfTime = false;
  std::chrono::microseconds took{0};
};

/// Finds out what a command would do, on a screen that was never opened as well.
/// @param limit  how long it may take
Preview PreviewOf(Command& command, std::optional<std::chrono::microseconds> limit = std::nullopt);

/// A preview in a line: "Engine Size 326.7256 to 412.6692 cu in, ...". The largest relative
/// changes come first, as many as fit, then "and N more"; or why the command cannot.
/// @param fits  whether a line has room
std::string TellPreview(const Preview& preview,
                        const std::function<bool(const std::string&)>& fits);

}  // namespace veldox
