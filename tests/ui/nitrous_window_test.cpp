// The window of the nitrous screen.

#include <QLabel>
#include <QRadioButton>

#include "tests/ui/window_test.h"
#include "ui/frame_panel.h"

namespace veldox::testing {
namespace {

class NitrousWindowTest : public WindowTest {
 protected:
  NitrousWindowTest() : window(Open("Nitrous")) {}

  QColor Ground(const char* frame) {
    QWidget& panel = Child(window, frame);
    // Inside the lower edge, where nothing stands.
    return panel.grab().toImage().pixelColor(panel.width() - 8, panel.height() - 4);
  }

  QWidget& window;
};

TEST_F(NitrousWindowTest, WarningsAreInSight) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  for (const char* name : {"Label1", "Label2", "Label3", "Label4", "Label5"}) {
    auto& label = Child<QLabel>(window, name);
    EXPECT_EQ(label.visibleRegion().boundingRect(), label.rect()) << name;
    EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
    EXPECT_EQ(FromQt(label.accessibleName()),
              Model<Label>((std::string("Form17.") + name).c_str()).caption());
  }
}

TEST_F(NitrousWindowTest, ANumberStaysInOneLine) {
  // "gravity of .740" must not break behind the point.
  EXPECT_TRUE(Child<QLabel>(window, "Label1")
                  .text()
                  .contains(QStringLiteral("of .") + QChar(0x2060) + QStringLiteral("740")));
}

TEST_F(NitrousWindowTest, WhatAsksForCareIsSetApartInLightAndDark) {
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    ApplyTheme(*qApp, theme);
    Settle();
    EXPECT_EQ(Ground("Frame1"), Ground("Frame3"));
    EXPECT_EQ(Ground("Frame2"), Ground("Frame4"));
    EXPECT_NE(Ground("Frame1"), Ground("Frame2"));
    // Amber: more red than blue.
    EXPECT_GT(Ground("Frame1").red(), Ground("Frame1").blue() + 8);
  }
}

TEST_F(NitrousWindowTest, OneBaselineIsChosenAcrossBothFrames) {
  for (int baseline = 5; baseline >= 0; --baseline) {
    ClickOn(Child(window, ("Option1(" + std::to_string(baseline) + ")").c_str()));
    int chosen = 0;
    for (const QRadioButton* button : window.findChildren<QRadioButton*>()) {
      chosen += button->isChecked() ? 1 : 0;
    }
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(Model<OptionGroup>("Form17.Option1").chosen(), baseline);
  }
}

}  // namespace
}  // namespace veldox::testing
