#pragma once

// What the tests of windows share: an application without a display, on a screen as small
// as the smallest that VELDOX is made for, and a world in which every box that a test did
// not announce is a failure. One test program includes this once.

#include <gtest/gtest.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <functional>
#include <string>

#include "program/program.h"
#include "tests/support/test_host.h"
#include "ui/qt_text.h"
#include "ui/theme.h"
#include "ui/window_manager.h"

namespace veldox::testing {

inline constexpr int kScreenWidth = 1366;
inline constexpr int kScreenHeight = 728;  // 768 without a task bar

inline void Settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

/// Runs the event loop until a condition holds. False when it never did.
inline bool WaitFor(const std::function<bool()>& condition) {
  QElapsedTimer clock;
  clock.start();
  while (!condition()) {
    if (clock.elapsed() > 20'000) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  }
  return true;
}

inline void PressKey(QWidget& widget, int key, const QString& text = {},
                     Qt::KeyboardModifiers held = Qt::NoModifier) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, held, text);
    QCoreApplication::sendEvent(&widget, &event);
  }
  Settle();
}

inline void TypeText(QWidget& widget, const char* text) {
  for (const QChar c : QString::fromUtf8(text)) PressKey(widget, 0, QString(c));
}

inline void Mouse(QWidget& widget, QEvent::Type type, QPoint at = QPoint(8, 8)) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, widget.mapTo(widget.window(), at), widget.mapToGlobal(at), button,
                    type == QEvent::MouseButtonPress ? button : Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

inline void ClickOn(QWidget& widget) {
  // The window system gives the focus before it hands on the press.
  if ((widget.focusPolicy() & Qt::ClickFocus) != 0) widget.setFocus(Qt::MouseFocusReason);
  Mouse(widget, QEvent::MouseButtonPress);
  Mouse(widget, QEvent::MouseButtonRelease);
  Settle();
}

inline void Wheel(QWidget& widget, int steps) {
  const QPointF at(8, 8);
  QWheelEvent event(at, widget.mapToGlobal(at), QPoint(), QPoint(0, 120 * steps), Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&widget, &event);
  Settle();
}

inline void EnterWidget(QWidget& widget) {
  const QPointF at(4, 4);
  QEnterEvent event(at, at, widget.mapToGlobal(at));
  QCoreApplication::sendEvent(&widget, &event);
}

/// The started program with its windows.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() {
    host.folder = folder_.path();
    program.emplace(host);
    windows.emplace(program->shell());
    program->Start();
    Settle();
  }
  ~WindowTest() override {
    std::vector<std::string> shown;
    for (const Message& message : host.messages) shown.push_back(message.text);
    EXPECT_EQ(shown, expected_);
  }

  /// Announces a box. Those that come must be those announced, in their order.
  void ExpectBox(std::string text, Button answer = Button::OK) {
    host.Answer(answer);
    expected_.push_back(std::move(text));
  }

  Shell& shell() { return program->shell(); }

  /// Opens a screen by its menu item. @return its window
  QWidget& Open(const char* menuItem) {
    const MenuItem* item = Shell::FindMenuItem(menuItem);
    shell().Choose(*item);
    Settle();
    QWidget* window = windows->WindowOf(*shell().FindScreen(item->screen));
    QApplication::setActiveWindow(window);
    Settle();
    return *window;
  }

  template <class T = QWidget>
  static T& Child(QWidget& window, const char* name) {
    T* child = window.findChild<T*>(QLatin1String(name));
    if (child == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *child;
  }

  template <class T>
  T& Model(const char* qualifiedName) {
    return dynamic_cast<T&>(*shell().FindControl(qualifiedName));
  }

 private:
  TemporaryFolder folder_;
  std::vector<std::string> expected_;

 protected:
  TestHost host;
  std::optional<Program> program;
  std::optional<WindowManager> windows;
};

}  // namespace veldox::testing

int main(int argc, char** argv) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("screen.json"));
  QFile configuration(file);
  if (!configuration.open(QIODevice::WriteOnly)) return 1;
  configuration.write(
      QStringLiteral("{\"screens\":[{\"name\":\"small\",\"x\":0,\"y\":0,\"width\":%1,\"height\":%2,"
                     "\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":1}]}")
          .arg(veldox::testing::kScreenWidth)
          .arg(veldox::testing::kScreenHeight)
          .toUtf8());
  configuration.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.toUtf8());
  QApplication app(argc, argv);
  veldox::ApplyTheme(app, veldox::Theme::Light);
  QApplication::setQuitOnLastWindowClosed(false);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
