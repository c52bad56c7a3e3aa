#include "ui/face.h"

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

#include "ui/qt_text.h"

namespace veldox {
namespace {

/// False for what only holds or names other controls.
bool TakesPointer(const Control& control) {
  switch (control.kind()) {
    case ControlKind::Frame:
    case ControlKind::OptionGroup:
    case ControlKind::Label:
    case ControlKind::ReportBox:
      return false;
    default:
      return true;
  }
}

}  // namespace

Face::Face(FaceSet& set, Control& control, QWidget* widget)
    : set_(set), control_(control), widget_(widget) {
  widget_->setObjectName(ToQt(control_.name()));
  widget_->setAccessibleName(ToQt(control_.PlainCaption()));
  widget_->installEventFilter(this);
  control_.SetFace(this);
}

Face::~Face() { control_.SetFace(nullptr); }

void Face::FocusRequested(Control&) {
  // The program may ask in the middle of a change of focus; that has to end first.
  QMetaObject::invokeMethod(
      widget_,
      [widget = widget_] {
        if (!widget->isVisible()) return;
        widget->activateWindow();
        widget->setFocus(Qt::OtherFocusReason);
      },
      Qt::QueuedConnection);
}

void Face::Follow() {
  widget_->setVisible(control_.visible());
  widget_->setEnabled(control_.enabled());
  const QString help = ToQt(control_.help());
  if (control_.kind() == ControlKind::Command && !control_.enabled()) {
    widget_->setToolTip(QLatin1String(kNotAvailable));
  } else if (control_.kind() != ControlKind::Label) {
    widget_->setToolTip(help);
  }
  widget_->setAccessibleDescription(help);
}

bool Face::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_) return false;
  switch (event->type()) {
    case QEvent::Enter:
      if (TakesPointer(control_)) control_.screen().Hover(&control_);
      break;
    case QEvent::FocusIn:
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) FocusCame();
      break;
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) FocusWent();
      break;
    }
    default:
      break;
  }
  return false;
}

void Face::FocusCame() {
  Screen& screen = control_.screen();
  if (screen.focus() != &control_ && !screen.MoveFocus(&control_)) {
    set_.ReturnFocus();
    return;
  }
  if (!control_.help().empty()) screen.Hover(&control_);
}

void Face::FocusWent() {
  // When another control of the window takes over, that one moves the screen's focus.
  if (set_.Of(QApplication::focusWidget()) != nullptr) return;
  Screen& screen = control_.screen();
  if (screen.focus() == &control_ && !screen.MoveFocus(nullptr)) set_.ReturnFocus();
}

Face* FaceSet::Of(const Control& control) const {
  for (const auto& face : faces_) {
    if (&face->control() == &control) return face.get();
  }
  return nullptr;
}

Face* FaceSet::Of(const QWidget* widget) const {
  if (widget == nullptr) return nullptr;
  for (const auto& face : faces_) {
    if (face->widget() == widget) return face.get();
  }
  return nullptr;
}

void FaceSet::ReturnFocus() {
  if (screen_.focus() == nullptr) return;
  if (Face* face = Of(*screen_.focus())) face->FocusRequested(*screen_.focus());
}

}  // namespace veldox
