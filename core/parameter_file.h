#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/key_table.h"
#include "core/screen.h"

namespace veldox {

/// What a file that was read holds.
struct FileFindings {
  /// The records, by the names that the writer gives them, with the number of its row where a key
  /// has several: "Bore", "T Gear 3", "VE RPM 12".
  std::vector<std::string> records;
  /// Keys and values that the reader does not know.
  std::vector<std::pair<std::string, std::string>> unknown;
  std::string failure;  ///< what ended the reading, empty where nothing did
};

/// Writes and reads the parameter file: `key = value` lines for every shared value,
/// the options and the notes, from the one key table.
class ParameterFile {
 public:
  /// Finds a control by "Form1.Text3"; null when its screen is not there, and for the
  /// owners that are a whole screen.
  using ControlFinder = std::function<Control*(std::string_view)>;

  explicit ParameterFile(ProgramContext& context) : context_(context) {}

  /// Looks up the owning control of every key, and all controls that show shared values, once
  /// all screens are there; ties boxes and option groups to their switches.
  /// @param screens  the screens on which what is read shows at once while they are open
  void BindOwners(const ControlFinder& find, std::span<Screen* const> screens = {});

  struct Written {
    std::string bytes;
    int records = 0;  ///< lines plus one, the notes as one record
  };
  /// The whole file as text.
  Written Compose() const;

  /// Composes and saves. @return the count of records
  /// @throws CommandError (File)
  int Write(const std::filesystem::path& path) const;

  /// Reads a file into the block and the fields that show its values. Everything that is
  /// wrong with it is told in boxes; what was read before stays. @return the records read
  /// @throws CommandError (File) when the file cannot be opened or is no parameter file; then
  ///         nothing has changed
  int ReadParameterFile(const std::filesystem::path& path);

  /// The same for the bytes of a file, with the name that messages tell.
  /// @param findings  takes down what the file holds, and what ended the reading, in place of a box
  /// @throws CommandError (File) for bytes that are no parameter file
  int ReadBytes(std::string_view bytes, const std::string& fileName,
                FileFindings* findings = nullptr);

 private:
  class Writer;
  class Reader;

  /// The control that owns a key; null when there is none.
  Control* Owner(const KeyRow& row) const;
  /// The control that owns one value of a key: for a number of a table its field.
  Control* OwnerOf(const KeyRow& row, const void* place) const;
  int ReadText(std::string_view text, const std::string& fileName, FileFindings* findings);

  ProgramContext& context_;
  std::vector<Control*> owners_;                            // one for each row of the key table
  std::unordered_multimap<const void*, Control*> holders_;  // by the place of their value
};

}  // namespace veldox
