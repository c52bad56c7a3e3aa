#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"

namespace veldox {

/// Units of pressure, length and the like. A unit is known by the index of its option button; what
/// makes one of another stands in data/units.tsv. Pressures are gauge pressures but for the one
/// that says otherwise.

inline constexpr int kUnitCount = 64;

/// A unit as it can be chosen.
struct ConversionUnit {
  int option = 0;
  std::string_view name;
  std::string_view heading;  ///< of the buttons it stands among
};

/// All units under their headings, in the order of the screen.
std::vector<ConversionUnit> ConversionUnits();

/// A value in another unit of the same quantity.
/// @throws CommandError (IndexOutOfRange) for an option without unit, (InvalidArgument) for units
///         of two quantities
double ConvertUnit(double value, int from, int to);

/// A value in one unit.
struct UnitValue {
  int option = 0;
  std::string_view name;
  double value = 0;
};

/// A value in every unit of its quantity, its own among them, in the order of the screen.
/// @throws CommandError (IndexOutOfRange) for an option without unit
std::vector<UnitValue> ConvertedValues(double value, int from);

/// The same as text: a line for each unit, its value by FormatField11 before its name.
/// @throws CommandError as ConvertedValues does, (Overflow) where a value is beyond all numbers
std::string ConvertedLines(double value, int from, DecimalMark mark);

}  // namespace veldox
