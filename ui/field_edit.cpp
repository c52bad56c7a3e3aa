#include "ui/field_edit.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <memory>

#include "core/results.h"
#include "ui/face.h"
#include "ui/file_drop.h"
#include "ui/qt_text.h"
#include "ui/step_keys.h"
#include "ui/tool_menu.h"

namespace veldox {
namespace {

constexpr char32_t kBackspaceKey = 8;
constexpr char32_t kEnterKey = 13;
constexpr char32_t kEscapeKey = 27;

/// A typed text after the control's rule has gone over each of its characters.
QString Filtered(TextControl& control, const QString& typed) {
  QString passed;
  for (const uint code : typed.toUcs4()) {
    const char32_t key = control.FilterKey(static_cast<char32_t>(code));
    if (key != 0) passed += QString::fromUcs4(&key, 1);
  }
  return passed;
}

/// True for a key that types a character (and is no shortcut). Whatever the text box would put
/// in counts, also one half of a pair and signs that join others, as emoji have them.
bool TypesText(const QKeyEvent& event) {
  if (event.text().isEmpty() || event.text().front().category() == QChar::Other_Control) {
    return false;
  }
  const Qt::KeyboardModifiers held = event.modifiers();
  // The right Alt key of many keyboards comes as Ctrl and Alt together and types.
  const bool control = held.testFlag(Qt::ControlModifier);
  return control == held.testFlag(Qt::AltModifier);
}

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

FieldEdit::FieldEdit(TextControl& field, QWidget* parent)
    : QLineEdit(parent),
      field_(field),
      plain_(dynamic_cast<const ResultLabel*>(&field) != nullptr) {
  setTextMargins(3, 0, 3, 0);
  // Results are for reading: dragging them about would take them away.
  setDragEnabled(false);
  connect(this, &QLineEdit::textEdited, this,
          [this](const QString& now) { field_.Edit(FromQt(now)); });
}

void FieldEdit::SetInRange(bool inRange) {
  if (inRange == inRange_) return;
  inRange_ = inRange;
  update();
}

void FieldEdit::Follow() {
  setAcceptDrops(!output());
  if (const QString shown = ToQt(field_.text()); shown != text()) {
    setText(shown);
    if (!hasFocus()) home(false);
  }
  update();
}

void FieldEdit::Describe(const Field& field) {
  const QString help = ToQt(field.help());
  const QString unit = ToQt(UnitSign(field.unit(), field.screen().metric()));
  setAccessibleName(ToQt(field.PlainCaption()));
  QString description =
      help.isEmpty() || unit.isEmpty() ? help + unit : help + QLatin1Char(' ') + unit;
  if (mark() == Mark::Outdated) description.prepend(QLatin1String(kOutOfDate) + QLatin1Char(' '));
  setAccessibleDescription(description);
}

void FieldEdit::Replace(const QString& text) {
  selectAll();
  if (text.isEmpty()) {
    del();
  } else {
    insert(text);
  }
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(*event)) {
    field_.FilterKey(kEnterKey);
    event->accept();
    return;
  }
  if (output() && event->matches(QKeySequence::Paste)) {
    event->accept();
    return;
  }
  if (const int step = StepOf(*event); step != 0) {
    const bool boxCan = !output() && (step < 0 ? isUndoAvailable() : isRedoAvailable());
    if (!TakeStep(field_, step, boxCan)) step < 0 ? undo() : redo();
    event->accept();
    return;
  }
  if (event->key() == Qt::Key_Backspace) {
    if (field_.FilterKey(kBackspaceKey) != 0) QLineEdit::keyPressEvent(event);
    return;
  }
  if (TypesText(*event)) {
    const QString typed = Filtered(field_, event->text());
    if (!typed.isEmpty()) insert(typed);
    event->accept();
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void FieldEdit::inputMethodEvent(QInputMethodEvent* event) {
  if (event->commitString().isEmpty()) {
    // A text under composition is shown where it may be committed later.
    if (!output()) QLineEdit::inputMethodEvent(event);
    return;
  }
  QInputMethodEvent passed;
  passed.setCommitString(Filtered(field_, event->commitString()));
  QLineEdit::inputMethodEvent(&passed);
}

void FieldEdit::focusInEvent(QFocusEvent* event) {
  // The focus arrives before the press that brought it.
  if (event->reason() == Qt::MouseFocusReason) SetMouseDown(true);
  QLineEdit::focusInEvent(event);
  // Coming back to the window leaves caret and selection as they were; a field that was
  // not entered before is entered now.
  if (!MovedOnPurpose(event->reason()) && field_.screen().focus() == &field_) return;
  // Typing of before is a step by now, and not the box's to take back.
  if (isUndoAvailable() || isRedoAvailable()) setText(text());
  if (field_.Enter()) {
    selectAll();
  } else {
    deselect();
  }
}

void FieldEdit::focusOutEvent(QFocusEvent* event) {
  SetMouseDown(false);
  QLineEdit::focusOutEvent(event);
}

void FieldEdit::mousePressEvent(QMouseEvent* event) {
  SetMouseDown(true);
  QLineEdit::mousePressEvent(event);
}

void FieldEdit::mouseReleaseEvent(QMouseEvent* event) {
  SetMouseDown(false);
  // The middle button would paste into a result.
  if (output() && event->button() == Qt::MiddleButton) return;
  QLineEdit::mouseReleaseEvent(event);
}

void FieldEdit::contextMenuEvent(QContextMenuEvent* event) {
  SetMouseDown(false);
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  if (output()) {
    for (const char* name : {"edit-paste", "edit-undo", "edit-redo"}) {
      if (auto* action = menu->findChild<QAction*>(QLatin1String(name))) action->setVisible(false);
    }
  }
  ExtendMenu(*menu);
  AddTools(*menu, field_);
  menu->exec(event->globalPos());
}

void FieldEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (HoldsFiles(*event->mimeData())) {
    event->ignore();  // the window takes it
  } else {
    QLineEdit::dragEnterEvent(event);
  }
}

void FieldEdit::SetMouseDown(bool down) {
  field_.screen().block().FieldMouseDown = down ? 1 : 0;
}

LinesEdit::LinesEdit(TextControl& control, QWidget* parent)
    : QPlainTextEdit(parent), control_(control) {
  setTabChangesFocus(true);
  if (control.rule() == KeyRule::OutputOnly) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (control.kind() == ControlKind::ReportBox) setLineWrapMode(QPlainTextEdit::NoWrap);
    setUndoRedoEnabled(false);
  }
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    if (!showing_) control_.Edit(FromQtLines(toPlainText()));
  });
}

