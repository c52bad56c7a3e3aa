#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "program/program.h"
#include "script/arguments.h"
#include "script/driver.h"
#include "script/script_host.h"

namespace veldox {

/// Runs the lines of a script against a started program.
class ScriptRunner {
 public:
  using Print = std::function<void(std::string_view line)>;

  /// @param folder  what names in `file` statements are relative to
  ScriptRunner(Program& program, ScriptHost& host, Driver& driver, std::filesystem::path folder,
               Print print);

  /// Runs a whole script. True when it ran to its end; else `wrong()` tells the line and
  /// what was wrong.
  bool Run(std::string_view script);
  const std::string& wrong() const { return wrong_; }

 private:
  struct Statement;
  void RunLine(std::string_view line);
  void Prepare(std::string_view verb, std::string_view text);
  void Touch(std::string_view verb, std::string_view target, std::string_view text);
  void Tell(std::string_view verb, std::string_view target);
  void TellCompared(std::string_view file);
  void MakeSheet(std::string_view names);
  void TellValue(std::string_view key);
  void TellHistory();
  void TellPreview(Command& command);
  void TellVaried(std::string_view text);
  void TellSought(std::string_view text);
  /// Takes a number off a text. @throws ScriptError for another word
  double TakeNumber(std::string_view& text) const;
  void TellPages();
  void TellPlot();
  void PrintList(std::vector<std::string>& lines);
  void RequireNothingPrepared() const;

  Control& FindControl(std::string_view name);
  /// The field that takes what is typed under a name: a panel may show one of another page again.
  TextControl& FindField(std::string_view name);
  template <class T>
  T& Find(std::string_view name, const char* what);

  Program& program_;
  ScriptHost& host_;
  Driver& driver_;
  std::filesystem::path folder_;
  Print print_;
  std::string wrong_;
  int line_ = 0;
};

/// Makes the driver once the program is there and started.
using DriverMaker = std::function<std::unique_ptr<Driver>(Program&)>;

/// The whole of veldox-script behind its command line: reads the script, starts the
/// program, runs it and prints to standard output. @return the exit status
int RunScriptFile(const ScriptArguments& arguments, const DriverMaker& makeDriver);

}  // namespace veldox
