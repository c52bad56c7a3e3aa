#include "graph/plot_engine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "core/error.h"
#include "tests/support/recording_surface.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string MessageOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const CommandError& error) {
    return error.message();
  }
  return "no error";
}

class PlotEngineTest : public testing::Test {
 protected:
  ParameterBlock block_;
  PlotEngine plot_{block_};
};

TEST(FormatAxisValue, FollowsItsPattern) {
  const auto point = [](double value) { return FormatAxisValue(value, DecimalMark::Point); };
  EXPECT_EQ(point(0), "0");
  EXPECT_EQ(point(-0.0), "0");
  EXPECT_EQ(point(0.5), ".5");
  EXPECT_EQ(point(-0.25), "-.25");
  EXPECT_EQ(point(10), "10");
  EXPECT_EQ(point(-10), "-10");
  EXPECT_EQ(point(99.1234567), "99.123457");
  EXPECT_EQ(point(123.456789), "123.4568");
  EXPECT_EQ(point(-123.456789), "-123.4568");
  EXPECT_EQ(point(6500), "6500");
  EXPECT_EQ(point(1e15), "1000000000000000");
  EXPECT_EQ(point(0.00000001), "0");
  EXPECT_EQ(point(-0.00000001), "0");
}

TEST(FormatAxisValue, WritesTheDecimalComma) {
  EXPECT_EQ(FormatAxisValue(2.5, DecimalMark::Comma), "2,5");
  EXPECT_EQ(FormatAxisValue(40, DecimalMark::Comma), "40");
}

TEST(FormatAxisValue, RefusesWhatIsNoFiniteNumber) {
  EXPECT_THROW(FormatAxisValue(INFINITY, DecimalMark::Point), CommandError);
  EXPECT_THROW(FormatAxisValue(NAN, DecimalMark::Point), CommandError);
}

TEST(TrimAxisLabel, TakesEmptyDecimalsOff) {
  const auto trim = [](const char* label) { return TrimAxisLabel(label, DecimalMark::Point); };
  for (const char* nothing : {".", ".0", ".00", ".000"}) EXPECT_EQ(trim(nothing), "0") << nothing;
  for (const char* ten : {"10.", "10.0", "10.00", "10.000"}) EXPECT_EQ(trim(ten), "10") << ten;
  EXPECT_EQ(trim("100"), "100");
  EXPECT_EQ(trim("1.50"), "1.50");
  EXPECT_EQ(TrimAxisLabel("7,0", DecimalMark::Comma), "7");
}

struct NamedColor {
  int index;
  const char* name;
  Color color;
};

TEST(CurveColors, AreThoseOfTheTable) {
  const NamedColor table[] = {{1, "Blue", {0, 0, 255}},
                              {2, "Cyan", {0, 255, 255}},
                              {3, "Magenta", {255, 0, 255}},
                              {4, "Red", {255, 0, 0}},
                              {5, "Tan", {210, 180, 140}},
                              {6, "Dark Magenta", {139, 0, 139}},
                              {7, "Gray", {105, 105, 105}},
                              {8, "Blue Violet", {138, 43, 226}},
                              {9, "Indian Red", {205, 92, 92}},
                              {10, "Dark Olive Green", {85, 107, 47}},
                              {11, "Orange", {255, 165, 0}},
                              {12, "Light Gray", {211, 211, 211}},
                              {13, "Light Cyan", {224, 255, 255}},
                              {14, "Light Blue", {173, 216, 230}},
                              {15, "Dark Gray", {169, 169, 169}},
                              {16, "Light Green", {144, 238, 144}},
                              {17, "Chocolate", {210, 105, 30}},
                              {18, "Deep Pink", {255, 20, 147}},
                              {19, "Dark Salmon", {233, 150, 122}},
                              {20, "Maroon", {128, 0, 0}},
                              {21, "Light Lime", {50, 205, 50}},
                              {22, "Yellow", {255, 255, 0}},
                              {23, "Brown", {165, 42, 42}},
                              {24, "Dark Cyan", {139, 139, 0}},
                              {25, "Dark Blue", {0, 0, 139}},
                              {26, "Dark Red", {139, 0, 0}},
                              {27, "Dark Green", {0, 100, 0}},
                              {28, "Red", {255, 0, 0}}};
  for (const NamedColor& entry : table) {
    EXPECT_EQ(CurveColorOf(entry.index).name, entry.name);
    EXPECT_EQ(CurveColorOf(entry.index).color, entry.color) << entry.index;
    EXPECT_EQ(CurveColorOf(entry.index + 28).name, entry.name);
  }
  EXPECT_EQ(CurveColorOf(29).name, "Blue");
  EXPECT_EQ(CurveColorOf(0).name, "Green");
}

