#include "airfuel/nitrous.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <stdexcept>

#include "core/numbers.h"

namespace veldox {
namespace {

TEST(NitrousHorsepower, IsJetAreaTimesJetsTimesTheFactor) {
  // 0.012^2 pi x 8 x 57500 = 66.24 pi; at 4 x 950 psi twice that.
  EXPECT_NEAR(NitrousHorsepower(NitrousBaselineOf(0), 950, 0.024, 8), 66.24 * kPi, 1e-10);
  EXPECT_NEAR(NitrousHorsepower(NitrousBaselineOf(2), 950, 0.024, 8), 66.24 * kPi, 1e-10);
  EXPECT_NEAR(NitrousHorsepower(NitrousBaselineOf(0), 3800, 0.024, 8), 132.48 * kPi, 1e-10);
  // 0.02^2 pi x 2 x 49000 = 39.2 pi; 0.02^2 pi x 2 x 42500 = 34 pi
  EXPECT_NEAR(NitrousHorsepower(NitrousBaselineOf(1), 950, 0.04, 2), 39.2 * kPi, 1e-10);
  EXPECT_NEAR(NitrousHorsepower(NitrousBaselineOf(5), 950, 0.04, 2), 34 * kPi, 1e-10);
}

TEST(NitrousHorsepower, FollowsTheLawOfTheOrifice) {
  for (int option = 0; option < kNitrousBaselineCount; ++option) {
    const NitrousBaseline& baseline = NitrousBaselineOf(option);
    const double power = NitrousHorsepower(baseline, 900, 0.031, 4);
    EXPECT_NEAR(NitrousHorsepower(baseline, 900, 0.062, 4) / power, 4, 1e-14);
    EXPECT_NEAR(NitrousHorsepower(baseline, 3600, 0.031, 4) / power, 2, 1e-14);
    EXPECT_NEAR(NitrousHorsepower(baseline, 900, 0.031, 12) / power, 3, 1e-14);
  }
}

TEST(NitrousJetSize, IsTheInverseOfTheHorsepower) {
  std::mt19937 random(17);
  std::uniform_real_distribution<double> pressures(300, 1300), jets(0.01, 0.2);
  for (int i = 0; i < 600; ++i) {
    const NitrousBaseline& baseline = NitrousBaselineOf(i % kNitrousBaselineCount);
    const double pressure = pressures(random), jet = jets(random), count = 1 + i % 16;
    const double power = NitrousHorsepower(baseline, pressure, jet, count);
    EXPECT_NEAR(NitrousJetSize(baseline, pressure, power, count) / jet, 1, 1e-13);
  }
}

TEST(NitrousAdvice, CountsThePowerAsInEightCylinders) {
  EXPECT_DOUBLE_EQ(HorsepowerPerEight(75, 4), 150);
  EXPECT_DOUBLE_EQ(HorsepowerPerEight(150, 8), 150);
}

TEST(NitrousAdvice, IsTwoDegreesForEverySeventyFiveHorsepower) {
  const AdviceRange retard = TimingRetard(NitrousBaselineOf(3), 150);
  EXPECT_DOUBLE_EQ(retard.lower, 4);
  EXPECT_DOUBLE_EQ(retard.upper, 6);
  const AdviceRange plugs = PlugHeatRange(NitrousBaselineOf(3), 150);
  EXPECT_DOUBLE_EQ(plugs.lower, 1);
  EXPECT_DOUBLE_EQ(plugs.upper, 1.5);
}

TEST(NitrousAdvice, RetardsMoreWhereTheMixtureIsLean) {
  for (const int option : {4, 5}) {
    // 175 / 50 x 2 = 7; 175 / 175 = 1
    const AdviceRange retard = TimingRetard(NitrousBaselineOf(option), 175);
    EXPECT_DOUBLE_EQ(retard.lower, 7);
    EXPECT_DOUBLE_EQ(retard.upper, 8.75);
    const AdviceRange plugs = PlugHeatRange(NitrousBaselineOf(option), 175);
    EXPECT_DOUBLE_EQ(plugs.lower, 1);
    EXPECT_DOUBLE_EQ(plugs.upper, 1.2);
    // Higher values, a narrower span.
    const AdviceRange usual = TimingRetard(NitrousBaselineOf(0), 175);
    EXPECT_GT(retard.lower, usual.lower);
    EXPECT_GT(retard.upper, usual.upper);
    EXPECT_LT(retard.upper - retard.lower, usual.upper - usual.lower);
  }
}

TEST(BaseFuelJet, HasTheAreaOfTheBaselinesRatio) {
  // At the base pressures the areas stand as the ratio: 0.04 x sqrt(0.9) and so on.
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(0), 950, 0.04, 6), 0.04 * std::sqrt(0.9), 1e-15);
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(1), 950, 0.04, 6), 0.04, 1e-15);
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(2), 950, 0.04, 6), 0.04 * std::sqrt(1.261), 1e-15);
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(3), 950, 0.04, 6), 0.04 * std::sqrt(0.7), 1e-15);
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(4), 950, 0.04, 6), 0.04 * std::sqrt(0.59), 1e-15);
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(5), 950, 0.04, 5.5), 0.04 * std::sqrt(0.59), 1e-15);
  // 16 times the fuel pressure flows 4 times as much: a jet of half the size.
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(1), 950, 0.04, 96), 0.02, 1e-15);
  // 16 times the bottle pressure asks for twice the jet.
  EXPECT_NEAR(BaseFuelJet(NitrousBaselineOf(1), 15200, 0.04, 6), 0.08, 1e-15);
}

