#pragma once

#include <optional>

#include "core/numbers.h"
#include "engine/cranking_pressure.h"
#include "graph/grapher.h"

namespace veldox {

/// The graphs of the compression gauge screen by the index of their option button.
enum class CrankingGraph {
  DynamicRatio = 0,
  CompressionRatio = 1,
  GaugeOverClosing = 2,
  GaugeOverPsi = 3,
  GaugeOverInchesMercury = 4,
  ClosingOverInchesMercury = 5,
  RatioOverClosing = 6,
  GaugeOverClosingFixedRatio = 7,
  CylinderPressure = 8,
  PistonPressure = 9,
  TurningForce = 10,
  GaugeOverVolumetricEfficiency = 11,
  TurningForceByRatio = 12,
  ConstantTurningForce = 13,
  Octane = 14,
};
inline constexpr int kCrankingGraphCount = 15;

/// True for the graphs over the closing angle of the intake valve.
bool IsOverClosing(CrankingGraph graph);
/// True for the graphs of the pressure after top dead centre.
bool IsOverCrankAngle(CrankingGraph graph);

/// True for the graphs whose high limit the user may give: of the X axis for those over the
/// barometer, of the Y axis for RatioOverClosing.
bool HasHighValue(CrankingGraph graph);

/// The closing angles, in degrees after bottom dead centre, that a graph is drawn around.
inline constexpr double kEarliestGraphedClosing = 0;
inline constexpr double kLatestGraphedClosing = 170;

/// What a graph is made of: the values of the screen in the units that it shows.
struct CrankingGraphInput {
  CrankingGraph graph = CrankingGraph::DynamicRatio;
  CylinderSize size;
  double compressionRatio = 0;  ///< above 1
  double intakeClose = 0;
  double dynamicRatio = 0;
  double gauge = 0;                 ///< psi, or centimetres of mercury
  double barometer = 0;             ///< inches of mercury whatever the screen shows
  double vapor = 0;                 ///< inches of mercury; what the older rule takes off
  double temperature = 0;           ///< as shown
  double humidity = 0;              ///< percent
  double inletAir = 0;              ///< degrees Fahrenheit
  double water = 0;                 ///< degrees Fahrenheit
  double startDegrees = 0;          ///< after top dead centre, of the highest pressure
  double exponent = 0;              ///< polytropic
  DosRule rule = DosRule::Off;      ///< of the readings that walks and ratios start from
  bool metric = false;              ///< lengths in millimetres, the gauge in centimetres of mercury
  std::optional<double> highValue;  ///< the high limit that the user wants, where a graph has one
};

struct CrankingPlot {
  GraphFrame frame;
  GraphCurve curve;
};

/// A graph with its frame. Closing angles run from 50 degrees before the entered one to 50
/// behind it, by whole tens within 0 to 170; the barometer runs from 0 to 20 psi or to 40
/// inches of mercury; the volumetric efficiency from 0.5 to 1.5.
/// @param range  limits of the X axis of the graph that the curve is added to, if any
/// @return nothing where fewer than two points lie within the axes
std::optional<CrankingPlot> PlotCranking(const CrankingGraphInput& input, DecimalMark mark,
                                         const std::optional<AxisRange>& range = {});

/// The title of a graph.
std::string CrankingGraphTitle(const CrankingGraphInput& input, DecimalMark mark);

/// The text that tells which engine and day a curve is of.
std::string CrankingGraphNote(const CrankingGraphInput& input, DecimalMark mark);

/// The top of an axis above a value: the next multiple of 10, of 1 for values below 10.
double AxisTop(double value);

}  // namespace veldox