TEST(CurveColors, CombineToOneValue) {
  EXPECT_EQ((Color{210, 180, 140}.Value()), 210 + 256 * 180 + 65536 * 140);
  EXPECT_EQ(Color::FromValue(0x8CB4D2), (Color{210, 180, 140}));
}

TEST_F(PlotEngineTest, MapsValuesOntoTheFrameAndBack) {
  plot_.SetScale({100, 500, -10, 30});
  plot_.FitFrame({50, 20, 800, 400});
  // 400 units over 800 pixels, 40 over 400; the frame ends at 420.
  EXPECT_DOUBLE_EQ(plot_.XUnitsPerPixel, 0.5);
  EXPECT_DOUBLE_EQ(plot_.YUnitsPerPixel, 0.1);
  EXPECT_DOUBLE_EQ(plot_.GraphBottom, 420);
  const SurfacePoint place = plot_.Map({300, 0});
  EXPECT_DOUBLE_EQ(place.x, 400);
  EXPECT_DOUBLE_EQ(place.y, 320);
  EXPECT_DOUBLE_EQ(plot_.GraphScreenX, 400);
  EXPECT_DOUBLE_EQ(plot_.GraphScreenY, 320);
  const GraphPoint value = plot_.Unmap({400, 320});
  EXPECT_DOUBLE_EQ(value.x, 300);
  EXPECT_DOUBLE_EQ(value.y, 0);
}

TEST_F(PlotEngineTest, RefusesLimitsThatSpanNothing) {
  plot_.SetScale({0, 1, 0, 1});
  EXPECT_EQ(MessageOf([&] {
              plot_.SetScale({0, 10, 5, 5});
            }),
            "The graph cannot be drawn: the Y axis runs from 5 to 5, and its high limit must be "
            "above its low limit.");
  EXPECT_THAT(MessageOf([&] { plot_.SetScale({9, 3, 0, 5}); }), HasSubstr("the X axis runs"));
  EXPECT_THAT(MessageOf([&] { plot_.SetScale({0, INFINITY, 0, 5}); }), HasSubstr("too large"));
  EXPECT_THAT(MessageOf([&] {
                plot_.SetScale({-1.7e308, 1.7e308, 0, 5});
              }),
              HasSubstr("too large"));
  EXPECT_EQ(plot_.scale(), (AxisRange{0, 1, 0, 1}));
}

TEST_F(PlotEngineTest, RefusesLimitsThatNoPixelCanTellApart) {
  for (const double high : {5e-324, 1e-310, 9e-301}) {
    EXPECT_EQ(MessageOf([&] {
                plot_.SetScale({0, high, 0, 5});
              }),
              "The graph cannot be drawn: the X axis has limits that are too close to each other.");
    EXPECT_EQ(MessageOf([&] {
                plot_.SetScale({0, 5, -high, 0});
              }),
              "The graph cannot be drawn: the Y axis has limits that are too close to each other.");
  }
  plot_.SetScale({0, 1e-300, 0, 1e-300});
}

TEST_F(PlotEngineTest, RefusesCurvesThatAreNone) {
  plot_.SetScale({0, 1, 0, 1});
  EXPECT_THAT(MessageOf([&] { plot_.PlotSeries({}); }), HasSubstr("no point"));
  const std::vector<GraphPoint> one{{1, 1}};
  EXPECT_THAT(MessageOf([&] { plot_.PlotSeries(one); }), HasSubstr("only one point"));
  const std::vector<GraphPoint> overflown{{1, 1}, {2, std::numeric_limits<double>::infinity()}};
  EXPECT_THAT(MessageOf([&] { plot_.PlotSeries(overflown); }), HasSubstr("too large"));
  EXPECT_THAT(MessageOf([&] { plot_.PlotLine(NAN, 0); }), HasSubstr("no number"));
  EXPECT_TRUE(plot_.series().empty());
}

