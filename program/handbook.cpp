#include "program/handbook.h"

#include <algorithm>
#include <set>

#include "core/field_copy.h"
#include "core/panel.h"
#include "core/pick_list.h"
#include "core/results.h"
#include "core/table.h"
#include "core/text.h"
#include "core/units.h"

namespace veldox {

namespace {

/// A text on one line, with the signs shown that would be marks of the page's language.
std::string Plain(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c == '\r') continue;
    if (c == '\n') {
      plain += ' ';
      continue;
    }
    if (std::string_view("\\`*_<>|[]#").find(c) != std::string_view::npos) plain += '\\';
    plain += c;
  }
  return plain;
}

/// A caption without its access key.
std::string Caption(std::string_view caption) {
  std::string plain;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) continue;
    plain += caption[i];
  }
  return std::string(Trim(plain));
}

std::string Units(const Field& field) {
  const std::string_view us = UnitSign(field.unit(), false);
  const std::string_view metric = UnitSign(field.unit(), true);
  if (field.screen().metric()) return std::string(metric);  // a screen that knows no inches
  if (us == metric || metric.empty()) return std::string(us);
  return std::string(us) + " / " + std::string(metric);
}

/// What may be entered.
const char* EntryWords(KeyRule rule) {
  switch (rule) {
    case KeyRule::OutputOnly: return "result";
    case KeyRule::Digits: return "whole number";
    case KeyRule::SignedDigits: return "whole number, with sign";
    case KeyRule::UnsignedReal: return "number";
    case KeyRule::SignedReal: return "number, with sign";
    case KeyRule::AnyText: return "text";
  }
  return "";
}

bool IsPanel(const Frame& frame) {
  return dynamic_cast<const Panel*>(&frame) != nullptr;
}

bool IsPage(const Frame& frame) {
  return dynamic_cast<const ScreenPage*>(&frame) != nullptr;
}

/// True for a frame within a panel or a page.
bool StandsOnSheet(const Frame& frame) {
  const Frame* around = frame.frame();
  return around != nullptr && (IsPanel(*around) || IsPage(*around) || StandsOnSheet(*around));
}

/// Writes the pages of one screen.
class ScreenPages {
 public:
  ScreenPages(const Screen& screen, const FormulaNotes& notes, std::string& text)
      : screen_(screen), notes_(notes), text_(text) {}

  void Write() {
    for (const Control* control : screen_.ReadingOrder()) {
      if (control->kind() != ControlKind::Frame) continue;
      WriteFrame(static_cast<const Frame&>(*control));
    }
  }

 private:
  void WriteFrame(const Frame& frame) {
    std::string fields;
    std::string others;
    std::string commands;
    for (const Control* control : frame.controls()) {
      if (control->whole() != nullptr || !control->visible()) continue;
      switch (control->kind()) {
        case ControlKind::Field:
          AddField(static_cast<const Field&>(*control), fields, others);
          break;
        case ControlKind::Table: AddTable(static_cast<const Table&>(*control), others); break;
        case ControlKind::Command:
          AddCommand(static_cast<const Command&>(*control), commands);
          break;
        case ControlKind::CheckBox: AddItem("check box", *control, others); break;
        case ControlKind::OptionGroup:
        case ControlKind::OptionPart:
          AddOptions(static_cast<const OptionRows&>(*control), others);
          break;
        case ControlKind::ComboList:
        case ControlKind::PickList: AddItem("list", *control, others); break;
        case ControlKind::TextArea: AddItem("text", *control, others); break;
        default: break;
      }
    }
    const bool isSheet = IsPanel(frame) || IsPage(frame);
    if (!isSheet && fields.empty() && others.empty() && commands.empty()) return;
    const std::string caption = Caption(frame.caption());
    if (!caption.empty()) {
      text_ += (StandsOnSheet(frame) ? "#### " : "### ") + Plain(caption) +
               (IsPanel(frame)  ? " (panel)"
                : IsPage(frame) ? " (page)"
                                : "") +
               "\n\n";
    }
    if (!fields.empty()) {
      text_ += "| field | unit | entry | on a fresh screen |\n|---|---|---|---|\n" + fields + "\n";
    }
    if (!others.empty()) text_ += others + "\n";
    if (!commands.empty()) text_ += commands + "\n";
  }

