#include "reference/charts.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <map>
#include <numeric>
#include <span>
#include <string_view>
#include <vector>

#include "core/error.h"
#include "core/report.h"
#include "data/tables.h"
#include "reference/unit_conversion.h"

namespace veldox {

namespace {

// Option buttons of units that charts convert between.
constexpr int kInches = 11;
constexpr int kMillimetres = 9;

constexpr int kSixtyFourths = 64;

/// A chart with its title and heads; the rows are still to come.
ReportWriter Chart(DecimalMark mark, std::initializer_list<std::string_view> headings) {
  ReportWriter report(mark, ChartPrompt);
  report.AddLines({"_"});
  report.AddLines(headings);
  return report;
}

/// A line whose texts stand at columns, counted from 1.
class PlacedLine {
 public:
  /// Begins at a column.
  PlacedLine& Left(std::string_view text, int column) {
    line_.resize(std::max(line_.size(), static_cast<std::size_t>(std::max(column - 1, 0))), ' ');
    line_ += text;
    return *this;
  }
  /// Ends at a column.
  PlacedLine& Right(std::string_view text, int column) {
    return Left(text, column - static_cast<int>(text.size()) + 1);
  }
  /// Stands in the middle of columns.
  PlacedLine& Middle(std::string_view text, int column, int width) {
    return Left(text, column + (width - static_cast<int>(text.size())) / 2);
  }
  const std::string& text() const { return line_; }

