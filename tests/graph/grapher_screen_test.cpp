#include "graph/grapher_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <string>
#include <vector>

#include "core/files.h"
#include "tests/support/recording_surface.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A host that can make pictures.
class PictureHost : public TestHost {
 public:
  std::vector<PictureRequest> requests;
  int encoderError = 0;
  int printed = 0;

  PictureResult EncodePicture(const PictureRequest& request) override {
    requests.push_back(request);
    return {"picture", encoderError};
  }
  ScreenSize MeasurePicture(const std::string& bytes) override {
    if (bytes != "picture") throw CommandError(ErrorKind::File, "This is no picture.");
    return {10, 10, 96};
  }
  void PrintGraph() override { ++printed; }
};

class Form8Test : public testing::Test {
 protected:
  Form8Test() {
    host_.folder = folder_.path();
    form_.SetVisible(true);
  }

  std::filesystem::path WriteFile(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
    return folder_ / name;
  }
  /// Reads a graph file; the boxes are answered with OK.
  void ReadGraph(const std::string& text, int boxes = 1) {
    host_.AnswerFile(WriteFile("graph.txt", text));
    for (int i = 0; i < boxes; ++i) host_.Answer(Button::OK);
    form_.Read.Click();
  }
  const std::string& LastMessage() const { return host_.messages.back().text; }

  TemporaryFolder folder_;
  PictureHost host_;
  ProgramContext context_{host_};
  Form8 form_{context_};
};

TEST_F(Form8Test, OpensWithAnEmptySurface) {
  EXPECT_TRUE(form_.plot().Empty());
  EXPECT_FALSE(form_.HasGraph());
}

TEST_F(Form8Test, GraphsAStandardCurve) {
  form_.Command2.Click();
  const PlotEngine& plot = form_.plot();
  EXPECT_EQ(plot.Caption(kXPointerCaption), "<--- RPM");
  EXPECT_EQ(plot.Caption(kXNameCaption), "RPM");
  EXPECT_EQ(plot.Caption(kYPointerCaption), "<--- Horse Power");
  EXPECT_THAT(plot.Titles(), ElementsAre("Horsepower Torque"));
  ASSERT_EQ(plot.series().size(), 2U);
  // Model speeds 6600 to 10000 by 5.
  ASSERT_EQ(plot.series()[0].points.size(), 681U);
  for (std::size_t i = 0; i < 681; ++i) {
    const GraphPoint power = plot.series()[0].points[i];
    const GraphPoint torque = plot.series()[1].points[i];
    EXPECT_NEAR(power.x, (6600 + 5.0 * static_cast<double>(i)) * 8800 / 8300, 1e-9);
    EXPECT_NEAR(torque.y * torque.x / 5252, power.y, 1e-9);
    EXPECT_TRUE(power.y > plot.YLow && power.y < plot.YHigh && power.x > plot.XLow &&
                power.x < plot.XHigh);
  }
  EXPECT_EQ(context_.block.TypeCurve, 2);
  EXPECT_EQ(context_.block.HorsePower, 1300);
  EXPECT_EQ(context_.block.RPM, 8800);
}

TEST_F(Form8Test, RefusesOtherCurveTypes) {
  for (const char* type : {"0", "9", "2.5", "-1"}) {
    form_.Text6.SetText(type);
    host_.Answer(Button::OK);
    form_.Command2.Click();
    EXPECT_EQ(LastMessage(), "Type of Curve may only be 1 Thru 8.") << type;
    EXPECT_EQ(host_.messages.back().icon, Icon::Warning);
  }
  EXPECT_TRUE(form_.plot().Empty());
}

TEST_F(Form8Test, RefusesAPeakThatIsNone) {
  form_.Text5.SetText("0");
  host_.Answer(Button::OK);
  form_.Command2.Click();
  EXPECT_EQ(LastMessage(), "\"RPM\" must be greater than 0 for this command.");
  form_.Text5.SetText("8800");
  form_.Text4.SetText("1e308");
  host_.Answer(Button::OK);
  form_.Command2.Click();
  EXPECT_THAT(LastMessage(), HasSubstr("The graph cannot be drawn"));
  EXPECT_TRUE(form_.plot().Empty());
}

