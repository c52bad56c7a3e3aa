#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "cam/lift_file.h"
#include "core/screen.h"

namespace veldox {

/// A screen with lash fields, told when a lift file gives lashes.
class LashTaker {
 public:
  LashTaker() = default;
  LashTaker(const LashTaker&) = delete;
  LashTaker& operator=(const LashTaker&) = delete;
  virtual ~LashTaker() = default;

  /// @param intake   inches, null where the file gives none
  /// @param exhaust  inches, null where the file gives none
  virtual void TakeLashes(std::optional<double> intake, std::optional<double> exhaust) = 0;
};

/// Reads cam files that the user picks into the shared lift tables, for the camshaft screens and
/// the tools of the main window.
class CamFiles {
 public:
  explicit CamFiles(ProgramContext& context) : context_(context) {}

  /// A screen that shows the lashes of a file. Nothing is asked of one that is not there.
  void AddLashTaker(LashTaker& taker) { takers_.push_back(&taker); }

  /// Asks for a lift file (*.cmm or Cam Doctor) and reads it into the shared tables; the count of
  /// its lines is told.
  /// @param asker  the screen that asks; where it shows metric units, lashes are millimetres
  /// @return false for a file without lift, which was told; the tables are as they were
  /// @throws CommandError (Cancelled, File)
  bool ReadCamLiftFile(const Screen& asker);

  /// Asks for a file by a dialog in the program's folder. @throws CommandError (Cancelled)
  std::filesystem::path AskFile(FileDialog::Kind kind, const char* filter, int filterIndex = 1);
  /// Tells how many lines were read or written. @param what  such as " Records Read"
  void TellCount(int lines, const char* what);
  /// An information box, or one with a warning.
  void Tell(const std::string& text, Icon icon = Icon::Information);
  /// The decoded text of a file. @throws CommandError (File)
  static std::string TextOf(const std::filesystem::path& file);

 private:
  ProgramContext& context_;
  std::vector<LashTaker*> takers_;
};

}  // namespace veldox
