#include "reference/charts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "core/error.h"
#include "core/report.h"
#include "data/tables.h"

namespace veldox {
namespace {

using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;

constexpr DecimalMark kPoint = DecimalMark::Point;
constexpr int kConversions[]{4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15,
                             16, 17, 21, 22, 23, 24, 25, 26, 27, 28, 29};

std::vector<std::string> AllCharts(DecimalMark mark) {
  std::vector<std::string> charts{
      FractionChart(mark),  NumberDrillChart(mark), LetterDrillChart(mark),
      AllDrillChart(mark),  TapDrillChart(mark),    PipeTapChart(mark),
      MetricTapChart(mark), SteelChart(mark),       DashSizeChart(mark)};
  for (const int command : kConversions) charts.push_back(ConversionChart(command, mark));
  return charts;
}

/// The headings of a chart, the empty one before the title left out.
std::vector<std::string> Headings(const std::string& chart) {
  std::vector<std::string> headings;
  for (const MarkedLine& line : ReportLines(chart)) {
    if (line.mark == LineMark::Heading && !line.text.empty()) headings.emplace_back(line.text);
  }
  return headings;
}

/// The lines below the headings.
std::vector<std::string> Rows(const std::string& chart) {
  std::vector<std::string> rows;
  for (const MarkedLine& line : ReportLines(chart)) {
    if (line.mark == LineMark::Heading) {
      rows.clear();
    } else {
      rows.emplace_back(line.text);
    }
  }
  return rows;
}

/// The words of a row, bars left out.
std::vector<std::string> Words(std::string row) {
  std::replace(row.begin(), row.end(), '|', ' ');
  std::istringstream stream(row);
  return {std::istream_iterator<std::string>(stream), {}};
}

double Value(const std::string& text) {
  return ParseNumber(text, kPoint);
}

/// Inches of "3-47/64".
double Fraction(const std::string& text) {
  int whole = 0, over = 0, under = 1;
  if (std::sscanf(text.c_str(), "%d-%d/%d", &whole, &over, &under) == 3) {
    return whole + static_cast<double>(over) / under;
  }
  if (std::sscanf(text.c_str(), "%d/%d", &over, &under) == 2) {
    return static_cast<double>(over) / under;
  }
  return Value(text);
}

/// Millimetres of the number drills 1 to 80 and the letter drills A to Z, as handbooks print them.
const std::vector<double> kNumberDrills{
    5.791, 5.613, 5.410, 5.309, 5.220, 5.182, 5.105, 5.055, 4.978, 4.915, 4.851, 4.801,
    4.699, 4.623, 4.572, 4.496, 4.394, 4.305, 4.216, 4.089, 4.039, 3.988, 3.912, 3.861,
    3.797, 3.734, 3.658, 3.569, 3.454, 3.264, 3.048, 2.946, 2.870, 2.819, 2.794, 2.705,
    2.642, 2.578, 2.527, 2.489, 2.438, 2.375, 2.261, 2.184, 2.083, 2.057, 1.994, 1.930,
    1.854, 1.778, 1.702, 1.613, 1.511, 1.397, 1.321, 1.181, 1.092, 1.067, 1.041, 1.016,
    0.991, 0.965, 0.940, 0.914, 0.889, 0.838, 0.813, 0.787, 0.742, 0.711, 0.660, 0.635,
    0.610, 0.572, 0.533, 0.508, 0.457, 0.406, 0.368, 0.343};
const std::vector<double> kLetterDrills{
    5.944, 6.045, 6.147, 6.248, 6.350, 6.528, 6.629, 6.756, 6.909, 7.036, 7.137,  7.366,  7.493,
    7.671, 8.026, 8.204, 8.433, 8.611, 8.839, 9.093, 9.347, 9.576, 9.804, 10.084, 10.262, 10.490};

/// Inches of a drill by the handbook's millimetres, or of a fraction.
double DrillInches(const std::string& name) {
  const auto of = [](const std::vector<double>& drills, std::size_t index) {
    return drills.at(index) / 25.4;
  };
  if (name.front() == '#') return of(kNumberDrills, std::stoul(name.substr(1)) - 1);
  if (name.front() >= 'A') return of(kLetterDrills, static_cast<std::size_t>(name.front() - 'A'));
  return Fraction(name);
}

TEST(Charts, BeginAlike) {
  for (const std::string& chart : AllCharts(kPoint)) {
    const std::vector<MarkedLine> lines = ReportLines(chart);
    ASSERT_GT(lines.size(), 15U);
    EXPECT_EQ(lines[0], (MarkedLine{"               Please press , To Print this Chart"}));
    EXPECT_EQ(lines[1], (MarkedLine{"", LineMark::Heading}));
    EXPECT_EQ(lines[2].mark, LineMark::Heading);
    // No more headings than a page can repeat, and lines that fit its width.
    EXPECT_LE(Headings(chart).size(), 10U);
    for (const MarkedLine& line : lines) EXPECT_LE(line.text.size(), 80U) << line.text;
    // The rule under the heads has its bars where the rows have theirs.
    const std::string rule = Headings(chart).back();
    EXPECT_THAT(rule, HasSubstr("____"));
    for (const std::string& row : Rows(chart)) {
      for (std::size_t i = 0; i < row.size(); ++i) {
        EXPECT_TRUE(row[i] != '|' || (i < rule.size() && rule[i] == '|')) << row;
      }
    }
  }
}

TEST(Charts, TakeTheDecimalMark) {
  EXPECT_THAT(NumberDrillChart(DecimalMark::Comma), HasSubstr(" 1     ,2280   |"));
  EXPECT_THAT(MetricTapChart(DecimalMark::Comma), HasSubstr("M1    0,25     0,75"));
  EXPECT_THAT(PipeTapChart(DecimalMark::Comma), HasSubstr(",405"));
  EXPECT_THAT(ConversionChart(4, DecimalMark::Comma), HasSubstr("  ,001      ,0254 |"));
}

TEST(FractionChart, HasAll64ths) {
  EXPECT_THAT(
      Headings(FractionChart(kPoint)),
      ElementsAreArray({"                    Fractions to Decimal Chart",
                        "  Fract    Inches       MM       |    Fract     Inches       MM",
                        "_________________________________|__________________________________"}));
  const std::vector<std::string> rows = Rows(FractionChart(kPoint));
  ASSERT_EQ(rows.size(), 32U);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    EXPECT_EQ(rows[row].substr(29, 9), "    |    ");
    const std::vector<std::string> words = Words(rows[row]);
    ASSERT_EQ(words.size(), 6U);
    for (std::size_t half = 0; half < 2; ++half) {
      const double inches = static_cast<double>(row + 1 + 32 * half) / 64;
      EXPECT_EQ(Fraction(words[3 * half]), inches);
      EXPECT_EQ(Value(words[3 * half + 1]), inches);
      EXPECT_NEAR(Value(words[3 * half + 2]), inches * 25.4, 1e-12);
    }
  }
  EXPECT_EQ(Words(rows[31])[3], "1");
  EXPECT_EQ(Words(rows[15])[0], "1/4");
}

TEST(DrillCharts, HoldTheHandbooksDrills) {
  std::map<std::string, double> found;
  for (const std::string& row : Rows(NumberDrillChart(kPoint))) {
    const std::vector<std::string> words = Words(row);
    ASSERT_EQ(words.size(), 8U);
    for (std::size_t i = 0; i < words.size(); i += 2) found['#' + words[i]] = Value(words[i + 1]);
  }
  EXPECT_EQ(found.size(), 80U);
  for (const std::string& row : Rows(LetterDrillChart(kPoint))) {
    const std::vector<std::string> words = Words(row);
    ASSERT_EQ(words.size(), 4U);
    for (std::size_t i = 0; i < words.size(); i += 2) found[words[i]] = Value(words[i + 1]);
  }
  EXPECT_EQ(found.size(), 106U);
  for (const auto& [name, inches] : found) {
    EXPECT_NEAR(inches, DrillInches(name), 0.0005 / 25.4 * 1.001) << name;
  }
}

TEST(DrillCharts, StandInTheirColumns) {
  const std::vector<std::string> numbers = Rows(NumberDrillChart(kPoint));
  ASSERT_EQ(numbers.size(), 20U);
  EXPECT_EQ(numbers.front(), " 1     .2280   |  21     .1590   |  41     .0960   |   61     .0390");
  EXPECT_EQ(numbers.back(), "20     .1610   |  40     .0980   |  60     .0400   |   80     .0135");
  const std::vector<std::string> letters = Rows(LetterDrillChart(kPoint));
  ASSERT_EQ(letters.size(), 13U);
  EXPECT_EQ(letters.front(), "               A     .2340       |         N     .3020");
  EXPECT_EQ(letters.back(), "               M     .2950       |         Z     .4130");
}

TEST(AllDrillChart, HasEveryDrillBySize) {
  const std::vector<std::string> rows = Rows(AllDrillChart(kPoint));
  EXPECT_EQ(rows.size(), 64U + 80U + 26U);
  double before = 0;
  std::map<std::string, int> names;
  for (const std::string& row : rows) {
    const std::vector<std::string> words = Words(row);
    ASSERT_EQ(words.size(), 3U) << row;
    ++names[words[0]];
    EXPECT_NEAR(Value(words[1]), DrillInches(words[0]), 0.00005 + 0.00002) << row;
    EXPECT_NEAR(Value(words[2]), DrillInches(words[0]) * 25.4, 0.00101) << row;
    EXPECT_GE(Value(words[1]), before) << row;
    before = Value(words[1]);
  }
  EXPECT_EQ(names.size(), rows.size());
}

/// A thread's size and its threads an inch.
using Threads = std::map<std::string, double>;

TEST(TapDrillChart, HasTheUnifiedThreads) {
  const Threads coarse{{"#1", 64},     {"#2", 56},   {"#3", 48},   {"#4", 40},   {"#5", 40},
                       {"#6", 32},     {"#8", 32},   {"#10", 24},  {"#12", 24},  {"1/4", 20},
                       {"5/16", 18},   {"3/8", 16},  {"7/16", 14}, {"1/2", 13},  {"9/16", 12},
                       {"5/8", 11},    {"3/4", 10},  {"7/8", 9},   {"1", 8},     {"1-1/8", 7},
                       {"1-1/4", 7},   {"1-3/8", 6}, {"1-1/2", 6}, {"1-3/4", 5}, {"2", 4.5},
                       {"2-1/4", 4.5}, {"2-1/2", 4}, {"2-3/4", 4}, {"3", 4},     {"3-1/4", 4},
                       {"3-1/2", 4},   {"3-3/4", 4}, {"4", 4}};
  const Threads fine{{"#0", 80},    {"#1", 72},    {"#2", 64},    {"#3", 56},   {"#4", 48},
                     {"#5", 44},    {"#6", 40},    {"#8", 36},    {"#10", 32},  {"#12", 28},
                     {"1/4", 28},   {"5/16", 24},  {"3/8", 24},   {"7/16", 20}, {"1/2", 20},
                     {"9/16", 18},  {"5/8", 18},   {"3/4", 16},   {"7/8", 14},  {"1", 12},
                     {"1-1/8", 12}, {"1-1/4", 12}, {"1-3/8", 12}, {"1-1/2", 12}};
  Threads foundCoarse, foundFine;
  for (const std::string& row : Rows(TapDrillChart(kPoint))) {
    ASSERT_GE(row.size(), 32U);
    ASSERT_EQ(row[31], '|');
    for (const auto& [half, found] :
         {std::pair{row.substr(0, 31), &foundCoarse}, std::pair{row.substr(32), &foundFine}}) {
      const std::vector<std::string> words = Words(half);
      if (words.empty()) continue;
      ASSERT_EQ(words.size(), 3U) << row;
      const double threads = Fraction(words[1]);
      (*found)[words[0]] = threads;
      // What the drill leaves of the full height of a thread, 0.6495 of its pitch a side.
      const double diameter =
          words[0].front() == '#' ? 0.060 + 0.013 * Value(words[0].substr(1)) : Fraction(words[0]);
      const double part = (diameter - DrillInches(words[2])) * threads / 1.299;
      EXPECT_GE(part, 0.63) << row;
      EXPECT_LE(part, 0.83) << row;
    }
  }
  EXPECT_EQ(foundCoarse, coarse);
  EXPECT_EQ(foundFine, fine);
}

TEST(TapDrillChart, StandsInItsColumns) {
  const std::vector<std::string> rows = Rows(TapDrillChart(kPoint));
  EXPECT_THAT(rows, Contains("   3-3/4      4      3-1/2     |"));
  EXPECT_THAT(rows, Contains("     4        4      3-3/4     |"));
  EXPECT_EQ(rows.back(), "     4        4      3-3/4     |");
  EXPECT_EQ(rows.front().substr(0, 32), std::string(31, ' ') + '|');
  EXPECT_EQ(Words(rows.front())[0], "#0");
}

TEST(PipeTapChart, FollowsTheStandardsCone) {
  const std::vector<std::string> rows = Rows(PipeTapChart(kPoint));
  EXPECT_THAT(rows, Contains("        3-1/2      8     3-47/64     4"));
  EXPECT_THAT(rows, Contains("          4        8     4-15/64     4-1/2"));
  const std::map<std::string, std::pair<double, double>> pipes{
      {"1/16", {27, 0.3125}}, {"1/8", {27, 0.405}},     {"1/4", {18, 0.540}},
      {"3/8", {18, 0.675}},   {"1/2", {14, 0.840}},     {"3/4", {14, 1.050}},
      {"1", {11.5, 1.315}},   {"1-1/4", {11.5, 1.660}}, {"1-1/2", {11.5, 1.900}},
      {"2", {11.5, 2.375}},   {"2-1/2", {8, 2.875}},    {"3", {8, 3.5}},
      {"3-1/2", {8, 4}},      {"4", {8, 4.5}}};
  EXPECT_EQ(rows.size(), pipes.size());
  for (const std::string& row : rows) {
    const std::vector<std::string> words = Words(row);
    ASSERT_EQ(words.size(), 4U) << row;
    const auto& [threads, outside] = pipes.at(words[0]);
    EXPECT_EQ(Fraction(words[1]), threads) << row;
    EXPECT_EQ(Fraction(words[3]), outside) << row;
    // ASME B1.20.1: pitch diameter at the small end, less the height of the thread.
    const double pitchDiameter = outside - (0.05 * outside + 1.1) / threads;
    EXPECT_NEAR(DrillInches(words[2]), pitchDiameter - 0.8 / threads, 1.0 / 64) << row;
  }
}

TEST(MetricTapChart, LeavesThePitch) {
  const std::vector<std::string> rows = Rows(MetricTapChart(kPoint));
  for (const char* cell : {"M1    0.25     0.75", "M1.1  0.25     0.85", "M1.2  0.25     0.95",
                           "M1.4  0.3      1.10"}) {
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [&](const std::string& row) {
      return row.find(cell) != std::string::npos;
    })) << cell;
  }
  // The coarse pitches of ISO 261.
  const Threads coarse{
      {"M1", 0.25},   {"M1.1", 0.25}, {"M1.2", 0.25}, {"M1.4", 0.3}, {"M1.6", 0.35}, {"M1.8", 0.35},
      {"M2", 0.4},    {"M2.2", 0.45}, {"M2.5", 0.45}, {"M3", 0.5},   {"M3.5", 0.6},  {"M4", 0.7},
      {"M4.5", 0.75}, {"M5", 0.8},    {"M6", 1},      {"M7", 1},     {"M8", 1.25},   {"M9", 1.25},
      {"M10", 1.5},   {"M11", 1.5},   {"M12", 1.75},  {"M14", 2},    {"M16", 2},     {"M18", 2.5},
      {"M20", 2.5},   {"M22", 2.5},   {"M24", 3},     {"M27", 3},    {"M30", 3.5},   {"M33", 3.5},
      {"M36", 4},     {"M39", 4}};
  Threads widest;
  std::size_t taps = 0;
  for (const std::string& row : rows) {
    const std::vector<std::string> words = Words(row);
    ASSERT_EQ(words.size() % 3, 0U) << row;
    for (std::size_t i = 0; i < words.size(); i += 3, ++taps) {
      const double diameter = Value(words[i].substr(1));
      const double pitch = Value(words[i + 1]);
      widest[words[i]] = std::max(widest[words[i]], pitch);
      EXPECT_NEAR(Value(words[i + 2]), diameter - pitch, 0.0501) << words[i];
    }
  }
  EXPECT_EQ(taps, 54U);
  EXPECT_EQ(widest, coarse);
}