TEST_F(Form8Test, ZoomWithoutAGraphIsTold) {
  for (Command* zoom : {&form_.Command4, &form_.Command6, &form_.Command7, &form_.Command8}) {
    host_.Answer(Button::OK);
    zoom->Click();
    EXPECT_EQ(LastMessage(), "User Error No Graph to Zoom!!!!");
  }
  form_.Command2.Click();
  host_.Answer(Button::OK);
  form_.Command8.Click();
  EXPECT_EQ(LastMessage(), "User Error No Graph to Zoom!!!!") << "the graph is not of a file";
}

TEST_F(Form8Test, ZoomsByATenthOfTheFirstRange) {
  ReadGraph("xlow = 2000\nxhigh = 4055\nylow = 100\nyhigh = 399\nline = 2000,100,4000,300\n");
  const PlotEngine& plot = form_.plot();
  // Int(2055 / 10) = 205, Int(299 / 10) = 29
  host_.Answer(Button::OK);
  form_.Command8.Click();
  EXPECT_EQ(plot.scale(), (AxisRange{2205, 4055, 129, 399}));
  host_.Answer(Button::OK);
  form_.Command8.Click();
  EXPECT_EQ(plot.scale(), (AxisRange{2410, 4055, 158, 399})) << "the same step again";
  for (int i = 0; i < 8; ++i) {
    host_.Answer(Button::OK);
    form_.Command7.Click();
  }
  // 2410 - 8 * 205 = 770; 158 - 8 * 29 = -74 stops at 0
  EXPECT_EQ(plot.scale(), (AxisRange{770, 4055, 0, 399}));
  EXPECT_EQ(LastMessage(), "5 Records Read");
}

TEST_F(Form8Test, ALowLimitBelowZeroZoomsNoLowerThanItBegan) {
  ReadGraph("xlow = 0\nxhigh = 100\nylow = -50\nyhigh = 50\nline = 0,0,9,9\n");
  host_.Answer(Button::OK);
  form_.Command7.Click();
  EXPECT_EQ(form_.plot().scale(), (AxisRange{0, 100, -50, 50}));
}

TEST_F(Form8Test, ZoomStopsBeforeTheLimitsMeet) {
  ReadGraph("xlow = 0\nxhigh = 100\nylow = 0\nyhigh = 100\nline = 0,0,9,9\n");
  for (int i = 0; i < 9; ++i) {
    host_.Answer(Button::OK);
    form_.Command8.Click();
  }
  EXPECT_EQ(form_.plot().scale(), (AxisRange{90, 100, 90, 100}));
  host_.Answer(Button::OK);
  form_.Command8.Click();
  EXPECT_EQ(LastMessage(), "The graph cannot be zoomed any further.");
  EXPECT_EQ(form_.plot().scale(), (AxisRange{90, 100, 90, 100}));
}

TEST_F(Form8Test, ZoomOfACurveKeepsItsHighLimits) {
  form_.Command2.Click();
  const AxisRange first = form_.plot().scale();
  form_.Command6.Click();
  const AxisRange zoomed = form_.plot().scale();
  EXPECT_EQ(zoomed.xHigh, first.xHigh);
  EXPECT_EQ(zoomed.xLow, first.xLow + std::floor((first.xHigh - first.xLow) / 10));
  EXPECT_EQ(zoomed.yLow, first.yLow + std::floor((first.yHigh - first.yLow) / 10));
  form_.Command4.Click();
  EXPECT_EQ(form_.plot().scale(), first);
}

TEST_F(Form8Test, CorrectsHighLimitsThatAreNotAboveTheLowOnes) {
  ReadGraph("xlow = 10\nxhigh = 10\nylow = 5\nyhigh = 3\nline = 11,6,12,7\n", 3);
  ASSERT_EQ(host_.messages.size(), 3U);
  EXPECT_EQ(host_.messages[0].text,
            "yhigh is less than or equal to ylow, yhigh is set to ylow * 2");
  EXPECT_EQ(host_.messages[1].text,
            "xhigh is less than or equal to xlow, xhigh is set to xlow * 2");
  EXPECT_EQ(form_.plot().scale(), (AxisRange{10, 20, 5, 10}));
}

