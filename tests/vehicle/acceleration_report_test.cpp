#include "vehicle/acceleration_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/report.h"
#include "tests/support/sample_cars.h"

namespace veldox {
namespace {

using test::SampleCar;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

std::vector<std::string> LinesOf(const std::string& report) {
  std::vector<std::string> lines;
  for (std::size_t from = 0;;) {
    const std::size_t end = report.find("\r\n", from);
    lines.push_back(report.substr(from, end - from));
    if (end == std::string::npos) return lines;
    from = end + 2;
  }
}

std::string ChartOf(SampleCar car, bool showsRate = false) {
  return ChartRun(car.Run(), showsRate, DecimalMark::Point).report;
}

/// The line that begins so; empty where there is none.
std::string LineOf(const std::string& report, const std::string& beginning) {
  for (const std::string& line : LinesOf(report)) {
    if (line.starts_with(beginning)) return line;
  }
  return {};
}

std::size_t CountOf(const std::string& report, const std::string& beginning) {
  const std::vector<std::string> lines = LinesOf(report);
  return static_cast<std::size_t>(
      std::count_if(lines.begin(), lines.end(),
                    [&](const std::string& line) { return line.starts_with(beginning); }));
}

TEST(AccelerationReport, BeginsWithTheHeadOfTheChart) {
  const std::vector<std::string> lines = LinesOf(ChartOf(test::StartCar()));
  ASSERT_GT(lines.size(), 10U);
  EXPECT_THAT(lines[0], StartsWith("Press the . key"));
  EXPECT_EQ(lines[2], "                Acceleration and Top Speed Prediction Chart.^");
  EXPECT_EQ(
      lines[3],
      "                                   Force    Aero     Rolling  Elapsed           Accele^");
  EXPECT_EQ(
      lines[4],
      "  RPM      MPH   Velocity  Motor     @     dynamic   Resist.   Time      Total  ration^");
  EXPECT_EQ(
      lines[5],
      "                  ft/sec  Torque   Wheel  Drag - HP    HP      (ET)    Distance in G's^");
  EXPECT_EQ(lines[6], "");
}

TEST(RunSummary, TellsWhatWasReached) {
  RunResult run;
  const auto at = [&](StripMark mark) -> RunMark& {
    return run.strip[static_cast<std::size_t>(mark)];
  };
  at(StripMark::Feet60) = {1.35321, 50};
  at(StripMark::Feet600) = {5.5, 116};
  at(StripMark::Feet660) = {5.88684, 118};
  run.topSpeed = 157.849;
  // The speed at the eighth is the mean over the trap.
  EXPECT_EQ(SummaryOf(run, DecimalMark::Point),
            "60 Foot 1.3532,  1/8 Mile 5.8868 @ 117.00 MPH,  Top Speed 157.85 MPH");
  run.end = RunEnd::NoThrust;
  EXPECT_EQ(SummaryOf(run, DecimalMark::Point), "");
}

TEST(AccelerationReport, OptionsHaveTheirColumns) {
  SampleCar car = test::StartCar();
  car.inputs.nitrous = car.inputs.hoodScoop = true;
  car.inputs.nitrousStages[0] = {1, 110, 1, 100, 1};
  const std::vector<std::string> lines = LinesOf(ChartOf(car, true));
  EXPECT_THAT(lines[4], EndsWith("ration  Nitrous RPS Rate Hood Scp^"));
  EXPECT_THAT(lines[5], EndsWith("in G'sHP     Change Pressure^"));
  // The first row after a head tells no rate.
  EXPECT_EQ(lines[7].substr(86, 17), "   110.00        ");
  EXPECT_EQ(lines[7].size(), 111U);
  const auto second = std::find_if(lines.begin() + 8, lines.end(),
                                   [](const std::string& line) { return line.size() == 111; });
  ASSERT_NE(second, lines.end());
  EXPECT_THAT(second->substr(95, 8), testing::ContainsRegex("^ +[0-9]+\\.[0-9]$"));
}

TEST(AccelerationReport, RowsStandInTheirColumns) {
  const std::string row = LinesOf(ChartOf(test::StartCar()))[7];
  // Where 5 MPH is reached: 13.325 times 708 foot pounds less the losses, at a foot.
  EXPECT_EQ(row.substr(0, 40), "  933.3    5.00    7.334   708.0  8291.6");
  EXPECT_EQ(row.size(), 86U);
  EXPECT_EQ(row.substr(50, 9), "     .700");
}

TEST(AccelerationReport, GearChangesBringTheHeadAgain) {
  const std::string report = ChartOf(test::StartCar());
  EXPECT_EQ(CountOf(report, ">>>>--- Gear Change "), 4U);
  EXPECT_THAT(report,
              HasSubstr(">>>>--- Gear Change 1 -> 2^\r\n                                   Force"));
  EXPECT_EQ(CountOf(report, ">>>>--- RollOut Ends <-> 1/4 Mile Distance and ET Starts Now -- "),
            1U);
  EXPECT_THAT(LineOf(report, ">>>>--- RollOut"), testing::ContainsRegex("-- 0\\.[0-9]{5}\\^$"));
}

TEST(AccelerationReport, EngineBelowTheTableIsToldBeforeTheChange) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25, 1.0};
  EXPECT_THAT(
      ChartOf(car),
      HasSubstr("\r\n   RPM After Shift is Lower than any RPM in Table\r\n>>>>--- Gear Change "
                "1 -> 2^\r\n"));
}

