#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/error.h"
#include "core/field_rules.h"
#include "core/history.h"
#include "core/holds.h"
#include "core/host_gate.h"
#include "core/journal.h"
#include "core/keep_current.h"
#include "core/numbers.h"
#include "core/parameter_block.h"
#include "core/units.h"

namespace veldox {

class Control;
class Field;
class Frame;
class Panel;
class Screen;
class ScreenPage;

/// A shared value while it is held in a screen's metric units.
struct HeldValue {
  double* slot;
  const UnitRule* rule;
  double inches;  ///< what it was before
  double metric;  ///< what it became
};

/// What can be done with a control beside its own work, such as varying a field: an item of its
/// context menu.
struct ControlTool {
  std::string caption;
  std::function<void()> open;
};

/// What every screen works with: the shared values, the rules of fields, the world.
struct ProgramContext {
  explicit ProgramContext(Host& realHost) : gate(realHost), rules(block, host) {}
  ProgramContext(const ProgramContext&) = delete;
  ProgramContext& operator=(const ProgramContext&) = delete;

  DecimalMark mark() const {
    return block.DecimalCommaMode != 0 ? DecimalMark::Comma : DecimalMark::Point;
  }

  /// Puts the shared values into the units that a screen works with. What nobody has changed
  /// since comes back to the last digit.
  /// @param screen  a screen that shows metric units; null for inches, as files and all other
  ///                screens need them
  void HandOver(Screen* screen);

  /// Asked by what takes long from time to time: ends the command where it runs only to tell
  /// what it would do and has used up its time. @throws CommandError (Cancelled)
  void StopInTime() const;

  HostGate gate;
  Host& host{gate};
  ParameterBlock block;
  FieldRules rules;
  Journal journal{block};
  History history{*this};
  /// The user has come to a screen, or works on it.
  void NoteVisit(Screen& screen);
  /// The screens that the user has come to, the last one behind.
  const std::vector<Screen*>& visited() const { return visited_; }
  /// What a window offers in the context menu of a control; empty where there is nothing.
  std::function<std::vector<ControlTool>(Control&)> toolsOf;
  KeepCurrent current{*this};

 private:
  friend class Screen;
  std::vector<Screen*> visited_;
  Screen* metricOwner_ = nullptr;  ///< whose metric units the block is in; null for inches
  std::vector<HeldValue> held_;
};

/// Told by a control that something of it has changed, so that a window can follow.
class ControlFace {
 public:
  virtual ~ControlFace() = default;
  virtual void ControlChanged(Control& control) = 0;
  /// The control asks for the keyboard focus.
  virtual void FocusRequested(Control& control) = 0;
};

enum class ControlKind {
  Field,
  Label,
  CheckBox,
  OptionGroup,
  OptionButton,
  ComboList,
  PickList,
  Command,
  Frame,
  ReportBox,
  TextArea,
  OptionPart,
  Table,
  Drawing,
};

/// How a field stands out until the next command.
enum class Mark {
  None,
  Changed,
  Error,
  Outdated,  ///< a result that an entry was not followed by
};

/// Base of all that stands on a screen. A control has the name of its declaration,
/// a caption (for a field: its label), a help sentence and a face that may be absent.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  const std::string& help() const { return help_; }
  /// The caption without access key signs and blanks behind it, as messages quote it.
  std::string PlainCaption() const;
  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  /// Visible, and so are the frames it stands in.
  bool Shown() const;
  /// Shown, and no panel lies over it: what a user's mouse and keyboard come to.
  bool Reachable() const;
  Mark mark() const { return mark_; }
  bool isInFoot() const { return isInFoot_; }
  Screen& screen() const { return screen_; }
  /// The frame it stands in; null for a frame that stands in none.
  Frame* frame() const { return frame_; }
  /// The table that it is a part of, null for what stands in its frame by itself.
  Control* whole() const { return whole_; }
  /// The access key of its caption as a small letter, 0 for none.
  char accessKey() const;
  /// Appends itself and what stands in it, in reading order.
  virtual void AppendReadingOrder(std::vector<Control*>& order);

