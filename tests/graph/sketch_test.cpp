#include "graph/sketch.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/pages.h"
#include "tests/support/recording_surface.h"

namespace veldox {
namespace {

Sketch Box() {
  Sketch sketch;
  sketch.width = 100;
  sketch.height = 20;
  sketch.linesAbove = 1;
  sketch.linesBelow = 2;
  sketch.lines = {{{0, 0}, {100, 0}, SketchStroke::Outline},
                  {{100, 0}, {100, 20}, SketchStroke::Outline},
                  {{0, 10}, {100, 10}, SketchStroke::Axis},
                  {{0, 20, 1}, {100, 20, 1}, SketchStroke::Measure}};
  sketch.names = {{{50, 20, 1}, "L1", -1}};
  return sketch;
}

TEST(Sketch, HasOneScaleForWidthAndHeight) {
  RecordingSurface surface(814, 600);
  PlotTheme theme;
  theme.fontSize = 10;
  const double scale = DrawSketch(Box(), surface, theme);
  EXPECT_DOUBLE_EQ(scale, 8);  // 814 less 7 on both sides
  ASSERT_EQ(surface.lines.size(), 4U);
  EXPECT_DOUBLE_EQ(surface.lines[0].to.x - surface.lines[0].from.x, 800);
  EXPECT_DOUBLE_EQ(surface.lines[1].to.y - surface.lines[1].from.y, 160);
  EXPECT_DOUBLE_EQ(surface.lines[0].from.x, 7);
  // A line of text below the drawing, whatever the scale.
  EXPECT_DOUBLE_EQ(surface.lines[3].from.y - surface.lines[1].to.y, 10);
  ASSERT_NE(surface.Find("L1"), nullptr);
  EXPECT_EQ(surface.Find("L1")->align, TextAlign::Center);
  EXPECT_DOUBLE_EQ(surface.Find("L1")->at.x, 407);
}

TEST(Sketch, FitsALowSurfaceToo) {
  RecordingSurface surface(2000, 84);
  PlotTheme theme;
  theme.fontSize = 10;
  // 84 less two margins of 7 and three lines of text
  EXPECT_DOUBLE_EQ(DrawSketch(Box(), surface, theme), 2);
  for (const auto& line : surface.lines) {
    EXPECT_GE(line.from.y, 0);
    EXPECT_LE(line.to.y, 84);
  }
}

TEST(Sketch, NamesStandAsideOfEachOther) {
  Sketch sketch = Box();
  sketch.names = {{{50, 20, 1}, "L1", -1}, {{51, 20, 1}, "L2", -1}, {{90, 20, 1}, "L3", -1}};
  RecordingSurface surface(814, 600);
  PlotTheme theme;
  theme.fontSize = 10;
  DrawSketch(sketch, surface, theme);
  EXPECT_DOUBLE_EQ(surface.Find("L1")->at.y - surface.Find("L2")->at.y, 10);
  EXPECT_DOUBLE_EQ(surface.Find("L1")->at.y, surface.Find("L3")->at.y);
}

TEST(Sketch, OfNothingDrawsNothing) {
  RecordingSurface surface(800, 600);
  EXPECT_EQ(DrawSketch({}, surface, {}), 0);
  EXPECT_TRUE(surface.lines.empty());
  RecordingSurface tiny(5, 5);
  EXPECT_EQ(DrawSketch(Box(), tiny, {}), 0);
  EXPECT_TRUE(tiny.texts.empty());
}

TEST(PagePart, PlacesLinesAndNamesInItsAreaOfThePage) {
  PageRecorder pages;
  PagePart part(pages, {1000, 2000, 8000, 4000});
  PlotTheme theme;
  theme.fontSize = 9;
  const double scale = DrawSketch(Box(), part, theme);
  EXPECT_GT(scale, 70);
  const Page& page = pages.pages().front();
  ASSERT_GT(page.lines.size(), 10U);  // the axis is broken
  for (const PlacedLine& line : page.lines) {
    EXPECT_GE(line.fromX, 1000);
    EXPECT_LE(line.toX, 9000);
    EXPECT_GE(line.fromY, 2000);
    EXPECT_LE(line.toY, 6000);
    EXPECT_GE(line.width, 1);
  }
  ASSERT_EQ(page.texts.size(), 1U);
  EXPECT_EQ(page.texts[0].text, "L1");
  EXPECT_NEAR(page.texts[0].x, 5000 - TextWidth(page.texts[0].font, "L1") / 2, 1);
}

TEST(PagePart, PictureOfAReportStandsOverItsText) {
  PageRecorder pages;
  ReportPrinter(pages, {}).PrintReport("Prompt\r\nfirst line\r\nsecond line", 10,
                                       PictureOf(Box(), 3000));
  ASSERT_EQ(pages.pages().size(), 1U);
  const Page& page = pages.pages().front();
  ASSERT_FALSE(page.lines.empty());
  int lowest = 0;
  for (const PlacedLine& line : page.lines) lowest = std::max(lowest, line.toY);
  const auto first = std::find_if(page.texts.begin(), page.texts.end(),
                                  [](const PlacedText& text) { return text.text == "first line"; });
  ASSERT_NE(first, page.texts.end());
  EXPECT_GT(first->y, lowest);
  EXPECT_TRUE(pages.ended());
}

}  // namespace
}  // namespace veldox