TEST_F(Form8Test, LimitsThatCannotBeCorrectedLeaveTheGraphAsItWas) {
  form_.Command2.Click();
  const std::size_t points = form_.plot().series()[0].points.size();
  // Without limits both run from 0 to 0, and twice 0 is no more.
  ReadGraph("line = 0,0,1,1\n", 3);
  EXPECT_THAT(LastMessage(), HasSubstr("the X axis runs from 0 to 0"));
  ReadGraph("ylow = -4\nyhigh = -4\nxhigh = 1\nline = 0,0,1,1\n", 2);
  EXPECT_THAT(LastMessage(), HasSubstr("The graph cannot be drawn: the Y axis runs from -4 to -8"));
  EXPECT_EQ(form_.plot().series()[0].points.size(), points);
}

TEST_F(Form8Test, ABadFileLeavesTheGraphAsItWas) {
  form_.Command2.Click();
  ReadGraph("xhigh = 5\nnonsense\n");
  EXPECT_EQ(host_.messages.back().title, "VELDOX - Error Message");
  EXPECT_EQ(LastMessage(), "Invalid Input Recorder - 2 nonsense\r\nFile: graph.txt");
  EXPECT_EQ(form_.plot().series().size(), 2U);
  ReadGraph("");
  EXPECT_THAT(LastMessage(), HasSubstr("There is nothing to graph"));
  EXPECT_EQ(form_.plot().series().size(), 2U);
  host_.AnswerFile(folder_ / "missing.txt");
  host_.Answer(Button::OK);
  form_.Read.Click();
  EXPECT_THAT(LastMessage(), HasSubstr("missing.txt"));
  host_.AnswerFile(std::nullopt);
  form_.Read.Click();
}

TEST_F(Form8Test, AnOverlayDrawsOnThePresentGraph) {
  ReadGraph("xhigh = 10\nyhigh = 10\nline = 0,0,5,5\n");
  ReadGraph("overlay\nline = 1,1,2,2\n");
  const PlotEngine& plot = form_.plot();
  ASSERT_EQ(plot.series().size(), 2U);
  EXPECT_EQ(plot.series()[0].name, "Green");
  EXPECT_EQ(plot.series()[1].name, "Blue");
  EXPECT_EQ(plot.scale(), (AxisRange{0, 10, 0, 10}));
  host_.Answer(Button::OK);
  form_.Command8.Click();
  EXPECT_EQ(plot.series().size(), 2U) << "zooming does not add the overlay again";
}

TEST_F(Form8Test, WhatStandsUnderAnOverlayKeepsItsValues) {
  ReadGraph("xhigh = 100\nyhigh = 100\nline = 0,50,100,50\ncircle = 5,5,2\n");
  ReadGraph("overlay\nyhigh = 200\nline = 0,60,100,60\n");
  EXPECT_EQ(form_.plot().scale(), (AxisRange{0, 100, 0, 200}));
  for (int zoom = 0; zoom < 3; ++zoom) {
    for (const PlotSeriesRecord& series : form_.plot().series()) {
      EXPECT_EQ(series.range, form_.plot().scale());
    }
    EXPECT_EQ(form_.plot().circles()[0].range, form_.plot().scale());
    host_.Answer(Button::OK);
    form_.Command8.Click();
  }
}

TEST_F(Form8Test, CirclesHaveTheirFilesPen) {
  ReadGraph("xhigh = 9\nyhigh = 9\ncircle = 1,1,1\ndrawwidth = 6\ndrawstyle = 2\ncircle = 5,5,2\n");
  const auto& circles = form_.plot().circles();
  ASSERT_EQ(circles.size(), 2U);
  EXPECT_EQ(circles[0].pen.width, 1);
  EXPECT_EQ(circles[1].pen.width, 6);
  EXPECT_EQ(circles[1].pen.style, static_cast<LineStyle>(2));
}

TEST_F(Form8Test, CountsRecordsByThousands) {
  std::string text = "xhigh = 10\nyhigh = 10\nline = 0,0,5,5\n";
  for (int i = 0; i < 1997; ++i) text += "; more\n";
  ReadGraph(text);
  EXPECT_EQ(LastMessage(), "2,000 Records Read");
  EXPECT_EQ(form_.Label1.caption(), "graph.txt");
  form_.Command2.Click();
  EXPECT_EQ(form_.Label1.caption(), "");
}

TEST_F(Form8Test, OtherScreensSwitchItsCommandsOff) {
  form_.DisableGrapherCommands();
  for (const Control* control : std::initializer_list<const Control*>{
           &form_.Command2, &form_.Command4, &form_.Command5, &form_.Command6, &form_.Command7,
           &form_.Read, &form_.Command8, &form_.Text4, &form_.Text5, &form_.Text6}) {
    EXPECT_FALSE(control->enabled()) << control->name();
  }
  EXPECT_TRUE(form_.Command3.enabled());
  form_.EnableGrapherCommands();
  EXPECT_TRUE(form_.Text6.enabled());
}

