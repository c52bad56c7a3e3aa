#pragma once

#include "chassis/corner_weights.h"
#include "core/numbers.h"
#include "graph/sketch.h"

namespace veldox {

/// A car from above, its front to the left: what stands on each tire, its diagonals, its center of
/// gravity, and a bar that tells how much of it stands on the cross diagonal. Not to scale.
/// @param weights  none negative, not all 0
Sketch SketchOf(const Corners& weights, DecimalMark mark);

}  // namespace veldox
