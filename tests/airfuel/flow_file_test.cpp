#include "airfuel/flow_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

/// From the first count on, with a count for both ports.
std::vector<std::string> FlwBody() {
  return {"2",     "1 2.02", "1 10", "1 .1", "1 .2", "1 60", "1 120",
          "1 1.6", "1 25",   "1 .1", "1 .2", "1 50", "1 90"};
}

std::vector<std::string> Joined(std::vector<std::string> first, std::vector<std::string> second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

FlowFile Parse(const std::vector<std::string>& lines, const std::string& name) {
  return ParseFlowFile(Lines(lines), name, DecimalMark::Point);
}

TEST(FlowFile, FlwHasOneCountForBothPorts) {
  const FlowFile file = Parse(Joined({"Head", "x", "y"}, FlwBody()), "bench.FLW");
  ASSERT_FALSE(file.fault) << file.fault->message();
  EXPECT_FALSE(file.hasNoFlow);
  EXPECT_EQ(file.intake.valveSize, 2.02);
  EXPECT_EQ(file.intake.testPressure, 10);
  EXPECT_THAT(file.intake.lifts, ElementsAre(.1, .2));
  EXPECT_THAT(file.intake.flows, ElementsAre(60, 120));
  EXPECT_EQ(file.exhaust.valveSize, 1.6);
  EXPECT_EQ(file.exhaust.testPressure, 25);
  EXPECT_THAT(file.exhaust.flows, ElementsAre(50, 90));
  EXPECT_FALSE(file.intakeValves);
  EXPECT_EQ(file.linesRead, 16);
}

TEST(FlowFile, OfAnUnknownEndingIsTakenAsFlw) {
  EXPECT_FALSE(Parse(Joined({"Head", "x", "y"}, FlwBody()), "bench.txt").fault);
  EXPECT_FALSE(Parse(Joined({"Head", "x", "y"}, FlwBody()), "b").fault);
}

TEST(FlowFile, DfwHasACountForEachPortAndTheValves) {
  const FlowFile file = Parse({"Head", "x", "y", "2", "1", "1 2.02", "1 28", "1 .1", "1 .2", "1 60",
                               "1 120", "1 1.6", "1 28", "1 .3", "1 99", "2", "3"},
                              "bench.dfw");
  ASSERT_FALSE(file.fault) << file.fault->message();
  EXPECT_THAT(file.intake.lifts, ElementsAre(.1, .2));
  EXPECT_THAT(file.exhaust.lifts, ElementsAre(.3));
  EXPECT_THAT(file.exhaust.flows, ElementsAre(99));
  EXPECT_EQ(file.intakeValves, 2);
  EXPECT_EQ(file.exhaustValves, 3);
}

TEST(FlowFile, DynWaitsForItsTitleTwiceMore) {
  const std::vector<std::string> before = {"Engine", "327",    "Engine ", "Engine", "engine",
                                           "cam",    "Engine", "a",       "b"};
  const FlowFile file = Parse(Joined(before, FlwBody()), "e.dyn");
  ASSERT_FALSE(file.fault) << file.fault->message();
  EXPECT_THAT(file.intake.flows, ElementsAre(60, 120));
}

TEST(FlowFile, CquAndDymWaitForTheTitleFourTimesMore) {
  const std::vector<std::string> body = {"1",     "1",    "1 2.02", "1 28", "1 .1", "1 60",
                                         "1 1.6", "1 28", "1 .3",   "1 99", "2",    "2"};
  for (const char* name : {"e.cqu", "e.dym", "e.DYM"}) {
    const FlowFile file = Parse(Joined({"T", "T", "x", "T", "T", "y", "T", "a", "b"}, body), name);
    ASSERT_FALSE(file.fault) << file.fault->message();
    EXPECT_EQ(file.intakeValves, 2);
    EXPECT_THAT(file.exhaust.flows, ElementsAre(99));
  }
}

TEST(FlowFile, ThatEndsInTheSearchFailsAtTheCount) {
  const FlowFile file = Parse({"Engine", "327", "Engine", "cam"}, "e.dyn");
  ASSERT_TRUE(file.fault);
  EXPECT_THAT(file.fault->message(), HasSubstr("The number of intake points is missing"));
  EXPECT_EQ(file.linesRead, 4);
  EXPECT_FALSE(file.intake.valveSize);
}

TEST(FlowFile, WithoutTheMarkAtTheIntakeValveHasNoFlow) {
  std::vector<std::string> lines = Joined({"Head", "x", "y"}, FlwBody());
  lines[4] = "2.02";
  EXPECT_TRUE(Parse(lines, "b.flw").hasNoFlow);
  lines[4] = " 1 2.02";
  EXPECT_TRUE(Parse(lines, "b.flw").hasNoFlow);
}

TEST(FlowFile, OtherLinesJustLoseTwoCharacters) {
  std::vector<std::string> lines = Joined({"Head", "x", "y"}, FlwBody());
  lines[6] = "xy.1";
  lines[10] = "992.5";  // the exhaust's valve: 2.5 behind two characters
  const FlowFile file = Parse(lines, "b.flw");
  ASSERT_FALSE(file.fault) << file.fault->message();
  EXPECT_THAT(file.intake.lifts, ElementsAre(.1, .2));
  EXPECT_EQ(file.exhaust.valveSize, 2.5);
}

TEST(FlowFile, KeepsWhatStandsBeforeAFault) {
  std::vector<std::string> lines = Joined({"Head", "x", "y"}, FlwBody());
  lines[9] = "1 sixty";
  const FlowFile file = Parse(lines, "b.flw");
  ASSERT_TRUE(file.fault);
  EXPECT_THAT(file.fault->message(),
              testing::AllOf(HasSubstr("The intake flow"), HasSubstr("b.flw"), HasSubstr("1 sixty"),
                             HasSubstr("10")));
  EXPECT_EQ(file.linesRead, 10);
  EXPECT_THAT(file.intake.lifts, ElementsAre(.1, .2));
  EXPECT_THAT(file.intake.flows, ElementsAre(60));
  EXPECT_FALSE(file.exhaust.valveSize);
}

TEST(FlowFile, RefusesCountsAndPressuresThatCannotBe) {
  const std::vector<std::string> good = Joined({"Head", "x", "y"}, FlwBody());
  const auto fault = [&](std::size_t line, const char* text) {
    std::vector<std::string> lines = good;
    lines[line] = text;
    const FlowFile file = Parse(lines, "b.flw");
    EXPECT_TRUE(file.fault) << text;
    EXPECT_EQ(file.linesRead, static_cast<int>(line) + 1) << text;
    return file;
  };
  for (const char* count : {"17", "-1", "ten", "", "1e300"}) {
    EXPECT_FALSE(fault(3, count).intake.valveSize) << count;
  }
  EXPECT_TRUE(fault(5, "1 0").intake.lifts.empty());
  EXPECT_TRUE(fault(5, "1 -3").intake.lifts.empty());
  EXPECT_EQ(fault(11, "1 0").exhaust.valveSize, 1.6);
}

TEST(FlowFile, CutShortAnywhereIsAFault) {
  const std::vector<std::string> good = Joined({"Head", "x", "y"}, FlwBody());
  for (std::size_t lines = 0; lines < good.size(); ++lines) {
    const FlowFile file =
        Parse({good.begin(), good.begin() + static_cast<std::ptrdiff_t>(lines)}, "b.flw");
    EXPECT_TRUE(file.fault) << lines;
    EXPECT_EQ(file.linesRead, static_cast<int>(lines));
  }
}

TEST(FlowFile, TakesSixteenRows) {
  std::vector<std::string> lines = {"Head", "x", "y", "16"};
  for (int port = 0; port < 2; ++port) {
    lines.insert(lines.end(), {"1 2", "1 28"});
    for (int i = 0; i < 32; ++i) lines.push_back("1 " + std::to_string(i + 1));
  }
  const FlowFile file = Parse(lines, "b.flw");
  ASSERT_FALSE(file.fault);
  EXPECT_EQ(file.exhaust.flows.size(), 16U);
  EXPECT_EQ(file.exhaust.flows.back(), 32);
}

TEST(FlowFile, ReadsACommaInCommaMode) {
  std::vector<std::string> lines = Joined({"Head", "x", "y"}, FlwBody());
  lines[4] = "1 2,02";
  EXPECT_EQ(ParseFlowFile(Lines(lines), "b.flw", DecimalMark::Comma).intake.valveSize, 2.02);
  EXPECT_TRUE(ParseFlowFile(Lines(lines), "b.flw", DecimalMark::Point).fault);
}

TEST(FlowExport, WritesOnlyRowsWithLiftAndFlow) {
  const std::vector<FlowPoint> intake = {{.1, 60}, {0, 80}, {.2, 0}, {.3, 177.25}};
  const std::vector<FlowPoint> exhaust = {{.1, 48}};
  const FlowExportText file = WriteFlowFile({2.02, 1.6, intake, exhaust}, "T", DecimalMark::Point);
  EXPECT_EQ(file.intakePoints, 2);
  EXPECT_EQ(file.exhaustPoints, 1);
  EXPECT_EQ(file.text, Lines({"T", "0", "2", "1", "1 2.02", "1 28", "1 0.1000000", "1 0.3000000",
                              "1 60.0000000", "1 177.2500000", "1 1.6", "1 28", "1 0.1000000",
                              "1 48.0000000", "1", "1", "***", "***"}));
}

TEST(FlowExport, ReadsBackWithALinePutIn) {
  const std::vector<FlowPoint> intake = {{.1, 60.5}, {.3, 177.25}};
  const std::vector<FlowPoint> exhaust = {{.15, 48}};
  const FlowExportText file = WriteFlowFile({2.02, 1.6, intake, exhaust}, "T", DecimalMark::Point);
  // As it is written it has a line too few for the reader.
  const FlowFile asWritten = ParseFlowFile(file.text, "a.dfw", DecimalMark::Point);
  EXPECT_TRUE(asWritten.fault || asWritten.hasNoFlow);
  std::string text = file.text;
  text.insert(text.find("0\r\n"), "-\r\n");
  const FlowFile again = ParseFlowFile(text, "a.dfw", DecimalMark::Point);
  ASSERT_FALSE(again.fault) << again.fault->message();
  EXPECT_EQ(again.intake.valveSize, 2.02);
  EXPECT_THAT(again.intake.lifts, ElementsAre(.1, .3));
  EXPECT_THAT(again.intake.flows, ElementsAre(60.5, 177.25));
  EXPECT_THAT(again.exhaust.flows, ElementsAre(48));
  EXPECT_EQ(again.intakeValves, 1);
}

TEST(FlowExport, TitleIsCutByShorterWordsFirst) {
  EXPECT_EQ(FlowFileTitle("Prog", "1.0.0"), "5.00 Exported From Prog Version: 1.0.0");
  const std::string long45(45, 'p');
  // 5 + 13 + 1 + 45 + 10 + 6 = 80 with the long words, 76 with "Ver: "
  EXPECT_EQ(FlowFileTitle(long45, "10.2.3"), "5.00 Exported From " + long45 + " Ver: 10.2.3");
  const std::string long55(55, 'p');
  EXPECT_EQ(FlowFileTitle(long55, "10.2.3"), "5.00 " + long55 + " Ver: 10.2.3");
  EXPECT_EQ(FlowFileTitle(std::string(90, 'p'), "1").size(), 79U);
}

}  // namespace
}  // namespace veldox
