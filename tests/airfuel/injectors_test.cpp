#include "airfuel/injectors.h"

#include <gtest/gtest.h>

namespace veldox {
namespace {

TEST(Cycle, IsTwoRevolutions) {
  EXPECT_DOUBLE_EQ(CycleMs(6000), 20);
  EXPECT_DOUBLE_EQ(FullPulse(6000), 20);
}

TEST(Cycle, OfAFullDutyMeetsItsPulseAtSomeSpeedsOnly) {
  for (const double rpm : {1500.0, 3000.0, 6000.0, 7500.0, 12000.0}) {
    EXPECT_LE(CycleMs(rpm), FullPulse(rpm)) << rpm;
  }
  // The pulse is the last digit short of 15.
  EXPECT_EQ(CycleMs(8000), 15);
  EXPECT_LT(FullPulse(8000), 15);
}

TEST(InjectorUnits, AreThoseOfGasoline) {
  // A pound is 453.59237 g.
  EXPECT_DOUBLE_EQ(GramsPerMinuteOf(60), 453.59237);
  // Gasoline weighs 0.71 to 0.78 kg a litre.
  const double density = GramsPerMinuteOf(1) / CcPerMinuteOf(1);
  EXPECT_NEAR(density, 0.719, 5e-4);
  // 231 cubic inches a gallon
  const double pumped = 453.59237 / (FuelPumpFlowOf(1, 1, 1) * 231 * 2.54 * 2.54 * 2.54);
  EXPECT_NEAR(pumped, 0.743, 5e-4);
}

TEST(InjectorSize, FollowsTheUsualRule) {
  EXPECT_NEAR(RatingForHorsepower(500, .50, 8, .80), 39.0625, 1e-12);
  EXPECT_NEAR(HorsepowerOfInjectors(39.0625, 43.5, 43.5, .80, 8, .50), 500, 1e-11);
}

TEST(FuelPressure, MovesTheFlowByItsSquareRoot) {
  EXPECT_DOUBLE_EQ(RatingAtPressure(24, 10, 40), 48);
  EXPECT_DOUBLE_EQ(DutyAtPressure(.8, 10, 40), .4);
  EXPECT_DOUBLE_EQ(PressureForRating(48, 24, 10), 40);
  EXPECT_DOUBLE_EQ(HorsepowerOfInjectors(24, 10, 40, .5, 8, .5), 384);
  for (const double pressure : {30.0, 43.5, 61.25}) {
    const double moved = RatingAtPressure(30.5, 43.5, pressure);
    EXPECT_NEAR(PressureForRating(moved, 30.5, 43.5), pressure, 1e-12);
    // The same fuel, whatever the pressure.
    EXPECT_NEAR(moved * DutyAtPressure(.85, 43.5, pressure), 30.5 * .85, 1e-12);
  }
}

TEST(InjectorSize, ForAnEngineDeliversTheFuelThatItNeeds) {
  const InjectedEngine engine{345.6, 10000, 0, .9, 12, 8};
  // 900 CFM of air of 13.7 cubic feet a pound
  const double fuel = 900 * 60 / 13.7 / 12;
  EXPECT_NEAR(FuelFlowOf(345.6, 10000, .9, 12), fuel, 1e-9);
  EXPECT_NEAR(RatingForEngine(engine, .85) * .85 * 8, fuel, 1e-9);
  InjectedEngine blown = engine;
  blown.boost = 14.69595;
  EXPECT_NEAR(RatingForEngine(blown, .85) * .85 * 8, 2 * fuel, 1e-9);
}

TEST(ThrottleBody, FlowsByItsFactorMoreThanTheEngineSweeps) {
  EXPECT_NEAR(ThrottleBodyFlowOf(345.6, 10000, 1), 1171.77, 1e-9);
}

TEST(StandardRating, IsTheNextOneOnSale) {
  EXPECT_DOUBLE_EQ(NextStandardRating(39.0625), 42);
  EXPECT_DOUBLE_EQ(NextStandardRating(42), 42);
  EXPECT_DOUBLE_EQ(NextStandardRating(42.001), 60);
  EXPECT_DOUBLE_EQ(NextStandardRating(1), 14);
  EXPECT_DOUBLE_EQ(NextStandardRating(221), 0);
}

}  // namespace
}  // namespace veldox
