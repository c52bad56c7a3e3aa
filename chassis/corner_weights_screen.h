#pragma once

#include "chassis/weight_transfer_page.h"

namespace veldox {

/// Corner weights: what stands on the tires of a car, its center of gravity and weight transfer,
/// and its springs at the wheels, on three pages.
class Form6 : public Screen {
 public:
  explicit Form6(ProgramContext& context);

  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }

  Frame PageFrame{*this, "PageFrame", ""};
  Command Command1{PageFrame, "Command1", "&Corner Weights and Percentages",
                   "Show what stands on each tire, and ballast.", Opens(&Form6::Weights)};
  Command Command8{PageFrame, "Command8", "&CG / Roll Over Angles / Weight Transfer",
                   "Show the center of gravity and what cornering and acceleration move.",
                   Opens(&Form6::Transfer)};
  Command Command3{PageFrame, "Command3", "&Spring Rate / Frequency",
                   "Show the springs and sway bars at the wheels.", Opens(&Form6::Springs)};

  ScreenPage Weights{*this, "Weights", "Corner Weights and Percentages"};
  ScreenPage Transfer{*this, "Transfer", "CG / Roll Over Angles / Weight Transfer"};
  ScreenPage Springs{*this, "Springs", "Spring Rate / Frequency"};

  // The springs work with what the pages before them hold, and the weight transfer with the
  // springs.
  CornerWeightsPage corners{*this, Weights};
  Frame UnsprungFrame{Transfer, "UnsprungFrame", "Unsprung Weights", 0};
  UnsprungWeights unsprung{*this, UnsprungFrame};
  SpringRatesPage springs{*this, Springs, corners, unsprung};
  WeightTransferPage transfer{*this, Transfer, corners, unsprung, springs};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