TEST_F(PlotEngineTest, ACurveThatMayBeEmptyIsDrawnAsFarAsItGoes) {
  plot_.SetScale({0, 1, 0, 1});
  plot_.DrawAxes();
  plot_.PlotSeries({}, "a table without records", {}, 0);
  const std::vector<GraphPoint> one{{0.5, 0.25}};
  plot_.PlotSeries(one, {}, {}, 0);
  const std::vector<GraphPoint> noNumber{{0.5, NAN}};
  EXPECT_THAT(MessageOf([&] { plot_.PlotSeries(noNumber, {}, {}, 0); }), HasSubstr("no number"));
  ASSERT_EQ(plot_.series().size(), 2U);
  EXPECT_TRUE(plot_.series()[0].points.empty());
  EXPECT_TRUE(plot_.series()[0].starts.empty());
  // It has its pen and its name like every other.
  EXPECT_EQ(plot_.series()[0].name, "Green");
  EXPECT_EQ(plot_.series()[1].name, "Blue");
  RecordingSurface surface(600, 400);
  plot_.DrawOn(surface, {});
  EXPECT_NE(surface.Find("a table without records"), nullptr);
  // The lonely point is a dot, the empty curve nothing at all.
  ASSERT_EQ(surface.polylines.size(), 1U);
  EXPECT_EQ(surface.polylines[0].points.size(), 2U);
  ASSERT_EQ(plot_.NearestPoints(0).size(), 1U);
  EXPECT_EQ(plot_.NearestPoints(0)[0].series, 1U);
  EXPECT_EQ(plot_.PointsAsCsv(), "series,name,x,y\r\n2,\"Blue\",0.5,0.25\r\n");
}

TEST_F(PlotEngineTest, NamesTheCurveThatHoldsAPointThatIsNone) {
  plot_.SetScale({0, 1, 0, 1});
  const std::vector<GraphPoint> overflown{{1, 1}, {2, std::numeric_limits<double>::infinity()}};
  const char* const named = "a point of it is too large or is no number (the curve \"Torque\")";
  EXPECT_THAT(MessageOf([&] { plot_.PlotSeries(overflown, "Torque"); }), HasSubstr(named));
  EXPECT_THAT(MessageOf([&] { PlotEngine::RequireSeries(overflown, "Torque"); }), HasSubstr(named));
  // A curve without a name of its own has that of its graph, or of its colour.
  plot_.SetCaption(kTitleCaption, "Torque");
  EXPECT_THAT(MessageOf([&] { plot_.PlotSeries(overflown); }), HasSubstr(named));
  plot_.CurveColor();
  EXPECT_THAT(MessageOf([&] { plot_.PlotPoint(INFINITY, 0); }),
              HasSubstr("(the curve \"" + plot_.series().back().name + "\")"));
  EXPECT_THAT(MessageOf([&] { plot_.PlotCircle(0, 0, INFINITY, {}); }), HasSubstr("(a circle)"));
}

TEST_F(PlotEngineTest, GoesOnWithTheNextPenUntilCleared) {
  plot_.SetScale({0, 1, 0, 1});
  const std::vector<GraphPoint> points{{0, 0}, {1, 1}};
  for (int i = 0; i < 30; ++i) plot_.PlotSeries(points);
  EXPECT_EQ(plot_.series()[0].name, "Green");
  EXPECT_EQ(plot_.series()[1].name, "Blue");
  EXPECT_EQ(plot_.series()[28].name, "Red");
  EXPECT_EQ(plot_.series()[29].name, "Blue");
  EXPECT_EQ(plot_.CurveIndex, 29);
  plot_.Clear();
  plot_.PlotSeries(points);
  EXPECT_EQ(plot_.series().size(), 1U);
  EXPECT_EQ(plot_.series()[0].name, "Green");
}