TEST_F(Form8Test, AGraphOfNothingLeavesTheOldOne) {
  form_.Command2.Click();
  GraphFrame frame;
  frame.range = {0, 1, 0, 1};
  EXPECT_THROW(form_.DrawGraph(frame, {}), CommandError);
  const GraphCurve point{"", {{1, 1}}, {}};
  EXPECT_THROW(form_.DrawGraph(frame, {&point, 1}), CommandError);
  EXPECT_THROW(form_.AddToGraph({&point, 1}), CommandError);
  EXPECT_EQ(form_.plot().series().size(), 2U);
}

TEST_F(Form8Test, ACurveBringsItsStandardLineOnceAndItsBoxes) {
  GraphCurve curve;
  curve.note = "a lobe";
  curve.points = {{0, 0}, {1, 0.3}, {2, 0}};
  curve.boxes = true;
  curve.standardLine = 0.05;
  form_.DrawGraph({{0, 3, -0.05, 0.4}, false, "", "", "", "", false}, {&curve, 1});
  const PlotEngine& plot = form_.plot();
  ASSERT_EQ(plot.lines().size(), 1U);
  EXPECT_EQ(plot.lines()[0].from, (GraphPoint{0, 0.05}));
  EXPECT_EQ(plot.lines()[0].to, (GraphPoint{3, 0.05}));
  EXPECT_EQ(plot.boxes().size(), 3U);
  EXPECT_EQ(plot.boxes()[1].center, (GraphPoint{1, 0.3}));
  EXPECT_EQ(plot.series().size(), 1U);
  form_.AddToGraph({&curve, 1});
  EXPECT_EQ(plot.lines().size(), 1U);
  EXPECT_EQ(plot.boxes().size(), 6U);
  curve.standardLine = 0.04;
  form_.AddToGraph({&curve, 1});
  EXPECT_EQ(plot.lines().size(), 2U);
  EXPECT_EQ(plot.series().size(), 3U);
}

TEST_F(Form8Test, ACurveOfAColourOfItsOwnTakesNoPen) {
  std::array<GraphCurve, 3> curves;
  for (GraphCurve& curve : curves) curve.points = {{0, 0}, {1, 0.3}};
  curves[1].note = "drag";
  curves[1].color = CurveColorOf(25);
  form_.DrawGraph({{0, 3, 0, 0.4}, false, "", "", "", "", false}, curves);
  const auto& series = form_.plot().series();
  ASSERT_EQ(series.size(), 3U);
  EXPECT_EQ(series[0].name, "Green");
  EXPECT_EQ(series[1].Legend(), "drag  Dark Blue");
  EXPECT_EQ(series[1].color, CurveColorOf(25).color);
  EXPECT_EQ(series[2].name, "Blue");
}

TEST_F(Form8Test, AxesGrowForACurveThatBringsItsRange) {
  GraphCurve curve;
  curve.points = {{0, 0}, {1, 0.3}, {2, 0}};
  curve.standardLine = 0.05;
  form_.DrawGraph({{0, 3, -0.05, 0.4}, false, "", "", "", "", false}, {&curve, 1});
  GraphCurve larger;
  larger.points = {{0, 0}, {2, 0.6}, {4, 0}};
  larger.standardLine = 0.05;
  form_.AddToGraph({&larger, 1}, {1, 5, 0, 0.7});
  const PlotEngine& plot = form_.plot();
  EXPECT_EQ(plot.scale(), (AxisRange{0, 5, -0.05, 0.7}));
  // All curves are read on the same axes, and the line reaches across them.
  EXPECT_EQ(plot.series()[0].range, plot.scale());
  EXPECT_EQ(plot.series()[1].range, plot.scale());
  EXPECT_EQ(plot.lines().back().to, (GraphPoint{5, 0.05}));
  // Without a range they stay.
  form_.AddToGraph({&curve, 1});
  EXPECT_EQ(plot.scale(), (AxisRange{0, 5, -0.05, 0.7}));
}

