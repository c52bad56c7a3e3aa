#include "chassis/wheel_rates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace veldox {
namespace {

TEST(WheelRates, GoByTheSquareOfTheMovement) {
  EXPECT_DOUBLE_EQ(WheelRate(800, 0.5), 200);
  EXPECT_DOUBLE_EQ(SpringRateForWheel(200, 0.5), 800);
  // Work is the same at the spring and at the wheel: half of k x^2.
  EXPECT_DOUBLE_EQ(WheelRate(650, 0.7) * 3 * 3, 650 * (0.7 * 3) * (0.7 * 3));
}

TEST(SuspensionFrequency, IsThatOfAWeightOnASpring) {
  // Gravity is 386.09 inches a second squared: 60 / (2 pi) sqrt(386.09) = 187.64.
  std::mt19937 random(24);
  std::uniform_real_distribution<double> rate(50, 2000), weight(100, 1500);
  for (int i = 0; i < 1000; ++i) {
    const double k = rate(random);
    const double w = weight(random);
    const double exact = 60 / (2 * std::numbers::pi) * std::sqrt(k * 386.09 / w);
    EXPECT_NEAR(SuspensionFrequency(k, w) / exact, 1, 1e-3);
    EXPECT_NEAR(WheelRateForFrequency(SuspensionFrequency(k, w), w) / k, 1, 1e-13);
    EXPECT_DOUBLE_EQ(StaticDeflection(k, w) * k, w);
  }
  EXPECT_DOUBLE_EQ(SuspensionFrequency(400, 100), 375.6);
  // One inch of static deflection swings 187.8 times a minute.
  EXPECT_DOUBLE_EQ(SuspensionFrequency(420, 420), 187.8);
}

TEST(RollStiffness, HasThePublishedConstant) {
  // T^2 k / 1375 with the rate of one wheel.
  EXPECT_NEAR(RollStiffness(60, 500, 500, 0, 0), 60.0 * 60 * 500 / 1375, 1e-3 * 1309);
  EXPECT_NEAR(60.0 * 60 * 500 / RollStiffness(60, 500, 500, 0, 0), 1375, 0.15);
}

TEST(RollStiffness, IsThatOfTwoSpringsAndABar) {
  // Two springs at half a track from the middle turn by k (T / 2)^2 each, inch pounds a radian;
  // the bar is twisted by both wheels, so that it holds twice as much as its rate at one wheel.
  const double radians = std::numbers::pi / 180;
  const double springs = (480 + 520) * 30.0 * 30 * radians / 12;
  const double bar = 2 * (110 + 90) * 30.0 * 30 * radians / 12;
  EXPECT_NEAR(RollStiffness(60, 480, 520, 0, 0), springs, 1e-9);
  EXPECT_NEAR(RollStiffness(60, 0, 0, 110, 90), bar, 1e-9);
  EXPECT_NEAR(RollStiffness(60, 480, 520, 110, 90), springs + bar, 1e-9);
}

TEST(MotionRatio, TakesThePartAlongTheSpring) {
  EXPECT_NEAR(MotionRatio(7, 14, 90), 0.5, 1e-12);
  EXPECT_NEAR(MotionRatio(7, 14, 30), 0.25, 1e-12);
  EXPECT_NEAR(MotionRatio(7, 14, 0), 0, 1e-12);
  // 12.5 of 14 inches under 63.5 degrees give the usual 0.8.
  EXPECT_NEAR(MotionRatio(12.5, 14, 63.5), 0.8, 0.001);
  EXPECT_NEAR(MotionRatio(12.5, 14, 63.5), 12.5 / 14 * std::sin(63.5 * std::numbers::pi / 180),
              1e-12);
}

}  // namespace
}  // namespace veldox
