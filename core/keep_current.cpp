#include "core/keep_current.h"

#include <algorithm>
#include <utility>

#include "core/dry_run.h"
#include "core/field_copy.h"
#include "core/screen.h"

namespace veldox {

namespace {

constexpr const char* kCaption = "Keep up to date";
constexpr const char* kOffered =
    "Run the last command of this screen again after every entry, where that changes only its "
    "results.";
constexpr const char* kWaits = "Click the command whose results are to be kept up to date.";

/// A sentence of a box in one line, without a stop at its end.
std::string InALine(std::string text) {
  text.resize(std::min(text.find('\r'), text.size()));
  return text;
}

std::string Quoted(const Control& control) {
  return '"' + control.PlainCaption() + '"';
}

/// What has come into sight that was not, or gone out of it, as a sentence; empty where all is in
/// its place.
std::string TellMoved(Recording& recording) {
  constexpr const char* kOpens = "It opens or closes a part of the program.";
  std::vector<std::pair<const Screen*, bool>> screens;
  std::vector<std::pair<const ReportBox*, bool>> reports;
  for (const auto& place : recording.places()) {
    const StateOwner& owner = place->owner();
    if (owner.screen != nullptr) screens.emplace_back(owner.screen, owner.screen->visible());
    if (const auto* box = dynamic_cast<const ReportBox*>(owner.control)) {
      reports.emplace_back(box, box->showsReport());
    }
    const bool isSheet = owner.control != nullptr && owner.control->kind() == ControlKind::Frame &&
                         place->aspect() == Aspect::Place;
    if (isSheet && place->Differs()) return kOpens;
  }
  std::string told;
  recording.SwapPlaces();
  for (const auto& [screen, isVisible] : screens) {
    if (screen->visible() != isVisible) told = kOpens;
  }
  for (const auto& [report, isShown] : reports) {
    if (report->showsReport() != isShown) told = "It shows a report that is not in sight.";
  }
  recording.SwapPlaces();
  return told;
}

/// A graph is drawn on a screen that is not shown.
bool DrawsUnseen(const Recording& recording) {
  return std::any_of(recording.places().begin(), recording.places().end(), [](const auto& place) {
    const Screen* screen = place->owner().screen;
    return place->aspect() == Aspect::Graph && (screen == nullptr || !screen->visible());
  });
}

/// Whether what was entered would be another value afterwards.
bool WorksOut(const Control& entered, Recording& recording) {
  const std::vector<ControlChange> changes = ChangesSince(recording, nullptr);
  return std::any_of(changes.begin(), changes.end(), [&](const ControlChange& change) {
    if (change.control != ValueOf(&entered)) return false;
    const DecimalMark mark = entered.screen().mark();
    return !IsNumber(change.before, mark) || !IsNumber(change.after, mark) ||
           ParseNumber(change.before, mark) != ParseNumber(change.after, mark);
  });
}

}  // namespace

KeepCurrent::KeepCurrent(ProgramContext& context) : context_(context) {}
KeepCurrent::~KeepCurrent() = default;

CheckBox* KeepCurrent::SwitchOf(Screen& screen) {
  const auto found = switches_.find(&screen);
  if (found != switches_.end()) return found->second.box.get();
  const std::vector<Control*>& controls = screen.controls();
  const bool calculates = std::any_of(controls.begin(), controls.end(), [&](Control* control) {
    const auto* command = dynamic_cast<const Command*>(control);
    return command != nullptr && command->isBuilt() && command != screen.QuitCommand() &&
           command->role() == CommandRole::Calculates;
  });
  Switch& made = switches_[&screen];
  // A tool works things out for another screen, each time as it is asked.
  if (!calculates || screen.IsTool()) return nullptr;
  made.box = std::make_unique<CheckBox>(screen, Control::InFoot(), std::string(kSwitchName),
                                        kCaption, kOffered, [this, &screen] { Turned(screen); });
  if (IsOn(screen)) {
    made.box->SetOn(true);
    TellReady(screen);
  }
  return made.box.get();
}

bool KeepCurrent::IsOn(const Screen& screen) const {
  return !on_.empty() && on_.contains(screen.name());
}

bool KeepCurrent::IsEntered(const Control& control) const {
  return entered_ != nullptr && ValueOf(&control) == ValueOf(entered_);
}

void KeepCurrent::Turned(Screen& screen) {
  std::erase_if(due_, [&](const Control* control) { return &control->screen() == &screen; });
  if (SwitchOf(screen)->on()) {
    on_.insert(screen.name());
    TellReady(screen);
  } else {
    on_.erase(screen.name());
    for (Control* control : screen.controls()) {
      if (control->mark() == Mark::Outdated) control->SetMark(Mark::Changed);
    }
    Tell(screen, kOffered);
  }
  if (listener_) listener_();
}

void KeepCurrent::Tell(Screen& screen, std::string sentence) {
  if (CheckBox* box = SwitchOf(screen)) box->SetHelp(std::move(sentence));
}

void KeepCurrent::TellReady(Screen& screen) {
  const Command* command = screen.lastCalculation();
  Tell(screen, command == nullptr ? std::string(kWaits)
                                  : Quoted(*command) + " will run again after every entry.");
}

void KeepCurrent::Entered(Control& control) {
  Screen& screen = control.screen();
  if (!IsOn(screen) || isRunning() || context_.journal.isDry()) return;
  // Another unit is no other value.
  if (&control == screen.MetricBox() || SwitchOf(screen) == nullptr) return;
  std::erase_if(due_, [&](const Control* other) { return &other->screen() == &screen; });
  due_.push_back(&control);
  if (scheduler_) {
    scheduler_(slow_.contains(screen.lastCalculation()) ? kRest : std::chrono::milliseconds(0));
  }
}

void KeepCurrent::Ran(const Command& command) {
  Screen& screen = command.screen();
  if (!IsOn(screen) || context_.journal.isDry() || &command != screen.lastCalculation()) return;
  std::erase_if(due_, [&](const Control* control) { return &control->screen() == &screen; });
  switches_[&screen].results.clear();
  TellReady(screen);
}

void KeepCurrent::PutBack() {
  due_.clear();
  for (auto& [screen, each] : switches_) {
    if (each.box == nullptr || !each.box->on()) continue;
    for (Control* control : screen->controls()) {
      if (control->mark() == Mark::Outdated) control->SetMark(Mark::None);
    }
    TellReady(*screen);
  }
}

void KeepCurrent::Run(bool rested) {
  if (due_.empty() || isRunning() || context_.journal.isDry()) return;
  if (context_.history.isInStep()) {
    // A command waits for an answer.
    if (scheduler_) scheduler_(kRest);
    return;
  }
  const std::vector<Control*> due = std::exchange(due_, {});
  for (Control* control : due) {
    if (!Follow(*control, rested)) due_.push_back(control);
  }
  if (!due_.empty() && scheduler_) scheduler_(kRest);
}

bool KeepCurrent::Follow(Control& entered, bool rested) {
  Screen& screen = entered.screen();
  Command* command = screen.lastCalculation();
  if (command == nullptr) {
    TellReady(screen);
    return true;
  }
  if (!rested && slow_.contains(command)) return false;
  const Trial trial = Try(*command, entered, rested ? kLongestRun : kLongestTrial);
  if (trial.took > kLongestTrial || trial.ranOutOfTime) {
    slow_.insert(command);
  } else {
    slow_.erase(command);
  }
  if (trial.ranOutOfTime && !rested) return false;
  if (trial.whyNot.empty()) {
    RunInPlace(*command, entered);
  } else {
    MarkOutdated(screen, entered);
    Tell(screen, trial.whyNot);
  }
  return true;
}

KeepCurrent::Trial KeepCurrent::Try(Command& command, Control& entered,
                                    std::chrono::milliseconds limit) {
  Trial trial;
  const std::string rests = "Rests at " + Quoted(command) + ". ";
  if (!command.isBuilt() || !command.enabled()) {
    trial.whyNot = rests + "This command cannot be used now.";
    return trial;
  }
  DryRun run(context_);
  run.SetLimit(limit);
  const auto start = std::chrono::steady_clock::now();
  const bool done = command.Run();
  const DryRunLog& log = run.log();
  if (log.ranOutOfTime) {
    trial.whyNot = rests + "It takes too long to run after every entry.";
  } else if (log.wasRefused) {
    trial.whyNot = rests + InALine(log.error);
  } else if (!log.error.empty()) {
    trial.whyNot = "Out of date: " + InALine(log.error);
  } else if (!log.notes.empty()) {
    trial.whyNot = (done ? rests + "It says: " : "Out of date: ") + InALine(log.notes.back());
  } else if (!done) {
    trial.whyNot = rests + "It has nothing to do.";
  } else if (const std::string moved = TellMoved(run.recording()); !moved.empty()) {
    trial.whyNot = rests + moved;
  } else if (DrawsUnseen(run.recording())) {
    trial.whyNot = rests + "It draws a graph that is not in sight.";
  } else if (WorksOut(entered, run.recording())) {
    trial.whyNot = rests + "It works out " + Quoted(entered) + " itself, which was entered.";
  } else if (run.ChangesAgain([&] { return command.Run(); })) {
    trial.whyNot = log.ranOutOfTime ? rests + "It takes too long to run after every entry."
                                    : rests + "It changes what it works with, and would add up.";
  }
  trial.ranOutOfTime = log.ranOutOfTime;
  trial.took = std::chrono::steady_clock::now() - start;
  return trial;
}

void KeepCurrent::RunInPlace(Command& command, Control& entered) {
  Screen& screen = command.screen();
  auto* text = dynamic_cast<TextControl*>(&entered);
  const std::string typed = text == nullptr ? std::string() : text->text();
  DryRunLog log;
  const FloatGuard guard;
  entered_ = &entered;
  // Whatever the trial has not met: no box comes between the user and the keyboard.
  context_.gate.SetLog(&log);
  const bool done = command.Run();
  context_.gate.SetLog(nullptr);
  if (text != nullptr) text->SetText(typed);
  std::vector<Control*>& results = switches_[&screen].results;
  results.clear();
  std::vector<Control*> untold;
  for (Control* control : screen.controls()) {
    if (control->mark() == Mark::Changed) results.push_back(control);
    if (IsEntered(*control)) untold.push_back(control);
  }
  entered_ = nullptr;
  for (Control* control : untold) control->PutBack();
  if (done) {
    Tell(screen, Quoted(command) + " is up to date.");
  } else {
    MarkOutdated(screen, entered);
    Tell(screen, "Out of date: " + InALine(log.error));
  }
}

void KeepCurrent::MarkOutdated(Screen& screen, const Control& entered) {
  std::vector<Control*>& results = switches_[&screen].results;
  for (Control* control : screen.controls()) {
    if (control->mark() == Mark::Changed &&
        std::find(results.begin(), results.end(), control) == results.end()) {
      results.push_back(control);
    }
  }
  for (Control* control : results) {
    if (control != &entered) control->SetMark(Mark::Outdated);
  }
  ReportBox* report = screen.ReportPane();
  if (report != nullptr && report->showsReport()) report->SetMark(Mark::Outdated);
}

}  // namespace veldox
