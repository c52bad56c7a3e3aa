#include "cam/lift_analysis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>
#include <vector>

#include "cam/lift_reports.h"
#include "core/numbers.h"
#include "core/report.h"

namespace veldox {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr LiftQuantity kCamLift{0, false, false};
constexpr LiftQuantity kVelocity{1, false, false};
constexpr LiftQuantity kVelocityFps{1, false, true};
constexpr LiftQuantity kAcceleration{2, false, false};
constexpr LiftQuantity kJerk{3, false, false};

LiftAnalysis AnalysisOf(const std::vector<double>& lifts, double step) {
  LiftAnalysis analysis;
  analysis.table = {lifts, step, static_cast<int>(lifts.size()) - 1};
  return analysis;
}

/// A lobe by one law for both flanks: rise is a function from 0 at 0 to 1 at 1.
std::vector<double> Lobe(double lift, double duration, double step, double (*rise)(double)) {
  std::vector<double> lifts{0};
  for (int i = 1; i * step < duration; ++i) {
    const double part = i * step / (duration / 2);
    lifts.push_back(lift * rise(part <= 1 ? part : 2 - part));
  }
  lifts.push_back(0);
  return lifts;
}
double Harmonic(double x) {
  return (1 - std::cos(kPi * x)) / 2;
}
double Cycloid(double x) {
  return x - std::sin(2 * kPi * x) / (2 * kPi);
}

TEST(LiftAnalysis, TakesDifferencesOverTheStep) {
  const std::vector<double> lifts{0, 1, 4, 9, 16, 0};
  const LiftAnalysis analysis = AnalysisOf(lifts, 2);
  EXPECT_EQ(Analyse(analysis, kCamLift).first, 0);
  EXPECT_THAT(Analyse(analysis, kCamLift).values, ElementsAre(0, 1, 4, 9, 16, 0));
  EXPECT_EQ(Analyse(analysis, kVelocity).first, 1);
  EXPECT_THAT(Analyse(analysis, kVelocity).values, ElementsAre(0.5, 1.5, 2.5, 3.5, -8));
  EXPECT_EQ(Analyse(analysis, kAcceleration).first, 2);
  EXPECT_THAT(Analyse(analysis, kAcceleration).values, ElementsAre(0.5, 0.5, 0.5, -5.75));
  EXPECT_EQ(Analyse(analysis, kJerk).first, 3);
  EXPECT_THAT(Analyse(analysis, kJerk).values, ElementsAre(0, 0, -3.125));
}

TEST(LiftAnalysis, TheSecondWayTakesPlainDifferencesOfVelocity) {
  const std::vector<double> lifts{0, 1, 4, 9, 16, 0};
  LiftAnalysis analysis = AnalysisOf(lifts, 2);
  analysis.differencesByRecord = true;
  EXPECT_THAT(Analyse(analysis, kVelocity).values, ElementsAre(0.5, 1.5, 2.5, 3.5, -8));
  EXPECT_THAT(Analyse(analysis, kAcceleration).values, ElementsAre(1, 1, 1, -11.5));
  EXPECT_THAT(Analyse(analysis, kJerk).values, ElementsAre(0, 0, -12.5));
  // At a step of 1 there is no difference.
  analysis.table.step = 1;
  LiftAnalysis usual = analysis;
  usual.differencesByRecord = false;
  EXPECT_EQ(Analyse(analysis, kJerk).values, Analyse(usual, kJerk).values);
}

TEST(LiftAnalysis, GivesFeetASecond) {
  // .006 inches in a degree at 6500 RPM: 0.0005 ft x 108.333 turns a second x 360 degrees.
  const std::vector<double> lifts{0, 0.006, 0.012};
  LiftAnalysis analysis = AnalysisOf(lifts, 1);
  analysis.rpm = 6500;
  EXPECT_THAT(Analyse(analysis, kVelocityFps).values,
              ElementsAre(DoubleNear(19.5, 1e-12), DoubleNear(19.5, 1e-12)));
  // The same lobe in millimetres moves as fast.
  const std::vector<double> millimetres{0, 0.1524, 0.3048};
  analysis.table.lifts = millimetres;
  analysis.unitsPerInch = 25.4;
  EXPECT_THAT(Analyse(analysis, kVelocityFps).values,
              ElementsAre(DoubleNear(19.5, 1e-12), DoubleNear(19.5, 1e-12)));
}

TEST(LiftAnalysis, OfTheValveHasRatioAndLash) {
  const std::vector<double> lifts{0, 0.01, 0.02, 0.05, 0.01, 0};
  LiftAnalysis analysis = AnalysisOf(lifts, 1);
  analysis.ratio = 1.5;
  analysis.lash = 0.024;
  const LiftValues lift = Analyse(analysis, {0, true, false});
  EXPECT_NEAR(lift[3], 0.051, 1e-15);
  EXPECT_NEAR(lift[0], -0.024, 1e-15);
  EXPECT_NEAR(Analyse(analysis, {1, true, false})[3], 0.045, 1e-15);
  EXPECT_FALSE(IsOffSeat(analysis, 0.01));
  EXPECT_FALSE(IsOffSeat(analysis, 0.016));  // .016 x 1.5 is the lash itself
  EXPECT_TRUE(IsOffSeat(analysis, 0.02));
  analysis.lash = 0;
  EXPECT_TRUE(IsOffSeat(analysis, 0));
}

TEST(LiftAnalysis, VelocitiesAddUpToTheLift) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> lift(0, 0.5);
  std::vector<double> lifts(400);
  for (double& value : lifts) value = lift(random);
  for (const double step : {0.5, 1.0, 2.0, 7.25}) {
    const LiftValues velocity = Analyse(AnalysisOf(lifts, step), kVelocity);
    double sum = 0;
    for (int i = 1; i <= velocity.last(); ++i) {
      sum += velocity[i] * step;
      EXPECT_NEAR(sum, lifts[static_cast<std::size_t>(i)] - lifts[0], 1e-12);
    }
  }
}

