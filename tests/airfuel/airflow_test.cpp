#include "airfuel/airflow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/units.h"

namespace veldox {
namespace {

TEST(Airflow, HorsepowerIsTheInverseOfTheFlowOfItsKindOfEngine) {
  for (const double kind : {kProStockFlow, kRacingFlow, kStreetFlow}) {
    for (const double horsepower : {60.0, 555.0, 3200.0}) {
      const double flow = IntakeFlowOf(horsepower, 8, kind);
      EXPECT_NEAR(HorsepowerOfFlow(flow, 8, kind) / horsepower, 1, 1e-14);
    }
  }
  // 800 / 8 = 100 horsepower a cylinder
  EXPECT_DOUBLE_EQ(IntakeFlowOf(800, 8, kProStockFlow), 318.75);
  EXPECT_DOUBLE_EQ(IntakeFlowOf(800, 8, kRacingFlow), 377.3);
  EXPECT_DOUBLE_EQ(IntakeFlowOf(800, 8, kStreetFlow), 409.375);
}

TEST(Airflow, SpeedOfMostPowerGoesWithTheFlowOfACubicInch) {
  // 1111 x 300 / 40
  EXPECT_DOUBLE_EQ(RpmOfMostHorsepower(300, 320, 8), 8332.5);
}

TEST(Carburetor, SweepsAThousandCubicFeetAtTenThousandRevolutions) {
  EXPECT_DOUBLE_EQ(CarburetorFlow(345.6, 10000, 1), 1000);
  EXPECT_DOUBLE_EQ(CarburetorFlow(345.6, 10000, .85), 850);
}

TEST(Carburetor, UnderOneAtmosphereOfBoostFlowsTwice) {
  EXPECT_NEAR(BlownCarburetorFlow(345.6, 10000, kStandardAtmospherePsi, 1), 2000, 1e-9);
  EXPECT_NEAR(BlownCarburetorFlow(345.6, 10000, 0, 1), 1000, 1e-9);
}

TEST(Carburetor, IsTheSameForARaceAtTheVacuumItIsRatedAt) {
  EXPECT_DOUBLE_EQ(RaceCarburetorFlow(750, 1.5), 750);
  EXPECT_DOUBLE_EQ(RaceCarburetorFlow(750, 0.375), 1500);
}

TEST(Runner, IsShorterTheFasterTheEngineAndTheWiderThePort) {
  // 350 x 690 / (4 x 6000)
  EXPECT_DOUBLE_EQ(RunnerLength(350, 2, 6000), 10.0625);
  EXPECT_DOUBLE_EQ(RunnerLength(350, 4, 6000), 10.0625 / 4);
  EXPECT_DOUBLE_EQ(RunnerLengthForPower(8500), 11);
}

TEST(Filter, HasTheAreaOfItsElement) {
  // 350 x 6000 / (3456 x 7.25) = 2100000 / 25056
  EXPECT_NEAR(FilterArea(350, 6000, kPaperElement), 83.81226, 1e-5);
  // 2100000 / 28689.0513
  EXPECT_NEAR(FilterArea(350, 6000, kFoamElement), 73.19866, 1e-5);
  const double height = FilterHeight(84, 14);
  EXPECT_NEAR(height * 14 * std::acos(-1.0), 84, 1e-11);
}

TEST(Depression, MovesTheFlowByItsSquareRoot) {
  // Flow bench tables give 1.673 from 10 to 28 inches, 1.058 from 25 to 28.
  EXPECT_NEAR(FlowAtDepression(1, 10, 28), 1.673, 5e-4);
  EXPECT_NEAR(FlowAtDepression(1, 25, 28), 1.058, 5e-4);
  EXPECT_DOUBLE_EQ(FlowAtDepression(123, 7, 28), 246);
  EXPECT_DOUBLE_EQ(FlowAtDepression(123, 28, 28), 123);
}

TEST(Depression, KnowsTheFootAndTheInch) {
  // A foot is 0.3048 m: a CFM is 0.3048^3 / 60 cubic metres in a second.
  EXPECT_NEAR(kCubicMetresPerSecondOfCfm / (0.3048 * 0.3048 * 0.3048 / 60), 1, 1e-6);
  EXPECT_DOUBLE_EQ(kMillimetresWaterPerInch, 25.4);
}

TEST(VolumetricEfficiency, IsMeanPressureInAtmospheresOverTheRatio) {
  for (const double rpm : {3000.0, 6500.0}) {
    // 2 revolutions a stroke, 33000 ft lb a minute, 12 inches a foot
    const double meanPressure = 2.0 * 33000 * 12 * 450 / (350 * rpm);
    EXPECT_NEAR(VolumetricEfficiencyOfPower(450, 350, rpm, 10.5) / (meanPressure / 14.69595 / 10.5),
                1, 1e-14);
  }
}

TEST(Bsfc, FallsSteadilyWithTheCompressionRatio) {
  double last = BsfcOfCompression(7);
  EXPECT_NEAR(last, 0.51, 0.005);
  for (double ratio = 7.1; ratio < 16.55; ratio += 0.1) {
    const double now = BsfcOfCompression(ratio);
    EXPECT_LT(now, last) << ratio;
    last = now;
  }
  EXPECT_NEAR(last, 0.40, 0.005);
}

TEST(Bsfc, IsAPolynomialThatMeetsItsConstantAtZero) {
  EXPECT_DOUBLE_EQ(BsfcOfCompression(0), -1.26538397676127E-06);
  // The sum of all coefficients, added by hand.
  EXPECT_NEAR(BsfcOfCompression(1), 0.3703814254, 1e-10);
}

TEST(Alcohol, GivesSixteenPercentMore) {
  EXPECT_DOUBLE_EQ(AlcoholHorsepower(1000), 1157.4985);
}

}  // namespace
}  // namespace veldox
