#include "ui/theme_follower.h"

#include <QApplication>

#include "ui/desktop_portal.h"
#include "ui/theme.h"

namespace veldox {

ThemeFollower::ThemeFollower() = default;
ThemeFollower::~ThemeFollower() = default;

void ThemeFollower::Choose(LookChoice choice) {
  if (choice == choice_) return;
  choice_ = choice;
  Apply();
}

void ThemeFollower::FollowDesktop(const QDBusConnection& bus) {
  portal_ = std::make_unique<DesktopPortal>(bus, [this] { Apply(); });
  Apply();
}

void ThemeFollower::Apply() const {
  auto& app = *static_cast<QApplication*>(QCoreApplication::instance());
  switch (choice_) {
    case LookChoice::Light: ApplyTheme(app, Theme::Light); break;
    case LookChoice::Dark: ApplyTheme(app, Theme::Dark); break;
    case LookChoice::Desktop:
      ApplyTheme(app, portal_ != nullptr && portal_->prefersDark() ? Theme::SystemElseDark
                                                                   : Theme::System);
      break;
  }
}

}  // namespace veldox
