#pragma once

#include <optional>
#include <span>
#include <vector>

#include "airfuel/flow_bench.h"
#include "cam/lift_file.h"
#include "engine/piston_motion.h"

// What a port offers an engine while its valve is open: area by time, and the velocities of the
// air that the piston asks for. Lengths in inches, areas in square inches unless told otherwise,
// flow in cubic feet per minute, velocities in feet per second. Crank degrees count from the top
// dead centre of the overlap: the intake opens about it, the exhaust half a turn before.

namespace veldox {

/// A valve at a crank angle.
struct ValvePoint {
  double degrees = 0;
  double camLift = 0;
  double lift = 0;  ///< at the valve; 0 is closed
};
/// The way of a valve, by rising degrees.
using ValveCurve = std::vector<ValvePoint>;

/// The way of a valve by the lifts of its lobe.
/// @param camLifts  from the start of the lobe to the closing zero
/// @param step      crank degrees between them
/// @param start     crank degree of the first one
ValveCurve CurveOfLobe(std::span<const double> camLifts, double step, double start,
                       const ValveGear& gear);

/// How long a valve is open by at least a lift.
struct LiftDuration {
  double lift = 0;
  double duration = 0;  ///< crank degrees
};
/// The way of a valve by its durations, half of each on either side of the middle. From the first
/// lift on it goes straight down to the seat.
/// @param rows        at least two, of rising lift and falling duration
/// @param centerline  crank degree of the middle
ValveCurve CurveOfDurations(std::span<const LiftDuration> rows, double centerline,
                            const ValveGear& gear);

/// Where a curve rises to a level first and falls below it last, and what lies under it between.
struct LiftEvents {
  double opens = 0;   ///< crank degree
  double closes = 0;  ///< crank degree
  double area = 0;    ///< lift by degrees

  double duration() const { return closes - opens; }
  double middle() const { return (opens + closes) / 2; }
};
/// @param lift  which of the lifts: at the valve or at the lobe
/// @return nothing for a curve that is not that high, or begins or ends above a level above 0: it
///         does not tell where it rises to the level
std::optional<LiftEvents> EventsAt(const ValveCurve& curve, double level, double ValvePoint::*lift);

/// Lobe lifts whose durations tell how fast a cam opens: the intensity is how much longer it is
/// open at the lower one than at kIntensityTop, in inches and degrees.
inline constexpr double kMinorIntensityLift = 0.010;
inline constexpr double kMajorIntensityLift = 0.020;
inline constexpr double kIntensityTop = 0.050;
std::optional<double> IntensityOf(const ValveCurve& curve, double lowerLift);

/// The cylinder that the valves belong to.
struct TimeAreaEngine {
  double bore = 0;
  double stroke = 0;
  double rod = 0;     ///< length of the connecting rod
  double offset = 0;  ///< of the wrist pin
  double rpm = 0;

  CrankSlider Slider() const { return {stroke / 2, rod, offset}; }
  /// The cylinder's volume, cc: that of bore and stroke, whatever the pin's offset.
  double VolumeCc() const;
};

/// Time of a crank degree, milliseconds.
double MillisecondsPerDegree(double rpm);

/// A port and its flow.
struct TimeAreaPort {
  FlowPort port;
  FlowTable flow{};
  double valveAngle = 0;  ///< of the stem to the bore, degrees
  bool isExhaust = false;
};

/// What is open of a port at a lift above 0, square inches of all valves: by three stages where
/// the seat is told, else the curtain.
double OpenArea(const TimeAreaPort& port, double lift);

/// Flow of a table at a lift: straight lines between its rows from no lift on, and the last row's
/// above it. Rows without lift or flow are none.
double FlowAtLift(const FlowTable& table, double lift);

/// Flow at 28 inches of water of a square inch without loss, CFM.
inline constexpr double kFlowPerSquareInch = 145.95728;

/// The part of the flow without loss through the curtain of all valves that a flow is.
double CurtainCoefficientOf(const PortValves& valves, double flow, double lift);

/// A valve that is open, at one place of its way.
struct TimeAreaRow {
  double degrees = 0;
  double from = 0;  ///< the degrees that it stands for
  double to = 0;
  double camLift = 0;
  double lift = 0;
  double area = 0;           ///< that is open
  double timeArea = 0;       ///< square centimetres by milliseconds
  double timeAreaPerCc = 0;  ///< the same by the cylinder's volume in cc
  double travel = 0;         ///< of the piston
  double volume = 0;         ///< over the piston from its top, cc
  // Of the valve, since the point before; nothing for the first one.
  std::optional<double> rise;          ///< inches by degree
  std::optional<double> speed;         ///< feet per second
  std::optional<double> acceleration;  ///< from point to point, on the scale of its heading
  /// What the piston asks of the port, above 0 in the port's own direction: into the cylinder
  /// through the intake, out of it through the exhaust.
  double demand = 0;
  double areaSpeed = 0;       ///< of the demand through the area that is open
  double effectiveSpeed = 0;  ///< through what the user's coefficient leaves of it
  double throatSpeed = 0;
  double mcsaSpeed = 0;
  double depression = 0;      ///< that the demand needs at the area, inches of water
  double userDepression = 0;  ///< at the user's coefficient of it
  double flow = 0;            ///< of the flow table
  double coefficient = 0;     ///< of discharge, for that flow
  double liftRatio = 0;       ///< lift by valve diameter
  double vertical = 0;        ///< lift along the bore
  double horizontal = 0;      ///< lift across the bore

  double span() const { return to - from; }
};

/// All places of a curve where the valve is open.
/// @param userCoefficient  of discharge, above 0
std::vector<TimeAreaRow> WalkCurve(const ValveCurve& curve, const TimeAreaPort& port,
                                   const TimeAreaEngine& engine, double userCoefficient);

/// Time area of rows between two crank degrees, square centimetres by milliseconds.
double TimeAreaBetween(std::span<const TimeAreaRow> rows, double from, double to);

/// What the rows of a port come to.
struct TimeAreaTotals {
  double timeArea = 0;
  double timeAreaPerCc = 0;
  /// The air that the port's flow is good for while the valve is open, by the cylinder's volume.
  double cycleEfficiency = 0;
  /// Flow per square inch times degrees.
  double maxTotal = 0;  ///< of a port that is open at once and without loss
  double throatTotal = 0;
  double netValveTotal = 0;  ///< of the valve less its stem
  double valveTotal = 0;
};
/// @param duration  of the valve at no lift, degrees
TimeAreaTotals TotalsOf(std::span<const TimeAreaRow> rows, const TimeAreaPort& port,
                        const TimeAreaEngine& engine, double duration);

/// The least room between a valve and the piston.
struct ValveClearance {
  double least = 0;
  double degrees = 0;  ///< where it is
};
/// @param atTop  room at top dead centre with the valve closed, along the bore
/// @return nothing for a valve that never opens
std::optional<ValveClearance> LeastClearance(std::span<const TimeAreaRow> rows, double atTop);

}  // namespace veldox
