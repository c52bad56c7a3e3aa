#pragma once

#include <string>

#include "core/numbers.h"
#include "vehicle/acceleration.h"
#include "vehicle/run_listener.h"

namespace veldox {

/// Points that the wide chart is printed in.
inline constexpr int kAccelerationFontSize = 9;

/// A run and its report.
struct AccelerationChart {
  RunResult result;
  std::string report;  ///< with the marks of report lines
};

/// The chart of a run: header, rows, gear changes, summary, advice, extension and further marks.
/// @param showsRate  a column tells how fast the engine gains revolutions
/// @throws RunInputError
AccelerationChart ChartRun(const AccelerationInputs& inputs, bool showsRate, DecimalMark mark,
                           const RunListener& listener = {});

/// What a run came to, in a line: times at the distances that count, speeds at the eighth and the
/// quarter mile, and the top speed. What it has not reached is left out.
std::string SummaryOf(const RunResult& result, DecimalMark mark);

/// The same of a car with a CVT.
AccelerationChart ChartCvtRun(const AccelerationInputs& inputs, DecimalMark mark,
                              const RunListener& listener = {});

}  // namespace veldox
