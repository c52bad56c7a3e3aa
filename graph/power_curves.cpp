#include "graph/power_curves.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "core/error.h"
#include "core/numbers.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr double kModelCubicInches = 122.047488;
constexpr double kTopOfTypes1To4 = 10000;
constexpr double kWalkStep = 5;
/// The grapher walks types 6 and 7 a little further than the tables of points.
constexpr double kGraphedTopOfTypes6And7 = 6300;

/// What a model engine is: where it peaks, what its shape gives there, and between which speeds
/// and by which polynomial it runs where it has one.
struct CurveModel {
  double peakSpeed;
  double divisor;  ///< of the peak horsepower; of the peak torque for types 10 and 11
  ModelRange range{};
  std::array<double, 8> coefficients{};  ///< in rising powers of model speed, of turns a second
                                         ///< for types 10 and 11
};

constexpr std::array<CurveModel, kLastCurveType> kModels = {{
    {8450, 1200},
    {8300, 1187.5},
    {8300, 1187},
    {8300, 1188.3},
    {9250,
     945,
     {7000, 10450},
     {668831.27, -483.07043, 0.14434746, -2.2835705e-5, 2.0182187e-9, -9.4487038e-14,
      1.8302308e-18}},
    {5500,
     454.4,
     {3100, 6200},
     {-332.91625, 1.098885859, -0.00099424077, 4.4949464e-7, -1.0343154e-10, 1.1877344e-14,
      -5.4540345e-19}},
    {5500,
     454.4,
     {3100, 6200},
     {1409.03095, -1.35742759, 0.00039221351, 5.0823535e-8, -4.2383156e-11, 7.2358098e-15,
      -4.1345892e-19}},
    {6300,
     607.5,
     {3300, 7000},
     {-1495.9221, 2.14563149, -0.0012780671, 4.2071523e-7, -7.4536106e-11, 6.7631764e-15,
      -2.4934621e-19}},
    {5600,
     450,
     {3000, 6000},
     {33305.406, -46.871492, 0.0271528481, -8.2516427e-6, 1.3912278e-9, -1.2344765e-13,
      4.5035264e-18}},
    {4100,
     134.725,
     {1000, 6000},
     {-1200.51, 298.934, -17.586, 0.56342, -0.0104629, 0.000113228, -6.64513e-7, 1.63097e-9}},
    {2700,
     195.31,
     {1000, 5400},
     {-19950.8, 3479.9, -231.809, 8.25775, -0.169919, 0.00202259, -1.2921e-5, 3.42208e-8}},
}};

/// @throws CommandError (IndexOutOfRange) for a type that is not from first to last
const CurveModel& ModelOf(int type, int first, int last) {
  if (type < first || type > last) {
    throw CommandError(ErrorKind::IndexOutOfRange,
                       "There is no standard curve of type " + std::to_string(type) + " for this.");
  }
  return kModels[static_cast<std::size_t>(type - 1)];
}

double Polynomial(const CurveModel& model, double x) {
  double sum = 0;
  for (std::size_t i = model.coefficients.size(); i-- > 0;) sum = sum * x + model.coefficients[i];
  return sum;
}

double Shape(int type, const CurveModel& model, double x) {
  switch (type) {
    case 1: return 3627.16248366368 + -0.19029397547758 * x + -5.851512e10 / (x * x);
    case 2: return 1 / (0.004031132866486 + -7.61061847e-7 * x + 4.5371e-11 * x * x);
    case 3: return -4506.7698 + 1.3835755 * x + -8.4052988e-5 * x * x;
    case 4: return 1027.7167 + 161.171967610618 * std::cos(0.0011114925 * x + -2.8517494);
    default: return Polynomial(model, x);
  }
}

/// How far below the peak types 1 to 4 begin, in RPM.
double ReachBelowPeak(double peakRpm) {
  if (peakRpm < 6500) return 1600;
  if (peakRpm < 9500) return 1800;
  if (peakRpm < 12500) return 2200;
  if (peakRpm < 15500) return 2600;
  return 3000;
}

}  // namespace

double ModelPeakSpeed(int type) {
  return ModelOf(type, kFirstCurveType, kLastCurveType).peakSpeed;
}

double ModelHorsepower(int type, double modelSpeed, double peakHorsepower) {
  const CurveModel& model = ModelOf(type, kFirstCurveType, kFirstTorqueCurveType - 1);
  const double powerScale = peakHorsepower / model.divisor;
  return Shape(type, model, modelSpeed) * powerScale;
}

double ModelTorque(int type, double modelSpeed, double peakTorque) {
  const CurveModel& model = ModelOf(type, kFirstTorqueCurveType, kLastCurveType);
  // The polynomial is the mean pressure in kilopascals of an engine of 122 cubic inches.
  const double footPounds =
      Polynomial(model, modelSpeed / 60) / kKilopascalsPerPsi * kModelCubicInches / 150.8;
  return peakTorque / model.divisor * footPounds;
}

ModelRange OwnModelSpeeds(int type) {
  return ModelOf(type, kFirstRangedCurveType, kLastCurveType).range;
}

ModelRange ModelSpeeds(int type, double peakRpm) {
  const CurveModel& model = ModelOf(type, kFirstCurveType, kLastGraphedCurveType);
  if (type >= kFirstRangedCurveType) {
    ModelRange range = model.range;
    if (type == 6 || type == 7) range.high = kGraphedTopOfTypes6And7;
    return range;
  }
  const double scale = model.peakSpeed / peakRpm;
  double low = (peakRpm - ReachBelowPeak(peakRpm)) * scale;
  // A slow peak would begin below standstill, or where its model gives no power.
  if (low <= 0 || Shape(type, model, low) <= 0) low = (peakRpm - peakRpm / 4) * scale;
  return {kWalkStep * Floor(low / kWalkStep), kTopOfTypes1To4};
}

}  // namespace veldox
