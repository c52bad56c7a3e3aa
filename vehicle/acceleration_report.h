#pragma once

#include <functional>
#include <string>

#include "core/numbers.h"
#include "vehicle/acceleration.h"

namespace veldox {

/// Points that the wide chart is printed in.
inline constexpr int kAccelerationFontSize = 9;

/// What a run tells besides its chart. Empty functions are not called.
struct RunListener {
  std::function<void(const std::string& text)> message;      ///< a box; the run goes on behind it
  std::function<void(double inches)> tireDiameterRaised;     ///< the field is to show it
  std::function<void(double degrees)> windDirectionLowered;  ///< the field is to show it
};

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
