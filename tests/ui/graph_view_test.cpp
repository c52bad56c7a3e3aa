#include "ui/graph_view.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "tests/ui/window_test.h"

namespace veldox::testing {
namespace {

class GraphViewTest : public WindowTest {
 protected:
  GraphViewTest() : window(Open("GRAPHER")), view(*FindView(window)) {}

  static GraphView* FindView(QWidget& in) {
    auto* found = dynamic_cast<GraphView*>(in.findChild<QWidget*>(QStringLiteral("Picture1")));
    if (found == nullptr) throw std::runtime_error("no graph view");
    return found;
  }

  Form8& grapher() { return program->grapher(); }
  PlotEngine& plot() { return grapher().ChangePlot(); }
  void Click(const char* name) {
    ClickOn(Child(window, name));
    view.grab();  // draws what has changed
  }
  std::string Caption(const char* name) { return FromQt(Child<QLabel>(window, name).text()); }

  QRectF Frame() {
    const SurfaceRect& frame = grapher().frame();
    return {frame.left, frame.top, frame.width, frame.height};
  }
  /// Where a value stands, by the axes' limits alone.
  QPointF PlaceOf(const GraphPoint& point) {
    const QRectF frame = Frame();
    return {
        frame.left() + (point.x - plot().XLow) / (plot().XHigh - plot().XLow) * frame.width(),
        frame.bottom() - (point.y - plot().YLow) / (plot().YHigh - plot().YLow) * frame.height()};
  }
  void Send(QEvent::Type type, QPointF at) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, view.mapTo(&window, at), view.mapToGlobal(at), button,
                      type == QEvent::MouseButtonPress ? button : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &event);
    Settle();
  }
  void MoveTo(QPointF at) { Send(QEvent::MouseMove, at); }
  void Drag(QPointF from, QPointF to) {
    Send(QEvent::MouseButtonPress, from);
    MoveTo(to);
    Send(QEvent::MouseButtonRelease, to);
  }
  QColor PixelAt(QPointF at) {
    const QImage image = view.grab().toImage();
    const QPoint pixel = (at * image.devicePixelRatio()).toPoint();
    return image.pixelColor(pixel);
  }

  QWidget& window;
  GraphView& view;
};

TEST_F(GraphViewTest, TheGraphTakesTheRoomBesideANarrowColumn) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  EXPECT_GE(view.width(), 800);
  EXPECT_GE(view.height(), 560);
  const QRect frames = Child(window, "Frame1").rect();
  EXPECT_LT(Child(window, "Frame1").mapTo(&window, frames.topRight()).x(),
            view.mapTo(&window, QPoint()).x());
  EXPECT_LT(frames.width(), 340);
  const auto* scroll = window.findChild<QScrollArea*>();
  EXPECT_FALSE(scroll->verticalScrollBar()->isVisible());
}

TEST_F(GraphViewTest, TheGraphGrowsWithTheWindow) {
  Click("Command2");
  const QRectF before = Frame();
  window.resize(window.width() + 100, window.height() - 50);
  Settle();
  view.grab();
  EXPECT_NEAR(Frame().width(), before.width() + 100, 1);
  EXPECT_NEAR(Frame().height(), before.height() - 50, 1);
}

TEST_F(GraphViewTest, QuitStandsAtTheFootAndCloses) {
  auto& quit = Child<QPushButton>(window, "Command1");
  EXPECT_GT(quit.mapTo(&window, QPoint()).y(), view.mapTo(&window, view.rect().bottomLeft()).y());
  ClickOn(quit);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(GraphViewTest, ZoomButtonsAreSmallAndStandBehindTheirCommand) {
  for (const auto& [command, minus, plus] :
       {std::tuple{"Command2", "Command4", "Command6"}, {"Read", "Command7", "Command8"}}) {
    const QWidget& first = Child(window, command);
    for (const char* sign : {minus, plus}) {
      EXPECT_LT(Child(window, sign).width(), first.width() / 2) << sign;
      EXPECT_EQ(Child(window, sign).mapTo(&window, QPoint()).y(),
                first.mapTo(&window, QPoint()).y());
      EXPECT_GT(Child(window, sign).mapTo(&window, QPoint()).x(),
                first.mapTo(&window, QPoint()).x());
    }
  }
}

TEST_F(GraphViewTest, ACurveIsDrawnThroughItsPointsInItsColor) {
  Click("Command2");
  ASSERT_EQ(plot().series().size(), 2U);
  const PlotSeriesRecord& torque = plot().series()[1];
  EXPECT_EQ(torque.color, (Color{0, 0, 255}));
  // Beside no line of the grid.
  const GraphPoint& point = torque.points[torque.points.size() * 5 / 8];
  const QPointF at = PlaceOf(point);
  bool blue = false;
  for (int dy = -1; dy <= 1; ++dy) {
    const QColor color = PixelAt(at + QPointF(0, dy));
    blue = blue || (color.blue() > 150 && color.red() < 160 && color.green() < 160);
  }
  EXPECT_TRUE(blue);
}

TEST_F(GraphViewTest, MousePositionShowsTheLimitsInTheCorners) {
  EXPECT_EQ(Caption("Label18"), "");
  Click("Command2");
  const auto text = [](double value) { return FormatAxisValue(value, DecimalMark::Point); };
  const QRectF frame = Frame();
  MoveTo(frame.bottomLeft());
  EXPECT_EQ(Caption("Label18"), text(plot().XLow));
  EXPECT_EQ(Caption("Label19"), text(plot().YLow));
  MoveTo(frame.center());
  EXPECT_NEAR(std::stod(Caption("Label18")), (plot().XLow + plot().XHigh) / 2, 1e-3);
  EXPECT_NEAR(std::stod(Caption("Label19")), (plot().YLow + plot().YHigh) / 2, 1e-3);
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&view, &leave);
  EXPECT_EQ(Caption("Label18"), "");
  EXPECT_EQ(Caption("Label19"), "");
}

