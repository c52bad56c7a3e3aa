#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/results.h"
#include "core/screen.h"

namespace veldox {

/// A list of controls of another screen, told by caption and unit, and by their frame where two
/// read the same.
class ControlList : public ComboList {
 public:
  /// @param none  what stands first for no control; without it there is always one chosen
  ControlList(Frame& frame, std::string name, std::string caption, const std::string& help,
              std::string none = {});

  /// Puts other controls into the list; the one that was chosen stays chosen, if it is there.
  void Offer(std::vector<Control*> controls);
  /// Null for none.
  Control* chosenControl() const;
  /// Chooses a control, null for none. False where the list does not have it.
  bool ChooseControl(const Control* control);
  /// Those that can be chosen, in order.
  const std::vector<Control*>& controls() const { return controls_; }

 private:
  std::size_t first() const { return none_.empty() ? 0 : 1; }

  std::string none_;
  std::vector<Control*> controls_;
};

/// A control, or the field that it shows a second time.
Control& OriginalOf(Control& control);

/// What a control is called in lists and heads: its caption and, behind it, its unit.
std::string NameWithUnit(const Control& control);

/// A range of numbers in tidy steps.
struct TidyRange {
  double from = 0;
  double to = 0;
  double by = 0;
};
/// A range about the number that a field shows, of whole numbers where the field holds such.
/// @param part  of the number that the range reaches below and above it
TidyRange RangeAbout(const Field& field, double part);

/// A screen that works on the fields and commands of another one, its subject.
class ToolScreen : public Screen {
 public:
  bool IsTool() const override { return true; }
  bool UsesSharedValues() const override { return false; }
  void CopyFromBlock() override {}
  void ClearFields() override {}
  void Edited(const Control& control) override;
  /// Follows the subject where its units have been switched meanwhile.
  void Visited() override;

  /// Takes another screen's fields and commands; null where none is open.
  void WorkOn(Screen* subject);
  /// Chooses what a control of a screen is for: a field that is changed, a command that is run.
  void WorkOn(Control& control);
  /// Chooses a field as the result, a command that shows it and a field that it depends on.
  void AskFor(Field& result);

  /// True for a screen that has a field and a command to work on.
  static bool CanWorkOn(const Screen& screen);
  /// True for a field that a number can be put into.
  static bool IsEntry(const Control& control);
  /// True for a field that a command may show a number in.
  static bool IsResult(const Control& control);
  /// True for a command that shows numbers in fields, and does not only draw or report them.
  static bool ShowsResults(Command& command);
  /// True for a command that works something out.
  static bool IsCalculation(const Control& control);

 protected:
  ToolScreen(ProgramContext& context, std::string name, std::string title);

  Screen* subject() const { return subject_; }
  /// @throws CommandError (InvalidArgument) where nothing is chosen
  Field& ChosenField();
  Command& ChosenCommand();

  /// The fields of the subject, those first that the chosen command shows another number in when
  /// the chosen field changes. @param depending  how many these are
  std::vector<Control*> FindResults(std::size_t& depending);
  /// Ends a command that runs only to tell what it would do. @throws CommandError
  void RefuseDryRun(const char* what) const;
  /// Ends a command, once, whose values have followed other units since the user has seen them.
  /// @throws CommandError
  void RequireSeenUnits();

  /// The chosen field is another one: ranges follow.
  virtual void FieldChosen(const Field& field) = 0;
  /// Puts the results of the chosen field and command into their lists.
  /// @param anew  and chooses those that depend on the field; else what was chosen stays
  virtual void OfferResults(bool anew) = 0;
  /// Puts a result in the first place.
  virtual void ChooseResult(Field& result) = 0;
  /// What stands there; null for nothing.
  virtual Field* ChosenResult() const = 0;

 private:
  Screen* subject_ = nullptr;
  bool isMetric_ = false;       ///< the subject, when its fields were listed
  bool hasOtherUnits_ = false;  ///< than when the user has last worked here

 public:
  Frame SubjectFrame{*this, "SubjectFrame", "Screen", 0};
  ControlList FieldList{SubjectFrame, "FieldList", "Field", "The field whose value is changed."};
  ControlList CommandList{SubjectFrame, "CommandList", "Command",
                          "The command that is run with each value."};
};

}  // namespace veldox
