#include "core/screen.h"

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <exception>
#include <limits>
#include <stdexcept>
#include <utility>

#include "core/field_copy.h"
#include "core/files.h"
#include "core/key_table.h"
#include "core/pages.h"
#include "core/panel.h"
#include "core/report.h"
#include "core/table.h"

namespace veldox {

// ---------------------------------------------------------------- Control

Control::Control(Screen& screen, Frame* frame, ControlKind kind, std::string name,
                 std::string caption, std::string help)
    : screen_(screen),
      frame_(frame),
      kind_(kind),
      name_(std::move(name)),
      caption_(std::move(caption)),
      help_(std::move(help)) {
  screen_.controls_.push_back(this);
  // The buttons of an option group stand where the group stands.
  if (frame_ != nullptr && kind_ != ControlKind::OptionButton) frame_->controls_.push_back(this);
}

Control::Control(Screen& screen, InFoot, ControlKind kind, std::string name, std::string caption,
                 std::string help)
    : screen_(screen),
      frame_(nullptr),
      kind_(kind),
      name_(std::move(name)),
      caption_(std::move(caption)),
      help_(std::move(help)),
      isInFoot_(true) {}

std::string Control::PlainCaption() const {
  std::string plain;
  std::copy_if(caption_.begin(), caption_.end(), std::back_inserter(plain),
               [](char c) { return c != '&'; });
  // Some captions are filled up with blanks.
  plain.erase(plain.find_last_not_of(' ') + 1);
  return plain;
}

bool Control::Shown() const {
  return visible_ && (frame_ == nullptr || frame_->Shown()) &&
         (whole_ == nullptr || whole_->visible());
}

bool Control::Reachable() const {
  if (!Shown()) return false;
  const Panel* top = screen_.topPanel();
  if (top == nullptr || this == top) return true;
  for (const Frame* frame = frame_; frame != nullptr; frame = frame->frame()) {
    if (frame == top) return true;
  }
  // What stands at the foot of the window is never covered.
  return isInFoot_ || this == screen_.QuitCommand() || this == screen_.HelpPlace() ||
         this == screen_.ReportPane();
}

char Control::accessKey() const {
  for (std::size_t i = 0; i + 1 < caption_.size(); ++i) {
    if (caption_[i] != '&') continue;
    const char key = caption_[i + 1];
    if (key != '&') return key >= 'A' && key <= 'Z' ? static_cast<char>(key - 'A' + 'a') : key;
    ++i;  // a sign that is shown
  }
  return 0;
}

void Control::AppendReadingOrder(std::vector<Control*>& order) {
  order.push_back(this);
}

void Control::TellFace() {
  if (face_ == nullptr || screen_.context().journal.isDry()) return;
  if (!screen_.context().current.IsEntered(*this)) face_->ControlChanged(*this);
}

void Control::Changed() {
  TellFace();
  for (const auto& follow : followers_) follow();
}

void Control::NoteChange() {
  if (isInFoot_) return;
  if (isInFile_ && !isOption_) screen_.context().rules.NoteChange();
  screen_.Edited(*this);
  screen_.context().current.Entered(*this);
}

void Control::SetCaption(std::string caption) {
  if (caption == caption_) return;
  const bool isHelp = this == screen_.HelpPlace();
  Assign(caption_, std::move(caption), isHelp ? Aspect::Place : Aspect::Data);
  Changed();
}

void Control::SetHelp(std::string help) {
  if (help == help_) return;
  Assign(help_, std::move(help), Aspect::Place);
  Changed();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  const bool isHelp = this == screen_.HelpPlace();
  Assign(visible_, visible, isHelp ? Aspect::Place : visibility());
  Changed();
  // Frames inside show and go with it.
  if (kind_ != ControlKind::Frame) return;
  for (Control* control : static_cast<Frame*>(this)->controls()) {
    if (control->kind() == ControlKind::Frame) control->Changed();
  }
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  Assign(enabled_, enabled, Aspect::Look);
  Changed();
}

void Control::SetMark(Mark mark) {
  if (mark == mark_) return;
  Assign(mark_, mark, Aspect::Place);
  Changed();
}

void Control::Focus() {
  // What runs by itself leaves the keyboard where it is.
  if (screen_.context().current.isRunning()) return;
  screen_.TakeFocus(this);
  if (face_ != nullptr && !screen_.context().journal.isDry()) face_->FocusRequested(*this);
}

// ---------------------------------------------------------------- the kinds of control

Frame::Frame(Screen& screen, std::string name, std::string caption, int column)
    : Control(screen, nullptr, ControlKind::Frame, std::move(name), std::move(caption), {}),
      column_(column) {
  screen.frames_.push_back(this);
  screen.outermost_.push_back(this);
}

Frame::Frame(Frame& outer, std::string name, std::string caption, int column)
    : Control(outer.screen(), &outer, ControlKind::Frame, std::move(name), std::move(caption), {}),
      column_(column) {}

Frame::Frame(Screen& screen, std::string name, std::string caption, Sheet)
    : Control(screen, nullptr, ControlKind::Frame, std::move(name), std::move(caption), {}),
      column_(0),
      isSheet_(true) {
  screen.outermost_.push_back(this);
}

void Frame::AppendReadingOrder(std::vector<Control*>& order) {
  order.push_back(this);
  for (Control* control : controls_) {
    if (control->whole() == nullptr) control->AppendReadingOrder(order);
  }
}

TextControl::TextControl(Frame& frame, ControlKind kind, std::string name, std::string caption,
                         std::string text, KeyRule rule, std::string help)
    : Control(frame.screen(), &frame, kind, std::move(name), std::move(caption), std::move(help)),
      text_(std::move(text)),
      rule_(rule) {}

void TextControl::SetText(std::string text) {
  if (text == text_) return;
  Assign(text_, std::move(text), textAspect());
  Changed();
}

Aspect TextControl::textAspect() const {
  return this == screen().HelpPlace() ? Aspect::Place : Aspect::Data;
}

bool TextControl::CanHold(std::string_view text) const {
  return kind() != ControlKind::TextArea || screen().context().rules.TakesNotes(text);
}

void TextControl::Edit(std::string text) {
  if (!CanHold(text)) {
    Changed();
    return;
  }
  const History::Step step(*this, History::Kind::Entry);
  if (!screen().IsTool()) screen().context().rules.NoteChange();
  SetText(std::move(text));
  screen().Edited(*this);
  screen().context().current.Entered(*this);
}

char32_t TextControl::FilterKey(char32_t key) {
  // The rules take what is typed in a tool for an option, which is no change of the data.
  std::int16_t& isOption = screen().block().OptionFieldActive;
  const std::int16_t before = isOption;
  if (screen().IsTool()) isOption = 1;
  screen().context().rules.Filter(rule(), text_, key);
  isOption = before;
  return key;
}

void TextControl::RefuseKeys(bool refuse) {
  if (refuse == readOnly_) return;
  Assign(readOnly_, refuse, Aspect::Look);
  Changed();
}

bool TextControl::Enter() {
  return screen().context().rules.FieldGotFocus(text_);
}

bool TextControl::Leave(std::string_view consequence) {
  return screen().context().rules.Check(leaveCheck_, *this, consequence);
}

Field::Field(Frame& frame, std::string name, std::string label, std::string defaultText,
             const Entry& entry, std::string help)
    : TextControl(frame, ControlKind::Field, std::move(name), std::move(label),
                  std::move(defaultText), entry.rule, std::move(help)),
      unit_(entry.unit),
      holds_(entry.holds) {
  SetLeaveCheck(entry.check);
  if (holds_.isShared()) return;
  const Holds::Slot slot = holds_.In(screen().block());
  if (auto* const* own = std::get_if<double*>(&slot)) screen().context().journal.Watch(**own);
}

const UnitRule* Field::conversion() const {
  if (holds_.conversion() == Holds::Conversion::None) return nullptr;
  return holds_.rule() != nullptr ? holds_.rule() : RuleOf(unit_);
}

TextArea::TextArea(Frame& frame, std::string name, std::string label)
    : TextControl(frame, ControlKind::TextArea, std::move(name), std::move(label), {},
                  KeyRule::AnyText, {}) {}

namespace {

/// Heads a report that has no line which is not printed.
constexpr std::string_view kNoPrompt = "\r\n";

}  // namespace

ReportBox::ReportBox(Frame& frame, std::string name)
    : TextControl(frame, ControlKind::ReportBox, std::move(name), {}, {}, KeyRule::OutputOnly, {}) {
  SetVisible(false);
}

void ReportBox::ShowReport(std::string report, int fontSize, const ReportFile& file,
                           PagePicture picture) {
  std::string shown = ReportBoxText(report);
  Assign(shown_,
         Shown{file.isWhole ? std::string(kNoPrompt) + report : std::move(report), fontSize, file,
               std::move(picture), true},
         reportAspect());
  SetText(std::move(shown));
  SetVisible(true);
  if (screen().focus() != this) Assign(before_, screen().focus(), Aspect::Place);
  // The report's keys work at once.
  Focus();
}

void ReportBox::ShowSentence(std::string sentence) {
  if (sentence == sentence_) return;
  Assign(sentence_, std::move(sentence), Aspect::Place);
  Changed();
}

void ReportBox::CloseReport() {
  if (shown_.isThere) Assign(shown_, Shown{}, reportAspect());
  Assign(sentence_, std::string{}, Aspect::Place);
  Control* before = before_;
  if (before != nullptr) Assign(before_, nullptr, Aspect::Place);
  // The keyboard may also be on one of the buttons that a window has beside the report.
  const bool hadFocus = screen().focus() == this || screen().focus() == nullptr;
  if (hadFocus && before != nullptr) before->Focus();
  SetVisible(false);
  SetText({});
}

void ReportBox::PutBack() {
  std::string_view report = shown_.report;
  if (shown_.file.isWhole) report.remove_prefix(kNoPrompt.size());
  Derive(shown_.isThere ? ReportBoxText(report) : std::string{});
  SetVisible(shown_.isThere);
  TellFace();
}

char32_t ReportBox::FilterKey(char32_t key) {
  if (!showsReport()) return TextControl::FilterKey(key);
  bool done = true;
  if (key == U'.' || key == U',') {
    done = screen().Perform([this, key] {
      try {
        key == U'.' ? WriteReportToFile() : PrintReport();
      } catch (const CommandError& error) {
        // A cancelled dialog was a key like any other.
        if (error.kind() != ErrorKind::Cancelled) throw;
      }
    });
  }
  if (done) CloseReport();
  return 0;
}

void ReportBox::WriteReportToFile() const {
  Host& host = screen().context().host;
  const auto path = host.AskFile(
      {FileDialog::Kind::Save, shown_.file.filter, shown_.file.filterIndex, host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  std::string_view report = shown_.report;
  if (shown_.file.isWhole) report.remove_prefix(report.find('\n') + 1);
  if (!shown_.file.hasPrompt && report.starts_with(ReportPrompt)) {
    report.remove_prefix(ReportPrompt.size());
  }
  SaveFile(*path, ReportFileText(report));
}

void ReportBox::PrintReport() const {
  Host& host = screen().context().host;
  Pages()(*host.OpenPrinter(PageJob::Report));
}

PageDrawing ReportBox::Pages() const {
  return [this](PageSurface& surface) {
    const ProgramContext& context = screen().context();
    ReportPrinter(surface, HeaderOf(context.block, context.host.Now()))
        .PrintReport(shown_.report, shown_.fontSize, shown_.picture);
  };
}

Label::Label(Frame& frame, std::string name, std::string caption)
    : Control(frame.screen(), &frame, ControlKind::Label, std::move(name), std::move(caption), {}) {
}

Command::Command(Frame& frame, std::string name, std::string caption, std::string help,
                 CommandWork work, int index)
    : Control(frame.screen(), &frame, ControlKind::Command, std::move(name), std::move(caption),
              std::move(help)),
      work_(std::move(work)),
      index_(index) {
  SetEnabled(work_.isBuilt());
}

bool Command::Click() {
  if (!work_.isBuilt() || !enabled() || !Reachable()) return false;
  Command*& last = screen().lastCalculation_;
  if (last != this && role() == CommandRole::Calculates && this != screen().QuitCommand()) {
    screen().context().journal.Assign(last, this, &screen(), Aspect::Place);
  }
  // Closing a screen is no step.
  const History::Step step(
      *this, this == screen().QuitCommand() ? History::Kind::None : History::Kind::Command);
  if (!Run()) return false;
  screen().context().current.Ran(*this);
  return true;
}

bool Command::Run() {
  return screen().Perform([this] { work_.Run(screen(), index_); });
}

bool Command::isNextCalculation() const {
  return screen().NextCalculation() == this;
}

CheckBox::CheckBox(Frame& frame, std::string name, std::string caption, std::string help,
                   Handler handler)
    : Control(frame.screen(), &frame, ControlKind::CheckBox, std::move(name), std::move(caption),
              std::move(help)),
      handler_(std::move(handler)) {}

CheckBox::CheckBox(Screen& screen, InFoot foot, std::string name, std::string caption,
                   std::string help, Handler handler)
    : Control(screen, foot, ControlKind::CheckBox, std::move(name), std::move(caption),
              std::move(help)),
      handler_(std::move(handler)) {}

void CheckBox::SetOn(bool on) {
  if (slot_ != nullptr) *slot_ = on ? 1 : 0;
  if (on == on_) return;
  Assign(on_, on, isInFoot() ? Aspect::Place : Aspect::Data);
  Changed();
}

bool CheckBox::Click() {
  return Reachable() && TurnOver();
}

bool CheckBox::TurnOver() {
  if (!enabled()) return false;
  const History::Step step(*this, History::Kind::Other);
  SetOn(!on_);
  if (isInFoot()) {
    // It is no command: marks of the last one stay.
    handler_();
    return true;
  }
  const bool done = handler_ == nullptr || screen().Perform(handler_);
  if (done) {
    NoteChange();
  } else {
    SetOn(!on_);
  }
  return done;
}

void CheckBox::Bind(std::int16_t& slot) {
  slot_ = &slot;
  *slot_ = on_ ? 1 : 0;
}

OptionButton::OptionButton(OptionGroup& group, Frame* frame, int index, std::string caption,
                           std::string help)
    : Control(group.screen(), frame, ControlKind::OptionButton,
              group.name() + '(' + std::to_string(index) + ')', std::move(caption),
              std::move(help)),
      group_(group),
      index_(index) {}

bool OptionButton::on() const {
  return group_.chosen() == index_;
}

void OptionButton::Click() {
  if (enabled() && Reachable()) group_.Pick(index_);
}

OptionRows::OptionRows(Frame& frame, ControlKind kind, std::string name, std::string caption,
                       int buttonsInRow)
    : Control(frame.screen(), &frame, kind, std::move(name), std::move(caption), {}),
      buttonsInRow_(buttonsInRow) {}

void OptionRows::AddButtons(OptionGroup& group, const std::vector<OptionChoice>& choices) {
  group.buttons_.reserve(group.buttons_.size() + choices.size());
  for (const OptionChoice& choice : choices) {
    group.buttons_.push_back(
        std::make_unique<OptionButton>(group, frame(), choice.index, choice.caption, choice.help));
    buttonsHere_.push_back(group.buttons_.back().get());
    if (!choice.visible) buttonsHere_.back()->SetVisible(false);
  }
}

void OptionRows::AppendReadingOrder(std::vector<Control*>& order) {
  Control::AppendReadingOrder(order);
  order.insert(order.end(), buttonsHere_.begin(), buttonsHere_.end());
}

OptionGroup::OptionGroup(Frame& frame, std::string name, std::string caption,
                         const std::vector<Choice>& choices, int chosen, int buttonsInRow)
    : OptionRows(frame, ControlKind::OptionGroup, std::move(name), std::move(caption),
                 buttonsInRow),
      chosen_(chosen) {
  AddButtons(*this, choices);
}

OptionPart::OptionPart(Frame& frame, OptionGroup& group, const std::vector<OptionChoice>& choices,
                       int buttonsInRow)
    : OptionRows(frame, ControlKind::OptionPart, group.name() + " in " + frame.name(), {},
                 buttonsInRow) {
  AddButtons(group, choices);
}

bool OptionGroup::Choose(int index) {
  const bool known = std::any_of(buttons_.begin(), buttons_.end(),
                                 [&](const auto& button) { return button->index() == index; });
  if (!known) return false;
  Assign(chosen_, index, Aspect::Data);
  if (slot_ != nullptr) *slot_ = static_cast<std::int16_t>(index);
  Changed();
  for (const auto& button : buttons_) button->Changed();
  return true;
}

void OptionGroup::PutBack() {
  TellFace();
  for (const auto& button : buttons_) button->TellFace();
}

void OptionGroup::Pick(int index) {
  const History::Step step(*this, History::Kind::Other);
  const int before = chosen_;
  if (Choose(index) && chosen_ != before) NoteChange();
}

void OptionGroup::Bind(std::int16_t& slot) {
  slot_ = &slot;
  *slot_ = static_cast<std::int16_t>(chosen_);
}

ComboList::ComboList(Frame& frame, std::string name, std::string caption, Holds holds)
    : ComboList(frame, ControlKind::ComboList, std::move(name), std::move(caption), {}) {
  holds_ = holds;
}

void ComboList::ChooseNumber(double number) {
  const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const std::string& row) {
    return IsNumber(row, DecimalMark::Point) && ParseNumber(row, DecimalMark::Point) == number;
  });
  if (found != rows_.end()) Choose(static_cast<int>(found - rows_.begin()));
}

ComboList::ComboList(Frame& frame, ControlKind kind, std::string name, std::string caption,
                     std::string help)
    : Control(frame.screen(), &frame, kind, std::move(name), std::move(caption), std::move(help)) {}

void ComboList::SetRows(std::vector<std::string> rows) {
  Replace(std::move(rows), -1);
  Changed();
}

void ComboList::Replace(std::vector<std::string> rows, int chosen) {
  Assign(rows_, std::move(rows), rowAspect());
  SetChosen(chosen);
}

std::string ComboList::chosenText() const {
  return HasRow(chosen_) ? rows_[static_cast<std::size_t>(chosen_)] : std::string{};
}

void ComboList::Choose(int row) {
  if (!HasRow(row) || row == chosen_) return;
  SetChosen(row);
  Changed();
}

void ComboList::Pick(int row) {
  const History::Step step(*this, History::Kind::Other);
  const int before = chosen_;
  Choose(row);
  if (chosen_ != before) NoteChange();
}

// ---------------------------------------------------------------- Screen

namespace {

Holds HeldBy(const Control& control) {
  if (control.kind() == ControlKind::Field) return static_cast<const Field&>(control).holds();
  if (control.kind() == ControlKind::ComboList) {
    return static_cast<const ComboList&>(control).holds();
  }
  return {};
}

/// The key of the shared value that a control shows; null where there is none.
const KeyRow* KeyOf(const Control& control) {
  const void* place = Screen::SharedPlace(control);
  return place == nullptr ? nullptr : FindKeyOfSlot(control.screen().block(), place);
}

}  // namespace

Screen::Screen(ProgramContext& context, std::string name, std::string title, std::string tag)
    : context_(context), name_(std::move(name)), title_(std::move(title)), tag_(std::move(tag)) {}

Screen::~Screen() = default;

Control* Screen::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void ProgramContext::NoteVisit(Screen& screen) {
  if (journal.isDry() || (!visited_.empty() && visited_.back() == &screen)) return;
  std::erase(visited_, &screen);
  visited_.push_back(&screen);
  screen.Visited();
}

void Screen::SetVisible(bool visible) {
  if (visible) context_.NoteVisit(*this);
  const bool changed = visible != visible_;
  if (changed) context_.journal.Assign(visible_, visible, this, Aspect::Place);
  if (context_.journal.isDry()) return;
  // Opening an open screen brings its window to the front, so the face is told in any case.
  // What runs by itself leaves the windows in the order in which they lie.
  const bool comesToFront = visible && !context_.current.isRunning();
  if (face_ != nullptr && (changed || comesToFront)) face_->ScreenVisibilityChanged(*this);
}

void ProgramContext::HandOver(Screen* screen) {
  if (screen == metricOwner_) return;
  journal.Keep(held_, nullptr, Aspect::Work);
  journal.Keep(metricOwner_, nullptr, Aspect::Work);
  // A number beyond all engines must not become an infinity, which nothing can show or save.
  const auto limited = [](double value) {
    constexpr double kLargest = std::numeric_limits<double>::max();
    return std::clamp(value, -kLargest, kLargest);
  };
  for (const HeldValue& value : held_) {
    *value.slot =
        *value.slot == value.metric ? value.inches : limited(value.rule->toInches(*value.slot));
  }
  held_.clear();
  metricOwner_ = screen;
  if (screen == nullptr) return;
  for (const auto& value : screen->MetricValues()) {
    if (value.slot == nullptr) continue;
    const double metric = limited(value.rule->toMetric(*value.slot));
    held_.push_back({value.slot, value.rule, *value.slot, metric});
    *value.slot = metric;
  }
}

const void* Screen::SharedPlace(const Control& control) {
  const Holds holds = HeldBy(control);
  if (!holds.isShared()) return nullptr;
  return std::visit(
      [](auto slot) -> const void* {
        if constexpr (std::is_same_v<decltype(slot), std::monostate>) {
          return nullptr;
        } else {
          return slot;
        }
      },
      holds.In(control.screen().block()));
}

bool Screen::ShowsAtOpening(const Control& control) {
  const Holds holds = HeldBy(control);
  if (!holds.isShared()) return false;
  if (holds.opening() != Holds::Opening::ByKey) return holds.opening() == Holds::Opening::Shown;
  const KeyRow* row = KeyOf(control);
  return row != nullptr && (row->form == KeyForm::Number || row->form == KeyForm::Integer);
}

void Screen::ShowShared(Control& control, double number) {
  if (number == 0 && HeldBy(control).zeroKeepsText()) return;
  if (control.kind() == ControlKind::ComboList) {
    static_cast<ComboList&>(control).ChooseNumber(number);
    return;
  }
  auto& field = static_cast<Field&>(control);
  const KeyRow* row = KeyOf(control);
  // A value whose key is a whole number has the text of the file, unless openers show it.
  const bool isAsInFile = row != nullptr && row->form == KeyForm::IntegerOrField &&
                          !ShowsAtOpening(control) && number == Floor(number);
  const bool isCount = std::holds_alternative<std::int16_t*>(field.holds().In(block())) ||
                       field.rule() == KeyRule::Digits || field.rule() == KeyRule::SignedDigits ||
                       isAsInFile;
  const bool isSmart = row != nullptr && row->tableForm == TableForm::Smart;
  const NumberFormat format = isCount ? &FormatInt : isSmart ? &FormatSmart : &FormatField;
  const std::string before = field.text();
  field.SetText(format(AsShown(field, number), mark()));
  if (metric() && field.conversion() != nullptr && field.text() != before) {
    NoteShown(field, format(number, mark()), number);
  }
}

void Screen::NoteShown(Field& field, std::string inUs, double number) {
  auto text = std::find_if(lastSwitch_.texts.begin(), lastSwitch_.texts.end(),
                           [&](const UnitSwitch::Text& t) { return t.field == &field; });
  if (text == lastSwitch_.texts.end()) return;
  context_.journal.Keep(lastSwitch_, this, Aspect::Work);
  text->before = std::move(inUs);
  text->after = field.text();
  // What is derived does not stand any more.
  lastSwitch_.isWhole = false;
  const Holds::Slot slot = field.holds().In(block());
  auto* const* place = std::get_if<double*>(&slot);
  if (place == nullptr) return;
  for (UnitSwitch::Value& value : lastSwitch_.values) {
    if (value.slot == *place) value = {*place, number, field.conversion()->toMetric(number)};
  }
}

void Screen::CopyFromBlock() {
  for (Control* control : controls_) {
    if (!ShowsAtOpening(*control)) continue;
    std::visit(
        [&](auto slot) {
          if constexpr (!std::is_same_v<decltype(slot), std::monostate>) {
            ShowShared(*control, static_cast<double>(*slot));
          }
        },
        HeldBy(*control).In(block()));
  }
}

void Screen::CopyShared() {
  context_.HandOver(nullptr);
  CopyFromBlock();
  context_.HandOver(metric() ? this : nullptr);
}

double Screen::Converted(const Field& field, double number, bool toMetric) const {
  const UnitRule* rule = field.conversion();
  if (!metric() || rule == nullptr) return number;
  const double converted = rule->Convert(number, toMetric);
  return std::isfinite(converted) ? converted : number;
}

void Screen::Quit() {
  const History::Step step(context_, History::Kind::None);
  if (CheckBox* box = MetricBox(); box != nullptr && box->on()) {
    if (block().FormsCleared == 1) {
      SwitchBlankUnits(false);
    } else if (!box->TurnOver()) {
      // An unread number keeps the screen open: its box has told which field holds it.
      return;
    }
  }
  Hover(nullptr);
  if (ReportBox* report = ReportPane(); report != nullptr) {
    report->CloseReport();
  }
  Closed();
  SetVisible(false);
}

void Screen::Hover(Control* control) {
  ShowHelp(control == nullptr ? std::string{} : control->help());
}

void Screen::ShowHelp(const std::string& sentence) {
  if (DryRunLog* log = context_.gate.log()) log->sentence = sentence;
  Control* place = HelpPlace();
  if (place == nullptr) return;
  // A report is not written over by what the pointer passes.
  if (auto* box = dynamic_cast<ReportBox*>(place); box != nullptr && box->showsReport()) {
    box->ShowSentence(sentence);
    return;
  }
  if (place->kind() == ControlKind::Label) {
    place->SetCaption(sentence);
  } else {
    static_cast<TextControl*>(place)->SetText(sentence);
  }
  place->SetVisible(!sentence.empty());
}

void ProgramContext::StopInTime() const {
  DryRunLog* log = gate.log();
  if (log == nullptr || !log->end || std::chrono::steady_clock::now() < *log->end) return;
  log->ranOutOfTime = true;
  throw CommandError(ErrorKind::Cancelled, "");
}

void Screen::TakeUnits() {
  if (UsesSharedValues()) context_.HandOver(metricShown_ ? this : nullptr);
  if (MetricBox() != nullptr) block().MetricSwitch = metricShown_ ? 1 : 0;
}

bool Screen::Perform(const std::function<void()>& command) {
  for (Control* control : controls_) control->SetMark(Mark::None);
  try {
    TakeUnits();
    std::feclearexcept(FE_ALL_EXCEPT);
    command();
    return true;
  } catch (const CommandError& error) {
    if (error.kind() != ErrorKind::Cancelled) Report(error);
  } catch (const std::bad_alloc&) {
    Report({ErrorKind::Overflow, "There is not enough memory for this command."});
  } catch (const std::exception& error) {
    Report({ErrorKind::InvalidArgument,
            std::string("The command could not be finished: ") + error.what()});
  }
  return false;
}

const Control* ValueOf(const Control* control) {
  if (const auto* copy = dynamic_cast<const FieldCopy*>(control)) return &copy->of();
  if (const auto* twin = dynamic_cast<const FieldTwin*>(control)) return &twin->of();
  return control;
}

namespace {

/// The caption in quotes, behind it the frame where another frame has such a control too.
std::string NameInMessages(const Control& control) {
  const std::string caption = control.PlainCaption();
  std::string name = '"' + caption + '"';
  if (control.frame() == nullptr) return name;
  const std::vector<Control*>& all = control.screen().controls();
  const bool isElsewhere = std::any_of(all.begin(), all.end(), [&](const Control* other) {
    return other->kind() == control.kind() && other->frame() != control.frame() &&
           other->PlainCaption() == caption && ValueOf(other) == other &&
           ValueOf(&control) != other;
  });
  const std::string frame = control.frame()->PlainCaption();
  return isElsewhere && !frame.empty() ? name + " (" + frame + ')' : name;
}

}  // namespace

Control& WithinReach(Control& control) {
  if (control.Reachable()) return control;
  for (Control* other : control.screen().controls()) {
    const bool isTwin = dynamic_cast<const FieldTwin*>(other) != nullptr;
    if (isTwin && ValueOf(other) == &control && other->Reachable()) return *other;
  }
  return control;
}

namespace {

/// Turns to the page that a control stands on, where another one is shown.
void TurnTo(const Control& control) {
  for (Frame* frame = control.frame(); frame != nullptr; frame = frame->frame()) {
    auto* page = dynamic_cast<ScreenPage*>(frame);
    if (page != nullptr && !page->visible()) page->Open();
  }
}

/// Marks what is at fault and gives it the keyboard, on whatever page it stands; not where a panel
/// lies over it, for nobody could type there.
void MarkFault(Control& control) {
  control.SetMark(Mark::Error);
  Control& place = WithinReach(control);
  if (!place.Reachable()) TurnTo(place);
  if (place.Reachable() || !place.Shown()) place.Focus();
}

}  // namespace

void Screen::Report(const CommandError& error) {
  std::string text = error.message();
  if (error.control() != nullptr) {
    text = NameInMessages(WithinReach(*error.control())) + ' ' + text;
  }
  if (DryRunLog* log = context_.gate.log()) {
    if (log->error.empty()) log->error = std::move(text);
    return;
  }
  context_.host.Ask(
      {Icon::Warning, context_.rules.messages().MessageTitle, std::move(text), {Button::OK}});
  if (error.control() != nullptr) {
    MarkFault(*error.control());
  }
}

void Screen::ClearFields() {
  for (Control* control : controls_) {
    if (auto* text = dynamic_cast<TextControl*>(control)) text->SetText({});
    if (auto* box = dynamic_cast<ReportBox*>(control)) box->CloseReport();
  }
}

void Screen::ConvertDefaultsToComma() {
  for (Control* control : controls_) {
    auto* field = dynamic_cast<TextControl*>(control);
    if (field == nullptr) continue;
    std::string text = field->text();
    if (const auto point = text.find('.'); point != std::string::npos) {
      text[point] = ',';
      field->SetText(std::move(text));
    }
  }
}

void Screen::TakeFocus(Control* control) {
  if (control != nullptr) context_.NoteVisit(*this);
  if (control != focus_) {
    context_.history.EndEntry();
    context_.journal.Assign(focus_, control, this, Aspect::Place);
  }
  const auto* field = dynamic_cast<const Field*>(control);
  block().OptionFieldActive = field != nullptr && field->isOption() ? 1 : 0;
}

namespace {

/// True for what a click does something with.
bool IsClicked(const Control& control) {
  return control.kind() == ControlKind::Command || control.kind() == ControlKind::CheckBox ||
         control.kind() == ControlKind::OptionButton;
}

/// False where a field keeps the keyboard, which `to` would have got. One that a panel lies over
/// cannot. Where a click goes nowhere because of it, the box says so.
bool MayLeave(Control* focus, const Control* to) {
  auto* field = dynamic_cast<TextControl*>(focus);
  if (field == nullptr || !field->Reachable()) return true;
  if (to == nullptr || !IsClicked(*to)) return field->Leave();
  return field->Leave("Nothing has been done for \"" + to->PlainCaption() + "\".");
}

}  // namespace

bool Screen::MoveFocus(Control* control) {
  if (control != nullptr) context_.NoteVisit(*this);
  if (focus_ == control) return true;
  // What closes works always, and leaves a field as it stands.
  const auto* command = dynamic_cast<const Command*>(control);
  const bool closes =
      command != nullptr && (command->role() == CommandRole::Closes || command == QuitCommand());
  if (!closes && !MayLeave(focus_, control)) return false;
  TakeFocus(control);
  return true;
}

std::vector<Control*> Screen::ReadingOrder() const {
  std::vector<Control*> order;
  order.reserve(controls_.size());
  for (Frame* frame : outermost_) frame->AppendReadingOrder(order);
  return order;
}

namespace {

bool TakesKeyboard(const Control& control) {
  if (!control.Reachable() || !control.enabled()) return false;
  switch (control.kind()) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Table:
    case ControlKind::Drawing:
    case ControlKind::OptionPart:
    case ControlKind::OptionGroup: return false;
    case ControlKind::OptionButton: return static_cast<const OptionButton&>(control).on();
    default: return true;
  }
}

}  // namespace