  void SetCaption(std::string caption);
  void SetHelp(std::string help);
  void SetVisible(bool visible);
  void SetEnabled(bool enabled);
  void SetMark(Mark mark);
  /// What the control held at another time is back in its place: the rest of it follows, its
  /// face too.
  virtual void PutBack() { TellFace(); }
  void SetFace(ControlFace* face) { face_ = face; }
  /// Runs whenever what the control shows has changed, whoever changed it, for what follows of it
  /// elsewhere on the screen.
  void WhenChanged(std::function<void()> follow) { followers_.push_back(std::move(follow)); }
  /// Takes the keyboard focus.
  void Focus();
  /// An option of the main form: working it is no change of the data.
  bool isOption() const { return isOption_; }
  void SetIsOption() { isOption_ = true; }
  /// The parameter file holds what the control shows.
  void SetInFile() { isInFile_ = true; }

  /// What stands at the foot of its screen's window, belongs to the program's own settings and to
  /// no list of the screen's.
  struct InFoot {};

 protected:
  Control(Screen& screen, Frame* frame, ControlKind kind, std::string name, std::string caption,
          std::string help);
  Control(Screen& screen, InFoot, ControlKind kind, std::string name, std::string caption,
          std::string help);
  /// Tells the face and who else follows.
  void Changed();
  void TellFace();
  /// Changes something that belongs to the program's state.
  template <class T, class V>
  void Assign(T& place, V&& value, Aspect aspect);
  /// Whether being shown tells only where the user is.
  virtual Aspect visibility() const { return Aspect::Look; }
  /// The user has turned or picked something: what the file would hold asks to be saved, and the
  /// screen follows.
  void NoteChange();
  /// Makes a control a part of this one.
  void Adopt(Control& part) { part.whole_ = this; }

 private:
  friend class OptionGroup;
  friend class Screen;
  Screen& screen_;
  Frame* frame_;
  Control* whole_ = nullptr;
  ControlKind kind_;
  std::string name_;
  std::string caption_;
  std::string help_;
  ControlFace* face_ = nullptr;
  std::vector<std::function<void()>> followers_;
  bool visible_ = true;
  bool enabled_ = true;
  bool isOption_ = false;
  bool isInFile_ = false;
  bool isInFoot_ = false;
  Mark mark_ = Mark::None;
};

/// A titled group of controls.
class Frame : public Control {
 public:
  /// @param column  column of the window the frame stands in, from 0; frames of a
  ///                column stand under each other in the order of declaration
  Frame(Screen& screen, std::string name, std::string caption, int column = 0);
  /// A frame inside a frame, a panel or a page: it shows and goes with that one, and stands in
  /// a column of the same page.
  Frame(Frame& outer, std::string name, std::string caption, int column = 0);

  /// What stands in it, frames inside among them.
  const std::vector<Control*>& controls() const { return controls_; }
  int column() const { return column_; }
  void AppendReadingOrder(std::vector<Control*>& order) override;
  /// It is opened and put away as a panel is.
  void SetIsSheet() { isSheet_ = true; }

 protected:
  /// What stands over the page or in its place, and is no frame of it.
  struct Sheet {};
  Frame(Screen& screen, std::string name, std::string caption, Sheet);
  Aspect visibility() const override { return isSheet_ ? Aspect::Place : Aspect::Look; }

 private:
  friend class Control;
  std::vector<Control*> controls_;
  int column_;
  bool isSheet_ = false;
};

/// Base of the controls that hold a text.
class TextControl : public Control {
 public:
  const std::string& text() const { return text_; }
  void SetText(std::string text);
  /// The text changed under the user's hands; one that the control does not take is undone.
  void Edit(std::string text);
  /// False, after a box with the reason, for a text that the control cannot hold. A face asks
  /// before it works on a long one.
  bool CanHold(std::string_view text) const;
  KeyRule rule() const { return readOnly_ ? KeyRule::OutputOnly : rule_; }
  LeaveCheck leaveCheck() const { return leaveCheck_; }
  /// Runs a typed key through the field's rule; 0 when it is refused.
  virtual char32_t FilterKey(char32_t key);
  /// True when entering has to select all of the text.
  bool Enter();
  /// Runs the check on losing the focus; false when the field keeps the focus, after a box that
  /// ends in `consequence`: what is not done because of it.
  bool Leave(std::string_view consequence = {});

 protected:
  TextControl(Frame& frame, ControlKind kind, std::string name, std::string caption,
              std::string text, KeyRule rule, std::string help);
  void SetLeaveCheck(LeaveCheck check) { leaveCheck_ = check; }
  void RefuseKeys(bool refuse);
  /// What its text tells.
  virtual Aspect textAspect() const;
  /// Puts in the text that follows of what the control holds.
  void Derive(std::string text) { text_ = std::move(text); }

