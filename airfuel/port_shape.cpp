#include "airfuel/port_shape.h"

#include <cmath>

#include "core/numbers.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr double kHalfTurn = 180;
constexpr double kRightAngle = 90;
constexpr double kFeetPerSecondOfFlowPerArea = 2.4;  // 144 square inches by 60 seconds

double SineOf(double degrees) {
  return std::sin(degrees * kPi / kHalfTurn);
}

/// What a round corner leaves of a square one.
double CutOff(double radius) {
  return (radius * radius * 4 - radius * radius * kPi) / 4;
}

}  // namespace

double PortSectionArea(const PortSection& section) {
  return section.width * section.height -
         (CutOff(section.topLeft) + CutOff(section.topRight) + CutOff(section.bottomLeft) +
          CutOff(section.bottomRight));
}

double EquivalentDiameter(double area) {
  return std::sqrt(area / kPi) + std::sqrt(area / kPi);
}

double AverageArea(double volume, double length) {
  return volume / (length * kCcPerCubicInch);
}

double PortVolume(double area, double length) {
  return area * length * kCcPerCubicInch;
}

double PortLength(double volume, double area) {
  return volume / (area * kCcPerCubicInch);
}

double PortSpeed(double flow, double area) {
  return flow / area * kFeetPerSecondOfFlowPerArea;
}

double PortFlow(double speed, double area) {
  return speed * area / kFeetPerSecondOfFlowPerArea;
}

double PortAreaForFlow(double flow, double speed) {
  return flow / speed * kFeetPerSecondOfFlowPerArea;
}

double TaperAngle(const PortTaper& taper) {
  return std::atan(((taper.large - taper.small) / 2) / taper.length) * kHalfTurn / kPi;
}

double SideLength(const PortTaper& taper) {
  const double rise = (taper.large - taper.small) / 2;
  return std::sqrt(taper.length * taper.length + rise * rise);
}

double SideLengthByAngle(const PortTaper& taper, double angle) {
  return ((taper.large - taper.small) / 2) / SineOf(angle);
}

double AxisLength(double side, double angle) {
  return side * SineOf(kRightAngle - angle);
}

double LargeEnd(const PortTaper& taper, double angle) {
  return SineOf(angle) * taper.length + SineOf(angle) * taper.length + taper.small;
}

}  // namespace veldox
