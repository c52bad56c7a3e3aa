#pragma once

namespace veldox {

/// When the valves of one cylinder open and close, in crank degrees from the nearest dead centre:
/// negative ones lie on its other side.
struct CamEvents {
  double intakeOpen = 0;    ///< before top dead centre
  double intakeClose = 0;   ///< after bottom dead centre
  double exhaustOpen = 0;   ///< before bottom dead centre
  double exhaustClose = 0;  ///< after top dead centre
};

/// How long the valves are open and where the middle of that is, in crank degrees from the top dead
/// centre between exhaust and intake.
struct CamLobes {
  double intakeDuration = 0;
  double exhaustDuration = 0;
  double intakeCenterline = 0;   ///< after top dead centre
  double exhaustCenterline = 0;  ///< before top dead centre
};

/// How the lobes stand to each other and to the crank, in crank degrees.
struct LobePhase {
  double separation = 0;  ///< between the centerlines, halved: cam degrees
  double advance = 0;     ///< the intake is this much before the separation; negative: retarded
  double overlap = 0;     ///< both valves are open
};

/// Durations and centerlines of events.
CamLobes LobesOf(const CamEvents& events);

/// Events of durations and centerlines: the reverse of LobesOf.
CamEvents EventsOf(const CamLobes& lobes);

/// Separation, advance and overlap of a cam.
LobePhase PhaseOf(const CamLobes& lobes, const CamEvents& events);

/// The centerline of the exhaust lobe that gives a separation.
double ExhaustCenterlineFor(double separation, double intakeCenterline);

/// A cam turned against its drive. @param degrees  earlier by this much, negative: later
CamLobes Advanced(CamLobes lobes, double degrees);

/// Duration in crank degrees that suits a compression ratio. Each point above 9 asks for ten
/// degrees, each further one for half a degree less; each point below 9 takes ten away.
double EstimateDurationFromRatio(double compressionRatio);

/// The middle of that and of a duration that suits the size of a cylinder and the engine's speed.
/// Not finite where there are no cylinders.
/// @param cubicInches  the whole engine's size
double EstimateDurationFromEngine(double compressionRatio, double cubicInches, double cylinders,
                                  double rpm);

}  // namespace veldox
