#include "reference/unit_conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/error.h"

namespace veldox {
namespace {

/// The units by the headings over their buttons.
const std::vector<std::pair<std::string, std::vector<std::pair<int, std::string>>>> kScreen{
    {"Pressure",
     {{1, "PSI"},
      {2, "Inches of Mercury"},
      {3, "kPa"},
      {4, "Inches of Water"},
      {5, "cm of Mercury"},
      {6, "kg/cm^2"},
      {7, "Inches of Vacuum"},
      {8, "Absolute PSI"},
      {33, "millibars"},
      {43, "mm Water"},
      {45, "Bars"}}},
    {"Length",
     {{9, "MilliMeters (MM)"},
      {10, "Microns"},
      {11, "Inches"},
      {25, "Miles"},
      {26, "Kilometers"},
      {27, "Knots"},
      {39, "Feet"},
      {40, "Meters"},
      {46, "Mils"},
      {47, "CM"}}},
    {"Volume", {{12, "Cubic CentiMeters (cc)"}, {13, "Cubic Inches"}, {14, "Fluid Ounces"}}},
    {"Torque", {{15, "ft-lb"}, {16, "N-m"}, {17, "m-kg"}, {62, "in-lb"}}},
    {"Weight", {{18, "lb"}, {20, "kg"}, {21, "Ounces"}, {22, "Grams"}, {44, "MilliGrams"}}},
    {"Force", {{19, "N (Newton)"}}},
    {"Temperature", {{23, "Fahrenheit"}, {24, "Celsius"}, {41, "Rankine"}, {42, "Kelvin"}}},
    {"Energy",
     {{28, "BTU"}, {29, "kW-hr"}, {30, "Calorie"}, {31, "Joules"}, {32, "ft-lb"}, {61, "HP-hr"}}},
    {"Gas Flow",
     {{0, "M^3/s"}, {34, "CFM"}, {35, "ci/min"}, {36, "LPM"}, {37, "cc/min"}, {38, "Gram/s"}}},
    {"Area", {{48, "Sq Ft"}, {49, "Sq In"}, {50, "Sq CM"}, {51, "Sq mm"}, {52, "Sq M"}}},
    {"Density", {{53, "kg/m^3"}, {54, "g/cm^3"}, {55, "lb/ft^3"}, {56, "lb/in^3"}}},
    {"Acceleration",
     {{57, "ft/s^2"}, {58, "M/s^2"}, {59, "cm/s^2"}, {60, "mm/s^2"}, {63, "in/s^2"}}}};

TEST(ConversionUnits, AreAllThatTheScreenHas) {
  std::vector<std::pair<std::string, std::vector<std::pair<int, std::string>>>> units;
  std::set<int> options;
  for (const ConversionUnit& unit : ConversionUnits()) {
    const std::string heading(unit.heading);
    if (units.empty() || units.back().first != heading) units.push_back({heading, {}});
    units.back().second.emplace_back(unit.option, std::string(unit.name));
    options.insert(unit.option);
  }
  EXPECT_EQ(units, kScreen);
  EXPECT_EQ(options.size(), 64U);
  EXPECT_EQ(*options.rbegin(), 63);
}

TEST(Conversion, IsThatOfTheLaw) {
  struct Legal {
    int from, to;
    double factor, tolerance = 1e-6;
  };
  constexpr double kInch = 0.0254, kPound = 0.45359237, kGravity = 9.80665;
  constexpr double kPsi = kPound * kGravity / (kInch * kInch);
  const Legal legal[]{{11, 9, 25.4},
                      {11, 10, 25400},
                      {11, 46, 1000},
                      {11, 47, 2.54},
                      {25, 40, 1609.344},
                      {25, 26, 1.609344},
                      {39, 40, 0.3048},
                      {25, 27, 1609.344 / 1852, 1e-5},
                      {13, 12, 16.387064},
                      {14, 12, 29.5735295625, 5e-4},
                      {1, 3, kPsi / 1000},
                      {2, 33, 33.86389, 1e-6},
                      {1, 5, kPsi / 1333.22387, 1e-5},
                      {1, 4, kPsi / 249.08891, 3e-4},
                      {4, 43, 25.4},
                      {1, 6, kPound / 6.4516, 1e-5},
                      {45, 33, 1000},
                      {15, 16, kPound * kGravity * 0.3048},
                      {15, 17, kPound * 0.3048},
                      {15, 62, 12},
                      {18, 20, kPound},
                      {18, 21, 16},
                      {18, 22, 453.59237},
                      {18, 44, 453592.37},
                      {18, 19, kPound * kGravity},
                      {28, 31, 1055.05585262},
                      {31, 29, 1 / 3.6e6},
                      {30, 31, 4.184, 5e-4},
                      {32, 31, kPound * kGravity * 0.3048},
                      {61, 32, 1980000},
                      {34, 36, 28.316846592},
                      {34, 37, 28316.846592},
                      {34, 35, 1728},
                      {34, 0, 28.316846592 / 60000},
                      {34, 38, 0.074367 * 453.59237 / 60},
                      {48, 49, 144},
                      {48, 52, 0.09290304},
                      {49, 50, 6.4516},
                      {49, 51, 645.16},
                      {53, 54, 0.001},
                      {55, 53, kPound / (0.3048 * 0.3048 * 0.3048)},
                      {55, 56, 1 / 1728.0},
                      {57, 58, 0.3048},
                      {57, 59, 30.48},
                      {57, 60, 304.8},
                      {57, 63, 12}};
  for (const Legal& l : legal) {
    EXPECT_NEAR(ConvertUnit(1, l.from, l.to) / l.factor, 1, l.tolerance) << l.from << " " << l.to;
    EXPECT_NEAR(ConvertUnit(1, l.to, l.from) * l.factor, 1, l.tolerance) << l.to << " " << l.from;
    EXPECT_NEAR(ConvertUnit(250, l.from, l.to), 250 * ConvertUnit(1, l.from, l.to),
                1e-10 * 250 * l.factor);
  }
}

TEST(Conversion, OfWhatIsNoFactor) {
  EXPECT_DOUBLE_EQ(ConvertUnit(212, 23, 24), 100);
  EXPECT_DOUBLE_EQ(ConvertUnit(100, 24, 23), 212);
  EXPECT_DOUBLE_EQ(ConvertUnit(-40, 23, 24), -40);
  EXPECT_NEAR(ConvertUnit(0, 42, 41), 0, 1e-9);
  EXPECT_NEAR(ConvertUnit(32, 23, 42), 273.15, 1e-9);
  EXPECT_NEAR(ConvertUnit(491.67, 41, 24), 0, 1e-9);
  EXPECT_NEAR(ConvertUnit(10, 2, 7), -10, 1e-12);
  EXPECT_NEAR(ConvertUnit(10, 7, 1), -4.911542, 1e-12);
  EXPECT_NEAR(ConvertUnit(0, 1, 8), 14.695949, 1e-12);
  EXPECT_NEAR(ConvertUnit(14.695949, 8, 3), 0, 1e-9);
}

TEST(Conversion, GoesBothWays) {
  for (const ConversionUnit& entered : ConversionUnits()) {
    for (const double value : {6.53478, -3.25, 1000.0}) {
      const std::vector<UnitValue> values = ConvertedValues(value, entered.option);
      bool own = false;
      for (const UnitValue& unit : values) {
        if (unit.option == entered.option) {
          own = true;
          EXPECT_EQ(unit.value, value);
        }
        EXPECT_NEAR(ConvertUnit(unit.value, unit.option, entered.option), value,
                    1e-12 * (std::abs(value) + 500))
            << entered.name << " and " << unit.name;
      }
      EXPECT_TRUE(own) << entered.name;
    }
  }
}

TEST(Conversion, KnowsWhichUnitsBelongTogether) {
  // Newtons stand apart but are what pounds are measured in.
  for (const auto& [heading, units] : kScreen) {
    std::size_t expected = units.size();
    if (heading == "Weight") expected += 1;
    if (heading == "Force") expected = 6;
    for (const auto& [option, name] : units) {
      EXPECT_EQ(ConvertedValues(1, option).size(), expected) << name;
    }
  }
  EXPECT_THROW(ConvertUnit(1, 15, 32), CommandError);
  EXPECT_THROW(ConvertUnit(1, 64, 1), CommandError);
  EXPECT_THROW(ConvertUnit(1, 1, -1), CommandError);
  EXPECT_THROW(ConvertedValues(1, 64), CommandError);
}

TEST(ConvertedLines, ShowElevenCharacters) {
  EXPECT_EQ(ConvertedLines(10, 18, DecimalMark::Point),
            "10.00000000  lb\r\n4.535923696  kg\r\n160.0000000  Ounces\r\n4535.923680  Grams\r\n"
            "4535923.680  MilliGrams\r\n44.48222000  N (Newton)\r\n");
  EXPECT_EQ(ConvertedLines(-40, 24, DecimalMark::Comma),
            "-40,0000000  Fahrenheit\r\n-40,0000000  Celsius\r\n419,6700000  Rankine\r\n"
            "233,1500000  Kelvin\r\n");
  // A thousand miles have 1609344000 millimetres: ten digits and the point.
  EXPECT_EQ(ConvertedLines(1000, 25, DecimalMark::Point).substr(0, 13), "1609344000.  ");
  EXPECT_EQ(ConvertedLines(0, 2, DecimalMark::Point).find('-'), std::string::npos);
}

TEST(ConvertedLines, RefuseWhatIsBeyondNumbers) {
  EXPECT_THROW(ConvertedLines(1e306, 25, DecimalMark::Point), CommandError);
}

}  // namespace
}  // namespace veldox
