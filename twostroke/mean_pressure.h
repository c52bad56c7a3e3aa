#pragma once

namespace veldox {

/// Brake mean effective pressure of two-stroke engines: the pressure that, pushing the piston down
/// once a revolution, gives the power. Sizes are those of one cylinder. Not finite for a size or
/// speed of 0.

/// In pounds a square inch, from horsepower and cubic inches.
constexpr double MeanPressurePsi(double horsepower, double cubicInches, double rpm) {
  return horsepower * 792000 / (cubicInches * rpm * 2);
}

/// In bar, from kilowatts and cc.
constexpr double MeanPressureBar(double kilowatts, double cc, double rpm) {
  return kilowatts * 600000 / (cc * rpm);
}

}  // namespace veldox
