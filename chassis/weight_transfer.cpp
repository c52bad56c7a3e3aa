#include "chassis/weight_transfer.h"

#include <cmath>

#include "core/numbers.h"

namespace veldox {

namespace {

constexpr double kDegreesPerRadian = 180 / kPi;
constexpr double kInchesPerFoot = 12;

/// How far a weight is from the end that `onEnd` of it rests on.
double LeverFrom(double weight, double onEnd, double base) {
  return (weight - onEnd) / weight * base;
}

}  // namespace

double HorizontalCenter(double carWeight, double weightFront, double wheelBase) {
  return LeverFrom(carWeight, weightFront, wheelBase);
}

double VerticalCenter(const LiftedCar& car, LiftRule rule) {
  const double lift = rule == LiftRule::Ground ? car.rearHeight : car.rearHeight - car.hubHeight;
  return (car.wheelBase * car.wheelBase * (car.raisedWeightFront - car.weightFront)) /
             (lift * car.carWeight) +
         car.hubHeight;
}

double LateralCenter(double carWeight, double weightRight, double trackWidth) {
  return LeverFrom(carWeight, weightRight, trackWidth);
}

SprungMass SprungMassOf(double carWeight, double weightFront, double weightRight,
                        const Corners& unsprung, double wheelBase, double trackWidth) {
  const double weight = carWeight - unsprung.Sum();
  return {weight, LeverFrom(weight, weightFront - unsprung.Front(), wheelBase),
          LeverFrom(weight, weightRight - unsprung.Cross(), trackWidth)};
}

double RollOverAngle(double base, double centerHeight) {
  return std::atan(base / 2 / centerHeight) * kDegreesPerRadian;
}

RollTransfer RollTransferOf(const CorneringCar& car) {
  RollTransfer result;
  result.rollAxisHeight =
      (car.rollCenterHeight.rear - car.rollCenterHeight.front) * (car.percentRear / 100) +
      car.rollCenterHeight.front;
  result.rollAxisToCenter = car.verticalCenter - result.rollAxisHeight;
  result.weightTransfer = car.lateralGs * car.carWeight * car.verticalCenter / car.trackWidth;
  result.rollMoment = car.carWeight * car.lateralGs * (result.rollAxisToCenter / kInchesPerFoot);
  const double stiffness = car.rollStiffness.Sum();
  result.rollAngle = result.rollMoment / stiffness;
  const auto rolling = [&](double ofEnd, double track) {
    return (ofEnd / stiffness) * result.rollMoment / (track / kInchesPerFoot);
  };
  result.rolling = {rolling(car.rollStiffness.front, car.trackWidths.front),
                    rolling(car.rollStiffness.rear, car.trackWidths.rear)};
  result.nonRolling = {
      (car.sprung.front * car.rollCenterHeight.front / car.trackWidths.front) * car.lateralGs,
      (car.sprung.rear * car.rollCenterHeight.rear / car.trackWidths.rear) * car.lateralGs};
  result.total = {result.rolling.front + result.nonRolling.front,
                  result.rolling.rear + result.nonRolling.rear};
  return result;
}

Corners WheelTravel(const Axles& transfer, const Corners& wheelRates) {
  return {transfer.front / 2 / wheelRates.leftFront, -(transfer.front / 2 / wheelRates.rightFront),
          transfer.rear / 2 / wheelRates.leftRear, -(transfer.rear / 2 / wheelRates.rightRear)};
}

Corners RollDeflection(const Axles& trackWidths, double rollAngle) {
  const auto deflection = [&](double track) { return track * rollAngle / (2 * kDegreesPerRadian); };
  const double front = deflection(trackWidths.front);
  const double rear = deflection(trackWidths.rear);
  return {front, -front, rear, -rear};
}

LengthwiseTransfer LengthwiseTransferOf(double gs, double weight, double weightFront,
                                        double verticalCenter, double wheelBase) {
  LengthwiseTransfer result;
  result.shift = gs * weight * verticalCenter / wheelBase;
  result.front = weightFront - result.shift;
  result.frontPercent = result.front / weight * 100;
  result.rear = (weight - weightFront) + result.shift;
  result.rearPercent = result.rear / weight * 100;
  return result;
}

}  // namespace veldox
