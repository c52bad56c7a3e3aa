#pragma once

#include <memory>
#include <vector>

#include "core/results.h"
#include "core/screen.h"

namespace veldox {

/// Unit conversion: a value in all units of its quantity.
class Form9 : public Screen {
 public:
  explicit Form9(ProgramContext& context);

  Control* HelpPlace() override { return &Text38; }
  bool UsesSharedValues() const override { return false; }
  bool HasResults() const override { return false; }
  /// Converts while the value is typed and when another unit is picked. What is no number yet
  /// leaves the last values standing.
  void Edited(const Control& control) override;

 private:
  void ConvertValue();

  /// The units to choose from. They stand in data/units.tsv: each of its headings makes a frame,
  /// each of its units a button of the one group `Option1`.
  class Units {
   public:
    explicit Units(Screen& screen);
    const OptionGroup& group() const { return *group_; }

   private:
    std::vector<std::unique_ptr<Frame>> frames_;
    std::unique_ptr<OptionGroup> group_;
    std::vector<std::unique_ptr<OptionPart>> parts_;
  };

 public:
  Frame Frame1{*this, "Frame1", "Value", 0};
  Field Text1{Frame1,
              "Text1",
              "Value",
              "6.53478",
              KeyRule::SignedReal,
              "The value to convert, in the unit that is chosen."};
  Command Command1{Frame1, "Command1", "&Convert Value",
                   "Convert the Value from the chosen unit to all units of its kind.",
                   &Form9::ConvertValue};

  Frame Frame2{*this, "Frame2", "Converted Values", 0};
  ResultLines Text2{Frame2, "Text2", "Converted Values",
                    "The Value in all units of its kind, to be read and copied."};

  Units Option1{*this};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
