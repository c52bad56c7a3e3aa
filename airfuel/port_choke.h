#pragma once

// Where the ports of a cylinder choke: the speed that a valve lift is enough for, and what flows
// then. Lengths in inches, areas in square inches, flow in cubic feet per minute, velocities in
// feet per second.

namespace veldox {

/// How the exhaust side is told.
enum class ExhaustLogic {
  Old = 0,  ///< by its own valve
  New = 1,  ///< by the intake's and the valve sizes' ratio
};

/// A cylinder whose ports are told. Bore, stroke, sizes and counts are above 0.
struct ChokeEngine {
  double bore = 0;          ///< inches
  double stroke = 0;        ///< inches
  double intakeValve = 0;   ///< diameter of one valve, inches
  double exhaustValve = 0;  ///< diameter of one valve, inches
  double intakeCount = 0;   ///< intake valves in a cylinder
  double exhaustCount = 0;  ///< exhaust valves in a cylinder
  double dischargeCoefficient = 0;
  ExhaustLogic logic = ExhaustLogic::Old;
};

/// A figure of both ports.
struct PortPair {
  double intake = 0;
  double exhaust = 0;
};

/// The lift at which the intake chokes, inches.
double MinimumIntakeLift(const ChokeEngine& engine, double rpm);
/// The lift at which the exhaust chokes, inches.
double MinimumExhaustLift(const ChokeEngine& engine, double rpm);
/// The lifts behind which more brings nothing, inches.
PortPair MaximumLifts(const ChokeEngine& engine, double rpm);

/// The speed at which the ports choke. @param lift  inches @return RPM
PortPair ChokeRpm(const ChokeEngine& engine, double lift);

/// What the ports are to flow at 28 inches of water. @param lift  inches @return CFM
PortPair MinimumFlow(const ChokeEngine& engine, double lift);

}  // namespace veldox
