#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/numbers.h"
#include "graph/grapher.h"

namespace veldox {

/// The band around a combustion bowl that the rising piston squeezes the mixture out of.

/// Part of a bore, in the square of its unit. @param ratio  of the piston's area
double SquishArea(double bore, double ratio);
/// Diameter of a circle of the squish area, which the gas is counted to pass.
double SquishCircle(double squishArea);

/// A cylinder with a squish band, in millimetres.
struct SquishCylinder {
  double bore = 0;
  double stroke = 0;
  double rodLength = 0;
  double compressionRatio = 0;  ///< above 1
  double squishRatio = 0;       ///< squish area by piston area
  double squishClearance = 0;   ///< between the band and the piston at the top
};

/// The speed of the gas out of the band at a crank angle.
struct SquishFlow {
  double degrees = 0;   ///< before top dead centre
  double velocity = 0;  ///< metres a second
};

/// The latest closing of the exhaust port that is counted, in degrees before top dead centre.
inline constexpr double kLatestSquishStart = 175;

/// The flow at each step from the closing of the exhaust port up to the top, by what each pair of
/// neighbouring angles leaves of the band's share of the cylinder's gas; told at the pair's lower
/// angle. Empty where there is no pair. Not finite without a band or a rod that reaches.
std::vector<SquishFlow> SquishFlows(const SquishCylinder& cylinder, double rpm, double startDegrees,
                                    double stepDegrees);

struct SquishSummary {
  SquishFlow highest;
  double mean = 0;  ///< metres a second, of all steps
};
/// @param flows  at least one
SquishSummary Summarize(std::span<const SquishFlow> flows);

struct SquishPlot {
  GraphFrame frame;
  GraphCurve curve;
};

/// Squish velocities over the crank angle in degrees before top dead centre.
/// @param caption  tells the engine
/// @param metric  metres a second, else feet a second
SquishPlot PlotSquish(std::span<const SquishFlow> flows, double startDegrees, bool metric,
                      const std::string& caption);

/// The units of a graph by the text at its Y axis; none for another graph.
std::optional<bool> IsMetricSquishGraph(std::string_view yPointer);

}  // namespace veldox
