#include "airfuel/mass_air_reports.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "core/report.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr std::array<ReportGrid, kReportGridCount> kGrids{{
    {{-3000, 1010, 200},
     {-0.2, 0.21, 0.02},
     {-0.6, 0.61, 0.2},
     {-0.08, 0.081, 0.02},
     {-1.0, 1.0, 0.1},
     true},
    {{-1400, 600, 100},
     {-0.1, 0.11, 0.01},
     {-0.3, 0.31, 0.1},
     {-0.04, 0.041, 0.01},
     {-0.4, 0.4, 0.05},
     true},
    {{-1400, 600, 200},
     {-0.1, 0.11, 0.02},
     {-0.4, 0.41, 0.2},
     {-0.04, 0.041, 0.02},
     {-0.4, 0.4, 0.1},
     false},
    {{-700, 300, 100},
     {-0.05, 0.051, 0.01},
     {-0.2, 0.21, 0.1},
     {-0.02, 0.021, 0.01},
     {-0.2, 0.2, 0.05},
     false},
    {{-700, 300, 50},
     {-0.05, 0.051, 0.005},
     {-0.15, 0.151, 0.05},
     {-0.02, 0.021, 0.005},
     {-0.2, 0.2, 0.025},
     true},
    {{-350, 150, 50},
     {-0.025, 0.0251, 0.005},
     {-0.1, 0.11, 0.05},
     {-0.01, 0.011, 0.005},
     {-0.1, 0.1, 0.025},
     false},
}};

constexpr ReportRange kOneSpeed{0, 1, 0};
constexpr ReportRange kOneRatio{0, 0.000001, 0};

constexpr ReportRange kDynoSpeeds{-1300, 600, 100};

constexpr const char* kTooLargeForSteps = "is too large for the steps of this report.";
constexpr const char* kBeyondCounting =
    "is too high for this report, which counts its speeds, and one step beyond the last of them, "
    "up to 32767.";
constexpr const char* kIsZero =
    "is 0, and the report cannot be made by dividing by 0. Please enter another value.";
constexpr const char* kMeetsZero =
    "meets 0 in the steps of this report, which nothing can be divided by. Please choose a finer "
    "report, or enter another value.";
constexpr const char* kStartsAtStandstill =
    "must be above 1300 for this report, which starts 1300 RPM below it: at 0 RPM there is no "
    "torque.";

/// The values of a range, each a step beyond the one before.
std::vector<double> ValuesOf(double centre, const ReportRange& range, ReportAxis axis) {
  std::vector<double> values;
  const double end = centre + range.to;
  for (double value = centre + range.from; value <= end; value += range.step) {
    if (!values.empty() && value <= values.back()) {
      throw ReportFault{axis, ErrorKind::Overflow, kTooLargeForSteps};
    }
    values.push_back(value);
  }
  return values;
}

/// The same of values that something is divided by.
std::vector<double> DivisorsOf(double centre, const ReportRange& range, ReportAxis axis) {
  // What steps and their rounding make of 0.
  constexpr double kNothing = 1e-12;
  std::vector<double> values = ValuesOf(centre, range, axis);
  for (const double value : values) {
    if (std::abs(value) < kNothing) {
      throw ReportFault{axis, ErrorKind::DivisionByZero, centre == 0 ? kIsZero : kMeetsZero};
    }
  }
  return values;
}

/// The speeds of a range, counted in 16 bits.
std::vector<double> SpeedsOf(double rpm, const ReportRange& range) {
  std::vector<double> speeds;
  try {
    const std::int16_t end = RoundToInt16(rpm + range.to);
    const std::int16_t step = RoundToInt16(range.step);
    for (std::int16_t speed = RoundToInt16(rpm + range.from); speed <= end;
         speed = RoundToInt16(static_cast<double>(speed) + step)) {
      speeds.push_back(speed);
    }
  } catch (const CommandError& error) {
    throw ReportFault{ReportAxis::Rpm, error.kind(), kBeyondCounting};
  }
  return speeds;
}

/// A range of the value entered alone, counted in the steps of the whole one.
ReportRange OneBlockOf(ReportRange one, const ReportRange& whole) {
  one.step = whole.step;
  return one;
}

