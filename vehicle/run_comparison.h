#pragma once

#include <string>

#include "core/numbers.h"
#include "vehicle/acceleration.h"

namespace veldox {

/// The report of two runs side by side: time and speed at each mark of the strip, the top speed,
/// and until where the tires limited the run. What a run has not reached shows no number.
/// @param last  the run that was kept
/// @param now   the run of the present values
std::string CompareRuns(const RunResult& last, const RunResult& now, DecimalMark mark);

}  // namespace veldox
