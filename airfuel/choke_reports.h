#pragma once

#include <string>
#include <vector>

#include "airfuel/port_choke.h"
#include "core/numbers.h"
#include "graph/grapher.h"

namespace veldox {

/// What the report and the graph on choking ports are made of.
struct ChokeValues {
  ChokeEngine engine;
  double rpm = 0;                   ///< that the lifts are looked for
  double volumetricEfficiency = 0;  ///< told in the report
  double userVelocity = 0;          ///< feet per second, above 0
  PortPair throats;                 ///< of all valves, square inches, above 0
  std::vector<double> lifts;        ///< of the rows, inches, above 0
};

/// Choke RPM, flow, cross-sections, velocity and L/D ratio of both ports, lift by lift.
std::string ChokeReport(const ChokeValues& values, DecimalMark mark);

struct ChokePlot {
  GraphFrame frame;
  std::vector<GraphCurve> curves;
};
/// Choke RPM of both ports over lift, with a line at the speed that is looked for.
ChokePlot PlotChoke(const ChokeValues& values);

}  // namespace veldox
