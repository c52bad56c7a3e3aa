#include "airfuel/mass_air.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <stdexcept>

namespace veldox {
namespace {

TEST(Stoichiometry, FollowsFromTheFormulasOfTheFuels) {
  // Air is 23.14 % oxygen by weight: 4.32 to 4.35 lb of air hold a pound. A fuel CxHyOz takes up
  // x + y / 4 - z / 2 molecules of oxygen (31.998); atoms weigh 12.011, 1.008, 15.999.
  struct Fuel {
    int index;
    double c, h, o;
  };
  for (const Fuel& fuel :
       {Fuel{3, 1, 4, 1}, Fuel{2, 2, 6, 1}, Fuel{5, 3, 8, 0}, Fuel{6, 1, 4, 0}}) {
    const double weight = fuel.c * 12.011 + fuel.h * 1.008 + fuel.o * 15.999;
    const double oxygen = (fuel.c + fuel.h / 4 - fuel.o / 2) * 31.998;
    const double ratio = oxygen / weight * 4.335;
    EXPECT_NEAR(StoichiometricRatio(fuel.index) / ratio, 1, 0.015) << fuel.index;
  }
}

TEST(Stoichiometry, OfE85LiesBetweenItsParts) {
  EXPECT_GT(StoichiometricRatio(1), StoichiometricRatio(2));
  EXPECT_LT(StoichiometricRatio(1), StoichiometricRatio(0));
  EXPECT_DOUBLE_EQ(StoichiometricRatio(0), 14.7);
  EXPECT_DOUBLE_EQ(StoichiometricRatio(4), 14.6);
  EXPECT_THROW(StoichiometricRatio(7), std::out_of_range);
  EXPECT_THROW(StoichiometricRatio(-1), std::out_of_range);
}

TEST(AirFuelRatio, IsLambdaUpToOneAndAHalf) {
  EXPECT_DOUBLE_EQ(AirFuelRatioOf(1.5, 14.7), 22.05);
  EXPECT_DOUBLE_EQ(AirFuelRatioOf(1.51, 14.7), 1.51);
  EXPECT_DOUBLE_EQ(AirFuelRatioOf(.9, 10), 9);
  EXPECT_DOUBLE_EQ(AirFuelRatioOf(12.5, 10), 12.5);
}

TEST(InletAir, HasTheDensityOfTheStandardAtmosphere) {
  const InletAir air = InletAirOf(59, 29.92126, 0);
  EXPECT_NEAR(air.AirDensityK, 288.15, 1e-10);
  EXPECT_NEAR(air.AirPressurePa / 101325, 1, 1e-4);
  // A swept cubic metre in a second weighs 1.2250 kg at sea level.
  EXPECT_NEAR(AirKgPerSec(1, air, 1), 1.2250, 1.2250 * 2e-4);
  // Under an atmosphere of boost twice that.
  EXPECT_NEAR(AirKgPerSec(1, InletAirOf(59, 29.92126, 14.69595), 1), 2.45, 2.45 * 2e-4);
}

TEST(SweptAir, IsAThousandCubicFeetOfAnEngineOfATenthOfTheConstant) {
  // 1000 CFM in cubic metres a second
  const double thousand = 1000 * 0.3048 * 0.3048 * 0.3048 / 60;
  EXPECT_NEAR(SweptM3PerSec(345.6, 10000) / thousand, 1, 1e-8);
}

TEST(StandardAir, IsDryAirOfSixtyDegrees) {
  // pM/RT of dry air at 14.696 psi and 60 F, in pounds a cubic foot
  const double kilograms = 101325 * 0.0289647 / (8.314463 * (273.15 + (60 - 32) / 1.8));
  const double pounds = kilograms / 0.45359237 * 0.3048 * 0.3048 * 0.3048;
  EXPECT_NEAR(60 / StandardCubicFeet(3600) / pounds, 1, 2e-4);
}

TEST(MassAirFlow, IsSolvedBackForEfficiencyAndSpeed) {
  for (const double fahrenheit : {-20.0, 59.0, 118.5}) {
    for (const double boost : {0.0, 18.5}) {
      const InletAir air = InletAirOf(fahrenheit, 29.1, boost);
      const double swept = SweptM3PerSec(350, 6200);
      const double pounds = PoundsPerHourOf(AirKgPerSec(swept, air, 0.93));
      EXPECT_NEAR(VolumetricEfficiencyOf(pounds, swept, air), 0.93, 1e-14);
      EXPECT_NEAR(RpmOfMassAirFlow(pounds, 350, 0.93, air), 6200, 1e-9);
      EXPECT_NEAR(PoundsPerHourOf(KilogramsPerSecondOf(pounds)), pounds, 1e-9);
    }
  }
}

TEST(VolumetricEfficiency, OfACurveMeetsThePeakAndFallsFasterAbove) {
  EXPECT_DOUBLE_EQ(VolumetricEfficiencyAt(6500, 6500, 0.9), 0.9);
  EXPECT_NEAR(VolumetricEfficiencyAt(13000, 6500, 0.9), 0.9 * std::exp2(-1.275), 1e-14);
  EXPECT_NEAR(VolumetricEfficiencyAt(3250, 6500, 0.9), 0.9 * std::exp2(0.75), 1e-14);
}

}  // namespace
}  // namespace veldox
