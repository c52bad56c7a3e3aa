#pragma once

#include "core/results.h"

namespace veldox {

/// What a field of another page or panel holds, shown a second time where commands work with it.
/// It is for reading alone, and follows the field, its marks among the rest.
class FieldCopy : public ResultLabel {
 public:
  FieldCopy(Frame& frame, Field& of)
      : ResultLabel(frame, of.name() + " in " + frame.name(), of.caption(), of.unit(), of.help(),
                    of.text(), Holds().NotConverted()),
        of_(of) {
    of.WhenChanged([this] { Follow(); });
  }
  FieldCopy(const FieldCopy&) = delete;
  FieldCopy& operator=(const FieldCopy&) = delete;

  const Field& of() const { return of_; }

 private:
  void Follow() {
    SetCaption(of_.caption());
    SetText(of_.text());
    SetMark(of_.mark());
  }

  const Field& of_;
};

/// A field of another page or panel that can be worked in a second place too, where commands need
/// it: what is typed into one of them stands in both.
class FieldTwin : public Field {
 public:
  /// @param label  what it is called here; the field's own label where it is empty
  FieldTwin(Frame& frame, Field& of, const std::string& label = {})
      : Field(frame, of.name() + " in " + frame.name(), label.empty() ? of.caption() : label,
              of.text(), Entry(of.rule(), of.unit(), Holds().NotConverted(), of.leaveCheck()),
              of.help()),
        of_(of) {
    of_.WhenChanged([this] {
      SetText(of_.text());
      SetMark(of_.mark());
    });
    WhenChanged([this] { of_.SetText(text()); });
  }
  FieldTwin(const FieldTwin&) = delete;
  FieldTwin& operator=(const FieldTwin&) = delete;

  const Field& of() const { return of_; }

 private:
  Field& of_;
};

/// The field that a control shows or works a second time, itself for every other.
const Control* ValueOf(const Control* control);

/// Where the user comes to a control: itself, or the twin of a field that lies under a panel.
Control& WithinReach(Control& control);

/// True for what shows a field a second time: it is told where the field itself stands.
inline bool IsShownTwice(const Control& control) {
  return dynamic_cast<const FieldCopy*>(&control) != nullptr ||
         dynamic_cast<const FieldTwin*>(&control) != nullptr;
}

}  // namespace veldox
