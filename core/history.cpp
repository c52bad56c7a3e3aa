#include "core/history.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <utility>

#include "core/differing_lines.h"
#include "core/field_copy.h"
#include "core/screen.h"
#include "core/text.h"

namespace veldox {

namespace {

/// The most of a text that the list of the steps tells, in characters.
constexpr std::size_t kMostTold = 40;

/// More than a screen has.
constexpr std::size_t kMostControls = 1'000'000;

std::string Told(const std::string& text) {
  if (text.find_first_not_of(' ') == std::string::npos) return "blank";
  const auto end = text.find_first_of("\r\n");
  std::string line = text.substr(0, end);
  if (end != std::string::npos) line += " ...";
  return Clipped(line, kMostTold);
}

/// What a control is called where it stands alone in a line.
std::string NameOf(const Control& control) {
  std::string name(Trim(control.PlainCaption()));
  const auto isLabel = [&] {
    return control.kind() == ControlKind::Label || control.kind() == ControlKind::Frame;
  };
  if (!name.empty() && !isLabel()) return name;
  if (control.frame() != nullptr) name = control.frame()->PlainCaption();
  return name.empty() ? control.screen().title() : name;
}

std::string TellChange(const ControlChange& change) {
  const auto [before, after] = DifferingLines(change.before, change.after);
  return NameOf(*change.control) + ": " + Told(before) + " to " + Told(after);
}

}  // namespace

std::string ShownText(const Control& control) {
  switch (control.kind()) {
    case ControlKind::Field:
    case ControlKind::ReportBox:
    case ControlKind::TextArea: return static_cast<const TextControl&>(control).text();
    case ControlKind::CheckBox: return static_cast<const CheckBox&>(control).on() ? "on" : "off";
    case ControlKind::OptionButton:
      return static_cast<const OptionButton&>(control).on() ? "on" : "off";
    case ControlKind::OptionGroup:
      return std::to_string(static_cast<const OptionGroup&>(control).chosen());
    case ControlKind::ComboList:
    case ControlKind::PickList: return static_cast<const ComboList&>(control).chosenText();
    default: return control.caption();
  }
}

std::vector<ControlChange> ChangesSince(Recording& recording, const Screen* first) {
  std::vector<ControlChange> changes;
  std::set<const Control*> seen;
  for (const auto& place : recording.places()) {
    Control* control = place->owner().control;
    if (control == nullptr || place->aspect() != Aspect::Data) continue;
    if (control->kind() == ControlKind::ReportBox || IsShownTwice(*control)) continue;
    if (seen.insert(control).second) changes.push_back({control, {}, ShownText(*control)});
  }
  recording.SwapPlaces();
  for (ControlChange& change : changes) change.before = ShownText(*change.control);
  recording.SwapPlaces();
  std::erase_if(changes, [](const ControlChange& change) { return change.before == change.after; });
  if (changes.size() < 2) return changes;
  std::size_t others = 0;
  std::unordered_map<const Control*, std::size_t> rank;
  for (const ControlChange& change : changes) {
    const Screen& screen = change.control->screen();
    if (rank.contains(change.control)) continue;
    std::size_t place = &screen == first ? 0 : kMostControls * ++others;
    for (const Control* control : screen.ReadingOrder()) rank.emplace(control, place++);
  }
  std::stable_sort(changes.begin(), changes.end(),
                   [&](const ControlChange& a, const ControlChange& b) {
                     return rank[a.control] < rank[b.control];
                   });
  return changes;
}

ShownSince ShownIn(const Recording& recording) {
  ShownSince shown;
  for (const auto& place : recording.places()) {
    if (place->aspect() == Aspect::Graph) shown.graph = true;
    const auto* box = dynamic_cast<const ReportBox*>(place->owner().control);
    if (box != nullptr && place->aspect() == Aspect::Data && box->showsReport()) {
      shown.report = true;
    }
  }
  return shown;
}

// ---------------------------------------------------------------- the steps

History::Step::Step(Control& control, Kind kind) : history_(nullptr) {
  // What tools change is no data.
  if (control.screen().IsTool()) return;
  ProgramContext& context = control.screen().context();
  if (context.history.Open(kind, {}, &control)) history_ = &context.history;
}

History::Step::Step(ProgramContext& context, Kind kind, std::string title) : history_(nullptr) {
  if (context.history.Open(kind, std::move(title), nullptr)) history_ = &context.history;
}

History::Step::~Step() {
  if (history_ != nullptr) history_->Close();
}

void History::Begin() {
  begun_ = true;
  context_.journal.mirror().Take();
  dirtyAtStart_ = context_.block.DataChanged != 0;
  context_.journal.Record(&between_);
}

bool History::Open(Kind kind, std::string title, Control* control) {
  if (!begun_ || context_.journal.isDry()) return false;
  if (open_) {
    if (open_->kind != Kind::Entry) return false;
    // Typing goes on in the same field.
    if (kind == Kind::Entry && open_->control == control) return false;
    Close();
  }
  TakeBlock();
  open_.emplace(OpenStep{Recording(Recording::Scope::Step), Recording(Recording::Scope::Step), kind,
                         std::move(title), control, false});
  if (kind == Kind::Command) {
    // Which units the values are held in is no change that a command would make a step of.
    context_.journal.Record(&open_->units);
    control->screen().TakeUnits();
    context_.journal.TakeBlockInto(open_->units);
  }
  context_.journal.Record(&open_->recording);
  // An entry goes on until the field is left.
  return kind != Kind::Entry;
}

void History::EndEntry() {
  // A dry run moves the focus, and nobody has left the field.
  if (context_.journal.isDry()) return;
  if (open_ && open_->kind == Kind::Entry) Close();
}

void History::TakeBlock() {
  context_.journal.TakeBlockInto(open_ ? open_->recording : between_);
}

void History::SetTitle(std::string title) {
  if (open_ && !context_.journal.isDry()) open_->title = std::move(title);
}

bool History::dirty() const {
  return context_.block.DataChanged != 0;
}

bool History::LeaveOpen() {
  if (context_.journal.isDry()) return false;
  EndEntry();
  if (!open_) return true;
  TakeBlock();
  if (context_.journal.Differs(open_->recording)) return false;
  // The menu item or the list that asks for it has changed nothing.
  open_->kind = Kind::None;
  Close();
  return true;
}

void History::Close() {
  if (!open_) return;
  TakeBlock();
  OpenStep step = std::move(*open_);
  open_.reset();
  context_.journal.Record(&between_);
  if (step.kind == Kind::None || !context_.journal.Differs(step.recording)) {
    between_.Append(std::move(step.units));
    between_.Append(std::move(step.recording));
    // The name that was saved under stays, whatever is done again.
    if (step.saves) Settle();
    return;
  }
  Settle();
  steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
  std::string title = TitleOf(step);
  step.units.Append(std::move(step.recording));
  step.units.Close();
  steps_.push_back({std::move(step.units), std::move(title), dirty()});
  done_ = steps_.size();
  Shorten();
  if (listener_) listener_(false);
}

void History::Settle() {
  Recording since = std::exchange(between_, Recording(Recording::Scope::Between));
  if (done_ > 0) {
    steps_[done_ - 1].recording.Append(std::move(since));
  }
}

std::string History::TitleOf(OpenStep& step) const {
  if (step.control == nullptr) return step.title;
  std::string name = NameOf(*step.control);
  if (step.kind == Kind::Other) return step.title.empty() ? name : step.title;
  const std::vector<ControlChange> changes = ChangesSince(step.recording, &step.control->screen());
  if (step.kind == Kind::Entry) {
    const auto own = std::find_if(changes.begin(), changes.end(), [&](const ControlChange& c) {
      return c.control == step.control;
    });
    if (own != changes.end()) return TellChange(*own);
    return name;
  }
  // A switch tells by its own caption how it stands.
  if (changes.empty() || changes.front().control == step.control) return name;
  return name + ": " + TellChange(changes.front());
}

std::size_t History::Bytes() const {
  std::size_t bytes = 0;
  for (const TakenStep& step : steps_) {
    bytes += sizeof(step) + step.recording.Bytes() + step.title.capacity();
  }
  return bytes;
}

void History::Shorten() {
  std::size_t bytes = Bytes();
  std::size_t gone = 0;
  while (bytes > kMostBytes && gone + 1 < done_) {
    dirtyAtStart_ = steps_[gone].dirtyAfter;
    bytes -= sizeof(TakenStep) + steps_[gone].recording.Bytes() + steps_[gone].title.capacity();
    ++gone;
  }
  steps_.erase(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(gone));
  done_ -= gone;
}

void History::Saved() {
  if (!begun_) return;
  EndEntry();
  if (open_) open_->saves = true;
  dirtyAtStart_ = done_ != 0;
  for (std::size_t i = 0; i < steps_.size(); ++i) steps_[i].dirtyAfter = i + 1 != done_;
}

namespace {

/// Shows what has been put back.
void ShowPutBack(const Recording& recording) {
  std::set<Control*> controls;
  std::set<Screen*> screens;
  for (const auto& place : recording.places()) {
    if (place->owner().control != nullptr) controls.insert(place->owner().control);
    if (place->owner().screen != nullptr) screens.insert(place->owner().screen);
  }
  for (Control* control : controls) control->PutBack();
  for (Screen* screen : screens) screen->PutBack();
}

/// Marks the fields that have changed, as a command does.
void MarkChanged(const std::vector<ControlChange>& changes) {
  std::set<Screen*> marked;
  for (const ControlChange& change : changes) {
    Screen& screen = change.control->screen();
    if (marked.insert(&screen).second) {
      for (Control* control : screen.controls()) control->SetMark(Mark::None);
    }
    if (change.control->kind() == ControlKind::Field) change.control->SetMark(Mark::Changed);
  }
}

}  // namespace

void History::Exchange(TakenStep& step) {
  Journal& journal = context_.journal;
  journal.Record(nullptr);
  const std::vector<ControlChange> changes = ChangesSince(step.recording, nullptr);
  journal.Swap(step.recording);
  // What follows of a mark or a report on some screens has been put back already: whatever it
  // writes anew is taken back.
  Recording stray(Recording::Scope::Between);
  journal.Record(&stray);
  ShowPutBack(step.recording);
  MarkChanged(changes);
  journal.Record(nullptr);
  journal.TakeBlockInto(stray);
  journal.Swap(stray);
  ShowPutBack(stray);
  journal.Record(&between_);
}

void History::Undo() {
  if (!begun_ || !LeaveOpen()) return;
  TakeBlock();
  while (done_ > 0) {
    Settle();
    TakenStep& step = steps_[done_ - 1];
    const bool differs = context_.journal.Differs(step.recording);
    Exchange(step);
    --done_;
    context_.block.DataChanged = done_ == 0 ? dirtyAtStart_ : steps_[done_ - 1].dirtyAfter;
    // A step that the user has taken back by hand is passed over.
    if (differs) break;
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_));
  }
  if (listener_) listener_(true);
}

void History::Redo() {
  if (!begun_ || !LeaveOpen() || done_ == steps_.size()) return;
  TakeBlock();
  // What came between is not what the step was taken from.
  Recording since = std::exchange(between_, Recording(Recording::Scope::Between));
  TakenStep between{std::move(since), {}, false};
  Exchange(between);
  Exchange(steps_[done_]);
  context_.block.DataChanged = steps_[done_].dirtyAfter ? 1 : 0;
  ++done_;
  if (listener_) listener_(true);
}

void History::GoTo(std::size_t done) {
  if (!LeaveOpen()) return;
  while (done_ > done) Undo();
  while (done_ < std::min(done, steps_.size())) Redo();
}

std::size_t History::done() {
  EndEntry();
  return done_;
}

std::vector<std::string> History::Told() {
  EndEntry();
  std::vector<std::string> told;
  told.reserve(steps_.size());
  for (const TakenStep& step : steps_) told.push_back(step.title);
  return told;
}

}  // namespace veldox
