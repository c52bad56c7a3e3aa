#include "chassis/corner_weights.h"

namespace veldox {

namespace {

constexpr double kLowestSum = 99.996;
constexpr double kHighestSum = 100.004;

}  // namespace

bool AddUpToHundred(const Corners& percents) {
  const double sum = percents.Sum();
  return sum >= kLowestSum && sum <= kHighestSum;
}

Corners WeightsOfPercents(const Corners& percents, double carWeight) {
  return percents.Each([&](double percent) { return percent * carWeight / 100; });
}

Corners PercentsOfWeights(const Corners& weights, double carWeight) {
  return weights.Each([&](double weight) { return weight / carWeight * 100; });
}

Corners WeightsOfTargets(const WeightTargets& targets, double carWeight) {
  const double complement = 100 - targets.cross;
  const double front = 100 - targets.rear;
  Corners weights;
  weights.leftFront = ((targets.left + front - targets.cross) / 2) * carWeight / 100;
  weights.rightFront = carWeight * front / 100 - weights.leftFront;
  weights.leftRear = ((targets.left + targets.rear - complement) / 2) * carWeight / 100;
  weights.rightRear = carWeight * targets.rear / 100 - weights.leftRear;
  return weights;
}

Corners BallastShare::OnCorners() const {
  return {front * left, front * Right(), Rear() * left, Rear() * Right()};
}

BallastShare ShareOfBallast(const BallastPlace& place, double wheelBase, double trackWidth) {
  return {place.x / wheelBase, place.y / trackWidth};
}

BallastPlace PlaceOfBallast(double percentRear, double percentRight, double wheelBase,
                            double trackWidth) {
  return {wheelBase - (percentRear / 100) * wheelBase,
          trackWidth - (percentRight / 100) * trackWidth};
}

}  // namespace veldox
