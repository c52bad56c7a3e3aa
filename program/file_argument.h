#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace veldox {

/// The one argument of the program: a parameter file to open.
struct FileArgument {
  std::filesystem::path file;  ///< absolute; empty where none was given
  std::string wrong;           ///< why the arguments cannot be taken; empty where they can
};

/// @param arguments  without the name of the program
FileArgument ParseFileArgument(const std::vector<std::string>& arguments);

}  // namespace veldox
