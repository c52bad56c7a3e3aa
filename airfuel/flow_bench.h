#pragma once

#include <array>
#include <cstddef>

#include "core/numbers.h"

// What a flow bench sheet tells of a port: velocities, discharge coefficients, flow per area, and
// the areas that they refer to. Lengths in inches, areas in square inches, flow in cubic feet per
// minute, velocities in feet per second.

namespace veldox {

/// Rows of a port's flow table.
inline constexpr std::size_t kFlowRows = 16;

/// The depression that flow tables are kept at, inches of water.
inline constexpr double kTablePressure = 28;

/// A row of a flow bench sheet.
struct FlowPoint {
  double lift = 0;  ///< inches; a row without lift is none
  double flow = 0;  ///< CFM
};
using FlowTable = std::array<FlowPoint, kFlowRows>;

/// How a port's throat is told.
enum class ThroatMeasure {
  RatioOfValve = 0,  ///< its diameter by the valve's
  Area = 1,          ///< square inches
  Diameter = 2,      ///< inches
};

/// The valves of a port.
struct PortValves {
  double size = 0;       ///< diameter of one, inches
  double stem = 0;       ///< diameter of its stem, inches
  double throat = 0;     ///< as the measure says
  double count = 0;      ///< valves in a cylinder
  double seatAngle = 0;  ///< degrees
  double seatWidth = 0;  ///< inches

  /// Both seat values are told.
  bool HasSeat() const { return seatAngle > 0 && seatWidth > 0; }
};

/// Flow of a square inch without loss.
/// @param pressure  test pressure, inches of water
/// @return CFM per square inch; 145.957 at 28 inches of water
double TestVelocity(double pressure);

/// Flow at the depression of the tables. @param pressure  at which it was measured, inches of water
double FlowAtTablePressure(double flow, double pressure);

/// The throat of one valve less its stem, square inches.
double ThroatArea(const PortValves& valves, ThroatMeasure measure);

/// The area of a circle, square inches. @param diameter  inches
double CircleArea(double diameter);

/// The parts of the valve area that stand for a minimum cross-section nobody has measured.
inline constexpr double kIntakeMcsaPart = 0.77654321;
inline constexpr double kExhaustMcsaPart = 0.787654321;

/// A port's usual minimum cross-section for all of its valves, square inches.
double UsualMcsa(const PortValves& valves, double part);

/// A valve seat.
struct SeatGeometry {
  explicit SeatGeometry(const PortValves& valves);

  double sine;       ///< of the seat angle
  double cosine;     ///< of the seat angle
  double seenWidth;  ///< the seat's width as seen along the stem, inches
};

/// The inner diameter of the seat, inches.
double SeatMinorDiameter(const PortValves& valves);

/// The least area that the flow of a port passes at a lift, by the three stages of a poppet valve:
/// between the seats, above the seats, and in the throat.
/// @param lift         inches, above 0
/// @param throatTotal  of all valves less their stems, square inches
/// @return square inches of all valves
/// (Heywood, Internal Combustion Engine Fundamentals, 6.3.1)
double FlowAreaAtLift(const PortValves& valves, double lift, double throatTotal);

/// The flow at the fastest piston of a stroke, on the scale of port flow.
/// @param bore    inches
/// @param stroke  inches
/// @param rod     length of the connecting rod, inches
/// @return CFM
double PeakPistonCfm(double bore, double stroke, double rod, double rpm);

/// A port, with all that the figures of a row are made of.
struct FlowPort {
  PortValves valves;
  double throatArea = 0;  ///< of one valve less its stem, square inches
  double mcsa = 0;        ///< minimum cross-section of the port, square inches
  /// Valves that share the flow. Not all figures of the exhaust count its own.
  double throatSpeedCount = 1;
  double curtainCount = 1;  ///< for coefficient, area and flow per area at the curtain
  double otherCount = 1;

  /// The throats of all valves, square inches.
  double ThroatTotal() const { return throatArea * valves.count; }
  /// The figures count valves as the intake does: its own throughout.
  void CountAsIntake();
  /// The exhaust's throat velocity and curtain count its own valves, all else the intake's.
  void CountAsExhaust(double intakeCount);
};

// Figures of a row. The curtain's need a lift above 0.

double ThroatSpeed(const FlowPort& port, double flow);
double CurtainSpeed(const FlowPort& port, const FlowPoint& point);
double ValveSpeed(const FlowPort& port, double flow);
double McsaSpeed(const FlowPort& port, double flow);

/// The curtain of all valves, square inches.
double CurtainArea(const FlowPort& port, double lift);

/// Discharge coefficients: the flow by that of an area without loss.
double CurtainCoefficient(const FlowPort& port, const FlowPoint& point, double testVelocity);
double ThroatCoefficient(const FlowPort& port, double flow, double testVelocity);
double ValveCoefficient(const FlowPort& port, double flow, double testVelocity);
double McsaCoefficient(const FlowPort& port, double flow, double testVelocity);

/// CFM per square inch.
double ThroatFlow(const FlowPort& port, double flow);
double ValveFlow(const FlowPort& port, double flow);
double CurtainFlow(const FlowPort& port, const FlowPoint& point);
double McsaFlow(const FlowPort& port, double flow);

/// What the two result columns of a flow table show.
enum class FlowFigures {
  Original = 0,  ///< velocity in the throat, coefficient at the curtain
  Curtain = 1,
  Throat = 2,
  Valve = 3,
  FlowPerArea = 4,  ///< CFM per square inch of throat and of valve
};
struct FlowFigurePair {
  double first = 0;
  double second = 0;
};
/// The figures of a row with a lift above 0.
FlowFigurePair FiguresOf(FlowFigures figures, const FlowPort& port, const FlowPoint& point,
                         double testVelocity);

/// The heads of both result columns.
struct FlowFigureHeads {
  const char* first;
  const char* second;
};
FlowFigureHeads HeadsOf(FlowFigures figures);

}  // namespace veldox
