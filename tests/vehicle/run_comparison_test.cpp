#include "vehicle/run_comparison.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "core/dry_run.h"
#include "core/report.h"
#include "program/program.h"
#include "tests/support/test_host.h"
#include "vehicle/acceleration_screen.h"

namespace veldox {
namespace {

RunMark& MarkOf(RunResult& run, StripMark mark) {
  return run.strip[static_cast<std::size_t>(mark)];
}

/// A run that was timed to the eighth of a mile.
RunResult ShortRun(double faster) {
  RunResult run;
  MarkOf(run, StripMark::Feet60) = {1.5 - faster, 50};
  MarkOf(run, StripMark::Feet330) = {4.25 - faster, 100.5};
  MarkOf(run, StripMark::Feet600) = {6.25 - faster, 125};
  MarkOf(run, StripMark::Feet660) = {6.5 - faster, 127};
  run.topSpeed = 130.25 + faster;
  return run;
}

/// The row that begins so; empty where there is none.
std::string RowOf(const std::string& report, std::string_view beginning) {
  for (const MarkedLine& line : ReportLines(report)) {
    if (line.text.starts_with(beginning)) return std::string(line.text);
  }
  return {};
}

TEST(RunComparison, TellsBothRunsAndWhatThePresentOneHasMore) {
  RunResult last = ShortRun(0);
  last.tractionLimitedFeet = 75.5;
  const std::string report = CompareRuns(last, ShortRun(0.125), DecimalMark::Point);
  EXPECT_EQ(RowOf(report, "           "), "                     Two Runs Side by Side.");
  EXPECT_EQ(RowOf(report, "60 Foot ET"),
            "60 Foot ET                       1.5000       1.3750      -0.1250");
  EXPECT_EQ(RowOf(report, "330 Foot MPH"),
            "330 Foot MPH                     100.50       100.50         0.00");
  EXPECT_EQ(RowOf(report, "1/8 Mile ET"),
            "1/8 Mile ET                      6.5000       6.3750      -0.1250");
  // The mean over the trap before the mark: of 125 and 127.
  EXPECT_EQ(RowOf(report, "1/8 Mile MPH"),
            "1/8 Mile MPH                     126.00       126.00         0.00");
  EXPECT_EQ(RowOf(report, "Top Speed MPH"),
            "Top Speed MPH                    130.25       130.38         0.13");
  EXPECT_EQ(RowOf(report, "Tires Limit"),
            "Tires Limit Until Feet             75.5            -            -");
}

TEST(RunComparison, ShowsNoNumberWhereARunHasNone) {
  RunResult still;
  still.end = RunEnd::NoThrust;
  const std::string report = CompareRuns(ShortRun(0), still, DecimalMark::Comma);
  EXPECT_EQ(RowOf(report, "60 Foot ET"),
            "60 Foot ET                       1,5000            -            -");
  EXPECT_EQ(RowOf(report, "1/4 Mile ET"),
            "1/4 Mile ET                           -            -            -");
  EXPECT_EQ(RowOf(report, "Top Speed MPH"),
            "Top Speed MPH                    130,25            -            -");
}

class RunsOfTheScreen : public testing::Test {
 protected:
  RunsOfTheScreen() {
    program_.Start();
    shell().Choose(*Shell::FindMenuItem("ACCELERATION"));
  }
  Shell& shell() { return program_.shell(); }
  Form13& form() { return static_cast<Form13&>(*shell().FindScreen("Form13")); }
  KeepCurrent& current() { return program_.context().current; }
  void Enter(Field& field, const char* text) {
    form().MoveFocus(&field);
    field.Edit(text);
    current().Run(true);
  }
  std::string Report() { return form().Text58.text(); }
  /// What stands behind the words, up to the line's end.
  std::string Figure(const std::string& words) {
    const std::string report = Report();
    const auto at = report.find(words);
    if (at == std::string::npos) return "none";
    const auto from = at + words.size();
    return report.substr(from, report.find('\r', from) - from);
  }