 private:
  std::string text_;
  KeyRule rule_;
  bool readOnly_ = false;
  LeaveCheck leaveCheck_ = LeaveCheck::None;
};

/// What may be entered into a field, and what the number in it means.
struct Entry {
  // NOLINTNEXTLINE(google-explicit-constructor): a rule alone is an entry
  Entry(KeyRule keys) : rule(keys) {}
  Entry(KeyRule keys, Unit inUnit, Holds held = {}, LeaveCheck onLeaving = LeaveCheck::None)
      : rule(keys), unit(inUnit), holds(held), check(onLeaving) {}
  Entry(KeyRule keys, Holds held, LeaveCheck onLeaving = LeaveCheck::None)
      : rule(keys), holds(held), check(onLeaving) {}
  Entry(KeyRule keys, LeaveCheck onLeaving) : rule(keys), check(onLeaving) {}

  KeyRule rule;
  Unit unit = Unit::None;
  Holds holds;
  LeaveCheck check = LeaveCheck::None;
};

/// A one-line text box that holds a number as the user sees it.
class Field : public TextControl {
 public:
  Field(Frame& frame, std::string name, std::string label, std::string defaultText,
        const Entry& entry, std::string help = {});

  Unit unit() const { return unit_; }
  const Holds& holds() const { return holds_; }
  /// How "Metric" converts what it shows; null for what is the same in both units.
  const UnitRule* conversion() const;
  /// A field that only shows for a while: it refuses keys, and can be reached and copied.
  void SetReadOnly(bool readOnly) { RefuseKeys(readOnly); }

 private:
  Unit unit_;
  Holds holds_;
};

/// Free text over several lines (notes).
class TextArea : public TextControl {
 public:
  TextArea(Frame& frame, std::string name, std::string label);
};

/// How a report goes to a file.
struct ReportFile {
  const char* filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Printer Files (*.prt)|*.prt";
  int filterIndex = 3;    ///< counts from 1
  bool hasPrompt = true;  ///< false: the file begins behind the report's first lines
  bool isWhole = false;   ///< true: the report has no prompt, all of it is printed and written
};

/// The pane that shows a report; also the help place of screens without one of their own.
class ReportBox : public TextControl {
 public:
  ReportBox(Frame& frame, std::string name);

  /// Shows a report (core/report.h); it stays until a key closes it.
  /// @param fontSize  points it is printed in
  /// @param picture  stands over the text in print
  void ShowReport(std::string report, int fontSize, const ReportFile& file = {},
                  PagePicture picture = {});
  bool showsReport() const { return shown_.isThere; }
  /// The report with its marks, as it goes to the printer: behind a first line that is not
  /// printed. Empty when none is shown.
  const std::string& report() const { return shown_.report; }
  int fontSize() const { return shown_.fontSize; }
  /// Draws the pages of the report.
  PageDrawing Pages() const;
  /// Empties and hides the box.
  void CloseReport();
  /// A help sentence that is shown beside the report, where the box is the help place too.
  void ShowSentence(std::string sentence);
  const std::string& sentence() const { return sentence_; }

  /// A key while a report is shown: "." writes it to a file, "," prints it, and every key
  /// closes it, unless writing or printing failed. No key is ever taken as text.
  char32_t FilterKey(char32_t key) override;

  void PutBack() override;

 protected:
  /// The report is what counts, and its text follows of it.
  Aspect textAspect() const override { return Aspect::Place; }
  Aspect visibility() const override { return Aspect::Place; }
  /// A report is part of the data that its screen works out.
  virtual Aspect reportAspect() const { return Aspect::Data; }

 private:
  struct Shown {
    std::string report;
    int fontSize = 0;
    ReportFile file;
    PagePicture picture;
    bool isThere = false;
    bool SameAs(const Shown& other) const {
      return isThere == other.isThere && report == other.report;
    }
    std::size_t HeapBytes() const { return report.capacity(); }
  };
  void WriteReportToFile() const;
  void PrintReport() const;

  Shown shown_;
  std::string sentence_;
  Control* before_ = nullptr;  // what had the focus when the report opened
};

class Label : public Control {
 public:
  Label(Frame& frame, std::string name, std::string caption);
};

/// What runs when a control is clicked.
using Handler = std::function<void()>;

