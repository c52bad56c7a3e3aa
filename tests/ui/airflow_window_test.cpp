// The window of the air and fuel screen: its page and its panels.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

#include "tests/ui/window_test.h"
#include "ui/field_edit.h"

namespace veldox::testing {
namespace {

class AirflowWindowTest : public WindowTest {
 protected:
  AirflowWindowTest() : window(Open("AIRFUEL")) {}

  /// No bar is needed to see all of what is shown.
  void ExpectAllInSight() {
    EXPECT_LE(window.width(), kScreenWidth);
    EXPECT_LE(window.height(), kScreenHeight);
    for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
      if (!area->isVisible()) continue;
      EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
      EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    }
  }

  QWidget& window;
};

TEST_F(AirflowWindowTest, ThePageAndItsPanelsFitTheSmallestScreen) {
  ExpectAllInSight();
  for (const auto& [opens, closes] :
       {std::pair{"Command37", "Command91(8)"}, std::pair{"Command34", "Command91(1)"}}) {
    ClickOn(Child(window, opens));
    EXPECT_TRUE(Child(window, closes).isVisible());
    ExpectAllInSight();
    ClickOn(Child(window, closes));
    EXPECT_FALSE(Child(window, closes).isVisible());
  }
}

TEST_F(AirflowWindowTest, AMixtureOfALongNameIsNotCut) {
  ClickOn(Child(window, "Command34"));
  ClickOn(Child(window, "Option7(6)"));
  ClickOn(Child(window, "Command91(1)"));
  auto& mixture = Child<QLineEdit>(window, "Text30");
  mixture.setFocus(Qt::TabFocusReason);
  TypeText(mixture, "0.9");
  bool found = false;
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (!label->isVisible() || label->text() != QLatin1String("Air Fuel Ratio of Natural Gas")) {
      continue;
    }
    found = true;
    EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
  }
  EXPECT_TRUE(found);
  ExpectAllInSight();
}

TEST_F(AirflowWindowTest, ThePanelShowsTheEngineOfThePageForReading) {
  ClickOn(Child(window, "Command37"));
  auto& copy = Child<FieldEdit>(window, "Text3 in EngineFrame");
  EXPECT_TRUE(copy.isVisible());
  EXPECT_TRUE(copy.plain());
  TypeText(copy, "1");
  EXPECT_EQ(copy.text(), QLatin1String("555.0"));
  ClickOn(Child(window, "CommandF3(1)"));
  EXPECT_EQ(FromQt(copy.text()), Model<Field>("Form4.Text3").text());
  EXPECT_EQ(copy.mark(), Mark::Changed);
}

TEST_F(AirflowWindowTest, EscapePutsAPanelAwayWhateverAFieldIsLeftWith) {
  ClickOn(Child(window, "Command37"));
  auto& size = Child<QLineEdit>(window, "Text6");
  EXPECT_TRUE(size.hasFocus());
  PressKey(size, Qt::Key_Backspace);
  EXPECT_EQ(size.text(), QString());
  PressKey(size, Qt::Key_Escape);
  EXPECT_FALSE(size.isVisible());
  EXPECT_TRUE(Child(window, "Command37").hasFocus());
}

TEST_F(AirflowWindowTest, AnEmptyFieldKeepsTheKeyboardAndTheClickGoesNowhere) {
  auto& size = Child<QLineEdit>(window, "Text1");
  size.setFocus();
  size.selectAll();
  PressKey(size, Qt::Key_Backspace);
  ExpectBox("Note: This field can not be blank.\r\nNothing has been done for \"Carb Size\".");
  ClickOn(Child(window, "Command8"));
  EXPECT_TRUE(WaitFor([&] { return size.hasFocus(); }));
  EXPECT_EQ(Model<Field>("Form4.Text5").text(), "650");
  ExpectBox("Note: This field can not be blank.\r\nNothing has been done for \"Single Grouping\".");
  ClickOn(Child(window, "Check1(7)"));
  EXPECT_FALSE(Model<CheckBox>("Form4.Check1(7)").on());
  EXPECT_FALSE(Child<QCheckBox>(window, "Check1(7)").isChecked());
  EXPECT_TRUE(WaitFor([&] { return size.hasFocus(); }));
  ExpectBox("Note: This field can not be blank.\r\nNothing has been done for \"SR SI\".");
  ClickOn(Child(window, "Option8(3)"));
  EXPECT_EQ(Model<OptionGroup>("Form4.Option8").chosen(), 0);
  EXPECT_TRUE(Child<QRadioButton>(window, "Option8(0)").isChecked());
  window.close();
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace veldox::testing