TEST(LiftAnalysis, FindsTheDerivativesOfALaw) {
  constexpr double kLift = 0.35;
  constexpr double kDuration = 250;
  const std::vector<double> lifts = Lobe(kLift, kDuration, 1, &Harmonic);
  const LiftAnalysis analysis = AnalysisOf(lifts, 1);
  // lift / 2 (1 - cos w d) over the whole lobe: it is the same formula on both flanks.
  const double w = 2 * kPi / kDuration;
  const double peakVelocity = kLift / 2 * w;
  const double peakAcceleration = kLift / 2 * w * w;
  const LiftValues velocity = Analyse(analysis, kVelocity);
  const LiftValues acceleration = Analyse(analysis, kAcceleration);
  for (int i = velocity.first; i <= velocity.last(); ++i) {
    EXPECT_NEAR(velocity[i], peakVelocity * std::sin(w * (i - 0.5)), 1e-4 * peakVelocity) << i;
  }
  // Twice half a step before the record.
  for (int i = acceleration.first; i <= acceleration.last(); ++i) {
    EXPECT_NEAR(acceleration[i], peakAcceleration * std::cos(w * (i - 1.0)),
                1e-4 * peakAcceleration)
        << i;
  }
}

// ---------------------------------------------------------------- smoothing

TEST(Smoothing, HasItsNames) {
  EXPECT_EQ(SmoothingOf("SG"), Smoothing::SavitzkyGolay);
  EXPECT_EQ(SmoothingOf(" ma "), Smoothing::MovingAverage);
  EXPECT_EQ(SmoothingOf("Tr"), Smoothing::Triangle);
  EXPECT_EQ(SmoothingOf(""), std::nullopt);
  EXPECT_EQ(SmoothingOf("SGX"), std::nullopt);
}

