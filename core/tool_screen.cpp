#include "core/tool_screen.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "core/dry_run.h"
#include "core/field_copy.h"
#include "core/text.h"

namespace veldox {

namespace {

/// What finding out by trying may take in all.
constexpr std::chrono::seconds kLongestGuess(1);

/// The nearest frame around a control that has a caption.
std::string FrameNameOf(const Control& control) {
  for (const Frame* frame = control.frame(); frame != nullptr; frame = frame->frame()) {
    if (std::string name = frame->PlainCaption(); !name.empty()) return name;
  }
  return control.name();
}

/// A small step from the number that a field shows, as a text.
std::string NextTo(const Field& field) {
  constexpr double kStep = 1.01;
  const DecimalMark mark = field.screen().mark();
  const double number = IsNumber(field.text(), mark) ? ParseNumber(field.text(), mark) : 0;
  const bool isWhole = field.rule() == KeyRule::Digits || field.rule() == KeyRule::SignedDigits;
  if (isWhole) return FormatInt(number + 1, mark);
  return FormatField(number == 0 ? 1 : number * kStep, mark);
}

/// Finds out by dry runs what depends on what.
class Trial {
 public:
  explicit Trial(Screen& screen)
      : screen_(screen), end_(std::chrono::steady_clock::now() + kLongestGuess) {
    for (Control* control : screen.controls()) {
      if (ToolScreen::IsResult(*control)) results_.push_back(static_cast<Field*>(control));
    }
  }

  /// The results in which a command shows something else when a field changes.
  std::vector<Control*> Depending(Field& field, Command& command) {
    const auto& present = PresentOf(command);
    if (!present) return {};
    const auto changed = OutcomeOf(command, &field, NextTo(field));
    std::vector<Control*> depending;
    if (!changed) return depending;
    for (std::size_t i = 0; i < results_.size(); ++i) {
      const std::string& now = present->texts[i];
      const std::string& then = changed->texts[i];
      if (results_[i] == &field || now == then) continue;
      if (IsNumber(now, screen_.mark()) || IsNumber(then, screen_.mark())) {
        depending.push_back(results_[i]);
      }
    }
    return depending;
  }

  /// Whether a command shows something in a field.
  bool Shows(Command& command, const Field& result) {
    const auto& present = PresentOf(command);
    const auto found = std::find(results_.begin(), results_.end(), &result);
    return present && found != results_.end() &&
           present->shows[static_cast<std::size_t>(found - results_.begin())];
  }
  /// False for a command that shows nothing in any field: it draws a graph, or makes a report.
  bool MayShow(Command& command) {
    const auto& present = PresentOf(command);
    return !present ||
           std::find(present->shows.begin(), present->shows.end(), true) != present->shows.end();
  }

 private:
  /// What the results are after a command.
  struct Outcome {
    std::vector<std::string> texts;
    std::vector<bool> shows;  ///< the command has shown something there, if only the same
  };

  std::optional<std::chrono::microseconds> Left() const {
    const auto now = std::chrono::steady_clock::now();
    // A dry run has no other one in it.
    if (now >= end_ || screen_.context().journal.isDry()) return std::nullopt;
    return std::chrono::duration_cast<std::chrono::microseconds>(end_ - now);
  }

  /// Nothing where the command cannot be run.
  std::optional<Outcome> OutcomeOf(Command& command, Field* field, const std::string& text) {
    const auto limit = Left();
    if (!limit || !command.isBuilt() || !command.enabled()) return std::nullopt;
    DryRun run(screen_.context());
    run.SetLimit(*limit);
    if (field != nullptr) field->Edit(text);
    Outcome outcome;
    std::vector<std::string> before;
    for (const Field* result : results_) before.push_back(result->text());
    if (!command.Run()) return std::nullopt;
    for (std::size_t i = 0; i < results_.size(); ++i) {
      outcome.texts.push_back(results_[i]->text());
      outcome.shows.push_back(results_[i]->mark() == Mark::Changed ||
                              results_[i]->text() != before[i]);
    }
    return outcome;
  }

  const std::optional<Outcome>& PresentOf(Command& command) {
    const auto known = present_.find(&command);
    if (known != present_.end()) return known->second;
    return present_.emplace(&command, OutcomeOf(command, nullptr, {})).first->second;
  }