TEST_F(Form8Test, AnEmptyGraphHasItsAxes) {
  GraphCurve curve;
  curve.fewestPoints = 0;
  form_.DrawGraph({{0, 360, -0.05, 0.4}, false, "", "", "", "", false}, {&curve, 1});
  EXPECT_TRUE(form_.HasGraph());
  ASSERT_EQ(form_.plot().series().size(), 1U);
  EXPECT_TRUE(form_.plot().series()[0].points.empty());
}

TEST_F(Form8Test, TellsTheMousePosition) {
  ReadGraph("xhigh = 10\nyhigh = 20\nline = 0,0,10,20\n");
  RecordingSurface surface(800, 600);
  form_.DrawOn(surface, {});
  const SurfaceRect frame = form_.plot().LayOut(surface, {}).frame;
  form_.MouseMove({frame.left + frame.width / 4, frame.top + frame.height / 2});
  EXPECT_EQ(form_.Label18.caption(), "2.5");
  EXPECT_EQ(form_.Label19.caption(), "10");
  RecordingSurface page(5000, 3000);
  form_.DrawPicture(page, {});
  form_.MouseMove({frame.left + frame.width / 4, frame.top + frame.height / 2});
  EXPECT_EQ(form_.Label18.caption(), "2.5") << "a picture does not move the pointer's scale";
  EXPECT_EQ(form_.ReadOut({frame.right(), 0}), "Green: 10  20");
  form_.MouseLeave();
  EXPECT_EQ(form_.Label18.caption(), "");
}

TEST_F(Form8Test, DrawsFreelyWhileTheBoxIsOn) {
  ReadGraph("xhigh = 10\nyhigh = 20\nline = 0,0,10,20\n");
  form_.BeginStroke({10, 10});
  form_.ContinueStroke({20, 20});
  EXPECT_TRUE(form_.plot().freeLines().empty());
  form_.Check1.Click();
  context_.block.DrawLineColor = 255;
  context_.block.DrawLineWidth = 4;
  form_.BeginStroke({10, 10});
  form_.ContinueStroke({20, 20});
  form_.ContinueStroke({30, 20});
  form_.EndStroke();
  form_.ContinueStroke({90, 90});
  ASSERT_EQ(form_.plot().freeLines().size(), 2U);
  EXPECT_EQ(form_.plot().freeLines()[0].pen.color, (Color{255, 0, 0}));
  EXPECT_EQ(form_.plot().freeLines()[0].pen.width, 4);
  EXPECT_EQ(form_.plot().freeLines()[0].to, form_.plot().freeLines()[1].from);
  form_.Clear_Draw.Click();
  EXPECT_TRUE(form_.plot().freeLines().empty());
}

TEST_F(Form8Test, MoveableLinesReadValues) {
  ReadGraph("xhigh = 10\nyhigh = 20\nline = 0,0,10,20\n");
  RecordingSurface surface(800, 600);
  form_.DrawOn(surface, {});
  const SurfaceRect frame = form_.plot().LayOut(surface, {}).frame;
  ASSERT_EQ(form_.moveableLines().size(), 8U);
  form_.MoveGridLine(0, {0, frame.top + frame.height / 4});
  EXPECT_NEAR(form_.GridLineValue(0), 15, 1e-9);
  form_.MoveGridLine(7, {frame.left + frame.width / 2, 0});
  EXPECT_NEAR(form_.GridLineValue(7), 5, 1e-9);
  form_.MoveGridLine(7, {-1000, 0});
  EXPECT_NEAR(form_.GridLineValue(7), 0, 1e-9);
  form_.Graph_Move_Grid.Click();
  EXPECT_EQ(form_.Graph_Move_Grid.caption(), "Moveable Grid Lines -- Is ON");
  EXPECT_TRUE(form_.MoveableLinesShown());
  form_.Graph_Move_Grid.Click();
  EXPECT_EQ(form_.Graph_Move_Grid.caption(), "Moveable Grid Lines -- Is OFF");
}

