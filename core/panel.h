#pragma once

#include <concepts>
#include <string>
#include <utility>

#include "core/screen.h"

namespace veldox {

/// Controls that a command shows over the page of its screen and that its own closing command,
/// or Escape, puts away again. A panel opened from a panel lies on top of it; the lower one
/// stays shown and is back in sight when the upper one goes. Nothing is reset by either, and
/// fields of a panel that is not shown can be read and set all the time.
///
/// Its closing command is the first one in it that is declared with `PutsAway()` or with a
/// routine of the role `CommandRole::Closes`.
class Panel : public Frame {
 public:
  Panel(Screen& screen, std::string name, std::string caption);

  /// Shows it on top, and gives its first control the focus.
  void Open();
  /// Puts it away; what had the focus when it was opened has it again.
  void PutAway();
  /// Clicks its closing command; without one that can be clicked it is only put away.
  void Done();
  /// Its closing command, null where it has none.
  Command* closingCommand() const;

 private:
  // Showing and putting away have an order to keep.
  using Control::SetVisible;
  bool isOpen() const;

  Control* before_ = nullptr;  // what had the focus when it opened
};

/// One of several pages that take turns in a screen. The first that is declared shows at the
/// start. Frames of the screen itself, which are those with the commands that turn the pages,
/// show beside every page.
class ScreenPage : public Frame {
 public:
  ScreenPage(Screen& screen, std::string name, std::string caption);

  /// Shows it in place of the others.
  void Open();
};

/// A part of a screen that stands on a page of its own.
template <class P>
concept HasPage = requires(const P& part) {
  { part.page() } -> std::same_as<const ScreenPage&>;
};

/// The work of a command that opens a panel or a page: `Opens(&Form4::Frame3)`.
template <class S, class P>
CommandWork Opens(P S::*sheet) {
  const auto in = [sheet](Screen& screen) -> P& { return static_cast<S&>(screen).*sheet; };
  CommandWork work([in](Screen& screen, int) { in(screen).Open(); }, CommandRole::Serves);
  if constexpr (std::derived_from<P, ScreenPage>) {
    return std::move(work).TurnsTo([in](Screen& screen) { return &in(screen); });
  } else if constexpr (HasPage<P>) {
    return std::move(work).TurnsTo([in](Screen& screen) { return &in(screen).page(); });
  } else {
    return work;
  }
}

/// The work of a command that puts the panel away that it stands in.
CommandWork PutsAway();

}  // namespace veldox
