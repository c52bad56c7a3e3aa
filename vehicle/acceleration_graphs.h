#pragma once

#include <optional>
#include <span>
#include <vector>

#include "graph/grapher.h"
#include "vehicle/acceleration_report.h"

namespace veldox {

/// The graphs of a run, by the number that a user of "Graph Plus" knows as their mode.
enum class RunGraph {
  WheelTorqueOverRpm = 1,
  AccelerationOverTime = 2,
  AccelerationOverRpm = 3,
  DragPowerOverSpeed = 4,  ///< four curves of one run: aero, rolling, both, power at the wheels
  TimeOverSpeed = 5,
  RpmOverSpeed = 6,
  WheelTorqueOverSpeed = 7,
  NitrousOverTime = 12,
  SpeedOverRpm = 20,
  RateOverTime = 30,
};

/// The ends of the axes that the user gives. A graph takes those that its help names; an end that a
/// curve goes beyond grows.
struct RunGraphLimits {
  double xHigh = 10;
  double yHigh = 10;
  double yLow = 0;
};

/// A graph to be handed to the grapher: DrawGraph(frame, curves), or AddToGraph(curves,
/// frame.range) for "Graph Plus".
struct RunPlot {
  GraphFrame frame;
  std::vector<GraphCurve> curves;
  RunResult result;
};

/// The curves of a run, one a gear.
/// @param coastGs  graphs of acceleration have a further curve of the car rolling without power,
///                 and their Y axis begins at -0.5
/// @throws RunInputError
RunPlot PlotRun(RunGraph graph, const AccelerationInputs& inputs, const RunGraphLimits& limits,
                bool coastGs, const RunListener& listener = {});

/// The columns of a dyno sheet; those that it does not have are empty or all 0.
struct DynoColumns {
  std::span<const double> rpm;
  std::span<const double> torque;
  std::span<const double> fuel;  ///< pounds an hour
  std::span<const double> bsfc;
  std::span<const double> airFuel;
  std::span<const double> scfm;
  std::span<const double> bsac;
};

/// The graphs of a dyno sheet over RPM, by their modes.
enum class DynoGraph {
  Bsac = 38,
  CorrectionFactor = 39,
  Fuel = 40,
  Bsfc = 41,
  AirFuel = 42,
  Scfm = 43,
  VolumetricEfficiency = 44,
  Power = 45,
  Torque = 46,
  MeanPressure = 47,
  CorrectedPower = 48,
  CorrectedTorque = 49,
};

/// What else the graphs of a dyno sheet are made from.
struct DynoGraphValues {
  double correction = 1;   ///< the sheet's factor
  double cubicInches = 0;  ///< above 0 for volumetric efficiency and mean pressure
  bool smooth = false;     ///< power is smoothed
};

/// A column of the sheet over RPM.
/// @throws CommandError (InvalidArgument) for a sheet of fewer than two rows, and for one that does
///         not hold the column
RunPlot PlotDyno(DynoGraph graph, const DynoColumns& columns, const DynoGraphValues& values);

/// Torque and power over RPM, to be drawn by PlotEngine::DrawDynoGraph, or by DrawNitrousGraph
/// where there is a shot.
struct TorquePowerPlot {
  AxisRange range;
  std::vector<PlotEngine::DynoRow> rows;
  std::optional<double> shot;  ///< horsepower of the nitrous stages
};

/// @param inputs  the torque table, and the nitrous stages where they are switched on
/// @param gear    whose nitrous stages act, from 1
TorquePowerPlot PlotTorquePower(const AccelerationInputs& inputs, const DynoGraphValues& values,
                                int gear);

}  // namespace veldox
