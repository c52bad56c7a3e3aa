#pragma once

#include <string>

#include "cam/lift_analysis.h"
#include "core/numbers.h"
#include "graph/grapher.h"

namespace veldox {

/// The kinds of lift graphs, in the order of the screen's option buttons.
enum class LiftGraph {
  CamLift,
  ValveLift,
  CamVelocity,
  CamVelocityFps,
  ValveVelocity,
  CamAcceleration,
  CamAccelerationFps,
  CamJerk,
  ValveVelocityFps,
  ValveAccelerationFps,
  ValveAcceleration,
};
inline constexpr int kLiftGraphCount = 11;

/// What is graphed by a kind.
LiftQuantity QuantityOf(LiftGraph graph);
/// The name of a kind, such as "Vel Cam".
const char* NameOf(LiftGraph graph);

/// What a lift graph is made of.
struct LiftGraphInput {
  LiftGraph graph = LiftGraph::CamLift;
  LiftAnalysis analysis;
  bool exhaust = false;
  bool metric = false;             ///< lifts and lash are millimetres
  bool camDegrees = false;         ///< the table's steps are known to be cam degrees
  bool boxes = false;              ///< a box around each point
  bool standardLineAt040 = false;  ///< not at 0.050 inches
  std::string fileName;            ///< of the lift file, without its folder
  std::string title;               ///< of the lift file
};

/// The curve of a graph: the records by their degrees. A valve has points only where its lash is
/// taken up. Without a table there are none.
GraphCurve LiftGraphCurve(const LiftGraphInput& input, DecimalMark mark);

/// The frame of a graph that begins with a curve.
GraphFrame LiftGraphFrame(const LiftGraphInput& input, const GraphCurve& curve, DecimalMark mark);

/// The upper end of the Y axis for the largest value of a curve: a little more than it, in round
/// figures. Never 0.
double RoundedPeak(const LiftQuantity& quantity, double largest);

}  // namespace veldox
