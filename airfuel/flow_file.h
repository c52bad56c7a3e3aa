#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "airfuel/flow_bench.h"
#include "core/error.h"
#include "core/numbers.h"

// Flow data files: *.flw and *.dfw, a value a line, and the flow sections of *.dyn, *.cqu and
// *.dym files.

namespace veldox {

/// What is told of a file without flow.
inline constexpr const char* kNoFlowInformation = "NO Flow Infomation Found!!!";
/// What is told of a file that cannot be read to its end.
inline constexpr const char* kFlowFileProblem =
    "Problem Reading Flow File -- May Not have all needed Information";

/// A port as a file tells it. What stands behind a fault of the file is missing.
struct FlowFilePort {
  std::optional<double> valveSize;  ///< inches
  double testPressure = 0;          ///< inches of water
  std::vector<double> lifts;        ///< inches, at most kFlowRows
  std::vector<double> flows;        ///< CFM at the test pressure
};

struct FlowFile {
  FlowFilePort intake;
  FlowFilePort exhaust;
  /// Valves of a cylinder; files without them mean one.
  std::optional<std::int16_t> intakeValves;
  std::optional<std::int16_t> exhaustValves;
  int linesRead = 0;  ///< with the line at fault
  /// A line stands where the intake valve's size belongs, and is none.
  bool hasNoFlow = false;
  /// What is wrong with the file, with file, line and reason.
  std::optional<CommandError> fault;
};

/// Reads a flow file. Its layout follows from the end of its name; what is none of the others is
/// taken as *.flw.
/// @param text  the decoded text
FlowFile ParseFlowFile(std::string_view text, const std::string& fileName, DecimalMark mark);

/// What a *.dfw file is made of.
struct FlowExport {
  double intakeValve = 0;   ///< inches
  double exhaustValve = 0;  ///< inches
  std::span<const FlowPoint> intake;
  std::span<const FlowPoint> exhaust;
};

struct FlowExportText {
  std::string text;  ///< lines end with CR LF
  int intakePoints = 0;
  int exhaustPoints = 0;
};

/// A *.dfw file as other programs read it; rows without lift or flow are left out. The flows stand
/// at 28 inches of water and the valves are one a port, whatever was measured.
/// @param title  the first line
FlowExportText WriteFlowFile(const FlowExport& data, const std::string& title, DecimalMark mark);

/// The first line of an exported file, cut to 79 bytes by shorter words first.
std::string FlowFileTitle(const std::string& program, const std::string& version);

/// The number of points beyond which other programs may not read a file.
inline constexpr int kMostPointsOfOthers = 10;

}  // namespace veldox
