#include "reference/unit_conversion.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/error.h"
#include "core/report_columns.h"
#include "data/tables.h"

namespace veldox {

namespace {

constexpr int kNoUnit = -1;

/// A sign and the number that stands behind it.
struct Step {
  char sign;
  double number;

  double Applied(double value) const {
    switch (sign) {
      case '+': return value + number;
      case '-': return value - number;
      case '*': return value * number;
      default: return value / number;
    }
  }
  double Undone(double value) const {
    switch (sign) {
      case '+': return value - number;
      case '-': return value + number;
      case '*': return value / number;
      default: return value * number;
    }
  }
};

struct Unit {
  ConversionUnit shown;
  int of = kNoUnit;  ///< the unit that it comes of
  std::vector<Step> steps;
};

int OptionOf(std::string_view cell) {
  return cell.empty() ? kNoUnit : RoundToInt16(ParseNumber(cell, DecimalMark::Point));
}

std::vector<Step> StepsOf(std::string_view text) {
  std::vector<Step> steps;
  while (!text.empty()) {
    const char sign = text.front();
    text.remove_prefix(2);
    const auto end = std::min(text.find(' '), text.size());
    steps.push_back({sign, ParseNumber(text.substr(0, end), DecimalMark::Point)});
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return steps;
}

/// The units in the order of the table, and where each option stands among them.
struct UnitList {
  std::vector<Unit> units;
  std::array<int, kUnitCount> places{};

  UnitList() {
    places.fill(kNoUnit);
    for (const TableGroup& group : UnitTable()) {
      for (const TableRow& row : group.rows) {
        const int option = OptionOf(row.cells[0]);
        places[static_cast<std::size_t>(option)] = static_cast<int>(units.size());
        units.push_back(
            {{option, row.name, group.name}, OptionOf(row.cells[1]), StepsOf(row.cells[2])});
      }
    }
  }

  const Unit& At(int option) const {
    const int place =
        option >= 0 && option < kUnitCount ? places[static_cast<std::size_t>(option)] : kNoUnit;
    if (place == kNoUnit) {
      throw CommandError(ErrorKind::IndexOutOfRange, "There is no unit of that number.");
    }
    return units[static_cast<std::size_t>(place)];
  }

  /// The unit that all units of the quantity come of in the end.
  int BaseOf(const Unit& unit) const {
    const Unit* base = &unit;
    while (base->of != kNoUnit) base = &At(base->of);
    return base->shown.option;
  }

  double InBase(double value, const Unit& unit) const {
    for (const Unit* from = &unit;; from = &At(from->of)) {
      for (auto step = from->steps.rbegin(); step != from->steps.rend(); ++step) {
        value = step->Undone(value);
      }
      if (from->of == kNoUnit) return value;
    }
  }

  double FromBase(double value, const Unit& unit) const {
    std::vector<const Unit*> way{&unit};
    while (way.back()->of != kNoUnit) way.push_back(&At(way.back()->of));
    for (auto to = way.rbegin(); to != way.rend(); ++to) {
      for (const Step& step : (*to)->steps) value = step.Applied(value);
    }
    return value;
  }
};

const UnitList& Units() {
  static const UnitList units;
  return units;
}

}  // namespace

std::vector<ConversionUnit> ConversionUnits() {
  std::vector<ConversionUnit> shown;
  for (const Unit& unit : Units().units) shown.push_back(unit.shown);
  return shown;
}

double ConvertUnit(double value, int from, int to) {
  const UnitList& list = Units();
  const Unit& entered = list.At(from);
  const Unit& wanted = list.At(to);
  if (list.BaseOf(entered) != list.BaseOf(wanted)) {
    throw CommandError(ErrorKind::InvalidArgument, "The units are not of one quantity.");
  }
  return from == to ? value : list.FromBase(list.InBase(value, entered), wanted);
}

std::vector<UnitValue> ConvertedValues(double value, int from) {
  const UnitList& list = Units();
  const int base = list.BaseOf(list.At(from));
  std::vector<UnitValue> values;
  for (const Unit& unit : list.units) {
    if (list.BaseOf(unit) != base) continue;
    const int option = unit.shown.option;
    values.push_back({option, unit.shown.name, ConvertUnit(value, from, option)});
  }
  return values;
}

std::string ConvertedLines(double value, int from, DecimalMark mark) {
  ReportColumns lines(mark);
  for (const UnitValue& unit : ConvertedValues(value, from)) {
    lines.AddValueLine(unit.value, "  " + std::string(unit.name));
  }
  return lines.ReportLine;
}

}  // namespace veldox