TEST(Smoothing, HasPublishedWeights) {
  // Savitzky and Golay's parabola over five points: -3, 12, 17, 12, -3, over 35.
  const std::vector<double> five = SmoothingWeights(Smoothing::SavitzkyGolay, 5);
  ASSERT_EQ(five.size(), 5U);
  const std::vector<double> published{-3, 12, 17, 12, -3};
  for (std::size_t i = 0; i < five.size(); ++i) EXPECT_NEAR(five[i], published[i] / 35, 1e-15);
  // Over 21 points: 329 in the middle, 324 beside it, -171 at the ends, over 3059.
  const std::vector<double> most = SmoothingWeights(Smoothing::SavitzkyGolay, 1);
  ASSERT_EQ(most.size(), 21U);
  EXPECT_NEAR(most[10], 329.0 / 3059, 1e-15);
  EXPECT_NEAR(most[9], 324.0 / 3059, 1e-15);
  EXPECT_NEAR(most[0], -171.0 / 3059, 1e-15);
}

TEST(Smoothing, IsSymmetricAndAddsUpToOne) {
  for (const Smoothing smoothing :
       {Smoothing::SavitzkyGolay, Smoothing::MovingAverage, Smoothing::Triangle}) {
    for (const double step : {1e-9, 0.1, 0.5, 1.0, 2.0, 4.0, 10.0, 90.0, 1e9}) {
      const std::vector<double> weights = SmoothingWeights(smoothing, step);
      EXPECT_LE(weights.size(), 21U);
      EXPECT_GE(weights.size(), 3U);
      EXPECT_EQ(weights.size() % 2, 1U);
      EXPECT_NEAR(std::accumulate(weights.begin(), weights.end(), 0.0), 1, 1e-14);
      EXPECT_TRUE(std::equal(weights.begin(), weights.end(), weights.rbegin()));
    }
  }
}

TEST(Smoothing, LeavesLinesAndKeepsTheLength) {
  std::vector<double> line;
  for (int i = 0; i < 60; ++i) line.push_back(0.25 - 0.01 * i);
  for (const Smoothing smoothing :
       {Smoothing::SavitzkyGolay, Smoothing::MovingAverage, Smoothing::Triangle}) {
    const std::vector<double> smoothed = Smoothed(line, SmoothingWeights(smoothing, 1), 0);
    ASSERT_EQ(smoothed.size(), line.size());
    for (std::size_t i = 10; i + 10 < line.size(); ++i) EXPECT_NEAR(smoothed[i], line[i], 1e-15);
  }
  // A table shorter than the filter, and none.
  const std::vector<double> weights = SmoothingWeights(Smoothing::MovingAverage, 1);
  EXPECT_THAT(Smoothed(std::vector<double>{11.0}, weights, 0), ElementsAre(DoubleNear(1, 1e-15)));
  EXPECT_TRUE(Smoothed({}, weights, 0).empty());
}

TEST(Smoothing, TakesRaggednessOut) {
  constexpr double kNoise = 0.0002;
  std::vector<double> lifts = Lobe(0.35, 250, 1, &Cycloid);
  const std::vector<double> clean = lifts;
  std::mt19937 random(7);
  std::uniform_real_distribution<double> noise(-kNoise, kNoise);
  for (std::size_t i = 1; i + 1 < lifts.size(); ++i) lifts[i] += noise(random);
  LiftAnalysis analysis = AnalysisOf(lifts, 1);
  const LiftValues ragged = Analyse(analysis, kAcceleration);
  analysis.smoothing = Smoothing::SavitzkyGolay;
  const LiftValues smooth = Analyse(analysis, kAcceleration);
  analysis.smoothsLift = true;
  const LiftValues smoother = Analyse(analysis, kAcceleration);
  const LiftValues truth = Analyse(AnalysisOf(clean, 1), kAcceleration);
  ASSERT_EQ(smooth.values.size(), ragged.values.size());
  const auto error = [&](const LiftValues& values) {
    double sum = 0;
    for (int i = values.first + 20; i <= values.last() - 20; ++i) {
      sum += (values[i] - truth[i]) * (values[i] - truth[i]);
    }
    return std::sqrt(sum);
  };
  EXPECT_LT(error(smooth), error(ragged) / 5);
  EXPECT_LT(error(smoother), error(smooth));
}

