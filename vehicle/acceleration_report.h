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

/// The same of a car with a CVT.
AccelerationChart ChartCvtRun(const AccelerationInputs& inputs, DecimalMark mark,
                              const RunListener& listener = {});

}  // namespace veldox