/// A member function of the screen that a frame stands on, as a handler.
template <class S>
Handler HandlerOf(const Frame& frame, void (S::*member)()) {
  return [&screen = frame.screen(), member] { (static_cast<S&>(screen).*member)(); };
}

/// What a command is there for.
enum class CommandRole {
  Calculates,  ///< Ctrl+Enter runs it again
  Serves,      ///< opens or shows a panel, a dialog or another screen, works on files
  Closes,      ///< puts away what it stands in; always works, whatever a field is left with
};

/// What a click on a command does.
class CommandWork {
 public:
  /// Work that is not built yet.
  CommandWork() = default;
  /// @param run  is told the screen and the index of the command
  CommandWork(std::function<void(Screen&, int)> run, CommandRole role)
      : run_(std::move(run)), role_(role) {}
  /// Work that is not the screen's own.
  explicit CommandWork(Handler handler, CommandRole role = CommandRole::Serves)
      : run_([handler = std::move(handler)](Screen&, int) { handler(); }), role_(role) {}
  template <class S>  // NOLINTNEXTLINE(google-explicit-constructor): a routine is a work
  CommandWork(void (S::*handler)(), CommandRole role = CommandRole::Calculates)
      : run_([handler](Screen& screen, int) { (static_cast<S&>(screen).*handler)(); }),
        role_(role) {}
  /// The same routine for several commands of an array, which is told the index.
  template <class S>  // NOLINTNEXTLINE(google-explicit-constructor): a routine is a work
  CommandWork(void (S::*handler)(int), CommandRole role = CommandRole::Calculates)
      : run_([handler](Screen& screen, int index) { (static_cast<S&>(screen).*handler)(index); }),
        role_(role) {}

  /// The work of a command that turns to a page.
  CommandWork&& TurnsTo(std::function<const ScreenPage*(Screen&)> page) && {
    page_ = std::move(page);
    return std::move(*this);
  }

  bool isBuilt() const { return run_ != nullptr; }
  CommandRole role() const { return role_; }
  void Run(Screen& screen, int index) const { run_(screen, index); }
  /// The page that it turns to; null for most.
  const ScreenPage* PageIn(Screen& screen) const { return page_ ? page_(screen) : nullptr; }

 private:
  std::function<void(Screen&, int)> run_;
  CommandRole role_ = CommandRole::Calculates;
  std::function<const ScreenPage*(Screen&)> page_;
};

/// The work of a command that does not calculate: it opens or shows something, or works on files.
template <class S>
CommandWork Serves(void (S::*handler)()) {
  return {handler, CommandRole::Serves};
}

class Command : public Control {
 public:
  template <class S>
  Command(Frame& frame, std::string name, std::string caption, std::string help,
          void (S::*handler)(), CommandRole role = CommandRole::Calculates)
      : Command(frame, std::move(name), std::move(caption), std::move(help),
                CommandWork(handler, role)) {}
  Command(Frame& frame, std::string name, std::string caption, std::string help, Handler handler)
      : Command(frame, std::move(name), std::move(caption), std::move(help),
                CommandWork(std::move(handler))) {}
  /// @param index  of a member of an array, as its routine is told it
  Command(Frame& frame, std::string name, std::string caption, std::string help, CommandWork work,
          int index = 0);
  /// A command whose work is not built yet: it is there, disabled.
  Command(Frame& frame, std::string name, std::string caption, std::string help)
      : Command(frame, std::move(name), std::move(caption), std::move(help), CommandWork()) {}

  /// Runs the command as the screen's Click does. False when it cannot be clicked or ended
  /// by an error.
  bool Click();
  /// Runs the command, whether a user comes to it or not. False when it ended by an error.
  bool Run();
  /// False for a command whose work is not built yet.
  bool isBuilt() const { return work_.isBuilt(); }
  CommandRole role() const { return work_.role(); }
  /// The page that it turns to; null for most.
  const ScreenPage* page() const { return work_.PageIn(screen()); }
  /// True for the command that Ctrl+Enter runs now.
  bool isNextCalculation() const;

 private:
  CommandWork work_;
  int index_;
};

class CheckBox : public Control {
 public:
  CheckBox(Frame& frame, std::string name, std::string caption, std::string help = {},
           Handler handler = {});
  template <class S>
  CheckBox(Frame& frame, std::string name, std::string caption, std::string help,
           void (S::*handler)())
      : CheckBox(frame, std::move(name), std::move(caption), std::move(help),
                 HandlerOf(frame, handler)) {}

