#pragma once

#include <vector>

#include "core/field_array.h"
#include "core/panel.h"
#include "core/screen_part.h"
#include "core/table.h"
#include "vehicle/acceleration.h"

namespace veldox {

inline constexpr int kRunGears = static_cast<int>(kGears);

/// A number of a shift, which files count from the gear that is left, the first being 1.
/// @param row  the shift, counted from 0. @throws std::out_of_range beyond the bounds
template <auto Member>
double& ShiftNumber(ParameterBlock& block, int row, int column) {
  return TableNumber<Member>(block, row + 1, column);
}

/// Ratio, tire growth and power loss of each gear; where and how long each shift is.
class ShiftPanel : public ScreenPart {
 public:
  explicit ShiftPanel(Screen& screen);

  void Open();
  const ScreenPage& page() const { return Frame4; }
  /// Parses all gears and shifts of the gearbox into the shared values, and takes the numbers of
  /// those behind it.
  /// @throws CommandError that names the field, for a gear that is shorter than the one below it
  ///         among the rest
  void ReadGearTables();
  /// Takes the numbers of all gears and shifts for a run that needs none of them.
  void KeepGearTables();
  /// Parses the ratio of a gear, counted from 0. @throws CommandError (InvalidArgument) for 0
  double ReadTransRatio(int gear);
  /// Shows the ratios of the shared values as changed, in place of what was typed.
  void ShowRatios();

 private:
  bool IsInGearbox(int gear) const;
  /// The fields of a gear, counted from 0, and of those behind it.
  std::vector<Field*> FieldsFrom(int gear);
  void Close() { screen().pages().front()->Open(); }

 public:
  ScreenPage Frame4{screen(), "Frame4", "Shift - RPM"};
  Frame GearFrame{Frame4, "GearFrame", "Gears", 0};
  FieldArray Text2{GearFrame,
                   "Text2",
                   kRunGears,
                   "Gear Ratio",
                   {"3.25", "2.25", "1.25", "1.00", "0.87", "0.0"},
                   Entry(KeyRule::UnsignedReal, HoldsColumn<&P::TGear>().ShownAtOpening()),
                   "From first gear up; a ratio of 0 ends the gearbox."};
  FieldArray Text32{GearFrame,
                    "Text32",
                    kRunGears,
                    "Tire Growth",
                    "0.0",
                    Entry(KeyRule::UnsignedReal, Unit::Percent, HoldsColumn<&P::TireGrowth>()),
                    "How much larger the tire is at the speeds of this gear."};
  FieldArray Text13{GearFrame,
                    "Text13",
                    kRunGears,
                    "Power Loss",
                    "6.0",
                    Entry(KeyRule::UnsignedReal, Unit::Percent, HoldsColumn<&P::PowerLoss>()),
                    "What the transmission takes of the power in this gear."};
  Table Gears{GearFrame,
              "Gears",
              "Gears",
              {Text2, Text32, Text13},
              {"Gear",
               {"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th", "9th", "10th", "11th",
                "12th", "13th", "14th", "15th", "16th", "17th", "18th"}}};
  Frame ShiftFrame{Frame4, "ShiftFrame", "Shifts", 1};
  FieldArray Text22{
      ShiftFrame,
      "Text22",
      kRunGears - 1,
      "Shift RPM",
      "10000",
      Entry(KeyRule::Digits, Unit::RevolutionsPerMinute,
            Holds(&ShiftNumber<&P::ShiftRPM>, 0, 0).ZeroKeepsText()),
      "The engine speed at which the gear is left; in the last gear the run ends there."};
  FieldArray Text52{
      ShiftFrame,
      "Text52",
      kRunGears - 1,
      "Shift Time",
      "0.05",
      Entry(KeyRule::UnsignedReal, Unit::Seconds, Holds(&ShiftNumber<&P::ShiftTime>, 0, 0)),
      "How long the shift takes, without power."};
  Table Shifts{ShiftFrame,
               "Shifts",
               "Shifts",
               {Text22, Text52},
               {"Shift",
                {"1 - 2", "2 - 3", "3 - 4", "4 - 5", "5 - 6", "6 - 7", "7 - 8", "8 - 9", "9 -10",
                 "10 -11", "11 -12", "12 -13", "13 -14", "14 -15", "15 -16", "16 -17", "17 -18"}}};
  Command Command33{ShiftFrame, "Command33", "Done", "Back to the car.",
                    Runs(&ShiftPanel::Close, CommandRole::Closes)};
};

}  // namespace veldox
