#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/host.h"

namespace veldox {

/// A script does what it should not. The runner adds the line.
class ScriptError : public std::exception {
 public:
  explicit ScriptError(std::string message) : message_(std::move(message)) {}
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  std::string message_;
};

/// The world as a script prepares it: answers wait in a row, and what was asked is kept.
class ScriptHost : public Host {
 public:
  struct Settings {
    std::filesystem::path folder;
    DecimalMark mark = DecimalMark::Point;
    std::optional<ClockTime> date;
  };

  explicit ScriptHost(Settings settings) : settings_(std::move(settings)) {}

  enum class Orientation { Portrait, Landscape };

  /// Prepared answers, with the script line that prepared them.
  template <class T>
  struct Prepared {
    T answer;
    int line;
  };
  std::deque<Prepared<Button>> answers;
  std::deque<Prepared<std::optional<std::filesystem::path>>> files;
  std::deque<Prepared<std::optional<FontChoice>>> fonts;
  std::deque<Prepared<std::optional<std::int32_t>>> colors;
  std::deque<Prepared<std::optional<Orientation>>> printers;

  /// What was shown and asked for since the script last looked, one line each.
  std::vector<std::string> messages;
  std::vector<std::string> dialogs;
  /// The pages of the last print job.
  std::vector<Page> pages;
  /// The first thing that went wrong inside a box, told when the statement is over.
  std::string wrong;

  Button Ask(const Message& message) override;
  std::optional<std::filesystem::path> AskFile(const FileDialog& dialog) override;
  std::optional<FontChoice> AskFont() override;
  std::optional<std::int32_t> AskColor() override;
  ClockTime Now() override;
  DecimalMark SystemDecimalMark() override { return settings_.mark; }
  std::filesystem::path ProgramFolder() override { return settings_.folder; }
  ScreenSize MeasureScreen() override { return {1366, 768, 96}; }
  std::unique_ptr<PageSurface> OpenPrinter(PageJob job) override;
  void PreviewPages(PageJob job, const PageDrawing& draw) override;
  void PrintGraph() override;
  void PrintWindow(const std::string& screen) override;
  void ShowHandbook() override { dialogs.emplace_back("handbook"); }
  void SetUpPrinter() override { ChoosePrinter(); }
  void SetBusy(bool) override {}

 private:
  /// Answers the printer dialog; what is chosen stays chosen, as the dialog shows it the next
  /// time. @throws CommandError (Cancelled)
  void ChoosePrinter();

  Orientation orientation_ = Orientation::Portrait;
  Settings settings_;
};

/// A text on one line: line breaks as \n, tabs as \t, a backslash as \\.
std::string EscapeText(std::string_view text);
/// The reverse; \n is CR LF.
std::string UnescapeText(std::string_view text);

}  // namespace veldox