Control* Screen::NextInTabOrder(const Control& from) const {
  std::vector<Control*> order = ReadingOrder();
  if (Control* last = context_.current.SwitchOf(from.screen())) order.push_back(last);
  const auto start = std::find(order.begin(), order.end(), &from);
  const auto rest = static_cast<std::size_t>(start - order.begin());
  for (std::size_t i = 1; i < order.size(); ++i) {
    Control* next = order[(rest + i) % order.size()];
    if (TakesKeyboard(*next)) return next;
  }
  return nullptr;
}

Control* Screen::NextByEnter(const Control& from) const {
  if (from.whole() == nullptr || from.whole()->kind() != ControlKind::Table) return nullptr;
  return static_cast<const Table*>(from.whole())->NextByEnter(from);
}

Control* Screen::AccessKeyTarget(char key) const {
  Control* first = nullptr;
  for (Control* control : ReadingOrder()) {
    if (!IsClicked(*control) || control->accessKey() != key || !control->enabled() ||
        !control->Reachable()) {
      continue;
    }
    if (focus_ != nullptr && control->frame() == focus_->frame()) return control;
    if (first == nullptr) first = control;
  }
  return first;
}

Command* Screen::NextCalculation() {
  const Control* quit = QuitCommand();
  const auto isReady = [quit](const Control& control) {
    return control.kind() == ControlKind::Command && control.enabled() && control.Reachable() &&
           &control != quit &&
           static_cast<const Command&>(control).role() == CommandRole::Calculates;
  };
  if (lastCalculation_ != nullptr && isReady(*lastCalculation_)) return lastCalculation_;
  for (Control* control : ReadingOrder()) {
    if (isReady(*control)) return static_cast<Command*>(control);
  }
  return nullptr;
}

