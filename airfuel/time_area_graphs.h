#pragma once

#include "airfuel/flow_graphs.h"
#include "airfuel/time_area_reports.h"

namespace veldox {

/// What a time area graph shows over crank degrees, in the order of the screen's option buttons.
enum class TimeAreaCurve {
  Flow,
  Lift,
  CurtainCoefficient,
  Area,
  TimeArea,
  TimeAreaPerCc,
  VerticalLift,
  HorizontalLift,
  PistonTravel,
  PistonFlow,
  AreaSpeed,
  ThroatSpeed,
  McsaSpeed,
  PistonSpeed,
  PistonAcceleration,
};
inline constexpr int kTimeAreaCurves = 15;

/// True for a curve of the piston, which takes no cam.
bool IsOfPiston(TimeAreaCurve curve);

/// A lift below which the velocity at the valve is left out of graphs: the demand of the piston
/// through next to nothing would leave no room for the rest. Inches.
inline constexpr double kLeastGraphedLift = 0.050;

struct TimeAreaGraph {
  TimeAreaCurve curve = TimeAreaCurve::Flow;
  bool isWide = false;     ///< from -360 degrees on, not from -280
  double zoom = 1;         ///< of all limits
  double pistonScale = 1;  ///< of the piston's velocity and acceleration
  bool hasIntake = true;
  bool hasExhaust = true;
};

/// The curves of a graph, on axes that hold them.
FlowPlot PlotTimeArea(const TimeAreaGraph& graph, const TimeAreaValues& values);

}  // namespace veldox