TEST(SteelChart, EndsWithTheLeadedSteels) {
  const std::string chart = SteelChart(kPoint);
  EXPECT_THAT(chart, HasSubstr("\r\nCarbon Steels^\r\n   10XX      Plain Carbon"));
  EXPECT_THAT(Rows(chart).back(), HasSubstr("   XXLXX"));
  std::map<std::string, std::string> families;
  std::string family;
  for (const MarkedLine& line : ReportLines(chart)) {
    if (line.mark == LineMark::Bold) family = line.text;
    if (line.mark == LineMark::None) families[std::string(line.text).substr(0, 13)] = family;
  }
  const auto of = [&](std::string number) {
    return families["   " + number + std::string(10 - number.size(), ' ')];
  };
  EXPECT_EQ(of("41XX"), "Chromium-Molybdenum Steels");
  EXPECT_EQ(of("43XX"), "Nickel-Chromium-Molybdenum Steels");
  EXPECT_EQ(of("86XX"), "Nickel-Chromium-Molybdenum Steels");
  EXPECT_EQ(of("51XX"), "Chromium Steels");
  EXPECT_EQ(of("92XX"), "Silicon-Manganese Steels");
}

TEST(DashSizeChart, CountsSixteenths) {
  const std::vector<std::string> rows = Rows(DashSizeChart(kPoint));
  EXPECT_EQ(rows.front(), "         -2  |            |   1/8       5/16-24");
  EXPECT_EQ(rows.back(), "        -72  |            |  4-1/2             ");
  const std::map<int, std::string> threads{
      {2, "5/16-24"},   {3, "3/8-24"},    {4, "7/16-20"},    {5, "1/2-20"},     {6, "9/16-18"},
      {8, "3/4-16"},    {10, "7/8-14"},   {12, "1-1/16-12"}, {14, "1-3/16-12"}, {16, "1-5/16-12"},
      {20, "1-5/8-12"}, {24, "1-7/8-12"}, {32, "2-1/2-12"}};
  std::map<int, std::string> found;
  for (const std::string& row : rows) {
    const int dash = std::stoi(Words(row).front().substr(1));
    const std::vector<std::string> hose = Words(row.substr(14, 12));
    const std::vector<std::string> fitting = Words(row.substr(27));
    ASSERT_FALSE(fitting.empty()) << row;
    EXPECT_EQ(Fraction(fitting[0]), dash / 16.0) << row;
    if (fitting.size() == 2) found[dash] = fitting[1];
    if (!hose.empty()) {
      // Hose is about as wide as the bore of the tube.
      EXPECT_LT(Fraction(hose[0]), dash / 16.0) << row;
      EXPECT_GT(Fraction(hose[0]), dash / 16.0 * 0.7) << row;
    }
  }
  EXPECT_EQ(found, threads);
}

