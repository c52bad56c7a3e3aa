#include "core/settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

#include "core/error.h"
#include "core/files.h"

namespace veldox {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLook = "Look = ";
constexpr std::string_view kRecent = "Recent = ";
constexpr std::string_view kKept = "Kept up to date = ";
constexpr std::string_view kWindow = "Window ";
constexpr std::string_view kEquals = " = ";
constexpr std::array<std::pair<std::string_view, LookChoice>, 3> kLooks = {
    {{"Desktop", LookChoice::Desktop}, {"Light", LookChoice::Light}, {"Dark", LookChoice::Dark}}};

/// More than any settings file has, in bytes.
constexpr std::uintmax_t kLargestSettings = 256U << 10;
/// More windows than there are.
constexpr std::size_t kMostPlaces = 100;
/// Beyond every desktop, in pixels.
constexpr int kFarthest = 100'000;

std::optional<WindowPlace> ParsePlace(std::string_view text) {
  std::array<int, 5> numbers{};
  for (int& number : numbers) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < -kFarthest || number > kFarthest) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (!text.empty() && text.front() != ' ') return std::nullopt;
    if (!text.empty()) text.remove_prefix(1);
  }
  const auto [x, y, width, height, maximized] = numbers;
  if (!text.empty() || width < 0 || height < 0) return std::nullopt;
  return WindowPlace{x, y, width, height, maximized != 0};
}

std::string PlaceText(const WindowPlace& place) {
  std::string text;
  for (const int number : {place.x, place.y, place.width, place.height, place.maximized ? 1 : 0}) {
    if (!text.empty()) text += ' ';
    text += std::to_string(number);
  }
  return text;
}

/// A name that stands in a line of its own.
bool FitsInALine(const std::string& name) {
  return name.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos;
}

}  // namespace

void Settings::AddRecentFile(const fs::path& file) {
  std::erase(recentFiles_, file);
  recentFiles_.insert(recentFiles_.begin(), file);
  if (recentFiles_.size() > kMostRecentFiles) recentFiles_.resize(kMostRecentFiles);
}

void Settings::DropRecentFile(std::size_t index) {
  if (index < recentFiles_.size()) {
    recentFiles_.erase(recentFiles_.begin() + static_cast<std::ptrdiff_t>(index));
  }
}

std::string Settings::Compose() const {
  std::string text;
  const auto line = [&](std::string_view key, std::string_view value) {
    text += key;
    text += value;
    text += '\n';
  };
  for (const auto& [word, choice] : kLooks) {
    if (choice == look) line(kLook, word);
  }
  for (const fs::path& file : recentFiles_) {
    // File names are what bytes the system has for them.
    if (FitsInALine(file.native())) line(kRecent, file.native());
  }
  for (const std::string& form : keptCurrent) line(kKept, form);
  for (const auto& [form, place] : places) {
    line(std::string(kWindow) + form + std::string(kEquals), PlaceText(place));
  }
  return text;
}

void Settings::Parse(std::string_view text) {
  *this = {};
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.find('\0') != std::string_view::npos) continue;
    if (line.starts_with(kLook)) {
      line.remove_prefix(kLook.size());
      for (const auto& [word, choice] : kLooks) {
        if (word == line) look = choice;
      }
    } else if (line.starts_with(kRecent) && recentFiles_.size() < kMostRecentFiles) {
      const fs::path file(line.substr(kRecent.size()));
      if (file.is_absolute()) recentFiles_.push_back(file);
    } else if (line.starts_with(kKept) && keptCurrent.size() < kMostPlaces) {
      keptCurrent.emplace(line.substr(kKept.size()));
    } else if (line.starts_with(kWindow) && places.size() < kMostPlaces) {
      line.remove_prefix(kWindow.size());
      const std::size_t equals = line.find(kEquals);
      if (equals == std::string_view::npos) continue;
      const auto place = ParsePlace(line.substr(equals + kEquals.size()));
      if (place) places[std::string(line.substr(0, equals))] = *place;
    }
  }
}

Settings LoadSettings(const fs::path& file) {
  Settings settings;
  if (file.empty()) return settings;
  try {
    std::error_code error;
    const std::uintmax_t size = fs::file_size(file, error);
    if (error || size > kLargestSettings) return settings;
    settings.Parse(LoadFile(file));
  } catch (const CommandError&) {
    // The program starts as it does for the first time.
    return {};
  }
  return settings;
}

void SaveSettings(const fs::path& file, const Settings& settings) {
  if (file.empty()) return;
  try {
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    SaveFile(file, settings.Compose());
  } catch (const CommandError&) {  // NOLINT(bugprone-empty-catch)
    // Nobody's work depends on it: the next start finds what was kept before.
  }
}

}  // namespace veldox