  CheckBox(Screen& screen, InFoot, std::string name, std::string caption, std::string help,
           Handler handler);

  bool on() const { return on_; }
  /// Sets the state without running the handler.
  void SetOn(bool on);
  /// Turns the box over, as TurnOver. False also where the user cannot reach it.
  bool Click();
  /// Turns the box over and runs its handler; when the handler fails, the box turns back. For the
  /// program itself: the box may stand in a panel that is put away.
  /// False when it is disabled or its handler failed.
  bool TurnOver();
  /// Keeps a switch of the shared values in step with the box.
  void Bind(std::int16_t& slot);

 private:
  Handler handler_;
  std::int16_t* slot_ = nullptr;
  bool on_ = false;
};

class OptionGroup;

/// One button of an option group; `Option1(3)` has the index 3.
class OptionButton : public Control {
 public:
  OptionButton(OptionGroup& group, Frame* frame, int index, std::string caption, std::string help);
  int index() const { return index_; }
  OptionGroup& group() const { return group_; }
  bool on() const;
  void Click();

 private:
  OptionGroup& group_;
  int index_;
};

/// One choice of an option group.
struct OptionChoice {
  int index;
  std::string caption;
  std::string help;
  bool visible = true;
};

/// Buttons of an option group that stand together in rows.
class OptionRows : public Control {
 public:
  /// Those that stand here.
  const std::vector<OptionButton*>& buttonsHere() const { return buttonsHere_; }
  int buttonsInRow() const { return buttonsInRow_; }
  void AppendReadingOrder(std::vector<Control*>& order) override;

 protected:
  OptionRows(Frame& frame, ControlKind kind, std::string name, std::string caption,
             int buttonsInRow);
  void AddButtons(OptionGroup& group, const std::vector<OptionChoice>& choices);

 private:
  std::vector<OptionButton*> buttonsHere_;
  int buttonsInRow_;
};

/// A row of buttons of which one is chosen. Further buttons of the group may stand in other
/// places (`OptionPart`).
class OptionGroup : public OptionRows {
 public:
  using Choice = OptionChoice;
  OptionGroup(Frame& frame, std::string name, std::string caption,
              const std::vector<Choice>& choices, int chosen = 0, int buttonsInRow = 1);

  int chosen() const { return chosen_; }
  /// False when the group has no button of that index; nothing changes then.
  bool Choose(int index);
  /// The user clicks the button of that index.
  void Pick(int index);
  void PutBack() override;
  /// All of them, in the order of declaration.
  const std::vector<std::unique_ptr<OptionButton>>& buttons() const { return buttons_; }
  /// True when buttons of it stand in several places.
  bool isParted() const { return buttonsHere().size() < buttons_.size(); }
  void Bind(std::int16_t& slot);

 private:
  friend class OptionRows;
  std::vector<std::unique_ptr<OptionButton>> buttons_;
  std::int16_t* slot_ = nullptr;
  int chosen_;
};

/// Buttons of an option group that stand in another frame than its first ones: one is chosen
/// across all.
class OptionPart : public OptionRows {
 public:
  OptionPart(Frame& frame, OptionGroup& group, const std::vector<OptionChoice>& choices,
             int buttonsInRow = 1);
};

/// A drop-down list of rows.
class ComboList : public Control {
 public:
  /// @param holds  the shared value of a list whose rows are numbers
  ComboList(Frame& frame, std::string name, std::string caption, Holds holds = {});
  const Holds& holds() const { return holds_; }
  /// Chooses the row that is this number; nothing changes where there is none.
  void ChooseNumber(double number);
  const std::vector<std::string>& rows() const { return rows_; }
  void SetRows(std::vector<std::string> rows);
  /// Index of the chosen row, -1 for none.
  int chosen() const { return chosen_; }
  /// The chosen row, empty for none.
  virtual std::string chosenText() const;
  /// Chooses a row, with all that a click on it does.
  virtual void Choose(int row);
  /// The user picks a row.
  void Pick(int row);

 protected:
  ComboList(Frame& frame, ControlKind kind, std::string name, std::string caption,
            std::string help);
  /// Puts other rows into the list without telling the face.
  void Replace(std::vector<std::string> rows, int chosen);
  /// True for a row that the list has.
  bool HasRow(int row) const { return row >= 0 && static_cast<std::size_t>(row) < rows_.size(); }
  void SetChosen(int row) { Assign(chosen_, row, rowAspect()); }
  /// What its rows and the chosen one tell.
  virtual Aspect rowAspect() const { return Aspect::Data; }

