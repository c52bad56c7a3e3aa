#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "script/model_driver.h"
#include "script/runner.h"

namespace {

/// The program that works real windows lies beside this one, or among the helpers of an
/// installed one; it takes this one's place, so that a script without windows never loads the
/// toolkit.
int RunWithWindows(char** argv) {
  std::error_code error;
  std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) self = argv[0];
  const std::filesystem::path folder = self.parent_path();
  constexpr const char* kName = "veldox-script-windows";
  const std::string beside = (folder / kName).string();
  const std::string installed = (folder.parent_path() / "libexec" / "veldox" / kName).string();
  for (const std::string& windows : {beside, installed}) execv(windows.c_str(), argv);
  std::fprintf(stderr, "veldox-script: cannot start %s\n", beside.c_str());
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  std::string wrong;
  const auto arguments =
      veldox::ParseScriptArguments(std::vector<std::string>(argv + 1, argv + argc), wrong);
  if (!arguments) {
    std::fprintf(stderr, "veldox-script: %s\n%s\n", wrong.c_str(), veldox::kScriptUsage);
    return 2;
  }
  if (arguments->windows) return RunWithWindows(argv);
  return veldox::RunScriptFile(*arguments, [](veldox::Program& program) {
    return std::make_unique<veldox::ModelDriver>(program.shell());
  });
}
