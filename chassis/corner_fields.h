#pragma once

#include <array>
#include <cmath>
#include <string>

#include "chassis/corner_weights.h"
#include "core/screen_part.h"
#include "core/table.h"

namespace veldox {

/// The same quantity of each corner of the car: a column of a table whose rows are the corners.
class CornerFields {
 public:
  template <class T>
  using Four = std::array<T, 4>;  ///< left front, right front, left rear, right rear

  /// @param holds  the shared values; none for results that no value keeps
  CornerFields(Frame& frame, const Four<const char*>& names, const std::string& label,
               const Four<const char*>& texts, KeyRule rule, Unit unit, const Four<Holds>& holds,
               const std::string& help)
      : leftFront(frame, names[0], label, texts[0], Entry(rule, unit, holds[0]), help),
        rightFront(frame, names[1], label, texts[1], Entry(rule, unit, holds[1]), help),
        leftRear(frame, names[2], label, texts[2], Entry(rule, unit, holds[2]), help),
        rightRear(frame, names[3], label, texts[3], Entry(rule, unit, holds[3]), help) {}
  /// Results, which stand empty until they are calculated.
  CornerFields(Frame& frame, const Four<const char*>& names, const std::string& label, Unit unit,
               const std::string& help)
      : CornerFields(frame, names, label, {"", "", "", ""}, KeyRule::OutputOnly, unit, {}, help) {}

  Four<Field*> fields() { return {&leftFront, &rightFront, &leftRear, &rightRear}; }
  /// The column of a table of corners.
  TableColumn Column(const std::string& head) {
    return {head, {&leftFront, &rightFront, &leftRear, &rightRear}};
  }

  Field leftFront;
  Field rightFront;
  Field leftRear;
  Field rightRear;
};

/// The rows of a table of corners.
inline TableRows CornerRows() {
  return {"Corner", {"Left Front", "Right Front", "Left Rear", "Right Rear"}};
}

/// A page of the chassis screen.
class ChassisPart : public ScreenPart {
 protected:
  explicit ChassisPart(Screen& screen) : ScreenPart(screen) {}

  /// The work of a command, which takes what is typed on all pages first.
  template <class Part>
  CommandWork Runs(void (Part::*routine)()) {
    return CommandWork(
        [this, routine] {
          TakeTyped();
          (static_cast<Part*>(this)->*routine)();
        },
        CommandRole::Calculates);
  }

  /// Parses all four into the values that they hold.
  Corners ReadCorners(CornerFields& fields) const {
    for (Field* field : fields.fields()) ReadFields({field});
    return {Read(fields.leftFront), Read(fields.rightFront), Read(fields.leftRear),
            Read(fields.rightRear)};
  }
  void StoreCorners(CornerFields& fields, const Corners& values) const {
    RequireFinite(fields, values);
    Store(fields.leftFront, values.leftFront);
    Store(fields.rightFront, values.rightFront);
    Store(fields.leftRear, values.leftRear);
    Store(fields.rightRear, values.rightRear);
  }

  /// Throws unless the value is finite, whatever the values that are computed with it are.
  void RequireFinite(Field& field, double value, DividesBy divisors = {}) const {
    if (!std::isfinite(value)) RequireResult(field, value, divisors);
  }
  /// The same for each corner, so that an error names the corner that it comes from.
  /// @param divisors  columns in which 0 makes a result impossible, and is named instead of it
  template <class... Columns>
  void RequireFinite(CornerFields& fields, const Corners& values, Columns&... divisors) const {
    RequireFinite(fields.leftFront, values.leftFront, {&divisors.leftFront...});
    RequireFinite(fields.rightFront, values.rightFront, {&divisors.rightFront...});
    RequireFinite(fields.leftRear, values.leftRear, {&divisors.leftRear...});
    RequireFinite(fields.rightRear, values.rightRear, {&divisors.rightRear...});
  }
  static void RequireNotNegative(Field& field, double value) {
    Require(value >= 0, field, "must not be negative.");
  }
  static void RequirePositive(Field& field, double value) {
    Require(value > 0, field, "must be more than 0.");
  }
  static void RequireNoneNegative(CornerFields& fields, const Corners& values) {
    RequireNotNegative(fields.leftFront, values.leftFront);
    RequireNotNegative(fields.rightFront, values.rightFront);
    RequireNotNegative(fields.leftRear, values.leftRear);
    RequireNotNegative(fields.rightRear, values.rightRear);
  }
  /// Parses all four, none of which may be negative.
  Corners ReadUnsignedCorners(CornerFields& fields) const {
    const Corners values = ReadCorners(fields);
    RequireNoneNegative(fields, values);
    return values;
  }
};

}  // namespace veldox
