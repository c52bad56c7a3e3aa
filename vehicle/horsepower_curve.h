#pragma once

#include <string>
#include <vector>

#include "core/numbers.h"

namespace veldox {

/// The peak that a standard curve is made for.
struct CurvePeak {
  double rpm = 0;         ///< of the peak
  double horsepower = 0;  ///< of types 1 to 9
  double torque = 0;      ///< of types 10 and 11
};

/// A standard curve made to fit an engine.
struct ScaledCurve {
  int type = 0;  ///< 1 to 11 (graph/power_curves.h)
  CurvePeak peak;
};

/// A point of a horsepower curve, in the units of the curve's peak.
struct HorsepowerPoint {
  double rpm;
  double horsepower;
  double torque;
};

/// No curve has more points.
inline constexpr int kMostCurvePoints = 2050;

/// False for a peak RPM that no curve can be walked around: at or below 0, or so fast that a walk
/// by its steps has no end or more than kMostCurvePoints points.
/// @param rpm  the RPM around which types 1 to 4 are walked, and which decides on all steps
bool CanWalk(const ScaledCurve& curve, double rpm);

/// The points of a curve in steps of 50 or 100 RPM. Points at or below 0 RPM are left out.
/// @param rpm  as for CanWalk, which must be true
std::vector<HorsepowerPoint> WalkCurve(const ScaledCurve& curve, double rpm);

/// A curve as a table with its averages.
/// @param cubicInches  size of the engine, not 0
std::string HorsepowerCurveReport(const std::vector<HorsepowerPoint>& points, double cubicInches,
                                  DecimalMark mark);

/// A curve as lines of a parameter file, for the torque table of the acceleration screen.
/// @param bsfc  pounds of fuel an hour and horsepower; where it is above 0 the lines have the fuel
std::string AccelerationCurveReport(const std::vector<HorsepowerPoint>& points, double bsfc,
                                    DecimalMark mark);

}  // namespace veldox
