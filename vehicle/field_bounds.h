#pragma once

#include "core/screen.h"
#include "vehicle/acceleration.h"

namespace veldox {

// What commands ask of the numbers of a car before they work with them, as a run does.

/// @throws CommandError (InvalidArgument) that names the field, unless the condition holds
inline void RequireAt(bool holds, Field& field, const char* message) {
  if (!holds) throw CommandError(ErrorKind::InvalidArgument, message, &field);
}
/// Any number that is none too large.
inline void RequireUsable(double value, Field& field) {
  RequireAt(IsUsable(value), field, kMustBeUsual);
}
inline void RequireNotNegative(double value, Field& field) {
  RequireUsable(value, field);
  RequireAt(value >= 0, field, kMustNotBeNegative);
}
/// Above 0, and of usual size.
inline void RequireUsual(double value, Field& field) {
  RequireAt(value > 0, field, kMustBePositive);
  RequireAt(IsOfUsualSize(value), field, kMustBeUsual);
}
/// From 0 to below 100 percent.
inline void RequireLoss(double value, Field& field) {
  RequireAt(value >= 0 && value < 100, field, kMustBeLoss);
}

}  // namespace veldox
