#include "graph/power_curves.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/error.h"

namespace veldox {
namespace {

TEST(PowerCurves, ReachTheirPeakNearTheModelsPeakSpeed) {
  for (int type = kFirstCurveType; type <= kLastGraphedCurveType; ++type) {
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

TEST(PowerCurves, OfTorqueReachIt) {
  for (int type = kFirstTorqueCurveType; type <= kLastCurveType; ++type) {
    double best = 0;
    double bestSpeed = 0;
    const ModelRange range = OwnModelSpeeds(type);
    for (double speed = range.low; speed <= range.high; speed += 5) {
      const double torque = ModelTorque(type, speed, 300);
      if (torque > best) {
        best = torque;
        bestSpeed = speed;
      }
    }
    // The divisors are the model's torque at 100 RPM steps, rounded to six digits.
    EXPECT_NEAR(best, 300, 0.03) << type;
    EXPECT_NEAR(bestSpeed, ModelPeakSpeed(type), 60) << type;
  }
}

TEST(PowerCurves, HaveRangesOfTheirOwn) {
  const double ranges[][2] = {{7000, 10450}, {3100, 6200}, {3100, 6200}, {3300, 7000},
                              {3000, 6000},  {1000, 6000}, {1000, 5400}};
  for (int type = kFirstRangedCurveType; type <= kLastCurveType; ++type) {
    EXPECT_EQ(OwnModelSpeeds(type).low, ranges[type - kFirstRangedCurveType][0]) << type;
    EXPECT_EQ(OwnModelSpeeds(type).high, ranges[type - kFirstRangedCurveType][1]) << type;
  }
}

TEST(PowerCurves, OfTypes9And10WorkedOutByHand) {
  // The polynomial of type 9 at 5000, power by power:
  // 33305.406 - 234357.46 + 678821.2025 - 1031455.3375 + 869517.375 - 385773.90625 + 70367.6
  EXPECT_NEAR(ModelHorsepower(9, 5000, 450), 424.87975, 1e-6);
  // Type 10 at 3000, 50 turns a second: -1200.51 + 14946.7 - 43965 + 70427.5 - 65393.125 +
  // 35383.75 - 10383.015625 + 1274.1953125 = 1090.494688; kPa to psi, 122.047488 cubic inches
  EXPECT_NEAR(ModelTorque(10, 3000, 134.725), 1090.4946875 / 6.89475729 * 122.047488 / 150.8, 1e-6);
}

TEST(PowerCurves, AreEleven) {
  EXPECT_THROW(ModelPeakSpeed(0), CommandError);
  EXPECT_THROW(ModelPeakSpeed(12), CommandError);
  EXPECT_THROW(ModelHorsepower(10, 5000, 100), CommandError);
  EXPECT_THROW(ModelTorque(9, 5000, 100), CommandError);
  EXPECT_THROW(OwnModelSpeeds(4), CommandError);
  EXPECT_THROW(ModelSpeeds(9, 5000), CommandError);
}

}  // namespace
}  // namespace veldox
