#include "airfuel/exhaust_tuning.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace veldox {
namespace {

TEST(HeaderTubes, LengthOfEightCylindersIsPlain) {
  // 350 x 1900 / (1.75^2 x 6500) = 665000 / 19906.25
  EXPECT_NEAR(TubeLengthFor({350, 8}, 1.75, 6500), 665000 / 19906.25, 1e-12);
  // Half the cylinders of the same size are twice as large.
  EXPECT_NEAR(TubeLengthFor({175, 4}, 1.75, 6500), 665000 / 19906.25, 1e-12);
  EXPECT_NEAR(TubeLengthForPower(6800), 30, 1e-12);
}

TEST(HeaderTubes, LengthDiameterAndSpeedAreInverse) {
  for (const HeaderEngine engine : {HeaderEngine{327, 8}, {36.6, 4}, {121.9, 3}}) {
    const double length = TubeLengthFor(engine, 1.625, 7100);
    EXPECT_NEAR(TubeDiameterFor(engine, length, 7100), 1.625, 1e-12);
    EXPECT_NEAR(RpmOfTube(engine, 1.625, length), 7100, 1e-8);
  }
}

TEST(HeaderTubes, TorqueSpeedAndDiameterAreInverse) {
  for (const HeaderEngine engine : {HeaderEngine{327, 8}, {36.6, 4}, {121.9, 3}}) {
    EXPECT_NEAR(TorqueRpmOfTube(engine, TubeDiameterForTorque(engine, 5900)), 5900, 1e-8);
  }
}

TEST(HeaderTubes, TorqueDiameterIsAnAreaForTheCylindersVolume) {
  // The tube's area carries 88200 cubic inches a minute by square inch: 40 x 4410 / 88200 = 2
  // square inches.
  const double diameter = TubeDiameterForTorque({320, 8}, 4410);
  EXPECT_NEAR(std::numbers::pi * diameter * diameter / 4, 2, 1e-12);
}

TEST(HeaderTubes, DiameterForFlowCarriesEightyCfmASquareInch) {
  // 1.27 stands for 4 / pi, 1.2732.
  const double diameter = TubeDiameterForFlow(210);
  EXPECT_NEAR(210 / (std::numbers::pi * diameter * diameter / 4), 80, 80 * 0.003);
  EXPECT_NEAR(diameter * diameter, 3.33375, 1e-12);
}

TEST(Collector, HoldsAnEighthOfTheEngineASquareInch) {
  // 400 / (4 x 4 x pi) of an eight cylinder; a four has collectors of half the engine.
  EXPECT_NEAR(CollectorLengthFor({400, 8}, 4), 25 / std::numbers::pi, 1e-12);
  EXPECT_NEAR(CollectorLengthFor({200, 4}, 4), 25 / std::numbers::pi, 1e-12);
}

TEST(ExhaustSystem, FlowsTwoAndABitCfmAHorsepower) {
  EXPECT_NEAR(SystemFlowFor(400), 1020, 1e-12);
}

TEST(HeaderTubes, NoNumberComesOfNothing) {
  EXPECT_FALSE(std::isfinite(TubeLengthFor({350, 8}, 0, 6500)));
  EXPECT_FALSE(std::isfinite(TubeLengthFor({350, 0}, 1.75, 6500)));
  EXPECT_FALSE(std::isfinite(TubeLengthForPower(0)));
  EXPECT_FALSE(std::isfinite(CollectorLengthFor({350, 8}, 0)));
}

}  // namespace
}  // namespace veldox
