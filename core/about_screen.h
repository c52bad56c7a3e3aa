#pragma once

#include <string>

#include "core/screen.h"

namespace veldox {

/// The About screen: version, date and what the program is.
class Form15 : public Screen {
 public:
  explicit Form15(ProgramContext& context) : Screen(context, "Form15", "About VELDOX", "") {}

  /// Sets the lines that the start-up builds.
  void SetLines(const std::string& version, const std::string& date) {
    Label2.SetCaption(version);
    Label3.SetCaption(date);
  }

 private:
  void ShowHandbook() { context().host.ShowHandbook(); }

 public:
  Frame Frame1{*this, "Frame1", ""};
  Label Label1{Frame1, "Label1", "VELDOX-Math-Formula-Calculator"};
  Label Label2{Frame1, "Label2", ""};
  Label Label3{Frame1, "Label3", ""};
  Label Label4{Frame1, "Label4",
               "The formulas of the trade for people who build and tune engines, cars,\r\n"
               "motorcycles and racing cars."};
  Command Handbook{Frame1, "Handbook", "Handbook",
                   "Show the handbook: every screen with its fields, commands and formulas.",
                   Serves(&Form15::ShowHandbook)};
  Command subend{Frame1, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
