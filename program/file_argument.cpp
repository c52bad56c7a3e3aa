#include "program/file_argument.h"

#include <fstream>
#include <system_error>

namespace veldox {

FileArgument ParseFileArgument(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return {};
  const std::string& first = arguments.front();
  if (arguments.size() > 1) return {{}, "more than one file: " + arguments[1]};
  if (first.empty()) return {{}, "the name of the file is empty"};
  if (first.front() == '-') return {{}, "unknown option " + first};
  std::error_code error;
  const std::filesystem::path file = std::filesystem::absolute(first, error);
  const bool isFile = !error && std::filesystem::is_regular_file(file, error);
  if (error && error != std::errc::no_such_file_or_directory) {
    return {{}, "cannot read " + first + ": " + error.message()};
  }
  if (!std::filesystem::exists(file, error)) return {{}, "there is no file " + first};
  if (!isFile) return {{}, first + " is no file"};
  if (!std::ifstream(file)) return {{}, "cannot read " + first};
  return {file, {}};
}

}  // namespace veldox
