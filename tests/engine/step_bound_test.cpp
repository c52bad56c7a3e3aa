#include "core/step_bound.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "engine/cranking_graphs.h"
#include "engine/cranking_pressure.h"
#include "engine/displacement.h"
#include "engine/piston_graphs.h"
#include "engine/piston_motion.h"
#include "engine/piston_reports.h"

namespace veldox {
namespace {

constexpr double kTiny = 5e-324;
constexpr double kHuge = std::numeric_limits<double>::max();

/// Values that dwarf each other, and some of real engines.
constexpr std::array kValues = {-kHuge, -1.0, 0.0, kTiny, 1e-320, 1e-160, 1e-10,
                                0.5,    3.25, 5.7, 1e5,   1e16,   1e160,  kHuge};

/// A walk may end with a result or a refusal; what it may not is go on. The time is far above
/// what a bounded walk takes on the busiest machine.
class Walks : public testing::Test {
 protected:
  void Try(const std::function<void()>& walk) {
    try {
      walk();
      ++ended_;
    } catch (const CommandError&) {
      ++refused_;
    }
  }
  void TearDown() override {
    EXPECT_GT(ended_, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - start_, std::chrono::seconds(60));
  }

  /// Calls with every combination of the values.
  template <class Walk>
  static void OverAll(int count, Walk walk, std::vector<double> chosen = {}) {
    if (count == 0) return walk(chosen);
    for (const double value : kValues) {
      std::vector<double> next = chosen;
      next.push_back(value);
      OverAll(count - 1, walk, std::move(next));
    }
  }

  int ended() const { return ended_; }
  int refused() const { return refused_; }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  int ended_ = 0;
  int refused_ = 0;
};

TEST(StepBound, EndsAWalkThatIsFartherThanItsBound) {
  StepBound bound(3);
  for (int i = 0; i < 3; ++i) EXPECT_NO_THROW(bound.Step());
  EXPECT_THROW(bound.Step(), CommandError);
  EXPECT_THROW(bound.Step(), CommandError);
}

TEST_F(Walks, AStrokeOf1e320EndsTheSearchForTheClosingAngle) {
  // The gauge screen's own example: default bore and rod, 150 psi at 14.7 outside.
  const CylinderSize size{4, 1e-320, 5.7, 0};
  EXPECT_THROW(TravelForCrankingPressure(size, 9, 150, 14.7, DosRule::On), CommandError);
  const CylinderSize usual{4, 3.25, 5.7, 0};
  Try([&] { TravelForCrankingPressure(usual, 9, 150, 14.7, DosRule::On); });
  EXPECT_EQ(ended(), 1);
}

TEST_F(Walks, TravelForCrankingPressure) {
  OverAll(5, [&](const std::vector<double>& v) {
    for (const DosRule rule : {DosRule::Off, DosRule::On}) {
      Try([&] { TravelForCrankingPressure({v[0], v[1], 5.7, 0}, v[2], v[3], v[4], rule); });
    }
  });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, IntakeCloseForDynamicRatio) {
  OverAll(5, [&](const std::vector<double>& v) {
    Try([&] { IntakeCloseForDynamicRatio({4, v[0], v[1], v[2]}, v[3], v[4]); });
  });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, BoreAndStrokeByDigits) {
  OverAll(2,
          [&](const std::vector<double>& v) { Try([&] { BoreAndStrokeByDigits(v[0], v[1]); }); });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, FastestCrankAngle) {
  OverAll(5, [&](const std::vector<double>& v) {
    Try([&] { FastestCrankAngle({v[0], v[1], v[2]}, v[3], v[4]); });
  });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, CrankDegreesAtTravel) {
  OverAll(4, [&](const std::vector<double>& v) {
    Try([&] { CrankDegreesAtTravel(CrankSlider{v[0], v[1], v[2]}, v[3]); });
  });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, CrankDegreesAtATravelThatIsLostInRounding) {
  // Where the stroke is a millionth of a millionth of the rod, the travel is rounding alone.
  for (const double radius : {1e-13, 1e-14, 1e-15, 1e-16}) {
    for (int i = -20; i <= 20; ++i) {
      Try([&] { CrankDegreesAtTravel(CrankSlider{radius, 5.7, 0.1}, radius * i / 8); });
    }
  }
}

TEST_F(Walks, PressureCurve) {
  OverAll(3, [&](const std::vector<double>& v) {
    Try([&] { PressureCurve({{4, v[0], 5.7, 0}, 9, v[1], v[2], 1.3}); });
  });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, TablesOfDegrees) {
  PistonTable table;
  table.bore = 4;
  table.stroke = 3.25;
  table.rodLength = 5.7;
  table.rpm = 6000;
  OverAll(3, [&](const std::vector<double>& v) {
    table.startDegrees = v[0];
    table.endDegrees = v[1];
    table.everyDegrees = v[2];
    Try([&] { TravelReport(table, DecimalMark::Point); });
  });
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, PistonGraphs) {
  PistonGraphInput input;
  input.table.bore = 4;
  input.table.stroke = 3.25;
  input.table.rodLength = 5.7;
  input.table.cylinders = 8;
  input.table.weights = {500, 600, 200};
  for (int graph = 0; graph < kPistonGraphCount; ++graph) {
    input.graph = static_cast<PistonGraph>(graph);
    for (const double rpm : {-kHuge, 0.0, 6000.0, 1e16, kHuge}) {
      input.table.rpm = rpm;
      Try([&] { PistonGraphCurve(input, DecimalMark::Point); });
    }
  }
  EXPECT_GT(refused(), 0);
}

TEST_F(Walks, CrankingGraphs) {
  CrankingGraphInput input;
  input.size = {4, 3.25, 5.7, 0};
  input.compressionRatio = 9;
  input.dynamicRatio = 7;
  input.intakeClose = 60;
  input.gauge = 150;
  input.barometer = 29.92;
  input.exponent = 1.3;
  for (int graph = 0; graph < kCrankingGraphCount; ++graph) {
    input.graph = static_cast<CrankingGraph>(graph);
    OverAll(2, [&](const std::vector<double>& v) {
      Try([&] { PlotCranking(input, DecimalMark::Point, AxisRange{v[0], v[1], 0, 200}); });
      CrankingGraphInput other = input;
      other.startDegrees = v[0];
      other.highValue = v[1];
      Try([&] { PlotCranking(other, DecimalMark::Point, std::nullopt); });
    });
  }
  EXPECT_GT(refused(), 0);
}

}  // namespace
}  // namespace veldox
