#include "ui/step_keys.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

#include "core/screen.h"

namespace veldox {

void AddStepKeys(QWidget& window, History& history) {
  const auto add = [&](const QKeySequence& keys, void (History::*step)()) {
    auto* shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window,
                     [&history, step] { (history.*step)(); });
  };
  add(QKeySequence(Qt::CTRL | Qt::Key_Z), &History::Undo);
  add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), &History::Redo);
  add(QKeySequence(Qt::CTRL | Qt::Key_Y), &History::Redo);
}

int StepOf(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Undo)) return -1;
  const bool isRedo = event.matches(QKeySequence::Redo) ||
                      (event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier);
  return isRedo ? 1 : 0;
}

bool TakeStep(TextControl& control, int step, bool boxCan) {
  History& history = control.screen().context().history;
  if (boxCan && history.IsTyping(control)) return false;
  step < 0 ? history.Undo() : history.Redo();
  return true;
}

}  // namespace veldox
