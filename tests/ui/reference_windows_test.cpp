// The windows of springs, unit conversion and charts.

#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "tests/ui/window_test.h"
#include "ui/fixed_font.h"

namespace veldox::testing {
namespace {

class ReferenceWindowsTest : public WindowTest {};

TEST_F(ReferenceWindowsTest, HelpStandsAtTheFootOfAScreenWithoutReports) {
  QWidget& window = Open("SPRINGS");
  auto& help = Child<QLabel>(window, "Text38");
  EXPECT_FALSE(help.isVisible());
  EnterWidget(Child(window, "Command4"));
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(help.text(), QStringLiteral("Calculate Sway Bar Rate Change from change in Bar Outer "
                                        "Diameter."));
  Mouse(window, QEvent::MouseMove);
  EXPECT_FALSE(help.isVisible());
}

TEST_F(ReferenceWindowsTest, UnitsAreConvertedWhileTheValueIsTyped) {
  QWidget& window = Open("UNIT");
  auto& lines = Child<QPlainTextEdit>(window, "Text2");
  EXPECT_EQ(lines.toPlainText(), QString());
  auto& value = Child(window, "Text1");
  value.setFocus(Qt::TabFocusReason);
  TypeText(value, "2");
  EXPECT_TRUE(lines.toPlainText().startsWith(QStringLiteral("2.000000000  PSI\n")));
  TypeText(value, "5");
  EXPECT_TRUE(lines.toPlainText().startsWith(QStringLiteral("25.00000000  PSI\n")));
  ClickOn(Child(window, "Option1(24)"));
  EXPECT_EQ(lines.toPlainText(), QStringLiteral("77.00000000  Fahrenheit\n25.00000000  Celsius\n"
                                                "536.6700000  Rankine\n298.1500000  Kelvin\n"));
  EXPECT_TRUE(IsFixedPitch(lines.font()));
}

TEST_F(ReferenceWindowsTest, OneUnitIsChosenAcrossAllFrames) {
  QWidget& window = Open("UNIT");
  int buttons = 0;
  for (int unit = 0; unit < 64; ++unit) {
    ClickOn(Child(window, ("Option1(" + std::to_string(unit) + ")").c_str()));
    int chosen = 0;
    buttons = 0;
    for (const QRadioButton* button : window.findChildren<QRadioButton*>()) {
      ++buttons;
      chosen += button->isChecked() ? 1 : 0;
    }
    EXPECT_EQ(chosen, 1) << unit;
    EXPECT_EQ(Model<OptionGroup>("Form9.Option1").chosen(), unit);
  }
  EXPECT_EQ(buttons, 64);
}

TEST_F(ReferenceWindowsTest, WholeCaptionsAreShown) {
  for (const char* item : {"SPRINGS", "UNIT", "EQUIV"}) {
    QWidget& window = Open(item);
    EXPECT_LE(window.width(), kScreenWidth) << item;
    EXPECT_LE(window.height(), kScreenHeight) << item;
    for (const QWidget* widget : window.findChildren<QAbstractButton*>()) {
      if (!widget->isVisible()) continue;
      EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << FromQt(widget->objectName());
    }
  }
}

}  // namespace
}  // namespace veldox::testing
