#pragma once

#include <string>

#include "airfuel/flow_bench.h"
#include "core/numbers.h"

namespace veldox {

/// What the reports on a head's flow are made of. Seats have an angle above 0, all sizes and
/// areas are above 0.
struct FlowReportValues {
  double bore = 0;          ///< inches
  double stroke = 0;        ///< inches
  double rod = 0;           ///< length of the connecting rod, inches
  double testVelocity = 0;  ///< CFM per square inch without loss
  FlowPort intake;
  FlowPort exhaust;
  /// The throats of all intake valves, square inches.
  double IntakeThroatTotal() const { return intake.ThroatTotal(); }
  FlowTable intakeFlow{};
  FlowTable exhaustFlow{};
};

/// Velocities, discharge coefficients, areas and flow per area of both ports, row by row.
std::string FlowReport(const FlowReportValues& values, DecimalMark mark);

/// The same of the intake for the flow that the piston asks for, from 1000 to 18000 RPM.
std::string PistonDemandReport(const FlowReportValues& values, DecimalMark mark);

}  // namespace veldox
