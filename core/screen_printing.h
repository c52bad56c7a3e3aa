#pragma once

#include <string>

#include "core/screen.h"

namespace veldox {

/// Printing of whole screens, and how pages are printed.
class ScreenPrinting {
 public:
  explicit ScreenPrinting(ProgramContext& context) : context_(context) {}
  ScreenPrinting(const ScreenPrinting&) = delete;
  ScreenPrinting& operator=(const ScreenPrinting&) = delete;

  /// Prints a screen's window as it shows. @param screen  its form name
  /// @throws CommandError (File, Cancelled)
  void PrintScreen(const std::string& screen) { context_.host.PrintWindow(screen); }
  /// Runs the platform's printer dialog. @throws CommandError (File, Cancelled)
  void SetUpPrinter() { context_.host.SetUpPrinter(); }

  /// The company block stands on every page, not on the first alone.
  bool headsOnEveryPage() const { return context_.block.PrintHeads != 0; }
  void ToggleHeadsOnEveryPage() { context_.block.PrintHeads = headsOnEveryPage() ? 0 : 1; }

 private:
  ProgramContext& context_;
};

}  // namespace veldox
