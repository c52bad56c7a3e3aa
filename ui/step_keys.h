#pragma once

class QKeyEvent;
class QWidget;

namespace veldox {

class History;
class TextControl;

/// Gives a window the keys that undo steps and take them again: Ctrl+Z, Ctrl+Shift+Z and Ctrl+Y.
void AddStepKeys(QWidget& window, History& history);

/// Which of the keys an event is: -1 undoes, 1 takes again, 0 is none of them.
int StepOf(const QKeyEvent& event);
/// Undoes or redoes a step, or says that the text box has to take its typing back.
/// @param step  from `StepOf`
/// @return false where the box is to do it itself
bool TakeStep(TextControl& control, int step, bool boxCan);

}  // namespace veldox
