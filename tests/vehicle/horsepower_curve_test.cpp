#include "vehicle/horsepower_curve.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "graph/power_curves.h"
#include "vehicle/elapsed_time.h"

namespace veldox {
namespace {

using testing::HasSubstr;

constexpr auto kMark = DecimalMark::Point;

std::vector<HorsepowerPoint> Walk(int type, double rpm, double horsepower = 500,
                                  double torque = 400) {
  const ScaledCurve curve{type, {rpm, horsepower, torque}};
  EXPECT_TRUE(CanWalk(curve, rpm)) << type << " at " << rpm;
  return WalkCurve(curve, rpm);
}

TEST(HorsepowerCurve, PeaksWhereItIsAskedTo) {
  for (int type = kFirstCurveType; type < kFirstTorqueCurveType; ++type) {
    for (const double rpm : {4000.0, 6500.0, 9000.0}) {
      const auto points = Walk(type, rpm);
      const auto best = std::max_element(
          points.begin(), points.end(),
          [](const auto& a, const auto& b) { return a.horsepower < b.horsepower; });
      EXPECT_NEAR(best->horsepower, 500, 2.5) << type << " at " << rpm;
      EXPECT_NEAR(best->rpm, rpm, 0.025 * rpm) << type;
    }
  }
  for (int type = kFirstTorqueCurveType; type <= kLastCurveType; ++type) {
    const auto points = Walk(type, 4100);
    const auto best =
        std::max_element(points.begin(), points.end(),
                         [](const auto& a, const auto& b) { return a.torque < b.torque; });
    EXPECT_NEAR(best->torque, 400, 0.04) << type;
    EXPECT_EQ(best->rpm, 4100) << type;
  }
}

TEST(HorsepowerCurve, PowerAndTorqueBelongTogether) {
  for (int type = kFirstCurveType; type <= kLastCurveType; ++type) {
    for (const HorsepowerPoint& point : Walk(type, 5800)) {
      EXPECT_NEAR(point.torque * point.rpm / 5252, point.horsepower,
                  1e-9 * std::abs(point.horsepower) + 1e-9);
      EXPECT_GT(point.rpm, 0);
    }
  }
}

TEST(HorsepowerCurve, RangesAndStepsOfTypes1To4) {
  struct Case {
    double rpm, first, last, step;
  };
  for (const Case& c :
       {Case{4950, 3350, 5450, 50}, Case{5000, 3400, 5600, 50}, Case{5450, 3850, 6050, 50},
        Case{5500, 3900, 6300, 50}, Case{6000, 4400, 7100, 50}, Case{6500, 4700, 7900, 50},
        Case{7950, 6150, 9350, 50}, Case{8000, 6200, 9400, 100}, Case{9500, 7300, 11100, 100},
        Case{12500, 9900, 14300, 100}, Case{15500, 12500, 17500, 100}}) {
    const auto points = Walk(1, c.rpm);
    EXPECT_EQ(points.front().rpm, c.first) << c.rpm;
    EXPECT_EQ(points.back().rpm, c.last) << c.rpm;
    EXPECT_EQ(points[1].rpm - points[0].rpm, c.step) << c.rpm;
  }
  EXPECT_EQ(Walk(1, 5000).size(), 45U) << "both ends are there";
}

TEST(HorsepowerCurve, TypesWithARangeBeginAtARoundRpm) {
  // Model start 7000 at 9250 of 9250 RPM.
  EXPECT_EQ(Walk(5, 9250).front().rpm, 7000);
  // 3100 x 6500 / 5500 = 3663.6: the multiple of 50 next to it is 3650, at or below.
  EXPECT_NEAR(Walk(6, 6500).front().rpm, 3650, 1e-6);
  EXPECT_NEAR(Walk(6, 6500)[1].rpm, 3750, 1e-6) << "wide steps from 5600 RPM on";
  // 3100 x 5000 / 5500 = 2818.2 rounds to 2800.
  EXPECT_NEAR(Walk(7, 5000).front().rpm, 2800, 1e-6);
  EXPECT_NEAR(Walk(7, 5000)[1].rpm, 2850, 1e-6);
  // 3300 x 6600 / 6300 = 3457.1 rounds up to 3450; 3000 x 5600 / 5600 stands.
  EXPECT_NEAR(Walk(8, 6600).front().rpm, 3450, 1e-6);
  EXPECT_NEAR(Walk(9, 5600).front().rpm, 3000, 1e-6);
  // 3100 x 5600 / 5500 = 3156.4 would round to 3150; 3000 x 5700 / 5600 = 3053.6 to 3050.
  EXPECT_NEAR(Walk(9, 5700).front().rpm, 3050, 1e-6);
  // 3000 x 5550 / 5600 = 2973.2 rounds up to 2950 only after one step back from 3000 - 50.
  EXPECT_NEAR(Walk(9, 5550).front().rpm, 2950, 1e-6);
}

TEST(HorsepowerCurve, TorqueTypesMoveWithTheRpm) {
  EXPECT_EQ(Walk(10, 4100).front().rpm, 1000);
  EXPECT_EQ(Walk(10, 4100).back().rpm, 6000);
  EXPECT_EQ(Walk(11, 3000).front().rpm, 1300);
  EXPECT_EQ(Walk(11, 3000).back().rpm, 5700);
  // A diesel with its peak at 1800: what lies below standstill is left out.
  EXPECT_EQ(Walk(11, 1800).front().rpm, 100);
  EXPECT_EQ(Walk(10, 1800).front().rpm, 100);
}

TEST(HorsepowerCurve, AWalkHasAnEnd) {
  for (int type = kFirstCurveType; type <= kLastCurveType; ++type) {
    for (const double rpm : {0.0, -5000.0, 1e300, std::nan("")}) {
      const bool walks = CanWalk({type, {rpm, 500, 400}}, rpm);
      EXPECT_TRUE(!walks || (type >= kFirstTorqueCurveType && rpm > 0)) << type << ' ' << rpm;
    }
    EXPECT_TRUE(CanWalk({type, {1, 500, 400}}, 1)) << type;
    EXPECT_TRUE(CanWalk({type, {100000, 500, 400}}, 100000)) << type;
    EXPECT_LE(Walk(type, 200000).size(), static_cast<std::size_t>(kMostCurvePoints)) << type;
  }
  EXPECT_FALSE(CanWalk({5, {1e7, 500, 400}}, 1e7));
  EXPECT_FALSE(CanWalk({1, {1e19, 500, 400}}, 1e19)) << "a step adds nothing";
}

TEST(HorsepowerCurveReport, HasPointsAndMeans) {
  const std::vector<HorsepowerPoint> points{{4000, 300.5, 394.5565}, {5000, 400.5, 420.6852}};
  // 300.5 x 792000 / (350 x 4000) = 169.9971; 400.5 x 792000 / (350 x 5000) = 181.2549
  EXPECT_EQ(HorsepowerCurveReport(points, 350, kMark),
            "Press the . key to Write this Data to a Disk File Or , key to Print this Data\r\n\r\n"
            "\r\n"
            " Horse          RPM         Torque           BMEP_\r\n"
            " 300.500       4000        394.557        169.997\r\n"
            " 400.500       5000        420.685        181.255\r\n"
            "~\r\n"
            "Average Horsepower =  350.500\r\n"
            "Average Torque = 407.621\r\n"
            "Average based on = 2 points");
}

TEST(AccelerationCurveReport, IsAParameterFile) {
  const std::vector<HorsepowerPoint> points{{4000, 300.5, 394.5565}, {5000, 400.5, 420.6852}};
  EXPECT_THAT(AccelerationCurveReport(points, 0, kMark),
              HasSubstr("\r\n\r\nAcceleration =  4000 0394.6\r\nAcceleration =  5000 0420.7"));
  // Half a pound an hour and horsepower.
  EXPECT_THAT(AccelerationCurveReport(points, 0.5, kMark),
              HasSubstr("Acceleration =  4000 0394.6  150.250  .500\r\n"));
  // What fills its column is parted from what stands before.
  EXPECT_THAT(AccelerationCurveReport({{4000, 9000, -11816.5}}, 12.5, kMark),
              HasSubstr("Acceleration =  4000 -11816.5 112500.000 12.500"));
}

}  // namespace
}  // namespace veldox
