#include "vehicle/torque_table.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/error.h"

namespace veldox {
namespace {

constexpr DecimalMark kPoint = DecimalMark::Point;

/// What is told of a table that is not taken; empty for one that is.
std::string Refusal(std::string_view text) {
  try {
    ReadTorqueTable(text, kPoint);
    return {};
  } catch (const CommandError& error) {
    return error.message();
  }
}

TEST(TorqueTable, IsReadByBlanksTabsAndSemicolons) {
  const auto points = ReadTorqueTable("5000 700\r\n\r\n  6000\t750.5\n7000;810;400;0.5", kPoint);
  ASSERT_EQ(points.size(), 3U);
  EXPECT_EQ(points[0], (TorquePoint{5000, 700}));
  EXPECT_EQ(points[1], (TorquePoint{6000, 750.5}));
  EXPECT_EQ(points[2], (TorquePoint{7000, 810, 400, 0.5}));
}

TEST(TorqueTable, TakesLinesOfAParameterFileAndPassesNotes) {
  const auto points =
      ReadTorqueTable("; engine 7\nAcceleration = 5000 700\nacceleration =6000 750\n", kPoint);
  ASSERT_EQ(points.size(), 2U);
  EXPECT_EQ(points[1], (TorquePoint{6000, 750}));
}

TEST(TorqueTable, TakesTheSystemsDecimalMark) {
  const auto points = ReadTorqueTable("5000,5 700,25\n6000 1", DecimalMark::Comma);
  EXPECT_EQ(points[0], (TorquePoint{5000.5, 700.25}));
}

TEST(TorqueTable, RefusesWhatNoRunCanTake) {
  EXPECT_EQ(Refusal("5000 700\n5000 710"),
            "RPM must rise from point to point of the torque table; 5000 RPM follows 5000 RPM.");
  EXPECT_EQ(Refusal("5000 700"), "The torque table needs at least two points of RPM and torque.");
  EXPECT_EQ(Refusal(""), "The torque table needs at least two points of RPM and torque.");
  EXPECT_EQ(Refusal("5000 700\n\n6000 x"),
            "Line 3 of the torque table holds \"x\", which is not a number.");
  EXPECT_EQ(Refusal("5000\n6000 1"), "Line 1 of the torque table needs RPM and torque.");
  EXPECT_EQ(Refusal("1 2 3 4 5 6 7 8"),
            "Line 1 of the torque table holds more numbers than a point has.");
  EXPECT_EQ(Refusal("-1 700\n6000 1"), "RPM must not be below 0 in the torque table.");
}

TEST(TorqueTable, HoldsAsManyPointsAsTheSharedValues) {
  std::string text;
  for (int i = 1; i <= kTorqueRows; ++i) text += std::to_string(i * 10) + " 500\n";
  const auto points = ReadTorqueTable(text, kPoint);
  ASSERT_EQ(points.size(), static_cast<std::size_t>(kTorqueRows));
  const auto block = std::make_unique<ParameterBlock>();
  SetTorquePoints(*block, points);
  EXPECT_EQ(block->AccelRowCount, kTorqueRows);
  EXPECT_EQ(block->AccelRpm.back(), kTorqueRows * 10);
  EXPECT_EQ(TorquePoints(*block), points);
  EXPECT_EQ(Refusal(text + "99999 1"), "The torque table holds at most 961 points.");
}

TEST(TorqueTable, IsShownInColumnsThatReadBack) {
  const std::vector<TorquePoint> points{{800, 95.25}, {12500, 110}};
  const std::string text = TorqueTableText(points, kPoint);
  EXPECT_EQ(text,
            ";     RPM     Torque\r\n"
            "      800      95.25\r\n"
            "    12500     110.00");
  EXPECT_EQ(ReadTorqueTable(text, kPoint), points);
}

TEST(TorqueTable, ShowsMeasuredColumnsWhereThereAreAny) {
  const std::vector<TorquePoint> points{{3000, 121.5, 33.8, 0.487, 13.1, 96.58, 6.38},
                                        {3500, 127, 40.88, 0.483, 13.075, 116.58, 6.315}};
  const std::string text = TorqueTableText(points, kPoint);
  EXPECT_EQ(text.substr(0, text.find('\r')),
            ";     RPM     Torque      lb/hr       BSFC        A/F       SCFM       BSAC");
  EXPECT_EQ(ReadTorqueTable(text, kPoint), points);
}

TEST(TorqueTable, TellsItsPeaks) {
  // 500 lb-ft at 5252 RPM are 500 HP.
  EXPECT_EQ(TorquePeaksText({{2626, 520}, {5252, 500}, {6000, 400}}, kPoint),
            "3 points from 2626 to 6000 RPM; most torque 520.0 lb-ft at 2626 RPM, most power 500.0 "
            "HP at 5252 RPM");
  EXPECT_EQ(TorquePeaksText({}, kPoint), "no points");
}

TEST(TorqueTable, LinesOfFilesInOtherUnitsAreTaken) {
  // By definition: 5252 HP at 1 RPM, 1.3558179 Nm and 0.7457 kW for one each, a PS of 0.9863 HP.
  const std::vector<TorquePoint> points = ReadTorqueTable(
      "Accelerat HP = 2626 100\naccelerat nm = 3000 271.16358 30 0.5\r\nAccelerat KW = 5252 74.57\n"
      "ACCELERAT PS = 10504 400\nAcceleration = 11000 175",
      DecimalMark::Point);
  ASSERT_EQ(points.size(), 5U);
  EXPECT_NEAR(points[0][1], 200, 1e-9);
  EXPECT_NEAR(points[1][1], 200, 1e-9);
  EXPECT_EQ(points[1][2], 30);
  EXPECT_NEAR(points[2][1], 100, 1e-2);
  EXPECT_NEAR(points[3][1], 400 * 0.9863 / 2, 1e-9);
  EXPECT_EQ(points[4][1], 175);
  try {
    ReadTorqueTable("1 2\nAccelerat HP = 0 100", DecimalMark::Point);
    FAIL() << "a power at 0 RPM";
  } catch (const CommandError& error) {
    EXPECT_EQ(error.message(),
              "Line 2 of the torque table is a power at 0 RPM, which gives no torque.");
  }
}

}  // namespace
}  // namespace veldox
