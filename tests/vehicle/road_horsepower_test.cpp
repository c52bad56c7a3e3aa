#include "vehicle/road_horsepower.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

#include "core/error.h"
#include "core/report.h"
#include "vehicle/acceleration.h"

namespace veldox {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// A car in its third gear, with the tire's diameter twice its radius.
const RoadCar kCar{2875, 0.35, 19.4, 0.015, 29.92126, 0};
const RoadDrive kDrive{1.25, 4.1, 1, 0, 28};

/// Torque of the engine at the wheels' side of the gears, less all losses; in foot pounds.
double WheelSideTorque(double rpm) {
  const double x = (rpm - 4800) / 4000;
  return 410 * (1 - 0.55 * x * x);
}

/// Runs the car by Newton's law in steps of 20 microseconds and notes speed and time at engine
/// speeds 100 RPM apart.
struct DrivenTable {
  std::vector<double> rpm, mph, seconds;

  DrivenTable(const RoadCar& car, double from, double to) {
    const double feetPerRev =
        kDrive.DriveRadius() / 12 * 2 * std::acos(-1.0) / kDrive.OverallRatio();
    const double gravity = 32.17405;
    double v = from / 60 * feetPerRev;  // feet a second
    double t = 3;
    for (double next = from; next <= to;) {
      const double now = v / feetPerRev * 60;
      if (now >= next) {
        rpm.push_back(now);
        mph.push_back(v * 3600 / 5280);
        seconds.push_back(t);
        next += 100;
      }
      const double speed = v * 3600 / 5280;
      const double air = speed + car.headWind;
      // Air of 0.076501 pounds a cubic foot.
      const double drag = 0.5 * 0.076501 / gravity * car.dragCoefficient * car.frontalArea * air *
                          air * std::pow(5280.0 / 3600, 2);
      const double roll = car.weight * car.rollingResistance;
      const double thrust = WheelSideTorque(now) * 2 * std::acos(-1.0) / feetPerRev;
      const double dt = 2e-5;
      v += (thrust - drag - roll) / (car.weight / gravity) * dt;
      t += dt;
    }
  }
};

TEST(RoadHorsepower, OfADrivenCarIsThePowerThatDroveIt) {
  for (const double wind : {0.0, 12.0}) {
    RoadCar car = kCar;
    car.headWind = wind;
    const DrivenTable table(car, 3000, 7000);
    const std::vector<RoadPower> powers = RoadPowerOf(car, table.mph, table.seconds);
    ASSERT_EQ(powers.size(), 40U);
    for (const RoadPower& power : powers) {
      const double rpm = kDrive.RpmAt(power.mph);
      const double expected = rpm * WheelSideTorque(rpm) / 5252;
      EXPECT_NEAR(power.TotalHp() / expected, 1, 1e-3) << rpm;
    }
  }
}

/// Keeps the points of one gear of a run.
class GearRecorder : public RunSink {
 public:
  explicit GearRecorder(int gear) : gear_(gear) {}
  bool TakesSamples() const override { return true; }
  void Sample(const RunRow& row) override {
    if (row.gear == gear_ && (rows.empty() || row.mph > rows.back().mph)) rows.push_back(row);
  }
  std::vector<RunRow> rows;

