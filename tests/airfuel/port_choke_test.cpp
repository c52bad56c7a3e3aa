#include "airfuel/port_choke.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "airfuel/choke_reports.h"

namespace veldox {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr double kExact = 1e-12;

ChokeEngine Engine(ExhaustLogic logic = ExhaustLogic::Old) {
  return {4.03, 3.5, 2.02, 1.6, 1, 1, 0.55, logic};
}

ChokeValues Values(ExhaustLogic logic = ExhaustLogic::Old) {
  ChokeValues values;
  values.engine = Engine(logic);
  values.rpm = 6500;
  values.volumetricEfficiency = 0.85;
  values.userVelocity = 280;
  values.throats = {2.5, 1.5};
  values.lifts = {.1, .35, .55};
  return values;
}

PortPair LeastLifts(const ChokeEngine& engine, double rpm) {
  return {MinimumIntakeLift(engine, rpm), MinimumExhaustLift(engine, rpm)};
}

/// The lines of the table, without its heads, split at blanks.
std::vector<std::vector<std::string>> Rows(const std::string& report) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(report.substr(report.find("Intake Exhaust_")));
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) {
    std::istringstream words(line);
    std::vector<std::string> row;
    for (std::string word; words >> word;) row.push_back(word);
    if (!row.empty()) rows.push_back(row);
  }
  return rows;
}

TEST(PortChoke, LiftIsForTheVolumeThatPassesTheCurtain) {
  // At 90 pi RPM the scale is 1: 2 x 2 x 3 = 12 cubic inches.
  const ChokeEngine engine{2, 3, 1.5, 1.25, 2, 1, 0.5, ExhaustLogic::Old};
  const PortPair lift = LeastLifts(engine, 90 * std::numbers::pi);
  EXPECT_NEAR(lift.intake, 12 / (996 * std::numbers::pi), kExact);
  EXPECT_NEAR(lift.exhaust, 12 / (556.25 * std::numbers::pi), kExact);
}

TEST(PortChoke, MaximumIsAFixedPartAboveTheMinimum) {
  for (const ExhaustLogic logic : {ExhaustLogic::Old, ExhaustLogic::New}) {
    const PortPair least = LeastLifts(Engine(logic), 7000);
    const PortPair most = MaximumLifts(Engine(logic), 7000);
    EXPECT_NEAR(most.intake / least.intake, 1.1456789, kExact);
    EXPECT_NEAR(most.exhaust / least.exhaust, 1.1456789, kExact);
  }
}

TEST(PortChoke, SpeedAndLiftAreInverse) {
  for (const ExhaustLogic logic : {ExhaustLogic::Old, ExhaustLogic::New}) {
    const PortPair lift = LeastLifts(Engine(logic), 7000);
    EXPECT_NEAR(ChokeRpm(Engine(logic), lift.intake).intake, 7000, 1e-8);
    EXPECT_NEAR(ChokeRpm(Engine(logic), lift.exhaust).exhaust, 7000, 1e-8);
  }
}

TEST(PortChoke, NewLogicTellsTheExhaustByTheIntake) {
  const double ratio = 2.02 * 0.7605 / 1.6;
  const PortPair lift = LeastLifts(Engine(ExhaustLogic::New), 7000);
  EXPECT_NEAR(lift.exhaust, lift.intake * ratio, kExact);
  const PortPair rpm = ChokeRpm(Engine(ExhaustLogic::New), .4);
  EXPECT_NEAR(rpm.exhaust * ratio, rpm.intake, 1e-8);
  // With the usual exhaust valve both ports choke at one speed.
  ChokeEngine usual = Engine(ExhaustLogic::New);
  usual.exhaustValve = 2.02 * 0.7605;
  EXPECT_NEAR(ChokeRpm(usual, .4).exhaust, ChokeRpm(usual, .4).intake, 1e-8);
}

TEST(PortChoke, FlowIsThatOfTheCurtain) {
  const double curtain = std::numbers::pi * .4;
  const PortPair old = MinimumFlow(Engine(), .4);
  EXPECT_NEAR(old.intake, curtain * 2.02 * 265 * .55, 1e-10);
  EXPECT_NEAR(old.exhaust, curtain * 1.6 * 250 * .55, 1e-10);
  const PortPair other = MinimumFlow(Engine(ExhaustLogic::New), .4);
  EXPECT_EQ(other.intake, old.intake);
  // The exhaust's own size cancels out.
  EXPECT_NEAR(other.exhaust, curtain * 2.02 * 0.7605 * 253 * .55, 1e-10);
  ChokeEngine four = Engine();
  four.intakeCount = 2;
  four.exhaustCount = 3;
  EXPECT_NEAR(MinimumFlow(four, .4).intake, 2 * old.intake, 1e-10);
  EXPECT_NEAR(MinimumFlow(four, .4).exhaust, 3 * old.exhaust, 1e-10);
}