void LinesEdit::Replace(const QString& text) {
  if (!control_.CanHold(FromQtLines(text))) return;
  selectAll();
  insertPlainText(text);
}

void LinesEdit::Show(const QString& text) {
  if (text == toPlainText()) return;
  showing_ = true;
  setPlainText(text);
  showing_ = false;
  if (!isReadOnly()) moveCursor(QTextCursor::End);
}

void LinesEdit::keyPressEvent(QKeyEvent* event) {
  if (const int step = StepOf(*event); step != 0) {
    const bool boxCan = step < 0 ? document()->isUndoAvailable() : document()->isRedoAvailable();
    if (!TakeStep(control_, step, boxCan)) step < 0 ? undo() : redo();
    event->accept();
    return;
  }
  char32_t key = 0;
  if (IsEnter(*event)) {
    key = kEnterKey;
  } else if (event->key() == Qt::Key_Backspace) {
    key = kBackspaceKey;
  } else if (event->key() == Qt::Key_Escape && control_.kind() == ControlKind::ReportBox) {
    key = kEscapeKey;
  }
  if (key != 0) {
    if (control_.FilterKey(key) != 0) QPlainTextEdit::keyPressEvent(event);
    return;
  }
  if (TypesText(*event)) {
    const QString typed = Filtered(control_, event->text());
    if (!isReadOnly() && !typed.isEmpty()) insertPlainText(typed);
    event->accept();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void LinesEdit::insertFromMimeData(const QMimeData* source) {
  // A text that is too long is refused before any work is spent on it.
  const QTextCursor cursor = textCursor();
  QString text = toPlainText();
  text.replace(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(),
               source->text());
  if (control_.CanHold(FromQtLines(text))) QPlainTextEdit::insertFromMimeData(source);
}

void LinesEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (HoldsFiles(*event->mimeData())) {
    event->ignore();  // the window takes it
  } else {
    QPlainTextEdit::dragEnterEvent(event);
  }
}

void LinesEdit::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  update();  // its frame shows the focus
}

void LinesEdit::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  update();
}

}  // namespace veldox
