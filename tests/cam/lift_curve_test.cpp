#include "cam/lift_curve.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "cam/lift_file.h"

namespace veldox {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

TEST(Lobe, OfASymmetricShapeHasItsNoseOnce) {
  const LobeSize size{150, 150, 2};
  const LiftCurve curve = LobeOf(size, kPolynomial5, 0.5);
  ASSERT_EQ(curve.lifts.size(), 150U);  // 2 * 150 / 2
  EXPECT_EQ(RecordCount(size), 150);
  EXPECT_EQ(curve.nose, 75U);
  EXPECT_DOUBLE_EQ(curve.lifts[75], 0.5);
  EXPECT_EQ(std::ranges::count_if(curve.lifts, [](double lift) { return lift > 0.49999; }), 1);
  EXPECT_EQ(curve.lifts.front(), 0);
  EXPECT_GT(curve.lifts.back(), 0);  // the closing zero is the reader's
  for (std::size_t i = 1; i < 75; ++i) {
    EXPECT_NEAR(curve.lifts[75 - i], curve.lifts[75 + i], 1e-15) << i;
  }
}

TEST(Lobe, WhoseStepMissesTheNoseHasNoRecordOfFullLift) {
  const LobeSize size{150, 150, 4};
  const LiftCurve curve = LobeOf(size, kPolynomial5, 0.5);
  // 0, 4 .. 148 up, and from 146 down to 2.
  ASSERT_EQ(curve.lifts.size(), 38U + 37U);
  EXPECT_EQ(RecordCount(size), 75);
  EXPECT_LT(*std::ranges::max_element(curve.lifts), 0.5);
  EXPECT_NEAR(curve.lifts[curve.nose], 0.5 * kPolynomial5.lift(148.0 / 150), 1e-15);
  EXPECT_NEAR(curve.lifts[curve.nose + 1], 0.5 * kPolynomial5.lift(146.0 / 150), 1e-15);
  EXPECT_NEAR(curve.lifts.back(), 0.5 * kPolynomial5.lift(2.0 / 150), 1e-15);
}

TEST(Lobe, MayCloseSlowerThanItOpens) {
  const LiftCurve curve = LobeOf({150, 185, 1}, kHarmonic, 0.4);
  ASSERT_EQ(curve.lifts.size(), 151U + 184U);
  EXPECT_NEAR(curve.lifts[75], 0.2, 1e-12);
  EXPECT_NEAR(curve.lifts[150], 0.4, 1e-12);
  // Half of the lift is 92.5 degrees behind the nose.
  EXPECT_NEAR((curve.lifts[150 + 92] + curve.lifts[150 + 93]) / 2, 0.2, 1e-12);
}

TEST(Lobe, OfTheLawOverTheWholeDurationMeetsItsNoseOnBothFlanks) {
  const LiftCurve curve = LobeOf({150, 185, 5}, kPolynomial3456, 0.5);
  EXPECT_DOUBLE_EQ(curve.lifts[30], 0.5);
  EXPECT_NEAR(curve.lifts[31], 0.5 * kPolynomial3456.lift(180.0 / 370), 1e-15);
  EXPECT_GT(curve.lifts[31], 0.49);
}

TEST(Lobe, CountsStepsWhoseMultiplesAreNotExact) {
  for (const double step : {0.1, 0.3, 0.7, 1.1}) {
    const double half = 33 * step * 7;  // 231 steps, but for the last digits
    EXPECT_EQ(WholeSteps(half, step), 231) << step;
    const LiftCurve curve = LobeOf({half, half, step}, kCycloidal, 1);
    EXPECT_EQ(curve.lifts.size(), 462U) << step;
    EXPECT_NEAR(curve.lifts[curve.nose], 1, 1e-12) << step;
  }
}

/// A lobe as its file gives it back.
std::vector<double> WrittenAndRead(const LiftCurve& curve, const std::string& step) {
  const std::string text = CmmText({"", step, curve.lifts, {}}, DecimalMark::Point);
  const auto file = ParseLiftFile(text, "lobe.cmm", DecimalMark::Point);
  EXPECT_TRUE(file.has_value());
  return file ? file->intake.lifts : std::vector<double>{};
}

TEST(Lobe, ReadBackHasTheDerivativeOfItsLaw) {
  constexpr double kLift = 0.36;
  constexpr double kHalf = 150;
  const std::vector<double> lifts =
      WrittenAndRead(LobeOf({kHalf, kHalf, 1}, kCycloidal, kLift), "1");
  ASSERT_EQ(lifts.size(), 302U);  // the start, 300 records and the closing zero
  const double peak = 2 * kLift / kHalf;
  for (int record = 2; record <= 151; ++record) {
    const auto i = static_cast<std::size_t>(record);
    // Record 1 is at 0 degrees; the difference stands half a step before its record.
    const double x = (record - 1.5) / kHalf;
    const double velocity = kLift / kHalf * (1 - std::cos(2 * std::acos(-1.0) * x));
    EXPECT_NEAR(lifts[i] - lifts[i - 1], velocity, 1e-4 * peak) << record;
  }
  // The differences add up to the lift between any two records.
  double sum = 0;
  for (std::size_t i = 1; i <= 151; ++i) sum += lifts[i] - lifts[i - 1];
  EXPECT_NEAR(sum, lifts[151] - lifts[0], 1e-12);
}

TEST(Lobe, OfEveryLawIsReadBackToEightDecimals) {
  for (const MotionLaw* law :
       {&kPolynomial3, &kPolynomial5, &kPolynomial5N1, &kPolynomial5N2, &kPolynomial7,
        &kPolynomial9, &kPolynomial11, &kPolynomial11Dwell, &kPolynomial345, &kPolynomial3456,
        &kPolynomial34567D, &kPolynomial34567E, &kDoubleHarmonic1, &kDoubleHarmonic2, &kHarmonic,
        &kCycloidal}) {
    const LiftCurve curve = LobeOf({120, 140, 0.5}, *law, 0.431);
    const std::vector<double> lifts = WrittenAndRead(curve, "0.5");
    ASSERT_EQ(lifts.size(), curve.lifts.size() + 2) << law->name;
    for (std::size_t i = 0; i < curve.lifts.size(); ++i) {
      EXPECT_NEAR(lifts[i + 1], curve.lifts[i], 5.001e-9) << law->name << ' ' << i;
    }
    EXPECT_EQ(lifts.back(), 0);
  }
}

TEST(PeakVelocity, IsTheSteepestDifferenceByDegree) {
  const LiftCurve curve = LobeOf({150, 150, 0.5}, kCycloidal, 0.36);
  EXPECT_NEAR(PeakVelocity(curve, 0.5), 2 * 0.36 / 150, 1e-6);
  // A lobe of one record falls back to the base circle in the next step.
  EXPECT_DOUBLE_EQ(PeakVelocity({{0.1, 0.4}, 1}, 2), 0.2);
  EXPECT_DOUBLE_EQ(LobeArea({{0, 0.1, 0.4}, 2}, 2), 1.0);
}

// The contact of a flat tappet lies as far from its middle as the lift rises by radian.
TEST(FlatTappet, KeepsItsContactInsideTheEdge) {
  EXPECT_NEAR(MaxTappetVelocity(0.842), 0.411 / 57.29578, 1e-9);
  EXPECT_NEAR(MaxTappetVelocity(0.842), 0.0071733, 5e-8);
  for (const double diameter : {0.842, 0.904, 1.4}) {
    EXPECT_NEAR(MinTappetDiameter(MaxTappetVelocity(diameter)), diameter, 1e-12);
  }
  // A lobe that is slower stays 0.01 inch inside: its steepest contact is at v * 180 / pi.
  const double fastest = MaxTappetVelocity(0.842);
  const LiftCurve curve = LobeOf({75, 75, 0.25}, kCycloidal, 0.26);
  const double velocity = PeakVelocity(curve, 0.25);
  EXPECT_LT(velocity, fastest);
  EXPECT_LT(velocity * 180 / std::acos(-1.0), 0.842 / 2 - 0.01);
}

TEST(LashRamp, RisesByThePowerOfItsStyle) {
  // .012 high over 8 degrees: (d / 8) ^ n.
  EXPECT_THAT(LashRamp(0.012, 8, 2, 1),
              ElementsAre(0, DoubleNear(0.003, 1e-15), DoubleNear(0.006, 1e-15),
                          DoubleNear(0.009, 1e-15), DoubleNear(0.012, 1e-15)));
  EXPECT_THAT(LashRamp(0.064, 8, 2, 3),
              ElementsAre(0, DoubleNear(0.001, 1e-15), DoubleNear(0.008, 1e-15),
                          DoubleNear(0.027, 1e-15), DoubleNear(0.064, 1e-15)));
  EXPECT_EQ(LashRamp(0.01, 7, 2, 2).size(), 4U);  // 0, 2, 4, 6
}

TEST(LashRamp, ByRateAddsUpItsPowers) {
  // Rate .003, step 2: each record adds d ^ (n - 1) * .001.
  EXPECT_THAT(LashRampByRate(0.003, 6, 2, 1),
              ElementsAre(DoubleNear(0.001, 1e-15), DoubleNear(0.002, 1e-15),
                          DoubleNear(0.003, 1e-15), DoubleNear(0.004, 1e-15)));
  EXPECT_THAT(
      LashRampByRate(0.003, 6, 2, 2),
      ElementsAre(0, DoubleNear(0.002, 1e-15), DoubleNear(0.006, 1e-15), DoubleNear(0.012, 1e-15)));
  EXPECT_THAT(
      LashRampByRate(0.003, 6, 2, 4),
      ElementsAre(0, DoubleNear(0.008, 1e-15), DoubleNear(0.072, 1e-15), DoubleNear(0.288, 1e-15)));
}

}  // namespace
}  // namespace veldox