bool Screen::CalculateAgain() {
  Command* command = NextCalculation();
  if (command == nullptr) return false;
  return MayLeave(focus_, command) && command->Click();
}

void Screen::PutAwayPanel() {
  if (Panel* top = topPanel()) top->Done();
}

double Screen::Read(Field& field) const {
  try {
    return ParseNumber(field.text(), mark());
  } catch (const CommandError& error) {
    throw CommandError(error.kind(), error.message(), &field);
  }
}

void Screen::ReadCount(std::int16_t& slot, Field& field) const {
  const double value = Read(field);
  try {
    slot = RoundToInt16(value);
  } catch (const CommandError& error) {
    throw CommandError(error.kind(), error.message(), &field);
  }
}

double Screen::ReadKeptInUs(Field& field) const {
  const double shown = Read(field);
  const Holds::Slot slot = field.holds().In(block());
  if (auto* const* value = std::get_if<double*>(&slot); value != nullptr && metric()) {
    const bool stands = field.text() == TextOf(field, AsShown(field, **value));
    std::feclearexcept(FE_OVERFLOW);  // of a value that is too large to show in metric
    if (stands) return **value;
  }
  return InInches(field, shown);
}

void Screen::ReadFields(std::initializer_list<Field*> fields) {
  for (Field* field : fields) {
    const Holds::Slot slot = field->holds().In(block());
    if (auto* const* count = std::get_if<std::int16_t*>(&slot)) {
      ReadCount(**count, *field);
    } else if (auto* const* value = std::get_if<double*>(&slot)) {
      const bool keptInUs = field->holds().conversion() == Holds::Conversion::ShownOnly;
      **value = keptInUs ? ReadKeptInUs(*field) : Read(*field);
    } else {
      Read(*field);
    }
  }
}