TEST_F(PlotEngineTest, TheUsersColorReplacesAllUntilItIsSwitchedOff) {
  plot_.SetScale({0, 1, 0, 1});
  const std::vector<GraphPoint> points{{0, 0}, {1, 1}};
  plot_.PlotSeries(points);
  plot_.PlotSeries(points, "Torque  Blue");
  block_.GraphLineColor = 1;
  EXPECT_EQ(plot_.LegendText(plot_.series()[0]), "Green") << "no colour is chosen yet";
  block_.DrawLineColor = 255;
  EXPECT_EQ(plot_.LegendText(plot_.series()[0]), "User Selected Color");
  EXPECT_EQ(plot_.LegendText(plot_.series()[1]), "Torque  User Selected Color");
  EXPECT_EQ(plot_.ShownColor(plot_.series()[1]), (Color{255, 0, 0}));
  block_.GraphLineColor = 0;
  EXPECT_EQ(plot_.ShownColor(plot_.series()[1]), (Color{0, 0, 255}));
}

TEST_F(PlotEngineTest, PointsInAColorOfTheirOwnBeginACurve) {
  plot_.SetScale({0, 10, 0, 10});
  plot_.PlotPoint(1, 1, {255, 0, 0});
  plot_.PlotLine(2, 2, {255, 0, 0});
  plot_.PlotLine(3, 3, {0, 0, 255});
  ASSERT_EQ(plot_.series().size(), 2U);
  EXPECT_EQ(plot_.series()[0].points.size(), 2U);
  // The line to 3, 3 comes from the last point.
  EXPECT_THAT(plot_.series()[1].points, ElementsAre(GraphPoint{2, 2}, GraphPoint{3, 3}));
}

int GridLines(const RecordingSurface& surface, const Pen& like) {
  return static_cast<int>(std::count_if(
      surface.lines.begin(), surface.lines.end(), [&](const RecordingSurface::Line& line) {
        return line.pen.color == like.color && line.pen.style == like.style &&
               line.pen.width == like.width;
      }));
}

TEST_F(PlotEngineTest, DrawsAsManyGridLinesAsAskedFor) {
  const PlotTheme theme{{255, 255, 255}, {0, 0, 0}, {9, 9, 9}, 10};
  block_.CustomGridLineCountx = 7;
  block_.CustomGridLineCounty = 12;
  plot_.SetScale({0, 70, 0, 12});
  plot_.DrawGrid();
  plot_.DrawAxes();
  RecordingSurface whole(800, 600);
  plot_.DrawOn(whole, theme);
  EXPECT_EQ(GridLines(whole, {{9, 9, 9}, 1, LineStyle::Solid}), 19);
  EXPECT_EQ(GridLines(whole, {{0, 0, 0}, 1, LineStyle::Solid}), 4) << "the frame";

  block_.SolidSwitch = 0;
  block_.LargeLines = 1;
  RecordingSurface dashed(800, 600);
  plot_.DrawOn(dashed, theme);
  EXPECT_EQ(GridLines(dashed, {{9, 9, 9}, 2, LineStyle::Dash}), 19);

  block_.GridSwitch = 0;
  RecordingSurface none(800, 600);
  plot_.DrawOn(none, theme);
  EXPECT_EQ(none.lines.size(), 4U);

  block_.GridSwitch = 2;
  RecordingSurface frameOnly(800, 600);
  plot_.DrawOn(frameOnly, theme);
  EXPECT_EQ(frameOnly.lines.size(), 4U);
  block_.SemiGridBoxLines = 1;
  RecordingSurface ticks(800, 600);
  plot_.DrawOn(ticks, theme);
  EXPECT_EQ(GridLines(ticks, {{9, 9, 9}, 1, LineStyle::Solid}), 2 * (6 + 11));
  block_.SemiGridBoxLines = 0;
  block_.SemiGridCrossLines = 1;
  RecordingSurface crosses(800, 600);
  plot_.DrawOn(crosses, theme);
  EXPECT_EQ(GridLines(crosses, {{9, 9, 9}, 1, LineStyle::Solid}), 2 * 6 * 11);
}

