#pragma once

#include "core/screen_part.h"

namespace veldox {

/// The lists of the appearance options.
class AppearancePanel : public ScreenPart {
 public:
  explicit AppearancePanel(Screen& screen) : ScreenPart(screen) {
    SetFrames({&OptionFrame});
    SetAreOptions();
  }

  /// Puts the rows into the lists.
  void FillLists() {
    Combo3.SetRows({"0 - Left", "1 - Right", "2 - Center (Default)"});
    Combo4.SetRows({"0 - None", "1 - 3d Fixed (Default)"});
    Combo5.SetRows({"0 - Flat", "1 - 3d Fixed (Default)"});
    Combo6.SetRows({"white", "black", "green", "blue", "cyan", "red", "magenta", "yellow", "brown",
                    "dark gray", "dark green", "dark red", "light gray", "light green",
                    "light yellow", "orange"});
  }

  Frame OptionFrame{screen(), "OptionFrame", "User Selectable Entry GUI Options"};
  ComboList Combo3{OptionFrame, "Combo3", "Alignment for Entry Text"};
  ComboList Combo4{OptionFrame, "Combo4", "Entry Text Box Border Style"};
  ComboList Combo5{OptionFrame, "Combo5", "Option/Check Box Border Style"};
  ComboList Combo6{OptionFrame, "Combo6", "Color"};
};

}  // namespace veldox
