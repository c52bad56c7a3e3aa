#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "core/parameter_block.h"

// Lift files: the program's own *.cmm, Cam Doctor files *.c1 to *.c12, and single columns *.s96.
// Lifts stay in the unit of the file, inches or millimetres, steps and timing in degrees.

namespace veldox {

/// Lifts of one side as the shared tables hold them: index 0 is the start of the lobe, the last
/// one the closing zero.
struct LiftSide {
  std::vector<double> lifts;  ///< empty for a side that the file has not
  double step = 0;            ///< degrees between records

  /// Last index in use, 0 for none.
  int count() const { return lifts.empty() ? 0 : static_cast<int>(lifts.size()) - 1; }
};

enum class LiftFormat {
  Cmm,        ///< the program's own, with any step
  CamDoctor,  ///< rows of intake and exhaust, every 2 degrees of the cam
  S96,        ///< a column a side, every 2 degrees of the crank
};

/// What a lift file says.
struct LiftFile {
  LiftFormat format = LiftFormat::Cmm;
  double step = 0;  ///< degrees
  LiftSide intake;
  LiftSide exhaust;
  std::optional<double> intakeLash;
  std::optional<double> exhaustLash;
  std::string header;      ///< `CamFileHeader`; lines end with CR LF, a *.cmm's only line with none
  int linesRead = 0;       ///< all lines, comments and a bad row among them
  bool hasBadRow = false;  ///< a row without comma was passed over or has ended the reading
};

/// What is told of a file that is no lift file.
inline constexpr const char* kNoIntakeLift = "NO Intake Lift Infomation Found!!!";
/// What is told of a row without comma.
inline constexpr const char* kInvalidRow = "INVALID Data Format Found!!!";

/// Reads a *.cmm or Cam Doctor file; which one it is follows from what it says, and for Cam
/// Doctor from the end of its name.
/// @param text      the decoded text
/// @param fileName  its name without the folder
/// @return nothing for a file that is neither (`kNoIntakeLift` is to be told)
/// @throws CommandError (File) with line and reason: a record that is no number, more than
///         kMostLiftRecords of them, a header cut short, a step of 0 or below
std::optional<LiftFile> ParseLiftFile(std::string_view text, const std::string& fileName,
                                      DecimalMark mark);

/// The lifts of one side in a *.s96 file, without its zero lines, and every 2 degrees.
struct LiftColumnFile {
  LiftSide side;
  int linesRead = 0;
};
/// @throws CommandError (File) as ParseLiftFile
LiftColumnFile ParseS96(std::string_view text, const std::string& fileName, DecimalMark mark);

/// True for a name that ends in "c1" to "c9", "c10", "c11" or "c12", in any case.
bool IsCamDoctorName(std::string_view fileName);

/// How valve lifts follow from the lifts at the lobe.
struct ValveGear {
  double ratio = 1;      ///< of the rocker arm
  double lash = 0;       ///< in the unit of the lifts
  double testRatio = 1;  ///< the ratio that tells whether the lash is taken up
};
/// Lift at the valve: times the ratio less the lash, and 0 as long as the lash is not taken up.
constexpr double ValveLiftOf(double camLift, const ValveGear& gear) {
  return camLift * gear.testRatio <= gear.lash ? 0 : camLift * gear.ratio - gear.lash;
}

/// Puts a file into the shared tables, with lashes, steps and header: the valve lifts come from
/// the rocker ratios of the shared values and the lashes in force then. What a longer file left
/// behind the closing zeros is cleared.
/// @param title  the file's name without the folder
/// @throws CommandError (IndexOutOfRange, Overflow) with the tables as they were
void StoreLifts(const LiftFile& file, const std::string& title, ParameterBlock& block);

/// A number as lift files have it, by "0.0#######".
std::string LiftText(double lift, DecimalMark mark);

/// What a *.cmm file is made of.
struct CmmContents {
  std::string comments;  ///< whole lines, each with its ";" and CR LF
  std::string step;      ///< degrees, as it is to be written
  std::span<const double> intake;
  std::optional<std::span<const double>> exhaust;  ///< nothing: the file has no exhaust part
};
/// A *.cmm file: comments, "every x degrees = ", "intake", a record a line, "exhaust" and its
/// records. Lines end with CR LF.
std::string CmmText(const CmmContents& contents, DecimalMark mark);

/// The lines of a *.s96 file and the line that the nose is to be on (from 1).
inline constexpr int kS96Lines = 180;
inline constexpr int kS96NoseLine = 91;

/// A *.s96 file of 360 degrees: records with "0.00000000" lines before them, so that the nose
/// stands on line kS96NoseLine, and behind them.
/// @param records  the texts of the records, every 2 degrees
/// @param nose     index of the nose in them
/// @throws CommandError (InvalidArgument) for a flank of more than 180 degrees
std::string S96Text(std::span<const std::string> records, std::size_t nose);

/// What is done to the lifts of a file in place.
enum class LiftEdit : std::uint8_t {
  InchesToMm = 1,
  MmToInches = 2,
  Multiply = 3,  ///< by the amount without its sign
  Add = 4,
};

/// The most lines of a file that is edited.
inline constexpr std::size_t kMostEditedLines = 7202;

struct EditedLiftFile {
  std::string text;        ///< lines end with CR LF
  int lines = 0;           ///< read and written
  bool hasLashes = false;  ///< its step line gives lashes, which stay as they were
};
/// Changes the lifts of a *.cmm file where they stand; comments, blank lines and the lines of
/// "intake", "exhaust" and "every" are copied.
/// @throws CommandError (File) with line and reason
EditedLiftFile EditLifts(std::string_view text, const std::string& fileName, LiftEdit edit,
                         double amount, DecimalMark mark);

}  // namespace veldox
