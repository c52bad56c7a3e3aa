#include "engine/displacement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/error.h"
#include "core/numbers.h"

namespace veldox {
namespace {

TEST(EngineSize, IsPistonAreaTimesStrokeTimesCylinders) {
  // 2 x 2 x pi x 3.25 x 8 = 104 pi
  EXPECT_DOUBLE_EQ(EngineSize(4.0, 3.25, 8), 104 * kPi);
}

TEST(EngineSize, AgreesWithPublishedEngines) {
  // Bore, stroke, cylinders and the size their makers give, to the last digit given.
  EXPECT_NEAR(EngineSize(4.000, 3.480, 8), 350, 0.5);         // small-block 350 V8, cu in
  EXPECT_NEAR(EngineSize(4.250, 3.760, 8), 427, 0.5);         // big-block 427 V8, cu in
  EXPECT_NEAR(EngineSize(86.0, 86.0, 4) / 1000, 1998, 0.5);   // square two litre four, cc
  EXPECT_NEAR(EngineSize(67.0, 42.5, 4) / 1000, 599, 0.5);    // 600 motorcycle four, cc
  EXPECT_NEAR(EngineSize(81.0, 77.4, 4) / 1000, 1595, 0.5);   // 1.6 litre four, cc
  EXPECT_NEAR(EngineSize(102.0, 76.4, 6) / 1000, 3746, 0.5);  // 3.8 litre flat six, cc
}

TEST(EngineSize, IsSolvedForBoreAndForStroke) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> size(0.5, 8);
  for (int i = 0; i < 1000; ++i) {
    const double bore = size(random), stroke = size(random);
    const double cylinders = 1 + i % 16;
    const double volume = EngineSize(bore, stroke, cylinders);
    EXPECT_NEAR(BoreForEngineSize(volume, stroke, cylinders), bore, 1e-12 * bore);
    EXPECT_NEAR(StrokeForEngineSize(volume, bore, cylinders), stroke, 1e-12 * stroke);
  }
}

TEST(BoreAndStrokeByDigits, TruncatesAtAMillionth) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> volumes(1, 200), ratios(0.6, 1.6);
  for (int i = 0; i < 300; ++i) {
    const double volume = volumes(random), ratio = ratios(random);
    const BoreAndStroke found = BoreAndStrokeByDigits(volume, ratio);
    // In closed form the bore is the cube root of 4 V ratio / pi.
    const double exact = std::cbrt(4 * volume * ratio / kPi);
    EXPECT_LE(found.bore, exact + 1e-9);
    EXPECT_GT(found.bore, exact - 1.1e-6);
    EXPECT_DOUBLE_EQ(found.stroke, found.bore / ratio);
  }
}

TEST(BoreAndStrokeByDigits, StaysOneStepUnderASizeThatIsExact) {
  // A cylinder of bore 4 and ratio 1 has the volume 16 pi: the walk meets it, and goes back.
  const BoreAndStroke found = BoreAndStrokeByDigits(16 * kPi - 1e-9, 1);
  EXPECT_NEAR(found.bore, 3.999999, 1e-9);
}

TEST(BoreAndStrokeByDigits, RefusesWhatItCannotSearch) {
  EXPECT_THROW(BoreAndStrokeByDigits(50, 0), CommandError);
  EXPECT_THROW(BoreAndStrokeByDigits(50, -1), CommandError);
  EXPECT_THROW(BoreAndStrokeByDigits(-50, 1), CommandError);
  EXPECT_THROW(BoreAndStrokeByDigits(1e100, 1), CommandError);
  EXPECT_THROW(BoreAndStrokeByDigits(std::nan(""), 1), CommandError);
}

TEST(BoreAndStrokeForStrokeBoreRatio, GivesTheVolumeBack) {
  const BoreAndStroke found = BoreAndStrokeForStrokeBoreRatio(44.18, 0.87);
  EXPECT_NEAR(EngineSize(found.bore, found.stroke, 1), 44.18, 1e-12 * 44.18);
  EXPECT_NEAR(found.stroke / found.bore, 0.87, 1e-15);
}

TEST(MeanPistonSpeed, IsTwoStrokesARevolution) {
  // 3 inches at 4000 RPM: 6 inches a turn, 24000 inches a minute, 2000 feet a minute.
  EXPECT_DOUBLE_EQ(MeanPistonSpeed(3, 4000), 2000);
  EXPECT_DOUBLE_EQ(RpmForMeanPistonSpeed(2000, 3), 4000);
  EXPECT_DOUBLE_EQ(StrokeForMeanPistonSpeed(2000, 4000), 3);
}

TEST(DeckStack, AddsUp) {
  // Half of 3.48, rod 5.7, piston 1.56, clearance 0.025: the 9.025 inch deck of a small block.
  EXPECT_NEAR(BlockDeckHeight(3.48, 5.7, 1.56, 0.025), 9.025, 1e-12);
  EXPECT_NEAR(PistonCompressionHeight(9.025, 3.48, 5.7, 0.025), 1.56, 1e-12);
  EXPECT_NEAR(DeckClearance(9.025, 3.48, 5.7, 1.56), 0.025, 1e-12);
}

TEST(HorsepowerGain, IsTheGrowthOfPistonAreaOverTwoAndAHalf) {
  // (4.06 / 4)^2 - 1 = 0.030225; over 2.5 it is 0.01209; of 500 HP 6.045.
  EXPECT_NEAR(HorsepowerGain(500, 4, 0.06), 6.045, 1e-10);
}

TEST(JournalSpeed, IsTheCircumferenceTimesTurnsASecond) {
  // 2.5 inches at 7200 RPM: 2.5 pi inches a turn, 120 turns a second, 25 pi feet a second.
  EXPECT_NEAR(JournalSpeed(2.5, 7200), 25 * kPi, 1e-12);
}

TEST(CrankRodRightAngle, HasTheCrankAsTheShortSideOfTheTriangle) {
  EXPECT_NEAR(CrankRodRightAngle(2, 4), 45, 1e-12);
  // The rod of 1.732 stands to a crank of 1 as the sides of half an equilateral triangle.
  EXPECT_NEAR(CrankRodRightAngle(std::sqrt(3.0), 2), 60, 1e-10);
}

TEST(EqualSpeedCrankAngle, IsWhereThePistonMovesAsFastAsTheCrankPin) {
  for (const double rod : {3.0, 4.5, 5.7, 6.535, 9.0}) {
    const double crank = 1.75;
    const double angle = EqualSpeedCrankAngle(rod, 2 * crank) * kPi / 180;
    const auto position = [&](double t) {
      const double side = crank * std::sin(t);
      return crank * std::cos(t) + std::sqrt(rod * rod - side * side);
    };
    const double step = 1e-5;
    const double speed = (position(angle - step) - position(angle + step)) / (2 * step);
    EXPECT_NEAR(speed / crank, 1, 1e-8) << "rod " << rod;
  }
}

}  // namespace
}  // namespace veldox
