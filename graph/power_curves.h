#pragma once

namespace veldox {

/// The shapes of the standard curves: 1 to 9 are made for a peak horsepower, 10 and 11 for a peak
/// torque. The grapher shows the first eight.
inline constexpr int kFirstCurveType = 1;
inline constexpr int kLastGraphedCurveType = 8;
inline constexpr int kFirstTorqueCurveType = 10;
inline constexpr int kLastCurveType = 11;
/// Types below this one have one reach around the peak in RPM, the others a range of their own in
/// model speed.
inline constexpr int kFirstRangedCurveType = 5;

/// The limits of a standard curve in model speed.
struct ModelRange {
  double low = 0;   ///< first model speed
  double high = 0;  ///< last model speed
};

/// The model speed at which a standard curve has its peak. RPM and model speed of types 1 to 9
/// are in proportion; types 10 and 11 are moved by the difference.
/// @param type  1 to 11, else CommandError (IndexOutOfRange)
double ModelPeakSpeed(int type);

/// Horsepower of a standard curve.
/// @param type  1 to 9, else CommandError (IndexOutOfRange)
/// @param modelSpeed  RPM of the model engine
/// @param peakHorsepower  horsepower at the peak
double ModelHorsepower(int type, double modelSpeed, double peakHorsepower);

/// Torque of a standard curve in the unit of its peak.
/// @param type  10 or 11, else CommandError (IndexOutOfRange)
/// @param modelSpeed  RPM of the model engine
/// @param peakTorque  torque at the peak
double ModelTorque(int type, double modelSpeed, double peakTorque);

/// The model speeds of a curve with a range of its own.
/// @param type  5 to 11, else CommandError (IndexOutOfRange)
ModelRange OwnModelSpeeds(int type);

/// The model speeds that the grapher shows.
/// @param type  1 to 8, else CommandError (IndexOutOfRange)
/// @param peakRpm  the RPM of the peak; types 1 to 4 begin further below a faster one
ModelRange ModelSpeeds(int type, double peakRpm);

}  // namespace veldox
