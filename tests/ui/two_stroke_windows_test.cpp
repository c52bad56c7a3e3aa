// The windows of the two-stroke screens, and the drawing of a chamber.

#include <QLineEdit>
#include <QPdfWriter>
#include <QScrollArea>
#include <QScrollBar>

#include "graph/drawing.h"
#include "tests/ui/window_test.h"
#include "ui/drawing_face.h"
#include "ui/qt_printer.h"

namespace veldox::testing {
namespace {

class ExhaustWindowTest : public WindowTest {
 protected:
  ExhaustWindowTest() : window(Open("SRKEXH")) {}

  /// Pixels of a drawing that are not its ground.
  static int Inked(QWidget& drawing) {
    const QImage image = drawing.grab().toImage();
    const QRgb ground = image.pixel(0, 0);
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) inked += image.pixel(x, y) != ground ? 1 : 0;
    }
    return inked;
  }

  QWidget& window;
};

TEST_F(ExhaustWindowTest, TheChamberIsDrawnInLightAndDark) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  auto& stages = Child(window, "Stages");
  EXPECT_FALSE(Child(window, "Frame5").isVisible());
  ClickOn(Child(window, "Command1"));
  EXPECT_EQ(FromQt(stages.accessibleName()),
            "Drawing of L1, L2, L3, L4, L5, L7, LT, D1, D2, D3, D4");
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    ApplyTheme(*qApp, theme);
    Settle();
    EXPECT_GT(Inked(stages), 1000);
  }
  ClickOn(Child(window, "Command4"));
  EXPECT_FALSE(Child(window, "Frame4").isVisible());
  EXPECT_TRUE(Child(window, "Frame5").isVisible());
  EXPECT_GT(Inked(Child(window, "SingleStage")), 1000);
}

TEST_F(ExhaustWindowTest, WhatIsWorkedOutRefusesKeysAndCanBeReached) {
  auto& temperature = Child<QLineEdit>(window, "Text15");
  ClickOn(Child(window, "Check1"));
  temperature.setFocus(Qt::TabFocusReason);
  Settle();
  EXPECT_TRUE(temperature.hasFocus());
  TypeText(temperature, "7");
  EXPECT_EQ(FromQt(temperature.text()), "381.856");
  ClickOn(Child(window, "Check1"));
  temperature.selectAll();
  TypeText(temperature, "7");
  EXPECT_EQ(FromQt(temperature.text()), "7");
}

TEST_F(ExhaustWindowTest, DiametersHaveRoomForTheirCircumference) {
  ClickOn(Child(window, "Command1"));
  auto& cell = Child<QLineEdit>(window, "D3");
  const int wide = cell.fontMetrics().horizontalAdvance(cell.text());
  EXPECT_LT(wide, cell.width() - cell.textMargins().right());
}

class PortTimingWindowTest : public WindowTest {
 protected:
  PortTimingWindowTest() : window(Open("SRKVAL")) {}

  /// Where a frame stands in the window.
  QRect Place(const char* frame) {
    QWidget& panel = Child(window, frame);
    return {panel.mapTo(&window, QPoint()), panel.size()};
  }

  QWidget& window;
};

TEST_F(PortTimingWindowTest, StandsOnTheSmallestScreenWithoutScrolling) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
    if (!area->isVisible()) continue;
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
  }
}

TEST_F(PortTimingWindowTest, BlowdownAndSquishStandSideBySideBelowThePorts) {
  const QRect ports = Place("Frame2");
  const QRect blowdown = Place("Frame3");
  const QRect band = Place("Frame5");
  const QRect velocity = Place("Frame6");
  EXPECT_GT(blowdown.top(), ports.bottom());
  EXPECT_EQ(blowdown.top(), velocity.top());
  EXPECT_GT(band.top(), blowdown.bottom());
  EXPECT_EQ(blowdown.left(), ports.left());
  EXPECT_GT(velocity.left(), blowdown.right());
  EXPECT_EQ(velocity.right(), ports.right());
  EXPECT_EQ(FromQt(Child(window, "Text37").accessibleName()), "Squish Ratio");
}

TEST_F(PortTimingWindowTest, HelpGoesWithThePointerFromAFrameOfARow) {
  auto& help = Model<Label>("Form18.Label7");
  EnterWidget(Child(window, "Command7"));
  Settle();
  EXPECT_TRUE(help.caption().starts_with("Calculate Blowdown Degrees"));
  QWidget* row = Child(window, "Frame3").parentWidget()->parentWidget();
  Mouse(*row, QEvent::MouseMove);
  Settle();
  EXPECT_EQ(help.caption(), "");
}

}  // namespace
}  // namespace veldox::testing
