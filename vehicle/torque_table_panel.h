#pragma once

#include <string>
#include <vector>

#include "core/kept.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"
#include "vehicle/torque_table.h"

namespace veldox {

/// The torque table of the shared values, which files bring, as text to be read, edited and pasted
/// over: one line a point.
class TorqueTablePanel : public ScreenPart {
 public:
  explicit TorqueTablePanel(Screen& screen);

  void Open();
  const ScreenPage& page() const { return TorqueFrame; }
  /// Follows the table of the shared values, which has changed: the text too, unless somebody has
  /// edited it.
  void Follow();
  /// Puts points into use in place of those there were, and follows.
  /// @throws CommandError (InvalidArgument) for what is no table
  void PutIntoUse(const std::vector<TorquePoint>& points);

 private:
  void TakeTable();
  void ShowTable();
  void TellPeaks();
  void Close() { screen().pages().front()->Open(); }

  Kept<std::string> shown_{screen()};  ///< the table as the text was made of it

 public:
  ScreenPage TorqueFrame{screen(), "TorqueFrame", "Torque Table"};
  NumberLines TorqueText{TorqueFrame, "TorqueText", "RPM and Torque of each point"};
  Label TorquePeaks{TorqueFrame, "TorquePeaks", ""};
  Command TakeTorque{TorqueFrame, "TakeTorque", "Use Table",
                     "Put the points above into use in place of the torque table; RPM must rise "
                     "from line to line.",
                     Runs(&TorqueTablePanel::TakeTable)};
  Command ShowTorque{TorqueFrame, "ShowTorque", "Undo Edits",
                     "Show the torque table that is in use, and drop what was edited.",
                     Runs(&TorqueTablePanel::ShowTable, CommandRole::Serves)};
  Command CloseTorque{TorqueFrame, "CloseTorque", "Done",
                      "Back to the car. Points that were not put into use stay as they were typed.",
                      Runs(&TorqueTablePanel::Close, CommandRole::Closes)};
};

}  // namespace veldox