TEST_F(PlotEngineTest, ALongNameOfACurveGoesOnInTheNextLine) {
  const PlotTheme theme{{255, 255, 255}, {0, 0, 0}, {9, 9, 9}, 10};
  const std::array<GraphPoint, 2> points{{{0, 0}, {10, 10}}};
  plot_.SetScale({0, 10, 0, 10});
  plot_.DrawAxes();
  // Letters are 5 wide: a line of 400 holds less than 80 of them.
  const std::string first(40, 'a');
  const std::string second(30, 'b');
  plot_.PlotSeries(points, first + "  " + second + "  Green");
  RecordingSurface wide(800, 600);
  plot_.DrawOn(wide, theme);
  ASSERT_NE(wide.Find(first + "  " + second + "  Green"), nullptr);
  RecordingSurface narrow(400, 600);
  plot_.DrawOn(narrow, theme);
  const auto* above = narrow.Find(first);
  const auto* below = narrow.Find(second + "  Green");
  ASSERT_NE(above, nullptr);
  ASSERT_NE(below, nullptr);
  EXPECT_EQ(above->at.x, below->at.x);
  EXPECT_EQ(above->at.y + 10, below->at.y);
  // What cannot be parted stands as it is.
  plot_.SetCurveNote(std::string(200, 'c'));
  RecordingSurface uncut(400, 600);
  plot_.DrawOn(uncut, theme);
  EXPECT_NE(uncut.Find(std::string(200, 'c')), nullptr);
}

TEST_F(PlotEngineTest, ADoubtfulGridCountOfAFileStaysWithinItsLimits) {
  block_.CustomGridLineCountx = 32000;
  block_.CustomGridLineCounty = -5;
  EXPECT_EQ(plot_.GridLinesX(), 400);
  EXPECT_EQ(plot_.GridLinesY(), 2);
}

TEST_F(PlotEngineTest, LabelsTheTicks) {
  plot_.SetScale({0, 50, 0, 5});
  plot_.DrawGrid();
  plot_.DrawAxes();
  RecordingSurface surface(1000, 700);
  plot_.DrawOn(surface, {});
  for (const char* label : {"0", ".5", "4.5", "5", "10", "45", "50"}) {
    EXPECT_NE(surface.Find(label), nullptr) << label;
  }
}

TEST_F(PlotEngineTest, MarksTheDeadCentresOfACrankAxis) {
  plot_.SetScale({-180, 180, 0, 5});
  plot_.crankAngleAxis = true;
  plot_.DrawGrid();
  plot_.DrawAxes();
  RecordingSurface surface(1000, 700);
  const SurfaceRect frame = plot_.DrawOn(surface, {}).frame;
  std::vector<double> bottoms;
  for (const auto& text : surface.texts) {
    if (text.text == "BDC") bottoms.push_back(text.at.x);
  }
  EXPECT_THAT(bottoms, ElementsAre(frame.left, frame.right()));
  ASSERT_NE(surface.Find("TDC"), nullptr);
  EXPECT_DOUBLE_EQ(surface.Find("TDC")->at.x, frame.left + frame.width / 2);
  EXPECT_EQ(surface.Find("180"), nullptr);
  EXPECT_NE(surface.Find("-108"), nullptr);
}

TEST_F(PlotEngineTest, TitlesShowWhileGraphHeadsAreOn) {
  plot_.SetScale({0, 1, 0, 1});
  plot_.DrawAxes();
  plot_.SetCaption(kTitleCaption, "Piston Travel");
  plot_.SetCaption(kXNameCaption, "Degrees");
  RecordingSurface without(600, 600);
  plot_.DrawOn(without, {});
  EXPECT_EQ(without.Find("Piston Travel"), nullptr);
  EXPECT_NE(without.Find("Degrees"), nullptr);
  block_.GraphHeads = 1;
  RecordingSurface with(600, 600);
  plot_.DrawOn(with, {});
  EXPECT_NE(with.Find("Piston Travel"), nullptr);
  EXPECT_NE(with.Find(" ->"), nullptr);
}

TEST_F(PlotEngineTest, ALongTitleIsWrittenSmallerAndNeverCutOff) {
  plot_.SetScale({0, 1, 0, 1});
  plot_.DrawAxes();
  const std::string title(120, 'x');
  plot_.SetCaption(kTitleCaption, title);
  block_.GraphHeads = 1;
  RecordingSurface surface(600, 600);
  plot_.DrawOn(surface, {});
  const auto* text = surface.Find(title);
  ASSERT_NE(text, nullptr);
  const double half = surface.TextWidth(title, text->size) / 2;
  EXPECT_GE(text->at.x - half, -1e-9);
  EXPECT_LE(text->at.x + half, 600 + 1e-9);
}