 private:
  int gear_;
};

TEST(RoadHorsepower, OfASimulatedRunIsThePowerOfItsTorqueTable) {
  const std::vector<double> rpm{3000, 4000, 5000, 6000, 7000};
  const std::vector<double> torque{380, 410, 415, 390, 340};
  AccelerationInputs in;
  in.tableRpm = rpm;
  in.tableTorque = torque;
  in.transRatio = {2.9, 1.9, 1.3, 1};
  in.gearLoss.fill(4);
  in.tireGrowth = {0, 1, 2, 3};
  in.shiftRpm.fill(6800);
  in.shiftTime.fill(0.3);
  in.rearGearRatio = 3.9;
  in.usesPrimaryDrive = true;
  in.primaryDrive = 1.1;
  in.tireDiameter = 27;
  in.tireRollingRadius = 13.5;
  in.rearEndLoss = 5;
  in.carWeight = 2900;
  in.dragCoefficient = 0.4;
  in.frontalArea = 20;
  in.rollingResistance = 0.02;
  in.dynoCorrection = 1.03;
  in.launchRpm = 3500;
  in.rollout = 11;
  in.frictionMu = 5;
  in.trackPressure = 29.2;
  in.windSpeed = 10;
  in.windDirection = 60;
  const double efficiency = 0.96 * 0.95 / 1.03;
  for (const int gear : {2, 3, 4}) {
    GearRecorder run(gear);
    SimulateRun(in, run);
    ASSERT_GT(run.rows.size(), 20U);
    std::vector<double> mph, seconds;
    for (const RunRow& row : run.rows) {
      mph.push_back(row.mph);
      seconds.push_back(row.elapsed);
    }
    const RoadCar car{2900, 0.4, 20, 0.02, 29.2, 10 * std::cos(std::acos(-1.0) / 3)};
    const auto index = static_cast<std::size_t>(gear - 1);
    const RoadDrive drive{in.transRatio[index], 3.9, 1.1, in.tireGrowth[index], 27};
    // The tire's growth changes the drive's radius; the run's thrust is that of the same radius.
    const std::vector<RoadPower> powers = RoadPowerOf(car, mph, seconds);
    for (std::size_t i = 0; i < powers.size(); ++i) {
      const double r = drive.RpmAt(powers[i].mph);
      EXPECT_NEAR(r, (run.rows[i].rpm + run.rows[i + 1].rpm) / 2, 0.5);
      const double t = (run.rows[i].torque + run.rows[i + 1].torque) / 2;
      EXPECT_NEAR(powers[i].TotalHp() / (r * t * efficiency / 5252), 1, 1e-3) << gear << ' ' << r;
    }
  }
}

TEST(RoadHorsepower, ByHand) {
  // 60 to 62 MPH in half a second, 3217.405 pounds: 100 slugs. The mean is 61 MPH = 89.46667 ft/s,
  // the rise 2.933333 ft/s: 100 x 89.46667 x 2.933333 / 0.5 / 550 = 95.4311 HP.
  const std::vector<double> mph{60, 62};
  const std::vector<double> seconds{7, 7.5};
  RoadCar car{3217.405, 0.3, 20, 0.01, 29.92126, 0};
  const RoadPower power = RoadPowerOf(car, mph, seconds).front();
  EXPECT_NEAR(power.accelerationHp, 95.4311, 1e-3);
  // 61^3 x 6 / 146625 = 9.2882; 3217.405 x 0.01 x 61 / 375 = 5.2336.
  EXPECT_NEAR(power.aeroHp, 9.2882, 1e-4);
  EXPECT_NEAR(power.rollHp, 5.2336, 1e-4);
  // Half the density, told as a density; and a wind of 9 MPH: 70^2 x 61 x 6 / 146625 / 2 = 6.1156.
  car.trackPressure = 0.076501 / 2;
  car.headWind = 9;
  EXPECT_NEAR(RoadPowerOf(car, mph, seconds).front().aeroHp, 6.1156, 1e-4);
}

TEST(RoadHorsepower, EngineSpeedFollowsFromTheGear) {
  // 4.1 x 1.25 x 168.06762 x 60 / 14 = 3691.48
  EXPECT_NEAR(kDrive.RpmAt(60), 3691.48, 0.01);
  EXPECT_NEAR(kDrive.MphAt(kDrive.RpmAt(77)), 77, 1e-12);
  const RoadDrive grown{1.25, 4.1, 2, 5, 28};
  EXPECT_NEAR(grown.RpmAt(60), 3691.48 * 2 / 1.05, 0.02);
}

TEST(RoadHorsepower, ARateTakesThePlaceOfTheTimes) {
  const std::vector<double> rpm{4000, 4300, 4900};
  EXPECT_THAT(TimesAtRate(rpm, 600), testing::ElementsAre(0, 0.5, 1.5));
}

std::string MessageOf(const std::vector<double>& mph, const std::vector<double>& seconds) {
  try {
    RoadPowerOf(kCar, mph, seconds);
  } catch (const CommandError& error) {
    return error.message();
  }
  return {};
}

TEST(RoadHorsepower, TellsWhatIsWrongWithATable) {
  EXPECT_THAT(MessageOf({}, {}), StartsWith("There are no points in the road table"));
  EXPECT_THAT(MessageOf({30}, {1}), StartsWith("The road table has only one point"));
  EXPECT_EQ(MessageOf({30, 40, 40}, {1, 2, 3}),
            "Row 3 of the road table is not faster than the row before it.");
  EXPECT_EQ(MessageOf({30, 40}, {1, 1}),
            "Row 2 of the road table is not later than the row before it.");
  EXPECT_EQ(MessageOf({30, 40}, {1, 2}), "");
}

std::vector<std::string> Lines(const std::string& report) {
  std::vector<std::string> lines;
  for (const MarkedLine& line : ReportLines(report)) lines.emplace_back(line.text);
  return lines;
}

TEST(RoadCharts, OfSpeeds) {
  const std::vector<double> mph{60, 62, 64};
  const std::vector<double> seconds{7, 7.5, 8.25};
  const std::string report = RoadSpeedChart({3217.405, 0.3, 20, 0.01, 29.92126, 0}, {3, kDrive},
                                            mph, seconds, DecimalMark::Point);
  EXPECT_THAT(report,
              StartsWith(std::string(ReportPrompt) +
                         "Car Weight = 3217.405#    Radius = 14.0 Inches    Rear Gear Ratio = "
                         "4.1^\r\n"));
  EXPECT_THAT(report, HasSubstr("Trans Gear 3 = 1.25    Tire Growth = 0.0 %"));
  // 61 MPH: 95.43 + 9.29 + 5.23 = 109.95 HP at 3753.0 RPM, 153.87 foot pounds.
  EXPECT_THAT(Lines(report), testing::Contains("   3753.0    61.00    0.5000      95.43      9.29"
                                               "      5.23    109.95    153.87"));
  EXPECT_THAT(report, HasSubstr("Highest Horse Power = 110.0 @ 3753 RPM"));
  for (const std::string& line : Lines(report)) EXPECT_LE(line.size(), 80U) << line;
}

TEST(RoadCharts, OfEngineSpeedsAreThoseOfTheSpeeds) {
  std::vector<double> rpm;
  const std::vector<double> mph{60, 62, 64};
  const std::vector<double> seconds{7, 7.5, 8.25};
  for (const double speed : mph) rpm.push_back(kDrive.RpmAt(speed));
  const auto bySpeed = Lines(RoadSpeedChart(kCar, {1, kDrive}, mph, seconds, DecimalMark::Point));
  const auto byRpm = Lines(RoadEngineChart(kCar, {1, kDrive}, rpm, seconds, 0, DecimalMark::Point));
  ASSERT_EQ(bySpeed.size(), byRpm.size());
  for (std::size_t i = 0; i < byRpm.size(); ++i) {
    if (byRpm[i].find("Prediction Chart") == std::string::npos) {
      EXPECT_EQ(byRpm[i], bySpeed[i]);
    }
  }
  // Twice the speed of the engine's rise is twice the power of acceleration.
  const std::vector<double> even{4000, 4400};
  const std::vector<double> two{0, 2};
  const auto slow = Lines(RoadEngineChart(kCar, {1, kDrive}, even, two, 0, DecimalMark::Point));
  const auto fast = Lines(RoadEngineChart(kCar, {1, kDrive}, even, two, 400, DecimalMark::Point));
  EXPECT_THAT(slow[12], HasSubstr("    2.0000"));
  EXPECT_THAT(fast[12], HasSubstr("    1.0000"));
  EXPECT_THAT(fast[7], HasSubstr("from RPM at 400.0 RPM per Second"));
}

TEST(RoadCharts, OfTheWeightAloneTakeDragOnlyWhereItIsTold) {
  const std::vector<double> mph{60, 62};
  const std::vector<double> seconds{7, 7.5};
  RoadCar car{3217.405, 0.3, 20, 0.01, 29.92126, 0};
  const std::string with = RoadWeightChart(car, mph, seconds, DecimalMark::Point);
  EXPECT_THAT(Lines(with), testing::Contains("    61.00    0.5000      95.43      9.29    104.72"));
  for (double RoadCar::*none :
       {&RoadCar::dragCoefficient, &RoadCar::frontalArea, &RoadCar::trackPressure}) {
    RoadCar bare = car;
    bare.*none = 0;
    const std::string without = RoadWeightChart(bare, mph, seconds, DecimalMark::Point);
    EXPECT_THAT(Lines(without), testing::Contains("    61.00    0.5000      95.43"));
    EXPECT_THAT(without, Not(HasSubstr("Coefficient of Drag")));
    EXPECT_THAT(without, HasSubstr("Highest Horse Power = 95.4 @ 61.0 MPH"));
  }
}

TEST(RoadCharts, ColumnsStandApartHoweverLargeTheirNumbers) {
  const std::vector<double> mph{60, 62, 64};
  const std::vector<double> seconds{7, 7.5, 8.25};
  RoadCar car = kCar;
  car.weight = 5e8;  // of more than ten million horsepower
  const auto rows = [&](const std::string& report, std::size_t numbers) {
    int found = 0;
    for (const std::string& line : Lines(report)) {
      if (line.find_first_not_of(" .0123456789") != std::string::npos || line.empty()) continue;
      std::istringstream words(line);
      std::size_t count = 0;
      for (std::string word; words >> word; ++count) {
        EXPECT_EQ(std::ranges::count(word, '.'), 1) << line;
      }
      EXPECT_EQ(count, numbers) << line;
      ++found;
    }
    EXPECT_EQ(found, 2);
  };
  rows(RoadSpeedChart(car, {1, kDrive}, mph, seconds, DecimalMark::Point), 8);
  rows(RoadWeightChart(car, mph, seconds, DecimalMark::Point), 5);
}

TEST(StartingLineChart, HasTheCarInTheMiddle) {
  // 3.25 x 4.1 = 13.325; on 28 inches 13.325 x 336.13524 / 28 = 159.96 RPM per MPH.
  StartingLine line{3.25, 4.1, 1, 28, false, 11};
  const std::string manual = StartingLineChart(line, DecimalMark::Point);
  EXPECT_THAT(manual,
              HasSubstr("Manual (Clutch) Transmission - N/A Starting Line Gear Ratio Chart^"));
  EXPECT_THAT(manual, HasSubstr("3.25 x 4.1 = 13.325"));
  EXPECT_THAT(
      manual,
      HasSubstr(" Diameter   11.825   12.325   12.825   13.325   13.825   14.325   14.825_"));
  EXPECT_THAT(
      manual,
      HasSubstr(
          "\r\n     28.0   141.96   147.96   153.96   159.96   165.97   171.97   177.97^\r\n"));
  EXPECT_THAT(manual, Not(HasSubstr("Slippage")));
  // The column of the car's own ratio is set off.
  const std::vector<SetOffColumn> own = SetOffColumns(ReportLines(manual));
  ASSERT_EQ(own.size(), 1U);
  EXPECT_EQ(own[0].end, 45U);
  EXPECT_EQ(own[0].endLine - own[0].firstLine, 17U);
  line.automatic = true;
  const std::string automatic = StartingLineChart(line, DecimalMark::Point);
  EXPECT_THAT(automatic,
              HasSubstr("Automatic (Torque Convertor) Transmission - N/A Starting Line"));
  EXPECT_THAT(automatic, HasSubstr("Converter Slippage = 11.0 %"));
  // 159.964 / 0.89
  EXPECT_THAT(automatic, HasSubstr("   179.74   "));
}

TEST(StartingLineChart, LeavesOutWhatCannotBe) {
  const std::string report = StartingLineChart({1, 1.2, 1, 3, false, 0}, DecimalMark::Comma);
  EXPECT_THAT(report, HasSubstr(" Diameter     0,20     0,70     1,20     1,70"));
  EXPECT_THAT(report, HasSubstr("\r\n      0,5"));
  EXPECT_THAT(report, Not(HasSubstr("\r\n      0,0")));
}

TEST(RoadHorsepower, SpeedsBelowZeroAreRefusedWithTheirRow) {
  const auto told = [](const auto& work) -> std::string {
    try {
      work();
    } catch (const CommandError& error) {
      return error.message();
    }
    return {};
  };
  const std::vector<double> speeds{-10, 20, 30}, seconds{0, 1, 2};
  RoadCar car;
  car.weight = 3000;
  RoadGear gear;
  gear.drive.tireDiameter = 24;
  EXPECT_EQ(told([&] { RoadWeightChart(car, speeds, seconds, DecimalMark::Point); }),
            "Row 1 of the road table has a speed below 0.");
  EXPECT_EQ(told([&] { RoadEngineChart(car, gear, speeds, seconds, 0, DecimalMark::Point); }),
            "Row 1 of the road table has an RPM below 0.");
  EXPECT_EQ(told([&] { RoadEngineChart(car, gear, speeds, seconds, 50, DecimalMark::Point); }),
            "Row 1 of the road table has an RPM below 0.");
}

}  // namespace
}  // namespace veldox
