#include "vehicle/torque_table_panel.h"

namespace veldox {

TorqueTablePanel::TorqueTablePanel(Screen& screen) : ScreenPart(screen) {}

void TorqueTablePanel::Open() {
  TorqueFrame.Open();
  TorqueText.Focus();
}

void TorqueTablePanel::Follow() {
  if (TorqueText.text() == *shown_ && block().FormsCleared != 1) {
    ShowTable();
  } else {
    TellPeaks();
  }
}

void TorqueTablePanel::PutIntoUse(const std::vector<TorquePoint>& points) {
  SetTorquePoints(block(), points);
  screen().context().rules.NoteChange();
  Follow();
}

void TorqueTablePanel::ShowTable() {
  shown_ = TorqueTableText(TorquePoints(block()), mark());
  TorqueText.SetText(shown_);
  TellPeaks();
}

void TorqueTablePanel::TellPeaks() {
  TorquePeaks.SetCaption("In use: " + TorquePeaksText(TorquePoints(block()), mark()) + '.');
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
  PutIntoUse(points);
  ShowTable();
}

}  // namespace veldox
