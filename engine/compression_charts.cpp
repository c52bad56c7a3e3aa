#include "engine/compression_charts.h"

#include <cmath>
#include <initializer_list>
#include <string_view>

#include "core/report.h"

namespace veldox {

namespace {

/// The ratio of a chart's header stands this far above its first row.
constexpr double kBelowBase = 1.95;

void WriteEngine(ReportWriter& report, const CompressionInput& in) {
  report.Add("  Bore = ").Add<"0.0#####">(in.bore);
  report.Add("   Stroke = ").Add<"0.0#####">(in.stroke);
  report.Add("   Swept / Cylinder Volume = ").Add<"0.0#####">(in.sweptCc).EndLine(LineMark::Bold);
}

/// The lines over a chart around the calculated ratio.
void ChartHeader(ReportWriter& report, const CompressionInput& in, double base) {
  WriteEngine(report, in);
  report.Add("  Combustion Chamber Volume = ").Add<"0.0#####">(in.volumes.chamber);
  report.Add("   Piston Dome (+) / Dish (-) Volume = ").Add<"0.0#####">(in.volumes.dome);
  report.EndLine(LineMark::Bold);
  report.Add("  Deck Clearance Below (+) / Above (-) = ").Add<"0.0#####">(in.deckClearance);
  report.Add("   Deck Clearance cc = ").Add<"0.0#####">(in.volumes.deck).EndLine(LineMark::Bold);
  report.Add("  Compressed Head Gasket Thickness = ").Add<"0.0#####">(in.gasketThickness);
  report.Add("   Head Gasket Bore Size = ").Add<"0.0#####">(in.gasketBore).EndLine(LineMark::Bold);
  report.Add("  Head Gasket cc = ").Add<"0.0#####">(in.volumes.gasket);
  report.Add("   Top Ring Land cc = ").Add<"0.0#####">(in.volumes.ring).EndLine(LineMark::Bold);
  report.Add("  Using Calculated Base Compression Ratio of ");
  report.Add<"0.0#####">(base).Add(":1").EndLine(LineMark::Bold);
}

void WriteHeads(ReportWriter& report, std::initializer_list<std::string_view> heads) {
  report.EndLine();
  report.AddLines(heads);
}

/// Rows of three blocks; a block is written at a ratio.
template <class Block>
void WriteRows(ReportWriter& report, int rows, double first, double step, double blockWidth,
               Block block) {
  for (int row = 0; row < rows; ++row) {
    const double ratio = first + row * step;
    report.Add("         ");
    block(ratio);
    report.Add("  |");
    block(ratio + blockWidth);
    report.Add("  |");
    block(ratio + 2 * blockWidth);
    report.EndLine();
  }
}

struct ChartHeads {
  std::string_view title;
  std::string_view quantity;  ///< over each block
  std::string_view columns;
};

ChartHeads HeadsOf(RatioChart chart) {
  constexpr std::string_view kVolumes =
      "             CR       Volume  |    CR       Volume  |    CR       Volume _";
  ChartHeads heads;
  heads.columns = kVolumes;
  switch (chart) {
    case RatioChart::TotalVolume:
      heads.title = "                         CR and Total Volume Needed Chart_";
      heads.quantity = "                       Total  |              Total  |              Total _";
      break;
    case RatioChart::Chamber:
      heads.title = "                   CR and Combustion Chamber Volume Needed Chart_";
      heads.quantity = "                  Combustion  |         Combustion  |         Combustion _";
      break;
    case RatioChart::Dome:
      heads.title = "                    CR and Dome / Dish Volume Needed Chart_";
      heads.quantity = "                        Dome  |               Dome  |               Dome _";
      break;
    case RatioChart::GasketThickness:
      heads.title = "                    CR and Compressed Head Gasket Thickness Needed Chart_";
      heads.quantity = "                      Gasket  |             Gasket  |             Gasket _";
      heads.columns = "             CR    Thickness  |    CR    Thickness  |    CR    Thickness _";
      break;
  }
  return heads;
}

}  // namespace

std::string TotalVolumeChart(const CompressionInput& input, double ratio, DecimalMark mark) {
  constexpr double kLowestRatio = 2;
  constexpr double kBelowEntered = 6;
  constexpr int kRows = 40;
  const double base = Floor(ratio * 10) / 10;
  const double first = std::fmax(base - kBelowEntered, kLowestRatio);

  ReportWriter report(mark);
  WriteEngine(report, input);
  report.Add("  Using USER Entered Base Compression Ratio of ").Add<"0.0#####">(base);
  report.Add(":1").EndLine(LineMark::Bold);
  WriteHeads(report, {"                      CR and Total Volume Needed Chart_", "_",
                      "                    Total   |           Total   |           Total _",
                      "            CR     Volume   |   CR     Volume   |   CR     Volume _",
                      "         ___________________|___________________|____________________"});
  WriteRows(report, kRows, first, 0.1, 4, [&](double c) {
    report.Add<"0.0">(c, 6).Add<".0000">(ClearanceForRatio(input.sweptCc, c), 11);
  });
  return report.Finish();
}

double FirstChartedRatio(double ratio) {
  return Floor(ratio * 10000) / 10000 - kBelowBase;
}

double NeededForRatio(RatioChart chart, const CompressionInput& input, double ratio) {
  const ClearanceVolumes& volumes = input.volumes;
  const double total = volumes.Total();
  const double needed = ClearanceForRatio(input.sweptCc, ratio);
  switch (chart) {
    case RatioChart::TotalVolume: return needed;
    case RatioChart::Chamber: return needed + (volumes.chamber - total);
    case RatioChart::Dome: return volumes.dome + total - needed;
    case RatioChart::GasketThickness:
      return GasketThickness(FromCc(volumes.gasket - total + needed, input.metric),
                             input.gasketBore);
  }
  return needed;
}

std::string NeededChart(RatioChart chart, const CompressionInput& input, DecimalMark mark) {
  constexpr int kRows = 44;
  constexpr std::string_view kRule =
      "         _____________________|_____________________|______________________";
  const double first = std::fmax(
      FirstChartedRatio(RatioOfVolumes(input.sweptCc, input.volumes.Total())), kLowestChartedRatio);

  ReportWriter report(mark);
  ChartHeader(report, input, first + kBelowBase);
  const ChartHeads heads = HeadsOf(chart);
  WriteHeads(report, {heads.title, "_", heads.quantity, heads.columns, kRule});
  WriteRows(report, kRows, first, 0.03, 1.32, [&](double c) {
    report.Add<".0000">(c, 8);
    const double needed = NeededForRatio(chart, input, c);
    if (chart == RatioChart::GasketThickness) {
      report.Add<"0.00000">(needed, 11);
    } else {
      report.Add<".0000">(needed, 11);
    }
  });
  return report.Finish();
}

}  // namespace veldox
