#pragma once

namespace veldox {

/// What springs and sway bars do at the wheels. Rates are in pounds an inch, weights in pounds,
/// lengths in inches, frequencies in cycles a minute. A result that needs a division by 0 is not
/// finite.

/// Rate at the wheel. @param move  of spring or sway bar for one inch of the wheel
double WheelRate(double rate, double move);
/// The rate of the spring that gives a rate at the wheel.
double SpringRateForWheel(double wheelRate, double move);

/// Frequency at which a corner swings freely: 187.8 sqrt(k / W), the rounded textbook figure for
/// 60 / (2 pi) sqrt(386.09 in/s2 k / W).
double SuspensionFrequency(double wheelRate, double sprungWeight);
/// The rate at the wheel that gives a frequency.
double WheelRateForFrequency(double frequency, double sprungWeight);
/// How far the car's weight presses a spring at the wheel.
double StaticDeflection(double wheelRate, double sprungWeight);

/// Roll stiffness of an end in foot pounds a degree: T^2 k / 1375 of its springs and T^2 k / 687.5
/// of its sway bar, with the mean rates at the wheels.
double RollStiffness(double trackWidth, double leftSpring, double rightSpring, double leftBar,
                     double rightBar);

/// Movement of a spring for one inch of the wheel.
/// @param length1  from the arm's pivot to the spring @param length2  to the wheel
/// @param angle  between arm and spring, degrees; 90 is square
double MotionRatio(double length1, double length2, double angle);

}  // namespace veldox
