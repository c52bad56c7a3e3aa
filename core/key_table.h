#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/parameter_block.h"

namespace veldox {

/// How a key's record is written.
enum class KeyForm {
  Comment,         ///< a comment line that stands in the file as it is
  Number,          ///< FormatSmart of the value, always
  NumberOrField,   ///< the value; when it is 0 the owning field's text; else "0.0"
  Integer,         ///< the value by "0"
  IntegerOrField,  ///< as NumberOrField by "0"
  FieldText,       ///< the owning field's text, "0.0" when it is empty
  FieldLiteral,    ///< the same for a field whose text is no number
  Flag,            ///< 1 or 0; every other number than 0 is 1
  Text,            ///< a text such as a font's name
  YesNo,           ///< "Yes" or "No"
  OnOff,           ///< "ON" or "OFF"
  Table,           ///< one line for each row of an array
};

/// How the lines of an array look.
enum class TableForm {
  None,
  Fields,          ///< KEY = v by FormatField, one line an element
  Smart,           ///< the same by FormatSmart
  Pairs,           ///< KEY = lift flow
  GearIndexed,     ///< KEY n = v
  GearChangeRpm,   ///< KEY a-b = v, v by "0"
  GearChangeTime,  ///< KEY a-b = v
  NitrousStages,   ///< KEY = five numbers
};

/// The member of the block that a key names. Arrays are seen as rows of doubles.
using KeyMember =
    std::variant<std::monostate, double ParameterBlock::*, std::int16_t ParameterBlock::*,
                 std::int32_t ParameterBlock::*, std::string ParameterBlock::*>;

/// One key of the parameter file.
struct KeyRow {
  std::string_view key;  ///< the comment line itself in rows of form Comment
  KeyForm form = KeyForm::Comment;
  KeyMember member;
  /// The screen, and where it is built the control, whose text stands in for the value.
  std::string_view owner;
  TableForm tableForm = TableForm::None;
  /// One number of an array by row and column; null for other keys.
  /// Throws std::out_of_range beyond the bounds.
  double& (*cell)(ParameterBlock&, int row, int column) = nullptr;
  int firstRow = 0;  ///< the first row that has a line
  int rows = 0;      ///< rows of the array, those before the first line counted
  int rowWidth = 1;  ///< numbers in a row
  /// The key of the table whose first column this one tells again. What that key says in the same
  /// file holds.
  std::string_view columnOf = {};
  std::int16_t onValue = 1;  ///< what a switch holds while it is on
  /// The reader knows the key only with a blank behind its "=".
  bool blankBehindEquals = false;
  /// The nearest number that the key can hold; null where it holds all that its member can.
  double (*nearest)(double) = nullptr;
};

/// All keys in the order of the file.
std::span<const KeyRow> KeyTable();

/// The row of a key, without regard to case; null when there is none. Comments are no keys.
const KeyRow* FindKey(std::string_view key);

/// The row of the key whose value, or number of a table, lies at this place of the block; null
/// when it belongs to none.
const KeyRow* FindKeyOfSlot(ParameterBlock& block, const void* slot);

/// The value of a key as a plain text: numbers in their shortest form.
/// @param index  row of an array key
std::string KeyValueText(const KeyRow& row, ParameterBlock& block, int index);

}  // namespace veldox
