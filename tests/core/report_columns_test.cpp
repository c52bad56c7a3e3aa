#include "core/report_columns.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "core/error.h"

namespace veldox {
namespace {

TEST(StartValueLine, GivesValueLabelAndLineBreak) {
  const ReportColumns report(DecimalMark::Point);
  EXPECT_EQ(report.StartValueLine(326.72564, " Cubic Inches"), "326.7256400 Cubic Inches\r\n");
  EXPECT_TRUE(report.ReportLine.empty());
}

TEST(StartValueLine, WritesTheDecimalComma) {
  const ReportColumns report(DecimalMark::Comma);
  EXPECT_EQ(report.StartValueLine(4, ""), "4,000000000\r\n");
}

TEST(AddValueLine, AppendsToReportLine) {
  ReportColumns report(DecimalMark::Point);
  report.ReportLine = report.StartValueLine(4, " Bore");
  report.AddValueLine(3.25, " Stroke");
  EXPECT_EQ(report.ReportLine, "4.000000000 Bore\r\n3.250000000 Stroke\r\n");
  EXPECT_TRUE(report.ReportLine2.empty());
}

TEST(Cell, EndsANumberAtTheRightOfItsColumn) {
  ReportColumns report(DecimalMark::Point);
  EXPECT_EQ(report.Cell<"0.00">(5.7, 8), "    5.70");
  EXPECT_EQ(report.CellText, "    5.70");
  EXPECT_EQ(report.Cell<".000">(-0.024, 8), "   -.024");
  EXPECT_EQ(report.Cell<"0">(6500, 4), "6500");
  EXPECT_TRUE(report.ReportLine.empty());
}

TEST(Cell, OverflowsAndIsNeverCut) {
  ReportColumns report(DecimalMark::Point);
  EXPECT_EQ(report.Cell<"0.00">(12345.678, 4), "12345.68");
  EXPECT_EQ(report.Cell<"0.0">(1, 0), "1.0");
  EXPECT_EQ(report.Cell<"0.0">(1, -5), "1.0");
}

TEST(Cell, WritesTheDecimalComma) {
  ReportColumns report(DecimalMark::Comma);
  EXPECT_EQ(report.Cell<"0.0">(28.11, 6), "  28,1");
}

TEST(AddCell, AppendsToReportLine) {
  ReportColumns report(DecimalMark::Point);
  report.AddCell<"0">(5000, 6);
  report.AddCell<"0.0">(700, 7);
  report.AddCell<"#.000000">(0.5, 10);
  EXPECT_EQ(report.ReportLine, "  5000  700.0   .500000");
  EXPECT_EQ(report.CellText, "   .500000");
  EXPECT_TRUE(report.ReportLine2.empty());
}

TEST(AddCell2, AppendsToTheSecondLine) {
  ReportColumns report(DecimalMark::Point);
  report.AddCell2<".0000">(0.3, 7);
  report.AddCell2<"0.00">(1.005, 6);
  EXPECT_EQ(report.ReportLine2, "  .3000  1.01");
  EXPECT_TRUE(report.ReportLine.empty());
}

TEST(AddCell, LeavesTheLinesAloneWhenTheValueIsNoNumber) {
  ReportColumns report(DecimalMark::Point);
  report.AddCell<"0.0">(1, 5);
  EXPECT_THROW(report.AddCell<"0.0">(std::numeric_limits<double>::quiet_NaN(), 5), CommandError);
  EXPECT_THROW(report.AddValueLine(std::numeric_limits<double>::infinity(), "x"), CommandError);
  EXPECT_EQ(report.ReportLine, "  1.0");
  EXPECT_EQ(report.CellText, "  1.0");
}

TEST(PadCell, RightAlignsTheTextInCellText) {
  ReportColumns report(DecimalMark::Point);
  report.CellText = "RPM";
  EXPECT_EQ(report.PadCell(6), "   RPM");
  EXPECT_EQ(report.CellText, "   RPM");
  report.AddPadCell(8);
  EXPECT_EQ(report.ReportLine, "     RPM");
  report.CellText = "MPH";
  report.AddPadCell2(5);
  EXPECT_EQ(report.ReportLine2, "  MPH");
  EXPECT_EQ(report.ReportLine, "     RPM");
}

TEST(PadCell, OverflowsAndIsNeverCut) {
  ReportColumns report(DecimalMark::Point);
  report.CellText = "Torque";
  EXPECT_EQ(report.PadCell(3), "Torque");
}

TEST(PadCell, CountsCharactersNotBytes) {
  ReportColumns report(DecimalMark::Point);
  report.CellText = "90\xC2\xB0";  // 90 degrees
  EXPECT_EQ(report.PadCell(5), "  90\xC2\xB0");
}

TEST(PadTextCell, BeginsATextAtTheLeftOfItsColumn) {
  ReportColumns report(DecimalMark::Point);
  report.LeftCellText = "Gear";
  report.PadTextCell(7);
  report.LeftCellText = "First";
  report.PadTextCell(3);
  EXPECT_EQ(report.ReportLine, "Gear   First");
}

TEST(PadTextCell, CountsCharactersNotBytes) {
  ReportColumns report(DecimalMark::Point);
  report.LeftCellText = "\xE2\x82\xAC";  // one character of three bytes
  report.PadTextCell(3);
  EXPECT_EQ(report.ReportLine, "\xE2\x82\xAC  ");
}

}  // namespace
}  // namespace veldox
