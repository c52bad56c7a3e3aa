#pragma once

#include "core/error.h"

namespace veldox {

/// Counts the steps of a walk towards a result, so that no input makes it walk for ever: values
/// that dwarf each other can leave a step without effect, or a goal out of reach.
class StepBound {
 public:
  /// @param most  far more steps than the walk of any engine takes
  explicit StepBound(int most) : left_(most) {}

  /// @throws CommandError (InvalidArgument) for a step beyond the bound
  void Step() {
    if (left_-- > 0) return;
    throw CommandError(
        ErrorKind::InvalidArgument,
        "The values are out of all proportion to each other, so that the calculation "
        "would not come to an end.");
  }

 private:
  int left_;
};

/// A result found digit by digit takes about ten steps a digit, the first digit apart.
inline constexpr int kMostDigitSteps = 2000;

}  // namespace veldox
