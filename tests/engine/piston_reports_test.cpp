#include "engine/piston_reports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/report.h"
#include "engine/displacement_screen.h"
#include "graph/grapher_screen.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

PistonTable SmallBlock() {
  PistonTable table;
  table.bore = 4;
  table.stroke = 3.25;
  table.rodLength = 5.7;
  table.rpm = 6500;
  table.cylinders = 8;
  table.weights = {600.25, 700.5, 233.5};
  table.endDegrees = 360;
  table.everyDegrees = 0.1;
  return table;
}

PistonTable Metric(PistonTable table) {
  for (double* length : {&table.bore, &table.stroke, &table.rodLength, &table.offset}) {
    *length *= 25.4;
  }
  table.metric = true;
  return table;
}

TEST(PistonReports, TheAngleIsARunningSum) {
  // 0.1 is a little more than a tenth, and 3600 of them pass 360.
  const std::string report = VelocityReport(SmallBlock(), AngleOrigin::Crank, DecimalMark::Point);
  EXPECT_THAT(report, HasSubstr("Total Number Of Points = 3600 -- "));
  const auto lines = ReportLines(report);
  // Prompt and blank, two lines of the engine, ten of speeds and positions, three of headings.
  EXPECT_EQ(lines.size(), 2U + 2 + 10 + 3 + 3600 + 1);
}

TEST(PistonReports, MetricTablesHoldTheSameMotion) {
  for (const double offset : {0.0, 0.06, -0.1}) {
    PistonTable inches = SmallBlock();
    inches.offset = offset;
    const PistonTable metric = Metric(inches);
    for (const AngleOrigin origin : {AngleOrigin::Crank, AngleOrigin::DegreeWheel}) {
      const FastestPoint a = FastestPointOf(inches, origin);
      const FastestPoint b = FastestPointOf(metric, origin);
      EXPECT_NEAR(a.degrees, b.degrees, 1e-10);
      EXPECT_NEAR(b.speed / (a.speed * 0.3048), 1, 1e-12);
      const VelocityRow v = VelocityRowAt(inches, origin, 50);
      const VelocityRow w = VelocityRowAt(metric, origin, 50);
      EXPECT_NEAR(w.travel, v.travel * 25.4, 1e-11);
      EXPECT_NEAR(w.velocity, v.velocity * 0.3048, 1e-11);
      EXPECT_NEAR(w.acceleration, v.acceleration * 0.3048, 1e-8);
      EXPECT_NEAR(w.flow, v.flow / 60 * 0.028316846592, 1e-11);
    }
    const TravelRow t = TravelRowAt(inches, 50);
    const TravelRow u = TravelRowAt(metric, 50);
    EXPECT_NEAR(u.travel, t.travel * 25.4, 1e-11);
    EXPECT_NEAR(u.cc, t.cc, 1e-9);
    EXPECT_NEAR(t.cc * 0.061023744, t.cubicInches, 1e-12);
  }
}

TEST(PistonReports, TheWheelBeginsAtTheTrueTop) {
  PistonTable table = SmallBlock();
  table.offset = 0.3;
  EXPECT_NEAR(VelocityRowAt(table, AngleOrigin::DegreeWheel, 0).travel, 0, 1e-12);
  EXPECT_GT(VelocityRowAt(table, AngleOrigin::Crank, 0).travel, 1e-3);
}

TEST(PistonReports, ANegativeOffsetPutsTheAngleOnALineOfItsOwn) {
  PistonTable table = SmallBlock();
  table.everyDegrees = 90;
  table.offset = -0.06;
  const std::string report = VelocityReport(table, AngleOrigin::Crank, DecimalMark::Point);
  EXPECT_THAT(report, HasSubstr("\r\nMaximum Piston Velocity on Down Stroke "));
  EXPECT_THAT(report, HasSubstr(" FPM\r\n @ "));
}

