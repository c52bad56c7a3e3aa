#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/kept.h"
#include "core/pick_list.h"
#include "core/screen.h"
#include "engine/displacement_screen.h"

namespace veldox {

/// The engine finder: a pick from the list of production engines fills the fields of the
/// displacement screen. It computes nothing itself.
class Form21 : public Screen {
 public:
  /// @param form1  the screen that a pick fills
  Form21(ProgramContext& context, Form1& form1);

  /// @param menuItem  the make's menu entry, "User_BSR" for the user's own rows, or
  ///                  "Engine_Spec" for the engines of all makes
  void LoadList(std::string_view menuItem) override;
  Control* HelpPlace() override { return &Label1; }

 private:
  void PickEngine();
  void ReadUserRows();
  /// The texts and numbers of a row: bore, stroke, rod length and cylinders as far as it goes.
  struct Figure {
    std::string text;  ///< in the decimal mark of the system
    double value;
  };
  std::vector<Figure> FiguresOf(const std::string& row) const;

  Form1& form1_;
  Kept<std::string> list_{*this, {}, Aspect::Place};
  std::map<std::string, PickPlace, std::less<>> places_;

 public:
  Frame Frame1{*this, "Frame1", "Engine Size Finder"};
  PickList Combo1{Frame1, "Combo1", "Engines",
                  "Type to narrow the list, for example a size and a bore. A click or Enter puts "
                  "the engine into the Engine Displacement screen. All lengths are in inches.",
                  &Form21::PickEngine};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label1{HelpFrame, "Label1", ""};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