TEST(Smoothing, OfTheLiftIsOnlyDoneWithSmoothing) {
  const std::vector<double> lifts{0, 0.1, 0.3, 0.1, 0};
  LiftAnalysis analysis = AnalysisOf(lifts, 10);
  analysis.smoothsLift = true;
  EXPECT_EQ(AnalysedLifts(analysis), lifts);
  analysis.smoothing = Smoothing::MovingAverage;
  EXPECT_NEAR(AnalysedLifts(analysis)[2], 0.5 / 3, 1e-15);
}

TEST(Smoothing, TakesTheValveForSeatedAroundTheLobe) {
  // Without lift the valve stands at minus the lash, and smoothing makes no step of it.
  const std::vector<double> lifts(30, 0.0);
  LiftAnalysis analysis = AnalysisOf(lifts, 1);
  analysis.ratio = 1.5;
  analysis.lash = 0.024;
  analysis.smoothing = Smoothing::Triangle;
  for (const double lift : Analyse(analysis, {0, true, false}).values) {
    EXPECT_NEAR(lift, -0.024, 1e-15);
  }
}

// ---------------------------------------------------------------- figures

TEST(LobeFigures, OfATriangle) {
  std::vector<double> lifts;
  for (int i = 0; i <= 60; ++i) lifts.push_back(0.01 * (i <= 30 ? i : 60 - i));
  const auto figures = FiguresOf({lifts, 2, 60}, 1);
  ASSERT_TRUE(figures.has_value());
  EXPECT_EQ(figures->records, 59);
  EXPECT_NEAR(figures->peakLift, 0.3, 1e-15);
  EXPECT_EQ(figures->peakDegrees, 60);
  EXPECT_NEAR(figures->peakVelocity, 0.005, 1e-12);
  EXPECT_NEAR(figures->area, 0.3 * 120 / 2, 1e-12);
  // It rises .01 in 2 degrees: so far in from both ends.
  EXPECT_NEAR(*figures->durations[0], 120 - 2 * 1.2, 1e-9);
  EXPECT_NEAR(*figures->durations[2], 120 - 2 * 10, 1e-9);
  EXPECT_NEAR(*figures->durations[4], 120 - 2 * 40, 1e-9);
  EXPECT_NEAR(*figures->centerline, 60, 1e-9);
  EXPECT_NEAR(*figures->asymmetry, 0, 1e-9);
}

TEST(LobeFigures, OfALobeThatIsLowOrLeans) {
  // Up .1 in two records, down in four, 1 degree each.
  const std::vector<double> lifts{0, 0.05, 0.1, 0.075, 0.05, 0.025, 0};
  const auto figures = FiguresOf({lifts, 1, 6}, 1);
  EXPECT_EQ(figures->peakDegrees, 2);
  EXPECT_NEAR(*figures->durations[2], 3, 1e-12);
  EXPECT_FALSE(figures->durations[3].has_value());
  EXPECT_FALSE(figures->durations[4].has_value());
  EXPECT_NEAR(*figures->centerline, 2.5, 1e-12);
  EXPECT_NEAR(*figures->asymmetry, -1, 1e-12);
  // The same in millimetres.
  std::vector<double> millimetres = lifts;
  for (double& lift : millimetres) lift *= 25.4;
  EXPECT_NEAR(*FiguresOf({millimetres, 1, 6}, 25.4)->durations[2], 3, 1e-9);
  EXPECT_FALSE(FiguresOf({}, 1).has_value());
}

TEST(LobeFigures, ShowWhatAFlatTappetHasToBeWideFor) {
  // An eccentric of .25 in under a flat tappet touches it up to .25 in beside the middle: the
  // velocity per radian is that offset.
  constexpr double kDegreesInRadian = 57.29578;
  constexpr double kEccentricity = 0.25;
  const std::vector<double> lifts = Lobe(2 * kEccentricity, 360, 1, &Harmonic);
  EXPECT_NEAR(FiguresOf({lifts, 1, 360}, 1)->peakVelocity * kDegreesInRadian, kEccentricity, 1e-4);
  // A tappet of .842 with .01 to spare takes .411 to either side, .0071733 a degree. A cycloid
  // peaks at twice its mean, so .35 in 125 degrees pass, and in 97 degrees do not.
  constexpr double kAllowed = 0.0071733;
  EXPECT_LT(FiguresOf({Lobe(0.35, 250, 1, &Cycloid), 1, 250}, 1)->peakVelocity, kAllowed);
  EXPECT_GT(FiguresOf({Lobe(0.35, 194, 1, &Cycloid), 1, 194}, 1)->peakVelocity, kAllowed);
}

