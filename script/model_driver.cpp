#include "script/model_driver.h"

#include "core/pick_list.h"
#include "core/table.h"
#include "core/text.h"

namespace veldox {

namespace {

/// Takes the last character off a UTF-8 text.
void Shorten(std::string& text) {
  while (!text.empty() && IsContinuationByte(text.back())) text.pop_back();
  if (!text.empty()) text.pop_back();
}

}  // namespace

void ModelDriver::ChooseMenu(const MenuItem& item) {
  shell_.Choose(item);
}

void ModelDriver::Set(TextControl& field, const std::string& text) {
  if (!field.enabled() || !field.screen().MoveFocus(&field)) return;
  selected_ = nullptr;
  Table* table = Table::Of(field);
  if (table != nullptr && Table::IsBlock(text)) {
    table->Paste(table->PlaceOf(field), text);
  } else {
    field.Edit(text);
  }
}

bool ModelDriver::TabInto(Control& control) {
  Screen& screen = control.screen();
  if (!screen.MoveFocus(&control)) return false;
  screen.Hover(&control);
  auto* field = dynamic_cast<TextControl*>(&control);
  // Of a text over several lines, one key must not wipe all.
  const bool selects = field == nullptr ? control.kind() == ControlKind::PickList
                                        : control.kind() != ControlKind::TextArea && field->Enter();
  selected_ = selects ? &control : nullptr;
  return true;
}

void ModelDriver::Type(Control& control, const std::vector<Key>& keys) {
  if (!control.enabled() || !TabInto(control)) return;
  for (const Key key : keys) {
    // A field that another one was left for takes no more keys.
    if (control.screen().focus() != &control) return;
    TypeKey(control, key);
  }
}

void ModelDriver::TypeKey(Control& control, Key key) {
  // Tab moves the focus; it is not typed into the field.
  if (key == kTab) {
    if (Control* next = control.screen().NextInTabOrder(control)) TabInto(*next);
  } else if (auto* list = dynamic_cast<PickList*>(&control)) {
    TypeIntoList(*list, key);
  } else if (auto* field = dynamic_cast<TextControl*>(&control)) {
    TypeIntoField(*field, key);
  } else if (key == U' ') {
    Click(control);
  }
  shell_.context().current.Run(false);
}

void ModelDriver::TypeIntoList(PickList& list, Key key) {
  if (key == kEnter) {
    list.Choose(list.current());
    return;
  }
  const bool replaces = selected_ == &list;
  std::string words = replaces ? std::string{} : list.words();
  if (key == kBackspace) {
    if (!replaces) Shorten(words);
  } else {
    AppendUtf8(words, key);
  }
  selected_ = nullptr;
  list.Narrow(std::move(words));
}

void ModelDriver::TypeIntoField(TextControl& field, Key key) {
  const Key taken = field.FilterKey(key);
  if (taken == 0) return;
  if (taken == kEnter && field.kind() != ControlKind::TextArea) {
    if (Control* next = field.screen().NextByEnter(field)) TabInto(*next);
    return;
  }
  const bool replaces = selected_ == &field;
  std::string text = replaces ? std::string{} : field.text();
  if (taken == kBackspace) {
    if (!replaces) Shorten(text);
  } else if (taken == kEnter) {
    text += "\r\n";
  } else {
    AppendUtf8(text, taken);
  }
  selected_ = nullptr;
  field.Edit(std::move(text));
}

void ModelDriver::Leave(TextControl& field) {
  if (field.screen().focus() != &field && !TabInto(field)) return;
  field.screen().MoveFocus(nullptr);
}

void ModelDriver::Press(Control& control, Key key) {
  if (!control.enabled()) return;
  if (control.screen().focus() != &control && !TabInto(control)) return;
  TypeKey(control, key);
}

void ModelDriver::Click(Control& control) {
  if (!control.enabled() || !control.Reachable()) return;
  Screen& screen = control.screen();
  screen.Hover(&control);
  // The field that has the focus may keep it, and the click goes nowhere.
  if (!screen.MoveFocus(&control)) return;
  switch (control.kind()) {
    case ControlKind::Command: static_cast<Command&>(control).Click(); break;
    case ControlKind::CheckBox: static_cast<CheckBox&>(control).Click(); break;
    case ControlKind::OptionButton: static_cast<OptionButton&>(control).Click(); break;
    default: break;
  }
}

void ModelDriver::Select(ComboList& list, int row) {
  if (!list.enabled() || !list.screen().MoveFocus(&list)) return;
  list.Pick(row);
}

void ModelDriver::Hover(Screen& screen, Control* control) {
  screen.Hover(control);
}

}  // namespace veldox
