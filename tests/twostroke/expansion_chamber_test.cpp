#include "twostroke/expansion_chamber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "core/numbers.h"
#include "twostroke/mean_pressure.h"

namespace veldox {
namespace {

TEST(SpeedOfSound, IsThatOfTables) {
  // Dry air has 346.1 to 346.3 m/s at 25 C, and a ratio of heats of 1.4 with R = 287 J/(kg K).
  EXPECT_NEAR(SpeedOfSound(25) / 346.2, 1, 1e-3);
  EXPECT_NEAR(SpeedOfSound(25), std::sqrt(1.4 * 287 * 298.15), 1e-9);
  // sqrt(655.006 x 401.8)
  EXPECT_NEAR(SpeedOfSound(381.856), 513.012096, 1e-6);
  EXPECT_EQ(SpeedOfSound(-273.15), 0);
  EXPECT_TRUE(std::isnan(SpeedOfSound(-273.16)));
}

TEST(GasTemperature, FollowsTheMeanPressure) {
  // exp(4.180722 x 0.0485) x 534.67 - 273.15: e^0.202765 = 1.2247846
  EXPECT_NEAR(ExhaustGasTemperature(4.180722), 381.7056, 2e-4);
  EXPECT_NEAR(ExhaustGasTemperature(0), 261.52, 1e-9);
}

TEST(TunedLength, IsThePublishedRule) {
  // G. P. Blair, A. G. Bell: 83.3 x duration x m/s / RPM in millimetres.
  for (const double duration : {125.5, 180.0, 200.0}) {
    EXPECT_NEAR(TunedLength(518.15, duration, 11000) / (83.3 * duration * 518.15 / 11000), 1, 1e-3);
  }
  // 518.15 x 1000 x 125.5 / 132000
  EXPECT_NEAR(TunedLength(518.15, 125.5, 11000), 492.63503787878785, 1e-9);
  EXPECT_FALSE(std::isfinite(TunedLength(518.15, 125.5, 0)));
}

TEST(Chambers, OfStagesAddUpToTheTunedLength) {
  // Published divisions: header 10 %, 27.5, 18.3, 9.2, 11 and 24 %, or 41, 14, 11 and 24 %.
  EXPECT_DOUBLE_EQ(std::accumulate(std::begin(kTwoStageDiffusers), std::end(kTwoStageDiffusers),
                                   kHeaderPart + kBellyPart + kBafflePart),
                   1);
  EXPECT_DOUBLE_EQ(std::accumulate(std::begin(kThreeStageDiffusers), std::end(kThreeStageDiffusers),
                                   kHeaderPart + kBellyPart + kBafflePart),
                   1);
}

TEST(Diameters, AreOfThePortAndItsMultiples) {
  // sqrt(19.5 x 9.25 x 4 / pi): a circle of 180.375 square millimetres
  const double header = HeaderDiameter(19.5, 9.25);
  EXPECT_NEAR(header * header * kPi / 4, 180.375, 1e-10);
  EXPECT_NEAR(header, 15.15455, 1e-5);
  // (0.41 / 0.55)^1.33 of the belly
  EXPECT_NEAR(DiameterBetweenCones(0.41 / 0.55, 34.09775), 23.0699, 1e-4);
}

TEST(Horn, GrowsFromStartToEnd) {
  const double growth = std::log(2.0);
  for (const double coefficient : {1.0, 1.5, 2.0}) {
    EXPECT_DOUBLE_EQ(HornDiameter(17, 0, coefficient, growth), 17);
    EXPECT_DOUBLE_EQ(HornDiameter(17, 1, coefficient, growth), 34);
  }
  // Of a plain exponential horn the diameter halfway is the geometric mean.
  EXPECT_NEAR(HornDiameter(17, 0.5, 1, growth), std::sqrt(17.0 * 34), 1e-12);
  // 17 x 2^(0.5^2)
  EXPECT_NEAR(HornDiameter(17, 0.5, 2, growth), 17 * std::sqrt(std::sqrt(2.0)), 1e-12);
}

TEST(Cones, HaveTheirAngle) {
  // At 45 degrees a cone is as long as it widens on each side.
  EXPECT_NEAR(ConeLength(20, 50, 45), 15, 1e-12);
  EXPECT_NEAR(ConeLength(0, 42.62219, 17), 69.70545, 1e-4);
  EXPECT_LT(ConeLength(50, 20, 17), 0);
  EXPECT_FALSE(std::isfinite(ConeLength(20, 50, 0)));
}

Chamber Simple(double belly) {
  return {{{"L1", "Header", 100, 20, 20},
           {"L2", "Diffuser", 200, 20, 60},
           {"L3", "Belly", belly, 60, 60},
           {"L4", "Baffle", 100, 60, 10}},
          {{{"LT", 0, 380}}},
          {{"D1", 1}, {"D2", 2, true}}};
}

const SketchName* NameOf(const Sketch& sketch, std::string_view text) {
  for (const SketchName& name : sketch.names) {
    if (name.text == text) return &name;
  }
  return nullptr;
}

TEST(ChamberSketch, IsToScaleWithTheNamesOfItsRows) {
  const Sketch sketch = SketchOf(Simple(50));
  EXPECT_EQ(sketch.width, 450);
  EXPECT_EQ(sketch.height, 60);
  // The upper side of the diffuser.
  EXPECT_TRUE(std::any_of(sketch.lines.begin(), sketch.lines.end(), [](const SketchLine& line) {
    return line.stroke == SketchStroke::Outline && line.from.x == 100 && line.from.y == 20 &&
           line.to.x == 300 && line.to.y == 0;
  }));
  ASSERT_NE(NameOf(sketch, "L3"), nullptr);
  EXPECT_EQ(NameOf(sketch, "L3")->top.x, 325);
  ASSERT_NE(NameOf(sketch, "LT"), nullptr);
  EXPECT_EQ(NameOf(sketch, "LT")->top.x, 190);
  EXPECT_EQ(NameOf(sketch, "D1")->top.x, 100);
  EXPECT_EQ(NameOf(sketch, "D2")->top.x, 325);
}

TEST(ChamberSketch, LeavesNegativeSectionsOut) {
  const Sketch sketch = SketchOf(Simple(-20));
  EXPECT_EQ(sketch.width, 400);
  EXPECT_EQ(NameOf(sketch, "L3"), nullptr);
  EXPECT_EQ(NameOf(sketch, "D2"), nullptr);
  ASSERT_NE(NameOf(sketch, "L4"), nullptr);
  EXPECT_EQ(NameOf(sketch, "L4")->top.x, 350);
}

TEST(ChamberSketch, OfNothingIsEmpty) {
  EXPECT_TRUE(SketchOf({}).Empty());
  EXPECT_TRUE(SketchOf({{{"L1", "Header", 100, 0, 0}}, {}, {}}).Empty());
  EXPECT_TRUE(SketchOf({{{"L1", "Header", -1, 20, 20}}, {}, {}}).Empty());
}

}  // namespace
}  // namespace veldox
