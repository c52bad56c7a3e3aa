#include "core/screen.h"

#include <algorithm>
#include <cfenv>
#include <cmath>
#include <exception>
#include <limits>
#include <stdexcept>
#include <utility>

#include "core/files.h"
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

std::string Control::PlainCaption() const {
  std::string plain;
  std::copy_if(caption_.begin(), caption_.end(), std::back_inserter(plain),
               [](char c) { return c != '&'; });
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
  return this == screen_.QuitCommand() || this == screen_.HelpPlace() ||
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

void Control::Changed() {
  if (face_ != nullptr) face_->ControlChanged(*this);
}

void Control::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Changed();
}

void Control::SetHelp(std::string help) {
  if (help == help_) return;
  help_ = std::move(help);
  Changed();
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Changed();
  // Frames inside show and go with it.
  if (kind_ != ControlKind::Frame) return;
  for (Control* control : static_cast<Frame*>(this)->controls()) {
    if (control->kind() == ControlKind::Frame) control->Changed();
  }
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Changed();
}

void Control::SetMark(Mark mark) {
  if (mark == mark_) return;
  mark_ = mark;
  Changed();
}

void Control::Focus() {
  screen_.TakeFocus(this);
  if (face_ != nullptr) face_->FocusRequested(*this);
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
      column_(0) {
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
  text_ = std::move(text);
  Changed();
}

void TextControl::Edit(std::string text) {
  screen().context().rules.NoteChange();
  SetText(std::move(text));
}

char32_t TextControl::FilterKey(char32_t key) {
  screen().context().rules.Filter(rule(), text_, key);
  return key;
}

void TextControl::RefuseKeys(bool refuse) {
  if (refuse == readOnly_) return;
  readOnly_ = refuse;
  Changed();
}

bool TextControl::Enter() {
  return screen().context().rules.FieldGotFocus(text_);
}

bool TextControl::Leave() {
  return screen().context().rules.Check(leaveCheck_, *this);
}

Field::Field(Frame& frame, std::string name, std::string label, std::string defaultText,
             KeyRule rule, Unit unit, std::string help, LeaveCheck check)
    : TextControl(frame, ControlKind::Field, std::move(name), std::move(label),
                  std::move(defaultText), rule, std::move(help)),
      unit_(unit) {
  SetLeaveCheck(check);
}

TextArea::TextArea(Frame& frame, std::string name, std::string label)
    : TextControl(frame, ControlKind::TextArea, std::move(name), std::move(label), {},
                  KeyRule::AnyText, {}) {}

ReportBox::ReportBox(Frame& frame, std::string name)
    : TextControl(frame, ControlKind::ReportBox, std::move(name), {}, {}, KeyRule::OutputOnly, {}) {
  SetVisible(false);
}

void ReportBox::ShowReport(std::string report, int fontSize) {
  report_ = std::move(report);
  fontSize_ = fontSize;
  showsReport_ = true;
  SetText(ReportBoxText(report_));
  SetVisible(true);
  if (screen().focus() != this) before_ = screen().focus();
  // The report's keys work at once.
  Focus();
}

void ReportBox::ShowSentence(std::string sentence) {
  if (sentence == sentence_) return;
  sentence_ = std::move(sentence);
  Changed();
}

void ReportBox::CloseReport() {
  report_.clear();
  sentence_.clear();
  showsReport_ = false;
  Control* before = std::exchange(before_, nullptr);
  // The keyboard may also be on one of the buttons that a window has beside the report.
  const bool hadFocus = screen().focus() == this || screen().focus() == nullptr;
  if (hadFocus && before != nullptr) before->Focus();
  SetVisible(false);
  SetText({});
}

char32_t ReportBox::FilterKey(char32_t key) {
  if (!showsReport_) return TextControl::FilterKey(key);
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
  constexpr int kPrinterFiles = 3;
  Host& host = screen().context().host;
  const auto path =
      host.AskFile({FileDialog::Kind::Save,
                    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Printer Files (*.prt)|*.prt",
                    kPrinterFiles, host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  SaveFile(*path, ReportFileText(report_));
}

void ReportBox::PrintReport() const {
  Host& host = screen().context().host;
  const std::unique_ptr<PageSurface> surface = host.OpenPrinter();
  ReportPrinter(*surface, HeaderOf(screen().block(), host.Now())).PrintReport(report_, fontSize_);
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
  if (role() == CommandRole::Calculates && this != screen().QuitCommand()) {
    screen().lastCalculation_ = this;
  }
  return screen().Perform([this] { work_.Run(screen(), index_); });
}

bool Command::isNextCalculation() const {
  return screen().NextCalculation() == this;
}

CheckBox::CheckBox(Frame& frame, std::string name, std::string caption, std::string help)
    : Control(frame.screen(), &frame, ControlKind::CheckBox, std::move(name), std::move(caption),
              std::move(help)) {}

void CheckBox::SetOn(bool on) {
  if (slot_ != nullptr) *slot_ = on ? 1 : 0;
  if (on == on_) return;
  on_ = on;
  Changed();
}

bool CheckBox::Click() {
  if (!enabled() || !Reachable()) return false;
  SetOn(!on_);
  if (handler_ == nullptr) return true;
  const bool done = screen().Run(handler_);
  if (!done) SetOn(!on_);
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
  if (enabled() && Reachable()) group_.Choose(index_);
}

OptionRows::OptionRows(Frame& frame, ControlKind kind, std::string name, std::string caption,
                       int buttonsInRow)
    : Control(frame.screen(), &frame, kind, std::move(name), std::move(caption), {}),
      buttonsInRow_(buttonsInRow) {}

void OptionRows::AddButtons(OptionGroup& group, std::initializer_list<OptionChoice> choices) {
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
                         std::initializer_list<Choice> choices, int chosen, int buttonsInRow)
    : OptionRows(frame, ControlKind::OptionGroup, std::move(name), std::move(caption),
                 buttonsInRow),
      chosen_(chosen) {
  AddButtons(*this, choices);
}

OptionPart::OptionPart(Frame& frame, OptionGroup& group,
                       std::initializer_list<OptionChoice> choices, int buttonsInRow)
    : OptionRows(frame, ControlKind::OptionPart, group.name() + " in " + frame.name(), {},
                 buttonsInRow) {
  AddButtons(group, choices);
}

bool OptionGroup::Choose(int index) {
  const bool known = std::any_of(buttons_.begin(), buttons_.end(),
                                 [&](const auto& button) { return button->index() == index; });
  if (!known) return false;
  chosen_ = index;
  if (slot_ != nullptr) *slot_ = static_cast<std::int16_t>(index);
  Changed();
  for (const auto& button : buttons_) button->Changed();
  return true;
}

void OptionGroup::Bind(std::int16_t& slot) {
  slot_ = &slot;
  *slot_ = static_cast<std::int16_t>(chosen_);
}

ComboList::ComboList(Frame& frame, std::string name, std::string caption)
    : ComboList(frame, ControlKind::ComboList, std::move(name), std::move(caption), {}) {}

ComboList::ComboList(Frame& frame, ControlKind kind, std::string name, std::string caption,
                     std::string help)
    : Control(frame.screen(), &frame, kind, std::move(name), std::move(caption), std::move(help)) {}

void ComboList::SetRows(std::vector<std::string> rows) {
  Replace(std::move(rows), -1);
  Changed();
}

void ComboList::Replace(std::vector<std::string> rows, int chosen) {
  rows_ = std::move(rows);
  chosen_ = chosen;
}

std::string ComboList::chosenText() const {
  return HasRow(chosen_) ? rows_[static_cast<std::size_t>(chosen_)] : std::string{};
}

void ComboList::Choose(int row) {
  if (!HasRow(row) || row == chosen_) return;
  chosen_ = row;
  Changed();
}

// ---------------------------------------------------------------- Screen

Screen::Screen(ProgramContext& context, std::string name, std::string title, std::string tag)
    : context_(context), name_(std::move(name)), title_(std::move(title)), tag_(std::move(tag)) {}

Screen::~Screen() = default;

Control* Screen::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

void Screen::SetVisible(bool visible) {
  const bool changed = visible != visible_;
  visible_ = visible;
  // Opening an open screen brings its window to the front, so the face is told in any case.
  if (face_ != nullptr && (changed || visible)) face_->ScreenVisibilityChanged(*this);
}

void ProgramContext::HandOver(Screen* screen) {
  if (screen == metricOwner_) return;
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
  for (const Screen::MetricValue& value : screen->MetricValues()) {
    if (value.slot == nullptr) continue;
    const double metric = limited(value.rule->toMetric(*value.slot));
    held_.push_back({value.slot, value.rule, *value.slot, metric});
    *value.slot = metric;
  }
}

void Screen::CopyShared() {
  context_.HandOver(metric() ? this : nullptr);
  CopyFromBlock();
}

double Screen::Converted(const Field& field, double number, bool toMetric) {
  if (!metric()) return number;
  for (const MetricValue& value : MetricValues()) {
    if (value.field != &field) continue;
    const double converted = value.rule->Convert(number, toMetric);
    return std::isfinite(converted) ? converted : number;
  }
  return number;
}

void Screen::Quit() {
  if (CheckBox* box = MetricBox(); box != nullptr && box->on()) {
    if (block().FormsCleared == 1) {
      SwitchBlankUnits(false);
    } else if (!box->Click()) {
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

bool Screen::Perform(const std::function<void()>& command) {
  for (Control* control : controls_) control->SetMark(Mark::None);
  try {
    if (UsesSharedValues()) context_.HandOver(metricShown_ ? this : nullptr);
    if (MetricBox() != nullptr) block().MetricSwitch = metricShown_ ? 1 : 0;
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

bool Screen::Run(ScreenHandler handler) {
  return Perform([this, handler] { (this->*handler)(); });
}

void Screen::Report(const CommandError& error) {
  std::string text = error.message();
  if (error.control() != nullptr) {
    text = '"' + error.control()->PlainCaption() + "\" " + text;
  }
  context_.host.Ask(
      {Icon::Warning, context_.rules.messages().MessageTitle, std::move(text), {Button::OK}});
  if (error.control() != nullptr) {
    error.control()->SetMark(Mark::Error);
    error.control()->Focus();
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
  focus_ = control;
  const auto* field = dynamic_cast<const Field*>(control);
  block().OptionFieldActive = field != nullptr && field->isOption() ? 1 : 0;
}

bool Screen::MoveFocus(Control* control) {
  if (focus_ == control) return true;
  // What closes works always, and leaves a field as it stands.
  const auto* command = dynamic_cast<const Command*>(control);
  const bool closes =
      command != nullptr && (command->role() == CommandRole::Closes || command == QuitCommand());
  auto* left = dynamic_cast<TextControl*>(focus_);
  if (left != nullptr && !closes && !left->Leave()) return false;
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
    case ControlKind::OptionPart:
    case ControlKind::OptionGroup: return false;
    case ControlKind::OptionButton: return static_cast<const OptionButton&>(control).on();
    default: return true;
  }
}

}  // namespace

Control* Screen::NextInTabOrder(const Control& from) const {
  const std::vector<Control*> order = ReadingOrder();
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
    const bool clicks = control->kind() == ControlKind::Command ||
                        control->kind() == ControlKind::CheckBox ||
                        control->kind() == ControlKind::OptionButton;
    if (!clicks || control->accessKey() != key || !control->enabled() || !control->Reachable()) {
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
  if (auto* field = dynamic_cast<TextControl*>(focus_); field != nullptr && !field->Leave()) {
    return false;
  }
  return command->Click();
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

void Screen::RequireResult(Field& field, double value, DividesBy divisors) const {
  const int flags = std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
  if (flags == 0 && std::isfinite(value)) return;
  const std::string result = '"' + field.PlainCaption() + "\" cannot be computed";
  for (Field* divisor : divisors) {
    if (IsNumber(divisor->text(), mark()) && ParseNumber(divisor->text(), mark()) == 0) {
      throw CommandError(ErrorKind::DivisionByZero,
                         "is 0, and " + result + " by dividing by 0. Please enter another value.",
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
    if (error.kind() == ErrorKind::Overflow) throw cannot;
    throw;
  }
  if (std::fetestexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID) != 0) throw cannot;
  return report;
}

void Screen::ShowReport(std::string report, int fontSize) {
  ReportPane()->ShowReport(std::move(report), fontSize);
}

void Screen::Show(Field& field, double value, DividesBy divisors) {
  RequireResult(field, value, divisors);
  ShowText(field, FormatField(value, mark()));
}

void Screen::Store(double& slot, Field& field, double value, DividesBy divisors) {
  Show(field, value, divisors);
  slot = value;
}

void Screen::SwitchUnits(const std::function<void()>& derive) {
  const bool toMetric = !metric();
  struct Converted {
    const MetricValue* value;
    double number;
    bool shows;
  };
  std::vector<Converted> converted;
  std::vector<HeldValue> held;
  const std::vector<MetricValue> values = MetricValues();
  using From = MetricValue::From;
  for (const MetricValue& value : values) {
    const bool isShown = value.from == From::Shown && IsNumber(value.field->text(), mark());
    if (value.from == From::Shown && !isShown && value.slot == nullptr) continue;
    const double number = isShown ? Read(*value.field) : value.slot == nullptr ? 0 : *value.slot;
    if (toMetric && value.slot != nullptr) {
      held.push_back({value.slot, value.rule, number, 0});
    }
    if (value.from == From::Derived) continue;
    double now = value.rule->Convert(number, toMetric);
    if (!toMetric && !isShown && (value.field == nullptr || value.from == From::Shown)) {
      // No field tells otherwise: what it was in inches comes back to the last digit.
      for (const HeldValue& was : context_.held_) {
        if (was.slot == value.slot && was.metric == number) now = was.inches;
      }
    }
    // A field without a number is left alone, its slot is not.
    const bool shows = value.field != nullptr && (value.from == From::Slot || isShown);
    if (shows) {
      RequireResult(*value.field, now);
    } else if (!std::isfinite(now)) {
      now = number;
      std::feclearexcept(FE_OVERFLOW);
    }
    converted.push_back({&value, now, shows});
  }

  const auto before = std::make_unique<ParameterBlock>(block());
  std::vector<std::pair<TextControl*, std::string>> texts;
  for (Control* control : controls_) {
    if (auto* text = dynamic_cast<TextControl*>(control)) texts.emplace_back(text, text->text());
  }
  block().MetricSwitch = toMetric ? 1 : 0;
  block().MetricFactor = toMetric ? kMillimetresPerInch : 1 / kMillimetresPerInch;
  for (const Converted& c : converted) {
    if (c.value->slot != nullptr) *c.value->slot = c.number;
    if (c.shows) ShowText(*c.value->field, c.value->format(c.number, mark()));
  }
  try {
    if (derive) derive();
  } catch (...) {
    block() = *before;
    for (auto& [control, text] : texts) control->SetText(std::move(text));
    for (Control* control : controls_) control->SetMark(Mark::None);
    throw;
  }
  for (HeldValue& value : held) {
    value.metric = *value.slot;
    const bool isDerived = std::any_of(values.begin(), values.end(), [&](const MetricValue& v) {
      return v.slot == value.slot && v.from == From::Derived;
    });
    if (isDerived) value.inches = value.rule->toInches(value.metric);
  }
  context_.held_ = std::move(held);
  context_.metricOwner_ = toMetric ? this : nullptr;
  SetMetricShown(toMetric);
}

void Screen::SwitchBlankUnits(bool toMetric) {
  context_.HandOver(nullptr);
  for (const MetricValue& value : MetricValues()) {
    if (value.field == nullptr || !IsNumber(value.field->text(), mark())) continue;
    const double number = ParseNumber(value.field->text(), mark());
    const double now = value.rule->Convert(number, toMetric);
    if (std::isfinite(now)) value.field->SetText(value.format(now, mark()));
  }
  MetricBox()->SetOn(toMetric);
  SetMetricShown(toMetric);
}

void Screen::SetMetricShown(bool metric) {
  if (metric == metricShown_) return;
  metricShown_ = metric;
  for (Control* control : controls_) {
    if (control->kind() == ControlKind::Field) control->Changed();
  }
}

}  // namespace veldox
