#include "core/panel.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace veldox {

Panel::Panel(Screen& screen, std::string name, std::string caption)
    : Frame(screen, std::move(name), std::move(caption), Sheet{}) {
  SetVisible(false);
  screen.panels_.push_back(this);
}

bool Panel::isOpen() const {
  const std::vector<Panel*>& open = screen().openPanels();
  return std::find(open.begin(), open.end(), this) != open.end();
}

void Panel::Open() {
  if (!isOpen()) Assign(before_, screen().focus(), Aspect::Place);
  screen().context().journal.Keep(screen().openPanels_, &screen(), Aspect::Place);
  std::erase(screen().openPanels_, this);
  screen().openPanels_.push_back(this);
  SetVisible(true);
  Changed();  // it may have been shown already, under another one
  if (Control* first = screen().NextInTabOrder(*this)) first->Focus();
}

void Panel::PutAway() {
  if (!isOpen()) return;
  screen().context().journal.Keep(screen().openPanels_, &screen(), Aspect::Place);
  std::erase(screen().openPanels_, this);
  SetVisible(false);
  Control* before = before_;
  Assign(before_, nullptr, Aspect::Place);
  if (before != nullptr && before->Reachable() && before->enabled()) {
    before->Focus();
  } else if (screen().focus() != nullptr && !screen().focus()->Reachable()) {
    screen().TakeFocus(nullptr);
  }
}

Command* Panel::closingCommand() const {
  std::vector<Control*> inside;
  for (Control* control : controls()) control->AppendReadingOrder(inside);
  for (Control* control : inside) {
    if (control->kind() != ControlKind::Command || !control->visible()) continue;
    auto* command = static_cast<Command*>(control);
    if (command->role() == CommandRole::Closes) return command;
  }
  return nullptr;
}

void Panel::Done() {
  Command* command = closingCommand();
  if (command == nullptr || !command->enabled()) {
    PutAway();
  } else {
    command->Click();
  }
}

ScreenPage::ScreenPage(Screen& screen, std::string name, std::string caption)
    : Frame(screen, std::move(name), std::move(caption), Sheet{}) {
  if (!screen.pages_.empty()) SetVisible(false);
  screen.pages_.push_back(this);
}

void ScreenPage::Open() {
  for (ScreenPage* page : screen().pages()) {
    if (page != this) page->SetVisible(false);
  }
  SetVisible(true);
}

CommandWork PutsAway() {
  return {[](Screen& screen, int) {
            // Only what stands in the top panel can be clicked.
            if (Panel* top = screen.topPanel()) top->PutAway();
          },
          CommandRole::Closes};
}

}  // namespace veldox
