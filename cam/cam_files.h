#pragma once

#include <optional>
#include <vector>

#include "cam/lift_analysis.h"
#include "cam/lift_file.h"
#include "core/file_dialogs.h"
#include "core/kept.h"
#include "core/units.h"

namespace veldox {

enum class CamSide { Intake, Exhaust };

/// A screen with lash fields, told when a lift file gives lashes.
class LashTaker {
 public:
  LashTaker() = default;
  LashTaker(const LashTaker&) = delete;
  LashTaker& operator=(const LashTaker&) = delete;
  virtual ~LashTaker() = default;

  /// @param intake   inches, nothing where the file gives none
  /// @param exhaust  inches, nothing where the file gives none
  virtual void TakeLashes(std::optional<double> intake, std::optional<double> exhaust) = 0;
};

/// Reads cam files that the user picks into the shared lift tables, for the camshaft screens and
/// the tools of the main window.
class CamFiles : public FileDialogs {
 public:
  using FileDialogs::FileDialogs;

  /// A screen that shows the lashes of a file. Nothing is asked of one that is not there.
  void AddLashTaker(LashTaker& taker) { takers_.push_back(&taker); }

  /// Asks for a lift file (*.cmm or Cam Doctor) and reads it into the shared tables; the count of
  /// its lines is told.
  /// @param asker  the screen that asks; where it shows metric units, lashes are millimetres
  /// @return the file; nothing for one without lift, which was told, and the tables are as they
  ///         were
  /// @throws CommandError (Cancelled, File)
  std::optional<LiftFile> ReadCamLiftFile(const Screen& asker);
  /// Puts lifts into the shared tables, by StoreLifts.
  /// @throws CommandError (IndexOutOfRange, Overflow) with the tables as they were
  void StoreTables(const LiftFile& file, const std::string& title, bool areMillimetres);
  /// The lobe lifts of a side in the shared tables.
  LiftTable TableOf(CamSide side) const;
  /// What of the tables' unit goes into an inch: 25.4 while they are millimetres.
  double UnitsPerInch() const { return tablesAreMillimetres_ ? kMillimetresPerInch : 1; }
  /// Converts the lifts in the shared tables, unless they are in these units already.
  void ConvertTables(bool toMillimetres);

 private:
  Kept<bool> tablesAreMillimetres_{context()};
  std::vector<LashTaker*> takers_;
};

}  // namespace veldox
