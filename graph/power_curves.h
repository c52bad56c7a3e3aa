#pragma once

namespace veldox {

/// The shapes of the standard horsepower curves.
inline constexpr int kFirstCurveType = 1;
inline constexpr int kLastCurveType = 8;

/// The limits of a standard curve in model speed.
struct ModelRange {
  double low = 0;   ///< first model speed
  double high = 0;  ///< last model speed
};

/// The model speed at which a standard curve has its peak: what a peak RPM is divided by.
/// @param type  1 to 8, else CommandError (IndexOutOfRange)
double ModelPeakSpeed(int type);

/// Horsepower of a standard curve.
/// @param type  1 to 8, else CommandError (IndexOutOfRange)
/// @param modelSpeed  RPM of the model engine
/// @param peakHorsepower  horsepower at the peak
double ModelHorsepower(int type, double modelSpeed, double peakHorsepower);

/// The model speeds that the grapher shows.
/// @param type  1 to 8, else CommandError (IndexOutOfRange)
/// @param peakRpm  the RPM of the peak; types 1 to 4 begin further below a faster one
ModelRange ModelSpeeds(int type, double peakRpm);

}  // namespace veldox
