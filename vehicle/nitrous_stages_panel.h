#pragma once

#include <vector>

#include "core/field_array.h"
#include "core/panel.h"
#include "core/screen_part.h"
#include "core/table.h"
#include "vehicle/acceleration.h"

namespace veldox {

inline constexpr int kGearStageRows = static_cast<int>(kGearStages);
inline constexpr int kTimedStageRows = static_cast<int>(kNitrousStages - kGearStages);

/// A number of a timed stage. @param row  the stage, the first timed one being 0
/// @throws std::out_of_range beyond the bounds
inline double& TimedStageNumber(ParameterBlock& block, int row, int column) {
  return TableNumber<&ParameterBlock::NitrousMS>(block, kGearStageRows + row, column);
}

/// The stages of nitrous of a run: seven by gear and engine speed, seven by time.
class NitrousStagesPanel : public ScreenPart {
 public:
  explicit NitrousStagesPanel(Screen& screen);

  void Open();
  const ScreenPage& page() const { return NitrousFrame; }
  /// Parses all stages into the shared values. @throws CommandError that names the field
  void ReadStages();
  /// Takes the numbers of all stages for a run that needs none of them.
  void KeepStages();
  /// A field of a stage, both counted from 0. @throws CommandError (IndexOutOfRange)
  Field& Cell(std::size_t stage, std::size_t column);

 private:
  void TakeStages();
  /// The fields of all stages, stage by stage.
  std::vector<Field*> Cells();

 public:
  ScreenPage NitrousFrame{screen(), "NitrousFrame", "Nitrous"};

  Frame GearStageFrame{NitrousFrame, "GearStageFrame", "Stages by Trans Gear", 0};
  FieldArray Text90{GearStageFrame,
                    "Text90",
                    kGearStageRows,
                    "Trans Gear",
                    {"1", "9"},
                    Entry(KeyRule::Digits, HoldsColumn<&P::NitrousMS>(0)),
                    "The gear that the stage works in, counted from 1; 9 for a stage that is not "
                    "used."};
  FieldArray Text91{GearStageFrame, "Text91",
                    kGearStages,    "Nitrous HP",
                    {"110", "0"},   Entry(KeyRule::UnsignedReal, HoldsColumn<&P::NitrousMS>(1))};
  FieldArray Text92{GearStageFrame,
                    "Text92",
                    kGearStageRows,
                    "Nitrous RPM Start",
                    "1",
                    Entry(KeyRule::UnsignedReal, HoldsColumn<&P::NitrousMS>(2)),
                    "The engine speed from which the stage works; 0 for the beginning of the "
                    "gear."};
  FieldArray Text93{GearStageFrame,
                    "Text93",
                    kGearStageRows,
                    "Nitrous HP Starting %",
                    "100",
                    Entry(KeyRule::UnsignedReal, HoldsColumn<&P::NitrousMS>(3)),
                    "The part of the power that the stage starts with; it rises evenly to all of "
                    "it."};
  FieldArray Text94{GearStageFrame,
                    "Text94",
                    kGearStageRows,
                    "Nitrous RPM Full",
                    "1",
                    Entry(KeyRule::UnsignedReal, HoldsColumn<&P::NitrousMS>(4)),
                    "The engine speed from which the stage gives all its power."};
  Table GearStages{GearStageFrame,
                   "GearStages",
                   "Stages by Trans Gear",
                   {Text90, Text91, Text92, Text93, Text94},
                   {"Stage", {"1", "2", "3", "4", "5", "6", "7"}}};

  Frame TimedStageFrame{NitrousFrame, "TimedStageFrame", "Stages by Time", 1};
  FieldArray TimedText90{TimedStageFrame,
                         "Text90",
                         kTimedStageRows,
                         "Nitrous HP",
                         "0",
                         Entry(KeyRule::UnsignedReal, Holds(&TimedStageNumber, 0, 0)),
                         {},
                         kGearStageRows};
  FieldArray TimedText91{TimedStageFrame,
                         "Text91",
                         kTimedStageRows,
                         "Nitrous Start Time",
                         "0",
                         Entry(KeyRule::UnsignedReal, Holds(&TimedStageNumber, 0, 1)),
                         "Seconds of the elapsed time at which the stage starts.",
                         kGearStageRows};
  FieldArray TimedText92{TimedStageFrame,
                         "Text92",
                         kTimedStageRows,
                         "Nitrous HP Starting %",
                         "100",
                         Entry(KeyRule::UnsignedReal, Holds(&TimedStageNumber, 0, 2)),
                         "The part of the power that the stage starts with; it rises evenly to all "
                         "of it.",
                         kGearStageRows};
  FieldArray TimedText93{TimedStageFrame,
                         "Text93",
                         kTimedStageRows,
                         "Nitrous Full Time",
                         "0",
                         Entry(KeyRule::UnsignedReal, Holds(&TimedStageNumber, 0, 3)),
                         "Seconds of the elapsed time from which the stage gives all its power.",
                         kGearStageRows};
  FieldArray TimedText94{TimedStageFrame,
                         "Text94",
                         kTimedStageRows,
                         "N Stop Time",
                         "0",
                         Entry(KeyRule::UnsignedReal, Holds(&TimedStageNumber, 0, 4)),
                         "Seconds of the elapsed time from which the stage is off again.",
                         kGearStageRows};
  Table TimedStages{TimedStageFrame,
                    "TimedStages",
                    "Stages by Time",
                    {TimedText90, TimedText91, TimedText92, TimedText93, TimedText94},
                    {"Stage", {"8", "9", "10", "11", "12", "13", "14"}}};
  Command Command9{TimedStageFrame, "Command9", "Done",
                   "For the Program to use the values that you have entered above The Nitrous Box "
                   "MUST BE CHECKED.",
                   Runs(&NitrousStagesPanel::TakeStages, CommandRole::Closes)};
};

}  // namespace veldox