TEST_F(GraphViewTest, ReadOutTellsTheNearestPointOfEachCurve) {
  EXPECT_FALSE(view.readOut().has_value());
  Click("Command2");
  const std::size_t index = plot().series()[0].points.size() / 3;
  const GraphPoint power = plot().series()[0].points[index];
  const GraphPoint torque = plot().series()[1].points[index];
  MoveTo({PlaceOf(power).x(), Frame().center().y()});
  const auto read = view.readOut();
  ASSERT_TRUE(read.has_value());
  ASSERT_EQ(read->rows.size(), 2U);
  EXPECT_EQ(read->rows[0].name, QStringLiteral("Horsepower  Green"));
  EXPECT_EQ(read->rows[1].name, QStringLiteral("Torque  Blue"));
  for (const auto& [row, point] : {std::pair{0U, power}, std::pair{1U, torque}}) {
    EXPECT_EQ(read->rows[row].x, ToQt(FormatAxisValue(point.x, DecimalMark::Point)));
    EXPECT_EQ(read->rows[row].y, ToQt(FormatAxisValue(point.y, DecimalMark::Point)));
    EXPECT_NEAR(read->marks[row].x(), PlaceOf(point).x(), 0.01);
    EXPECT_NEAR(read->marks[row].y(), PlaceOf(point).y(), 0.01);
  }
  MoveTo({2, 2});
  EXPECT_FALSE(view.readOut().has_value()) << "off the frame nothing is read";
}

TEST_F(GraphViewTest, TheCardStaysInTheWidgetAndCoversNoPointThatIsRead) {
  Click("Command2");
  for (const QSize& size : {QSize(1200, 680), QSize(760, 480)}) {
    window.resize(size);
    Settle();
    view.grab();
    const QRectF frame = Frame().adjusted(0.5, 0.5, -0.5, -0.5);
    for (int i = 0; i <= 12; ++i) {
      for (int k = 0; k <= 12; ++k) {
        MoveTo({frame.left() + frame.width() * i / 12, frame.top() + frame.height() * k / 12});
        const auto read = view.readOut();
        ASSERT_TRUE(read.has_value()) << i << ' ' << k;
        EXPECT_TRUE(QRectF(view.rect()).contains(read->card)) << i << ' ' << k;
        EXPECT_FALSE(read->card.contains(read->pointer)) << i << ' ' << k;
        for (const QPointF& mark : read->marks) EXPECT_FALSE(read->card.contains(mark));
      }
    }
  }
}

TEST_F(GraphViewTest, ManyCurvesAreCutToTheRoomAndCounted) {
  std::vector<GraphCurve> curves(60, {"", {{0, 0}, {1, 1}}, {}});
  grapher().DrawGraph({{0, 1, 0, 1}, false, "", "", "", "", false}, curves);
  view.grab();
  MoveTo(Frame().center());
  const auto read = view.readOut();
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->rows.size(), 60U);
  EXPECT_GT(read->left, 0);
  EXPECT_TRUE(QRectF(view.rect()).contains(read->card));
}

TEST(PlaceCard, IsCutToARoomThatIsTooSmall) {
  const QRectF room(0, 0, 100, 50);
  EXPECT_EQ(PlaceCard({300, 300}, room, {50, 25}, {}), room);
}

TEST_F(GraphViewTest, HoveringDoesNotDrawTheGraphAnew) {
  Click("Command2");
  const int before = view.redraws();
  for (int i = 0; i < 50; ++i) {
    MoveTo(Frame().center() + QPointF(i, i));
    view.grab();
  }
  EXPECT_EQ(view.redraws(), before);
  grapher().OptionsChanged();
  view.grab();
  EXPECT_EQ(view.redraws(), before + 1);
}