// ---------------------------------------------------------------- reports

std::vector<std::string> RowsOf(const std::string& report) {
  std::vector<std::string> rows;
  for (const MarkedLine& line : ReportLines(report)) rows.emplace_back(line.text);
  return rows;
}

TEST(LiftReports, TellEachRecord) {
  const std::vector<double> lifts{0, 0.01, 0.04, 0.09, 0};
  LiftAnalysis analysis = AnalysisOf(lifts, 2);
  const std::string report = LiftReport(analysis, false, false, "SG", DecimalMark::Point);
  EXPECT_TRUE(report.starts_with(std::string(ReportPrompt) +
                                 "Smooth = NO\r\n       I N T A K E_\r\n         Cam Lift        "
                                 "Velocity      Acceleration       Jerk_\r\n_\r\n"));
  const std::vector<std::string> rows = RowsOf(report);
  ASSERT_EQ(rows.size(), 11U);
  EXPECT_EQ(rows[4], "         Cam Lift        Velocity      Acceleration       Jerk");
  EXPECT_EQ(rows[6], "  1       0.01000       0.0050000");
  EXPECT_EQ(rows[7], "  2       0.04000       0.0150000       0.005000000");
  EXPECT_EQ(rows[8], "  3       0.09000       0.0250000       0.005000000    0.000000000");
  // -.045 after .025 over 2 degrees, and .005 before it.
  EXPECT_EQ(rows[9], "  4       0.00000      -0.0450000      -0.035000000   -0.020000000");
  EXPECT_EQ(rows[10], "");
  EXPECT_TRUE(ReportBoxText(report).find('~') == std::string::npos);
}

TEST(LiftReports, OfTheValveTellNothingOfASeatedOne) {
  const std::vector<double> lifts{0, 0.01, 0.04, 0.01, 0};
  LiftAnalysis analysis = AnalysisOf(lifts, 1);
  analysis.ratio = 1.5;
  analysis.lash = 0.024;
  const std::vector<std::string> rows =
      RowsOf(LiftReport(analysis, true, true, "SG", DecimalMark::Comma));
  EXPECT_EQ(rows[3], "       E X H A U S T");
  EXPECT_EQ(rows[6], "  1       0,00000");
  // .04 x 1.5 - .024; the velocity is that of the lobe times the ratio.
  EXPECT_EQ(rows[7], "  2       0,03600       0,0450000       0,030000000");
}

TEST(LiftReports, SetTheSmoothLiftBesideTheLiftAsRead) {
  const std::vector<double> lifts{0, 0, 0.3, 0, 0};
  LiftAnalysis analysis = AnalysisOf(lifts, 10);
  analysis.smoothing = Smoothing::MovingAverage;
  analysis.smoothsLift = true;
  const std::vector<std::string> rows =
      RowsOf(LiftReport(analysis, false, false, "MA", DecimalMark::Point));
  EXPECT_EQ(rows[2], "Smooth Type = MA");
  EXPECT_THAT(rows[4], testing::EndsWith("       Jerk         Smooth Lift"));
  EXPECT_THAT(rows[7], testing::StartsWith("  2       0.30000"));
  EXPECT_THAT(rows[7], testing::EndsWith("         0.10000"));
  // Without it, the lift is what the graph shows.
  analysis.smoothsLift = false;
  EXPECT_THAT(RowsOf(LiftReport(analysis, false, false, "MA", DecimalMark::Point))[7],
              testing::StartsWith("  2       0.10000"));
}

TEST(LiftReports, WithoutATableAreTheirHeadings) {
  EXPECT_EQ(RowsOf(LiftReport({}, true, false, "", DecimalMark::Point)).size(), 7U);
}

}  // namespace
}  // namespace veldox
