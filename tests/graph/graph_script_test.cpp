#include "graph/graph_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "core/error.h"

namespace veldox {
namespace {

using testing::ElementsAre;

GraphScript Parse(const std::string& text, DecimalMark mark = DecimalMark::Point) {
  GraphScriptFailure failure;
  const auto script = ReadGraphScript(text, "dyno.txt", mark, failure);
  EXPECT_TRUE(script.has_value()) << failure.text;
  return script.value_or(GraphScript{});
}

GraphScriptFailure FailureOf(const std::string& text) {
  GraphScriptFailure failure;
  EXPECT_FALSE(ReadGraphScript(text, "dyno.txt", DecimalMark::Point, failure).has_value()) << text;
  return failure;
}

TEST(GraphScript, ReadsLimitsAndPoints) {
  const GraphScript script = Parse(
      "; a dyno run\r\nXLOW = 1000\r\nxhigh = 7000\r\nylow = -5\r\nyhigh = 500.5\r\n"
      "x = 2000\r\ny = 300\r\nx = 3000\r\ny = 400");
  EXPECT_EQ(script.xLow, 1000);
  EXPECT_EQ(script.xHigh, 7000);
  EXPECT_EQ(script.yLow, -5);
  EXPECT_EQ(script.yHigh, 500.5);
  EXPECT_EQ(script.records, 9);
  EXPECT_FALSE(script.overlay);
  ASSERT_EQ(script.curves.size(), 1U);
  EXPECT_THAT(script.curves[0].points, ElementsAre(GraphPoint{2000, 300}, GraphPoint{3000, 400}));
  EXPECT_THAT(script.curves[0].starts, ElementsAre(0U));
}

TEST(GraphScript, AYWithoutAnXIsNoPoint) {
  const GraphScript script = Parse("y = 3\nx = 1\ny = 2\ny = 9\n");
  ASSERT_EQ(script.curves.size(), 1U);
  EXPECT_THAT(script.curves[0].points, ElementsAre(GraphPoint{1, 2}));
}

TEST(GraphScript, ScalesBeforeItShifts) {
  const GraphScript script =
      Parse("x = 1\ny = 1\nx scale = 2\nx shift = 10\ny scale = -3\ny shift = 0.5\nx = 4\ny = 2\n");
  ASSERT_EQ(script.curves.size(), 1U);
  EXPECT_THAT(script.curves[0].points, ElementsAre(GraphPoint{1, 1}, GraphPoint{18, -5.5}));
}

TEST(GraphScript, LinesArePointsOfTheirCurve) {
  const GraphScript script = Parse("line to = 1,2\nline to = 3 , 4\nline = 5,6,7,8\n");
  ASSERT_EQ(script.curves.size(), 1U);
  EXPECT_THAT(script.curves[0].points,
              ElementsAre(GraphPoint{1, 2}, GraphPoint{3, 4}, GraphPoint{5, 6}, GraphPoint{7, 8}));
  EXPECT_THAT(script.curves[0].starts, ElementsAre(0U, 2U));
}

TEST(GraphScript, AResetBeginsACurveInTheSameColor) {
  const GraphScript script =
      Parse("color = red\nline to = 1,2\nline to = 3,4\nreset =\nline to = 5,6\nline to = 7,8\n");
  ASSERT_EQ(script.curves.size(), 2U);
  EXPECT_EQ(script.curves[0].color->name, "Red");
  EXPECT_TRUE(script.curves[1].sameColor);
  EXPECT_THAT(script.curves[1].points, ElementsAre(GraphPoint{5, 6}, GraphPoint{7, 8}));
}

TEST(GraphScript, ANewColorGoesOnFromTheLastPoint) {
  const GraphScript script = Parse("line to = 1,2\nline to = 3,4\ncolor = blue\nline to = 5,6\n");
  ASSERT_EQ(script.curves.size(), 2U);
  EXPECT_FALSE(script.curves[0].color.has_value()) << "the next pen in the row";
  EXPECT_EQ(script.curves[1].color->color, (Color{0, 0, 255}));
  EXPECT_THAT(script.curves[1].points, ElementsAre(GraphPoint{3, 4}, GraphPoint{5, 6}));
}

TEST(GraphScript, KnowsItsColors) {
  for (const char* name :
       {"white",       "black",        "green",    "blue",       "cyan",       "red",
        "magenta",     "yellow",       "brown",    "chocolate",  "dark blue",  "dark cyan",
        "dark gray",   "dark green",   "dark red", "light blue", "light cyan", "light gray",
        "light green", "light yellow", "orange"}) {
    const GraphScript script = Parse(std::string("Color = ") + name + "\nline to = 1,2\n");
    ASSERT_EQ(script.curves.size(), 1U) << name;
    EXPECT_TRUE(script.curves[0].color.has_value()) << name;
  }
}

TEST(GraphScript, SetsWidthAndStyle) {
  const GraphScript script = Parse("drawwidth = 3\ndrawstyle = 4\nline = 0,0,1,1\n");
  EXPECT_EQ(script.curves.at(0).width, 3);
  EXPECT_EQ(script.curves.at(0).style, LineStyle::DashDotDot);
}

TEST(GraphScript, CaptionsKeepTheirCase) {
  const GraphScript script = Parse("caption1 = <--- Valve Lift\nCAPTION20 = Bore 4.030\n");
  EXPECT_EQ(script.captions.at(1), "<--- Valve Lift");
  EXPECT_EQ(script.captions.at(20), "Bore 4.030");
  EXPECT_EQ(FailureOf("caption7 = x").text,
            "Invalid Input Recorder - 1 caption7 = x\r\nFile: dyno.txt");
}

TEST(GraphScript, ReadsCirclesAndGridLines) {
  const GraphScript script = Parse("overlay\ngrid x l = 12\ngrid y l = 7\ncircle = 1,2,3\n");
  EXPECT_TRUE(script.overlay);
  EXPECT_TRUE(Parse("Overlay on the last graph\nxhigh = 5\n").overlay) << "matched by prefix";
  EXPECT_EQ(script.gridLinesX, 12);
  EXPECT_EQ(script.gridLinesY, 7);
  ASSERT_EQ(script.circles.size(), 1U);
  EXPECT_EQ(script.circles[0].center, (GraphPoint{1, 2}));
  EXPECT_EQ(script.circles[0].radius, 3);
}

TEST(GraphScript, ReadsNumbersInCommaMode) {
  const GraphScript script = Parse("x = 1,5\ny = 2.5\n", DecimalMark::Comma);
  EXPECT_THAT(script.curves.at(0).points, ElementsAre(GraphPoint{1.5, 2.5}));
}

TEST(GraphScript, TellsABadColor) {
  const GraphScriptFailure failure = FailureOf("; x\ncolor = Mauve\n");
  EXPECT_EQ(failure.text,
            "Bad Color Parameter check Manual for available colors --> color = Mauve\r\n"
            "File: dyno.txt   Record # 2");
  EXPECT_EQ(failure.title, "");
}

TEST(GraphScript, TellsABadStyle) {
  for (const char* style : {"0", "5", "-1", "1.5", "12", "", "solid"}) {
    const std::string line = std::string("drawstyle = ") + style;
    EXPECT_EQ(FailureOf(line + "x").text.substr(0, 48),
              "Bad DrawStyle Parameter must be 1 to 4 --> draws")
        << style;
  }
}

TEST(GraphScript, TellsTheRecordThatCannotBeUnderstood) {
  const GraphScriptFailure failure = FailureOf("; head\n\nx = 1\nHello World\n");
  EXPECT_EQ(failure.title, "VELDOX - Error Message");
  EXPECT_EQ(failure.text, "Invalid Input Recorder - 4 Hello World\r\nFile: dyno.txt");
  for (const char* line : {"x = one", "line = 1,2,3", "line = 1,2,3,4,5", "circle = 1,2,-3",
                           "line to = 1", "grid x l = 1", "grid y l = 401", "grid x l = 2.5",
                           "drawwidth = 0", "line to = 1e308,", "reset"}) {
    EXPECT_EQ(FailureOf(line).text,
              "Invalid Input Recorder - 1 " + std::string(line) + "\r\nFile: dyno.txt");
  }
}

TEST(GraphScript, PointsThatOverflowAreTold) {
  EXPECT_EQ(FailureOf("x scale = 1e200\nx = 1e200\ny = 1\n").text,
            "Invalid Input Recorder - 3 y = 1\r\nFile: dyno.txt");
}

TEST(GraphScript, ALongLineIsCutInItsMessage) {
  const std::string text = FailureOf(std::string(60000, 'q')).text;
  EXPECT_LT(text.size(), 400U);
  EXPECT_TRUE(text.ends_with("q...\r\nFile: dyno.txt"));
}

/// The message of a refusal of the whole file.
std::string RefusalOf(const std::string& text) {
  GraphScriptFailure failure;
  try {
    ReadGraphScript(text, "dyno.txt", DecimalMark::Point, failure);
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::File);
    return error.message();
  }
  return failure.text;
}

TEST(GraphScript, ALineBeyond64KbIsRefused) {
  const std::string message = RefusalOf("x = 1\n" + std::string(100000, 'q') + "\n");
  EXPECT_TRUE(message.starts_with(
      "A line of the file is longer than 64 KB.\r\nFile: dyno.txt   Record # 2\r\nData --> qqq"))
      << message;
}

TEST(GraphScript, MoreThan10000CurvesAreRefused) {
  std::string text;
  for (std::size_t i = 0; i < kMostScriptCurves - 1; ++i) text += "line = 1,2,3,4\nreset =\n";
  text += "circle = 1,2,3\n";
  EXPECT_EQ(Parse(text).curves.size(), kMostScriptCurves - 1);
  const std::string last = "\r\nFile: dyno.txt   Record # 20000\r\nData --> ";
  const std::string refusal =
      "The file holds more than 10,000 curves, the most that a graph shows.";
  EXPECT_EQ(RefusalOf(text + "line to = 5,6\n"), refusal + last + "line to = 5,6");
  EXPECT_EQ(RefusalOf(text + "circle = 5,6,7\n"), refusal + last + "circle = 5,6,7");
  // Lines that nothing joins are as many curves.
  std::string lines;
  for (std::size_t i = 0; i < kMostScriptCurves; ++i) lines += "line = 1,2,3,4\n";
  EXPECT_EQ(Parse(lines).curves.size(), 1U);
  EXPECT_TRUE(RefusalOf(lines + "line = 5,6,7,8\n").starts_with(refusal));
}

TEST(GraphScript, ANulIsRefused) {
  EXPECT_TRUE(RefusalOf(std::string("x = 1\0\n", 7)).starts_with("The file is no text"));
}

TEST(GraphScript, AnEmptyFileHasNothingToDraw) {
  EXPECT_FALSE(Parse("").HasDrawing());
  EXPECT_EQ(Parse("").records, 0);
}

}  // namespace
}  // namespace veldox