TEST(FuelPressureForJets, IsTheInverseOfTheBaseFuelJet) {
  std::mt19937 random(18);
  std::uniform_real_distribution<double> bottles(300, 1300), jets(0.01, 0.2), pressures(2, 80);
  for (int i = 0; i < 600; ++i) {
    const NitrousBaseline& baseline = NitrousBaselineOf(i % kNitrousBaselineCount);
    const double bottle = bottles(random), jet = jets(random), pressure = pressures(random);
    const double fuelJet = BaseFuelJet(baseline, bottle, jet, pressure);
    // Gasoline of 0.74 needs the base jet itself.
    EXPECT_NEAR(FuelJetForGravity(NitrousFuel::Gas, fuelJet, 0.74) / fuelJet, 1, 1e-14);
    EXPECT_NEAR(FuelPressureForJets(baseline, bottle, jet, fuelJet) / pressure, 1, 1e-12);
  }
}

TEST(FuelJets, GoWithTheSquareRootOfTheFuelsNeed) {
  // Methanol needs 2.25 times the area, 1.5 times the jet.
  EXPECT_NEAR(FuelJetForGravity(NitrousFuel::Methanol, 0.04, 0.79), 0.06, 1e-15);
  EXPECT_NEAR(FuelJetForGasJet(NitrousFuel::Methanol, 0.04, 0.74, 0.79), 0.06, 1e-15);
  // A fuel of a quarter of the gravity needs a jet twice as large.
  EXPECT_NEAR(FuelJetForGravity(NitrousFuel::Methanol, 0.04, 0.1975), 0.12, 1e-15);
  EXPECT_NEAR(FuelJetForGravity(NitrousFuel::Gas, 0.04, 0.185), 0.08, 1e-15);
  // The jet that was right for a heavier gasoline flowed more of it.
  EXPECT_NEAR(FuelJetForGasJet(NitrousFuel::Methanol, 0.04, 2.96, 0.79), 0.12, 1e-15);
}

TEST(FuelJets, AgreeWithTheAirThatTheFuelsBurnWith) {
  // Pounds of air a pound of fuel at the stoichiometric mixture: gasoline 14.7, methanol 6.4,
  // ethanol 9.0, E85 9.8.
  const auto area = [](NitrousFuel fuel, double gravity) {
    return JetArea(FuelJetForGravity(fuel, 1, gravity)) / JetArea(1);
  };
  EXPECT_NEAR(area(NitrousFuel::Methanol, 0.79) / (14.7 / 6.4), 1, 0.07);
  EXPECT_NEAR(area(NitrousFuel::Ethanol, 0.79) / (14.7 / 9.0), 1, 0.07);
  EXPECT_NEAR(area(NitrousFuel::E85, 0.78) / (14.7 / 9.8), 1, 0.07);
}

TEST(JetOfSameFlow, HasTheAreaOfAllJets) {
  EXPECT_NEAR(JetOfSameFlow(0.03, 4), 0.06, 1e-15);
  // 3, 4, 5: the areas add up.
  EXPECT_NEAR(JetOfSameFlow(0.03, 1, 0.04, 1), 0.05, 1e-15);
  EXPECT_NEAR(JetOfSameFlow(0.03, 4, 0.04, 4), 0.1, 1e-15);
  EXPECT_NEAR(JetOfSameFlow(0.03, 4, 0.04, 0), 0.06, 1e-15);
}

TEST(NitrousBaselines, AreSix) {
  EXPECT_THROW(NitrousBaselineOf(-1), std::out_of_range);
  EXPECT_THROW(NitrousBaselineOf(kNitrousBaselineCount), std::out_of_range);
}

TEST(NitrousFormulas, GiveNoNumberWhereThereIsNone) {
  const NitrousBaseline& baseline = NitrousBaselineOf(0);
  EXPECT_TRUE(std::isnan(NitrousHorsepower(baseline, -1, 0.024, 8)));
  EXPECT_FALSE(std::isfinite(NitrousJetSize(baseline, 0, 100, 8)));
  EXPECT_FALSE(std::isfinite(NitrousJetSize(baseline, 950, 100, 0)));
  EXPECT_FALSE(std::isfinite(BaseFuelJet(baseline, 950, 0.024, 0)));
  EXPECT_FALSE(std::isfinite(FuelJetForGravity(NitrousFuel::E85, 0.024, 0)));
  EXPECT_FALSE(std::isfinite(FuelPressureForJets(baseline, 950, 0.024, 0)));
}

}  // namespace
}  // namespace veldox
