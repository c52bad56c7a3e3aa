#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "core/numbers.h"
#include "core/parameter_block.h"
#include "core/units.h"

namespace veldox {

/// How a number becomes the text of a field.
using NumberFormat = std::string (*)(double, DecimalMark);

/// What a field stands for, told once, in its declaration: the shared value it shows, with what
/// is not the rule. The rule: values whose key is a plain number or integer are shown when the
/// screen opens, all others keep the field's text; the unit's own rule converts in Metric; and
/// results go by the screen's pattern.
///
///     Field Text1{..., Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
///     Field Text48{..., Entry(..., Unit::Length, Holds(&P::PistonTravel).ConvertedAsShown())};
///     Field Text5{..., Entry(KeyRule::Digits, Holds(&P::RPM).Pattern<"0">())};
///     Field Text18{..., Entry(..., Unit::Length, Holds().NotConverted())};  // no shared value
class Holds {
 public:
  using Slot = std::variant<std::monostate, double*, std::int16_t*>;

  /// No shared value: the field's text is all there is.
  Holds() = default;
  explicit Holds(double ParameterBlock::*value) : place_(value) {}
  explicit Holds(std::int16_t ParameterBlock::*count) : place_(count) {}
  /// A value of the screen's own, which no other screen and no file knows.
  explicit Holds(double& own) : place_(&own) {}
  /// One number of a table.
  /// @param cell  throws std::out_of_range beyond the bounds
  Holds(double& (*cell)(ParameterBlock&, int row, int column), int row, int column)
      : place_(TableCell{cell, row, column}) {}

  /// The same column of a table in another row; of a value that is no table's the value itself.
  Holds InRow(int row) const {
    Holds other = *this;
    if (auto* cell = std::get_if<TableCell>(&other.place_)) cell->row = row;
    return other;
  }

  // ---- what is not the rule

  /// Shown when the screen opens, though its key is no plain number.
  Holds ShownAtOpening() const { return With(&Holds::opening_, Opening::Shown); }
  /// Keeps its text when the screen opens, though its key is a plain number.
  Holds NotShownAtOpening() const { return With(&Holds::opening_, Opening::NotShown); }
  /// 0 says that no command has read the value yet: the field keeps its text then.
  Holds ZeroKeepsText() const { return With(&Holds::zeroKeepsText_, true); }
  /// The "Metric" box converts the number that the field shows then, not what was read.
  Holds ConvertedAsShown() const { return With(&Holds::conversion_, Conversion::AsShown); }
  /// The "Metric" box has the screen work the value out anew.
  Holds DerivedAnew() const { return With(&Holds::conversion_, Conversion::Derived); }
  /// The same in both units.
  Holds NotConverted() const { return With(&Holds::conversion_, Conversion::None); }
  /// The field shows metric units, the shared value stays in US units all the while.
  Holds KeptInUs() const { return With(&Holds::conversion_, Conversion::ShownOnly); }
  /// Converted by another rule than its unit's.
  Holds By(const UnitRule& rule) const { return With(&Holds::rule_, &rule); }
  /// Results are shown in another pattern than the screen's.
  Holds As(NumberFormat pattern) const { return With(&Holds::format_, pattern); }
  template <PatternText Text>
  Holds Pattern() const {
    return As(&FormatValue<Text>);
  }

  /// What the "Metric" box has converted is shown in another pattern than results.
  template <PatternText Text>
  Holds SwitchedPattern() const {
    return With(&Holds::switchedFormat_, NumberFormat{&FormatValue<Text>});
  }

  // ---- what the screen model asks

  enum class Opening { ByKey, Shown, NotShown };
  enum class Conversion {
    ByUnit,     ///< what was read where there is a shared value, else the number shown
    AsShown,    ///< the number shown
    Derived,    ///< worked out anew
    ShownOnly,  ///< only the field is metric
    None,
  };

  Opening opening() const { return opening_; }
  bool zeroKeepsText() const { return zeroKeepsText_; }
  Conversion conversion() const { return conversion_; }
  /// Null where the unit's own rule holds.
  const UnitRule* rule() const { return rule_; }
  /// Null where the screen's pattern holds.
  NumberFormat format() const { return format_; }
  /// Null where what was converted goes by the pattern of results.
  NumberFormat switchedFormat() const { return switchedFormat_; }

  /// The place of the value; monostate where there is none.
  Slot In(ParameterBlock& block) const {
    if (const auto* value = std::get_if<double ParameterBlock::*>(&place_)) return &(block.**value);
    if (const auto* count = std::get_if<std::int16_t ParameterBlock::*>(&place_)) {
      return &(block.**count);
    }
    if (const auto* own = std::get_if<double*>(&place_)) return *own;
    if (const auto* cell = std::get_if<TableCell>(&place_)) {
      return &cell->number(block, cell->row, cell->column);
    }
    return {};
  }
  /// A value that other screens and the file know.
  bool isShared() const {
    return !std::holds_alternative<std::monostate>(place_) &&
           !std::holds_alternative<double*>(place_);
  }

 private:
  struct TableCell {
    double& (*number)(ParameterBlock&, int row, int column);
    int row;
    int column;
  };

  template <class T>
  Holds With(T Holds::*member, T value) const {
    Holds other = *this;
    other.*member = value;
    return other;
  }

  std::variant<std::monostate, double ParameterBlock::*, std::int16_t ParameterBlock::*, double*,
               TableCell>
      place_;
  Opening opening_ = Opening::ByKey;
  Conversion conversion_ = Conversion::ByUnit;
  bool zeroKeepsText_ = false;
  const UnitRule* rule_ = nullptr;
  NumberFormat format_ = nullptr;
  NumberFormat switchedFormat_ = nullptr;
};

/// A column of a table of the shared values, from its first row on.
template <auto Member>
Holds HoldsColumn(int column = 0) {
  return {&TableNumber<Member>, 0, column};
}

}  // namespace veldox
