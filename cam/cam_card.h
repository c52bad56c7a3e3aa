#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/error.h"
#include "core/numbers.h"

namespace veldox {

/// What is told of a specification card without any timing.
inline constexpr const char* kNoCamInformation = "NO Cam Infomation Found!!!";

/// A camshaft's specification card (*.cam, *.dyn, *.dym, *.cqu). Lifts are in the unit of the
/// file, timing is in degrees. A card that is cut short has what stands before the cut; timing at
/// 0.050 replaces the first timing as a whole or not at all.
struct CamCard {
  bool found = false;     ///< a lift standard was found
  bool complete = false;  ///< lifts and timing behind that standard are all there
  std::string caption;    ///< standard and type of the cam, "---" when nothing was found
  std::optional<double> intakeValveLift;
  std::optional<double> exhaustValveLift;
  std::optional<double> intakeOpen;    ///< BTDC
  std::optional<double> intakeClose;   ///< ABDC
  std::optional<double> exhaustOpen;   ///< BBDC
  std::optional<double> exhaustClose;  ///< ATDC
  int linesRead = 0;
  /// What is wrong with the card, with file, line and reason; to be thrown when what was read is
  /// shown.
  std::optional<CommandError> fault;
};

/// Reads a card. What kind it is follows from the ending of its name.
/// @param at050  the timing at 0.050 of a *.cqu or *.dym file is taken instead of the first one
CamCard ParseCamCard(std::string_view text, const std::string& fileName, bool at050,
                     DecimalMark mark);

}  // namespace veldox
