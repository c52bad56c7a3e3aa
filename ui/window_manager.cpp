#include "ui/window_manager.h"

#include "ui/own_faces.h"

namespace veldox {

WindowManager::WindowManager(Shell& shell) : shell_(shell), pictures_(shell, *this), main_(shell) {
  shell_.context().host.SetPictureMaker(&pictures_);
  shell_.SetFace(this);
  for (Screen* screen : shell_.screens()) screen->SetFace(this);
}

WindowManager::~WindowManager() {
  shell_.context().host.SetPictureMaker(nullptr);
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
  windows_.push_back(std::make_unique<ScreenWindow>(screen, &MakeOwnFace));
  return *windows_.back();
}

Face* WindowManager::FaceOf(const Control& control) {
  if (&control.screen() == &shell_) return main_.faces().Of(control);
  ScreenWindow* window = Find(control.screen());
  return window == nullptr ? nullptr : window->faces().Of(control);
}

void WindowManager::ScreenVisibilityChanged(Screen& screen) {
  if (!screen.visible()) {
    QWidget* window = WindowOf(screen);
    if (window != nullptr && window != &main_) window->hide();
    return;
  }
  QWidget& window = Window(screen);
  if (window.isMinimized()) {
    window.showNormal();
  } else {
    window.show();
  }
  window.raise();
  window.activateWindow();
}

}  // namespace veldox
