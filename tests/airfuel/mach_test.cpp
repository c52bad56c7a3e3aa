#include "airfuel/mach.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/numbers.h"

namespace veldox {
namespace {

TEST(MachIndex, IsMeanPistonSpeedByAreasAndSound) {
  // (4 / 2)^2 = 4; 6000 x 3 / 360 = 50 ft/s; .5 / 2 x 1.5 = .375
  EXPECT_NEAR(MachIndex({4, 3, 2, 0.5, 6000}), 4 * 50 / (0.375 * 1159.766667), 1e-14);
}

TEST(MachWalk, EndsOnTheGridJustShortOfTheIndex) {
  std::mt19937 random(11);
  std::uniform_real_distribution<double> indexes(0.2, 0.9), strokes(2.5, 4.5), bores(3, 4.6),
      valves(1.4, 2.4), speeds(3000, 9000), lifts(0.3, 0.9);
  for (int i = 0; i < 200; ++i) {
    const MachEngine engine{bores(random), strokes(random), valves(random), lifts(random),
                            std::floor(speeds(random))};
    const double index = indexes(random);
    // All terms are simple quotients of the index.
    const double exact = engine.rpm * index / MachIndex(engine);
    if (exact < 32000) {
      const auto rpm = WalkToMachIndex(MachTerm::Rpm, engine, index);
      ASSERT_TRUE(rpm);
      EXPECT_EQ(*rpm, std::floor(exact)) << exact;
    }
    const auto lift = WalkToMachIndex(MachTerm::Lift, engine, index);
    ASSERT_TRUE(lift);
    const double exactLift = engine.valveLift * MachIndex(engine) / index;
    EXPECT_LE(*lift, exactLift + 1e-12);
    EXPECT_GT(*lift, exactLift - 1.001e-5);
    const auto diameter = WalkToMachIndex(MachTerm::Diameter, engine, index);
    ASSERT_TRUE(diameter);
    const double exactDiameter = engine.valveDiameter * MachIndex(engine) / index;
    EXPECT_LE(*diameter, exactDiameter + 1e-12);
    EXPECT_GT(*diameter, exactDiameter - 1.001e-5);
  }
}

TEST(MachWalk, TellsWhereNothingIsFound) {
  const MachEngine engine{4, 3, 2, 0.5, 6000};
  EXPECT_FALSE(WalkToMachIndex(MachTerm::Rpm, engine, 50));
  EXPECT_FALSE(WalkToMachIndex(MachTerm::Lift, engine, 1e-9));
  EXPECT_FALSE(WalkToMachIndex(MachTerm::Diameter, engine, 1e-9));
  MachEngine none = engine;
  none.bore = 0;
  EXPECT_FALSE(WalkToMachIndex(MachTerm::Rpm, none, 0.5));
}

TEST(MachByArea, SpeedAndAreaAreInverse) {
  const MachEngine engine{4.03, 3.5, 0, 0, 6500};
  EXPECT_NEAR(AreaForSpeed(engine, SpeedThroughArea(engine, 2.35)), 2.35, 1e-12);
  // 4 x 4 x 5218 x 3 / (2 x 260.9) = 480
  EXPECT_NEAR(SpeedThroughArea({4, 3, 0, 0, 5218}, 2), 480, 1e-10);
}

TEST(MachByCoefficient, IsTwiceTheMeanPistonSpeedByTheAreas) {
  // 2 x (16 / 8) x 100 rev/s x .25 ft / .5
  EXPECT_NEAR(SpeedByCoefficient({4, 3, 2, 0, 6000}, 2, 0.5), 2 * 2 * 100 * 0.25 / 0.5, 1e-12);
}

TEST(Helmholtz, AgreesWithThePublishedForm) {
  // 350 V8: 4.00 by 3.48, 2.2 square inches, 13 inches, 10 to 1
  const HelmholtzIntake intake{4, 3.48, 2.2, 10, 77, 1128};
  const double volume = 4 * 3.48 * kPi;
  const double published =
      162 / 2.1 * 1128 * std::sqrt(2.2 / (13 * volume) * (10.0 - 1) / (10 + 1));
  EXPECT_NEAR(published, 4896, 1);
  EXPECT_NEAR(TunedRpm(intake, 13) / published, 1, 0.002);
  EXPECT_NEAR(TunedRpm(intake, 13), 4887, 1);
}

TEST(Helmholtz, LengthIsTheInverseOfTheRpm) {
  for (const double length : {7.5, 11.0, 16.0}) {
    const HelmholtzIntake intake{3.9, 3.1, 2.05, 11.5, 80, 1135};
    EXPECT_NEAR(TunedLength(intake, TunedRpm(intake, length)) / length, 1, 1e-6);
  }
}

}  // namespace
}  // namespace veldox
