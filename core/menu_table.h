#pragma once

#include <string_view>

namespace veldox {

class Shell;

enum class MenuKind {
  Submenu,  ///< where it names a screen, choosing it without opening it shows all its lists there
  Separator,
  Screen,
  List,  ///< puts a list into a screen and opens that
  Action,
  PrintScreen,
  RecentFile,  ///< opens one of the parameter files worked on last
};

/// One item of the menu tree (Shell::Menu). The table lists the items in the order of the menus.
struct MenuItem {
  std::string_view name;
  std::string_view caption;
  std::string_view parent{};  ///< the submenu it stands in, empty for the bar
  MenuKind kind = MenuKind::Action;
  std::string_view screen{};  ///< the screen it opens, fills or prints
  void (Shell::*action)() = nullptr;
  int index = 0;  ///< of a recent file, from the latest on
};

/// A button of the launcher in the main window's body (Shell::Launcher).
struct LauncherItem {
  std::string_view subject;
  std::string_view menuItem;
  std::string_view text;
  std::string_view help;  ///< what the screen is for
};

}  // namespace veldox