  Screen& screen_;
  std::chrono::steady_clock::time_point end_;
  std::vector<Field*> results_;
  std::map<const Command*, std::optional<Outcome>> present_;
};

/// The first of the controls that is found good; the one chosen is asked first. Null for none.
template <class C, class F>
C* FirstOf(const ControlList& list, Control* first, const F& isGood) {
  if (first != nullptr && isGood(static_cast<C&>(*first))) return static_cast<C*>(first);
  for (Control* control : list.controls()) {
    if (control != first && isGood(static_cast<C&>(*control))) return static_cast<C*>(control);
  }
  return nullptr;
}

}  // namespace

// ---------------------------------------------------------------- lists

ControlList::ControlList(Frame& frame, std::string name, std::string caption,
                         const std::string& help, std::string none)
    : ComboList(frame, ControlKind::ComboList, std::move(name), std::move(caption), help),
      none_(std::move(none)) {
  if (!none_.empty()) Replace({none_}, 0);
}

void ControlList::Offer(std::vector<Control*> controls) {
  const Control* before = chosenControl();
  controls_ = std::move(controls);
  std::vector<std::string> rows;
  if (!none_.empty()) rows.push_back(none_);
  std::map<std::string, int> times;
  for (const Control* control : controls_) ++times[NameWithUnit(*control)];
  std::map<std::string, int> known;
  for (const Control* control : controls_) {
    std::string row = NameWithUnit(*control);
    if (times[row] > 1) row += " - " + FrameNameOf(*control);
    // Scripts and eyes need each row once.
    if (++known[row] > 1) row += " - " + control->name();
    rows.push_back(std::move(row));
  }
  Replace(std::move(rows), none_.empty() && controls_.empty() ? -1 : 0);
  if (before != nullptr) ChooseControl(before);
  Changed();
}

Control* ControlList::chosenControl() const {
  const auto row = static_cast<std::size_t>(std::max(chosen(), 0));
  if (chosen() < 0 || row < first() || row - first() >= controls_.size()) return nullptr;
  return controls_[row - first()];
}

bool ControlList::ChooseControl(const Control* control) {
  if (control == nullptr) {
    if (first() > 0) Choose(0);
    return first() > 0;
  }
  const auto found = std::find(controls_.begin(), controls_.end(), control);
  if (found == controls_.end()) return false;
  Choose(static_cast<int>(found - controls_.begin()) + static_cast<int>(first()));
  return true;
}

Control& OriginalOf(Control& control) {
  const Field* of = nullptr;
  if (const auto* twin = dynamic_cast<const FieldTwin*>(&control)) of = &twin->of();
  if (const auto* copy = dynamic_cast<const FieldCopy*>(&control)) of = &copy->of();
  Control* original = of == nullptr ? nullptr : control.screen().Find(of->name());
  return original == nullptr ? control : *original;
}

std::string NameWithUnit(const Control& control) {
  std::string name(Trim(control.PlainCaption()));
  if (control.kind() == ControlKind::Field) {
    const auto& field = static_cast<const Field&>(control);
    const std::string_view unit = UnitSign(field.unit(), field.screen().metric());
    const bool isSaid = name == unit || name.ends_with(' ' + std::string(unit));
    if (!unit.empty() && !isSaid) name.append(" (").append(unit).append(")");
  }
  return name;
}

TidyRange RangeAbout(const Field& field, double part) {
  constexpr double kSteps = 10;
  constexpr double kSlack = 1e-9;
  const DecimalMark mark = field.screen().mark();
  const bool isWhole = field.rule() == KeyRule::Digits || field.rule() == KeyRule::SignedDigits;
  const double number = IsNumber(field.text(), mark) ? ParseNumber(field.text(), mark) : 0;
  if (number == 0) return isWhole ? TidyRange{0, kSteps, 1} : TidyRange{0, 1, 1 / kSteps};
  const double reach = std::abs(number) * part;
  const double wanted = 2 * reach / kSteps;
  const double power = std::pow(10, std::floor(std::log10(wanted)));
  constexpr std::array<double, 5> kTidy = {1, 2, 2.5, 5, 10};
  double by = *std::find_if(kTidy.begin(), kTidy.end(), [&](double digits) {
    return digits == kTidy.back() || digits * power >= wanted * (1 - kSlack);
  });
  by *= power;
  if (isWhole) by = std::max(1.0, std::ceil(by - kSlack));
  const double first = std::floor((number - reach) / by + kSlack);
  const double last = std::ceil((number + reach) / by - kSlack);
  return {first * by, last * by, by};
}

// ---------------------------------------------------------------- tools

ToolScreen::ToolScreen(ProgramContext& context, std::string name, std::string title)
    : Screen(context, std::move(name), std::move(title), "") {}

bool ToolScreen::CanWorkOn(const Screen& screen) {
  const auto has = [&](bool (*isIt)(const Control&)) {
    return std::any_of(screen.controls().begin(), screen.controls().end(),
                       [&](const Control* control) { return isIt(*control); });
  };
  return !screen.IsTool() && screen.HasResults() && has(&IsEntry) && has(&IsCalculation);
}

bool ToolScreen::IsEntry(const Control& control) {
  if (control.kind() != ControlKind::Field || !control.visible() || IsShownTwice(control)) {
    return false;
  }
  const auto& field = static_cast<const Field&>(control);
  return field.rule() != KeyRule::OutputOnly && field.rule() != KeyRule::AnyText;
}

bool ToolScreen::IsResult(const Control& control) {
  if (control.kind() != ControlKind::Field || !control.visible() || IsShownTwice(control)) {
    return false;
  }
  return static_cast<const Field&>(control).rule() != KeyRule::AnyText &&
         !control.PlainCaption().empty();
}

bool ToolScreen::IsCalculation(const Control& control) {
  if (control.kind() != ControlKind::Command || &control == control.screen().QuitCommand()) {
    return false;
  }
  const auto& command = static_cast<const Command&>(control);
  return command.isBuilt() && command.role() == CommandRole::Calculates && command.visible();
}

bool ToolScreen::ShowsResults(Command& command) {
  return IsCalculation(command) && command.enabled() && Trial(command.screen()).MayShow(command);
}

void ToolScreen::WorkOn(Screen* subject) {
  const bool isOther = subject != subject_;
  subject_ = subject;
  isMetric_ = subject != nullptr && subject->metric();
  std::vector<Control*> entries;
  std::vector<Control*> cells;
  std::vector<Control*> commands;
  if (!isOther) {
    commands = CommandList.controls();
  } else if (subject != nullptr) {
    Trial trial(*subject);
    for (Control* control : subject->ReadingOrder()) {
      if (IsCalculation(*control) && trial.MayShow(static_cast<Command&>(*control))) {
        commands.push_back(control);
      }
    }
  }
  if (subject != nullptr) {
    // Fields of a table register with their screen, and are many: they stand behind the others.
    for (Control* control : subject->controls()) {
      if (IsEntry(*control)) (control->whole() == nullptr ? entries : cells).push_back(control);
    }
    entries.insert(entries.end(), cells.begin(), cells.end());
  }
  SubjectFrame.SetCaption(subject == nullptr ? "No Screen Is Open" : subject->title());
  FieldList.Offer(std::move(entries));
  CommandList.Offer(std::move(commands));
  if (!isOther || subject == nullptr) {
    OfferResults(false);
    return;
  }
  Command* next = subject->NextCalculation();
  if (next == nullptr || !CommandList.ChooseControl(next)) next = nullptr;
  if (Control* command = next != nullptr ? next : CommandList.chosenControl()) {
    WorkOn(*command);
  } else if (Control* field = FieldList.chosenControl()) {
    WorkOn(*field);
  }
}

void ToolScreen::WorkOn(Control& shown) {
  Control& control = OriginalOf(shown);
  if (&control.screen() != subject_) WorkOn(&control.screen());
  Trial trial(*subject_);
  if (FieldList.ChooseControl(&control)) {
    auto& field = static_cast<Field&>(control);
    const auto works = [&](Command& command) { return !trial.Depending(field, command).empty(); };
    if (auto* command = FirstOf<Command>(CommandList, subject_->NextCalculation(), works)) {
      CommandList.ChooseControl(command);
    }
  } else if (CommandList.ChooseControl(&control)) {
    auto& command = static_cast<Command&>(control);
    const auto counts = [&](Field& field) { return !trial.Depending(field, command).empty(); };
    if (auto* field = FirstOf<Field>(FieldList, FieldList.chosenControl(), counts)) {
      FieldList.ChooseControl(field);
    }
  }
  if (Control* field = FieldList.chosenControl()) FieldChosen(static_cast<Field&>(*field));
  OfferResults(true);
}

void ToolScreen::AskFor(Field& shown) {
  auto& result = static_cast<Field&>(OriginalOf(shown));
  if (&result.screen() != subject_) WorkOn(&result.screen());
  Trial trial(*subject_);
  const auto depends = [&](Field& field, Command& command) {
    const std::vector<Control*> depending = trial.Depending(field, command);
    return std::find(depending.begin(), depending.end(), &result) != depending.end();
  };
  Field* entry = nullptr;
  const auto solves = [&](Command& command) {
    if (!trial.Shows(command, result)) return false;
    entry = FirstOf<Field>(FieldList, FieldList.chosenControl(),
                           [&](Field& field) { return depends(field, command); });
    return entry != nullptr;
  };
  auto* command = FirstOf<Command>(CommandList, subject_->NextCalculation(), solves);
  if (command != nullptr && entry != nullptr) {
    CommandList.ChooseControl(command);
    FieldList.ChooseControl(entry);
    FieldChosen(*entry);
  }
  OfferResults(true);
  ChooseResult(result);
}

void ToolScreen::Visited() {
  if (subject_ == nullptr || subject_->metric() == isMetric_) return;
  WorkOn(subject_);
  if (Control* field = FieldList.chosenControl()) FieldChosen(static_cast<Field&>(*field));
  if (Field* result = ChosenResult()) ChooseResult(*result);
  hasOtherUnits_ = true;
}

void ToolScreen::RequireSeenUnits() {
  if (!std::exchange(hasOtherUnits_, false)) return;
  throw CommandError(ErrorKind::InvalidArgument,
                     "The units of \"" + subject_->title() +
                         "\" were switched. The values here have followed, from the beginning: "
                         "please look at them and click again.");
}

void ToolScreen::Edited(const Control& control) {
  hasOtherUnits_ = false;  // who types has seen them
  if (subject_ == nullptr) return;
  if (&control == &FieldList) FieldChosen(static_cast<Field&>(*FieldList.chosenControl()));
  if (&control == &FieldList || &control == &CommandList) OfferResults(true);
}

Field& ToolScreen::ChosenField() {
  Control* field = FieldList.chosenControl();
  if (field == nullptr) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "has nothing to choose from. Please open a screen with fields first.",
                       &FieldList);
  }
  return static_cast<Field&>(*field);
}

