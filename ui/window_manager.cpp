#include "ui/window_manager.h"

#include <QApplication>
#include <QWindow>

#include "ui/own_faces.h"
#include "ui/theme.h"
#include "ui/window_place.h"

namespace veldox {

WindowManager::WindowManager(Shell& shell) : shell_(shell), pictures_(shell, *this), main_(shell) {
  shell_.context().host.SetPictureMaker(&pictures_);
  main_.SetThemeListener([this] { theme_.Choose(shell_.settings().look); });
  main_.SetLookListener([this] {
    if (following_) return;
    following_ = true;
    // What has changed the look may be in the middle of its own event.
    QMetaObject::invokeMethod(
        &main_, [this] { FollowAppearance(); }, Qt::QueuedConnection);
  });
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &main_, [this](QWindow* front) {
    for (const auto& window : windows_) {
      if (front != nullptr && window->windowHandle() == front)
        shell_.context().NoteVisit(window->screen());
    }
  });
  KeepCurrent& current = shell_.context().current;
  current.SetScheduler([this](std::chrono::milliseconds rest) { ScheduleRun(rest); });
  rest_.setSingleShot(true);
  rest_.callOnTimeout([&current] { current.Run(true); });
  shell_.SetFace(this);
  for (Screen* screen : shell_.screens()) screen->SetFace(this);
}

WindowManager::~WindowManager() {
  shell_.context().host.SetPictureMaker(nullptr);
  shell_.context().current.SetScheduler({});
  shell_.SetFace(nullptr);
  for (Screen* screen : shell_.screens()) screen->SetFace(nullptr);
}

ScreenWindow* WindowManager::Find(const Screen& screen) const {
  for (const auto& window : windows_) {
    if (&window->screen() == &screen) return window.get();
  }
  return nullptr;
}

QWidget* WindowManager::WindowOf(const Screen& screen) {
  if (&screen == &shell_) return &main_;
  return Find(screen);
}

QWidget& WindowManager::Window(Screen& screen) {
  if (QWidget* window = WindowOf(screen)) return *window;
  windows_.push_back(std::make_unique<ScreenWindow>(
      screen, &MakeOwnFace, AppearanceOf(shell_.block()), shell_.scaling()));
  return *windows_.back();
}

Face* WindowManager::FaceOf(const Control& control) {
  if (&control.screen() == &shell_) return main_.faces().Of(control);
  ScreenWindow* window = Find(control.screen());
  return window == nullptr ? nullptr : window->faces().Of(control);
}

void WindowManager::ScheduleRun(std::chrono::milliseconds rest) {
  if (rest.count() > 0) {
    rest_.start(rest);
    return;
  }
  QMetaObject::invokeMethod(
      &main_, [this] { shell_.context().current.Run(false); }, Qt::QueuedConnection);
}

void WindowManager::FollowAppearance() {
  following_ = false;
  const Appearance appearance = AppearanceOf(shell_.block());
  ApplyBorders(appearance);
  main_.SetAppearance(appearance);
  std::erase_if(windows_, [&](const auto& window) {
    return !window->isVisible() && window->faces().look().appearance() != appearance;
  });
  for (const auto& window : windows_) window->SetAppearance(appearance);
}

void WindowManager::ScreenVisibilityChanged(Screen& screen) {
  if (!screen.visible()) {
    QWidget* window = WindowOf(screen);
    if (window == nullptr || window == &main_) return;
    if (window->isVisible()) {
      const bool sizedByUser = static_cast<ScreenWindow*>(window)->sizedByUser();
      shell_.settings().places[screen.name()] = PlaceOf(*window, sizedByUser);
    }
    window->hide();
    return;
  }
  const ScreenScaling::Mode mode = shell_.scaling().ModeOf(shell_.block());
  // A window that was closed opens as the screen's size says now.
  std::erase_if(windows_, [&](const auto& each) {
    return &each->screen() == &screen && !each->isVisible() && each->mode() != mode;
  });
  QWidget& window = Window(screen);
  const auto& places = shell_.settings().places;
  if (const auto place = places.find(screen.name()); !window.isVisible() && place != places.end()) {
    PutInPlace(window, place->second);
  }
  if (window.isMinimized()) {
    window.showNormal();
  } else {
    window.show();
  }
  window.raise();
  window.activateWindow();
}

}  // namespace veldox
