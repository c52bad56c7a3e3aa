#include "graph/power_curves.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/error.h"

namespace veldox {
namespace {

TEST(PowerCurves, ReachTheirPeakNearTheModelsPeakSpeed) {
  for (int type = kFirstCurveType; type <= kLastCurveType; ++type) {
    const ModelRange range = ModelSpeeds(type, 8800);
    double best = 0;
    double bestSpeed = 0;
    for (double speed = range.low; speed <= range.high; speed += 5) {
      const double power = ModelHorsepower(type, speed, 1000);
      EXPECT_TRUE(std::isfinite(power) && power > 0) << type << " at " << speed;
      if (power > best) {
        best = power;
        bestSpeed = speed;
      }
    }
    EXPECT_NEAR(best, 1000, 5) << type;
    EXPECT_NEAR(bestSpeed, ModelPeakSpeed(type), 100) << type;
  }
}

TEST(PowerCurves, OfTypes2And3WorkedOutByHand) {
  // 1 / (0.004031132866486 - 7.61061847e-7 * 8000 + 4.5371e-11 * 8000^2) =
  // 1 / (0.004031132866486 - 0.006088494776 + 0.002903744) = 1 / 0.000846382090486
  EXPECT_NEAR(ModelHorsepower(2, 8000, 1187.5), 1 / 0.000846382090486, 1e-7);
  // -4506.7698 + 1.3835755 * 8000 - 8.4052988e-5 * 64000000 =
  // -4506.7698 + 11068.604 - 5379.391232
  EXPECT_NEAR(ModelHorsepower(3, 8000, 1187), 1182.442968, 1e-6);
  EXPECT_NEAR(ModelHorsepower(3, 8000, 2374), 2364.885936, 1e-6) << "twice the power";
}

TEST(PowerCurves, HaveTheirSpeeds) {
  EXPECT_EQ(ModelSpeeds(5, 8800).low, 7000);
  EXPECT_EQ(ModelSpeeds(5, 8800).high, 10450);
  EXPECT_EQ(ModelSpeeds(6, 8800).high, 6300);
  EXPECT_EQ(ModelSpeeds(7, 8800).high, 6300);
  EXPECT_EQ(ModelSpeeds(8, 8800).high, 7000);
  EXPECT_EQ(ModelSpeeds(1, 8800).high, 10000);
  // 1800 below the peak of 8800, in model speed: 7000 * 8300 / 8800 = 6602.27
  EXPECT_EQ(ModelSpeeds(2, 8800).low, 6600);
  // 1600 below a peak of 5000 at 3400: 3400 * 8450 / 5000 = 5746
  EXPECT_EQ(ModelSpeeds(1, 5000).low, 5745);
  EXPECT_EQ(ModelSpeeds(1, 6300).low, 6300);  // 4700 * 8450 / 6300 = 6303.97
  // Below 1600 RPM, and where the model would give no power, it begins a quarter below the peak.
  EXPECT_EQ(ModelSpeeds(1, 2500).low, 6335);  // 8450 * 3 / 4 = 6337.5
  EXPECT_GT(ModelSpeeds(4, 10).low, 0);
  for (int type = 1; type <= 4; ++type) {
    for (double rpm = 100; rpm <= 20000; rpm += 100) {
      EXPECT_GT(ModelHorsepower(type, ModelSpeeds(type, rpm).low, 1000), 0) << type << ' ' << rpm;
    }
  }
}

TEST(PowerCurves, AreEight) {
  EXPECT_THROW(ModelPeakSpeed(0), CommandError);
  EXPECT_THROW(ModelHorsepower(9, 5000, 100), CommandError);
}

}  // namespace
}  // namespace veldox
