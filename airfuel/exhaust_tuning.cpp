#include "airfuel/exhaust_tuning.h"

#include <cmath>

#include "core/numbers.h"

namespace veldox {

namespace {

constexpr double kTubeVolume = 1900;    // of an eight cylinder, by cubic inch, RPM and square inch
constexpr double kCylindersOfTube = 8;  // that the number above is for
constexpr double kLengthAtPower = 204000;  // inch RPM
constexpr double kTorqueVolume = 88200;    // cubic inches in a minute through a square inch of tube
constexpr double kFlowToTube = 1.27;       // diameter squared by area: 4 / pi
constexpr double kFlowOfTubeArea = 80;     // CFM per square inch of tube
constexpr double kFlowPerHorsepower = 3.1875;
constexpr double kSystemPart = 0.8;

/// Tube length by diameter squared by RPM.
double TubeProduct(const HeaderEngine& engine) {
  return engine.size * kTubeVolume * (kCylindersOfTube / engine.cylinders);
}

}  // namespace

double TubeLengthFor(const HeaderEngine& engine, double tubeDiameter, double rpm) {
  return TubeProduct(engine) / (tubeDiameter * tubeDiameter * rpm);
}

double TubeDiameterFor(const HeaderEngine& engine, double tubeLength, double rpm) {
  return std::sqrt(TubeProduct(engine) / (tubeLength * rpm));
}

double RpmOfTube(const HeaderEngine& engine, double tubeDiameter, double tubeLength) {
  return TubeProduct(engine) / (tubeDiameter * tubeDiameter * tubeLength);
}

double TubeLengthForPower(double rpm) {
  return kLengthAtPower / rpm;
}

double TubeDiameterForTorque(const HeaderEngine& engine, double rpm) {
  return 2 * std::sqrt((engine.size / engine.cylinders) * rpm / kTorqueVolume / kPi);
}

double TorqueRpmOfTube(const HeaderEngine& engine, double tubeDiameter) {
  return (tubeDiameter / 2) * (tubeDiameter / 2) * kPi * kTorqueVolume /
         (engine.size / engine.cylinders);
}

double TubeDiameterForFlow(double flow) {
  return std::sqrt(flow * kFlowToTube / kFlowOfTubeArea);
}

double CollectorLengthFor(const HeaderEngine& engine, double diameter) {
  return engine.size / (diameter * diameter * kPi) * (kCylindersOfTube / engine.cylinders);
}

double SystemFlowFor(double horsepower) {
  return kFlowPerHorsepower * kSystemPart * horsepower;
}

}  // namespace veldox