void Screen::ReadChoice(const ComboList& list) {
  const Holds::Slot slot = list.holds().In(block());
  *std::get<double*>(slot) = ParseNumber(list.chosenText(), DecimalMark::Point);
}

namespace {

/// How a divisor is 0: as it was typed, or as the whole number that it counts as. Empty when it
/// is not.
std::string_view ZeroOf(Field& divisor, ParameterBlock& block, DecimalMark mark) {
  if (!IsNumber(divisor.text(), mark)) return {};
  if (ParseNumber(divisor.text(), mark) == 0) return "is 0";
  const Holds::Slot slot = divisor.holds().In(block);
  const auto* const* count = std::get_if<std::int16_t*>(&slot);
  return count != nullptr && **count == 0 ? "counts as 0" : std::string_view();
}

}  // namespace

void Screen::RequireResult(Field& field, double value, DividesBy divisors) const {
  const int flags = std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
  if (flags == 0 && std::isfinite(value)) return;
  // Named as it is called where the user sees it.
  const std::string result = '"' + WithinReach(field).PlainCaption() + "\" cannot be computed";
  for (Field* divisor : divisors) {
    const std::string_view zero = ZeroOf(*divisor, block(), mark());
    if (!zero.empty()) {
      throw CommandError(
          ErrorKind::DivisionByZero,
          std::string(zero) + ", and " + result + " by dividing by 0. Please enter another value.",
          divisor);
    }
  }
  if ((flags & FE_DIVBYZERO) != 0) {
    throw CommandError(ErrorKind::DivisionByZero,
                       "cannot be computed: a value that it is divided by is 0.", &field);
  }
  if ((flags & FE_OVERFLOW) != 0 || std::isinf(value)) {
    throw CommandError(ErrorKind::Overflow,
                       "cannot be computed: the result is too large. Please check the values it "
                       "comes from.",
                       &field);
  }
  throw CommandError(ErrorKind::InvalidArgument,
                     "cannot be computed: no number fits the values that were entered.", &field);
}