TEST_F(PlotEngineTest, ARedrawAtAnotherSizeIsTheSameGraph) {
  plot_.SetScale({0, 10, 0, 10});
  plot_.DrawGrid();
  plot_.DrawAxes();
  const std::vector<GraphPoint> points{{0, 0}, {5, 10}, {10, 5}};
  const std::vector<std::size_t> moves{2};
  plot_.PlotSeries(points, "", moves);
  for (const double size : {300.0, 1600.0}) {
    RecordingSurface surface(size, size);
    const SurfaceRect frame = plot_.DrawOn(surface, {}).frame;
    // The legend's sample stands over the frame.
    std::erase_if(surface.polylines,
                  [&](const auto& line) { return line.points.front().y < frame.top; });
    ASSERT_EQ(surface.polylines.size(), 2U);
    const SurfacePoint second = surface.polylines[0].points[1];
    EXPECT_NEAR(second.x, frame.left + frame.width / 2, 1e-9);
    EXPECT_NEAR(second.y, frame.top, 1e-9);
    EXPECT_NEAR(surface.polylines[1].points[0].x, frame.right(), 1e-9) << "the move";
  }
}

TEST_F(PlotEngineTest, AFaintCurveGetsAnEdgeAndKeepsItsColor) {
  plot_.SetScale({0, 10, 0, 10});
  const std::vector<GraphPoint> points{{0, 0}, {10, 10}};
  PlotTheme dark;
  dark.background = {20, 24, 28};
  dark.text = {230, 230, 230};
  for (const auto& [word, onWhite, onDark] : {std::tuple{"cyan", 2U, 1U}, {"blue", 1U, 2U}}) {
    plot_.ClearDrawing();
    plot_.CurveInColor(*ColorByName(word));
    for (const GraphPoint& point : points) plot_.PlotLine(point.x, point.y);
    RecordingSurface white(400, 400);
    plot_.DrawOn(white, {});
    EXPECT_EQ(white.polylines.size(), onWhite) << word;
    RecordingSurface black(400, 400);
    plot_.DrawOn(black, dark);
    ASSERT_EQ(black.polylines.size(), onDark) << word;
    EXPECT_EQ(black.polylines.back().pen.color, ColorByName(word)->color);
    if (onDark == 2) {
      EXPECT_GT(black.polylines.front().pen.width, black.polylines.back().pen.width);
    }
  }
}

TEST_F(PlotEngineTest, AWindowShowsAFaintCurveLighterOnDarkAsOneLine) {
  plot_.SetScale({0, 10, 0, 10});
  PlotTheme window;
  window.background = {20, 24, 28};
  window.text = {230, 230, 230};
  window.lightensFaint = true;
  const Color blue = ColorByName("blue")->color;
  plot_.CurveInColor(*ColorByName("blue"));
  plot_.PlotLine(0, 0);
  plot_.PlotLine(10, 10);
  RecordingSurface shown(400, 400);
  plot_.DrawOn(shown, window);
  ASSERT_EQ(shown.polylines.size(), 1U) << "no edge at its sides";
  const Color tint = shown.polylines.front().pen.color;
  EXPECT_GE(Contrast(tint, window.background), 4);
  EXPECT_EQ(tint.red, tint.green) << "a blue still";
  EXPECT_GT(tint.blue, tint.red + 50);
  EXPECT_EQ(plot_.ShownColor(plot_.series().front(), window), tint);
  EXPECT_EQ(shown.lines.back().pen.color, tint) << "its sample in the legend";
  EXPECT_EQ(plot_.ShownColor(plot_.series().front()), blue);
  window.lightensFaint = false;
  RecordingSurface file(400, 400);
  plot_.DrawOn(file, window);
  EXPECT_EQ(file.polylines.back().pen.color, blue) << "files keep the colour";
}

