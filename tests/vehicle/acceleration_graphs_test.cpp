#include "vehicle/acceleration_graphs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "graph/curve_colors.h"
#include "tests/support/sample_cars.h"

namespace veldox {
namespace {

using test::SampleCar;
using testing::ElementsAre;

RunPlot PlotOf(RunGraph graph, SampleCar car, bool coastGs = false,
               const RunGraphLimits& limits = {}) {
  return PlotRun(graph, car.Run(), limits, coastGs);
}

std::vector<std::string> NotesOf(const RunPlot& plot) {
  std::vector<std::string> notes;
  for (const GraphCurve& curve : plot.curves) notes.push_back(curve.note);
  return notes;
}

/// No point lies beside the axes.
void ExpectHeld(const RunPlot& plot) {
  const AxisRange& range = plot.frame.range;
  for (const GraphCurve& curve : plot.curves) {
    EXPECT_GE(curve.points.size(), 2U);
    for (const GraphPoint& point : curve.points) {
      EXPECT_TRUE(point.x >= range.xLow && point.x <= range.xHigh) << point.x;
      EXPECT_TRUE(point.y >= range.yLow && point.y <= range.yHigh) << point.y;
    }
  }
}

TEST(AccelerationGraphs, EachGearIsACurve) {
  for (const RunGraph graph :
       {RunGraph::WheelTorqueOverRpm, RunGraph::AccelerationOverTime, RunGraph::AccelerationOverRpm,
        RunGraph::TimeOverSpeed, RunGraph::RpmOverSpeed, RunGraph::WheelTorqueOverSpeed,
        RunGraph::SpeedOverRpm, RunGraph::RateOverTime}) {
    SCOPED_TRACE(static_cast<int>(graph));
    const RunPlot plot = PlotOf(graph, test::StartCar());
    EXPECT_THAT(NotesOf(plot), ElementsAre("Gear 1", "Gear 2", "Gear 3", "Gear 4", "Gear 5"));
    ExpectHeld(plot);
    EXPECT_FALSE(plot.frame.title.empty());
    EXPECT_FALSE(plot.frame.xName.empty());
  }
}

TEST(AccelerationGraphs, WheelTorqueIsTheEnginesTimesItsRatioLessWhatIsLost) {
  const RunPlot plot = PlotOf(RunGraph::WheelTorqueOverRpm, test::StartCar());
  const GraphPoint first = plot.curves[0].points.front();
  EXPECT_EQ(first.x, 5000);
  EXPECT_NEAR(first.y, 700 * 3.25 * 4.1 * 0.94 * 0.935, 1e-6);
  EXPECT_NEAR(plot.curves[4].points.front().y, 700 * 0.87 * 4.1 * 0.94 * 0.935, 1e-6);
  EXPECT_NEAR(plot.curves[4].points.back().x, 10000, 1e-6);
}

TEST(AccelerationGraphs, SpeedAndRpmAreEachOthersInverse) {
  const RunPlot rpm = PlotOf(RunGraph::RpmOverSpeed, test::StartCar());
  const RunPlot speed = PlotOf(RunGraph::SpeedOverRpm, test::StartCar());
  ASSERT_EQ(rpm.curves.size(), speed.curves.size());
  for (std::size_t i = 0; i < rpm.curves.size(); ++i) {
    ASSERT_EQ(rpm.curves[i].points.size(), speed.curves[i].points.size());
    for (std::size_t k = 0; k < rpm.curves[i].points.size(); ++k) {
      EXPECT_EQ(rpm.curves[i].points[k].x, speed.curves[i].points[k].y);
      EXPECT_EQ(rpm.curves[i].points[k].y, speed.curves[i].points[k].x);
    }
  }
}

TEST(AccelerationGraphs, TheUsersEndsHoldUntilACurveGoesBeyond) {
  const RunPlot grown = PlotOf(RunGraph::SpeedOverRpm, test::StartCar());
  EXPECT_EQ(grown.frame.range, (AxisRange{0, 10000, 0, 250}));
  const RunPlot held = PlotOf(RunGraph::SpeedOverRpm, test::StartCar(), false, {12345, 678, 9});
  EXPECT_EQ(held.frame.range, (AxisRange{0, 12345, 9, 678}));
  // Graphs whose help names no ends find their own.
  const RunPlot own = PlotOf(RunGraph::WheelTorqueOverRpm, test::StartCar(), false, {9, 9, 9});
  EXPECT_EQ(own.frame.range.xLow, 5000);
  EXPECT_EQ(own.frame.range.xHigh, 10000);
  EXPECT_EQ(own.frame.range.yLow, 0);
}

TEST(AccelerationGraphs, TimeBeginsWhereTheRolloutEnds) {
  const RunPlot plot = PlotOf(RunGraph::AccelerationOverTime, test::StartCar());
  double last = -1;
  for (const GraphCurve& curve : plot.curves) {
    for (const GraphPoint& point : curve.points) {
      EXPECT_GT(point.x, last);
      last = point.x;
    }
  }
  EXPECT_NEAR(plot.curves[0].points.front().x, 0, 0.05);
  EXPECT_NEAR(last, plot.result.last.elapsed, 1e-9);
}

TEST(AccelerationGraphs, TheGraphOfTimeEndsAtTheTopSpeed) {
  const RunPlot plot = PlotOf(RunGraph::TimeOverSpeed, test::StockCar());
  EXPECT_LE(plot.curves.back().points.back().x, plot.result.topSpeed + 0.01);
}

TEST(AccelerationGraphs, PowerAndDragAreFourCurvesOfOneRun) {
  const RunPlot plot = PlotOf(RunGraph::DragPowerOverSpeed, test::TopSpeedCar());
  EXPECT_THAT(NotesOf(plot), ElementsAre("Aero Drag HP", "Tire Rolling Resistance HP",
                                         "Total HP Drag", "Corrected HP at Drive Wheel(s)"));
  ASSERT_TRUE(plot.curves[2].color.has_value());
  EXPECT_EQ(plot.curves[2].color->name, "Dark Blue");
  EXPECT_FALSE(plot.curves[0].color.has_value());
  ExpectHeld(plot);
  ASSERT_EQ(plot.curves[0].points.size(), plot.curves[2].points.size());
  for (std::size_t i = 0; i < plot.curves[2].points.size(); ++i) {
    EXPECT_NEAR(plot.curves[2].points[i].y, plot.curves[0].points[i].y + plot.curves[1].points[i].y,
                1e-9);
  }
}

TEST(AccelerationGraphs, PowerMeetsDragAtTheTopSpeed) {
  const RunPlot plot = PlotOf(RunGraph::DragPowerOverSpeed, test::StockCar());
  const auto& drag = plot.curves[2].points;
  const auto& power = plot.curves[3].points;
  // Both are told at the same speeds, but where a gear ends only one of them has two points.
  double meets = 0;
  for (const GraphPoint& point : power) {
    const auto at = std::find_if(drag.begin(), drag.end(),
                                 [&](const GraphPoint& other) { return other.x == point.x; });
    ASSERT_NE(at, drag.end());
    if (point.y > at->y) meets = point.x;
  }
  EXPECT_NEAR(meets, plot.result.topSpeed, 0.5);
}

TEST(AccelerationGraphs, CoastDownIsACurveBelowZero) {
  for (const RunGraph graph : {RunGraph::AccelerationOverTime, RunGraph::AccelerationOverRpm}) {
    const RunPlot without = PlotOf(graph, test::StartCar());
    EXPECT_EQ(without.frame.range.yLow, 0);
    const RunPlot plot = PlotOf(graph, test::StartCar(), true);
    EXPECT_EQ(plot.frame.range.yLow, -0.5);
    EXPECT_TRUE(plot.frame.zeroLine);
    ASSERT_EQ(plot.curves.size(), 6U);
    EXPECT_EQ(plot.curves.back().note, "Coast Down G's");
    ExpectHeld(plot);
    // At 200 MPH: 361 HP of air and 28 of the tires slow 3500 pounds.
    const GraphPoint last = plot.curves.back().points.back();
    EXPECT_NEAR(last.y, -(360.8 + 28.0) * 375 / 200.17 / 3500, 1e-3);
  }
  // Other graphs have none.
  EXPECT_EQ(PlotOf(RunGraph::RpmOverSpeed, test::StartCar(), true).curves.size(), 5U);
}

TEST(AccelerationGraphs, NitrousIsShownOverTime) {
  SampleCar car = test::StartCar();
  car.inputs.nitrous = true;
  car.inputs.nitrousStages[0] = {3, 150, 6000, 100, 6000};
  const RunPlot plot = PlotOf(RunGraph::NitrousOverTime, car);
  double most = 0;
  for (const GraphPoint& point : plot.curves[2].points) most = std::max(most, point.y);
  EXPECT_EQ(most, 150);
  for (const GraphPoint& point : plot.curves[0].points) EXPECT_EQ(point.y, 0);
}

TEST(AccelerationGraphs, RefusesWhatTheRunRefuses) {
  SampleCar car = test::StartCar();
  car.inputs.carWeight = 0;
  EXPECT_THROW(PlotOf(RunGraph::RpmOverSpeed, car), RunInputError);
}

// ------------------------------------------------------------ the dyno sheet

struct Sheet {
  std::vector<double> rpm{4000, 4500, 5000, 5500, 6000, 6500, 7000, 7500};
  std::vector<double> torque{420, 440, 450, 455, 450, 440, 425, 400};
  std::vector<double> scfm{300, 345, 392, 436, 471, 498, 518, 522};
  DynoColumns columns() const { return {rpm, torque, {}, {}, {}, scfm, {}}; }
};

std::string RefusalOf(DynoGraph graph, const DynoColumns& columns, const DynoGraphValues& values) {
  try {
    PlotDyno(graph, columns, values);
  } catch (const CommandError& error) {
    return error.message();
  }
  return {};
}

TEST(DynoGraphs, ColumnsAreThoseOfTheirFormulas) {
  const Sheet sheet;
  const DynoGraphValues values{1.05, 350, false};
  const auto at5000 = [&](DynoGraph graph) {
    const RunPlot plot = PlotDyno(graph, sheet.columns(), values);
    EXPECT_EQ(plot.curves.size(), 1U);
    EXPECT_EQ(plot.curves[0].points[2].x, 5000);
    return plot.curves[0].points[2].y;
  };
  EXPECT_NEAR(at5000(DynoGraph::Torque), 450, 1e-9);
  EXPECT_NEAR(at5000(DynoGraph::CorrectedTorque), 472.5, 1e-9);
  EXPECT_NEAR(at5000(DynoGraph::Power), 450 * 5000 / 5252.0, 0.05);
  EXPECT_NEAR(at5000(DynoGraph::CorrectedPower) / at5000(DynoGraph::Power), 1.05, 1e-12);
  EXPECT_NEAR(at5000(DynoGraph::MeanPressure), 450 * 150.8 / 350, 1e-9);
  EXPECT_NEAR(at5000(DynoGraph::CorrectionFactor), 1.05, 1e-12);
  EXPECT_NEAR(at5000(DynoGraph::Scfm), 392, 1e-12);
  // 350 cubic inches, filled every other turn: 506.4 cubic feet a minute at 5000 RPM.
  EXPECT_NEAR(at5000(DynoGraph::VolumetricEfficiency), 392 / 506.36574 * 100, 1e-3);
}

TEST(DynoGraphs, ColumnsThatTheTableDoesNotHoldAreSaidSo) {
  const Sheet sheet;
  const DynoGraphValues values{1, 350, false};
  EXPECT_EQ(RefusalOf(DynoGraph::Fuel, sheet.columns(), values),
            "The torque table holds no Fuel lbs/hr, so that there is nothing to graph.");
  EXPECT_EQ(RefusalOf(DynoGraph::Bsac, sheet.columns(), values),
            "The torque table holds no BSAC, so that there is nothing to graph.");
  Sheet empty;
  std::fill(empty.scfm.begin(), empty.scfm.end(), 0.0);
  EXPECT_EQ(RefusalOf(DynoGraph::VolumetricEfficiency, empty.columns(), values),
            "The torque table holds no SCFM, so that there is nothing to graph.");
  EXPECT_EQ(RefusalOf(DynoGraph::MeanPressure, sheet.columns(), {}),
            "The engine's size in Cubic Inches must be above 0 for this graph.");
  EXPECT_EQ(RefusalOf(DynoGraph::Power, {}, values),
            "The torque table needs at least two rows for a graph.");
}

TEST(DynoGraphs, SmoothingKeepsACubicAndCalmsNoise) {
  Sheet sheet;
  for (std::size_t i = 0; i < sheet.rpm.size(); ++i) {
    const double x = (sheet.rpm[i] - 5500) / 1000;
    sheet.torque[i] = (500 + 80 * x - 20 * x * x) * 5252 / sheet.rpm[i];
  }
  const auto powers = [&](bool smooth) {
    return PlotDyno(DynoGraph::Power, sheet.columns(), {1, 0, smooth}).curves[0].points;
  };
  const auto plain = powers(false);
  const auto smooth = powers(true);
  ASSERT_EQ(plain.size(), smooth.size());
  for (std::size_t i = 0; i < plain.size(); ++i) EXPECT_NEAR(plain[i].y, smooth[i].y, 1e-6);
  sheet.torque[4] += 30;
  const double bump = powers(false)[4].y - plain[4].y;
  EXPECT_LT(powers(true)[4].y - plain[4].y, 0.7 * bump);
}

TEST(DynoGraphs, TorqueAndPowerStandWithTheirCorrection) {
  SampleCar car = test::StartCar();
  const TorquePowerPlot plot = PlotTorquePower(car.Run(), {1.1, 0, false}, 1);
  ASSERT_EQ(plot.rows.size(), 11U);
  EXPECT_FALSE(plot.shot.has_value());
  EXPECT_EQ(plot.rows[0].rpm, 5000);
  EXPECT_EQ(plot.rows[0].torque, 700);
  EXPECT_NEAR(plot.rows[0].otherTorque, 770, 1e-9);
  EXPECT_NEAR(plot.rows[0].otherHorsepower, 1.1 * plot.rows[0].horsepower, 1e-9);
  EXPECT_NEAR(plot.rows[0].horsepower, 700 * 5000 / 5252.0, 0.1);
  EXPECT_EQ(plot.range, (AxisRange{5000, 10000, 0, 1500}));
}

TEST(DynoGraphs, NitrousStandsInPlaceOfTheCorrection) {
  SampleCar car = test::StartCar();
  car.inputs.nitrous = true;
  car.inputs.nitrousStages[0] = {2, 100, 6000, 50, 8000};
  car.inputs.nitrousStages[7] = {40, 1, 100, 1, 9};
  const TorquePowerPlot plot = PlotTorquePower(car.Run(), {1.1, 0, false}, 2);
  ASSERT_TRUE(plot.shot.has_value());
  EXPECT_EQ(*plot.shot, 140);
  const auto gained = [&](std::size_t row) {
    return plot.rows[row].otherHorsepower - plot.rows[row].horsepower;
  };
  EXPECT_NEAR(gained(0), 40, 1e-9);   // 5000
  EXPECT_NEAR(gained(4), 115, 1e-9);  // 7000: 75 percent
  EXPECT_NEAR(gained(10), 140, 1e-9);
  EXPECT_NEAR(plot.rows[10].otherTorque - plot.rows[10].torque, 140 * 5252 / 10000.0, 0.02);
  car.inputs.nitrousAtWheels = true;
  EXPECT_NEAR(PlotTorquePower(car.Run(), {}, 2).rows[10].otherHorsepower - plot.rows[10].horsepower,
              140 / (0.94 * 0.935), 1e-9);
}

}  // namespace
}  // namespace veldox
