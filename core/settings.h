#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace veldox {

/// Whether windows are light or dark.
enum class LookChoice { Desktop, Light, Dark };

/// Where a window stood when it was closed.
struct WindowPlace {
  int x = 0;       ///< pixels of the desktop
  int y = 0;       ///< pixels of the desktop
  int width = 0;   ///< pixels; 0 where the window had the size that it takes itself
  int height = 0;  ///< pixels; 0 where the window had the size that it takes itself
  bool maximized = false;

  bool operator==(const WindowPlace&) const = default;
};

/// What the program remembers of the desktop it stands on, which is no part of anybody's data:
/// light or dark, the files worked on last, the places of windows.
class Settings {
 public:
  static constexpr std::size_t kMostRecentFiles = 10;

  LookChoice look = LookChoice::Desktop;
  /// The forms whose results are kept up to date.
  std::set<std::string> keptCurrent;
  /// By the name of the form.
  std::map<std::string, WindowPlace> places;

  /// The parameter files worked on last, the latest first.
  const std::vector<std::filesystem::path>& recentFiles() const { return recentFiles_; }
  /// Puts a file to the front.
  void AddRecentFile(const std::filesystem::path& file);
  void DropRecentFile(std::size_t index);

  /// The text of a settings file.
  std::string Compose() const;
  /// Takes what a settings file tells; what makes no sense in it is passed over.
  void Parse(std::string_view text);

 private:
  std::vector<std::filesystem::path> recentFiles_;
};

/// Reads a settings file. One that is missing or damaged gives what a fresh program has.
/// @param file  empty where nothing is kept
Settings LoadSettings(const std::filesystem::path& file);

/// Saves a settings file, and makes its folder. Where that cannot be, nothing is kept.
/// @param file  empty where nothing is kept
void SaveSettings(const std::filesystem::path& file, const Settings& settings);

}  // namespace veldox