 private:
  std::vector<std::string> rows_;
  int chosen_ = -1;
  Holds holds_;
};

/// Told when a screen opens or closes.
class ScreenFace {
 public:
  virtual ~ScreenFace() = default;
  virtual void ScreenVisibilityChanged(Screen& screen) = 0;
};

/// One calculator form. A derived class has its controls as members under their
/// control names, in reading order; they register themselves here.
class Screen {
 public:
  Screen(ProgramContext& context, std::string name, std::string title, std::string tag);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen();

  const std::string& name() const { return name_; }
  const std::string& title() const { return title_; }
  /// Short tag for the names of saved pictures.
  const std::string& tag() const { return tag_; }
  ProgramContext& context() const { return context_; }
  ParameterBlock& block() const { return context_.block; }
  DecimalMark mark() const { return context_.mark(); }

  /// The frames that stand on the page in columns, those inside others left out.
  const std::vector<Frame*>& frames() const { return frames_; }
  /// The pages of which one is shown; empty for a screen that is one page.
  const std::vector<ScreenPage*>& pages() const { return pages_; }
  /// The panels that commands show over the page.
  const std::vector<Panel*>& panels() const { return panels_; }
  /// The panels that are shown, each lying on those before it.
  const std::vector<Panel*>& openPanels() const { return openPanels_; }
  /// The panel that lies over all else, null while none is shown.
  Panel* topPanel() const { return openPanels_.empty() ? nullptr : openPanels_.back(); }
  /// Puts the top panel away as its closing command does; nothing without one.
  void PutAwayPanel();
  /// All controls in the order of declaration, frames and option buttons among them.
  const std::vector<Control*>& controls() const { return controls_; }
  /// All controls as the tab key walks through them: frame by frame, tables row by row.
  std::vector<Control*> ReadingOrder() const;
  Control* Find(std::string_view name) const;

  bool visible() const { return visible_; }
  void SetVisible(bool visible);
  void SetFace(ScreenFace* face) { face_ = face; }

  /// Copies the shared values into the fields that show them at opening, by their declarations.
  virtual void CopyFromBlock();
  /// The same in the units that this screen shows, whatever the shared values are in now.
  void CopyShared();
  /// Shows the shared value of a control, in this screen's units, as opening the screen does.
  /// @param number  the value in US units
  void ShowShared(Control& control, double number);
  /// True for a control whose shared value opening the screen shows.
  static bool ShowsAtOpening(const Control& control);
  /// The place of the shared value that a control shows; null where it shows none.
  static const void* SharedPlace(const Control& control);
  /// Puts a list into the screen's pick list.
  /// @param menuItem  the menu entry of the list
  /// @throws CommandError (File) where the list is a file that cannot be read
  virtual void LoadList(std::string_view /*menuItem*/) {}
  /// The screen's "Metric" box, null where it has none.
  virtual CheckBox* MetricBox() { return nullptr; }
  /// Where help sentences go.
  virtual Control* HelpPlace() { return nullptr; }
  /// Where reports go, null where the screen has none.
  virtual ReportBox* ReportPane() { return nullptr; }
  /// The command that closes the screen, null where it has none.
  virtual Control* QuitCommand() { return Find("subend"); }
  /// True for a screen that works on other screens and holds no data of its own: what is entered
  /// there is no step and nothing to be saved, and Clear leaves it alone.
  virtual bool IsTool() const { return false; }
  /// False for a screen whose commands show no numbers in fields: tools leave it alone.
  virtual bool HasResults() const { return true; }
  /// The user has come to this screen from another one, or opened it.
  virtual void Visited() {}
  /// What belongs to closing beyond hiding the window.
  virtual void Closed() {}
  /// True while the fields show metric units.
  bool metric() const { return metricShown_; }

  /// A number of a field in inches, as the field shows it now, and the reverse. What is too
  /// large for the other units stays as it is.
  double AsShown(const Field& field, double inches) const { return Converted(field, inches, true); }
  double InInches(const Field& field, double shown) const { return Converted(field, shown, false); }
  /// Ticks or unticks the "Metric" box of a screen with blank fields: what is a number is
  /// converted, and no shared value is touched.
  void SwitchBlankUnits(bool toMetric);
  /// False for a screen whose commands have nothing to do with the shared values' units.
  virtual bool UsesSharedValues() const { return true; }

