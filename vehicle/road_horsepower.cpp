#include "vehicle/road_horsepower.h"

#include <algorithm>
#include <array>

#include "core/error.h"
#include "core/report.h"
#include "core/units.h"
#include "vehicle/chart_heads.h"
#include "vehicle/elapsed_time.h"
#include "vehicle/gearing.h"
#include "vehicle/road_load.h"

namespace veldox {
namespace {

constexpr double kFeetASecondPerMph = 1.4666666666666666;
constexpr double kFootPoundsASecond = 550;  // of one horsepower
constexpr double kLargestDensity = 0.1;     // of the track's air; what is above it is a pressure

[[noreturn]] void FailAtRow(std::size_t row, const std::string& what) {
  throw CommandError(
      ErrorKind::InvalidArgument,
      "Row " + std::to_string(row + 1) + " of the road table " + what + " than the row before it.");
}

/// @param what  of a row, such as "a speed"
void RequireNoneNegative(std::span<const double> values, const char* what) {
  const auto found = std::find_if(values.begin(), values.end(), [](double v) { return v < 0; });
  if (found == values.end()) return;
  throw CommandError(ErrorKind::InvalidArgument,
                     "Row " + std::to_string(found - values.begin() + 1) +
                         " of the road table has " + what + " below 0.");
}

constexpr std::array kEngineColumns{
    ChartColumn{"Mean", "RPM", 9},  ChartColumn{"Mean", "MPH", 9},
    ChartColumn{"", "Seconds", 10}, ChartColumn{"Acceler-", "ation HP", 11},
    ChartColumn{"Aero", "HP", 10},  ChartColumn{"Rolling", "HP", 10},
    ChartColumn{"Total", "HP", 10}, ChartColumn{"Torque", "lb-ft", 10}};
constexpr std::array kWeightColumns{ChartColumn{"Mean", "MPH", 9}, ChartColumn{"", "Seconds", 10},
                                    ChartColumn{"Acceler-", "ation HP", 11},
                                    ChartColumn{"Aero", "HP", 10}, ChartColumn{"Total", "HP", 10}};
/// Of them without the drag of the air.
constexpr std::size_t kColumnsWithoutDrag = 3;

/// The rows with an engine speed, and the highest values below them.
void WriteEngineRows(ReportWriter& report, const RoadDrive& drive,
                     std::span<const RoadPower> powers) {
  WriteHeads(report, kEngineColumns);
  struct Peak {
    double value;
    double rpm;
  };
  Peak power{0, 0};
  Peak torque{0, 0};
  for (const RoadPower& row : powers) {
    const double rpm = drive.RpmAt(row.mph);
    const double rowTorque = TorqueForPower(row.TotalHp(), rpm);
    if (row.TotalHp() > power.value) power = {row.TotalHp(), rpm};
    if (rowTorque > torque.value) torque = {rowTorque, rpm};
    AddNumber<"0.0">(report, rpm, 9);
    AddNumber<"0.00">(report, row.mph, 9);
    AddNumber<"0.0000">(report, row.seconds, 10);
    AddNumber<"0.00">(report, row.accelerationHp, 11);
    for (const double value : {row.aeroHp, row.rollHp, row.TotalHp(), rowTorque}) {
      AddNumber<"0.00">(report, value, 10);
    }
    report.EndLine();
  }
  report.EndLine();
  if (power.value > 0) {
    report.Add("Highest Horse Power = ").Add<"0.0">(power.value).Add(" @ ");
    report.Add<"0">(power.rpm).Add(" RPM     Highest Torque = ").Add<"0.0">(torque.value);
    report.Add(" @ ").Add<"0">(torque.rpm).Add(" RPM").EndLine(LineMark::Bold);
  }
  report.AddLines({"Horse Power and Torque are those that reach the Drive Wheels;",
                   "Torque is at the engine's RPM."});
}

void WriteDragLine(ReportWriter& report, const RoadCar& car, DecimalMark mark) {
  report.Add("Coefficient of Drag = " + FormatSmart(car.dragCoefficient, mark));
  report.Add("    Frontal Area = " + FormatSmart(car.frontalArea, mark) + " Sq.Ft.");
  report.Add(car.trackPressure > kLargestDensity ? "    Track BP = " : "    Air Density = ");
  report.Add(FormatSmart(car.trackPressure, mark)).EndLine();
}

std::string EngineChart(std::string_view title, const RoadCar& car, const RoadGear& gear,
                        std::span<const RoadPower> powers, DecimalMark mark) {
  const RoadDrive& drive = gear.drive;
  ReportWriter report(mark);
  report.Add("Car Weight = " + FormatSmart(car.weight, mark));
  report.Add("#    Radius = " + FormatSmart(drive.DriveRadius(), mark));
  report.Add(" Inches    Rear Gear Ratio = " + FormatSmart(drive.rearGearRatio, mark));
  report.EndLine(LineMark::Bold);
  report.Add("Trans Gear ").Add<"0">(gear.number).Add(" = " + FormatSmart(drive.gear, mark));
  if (drive.primaryDrive != 1) {
    report.Add("    Primary Gear Ratio = " + FormatSmart(drive.primaryDrive, mark));
  }
  report.Add("    Tire Growth = " + FormatSmart(drive.tireGrowth, mark) + " %").EndLine();
  WriteDragLine(report, car, mark);
  report.Add("Tire Rolling Resistance = " + FormatSmart(car.rollingResistance, mark));
  if (car.headWind != 0) report.Add("    Head Wind = " + FormatSmart(car.headWind, mark) + " MPH");
  report.EndLine();
  report.EndLine();
  report.Add(title).EndLine(LineMark::Bold);
  report.EndLine();
  WriteEngineRows(report, drive, powers);
  return report.Finish();
}

}  // namespace

double RoadDrive::RpmAt(double mph) const {
  return EngineSpeed(mph, OverallRatio(), 2 * DriveRadius());
}

double RoadDrive::MphAt(double rpm) const {
  return RoadSpeed(2 * DriveRadius(), rpm, OverallRatio());
}

std::vector<RoadPower> RoadPowerOf(const RoadCar& car, std::span<const double> mph,
                                   std::span<const double> seconds) {
  const std::size_t points = std::min(mph.size(), seconds.size());
  if (points < 2) {
    throw CommandError(ErrorKind::InvalidArgument,
                       points == 0
                           ? "There are no points in the road table: its lines stand in the "
                             "parameter file."
                           : "The road table has only one point: power comes from the rise "
                             "in speed to the next.");
  }
  RequireNoneNegative(mph.first(points), "a speed");
  const double mass = car.weight / kFeetASecondSquared;
  std::vector<RoadPower> powers;
  powers.reserve(points - 1);
  for (std::size_t i = 1; i < points; ++i) {
    if (!(mph[i] > mph[i - 1])) FailAtRow(i, "is not faster");
    if (!(seconds[i] > seconds[i - 1])) FailAtRow(i, "is not later");
    RoadPower power;
    power.mph = (mph[i - 1] + mph[i]) / 2;
    power.seconds = seconds[i] - seconds[i - 1];
    const double feetASecond = power.mph * kFeetASecondPerMph;
    const double rise = (mph[i] - mph[i - 1]) * kFeetASecondPerMph;
    power.accelerationHp = mass * feetASecond * rise / power.seconds / kFootPoundsASecond;
    power.aeroHp = AeroHorsepower(power.mph, car.dragCoefficient, car.frontalArea,
                                  car.trackPressure, car.headWind);
    power.rollHp = RollingHorsepower(car.weight, car.rollingResistance, power.mph);
    powers.push_back(power);
  }
  return powers;
}

std::vector<double> TimesAtRate(std::span<const double> rpm, double rate) {
  std::vector<double> times;
  times.reserve(rpm.size());
  for (const double speed : rpm) times.push_back((speed - rpm.front()) / rate);
  return times;
}

std::string RoadSpeedChart(const RoadCar& car, const RoadGear& gear, std::span<const double> mph,
                           std::span<const double> seconds, DecimalMark mark) {
  return EngineChart("          Horse Power Prediction Chart from MPH and Times", car, gear,
                     RoadPowerOf(car, mph, seconds), mark);
}

std::string RoadEngineChart(const RoadCar& car, const RoadGear& gear, std::span<const double> rpm,
                            std::span<const double> seconds, double rate, DecimalMark mark) {
  RequireNoneNegative(rpm, "an RPM");
  std::vector<double> mph;
  mph.reserve(rpm.size());
  for (const double speed : rpm) mph.push_back(gear.drive.MphAt(speed));
  if (rate == 0) {
    return EngineChart("          Horse Power Prediction Chart from RPM and Times", car, gear,
                       RoadPowerOf(car, mph, seconds), mark);
  }
  return EngineChart("          Horse Power Prediction Chart from RPM at " +
                         FormatSmart(rate, mark) + " RPM per Second",
                     car, gear, RoadPowerOf(car, mph, TimesAtRate(rpm, rate)), mark);
}

std::string RoadWeightChart(const RoadCar& car, std::span<const double> mph,
                            std::span<const double> seconds, DecimalMark mark) {
  RoadCar driven = car;
  driven.rollingResistance = 0;
  const std::vector<RoadPower> powers = RoadPowerOf(driven, mph, seconds);
  const bool hasDrag = car.dragCoefficient != 0 && car.frontalArea != 0 && car.trackPressure != 0;
  ReportWriter report(mark);
  report.Add("Car Weight = " + FormatSmart(car.weight, mark) + "#").EndLine(LineMark::Bold);
  if (hasDrag) WriteDragLine(report, car, mark);
  report.EndLine();
  report.Add("   Horse Power Prediction Chart from Weight, MPH and Times").EndLine(LineMark::Bold);
  report.EndLine();
  WriteHeads(
      report,
      std::span(kWeightColumns).first(hasDrag ? kWeightColumns.size() : kColumnsWithoutDrag));
  const auto highest = std::max_element(
      powers.begin(), powers.end(),
      [](const RoadPower& a, const RoadPower& b) { return a.TotalHp() < b.TotalHp(); });
  for (const RoadPower& row : powers) {
    AddNumber<"0.00">(report, row.mph, 9);
    AddNumber<"0.0000">(report, row.seconds, 10);
    AddNumber<"0.00">(report, row.accelerationHp, 11);
    if (hasDrag) {
      AddNumber<"0.00">(report, row.aeroHp, 10);
      AddNumber<"0.00">(report, row.TotalHp(), 10);
    }
    report.EndLine();
  }
  report.EndLine();
  report.Add("Highest Horse Power = ").Add<"0.0">(highest->TotalHp()).Add(" @ ");
  report.Add<"0.0">(highest->mph).Add(" MPH").EndLine(LineMark::Bold);
  report.Add(hasDrag ? "Rolling resistance of the tires is not in it."
                     : "Neither drag of the air nor rolling resistance of the tires is in it.");
  return report.Finish();
}

double StartingLine::RpmPerMph(double ratio, double diameter) const {
  const double rpm = EngineSpeed(1, ratio, diameter);
  return automatic ? rpm / (1 - converterSlippage / 100) : rpm;
}

std::string StartingLineChart(const StartingLine& line, DecimalMark mark) {
  constexpr double kRatioStep = 0.5;
  constexpr double kDiameterStep = 0.5;
  constexpr int kColumnsAside = 3;
  constexpr int kRowsAside = 8;
  constexpr int kWidth = 9;
  ReportWriter report(mark);
  report.Add(line.automatic ? " Automatic (Torque Convertor)" : "       Manual (Clutch)");
  report.Add(" Transmission - N/A Starting Line Gear Ratio Chart").EndLine(LineMark::Bold);
  report.EndLine();
  report.Add("Starting Line Ratio = First Gear x Rear Gear");
  if (line.primaryDrive != 1) report.Add(" x Primary Gear");
  report.Add(" = " + FormatSmart(line.firstGear, mark) + " x " +
             FormatSmart(line.rearGearRatio, mark));
  if (line.primaryDrive != 1) report.Add(" x " + FormatSmart(line.primaryDrive, mark));
  report.Add(" = ").Add<"0.00#">(line.Ratio()).EndLine();
  report.Add("Tire Diameter = " + FormatSmart(line.tireDiameter, mark) + " Inches");
  if (line.automatic) {
    report.Add("    Converter Slippage = " + FormatSmart(line.converterSlippage, mark) + " %");
  }
  report.EndLine();
  report.EndLine();
  report.Add("   Tire     RPM per MPH by Starting Line Ratio").EndLine(LineMark::Heading);
  std::vector<double> ratios;
  int own = 0;  // the column of the car's own ratio
  for (int i = -kColumnsAside; i <= kColumnsAside; ++i) {
    const double ratio = line.Ratio() + i * kRatioStep;
    if (ratio <= 0) continue;
    ratios.push_back(ratio);
    if (i <= 0) ++own;
  }
  report.CellText = kColumnArrow;
  report.AddPadCell(kWidth * (1 + own));
  report.EndLine(LineMark::Heading);
  report.Add(" Diameter");
  for (const double ratio : ratios) AddNumber<"0.00#">(report, ratio, kWidth);
  report.EndLine(LineMark::Heading);
  for (int i = -kRowsAside; i <= kRowsAside; ++i) {
    const double diameter = line.tireDiameter + i * kDiameterStep;
    if (diameter <= 0) continue;
    report.Add<"0.0##">(diameter, kWidth);
    for (const double ratio : ratios) {
      AddNumber<"0.00">(report, line.RpmPerMph(ratio, diameter), kWidth);
    }
    report.EndLine(i == 0 ? LineMark::Bold : LineMark::None);
  }
  report.EndLine();
  report.Add("The car's own ratio and tire stand in the middle.");
  return report.Finish();
}

}  // namespace veldox
