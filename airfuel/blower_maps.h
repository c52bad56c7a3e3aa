#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "airfuel/blower.h"
#include "core/numbers.h"
#include "graph/grapher.h"

namespace veldox {

/// What drives a map of the air that an engine takes.
enum class FlowMapKind {
  PressureRatio,  ///< the density rises as the pressure does
  Boost,          ///< less what the air is heated by its compression
  Intercooled,    ///< the air reaches the engine at the intercooler's outlet temperature
};

/// A value that is the same at every RPM, or that a table tells.
struct ValueByRpm {
  double always = 0;
  std::optional<std::array<double, kRpmTableRows>> table;

  double At(double rpm) const { return table ? TableValueAt(*table, rpm) : always; }
};

/// A point of a map: where the engine of the screen stands.
struct OperatingPoint {
  double rpm = 0;
  double pressureRatio = 0;
};

/// What a map is made of: the values of the screen in the units that it shows, but for the
/// engine.
struct FlowMapInput {
  FlowMapKind kind = FlowMapKind::PressureRatio;
  AirConsumer engine;
  BlowerAir air;  ///< whatever its boost
  double blowerEfficiency = 0;
  double intercoolerOutlet = 0;
  ValueByRpm volumetricEfficiency;
  bool inPounds = false;          ///< flow in pounds a minute, else in cubic feet
  double poundsPerCubicFoot = 0;  ///< of the air outside
  int turbos = 1;
  double maxRpm = 0;

  double DensityRatio(double boost, double pressureRatio) const;
  /// Flow of all turbos together in the map's unit.
  double Flow(double rpm, double densityRatio) const;
};

/// The RPM of a map's rows: every 500 from 1000 on. @param maxRpm  32767 at most
std::vector<double> FlowMapSpeeds(double maxRpm);

/// A map as a report: flow by RPM and pressure, the horsepower that it feeds, and with several
/// turbos the flow of one.
/// @param title  lines of the screen's values
std::string FlowMapReport(const FlowMapInput& input, const ValueByRpm& bsac,
                          const std::vector<std::string>& title, DecimalMark mark);

/// The heading of a map.
std::string FlowMapTitle(FlowMapKind kind);

struct BlowerPlot {
  GraphFrame frame;
  std::vector<GraphCurve> curves;
};

/// Where the axes of a map end; none for an end that fits the curves.
struct FlowMapLimits {
  std::optional<double> flow;
  std::optional<double> pressureRatio;  ///< above 1
};

/// A map as a graph: flow on X, pressure ratio on Y, a curve for every row. What a point of the
/// engine has on both axes is drawn as well, and what one of several turbos has of it.
BlowerPlot PlotFlowMap(const FlowMapInput& input, const FlowMapLimits& limits,
                       const std::optional<OperatingPoint>& point, DecimalMark mark);

/// Horsepower and torque of a torque table, as they are and with a density that is `gain` times
/// the old one. @param torque  in foot pounds, one for each RPM, two rows at least
BlowerPlot PlotDensityGain(std::span<const double> rpm, std::span<const double> torque,
                           double gain);

}  // namespace veldox
