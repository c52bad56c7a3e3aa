#pragma once

#include "chassis/corner_weights.h"

namespace veldox {

/// Center of gravity of a car, and what cornering and acceleration move from tire to tire. Weights
/// are in pounds, lengths in inches, accelerations in g. A result that needs a division by 0 is not
/// finite.

/// A car on scales, level and with its rear raised.
struct LiftedCar {
  double carWeight = 0;
  double weightFront = 0;  ///< level
  double wheelBase = 0;
  double hubHeight = 0;          ///< of the front wheels
  double rearHeight = 0;         ///< that the rear is raised
  double raisedWeightFront = 0;  ///< with the rear raised
};

/// What the height that the rear is raised is measured from.
enum class LiftRule {
  Ground,  ///< all of it counts
  Hub,     ///< what is above the hubs counts
};

/// Distance of the center of gravity behind the front axle.
double HorizontalCenter(double carWeight, double weightFront, double wheelBase);
/// Height of the center of gravity above the ground by the published lift rule
/// WB^2 dW / (H W) + hub, which takes the wheel base for its length on the ground.
double VerticalCenter(const LiftedCar& car, LiftRule rule);
/// Distance of the center of gravity from the right tires' centers.
double LateralCenter(double carWeight, double weightRight, double trackWidth);

/// What of the car rests on its springs.
struct SprungMass {
  double weight = 0;
  double horizontalCenter = 0;  ///< behind the front axle
  double lateralCenter = 0;     ///< from the right tires' centers
};

/// @param unsprung  the weight of wheel, brake and suspension of each corner. Those of right front
///                  and left rear are taken from the right side's weight.
SprungMass SprungMassOf(double carWeight, double weightFront, double weightRight,
                        const Corners& unsprung, double wheelBase, double trackWidth);

/// Sideways or lengthwise slope in degrees at which a car tips over.
/// @param base  track width or wheel base, in the middle of which the center of gravity is taken
double RollOverAngle(double base, double centerHeight);

/// A number for each axle.
struct Axles {
  double front = 0;
  double rear = 0;

  double Sum() const { return front + rear; }
};

/// A car in a corner.
struct CorneringCar {
  double lateralGs = 0;  ///< positive to the left
  double carWeight = 0;
  double verticalCenter = 0;
  double trackWidth = 0;   ///< of the whole car
  double percentRear = 0;  ///< of the car's weight
  Axles sprung;            ///< weight of each end less its unsprung weight
  Axles rollCenterHeight;
  Axles trackWidths;
  Axles rollStiffness;  ///< foot pounds a degree
};

struct RollTransfer {
  double rollAxisHeight = 0;  ///< under the center of gravity
  double rollAxisToCenter = 0;
  double weightTransfer = 0;  ///< of the car as one rigid body
  double rollMoment = 0;      ///< foot pounds
  double rollAngle = 0;       ///< degrees
  Axles rolling;              ///< pounds moved by roll
  Axles nonRolling;           ///< pounds moved through the roll centers
  Axles total;
};

RollTransfer RollTransferOf(const CorneringCar& car);

/// Travel of the wheels from roll, inches; the right side goes the other way.
/// @param transfer  total of each end @param wheelRates  of spring and sway bar, pounds an inch
Corners WheelTravel(const Axles& transfer, const Corners& wheelRates);

/// How far roll moves the wheels of each end, inches; the right side goes the other way.
/// @param rollAngle  degrees
Corners RollDeflection(const Axles& trackWidths, double rollAngle);

/// What acceleration moves from the front to the rear, and what stands there then.
struct LengthwiseTransfer {
  double shift = 0;
  double front = 0;
  double frontPercent = 0;
  double rear = 0;
  double rearPercent = 0;
};

/// @param gs  positive when accelerating, negative when braking
/// @param weight  of the car, or of what rests on its springs
/// @param weightFront  of that, at rest
LengthwiseTransfer LengthwiseTransferOf(double gs, double weight, double weightFront,
                                        double verticalCenter, double wheelBase);

}  // namespace veldox
