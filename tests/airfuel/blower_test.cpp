#include "airfuel/blower.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace veldox {
namespace {

constexpr double kAtmosphere = 14.69595;

/// Air at the barometer and temperature that the fresh screen shows.
BlowerAir UsualAir(double boost) {
  return {kInchAir, boost, 29.92, 59};
}

/// Anything that goes in and comes back through two formulas.
class Inverses : public testing::Test {
 protected:
  double Any(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }
  static constexpr int kTrials = 500;

 private:
  std::mt19937 random_{14};
};

TEST(BoostedHorsepower, GrowsAsThePressureDoes) {
  EXPECT_NEAR(BoostedHorsepower(555, kAtmosphere), 1110, 1e-10);
  EXPECT_NEAR(BoostedHorsepower(555, 0), 555, 1e-12);
  EXPECT_NEAR(BoostHorsepowerGain(555, kAtmosphere / 2), 277.5, 1e-10);
  EXPECT_EQ(BoostHorsepowerGain(555, 0), 0);
}

TEST_F(Inverses, OfTheHorsepower) {
  for (int i = 0; i < kTrials; ++i) {
    const double power = Any(1, 3000), boost = Any(-10, 60);
    const double boosted = BoostedHorsepower(power, boost);
    EXPECT_NEAR(UnblownHorsepower(boosted, boost) / power, 1, 1e-14);
    EXPECT_NEAR(power + BoostHorsepowerGain(power, boost), boosted, 1e-10);
    EXPECT_NEAR(BoostForHorsepowerGain(power, boosted - power), boost, 1e-11);
  }
}

TEST(EffectiveCompressionRatio, IsTheRatioTimesThePressure) {
  EXPECT_NEAR(EffectiveCompressionRatio(8.5, kAtmosphere), 17, 1e-13);
  // What a fresh screen shows.
  EXPECT_NEAR(EffectiveCompressionRatio(8.5, 7.5), 12.83793, 5e-6);
}

TEST(CompressionRatioForBoost, FallsWithTheRootOfThePressure) {
  EXPECT_NEAR(CompressionRatioForBoost(10, 3 * kAtmosphere), 5, 1e-14);
  EXPECT_NEAR(CompressionRatioForBoost(10.5, 0), 10.5, 1e-14);
}

TEST_F(Inverses, OfTheEffectiveRatio) {
  for (int i = 0; i < kTrials; ++i) {
    const double ratio = Any(4, 20), boost = Any(-10, 60);
    EXPECT_NEAR(BoostForEffectiveRatio(EffectiveCompressionRatio(ratio, boost), ratio), boost,
                1e-11);
  }
}

TEST(PressureRatio, IsTheSameInBothUnits) {
  EXPECT_NEAR(PressureRatio(UsualAir(7.5)), 1.510366, 5e-7);
  // 1013.25 mbar and 101.325 kPa of boost: twice the pressure.
  EXPECT_NEAR(PressureRatio({kMetricAir, 101.325, 1013.25, 15}), 2, 1e-15);
  EXPECT_NEAR(PressureRatio(UsualAir(0)), 1, 0);
}

TEST(CompressedTemperature, IsThatOfAnIsentropicCompressor) {
  // At 59 degrees and a pressure ratio of 2 a compressor without losses gives 171.5 degrees;
  // the exponent (k - 1) / k = 2 / 7 of dry air gives 172.6.
  const double outlet = CompressedTemperature(UsualAir(0), 2, 1);
  EXPECT_NEAR(outlet, 171.5, 0.05);
  EXPECT_NEAR(outlet, (59 + 459.67) * std::pow(2, 2.0 / 7) - 459.67, 1.5);
  // Losses heat the air: at half the efficiency twice the rise.
  EXPECT_NEAR(CompressedTemperature(UsualAir(0), 2, 0.5) - 59, 2 * (outlet - 59), 1e-12);
  EXPECT_NEAR(CompressedTemperature(UsualAir(0), 1, 0.7), 59, 1e-12);
}

TEST(CompressedTemperature, IsTheSameInCelsius) {
  const BlowerAir metric{kMetricAir, 0, 1013.25, 15};
  EXPECT_NEAR(CompressedTemperature(metric, 2, 1),
              CelsiusOf(CompressedTemperature(UsualAir(0), 2, 1)), 1e-12);
}

TEST(BlowerDensityRatio, FollowsTheIdealGas) {
  const BlowerAir air = UsualAir(7.5);
  EXPECT_NEAR(BlowerDensityRatio(air, 150.7719), 1.283425, 5e-7);
  for (const double outlet : {59.0, 150.7719, 300.0}) {
    const double kelvinLike = (59 + 459.67) / (outlet + 459.67);
    EXPECT_NEAR(BlowerDensityRatio(air, outlet) / (PressureRatio(air) * kelvinLike), 1, 1e-3);
  }
  // Air that is not heated is as dense as the pressure makes it.
  EXPECT_NEAR(BlowerDensityRatio(air, 59), PressureRatio(air), 1e-15);
}

TEST(IntercoolerEfficiency, IsThePartOfTheHeatTakenAway) {
  EXPECT_DOUBLE_EQ(IntercoolerEfficiency(160, 60, 60), 1);
  EXPECT_DOUBLE_EQ(IntercoolerEfficiency(160, 160, 60), 0);
  EXPECT_DOUBLE_EQ(IntercoolerEfficiency(160, 85, 60), 0.75);
  EXPECT_FALSE(std::isfinite(IntercoolerEfficiency(60, 50, 60)));
}

TEST_F(Inverses, OfTheIntercooler) {
  for (int i = 0; i < kTrials; ++i) {
    const double outside = Any(-20, 110), in = outside + Any(20, 300);
    const double out = Any(outside - 30, in);
    EXPECT_NEAR(IntercoolerOutlet(in, IntercoolerEfficiency(in, out, outside), outside), out, 1e-9);
  }
}

TEST(IntercoolerDensityRatio, IsOneWhereNothingChanges) {
  EXPECT_EQ(IntercoolerDensityRatio(UsualAir(7.5), 120, 120, 0), 1);
  EXPECT_EQ(IntercoolerDensityRatio({kMetricAir, 50, 1000, 15}, 80, 80, 0), 1);
  EXPECT_NEAR(IntercoolerDensityRatio(UsualAir(7.5), 150.7719, 95, 1), 1.050908, 5e-7);
  // Half the pressure lost is half the density.
  EXPECT_NEAR(IntercoolerDensityRatio({kMetricAir, 100, 1000, 15}, 80, 80, 100), 0.5, 1e-15);
}

TEST(AirConsumer, IsFilledEverySecondTurn) {
  // 1728 cubic inches are a cubic foot.
  EXPECT_DOUBLE_EQ((AirConsumer{1728}.FlowCfm(1000, 1, 1)), 500);
  EXPECT_DOUBLE_EQ((AirConsumer{1728, true}.FlowCfm(1000, 1, 1)), 1000);
  EXPECT_DOUBLE_EQ((AirConsumer{1728}.FlowCfm(1000, 0.8, 1.5)), 600);
  EXPECT_NEAR((AirConsumer{326.7256}.FlowCfm(6500, 0.85, 1.283425)), 670.3664, 5e-4);
}

TEST(PoundsPerCubicFoot, IsThatOfStandardAir) {
  EXPECT_NEAR(PoundsPerCubicFoot(29.92, 59), 0.0765, 1e-16);
  EXPECT_NEAR(PoundsPerCubicFoot(14.96, 59), 0.03825, 1e-16);
  // The ideal gas law with 53.35 ft-lb a pound and degree, at 20 C and 1000 mbar: 0.07424.
  EXPECT_NEAR(PoundsPerCubicFoot(29.53, 68), 29.53 * 70.726 / (53.35 * 527.67), 1e-4);
}

TEST(HorsepowerOfAir, IsPoundsAnHourByTheNeed) {
  // 60 lb/min are 3600 lb/h.
  EXPECT_DOUBLE_EQ(HorsepowerOfAir(60, 6), 600);
  EXPECT_FALSE(std::isfinite(HorsepowerOfAir(60, 0)));
}

TEST(TableValueAt, GoesInProportionBetweenTheRows) {
  std::array<double, kRpmTableRows> rows{};
  rows[0] = 0.5;
  rows[1] = 0.6;
  rows[2] = 0.9;
  rows[kRpmTableRows - 1] = 0.4;
  EXPECT_EQ(TableValueAt(rows, 1000), 0.5);
  EXPECT_EQ(TableValueAt(rows, 1500), 0.6);
  EXPECT_NEAR(TableValueAt(rows, 1250), 0.55, 1e-15);
  EXPECT_NEAR(TableValueAt(rows, 1900), 0.84, 1e-15);
  EXPECT_NEAR(TableValueAt(rows, 27250), 0.2, 1e-15);
  // Beyond the ends the end holds.
  EXPECT_EQ(TableValueAt(rows, 0), 0.5);
  EXPECT_EQ(TableValueAt(rows, -1e300), 0.5);
  EXPECT_EQ(TableValueAt(rows, 27500), 0.4);
  EXPECT_EQ(TableValueAt(rows, 1e300), 0.4);
}

}  // namespace
}  // namespace veldox
