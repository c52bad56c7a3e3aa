#pragma once

// Header tubes, collector and exhaust system of an engine. Lengths and diameters in inches, engine
// sizes in cubic inches, flow in cubic feet per minute.

namespace veldox {

/// An engine as its header sees it.
struct HeaderEngine {
  double size = 0;       ///< cubic inches, of all cylinders
  double cylinders = 0;  ///< number of them
};

/// Length of the tubes for a speed.
double TubeLengthFor(const HeaderEngine& engine, double tubeDiameter, double rpm);
/// Diameter of the tubes of a length for a speed.
double TubeDiameterFor(const HeaderEngine& engine, double tubeLength, double rpm);
/// The speed that tubes work at. @return RPM
double RpmOfTube(const HeaderEngine& engine, double tubeDiameter, double tubeLength);

/// Length of the tubes by the speed of most horsepower.
double TubeLengthForPower(double rpm);

/// Inside diameter of the tubes by the speed of the torque peak.
double TubeDiameterForTorque(const HeaderEngine& engine, double rpm);
/// The speed of the torque peak by the inside diameter of the tubes. @return RPM
double TorqueRpmOfTube(const HeaderEngine& engine, double tubeDiameter);

/// Inside diameter of the tubes by the exhaust port's flow at full lift. @param flow  CFM
double TubeDiameterForFlow(double flow);

/// The shortest collector. @param diameter  of the collector
double CollectorLengthFor(const HeaderEngine& engine, double diameter);

/// What the exhaust system must flow so that no power is lost. @return CFM
double SystemFlowFor(double horsepower);

}  // namespace veldox
