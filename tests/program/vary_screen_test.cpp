// The tools that try commands of other screens: a series of values, and a target that is sought.

#include "graph/vary_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <numbers>
#include <string>

#include "core/files.h"
#include "core/seek_screen.h"
#include "program/program.h"
#include "tests/support/program_state.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using State = ProgramState;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// Asks for an end after some values.
class ImpatientHost : public TestHost {
 public:
  std::unique_ptr<Progress> ShowProgress(const std::string& what, std::size_t all) override {
    class Bar : public Progress {
     public:
      explicit Bar(std::size_t most) : most_(most) {}
      bool GoOn(std::size_t done) override { return done < most_; }

     private:
      std::size_t most_;
    };
    told = what + ' ' + std::to_string(all);
    return patience == 0 ? nullptr : std::make_unique<Bar>(patience);
  }
  std::size_t patience = 0;
  std::string told;
};

class Tools : public testing::Test {
 protected:
  Tools() {
    program_.Start();
    Open("Form1");
  }

  Shell& shell() { return program_.shell(); }
  History& history() { return program_.context().history; }
  void Open(const char* form) { shell().Open(*shell().FindScreen(form)); }
  void Choose(const char* item) { shell().Choose(*Shell::FindMenuItem(item)); }
  template <class C = Field>
  C& Find(const std::string& name) {
    auto* control = dynamic_cast<C*>(shell().FindControl(name));
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
  std::string Text(const std::string& name) { return ShownText(*shell().FindControl(name)); }
  bool Click(const std::string& name) { return Find<Command>(name).Click(); }
  void Type(const std::string& name, const std::string& text) {
    auto& field = Find(name);
    field.screen().MoveFocus(&field);
    field.Edit(text);
  }
  void Pick(const std::string& list, const std::string& row) {
    auto& rows = Find<ComboList>(list);
    const auto found = std::find(rows.rows().begin(), rows.rows().end(), row);
    ASSERT_NE(found, rows.rows().end()) << row;
    rows.Pick(static_cast<int>(found - rows.rows().begin()));
  }
  /// Runs what a control's menu offers. @return what it offers
  std::vector<std::string> Offer(const std::string& name, const std::string& run = {}) {
    std::vector<std::string> captions;
    for (const ControlTool& tool : program_.context().toolsOf(*shell().FindControl(name))) {
      captions.push_back(tool.caption);
      if (tool.caption == run) tool.open();
    }
    return captions;
  }
  /// What a command that ends with a box says. Nothing has changed by it.
  std::string Refusal(const std::string& command) {
    const State before(program_, State::Part::Data);
    host_.Answer(Button::OK);
    EXPECT_FALSE(Click(command));
    EXPECT_EQ(State::Difference(before, State(program_, State::Part::Data)), "");
    return host_.messages.empty() ? "" : host_.messages.back().text;
  }

  ImpatientHost host_;
  Program program_{host_};
};

TEST_F(Tools, AreGreyWithoutAScreenAndWorkOnTheOneThatTheUserCameToLast) {
  shell().FindScreen("Form1")->Quit();
  EXPECT_FALSE(shell().MenuEnabled(*Shell::FindMenuItem("Vary")));
  EXPECT_FALSE(shell().MenuEnabled(*Shell::FindMenuItem("Seek")));
  Open("Form1");
  Open("Form16");
  EXPECT_TRUE(shell().MenuEnabled(*Shell::FindMenuItem("Vary")));
  Choose("Vary");
  EXPECT_EQ(Text("Vary.SubjectFrame"), shell().FindScreen("Form16")->title());
  program_.context().NoteVisit(*shell().FindScreen("Form1"));
  Choose("Seek");
  EXPECT_EQ(Text("Seek.SubjectFrame"), shell().FindScreen("Form1")->title());
  shell().FindScreen("Form1")->Quit();
  Choose("Seek");
  EXPECT_EQ(Text("Seek.SubjectFrame"), shell().FindScreen("Form16")->title());
}

TEST_F(Tools, ChooseWhatBelongsToAField) {
  EXPECT_THAT(Offer("Form1.Text4", "Vary This Field ..."),
              ElementsAre("Vary This Field ...", "Seek a Value of This Field ...",
                          "Show How This Result Varies ...", "Seek What Gives This Result ..."));
  EXPECT_TRUE(shell().FindScreen("Vary")->visible());
  EXPECT_EQ(Text("Vary.FieldList"), "Rod Length (in)");
  // The first command whose results the rod changes.
  EXPECT_NE(Text("Vary.Result1"), "(none)");
  EXPECT_EQ(Text("Vary.Result8"), "(none)");
  // About 10 percent of 5.7 to either side, in tidy steps.
  EXPECT_EQ(Text("Vary.From"), "5.0");
  EXPECT_EQ(Text("Vary.To"), "6.4");
  EXPECT_EQ(Text("Vary.Step"), "0.2");
  EXPECT_TRUE(Click("Vary.Show_Series"));
  EXPECT_TRUE(Find<ReportBox>("Vary.Series").showsReport());
}

TEST_F(Tools, ChooseWhatBelongsToACommandAndToAResult) {
  EXPECT_THAT(Offer("Form1.Command23", "Vary a Field of This Command ..."),
              ElementsAre("Vary a Field of This Command ...", "Seek With This Command ..."));
  EXPECT_EQ(Text("Vary.CommandList"), "Rod Stroke Ratio");
  EXPECT_EQ(Text("Vary.Result1"), "Rod Stroke Ratio");
  EXPECT_THAT(Offer("Form1.Text24", "Seek What Gives This Result ..."),
              ElementsAre("Show How This Result Varies ...", "Seek What Gives This Result ..."));
  EXPECT_EQ(Text("Seek.FieldList"), "Bore (in)");
  EXPECT_EQ(Text("Seek.ResultList"), "Piston Area (sq in)");
  EXPECT_EQ(Text("Seek.Target"), Text("Form1.Text24"));
  // What only closes or opens something has nothing to vary, nor have the tools themselves.
  EXPECT_TRUE(Offer("Form1.subend").empty());
  EXPECT_TRUE(Offer("Vary.From").empty());
  EXPECT_TRUE(Offer("Main.Steps_Done").empty());
}

TEST_F(Tools, ShowASeriesAndLeaveTheScreenAsItIs) {
  Type("Form1.Text5", "6400");
  const std::size_t steps = history().done();
  const State before(program_, State::Part::Data);
  Choose("Vary");
  Pick("Vary.FieldList", "Bore (in)");
  Pick("Vary.CommandList", "Engine Size");
  Type("Vary.From", "4");
  Type("Vary.To", "4.25");
  Type("Vary.Step", ".1");
  ASSERT_TRUE(Click("Vary.Show_Series"));
  const std::string report = Text("Vary.Series");
  EXPECT_THAT(report, HasSubstr("Press the . key to Write this Data to a Disk File"));
  EXPECT_THAT(report, HasSubstr("Bore Varied\r\n"));
  for (const double bore : {4.0, 4.1, 4.2}) {
    EXPECT_THAT(report, HasSubstr(FormatField(bore, DecimalMark::Point) + "      " +
                                  FormatField(std::numbers::pi / 4 * bore * bore * 3.25 * 8,
                                              DecimalMark::Point)));
  }
  EXPECT_THAT(report, Not(HasSubstr("4.3")));
  EXPECT_EQ(State::Difference(before, State(program_, State::Part::Data)), "");
  EXPECT_EQ(history().done(), steps);
  EXPECT_THAT(host_.told, HasSubstr("\"Engine Size\" with each value of \"Bore\" ... 3"));
}

TEST_F(Tools, HoldNoDataThatCouldBeUndoneOrSaved) {
  ASSERT_EQ(program_.context().block.DataChanged, 0);
  Choose("Vary");
  Type("Vary.From", "1");
  Find("Vary.Values").FilterKey(U'4');
  Type("Vary.Values", "4 5");
  Pick("Vary.CommandList", "Stroke");
  EXPECT_EQ(program_.context().block.DataChanged, 0);
  EXPECT_EQ(history().done(), 0U);
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  Choose("Clear");
  EXPECT_EQ(Text("Vary.Values"), "4 5");
}

TEST_F(Tools, TellWhatAValueCannotBeOnItsLine) {
  Choose("Vary");
  Pick("Vary.CommandList", "Stroke");
  Pick("Vary.FieldList", "Number Of Cylinders");
  Type("Vary.Values", "0;8");
  ASSERT_TRUE(Click("Vary.Show_Series"));
  const std::string report = Text("Vary.Series");
  EXPECT_THAT(report, HasSubstr("0.0   \"Number Of Cylinders\" is 0, and \"Stroke\""));
  EXPECT_THAT(report, HasSubstr("\r\n       8.0     3.25"));
}

TEST_F(Tools, RefuseWhatCannotBeInOneSentenceThatNamesTheField) {
  Choose("Vary");
  Pick("Vary.FieldList", "Bore (in)");
  Pick("Vary.CommandList", "Engine Size");
  Type("Vary.Step", "0");
  EXPECT_EQ(Refusal("Vary.Show_Series"), "The step is 0: no value would ever follow the first.");
  EXPECT_EQ(shell().FindScreen("Vary")->focus(), &Find("Vary.Step"));
  Type("Vary.Step", "-1");
  EXPECT_EQ(Refusal("Vary.Show_Series"),
            "The range ends above its beginning: the step must be above 0 then.");
  Type("Vary.Step", ".0000001");
  EXPECT_EQ(Refusal("Vary.Show_Curves"),
            "These are more than 100,000 values. Please choose a larger step.");
  Type("Vary.From", "");
  EXPECT_THAT(Refusal("Vary.Show_Series"), HasSubstr("\"From\" (Values of the Field)"));
  Type("Vary.Values", "4 five");
  EXPECT_THAT(Refusal("Vary.Save_Series"), HasSubstr("holds \"five\", which is no number."));
  Type("Vary.Values", "4");
  EXPECT_EQ(Refusal("Vary.Show_Curves"),
            "There are fewer than two numbers that a curve could be drawn through.");
  Type("Vary.Values", "4 5");
  Pick("Vary.SecondList", "Bore (in)");
  EXPECT_THAT(Refusal("Vary.Show_Series"), HasSubstr("\"Bore\" is varied already"));
  Pick("Vary.SecondList", "(none)");
  for (int i = 1; i <= 8; ++i) Pick("Vary.Result" + std::to_string(i), "(none)");
  EXPECT_THAT(Refusal("Vary.Show_Series"), HasSubstr("\"Result 1\" has nothing chosen."));
}

TEST_F(Tools, RefuseACommandThatWorksOutNothingWithAnyValue) {
  Choose("Vary");
  Pick("Vary.FieldList", "Number Of Cylinders");
  Pick("Vary.CommandList", "Stroke");
  Type("Form1.Text1", "0");
  Type("Vary.Values", "4 8");
  EXPECT_THAT(Refusal("Vary.Show_Series"),
              HasSubstr("\"Stroke\" cannot be run with any of the values: \"Bore\" is 0"));
}

TEST_F(Tools, AreEndedByCancelWithTheValuesSoFar) {
  Choose("Vary");
  Pick("Vary.CommandList", "Engine Size");
  host_.patience = 3;
  ASSERT_TRUE(Click("Vary.Show_Series"));
  EXPECT_THAT(Text("Vary.Series"), HasSubstr("Ended by Cancel behind 3 of 9 values."));
}

TEST_F(Tools, WriteASeriesForSpreadsheets) {
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "series_of_bores";
  Choose("Vary");
  Pick("Vary.CommandList", "Rod Stroke Ratio");
  Pick("Vary.FieldList", "Rod Length (in)");
  Pick("Vary.SecondList", "Stroke (in)");
  Type("Vary.Values", "6 6.5");
  Type("Vary.SecondValues", "3 0");
  for (int i = 2; i <= 8; ++i) Pick("Vary.Result" + std::to_string(i), "(none)");
  Pick("Vary.Result1", "Rod Stroke Ratio");
  host_.AnswerFile(file);
  ASSERT_TRUE(Click("Vary.Save_Series"));
  const std::filesystem::path written = file.string() + ".csv";
  EXPECT_THAT(LoadFile(written),
              ::testing::StartsWith(
                  "\"Stroke (in)\",\"Rod Length (in)\",\"Rod Stroke Ratio\"\r\n3.0,6.0,2.0\r\n"
                  "3.0,6.5,2.166667\r\n"));
  std::filesystem::remove(written);
  host_.AnswerFile(std::nullopt);
  EXPECT_FALSE(Click("Vary.Save_Series"));
}

TEST_F(Tools, DrawACurveForEachValueOfASecondField) {
  Choose("Vary");
  Pick("Vary.FieldList", "Bore (in)");
  Pick("Vary.CommandList", "Engine Size");
  Pick("Vary.SecondList", "Stroke (in)");
  Type("Vary.SecondValues", "3 3.5");
  ASSERT_TRUE(Click("Vary.Show_Curves"));
  const PlotEngine& plot = program_.grapher().plot();
  ASSERT_EQ(plot.series().size(), 2U);
  EXPECT_THAT(plot.series()[0].note, HasSubstr("Stroke 3.0 in"));
  EXPECT_THAT(plot.series()[1].note, HasSubstr("Stroke 3.5 in"));
  for (const PlotSeriesRecord& series : plot.series()) {
    const double stroke = &series == plot.series().data() ? 3 : 3.5;
    ASSERT_EQ(series.points.size(), 9U);
    for (const GraphPoint& point : series.points) {
      EXPECT_NEAR(point.y, std::numbers::pi / 4 * point.x * point.x * stroke * 8, 0.0001);
      EXPECT_GE(point.x, plot.XLow);
      EXPECT_LE(point.x, plot.XHigh);
      EXPECT_GE(point.y, plot.YLow);
      EXPECT_LE(point.y, plot.YHigh);
    }
  }
  EXPECT_TRUE(program_.grapher().visible());
  // The graph is a step of its own.
  EXPECT_EQ(history().Told().back(), "Graph: Engine Size over Bore");
  history().Undo();
  EXPECT_TRUE(program_.grapher().plot().series().empty());
  Pick("Vary.SecondList", "(none)");
  Pick("Vary.CurveList", "All Results");
  ASSERT_TRUE(Click("Vary.Show_Curves"));
  EXPECT_EQ(program_.grapher().plot().series().size(), 4U);
}

TEST_F(Tools, SeekAValueAsOneStep) {
  Choose("Seek");
  Pick("Seek.FieldList", "Stroke (in)");
  Pick("Seek.CommandList", "Engine Size");
  Pick("Seek.ResultList", "Engine Size (cu in)");
  Type("Seek.Target", "400");
  const std::size_t steps = history().done();
  ASSERT_TRUE(Click("Seek.Find_Value"));
  EXPECT_NEAR(ParseNumber(Text("Form1.Text3"), DecimalMark::Point),
              400 / (std::numbers::pi / 4 * 16 * 8), 1e-6);
  EXPECT_EQ(Text("Seek.Found"), Text("Form1.Text3"));
  EXPECT_EQ(Text("Seek.Reached"), Text("Form1.Text6"));
  EXPECT_EQ(Find("Seek.Found").caption(), "Stroke (in)");
  EXPECT_EQ(history().done(), steps + 1);
  history().Undo();
  EXPECT_EQ(Text("Form1.Text3"), "3.25");
}

TEST_F(Tools, RefuseToSeekWhatIsNotBetweenTheEnds) {
  Choose("Seek");
  Pick("Seek.FieldList", "Bore (in)");
  Pick("Seek.CommandList", "Engine Size");
  Pick("Seek.ResultList", "Engine Size (cu in)");
  Type("Seek.Low", "3");
  Type("Seek.High", "3.5");
  Type("Seek.Target", "400");
  EXPECT_EQ(Refusal("Seek.Find_Value"),
            "\"Engine Size\" is 183.7831 at 3.0 and 250.1493 at 3.5: 400.0 is not between them.");
  Type("Seek.High", "3");
  EXPECT_EQ(Refusal("Seek.Find_Value"), "The low end must be below the high end.");
  Type("Seek.Low", "");
  EXPECT_THAT(Refusal("Seek.Find_Value"), HasSubstr("\"Low End\""));
  EXPECT_EQ(Text("Seek.Found"), "");
}

TEST_F(Tools, LeaveOutCommandsThatShowNoNumbers) {
  Open("Form13");
  Choose("Vary");
  const std::vector<std::string>& rows = Find<ComboList>("Vary.CommandList").rows();
  EXPECT_THAT(rows, ::testing::Contains("Est Frontal Area"));
  EXPECT_THAT(rows, Not(::testing::Contains("MPH/WTq"))) << "a graph";
  EXPECT_TRUE(Offer("Form13.Command25").empty()) << "a report";
  // What does not depend on the field is not shown as if it did.
  Pick("Vary.CommandList", "Est Frontal Area");
  Pick("Vary.FieldList", "Tire Diameter (in)");
  EXPECT_EQ(Text("Vary.Result1"), "(none)");
  EXPECT_THAT(Text("Vary.HelpText"), HasSubstr("no other number"));
}

TEST(SeriesInComma, HaveTheMarkOfTheSystem) {
  const std::filesystem::path file = std::filesystem::temp_directory_path() / "series_comma.csv";
  TestHost host;
  host.decimalMark = DecimalMark::Comma;
  host.Answer(Button::OK);  // told at the start
  Program program(host);
  program.Start();
  Shell& shell = program.shell();
  shell.Open(*shell.FindScreen("Form1"));
  shell.Open(*shell.FindScreen("Vary"));
  static_cast<Field&>(*shell.FindControl("Vary.Values")).Edit("4 4,125");
  host.AnswerFile(file);
  ASSERT_TRUE(static_cast<Command&>(*shell.FindControl("Vary.Save_Series")).Click());
  const std::string written = LoadFile(file);
  std::filesystem::remove(file);
  EXPECT_THAT(written, HasSubstr("\"Bore (in)\";\"Engine Size (cu in)\";"));
  EXPECT_THAT(written, HasSubstr("\r\n4,0;326,7256;"));
  EXPECT_THAT(written, HasSubstr("\r\n4,125;347,465"));
}

TEST(RangesAboutAField, AreTidy) {
  TestHost host;
  Program program(host);
  program.Start();
  auto& bore = static_cast<Field&>(*program.shell().FindControl("Form1.Text1"));
  auto& cylinders = static_cast<Field&>(*program.shell().FindControl("Form1.Text2"));
  struct Case {
    Field& field;
    const char* text;
    double from, to, by;
  };
  const Case cases[] = {
      {bore, "4", 3.6, 4.4, 0.1},    {bore, "6500", 5800, 7200, 200},
      {bore, "0", 0, 1, 0.1},        {bore, "", 0, 1, 0.1},
      {bore, "-4", -4.4, -3.6, 0.1}, {bore, ".016", 0.014, 0.018, 0.0005},
      {cylinders, "8", 7, 9, 1},     {cylinders, "1", 0, 2, 1},
      {cylinders, "x", 0, 10, 1},    {cylinders, "100", 90, 110, 2},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.text);
    each.field.SetText(each.text);
    const TidyRange range = RangeAbout(each.field, 0.1);
    EXPECT_DOUBLE_EQ(range.from, each.from);
    EXPECT_DOUBLE_EQ(range.to, each.to);
    EXPECT_DOUBLE_EQ(range.by, each.by);
  }
}

}  // namespace
}  // namespace veldox