TEST(AccelerationReport, AGearThatCannotPullIsTheOneThatWasNotEntered) {
  SampleCar car = test::StartCar();
  car.inputs.rollingResistance = 0.2;
  car.inputs.transRatio = {3.25, 2.25, 0.2};
  // The second gear's shift lies behind when it is entered: it is passed without a step.
  car.inputs.shiftRpm[1] = 5500;
  const std::string report = ChartOf(car);
  EXPECT_EQ(CountOf(report, ">>>>--- Gear Change "), 1U);
  EXPECT_THAT(report,
              HasSubstr("The run ends there: gear 3 cannot pull at this speed, in gear 1 "));
}

TEST(AccelerationReport, AGearTooShortBehindAPassedOneIsToldInTheGearOfTheLastStep) {
  SampleCar car = test::StartCar();
  car.inputs.shiftRpm[1] = 5500;
  car.inputs.tireGrowth[2] = -80;
  EXPECT_THAT(ChartOf(car),
              HasSubstr("The run ends in gear 1: the Trans Gear Ratio of gear 3 is "));
}

TEST(AccelerationReport, TiresThatOnlySlipAtTheLineAreNotTold) {
  SampleCar car = test::StartCar();
  car.inputs.rollout = 0;
  car.inputs.launchRpm = 5000;
  // The tires hold all of the thrust but a fiftieth of a pound, which the air takes within an inch.
  const double held = 3.25 * 4.1 * 700 * 0.94 * 0.935 - 0.015 * 3500 - 0.02;
  double low = 1, high = 5;
  for (int i = 0; i < 60; ++i) {
    const double mu = (low + high) / 2;
    (TractionLimit(car.inputs.carWeight, mu) < held ? low : high) = mu;
  }
  car.inputs.frictionMu = low;
  car.torque.assign(car.torque.size(), 700);
  const std::string report = ChartOf(car);
  EXPECT_THAT(report, Not(HasSubstr("until 0.0 feet")));
  car.inputs.frictionMu = 1.2;
  EXPECT_THAT(ChartOf(car), HasSubstr("limit the run until "));
}

TEST(AccelerationReport, AGearTooShortIsToldInWords) {
  SampleCar car = test::StartCar();
  car.inputs.tireGrowth[1] = -60;
  EXPECT_THAT(ChartOf(car),
              HasSubstr("The run ends in gear 1: the Trans Gear Ratio of gear 2 is too "
                        "short for the speed that was reached."));
}