  TestHost host_;
  Program program_{host_};
};

TEST_F(RunsOfTheScreen, TheLastChartIsComparedWithARunOfThePresentValues) {
  host_.Answer(Button::OK);
  EXPECT_FALSE(form().Command34.Click());
  EXPECT_NE(host_.messages.back().text.find("no run to compare with"), std::string::npos);
  form().Page.Text51.Edit("3500");
  form().Command25.Click();
  const std::string heavy = Figure("1/4 Mile ET  = ");
  form().Page.Text51.Edit("2900");
  form().Command25.Click();
  const std::string light = Figure("1/4 Mile ET  = ");
  ASSERT_NE(heavy, light);
  const double et = program_.context().block.ET;
  form().Page.Text51.Edit("3500");
  form().Command34.Click();
  const std::string row = Figure("1/4 Mile ET ");
  EXPECT_NE(row.find(light), std::string::npos) << row;
  EXPECT_NE(row.find(heavy), std::string::npos) << row;
  EXPECT_LT(row.find(light), row.find(heavy)) << row;
  EXPECT_EQ(program_.context().block.ET, et) << "comparing keeps nothing";
}

TEST_F(RunsOfTheScreen, AChartInSightIsRunAgainAfterEachEntry) {
  form().Page.Text51.Edit("2900");
  form().Command25.Click();
  const std::string light = Figure("1/4 Mile ET  = ");
  ASSERT_TRUE(current().SwitchOf(form())->Click());
  Enter(form().Page.Text51, "3500");
  EXPECT_NE(Figure("1/4 Mile ET  = "), light);
  const std::string whole = Report();
  form().Command25.Click();
  EXPECT_EQ(Report(), whole) << "as a click makes it";
  // A value that cannot be: no box, and the old chart stays.
  Enter(form().Page.Text42, "6");
  EXPECT_EQ(Report(), whole);
  EXPECT_EQ(form().Text58.mark(), Mark::Outdated);
  EXPECT_NE(current().SwitchOf(form())->help().find("Coefficient of Mu"), std::string::npos)
      << current().SwitchOf(form())->help();
  Enter(form().Page.Text42, "5.0");
  EXPECT_EQ(form().Text58.mark(), Mark::None);
  EXPECT_EQ(Report(), whole);
  EXPECT_EQ(form().focus(), &form().Page.Text42);
  // Side by side: the run that is kept stays, however often the values change.
  form().Command34.Click();
  const auto first = Figure("1/4 Mile ET ").substr(0, 30);
  for (const char* weight : {"3000", "2900"}) {
    Enter(form().Page.Text51, weight);
    EXPECT_EQ(Figure("1/4 Mile ET ").substr(0, 30), first);
  }
  EXPECT_NE(Figure("1/4 Mile ET ").find(light), std::string::npos);
}

TEST_F(RunsOfTheScreen, AGraphInSightIsDrawnAgainAndGraphPlusRests) {
  form().Dyno.Open();
  form().Page.Text51.Edit("3500");
  form().Dyno.Command2.Click();
  ASSERT_TRUE(program_.grapher().visible());
  ASSERT_TRUE(current().SwitchOf(form())->Click());
  const auto highest = [this] { return program_.grapher().plot().series().front().points.front(); };
  const GraphPoint before = highest();
  Enter(form().Page.Text51, "2900");
  EXPECT_GT(highest().y, before.y) << "a lighter car gains speed faster";
  ASSERT_GT(program_.grapher().plot().series().size(), 1U);
  const std::size_t curves = program_.grapher().plot().series().size();
  form().Dyno.Command19.Click();
  EXPECT_EQ(program_.grapher().plot().series().size(), 2 * curves);
  Enter(form().Page.Text51, "2800");
  EXPECT_EQ(program_.grapher().plot().series().size(), 2 * curves) << "it would add up";
  program_.grapher().Quit();
  form().Dyno.Command2.Click();
  program_.grapher().Quit();
  const GraphPoint closed = highest();
  Enter(form().Page.Text51, "3500");
  EXPECT_EQ(highest(), closed);
  EXPECT_FALSE(program_.grapher().visible()) << "nothing comes up by itself";
}

TEST_F(RunsOfTheScreen, GraphPlusNamesTheRuns) {
  form().Dyno.Open();
  form().Dyno.Command2.Click();
  const std::size_t curves = program_.grapher().plot().series().size();
  EXPECT_TRUE(program_.grapher().plot().series().front().Legend().starts_with("Gear 1"));
  form().Page.Text51.Edit("2900");
  form().Dyno.Command19.Click();
  form().Page.Text51.Edit("2500");
  form().Dyno.Command19.Click();
  const auto& series = program_.grapher().plot().series();
  ASSERT_EQ(series.size(), 3 * curves);
  EXPECT_TRUE(series[0].Legend().starts_with("Run 1, Gear 1")) << series[0].Legend();
  EXPECT_TRUE(series[curves].Legend().starts_with("Run 2, Gear 1")) << series[curves].Legend();
  EXPECT_TRUE(series[2 * curves].Legend().starts_with("Run 3, Gear 1"));
  // A graph of something else has no runs.
  form().Dyno.Command31[6].Click();
  form().Dyno.Command19.Click();
  for (const auto& each : program_.grapher().plot().series()) {
    EXPECT_EQ(each.Legend().find("Run"), std::string::npos);
  }
}

TEST_F(RunsOfTheScreen, APreviewOfARunEndsWhenItsTimeIsOver) {
  for (Command* command :
       {&form().Command25, &form().Command13, &form().Dyno.Command2, &form().Dyno.Command4}) {
    const Preview all = PreviewOf(*command);
    EXPECT_FALSE(all.ranOutOfTime);
    const Preview ended = PreviewOf(*command, std::chrono::microseconds(0));
    EXPECT_TRUE(ended.ranOutOfTime) << command->name();
    EXPECT_TRUE(ended.changes.empty());
  }
}

}  // namespace
}  // namespace veldox
