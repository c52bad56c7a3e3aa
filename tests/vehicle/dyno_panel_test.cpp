#include "vehicle/dyno_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "program/program.h"
#include "tests/support/test_host.h"
#include "vehicle/acceleration_screen.h"
#include "vehicle/drag_finder_screen.h"

namespace veldox {
namespace {

using testing::HasSubstr;

class DynoPanelTest : public testing::Test {
 protected:
  DynoPanelTest() { host_.folder = folder_.path(); }
  void SetUp() override {
    program_.Start();
    program_.shell().Choose(*Shell::FindMenuItem("ACCELERATION"));
    form().Command15.Click();
  }

  ParameterBlock& block() { return program_.context().block; }
  Form13& form() { return static_cast<Form13&>(*program_.shell().FindScreen("Form13")); }
  DynoPanel& panel() { return form().Dyno; }
  const PlotEngine& plot() { return program_.grapher().plot(); }
  const std::vector<PlotSeriesRecord>& series() { return plot().series(); }
  /// The only curve's value at an engine speed of the table.
  double At(double x) {
    for (const GraphPoint& point : series().front().points) {
      if (point.x == x) return point.y;
    }
    return std::nan("");
  }
  /// Clicks a command that ends in a box. @return what it says
  std::string Refused(Command& command) {
    host_.Answer(Button::OK);
    // A refusal brings the page of the field at fault to the front.
    form().Command15.Click();
    EXPECT_FALSE(command.Click());
    return host_.messages.empty() ? std::string{} : host_.messages.back().text;
  }
  void FuelRows() {
    for (std::size_t i = 0; i < 11; ++i) {
      block().AccelFuel[i] = 400;
      block().AccelBsfc[i] = 0.5;
      block().AccelAirFuel[i] = 12.5;
      block().AccelScfm[i] = 1000;
      block().AccelBsac[i] = 6.5;
    }
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(DynoPanelTest, EveryGraphOfTheRunIsDrawn) {
  form().Page.Check3.SetOn(true);
  for (Command* command :
       {&panel().Command1, &panel().Command7, &panel().Command2, &panel().Command3,
        &panel().Command4, &panel().Command5, &panel().Command6, &panel().Command20,
        &panel().Command12, &panel().Command30}) {
    EXPECT_TRUE(command->Click()) << command->name();
    EXPECT_EQ(series().size(), command == &panel().Command4 ? 4U : 5U) << command->name();
    for (const PlotSeriesRecord& record : series()) {
      EXPECT_GT(record.points.size(), 20U) << command->name();
    }
  }
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(DynoPanelTest, WheelTorqueIsThatOfTheGears) {
  panel().Command1.Click();
  // 700 lb-ft at 5000 RPM by 3.25 x 4.1, less 6 and 6.5 percent; the rolling radius is half of the
  // diameter.
  const GraphPoint first = series().front().points.front();
  EXPECT_EQ(first.x, 5000);
  EXPECT_NEAR(first.y, 700 * 3.25 * 4.1 * 0.94 * 0.935, 1);
  const GraphPoint last = series().back().points.back();
  EXPECT_NEAR(last.x, 10000, 0.01);
  EXPECT_NEAR(last.y, 685 * 0.87 * 4.1 * 0.94 * 0.935, 1);
}

TEST_F(DynoPanelTest, TheGraphOfTimesEndsWhereTheChartDoes) {
  form().Command25.Click();
  const double et = block().ET;
  const double halfway = block().ET8;
  block().ET = block().ET8 = 0;
  panel().Command5.Click();
  EXPECT_DOUBLE_EQ(block().ET, et);
  EXPECT_DOUBLE_EQ(block().ET8, halfway);
  // Graphs of the gears apart leave what the last run came to.
  panel().Command1.Click();
  EXPECT_DOUBLE_EQ(block().ET, et);
}

TEST_F(DynoPanelTest, AxesEndWhereTheUserSaysAndGrowWithTheCurve) {
  panel().Text7.SetText("400");
  panel().Text39.SetText("20000");
  panel().Text3.SetText("-2000");
  panel().Command6.Click();
  EXPECT_EQ(plot().scale().xHigh, 400);
  EXPECT_EQ(plot().scale().yHigh, 20000);
  EXPECT_EQ(plot().scale().yLow, -2000);
  panel().Text7.SetText("10");
  panel().Command6.Click();
  EXPECT_GT(plot().scale().xHigh, 200);
}

TEST_F(DynoPanelTest, CoastGsGoBelowZero) {
  panel().Command3.Click();
  EXPECT_EQ(plot().scale().yLow, 0);
  EXPECT_EQ(series().size(), 5U);
  panel().Check8.Click();
  panel().Command3.Click();
  EXPECT_EQ(plot().scale().yLow, -0.5);
  ASSERT_EQ(series().size(), 6U);
  for (const GraphPoint& point : series().back().points) EXPECT_LT(point.y, 0);
}

TEST_F(DynoPanelTest, EveryColumnOfTheSheetIsDrawn) {
  FuelRows();
  block().CubicInches = 500;
  const double factor = 1.0106;
  const double power = 840 * 7500 / 5252.0;
  // At 7500 RPM; % VE is 1000 CFM of 500 cubic inches in every second turn.
  const std::array<double, 12> expected{400,
                                        0.5,
                                        12.5,
                                        1000,
                                        1000 * 3456 / (500 * 7500.0) * 100,
                                        power,
                                        840,
                                        840 * 150.8 / 500,
                                        power * factor,
                                        840 * factor,
                                        factor,
                                        6.5};
  for (int i = 0; i < 12; ++i) {
    EXPECT_TRUE(panel().Command31[i].Click()) << i;
    ASSERT_EQ(series().size(), 1U) << i;
    EXPECT_NEAR(At(7500) / expected[static_cast<std::size_t>(i)], 1, 5e-5) << i;
  }
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(DynoPanelTest, AColumnThatTheTableDoesNotHoldEndsInABox) {
  for (const int index : {0, 1, 2, 3, 4, 11}) {
    EXPECT_THAT(Refused(panel().Command31[index]), HasSubstr("The torque table holds no")) << index;
  }
  block().CubicInches = 0;
  EXPECT_THAT(Refused(panel().Command31[7]), HasSubstr("Cubic Inches must be above 0"));
  EXPECT_THAT(Refused(panel().Command12), HasSubstr("the Nitrous box is not checked"));
  EXPECT_FALSE(program_.grapher().HasGraph());
}

TEST_F(DynoPanelTest, TorqueAndPowerInTheColorsOfTheirHelp) {
  form().Page.Text67.SetText("1.05");
  panel().Command10.Click();
  ASSERT_EQ(series().size(), 4U);
  EXPECT_EQ(series()[0].name, "Blue");
  EXPECT_EQ(series()[1].name, "Yellow");
  EXPECT_EQ(series()[2].name, "Green");
  EXPECT_EQ(series()[3].name, "Red");
  const double power = 840 * 7500 / 5252.0;
  const std::array<double, 4> expected{840, 840 * 1.05, power, power * 1.05};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(series()[i].points[5].x, 7500);
    EXPECT_NEAR(series()[i].points[5].y, expected[i], 1e-9);
  }
  EXPECT_EQ(plot().Caption(11), "Green is HP - Blue is Torque");
  // 110 horsepower in first gear, from the first RPM on.
  form().Page.Check3.SetOn(true);
  panel().Command10.Click();
  ASSERT_EQ(series().size(), 4U);
  EXPECT_NEAR(series()[3].points[5].y, power + 110, 1e-9);
  EXPECT_NEAR(series()[1].points[5].y, 840 + 110 * 5252 / 7500.0, 1e-9);
  EXPECT_EQ(plot().Caption(13), "110 HP Nitrous Shot");
}

TEST_F(DynoPanelTest, GraphPlusDrawsTheLastGraphOntoTheOneShown) {
  EXPECT_THAT(Refused(panel().Command19),
              HasSubstr("There is no graph yet that could be drawn again. Please choose one of "
                        "the others first."));
  EXPECT_FALSE(program_.grapher().HasGraph());
  panel().Command31[6].Click();
  const GraphPoint before = series().front().points.front();
  block().AccelTorque[0] = 600;
  panel().Command19.Click();
  ASSERT_EQ(series().size(), 2U);
  EXPECT_EQ(series()[0].points.front(), before);
  EXPECT_EQ(series()[1].points.front().y, 600);
  EXPECT_NE(series()[0].name, series()[1].name);
  // The axes grow with what is added.
  block().AccelTorque[10] = 3000;
  panel().Command19.Click();
  EXPECT_GE(plot().scale().yHigh, 3000);
  EXPECT_EQ(series()[0].points.front(), before);
  panel().Command10.Click();
  panel().Command19.Click();
  EXPECT_EQ(series().size(), 8U);
  panel().Command2.Click();
  form().Page.Text51.SetText("3000");
  panel().Command19.Click();
  EXPECT_EQ(series().size(), 10U);
}

TEST_F(DynoPanelTest, AFailedGraphLeavesTheOldOne) {
  panel().Command31[6].Click();
  panel().Text7.SetText("0");
  EXPECT_THAT(Refused(panel().Command6), HasSubstr("Graph X High Value"));
  panel().Text7.SetText("300");
  panel().Text3.SetText("10");
  EXPECT_THAT(Refused(panel().Command6), HasSubstr("Graph Y High Value"));
  form().Page.Text67.SetText("0");
  EXPECT_THAT(Refused(panel().Command31[8]), HasSubstr("Dyno Correct Factor"));
  form().Page.Text67.SetText("1");
  panel().Text40.SetText("maybe");
  EXPECT_THAT(Refused(panel().Command31[5]), HasSubstr("Smooth HP Graph"));
  panel().Text40.SetText("n");
  panel().Text84.SetText("30");
  EXPECT_THAT(Refused(panel().Command18), HasSubstr("Dyno Baro Pressure"));
  panel().Text84.SetText("");
  EXPECT_THAT(Refused(panel().Command18), HasSubstr("Dyno Vapor Pressure"));
  block().AccelRowCount = 0;
  panel().Text84.SetText("0.45");
  EXPECT_THAT(Refused(panel().Command18), HasSubstr("There are no points of RPM and Torque"));
  EXPECT_THAT(Refused(panel().Command10), HasSubstr("torque table"));
  ASSERT_EQ(series().size(), 1U);
  EXPECT_EQ(At(7500), 840);
}

TEST_F(DynoPanelTest, AirThatNoDynoStandsInIsRefusedAtItsField) {
  const auto refusedAt = [&](Field& field, const char* text) {
    const std::string before = field.text();
    field.SetText(text);
    std::string told = Refused(panel().Command18);
    EXPECT_EQ(field.mark(), Mark::Error) << text;
    field.SetText(before);
    return told;
  };
  for (const char* text : {"-5", "-1e300", "29.92", "1e300"}) {
    EXPECT_THAT(refusedAt(panel().Text84, text),
                HasSubstr("\"Dyno Vapor Pressure\" must be from 0 to below the Dyno Baro"));
  }
  EXPECT_THAT(refusedAt(panel().Text85, "1e300"), HasSubstr("must be a number of usual size"));
  EXPECT_THAT(refusedAt(panel().Text83, "1e300"), HasSubstr("must be a number of usual size"));
  panel().Text84.SetText("0");
  EXPECT_TRUE(panel().Command18.Click());
}

TEST_F(DynoPanelTest, AxesBeyondAllNumbersAreRefusedAtTheirFields) {
  for (Field* field : {&panel().Text7, &panel().Text39, &panel().Text3}) {
    const std::string before = field->text();
    field->SetText(field == &panel().Text3 ? "-1e300" : "1e300");
    EXPECT_THAT(Refused(panel().Command6), HasSubstr("must be a number of usual size"));
    EXPECT_EQ(field->mark(), Mark::Error) << field->name();
    field->SetText(before);
  }
}

TEST_F(DynoPanelTest, ACarThatCannotMoveIsToldAsTheChartTellsIt) {
  form().Page.Text66.SetText("9");
  for (Command* command : {&panel().Command2, &panel().Command3, &panel().Command4,
                           &panel().Command5, &panel().Command30}) {
    EXPECT_THAT(Refused(*command), HasSubstr("The car does not move: ")) << command->name();
  }
  form().Page.Text66.SetText("0.015");
  form().Page.Text29.SetText("999999999");
  EXPECT_THAT(Refused(panel().Command5), HasSubstr("Rollout Distance"));
}

TEST_F(DynoPanelTest, ATableFromZeroRpmOnIsDrawn) {
  block().AccelRpm[0] = 0;
  for (Command* command :
       {&panel().Command1, &panel().Command6, &panel().Command7, &panel().Command20}) {
    EXPECT_TRUE(command->Click()) << command->name();
    EXPECT_EQ(series().size(), 5U) << command->name();
  }
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(DynoPanelTest, AFileWithoutASmoothSwitchLeavesTheFieldsText) {
  ParameterFile& file = program_.shell().parameterFile();
  file.ReadBytes("Smooth HP Graph = 0.0\r\nGraph Dyno X High = 0.0\r\nDyno BP = 0.0\r\n",
                 "old.prm");
  EXPECT_EQ(panel().Text40.text(), "N");
  EXPECT_EQ(panel().Text7.text(), "10");
  EXPECT_EQ(panel().Text83.text(), "29.92");
  file.ReadBytes("Smooth HP Graph = y\r\nGraph Dyno X High = 40\r\n", "new.prm");
  EXPECT_EQ(panel().Text40.text(), "y");
  EXPECT_EQ(panel().Text7.text(), "40.0");
  EXPECT_TRUE(panel().Command31[5].Click());
  EXPECT_EQ(block().SmoothHPGraph, "y");
}

TEST_F(DynoPanelTest, TheTextReportFollowsItsBoxes) {
  FuelRows();
  panel().Command18.Click();
  EXPECT_THAT(form().Text58.text(), HasSubstr("BSFC"));
  panel().Check9.Click();
  panel().Check10.Click();
  panel().Command18.Click();
  EXPECT_THAT(form().Text58.text(), testing::Not(HasSubstr("BSFC")));
  EXPECT_THAT(form().Text58.text(), HasSubstr("Torque NM"));
  EXPECT_THAT(form().Text58.text(), HasSubstr("1138.9"));  // 840 x 1.3558179
}

TEST_F(DynoPanelTest, DoneGoesBackToTheCarAndQuitLeaves) {
  EXPECT_TRUE(panel().Frame8.visible());
  panel().Command16.Click();
  EXPECT_FALSE(panel().Frame8.visible());
  EXPECT_TRUE(form().Page.Frame1.visible());
  form().Command15.Click();
  panel().Command22.Click();
  EXPECT_FALSE(form().visible());
}

TEST_F(DynoPanelTest, ACarOfTheFinderGoesToTheFields) {
  auto& finder = static_cast<Form20&>(*program_.shell().FindScreen("Form20"));
  const auto pick = [&](PickList& list, const std::string& row) {
    const auto& rows = list.rows();
    list.Choose(static_cast<int>(std::find(rows.begin(), rows.end(), row) - rows.begin()));
  };
  form().Page.Text65.SetText("21.5");
  program_.shell().Choose(*Shell::FindMenuItem("CD_FA"));
  pick(finder.Combo1, "'75-80 Pacer | 0.32");
  EXPECT_EQ(form().Page.Text64.text(), "0.34");
  finder.subend.Click();
  EXPECT_EQ(form().Page.Text64.text(), "0.32");
  // What was typed and not yet read stays where the row has no area.
  EXPECT_EQ(form().Page.Text65.text(), "21.5");
  program_.shell().Choose(*Shell::FindMenuItem("CD_FA_Other"));
  pick(finder.Combo2, "Polo G40 (Supercharged) | 0.38 23.7");
  finder.subend.Click();
  EXPECT_EQ(form().Page.Text64.text(), "0.38");
  EXPECT_EQ(form().Page.Text65.text(), "23.7");
  // A closed screen shows them when it opens.
  form().Quit();
  program_.shell().Choose(*Shell::FindMenuItem("CD_FA"));
  pick(finder.Combo1, "'08 Avenger | 0.326 25.15");
  finder.subend.Click();
  program_.shell().Choose(*Shell::FindMenuItem("ACCELERATION"));
  EXPECT_EQ(form().Page.Text64.text(), "0.326");
  EXPECT_EQ(form().Page.Text65.text(), "25.15");
}

}  // namespace
}  // namespace veldox
