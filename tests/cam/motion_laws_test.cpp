#include "cam/motion_laws.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

namespace veldox {
namespace {

/// A law over one flank, whatever it is measured by.
double LiftOf(const MotionLaw& law, double x) {
  return law.lift(law.span == LawSpan::Duration ? x / 2 : x);
}

struct Known {
  std::string constant;
  const MotionLaw& law;
  double at3Tenths;
  double at7Tenths;
};

/// Worked out apart from the program, the polynomials in fractions.
const Known kKnown[] = {
    {"kPolynomial3", kPolynomial3, 0.216, 0.784},
    {"kPolynomial5", kPolynomial5, 0.16308, 0.83692},
    {"kPolynomial5N1", kPolynomial5N1, 0.11898, 0.73402},
    {"kPolynomial5N2", kPolynomial5N2, 0.26598, 0.88102},
    {"kPolynomial7", kPolynomial7, 0.126036, 0.873964},
    {"kPolynomial9", kPolynomial9, 0.09880866, 0.90119134},
    {"kPolynomial11", kPolynomial11, 0.1331151084, 0.8668848916},
    {"kPolynomial11Dwell", kPolynomial11Dwell, 0.15827317056, 0.84172682944},
    {"kPolynomial345", kPolynomial345, 0.11898, 0.73402},
    {"kPolynomial3456", kPolynomial3456, 0.132651, 0.753571},
    {"kPolynomial34567D", kPolynomial34567D, 0.17085924, 0.82914076},
    {"kPolynomial34567E", kPolynomial34567E, 0.145657791, 0.852510379},
    {"kDoubleHarmonic1", kDoubleHarmonic1, 0.0424802495568954, 0.630265501849369},
    {"kDoubleHarmonic2", kDoubleHarmonic2, 0.369734498150631, 0.957519750443105},
    {"kHarmonic", kHarmonic, 0.206107373853763, 0.793892626146236},
    {"kCycloidal", kCycloidal, 0.148634654271868, 0.851365345728131},
};

TEST(MotionLaws, LeaveTheBaseCircleAtZeroAndReachTheNoseAtOne) {
  for (const Known& known : kKnown) {
    EXPECT_NEAR(LiftOf(known.law, 0), 0, 1e-12) << known.constant;
    EXPECT_NEAR(LiftOf(known.law, 1), 1, 1e-12) << known.constant;
  }
  EXPECT_NEAR(kPolynomial3456.lift(0.5), 1, 1e-12);
  for (const double ratio : {-0.9999, 0.0, 0.005, 0.9999}) {
    EXPECT_NEAR(ModifiedEllipse(0, ratio), 0, 1e-12) << ratio;
    EXPECT_NEAR(ModifiedEllipse(1, ratio), 1, 1e-12) << ratio;
  }
}

TEST(MotionLaws, LiftAsWorkedOutApart) {
  for (const Known& known : kKnown) {
    EXPECT_NEAR(LiftOf(known.law, 0.3), known.at3Tenths, 1e-12) << known.constant;
    EXPECT_NEAR(LiftOf(known.law, 0.7), known.at7Tenths, 1e-12) << known.constant;
  }
  EXPECT_NEAR(ModifiedEllipse(0.3, 0.005), 0.20562530227809322, 1e-12);
  EXPECT_NEAR(ModifiedEllipse(0.3, 0.5), 0.1416864698136009, 1e-12);
  EXPECT_NEAR(ModifiedEllipse(0.3, -0.9999), 0.2715123247387918, 1e-12);
}

TEST(MotionLaws, NeverFallBetweenBaseCircleAndNose) {
  for (const Known& known : kKnown) {
    for (int i = 0; i < 1000; ++i) {
      EXPECT_GE(LiftOf(known.law, (i + 1) / 1000.0), LiftOf(known.law, i / 1000.0) - 1e-12)
          << known.constant << " at " << i;
    }
  }
}

struct Peaks {
  double velocity = 0;
  double acceleration = 0;
};

Peaks PeaksOf(const MotionLaw& law) {
  constexpr int kParts = 4000;
  const auto at = [&](int i) { return LiftOf(law, static_cast<double>(i) / kParts); };
  Peaks peaks;
  for (int i = 1; i < kParts; ++i) {
    peaks.velocity = std::max(peaks.velocity, (at(i + 1) - at(i - 1)) * kParts / 2);
    peaks.acceleration =
        std::max(peaks.acceleration, std::abs(at(i + 1) - 2 * at(i) + at(i - 1)) * kParts * kParts);
  }
  return peaks;
}

// The comparison tables of cam handbooks (R. L. Norton, Cam Design and Manufacturing Handbook).
TEST(MotionLaws, HaveThePeaksOfTheHandbooks) {
  const struct {
    const MotionLaw& law;
    double velocity;
    double acceleration;
  } published[] = {
      {kHarmonic, 1.5708, 4.9348},
      {kCycloidal, 2, 6.2832},
      {kPolynomial5, 1.875, 5.7735},
      {kPolynomial7, 2.1875, 7.5132},
  };
  for (const auto& row : published) {
    const Peaks peaks = PeaksOf(row.law);
    EXPECT_NEAR(peaks.velocity, row.velocity, 1e-3) << row.law.name;
    // The harmonic has its peak at the very ends, half a part away from the first difference.
    EXPECT_NEAR(peaks.acceleration, row.acceleration, 1e-3) << row.law.name;
  }
}

TEST(MotionLaws, AreTiedToEachOther) {
  for (int i = 0; i <= 100; ++i) {
    const double x = i / 100.0;
    EXPECT_NEAR(kPolynomial5N1.lift(x), kPolynomial345.lift(x), 1e-12) << x;
    EXPECT_NEAR(kPolynomial5N2.lift(x), 1 - kPolynomial5N1.lift(1 - x), 1e-12) << x;
    EXPECT_NEAR(kDoubleHarmonic2.lift(x), 1 - kDoubleHarmonic1.lift(1 - x), 1e-12) << x;
    const double z = x / 2;
    EXPECT_NEAR(kPolynomial3456.lift(z), 64 * std::pow(z * (1 - z), 3), 1e-12) << x;
    EXPECT_NEAR(ModifiedEllipse(x, 0), kHarmonic.lift(x), 1e-12) << x;
  }
}

// The only inexact thing about this pair is that one of them still moves at the nose.
TEST(MotionLaws, OneOfThePairOfFiveTermsStillMovesAtTheNose) {
  const auto slopeAtNose = [](const MotionLaw& law) {
    return (law.lift(1 + 1e-5) - law.lift(1 - 1e-5)) / 2e-5;
  };
  EXPECT_NEAR(slopeAtNose(kPolynomial34567D), 0, 1e-6);
  EXPECT_NEAR(slopeAtNose(kPolynomial34567E), 0.02, 1e-6);
}

}  // namespace
}  // namespace veldox
