#include "airfuel/port_time_area.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/units.h"
#include "engine/displacement.h"

namespace veldox {

namespace {

constexpr double kDegreesInTurn = 360;
constexpr double kInchesInFoot = 12;
constexpr double kFeetPerSecondOfFlowPerArea = 2.4;  // 144 square inches by 60 seconds
/// Velocity without loss at an inch of water, feet per second.
constexpr double kSpeedAtInchWater = 66.2;
/// CFM to cc in a millisecond.
constexpr double kCcPerMillisecond = 28316.84659 / 60000;
/// Whole CFM per square inch at 28 inches of water.
constexpr double kFullFlow = 146;

double Radians(double degrees) {
  return degrees * kPi / (kDegreesInTurn / 2);
}

double SignedSquare(double x) {
  return x * std::abs(x);
}

/// Inches of water that a velocity takes; below 0 for one the other way.
double DepressionOf(double speed) {
  return SignedSquare(speed / kSpeedAtInchWater);
}

}  // namespace

// ---------------------------------------------------------------- curves

ValveCurve CurveOfLobe(std::span<const double> camLifts, double step, double start,
                       const ValveGear& gear) {
  ValveCurve curve;
  curve.reserve(camLifts.size());
  for (std::size_t i = 0; i < camLifts.size(); ++i) {
    curve.push_back({start + static_cast<double>(i) * step, camLifts[i],
                     std::max(0.0, ValveLiftOf(camLifts[i], gear))});
  }
  return curve;
}

ValveCurve CurveOfDurations(std::span<const LiftDuration> rows, double centerline,
                            const ValveGear& gear) {
  std::vector<LiftDuration> flank(rows.begin(), rows.end());
  if (flank.size() > 1 && flank[0].lift > 0) {
    const double degreesPerLift =
        (flank[0].duration - flank[1].duration) / (flank[1].lift - flank[0].lift);
    flank.insert(flank.begin(), {0, flank[0].duration + flank[0].lift * degreesPerLift});
  }
  const auto camLift = [&](double lift) { return (lift + gear.lash) / gear.ratio; };
  ValveCurve curve;
  if (flank.empty()) return curve;
  const double longest = flank.front().duration;
  const double opens = centerline - longest / 2;
  const double closes = centerline + longest / 2;
  for (const LiftDuration& row : flank) {
    curve.push_back({opens + (longest - row.duration) / 2, camLift(row.lift), row.lift});
  }
  for (auto row = flank.rbegin(); row != flank.rend(); ++row) {
    curve.push_back({closes - (longest - row->duration) / 2, camLift(row->lift), row->lift});
  }
  return curve;
}

std::optional<LiftEvents> EventsAt(const ValveCurve& curve, double level,
                                   double ValvePoint::*lift) {
  // A curve that just reaches a lift is open by it; one at no lift is closed.
  const auto isAbove = [&](const ValvePoint& point) {
    return level > 0 ? point.*lift >= level : point.*lift > 0;
  };
  const auto first = std::ranges::find_if(curve, isAbove);
  if (first == curve.end()) return std::nullopt;
  if (level > 0 && std::max(curve.front().*lift, curve.back().*lift) > level) return std::nullopt;
  const auto behind = std::find_if(curve.rbegin(), curve.rend(), isAbove).base();
  // Between a point that is not above the level and one that is.
  const auto crossing = [&](const ValvePoint& below, const ValvePoint& above) {
    const double part = (level - below.*lift) / (above.*lift - below.*lift);
    return ValvePoint{below.degrees + part * (above.degrees - below.degrees), level, level};
  };
  ValveCurve span(first, behind);
  if (first != curve.begin()) span.insert(span.begin(), crossing(*(first - 1), *first));
  if (behind != curve.end()) span.push_back(crossing(*behind, *(behind - 1)));
  LiftEvents events{span.front().degrees, span.back().degrees, 0};
  for (std::size_t i = 1; i < span.size(); ++i) {
    events.area +=
        (span[i].*lift + span[i - 1].*lift) / 2 * (span[i].degrees - span[i - 1].degrees);
  }
  return events;
}

std::optional<double> IntensityOf(const ValveCurve& curve, double lowerLift) {
  const auto lower = EventsAt(curve, lowerLift, &ValvePoint::camLift);
  const auto upper = EventsAt(curve, kIntensityTop, &ValvePoint::camLift);
  if (!lower || !upper) return std::nullopt;
  return lower->duration() - upper->duration();
}

// ---------------------------------------------------------------- areas and flow

double TimeAreaEngine::VolumeCc() const {
  return PistonArea(bore) * stroke / kCubicInchesPerCc;
}

double MillisecondsPerDegree(double rpm) {
  return 1000 / (rpm * 6);
}

double OpenArea(const TimeAreaPort& port, double lift) {
  const PortValves& valves = port.port.valves;
  if (valves.HasSeat()) return FlowAreaAtLift(valves, lift, port.port.ThroatTotal());
  return valves.size * kPi * lift * valves.count;
}

double FlowAtLift(const FlowTable& table, double lift) {
  std::vector<FlowPoint> rows{{}};
  std::ranges::copy_if(table, std::back_inserter(rows),
                       [](const FlowPoint& row) { return row.lift > 0 && row.flow > 0; });
  std::ranges::stable_sort(rows, {}, &FlowPoint::lift);
  const auto above = std::ranges::upper_bound(rows, lift, {}, &FlowPoint::lift);
  if (above == rows.end()) return rows.back().flow;
  if (above == rows.begin()) return 0;
  const FlowPoint& below = *(above - 1);
  return below.flow + (above->flow - below.flow) * (lift - below.lift) / (above->lift - below.lift);
}

double CurtainCoefficientOf(const PortValves& valves, double flow, double lift) {
  return flow / (valves.size * kPi * kFlowPerSquareInch * lift * valves.count);
}

// ---------------------------------------------------------------- the walk

std::vector<TimeAreaRow> WalkCurve(const ValveCurve& curve, const TimeAreaPort& port,
                                   const TimeAreaEngine& engine, double userCoefficient) {
  const CrankSlider slider = engine.Slider();
  const double volumeCc = engine.VolumeCc();
  const double milliseconds = MillisecondsPerDegree(engine.rpm);
  const double throat = port.port.ThroatTotal();
  const double angle = Radians(port.valveAngle);
  std::vector<TimeAreaRow> rows;
  double speedBefore = 0;
  for (std::size_t i = 0; i < curve.size(); ++i) {
    const ValvePoint& point = curve[i];
    TimeAreaRow row;
    row.degrees = point.degrees;
    row.camLift = point.camLift;
    row.lift = point.lift;
    row.from = i == 0 ? point.degrees : (curve[i - 1].degrees + point.degrees) / 2;
    row.to = i + 1 == curve.size() ? point.degrees : (curve[i + 1].degrees + point.degrees) / 2;
    if (i > 0) {
      const double degrees = point.degrees - curve[i - 1].degrees;
      const double difference = point.lift - curve[i - 1].lift;
      row.rise = difference / degrees;
      row.speed = difference / kInchesInFoot * (engine.rpm / 60) * (kDegreesInTurn / degrees);
      row.acceleration = (*row.speed - speedBefore) * engine.rpm * 6 / 10000;
      speedBefore = *row.speed;
    }
    if (!(point.lift > 0)) continue;
    row.area = OpenArea(port, point.lift);
    const double areaCm2 = row.area * kSquareCentimetresPerSquareInch;
    row.timeArea = areaCm2 * milliseconds * row.span();
    row.timeAreaPerCc = areaCm2 / volumeCc * milliseconds * row.span();
    const PistonState piston = PistonStateAt(slider, engine.rpm, point.degrees);
    row.travel = piston.travel;
    row.volume = PistonArea(engine.bore) * piston.travel / kCubicInchesPerCc;
    row.demand = PistonFlowCfm(engine.bore, port.isExhaust ? -piston.velocity : piston.velocity);
    row.areaSpeed = row.demand / row.area * kFeetPerSecondOfFlowPerArea;
    row.effectiveSpeed = row.areaSpeed / userCoefficient;
    row.throatSpeed = row.demand / throat * kFeetPerSecondOfFlowPerArea;
    row.mcsaSpeed = row.demand / port.port.mcsa * kFeetPerSecondOfFlowPerArea;
    row.depression = DepressionOf(row.areaSpeed);
    row.userDepression = DepressionOf(row.effectiveSpeed);
    row.flow = FlowAtLift(port.flow, point.lift);
    row.coefficient = CurtainCoefficientOf(port.port.valves, row.flow, point.lift);
    row.liftRatio = point.lift / port.port.valves.size;
    row.vertical = point.lift * std::cos(angle);
    row.horizontal = point.lift * std::sin(angle);
    rows.push_back(row);
  }
  return rows;
}

double TimeAreaBetween(std::span<const TimeAreaRow> rows, double from, double to) {
  double sum = 0;
  for (const TimeAreaRow& row : rows) {
    const double part = std::min(row.to, to) - std::max(row.from, from);
    if (part > 0) sum += row.timeArea * part / row.span();
  }
  return sum;
}

TimeAreaTotals TotalsOf(std::span<const TimeAreaRow> rows, const TimeAreaPort& port,
                        const TimeAreaEngine& engine, double duration) {
  TimeAreaTotals totals;
  double flowDegrees = 0;
  for (const TimeAreaRow& row : rows) {
    totals.timeArea += row.timeArea;
    totals.timeAreaPerCc += row.timeAreaPerCc;
    flowDegrees += row.flow * row.span();
  }
  const PortValves& valves = port.port.valves;
  const double valveArea = CircleArea(valves.size) * valves.count;
  totals.cycleEfficiency =
      flowDegrees * kCcPerMillisecond * MillisecondsPerDegree(engine.rpm) / engine.VolumeCc();
  totals.maxTotal = duration * kFullFlow;
  totals.throatTotal = flowDegrees / port.port.ThroatTotal();
  totals.netValveTotal = flowDegrees / (valveArea - CircleArea(valves.stem) * valves.count);
  totals.valveTotal = flowDegrees / valveArea;
  return totals;
}

std::optional<ValveClearance> LeastClearance(std::span<const TimeAreaRow> rows, double atTop) {
  const auto room = [&](const TimeAreaRow& row) { return atTop + row.travel - row.vertical; };
  const auto least = std::ranges::min_element(rows, {}, room);
  if (least == rows.end()) return std::nullopt;
  return ValveClearance{room(*least), least->degrees};
}

}  // namespace veldox