TEST(AccelerationReport, SummaryHasItsSevenLines) {
  SampleCar car = test::StartCar();
  const AccelerationChart chart = ChartRun(car.Run(), false, DecimalMark::Point);
  std::vector<std::string> names;
  for (const std::string& line : LinesOf(chart.report)) {
    if (line.find(" = ") != std::string::npos) names.push_back(line.substr(0, line.find("= ") + 2));
  }
  EXPECT_THAT(names, ElementsAre("60 Foot ET   = ", "330 Foot ET  = ", "1/8 Mile ET  = ",
                                 "1/8 Mile MPH = ", "1000 Foot ET = ", "1/4 Mile ET  = ",
                                 "1/4 Mile MPH = ", "Top Speed MPH = "));
  // The mean over the last thirty feet of the quarter mile.
  const double trap = (chart.result.strip[5].mph + chart.result.strip[6].mph) / 2;
  EXPECT_EQ(LineOf(chart.report, "1/4 Mile MPH"),
            "1/4 Mile MPH = " + FormatValue<".00">(trap, DecimalMark::Point));
  EXPECT_EQ(LineOf(chart.report, "1/8 Mile ET "),
            "1/8 Mile ET  = " + FormatValue<".0000">(chart.result.Et8(), DecimalMark::Point));
}

TEST(AccelerationReport, TopSpeedSaysWhetherGearingOrPowerEndsIt) {
  EXPECT_THAT(ChartOf(test::StartCar()), HasSubstr("The gearing ends there: the car still gains "
                                                   "speed, in gear 5 at 10000 RPM."));
  EXPECT_THAT(ChartOf(test::StockCar()),
              HasSubstr("The power ends there: drag takes all of the thrust, in gear 4 at "));
}

TEST(AccelerationReport, TiresThatLimitTheRunAreTold) {
  SampleCar car = test::StartCar();
  EXPECT_THAT(ChartOf(car), Not(HasSubstr("The tires")));
  car.inputs.frictionMu = 1.2;
  EXPECT_THAT(ChartOf(car),
              testing::ContainsRegex("The tires \\(Coefficient of Mu\\) limit the run until "
                                     "[0-9]+\\.[0-9] feet\\."));
}

TEST(AccelerationReport, BeyondAMileAndAQuarterDistancesAreMiles) {
  const std::string report = ChartOf(test::TopSpeedCar());
  // The row of two miles: 10560 feet.
  EXPECT_THAT(report, testing::ContainsRegex(" 2\\.0[0-9]{3}    \\.[0-9]{3} "));
  EXPECT_THAT(report,
              testing::ContainsRegex("\r\n1/2 Mile ET = [0-9.]+ -- 1/2 Mile MPH = [0-9.]+\r\n"));
  EXPECT_THAT(report,
              testing::ContainsRegex("\r\n1 1/4 Mile ET = [0-9]+\\.[0-9]{3} -- 1 1/4 Mile MPH = "
                                     "[0-9]+\\.[0-9]{2}\r\n"));
}

TEST(AccelerationReport, ThrottleStopStandsBetweenItsLines) {
  SampleCar car = test::StartCar();
  car.inputs.throttleStop = true;
  car.inputs.throttleStopRpm = 7000;
  car.inputs.throttleStopTime = 0.3;
  const std::vector<std::string> lines = LinesOf(ChartOf(car));
  const auto start = std::find(lines.begin(), lines.end(), ">>>>--- Throttle Stop Start");
  ASSERT_LT(start, lines.end() - 5);
  EXPECT_THAT(start[1], EndsWith("    .000"));
  EXPECT_THAT(start[2], EndsWith("    .000"));
  EXPECT_EQ(start[3], ">>>>--- Throttle Stop End");
  EXPECT_EQ(start[4], "");
}

