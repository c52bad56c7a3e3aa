#include "ui/window_manager.h"

namespace veldox {

WindowManager::WindowManager(Shell& shell) : shell_(shell), main_(shell) {
  shell_.SetFace(this);
  for (Screen* screen : shell_.screens()) screen->SetFace(this);
}

WindowManager::~WindowManager() {
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

Face* WindowManager::FaceOf(const Control& control) {
  if (&control.screen() == &shell_) return main_.faces().Of(control);
  ScreenWindow* window = Find(control.screen());
  return window == nullptr ? nullptr : window->faces().Of(control);
}

void WindowManager::ScreenVisibilityChanged(Screen& screen) {
  QWidget* window = WindowOf(screen);
  if (!screen.visible()) {
    if (window != nullptr && window != &main_) window->hide();
    return;
  }
  if (window == nullptr) {
    windows_.push_back(std::make_unique<ScreenWindow>(screen));
    window = windows_.back().get();
  }
  if (window->isMinimized()) {
    window->showNormal();
  } else {
    window->show();
  }
  window->raise();
  window->activateWindow();
}

}  // namespace veldox