/// Writes one of the reports that have a block for each speed or ratio, with the volumetric
/// efficiencies as rows.
class GridWriter : public ReportWriter {
 public:
  GridWriter(const MassAirValues& values, const MassAirLayout& layout)
      : ReportWriter(layout.mark),
        values_(values),
        isLarge_(layout.grid.isLarge),
        efficiencies_(ValuesOf(values.volumetricEfficiency, layout.grid.volumetricEfficiency,
                               ReportAxis::VolumetricEfficiency)) {
    MassAirReportHeader();
  }

  ReportWriter& Blanks(int count) { return Add(std::string(static_cast<std::size_t>(count), ' ')); }

  void Line(std::string_view text) { Add(text).EndLine(LineMark::Bold); }

  void BlockOfSpeed(double rpm) {
    Add<"0">(rpm, 5);
    Line(" - RPM");
  }

  /// The heads of columns of fuel flow.
  void AirFuelColumnHeader(const std::vector<double>& ratios) {
    Blanks(isLarge_ ? 57 : 48);
    Line("\\|/");
    Add("A/F Ratio                ");
    for (const double ratio : ratios) Add<".000">(ratio, 9);
    EndLine(LineMark::Bold);
    Line(isLarge_ ? "   VE%     Air      Air      Fuel     Fuel     Fuel     Fuel     Fuel     Fuel"
                    "     Fuel"
                  : "   VE%     Air      Air      Fuel     Fuel     Fuel     Fuel     Fuel");
    Line(isLarge_
             ? "          kgs/s    lbs/hr   lbs/hr   lbs/hr   lbs/hr   lbs/hr   lbs/hr   lbs/hr"
               "   lbs/hr"
             : "          kgs/s    lbs/hr   lbs/hr   lbs/hr   lbs/hr   lbs/hr   lbs/hr");
  }

  /// The heads of columns of horsepower.
  void BsfcColumnHeader(const std::vector<double>& bsfcs) {
    Blanks(isLarge_ ? 75 : 57);
    Line("\\|/");
    Add("BSFC                              ");
    for (const double bsfc : bsfcs) Add<"0.0000">(bsfc).Add("   ");
    EndLine(LineMark::Bold);
    Line(isLarge_
             ? "   VE%     Air      Air      Fuel     BSFC     BSFC     BSFC     BSFC     BSFC"
               "     BSFC     BSFC     BSFC     BSFC"
             : "   VE%     Air      Air      Fuel     BSFC     BSFC     BSFC     BSFC     BSFC");
    Line(isLarge_
             ? "          kgs/s    lbs/hr   lbs/hr     HP       HP       HP       HP       HP"
               "       HP       HP       HP       HP"
             : "          kgs/s    lbs/hr   lbs/hr     HP       HP       HP       HP       HP");
  }

  /// The rows of a block.
  /// @param finishRow  writes the columns behind the air, which it is told in pounds an hour
  template <class FinishRow>
  void Rows(double rpm, const FinishRow& finishRow) {
    const double swept = SweptM3PerSec(values_.cubicInches, rpm);
    for (const double efficiency : efficiencies_) {
      const double kilograms = AirKgPerSec(swept, values_.air, efficiency);
      const double pounds = PoundsPerHourOf(kilograms);
      Add<".0000">(efficiency, 7).Add<".0000">(kilograms, 8).Add<".000">(pounds, 10);
      finishRow(pounds);
      EndLine(LineMark::Bold);
    }
  }

  /// Rows of fuel flow at one ratio and horsepower by BSFC.
  void HorsepowerRows(double rpm, double ratio, const std::vector<double>& bsfcs) {
    Rows(rpm, [&](double air) {
      const double fuel = air / ratio;
      Add<".000">(fuel, 9);
      for (const double bsfc : bsfcs) Add<"0.00">(fuel / bsfc, 9);
    });
  }

  /// The empty line behind a block.
  void EndBlock() { EndLine(LineMark::Bold); }

  /// The report. It ends in a line break, so that every line keeps its mark.
  std::string Whole() { return std::move(ReportLine); }

