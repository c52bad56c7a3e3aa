#include "cam/cam_timing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace veldox {
namespace {

TEST(CamTiming, OfTheScreensOwnCam) {
  const CamEvents events{42.5, 95.5, 95.5, 40.5};
  const CamLobes lobes = LobesOf(events);
  EXPECT_EQ(lobes.intakeDuration, 318);
  EXPECT_EQ(lobes.exhaustDuration, 316);
  EXPECT_EQ(lobes.intakeCenterline, 116.5);
  EXPECT_EQ(lobes.exhaustCenterline, 117.5);
  const LobePhase phase = PhaseOf(lobes, events);
  EXPECT_EQ(phase.separation, 117);
  EXPECT_EQ(phase.advance, 0.5);
  EXPECT_EQ(phase.overlap, 83);
}

TEST(CamTiming, OfPublishedTimingDiagrams) {
  // A 20-60-60-20 cam has 260 degrees on either side.
  const CamEvents straight{20, 60, 60, 20};
  const CamLobes lobes = LobesOf(straight);
  EXPECT_EQ(lobes.intakeDuration, 260);
  EXPECT_EQ(lobes.exhaustDuration, 260);
  EXPECT_EQ(PhaseOf(lobes, straight).advance, 0);

  const CamEvents advanced = EventsOf(Advanced(lobes, 5));
  EXPECT_EQ(advanced.intakeOpen, 25);
  EXPECT_EQ(advanced.intakeClose, 55);
  EXPECT_EQ(advanced.exhaustOpen, 65);
  EXPECT_EQ(advanced.exhaustClose, 15);
  EXPECT_EQ(PhaseOf(Advanced(lobes, 5), advanced).advance, 5);
  EXPECT_EQ(PhaseOf(Advanced(lobes, 5), advanced).overlap, 40);

  const CamEvents retarded = EventsOf(Advanced(lobes, -5));
  EXPECT_EQ(retarded.intakeOpen, 15);
  EXPECT_EQ(retarded.intakeClose, 65);
  EXPECT_EQ(retarded.exhaustOpen, 55);
  EXPECT_EQ(retarded.exhaustClose, 25);

  // Opens 6 before the top and closes 42 after the bottom.
  const CamLobes small = LobesOf({6, 42, 0, 0});
  EXPECT_EQ(small.intakeDuration, 228);
  EXPECT_EQ(small.intakeCenterline, 108);

  // A cam on a separation of 112 whose intake stands at 110 is ground 2 degrees advanced.
  const CamLobes ground{228, 228, 110, ExhaustCenterlineFor(112, 110)};
  EXPECT_EQ(ground.exhaustCenterline, 114);
  EXPECT_EQ(PhaseOf(ground, EventsOf(ground)).separation, 112);
  EXPECT_EQ(PhaseOf(ground, EventsOf(ground)).advance, 2);
}

TEST(CamTiming, GoesBothWays) {
  std::mt19937 random(12);
  std::uniform_real_distribution<double> event(-30, 110);
  for (int i = 0; i < 1000; ++i) {
    const CamEvents events{event(random), event(random), event(random), event(random)};
    const CamEvents back = EventsOf(LobesOf(events));
    EXPECT_NEAR(back.intakeOpen, events.intakeOpen, 1e-12);
    EXPECT_NEAR(back.intakeClose, events.intakeClose, 1e-12);
    EXPECT_NEAR(back.exhaustOpen, events.exhaustOpen, 1e-12);
    EXPECT_NEAR(back.exhaustClose, events.exhaustClose, 1e-12);
    // Turning a cam leaves its durations and its separation.
    const CamLobes turned = Advanced(LobesOf(events), 7.25);
    const CamLobes again = LobesOf(EventsOf(turned));
    EXPECT_NEAR(again.intakeDuration, turned.intakeDuration, 1e-12);
    EXPECT_NEAR(again.exhaustCenterline, turned.exhaustCenterline, 1e-12);
    EXPECT_NEAR(PhaseOf(turned, EventsOf(turned)).separation,
                PhaseOf(LobesOf(events), events).separation, 1e-12);
  }
}

/// The rule point by point, as it is told.
double DurationPointByPoint(double ratio) {
  double points = ratio - 9;
  if (points <= 0) return 270 + points * 10;
  double add = 0;
  for (double rate = 10; points > 0; rate -= 0.5) {
    add += rate * std::min(points, 1.0);
    points = points > 1 ? points - 1 : 0;
  }
  return 270 + add;
}

TEST(CamDuration, ByCompressionRatio) {
  EXPECT_EQ(EstimateDurationFromRatio(9), 270);
  EXPECT_EQ(EstimateDurationFromRatio(10), 280);
  EXPECT_EQ(EstimateDurationFromRatio(10.5), 284.75);
  EXPECT_EQ(EstimateDurationFromRatio(8), 260);
  EXPECT_EQ(EstimateDurationFromRatio(8.5), 265);
  // 10 + 9.5 + 9 + 8.5 and half a point at 8
  EXPECT_EQ(EstimateDurationFromRatio(13.5), 311);
  for (double ratio = 5; ratio < 40; ratio += 0.13) {
    EXPECT_NEAR(EstimateDurationFromRatio(ratio), DurationPointByPoint(ratio), 1e-10) << ratio;
  }
  EXPECT_TRUE(std::isfinite(EstimateDurationFromRatio(1e9)));
}

TEST(CamDuration, ByEngineSizeAndSpeed) {
  // At 2500 RPM the size has no part: (270 + 225) / 2.
  EXPECT_EQ(EstimateDurationFromEngine(9, 350, 8, 2500), 247.5);
  EXPECT_EQ(EstimateDurationFromEngine(9, 100, 4, 2500), 247.5);
  // Cylinders of 500 cc are 4 x 30.511872 cubic inches: a degree for each 100 RPM.
  EXPECT_NEAR(EstimateDurationFromEngine(9, 4 * 30.511872, 4, 6500), (270 + 265) / 2.0, 1e-12);
  // Cylinders four times as large: two degrees.
  EXPECT_NEAR(EstimateDurationFromEngine(10.5, 16 * 30.511872, 4, 6500), (284.75 + 305) / 2, 1e-12);
  EXPECT_FALSE(std::isfinite(EstimateDurationFromEngine(9, 350, 0, 6500)));
}

}  // namespace
}  // namespace veldox
