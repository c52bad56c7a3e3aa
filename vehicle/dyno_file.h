#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"

// Power curves of other tools, and the lines of a parameter file that they become.

namespace veldox {

/// What is told of a file without a table of power.
inline constexpr const char* kNoHorsePower = "NO Horse Power Infomation Found!!!";

struct DynoPowerFile {
  std::vector<std::vector<double>> rows;  ///< RPM and horsepower
  int linesRead = 0;
};

/// Reads the RPM and power columns of a simulation's file (*.dyn, *.cqu, *.dym), or of any text
/// with a table that a line "RPM  " heads.
/// @return nothing for a file without such a table (`kNoHorsePower` is to be told)
/// @throws CommandError (File) with line and reason
std::optional<DynoPowerFile> ParseDynoPower(std::string_view text, const std::string& fileName,
                                            DecimalMark mark);

/// Which line of a parameter file a row becomes.
enum class PowerRecord {
  Torque,      ///< "Acceleration = " RPM and torque in lb-ft, fuel, BSFC and A/F where there
  Horsepower,  ///< "Accelerat HP = " RPM and horsepower
};

struct PowerLines {
  std::string text;  ///< lines end with CR LF
  int lines = 0;
  int left = 0;  ///< rows left out, since their RPM does not rise
};

/// Writes rows as the torque table of a parameter file has them. The table rises with the RPM:
/// rows that do not are left out.
/// @throws CommandError (InvalidArgument) for more rows than the table takes, and where no row is
///         left
PowerLines PowerLinesOf(std::span<const std::vector<double>> rows, PowerRecord record,
                        DecimalMark mark);

}  // namespace veldox
