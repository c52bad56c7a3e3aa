#pragma once

#include <QButtonGroup>
#include <QFont>
#include <QKeySequence>
#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "core/screen.h"
#include "ui/window_look.h"

class QWidget;

namespace veldox {

class FaceSet;

/// Said of every command, menu item and launcher button whose work is not built yet.
inline constexpr const char* kNotAvailable = "Not available yet";

/// Said of every result that an entry was not followed by.
inline constexpr const char* kOutOfDate = "Out of date: values have been entered since.";

/// True when the user or the program moved the focus to or from a widget itself, and not
/// the window came to the front or a menu opened and closed.
bool MovedOnPurpose(Qt::FocusReason reason);
/// True when a key brought the focus.
bool CameByKeyboard(Qt::FocusReason reason);

/// Stands for one control in a window: shows what the control holds and tells it what
/// the user does. Neither knows more of the other.
class Face : public QObject, public ControlFace {
 public:
  Face(FaceSet& set, Control& control, QWidget* widget);
  ~Face() override;

  Control& control() const { return control_; }
  /// The widget that takes the focus; its object name is the control's name.
  QWidget* widget() const { return widget_; }

  void ControlChanged(Control&) override { Follow(); }
  void FocusRequested(Control&) override;
  /// Shows what the control holds now.
  virtual void Follow();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  FaceSet& set() const { return set_; }
  /// False for a click that goes nowhere, because the field that had the focus keeps it.
  bool TakesClick();

 private:
  /// A result that is out of date has slanted letters, and says so.
  void ShowAge();
  void FocusCame(Qt::FocusReason reason);
  /// Moves the screen's focus here. False when the field that is left keeps it.
  bool EnterControl();
  void FocusWent();

  FaceSet& set_;
  Control& control_;
  QWidget* widget_;
  bool refused_ = false;             ///< a field has kept the focus, and has told why
  std::optional<QFont> fontBefore_;  ///< of a result that is out of date
};

/// The faces of one window. It moves the screen's focus with the keyboard focus and puts
/// it back where a check of the field that was left keeps it.
class FaceSet {
 public:
  explicit FaceSet(Screen& screen) : screen_(screen) {}

  /// How the widgets look that are made from now on.
  const WindowLook& look() const { return look_; }
  void SetLook(WindowLook look) { look_ = std::move(look); }
  /// Lets go of all controls: their widgets are about to be made anew.
  void Clear();

  template <class F, class C, class... Args>
  F& Make(C& control, Args&&... args) {
    auto face = std::make_unique<F>(*this, control, std::forward<Args>(args)...);
    F& made = *face;
    faces_.push_back(std::move(face));
    made.Follow();
    return made;
  }

  /// Who tells what a command would change while the pointer or the keyboard is on it.
  void SetPreview(std::function<void(Command*)> preview) { preview_ = std::move(preview); }
  /// The pointer or the keyboard has come to a command; null when it has left.
  void PointAt(Command* command) const {
    if (preview_) preview_(command);
  }

  Screen& screen() const { return screen_; }
  /// In the order in which they were made; null where a control has none.
  Face* Of(const Control& control) const;
  Face* Of(const QWidget* widget) const;
  const std::vector<std::unique_ptr<Face>>& all() const { return faces_; }
  /// The widgets of an option group whose buttons stand in several places, made one group.
  QButtonGroup& ButtonsOf(const OptionGroup& group);
  /// An access key that several widgets have was pressed: clicks the one of the screen's choice.
  /// False where none of them is a control that can be clicked.
  bool TakeAccessKey(const QKeySequence& key) const;
  /// Gives the keyboard focus back to the control that holds the screen's.
  void ReturnFocus();

 private:
  Screen& screen_;
  WindowLook look_;
  std::vector<std::unique_ptr<Face>> faces_;
  std::map<const OptionGroup*, std::unique_ptr<QButtonGroup>> buttons_;
  std::function<void(Command*)> preview_;
};

}  // namespace veldox