Command& ToolScreen::ChosenCommand() {
  Control* command = CommandList.chosenControl();
  if (command == nullptr) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "has nothing to choose from. Please open a screen with commands first.",
                       &CommandList);
  }
  return static_cast<Command&>(*command);
}

std::vector<Control*> ToolScreen::FindResults(std::size_t& depending) {
  std::vector<Control*> results;
  depending = 0;
  if (subject_ == nullptr) return results;
  Control* field = FieldList.chosenControl();
  Control* command = CommandList.chosenControl();
  if (field != nullptr && command != nullptr) {
    results =
        Trial(*subject_).Depending(static_cast<Field&>(*field), static_cast<Command&>(*command));
  }
  depending = results.size();
  for (Control* control : subject_->controls()) {
    const bool isCell = control->whole() != nullptr;
    if (!IsResult(*control) || isCell) continue;
    if (std::find(results.begin(), results.begin() + static_cast<std::ptrdiff_t>(depending),
                  control) == results.begin() + static_cast<std::ptrdiff_t>(depending)) {
      results.push_back(control);
    }
  }
  return results;
}

void ToolScreen::RefuseDryRun(const char* what) const {
  if (context().journal.isDry()) throw CommandError(ErrorKind::InvalidArgument, what);
}

}  // namespace veldox
