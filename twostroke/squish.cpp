#include "twostroke/squish.h"

#include <algorithm>
#include <cmath>

#include "core/units.h"
#include "engine/compression.h"
#include "engine/cranking_graphs.h"
#include "engine/displacement.h"
#include "engine/piston_motion.h"

namespace veldox {

namespace {

constexpr double kSquareMillimetresPerSquareCentimetre = 100;
constexpr double kMillimetresPerCentimetre = 10;
constexpr double kCentimetresPerMetre = 100;

constexpr std::string_view kMetresPointer = "<--- Squish Velocity m/s";
constexpr std::string_view kFeetPointer = "<--- Squish Velocity ft/s";

}  // namespace

double SquishArea(double bore, double ratio) {
  return PistonArea(bore) * ratio;
}

double SquishCircle(double squishArea) {
  return std::sqrt(squishArea * 4 / kPi);
}

std::vector<SquishFlow> SquishFlows(const SquishCylinder& cylinder, double rpm, double startDegrees,
                                    double stepDegrees) {
  /// What rounding may leave of the last step to the top.
  constexpr double kNoAngle = 1e-9;
  const double start = std::fmin(startDegrees, kLatestSquishStart);
  const CrankSlider slider{cylinder.stroke / 2, cylinder.rodLength, 0};
  const double pistonArea = PistonArea(cylinder.bore) / kSquareMillimetresPerSquareCentimetre;
  const double squishArea = pistonArea * cylinder.squishRatio;
  const double circle = SquishCircle(squishArea) * kMillimetresPerCentimetre;
  const double swept = ToCc(DiscVolume(cylinder.bore, cylinder.stroke), true);
  const double clearance = swept / (cylinder.compressionRatio - 1);
  const double stepsInSecond = 360 / stepDegrees * rpm / 60;

  struct Gas {
    double travel;
    double volume;
    double bandShare;
  };
  const auto gasAt = [&](double degrees) {
    const double travel = PistonTravelAt(slider, degrees);
    const double volume = travel * pistonArea / kMillimetresPerCentimetre + clearance;
    const double band =
        (cylinder.squishClearance + travel) * squishArea / kMillimetresPerCentimetre;
    return Gas{travel, volume, band / volume};
  };

  std::vector<SquishFlow> flows;
  if (start < 0) return flows;
  Gas higher = gasAt(start);
  for (int step = 1;; ++step) {
    double degrees = start - step * stepDegrees;
    if (degrees < -kNoAngle) break;
    degrees = std::fmax(degrees, 0);
    const Gas lower = gasAt(degrees);
    const double gap = kPi * circle *
                       ((higher.travel + lower.travel) / 2 + cylinder.squishClearance) /
                       kSquareMillimetresPerSquareCentimetre;
    const double flow = higher.bandShare - lower.bandShare;
    flows.push_back({degrees, flow / gap * lower.volume * stepsInSecond / kCentimetresPerMetre});
    higher = lower;
  }
  return flows;
}

SquishSummary Summarize(std::span<const SquishFlow> flows) {
  SquishSummary summary{flows.front(), 0};
  double sum = 0;
  for (const SquishFlow& flow : flows) {
    if (flow.velocity > summary.highest.velocity) summary.highest = flow;
    sum += flow.velocity;
  }
  summary.mean = sum / static_cast<double>(flows.size());
  return summary;
}

SquishPlot PlotSquish(std::span<const SquishFlow> flows, double startDegrees, bool metric,
                      const std::string& caption) {
  SquishPlot plot;
  plot.curve.note = caption + "   ";
  double lowest = 0;
  double highest = 0;
  for (const SquishFlow& flow : flows) {
    const double velocity = metric ? flow.velocity : kSurfaceSpeedRule.toInches(flow.velocity);
    lowest = std::fmin(lowest, velocity);
    highest = std::fmax(highest, velocity);
    plot.curve.points.push_back({flow.degrees, velocity});
  }
  GraphFrame& frame = plot.frame;
  frame.range = {0, std::fmin(startDegrees, kLatestSquishStart), lowest < 0 ? -AxisTop(-lowest) : 0,
                 AxisTop(highest)};
  frame.zeroLine = lowest < 0;
  frame.title = caption;
  frame.xPointer = "<--- Degrees before TDC";
  frame.xName = "Crank Degrees before TDC";
  frame.yPointer = metric ? kMetresPointer : kFeetPointer;
  return plot;
}

std::optional<bool> IsMetricSquishGraph(std::string_view yPointer) {
  if (yPointer == kMetresPointer) return true;
  if (yPointer == kFeetPointer) return false;
  return std::nullopt;
}

}  // namespace veldox
