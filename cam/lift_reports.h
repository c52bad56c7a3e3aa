#pragma once

#include <string>

#include "cam/lift_analysis.h"
#include "core/numbers.h"

namespace veldox {

/// Lift, velocity, acceleration and jerk of each record from the first one on, as the graphs have
/// them. Where the lift was smoothed before all else, the lift as it was read stands beside it.
/// While a valve's lash is not taken up its lift is 0, and there is nothing else to tell of it.
/// @param smoothingName  as the heading tells it
/// @throws CommandError where a value is no finite number
std::string LiftReport(const LiftAnalysis& analysis, bool ofValve, bool exhaust,
                       const std::string& smoothingName, DecimalMark mark);

}  // namespace veldox