TEST_F(GraphViewTest, StrokesAreDrawnOnlyWhileTheBoxIsOn) {
  Click("Command2");
  const QPointF from = Frame().center();
  const QPointF to = from + QPointF(60, -40);
  Drag(from, to);
  EXPECT_TRUE(plot().freeLines().empty());
  Mouse(Child(window, "Check1"), QEvent::MouseButtonPress);
  Mouse(Child(window, "Check1"), QEvent::MouseButtonRelease);
  ASSERT_TRUE(Model<CheckBox>("Form8.Check1").on());
  Drag(from, to);
  MoveTo(to + QPointF(50, 50));
  ASSERT_EQ(plot().freeLines().size(), 1U) << "a stroke ends with the button";
  EXPECT_NEAR(PlaceOf(plot().freeLines()[0].to).x(), to.x(), 0.01);
  EXPECT_NEAR(PlaceOf(plot().freeLines()[0].to).y(), to.y(), 0.01);
  Click("Clear_Draw");
  EXPECT_TRUE(plot().freeLines().empty());
}

TEST_F(GraphViewTest, MoveableLinesAreDraggedAndTellTheirValue) {
  Click("Command2");
  const QRectF frame = Frame();
  const auto vertical = static_cast<std::size_t>(
      std::find_if(grapher().moveableLines().begin(), grapher().moveableLines().end(),
                   [](const MoveableLine& line) { return line.vertical; }) -
      grapher().moveableLines().begin());
  const QPointF grip(frame.left() + grapher().moveableLines()[vertical].place * frame.width(),
                     frame.top() + 0.55 * frame.height());
  const double before = grapher().GridLineValue(vertical);
  Drag(grip, {frame.center().x(), grip.y()});
  EXPECT_EQ(grapher().GridLineValue(vertical), before) << "the lines are not shown";

  Click("Graph_Move_Grid");
  Drag(grip + QPointF(2, 0), {frame.center().x(), grip.y()});
  EXPECT_NEAR(grapher().GridLineValue(vertical), (plot().XLow + plot().XHigh) / 2, 1e-6);
  Drag({frame.center().x(), grip.y()}, {frame.right() + 500, grip.y()});
  EXPECT_NEAR(grapher().GridLineValue(vertical), plot().XHigh, 1e-6) << "it stays in the frame";
}

TEST_F(GraphViewTest, FollowsLightAndDark) {
  const QPointF corner(1.5, 1.5);
  EXPECT_GT(PixelAt(corner).lightness(), 240);
  ApplyTheme(*qApp, Theme::Dark);
  Settle();
  EXPECT_LT(PixelAt(corner).lightness(), 60);
  ApplyTheme(*qApp, Theme::Light);
  Settle();
  EXPECT_GT(PixelAt(corner).lightness(), 240);
}

TEST_F(GraphViewTest, TheUsersColorsRuleOverTheTheme) {
  shell().block().GraphBackGroundColor = Color{10, 60, 120}.Value();
  shell().block().GraphFontColor = Color{255, 255, 255}.Value();
  grapher().OptionsChanged();
  EXPECT_EQ(PixelAt({1.5, 1.5}), QColor(10, 60, 120));
}

TEST_F(GraphViewTest, TheOptionOfTheGraphsSizeSizesTheWindow) {
  shell().block().CustomGraphWidth = 7;
  shell().block().CustomGraphHeight = 5;
  grapher().OptionsChanged();
  Settle();
  EXPECT_EQ(view.size(), QSize(700, 500));
  shell().block().CustomGraphWidth = 40;
  shell().block().CustomGraphHeight = 40;
  grapher().OptionsChanged();
  Settle();
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
}

TEST_F(GraphViewTest, ArrowKeysMoveTheCross) {
  Click("Command2");
  view.setFocus(Qt::TabFocusReason);
  PressKey(view, Qt::Key_Right);
  ASSERT_TRUE(view.readOut().has_value());
  EXPECT_EQ(view.readOut()->pointer, Frame().center());
  PressKey(view, Qt::Key_Right);
  PressKey(view, Qt::Key_Up, {}, Qt::ShiftModifier);
  EXPECT_EQ(view.readOut()->pointer, Frame().center() + QPointF(1, -10));
  PressKey(view, Qt::Key_Escape);
  EXPECT_FALSE(view.readOut().has_value());
}

TEST_F(GraphViewTest, TheTabKeyBeginsWithTheFirstFieldAndEndsWithTheGraph) {
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("Text4"));
  PressKey(*QApplication::focusWidget(), Qt::Key_Backtab, {}, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &view);
}

TEST_F(GraphViewTest, ALongFileNameDoesNotWidenTheColumn) {
  const int before = view.width();
  Model<Label>("Form8.Label1").SetCaption("VELDOX_Graph_Wednesday_September_17_2024_14_33_59.jpg");
  Settle();
  EXPECT_EQ(view.width(), before);
  EXPECT_LT(Child(window, "Frame2").width(), 340);
}

}  // namespace
}  // namespace veldox::testing
