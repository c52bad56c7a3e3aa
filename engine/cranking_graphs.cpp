#include "engine/cranking_graphs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <string_view>

#include "core/step_bound.h"
#include "engine/displacement.h"

namespace veldox {

namespace {

constexpr double kSweepToEitherSide = 50;  ///< degrees around the entered closing angle
constexpr double kHighPsi = 20;
constexpr double kHighInchesMercury = 40;
constexpr double kLowEfficiency = 0.5;
constexpr double kHighEfficiency = 1.5;
constexpr double kBarometerSteps = 100;
constexpr double kEfficiencyStep = 0.01;
constexpr double kInchesInFoot = 12;
constexpr double kNoForce = 1e-12;  ///< of the largest force
constexpr double kMillimetresInMetre = 1000;
/// The turning force in metric is graphed in tens of newton metres, the force on a piston in
/// tens of newtons: bars over 100 times square millimetres.
constexpr double kBarsInMetricForce = 100;

/// The texts of a graph.
struct GraphKind {
  const char* title;
  const char* xName;
  const char* yName;
};

constexpr std::string_view kBoreLead = "Bore = ";
constexpr const char* kClosing = "Intake Close ABDC";
constexpr const char* kAfterTop = "Degrees - ATDC";
constexpr const char* kOverClosing = "Cranking Compression vs Intake Valve Close ABDC";

constexpr std::array<GraphKind, kCrankingGraphCount> kKinds = {{
    {"DCR vs Intake Valve Close ABDC", kClosing, "DCR"},
    {"CR vs Intake Valve Close ABDC", kClosing, "CR"},
    {"Cranking Compression"
     " vs Intake Valve Close ABDC      Bore = ",
     kClosing, "CGP"},
    {kOverClosing, "Baro Press PSI", "CGP"},
    {kOverClosing, "Baro Press In Hg", "CGP"},
    {"Fixed Cranking Compression vs Intake Valve Close BTDC and Barometric Pressure",
     "Baro Press In Hg", "IVC - BTDC"},
    {"Fixed Cranking Compression vs Intake Valve Close ABDC and CR", kClosing, "CR"},
    {"Cranking Compression vs Intake Valve Close ABDC for a Fixed CR", kClosing, "CGP"},
    {"Cylinder Pressure vs Crank Rotation Angle", kAfterTop, "Cylinder Pressure"},
    {"Piston Pressure vs Crank Rotation Angle", kAfterTop, "Piston Pressure"},
    {"Turning Force vs Crank Rotation Angle", kAfterTop, "Turning Force"},
    {"Cylinder Pressure vs VE%", "VE / 100", "CGP"},
    {"Turning Force vs Crank Rotation Angle", kAfterTop, "Turning Force"},
    {"Cylinder Pressure vs Crank Rotation Angle For Constant Turning Force", kAfterTop,
     "Cylinder Pressure"},
    {"Octane Requirement", kClosing, "Octane Req."},
}};

const GraphKind& KindOf(CrankingGraph graph) {
  return kKinds.at(static_cast<std::size_t>(graph));
}

std::string NumberText(double value, DecimalMark mark) {
  return FormatValue<"0.0#####">(value, mark);
}

// ---------------------------------------------------------------- units of the curves

double ArmUnits(const CrankingGraphInput& in) {
  return in.metric ? kMillimetresInMetre : kInchesInFoot;
}

/// A gauge pressure in the unit that makes a force of an area: psi, or bars over 100.
double ForcePressure(const CrankingGraphInput& in, double gauge) {
  return in.metric ? gauge / kGaugeUnitsPerPsi * kBarsPerPsi / kBarsInMetricForce : gauge;
}

/// Pressure outside in the gauge's unit.
double Base(const CrankingGraphInput& in, double psi) {
  return in.metric ? psi * kGaugeUnitsPerPsi : psi;
}

double BaseOfMercury(const CrankingGraphInput& in, double inches) {
  return Base(in, inches * kPsiPerInchMercury);
}

/// The base of readings by the rule of the input.
double RuledBase(const CrankingGraphInput& in, double inches) {
  return BaseOfMercury(in, in.rule == DosRule::On ? inches - in.vapor : inches);
}

double DynamicRatioOf(const CrankingGraphInput& in, const ClosedCylinder& cylinder) {
  const double clearance = cylinder.sweptCc / (in.compressionRatio - 1);
  return (cylinder.closedCc + clearance) / clearance;
}

// ---------------------------------------------------------------- curves

using Value = std::function<std::optional<double>(double)>;

/// The value of a graph over the closing angle; none where it has no value.
Value ValueOverClosing(const CrankingGraphInput& in) {
  const auto gauge = [in](const ClosedCylinder& cylinder, DosRule rule) {
    const double base =
        rule == DosRule::Off ? BaseOfMercury(in, in.barometer) : RuledBase(in, in.barometer);
    return CrankingPressure(DynamicRatioOf(in, cylinder), base, rule);
  };
  switch (in.graph) {
    case CrankingGraph::DynamicRatio:
      return [=](double d) { return DynamicRatioOf(in, ClosedCylinderAt(in.size, d)); };
    case CrankingGraph::CompressionRatio:
      return [=](double d) {
        return CompressionRatioForDynamicRatio(in.dynamicRatio, ClosedCylinderAt(in.size, d));
      };
    case CrankingGraph::RatioOverClosing:
      return [=](double d) -> std::optional<double> {
        const double ratio = CompressionRatioForPressure(in.gauge, RuledBase(in, in.barometer),
                                                         in.rule, ClosedCylinderAt(in.size, d));
        if (in.highValue && ratio > *in.highValue) return std::nullopt;
        return ratio;
      };
    case CrankingGraph::Octane:
      return [=](double d) {
        const double reading = gauge(ClosedCylinderAt(in.size, d), DosRule::Off);
        return EstimatedOctane(in.metric ? reading / kGaugeUnitsPerPsi : reading, in.inletAir,
                               in.water);
      };
    case CrankingGraph::GaugeOverClosingFixedRatio:
      return [=](double d) { return gauge(ClosedCylinderAt(in.size, d), in.rule); };
    default: return [=](double d) { return gauge(ClosedCylinderAt(in.size, d), DosRule::Off); };
  }
}

/// The closing angle before top dead centre at which the gauge shows the reading.
std::optional<double> ClosingBeforeTop(const CrankingGraphInput& in, double inches) {
  const double base = RuledBase(in, inches);
  const double highest = CrankingPressure(in.compressionRatio, base, in.rule);
  // Air too thin or too thick for the reading has no closing angle.
  if (!(base > 0 && in.gauge > CrankingPressure(1, base, in.rule) && in.gauge <= highest)) {
    return std::nullopt;
  }
  return DegreesBeforeTop(
      in.size.stroke, in.size.rodLength,
      TravelForCrankingPressure(in.size, in.compressionRatio, in.gauge, base, in.rule));
}

Value ValueOverBarometer(const CrankingGraphInput& in) {
  const double ratio = DynamicRatioOf(in, ClosedCylinderAt(in.size, in.intakeClose));
  switch (in.graph) {
    case CrankingGraph::GaugeOverPsi:
      return [=](double psi) { return CrankingPressure(ratio, Base(in, psi), DosRule::Off); };
    case CrankingGraph::GaugeOverInchesMercury:
      return [=](double inches) {
        return CrankingPressure(ratio, BaseOfMercury(in, inches), DosRule::Off);
      };
    default: return [=](double inches) { return ClosingBeforeTop(in, inches); };
  }
}

void AddPoints(GraphCurve& curve, double low, double high, double step, const Value& value) {
  const double count = std::round((high - low) / step);
  constexpr int kMostPoints = 10000;
  StepBound bound(kMostPoints);
  for (double i = 0; i <= count; ++i) {
    bound.Step();
    const double x = i == count ? high : low + i * step;
    if (const auto y = value(x)) curve.points.push_back({x, *y});
  }
}

/// The highest pressure shown where the turning force is constant: four times the largest
/// turning force of the expansion, and the highest pressure at least.
double ConstantForceTop(const CrankingGraphInput& in) {
  const double force = ForcePressure(in, in.gauge) * PistonArea(in.size.bore) *
                       LargestTurningForcePart(in.startDegrees) * in.size.stroke / 2 / ArmUnits(in);
  return std::fmax(10 * std::ceil(4 * force / 10), AxisTop(in.gauge));
}

void AddExpansion(GraphCurve& curve, const CrankingGraphInput& in) {
  const double arm = ArmUnits(in);
  const double area = PistonArea(in.size.bore);
  // The force that the highest pressure makes where it stands is to be kept up from there.
  const double part = TurningForce(in.size, 1, in.startDegrees, arm);
  const double top = ConstantForceTop(in);
  for (const ExpansionPoint& point :
       PressureCurve({in.size, in.compressionRatio, in.startDegrees, in.gauge, in.exponent})) {
    const double degrees = point.degrees;
    const double pressure = ForcePressure(in, point.pressure);
    double y = 0;
    switch (in.graph) {
      case CrankingGraph::PistonPressure: y = area * pressure; break;
      case CrankingGraph::TurningForce: y = TurningForce(in.size, pressure, degrees, arm); break;
      case CrankingGraph::TurningForceByRatio:
        y = TurningForceByRatio(in.size, pressure, degrees, arm);
        break;
      case CrankingGraph::ConstantTurningForce:
        y = in.gauge * (part / TurningForce(in.size, 1, degrees, arm));
        break;
      default: y = point.pressure; break;
    }
    // Towards the bottom no pressure keeps the force up.
    if (in.graph == CrankingGraph::ConstantTurningForce && !(y >= 0 && y <= top)) break;
    curve.points.push_back({degrees, y});
  }
  // At the bottom rounding leaves a trace of a force, which would open an axis below 0.
  double largest = 0;
  for (const GraphPoint& point : curve.points) largest = std::fmax(largest, std::abs(point.y));
  for (GraphPoint& point : curve.points) {
    if (std::abs(point.y) < kNoForce * largest) point.y = 0;
  }
}

/// Limits of the X axis.
void SetXLimits(AxisRange& range, const CrankingGraphInput& in) {
  const CrankingGraph graph = in.graph;
  if (IsOverClosing(graph)) {
    const double low = 10 * Floor((in.intakeClose - kSweepToEitherSide) / 10);
    range.xLow =
        std::clamp(low, kEarliestGraphedClosing, kLatestGraphedClosing - 2 * kSweepToEitherSide);
    range.xHigh = range.xLow + 2 * kSweepToEitherSide;
  } else if (IsOverCrankAngle(graph)) {
    range.xHigh = 180;
  } else if (graph == CrankingGraph::GaugeOverVolumetricEfficiency) {
    range.xLow = kLowEfficiency;
    range.xHigh = kHighEfficiency;
  } else if (graph == CrankingGraph::GaugeOverPsi) {
    range.xHigh =
        in.highValue.value_or(std::fmax(kHighPsi, AxisTop(in.barometer * kPsiPerInchMercury)));
  } else {
    range.xHigh = in.highValue.value_or(std::fmax(kHighInchesMercury, AxisTop(in.barometer)));
  }
}

void SetYLimits(AxisRange& range, const CrankingGraphInput& in, const GraphCurve& curve) {
  const auto [lowest, highest] =
      std::minmax_element(curve.points.begin(), curve.points.end(),
                          [](const GraphPoint& a, const GraphPoint& b) { return a.y < b.y; });
  range.yLow = 0;
  range.yHigh = AxisTop(highest->y);
  if (in.graph == CrankingGraph::Octane) {
    range.yLow = 10 * Floor(lowest->y / 10);
  } else if (lowest->y < 0) {
    range.yLow = -AxisTop(-lowest->y);
  }
  if (in.graph == CrankingGraph::RatioOverClosing && in.highValue) range.yHigh = *in.highValue;
  if (in.graph == CrankingGraph::ConstantTurningForce) {
    range.yHigh = ConstantForceTop(in);
  }
}

}  // namespace

bool IsOverClosing(CrankingGraph graph) {
  switch (graph) {
    case CrankingGraph::DynamicRatio:
    case CrankingGraph::CompressionRatio:
    case CrankingGraph::GaugeOverClosing:
    case CrankingGraph::RatioOverClosing:
    case CrankingGraph::GaugeOverClosingFixedRatio:
    case CrankingGraph::Octane: return true;
    default: return false;
  }
}

bool IsOverCrankAngle(CrankingGraph graph) {
  switch (graph) {
    case CrankingGraph::CylinderPressure:
    case CrankingGraph::PistonPressure:
    case CrankingGraph::TurningForce:
    case CrankingGraph::TurningForceByRatio:
    case CrankingGraph::ConstantTurningForce: return true;
    default: return false;
  }
}

bool HasHighValue(CrankingGraph graph) {
  switch (graph) {
    case CrankingGraph::GaugeOverPsi:
    case CrankingGraph::GaugeOverInchesMercury:
    case CrankingGraph::ClosingOverInchesMercury:
    case CrankingGraph::RatioOverClosing: return true;
    default: return false;
  }
}

double AxisTop(double value) {
  const double unit = value < 10 ? 1 : 10;
  return std::fmax(unit * std::ceil(value / unit), 1);
}

std::optional<CrankingPlot> PlotCranking(const CrankingGraphInput& input, DecimalMark mark,
                                         const std::optional<AxisRange>& range) {
  CrankingPlot plot;
  GraphFrame& frame = plot.frame;
  GraphCurve& curve = plot.curve;
  SetXLimits(frame.range, input);
  if (range) {
    frame.range.xLow = range->xLow;
    frame.range.xHigh = range->xHigh;
  }
  const double low = frame.range.xLow;
  const double high = frame.range.xHigh;
  if (IsOverCrankAngle(input.graph)) {
    AddExpansion(curve, input);
  } else if (IsOverClosing(input.graph)) {
    AddPoints(curve, low, high, 1, ValueOverClosing(input));
  } else if (input.graph == CrankingGraph::GaugeOverVolumetricEfficiency) {
    const double filled = CrankingPressure(input.compressionRatio,
                                           BaseOfMercury(input, input.barometer), DosRule::Off);
    AddPoints(curve, low, high, kEfficiencyStep, [=](double part) { return part * filled; });
  } else {
    AddPoints(curve, low, high, (high - low) / kBarometerSteps, ValueOverBarometer(input));
  }
  if (curve.points.size() < 2) return std::nullopt;
  SetYLimits(frame.range, input, curve);
  curve.note = CrankingGraphNote(input, mark);
  const GraphKind& kind = KindOf(input.graph);
  frame.title = CrankingGraphTitle(input, mark);
  frame.xName = kind.xName;
  frame.xPointer = std::string("<--- ") + kind.xName;
  frame.yPointer = std::string("<--- ") + kind.yName;
  frame.zeroLine = frame.range.yLow < 0;
  return plot;
}

std::string CrankingGraphTitle(const CrankingGraphInput& input, DecimalMark mark) {
  std::string title = KindOf(input.graph).title;
  if (input.graph == CrankingGraph::GaugeOverClosing) {
    const std::string note = CrankingGraphNote(input, mark);
    title.erase(title.size() - kBoreLead.size());
    title += note.substr(0, note.find_last_not_of(' ') + 1);
  }
  return title;
}

std::string CrankingGraphNote(const CrankingGraphInput& input, DecimalMark mark) {
  const auto text = [mark](double value) { return NumberText(value, mark); };
  std::string note = std::string(kBoreLead) + text(input.size.bore) +
                     "  Stroke = " + text(input.size.stroke) +
                     "  Rod = " + text(input.size.rodLength);
  const auto ratio = [&] { note += "  CR = " + text(input.compressionRatio) + ":1   "; };
  const auto barometer = [&] {
    note += "   BP = " +
            text(input.metric ? input.barometer * kMillibarsPerInchMercury : input.barometer);
  };
  const auto reading = [&] { note += "   CGP = " + text(input.gauge); };
  const auto weather = [&] {
    if (input.rule == DosRule::Off) return;
    note += "   Temp = " + text(input.temperature) + "  RH = " + text(input.humidity);
  };
  const auto closing = [&] { note += "  IVC = " + text(input.intakeClose); };
  switch (input.graph) {
    case CrankingGraph::DynamicRatio: ratio(); break;
    case CrankingGraph::CompressionRatio: note += "  DCR = " + text(input.dynamicRatio); break;
    case CrankingGraph::GaugeOverClosing:
    case CrankingGraph::GaugeOverVolumetricEfficiency:
      ratio();
      barometer();
      break;
    case CrankingGraph::GaugeOverPsi:
    case CrankingGraph::GaugeOverInchesMercury:
      ratio();
      closing();
      break;
    case CrankingGraph::ClosingOverInchesMercury:
      ratio();
      weather();
      reading();
      break;
    case CrankingGraph::RatioOverClosing:
      barometer();
      weather();
      reading();
      break;
    case CrankingGraph::GaugeOverClosingFixedRatio:
      ratio();
      barometer();
      weather();
      break;
    case CrankingGraph::CylinderPressure:
    case CrankingGraph::PistonPressure:
    case CrankingGraph::TurningForce:
    case CrankingGraph::TurningForceByRatio:
    case CrankingGraph::ConstantTurningForce:
      ratio();
      reading();
      note += "  ATDC = " + text(input.startDegrees);
      if (input.graph != CrankingGraph::ConstantTurningForce)
        note += "  k = " + text(input.exponent);
      break;
    case CrankingGraph::Octane:
      ratio();
      barometer();
      break;
  }
  if (input.size.offset != 0) note += " Offset = " + text(input.size.offset);
  return note + "   ";
}

}  // namespace veldox
