#include "vehicle/dyno_sheet.h"

#include <algorithm>
#include <span>
#include <vector>

#include "core/error.h"
#include "core/report.h"
#include "core/units.h"
#include "vehicle/chart_heads.h"
#include "vehicle/elapsed_time.h"

namespace veldox {
namespace {

constexpr int kRpmWidth = 7;
constexpr int kTorqueWidth = 11;
constexpr int kWidth = 9;

/// A number of a column; 0 where the column has none.
double At(std::span<const double> column, std::size_t row) {
  return row < column.size() ? column[row] : 0;
}

/// A cell that stays empty for what was not measured.
template <PatternText Pattern>
void AddMeasured(ReportWriter& report, double value) {
  if (value > 0) {
    AddNumber<Pattern>(report, value, kWidth);
  } else {
    report.Add(std::string(kWidth, ' '));
  }
}

void WriteHead(ReportWriter& report, const DynoSheetLayout& layout, DecimalMark mark) {
  report.Add("                    Engine Dyno Sheet").EndLine(LineMark::Bold);
  report.EndLine();
  if (layout.cubicInches > 0) {
    report.Add("Engine Size = " + FormatSmart(layout.cubicInches, mark) + " CI").EndLine();
  } else {
    report.Add("BMEP needs the Engine Size: enter it in the Engine Displacement screen.").EndLine();
  }
  report.Add("Correction Factor = ").Add<"0.0000">(layout.correction.factor);
  if (layout.correction.isEntered) {
    report.Add(" - the Dyno Correct Factor as entered").EndLine();
    return;
  }
  const Air& air = layout.correction.air;
  report.Add(" - SAE Jun90 J1349").EndLine();
  report.Add("Baro Pressure = " + FormatSmart(air.pressure, mark));
  report.Add("    Vapor Pressure = " + FormatSmart(air.vaporPressure, mark));
  report.Add("    Temperature = " + FormatSmart(air.temperature, mark)).EndLine();
}

std::vector<ChartColumn> ColumnsOf(const DynoSheetLayout& layout, bool hasFuel) {
  const char* torque = layout.newtonMetres ? "Torque NM" : "Torque";
  std::vector<ChartColumn> columns{
      {"", "RPM", kRpmWidth}, {"", torque, kTorqueWidth}, {"", "HP", kWidth}};
  if (layout.cubicInches > 0) columns.push_back({"", "BMEP", kWidth});
  columns.insert(columns.end(),
                 {{"Corrected", torque, kTorqueWidth}, {"Corrected", "HP", kTorqueWidth}});
  if (hasFuel) {
    columns.insert(columns.end(), {{"Fuel", "lbs/hr", kWidth},
                                   {"", "BSFC", kWidth},
                                   {"A/F", "Ratio", kWidth},
                                   {"", "SCFM", kWidth},
                                   {"", "BSAC", kWidth}});
  }
  return columns;
}

struct Peak {
  double value = 0;
  double rpm = 0;

  void Take(double other, double at) {
    if (other > value) *this = {other, at};
  }
};

void WritePeaks(ReportWriter& report, const Peak& torque, const Peak& power,
                const DynoSheetLayout& layout) {
  const auto write = [&](const char* what, const Peak& peak, double factor, const char* unit) {
    report.Add(what).Add<"0.0">(peak.value * factor).Add(unit).Add(" @ ").Add<"0">(peak.rpm);
    report.Add(" RPM");
  };
  const double unit = layout.newtonMetres ? kNewtonMetresPerFootPound : 1;
  const char* name = layout.newtonMetres ? " NM" : " lb-ft";
  const double factor = layout.correction.factor;
  write("Highest Torque = ", torque, unit, name);
  write("    Corrected = ", torque, unit * factor, name);
  report.EndLine(LineMark::Bold);
  write("Highest Horse Power = ", power, 1, "");
  write("    Corrected = ", power, factor, "");
  report.EndLine(LineMark::Bold);
}

}  // namespace

SheetCorrection CorrectionOfSheet(double entered, const Air& air) {
  if (entered != 1) return {entered, true, air};
  return {J1349Jun90Correction(air), false, air};
}

std::string DynoSheetReport(const DynoColumns& columns, const DynoSheetLayout& layout,
                            DecimalMark mark) {
  const std::size_t rows = std::min(columns.rpm.size(), columns.torque.size());
  if (rows == 0) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There are no points of RPM and Torque: their lines stand in the parameter "
                       "file.");
  }
  const bool hasFuel = !layout.compact && std::any_of(columns.fuel.begin(), columns.fuel.end(),
                                                      [](double fuel) { return fuel > 0; });
  const double factor = layout.correction.factor;
  const double unit = layout.newtonMetres ? kNewtonMetresPerFootPound : 1;
  Peak highestTorque;
  Peak highestPower;
  ReportWriter report(mark);
  WriteHead(report, layout, mark);
  report.EndLine();
  WriteHeads(report, ColumnsOf(layout, hasFuel));
  for (std::size_t row = 0; row < rows; ++row) {
    const double rpm = columns.rpm[row];
    const double torque = columns.torque[row];
    const double power = PowerForTorque(torque, rpm);
    highestTorque.Take(torque, rpm);
    highestPower.Take(power, rpm);
    AddNumber<"0">(report, rpm, kRpmWidth);
    AddNumber<"0.0">(report, torque * unit, kTorqueWidth);
    AddNumber<"0.0">(report, power, kWidth);
    if (layout.cubicInches > 0) {
      AddNumber<"0.0">(report, MeanPressureForTorque(torque, layout.cubicInches), kWidth);
    }
    AddNumber<"0.0">(report, torque * unit * factor, kTorqueWidth);
    AddNumber<"0.0">(report, power * factor, kTorqueWidth);
    if (hasFuel) {
      AddMeasured<"0.0">(report, At(columns.fuel, row));
      AddMeasured<"0.000">(report, At(columns.bsfc, row));
      AddMeasured<"0.00">(report, At(columns.airFuel, row));
      AddMeasured<"0.0">(report, At(columns.scfm, row));
      AddMeasured<"0.000">(report, At(columns.bsac, row));
    }
    report.EndLine();
  }
  report.EndLine();
  WritePeaks(report, highestTorque, highestPower, layout);
  // The mark of the last line needs a line break behind it.
  report.EndLine();
  return report.Finish();
}

}  // namespace veldox
