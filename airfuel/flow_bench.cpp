#include "airfuel/flow_bench.h"

#include <array>
#include <cmath>

namespace veldox {

namespace {

constexpr double kDegree = 0.0174532925199433;
constexpr double kSquareInchesPerSquareFoot = 144;
constexpr double kSecondsPerMinute = 60;

/// Velocity of a flow through an area.
double SpeedThrough(double flow, double area) {
  return flow / (area / kSquareInchesPerSquareFoot) / kSecondsPerMinute;
}

}  // namespace

double TestVelocity(double pressure) {
  return std::sqrt(pressure) * 66.2 / 2.4;
}

double FlowAtTablePressure(double flow, double pressure) {
  return std::sqrt(kTablePressure / pressure) * flow;
}

double CircleArea(double diameter) {
  return (diameter / 2) * (diameter / 2) * kPi;
}

double ThroatArea(const PortValves& valves, ThroatMeasure measure) {
  const double stem = CircleArea(valves.stem);
  switch (measure) {
    case ThroatMeasure::RatioOfValve: return CircleArea(valves.size * valves.throat) - stem;
    case ThroatMeasure::Area: return valves.throat - stem;
    case ThroatMeasure::Diameter: break;
  }
  return CircleArea(valves.throat) - stem;
}

double UsualMcsa(const PortValves& valves, double part) {
  return CircleArea(valves.size) * valves.count * part;
}

SeatGeometry::SeatGeometry(const PortValves& valves)
    : sine(std::sin(valves.seatAngle * kDegree)),
      cosine(std::cos(valves.seatAngle * kDegree)),
      seenWidth(cosine * valves.seatWidth) {}

double SeatMinorDiameter(const PortValves& valves) {
  return valves.size - 2 * SeatGeometry(valves).seenWidth;
}

double FlowAreaAtLift(const PortValves& valves, double lift, double throatTotal) {
  const SeatGeometry seat(valves);
  const double circles = valves.count * kPi;
  if (valves.seatWidth / seat.sine > lift) {
    return (valves.size - 2 * seat.seenWidth + lift * seat.sine * seat.cosine) *
           (lift * seat.cosine) * circles;
  }
  const double rise = lift - seat.sine * valves.seatWidth;
  const double slant = std::sqrt(rise * rise + seat.seenWidth * seat.seenWidth);
  const double aboveSeats = (valves.size - seat.seenWidth) * circles * slant;
  return throatTotal < aboveSeats ? throatTotal : aboveSeats;
}

double PeakPistonCfm(double bore, double stroke, double rod, double rpm) {
  return std::pow(1.7 / (rod / stroke), 0.1) * (CircleArea(bore) * stroke * rpm * 0.000947);
}

void FlowPort::CountAsIntake() {
  throatSpeedCount = curtainCount = otherCount = valves.count;
}

void FlowPort::CountAsExhaust(double intakeCount) {
  throatSpeedCount = curtainCount = valves.count;
  otherCount = intakeCount;
}

double ThroatSpeed(const FlowPort& port, double flow) {
  return SpeedThrough(flow, port.throatArea) / port.throatSpeedCount;
}

double CurtainSpeed(const FlowPort& port, const FlowPoint& point) {
  return SpeedThrough(point.flow, point.lift * port.valves.size * kPi) / port.otherCount;
}

double ValveSpeed(const FlowPort& port, double flow) {
  return SpeedThrough(flow, CircleArea(port.valves.size)) / port.otherCount;
}

double McsaSpeed(const FlowPort& port, double flow) {
  return SpeedThrough(flow, port.mcsa);
}

double CurtainArea(const FlowPort& port, double lift) {
  return port.valves.size * kPi * lift * port.curtainCount;
}

double CurtainCoefficient(const FlowPort& port, const FlowPoint& point, double testVelocity) {
  return point.flow / (port.valves.size * kPi * testVelocity * point.lift) / port.curtainCount;
}

double ThroatCoefficient(const FlowPort& port, double flow, double testVelocity) {
  return flow / (port.throatArea * testVelocity) / port.otherCount;
}

double ValveCoefficient(const FlowPort& port, double flow, double testVelocity) {
  return flow / (CircleArea(port.valves.size) * testVelocity) / port.otherCount;
}

double McsaCoefficient(const FlowPort& port, double flow, double testVelocity) {
  return flow / (port.mcsa * testVelocity);
}

double ThroatFlow(const FlowPort& port, double flow) {
  return flow / port.throatArea / port.otherCount;
}

double ValveFlow(const FlowPort& port, double flow) {
  return flow / CircleArea(port.valves.size) / port.otherCount;
}

double CurtainFlow(const FlowPort& port, const FlowPoint& point) {
  return point.flow / CurtainArea(port, point.lift);
}

double McsaFlow(const FlowPort& port, double flow) {
  return flow / port.mcsa;
}

FlowFigurePair FiguresOf(FlowFigures figures, const FlowPort& port, const FlowPoint& point,
                         double testVelocity) {
  switch (figures) {
    case FlowFigures::Original: break;
    case FlowFigures::Curtain:
      return {CurtainSpeed(port, point), CurtainCoefficient(port, point, testVelocity)};
    case FlowFigures::Throat:
      return {ThroatSpeed(port, point.flow), ThroatCoefficient(port, point.flow, testVelocity)};
    case FlowFigures::Valve:
      return {ValveSpeed(port, point.flow), ValveCoefficient(port, point.flow, testVelocity)};
    case FlowFigures::FlowPerArea:
      return {ThroatFlow(port, point.flow), ValveFlow(port, point.flow)};
  }
  return {ThroatSpeed(port, point.flow), CurtainCoefficient(port, point, testVelocity)};
}

FlowFigureHeads HeadsOf(FlowFigures figures) {
  constexpr const char* kCoefficient = "Discharge Coefficient";
  switch (figures) {
    case FlowFigures::Original: break;
    case FlowFigures::Curtain: return {"Velocity @ Curtain fps", kCoefficient};
    case FlowFigures::Throat: return {"Velocity @ Throat fps", kCoefficient};
    case FlowFigures::Valve: return {"Velocity @ Valve fps", kCoefficient};
    case FlowFigures::FlowPerArea: return {"CFM per Sq In @ Throat", "CFM per Sq In @ Valve"};
  }
  return {"Velocity @ Throat fps", kCoefficient};
}

}  // namespace veldox
