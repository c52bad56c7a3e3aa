#include "ui/window_driver.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QEnterEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>

#include "core/files.h"
#include "core/table.h"
#include "script/script_host.h"
#include "ui/field_edit.h"
#include "ui/menu_rows.h"
#include "ui/pick_list_face.h"
#include "ui/qt_text.h"
#include "ui/title_area.h"

namespace veldox {
namespace {

/// Lets everything happen that the last event has set off.
void Settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at) {
  const bool pressed = type == QEvent::MouseButtonPress;
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, widget.mapTo(widget.window(), at), widget.mapToGlobal(at), button,
                    pressed ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

/// Where a click turns a button over: on its sign or caption, at the left.
QPoint HotSpot(const QWidget& widget) {
  return QPoint(std::min(12, widget.width() / 2), widget.height() / 2);
}

}  // namespace

bool WindowDriver::InputGuard::eventFilter(QObject*, QEvent* event) {
  if (!event->spontaneous()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::HoverLeave:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ToolTip: return true;
    default: return false;
  }
}

WindowDriver::WindowDriver(Shell& shell) : windows_(shell), model_(shell) {
  qApp->installEventFilter(&guard_);
}

WindowDriver::~WindowDriver() = default;

QWidget* WindowDriver::WidgetOf(Control& control) {
  Face* face = windows_.FaceOf(control);
  if (face == nullptr || !face->widget()->isVisible()) return nullptr;
  QApplication::setActiveWindow(face->widget()->window());
  return face->widget();
}

bool WindowDriver::Enter(Control& control, QWidget& widget, Qt::FocusReason reason) {
  if (widget.hasFocus() && control.screen().focus() != &control) {
    // The window gave it the focus when it opened; nobody has entered it yet.
    QFocusEvent enter(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(&widget, &enter);
  } else {
    widget.setFocus(reason);
  }
  Settle();
  return control.screen().focus() == &control;
}

void WindowDriver::SendKey(Key key) {
  QWidget* widget = QApplication::focusWidget();
  if (widget == nullptr) return;
  int code = 0;
  QString text;
  switch (key) {
    case kBackspace: code = Qt::Key_Backspace; break;
    case kTab: code = Qt::Key_Tab; break;
    case kEnter: code = Qt::Key_Return; break;
    case U' ': code = Qt::Key_Space; break;
    default: break;
  }
  text = QString::fromUcs4(&key, 1);
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, code, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &event);
  }
  Settle();
}

void WindowDriver::PointAt(QWidget& widget) {
  if (pointed_ != nullptr && pointed_ != &widget) {
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(pointed_, &leave);
    pointed_->setAttribute(Qt::WA_UnderMouse, false);
    pointed_->update();
  }
  pointed_ = &widget;
  const QPoint at = HotSpot(widget);
  QEnterEvent enter(at, widget.mapTo(widget.window(), at), widget.mapToGlobal(at));
  QCoreApplication::sendEvent(&widget, &enter);
}

void WindowDriver::ChooseMenu(const MenuItem& item) {
  QAction* action = windows_.main().ActionOf(item);
  if (action != nullptr && action->menu() == nullptr) action->trigger();
  // A submenu opens nothing by itself, but its launcher button does.
  if (action != nullptr && action->menu() != nullptr) model_.ChooseMenu(item);
  Settle();
}

void WindowDriver::Set(TextControl& field, const std::string& text) {
  if (!field.enabled()) return;
  QWidget* widget = WidgetOf(field);
  if (widget == nullptr) {
    model_.Set(field, text);
    Settle();  // the model may have asked for the focus
    return;
  }
  if (!Enter(field, *widget, Qt::OtherFocusReason)) return;
  const bool fillsTable = Table::Of(field) != nullptr && Table::IsBlock(text);
  if (fillsTable) {
    model_.Set(field, text);
    return Settle();
  }
  if (auto* edit = dynamic_cast<FieldEdit*>(widget)) edit->Replace(ToQt(text));
  if (auto* lines = dynamic_cast<LinesEdit*>(widget)) lines->Replace(ToQtLines(text));
  Settle();
}