 private:
  void MassAirReportHeader() {
    Add("Engine Size = ").Add<"0.0000">(values_.cubicInches);
    Add("  -  RPM = ").Add<"0">(values_.rpm);
    Add("  -  Blower Pressure = ").Add<".00">(values_.boost).EndLine(LineMark::Bold);
    Add("Barometric Pressure = ").Add<"0.0000">(values_.inchesMercury);
    Add("  -  Temperature = ").Add<".00">(values_.fahrenheit).EndLine(LineMark::Bold);
  }

  const MassAirValues& values_;
  bool isLarge_;
  std::vector<double> efficiencies_;
};

DynoPoint DynoPointAt(const MassAirValues& values, double rpm, double volumetricEfficiency) {
  DynoPoint point{};
  point.poundsOfAir = PoundsPerHourOf(
      AirKgPerSec(SweptM3PerSec(values.cubicInches, rpm), values.air, volumetricEfficiency));
  point.poundsOfFuel = point.poundsOfAir / values.airFuelRatio;
  point.horsepower = point.poundsOfFuel / values.bsfc;
  return point;
}

void RequireNotZero(double value, ReportAxis axis) {
  if (value == 0) throw ReportFault{axis, ErrorKind::DivisionByZero, kIsZero};
}

}  // namespace

const ReportGrid& ReportGridOf(int option) {
  return kGrids.at(static_cast<std::size_t>(option));
}

std::string AirFuelReport(const MassAirValues& values, const MassAirLayout& layout) {
  const ReportGrid& grid = layout.grid;
  const std::vector<double> speeds =
      SpeedsOf(values.rpm, layout.oneBlock ? OneBlockOf(kOneSpeed, grid.rpm) : grid.rpm);
  const std::vector<double> ratios =
      DivisorsOf(values.airFuelRatio, grid.airFuel, ReportAxis::AirFuel);
  GridWriter report(values, layout);
  report.Add("BSFC = ").Add<"0.00000">(values.bsfc).EndLine(LineMark::Bold);
  for (const double rpm : speeds) {
    report.BlockOfSpeed(rpm);
    report.AirFuelColumnHeader(ratios);
    report.Rows(rpm, [&](double air) {
      for (const double ratio : ratios) report.Add<".000">(air / ratio, 9);
    });
    report.EndBlock();
  }
  return report.Whole();
}

std::string BsfcReport(const MassAirValues& values, const MassAirLayout& layout) {
  const ReportGrid& grid = layout.grid;
  RequireNotZero(values.airFuelRatio, ReportAxis::AirFuel);
  const std::vector<double> speeds =
      SpeedsOf(values.rpm, layout.oneBlock ? OneBlockOf(kOneSpeed, grid.rpm) : grid.rpm);
  const std::vector<double> bsfcs = DivisorsOf(values.bsfc, grid.bsfc, ReportAxis::Bsfc);
  GridWriter report(values, layout);
  report.Add("Air / Fuel Ratio = ").Add<"0.00000">(values.lambdaOrRatio).EndLine(LineMark::Bold);
  for (const double rpm : speeds) {
    report.BlockOfSpeed(rpm);
    report.BsfcColumnHeader(bsfcs);
    report.HorsepowerRows(rpm, values.airFuelRatio, bsfcs);
    report.EndBlock();
  }
  return report.Whole();
}

std::string SpeedReport(const MassAirValues& values, const MassAirLayout& layout) {
  const ReportGrid& grid = layout.grid;
  const std::vector<double> ratios =
      DivisorsOf(values.airFuelRatio,
                 layout.oneBlock ? OneBlockOf(kOneRatio, grid.airFuelOfSpeed) : grid.airFuelOfSpeed,
                 ReportAxis::AirFuel);
  const std::vector<double> bsfcs = DivisorsOf(values.bsfc, grid.bsfc, ReportAxis::Bsfc);
  GridWriter report(values, layout);
  report.Add("RPM = ").Add<"0">(values.rpm).EndLine(LineMark::Bold);
  for (const double ratio : ratios) {
    report.Add<".000">(ratio, 5).Add(" - Air / Fuel Ratio").EndLine(LineMark::Bold);
    report.BsfcColumnHeader(bsfcs);
    report.HorsepowerRows(values.rpm, ratio, bsfcs);
    report.EndBlock();
  }
  return report.Whole();
}