TEST(ConversionCharts, HaveAHundredRightRows) {
  constexpr double kPsi = 6.894757293, kPoundFoot = 1.3558179483, kOunce = 28.349523125;
  struct Expected {
    const char* title;
    double step, factor;
  };
  const std::map<int, Expected> charts{
      {4, {"Decimal .001 Inches ---> Metric (MM)", 0.001, 25.4}},
      {5, {"Decimal .01 Inches ---> Metric (MM)", 0.01, 25.4}},
      {6, {"Decimal .1 Inches ---> Metric (MM)", 0.1, 25.4}},
      {7, {"Decimal  Inches ---> Metric (MM)", 1, 25.4}},
      {8, {"Metric .001 MM ---> Decimal Inches", 0.001, 1 / 25.4}},
      {9, {"Metric .01 MM ---> Decimal Inches", 0.01, 1 / 25.4}},
      {10, {"Metric .1 MM ---> Decimal Inches", 0.1, 1 / 25.4}},
      {11, {"Metric 1 MM ---> Decimal Inches", 1, 1 / 25.4}},
      {12, {"Metric 10 MM ---> Decimal Inches", 10, 1 / 25.4}},
      {13, {".1 PSI ---> kPa", 0.1, kPsi}},
      {14, {"1 PSI ---> kPa", 1, kPsi}},
      {15, {".1 kPa ---> PSI", 0.1, 1 / kPsi}},
      {16, {"1 kPa ---> PSI", 1, 1 / kPsi}},
      {17, {"10 kPa ---> PSI", 10, 1 / kPsi}},
      {21, {"1 Lb Ft ---> N-M (Newton - Meter)", 1, kPoundFoot}},
      {22, {"10 Lb Ft ---> N-M (Newton - Meter)", 10, kPoundFoot}},
      {23, {"1 N-M (Newton - Meter) ---> LbFt", 1, 1 / kPoundFoot}},
      {24, {"10 N-M (Newton - Meter) ---> LbFt", 10, 1 / kPoundFoot}},
      {25, {".01 Oz ---> Grams", 0.01, kOunce}},
      {26, {"Oz ---> Grams", 1, kOunce}},
      {27, {".1 Grams ---> Oz", 0.1, 1 / kOunce}},
      {28, {"Grams ---> Oz", 1, 1 / kOunce}},
      {29, {"10 Grams ---> Oz", 10, 1 / kOunce}}};
  for (const auto& [command, expected] : charts) {
    const std::string chart = ConversionChart(command, kPoint);
    const std::string title = Headings(chart).front();
    EXPECT_EQ(title.substr(title.find_first_not_of(' ')), expected.title);
    std::map<int, double> values;
    for (const std::string& row : Rows(chart)) {
      const std::vector<std::string> words = Words(row);
      ASSERT_EQ(words.size(), 8U) << row;
      for (std::size_t i = 0; i < words.size(); i += 2) {
        const double value = Value(words[i]);
        values[static_cast<int>(std::lround(value / expected.step))] = value;
        const auto decimals = words[i + 1].size() - 1 - words[i + 1].find('.');
        const double exact = value * expected.factor;
        EXPECT_NEAR(Value(words[i + 1]), exact,
                    0.5001 * std::pow(10, -static_cast<double>(decimals)) + 2e-7 * exact)
            << title << ": " << row;
      }
    }
    ASSERT_EQ(values.size(), 100U) << title;
    for (int i = 1; i <= 100; ++i) EXPECT_NEAR(values[i], i * expected.step, 1e-12) << title;
  }
  EXPECT_EQ(charts.size(), std::size(kConversions));
}

TEST(ConversionCharts, StandInTheirColumns) {
  const std::string chart = ConversionChart(4, kPoint);
  EXPECT_EQ(Headings(chart)[1],
            "Inches         MM |  Inches         MM |  Inches         MM |  Inches         MM");
  const std::vector<std::string> rows = Rows(chart);
  ASSERT_EQ(rows.size(), 25U);
  EXPECT_EQ(rows.front(),
            "  .001      .0254 |    .026      .6604 |    .051     1.2954 |    .076     1.9304");
  EXPECT_EQ(rows.back().substr(63), "  .100     2.5400");
  EXPECT_THROW(ConversionChart(1, kPoint), CommandError);
  EXPECT_THROW(ConversionChart(33, kPoint), CommandError);
}

TEST(ChartTables, TellTheirSources) {
  for (const auto& table : {UnitTable(), ConversionTable(), DrillTable(), TapTable(),
                            PipeTapTable(), MetricTapTable(), DashTable(), SteelTable()}) {
    for (const TableGroup& group : table) {
      for (const TableRow& row : group.rows) EXPECT_FALSE(row.source.empty()) << row.name;
    }
  }
}

}  // namespace
}  // namespace veldox
