#include "vehicle/road_load.h"

#include <gtest/gtest.h>

namespace veldox {
namespace {

TEST(RoadLoad, OfTheAirIsHalfOfDensitySpeedSquaredAreaAndDrag) {
  constexpr double kFeetASecondPerMph = 22.0 / 15;
  constexpr double kGravity = 32.17405;
  const double speed = 120 * kFeetASecondPerMph;
  const double force = 0.5 * 0.076501 / kGravity * speed * speed * 22 * 0.4;
  EXPECT_NEAR(AeroHorsepower(120, 0.4, 22, 0.076501) / (force * speed / 550), 1, 1e-4);
}

TEST(RoadLoad, GoesWithTheAirsDensity) {
  EXPECT_DOUBLE_EQ(TrackDensityFactor(29.92126), 1);
  EXPECT_DOUBLE_EQ(TrackDensityFactor(0.076501), 1);
  EXPECT_DOUBLE_EQ(AeroHorsepower(100, 0.4, 20, 29.92126), AeroHorsepower(100, 0.4, 20, 0.076501));
  // 0.1 itself is a density.
  EXPECT_DOUBLE_EQ(TrackDensityFactor(0.1), 0.1 / 0.076501);
  EXPECT_DOUBLE_EQ(TrackDensityFactor(0.1001), 0.1001 / 29.92126);
}

TEST(RoadLoad, OfTheTiresIsForceTimesSpeed) {
  // 375 MPH times one pound are one horsepower.
  EXPECT_DOUBLE_EQ(RollingHorsepower(3000, 0.01, 125), 10);
}

TEST(RoadLoad, FrontalAreaIsFourFifthsOfTheOutline) {
  EXPECT_DOUBLE_EQ(FrontalAreaOf(72, 60), 24);
}

}  // namespace
}  // namespace veldox