TEST(AccelerationReport, AShortRunIsToldWithItsRollOut) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25, 2.25, 1.25};
  const AccelerationChart chart = ChartRun(car.Run(), false, DecimalMark::Point);
  const std::string& report = chart.report;
  ASSERT_LT(chart.result.last.distance, 660);
  EXPECT_FALSE(LineOf(report, "Try Using Rear Gear Ratio = ").empty());
  const auto heading = report.find("------- Calculated From DeAcceleration\r\n");
  ASSERT_NE(heading, std::string::npos);
  EXPECT_LT(report.find("330 Foot ET"), heading);
  EXPECT_LT(report.find("Try Using Rear"), heading);
  EXPECT_GT(report.find("1/8 Mile ET  = "), heading);
  EXPECT_EQ(CountOf(report, "1/4 Mile ET  = "), 1U);
  EXPECT_EQ(LineOf(report, "1/4 Mile ET  = "),
            "1/4 Mile ET  = " + FormatValue<".0000">(chart.result.Et(), DecimalMark::Point));
  // Rows of the car rolling out tell no torque and no force.
  const std::string row = LinesOf(report.substr(heading))[1];
  EXPECT_EQ(row.substr(24, 16), std::string(16, ' '));
  EXPECT_THAT(row, testing::ContainsRegex("-\\.[0-9]{3}$"));
}

/// The lines of the marks and the heading among them, by their first words.
std::vector<std::string> MarksOf(const std::string& report) {
  std::vector<std::string> marks;
  for (const std::string& line : LinesOf(report)) {
    if (line.starts_with("-------")) marks.push_back(line.substr(8));
    if (line.find("ET ") <= 10 && line.find(" = ") != std::string::npos) {
      marks.push_back(line.substr(0, line.find("ET ") - 1));
    }
  }
  return marks;
}

TEST(AccelerationReport, ComputedTimesStandUnderTheirHeading) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25, 2.25, 1.25, 1.15};
  AccelerationChart chart = ChartRun(car.Run(), false, DecimalMark::Point);
  ASSERT_GT(chart.result.last.distance, 660);
  ASSERT_LT(chart.result.last.distance, 1000);
  EXPECT_THAT(MarksOf(chart.report),
              ElementsAre("60 Foot", "330 Foot", "1/8 Mile", "Calculated From DeAcceleration",
                          "1000 Foot", "1/4 Mile"));
  // The last gear a little taller: it ends behind 1000 feet.
  car.inputs.transRatio[3] = 1.0;
  chart = ChartRun(car.Run(), false, DecimalMark::Point);
  ASSERT_GT(chart.result.last.distance, 1000);
  ASSERT_LT(chart.result.last.distance, 1260);
  EXPECT_THAT(MarksOf(chart.report), ElementsAre("60 Foot", "330 Foot", "1/8 Mile", "1000 Foot",
                                                 "Calculated From DeAcceleration", "1/4 Mile"));
  EXPECT_GT(chart.report.find("1/4 Mile MPH = "), chart.report.find("------- Calculated"));
}

TEST(AccelerationReport, ACarHeldByDragHasItsHeadingBehindTheEighth) {
  SampleCar car = test::StartCar();
  car.inputs.dragCoefficient = 21;
  const AccelerationChart chart = ChartRun(car.Run(), false, DecimalMark::Point);
  ASSERT_EQ(chart.result.end, RunEnd::Power);
  ASSERT_GT(chart.result.last.distance, 660);
  ASSERT_LT(chart.result.last.distance, 1320);
  const std::vector<std::string> marks = MarksOf(chart.report);
  const auto heading = std::ranges::find(marks, "Calculated From Constant Velocity");
  ASSERT_NE(heading, marks.end());
  EXPECT_EQ(marks.back(), "1/4 Mile");
  EXPECT_LT(std::ranges::find(marks, "1/8 Mile"), heading);
}

TEST(AccelerationReport, AGearThatCannotPullIsToldInWords) {
  SampleCar car = test::StartCar();
  car.inputs.dragCoefficient = 15;
  const std::string report = ChartOf(car);
  EXPECT_THAT(report, HasSubstr("Top Speed MPH = 77.4"));
  EXPECT_THAT(report, HasSubstr("The run ends there: gear 3 cannot pull at this speed, in gear 2 "
                                "at 10000 RPM."));
  EXPECT_THAT(report, Not(HasSubstr("drag takes all")));
  EXPECT_EQ(CountOf(report, ">>>>--- Gear Change"), 1U);
}