TEST(PortChoke, IntakeFlowWithTheUsualCoefficientIsThatOfTwentyEightInches) {
  // 265 x .55 = 145.75, the flow of a square inch without loss at 28 inches of water being 145.96.
  const double curtain = std::numbers::pi * 2.02 * .5;
  EXPECT_NEAR(MinimumFlow(Engine(), .5).intake / curtain, 145.957, 145.957 * 0.0015);
}

TEST(ChokeReport, TellsBothLiftsOnALine) {
  const std::string report = ChokeReport(Values(), DecimalMark::Point);
  // 6500 / (90 pi) x 4.03^2 x 3.5 / (2.02 x 332 x pi) = .6202, by 1.6 x 445 for the exhaust .5842
  EXPECT_THAT(report, HasSubstr("Choke RPM       Minimum Intake Lift = 0.6202    "
                                "Minimum Exhaust Lift = 0.5842\r\n"
                                "                Maximum Intake Lift = 0.7106    "
                                "Maximum Exhaust Lift = 0.6693\r\n"));
}

TEST(ChokeReport, HasARowForEachLift) {
  const auto rows = Rows(ChokeReport(Values(), DecimalMark::Point));
  ASSERT_EQ(rows.size(), 3U);
  // Each worked out from the formulas for .55 inches.
  EXPECT_THAT(rows[2],
              testing::ElementsAre(".5500", "5764", "6119", "508.7", "380.1", "4.070", "3.041",
                                   "488.4", "608.2", "4.360", "3.258", ".272", ".344"));
}

TEST(ChokeReport, LogicChangesOnlyTheExhaust) {
  const auto old = Rows(ChokeReport(Values(), DecimalMark::Point));
  const auto other = Rows(ChokeReport(Values(ExhaustLogic::New), DecimalMark::Point));
  ASSERT_EQ(old.size(), other.size());
  for (std::size_t row = 0; row < old.size(); ++row) {
    ASSERT_EQ(old[row].size(), 13U);
    ASSERT_EQ(other[row].size(), 13U);
    for (const std::size_t column : {0U, 1U, 3U, 5U, 7U, 9U, 11U}) {
      EXPECT_EQ(old[row][column], other[row][column]);
    }
    for (const std::size_t column : {2U, 4U, 6U, 8U, 10U}) {
      EXPECT_NE(old[row][column], other[row][column]);
    }
  }
}

TEST(ChokeReport, NumbersEndUnderTheirHeads) {
  const std::string report = ChokeReport(Values(), DecimalMark::Point);
  const std::string heads =
      "       Intake Exhaust   Intake  Exhaust  Intake Exhaust   Intake  Exhaust  Intake Exhaust  "
      "Intake Exhaust";
  const std::size_t at = report.find(heads + "_\r\n");
  ASSERT_NE(at, std::string::npos);
  const std::string first = report.substr(at + heads.size() + 3, heads.size() + 2);
  for (std::size_t i = 0; i < heads.size(); ++i) {
    const bool endsHead = heads[i] == 't' && (i + 1 == heads.size() || heads[i + 1] == ' ');
    if (!endsHead) continue;
    EXPECT_NE(first[i], ' ') << i;
    EXPECT_TRUE(first[i + 1] == ' ' || first[i + 1] == '\r') << i;
  }
  EXPECT_THAT(report, HasSubstr("fps Velocity     fps - User CSA"));
  EXPECT_THAT(report, HasSubstr("Throat Velocity    CSA @ 280"));
}

TEST(ChokeReport, ReadsWithACommaAndWithoutRows) {
  ChokeValues values = Values();
  values.lifts.clear();
  const std::string report = ChokeReport(values, DecimalMark::Comma);
  EXPECT_THAT(report, HasSubstr("Minimum Intake Lift = 0,6202"));
  EXPECT_TRUE(Rows(report).empty());
  EXPECT_THAT(report, Not(testing::EndsWith("_")));
}

TEST(ChokeGraph, CrossesTheSpeedAtTheMinimumLift) {
  ChokeValues values = Values();
  const PortPair lift = LeastLifts(values.engine, values.rpm);
  values.lifts = {.1, lift.intake, lift.exhaust, 0.75};
  const ChokePlot plot = PlotChoke(values);
  ASSERT_EQ(plot.curves.size(), 2U);
  EXPECT_NEAR(plot.curves[0].points[1].y, 6500, 1e-8);
  EXPECT_NEAR(plot.curves[1].points[2].y, 6500, 1e-8);
  EXPECT_EQ(plot.curves[0].standardLine, 6500);
  EXPECT_EQ(plot.frame.range, (AxisRange{0, 0.8, 0, 10000}));
}

}  // namespace
}  // namespace veldox