  void AddField(const Field& field, std::string& fields, std::string& others) {
    std::string label = Caption(field.caption());
    // Of an array that stands under each other one row tells all.
    const std::string array = field.name().substr(0, field.name().find('('));
    if (array != field.name() && !arrays_.insert(array + label).second) return;
    if (label.empty()) label = field.name();
    fields += "| " + Plain(label) + " | " + Plain(Units(field)) + " | " + EntryWords(field.rule()) +
              " | " + Plain(field.text()) + " |\n";
    // Of a field that is shown again the first place tells what it is.
    if (!field.help().empty() && !IsShownTwice(field))
      others += "- **" + Plain(label) + "**" + Help(field) + "\n";
  }

  void AddTable(const Table& table, std::string& others) {
    others += "- Table";
    if (const std::string caption = Caption(table.caption()); !caption.empty()) {
      others += " **" + Plain(caption) + "**";
    }
    others += ", " + std::to_string(table.rows()) + " rows:";
    for (int column = 0; column < table.columns(); ++column) {
      const std::string unit(UnitSign(table.column(column).unit, table.screen().metric()));
      others += (column == 0 ? " " : ", ") + Plain(Caption(table.Head(column)));
      if (!unit.empty()) others += " (" + Plain(unit) + ")";
    }
    others += "\n";
  }

  void AddItem(const char* kind, const Control& control, std::string& others) const {
    std::string caption = Caption(control.caption());
    if (caption.empty()) caption = control.name();
    others += "- **" + Plain(caption) + "** (" + kind + ")" + Help(control) + "\n";
  }

  void AddOptions(const OptionRows& rows, std::string& others) const {
    const std::string caption = Caption(rows.caption());
    if (!caption.empty()) others += "- **" + Plain(caption) + "**: one of\n";
    for (const OptionButton* button : rows.buttonsHere()) {
      if (!button->visible()) continue;
      others += std::string(caption.empty() ? "- " : "  - ") + "**" +
                Plain(Caption(button->caption())) + "** (option)" + Help(*button) + "\n";
    }
  }

  void AddCommand(const Command& command, std::string& commands) const {
    if (!command.isBuilt()) return;
    commands += "- **\"" + Plain(Caption(command.caption())) + "\"**" + Help(command) + "\n";
    for (const std::string& note : notes_.Of(screen_.name(), command.name())) {
      commands += "  - *In words:* " + Plain(note) + "\n";
    }
  }

  static std::string Help(const Control& control) {
    return control.help().empty() ? std::string{} : ": " + Plain(control.help());
  }

  const Screen& screen_;
  const FormulaNotes& notes_;
  std::string& text_;
  std::set<std::string> arrays_;
};

/// The menu item that opens a screen; null for one that other screens open.
const MenuItem* OpenedBy(const Screen& screen) {
  const auto opens = [&](MenuKind kind) {
    return std::find_if(Shell::Menu().begin(), Shell::Menu().end(), [&](const MenuItem& item) {
      return item.kind == kind && item.screen == screen.name();
    });
  };
  for (const MenuKind kind : {MenuKind::Screen, MenuKind::List}) {
    if (const auto found = opens(kind); found != Shell::Menu().end()) return &*found;
  }
  return nullptr;
}

/// The screens in the order of the menu, those that it does not open behind them.
std::vector<Screen*> InMenuOrder(const Shell& shell) {
  std::vector<Screen*> screens = shell.screens();
  std::stable_sort(screens.begin(), screens.end(), [](const Screen* a, const Screen* b) {
    const MenuItem* of[] = {OpenedBy(*a), OpenedBy(*b)};
    if (of[0] == nullptr || of[1] == nullptr) return of[0] != nullptr && of[1] == nullptr;
    return of[0] < of[1];
  });
  return screens;
}

