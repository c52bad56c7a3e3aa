#include "engine/piston_graphs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>

#include "core/step_bound.h"
#include "core/units.h"
#include "engine/displacement.h"

namespace veldox {

namespace {

constexpr double kNewtonsPerPound = 4.448222;
constexpr double kNewtonMetresPerFootPound = 1.3558179;
constexpr int kMostGraphPoints = 200000;
constexpr double kInchesOfWaterPerPsi = 27.707258364;
constexpr double kFastPortAngle = 73;    ///< where the piston draws about its most
constexpr double kFeetPerInchSpeed = 6;  ///< inches of stroke by RPM to feet a minute

/// What a graph over degrees is made of.
struct GraphKind {
  const char* title;
  double step;    ///< degrees, or RPM
  bool halfTurn;  ///< shows 0 to 180 whatever the option says
};

constexpr std::array<GraphKind, kPistonGraphCount> kKinds = {{
    {"Piston Velocity", 0.25, false},
    {"Piston Acceleration", 0.25, false},
    {"Piston Flow", 0.15, true},
    {"Piston Travel", 0.4, false},
    {"Rod Angle", 0.2, true},
    {"Cylinder Volume", 0.4, false},
    {"DW Piston Travel", 0.3333334, false},
    {"DW Piston Velocity", 0.3333334, false},
    {"DW Piston Acceleration", 0.3333334, false},
    {"Piston Flow", 0.17, true},
    {"Piston Side Force", 0.5, false},
    {"Reciprocating Force", 0.5, false},
    {"Mean Piston Speed", 1, false},
    {"Max Piston Speed", 1, false},
    {"Bearing Speed", 1, false},
    {"Piston Inertia Force", 0.5, false},
    {"Crank Pin Tangent Force", 0.5, false},
    {"Instantaneous Torque", 0.5, false},
    {"Crank Rod Angle", 0.2, true},
    {"Piston Demand - Port Velocity", 0.25, true},
    {"Cylinder Volume Change cc's", 1, true},
    {"Piston Demand - Port Depression", 0.25, true},
    {"% Total Volume Change", 1, true},
    {"Pressure Differential (\" Water) from % Total Volume Change", 1, true},
}};

const GraphKind& KindOf(PistonGraph graph) {
  return kKinds.at(static_cast<std::size_t>(graph));
}

bool IsOverRpm(PistonGraph graph) {
  return graph == PistonGraph::MeanPistonSpeed || graph == PistonGraph::MaxPistonSpeed ||
         graph == PistonGraph::BearingSpeed;
}

AngleOrigin OriginOf(PistonGraph graph) {
  switch (graph) {
    case PistonGraph::WheelTravel:
    case PistonGraph::WheelVelocity:
    case PistonGraph::WheelAcceleration:
    case PistonGraph::WheelFlow: return AngleOrigin::DegreeWheel;
    default: return AngleOrigin::Crank;
  }
}

/// Crank degrees that a graph sweeps, and how they stand on the X axis.
struct Sweep {
  double high;
  double step;
  bool wraps;  ///< angles above 180 stand below 0
};

Sweep SweepOf(const PistonGraphInput& in) {
  const GraphKind& kind = KindOf(in.graph);
  if (in.graph == PistonGraph::RodAngle && in.table.offset != 0) return {360, 0.4, false};
  if (kind.halfTurn) return {180, kind.step, false};
  return {in.axis == CrankAxis::To180 ? 180.0 : 360.0, kind.step,
          in.axis == CrankAxis::From180To180};
}

// ---------------------------------------------------------------- values that limits need

/// The row of the velocity table at the piston's fastest point, whose angle is read back
/// from a field with five decimals.
VelocityRow FastestRow(const PistonGraphInput& in) {
  const AngleOrigin origin = OriginOf(in.graph);
  const double degrees = FastestPointOf(in.table, origin).degrees;
  const double shown =
      ParseNumber(FormatValue<"0.00000">(degrees, DecimalMark::Point), DecimalMark::Point);
  return VelocityRowAt(in.table, origin, shown);
}

CrankpinForces ForcesAt(const PistonGraphInput& in, double degrees) {
  return CrankpinForcesAt(in.table.Slider(), in.table.rpm, in.table.weights, degrees);
}

double LargestAtProbes(const PistonGraphInput& in, double CrankpinForces::*force) {
  double largest = 0;
  for (const double degrees : {36.0, 243.0, 118.0, 324.0}) {
    largest = std::fmax(largest, std::abs(ForcesAt(in, degrees).*force));
  }
  return largest;
}

double SweptCc(const PistonGraphInput& in) {
  return PistonArea(in.table.Inches(in.table.bore)) * ActualStroke(in.table.Slider()) /
         kCubicInchesPerCc;
}

/// Air speed in the port in feet a second.
double PortFeetPerSecond(const PistonGraphInput& in, double degrees) {
  const double ratio = PortSpeedRatio(in.volumetricEfficiency, in.table.bore, in.portDiameter);
  return PistonStateAt(in.table.Slider(), in.table.rpm, degrees).velocity * ratio;
}

double PortDepressionAt(double portFeetPerSecond) {
  const double root = 2 * portFeetPerSecond / 1.25 / 66.2;
  return root * root;
}

/// The largest part of the volume that an axis shows.
double LargestChange(double compressionRatio) {
  if (compressionRatio > 25) return 0.08;
  if (compressionRatio >= 15) return 0.05;
  if (compressionRatio >= 9.5) return 0.04;
  return 0.03;
}

/// Inches of water by which the pressure differs once the volume has grown by a fraction.
double PressureDrop(double fraction) {
  return (kStandardAtmospherePsi - kStandardAtmospherePsi / (fraction + 1)) * kInchesOfWaterPerPsi;
}

double FlowLimit(double flow, bool metric) {
  if (!metric) return 10 * Floor(flow / 10) + 10;
  if (flow < 1) return Floor(flow * 100) / 100 + 0.01;
  if (flow <= 7) return Floor(flow * 10) / 10 + 0.1;
  return Floor(flow) + 1;
}

double VolumeChangeLimit(double cc) {
  if (cc < 0.1) return (Floor(cc * 100) + 1) / 10000;
  if (cc < 1) return (Floor(cc * 10) + 1) / 1000;
  if (cc < 10) return Floor(cc) / 100;
  return Floor(cc / 10) / 10;
}

double DepressionLimit(double depression) {
  if (depression > 150) return 100 * Floor((depression + 99) / 100);
  if (depression > 15) return 10 * Floor((depression + 9.9) / 10);
  if (depression > 2) return Floor(depression + 0.99);
  return (Floor(depression * 10) + 1) / 10;
}

/// The high limit of a graph of forces: whole hundreds above the probe.
double ForceLimit(double newtons, bool metric) {
  return metric ? 100 * Floor(newtons / 100) + 300
                : 100 * Floor(newtons / kNewtonsPerPound / 100) + 200;
}

// ---------------------------------------------------------------- graphs over RPM

/// The value of a graph over RPM, as a function of the RPM.
std::function<double(double)> ValueOverRpm(const PistonGraphInput& in) {
  const PistonTable& table = in.table;
  const double toShown = table.metric ? kMetresPerFoot : 1;
  switch (in.graph) {
    case PistonGraph::MeanPistonSpeed:
      return [=, stroke = table.Inches(table.stroke)](double rpm) {
        return stroke * rpm / kFeetPerInchSpeed * toShown;
      };
    case PistonGraph::BearingSpeed:
      return [=, diameter = table.Inches(in.journalDiameter)](double rpm) {
        return JournalSpeed(diameter, rpm) * toShown;
      };
    default: break;
  }
  if (table.offset == 0) {
    return [=, stroke = table.Inches(table.stroke), rodLength = table.Inches(table.rodLength)](
               double rpm) { return FastestPistonSpeed(stroke, rodLength, rpm) * toShown; };
  }
  constexpr double kSecondsPerMinute = 60;
  const CrankSlider slider = table.Slider();
  // The angle does not depend on the speed.
  const double degrees = FastestCrankAngle(slider, std::fmax(table.rpm, 1));
  return [=](double rpm) {
    return PistonStateAt(slider, rpm, degrees).velocity * kSecondsPerMinute * toShown;
  };
}

// ---------------------------------------------------------------- graphs over degrees

/// The value of a graph over degrees. Graphs of a change remember the row before.
std::function<double(double)> ValueOverDegrees(const PistonGraphInput& in) {
  const PistonTable& table = in.table;
  const AngleOrigin origin = OriginOf(in.graph);
  const auto force = [&in](double CrankpinForces::*member, double scale) {
    return [in, member, scale](double d) { return ForcesAt(in, d).*member * scale; };
  };
  const double pounds = table.metric ? kNewtonsPerPound : 1;
  const double newtons = table.metric ? 1 : 1 / kNewtonsPerPound;
  switch (in.graph) {
    case PistonGraph::Velocity:
    case PistonGraph::WheelVelocity:
      return [=](double d) { return VelocityRowAt(table, origin, d).velocity; };
    case PistonGraph::Acceleration:
    case PistonGraph::WheelAcceleration:
      return [=, absolute = in.absolute](double d) {
        const double acceleration = VelocityRowAt(table, origin, d).acceleration;
        return absolute ? std::abs(acceleration) : acceleration;
      };
    case PistonGraph::Flow:
    case PistonGraph::WheelFlow:
      return [=](double d) { return VelocityRowAt(table, origin, d).flow; };
    case PistonGraph::WheelTravel:
      return [=](double d) { return VelocityRowAt(table, origin, d).travel; };
    case PistonGraph::Travel: return [=](double d) { return TravelRowAt(table, d).travel; };
    case PistonGraph::RodAngle: return [=](double d) { return TravelRowAt(table, d).rodAngle; };
    case PistonGraph::CrankRodAngle:
      return [=](double d) { return TravelRowAt(table, d).crankRodAngle; };
    case PistonGraph::CylinderVolume: return [=](double d) { return TravelRowAt(table, d).cc; };
    case PistonGraph::SideForce: return force(&CrankpinForces::sidePounds, pounds);
    case PistonGraph::ReciprocatingForce:
      return force(&CrankpinForces::reciprocatingNewtons, newtons);
    case PistonGraph::InertiaForce: return force(&CrankpinForces::inertiaNewtons, newtons);
    case PistonGraph::TangentForce: return force(&CrankpinForces::tangentNewtons, newtons);
    case PistonGraph::Torque:
      return force(&CrankpinForces::torqueNewtonMetres,
                   table.metric ? 1 : 1 / kNewtonMetresPerFootPound);
    case PistonGraph::PortVelocity:
      return
          [=](double d) { return PortFeetPerSecond(in, d) * (table.metric ? kMetresPerFoot : 1); };
    case PistonGraph::PortDepression:
      return [=](double d) { return PortDepressionAt(PortFeetPerSecond(in, d)); };
    case PistonGraph::VolumeChange:
      return [=, before = 0.0](double d) mutable {
        const double cc = TravelRowAt(table, d).cc;
        const double change = cc - before;
        before = cc;
        return change;
      };
    case PistonGraph::TotalVolumeChange:
    case PistonGraph::PressureDifferential:
      return [=, before = 0.0,
              clearance = SweptCc(in) / (in.compressionRatio - 1)](double d) mutable {
        const double cc = TravelRowAt(table, d).cc;
        const double fraction = ((cc + clearance) - (before + clearance)) / (before + clearance);
        before = cc;
        return in.graph == PistonGraph::TotalVolumeChange ? 100 * fraction : PressureDrop(fraction);
      };
    case PistonGraph::MeanPistonSpeed:
    case PistonGraph::MaxPistonSpeed:
    case PistonGraph::BearingSpeed: break;
  }
  return {};
}

/// Limits of the Y axis.
struct Limits {
  double low;
  double high;
};

Limits LimitsOf(const PistonGraphInput& in) {
  const PistonTable& table = in.table;
  const auto fromZero = [](double high) { return Limits{0, high}; };
  const auto bothSides = [](double high) { return Limits{-high, high}; };
  switch (in.graph) {
    case PistonGraph::Velocity:
    case PistonGraph::WheelVelocity: {
      const double high = 10 * Floor(FastestRow(in).velocity / 10) + 10;
      return in.axis == CrankAxis::To180 ? fromZero(high) : bothSides(high);
    }
    case PistonGraph::Acceleration:
    case PistonGraph::WheelAcceleration: {
      const double top = VelocityRowAt(table, OriginOf(in.graph), 0).acceleration;
      const double high = 100 * Floor(top / 100) + 100;
      return in.absolute ? fromZero(high) : bothSides(high);
    }
    case PistonGraph::Flow:
    case PistonGraph::WheelFlow: return fromZero(FlowLimit(FastestRow(in).flow, table.metric));
    case PistonGraph::Travel: {
      const double actual = ActualStroke(table.Slider()) * (table.metric ? kMillimetresPerInch : 1);
      // An engine without offset has exactly its stroke.
      return fromZero(table.offset == 0 ? table.stroke : std::fmax(table.stroke, actual));
    }
    case PistonGraph::RodAngle: {
      const double high = Floor(TravelRowAt(table, 90).rodAngle) + 1;
      return table.offset == 0 ? fromZero(high) : bothSides(high);
    }
    case PistonGraph::CylinderVolume: return fromZero(10 * Floor(SweptCc(in) / 10) + 10);
    case PistonGraph::WheelTravel:
      return fromZero(table.metric ? Floor(table.stroke * 10) / 10 + 0.1
                                   : Floor(table.stroke * 100) / 100 + 0.01);
    case PistonGraph::SideForce: {
      const double pounds = LargestAtProbes(in, &CrankpinForces::sidePounds);
      return bothSides(ForceLimit(pounds * kNewtonsPerPound, table.metric));
    }
    case PistonGraph::ReciprocatingForce:
    case PistonGraph::InertiaForce:
      return bothSides(ForceLimit(ForcesAt(in, 0).reciprocatingNewtons, table.metric));
    case PistonGraph::TangentForce:
      return bothSides(
          ForceLimit(LargestAtProbes(in, &CrankpinForces::tangentNewtons), table.metric));
    case PistonGraph::Torque: {
      const double largest = LargestAtProbes(in, &CrankpinForces::torqueNewtonMetres) /
                             (table.metric ? 1 : kNewtonMetresPerFootPound);
      return bothSides(100 * Floor(largest / 100) + 100);
    }
    case PistonGraph::MeanPistonSpeed:
    case PistonGraph::MaxPistonSpeed:
    case PistonGraph::BearingSpeed: return fromZero(ValueOverRpm(in)(table.rpm));
    case PistonGraph::CrankRodAngle: return fromZero(180);
    case PistonGraph::PortVelocity: {
      const double speed = PortFeetPerSecond(in, kFastPortAngle);
      return fromZero(table.metric ? 10 * Floor(speed * kMetresPerFoot / 10) + 10
                                   : 100 * Floor((speed + 99) / 100));
    }
    case PistonGraph::VolumeChange: return fromZero(VolumeChangeLimit(SweptCc(in)));
    case PistonGraph::PortDepression:
      return fromZero(DepressionLimit(PortDepressionAt(PortFeetPerSecond(in, kFastPortAngle))));
    case PistonGraph::TotalVolumeChange: return fromZero(100 * LargestChange(in.compressionRatio));
    case PistonGraph::PressureDifferential:
      return fromZero(PressureDrop(LargestChange(in.compressionRatio)) + 1);
  }
  return {};
}

}  // namespace

GraphFrame PistonGraphFrame(const PistonGraphInput& input) {
  GraphFrame frame;
  const Limits limits = LimitsOf(input);
  frame.range.yLow = limits.low;
  frame.range.yHigh = limits.high;
  if (IsOverRpm(input.graph)) {
    frame.range.xHigh = input.table.rpm;
    frame.xPointer = "<--- RPM";
    frame.xName = "RPM";
  } else {
    const Sweep sweep = SweepOf(input);
    frame.range.xLow = sweep.wraps ? -180 : 0;
    frame.range.xHigh = sweep.wraps ? 180 : sweep.high;
    frame.xPointer = "<--- Degees";
    frame.xName = "Degrees";
    frame.crankAngle = true;
  }
  frame.title = KindOf(input.graph).title;
  frame.yPointer = "<--- " + frame.title;
  frame.zeroLine = limits.low < 0;
  return frame;
}

GraphCurve PistonGraphCurve(const PistonGraphInput& input, DecimalMark mark) {
  GraphCurve curve;
  curve.note = PistonGraphNote(input, mark);
  if (IsOverRpm(input.graph)) {
    const auto value = ValueOverRpm(input);
    StepBound bound(kMostGraphPoints);
    const double last = std::fmin(std::fmax(input.table.rpm, 0), kMostGraphPoints);
    curve.points.reserve(static_cast<std::size_t>(last) + 1);
    for (double rpm = 0; rpm <= input.table.rpm; ++rpm) {
      bound.Step();
      curve.points.push_back({rpm, value(rpm)});
    }
    return curve;
  }
  const Sweep sweep = SweepOf(input);
  auto value = ValueOverDegrees(input);
  curve.points.reserve(static_cast<std::size_t>(sweep.high / sweep.step) + 2);
  for (double d = 0; d <= sweep.high; d += sweep.step) {
    const bool moved = sweep.wraps && d > 180;
    if (moved && curve.moves.empty()) curve.moves.push_back(curve.points.size());
    curve.points.push_back({moved ? d - 360 : d, value(d)});
  }
  return curve;
}

std::string PistonGraphNote(const PistonGraphInput& input, DecimalMark mark) {
  const PistonTable& table = input.table;
  const auto text = [mark](double value) { return FormatValue<"0.0#####">(value, mark); };
  std::string note = "Bore = " + text(table.bore) + "   Stroke = " + text(table.stroke) +
                     "   Rod Length = " + text(table.rodLength) +
                     "   RPM = " + FormatInt(table.rpm, mark);
  if (table.offset != 0) note += "  Wrist Pin Offset = " + text(table.offset);
  switch (input.graph) {
    case PistonGraph::SideForce:
    case PistonGraph::ReciprocatingForce:
    case PistonGraph::InertiaForce:
    case PistonGraph::TangentForce:
    case PistonGraph::Torque:
      note +=
          "  Piston = " + text(table.weights.piston) + "  Rod = " + text(table.weights.rod) + "  ";
      break;
    case PistonGraph::BearingSpeed:
      note += "Journal Diameter = " + text(input.journalDiameter) + "   ";
      break;
    case PistonGraph::PortVelocity:
    case PistonGraph::PortDepression:
      note += "  VE = " + text(input.volumetricEfficiency) +
              "  Port Dia = " + text(input.portDiameter) + "   ";
      break;
    case PistonGraph::TotalVolumeChange:
    case PistonGraph::PressureDifferential:
      note += "  CR = " + text(input.compressionRatio) + "   ";
      break;
    default: break;
  }
  return note;
}

}  // namespace veldox
