#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/screen.h"

class QMenu;

namespace veldox {

/// The text box of a field. Every typed key goes through the field's rule first; what the
/// user did to the text is told to the field.
class FieldEdit : public QLineEdit {
 public:
  FieldEdit(TextControl& field, QWidget* parent);

  /// True for fields that show results and take no typing.
  bool output() const { return field_.rule() == KeyRule::OutputOnly; }
  Mark mark() const { return field_.mark(); }
  /// True for a result that stands on the window without a box.
  bool plain() const { return plain_; }
  /// True while it is one of several cells that are selected together.
  bool inRange() const { return inRange_; }
  void SetInRange(bool inRange);
  /// Shows what the field holds now.
  void Follow();
  /// Tells assistive tools the field's name, and its help and unit as eyes see them.
  void Describe(const Field& field);
  /// Replaces the whole text as the user's own doing.
  void Replace(const QString& text);

 protected:
  TextControl& field() const { return field_; }
  /// Adds to the menu of the right mouse button before it opens.
  virtual void ExtendMenu(QMenu&) {}
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;

 private:
  void SetMouseDown(bool down);

  TextControl& field_;
  bool plain_;
  bool inRange_ = false;
};

/// A text over several lines. Read-only ones (reports) hand every key to their control.
class LinesEdit : public QPlainTextEdit {
 public:
  LinesEdit(TextControl& control, QWidget* parent);

  /// Replaces the whole text as the user's own doing.
  void Replace(const QString& text);
  /// Shows a text that the program has set.
  void Show(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;

 private:
  TextControl& control_;
  bool showing_ = false;
};

}  // namespace veldox
