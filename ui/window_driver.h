#pragma once

#include <QObject>
#include <QPointer>

#include "script/model_driver.h"
#include "ui/window_manager.h"

namespace veldox {

/// Works real windows with real key and mouse events. What has no widget on the screen
/// (a window that was never opened, a panel that is closed) is worked as a ModelDriver
/// works it.
class WindowDriver : public Driver {
 public:
  explicit WindowDriver(Shell& shell);
  ~WindowDriver() override;

  WindowManager& windows() { return windows_; }

  void ChooseMenu(const MenuItem& item) override;
  void Set(TextControl& field, const std::string& text) override;
  void Type(Control& control, const std::vector<Key>& keys) override;
  void Leave(TextControl& field) override;
  void Press(Control& control, Key key) override;
  void Click(Control& control) override;
  void Select(ComboList& list, int row) override;
  void Hover(Screen& screen, Control* control) override;
  bool Picture(Screen& screen, const std::filesystem::path& path) override;

 private:
  /// Keeps a person's mouse and keyboard out of a running script.
  class InputGuard : public QObject {
   public:
    bool eventFilter(QObject* watched, QEvent* event) override;
  };

  /// The widget that stands for a control and can be worked now, brought to the front;
  /// null where there is none.
  QWidget* WidgetOf(Control& control);
  /// Gives a widget the focus. False when the field that had it keeps it.
  bool Enter(Control& control, QWidget& widget, Qt::FocusReason reason);
  void SendKey(Key key);
  /// Moves the pointer onto a widget.
  void PointAt(QWidget& widget);

  InputGuard guard_;
  WindowManager windows_;
  ModelDriver model_;
  QPointer<QWidget> pointed_;
};

}  // namespace veldox
