#include <gmock/gmock.h>
#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QThread>
#include <QTimer>
#include <string>
#include <vector>

#include "tests/ui/window_test.h"
#include "ui/field_edit.h"
#include "ui/qt_host.h"

namespace veldox::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class ToolsWindowTest : public WindowTest {
 protected:
  ToolsWindowTest() : window(Open("CubicInch")) {}

  /// The context menu of a widget. @param choose  the item that is chosen in it
  static std::vector<std::string> MenuOf(QWidget& widget, QContextMenuEvent::Reason reason,
                                         const char* choose = "") {
    std::vector<std::string> captions;
    QTimer::singleShot(0, &widget, [&captions, choose] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      QAction* chosen = nullptr;
      for (QAction* action : menu->actions()) {
        if (action->isSeparator() || !action->isVisible()) continue;
        captions.push_back(FromQt(action->text()));
        if (captions.back() == choose) chosen = action;
      }
      menu->close();
      if (chosen != nullptr) chosen->trigger();
    });
    const QPoint at(4, 4);
    QContextMenuEvent event(reason, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &event);
    Settle();
    return captions;
  }
  QString Chosen(const char* form, const char* list) {
    QWidget* tool = windows->WindowOf(*shell().FindScreen(form));
    return Child<QComboBox>(*tool, list).currentText();
  }

  QWidget& window;
};

TEST_F(ToolsWindowTest, AFieldsMenuKeepsWhatItHasAndOffersTheTools) {
  auto& bore = Child<FieldEdit>(window, "Text1");
  const std::vector<std::string> items =
      MenuOf(bore, QContextMenuEvent::Mouse, "Vary This Field ...");
  EXPECT_THAT(items, Contains(::testing::StartsWith("&Copy")));
  EXPECT_THAT(items, Contains("Seek a Value of This Field ..."));
  ASSERT_TRUE(shell().FindScreen("Vary")->visible());
  EXPECT_EQ(Chosen("Vary", "FieldList"), QStringLiteral("Bore (in)"));
  QWidget& vary = *windows->WindowOf(*shell().FindScreen("Vary"));
  EXPECT_LE(vary.frameGeometry().width(), kScreenWidth);
  EXPECT_LE(vary.frameGeometry().height(), kScreenHeight);
  // A tool has none for itself.
  EXPECT_THAT(MenuOf(Child<FieldEdit>(vary, "From"), QContextMenuEvent::Mouse),
              Not(Contains("Vary This Field ...")));
}

TEST_F(ToolsWindowTest, ACommandsMenuOpensByTheKeyboardToo) {
  auto& ratio = Child<QPushButton>(window, "Command23");
  EXPECT_THAT(MenuOf(ratio, QContextMenuEvent::Keyboard, "Seek With This Command ..."),
              ElementsAre("Vary a Field of This Command ...", "Seek With This Command ..."));
  ASSERT_TRUE(shell().FindScreen("Seek")->visible());
  EXPECT_EQ(Chosen("Seek", "CommandList"), QStringLiteral("Rod Stroke Ratio"));
  EXPECT_EQ(Chosen("Seek", "ResultList"), QStringLiteral("Rod Stroke Ratio"));
  EXPECT_THAT(MenuOf(Child<QPushButton>(window, "subend"), QContextMenuEvent::Mouse), IsEmpty());
}

TEST_F(ToolsWindowTest, AResultIsSoughtFromItsMenu) {
  auto& area = Child<FieldEdit>(window, "Text24");
  EXPECT_THAT(MenuOf(area, QContextMenuEvent::Mouse, "Seek What Gives This Result ..."),
              Not(Contains("Vary This Field ...")));
  EXPECT_EQ(Chosen("Seek", "ResultList"), QStringLiteral("Piston Area (sq in)"));
  QWidget& seek = *windows->WindowOf(*shell().FindScreen("Seek"));
  auto& target = Child<FieldEdit>(seek, "Target");
  target.setFocus(Qt::OtherFocusReason);
  Settle();
  target.Replace(QStringLiteral("12"));
  ClickOn(Child<QPushButton>(seek, "Find_Value"));
  // sqrt(12 / (pi / 4))
  EXPECT_NEAR(ParseNumber(Model<Field>("Form1.Text1").text(), DecimalMark::Point), 3.908820, 2e-6);
  EXPECT_EQ(Child<FieldEdit>(window, "Text1").text(), Child<FieldEdit>(seek, "Found").text());
}

TEST_F(ToolsWindowTest, TheMenuIsGreyWhereNoScreenIsOpen) {
  QAction* vary = windows->main().ActionOf(*Shell::FindMenuItem("Vary"));
  ASSERT_NE(vary, nullptr);
  EXPECT_TRUE(vary->isEnabled());
  shell().FindScreen("Form1")->Quit();
  EXPECT_FALSE(windows->main().ActionOf(*Shell::FindMenuItem("Vary"))->isEnabled());
}

TEST_F(ToolsWindowTest, AScreenThatTheUserComesBackToIsTheOneInFront) {
  Open("SPRINGS");
  EXPECT_EQ(shell().FrontScreen()->name(), "Form16");
  QApplication::setActiveWindow(&window);
  Settle();
  EXPECT_EQ(shell().FrontScreen()->name(), "Form1");
}

/// The bar of a progress; null without one.
QProgressDialog* Bar() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* box = qobject_cast<QProgressDialog*>(widget)) return box;
  }
  return nullptr;
}

constexpr unsigned long kFrame = 50;  // milliseconds

TEST(ProgressOfTheDesktop, ShowsABarWhereItTakesLongAndEndsByCancel) {
  QtHost host;
  const auto progress = host.ShowProgress("Running ...", 1000);
  ASSERT_NE(Bar(), nullptr);
  EXPECT_TRUE(progress->GoOn(1));
  EXPECT_FALSE(Bar()->isVisible());
  QElapsedTimer clock;
  clock.start();
  std::size_t done = 2;
  while (!Bar()->isVisible() && clock.elapsed() < 20'000) {
    QThread::msleep(kFrame);
    ASSERT_TRUE(progress->GoOn(done++));
  }
  EXPECT_TRUE(Bar()->isVisible());
  Bar()->findChild<QPushButton*>()->click();
  QThread::msleep(kFrame);
  EXPECT_FALSE(progress->GoOn(done));
}

TEST(ProgressOfTheDesktop, IsQuietWhereItIsSoonDone) {
  QtHost host;
  {
    const auto progress = host.ShowProgress("Running ...", 10);
    QThread::msleep(kFrame);
    EXPECT_TRUE(progress->GoOn(9));
    EXPECT_FALSE(Bar()->isVisible());
  }
  EXPECT_EQ(Bar(), nullptr);
}

}  // namespace
}  // namespace veldox::testing
