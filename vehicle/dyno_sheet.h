#pragma once

#include <string>

#include "core/numbers.h"
#include "reference/weather.h"
#include "vehicle/acceleration_graphs.h"

namespace veldox {

/// What the power of a dyno sheet is corrected by, to that in standard air.
struct SheetCorrection {
  double factor = 1;
  bool isEntered = false;  ///< the factor itself was entered; false: it follows of the air
  Air air;                 ///< of the dyno's room
};

/// The factor that was entered, or where that is 1, J1349 of June 1990 in the air of the dyno.
/// @param entered  above 0
SheetCorrection CorrectionOfSheet(double entered, const Air& air);

/// A dyno sheet as text.
struct DynoSheetLayout {
  double cubicInches = 0;  ///< of the engine, for its mean pressure; 0 leaves that out
  SheetCorrection correction;
  bool compact = false;       ///< without fuel and air
  bool newtonMetres = false;  ///< torque is shown in newton metres
};

/// The sheet: engine speed, torque, horsepower, mean pressure and what the correction makes of
/// them; with fuel in the table also that and the air.
/// @throws CommandError (InvalidArgument) for a table without rows
std::string DynoSheetReport(const DynoColumns& columns, const DynoSheetLayout& layout,
                            DecimalMark mark);

}  // namespace veldox
