#include "ui/face.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QScrollArea>
#include <QShortcutEvent>
#include <QWidget>
#include <utility>

#include "ui/qt_text.h"
#include "ui/tool_menu.h"

namespace veldox {
namespace {

/// False for the places that show help and reports: whoever reads them must not wipe them.
bool TakesPointer(const Control& control) {
  return control.kind() != ControlKind::ReportBox && &control != control.screen().HelpPlace();
}

/// A sentence in lines short enough for a tooltip, which breaks none itself.
QString InLines(const QString& sentence) {
  constexpr qsizetype kLongest = 90;
  QString lines;
  qsizetype column = 0;
  for (const QString& word : sentence.split(QLatin1Char(' '))) {
    if (column > 0 && column + word.size() >= kLongest) {
      lines += QLatin1Char('\n');
      column = 0;
    } else if (!lines.isEmpty()) {
      lines += QLatin1Char(' ');
    }
    lines += word;
    column += word.size() + 1;
  }
  return lines;
}

/// Scrolls whatever a widget stands in until it can be seen.
void BringIntoView(QWidget& widget) {
  constexpr int kAir = 8;
  for (QWidget* outer = widget.parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
    if (auto* scroll = qobject_cast<QScrollArea*>(outer)) {
      scroll->ensureWidgetVisible(&widget, kAir, kAir);
    }
  }
}

}  // namespace

bool MovedOnPurpose(Qt::FocusReason reason) {
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

bool CameByKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
         reason == Qt::ShortcutFocusReason;
}

Face::Face(FaceSet& set, Control& control, QWidget* widget)
    : set_(set), control_(control), widget_(widget) {
  widget_->setObjectName(ToQt(control_.name()));
  widget_->setAccessibleName(ToQt(control_.PlainCaption()));
  widget_->installEventFilter(this);
  control_.SetFace(this);
}

Face::~Face() {
  control_.SetFace(nullptr);
}

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
  const auto* command = dynamic_cast<const Command*>(&control_);
  if (command != nullptr && !command->isBuilt()) {
    widget_->setToolTip(QLatin1String(kNotAvailable));
  } else if (control_.kind() != ControlKind::Label) {
    widget_->setToolTip(InLines(help));
  }
  widget_->setAccessibleDescription(help);
  ShowAge();
}

void Face::ShowAge() {
  const bool isOutdated = control_.mark() == Mark::Outdated;
  if (isOutdated) {
    const QString help = widget_->toolTip();
    widget_->setToolTip(QLatin1String(kOutOfDate) +
                        (help.isEmpty() ? help : QLatin1Char('\n') + help));
    widget_->setAccessibleDescription(QLatin1String(kOutOfDate) + QLatin1Char(' ') +
                                      ToQt(control_.help()));
  }
  if (isOutdated == fontBefore_.has_value()) return;
  if (isOutdated) {
    fontBefore_ = widget_->font();
    QFont slanted = *fontBefore_;
    slanted.setItalic(!slanted.italic());
    widget_->setFont(slanted);
  } else {
    widget_->setFont(*std::exchange(fontBefore_, std::nullopt));
  }
}

bool Face::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_) return false;
  switch (event->type()) {
    case QEvent::Enter:
      if (TakesPointer(control_)) control_.screen().Hover(&control_);
      break;
    case QEvent::Shortcut: {
      const auto& shortcut = static_cast<QShortcutEvent&>(*event);
      return shortcut.isAmbiguous() && set_.TakeAccessKey(shortcut.key());
    }
    case QEvent::ContextMenu:
      // A text box adds to its own.
      return control_.kind() == ControlKind::Command &&
             ShowToolMenu(control_, static_cast<QContextMenuEvent*>(event)->globalPos());
    case QEvent::FocusIn: FocusCame(static_cast<QFocusEvent*>(event)->reason()); break;
    case QEvent::KeyPress:
      // The first key after the window came to the front enters the control. What a control
      // has no use for comes by the frames it stands in.
      if (widget_->hasFocus() && control_.screen().focus() != &control_) EnterControl();
      break;
    case QEvent::FocusOut:
      if (MovedOnPurpose(static_cast<QFocusEvent*>(event)->reason())) FocusWent();
      break;
    default: break;
  }
  return false;
}

void Face::FocusCame(Qt::FocusReason reason) {
  // Whatever moved the focus, the user sees where it is; a mouse sees what it clicks.
  if (reason != Qt::MouseFocusReason) BringIntoView(*widget_);
  // A window that comes to the front enters nothing.
  if (!MovedOnPurpose(reason)) return;
  refused_ = !EnterControl();
  if (refused_) return;
  if (CameByKeyboard(reason)) control_.screen().Hover(&control_);
}

bool Face::TakesClick() {
  // The press, or its access key, has brought the focus before, where a field let it go.
  if (control_.screen().focus() == &control_) return true;
  return !std::exchange(refused_, false) && EnterControl();
}

bool Face::EnterControl() {
  Screen& screen = control_.screen();
  if (screen.focus() == &control_ || screen.MoveFocus(&control_)) return true;
  set_.ReturnFocus();
  return false;
}

void Face::FocusWent() {
  // When another control of the window takes over, that one moves the screen's focus; and
  // what a panel covers, or takes with it when it closes, was not left by anybody.
  if (set_.Of(QApplication::focusWidget()) != nullptr || !control_.Reachable()) return;
  Screen& screen = control_.screen();
  if (screen.focus() == &control_ && !screen.MoveFocus(nullptr)) set_.ReturnFocus();
}

void FaceSet::Clear() {
  faces_.clear();
  buttons_.clear();
  preview_ = {};
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

QButtonGroup& FaceSet::ButtonsOf(const OptionGroup& group) {
  std::unique_ptr<QButtonGroup>& buttons = buttons_[&group];
  if (buttons == nullptr) buttons = std::make_unique<QButtonGroup>();
  return *buttons;
}

bool FaceSet::TakeAccessKey(const QKeySequence& key) const {
  if (key.isEmpty()) return false;
  const auto letter = static_cast<char>(QChar(key[0].key()).toLower().toLatin1());
  const Control* target = screen_.AccessKeyTarget(letter);
  const Face* face = target == nullptr ? nullptr : Of(*target);
  auto* button = face == nullptr ? nullptr : qobject_cast<QAbstractButton*>(face->widget());
  if (button == nullptr) return false;
  button->click();
  return true;
}

void FaceSet::ReturnFocus() {
  if (screen_.focus() == nullptr) return;
  if (Face* face = Of(*screen_.focus())) face->FocusRequested(*screen_.focus());
}

}  // namespace veldox
