// The program that checks the tables and turns them into source.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

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
  EXPECT_THAT(
      text.str(),
      HasSubstr("{TableRow::Kind::Header, \"4 \\\"Cylinder\\\"\", \"\", \"\", {kCells + 0, 0}}"));
  EXPECT_THAT(text.str(), HasSubstr("{TableRow::Kind::Figures, \"I-134\", \"3.125 4.375 9.1875 "
                                    "4\", \"maker\", {kCells + 0, 4}}"));
  EXPECT_THAT(text.str(),
              HasSubstr("    \"3.125\",\n    \"4.375\",\n    \"9.1875\",\n    \"4\",\n"));
  EXPECT_THAT(text.str(),
              HasSubstr("{TableRow::Kind::NameOnly, \"304\", \"\", \"\", {kCells + 4, 0}}"));
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

class CompileOtherTable : public CompileTable {
 protected:
  /// Expects a table to pass, and to be refused with any of the bad rows behind the good ones.
  /// @param heads  of the figures
  void Check(const std::string& heads, const std::vector<std::string>& good,
             const std::vector<std::pair<std::string, std::string>>& bad) {
    std::string table = "group\tkind\tname\t" + heads + "\tsource\n";
    for (const std::string& row : good) table += row + '\n';
    EXPECT_EQ(Compile(table), "");
    ASSERT_TRUE(passed_);
    const std::string line = "t.tsv:" + std::to_string(good.size() + 2) + ": ";
    for (const auto& [row, words] : bad) {
      const std::string said = Compile(table + row + '\n');
      EXPECT_FALSE(passed_) << row;
      EXPECT_THAT(said, HasSubstr(line + words)) << row;
    }
  }
};

TEST_F(CompileOtherTable, OfTaps) {
  Check("threads\tdrill",
        {"UNC\ttap\t4\t4\t3-3/4\tASME", "UNC\ttap\t2\t4-1/2\t1-25/32\tASME",
         "UNC\ttap\t#1\t64\t#53\tASME", "UNF\ttap\t3/8\t24\tQ\tASME"},
        {{"UNF\ttap\tX\t4.5\tQ\tASME", "threads \"4.5\" is not a fraction"},
         {"UNF\ttap\tX\t\tQ\tASME", "threads \"\" is not a fraction"},
         {"UNF\ttap\tX\t24\t2/4\tASME", "drill \"2/4\" is not a drill"},
         {"UNF\ttap\tX\t24\t5/4\tASME", "drill \"5/4\" is not a drill"},
         {"UNF\ttap\tX\t24\t1/3\tASME", "drill \"1/3\" is not a drill"},
         {"UNF\ttap\tX\t24\t0-1/4\tASME", "drill \"0-1/4\" is not a drill"},
         {"UNF\ttap\tX\t24\t1-/4\tASME", "drill \"1-/4\" is not a drill"},
         {"UNF\ttap\tX\t24\t1/\tASME", "drill \"1/\" is not a drill"},
         {"UNF\ttap\tX\t24\t#81\tASME", "drill \"#81\" is not a drill"},
         {"UNF\ttap\tX\t24\t#0\tASME", "drill \"#0\" is not a drill"},
         {"UNF\ttap\tX\t24\tq\tASME", "drill \"q\" is not a drill"},
         {"UNF\ttap\tX\t24\tQ\t", "the figures have no source"},
         {"UNF\ttap\tX\t\t\t", "the row has no figures"},
         {"UNF\tengine\tX\t24\tQ\tASME", "no such kind: engine"}});
}

TEST_F(CompileOtherTable, OfUnits) {
  const std::vector<std::string> good{
      "Length\tunit\tMM\t9\t11\t* 25.4\tgiven", "Length\tunit\tInches\t11\t\t\tgiven",
      "Heat\tunit\tF\t23\t\t\tgiven", "Heat\tunit\tC\t24\t23\t- 32 * 5 / 9\tgiven",
      "Vacuum\tunit\tV\t0\t9\t* -1\tgiven"};
  const std::string unit = "More\tunit\tX\t";
  Check("option\tof\tsteps", good,
        {{unit + "7\t99\t* 2\tgiven", "of \"99\" is out of range"},
         {unit + "7\t8\t* 2\tgiven", "no unit has the option 8"},
         {unit + "9\t11\t* 2\tgiven", "the option stands twice: 9"},
         {unit + "64\t11\t* 2\tgiven", "option \"64\" is out of range"},
         {unit + "7\t7\t* 2\tgiven", "the unit comes of itself: 7"},
         {unit + "7\t11\t\tgiven", "a unit comes of another by steps, or of none"},
         {unit + "7\t\t* 2\tgiven", "a unit comes of another by steps, or of none"},
         {unit + "7\t11\t2\tgiven", "steps \"2\" are not signs and numbers"},
         {unit + "7\t11\t* 2 /\tgiven", "steps \"* 2 /\" are not"},
         {unit + "7\t11\t*  2\tgiven", "steps \"*  2\" are not"},
         {unit + "7\t11\t^ 2\tgiven", "steps \"^ 2\" are not"},
         {unit + "7\t11\t/ 0\tgiven", "steps \"/ 0\" are not"},
         {unit + "7\t11\t* two\tgiven", "steps \"* two\" are not"}});
}

