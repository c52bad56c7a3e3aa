#include "engine/cranking_pressure.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "core/error.h"
#include "core/numbers.h"
#include "core/units.h"

namespace veldox {
namespace {

/// A cylinder of 4 by 3.25 inches on a rod of 5.7.
constexpr CylinderSize kV8{4, 3.25, 5.7, 0};

TEST(VaporPressures, AgreeWithASteamTable) {
  // Saturated water vapor in psi: 0.1780 at 50 degrees Fahrenheit, 0.5068 at 80, 0.9492 at 100.
  const auto psi = [](double fahrenheit) {
    return VaporPressuresAt(CelsiusOf(fahrenheit), 100).actual * kPsiPerInchMercury;
  };
  EXPECT_NEAR(psi(50), 0.1780, 0.001);
  EXPECT_NEAR(psi(80), 0.5068, 0.002);
  EXPECT_NEAR(psi(100), 0.9492, 0.003);
  const VaporPressures half = VaporPressuresAt(20, 50);
  EXPECT_DOUBLE_EQ(half.actual, half.saturated / 2);
}

TEST(VaporPressures, LeaveATraceInDryAir) {
  const VaporPressures dry = VaporPressuresAt(0, 0);
  EXPECT_DOUBLE_EQ(dry.saturated, 6.112 / 33.8653);
  EXPECT_GT(dry.actual, 0);
  EXPECT_LT(dry.actual, 1e-33);
}

TEST(Temperatures, MeetAtTheirFixedPoints) {
  EXPECT_DOUBLE_EQ(CelsiusOf(32), 0);
  EXPECT_DOUBLE_EQ(CelsiusOf(212), 100);
  EXPECT_DOUBLE_EQ(FahrenheitOf(-40), -40);
  EXPECT_DOUBLE_EQ(FahrenheitOf(CelsiusOf(77)), 77);
}

TEST(ClosedCylinder, SweepsTheWholeStrokeAtTheBottom) {
  const ClosedCylinder cylinder = ClosedCylinderAt(kV8, 0);
  EXPECT_NEAR(cylinder.dynamicStroke, 3.25, 1e-12);
  EXPECT_NEAR(cylinder.actualStroke, 3.25, 1e-12);
  EXPECT_DOUBLE_EQ(cylinder.pistonArea, 4 * kPi);
  // 4 pi x 3.25 cubic inches
  EXPECT_NEAR(cylinder.sweptCc, 13 * kPi / 0.061023744, 1e-9);
  EXPECT_NEAR(cylinder.closedCc, cylinder.sweptCc, 1e-9);
}

TEST(ClosedCylinder, StandsWhereThePinPutsThePistonAtASquareCrank) {
  // 90 degrees past the bottom the pin is level with the axis: r + L - sqrt(L^2 - r^2) from top.
  const double height = std::sqrt(5.7 * 5.7 - 1.625 * 1.625);
  EXPECT_NEAR(ClosedCylinderAt(kV8, 90).dynamicStroke, 1.625 + 5.7 - height, 1e-12);
  EXPECT_NEAR(CylinderAfterTop(kV8, 90).dynamicStroke, 1.625 + 5.7 - height, 1e-12);
}

TEST(ClosedCylinder, HasItsLongestStrokeAtTheBottomWithAnOffset) {
  const CylinderSize size{4, 3.25, 5.7, 0.2};
  const ClosedCylinder bottom = ClosedCylinderAt(size, 0);
  EXPECT_GT(bottom.actualStroke, 3.25);
  EXPECT_NEAR(bottom.dynamicStroke, bottom.actualStroke, 1e-12);
  EXPECT_LT(ClosedCylinderAt(size, 1).dynamicStroke, bottom.dynamicStroke);
  EXPECT_LT(ClosedCylinderAt(size, -1).dynamicStroke, bottom.dynamicStroke);
}

TEST(CrankingPressure, IsThePressureOutsideWithoutCompression) {
  EXPECT_DOUBLE_EQ(CrankingPressure(1, 14.7, DosRule::Off), 14.7);
  EXPECT_DOUBLE_EQ(CrankingPressure(1, 14.7, DosRule::On), 0);
}

TEST(CrankingPressure, RisesByThePolytropicLaw) {
  // ln(p / base) = 1.29 ln(8) = 2.682468...
  EXPECT_NEAR(std::log(CrankingPressure(8, 14.7, DosRule::Off) / 14.7), 1.29 * 2.0794415416798,
              1e-12);
  EXPECT_DOUBLE_EQ(CrankingPressure(8, 14.7, DosRule::On),
                   CrankingPressure(8, 14.7, DosRule::Off) - 14.7);
}

TEST(CompressionRatio, IsSolvedFromTheReadingThatItGives) {
  std::mt19937 random(12);
  std::uniform_real_distribution<double> bores(1.5, 5), ratios(6, 15), closings(10, 110),
      bases(10, 16), offsets(-0.1, 0.1);
  for (int i = 0; i < 1000; ++i) {
    const CylinderSize size{bores(random), bores(random), 9, offsets(random)};
    const double ratio = ratios(random), base = bases(random);
    const ClosedCylinder cylinder = ClosedCylinderAt(size, closings(random));
    const double clearance = cylinder.sweptCc / (ratio - 1);
    const double dynamic = (clearance + cylinder.closedCc) / clearance;
    for (const DosRule rule : {DosRule::Off, DosRule::On}) {
      const double reading = CrankingPressure(dynamic, base, rule);
      EXPECT_NEAR(CompressionRatioForPressure(reading, base, rule, cylinder), ratio, 1e-9);
    }
    EXPECT_NEAR(CompressionRatioForDynamicRatio(dynamic, cylinder), ratio, 1e-9);
  }
}

TEST(IntakeClose, IsSolvedFromTheDynamicRatioWithAndWithoutOffset) {
  std::mt19937 random(13);
  std::uniform_real_distribution<double> strokes(1.5, 5), closings(1, 140), offsets(-0.15, 0.15);
  for (int i = 0; i < 500; ++i) {
    const double closing = closings(random);
    const CylinderSize size{4, strokes(random), 8, i % 2 == 0 ? 0 : offsets(random)};
    const ClosedCylinder cylinder = ClosedCylinderAt(size, closing);
    const double dynamic = 1 + 11 * cylinder.dynamicStroke / cylinder.actualStroke;
    const double found = IntakeCloseForDynamicRatio(size, 12, dynamic);
    EXPECT_NEAR(found, closing, 2e-6) << size.stroke << ' ' << size.offset;
  }
}

TEST(IntakeClose, EndsCloseToTheBottom) {
  // Steps of ten degrees pass over the bottom, from where the piston rises again.
  const CylinderSize size{4, 3.25, 5.7, 0.2};
  const double found = IntakeCloseForDynamicRatio(size, 10, 9.9999999999);
  EXPECT_GE(found, -1e-6);
  EXPECT_LT(found, 0.01);
}

TEST(IntakeClose, NeedsADynamicRatioBetweenOneAndTheRatio) {
  EXPECT_THROW(IntakeCloseForDynamicRatio(kV8, 10, 10), CommandError);
  EXPECT_THROW(IntakeCloseForDynamicRatio(kV8, 10, 0.9), CommandError);
  EXPECT_NEAR(IntakeCloseForDynamicRatio(kV8, 10, 1), 180, 1e-5);
}

TEST(IntakeClose, IsSolvedFromTheReading) {
  std::mt19937 random(14);
  std::uniform_real_distribution<double> strokes(1.5, 5), closings(1, 140);
  for (int i = 0; i < 500; ++i) {
    const double closing = closings(random);
    const CylinderSize size{4, strokes(random), 8, 0};
    const ClosedCylinder cylinder = ClosedCylinderAt(size, closing);
    const double clearance = cylinder.sweptCc / 9;
    for (const DosRule rule : {DosRule::Off, DosRule::On}) {
      const double reading =
          CrankingPressure((clearance + cylinder.closedCc) / clearance, 14.7, rule);
      const double travel = TravelForCrankingPressure(size, 10, reading, 14.7, rule);
      EXPECT_GE(travel, cylinder.dynamicStroke - 1e-9);
      EXPECT_LE(travel, cylinder.dynamicStroke + 1.1e-5);
      EXPECT_NEAR(IntakeCloseForTravel(size.stroke, size.rodLength, travel), closing, 0.05);
    }
  }
}

TEST(IntakeClose, IsNotLookedForOutOfReach) {
  EXPECT_THROW(TravelForCrankingPressure(kV8, 10, 14.7, 14.7, DosRule::Off), CommandError);
  EXPECT_THROW(TravelForCrankingPressure(kV8, 10, 0, 14.7, DosRule::On), CommandError);
  EXPECT_THROW(TravelForCrankingPressure(kV8, 10, 5000, 14.7, DosRule::Off), CommandError);
  EXPECT_THROW(TravelForCrankingPressure(kV8, 1, 150, 14.7, DosRule::Off), CommandError);
  EXPECT_THROW(TravelForCrankingPressure(kV8, 10, 150, -1, DosRule::Off), CommandError);
  EXPECT_THROW(TravelForCrankingPressure(kV8, 10, std::nan(""), 14.7, DosRule::Off), CommandError);
}

TEST(OffsetForTopAngle, PutsTheTopThere) {
  const double offset = OffsetForTopAngle(10, 3.25, 5.7);
  EXPECT_NEAR(offset, 7.325 * std::sin(10 * std::acos(-1) / 180), 1e-14);
  // The piston of an engine with the offset to the other side stands at its top at 10 degrees.
  EXPECT_NEAR(TopDeadCentre({1.625, 5.7, -offset}), 10, 1e-9);
}

TEST(EstimatedOctane, IsNinetyThreeAtItsReference) {
  EXPECT_DOUBLE_EQ(EstimatedOctane(185, 120, 170), 93);
  // 10 psi more, 20 degrees warmer air and 10 degrees cooler water: 2 + 2 - 1
  EXPECT_DOUBLE_EQ(EstimatedOctane(195, 140, 160), 96);
}

TEST(PressureCurve, StartsWithTheReading) {
  const auto points = PressureCurve({kV8, 10, 12.5, 700, 1.3});
  EXPECT_DOUBLE_EQ(points.front().degrees, 12.5);
  EXPECT_DOUBLE_EQ(points.front().pressure, 700);
  EXPECT_DOUBLE_EQ(points[1].degrees, 13);
  EXPECT_DOUBLE_EQ(points.back().degrees, 180);
  EXPECT_EQ(points.size(), 336U);
}

TEST(PressureCurve, DoesTheWorkOfAPolytropicExpansion) {
  // From top to bottom: W = p1 V1 (1 - ratio^(1 - k)) / (k - 1), and p1 V1 ln(ratio) for k = 1.
  const double ratio = 10, p1 = 1000;
  const double swept = 13 * kPi;
  const double v1 = swept / (ratio - 1);
  for (const double k : {1.0, 1.3, 1.5}) {
    const auto points = PressureCurve({kV8, ratio, 0, p1, k});
    double work = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
      const auto volume = [](double degrees) {
        return 4 * kPi * CylinderAfterTop(kV8, degrees).dynamicStroke;
      };
      work += (points[i].pressure + points[i - 1].pressure) / 2 *
              (volume(points[i].degrees) - volume(points[i - 1].degrees));
    }
    const double exact =
        k == 1 ? p1 * v1 * std::log(ratio) : p1 * v1 * (1 - std::pow(ratio, 1 - k)) / (k - 1);
    EXPECT_NEAR(work / exact, 1, 2e-4) << k;
    EXPECT_NEAR(points.back().pressure, p1 * std::pow(ratio, -k), 1e-9 * p1);
  }
}

TEST(TurningForce, IsPressureTimesAreaTimesArmAtASquareCrank) {
  // At 90 degrees: sin(90 - rod) cos(rod) = cos^2(rod) = 1 - (r / L)^2.
  const double lean = 1.625 / 5.7;
  EXPECT_NEAR(TurningForce(kV8, 100, 90, 12), 100 * 4 * kPi * (1 - lean * lean) * 1.625 / 12, 1e-9);
  EXPECT_NEAR(TurningForceByRatio(kV8, 100, 90, 12), 100 * 4 * kPi * 1.625 / 12, 1e-9);
  EXPECT_NEAR(TurningForce(kV8, 100, 0, 12), 0, 1e-9);
  EXPECT_NEAR(TurningForce(kV8, 100, 180, 12), 0, 1e-9);
}

TEST(TurningForce, ByRatioIsTheWorkRateOfTheTravelOnALongRod) {
  // Torque is pressure times area times the travel's derivative by the angle.
  const CylinderSize size{4, 3.25, 60, 0};
  for (const double degrees : {20.0, 60.0, 100.0, 150.0}) {
    const double h = 1e-3;
    const double slope = (CylinderAfterTop(size, degrees + h).dynamicStroke -
                          CylinderAfterTop(size, degrees - h).dynamicStroke) /
                         (2 * h * std::acos(-1) / 180);
    EXPECT_NEAR(TurningForceByRatio(size, 100, degrees, 12), 100 * 4 * kPi * slope / 12, 0.01);
  }
}

TEST(LargestTurningForcePart, GoesByStepsOfTheAngle) {
  EXPECT_DOUBLE_EQ(LargestTurningForcePart(75), 1.11);
  EXPECT_DOUBLE_EQ(LargestTurningForcePart(60), 1.11);
  EXPECT_DOUBLE_EQ(LargestTurningForcePart(59.99), 1.08);
  EXPECT_DOUBLE_EQ(LargestTurningForcePart(30), 0.76);
  EXPECT_DOUBLE_EQ(LargestTurningForcePart(10), 0.40);
  EXPECT_DOUBLE_EQ(LargestTurningForcePart(9.99), 0.36);
}

}  // namespace
}  // namespace veldox