TEST(AccelerationReport, AChartHasAnEndHoweverSlowTheCar) {
  SampleCar car = test::StartCar();
  car.inputs.frictionMu = 2e-6;
  car.inputs.rollingResistance = car.inputs.dragCoefficient = 0;
  car.rpm.clear();
  for (double rpm = 5000; rpm <= 10000; rpm += 100) car.rpm.push_back(rpm);
  car.torque.assign(car.rpm.size(), 700);
  const std::string report = ChartOf(car);
  EXPECT_EQ(CountOf(report, "The chart has its 20000 rows. Those that follow are left out."), 1U);
  EXPECT_LT(report.size(), 3'000'000U);
  EXPECT_THAT(report, HasSubstr("1/4 Mile ET  = "));
}

TEST(AccelerationReport, ARunThatCannotRollOutKeepsItsSpeed) {
  SampleCar car = test::StartCar();
  car.inputs.transRatio = {3.25};
  car.inputs.dragCoefficient = car.inputs.rollingResistance = 0;
  const std::string report = ChartOf(car);
  EXPECT_EQ(CountOf(report, "------- Calculated From Constant Velocity"), 1U);
  EXPECT_EQ(CountOf(report, "------- Calculated From DeAcceleration"), 0U);
  EXPECT_EQ(CountOf(report, "1000 Foot ET = "), 1U);
}

TEST(AccelerationReport, ACarThatCannotMoveHasOneLineAndNoTimes) {
  SampleCar car = test::StartCar();
  for (double& torque : car.torque) torque = 1;
  const std::string report = ChartOf(car);
  EXPECT_THAT(report, HasSubstr("The car does not move:"));
  EXPECT_THAT(report, Not(HasSubstr(" = ")));
}

TEST(AccelerationReport, BoxesAndFieldsAreToldWhileTheRunGoesOn) {
  SampleCar car = test::StartCar();
  car.inputs.tireRollingRadius = 13;
  car.inputs.windDirection = 400;
  car.inputs.launchRpm = 20000;
  std::vector<std::string> told;
  RunListener listener;
  listener.message = [&](const std::string& text) { told.push_back(text); };
  listener.tireDiameterRaised = [&](double inches) { told.push_back(std::to_string(inches)); };
  listener.windDirectionLowered = [&](double degrees) { told.push_back(std::to_string(degrees)); };
  ChartRun(car.Run(), false, DecimalMark::Point, listener);
  EXPECT_THAT(told, ElementsAre("359.000000", StartsWith("Tire Rolling Radius is Greater"),
                                "26.000000", "Launch RPM to High -- Not Used",
                                "Abnormal ET Reset -- Final ET MAY NOT be Correct"));
}

TEST(AccelerationReport, DecimalCommasAreKept) {
  SampleCar car = test::StartCar();
  const std::string report = ChartRun(car.Run(), false, DecimalMark::Comma).report;
  EXPECT_THAT(LinesOf(report)[7], StartsWith("  933,3    5,00    7,334"));
}

TEST(AccelerationReport, TheCvtHasAChartOfItsOwn) {
  SampleCar car = test::StartCar();
  car.inputs.cvtRpm = 9500;
  car.inputs.cvtLoss = 20;
  car.inputs.hoodScoop = car.inputs.nitrous = true;
  const std::vector<std::string> lines = LinesOf(ChartCvtRun(car.Run(), DecimalMark::Point).report);
  EXPECT_EQ(lines[2], "        Acceleration and Top Speed Prediction Chart.^");
  EXPECT_EQ(lines[3], "                            Aero     Elapsed           Accele_");
  EXPECT_EQ(lines[4],
            "  RPM      MPH   Velocity  dynamic    Time      Total  ration  Nitrous  H S PSI_");
  EXPECT_EQ(lines[5], "                  ft/sec  Drag - HP   (ET)    Distance in G's     HP_");
  EXPECT_EQ(lines[6], "");
  EXPECT_THAT(lines[7], StartsWith(" 9500.0    5.00"));
  EXPECT_EQ(lines[7].size(), 7U + 8 + 9 + 10 + 9 + 10 + 8 + 9 + 8);
}

}  // namespace
}  // namespace veldox
