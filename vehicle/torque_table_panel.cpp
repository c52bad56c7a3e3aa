#include "vehicle/torque_table_panel.h"

namespace veldox {

TorqueTablePanel::TorqueTablePanel(Screen& screen) : ScreenPart(screen) {}

void TorqueTablePanel::Open() {
  Follow();
  TorqueFrame.Open();
  TorqueText.Focus();
}

void TorqueTablePanel::Follow() {
  if (TorqueText.text() == *shown_ && block().FormsCleared != 1) ShowTable();
}

void TorqueTablePanel::ShowTable() {
  const std::vector<TorquePoint> points = TorquePoints(block());
  shown_ = TorqueTableText(points, mark());
  TorqueText.SetText(shown_);
  TorquePeaks.SetCaption("In use: " + TorquePeaksText(points, mark()) + '.');
}

void TorqueTablePanel::TakeTable() {
  // The text may hold fewer digits than the table.
  if (TorqueText.text() == *shown_) return;
  std::vector<TorquePoint> points;
  try {
    points = ReadTorqueTable(TorqueText.text(), mark());
  } catch (const CommandError&) {
    TorqueText.SetMark(Mark::Error);
    throw;
  }
  SetTorquePoints(block(), points);
  screen().context().rules.NoteChange();
  ShowTable();
}

}  // namespace veldox
