#pragma once

#include <array>
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

  /// Parses all four into the values that they hold.
  Corners ReadCorners(CornerFields& fields) const {
    for (Field* field : fields.fields()) ReadFields({field});
    return {Read(fields.leftFront), Read(fields.rightFront), Read(fields.leftRear),
            Read(fields.rightRear)};
  }
  void StoreCorners(CornerFields& fields, const Corners& values, DividesBy divisors = {}) const {
    Store(fields.leftFront, values.leftFront, divisors);
    Store(fields.rightFront, values.rightFront, divisors);
    Store(fields.leftRear, values.leftRear, divisors);
    Store(fields.rightRear, values.rightRear, divisors);
  }
  /// The same where what a corner is divided by stands in a column of its own.
  void StoreCorners(CornerFields& fields, const Corners& values, CornerFields& divisors) const {
    Store(fields.leftFront, values.leftFront, {&divisors.leftFront});
    Store(fields.rightFront, values.rightFront, {&divisors.rightFront});
    Store(fields.leftRear, values.leftRear, {&divisors.leftRear});
    Store(fields.rightRear, values.rightRear, {&divisors.rightRear});
  }
};

}  // namespace veldox