void Screen::ShowText(TextControl& field, std::string text) {
  field.SetText(std::move(text));
  field.SetMark(Mark::Changed);
}

std::string Screen::BuildReport(const std::function<std::string()>& build, const char* impossible) {
  const CommandError cannot(ErrorKind::InvalidArgument, impossible);
  std::string report;
  try {
    report = build();
  } catch (const CommandError& error) {
    if (error.kind() == ErrorKind::Overflow || error.kind() == ErrorKind::NotANumber) throw cannot;
    throw;
  }
  if (std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID) != 0) throw cannot;
  return report;
}

void Screen::FailAt(Field& field, std::string message) {
  MarkFault(field);
  throw CommandError(ErrorKind::InvalidArgument, std::move(message));
}

void Screen::ShowReport(std::string report, int fontSize, const ReportFile& file,
                        PagePicture picture) {
  ReportPane()->ShowReport(std::move(report), fontSize, file, std::move(picture));
}

std::string Screen::TextOf(const Field& field, double value) const {
  const NumberFormat format = field.holds().format();
  return (format != nullptr ? format : pattern_)(value, mark());
}

std::string Screen::SwitchedTextOf(const Field& field, double value) const {
  const NumberFormat format = field.holds().switchedFormat();
  return format != nullptr ? format(value, mark()) : TextOf(field, value);
}

