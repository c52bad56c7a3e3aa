#pragma once

#include "core/tool_screen.h"

namespace veldox {

/// Seek: the value of a field with which a command brings a result to a target.
class SeekScreen : public ToolScreen {
 public:
  explicit SeekScreen(ProgramContext& context);

  Control* HelpPlace() override { return &HelpText; }
  void Edited(const Control& control) override;

 protected:
  void FieldChosen(const Field& field) override;
  void OfferResults(bool anew) override;
  void ChooseResult(Field& result) override;
  Field* ChosenResult() const override { return static_cast<Field*>(ResultList.chosenControl()); }

 private:
  void SeekValue();
  void EmptyFound();

 public:
  Frame EndsFrame{*this, "EndsFrame", "Where to Seek", 0};
  Field Low{EndsFrame,           "Low",
            "Low End",           "0",
            KeyRule::SignedReal, "The smallest value of the field that may be tried."};
  Field High{EndsFrame,           "High",
             "High End",          "10",
             KeyRule::SignedReal, "The largest value of the field that may be tried."};

  Frame TargetFrame{*this, "TargetFrame", "What Is Sought", 1};
  ControlList ResultList{TargetFrame, "ResultList", "Result",
                         "The field that the command is to show the target in."};
  Field Target{TargetFrame,
               "Target",
               "Target",
               "0",
               KeyRule::SignedReal,
               "What the result is to be, as the field shows it."};
  Command Find_Value{TargetFrame, "Find_Value", "&Seek",
                     "Find the value of the Field with which the Command gives the Target, put it "
                     "into the Field and run the Command. One undo takes it back.",
                     &SeekScreen::SeekValue};

  Frame FoundFrame{*this, "FoundFrame", "Found", 1};
  ResultLabel Found{FoundFrame, "Found", "Field", Unit::None,
                    "The value that was found and put into the field."};
  ResultLabel Reached{FoundFrame, "Reached", "Result", Unit::None,
                      "The result that the command has given with it."};

  Frame FootFrame{*this, "FootFrame", ""};
  Label HelpText{FootFrame, "HelpText", ""};
  Command subend{FootFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
