#include "chassis/corner_weights.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace veldox {
namespace {

void ExpectNear(const Corners& found, const Corners& expected, double tolerance) {
  EXPECT_NEAR(found.leftFront, expected.leftFront, tolerance);
  EXPECT_NEAR(found.rightFront, expected.rightFront, tolerance);
  EXPECT_NEAR(found.leftRear, expected.leftRear, tolerance);
  EXPECT_NEAR(found.rightRear, expected.rightRear, tolerance);
}

TEST(Corners, AreSummedByEndsSidesAndDiagonal) {
  const Corners corners{1, 20, 300, 4000};
  EXPECT_EQ(corners.Front(), 21);
  EXPECT_EQ(corners.Rear(), 4300);
  EXPECT_EQ(corners.Left(), 301);
  EXPECT_EQ(corners.Right(), 4020);
  EXPECT_EQ(corners.Cross(), 320);
  EXPECT_EQ(corners.Sum(), 4321);
}

TEST(CornerPercents, AddUpFrom99Point996To100Point004) {
  EXPECT_TRUE(AddUpToHundred({25, 25, 25, 25}));
  EXPECT_TRUE(AddUpToHundred({25.004, 25, 25, 25}));
  EXPECT_TRUE(AddUpToHundred({25, 25.004, 25, 25}));
  EXPECT_TRUE(AddUpToHundred({25, 25, 25, 25.004}));
  EXPECT_TRUE(AddUpToHundred({24.996, 25, 25, 25}));
  EXPECT_TRUE(AddUpToHundred({25, 25, 25, 24.996}));
  EXPECT_FALSE(AddUpToHundred({25.005, 25, 25, 25}));
  EXPECT_FALSE(AddUpToHundred({24.995, 25, 25, 25}));
  EXPECT_FALSE(AddUpToHundred({0, 0, 0, 0}));
  EXPECT_FALSE(AddUpToHundred({std::nan(""), 25, 25, 25}));
}

TEST(CornerWeights, OfPercents) {
  ExpectNear(WeightsOfPercents({27, 26, 24, 23}, 2350), {634.5, 611, 564, 540.5}, 1e-12);
  ExpectNear(PercentsOfWeights({634.5, 611, 564, 540.5}, 2350), {27, 26, 24, 23}, 1e-13);
}

TEST(CornerWeights, OfHalfOnEachAreFourEqualCorners) {
  ExpectNear(WeightsOfTargets({50, 50, 50}, 2800), {700, 700, 700, 700}, 1e-12);
}

TEST(CornerWeights, MeetTheirTargets) {
  // A dirt car: 57 percent left, 56 rear, 53 across, 2800 pounds. Left front is half of
  // 57 + 44 - 53, and the others what it leaves of front, left and rear.
  ExpectNear(WeightsOfTargets({57, 56, 53}, 2800), {672, 560, 924, 644}, 1e-9);
}

TEST(CornerWeights, OfTargetsAndTheirPercentagesAreInverses) {
  std::mt19937 random(6);
  std::uniform_real_distribution<double> weight(200, 1500);
  for (int i = 0; i < 1000; ++i) {
    const Corners weights{weight(random), weight(random), weight(random), weight(random)};
    const double car = weights.Sum();
    const Corners percents = PercentsOfWeights(weights, car);
    const WeightTargets targets{percents.Left(), percents.Rear(), percents.Cross()};
    ExpectNear(WeightsOfTargets(targets, car), weights, 1e-9);
    ExpectNear(WeightsOfPercents(percents, car), weights, 1e-9);
    EXPECT_TRUE(AddUpToHundred(percents));
  }
}

TEST(CornerWeights, NoCarHasAreNegative) {
  // 20 left, 50 rear, 90 across: half of 20 + 50 - 90 would be on the left front.
  EXPECT_NEAR(WeightsOfTargets({20, 50, 90}, 2000).leftFront, -200, 1e-9);
}

TEST(Ballast, IsMeasuredFromTheRearAxleAndTheRightTires) {
  const BallastShare over = ShareOfBallast({0, 0}, 108, 60);
  EXPECT_EQ(over.front, 0);
  EXPECT_EQ(over.left, 0);
  EXPECT_EQ(over.OnCorners().rightRear, 1);
  const BallastShare share = ShareOfBallast({27, 45}, 108, 60);
  EXPECT_DOUBLE_EQ(share.front, 0.25);
  EXPECT_DOUBLE_EQ(share.Rear(), 0.75);
  EXPECT_DOUBLE_EQ(share.left, 0.75);
  EXPECT_DOUBLE_EQ(share.Right(), 0.25);
  ExpectNear(share.OnCorners(), {0.1875, 0.0625, 0.5625, 0.1875}, 1e-15);
  // Behind the rear axle it takes weight off the front.
  EXPECT_DOUBLE_EQ(ShareOfBallast({-10.8, 30}, 108, 60).front, -0.1);
}

TEST(Ballast, LeavesThePercentagesAloneWhereTheyStand) {
  const Corners weights{634.5, 611, 564, 540.5};
  const double car = weights.Sum();
  const BallastPlace place =
      PlaceOfBallast(weights.Rear() / car * 100, weights.Right() / car * 100, 108, 60);
  EXPECT_NEAR(place.x, 0.53 * 108, 1e-12);
  EXPECT_NEAR(place.y, 0.51 * 60, 1e-12);
  const Corners parts = ShareOfBallast(place, 108, 60).OnCorners();
  const Corners with =
      weights.Each(parts, [](double weight, double part) { return weight + 300 * part; });
  EXPECT_NEAR(with.Front() / with.Sum(), 0.53, 1e-12);
  EXPECT_NEAR(with.Left() / with.Sum(), 0.51, 1e-12);
}

}  // namespace
}  // namespace veldox
