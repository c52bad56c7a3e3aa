#pragma once

// The shape of a port: cross-section, volume, flow and taper. Lengths in inches, areas in square
// inches, angles in degrees; a cubic inch is 16.387064 cc.

namespace veldox {

/// A rectangular port with round corners.
struct PortSection {
  double width = 0;
  double height = 0;
  double topLeft = 0;  ///< radius of a corner
  double topRight = 0;
  double bottomLeft = 0;
  double bottomRight = 0;
};
/// Its cross-section, square inches.
double PortSectionArea(const PortSection& section);

/// The diameter of a circle of the same area, inches.
double EquivalentDiameter(double area);

/// @param volume  cc @param length  of the centreline @return square inches
double AverageArea(double volume, double length);
/// @param area  average cross-section @return cc
double PortVolume(double area, double length);
/// @param volume  cc @param area  average cross-section @return inches
double PortLength(double volume, double area);

/// Velocity of a flow. @param flow  CFM @return feet per second
double PortSpeed(double flow, double area);
/// @param speed  feet per second @return CFM
double PortFlow(double speed, double area);
/// The cross-section of a flow. @param flow  CFM @param speed  feet per second
double PortAreaForFlow(double flow, double speed);

/// A cone between two round ends.
struct PortTaper {
  double small = 0;   ///< diameter of the small end
  double large = 0;   ///< diameter of the large end
  double length = 0;  ///< along the axis
};
/// The angle between side and axis, degrees.
double TaperAngle(const PortTaper& taper);
/// The length of the side.
double SideLength(const PortTaper& taper);
/// The side that an angle above 0 makes between two ends.
double SideLengthByAngle(const PortTaper& taper, double angle);
/// The axis under a side.
double AxisLength(double side, double angle);
/// The large end, by the sine of the angle and the length.
double LargeEnd(const PortTaper& taper, double angle);

}  // namespace veldox