 private:
  std::string line_;
};

double Number(std::string_view cell) {
  return ParseNumber(cell, DecimalMark::Point);
}

/// A fraction of an inch in lowest terms, such as "3-47/64".
std::string FractionText(int sixtyFourths) {
  const int whole = sixtyFourths / kSixtyFourths;
  const int rest = sixtyFourths % kSixtyFourths;
  std::string text = whole == 0 ? "" : std::to_string(whole);
  if (rest == 0) return text;
  const int divisor = std::gcd(rest, kSixtyFourths);
  if (whole != 0) text += '-';
  return text + std::to_string(rest / divisor) + '/' + std::to_string(kSixtyFourths / divisor);
}

/// A size in inches as a fraction, where it is one, else with three decimals.
std::string InchText(double inches, DecimalMark mark) {
  const double sixtyFourths = inches * kSixtyFourths;
  return sixtyFourths == Floor(sixtyFourths) ? FractionText(RoundToInt16(sixtyFourths))
                                             : FormatValue<".000">(inches, mark);
}

/// Inches of a fraction such as "3-47/64".
double InchesOf(std::string_view fraction) {
  const auto slash = fraction.find('/');
  if (slash == std::string_view::npos) return Number(fraction);
  const auto dash = fraction.find('-');
  const bool isMixed = dash != std::string_view::npos;
  const auto over = isMixed ? dash + 1 : 0;
  return (isMixed ? Number(fraction.substr(0, dash)) : 0) +
         Number(fraction.substr(over, slash - over)) / Number(fraction.substr(slash + 1));
}

/// Diameter in inches of a tap: a fraction, or a screw number such as "#10".
double TapDiameter(std::string_view size) {
  return size.starts_with('#') ? 0.060 + 0.013 * Number(size.substr(1)) : InchesOf(size);
}

std::span<const TableRow> RowsOf(std::span<const TableGroup> table, std::string_view group) {
  const auto found = std::find_if(table.begin(), table.end(),
                                  [&](const TableGroup& g) { return g.name == group; });
  return found == table.end() ? std::span<const TableRow>{} : found->rows;
}

/// Rows whose blocks are read down the columns, as many as there are separators before each.
/// @param write  writes the block of an index
template <class Block>
void WriteBlocks(ReportWriter& report, std::size_t count,
                 std::initializer_list<std::string_view> before, Block write) {
  const std::size_t rows = (count + before.size() - 1) / before.size();
  for (std::size_t row = 0; row < rows; ++row) {
    std::size_t index = row;
    for (const std::string_view separator : before) {
      if (index < count) {
        report.Add(separator);
        write(index);
      }
      index += rows;
    }
    report.EndLine();
  }
}

std::string TapHalf(const TableRow& tap) {
  return PlacedLine()
      .Middle(tap.name, 4, 5)
      .Right(tap.cells[0], 15)
      .Middle(tap.cells[1], 22, 5)
      .text();
}

}  // namespace

std::string FractionChart(DecimalMark mark) {
  ReportWriter report =
      Chart(mark, {"                    Fractions to Decimal Chart_",
                   "  Fract    Inches       MM       |    Fract     Inches       MM_",
                   "_________________________________|___________________________________"});
  constexpr int kHalf = kSixtyFourths / 2;
  const auto half = [&](int sixtyFourths, int fractionWidth, int inchWidth) {
    const double inches = static_cast<double>(sixtyFourths) / kSixtyFourths;
    report.CellText = FractionText(sixtyFourths);
    report.AddPadCell(fractionWidth);
    report.Add<".000000">(inches, inchWidth);
    report.Add<".000000">(ConvertUnit(inches, kInches, kMillimetres), 12);
  };
  for (int row = 1; row <= kHalf; ++row) {
    half(row, 7, 10);
    report.Add("    |    ");
    half(row + kHalf, 5, 11);
    report.EndLine();
  }
  return report.Finish();
}

std::string NumberDrillChart(DecimalMark mark) {
  ReportWriter report =
      Chart(mark, {"                      Number Drill Size Chart_",
                   " #      Size   |   #      Size   |   #      Size   |    #      Size_",
                   "_______________|_________________|_________________|___________________"});
  const std::span<const TableRow> drills = RowsOf(DrillTable(), "Number");
  WriteBlocks(report, drills.size(), {"", "   |  ", "   |  ", "   |   "}, [&](std::size_t i) {
    report.CellText = drills[i].name.substr(1);
    report.AddPadCell(2);
    report.Add("     ").Add<".0000">(Number(drills[i].cells[0]));
  });
  return report.Finish();
}

std::string LetterDrillChart(DecimalMark mark) {
  ReportWriter report =
      Chart(mark, {"                       Alpha Drill Size Chart_",
                   "             Letter  Size        |       Letter  Size   _",
                   "_________________________________|__________________________"});
  const std::span<const TableRow> drills = RowsOf(DrillTable(), "Letter");
  WriteBlocks(report, drills.size(), {"             ", "       |       "}, [&](std::size_t i) {
    report.Add("  ").Add(drills[i].name).Add("     ").Add<".0000">(Number(drills[i].cells[0]));
  });
  return report.Finish();
}

std::string AllDrillChart(DecimalMark mark) {
  ReportWriter report = Chart(
      mark,
      {"              All Drill Size Chart_", "                   Size            Size_",
       "                  Decimal         Metric_", "        __________________________________"});
  std::multimap<double, std::string> drills;
  for (int i = 1; i <= kSixtyFourths; ++i) {
    drills.emplace(static_cast<double>(i) / kSixtyFourths, FractionText(i));
  }
  for (const TableGroup& group : DrillTable()) {
    for (const TableRow& row : group.rows) drills.emplace(Number(row.cells[0]), row.name);
  }
  for (const auto& [inches, name] : drills) {
    report.CellText = name;
    report.AddPadCell(13);
    report.Add<".0000">(inches, 11);
    report.Add<".000">(ConvertUnit(inches, kInches, kMillimetres), 16).EndLine();
  }
  return report.Finish();
}

std::string TapDrillChart(DecimalMark mark) {
  ReportWriter report =
      Chart(mark, {"                    Tap to Drill Size Chart_",
                   "       National Coarse         |       National Fine_",
                   "    Size  Threads    Drill     |    Size  Threads    Drill_",
                   "          per Inch    Size     |          per Inch    Size_",
                   "_______________________________|______________________________"});
  struct Halves {
    std::string coarse;
    std::string fine;
  };
  std::map<double, Halves> rows;
  for (const TableRow& tap : RowsOf(TapTable(), "National Coarse")) {
    rows[TapDiameter(tap.name)].coarse = TapHalf(tap);
  }
  for (const TableRow& tap : RowsOf(TapTable(), "National Fine")) {
    rows[TapDiameter(tap.name)].fine = TapHalf(tap);
  }
  for (const auto& [diameter, row] : rows) {
    report.Add(PlacedLine().Left(row.coarse, 1).Left("|", 32).text()).Add(row.fine).EndLine();
  }
  return report.Finish();
}

std::string PipeTapChart(DecimalMark mark) {
  ReportWriter report = Chart(mark, {"           Pipe Tap to Drill Size Chart_",
                                     "         Size  Threads    Drill    Outside_",
                                     "        (I.D.) per Inch    Size   Diameter_",
                                     "        ___________________________________"});
  for (const TableGroup& group : PipeTapTable()) {
    for (const TableRow& tap : group.rows) {
      report
          .Add(PlacedLine()
                   .Middle(tap.name, 9, 5)
                   .Right(tap.cells[0], 20)
                   .Middle(tap.cells[1], 26, 7)
                   .Left(InchText(Number(tap.cells[2]), mark), 38)
                   .text())
          .EndLine();
    }
  }
  return report.Finish();
}

std::string MetricTapChart(DecimalMark mark) {
  ReportWriter report =
      Chart(mark, {"                   Metric Tap to Drill Size Chart_",
                   "    Tap         Drill  |    Tap         Drill  |    Tap          Drill_",
                   "    Size      Size MM  |    Size      Size MM  |    Size       Size MM_",
                   "_______________________|_______________________|________________________"});
  const std::span<const TableRow> taps = RowsOf(MetricTapTable(), "Metric");
  WriteBlocks(report, taps.size(), {"  ", "  |  ", "  |   "}, [&](std::size_t i) {
    report.LeftCellText = taps[i].name;
    report.PadTextCell(6);
    report.LeftCellText = FormatValue<"0.0#">(Number(taps[i].cells[0]), mark);
    report.PadTextCell(4);
    report.Add<"0.00">(Number(taps[i].cells[1]), 9);
  });
  return report.Finish();
}

std::string SteelChart(DecimalMark mark) {
  ReportWriter report =
      Chart(mark, {"             Basic Numbering System for SAE Steels_",
                   "____________________________________________________________________"});
  for (const TableGroup& family : SteelTable()) {
    report.Add(family.name).EndLine(LineMark::Bold);
    for (const TableRow& steel : family.rows) {
      report.LeftCellText = "   " + std::string(steel.name);
      report.PadTextCell(13);
      report.Add(steel.cells[0]).EndLine();
    }
  }
  return report.Finish();
}

std::string DashSizeChart(DecimalMark mark) {
  ReportWriter report = Chart(mark, {"                AN Dash Size Chart_",
                                     "       Size  |  Inside    |  Inside      Thread_",
                                     "             | Diameter   | Diameter      Size_",
                                     "       ______|____________|______________________"});
  constexpr std::size_t kHose = 0;
  constexpr std::size_t kTube = 1;
  constexpr std::size_t kThread = 2;
  for (const TableGroup& group : DashTable()) {
    for (const TableRow& dash : group.rows) {
      report
          .Add(PlacedLine()
                   .Right(dash.name, 11)
                   .Left("|", 14)
                   .Middle(dash.cells[kHose], 17, 5)
                   .Left("|", 27)
                   .Middle(dash.cells[kTube], 30, 5)
                   .Right(dash.cells[kThread], 47)
                   .text())
          .EndLine();
    }
  }
  return report.Finish();
}

std::string ConversionChart(int command, DecimalMark mark) {
  constexpr std::size_t kSteps = 100;
  constexpr int kValueWidth = 6;
  constexpr int kConverseWidth = 11;
  constexpr std::string_view kJoint = " |  ";
  constexpr int kColumns = 4;
  constexpr int kWidth =
      kColumns * (kValueWidth + kConverseWidth) + (kColumns - 1) * static_cast<int>(kJoint.size());

  const TableRow* chart = nullptr;
  for (const TableGroup& group : ConversionTable()) {
    for (const TableRow& row : group.rows) {
      if (Number(row.cells[0]) == command) chart = &row;
    }
  }
  if (chart == nullptr) {
    throw CommandError(ErrorKind::IndexOutOfRange, "There is no chart of that number.");
  }
  const int from = RoundToInt16(Number(chart->cells[1]));
  const int to = RoundToInt16(Number(chart->cells[2]));
  const std::string_view stepText = chart->cells[3];
  const auto point = std::min(stepText.find('.'), stepText.size() - 1);
  // A tenth is counted in tenths, so that no sum goes astray.
  const int valueDecimals = static_cast<int>(stepText.size() - 1 - point);
  const double step = Number(stepText);

  ReportWriter report(mark, ChartPrompt);
  report.AddLines({"_"});
  report.Add(PlacedLine().Middle(chart->name, 1, kWidth).text()).EndLine(LineMark::Heading);
  const auto line = [&](const std::string& block, std::string_view joint) {
    for (int i = 0; i < kColumns; ++i) report.Add(i == 0 ? "" : joint).Add(block);
    report.EndLine(LineMark::Heading);
  };
  line(PlacedLine()
           .Right(chart->cells[5], kValueWidth)
           .Right(chart->cells[6], kValueWidth + kConverseWidth)
           .text(),
       kJoint);
  line(std::string(kValueWidth + kConverseWidth, '_'), "_|__");

  const NumberPattern valuePattern{valueDecimals == 0 ? 1 : 0, valueDecimals, valueDecimals,
                                   valueDecimals > 0, false};
  const int decimals = RoundToInt16(Number(chart->cells[4]));
  const NumberPattern conversePattern{0, decimals, decimals, true, false};
  const auto cell = [&](double value, const NumberPattern& pattern, int width) {
    report.CellText = FormatByPattern(value, pattern, mark);
    report.AddPadCell(width);
  };
  WriteBlocks(report, kSteps, {"", kJoint, kJoint, kJoint}, [&](std::size_t i) {
    const double value = static_cast<double>(i + 1) * step;
    cell(value, valuePattern, kValueWidth);
    cell(ConvertUnit(value, from, to), conversePattern, kConverseWidth);
  });
  return report.Finish();
}

}  // namespace veldox
