#include "vehicle/dyno_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/error.h"
#include "core/report.h"

namespace veldox {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

const Air kDynoRoom{29.92, 95.5, 0.45};

std::vector<std::string> Lines(const std::string& report) {
  std::vector<std::string> lines;
  for (const MarkedLine& line : ReportLines(report)) lines.emplace_back(line.text);
  return lines;
}

TEST(SheetCorrection, IsTheEnteredFactorOrThatOfTheAir) {
  const SheetCorrection ofAir = CorrectionOfSheet(1, kDynoRoom);
  EXPECT_NEAR(ofAir.factor, 1.0106, 5e-5);
  EXPECT_FALSE(ofAir.isEntered);
  const SheetCorrection entered = CorrectionOfSheet(1.042, kDynoRoom);
  EXPECT_EQ(entered.factor, 1.042);
  EXPECT_TRUE(entered.isEntered);
}

class DynoSheetTest : public testing::Test {
 protected:
  std::string Report() const {
    return DynoSheetReport({rpm, torque, fuel, bsfc, airFuel, scfm, bsac}, layout,
                           DecimalMark::Point);
  }

  std::vector<double> rpm{5252, 6000};
  std::vector<double> torque{400, 380};
  std::vector<double> fuel, bsfc, airFuel, scfm, bsac;
  DynoSheetLayout layout{350, CorrectionOfSheet(1.05, kDynoRoom), false, false};
};

TEST_F(DynoSheetTest, ShowsEngineSpeedTorquePowerAndPressure) {
  const std::string report = Report();
  // 400 lb-ft at 5252 RPM are 400 HP; BMEP 400 x 150.8 / 350 = 172.3. 380 at 6000: 434.1, 163.7.
  EXPECT_THAT(Lines(report),
              Contains("   5252      400.0    400.0    172.3      420.0      420.0"));
  EXPECT_THAT(Lines(report),
              Contains("   6000      380.0    434.1    163.7      399.0      455.8"));
  EXPECT_THAT(Lines(report),
              Contains("    RPM     Torque       HP     BMEP     Torque         HP"));
  EXPECT_THAT(report, HasSubstr("Engine Size = 350.0 CI"));
  EXPECT_THAT(report, HasSubstr("Correction Factor = 1.0500 - the Dyno Correct Factor as entered"));
  EXPECT_THAT(report,
              HasSubstr("Highest Torque = 400.0 lb-ft @ 5252 RPM    Corrected = 420.0 lb-ft @ "
                        "5252 RPM^"));
  EXPECT_THAT(report,
              HasSubstr("Highest Horse Power = 434.1 @ 6000 RPM    Corrected = 455.8 @ 6000 RPM^"));
  EXPECT_THAT(report, Not(HasSubstr("Fuel")));
}

TEST_F(DynoSheetTest, TellsTheAirThatTheFactorFollowsOf) {
  layout.correction = CorrectionOfSheet(1, kDynoRoom);
  const std::string report = Report();
  EXPECT_THAT(report, HasSubstr("Correction Factor = 1.0106 - SAE Jun90 J1349"));
  EXPECT_THAT(report,
              HasSubstr("Baro Pressure = 29.92    Vapor Pressure = 0.45    Temperature = 95.5"));
}

TEST_F(DynoSheetTest, ShowsFuelAndAirWhereTheyWereMeasured) {
  fuel = {180, 0};
  bsfc = {0.45, 0};
  airFuel = {12.8, 0};
  scfm = {502.5, 0};
  bsac = {5.76, 0};
  const std::string report = Report();
  EXPECT_THAT(Lines(report), Contains("   5252      400.0    400.0    172.3      420.0      420.0"
                                      "    180.0    0.450    12.80    502.5    5.760"));
  EXPECT_THAT(Lines(report), Contains("   6000      380.0    434.1    163.7      399.0      455.8"
                                      "                                             "));
  EXPECT_THAT(report, HasSubstr("lbs/hr     BSFC    Ratio     SCFM     BSAC_"));
  layout.compact = true;
  EXPECT_THAT(Lines(Report()),
              Contains("   5252      400.0    400.0    172.3      420.0      420.0"));
  EXPECT_THAT(Report(), Not(HasSubstr("BSFC")));
}

TEST_F(DynoSheetTest, ShowsTorqueInNewtonMetres) {
  layout.newtonMetres = true;
  const std::string report = Report();
  // 400 x 1.3558179 = 542.3; x 1.05 = 569.4. Power and pressure stay.
  EXPECT_THAT(Lines(report),
              Contains("   5252      542.3    400.0    172.3      569.4      420.0"));
  EXPECT_THAT(report, HasSubstr("Torque NM"));
  EXPECT_THAT(report, HasSubstr("Highest Torque = 542.3 NM @ 5252 RPM    Corrected = 569.4 NM"));
}

TEST_F(DynoSheetTest, LeavesThePressureOutWithoutAnEngineSize) {
  layout.cubicInches = 0;
  const std::string report = Report();
  EXPECT_THAT(Lines(report), Contains("   5252      400.0    400.0      420.0      420.0"));
  EXPECT_THAT(report, HasSubstr("BMEP needs the Engine Size"));
}

TEST_F(DynoSheetTest, RefusesATableWithoutRows) {
  rpm.clear();
  EXPECT_THROW(Report(), CommandError);
}

}  // namespace
}  // namespace veldox