std::string Introduction(const Introductions& written, const std::string& name) {
  const auto found = written.find(name);
  return found == written.end() ? std::string{} : found->second + "\n\n";
}

/// The captions on the way to a menu item.
std::string MenuPath(const MenuItem& item) {
  const MenuItem* parent = Shell::FindMenuItem(item.parent);
  return (parent == nullptr ? std::string{} : MenuPath(*parent) + " > ") + Caption(item.caption);
}

void WriteMenu(Shell& shell, std::string_view parent, int depth, std::string& text) {
  for (const MenuItem& item : Shell::Menu()) {
    if (item.parent != parent || item.kind == MenuKind::Separator ||
        item.kind == MenuKind::RecentFile || item.kind == MenuKind::List ||
        item.kind == MenuKind::PrintScreen || (!shell.MenuEnabled(item) && item.name != "Recent")) {
      continue;
    }
    text += std::string(static_cast<std::size_t>(depth) * 2, ' ') + "- \"" +
            Plain(Caption(item.caption)) + "\"\n";
    if (item.kind == MenuKind::Submenu) WriteMenu(shell, item.name, depth + 1, text);
  }
}

}  // namespace

Introductions ParseIntroductions(std::string_view text) {
  Introductions written;
  std::string name;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.starts_with("## ")) {
      name = line.substr(3);
    } else if (!name.empty()) {
      written[name] += std::string(line) + "\n";
    }
  }
  for (auto& [form, words] : written) {
    words.erase(0, words.find_first_not_of('\n'));
    words.erase(words.find_last_not_of('\n') + 1);
  }
  std::erase_if(written, [](const auto& each) { return each.second.empty(); });
  return written;
}

std::vector<std::string> WithoutIntroduction(const Shell& shell, const Introductions& written) {
  std::vector<std::string> names{"Handbook", "Main"};
  for (const Screen* screen : shell.screens()) names.push_back(screen->name());
  std::erase_if(names, [&](const std::string& name) { return written.contains(name); });
  return names;
}

std::string ComposeHandbook(Shell& shell, const Introductions& written, const FormulaNotes& notes) {
  std::string text = "# VELDOX Handbook\n\n" + Introduction(written, "Handbook");
  text += "## The main window\n\n![The main window](handbook/Main.png)\n\n" +
          Introduction(written, "Main") + "The File menu has these items:\n\n";
  WriteMenu(shell, "File", 0, text);
  std::string tools;
  WriteMenu(shell, "Tools", 0, tools);
  if (!tools.empty()) text += "\nThe Tools menu works on files of other programs:\n\n" + tools;
  text += '\n';
  for (const Screen* screen : InMenuOrder(shell)) {
    text += "## " + Plain(screen->title()) + "\n\n";
    if (const MenuItem* item = OpenedBy(*screen)) {
      text += "Opened in the menu by \"" + Plain(MenuPath(*item)) + "\"" +
              (item->kind == MenuKind::List ? " and the other lists there.\n\n" : ".\n\n");
    }
    text += "![" + Plain(screen->title()) + "](handbook/" + screen->name() + ".png)\n\n" +
            Introduction(written, screen->name());
    ScreenPages(*screen, notes, text).Write();
  }
  text.erase(text.find_last_not_of('\n') + 1);
  return text + '\n';
}

std::string ComposePictureScript(Shell& shell) {
  std::string script = "picture Main Main.png\n";
  for (const Screen* screen : InMenuOrder(shell)) {
    const MenuItem* item = OpenedBy(*screen);
    if (item == nullptr) continue;
    // Tools are shown at work on the first screen of the menu.
    if (screen->IsTool()) script += "menu CubicInch\n";
    script += "menu " + std::string(item->name) + "\npicture " + screen->name() + ' ' +
              screen->name() + ".png\n";
  }
  return script;
}

}  // namespace veldox
