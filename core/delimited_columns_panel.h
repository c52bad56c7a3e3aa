#pragma once

#include "core/screen_part.h"

namespace veldox {

/// Which columns of a delimited file the conversion tools take.
class DelimitedColumnsPanel : public ScreenPart {
 public:
  explicit DelimitedColumnsPanel(Screen& screen) : ScreenPart(screen) {
    SetFrames({&Frame8});
    SetAreOptions();
  }

  Frame Frame8{screen(), "Frame8", "Fields of a Delimited File"};
  Field Text13{Frame8, "Text13", "Field for X Axis or RPM", "1", KeyRule::Digits};
  Field Text12{Frame8, "Text12", "Field for Y Axis / Torque / HP", "2", KeyRule::Digits};
  Field Text11{Frame8, "Text11", "Field Separator / Delimiter --  Use A CAPITAL T for a TAB", "",
               KeyRule::AnyText};
  Field Text15{Frame8, "Text15", "Field for Fuel lbs/hr", "3", KeyRule::Digits};
  Field Text16{Frame8, "Text16", "Field for BSFC", "4", KeyRule::Digits};
  Field Text17{Frame8, "Text17", "Field for Air / Fuel Ratio", "5", KeyRule::Digits};
};

}  // namespace veldox