TEST(CurveColors, AreSeenOnDarkAndStayThemselvesOnLight) {
  const Color dark{20, 24, 28};
  const Color light{255, 255, 255};
  std::vector<Color> faint;
  for (int i = 0; i <= kCurveColorCount; ++i) {
    const Color color = CurveColorOf(i).color;
    EXPECT_EQ(SeenOn(color, light), color) << i;
    const Color seen = SeenOn(color, dark);
    EXPECT_GE(Contrast(seen, dark), kFaintContrast) << CurveColorOf(i).name;
    if (seen == color || std::count(faint.begin(), faint.end(), seen) > 0) continue;
    faint.push_back(seen);
  }
  // Blue, dark blue, dark magenta and the like stay apart from each other.
  EXPECT_GE(faint.size(), 4U);
}

TEST_F(PlotEngineTest, ManyNamesLeaveTheGraphItsRoom) {
  plot_.SetScale({0, 10, 0, 10});
  plot_.DrawAxes();
  const std::vector<GraphPoint> points{{0, 0}, {10, 10}};
  plot_.PlotSeries(points, "Engine A");
  RecordingSurface one(600, 600);
  const SurfaceRect frame = plot_.DrawOn(one, {}).frame;
  ASSERT_NE(one.Find("Engine A"), nullptr);
  EXPECT_LT(one.Find("Engine A")->at.y + 10, frame.top) << "the names hide no curve";
  EXPECT_EQ(one.Find("..."), nullptr);
  for (int i = 0; i < 300; ++i) plot_.PlotSeries(points);
  RecordingSurface many(600, 600);
  EXPECT_GT(plot_.DrawOn(many, {}).frame.height, 200);
  EXPECT_NE(many.Find("..."), nullptr);
}

TEST_F(PlotEngineTest, ManyNamesStandInColumns) {
  plot_.SetScale({0, 10, 0, 10});
  plot_.DrawAxes();
  const std::vector<GraphPoint> points{{0, 0}, {10, 10}};
  const auto name = [](int i) { return "Row " + std::to_string(10 + i); };
  for (int i = 0; i < 8; ++i) plot_.PlotSeries(points, name(i));
  RecordingSurface few(800, 600);
  plot_.DrawOn(few, {});
  for (int i = 1; i < 8; ++i) EXPECT_EQ(few.Find(name(i))->at.x, few.Find(name(0))->at.x);
  for (int i = 8; i < 12; ++i) plot_.PlotSeries(points, name(i));
  RecordingSurface more(800, 600);
  const double top = plot_.DrawOn(more, {}).frame.top;
  // Two columns of six, read downwards, none upon the other.
  EXPECT_EQ(more.Find(name(5))->at.x, more.Find(name(0))->at.x);
  EXPECT_EQ(more.Find(name(6))->at.y, more.Find(name(0))->at.y);
  EXPECT_GE(more.Find(name(6))->at.x, more.Find(name(0))->at.x + more.TextWidth(name(0), 10) + 10);
  EXPECT_EQ(more.Find(name(11))->at.y, more.Find(name(5))->at.y);
  EXPECT_LT(more.Find(name(11))->at.y + 10, top);
  // Where there is no room for a second column, there is none.
  RecordingSurface narrow(150, 600);
  plot_.DrawOn(narrow, {});
  EXPECT_EQ(narrow.Find(name(11))->at.x, narrow.Find(name(0))->at.x);
}

TEST_F(PlotEngineTest, ACurveOfAnEarlierScaleStaysWhereItWasDrawn) {
  plot_.SetScale({0, 10, 0, 10});
  plot_.DrawAxes();
  const std::vector<GraphPoint> points{{0, 0}, {10, 10}};
  plot_.PlotSeries(points);
  plot_.SetScale({0, 1000, 0, 1000});
  RecordingSurface surface(600, 600);
  const SurfaceRect frame = plot_.DrawOn(surface, {}).frame;
  EXPECT_NEAR(surface.polylines[0].points[1].x, frame.right(), 1e-9);
}

TEST_F(PlotEngineTest, ACircleHasItsRadiusInXUnits) {
  plot_.SetScale({0, 100, 0, 1});
  plot_.DrawAxes();
  plot_.PlotCircle(50, 0.5, 10, {{1, 2, 3}}, 0.5);
  RecordingSurface surface(600, 600);
  const SurfaceRect frame = plot_.DrawOn(surface, {}).frame;
  const auto& corners = surface.polylines.at(0).points;
  const auto [left, right] =
      std::minmax_element(corners.begin(), corners.end(), [](auto a, auto b) { return a.x < b.x; });
  const auto [top, bottom] =
      std::minmax_element(corners.begin(), corners.end(), [](auto a, auto b) { return a.y < b.y; });
  EXPECT_NEAR(right->x - left->x, frame.width * 0.2, 1e-6);
  EXPECT_NEAR(bottom->y - top->y, frame.width * 0.1, 1e-6);
  EXPECT_THROW(plot_.PlotCircle(1, 1, -1, {}), CommandError);
}

