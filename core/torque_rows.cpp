#include "core/torque_rows.h"

#include <cmath>

#include "core/error.h"
#include "core/units.h"

namespace veldox {

double TorqueInPoundFeet(double value, TorqueUnit unit, double rpm) {
  const bool isPower = unit != TorqueUnit::PoundFeet && unit != TorqueUnit::NewtonMetres;
  if (isPower && rpm == 0) {
    throw CommandError(ErrorKind::DivisionByZero, "is a power at 0 RPM, which gives no torque.");
  }
  double torque = value;
  switch (unit) {
    case TorqueUnit::PoundFeet: break;
    case TorqueUnit::Horsepower: torque = value * kRpmOfEqualTorqueAndPower / rpm; break;
    case TorqueUnit::NewtonMetres: torque = value / 1.3558179; break;
    case TorqueUnit::Kilowatts:
      torque = (value / kKilowattsPerHorsepower) * kRpmOfEqualTorqueAndPower / rpm;
      break;
    case TorqueUnit::MetricHorsepower:
      torque = (value * 0.9863) * kRpmOfEqualTorqueAndPower / rpm;
      break;
  }
  if (!std::isfinite(torque)) {
    throw CommandError(ErrorKind::Overflow, "is too large a torque.");
  }
  return torque;
}

}  // namespace veldox
