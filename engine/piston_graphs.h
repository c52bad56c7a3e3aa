#pragma once

#include <string>

#include "core/numbers.h"
#include "engine/piston_reports.h"
#include "graph/grapher.h"

namespace veldox {

/// The graphs of the displacement screen by the index of their option button.
enum class PistonGraph {
  Velocity = 0,
  Acceleration = 1,
  Flow = 2,
  Travel = 3,
  RodAngle = 4,
  CylinderVolume = 5,
  WheelTravel = 6,
  WheelVelocity = 7,
  WheelAcceleration = 8,
  WheelFlow = 9,
  SideForce = 10,
  ReciprocatingForce = 11,
  MeanPistonSpeed = 12,
  MaxPistonSpeed = 13,
  BearingSpeed = 14,
  InertiaForce = 15,
  TangentForce = 16,
  Torque = 17,
  CrankRodAngle = 18,
  PortVelocity = 19,
  VolumeChange = 20,
  PortDepression = 21,
  TotalVolumeChange = 22,
  PressureDifferential = 23,
};
inline constexpr int kPistonGraphCount = 24;

/// What the X axis of a graph over crank degrees shows.
enum class CrankAxis { To360 = 0, To180 = 1, From180To180 = 2 };

/// What a graph is made of beyond the engine.
struct PistonGraphInput {
  PistonGraph graph = PistonGraph::Velocity;
  CrankAxis axis = CrankAxis::To360;
  bool absolute = false;  ///< accelerations as absolute values, from 0 up
  PistonTable table;      ///< the engine; its range of degrees has no part
  double journalDiameter = 0;
  double portDiameter = 0;
  double volumetricEfficiency = 0;
  double compressionRatio = 0;
};

/// The frame of a graph: its limits and texts.
/// @throws CommandError (InvalidArgument) where the engine has no fastest point
GraphFrame PistonGraphFrame(const PistonGraphInput& input);

/// The points of a graph, in the units shown.
GraphCurve PistonGraphCurve(const PistonGraphInput& input, DecimalMark mark);

/// The text that tells which engine a curve is of.
std::string PistonGraphNote(const PistonGraphInput& input, DecimalMark mark);

}  // namespace veldox