void Screen::Show(Field& field, double value, DividesBy divisors) {
  RequireResult(field, value, divisors);
  const bool keptInUs = field.holds().conversion() == Holds::Conversion::ShownOnly;
  ShowText(field, TextOf(field, keptInUs ? AsShown(field, value) : value));
}

void Screen::Store(Field& field, double value, DividesBy divisors) {
  const Holds::Slot slot = field.holds().In(block());
  if (auto* const* count = std::get_if<std::int16_t*>(&slot)) {
    RequireResult(field, value, divisors);
    std::int16_t rounded = 0;
    try {
      rounded = RoundToInt16(value);
    } catch (const CommandError&) {
      throw CommandError(ErrorKind::Overflow, "cannot be computed: the result is too large.",
                         &field);
    }
    Show(field, value);
    **count = rounded;
    return;
  }
  Show(field, value, divisors);
  if (auto* const* number = std::get_if<double*>(&slot)) **number = value;
}

// ---------------------------------------------------------------- units

std::vector<Field*> Screen::Fields() const {
  std::vector<Field*> fields;
  for (Control* control : controls_) {
    if (control->kind() == ControlKind::Field) fields.push_back(static_cast<Field*>(control));
  }
  return fields;
}

std::vector<Screen::MetricValue> Screen::MetricValues() {
  using Conversion = Holds::Conversion;
  std::vector<MetricValue> values;
  for (const UnshownValue& unshown : unshown_) {
    values.push_back({nullptr, &(block().*unshown.value), unshown.rule, Conversion::ByUnit});
  }
  for (Field* field : Fields()) {
    const UnitRule* rule = field->conversion();
    if (rule == nullptr) continue;
    Conversion conversion = field->holds().conversion();
    double* value = nullptr;
    if (conversion != Conversion::ShownOnly) {
      const Holds::Slot slot = field->holds().In(block());
      if (auto* const* number = std::get_if<double*>(&slot)) value = *number;
    }
    if (value == nullptr && conversion == Conversion::ByUnit) conversion = Conversion::AsShown;
    values.push_back({field, value, rule, conversion});
  }
  return values;
}

