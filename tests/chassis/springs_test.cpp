#include "chassis/springs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/numbers.h"

namespace veldox {
namespace {

/// Spring steel as textbooks have it, pounds a square inch.
constexpr double kRigidity = 12e6;
constexpr double kElasticity = 30e6;

TEST(CoilSprings, OfHalfInchWire) {
  // 0.5^4 x 12e6 / (4^3 x 8 x 10) = 750000 / 5120
  EXPECT_DOUBLE_EQ(CoilSpringRate({0.5, 10, 4, kRigidity, 0}), 146.484375);
  EXPECT_DOUBLE_EQ(CoilWireDiameter({0, 10, 4, kRigidity, 146.484375}), 0.5);
  EXPECT_DOUBLE_EQ(CoilActiveCoils({0.5, 0, 4, kRigidity, 146.484375}), 10);
  EXPECT_DOUBLE_EQ(CoilDiameter({0.5, 10, 0, kRigidity, 146.484375}), 4);
  EXPECT_DOUBLE_EQ(CoilModulusOfRigidity({0.5, 10, 4, 0, 146.484375}), kRigidity);
  // The modulus that the rounded rate 146.48 gives: 146.48 x 5120 / 0.0625.
  EXPECT_NEAR(CoilModulusOfRigidity({0.5, 10, 4, 0, 146.48}), 11999641.6, 1e-6);
}

TEST(CoilSprings, KeepTheFractionOfACoil) {
  // 0.625^4 x 11.5e6 / (5.5^3 x 300 x 8) = 1754760.7421875 / 399300
  EXPECT_NEAR(CoilActiveCoils({0.625, 0, 5.5, 11.5e6, 300}), 4.394592392155022, 1e-12);
}

TEST(CoilSprings, AreMeasured) {
  EXPECT_DOUBLE_EQ(CoilOuterDiameter(0.5, 4), 4.5);
  EXPECT_DOUBLE_EQ(CoilInnerDiameter(0.5, 4), 3.5);
  EXPECT_DOUBLE_EQ(CoilSpringIndex(0.5, 4), 8);
  EXPECT_DOUBLE_EQ(CoilSolidHeight(0.5, 12), 6);
}

TEST(CoilSprings, AreSolvedBothWays) {
  std::mt19937 random(8);
  std::uniform_real_distribution<double> wire(0.05, 1), coils(2, 20), index(4, 15),
      modulus(5e6, 13e6);
  for (int i = 0; i < 1000; ++i) {
    CoilSpring spring{wire(random), coils(random), 0, modulus(random), 0};
    spring.coilDiameter = index(random) * spring.wireDiameter;
    spring.rate = CoilSpringRate(spring);
    const auto without = [&](double CoilSpring::*member) {
      CoilSpring unsolved = spring;
      unsolved.*member = -1;
      return unsolved;
    };
    EXPECT_NEAR(CoilWireDiameter(without(&CoilSpring::wireDiameter)) / spring.wireDiameter, 1,
                1e-13);
    EXPECT_NEAR(CoilActiveCoils(without(&CoilSpring::activeCoils)) / spring.activeCoils, 1, 1e-13);
    EXPECT_NEAR(CoilDiameter(without(&CoilSpring::coilDiameter)) / spring.coilDiameter, 1, 1e-13);
    EXPECT_NEAR(
        CoilModulusOfRigidity(without(&CoilSpring::modulusOfRigidity)) / spring.modulusOfRigidity,
        1, 1e-13);
  }
}

TEST(CoilSprings, NeedWireAndCoils) {
  EXPECT_FALSE(std::isfinite(CoilSpringRate({0.5, 0, 4, kRigidity, 0})));
  EXPECT_FALSE(std::isfinite(CoilSpringRate({0.5, 10, 0, kRigidity, 0})));
  EXPECT_FALSE(std::isfinite(CoilWireDiameter({0, 10, 4, 0, 100})));
  EXPECT_FALSE(std::isfinite(CoilActiveCoils({0.5, 0, 4, kRigidity, 0})));
  EXPECT_FALSE(std::isfinite(CoilDiameter({0.5, 10, 0, kRigidity, 0})));
  EXPECT_FALSE(std::isfinite(CoilModulusOfRigidity({0, 10, 4, 0, 100})));
  EXPECT_FALSE(std::isfinite(CoilSpringIndex(0, 4)));
}

TEST(TorsionBars, OfCars) {
  // 0.88^4 = 0.59969536; x 1178000 / (13.5^2 x 35.8 = 6524.55)
  EXPECT_NEAR(TorsionBarRate({0.88, 0, 35.8, 13.5, 1178000, 0}), 108.2743, 5e-5);
  // A hole of half the diameter takes a sixteenth.
  const double solid = TorsionBarRate({1, 0, 40, 12, 1178000, 0});
  EXPECT_NEAR(TorsionBarRate({1, 0.5, 40, 12, 1178000, 0}) / solid, 15.0 / 16, 1e-15);
}

TEST(TorsionBars, HaveTheModulusOfTheMechanicsOfMaterials) {
  // A bar twists by T L / (J G) with J = pi d^4 / 32, and moves its end by the arm times that:
  // the modulus is pi G / 32.
  const double twistOfOnePound = 13.5 * 35.8 / (kPi * std::pow(0.88, 4) / 32 * kRigidity);
  const double rate = 1 / (13.5 * twistOfOnePound);
  EXPECT_NEAR(kPi * kRigidity / 32, 1178097, 0.5);
  EXPECT_NEAR(TorsionBarRate({0.88, 0, 35.8, 13.5, 1178000, 0}) / rate, 1, 1e-4);
}

TEST(TorsionBars, AreSolvedBothWays) {
  std::mt19937 random(9);
  std::uniform_real_distribution<double> diameter(0.5, 2), hole(0, 0.95), length(20, 60),
      arm(8, 20);
  for (int i = 0; i < 1000; ++i) {
    TorsionBar bar{diameter(random), 0, length(random), arm(random), 1178000, 0};
    bar.intDiameter = hole(random) * bar.outDiameter;
    bar.rate = TorsionBarRate(bar);
    const double diameterMade = bar.outDiameter;
    bar.outDiameter = -1;
    EXPECT_NEAR(TorsionBarOutDiameter(bar) / diameterMade, 1, 1e-12);
  }
}

TEST(TorsionBars, RefuseWhatCannotBe) {
  EXPECT_FALSE(std::isfinite(TorsionBarRate({1, 0, 0, 12, 1178000, 0})));
  EXPECT_FALSE(std::isfinite(TorsionBarRate({1, 0, 40, 0, 1178000, 0})));
  EXPECT_FALSE(std::isfinite(TorsionBarRate({1, 1.1, 40, 12, 1178000, 0})));
  EXPECT_EQ(TorsionBarRate({1, 1, 40, 12, 1178000, 0}), 0);
  EXPECT_FALSE(std::isfinite(TorsionBarOutDiameter({0, 0, 40, 12, 0, 100})));
}

TEST(SwayBars, ByBothRules) {
  const SwayBar straight{0.875, 0, 40, 0, 9};
  // 500000 x 0.586181640625 / (81 x 16.976 = 1375.056)
  EXPECT_NEAR(SwayBarRate(straight, SwayBarRule::New), 213.148, 5e-4);
  EXPECT_EQ(SwayBarRate(straight, SwayBarRule::New), SwayBarRate(straight, SwayBarRule::Old));
  // With arms of 10 inches that bend: 1375.056 + 226.4 and + 22.64.
  const SwayBar bent{0.875, 0, 40, 10, 9};
  EXPECT_NEAR(SwayBarRate(bent, SwayBarRule::New), 293090.8203125 / 1601.456, 1e-9);
  EXPECT_NEAR(SwayBarRate(bent, SwayBarRule::Old), 293090.8203125 / 1397.696, 1e-9);
  // A tube of the same bar: 0.875^4 - 0.5^4 = 0.523681640625
  EXPECT_NEAR(SwayBarRate({0.875, 0.5, 40, 10, 9}, SwayBarRule::New), 261840.8203125 / 1601.456,
              1e-9);
}

TEST(SwayBars, ChangeByTheFourthPower) {
  EXPECT_DOUBLE_EQ(SwayBarChangePercent(1, 1), 0);
  EXPECT_DOUBLE_EQ(SwayBarChangePercent(1, 2), 1500);
  EXPECT_DOUBLE_EQ(SwayBarChangePercent(2, 1), -93.75);
  // 0.975^4 = 0.903687890625 over 0.586181640625
  EXPECT_NEAR(SwayBarChangePercent(0.875, 0.975), 54.165, 0.0005);
  // A solid bar's rates stand in the same proportion.
  const double changed = SwayBarRate({0.975, 0, 40, 0, 9}, SwayBarRule::New);
  EXPECT_NEAR(changed, 328.6, 0.05);
  EXPECT_NEAR(changed / SwayBarRate({0.875, 0, 40, 0, 9}, SwayBarRule::New),
              1 + SwayBarChangePercent(0.875, 0.975) / 100, 1e-13);
}

TEST(SwayBars, AreTorsionBarsWhereTheirArmsAreStiff) {
  // 500000 / 0.4244 is pi / 32 of the modulus of rigidity of steel.
  const double torsion = TorsionBarRate({0.875, 0, 40, 9, kPi * kRigidity / 32, 0});
  EXPECT_NEAR(SwayBarRate({0.875, 0, 40, 0, 9}, SwayBarRule::New) / torsion, 1, 1e-4);
}

TEST(SwayBars, RefuseWhatCannotBe) {
  EXPECT_FALSE(std::isfinite(SwayBarRate({1, 0, 40, 0, 0}, SwayBarRule::New)));
  EXPECT_FALSE(std::isfinite(SwayBarRate({1, 2, 40, 0, 9}, SwayBarRule::New)));
  EXPECT_FALSE(std::isfinite(SwayBarChangePercent(0, 1)));
}

TEST(LeafSprings, ByTheRuleOfThumb) {
  // (250 / 48)^3 = 141.2851; x 10 / 12
  EXPECT_NEAR(LeafSpringRate(48, 2, 0.25, 5), 117.7376, 5e-5);
  EXPECT_FALSE(std::isfinite(LeafSpringRate(0, 2, 0.25, 5)));
}

TEST(LeafSprings, AreNearTheBeam) {
  // A beam on two supports, loaded in the middle: 48 E I / L^3 with I = w t^3 / 12, and for leaves
  // that taper as a triangle two thirds of it: (8 / 3) E n w t^3 / L^3.
  const auto beam = [](double elasticity, double length, double width, double thickness,
                       double leafs) {
    const double inertia = leafs * width * std::pow(thickness, 3) / 12;
    return 48 * elasticity * inertia / std::pow(length, 3) * (2.0 / 3);
  };
  EXPECT_NEAR(LeafSpringRate(48, 2, 0.25, 5) / beam(31.25e6, 48, 2, 0.25, 5), 1, 1e-13);
  EXPECT_NEAR(LeafSpringRate(57, 2.5, 0.3, 4) / beam(kElasticity, 57, 2.5, 0.3, 4), 1.042, 0.0005);
}

}  // namespace
}  // namespace veldox