  /// Closes the screen as its "&Quit" button does.
  void Quit();

  /// The pointer stands over a control (null: over the background).
  virtual void Hover(Control* control);
  /// Shows a sentence in the help place, if there is one and no report stands there.
  void ShowHelp(const std::string& sentence);

  /// What stands in no control and was put back as it was at another time is shown.
  virtual void PutBack() {}
  /// Has the shared values in the units in which this screen's commands work with them.
  void TakeUnits();

  /// Runs a command: marks of the last one go, and whatever it throws is shown in one
  /// box that names the control. False when it ended by an error or a Cancel.
  bool Perform(const std::function<void()>& command);

  /// The user has typed into a control, turned or picked something: what follows of it at once,
  /// without a command. It throws nothing and asks nothing.
  virtual void Edited(const Control& /*control*/) {}

  /// Empties every text box (Clear).
  virtual void ClearFields();
  /// Puts the comma into default texts (the first "." of each).
  void ConvertDefaultsToComma();

  /// The control that has the keyboard focus, null for none.
  Control* focus() const { return focus_; }
  /// Moves the focus without asking a face; the check of the field that is left runs
  /// first and may keep it. False when it was kept.
  bool MoveFocus(Control* control);
  /// What an access key clicks where several controls have it: the one in the frame that has
  /// the focus, else the first in reading order. Null when none has it.
  Control* AccessKeyTarget(char key) const;
  /// The command that Ctrl+Enter runs: the calculating one that ran last, or else the first;
  /// null where none can be reached.
  Command* NextCalculation();
  /// The calculating command that was clicked last; null before the first.
  Command* lastCalculation() const { return lastCalculation_; }
  /// Runs the next calculation. False when there is none, the field that has the focus keeps it, or
  /// the command ended by an error.
  bool CalculateAgain();
  /// Where the Enter key goes from a control: down a table. Null where it goes nowhere.
  Control* NextByEnter(const Control& from) const;
  /// Where the tab key goes from a control: the next one in reading order that takes the
  /// keyboard, round to the first. Null when there is no other.
  Control* NextInTabOrder(const Control& from) const;

 protected:
  using P = ParameterBlock;

  /// Parses a field. @throws CommandError (NotANumber) that names the field.
  double Read(Field& field) const;
  /// Parses a field into a 16-bit count. @throws CommandError (Overflow) as well
  void ReadCount(std::int16_t& slot, Field& field) const;
  /// Parses fields into the values that they hold, in this order.
  /// @throws CommandError (NotANumber, Overflow) that names the field; what stands before it in
  ///         the list is read
  void ReadFields(std::initializer_list<Field*> fields);
  /// Takes the number of a list's chosen row into the value that the list holds.
  void ReadChoice(const ComboList& list);

  /// The fields a formula divides by, so that an error can name the one that is 0.
  using DividesBy = std::initializer_list<Field*>;

