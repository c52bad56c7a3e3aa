#pragma once

namespace veldox {

/// Weights on the four tires of a car, in pounds, what share of the car stands on each, in percent
/// of its weight, and ballast. Lengths are in inches. A result that needs a division by 0 is not
/// finite.

/// A number for each corner of the car.
struct Corners {
  double leftFront = 0;
  double rightFront = 0;
  double leftRear = 0;
  double rightRear = 0;

  double Front() const { return leftFront + rightFront; }
  double Rear() const { return leftRear + rightRear; }
  double Left() const { return leftFront + leftRear; }
  double Right() const { return rightFront + rightRear; }
  /// The diagonal of right front and left rear.
  double Cross() const { return rightFront + leftRear; }
  double Sum() const { return leftFront + rightFront + leftRear + rightRear; }

  /// The same done to each corner.
  template <class F>
  Corners Each(F work) const {
    return {work(leftFront), work(rightFront), work(leftRear), work(rightRear)};
  }
  /// The same done to each corner and its counterpart.
  template <class F>
  Corners Each(const Corners& other, F work) const {
    return {work(leftFront, other.leftFront), work(rightFront, other.rightFront),
            work(leftRear, other.leftRear), work(rightRear, other.rightRear)};
  }
};

/// False for percentages of the corners whose sum is below 99.996 or above 100.004.
bool AddUpToHundred(const Corners& percents);

/// The weights of corners of which percentages are known.
Corners WeightsOfPercents(const Corners& percents, double carWeight);
/// The percentages that corners have of the car's weight.
Corners PercentsOfWeights(const Corners& weights, double carWeight);

/// What a car is to have on its left, its rear and its cross diagonal, in percent.
struct WeightTargets {
  double left = 0;
  double rear = 0;
  double cross = 0;
};

/// The one set of corner weights that meets the targets. A corner is negative where no car can meet
/// them.
Corners WeightsOfTargets(const WeightTargets& targets, double carWeight);

/// Where ballast lies: forward of the rear axle, and to the left of the right tires' centers.
struct BallastPlace {
  double x = 0;
  double y = 0;
};

/// What parts of the ballast stand on the front and on the left tires.
struct BallastShare {
  double front = 0;
  double left = 0;

  double Rear() const { return 1 - front; }
  double Right() const { return 1 - left; }
  /// The parts on the four corners.
  Corners OnCorners() const;
};

/// The lever rule in both directions.
BallastShare ShareOfBallast(const BallastPlace& place, double wheelBase, double trackWidth);

/// The place over which a car's percentages of rear and right stand: where ballast changes none of
/// them.
BallastPlace PlaceOfBallast(double percentRear, double percentRight, double wheelBase,
                            double trackWidth);

}  // namespace veldox
