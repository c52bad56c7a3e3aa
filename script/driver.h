#pragma once

#include <filesystem>
#include <vector>

#include "core/shell.h"

namespace veldox {

/// A typed key: a character, or one of the control keys below.
using Key = char32_t;
inline constexpr Key kBackspace = 8;
inline constexpr Key kTab = 9;
inline constexpr Key kEnter = 13;

/// The hands of a script: how it touches the program. One driver works the screens
/// themselves, another real windows with real key and mouse events; a script's output
/// is the same with both.
class Driver {
 public:
  Driver() = default;
  Driver(const Driver&) = delete;
  Driver& operator=(const Driver&) = delete;
  virtual ~Driver() = default;

  virtual void ChooseMenu(const MenuItem& item) = 0;
  /// Replaces a text as if pasted.
  virtual void Set(TextControl& field, const std::string& text) = 0;
  /// Enters a field by tab and types keys through its rule; a Tab key leaves it. What is
  /// typed into a pick list narrows it, and Enter picks its current row.
  virtual void Type(Control& control, const std::vector<Key>& keys) = 0;
  /// The field loses the focus.
  virtual void Leave(TextControl& field) = 0;
  /// One key in a control that gets the focus first.
  virtual void Press(Control& control, Key key) = 0;
  /// Clicks a command, a check box or an option button.
  virtual void Click(Control& control) = 0;
  virtual void Select(ComboList& list, int row) = 0;
  /// The pointer over a control, or over the screen's background when null.
  virtual void Hover(Screen& screen, Control* control) = 0;
  /// Saves what a window shows as a PNG. False where there are no windows.
  virtual bool Picture(Screen& screen, const std::filesystem::path& path) = 0;
};

}  // namespace veldox