TEST_F(Form8Test, SavesPicturesUnderTheClocksName) {
  form_.Command2.Click();
  form_.Save_Picture_Image.Click();
  // The test host's clock stands at 17 May 2024, 14:03:09, a Friday.
  EXPECT_EQ(LoadFile(folder_ / "VELDOX_Graph_Friday_May_17_2024_14_3_9.jpg"), "picture");
  form_.Print_Picture_Image.Click();
  EXPECT_EQ(LoadFile(folder_ / "VELDOX_Graph_Friday_May_17_2024_14_3_9.bmp"), "picture");
  EXPECT_EQ(host_.printed, 1);
  ASSERT_EQ(host_.requests.size(), 2U);
  EXPECT_EQ(host_.requests[0].format, PictureFormat::Jpeg);
  EXPECT_EQ(host_.requests[0].quality, 100);
  EXPECT_EQ(host_.requests[0].width, 600);
  EXPECT_EQ(host_.requests[1].format, PictureFormat::Bmp);
  context_.block.CurrentScreenTag = "CarGraph";
  form_.Save_Form_JPG.Click();
  EXPECT_EQ(host_.requests[2].of, PictureRequest::Of::Window);
  EXPECT_EQ(LoadFile(folder_ / "CarGraph_Friday_May_17_2024_14_3_9.jpg"), "picture");
  context_.block.CurrentScreenTag = "CubicIn";
  form_.Save_Form_JPG.Click();
  EXPECT_EQ(LoadFile(folder_ / "CubicIn_CarGraph_Friday_May_17_2024_14_3_9.jpg"), "picture");
}

TEST_F(Form8Test, SavesPicturesByTheirExtension) {
  form_.Command2.Click();
  const std::pair<const char*, PictureFormat> formats[] = {
      {"a.png", PictureFormat::Png},   {"a.JPG", PictureFormat::Jpeg},
      {"a.jpeg", PictureFormat::Jpeg}, {"a.svg", PictureFormat::Svg},
      {"a.pdf", PictureFormat::Pdf},   {"a.bmp", PictureFormat::Bmp},
      {"plain", PictureFormat::Bmp}};
  for (const auto& [name, format] : formats) {
    host_.AnswerFile(folder_ / name);
    form_.Command3.Click();
    EXPECT_EQ(host_.requests.back().format, format) << name;
  }
  EXPECT_TRUE(std::filesystem::exists(folder_ / "plain.bmp"));
  host_.AnswerFile(folder_ / "a.doc");
  host_.Answer(Button::OK);
  form_.Command3.Click();
  EXPECT_THAT(LastMessage(), HasSubstr("a.doc"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "a.doc"));
}

TEST_F(Form8Test, TellsWhatTheEncoderCannotDo) {
  form_.Command2.Click();
  host_.encoderError = 7;
  host_.Answer(Button::OK);
  form_.Save_Picture_Image.Click();
  EXPECT_EQ(LastMessage(), "Can not save image(GDI+ Error).:7");
  host_.Answer(Button::OK);
  form_.Save_Form_JPG.Click();
  EXPECT_EQ(LastMessage(), "Cannot save the image. GDI+ Error:7");
}

TEST_F(Form8Test, AnEmptySurfaceIsNotSaved) {
  for (Command* command : {&form_.Command3, &form_.Save_Picture_Image, &form_.Print_Picture_Image,
                           &form_.Copy_Picture}) {
    host_.Answer(Button::OK);
    command->Click();
    EXPECT_EQ(LastMessage(), "There is no graph yet. Please draw one first.");
  }
  host_.Answer(Button::OK);
  form_.Save_Points.Click();
  EXPECT_TRUE(host_.requests.empty());
}

TEST_F(Form8Test, ShowsPicturesAndRefusesWhatIsNone) {
  host_.AnswerFile(WriteFile("car.bmp", "picture"));
  form_.Command5.Click();
  EXPECT_EQ(form_.plot().picture(), "picture");
  EXPECT_EQ(host_.fileDialogs.back().filter,
            "All Files (*.*)|*.*|Graphics Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files "
            "(*.jpg)|*.jpg");
  host_.AnswerFile(WriteFile("text.bmp", "words"));
  host_.Answer(Button::OK);
  form_.Command5.Click();
  EXPECT_EQ(LastMessage(), "This is no picture.");
  EXPECT_EQ(form_.plot().picture(), "picture");
}

TEST_F(Form8Test, SavesPointsAsCsv) {
  ReadGraph("xhigh = 10\nyhigh = 20\nline = 0,0,10,20.5\n");
  host_.AnswerFile(folder_ / "points");
  form_.Save_Points.Click();
  EXPECT_EQ(LoadFile(folder_ / "points.csv"),
            "series,name,x,y\r\n1,\"Green\",0,0\r\n1,\"Green\",10,20.5\r\n");
}

}  // namespace
}  // namespace veldox