  /// Stores a result in the value that its field holds and shows it by the field's pattern.
  /// Refuses what is no finite number, and any division by zero or overflow since the command
  /// began.
  void Store(Field& field, double value, DividesBy divisors = {});
  /// Shows a result and stores it nowhere.
  void Show(Field& field, double value, DividesBy divisors = {});
  /// Shows a result in a pattern other than the field's own.
  template <PatternText Pattern>
  void ShowAs(Field& field, double value, DividesBy divisors = {}) {
    RequireResult(field, value, divisors);
    ShowText(field, FormatValue<Pattern>(value, mark()));
  }
  /// All results of the screen go by another pattern than FormatField; called at construction.
  void SetPattern(NumberFormat format) { pattern_ = format; }
  /// A shared value that "Metric" converts though no field of the screen shows it; called at
  /// construction.
  void AlsoConverts(double ParameterBlock::*value, Unit unit) {
    unshown_.push_back({value, RuleOf(unit)});
  }
  /// The screen knows no inches: it shows the shared values in metric units all the time and
  /// hands them over in US units; called at construction.
  void SetAlwaysMetric() { metricShown_ = true; }
  /// Throws unless the value is finite and no division by zero or overflow has
  /// happened since the command began.
  void RequireResult(Field& field, double value, DividesBy divisors = {}) const;
  void ShowText(TextControl& field, std::string text);
  /// Shows a report in the screen's report box. @param fontSize  points it is printed in
  /// @param picture  stands over the text in print
  void ShowReport(std::string report, int fontSize = 10, const ReportFile& file = {},
                  PagePicture picture = {});
  /// A report that `build` makes of numbers no field has shown yet.
  /// @param impossible  what is told, with the fields at fault, when one of them divides by zero,
  ///                    is too large or is no number
  /// @throws CommandError (InvalidArgument) with it, and what else `build` throws
  static std::string BuildReport(const std::function<std::string()>& build, const char* impossible);
  /// Ends the command unless a condition on a field's value holds; the message follows the
  /// field's label. @throws CommandError (InvalidArgument)
  static void Require(bool holds, Field& field, const char* message) {
    if (!holds) throw CommandError(ErrorKind::InvalidArgument, message, &field);
  }
  /// Ends a command with a sentence that stands alone in the box, and points at a field.
  /// @throws CommandError (InvalidArgument)
  [[noreturn]] static void FailAt(Field& field, std::string message);
  /// The Click of the "Metric" box, after the read-all routine: changes all values to the
  /// other units. What nobody has changed since the last switch comes back as it stood before
  /// it, text and value; with no change at all so does what is derived. A failure leaves
  /// everything as it was.
  /// @param derive  works out the values that are derived
  void SwitchUnits(const std::function<void()>& derive = {});

 private:
  friend class Control;
  friend class Command;
  friend class Frame;
  friend class ScreenPart;
  friend struct ProgramContext;

  /// A value whose unit the "Metric" box changes.
  struct MetricValue {
    Field* field;  ///< where it is shown; null for a value without a field here
    double* slot;  ///< where it is kept; null for one that only its field holds
    const UnitRule* rule;
    Holds::Conversion conversion;
  };
  struct UnshownValue {
    double ParameterBlock::*value;
    const UnitRule* rule;
  };
  /// What a switch of the units has made of the fields and values, so that it can be undone.
  struct UnitSwitch {
    std::size_t HeapBytes() const;
    struct Text {
      Field* field;
      std::string before;
      std::string after;
    };
    struct Value {
      double* slot;
      double before;
      double after;
    };
    std::vector<Text> texts;
    std::vector<Value> values;
    bool isWhole = true;  ///< no field has been shown another value since

    const Text* Find(const Field* field) const;
    const Value* Find(const double* slot) const;
    /// The field's text is as the switch has left it.
    bool Stands(const Field& field) const;
    /// All texts are.
    bool Stands() const;
  };

  friend class ScreenPage;
  friend class Panel;
  void Report(const CommandError& error);
  void SetMetricShown(bool metric);
  double Converted(const Field& field, double number, bool toMetric) const;
  /// What a field stands for whose value is kept in US units. While it still shows its value, that
  /// is it: the text may hold fewer digits. @throws CommandError (NotANumber) that names the field
  double ReadKeptInUs(Field& field) const;
  std::vector<MetricValue> MetricValues();
  std::vector<Field*> Fields() const;
  std::string TextOf(const Field& field, double value) const;
  std::string SwitchedTextOf(const Field& field, double value) const;
  void ConvertValues(bool toMetric);
  /// A metric screen shows a shared value, which has to come back to the last digit.
  void NoteShown(Field& field, std::string inUs, double number);
  void TakeFocus(Control* control);

  ProgramContext& context_;
  std::string name_;
  std::string title_;
  std::string tag_;
  std::vector<Frame*> frames_;
  std::vector<ScreenPage*> pages_;
  std::vector<Panel*> panels_;
  std::vector<Panel*> openPanels_;
  std::vector<Frame*> outermost_;  ///< frames, pages and panels in the order of declaration
  std::vector<Control*> controls_;
  Command* lastCalculation_ = nullptr;
  ScreenFace* face_ = nullptr;
  Control* focus_ = nullptr;
  NumberFormat pattern_ = &FormatField;
  std::vector<UnshownValue> unshown_;
  UnitSwitch lastSwitch_;
  bool visible_ = false;
  bool metricShown_ = false;
};

template <class T, class V>
void Control::Assign(T& place, V&& value, Aspect aspect) {
  screen_.context().journal.Assign(place, std::forward<V>(value), this,
                                   screen_.IsTool() ? Aspect::Place : aspect);
}

}  // namespace veldox
