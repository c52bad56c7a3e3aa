#include "twostroke/port_timing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/units.h"
#include "engine/displacement.h"
#include "engine/piston_motion.h"
#include "twostroke/mean_pressure.h"

namespace veldox {
namespace {

TEST(Ports, OpenWhereTheLawOfCosinesHasThem) {
  // acos((h^2 + r^2 - L^2) / 2hr) with r = 1.625, L = 5.7, h = 7.325 - distance
  EXPECT_NEAR(PortOpenDegrees(3.25, 5.7, 1.399), 74.12541456134299, 1e-11);
  EXPECT_NEAR(PortOpenDegrees(3.25, 5.7, 1.499), 77.51634877879592, 1e-11);
  EXPECT_NEAR(PortOpenDegrees(3.25, 5.7, 1.599), 80.917278646024, 1e-11);
  EXPECT_NEAR(PortDuration(74.12541456134299), 211.74917087731401, 1e-10);
  EXPECT_NEAR(CrankTime(211.74917087731401, 6500), 5.429465919931128, 1e-12);
  EXPECT_NEAR(RevolutionTime(6500), 9.23076923076923, 1e-13);
}

TEST(Ports, AtTheEndsOfTheStrokeOpenAtTheEndsOfTheTurn) {
  // (4.075^2 + 1.625^2 - 5.7^2) / (2 x 4.075 x 1.625) is rounded beyond -1.
  EXPECT_EQ(PortOpenDegrees(3.25, 5.7, 3.25), 180);
  EXPECT_EQ(PortOpenDegrees(3.25, 5.7, 0), 0);
  EXPECT_TRUE(std::isnan(PortOpenDegrees(3.25, 5.7, 3.2500001)));
  EXPECT_TRUE(std::isnan(PortOpenDegrees(3.25, 5.7, -0.0000001)));
  EXPECT_TRUE(std::isnan(PortOpenDegrees(3.25, 5.7, 100)));
  EXPECT_TRUE(std::isnan(PortDistance(3.25, 1.6, 90)));
}

TEST(Ports, AngleAndDistanceAreSolvedBothWays) {
  std::mt19937 random(18);
  std::uniform_real_distribution<double> stroke(30, 90), ratio(1.6, 2.4), angle(1, 179);
  for (int i = 0; i < 2000; ++i) {
    const double s = stroke(random);
    const double rod = s * ratio(random);
    const double degrees = angle(random);
    const double distance = PortDistance(s, rod, degrees);
    EXPECT_GT(distance, 0);
    EXPECT_LT(distance, s);
    EXPECT_NEAR(PortOpenDegrees(s, rod, distance), degrees, 1e-9);
    EXPECT_NEAR(PortDuration(PortOpenDegrees(s, rod, distance)), 360 - 2 * degrees, 1e-9);
  }
}

TEST(Ports, DistanceGrowsWithThePistonsVelocity) {
  constexpr double kRpm = 6500;
  constexpr double kDegreesInSecond = kRpm * 6;
  constexpr double kInchesInFoot = 12;
  for (double degrees = 10; degrees < 175; degrees += 7.5) {
    constexpr double kStep = 1e-3;
    const double slope =
        (PortDistance(3.25, 5.7, degrees + kStep) - PortDistance(3.25, 5.7, degrees - kStep)) /
        (2 * kStep);
    const double velocity = PistonStateAt({3.25 / 2, 5.7, 0}, kRpm, degrees).velocity;
    EXPECT_NEAR(slope * kDegreesInSecond / kInchesInFoot / velocity, 1, 1e-6) << degrees;
  }
}

TEST(DynamicRatios, CountTheStrokeAboveThePort) {
  // 1.399 x 9.1 / 3.25 + 1 and 1.399 x 12.59405 / 3.25 + 1
  EXPECT_NEAR(DynamicRatio({3.25, 0, 1.399}, 10.1), 4.9172, 1e-12);
  EXPECT_NEAR(DynamicRatio({3.25, 0, 1.399}, 13.59405), 6.421254138461538, 1e-12);
  // (1.399 - 0.016) x 9.1 / 3.25 + 1
  EXPECT_NEAR(DynamicRatio({3.25, 0.016, 1.399}, 10.1), 4.8724, 1e-12);
}

TEST(DynamicRatios, AreSolvedForRatioAndDistance) {
  std::mt19937 random(10);
  std::uniform_real_distribution<double> stroke(30, 90), part(0.3, 0.7), deck(-1, 2), ratio(5, 20);
  for (int i = 0; i < 1000; ++i) {
    TrappedCylinder cylinder{stroke(random), deck(random), 0};
    cylinder.exhaustDistance = cylinder.stroke * part(random);
    const double geometric = ratio(random);
    const double dynamic = DynamicRatio(cylinder, geometric);
    EXPECT_NEAR(RatioForDynamicRatio(cylinder, dynamic), geometric, 1e-11);
    TrappedCylinder unsolved = cylinder;
    unsolved.exhaustDistance = -1;
    EXPECT_NEAR(ExhaustDistanceForRatios(unsolved, geometric, dynamic), cylinder.exhaustDistance,
                1e-11);
  }
}

TEST(MeanPressures, OfBothUnitsAreOne) {
  // 55.5 HP of 40.8407 cubic inches at 6500 RPM: 55.5 x 396000 / (40.8407 x 6500)
  const double size = EngineSize(4, 3.25, 1);
  EXPECT_NEAR(MeanPressurePsi(55.5, size, 6500), 82.79070625499833, 1e-10);
  std::mt19937 random(14);
  std::uniform_real_distribution<double> power(1, 100), volume(3, 60), speed(2000, 14000);
  for (int i = 0; i < 1000; ++i) {
    const double hp = power(random);
    const double inches = volume(random);
    const double rpm = speed(random);
    const double psi = MeanPressurePsi(hp, inches, rpm);
    // A horsepower is 550 foot pounds a second, 745.6998716 watts.
    const double bar = MeanPressureBar(hp * 0.7456998716, inches * 16.387064, rpm);
    EXPECT_NEAR(psi * 0.0689476 / bar, 1, 1e-6);
    // Power is pressure times the volume swept in a second.
    EXPECT_NEAR(psi * inches / 12 * rpm / 60 / 550 / hp, 1, 1e-12);
    EXPECT_NEAR(bar * 1e5 * (inches * 16.387064e-6) * rpm / 60 / (hp * 745.6998716), 1, 1e-12);
  }
}

TEST(TargetTimeAreas, OfTenBar) {
  // ((11.528) / 77.4 + (119.03 + 37.725) / 1000) / 2 and so on
  const TimeAreas areas = TargetTimeAreas(10);
  EXPECT_NEAR(areas.inlet, 0.1528477842377261, 1e-15);
  EXPECT_NEAR(areas.exhaust, 0.15239642857142854, 1e-15);
  EXPECT_NEAR(areas.blowdown, 0.01051417563209967, 1e-15);
  EXPECT_NEAR(areas.transfer, 0.08413288888888888, 1e-15);
}

}  // namespace
}  // namespace veldox
