#include "vehicle/gearing.h"

#include <cmath>

#include "core/report.h"
#include "core/units.h"

namespace veldox {

namespace {

/// Inches of wheel radius and RPM to MPH: 63360 inches in a mile, 60 minutes, 2 pi.
constexpr double kRadiusRpmPerMph = 168.06762;
/// Metres in a foot as the acceleration has it.
constexpr double kMetresInFoot = 0.30479999999999996;
constexpr double kFeetASecondPerMph = 1.4666666666666666;
constexpr double kCorneringGravity = 32.17561865;
constexpr double kSecondsInHour = 3600;
/// An automatic transmission's first gear can be this much longer.
constexpr double kConverterGain = 1.8;
constexpr double kMostLines = 2050;
constexpr int kColumns = 3;

}  // namespace

double RoadSpeed(double tireDiameter, double rpm, double ratio) {
  return (tireDiameter / 2) * rpm / (ratio * kRadiusRpmPerMph);
}

double EngineSpeed(double speed, double ratio, double tireDiameter) {
  return speed * ratio / (tireDiameter / 2) * kRadiusRpmPerMph;
}

double RearRatioForSpeed(double tireDiameter, double rpm, double gear, double speed) {
  return (tireDiameter / 2 * rpm) / (gear * kRadiusRpmPerMph * speed);
}

double FirstGearManual(double speed, double tireWidth, double horsepower) {
  return speed * tireWidth / horsepower;
}

double FirstGearAutomatic(double speed, double tireWidth, double horsepower) {
  return speed * tireWidth / (horsepower * kConverterGain);
}

double NominalTireDiameter(double width, double aspectRatio, double wheel) {
  return (width * aspectRatio * 0.02 + wheel * kMillimetresPerInch) / kMillimetresPerInch;
}

double LapSpeed(double miles, double seconds) {
  return kSecondsInHour / seconds * miles;
}

double LapTime(double miles, double speed) {
  return miles / speed * kSecondsInHour;
}

double LapLength(double speed, double seconds) {
  return speed / (kSecondsInHour / seconds);
}

double SkidPadAcceleration(double radius, double seconds) {
  return 1.225 * radius / (seconds * seconds);
}

double CorneringAcceleration(double radius, double speed) {
  const double feetASecond = 5280 / kSecondsInHour * speed;
  return feetASecond * feetASecond / radius / kCorneringGravity;
}

double MeanAccelerationOver(double feet, double seconds) {
  return (2 * feet * kMetresInFoot / (seconds * seconds)) / kMetresASecondSquared;
}

double MeanAccelerationTo(double speed, double seconds) {
  return (speed * kFeetASecondPerMph * kMetresInFoot / seconds) / kMetresASecondSquared;
}

double ConverterSlip(double speed, double tireDiameter, double rpm, double ratio) {
  return 100 - (speed / RoadSpeed(tireDiameter, rpm, ratio)) * 100;
}

double EffectiveRatio(double ratio, double radius) {
  constexpr double kInchesInFoot = 12;
  return ratio / (radius / kInchesInFoot);
}

double GearStep(double first, double last, double gears) {
  return std::pow(last / first, 1 / (gears - 1));
}

std::string LapChartErrors(const LapChart& chart, DecimalMark mark) {
  const double lines = (chart.endSeconds - chart.startSeconds) * (1 / chart.everySeconds) + 1;
  std::string errors;
  if (lines > kMostLines) {
    errors = "You can generate no more than 2050 lines and you want " +
             FormatValue<"0.0">(lines, mark) +
             "\r\nYou can increase your Every xx Seconds or Start Seconds or decrease you End "
             "Seconds";
  }
  if (chart.startSeconds >= chart.endSeconds) {
    if (!errors.empty()) errors += "\r\n";
    errors += "Your Starting Seconds is greater than or equal to your Ending Seconds";
  }
  return errors;
}

std::string LapChartReport(const LapChart& chart, DecimalMark mark) {
  ReportWriter report(mark);
  report.Add("Track Size is ").Add<"0.0#####">(chart.miles).Add(" Miles").EndLine();
  report.EndLine();
  report.AddLines({"Lap Time      MPH     |  Lap Time      MPH     |  Lap Time      MPH_"});
  const double step = chart.everySeconds;
  const double span = chart.endSeconds - chart.startSeconds;
  const int rows = RoundToInt16((span + (2 * step - 1e-8)) / kColumns / step);
  for (int row = 1; row <= rows; ++row) {
    const double time = chart.startSeconds + (row - 1) * step;
    for (int column = 0; column < kColumns; ++column) {
      const double cell = time + column * (rows * step);
      if (column > 0) report.Add("  |  ");
      report.Add<".000">(cell, 7).Add<"0.00000">(LapSpeed(chart.miles, cell), 13);
    }
    report.EndLine();
  }
  return report.Finish();
}

}  // namespace veldox
