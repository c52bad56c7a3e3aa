#pragma once

#include <filesystem>

namespace veldox {

/// A screen that reads a file which was dropped on it.
class FileTaker {
 public:
  virtual ~FileTaker() = default;
  /// Reads the file as the screen's own command does that asks for one; what is wrong with it is
  /// told in boxes.
  virtual void OpenFile(const std::filesystem::path& file) = 0;
};

}  // namespace veldox
