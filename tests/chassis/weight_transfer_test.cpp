#include "chassis/weight_transfer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace veldox {
namespace {

/// A car on scales, its center of gravity at a known place: what the front scales read with the
/// rear raised, by the triangle that the car makes then.
LiftedCar Lifted(double height, double rearHeight) {
  LiftedCar car{3000, 1650, 108, 12, rearHeight, 0};
  const double angle = std::asin(rearHeight / car.wheelBase);
  const double ahead = car.weightFront / car.carWeight * car.wheelBase;  // of the rear axle
  const double moved = ahead * std::cos(angle) + (height - car.hubHeight) * std::sin(angle);
  car.raisedWeightFront = car.carWeight * moved / (car.wheelBase * std::cos(angle));
  return car;
}

TEST(CenterOfGravity, IsFoundByTheLeverRule) {
  EXPECT_DOUBLE_EQ(HorizontalCenter(2350, 1245.5, 108), 50.76);
  // 1198.5 of 2350 pounds on the left: 0.51 of the way from right to left.
  EXPECT_DOUBLE_EQ(LateralCenter(2350, 1151.5, 60), 30.6);
}

TEST(CenterOfGravity, IsFoundByLifting) {
  // 108^2 x 32.5 / (20 x 2350) + 12 and 108^2 x 32.5 / (8 x 2350) + 12
  const LiftedCar car{2350, 1245.5, 108, 12, 20, 1278};
  EXPECT_NEAR(VerticalCenter(car, LiftRule::Ground), 20.0655319148936, 1e-12);
  EXPECT_NEAR(VerticalCenter(car, LiftRule::Hub), 32.1638297872340, 1e-12);
}

TEST(CenterOfGravity, ByLiftingIsOffTheExactTriangleBySlope) {
  for (const auto& [rearHeight, off] : {std::pair{6.0, 0.0006}, {24.0, 0.01}}) {
    const double found = VerticalCenter(Lifted(20, rearHeight), LiftRule::Ground);
    EXPECT_NEAR(found / 20 - 1, off, 0.1 * off) << rearHeight;
  }
  // A slope of nothing is exact.
  EXPECT_NEAR(VerticalCenter(Lifted(20, 0.01), LiftRule::Ground), 20, 1e-5);
}

TEST(SprungMass, IsTheCarLessItsUnsprungWeight) {
  const SprungMass none = SprungMassOf(2350, 1245.5, 1151.5, {}, 108, 60);
  EXPECT_DOUBLE_EQ(none.weight, 2350);
  EXPECT_DOUBLE_EQ(none.horizontalCenter, 50.76);
  EXPECT_DOUBLE_EQ(none.lateralCenter, 30.6);
  // 2040 = 2350 - 310; front 1245.5 - 145 = 1100.5; right 1151.5 - (70 + 90) = 991.5: the diagonal
  // of right front and left rear.
  const SprungMass mass = SprungMassOf(2350, 1245.5, 1151.5, {75, 70, 90, 75}, 108, 60);
  EXPECT_DOUBLE_EQ(mass.weight, 2040);
  EXPECT_NEAR(mass.horizontalCenter, 939.5 / 2040 * 108, 1e-12);
  EXPECT_NEAR(mass.lateralCenter, 1048.5 / 2040 * 60, 1e-12);
}

TEST(RollOver, IsAtTheAngleOfHalfTheBase) {
  EXPECT_NEAR(RollOverAngle(60, 30), 45, 1e-12);
  EXPECT_NEAR(RollOverAngle(60, 30 / std::sqrt(3)), 60, 1e-12);
}

TEST(WeightTransfer, OfEqualTracksAndNoUnsprungWeightIsThatOfARigidCar) {
  std::mt19937 random(10);
  std::uniform_real_distribution<double> weight(400, 2500), height(10, 30), center(-5, 15),
      gs(-3, 3), track(40, 80), stiffness(10, 900);
  for (int i = 0; i < 1000; ++i) {
    CorneringCar car;
    car.sprung = {weight(random), weight(random)};
    car.carWeight = car.sprung.Sum();
    car.percentRear = car.sprung.rear / car.carWeight * 100;
    car.lateralGs = gs(random);
    car.verticalCenter = height(random);
    car.trackWidth = track(random);
    car.trackWidths = {car.trackWidth, car.trackWidth};
    car.rollCenterHeight = {center(random), center(random)};
    car.rollStiffness = {stiffness(random), stiffness(random)};
    const RollTransfer roll = RollTransferOf(car);
    const double rigid = car.lateralGs * car.carWeight * car.verticalCenter / car.trackWidth;
    EXPECT_DOUBLE_EQ(roll.weightTransfer, rigid);
    EXPECT_NEAR(roll.total.Sum(), rigid, 1e-9);
  }
}

TEST(WeightTransfer, OfACarInACorner) {
  // Worked out by hand. Roll axis (8 - 2) x 0.48 + 2 = 4.88; arm 20 - 4.88 = 15.12; moment
  // 3000 x 1.2 x 1.26 = 4536 ft-lb; angle 4536 / 900 = 5.04 degrees. Rolling, front:
  // 600 / 900 x 4536 / 5 = 604.8; rear: 300 / 900 x 4536 / 4.8 = 315. Non-rolling, front:
  // 1400 x 2 / 60 x 1.2 = 56; rear: 1260 x 8 / 57.6 x 1.2 = 210.
  const RollTransfer roll =
      RollTransferOf({1.2, 3000, 20, 60, 48, {1400, 1260}, {2, 8}, {60, 57.6}, {600, 300}});
  EXPECT_NEAR(roll.rollAxisHeight, 4.88, 1e-12);
  EXPECT_NEAR(roll.rollAxisToCenter, 15.12, 1e-12);
  EXPECT_NEAR(roll.weightTransfer, 1200, 1e-9);
  EXPECT_NEAR(roll.rollMoment, 4536, 1e-9);
  EXPECT_NEAR(roll.rollAngle, 5.04, 1e-12);
  EXPECT_NEAR(roll.rolling.front, 604.8, 1e-9);
  EXPECT_NEAR(roll.rolling.rear, 315, 1e-9);
  EXPECT_NEAR(roll.nonRolling.front, 56, 1e-9);
  EXPECT_NEAR(roll.nonRolling.rear, 210, 1e-9);
  EXPECT_NEAR(roll.total.front, 660.8, 1e-9);
  EXPECT_NEAR(roll.total.rear, 525, 1e-9);
}

TEST(WheelTravel, IsHalfTheTransferOverTheRate) {
  const Corners travel = WheelTravel({660.8, 525}, {590, 826, 262.5, 350});
  EXPECT_NEAR(travel.leftFront, 0.56, 1e-12);
  EXPECT_NEAR(travel.rightFront, -0.4, 1e-12);
  EXPECT_NEAR(travel.leftRear, 1, 1e-12);
  EXPECT_NEAR(travel.rightRear, -0.75, 1e-12);
}

TEST(RollDeflection, IsHalfTheTrackTimesTheAngle) {
  // A small angle in radians is its tangent: half the track times it.
  const Corners deflection = RollDeflection({60, 57.6}, 2);
  const double radians = 2 * std::numbers::pi / 180;
  EXPECT_NEAR(deflection.leftFront, 30 * radians, 1e-12);
  EXPECT_NEAR(deflection.rightFront, -30 * radians, 1e-12);
  EXPECT_NEAR(deflection.leftRear, 28.8 * radians, 1e-12);
  EXPECT_NEAR(deflection.rightRear, -28.8 * radians, 1e-12);
}

TEST(LengthwiseTransfer, MovesWeightToTheRearAndBack) {
  // 0.5 x 2400 x 18 / 108 = 200
  const LengthwiseTransfer launch = LengthwiseTransferOf(0.5, 2400, 1300, 18, 108);
  EXPECT_NEAR(launch.shift, 200, 1e-12);
  EXPECT_NEAR(launch.front, 1100, 1e-12);
  EXPECT_NEAR(launch.rear, 1300, 1e-12);
  EXPECT_NEAR(launch.frontPercent, 1100.0 / 24, 1e-12);
  EXPECT_NEAR(launch.rearPercent, 1300.0 / 24, 1e-12);
  const LengthwiseTransfer braking = LengthwiseTransferOf(-0.5, 2400, 1300, 18, 108);
  EXPECT_NEAR(braking.front, 1500, 1e-12);
  EXPECT_NEAR(braking.front + braking.rear, 2400, 1e-12);
}

}  // namespace
}  // namespace veldox
