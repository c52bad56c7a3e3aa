// Runs every script of tests/scripts through veldox-script, without and with windows, and
// holds the output against the file of expected lines beside it.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string Load(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream) << file;
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

struct Result {
  int status;
  std::string output;
};

Result RunProgram(const std::string& command) {
  Result result{-1, {}};
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return result;
  std::array<char, 4096> buffer;
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
    result.output.append(buffer.data(), count);
  }
  result.status = pclose(pipe);
  return result;
}

/// The arguments a script asks for in its first line: "# arguments: --decimal-comma".
std::string ArgumentsOf(const std::string& script) {
  const std::string lead = "# arguments: ";
  if (script.compare(0, lead.size(), lead) != 0) return {};
  return script.substr(lead.size(), script.find('\n') - lead.size());
}

class Scripts : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("veldox-test-" + std::to_string(std::random_device{}()));
    fs::copy(fs::path(VELDOX_SOURCE_DIR) / "tests/scripts", folder_, fs::copy_options::recursive);
    fs::copy(fs::path(VELDOX_SOURCE_DIR) / "samples", folder_ / "samples");
  }
  void TearDown() override { fs::remove_all(folder_); }

  Result RunScript(const std::string& more) const {
    const fs::path script = folder_ / (GetParam() + ".vs");
    return RunProgram("cd '" + folder_.string() + "' && QT_QPA_PLATFORM=offscreen " +
                      std::string(VELDOX_SCRIPT) + " --date \"2026-11-21 14:05:09\" " + more + ' ' +
                      ArgumentsOf(Load(script)) + " '" + script.string() + "' 2>'" +
                      Complaints().string() + "'");
  }

  /// What the program wrote to standard error, shown when a test fails.
  fs::path Complaints() const { return folder_ / "standard-error.txt"; }

  fs::path folder_;
};

TEST_P(Scripts, PrintTheExpectedLines) {
  const Result result = RunScript("");
  EXPECT_EQ(result.output, Load(folder_ / (GetParam() + ".out")));
  EXPECT_EQ(result.status, 0) << Load(Complaints());
}

#ifdef VELDOX_HAS_WINDOWS
TEST_P(Scripts, PrintTheSameWithWindows) {
  const Result result = RunScript("--windows");
  EXPECT_EQ(result.output, Load(folder_ / (GetParam() + ".out")));
  EXPECT_EQ(result.status, 0) << Load(Complaints());
}
#endif

std::vector<std::string> AllScripts() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(fs::path(VELDOX_SOURCE_DIR) / "tests/scripts")) {
    if (entry.path().extension() == ".vs") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

INSTANTIATE_TEST_SUITE_P(All, Scripts, testing::ValuesIn(AllScripts()),
                         [](const auto& script) { return script.param; });

}  // namespace