DynoSheet DynoReport(const MassAirValues& values, bool oneRow, DecimalMark mark) {
  RequireNotZero(values.cylinders, ReportAxis::Cylinders);
  RequireNotZero(values.airFuelRatio, ReportAxis::AirFuel);
  RequireNotZero(values.bsfc, ReportAxis::Bsfc);
  ReportRange range = oneRow ? OneBlockOf(kOneSpeed, kDynoSpeeds) : kDynoSpeeds;
  if (!oneRow && !(values.rpm + range.from > 0)) range.from = -values.rpm;
  const std::vector<double> speeds = ValuesOf(values.rpm, range, ReportAxis::Rpm);
  if (speeds.empty()) throw ReportFault{ReportAxis::Rpm, ErrorKind::Overflow, kStartsAtStandstill};

  ReportWriter report(mark);
  const auto pad = [&](int width) {
    report.PadTextCell(width);
    report.LeftCellText.clear();
  };
  report.Add("    ");
  report.LeftCellText = "Engine Cubic Inches = " + FormatValue<"0.00000">(values.cubicInches, mark);
  pad(36);
  report.Add("Number of Cylinders = ").Add<"0">(values.cylinders).EndLine(LineMark::Bold);
  report.LeftCellText = "    Single Cylinder CIs = " +
                        FormatValue<"0.00000">(values.cubicInches / values.cylinders, mark);
  pad(40);
  report.Add("Blower Pressure = ").Add<"0.0#">(values.boost).EndLine(LineMark::Bold);
  report.LeftCellText = "    Air / Fuel Ratio = " + FormatValue<"0.0##">(values.airFuelRatio, mark);
  pad(40);
  report.Add("Volumetric Efficiency = ").Add<"0.0#">(values.volumetricEfficiency * 100);
  report.Add("%").EndLine(LineMark::Bold);
  report.LeftCellText = "    BSFC = " + FormatValue<"0.00000">(values.bsfc, mark);
  pad(40);
  report.Add("BSAC = ").Add<"0.0##">(values.airFuelRatio * values.bsfc).EndLine(LineMark::Bold);
  report.LeftCellText =
      "    Barometric Pressure = " + FormatValue<"0.0##">(values.inchesMercury, mark);
  pad(40);
  report.Add("Temperature = ").Add<"0.0#">(values.fahrenheit).EndLine(LineMark::Bold);

  report.Add("     UnCorrected  Fuel").EndLine(LineMark::Bold);
  report.Add(" RPM      HP     lbs/hr   SCFM").EndLine(LineMark::Bold);
  for (const double rpm : speeds) {
    const DynoPoint point = DynoPointAt(values, rpm, values.volumetricEfficiency);
    report.Add<"0">(rpm, 5).Add<"0.00">(point.horsepower, 9).Add<".000">(point.poundsOfFuel, 9);
    report.Add<"0.00">(StandardCubicFeet(point.poundsOfAir), 8).EndLine(LineMark::Bold);
  }

  DynoPoint last{};
  report.Add("          UnCorrected      Fuel").EndLine(LineMark::Bold);
  report.Add(" RPM      HP     Torque   lbs/hr   SCFM").EndLine(LineMark::Bold);
  for (const double rpm : speeds) {
    if (rpm == 0) {
      throw ReportFault{ReportAxis::Rpm, ErrorKind::DivisionByZero,
                        oneRow ? kIsZero : kStartsAtStandstill};
    }
    DynoPoint point = DynoPointAt(
        values, rpm, VolumetricEfficiencyAt(rpm, values.rpm, values.volumetricEfficiency));
    if (rpm > values.rpm) {
      // Above the peak only the horsepower falls off: fuel and air go on growing.
      const double horsepower = point.horsepower;
      point = DynoPointAt(values, rpm, values.volumetricEfficiency);
      point.horsepower = horsepower;
    }
    report.Add<"0">(rpm, 5).Add<"0.00">(point.horsepower, 9);
    report.Add<".00">(point.horsepower * kRpmOfEqualTorqueAndPower / rpm, 9);
    report.Add<".000">(point.poundsOfFuel, 9);
    report.Add<"0.00">(StandardCubicFeet(point.poundsOfAir), 8).EndLine(LineMark::Bold);
    last = point;
  }
  return {std::move(report.ReportLine), last};
}

}  // namespace veldox
