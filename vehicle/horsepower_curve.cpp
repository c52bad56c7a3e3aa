#include "vehicle/horsepower_curve.h"

#include <array>

#include "core/report.h"
#include "core/units.h"
#include "graph/power_curves.h"
#include "vehicle/elapsed_time.h"

namespace veldox {

namespace {

/// Where a walk over a curve begins and ends, and by how much it goes on: in RPM for types 1 to 4,
/// in model speed for the others.
struct Walk {
  double first;
  double last;
  double step;
};

/// How far around its peak a curve of types 1 to 4 is walked.
struct Reach {
  double below;  ///< peaks of less RPM
  double before;
  double behind;
};

constexpr std::array kReaches{
    Reach{5000, 1600, 500},   Reach{5500, 1600, 600},  Reach{6000, 1600, 800},
    Reach{6500, 1600, 1100},  Reach{9500, 1800, 1400}, Reach{12500, 2200, 1600},
    Reach{15500, 2600, 1800},
};
constexpr Reach kReachOfFastest{0, 3000, 2000};
constexpr double kRoundRpm = 50;
constexpr double kWideStep = 100;
/// From these RPM on the wide step is taken.
constexpr double kWideStepTypes1To4 = 8000;
constexpr double kWideStepTypes5To9 = 5600;

/// RPM of one model RPM.
double ModelScale(const ScaledCurve& curve) {
  return curve.peak.rpm / ModelPeakSpeed(curve.type);
}

Walk WalkAround(double rpm) {
  Reach reach = kReachOfFastest;
  for (std::size_t i = kReaches.size(); i-- > 0;) {
    if (rpm < kReaches[i].below) reach = kReaches[i];
  }
  return {rpm - reach.before, rpm + reach.behind, rpm < kWideStepTypes1To4 ? kRoundRpm : kWideStep};
}

/// The step and the end are right for every curve, the beginning only for one that can be walked.
Walk WalkOf(const ScaledCurve& curve, double rpm) {
  if (curve.type < kFirstRangedCurveType) return WalkAround(rpm);
  const ModelRange range = OwnModelSpeeds(curve.type);
  if (curve.type >= kFirstTorqueCurveType) return {range.low, range.high, kWideStep};
  const double scale = ModelScale(curve);
  return {range.low, range.high, (rpm < kWideStepTypes5To9 ? kRoundRpm : kWideStep) / scale};
}

/// The model speed of a round RPM at or below the first of the range.
double RoundFirst(double modelStart, double scale) {
  const double first = RoundToInt16(modelStart * scale / kRoundRpm) * kRoundRpm / scale;
  return first > modelStart ? first - kRoundRpm / scale : first;
}

HorsepowerPoint PointAt(const ScaledCurve& curve, double walked) {
  const double peakSpeed = ModelPeakSpeed(curve.type);
  if (curve.type >= kFirstTorqueCurveType) {
    const double rpm = curve.peak.rpm - peakSpeed + walked;
    const double torque = ModelTorque(curve.type, walked, curve.peak.torque);
    return {rpm, PowerForTorque(torque, rpm), torque};
  }
  const bool walksModel = curve.type >= kFirstRangedCurveType;
  const double rpm = walksModel ? walked * ModelScale(curve) : walked;
  const double modelSpeed = walksModel ? walked : walked * (peakSpeed / curve.peak.rpm);
  const double horsepower = ModelHorsepower(curve.type, modelSpeed, curve.peak.horsepower);
  return {rpm, horsepower, TorqueForPower(horsepower, rpm)};
}

/// Appends a cell to a line of a parameter file. One that fills its column is parted from the one
/// before by a blank, so that the file reads.
template <PatternText Pattern>
void AddFileCell(ReportWriter& report, double value, int width) {
  if (report.Cell<Pattern>(value, width).front() != ' ') report.Add(" ");
  report.Add(report.CellText);
}

}  // namespace

bool CanWalk(const ScaledCurve& curve, double rpm) {
  if (!(rpm > 0 && curve.peak.rpm > 0)) return false;
  const Walk walk = WalkOf(curve, rpm);
  if (!(walk.step > 0) || walk.last + walk.step == walk.last) return false;
  return (walk.last - walk.first) / walk.step < kMostCurvePoints - 1;
}

std::vector<HorsepowerPoint> WalkCurve(const ScaledCurve& curve, double rpm) {
  Walk walk = WalkOf(curve, rpm);
  if (curve.type >= kFirstRangedCurveType && curve.type < kFirstTorqueCurveType) {
    walk.first = RoundFirst(walk.first, ModelScale(curve));
  }
  std::vector<HorsepowerPoint> points;
  for (double walked = walk.first; walked <= walk.last; walked += walk.step) {
    const double shownRpm = curve.type >= kFirstTorqueCurveType
                                ? curve.peak.rpm - ModelPeakSpeed(curve.type) + walked
                                : walked;
    if (shownRpm > 0) points.push_back(PointAt(curve, walked));
  }
  return points;
}

std::string HorsepowerCurveReport(const std::vector<HorsepowerPoint>& points, double cubicInches,
                                  DecimalMark mark) {
  ReportWriter report(mark);
  report.EndLine();
  report.AddLines({" Horse          RPM         Torque           BMEP_"});
  double horsepower = 0;
  double torque = 0;
  for (const HorsepowerPoint& point : points) {
    horsepower += point.horsepower;
    torque += point.torque;
    report.Add<".000">(point.horsepower, 8).Add("     ").Add<"0">(point.rpm, 6);
    report.Add<".000">(point.torque, 15);
    report.Add<".000">(MeanPressureForPower(point.horsepower, cubicInches, point.rpm), 15);
    report.EndLine();
  }
  report.EndLine(LineMark::HeadingsEnd);
  const auto count = static_cast<double>(points.size());
  report.Add("Average Horsepower =  ").Add<".000">(horsepower / count).EndLine();
  report.Add("Average Torque = ").Add<".000">(torque / count).EndLine();
  report.Add("Average based on = ").Add<"0">(count).Add(" points").EndLine();
  return report.Finish();
}

std::string AccelerationCurveReport(const std::vector<HorsepowerPoint>& points, double bsfc,
                                    DecimalMark mark) {
  ReportWriter report(mark);
  for (const HorsepowerPoint& point : points) {
    report.Add("Acceleration =").Add<"0">(point.rpm, 6);
    AddFileCell<"0000.0">(report, point.torque, 7);
    if (bsfc > 0) {
      AddFileCell<".000">(report, bsfc * point.horsepower, 9);
      AddFileCell<".000">(report, bsfc, 6);
    }
    report.EndLine();
  }
  return report.Finish();
}

}  // namespace veldox