std::size_t Screen::UnitSwitch::HeapBytes() const {
  std::size_t bytes = texts.capacity() * sizeof(texts[0]) + values.capacity() * sizeof(values[0]);
  for (const Text& text : texts) {
    bytes += veldox::HeapBytes(text.before) + veldox::HeapBytes(text.after);
  }
  return bytes;
}

const Screen::UnitSwitch::Text* Screen::UnitSwitch::Find(const Field* field) const {
  const auto found =
      std::find_if(texts.begin(), texts.end(), [&](const Text& t) { return t.field == field; });
  return found == texts.end() ? nullptr : &*found;
}

const Screen::UnitSwitch::Value* Screen::UnitSwitch::Find(const double* slot) const {
  const auto found =
      std::find_if(values.begin(), values.end(), [&](const Value& v) { return v.slot == slot; });
  return found == values.end() ? nullptr : &*found;
}

bool Screen::UnitSwitch::Stands(const Field& field) const {
  const Text* text = Find(&field);
  return text != nullptr && text->after == field.text();
}

bool Screen::UnitSwitch::Stands() const {
  return !texts.empty() && std::all_of(texts.begin(), texts.end(), [](const Text& text) {
    return text.after == text.field->text();
  });
}

void Screen::ConvertValues(bool toMetric) {
  using Conversion = Holds::Conversion;
  for (const MetricValue& value : MetricValues()) {
    if (value.conversion == Conversion::Derived) continue;
    const UnitSwitch::Value* was = value.slot == nullptr ? nullptr : lastSwitch_.Find(value.slot);
    if (value.field != nullptr && lastSwitch_.Stands(*value.field)) {
      ShowText(*value.field, lastSwitch_.Find(value.field)->before);
      if (was != nullptr) {
        *value.slot = was->before;
        continue;
      }
      if (value.slot == nullptr) continue;
    }
    const bool readsText = value.conversion != Conversion::ByUnit;
    const bool isShown = readsText && IsNumber(value.field->text(), mark());
    if (value.slot == nullptr && !isShown) continue;
    const bool keptInUs = value.conversion == Conversion::ShownOnly;
    const double number = !isShown   ? *value.slot
                          : keptInUs ? ReadKeptInUs(*value.field)
                                     : Read(*value.field);
    double now = keptInUs && !toMetric ? number : value.rule->Convert(number, toMetric);
    // No field tells otherwise: what it was comes back to the last digit.
    if (!isShown && (value.field == nullptr || readsText) && was != nullptr &&
        was->after == number) {
      now = was->before;
    }
    // A field without a number is left alone, its value is not.
    if (value.field != nullptr && (isShown || !readsText)) {
      RequireResult(*value.field, now);
      ShowText(*value.field, SwitchedTextOf(*value.field, now));
    } else if (!std::isfinite(now)) {
      now = number;
      std::feclearexcept(FE_OVERFLOW);
    }
    if (value.slot != nullptr) *value.slot = now;
  }
}