void WindowDriver::Type(Control& control, const std::vector<Key>& keys) {
  if (!control.enabled()) return;
  QWidget* widget = WidgetOf(control);
  if (widget == nullptr) {
    model_.Type(control, keys);
    Settle();  // the model may have asked for the focus
    return;
  }
  // A field that has the focus is entered again: its text is selected as by a tab to it.
  if (widget->hasFocus()) {
    QFocusEvent again(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(widget, &again);
  }
  if (!Enter(control, *widget, Qt::TabFocusReason)) return;
  for (const Key key : keys) {
    if (control.screen().focus() != &control) return;
    SendKey(key);
  }
}

void WindowDriver::Leave(TextControl& field) {
  QWidget* widget = WidgetOf(field);
  if (widget == nullptr) {
    model_.Leave(field);
    Settle();  // the model may have asked for the focus
    return;
  }
  if (field.screen().focus() != &field && !Enter(field, *widget, Qt::TabFocusReason)) return;
  if (!widget->hasFocus()) widget->setFocus(Qt::OtherFocusReason);
  widget->clearFocus();
  Settle();
}

void WindowDriver::Press(Control& control, Key key) {
  QWidget* widget = control.enabled() ? WidgetOf(control) : nullptr;
  if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) {
    model_.Press(control, key);
    Settle();  // the model may have asked for the focus
    return;
  }
  if ((control.screen().focus() != &control || !widget->hasFocus()) &&
      !Enter(control, *widget, Qt::TabFocusReason)) {
    return;
  }
  SendKey(key);
}

void WindowDriver::Click(Control& control) {
  if (!control.enabled() || !control.Reachable()) return;
  QWidget* widget = WidgetOf(control);
  if (widget == nullptr) {
    model_.Click(control);
    Settle();  // the model may have asked for the focus
    return;
  }
  const QPoint at = HotSpot(*widget);
  PointAt(*widget);
  if (!Enter(control, *widget, Qt::MouseFocusReason)) return;
  SendMouse(*widget, QEvent::MouseButtonPress, at);
  SendMouse(*widget, QEvent::MouseButtonRelease, at);
  Settle();
}

void WindowDriver::Select(ComboList& list, int row) {
  if (!list.enabled()) return;
  QWidget* widget = WidgetOf(list);
  if (widget == nullptr) {
    model_.Select(list, row);
    Settle();  // the model may have asked for the focus
    return;
  }
  if (!Enter(list, *widget, Qt::OtherFocusReason)) return;
  if (list.kind() == ControlKind::PickList) {
    PickView& view = *static_cast<PickListFace*>(windows_.FaceOf(list))->view();
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    const QPoint at = view.visualRect(index).center();
    SendMouse(*view.viewport(), QEvent::MouseButtonPress, at);
    SendMouse(*view.viewport(), QEvent::MouseButtonRelease, at);
  } else {
    auto* combo = static_cast<QComboBox*>(widget);
    combo->setCurrentIndex(row);
    Q_EMIT combo->activated(row);
  }
  Settle();
}

void WindowDriver::Hover(Screen& screen, Control* control) {
  QWidget* widget = control == nullptr ? nullptr : WidgetOf(*control);
  if (widget == nullptr || control->kind() == ControlKind::ReportBox ||
      control == screen.HelpPlace()) {
    model_.Hover(screen, control);
  } else {
    PointAt(*widget);
  }
  Settle();
}

bool WindowDriver::Picture(Screen& screen, const std::filesystem::path& path) {
  QWidget* window = windows_.WindowOf(screen);
  if (window == nullptr || !window->isVisible()) return false;
  windows_.main().titleArea().Finish();
  Settle();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!window->grab().save(&buffer, "PNG")) return false;
  try {
    SaveFile(path, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  } catch (const CommandError& error) {
    throw ScriptError(error.message());
  }
  return true;
}

}  // namespace veldox
