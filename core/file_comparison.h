#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "core/parameter_file.h"

namespace veldox {

/// A value of a parameter file.
struct FileRecord {
  /// The key, with the number of its row where the file has several lines of it: "Bore",
  /// "T Gear 3", "VE RPM 12".
  std::string name;
  std::string key;  ///< without a number that was put on
  std::string value;

  bool operator==(const FileRecord&) const = default;
};

/// What a parameter file holds. Lines that are none of its kind are passed over.
struct FileContents {
  std::vector<FileRecord> records;  ///< in the order of the file
  std::string notes;
};
/// @param text  decoded; its lines end with CR LF or LF
FileContents ContentsOf(std::string_view text);

/// A key that differs between here and there.
struct KeyDifference {
  std::string name;
  std::string key;
  std::string here;   ///< "-" where it lacks the key
  std::string there;  ///< "-" where it lacks the key

  bool operator==(const KeyDifference&) const = default;
};

struct FileComparison {
  std::vector<KeyDifference> differences;  ///< in the order of the file
  bool notesDiffer = false;
};
/// Compares what two sides hold, as the writer writes it. A number in another form is no
/// difference.
FileComparison Compare(const FileContents& here, const FileContents& there);

/// What of a state of the program, into which a file was read, is the file's own: of the keys that
/// the file lacks the state tells what was there before. Keys that nobody knows stand last.
FileContents OfFile(const FileContents& state, const FileFindings& findings);

/// Where a key is at home.
struct KeyPlace {
  std::string screen;  ///< its title; empty for the main form's options
  std::string label;   ///< empty where no field shows the key
  std::string unit;
  bool isOption = false;  ///< a switch or a choice, though it may be written as a number
};

/// The differences as a report: numbers by screen, with label, unit, both values and the
/// difference in percent of here; then options and texts; then the notes.
/// @param here, there  what both sides are called, such as file names
/// @param placeOf      of a record's name and key
/// @param mark         of the numbers
std::string ComparisonReport(
    const FileComparison& comparison, const std::string& here, const std::string& there,
    const std::function<KeyPlace(const KeyDifference& difference)>& placeOf, DecimalMark mark);

}  // namespace veldox
