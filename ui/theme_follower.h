#pragma once

#include <QDBusConnection>
#include <memory>

#include "core/settings.h"

namespace veldox {

class DesktopPortal;

/// Keeps the windows light or dark as the user has chosen, or as the desktop is.
class ThemeFollower {
 public:
  ThemeFollower();
  ~ThemeFollower();

  /// Nothing for what is chosen already.
  void Choose(LookChoice choice);
  /// Follows the settings portal where the toolkit tells no colours of the desktop.
  void FollowDesktop(const QDBusConnection& bus);

 private:
  void Apply() const;

  LookChoice choice_ = LookChoice::Desktop;
  std::unique_ptr<DesktopPortal> portal_;
};

}  // namespace veldox