TEST_F(PlotEngineTest, FindsTheNearestPointOfEachCurve) {
  plot_.SetScale({0, 10, 0, 10});
  const std::vector<GraphPoint> first{{0, 1}, {4, 2}, {8, 3}};
  const std::vector<GraphPoint> second{{1, 7}, {7, 9}};
  plot_.PlotSeries(first);
  plot_.PlotSeries(second);
  const auto nearest = plot_.NearestPoints(5.5);
  ASSERT_EQ(nearest.size(), 2U);
  EXPECT_EQ(nearest[0].point, (GraphPoint{4, 2}));
  EXPECT_EQ(nearest[1].point, (GraphPoint{7, 9}));
}

TEST_F(PlotEngineTest, WritesItsPointsAsCsv) {
  plot_.SetScale({0, 10, 0, 10});
  const std::vector<GraphPoint> points{{0, 0.1}, {2.5, -3}};
  plot_.PlotSeries(points, "4\" bore");
  EXPECT_EQ(plot_.PointsAsCsv(),
            "series,name,x,y\r\n1,\"4\"\" bore\",0,0.1\r\n1,\"4\"\" bore\",2.5,-3\r\n");
}

TEST_F(PlotEngineTest, GraphsADynoRun) {
  plot_.SetScale({1000, 7000, 0, 700});
  const std::vector<PlotEngine::DynoRow> rows{{2000, 150, 400, 160, 420},
                                              {5252, 500, 500, 520, 520}};
  plot_.DrawDynoGraph(rows);
  EXPECT_EQ(plot_.Caption(kYPointerCaption), "<--- HP/Torque");
  EXPECT_THAT(plot_.Titles(), ElementsAre("HorsePower Torque", "Green is HP - Blue is Torque",
                                          "Red is Corrected HP - Yellow is Corrected Torque"));
  ASSERT_EQ(plot_.series().size(), 4U);
  EXPECT_EQ(plot_.series()[0].name, "Blue");
  EXPECT_EQ(plot_.series()[0].note, "Torque   500.0");
  EXPECT_EQ(plot_.series()[3].name, "Red");
  EXPECT_EQ(plot_.series()[3].note, "Corrected HP   520.0");
  plot_.Clear();
  plot_.SetScale({1000, 7000, 0, 700});
  plot_.DrawNitrousGraph(rows, 150);
  EXPECT_EQ(plot_.Caption(13), "150 HP Nitrous Shot");
  EXPECT_EQ(plot_.series()[1].note, "Nitrous Torque   520.0");
  EXPECT_THROW(plot_.DrawDynoGraph({}), CommandError);
}

TEST(PlotColors, StayReadableWhateverIsChosen) {
  ParameterBlock block;
  const PlotTheme dark{{30, 30, 30}, {230, 230, 230}, {80, 80, 80}, 10};
  EXPECT_EQ(ResolveColors(block, dark).background, dark.background) << "nothing is chosen";
  EXPECT_EQ(ResolveColors(block, dark).grid, dark.grid);
  block.GraphBackGroundColor = 16777215;  // white, and the texts' 0 is black
  EXPECT_EQ(ResolveColors(block, dark).background, (Color{255, 255, 255}));
  EXPECT_EQ(ResolveColors(block, dark).text, (Color{0, 0, 0}));
  block.GraphFontColor = 16777215;  // white on white
  EXPECT_EQ(ResolveColors(block, dark).text, (Color{0, 0, 0}));
}

TEST(GraphFont, HasTheSizeOfItsButton) {
  const double expected[] = {20, 15, 10, 5, 8, 10, 12, 14};
  for (int i = 0; i < 8; ++i) EXPECT_DOUBLE_EQ(GraphFontPoints(i, 20), expected[i]) << i;
}

}  // namespace
}  // namespace veldox
