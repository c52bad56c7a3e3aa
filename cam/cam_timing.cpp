#include "cam/cam_timing.h"

#include <cmath>

#include "core/units.h"

namespace veldox {

namespace {

constexpr double kStroke = 180;  ///< crank degrees from one dead centre to the other

}  // namespace

CamLobes LobesOf(const CamEvents& events) {
  CamLobes lobes;
  lobes.intakeDuration = events.intakeOpen + events.intakeClose + kStroke;
  lobes.exhaustDuration = events.exhaustOpen + events.exhaustClose + kStroke;
  lobes.intakeCenterline = lobes.intakeDuration / 2 - events.intakeOpen;
  lobes.exhaustCenterline = lobes.exhaustDuration / 2 - events.exhaustClose;
  return lobes;
}

CamEvents EventsOf(const CamLobes& lobes) {
  CamEvents events;
  events.intakeOpen = lobes.intakeDuration / 2 - lobes.intakeCenterline;
  events.intakeClose = lobes.intakeDuration - events.intakeOpen - kStroke;
  events.exhaustClose = lobes.exhaustDuration / 2 - lobes.exhaustCenterline;
  events.exhaustOpen = lobes.exhaustDuration - events.exhaustClose - kStroke;
  return events;
}

LobePhase PhaseOf(const CamLobes& lobes, const CamEvents& events) {
  LobePhase phase;
  phase.separation = (lobes.intakeCenterline + lobes.exhaustCenterline) / 2;
  phase.advance = phase.separation - lobes.intakeCenterline;
  phase.overlap = events.intakeOpen + events.exhaustClose;
  return phase;
}

double ExhaustCenterlineFor(double separation, double intakeCenterline) {
  return 2 * separation - intakeCenterline;
}

CamLobes Advanced(CamLobes lobes, double degrees) {
  lobes.intakeCenterline -= degrees;
  lobes.exhaustCenterline += degrees;
  return lobes;
}

double EstimateDurationFromRatio(double compressionRatio) {
  constexpr double kBaseRatio = 9;
  constexpr double kBaseDuration = 270;
  constexpr double kDegreesAPoint = 10;
  constexpr double kLessEachPoint = 0.5;
  const double points = compressionRatio - kBaseRatio;
  if (points <= 0) return kBaseDuration + points * kDegreesAPoint;
  // Whole points in full, each at its own rate, and what is left at the rate of the next one: the
  // sum of the rates at once, so that no ratio takes long.
  const double whole = std::ceil(points) - 1;
  const double add = whole * kDegreesAPoint - kLessEachPoint * whole * (whole - 1) / 2 +
                     (kDegreesAPoint - kLessEachPoint * whole) * (points - whole);
  return kBaseDuration + add;
}

double EstimateDurationFromEngine(double compressionRatio, double cubicInches, double cylinders,
                                  double rpm) {
  constexpr double kBaseCylinder = 500;  ///< cc
  constexpr double kBaseSpeed = 2500;    ///< RPM
  constexpr double kBaseDuration = 225;
  constexpr double kSpeedPerDegree = 100;  ///< RPM
  const double size = std::sqrt(cubicInches / cylinders / kCubicInchesPerCc / kBaseCylinder);
  const double bySpeed = size * (rpm - kBaseSpeed) / kSpeedPerDegree + kBaseDuration;
  return (EstimateDurationFromRatio(compressionRatio) + bySpeed) / 2;
}

}  // namespace veldox
