#include "airfuel/mach.h"

#include <cmath>
#include <cstdint>

#include "core/numbers.h"

namespace veldox {

namespace {

/// By RPM, bore and stroke in inches, to feet per second.
constexpr double kSpeedDivisor = 260.9;

double Squared(double x) {
  return x * x;
}

/// The volume that a piston sweeps, cubic inches.
double SweptVolume(const HelmholtzIntake& intake) {
  return Squared(intake.bore / 2) * intake.stroke * kPi;
}

/// A walk in whole steps of its finest grid.
struct MachWalk {
  double grid;         ///< size of a step
  std::int64_t first;  ///< steps at once in the first pass, a power of 10
  std::int64_t last;   ///< steps beyond which there is no sense
  bool rises;          ///< the index rises with the term
  double MachEngine::*term;
};

MachWalk WalkOf(MachTerm term) {
  switch (term) {
    case MachTerm::Rpm: return {0.1, 10000, 327679, true, &MachEngine::rpm};
    case MachTerm::Lift: return {0.00001, 10000, 10000000, false, &MachEngine::valveLift};
    case MachTerm::Diameter: break;
  }
  return {0.00001, 10000, 10000000, false, &MachEngine::valveDiameter};
}

}  // namespace

double MachIndex(const MachEngine& engine) {
  const double areaRatio =
      (Squared(engine.bore / 2) * kPi) / (Squared(engine.valveDiameter / 2) * kPi);
  const double speed = (engine.rpm * engine.stroke / 360) /
                       ((engine.valveLift / engine.valveDiameter * 1.5) * kSoundOfMachIndex);
  return areaRatio * speed;
}

std::optional<double> WalkToMachIndex(MachTerm term, MachEngine engine, double index) {
  const MachWalk walk = WalkOf(term);
  constexpr int kStepsOfPass = 10;
  std::int64_t steps = 0;
  for (std::int64_t step = walk.first; step > 0; step /= kStepsOfPass) {
    while (true) {
      steps += step;
      // The way back may be shorter than the last step.
      if (steps - step > walk.last) return {};
      engine.*walk.term = static_cast<double>(steps) * walk.grid;
      const double reached = MachIndex(engine);
      if (walk.rises ? !(reached <= index) : !(reached >= index)) break;
    }
    steps -= step;
  }
  if (steps > walk.last) return {};
  if (term == MachTerm::Rpm) {
    const std::int64_t wholeRpm = steps / kStepsOfPass;
    return static_cast<double>(wholeRpm);
  }
  return static_cast<double>(steps) * walk.grid;
}

double SpeedThroughArea(const MachEngine& engine, double area) {
  return Squared(engine.bore) * engine.rpm * engine.stroke / (area * kSpeedDivisor);
}

double AreaForSpeed(const MachEngine& engine, double speed) {
  return Squared(engine.bore) * engine.rpm * engine.stroke / (speed * kSpeedDivisor);
}

double SpeedByCoefficient(const MachEngine& engine, double valves, double coefficient) {
  const double a = Squared(engine.bore) / (Squared(engine.valveDiameter) * valves);
  return (a + a) * engine.rpm / 60 * engine.stroke / 12 / coefficient;
}

double TunedRpm(const HelmholtzIntake& intake, double length) {
  const double resonator = intake.area / (Squared(intake.bore / 2) * length * intake.stroke * kPi);
  return std::sqrt(resonator * ((intake.ratio - 1) / (intake.ratio + 1))) *
         (intake.hFactor * intake.sound);
}

double TunedLength(const HelmholtzIntake& intake, double rpm) {
  return (intake.area / SweptVolume(intake)) *
         Squared(std::sqrt((intake.ratio - 1) / (intake.ratio + 1)) *
                 (intake.hFactor * intake.sound) / rpm);
}

}  // namespace veldox