TEST_F(CompileOtherTable, OfGearboxes) {
  Check(
      "ratios",
      {"Automatic\theader\tAisin\t\t", "Automatic\tgearbox\t68RC\t3.74 1.96 1.00\tmaker",
       "Automatic\tgearbox\t68RD\t\t", "Manual\tgearbox\tA\t2.4 1\tmaker",
       "Manual\tgearbox\tB\t9 8 7 6 5 4 3 2 1 .5\tmaker"},
      {{"Manual\tgearbox\tX\t1.0\tmaker", "ratios \"1.0\" are not 2 to 10 numbers"},
       {"Manual\tgearbox\tX\t9 8 7 6 5 4 3 2 1 1 1\tmaker", "ratios \"9 8 7 6 5 4 3 2 1 1 1\" are"},
       {"Manual\tgearbox\tX\t3.0  1.0\tmaker", "ratios \"3.0  1.0\": \"\" is not a number"},
       {"Manual\tgearbox\tX\t3.0 1.0R\tmaker", "ratios \"3.0 1.0R\": \"1.0R\" is not a number"},
       {"Manual\tgearbox\tX\t3.0 0\tmaker", "ratios \"3.0 0\" is out of range"},
       {"Manual\tgearbox\tX\t3.0 1.0\t", "the figures have no source"}});
}

TEST_F(CompileTable, WritesTheListsOfGroups) {
  EXPECT_EQ(Compile("list\tgroup\tkind\tname\tcd\tarea\tsource\n"
                    "home\tAMC\tcar\t'75 A\t0.32\t\tmaker\n"
                    "home\tGM\tempty group\t\t\t\t\n"
                    "home\t\tempty group\t\t\t\t\n"
                    "home\t\tempty group\t\t\t\t\n"
                    "away\tAMC\tcar\t'75 B\t0.33\t19.5\tmaker\n"
                    "away\tAMC\tcar\t'75 C\t\t\t\n"),
            "");
  ASSERT_TRUE(passed_);
  std::ifstream file(folder_ / "t.cpp");
  std::ostringstream text;
  text << file.rdbuf();
  EXPECT_THAT(text.str(), HasSubstr("    {\"AMC\", {kRows + 0, 1}, \"home\"},\n"
                                    "    {\"GM\", {kRows + 1, 0}, \"home\"},\n"
                                    "    {\"\", {kRows + 1, 0}, \"home\"},\n"
                                    "    {\"\", {kRows + 1, 0}, \"home\"},\n"
                                    "    {\"AMC\", {kRows + 1, 2}, \"away\"},\n"));
  // No blank stands for a figure that is not there.
  EXPECT_THAT(text.str(), HasSubstr("\"'75 A\", \"0.32\", \"maker\", {kCells + 0, 2}"));
  EXPECT_THAT(text.str(), HasSubstr("\"'75 B\", \"0.33 19.5\", \"maker\", {kCells + 2, 2}"));
  EXPECT_THAT(text.str(), HasSubstr("{TableRow::Kind::NameOnly, \"'75 C\""));
}

TEST_F(CompileTable, RefusesMalformedLists) {
  const std::string heads = "list\tgroup\tkind\tname\tcd\tarea\tsource\n";
  const std::string good =
      "home\tAMC\tcar\t'75 A\t0.32\t19\tmaker\nhome\tGM\tempty group\t\t\t\t\n";
  const std::vector<std::pair<std::string, std::string>> bad{
      {"home\tBMW\tcar\tX\t\t19\tmaker\n", "cd \"\" is not a number"},
      {"home\tBMW\tcar\tX\t3.2\t\tmaker\n", "cd \"3.2\" is out of range"},
      {"home\tBMW\tcar\tX\t0.3\t0\tmaker\n", "area \"0\" is out of range"},
      {"home\tBMW\tcar\tX\t0.3\t19\t\n", "the figures have no source"},
      {"home\tBMW\tempty group\tX\t\t\t\n", "an empty group has no name of a row"},
      {"home\tBMW\tempty group\t\t0.3\t\t\n", "an empty group has no name of a row"},
      {"home\tGM\tcar\tX\t0.3\t\tmaker\n", "the group begins again: GM"},
      {"home\tAMC\tcar\tX\t0.3\t\tmaker\n", "the group begins again: AMC"},
      {"home\t\tcar\tX\t0.3\t\tmaker\n", "the group has no name"},
      {"\tBMW\tcar\tX\t0.3\t\tmaker\n", "the list has no name"},
      {"BMW\tcar\tX\t0.3\t\tmaker\n", "6 cells instead of 7"}};
  for (const auto& [row, words] : bad) {
    const std::string said = Compile(heads + good + row);
    EXPECT_FALSE(passed_) << row;
    EXPECT_THAT(said, HasSubstr("t.tsv:4: " + words)) << row;
  }
  EXPECT_THAT(Compile(heads + good + "away\tGM\tcar\tX\t0.3\t\tmaker\n" +
                      "home\tBMW\tcar\tX\t0.3\t\tmaker\n"),
              HasSubstr("t.tsv:5: the list begins again: home"));
}

TEST_F(CompileOtherTable, OfTextsThatMayBeLeftOut) {
  Check("hose\ttube\tthread",
        {"AN\tdash\t-2\t\t1/8\t5/16-24\tSAE", "AN\tdash\t-72\t\t4-1/2\t\tSAE"},
        {{"AN\tdash\t-4\t3/16\t\t7/16-20\tSAE", "tube \"\" is not a fraction"}});
  Check("alloy", {"Carbon\tsteel\t10XX\tplain\tSAE"},
        {{"Carbon\tsteel\t11XX\t\tSAE", "alloy \"\" is not told"}});
}

TEST_F(CompileTable, RefusesColumnsOfTwoKinds) {
  EXPECT_THAT(Compile("group\tkind\tname\tbore\tdrill\tsource\n"),
              HasSubstr("t.tsv:1: no kind of table has these columns"));
}

}  // namespace
}  // namespace veldox::testing
