#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

std::vector<std::string> Seeds() {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(VELDOX_SEEDS)) {
    files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  std::vector<std::string> seeds;
  for (const std::filesystem::path& path : files) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return seeds;
}

/// Changes texts at random, but the same way in each run.
class Mutations {
 public:
  explicit Mutations(std::vector<std::string> seeds) : seeds_(std::move(seeds)) {}

  std::string Next() {
    std::string bytes = Any(seeds_);
    for (std::size_t changes = 1 + Below(8); changes > 0; --changes) Change(bytes);
    return bytes;
  }

 private:
  std::size_t Below(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  template <class List>
  const std::string& Any(const List& list) {
    return list[Below(list.size())];
  }

  void Change(std::string& bytes) {
    static const std::array<std::string, 22> kPieces = {"1.7976931348623157e308",
                                                        "5e-324",
                                                        "-1e999",
                                                        "nan",
                                                        "inf",
                                                        "0",
                                                        "-",
                                                        ".",
                                                        ",",
                                                        " = ",
                                                        "=",
                                                        "\r\n",
                                                        "\n",
                                                        "\r",
                                                        ";",
                                                        "|",
                                                        "Notes = ",
                                                        "\xFF\xFE",
                                                        "\xEF\xBB\xBF",
                                                        "\x80",
                                                        "\xC3",
                                                        "99999"};
    const std::size_t place = Below(bytes.size() + 1);
    switch (Below(9)) {
      case 0:
        if (place < bytes.size()) bytes[place] = static_cast<char>(Below(256));
        break;
      case 1: bytes.erase(place, 1 + Below(40)); break;
      case 2: bytes.insert(place, Any(kPieces)); break;
      case 3:
        bytes.replace(place, std::min<std::size_t>(Below(12), bytes.size() - place), Any(kPieces));
        break;
      case 4: {
        const std::string& other = Any(seeds_);
        bytes.insert(place, other.substr(Below(other.size() + 1), Below(200)));
        break;
      }
      case 5: bytes.resize(place); break;
      case 6: {
        // A line many times.
        const std::size_t end = std::min(bytes.find('\n', place), bytes.size());
        const std::string line = bytes.substr(place, end - place) + '\n';
        std::string lines;
        for (std::size_t i = Below(60); i > 0; --i) lines += line;
        bytes.insert(place, lines);
        break;
      }
      case 7: bytes.insert(place, Below(3) == 0 ? 70000 : Below(300), "9 \tx"[Below(4)]); break;
      default: bytes.insert(place, 1 + Below(3), '\0'); break;
    }
  }

  std::vector<std::string> seeds_;
  std::mt19937 random_{20240517};
};

void Feed(const std::string& bytes, const std::string& what) {
  try {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as the fuzzer hands its bytes
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  } catch (const std::exception& error) {
    const std::filesystem::path kept = std::filesystem::temp_directory_path() / "veldox-fuzz-input";
    std::ofstream(kept, std::ios::binary) << bytes;
    FAIL() << what << ": " << error.what() << "; the input is kept in " << kept;
  }
}

TEST(Reader, TakesItsSeeds) {
  const std::vector<std::string> seeds = Seeds();
  ASSERT_FALSE(seeds.empty());
  for (std::size_t i = 0; i < seeds.size(); ++i) Feed(seeds[i], "seed " + std::to_string(i));
  Feed("", "nothing");
}

TEST(Reader, TakesItsSeedsChangedAtRandom) {
  constexpr int kFewestRounds = 200;  // on the busiest machine
  const char* longer = std::getenv("VELDOX_FUZZ_SECONDS");
  const std::chrono::seconds time{longer == nullptr ? 4 : std::atoi(longer)};
  const int rounds = longer == nullptr ? 20000 : std::numeric_limits<int>::max();
  Mutations mutations(Seeds());
  const auto start = std::chrono::steady_clock::now();
  int round = 0;
  for (; round < rounds && !HasFailure(); ++round) {
    if (round >= kFewestRounds && std::chrono::steady_clock::now() - start > time) break;
    Feed(mutations.Next(), "round " + std::to_string(round));
  }
  RecordProperty("rounds", round);
}

}  // namespace
}  // namespace veldox
