#include "airfuel/mass_air_reports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/report.h"

namespace veldox {
namespace {

/// An engine that sweeps 1000 CFM of air that weighs a kilogram a cubic metre: 0.4719474 kg/s.
MassAirValues Engine() {
  MassAirValues values;
  values.cubicInches = 345.6;
  values.cylinders = 8;
  values.rpm = 10000;
  values.volumetricEfficiency = 0.9;
  values.airFuelRatio = 12;
  values.lambdaOrRatio = 12;
  values.bsfc = 0.5;
  values.fahrenheit = 59;
  values.inchesMercury = 29.92;
  values.air = {1000.0 / 287, 1000};
  return values;
}

std::vector<std::string> Lines(const std::string& report) {
  std::vector<std::string> lines;
  for (const MarkedLine& line : ReportLines(report)) lines.emplace_back(line.text);
  return lines;
}

int CountOf(const std::vector<std::string>& lines, const std::string& ending) {
  return static_cast<int>(std::count_if(
      lines.begin(), lines.end(), [&](const std::string& line) { return line.ends_with(ending); }));
}

/// Numbers of a row, each in a column of its own.
std::vector<double> Numbers(const std::string& line) {
  std::vector<double> numbers;
  std::size_t at = line.find_first_not_of(' ');
  while (at != std::string::npos) {
    const std::size_t end = std::min(line.find(' ', at), line.size());
    numbers.push_back(ParseNumber(line.substr(at, end - at), DecimalMark::Point));
    at = line.find_first_not_of(' ', end);
  }
  return numbers;
}

MassAirLayout LayoutOf(int option, bool oneBlock) {
  return {ReportGridOf(option), oneBlock, DecimalMark::Point};
}

TEST(ReportGrids, HaveAsManyRowsAndColumnsAsTheirHeads) {
  for (int option = 0; option < kReportGridCount; ++option) {
    const bool large = option == 0 || option == 1 || option == 4;
    EXPECT_EQ(ReportGridOf(option).isLarge, large);
    const auto fuel = Lines(AirFuelReport(Engine(), LayoutOf(option, true)));
    const auto power = Lines(BsfcReport(Engine(), LayoutOf(option, true)));
    // Prompt, two head lines and a third, block, arrow, values, two heads, then rows.
    constexpr std::size_t kFirstRow = 10;
    EXPECT_EQ(Numbers(fuel.at(kFirstRow)).size(), large ? 10U : 8U) << option;
    EXPECT_EQ(Numbers(power.at(kFirstRow)).size(), large ? 13U : 9U) << option;
    const std::size_t rows = option == 2 || option == 3 || option == 5 ? 11 : 21;
    // Behind the rows an empty line, and what stands behind its line break.
    EXPECT_EQ(fuel.size(), kFirstRow + rows + 2) << option;
    EXPECT_EQ(power.size(), kFirstRow + rows + 2) << option;
    EXPECT_EQ(fuel.at(kFirstRow + rows), "");
    // The rows and columns go as far below the value as above it.
    EXPECT_NEAR(Numbers(fuel.at(kFirstRow + rows / 2)).front(), 0.9, 1e-9);
    EXPECT_EQ(fuel.at(6).find("\\|/"), large ? 57U : 48U);
    EXPECT_EQ(power.at(6).find("\\|/"), large ? 75U : 57U);
  }
  EXPECT_THROW(ReportGridOf(6), std::out_of_range);
}

TEST(AirFuelReport, HoldsTheFlowsOfTheEngine) {
  const auto lines = Lines(AirFuelReport(Engine(), LayoutOf(2, true)));
  EXPECT_EQ(lines.at(2), "Engine Size = 345.6000  -  RPM = 10000  -  Blower Pressure = .00");
  EXPECT_EQ(lines.at(3), "Barometric Pressure = 29.9200  -  Temperature = 59.00");
  EXPECT_EQ(lines.at(4), "BSFC = 0.50000");
  EXPECT_EQ(lines.at(5), "10000 - RPM");
  EXPECT_EQ(lines.at(7), "A/F Ratio                   11.600   11.800   12.000   12.200   12.400");
  // 0.4719474 x 0.9 kg/s, x 3600 / 0.45359237 lb/hr, / 12
  EXPECT_EQ(lines.at(15).substr(0, 25), "  .9000   .4248  3371.110");
  EXPECT_EQ(Numbers(lines.at(15)).at(5), 280.926);
  EXPECT_EQ(lines.back(), "");
}

TEST(BsfcReport, HoldsTheHorsepowerOfTheFuel) {
  const auto lines = Lines(BsfcReport(Engine(), LayoutOf(2, true)));
  EXPECT_EQ(lines.at(4), "Air / Fuel Ratio = 12.00000");
  EXPECT_EQ(lines.at(7),
            "BSFC                              0.4600   0.4800   0.5000   0.5200   0.5400   ");
  const std::vector<double> row = Numbers(lines.at(15));
  EXPECT_EQ(row.at(3), 280.926);
  EXPECT_EQ(row.at(6), 561.85);
}

TEST(SpeedReport, HasABlockForEachRatio) {
  // -0.4 to +0.4 by 0.1: nine blocks, unless rounding of the sum loses the last.
  int steps = 0;
  for (double ratio = 12 - 0.4; ratio <= 12 + 0.4; ratio += 0.1) ++steps;
  const auto lines = Lines(SpeedReport(Engine(), LayoutOf(2, false)));
  EXPECT_EQ(CountOf(lines, " - Air / Fuel Ratio"), steps);
  EXPECT_EQ(lines.at(4), "RPM = 10000");
  EXPECT_EQ(lines.at(5), "11.600 - Air / Fuel Ratio");
  const auto one = Lines(SpeedReport(Engine(), LayoutOf(2, true)));
  EXPECT_EQ(CountOf(one, " - Air / Fuel Ratio"), 1);
  EXPECT_EQ(one.at(5), "12.000 - Air / Fuel Ratio");
}

TEST(GridReports, CountTheirSpeedsInSixteenBits) {
  MassAirValues engine = Engine();
  const auto blocks = [&](int option) {
    return CountOf(Lines(AirFuelReport(engine, LayoutOf(option, false))), " - RPM");
  };
  engine.rpm = 6500;
  EXPECT_EQ(blocks(0), 21);  // 3500 to 7500 by 200
  EXPECT_EQ(blocks(1), 21);
  EXPECT_EQ(blocks(2), 11);
  EXPECT_EQ(blocks(5), 11);
  // Half a revolution goes to the even count: 5100.5 to 7100.5 is 5100 to 7100.
  engine.rpm = 6500.5;
  EXPECT_EQ(blocks(2), 11);
  engine.rpm = 32000;
  EXPECT_THROW(blocks(0), ReportFault);  // ends at 33010
  EXPECT_THROW(blocks(2), ReportFault);  // steps past 32600 to 32800
  EXPECT_EQ(blocks(1), 21);
  EXPECT_EQ(blocks(3), 11);
  engine.rpm = 32767;
  for (int option = 0; option < kReportGridCount; ++option) {
    EXPECT_THROW(blocks(option), ReportFault) << option;
  }
  EXPECT_NO_THROW(SpeedReport(engine, LayoutOf(0, false)));
  // Speeds below standstill are printed like others.
  engine.rpm = 1000;
  const auto slow = Lines(AirFuelReport(engine, LayoutOf(0, false)));
  EXPECT_EQ(slow.at(5), "-2000 - RPM");
}

ReportAxis FaultOf(const MassAirValues& values, int option) {
  try {
    BsfcReport(values, LayoutOf(option, true));
    SpeedReport(values, LayoutOf(option, true));
    AirFuelReport(values, LayoutOf(option, true));
  } catch (const ReportFault& fault) {
    return fault.axis;
  }
  return ReportAxis::Cylinders;
}

TEST(GridReports, RefuseAColumnOfZero) {
  MassAirValues engine = Engine();
  engine.bsfc = 0.08;
  EXPECT_EQ(FaultOf(engine, 0), ReportAxis::Bsfc);
  // A finer grid stays above 0; of a coarser one the columns below it are printed.
  EXPECT_EQ(FaultOf(engine, 1), ReportAxis::Cylinders);
  engine.bsfc = 0.07;
  const auto lines = Lines(BsfcReport(engine, LayoutOf(0, true)));
  EXPECT_NE(lines.at(7).find("-0.0100"), std::string::npos);
  engine = Engine();
  engine.airFuelRatio = 0;
  EXPECT_EQ(FaultOf(engine, 0), ReportAxis::AirFuel);
}

TEST(GridReports, ComeToAnEndWhateverTheirValues) {
  MassAirValues engine = Engine();
  engine.volumetricEfficiency = 1e20;
  EXPECT_EQ(FaultOf(engine, 0), ReportAxis::VolumetricEfficiency);
  engine = Engine();
  engine.bsfc = 1e20;
  EXPECT_EQ(FaultOf(engine, 0), ReportAxis::Bsfc);
  engine = Engine();
  engine.rpm = 1e20;
  EXPECT_THROW(DynoReport(engine, false, DecimalMark::Point), ReportFault);
}

TEST(DynoReport, HasTwoColumnsInItsHead) {
  const auto lines = Lines(DynoReport(Engine(), false, DecimalMark::Point).report);
  EXPECT_EQ(lines.at(2), "    Engine Cubic Inches = 345.60000     Number of Cylinders = 8");
  EXPECT_EQ(lines.at(3), "    Single Cylinder CIs = 43.20000      Blower Pressure = 0.0");
  EXPECT_EQ(lines.at(4), "    Air / Fuel Ratio = 12.0             Volumetric Efficiency = 90.0%");
  EXPECT_EQ(lines.at(5), "    BSFC = 0.50000                      BSAC = 6.0");
  EXPECT_EQ(lines.at(6), "    Barometric Pressure = 29.92         Temperature = 59.0");
}

TEST(DynoReport, RunsFromBelowThePeakToBeyondItInHundreds) {
  const auto lines = Lines(DynoReport(Engine(), false, DecimalMark::Point).report);
  // 8700 to 10600 by 100
  EXPECT_EQ(Numbers(lines.at(9)).front(), 8700);
  EXPECT_EQ(Numbers(lines.at(28)).front(), 10600);
  EXPECT_EQ(lines.at(29), "          UnCorrected      Fuel");
  EXPECT_EQ(lines.size(), 52U);
  EXPECT_EQ(lines.back(), "");
  const auto one = Lines(DynoReport(Engine(), true, DecimalMark::Point).report);
  EXPECT_EQ(one.size(), 14U);
}

TEST(DynoReport, LetsOnlyThePowerFallAboveThePeak) {
  const DynoSheet sheet = DynoReport(Engine(), false, DecimalMark::Point);
  const auto lines = Lines(sheet.report);
  const auto plain = [&](int row) { return Numbers(lines.at(static_cast<std::size_t>(9 + row))); };
  const auto curve = [&](int row) { return Numbers(lines.at(static_cast<std::size_t>(31 + row))); };
  constexpr int kPeak = 13;
  EXPECT_EQ(curve(kPeak).at(0), 10000);
  // At the peak both tables agree; horsepower x 5252 / RPM is the torque.
  EXPECT_EQ(curve(kPeak).at(1), plain(kPeak).at(1));
  EXPECT_NEAR(curve(kPeak).at(2), 561.852 * 5252 / 10000, 0.006);
  EXPECT_EQ(curve(kPeak).at(3), plain(kPeak).at(2));
  for (int row = kPeak + 1; row < 20; ++row) {
    EXPECT_LT(curve(row).at(1), curve(row - 1).at(1)) << row;
    EXPECT_EQ(curve(row).at(3), plain(row).at(2)) << row;
    EXPECT_EQ(curve(row).at(4), plain(row).at(3)) << row;
  }
  for (int row = 0; row < kPeak; ++row) {
    EXPECT_GT(curve(row).at(1), plain(row).at(1)) << row;
    EXPECT_GT(curve(row).at(3), plain(row).at(2)) << row;
  }
  // The last row: air and fuel grow with the speed, power with its exponent: 1.06^(1 - 1.275).
  EXPECT_NEAR(sheet.last.poundsOfAir, 3371.110 * 1.06, 0.001);
  EXPECT_NEAR(sheet.last.poundsOfFuel, 280.926 * 1.06, 0.001);
  EXPECT_NEAR(sheet.last.horsepower, 561.852 * std::pow(1.06, -0.275), 0.001);
}

TEST(DynoReport, RefusesToBeginAtStandstill) {
  MassAirValues engine = Engine();
  for (const double rpm : {1200.0, 1300.0, 0.0, -500.0}) {
    engine.rpm = rpm;
    EXPECT_THROW(DynoReport(engine, false, DecimalMark::Point), ReportFault) << rpm;
  }
  engine.rpm = 1200;
  EXPECT_NO_THROW(DynoReport(engine, true, DecimalMark::Point));
  engine.rpm = 1301;
  EXPECT_NO_THROW(DynoReport(engine, false, DecimalMark::Point));
}

TEST(Reports, MarkEveryLineAndEndInNone) {
  for (const std::string& report :
       {AirFuelReport(Engine(), LayoutOf(0, false)), BsfcReport(Engine(), LayoutOf(3, false)),
        SpeedReport(Engine(), LayoutOf(5, false)),
        DynoReport(Engine(), false, DecimalMark::Point).report}) {
    const std::vector<MarkedLine> lines = ReportLines(report);
    for (std::size_t i = 2; i + 1 < lines.size(); ++i) {
      EXPECT_EQ(lines[i].mark, LineMark::Bold) << lines[i].text;
    }
    EXPECT_EQ(lines.back(), MarkedLine{});
    EXPECT_EQ(ReportFileText(report).find('^'), std::string::npos);
  }
}

TEST(Reports, FitThePageInTheirSize) {
  // A page holds 11370 twips of "Courier", a character of which is 0.6 of its size.
  const auto widest = [](const std::string& report) {
    std::size_t width = 0;
    for (const std::string& line : Lines(report)) width = std::max(width, line.size());
    return static_cast<double>(width) * 0.6 * 20;
  };
  for (int option = 0; option < kReportGridCount; ++option) {
    EXPECT_LE(widest(AirFuelReport(Engine(), LayoutOf(option, false))) * 10, 11370) << option;
    const double size = ReportGridOf(option).isLarge ? 8 : 10;
    EXPECT_LE(widest(BsfcReport(Engine(), LayoutOf(option, false))) * size, 11370) << option;
  }
}

}  // namespace
}  // namespace veldox
