#include "airfuel/port_choke.h"

#include "core/numbers.h"

namespace veldox {

namespace {

constexpr double kIntakeFactor = 332;
constexpr double kExhaustFactor = 445;
// CFM per square inch of curtain with a coefficient of 1.
constexpr double kIntakeFlow = 265;
constexpr double kOldExhaustFlow = 250;
constexpr double kNewExhaustFlow = 253;
constexpr double kUsualExhaustValve = 0.7605;  // of the intake valve's diameter
constexpr double kMaximumByMinimum = 1.1456789;
constexpr double ChokeScale = 360 * kPi / 4;

double ChokeVolume(const ChokeEngine& engine) {
  return engine.bore * engine.bore * engine.stroke;
}

double ExhaustRatio(const ChokeEngine& engine) {
  return engine.intakeValve * kUsualExhaustValve / engine.exhaustValve;
}

bool IsOld(const ChokeEngine& engine) {
  return engine.logic == ExhaustLogic::Old;
}

double IntakeValvesPi(const ChokeEngine& engine) {
  return kPi * engine.intakeCount;
}

double ExhaustValvesPi(const ChokeEngine& engine) {
  return kPi * engine.exhaustCount;
}

}  // namespace

double MinimumIntakeLift(const ChokeEngine& engine, double rpm) {
  return rpm / ChokeScale * ChokeVolume(engine) /
         (engine.intakeValve * kIntakeFactor * IntakeValvesPi(engine));
}

double MinimumExhaustLift(const ChokeEngine& engine, double rpm) {
  if (!IsOld(engine)) return MinimumIntakeLift(engine, rpm) * ExhaustRatio(engine);
  return rpm / ChokeScale * ChokeVolume(engine) /
         (engine.exhaustValve * kExhaustFactor * ExhaustValvesPi(engine));
}

PortPair MaximumLifts(const ChokeEngine& engine, double rpm) {
  return {MinimumIntakeLift(engine, rpm) * kMaximumByMinimum,
          MinimumExhaustLift(engine, rpm) * kMaximumByMinimum};
}

PortPair ChokeRpm(const ChokeEngine& engine, double lift) {
  const double volume = ChokeVolume(engine);
  PortPair rpm;
  rpm.intake =
      lift * engine.intakeValve * kIntakeFactor * IntakeValvesPi(engine) / volume * ChokeScale;
  rpm.exhaust = IsOld(engine) ? lift * engine.exhaustValve * kExhaustFactor *
                                    ExhaustValvesPi(engine) / volume * ChokeScale
                              : rpm.intake / ExhaustRatio(engine);
  return rpm;
}

PortPair MinimumFlow(const ChokeEngine& engine, double lift) {
  const double intakeFlowFactor = kIntakeFlow * engine.dischargeCoefficient;
  const double exhaustFlowFactor =
      (IsOld(engine) ? kOldExhaustFlow : kNewExhaustFlow) * engine.dischargeCoefficient;
  PortPair flow;
  flow.intake = lift * engine.intakeValve * intakeFlowFactor * IntakeValvesPi(engine);
  flow.exhaust = lift * engine.exhaustValve * exhaustFlowFactor * ExhaustValvesPi(engine);
  if (!IsOld(engine)) flow.exhaust *= ExhaustRatio(engine);
  return flow;
}

}  // namespace veldox