void Screen::SwitchUnits(const std::function<void()>& derive) {
  const bool toMetric = !metric();
  const std::vector<MetricValue> values = MetricValues();
  UnitSwitch made;
  for (Field* field : Fields()) made.texts.push_back({field, field->text(), {}});
  std::vector<double> numbers;  // as they are now, for a switch that fails
  for (const MetricValue& value : values) {
    if (value.slot == nullptr) continue;
    numbers.push_back(*value.slot);
    double before = *value.slot;
    const UnitSwitch::Value* was = lastSwitch_.Find(value.slot);
    if (value.field != nullptr && was != nullptr && lastSwitch_.Stands(*value.field)) {
      // The text may hold fewer digits than the value that it shows.
      before = was->after;
    } else if (value.conversion == Holds::Conversion::AsShown &&
               IsNumber(value.field->text(), mark())) {
      before = Read(*value.field);
    }
    made.values.push_back({value.slot, before, 0});
  }
  const bool comesBack = lastSwitch_.isWhole && lastSwitch_.Stands();
  const auto blockBefore = std::make_unique<ParameterBlock>(block());
  block().MetricSwitch = toMetric ? 1 : 0;
  block().MetricFactor = toMetric ? kMillimetresPerInch : 1 / kMillimetresPerInch;
  try {
    if (comesBack) {
      for (const UnitSwitch::Text& text : lastSwitch_.texts) ShowText(*text.field, text.before);
      for (const UnitSwitch::Value& value : lastSwitch_.values) *value.slot = value.before;
    } else {
      ConvertValues(toMetric);
      if (derive) derive();
    }
  } catch (...) {
    block() = *blockBefore;
    for (std::size_t i = 0; i < numbers.size(); ++i) *made.values[i].slot = numbers[i];
    for (const UnitSwitch::Text& text : made.texts) text.field->SetText(text.before);
    for (Control* control : controls_) control->SetMark(Mark::None);
    throw;
  }
  for (UnitSwitch::Text& text : made.texts) text.after = text.field->text();
  for (UnitSwitch::Value& value : made.values) value.after = *value.slot;
  Journal& journal = context_.journal;
  journal.Keep(context_.held_, nullptr, Aspect::Work);
  journal.Keep(context_.metricOwner_, nullptr, Aspect::Work);
  context_.held_.clear();
  if (toMetric) {
    for (const MetricValue& value : values) {
      if (value.slot == nullptr) continue;
      const double now = *value.slot;
      const bool isNew = value.conversion == Holds::Conversion::Derived && !comesBack;
      context_.held_.push_back({value.slot, value.rule,
                                isNew ? value.rule->toInches(now) : made.Find(value.slot)->before,
                                now});
    }
  }
  context_.metricOwner_ = toMetric ? this : nullptr;
  journal.Assign(lastSwitch_, std::move(made), this, Aspect::Work);
  SetMetricShown(toMetric);
}

void Screen::SwitchBlankUnits(bool toMetric) {
  context_.HandOver(nullptr);
  UnitSwitch made;
  for (Field* field : Fields()) {
    std::string before = field->text();
    const UnitRule* rule = field->conversion();
    if (lastSwitch_.Stands(*field)) {
      field->SetText(lastSwitch_.Find(field)->before);
    } else if (rule != nullptr && IsNumber(before, mark())) {
      const double now = rule->Convert(ParseNumber(before, mark()), toMetric);
      if (std::isfinite(now)) field->SetText(SwitchedTextOf(*field, now));
    }
    made.texts.push_back({field, std::move(before), field->text()});
  }
  context_.journal.Assign(lastSwitch_, std::move(made), this, Aspect::Work);
  MetricBox()->SetOn(toMetric);
  SetMetricShown(toMetric);
}

void Screen::SetMetricShown(bool metric) {
  if (metric == metricShown_) return;
  context_.journal.Assign(metricShown_, metric, this, Aspect::Work);
  for (Control* control : controls_) {
    if (control->kind() == ControlKind::Field) control->Changed();
  }
}

}  // namespace veldox
