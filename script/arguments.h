#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/host.h"

namespace veldox {

/// The command line of veldox-script.
struct ScriptArguments {
  bool windows = false;
  bool decimalComma = false;
  std::optional<std::filesystem::path> folder;
  std::optional<ClockTime> date;
  std::string file;  ///< "-" is standard input
};

/// How the command line is written, for messages.
extern const char* const kScriptUsage;

/// Reads the command line (without the program's name). Nothing and a message in `wrong`
/// when it is not understood.
std::optional<ScriptArguments> ParseScriptArguments(const std::vector<std::string>& arguments,
                                                    std::string& wrong);

}  // namespace veldox
