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

}  // namespace veldox
