#include "reference/jetting.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "core/error.h"
#include "core/report.h"
#include "reference/pulleys.h"

namespace veldox {
namespace {

using ::testing::HasSubstr;

/// From 29.9 dry inches and 60 degrees to 29.4 and 100: 29.4 / 29.9 and 520 / 560.
const WeatherChange kHotter{{30, 60, 0.1}, {29.5, 100, 0.1}};
constexpr double kLeaner = (29.4 / 29.9) * (520.0 / 560.0);

TEST(Jets, FollowTheAir) {
  // Areas go with the squares of the diameters.
  EXPECT_NEAR(JetForWeather(0.082, kHotter), 0.082 * std::sqrt(kLeaner), 1e-15);
  EXPECT_NEAR(BypassJetForWeather(0.082, kHotter), 0.082 / std::sqrt(kLeaner), 1e-15);
  EXPECT_NEAR(JetForWeather(0.08, {kHotter.before, kHotter.before}), 0.08, 1e-16);
  // Back in the first weather the first jet is right again.
  const WeatherChange back{kHotter.after, kHotter.before};
  EXPECT_NEAR(JetForWeather(JetForWeather(0.082, kHotter), back), 0.082, 1e-15);
}

TEST(Jets, OfAFreshScreen) {
  // 59 degrees at 5 % and 60 at 25 %; the water by its published pressures.
  const WeatherChange change{{29.92, 59, 0.02515}, {29.62, 60, 0.1303}};
  EXPECT_NEAR(JetForWeather(0.082, change), 0.0814, 0.00005);
}

TEST(Jets, WithAMeteringRod) {
  // Squares of the diameters stand for the areas: 0.006724 and 0.001089.
  const double needed = (0.006724 - 0.001089) * kLeaner + 0.001089;
  EXPECT_NEAR(JetWithRodForWeather(0.082, 0.033, kHotter), std::sqrt(needed), 1e-15);
  EXPECT_NEAR(MeteringRodForWeather(0.082, 0.033, kHotter),
              std::sqrt(0.001089 + (0.006724 - needed)), 1e-15);
  // Without a rod it is the jet of the plain rule.
  EXPECT_NEAR(JetWithRodForWeather(0.082, 0, kHotter), JetForWeather(0.082, kHotter), 1e-16);
  // What is open between the new rod and the old jet flows what is needed.
  const double rod = MeteringRodForWeather(0.082, 0.033, kHotter);
  EXPECT_NEAR((0.082 * 0.082 - rod * rod) / (0.082 * 0.082 - 0.033 * 0.033), kLeaner, 1e-14);
}

TEST(Jets, AreRefusedWhereNoRodFits) {
  const WeatherChange colder{{29.5, 100, 0.1}, {30, 0, 0.1}};
  EXPECT_FALSE(std::isfinite(MeteringRodForWeather(0.082, 0.01, colder)));
  EXPECT_FALSE(std::isfinite(MeteringRodForWeather(0.03, 0.04, kHotter)));
  EXPECT_FALSE(std::isfinite(JetWithRodForWeather(0.03, 0.04, kHotter)));
  const WeatherChange noAir{{29.92, 59, 0}, {0.4, 100, 0.5}};
  EXPECT_FALSE(std::isfinite(JetForWeather(0.082, noAir)));
  EXPECT_FALSE(std::isfinite(BypassJetForWeather(0.082, {noAir.after, noAir.before})));
}

TEST(JettingRows, CountWholeThousandths) {
  // .080 x 1.3 = .104: a running sum would miss it.
  const std::vector<JettingRow> rows = JettingRows(0.080, 0.033, kHotter);
  ASSERT_EQ(rows.size(), 25U);
  EXPECT_DOUBLE_EQ(rows.front().jet, 0.080);
  EXPECT_DOUBLE_EQ(rows.back().jet, 0.104);
  EXPECT_NEAR(rows.front().rod, MeteringRodForWeather(0.080, 0.033, kHotter), 1e-15);
  for (const JettingRow& row : rows) {
    EXPECT_NEAR((row.jet * row.jet - row.rod * row.rod) / (0.080 * 0.080 - 0.033 * 0.033), kLeaner,
                1e-12);
  }
  // .082 x 1.3 = .1066, and from between two thousandths the lower one counts.
  EXPECT_DOUBLE_EQ(JettingRows(0.082, 0.033, kHotter).back().jet, 0.106);
  EXPECT_DOUBLE_EQ(JettingRows(0.0825, 0.033, kHotter).front().jet, 0.082);
  for (int thousandths = 1; thousandths <= 400; ++thousandths) {
    const double jet = thousandths / 1000.0;
    EXPECT_DOUBLE_EQ(JettingRows(jet, 0, kHotter).front().jet, jet) << thousandths;
    EXPECT_DOUBLE_EQ(JettingRows(jet, 0, kHotter).back().jet, (thousandths * 13 / 10) / 1000.0)
        << thousandths;
  }
}

TEST(JettingRows, LeaveOutJetsThatAreTooSmall) {
  const WeatherChange colder{{29.5, 100, 0}, {30, 0, 0}};
  const double needed = JetWithRodForWeather(0.080, 0.033, colder);
  const std::vector<JettingRow> rows = JettingRows(0.080, 0.033, colder);
  ASSERT_FALSE(rows.empty());
  EXPECT_GE(rows.front().jet, needed);
  EXPECT_LT(rows.front().jet - 0.001, needed);
}

TEST(JettingRows, RefuseWhatGivesNone) {
  const auto message = [](const std::function<void()>& run) {
    try {
      run();
    } catch (const CommandError& error) {
      EXPECT_EQ(error.kind(), ErrorKind::InvalidArgument);
      return error.message();
    }
    return std::string("nothing was refused");
  };
  EXPECT_THAT(message([] { JettingRows(82, 33, kHotter); }), HasSubstr("10 inches"));
  EXPECT_THAT(message([] { JettingRows(std::nan(""), 0, kHotter); }), HasSubstr("10 inches"));
  EXPECT_THAT(message([] { JettingRows(0.03, 0.04, kHotter); }), HasSubstr("thicker"));
  const WeatherChange noAir{{0.4, 59, 0.5}, {29.92, 100, 0.5}};
  EXPECT_THAT(message([&] { JettingRows(0.08, 0.03, noAir); }), HasSubstr("check both"));
  const WeatherChange sealed{{10, 60, 0}, {30, 60, 0}};
  EXPECT_THAT(message([&] { JettingRows(0.08, 0.03, sealed); }), HasSubstr("large enough"));
}

TEST(JettingReport, ReadsAsACard) {
  const JettingReportInput input{0.003, 0.001, kHotter, 20, 5.25, false};
  // (9 - 1) x kLeaner + 1 = 8.30434... square thousandths; a jet of .003 leaves room for a rod of
  // the root of 1 + 9 - 8.30434.
  EXPECT_EQ(JettingReport(input, DecimalMark::Point),
            std::string(ReportPrompt) +
                "Barometric Pressure = 30.0\r\nHumidity = 20.0\r\nVapor Pressure = 0.1\r\n"
                "Temperature = 60.0\r\n\r\n"
                "New Barometric Pressure = 29.5\r\nNew Humidity = 5.25\r\n"
                "New Vapor Pressure = 0.1\r\nNew Temperature = 100.0\r\n\r\n"
                "Original Jet Size = 0.003 - Original Metering Rod Size = 0.001\r\n\r\n"
                "  New      New_\r\n  Jet    Metering_\r\n Size    Rod Size_\r\n"
                " .003 -   .0013");
}

TEST(JettingReport, TellsTheWeatherInTheUnitsOfTheScreen) {
  const JettingReportInput input{0.08, 0.03, kHotter, 20, 5.25, true};
  const std::string report = JettingReport(input, DecimalMark::Comma);
  // 30 x 33.8638867 = 1015.916601, 29.5 x 33.8638867 = 998.98465765
  EXPECT_THAT(report, HasSubstr("\r\nBarometric Pressure = 1015,916\r\n"));
  EXPECT_THAT(report, HasSubstr("\r\nNew Barometric Pressure = 998,9846\r\n"));
  EXPECT_THAT(report, HasSubstr("\r\nNew Temperature = 37,77777\r\n"));
  EXPECT_THAT(report, HasSubstr("\r\n ,080 -   ,0"));
}

TEST(Pulleys, TellTheDrive) {
  EXPECT_NEAR(DriveRatio(5.25, 7.25), 0.724, 0.0005);
  EXPECT_NEAR(DriveRatio(6.25, 7.25), 0.862, 0.0005);
  // (5.25 - 6.25) / 5.25: a faster drive is negative.
  EXPECT_NEAR(DriveChangePercent(5.25 / 7.25, 6.25 / 7.25), -19.047619, 1e-6);
  EXPECT_EQ(DriveChangePercent(1, 1), 0);
  EXPECT_FALSE(std::isfinite(DriveRatio(5, 0)));
  EXPECT_FALSE(std::isfinite(DriveChangePercent(0, 1)));
}

}  // namespace
}  // namespace veldox
