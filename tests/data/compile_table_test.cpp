// The program that checks the tables and turns them into source.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/support/test_host.h"

namespace veldox::testing {
namespace {

using ::testing::HasSubstr;

const std::string kHeads = "group\tkind\tname\tbore\tstroke\trod\tcylinders\tsource\n";
const std::string kGood = "AMC\tengine\tI-134\t3.125\t4.375\t9.1875\t4\tmaker\n";

class CompileTable : public ::testing::Test {
 protected:
  /// Runs the program. @return what it says of the table
  std::string Compile(const std::string& table) {
    std::ofstream(folder_ / "t.tsv", std::ios::binary) << table;
    std::filesystem::remove(folder_ / "t.cpp");
    const std::string command = std::string("\"") + VELDOX_COMPILE_TABLE + "\" \"" +
                                (folder_ / "t.tsv").string() + "\" EngineTable \"" +
                                (folder_ / "t.cpp").string() + "\" 2>&1";
    std::string said;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 512> buffer;
    while (std::fgets(buffer.data(), buffer.size(), pipe) != nullptr) said += buffer.data();
    passed_ = pclose(pipe) == 0;
    return said;
  }

  /// Expects the table with one more row to be refused, with these words and the row's line.
  void ExpectRefused(const std::string& row, const std::string& words) {
    const std::string said = Compile(kHeads + kGood + row);
    EXPECT_FALSE(passed_) << row;
    EXPECT_THAT(said, HasSubstr("t.tsv:3: ")) << row;
    EXPECT_THAT(said, HasSubstr(words)) << row;
    EXPECT_FALSE(std::filesystem::exists(folder_ / "t.cpp")) << row;
  }

  TemporaryFolder folder_;
  bool passed_ = false;
};

TEST_F(CompileTable, WritesTheRowsAsTheyStand) {
  EXPECT_EQ(Compile(kHeads + "AMC\theader\t4 \"Cylinder\"\t\t\t\t\t\n" + kGood +
                    "AMC\tengine\t304\t\t\t\t\t\n"),
            "");
  ASSERT_TRUE(passed_);
  std::ifstream file(folder_ / "t.cpp");
  std::ostringstream text;
  text << file.rdbuf();
  EXPECT_THAT(text.str(),
              HasSubstr("{TableRow::Kind::Header, \"4 \\\"Cylinder\\\"\", \"\", \"\"}"));
  EXPECT_THAT(
      text.str(),
      HasSubstr("{TableRow::Kind::Figures, \"I-134\", \"3.125 4.375 9.1875 4\", \"maker\"}"));
  EXPECT_THAT(text.str(), HasSubstr("{TableRow::Kind::NameOnly, \"304\", \"\", \"\"}"));
  EXPECT_THAT(text.str(), HasSubstr("{\"AMC\", {kRows + 0, 3}}"));
}

TEST_F(CompileTable, RefusesMalformedRows) {
  ExpectRefused("AMC\tengine\tX\t3\t4\t9\t4\n", "7 cells instead of 8");
  ExpectRefused("AMC\tmotor\tX\t3\t4\t9\t4\tmaker\n", "no such kind: motor");
  ExpectRefused("AMC\tengine\t\t3\t4\t9\t4\tmaker\n", "the row has no name");
  ExpectRefused("\tengine\tX\t3\t4\t9\t4\tmaker\n", "the group has no name");
  ExpectRefused("AMC\tengine\tX\t3\t4\t9\t4\t\n", "the figures have no source");
  ExpectRefused("AMC\tengine\tX\t3\t\t9\t4\tmaker\n", "stroke \"\" is not a number");
  ExpectRefused("AMC\tengine\tX\t3,5\t4\t9\t4\tmaker\n", "bore \"3,5\" is not a number");
  ExpectRefused("AMC\tengine\tX\t3\t1e1\t9\t4\tmaker\n", "stroke \"1e1\" is not a number");
  ExpectRefused("AMC\tengine\tX\t0\t4\t9\t4\tmaker\n", "bore \"0\" is out of range");
  ExpectRefused("AMC\tengine\tX\t3\t4\t-1\t4\tmaker\n", "rod \"-1\" is out of range");
  ExpectRefused("AMC\tengine\tX\t3\t4\t9\t4.0\tmaker\n", "cylinders \"4.0\" is not a whole number");
  ExpectRefused("AMC\tengine\tX\t3\t4\t9\t0\tmaker\n", "cylinders \"0\" is out of range");
  ExpectRefused("AMC\tengine\tX|Y\t3\t4\t9\t4\tmaker\n", "a cell holds a \"|\"");
  ExpectRefused("AMC\tengine\tX \t3\t4\t9\t4\tmaker\n", "begins or ends with a blank");
  ExpectRefused("AMC\tengine\tX\xC3\xBC\t3\t4\t9\t4\tmaker\n", "beyond plain ASCII");
  ExpectRefused("AMC\theader\tX\t3\t\t\t\t\n", "a header has no figures");
  ExpectRefused("\n", "1 cells instead of 8");
}

TEST_F(CompileTable, RefusesAGroupInTwoPieces) {
  const std::string said = Compile(kHeads + kGood + "Buick\theader\tX\t\t\t\t\t\n" + kGood);
  EXPECT_FALSE(passed_);
  EXPECT_THAT(said, HasSubstr("t.tsv:4: the group begins again: AMC"));
}

TEST_F(CompileTable, RefusesHeadsItDoesNotKnow) {
  EXPECT_THAT(Compile("group\tkind\tname\tbore\tmass\tsource\n" + kGood),
              HasSubstr("t.tsv:1: no such column: mass"));
  EXPECT_THAT(Compile("kind\tgroup\tname\tbore\tsource\n"), HasSubstr("the heads must be"));
  EXPECT_THAT(Compile(kHeads), HasSubstr("has no rows"));
  EXPECT_THAT(Compile(""), HasSubstr("has no rows"));
}

}  // namespace
}  // namespace veldox::testing