TEST(PistonReports, HeadingsCarryTheirMarks) {
  PistonTable table = SmallBlock();
  table.everyDegrees = 90;
  for (const bool metric : {false, true}) {
    for (const bool compact : {false, true}) {
      for (const double offset : {0.0, 0.06}) {
        table.offset = offset;
        PistonTable shown = metric ? Metric(table) : table;
        shown.compact = compact;
        const auto headings = [](const std::string& report) {
          const auto lines = ReportLines(report);
          return std::count_if(lines.begin(), lines.end(), [](const MarkedLine& line) {
            return line.mark == LineMark::Heading;
          });
        };
        const DecimalMark mark = DecimalMark::Point;
        EXPECT_EQ(headings(VelocityReport(shown, AngleOrigin::Crank, mark)), 3);
        EXPECT_EQ(headings(VelocityReport(shown, AngleOrigin::DegreeWheel, mark)), 3);
        EXPECT_EQ(headings(TravelReport(shown, mark)), offset == 0 ? 3 : 4);
        EXPECT_EQ(headings(CrankpinForceReport(shown, mark)), 3);
        EXPECT_EQ(headings(CrankpinLoadReport(shown, mark)), 3);
      }
    }
  }
}

TEST(PistonReports, CommaModeWritesCommas) {
  PistonTable table = SmallBlock();
  table.everyDegrees = 90;
  const std::string report = CrankpinLoadReport(table, DecimalMark::Comma);
  EXPECT_THAT(report, HasSubstr("Bore = 4,0   Stroke = 3,25   Rod Length = 5,7   RPM = 6500^"));
  EXPECT_EQ(report.find("6500."), std::string::npos);
}

class Form1Reports : public testing::Test {
 protected:
  void Range(const char* every, const char* start, const char* end) {
    form_.Text39.SetText(every);
    form_.Text40.SetText(start);
    form_.Text41.SetText(end);
  }

  TestHost host_;
  ProgramContext context_{host_};
  Form8 grapher_{context_};
  Form1 form_{context_, grapher_};
};

TEST_F(Form1Reports, PassTheLimitWith3602LinesAndNotWithMore) {
  host_.Answer(Button::OK);
  Range("0.125", "-90.125", "360");
  form_.Command18.Click();
  EXPECT_THAT(form_.Text38.text(), StartsWith(std::string(ReportPrompt)));
  EXPECT_EQ(ReportLines(form_.Text38.text()).size(), 2U + 2 + 1 + 3 + 3602);
  ASSERT_EQ(host_.messages.size(), 1U);
  EXPECT_EQ(host_.messages[0].text, OverflowNote);
  EXPECT_EQ(host_.messages[0].icon, Icon::Information);

  Range("0.125", "-90.25", "360");
  form_.Command18.Click();
  EXPECT_EQ(form_.Text38.text(),
            "\r\nYou can generate no more than 3600 degree lines and you want 3603\r\nYou can "
            "increase your Every xx Degrees or your Start Degrees or decrease your End Degrees.");
}

TEST_F(Form1Reports, StoreTheDegreeRangeAndTheWeights) {
  Range("45", "10", "100");
  form_.Text30.SetText("500");
  form_.Text31.SetText("600");
  form_.Text14.SetText("150");
  form_.Command17.Click();
  EXPECT_EQ(context_.block.EveryXDegrees, 45);
  EXPECT_EQ(context_.block.StartDegrees, 10);
  EXPECT_EQ(context_.block.EndDegrees, 100);
  EXPECT_EQ(context_.block.PistonWeight, 500);
  EXPECT_EQ(context_.block.SmallEndRodWeight, 200) << "a third of the rod";
  form_.Check2.Click();
  form_.Command17.Click();
  EXPECT_EQ(context_.block.SmallEndRodWeight, 150);
}

TEST_F(Form1Reports, DeriveTheEngineAfterATableAndNotAfterAWrongRange) {
  Range("45", "10", "100");
  form_.Text3.SetText("3.5");
  form_.Text16.SetText("1");
  form_.Command18.Click();
  EXPECT_EQ(form_.Text16.text(), "0.875");
  form_.Text16.SetText("1");
  Range("45", "100", "10");
  form_.Command18.Click();
  EXPECT_EQ(form_.Text16.text(), "1");
  EXPECT_EQ(form_.Text38.text(), "\r\nYour Starting Degrees is greater than your Ending Degrees.");
}

}  // namespace
}  // namespace veldox
