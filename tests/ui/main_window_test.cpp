#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <set>

#include "tests/ui/window_test.h"
#include "ui/field_edit.h"
#include "ui/launcher.h"
#include "ui/menu_rows.h"
#include "ui/title_area.h"

namespace veldox::testing {
namespace {

class MainWindowTest : public WindowTest {
 protected:
  MainWindowTest() : window(windows->main()) { QApplication::setActiveWindow(&window); }

  QAction& Action(const char* name) {
    QAction* action = window.ActionOf(*Shell::FindMenuItem(name));
    if (action == nullptr) throw std::runtime_error(std::string("no action ") + name);
    return *action;
  }

  MainWindow& window;
};

TEST_F(MainWindowTest, TitleIsTheProgramsName) {
  EXPECT_EQ(window.windowTitle(), QStringLiteral("VELDOX-Math-Formula-Calculator"));
  EXPECT_EQ(window.objectName(), QStringLiteral("Main"));
  EXPECT_TRUE(window.isVisible());
}

TEST_F(MainWindowTest, EveryTopLevelItemCanBeReadAtAnyWidth) {
  for (const int width : {700, 760, 850, 1000, 1180, 1366, 1900}) {
    window.resize(width, 560);
    Settle();
    int items = 0;
    int lastBottom = -1;
    for (const MenuRow* row : window.menu().rows()) {
      if (!row->isVisible()) {
        EXPECT_TRUE(row->actions().isEmpty());
        continue;
      }
      EXPECT_GT(row->geometry().top(), lastBottom);
      lastBottom = row->geometry().bottom();
      for (QAction* action : row->actions()) {
        ++items;
        const QRect place = row->actionGeometry(action);
        EXPECT_TRUE(row->rect().contains(place)) << width << ": " << FromQt(action->text());
        EXPECT_GE(place.width(),
                  row->fontMetrics().size(Qt::TextShowMnemonic, action->text()).width());
      }
      const auto* chevron =
          row->findChild<const QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
      EXPECT_TRUE(chevron == nullptr || !chevron->isVisible()) << width;
    }
    EXPECT_EQ(items, 22) << width;
    EXPECT_LE(lastBottom, window.menu().height()) << width;
    EXPECT_LE(window.menu().rowCount(), 3) << width;
  }
}

TEST_F(MainWindowTest, EveryMenuItemIsThereWithItsCaption) {
  for (const MenuItem& item : Shell::Menu()) {
    QAction* action = window.ActionOf(item);
    ASSERT_NE(action, nullptr) << item.name;
    if (item.kind == MenuKind::Separator) {
      EXPECT_TRUE(action->isSeparator()) << item.name;
      continue;
    }
    EXPECT_EQ(FromQt(action->text()), shell().MenuCaption(item));
    EXPECT_EQ(action->isEnabled(), shell().MenuEnabled(item)) << item.name;
    // The toolkit makes the tip of the caption, without the dots at its end.
    QString tip = QStringLiteral("Not available yet");
    if (action->isEnabled()) {
      tip = action->text().remove(QLatin1Char('&'));
      if (tip.endsWith(QLatin1String("..."))) tip.chop(3);
    }
    EXPECT_EQ(action->toolTip(), tip) << item.name;
  }
}

TEST_F(MainWindowTest, SubmenusAreFilledWhenTheyOpen) {
  QMenu* menu = window.ActionOf(*Shell::FindMenuItem("File"))->menu();
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->isEmpty());
  EXPECT_TRUE(menu->toolTipsVisible());
  menu->popup(QPoint(0, 0));
  Settle();
  EXPECT_FALSE(menu->isEmpty());
  menu->hide();
}

TEST_F(MainWindowTest, ArrowKeysLeadFromRowToRow) {
  window.resize(1000, 560);
  Settle();
  ASSERT_EQ(window.menu().rowCount(), 2);
  MenuRow* first = window.menu().rows()[0];
  MenuRow* second = window.menu().rows()[1];
  QAction* last = nullptr;
  for (QAction* action : first->actions()) {
    if (action->isEnabled()) last = action;
  }
  QWidget& before = Child(window, "Launch_CompRatio");
  before.setFocus(Qt::TabFocusReason);
  first->setFocus(Qt::MenuBarFocusReason);
  first->setActiveAction(last);
  PressKey(*first, Qt::Key_Right);
  ASSERT_NE(second->activeAction(), nullptr);
  EXPECT_TRUE(second->activeAction()->isEnabled());
  EXPECT_EQ(first->activeAction(), nullptr) << "one item is chosen, not one a row";
  PressKey(*second, Qt::Key_Left);
  EXPECT_EQ(first->activeAction(), last);
  EXPECT_EQ(second->activeAction(), nullptr);
  PressKey(*first, Qt::Key_Right);
  PressKey(*second, Qt::Key_Escape);
  EXPECT_EQ(second->activeAction(), nullptr);
  EXPECT_TRUE(before.hasFocus()) << "the keyboard goes back to where it came from";
}

TEST_F(MainWindowTest, CaptionOfASwitchFollows) {
  QAction& metric = Action("Metric");
  EXPECT_EQ(metric.text(), QStringLiteral("Metric Mode -- Is OFF"));
  metric.trigger();
  EXPECT_EQ(metric.text(), QStringLiteral("Metric Mode -- Is ON"));
  EXPECT_EQ(program->context().block.MetricMenuOn, -1);
}

TEST_F(MainWindowTest, LauncherOpensAScreenAsItsMenuItemDoes) {
  EXPECT_EQ(windows->WindowOf(*shell().FindScreen("Form1")), nullptr);
  ClickOn(Child(window, "Launch_CubicInch"));
  QWidget* form = windows->WindowOf(*shell().FindScreen("Form1"));
  ASSERT_NE(form, nullptr);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(program->context().block.CurrentScreenTag, "CubicIn");
}

TEST_F(MainWindowTest, LauncherShowsEveryScreenAndSaysWhatIsNotBuilt) {
  for (const LauncherItem& item : Shell::Launcher()) {
    auto& button = static_cast<QPushButton&>(
        Child(window, (std::string("Launch_") + std::string(item.menuItem)).c_str()));
    EXPECT_EQ(FromQt(button.text()), item.text);
    EXPECT_EQ(button.isEnabled(), shell().MenuEnabled(*Shell::FindMenuItem(item.menuItem)));
    EXPECT_EQ(FromQt(button.toolTip()), button.isEnabled() ? item.help : "Not available yet");
    EXPECT_GE(button.width(), button.fontMetrics().horizontalAdvance(button.text()) + 8);
  }
}

TEST_F(MainWindowTest, LauncherButtonsTellWhatTheirScreensAreFor) {
  auto& line = static_cast<QLabel&>(Child(window, "Label77"));
  std::set<QString> sentences;
  for (const LauncherItem& item : Shell::Launcher()) {
    QWidget& button = Child(window, ("Launch_" + std::string(item.menuItem)).c_str());
    EXPECT_TRUE(item.help.ends_with('.')) << item.menuItem;
    EXPECT_EQ(FromQt(button.accessibleDescription()), item.help);
    EnterWidget(button);
    EXPECT_EQ(FromQt(line.text()), item.help);
    EXPECT_LE(line.fontMetrics().horizontalAdvance(line.text()), line.width()) << item.menuItem;
    sentences.insert(line.text());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    EXPECT_EQ(line.text(), QString());
  }
  EXPECT_EQ(sentences.size(), Shell::Launcher().size()) << "each screen has its own sentence";

  for (const char* name : {"Launch_CompRatio", "Launch_CubicInch"}) {
    QWidget& button = Child(window, name);
    button.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(line.text(), button.accessibleDescription()) << "it goes with the keyboard";
  }
}

TEST_F(MainWindowTest, TitleSlidesInAndStopsByItself) {
  auto* timer = window.findChild<QTimer*>(QStringLiteral("Timer2"));
  ASSERT_NE(timer, nullptr);
  ASSERT_TRUE(WaitFor([&] { return !timer->isActive(); }));
  EXPECT_FALSE(shell().titleAnimation().running());
  int lastRight = -1;
  for (const char* name : {"Label1", "Label2", "Label3", "Label4", "Label5", "Label6"}) {
    const QRect letter = Child(window, name).geometry();
    EXPECT_GT(letter.left(), lastRight) << name;
    lastRight = letter.right();
  }
  EXPECT_LT(lastRight, window.width());
  EXPECT_GT(Child(window, "Label21").y(), Child(window, "Label6").y());
  EXPECT_GT(Child(window, "Label22").y(), Child(window, "Label21").y());
}

TEST_F(MainWindowTest, NotesPanelTakesTheLaunchersPlace) {
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("Text22")), nullptr);
  Action("Notes").trigger();
  Settle();
  auto& notes = static_cast<LinesEdit&>(Child(window, "Text22"));
  EXPECT_TRUE(notes.isVisible());
  EXPECT_TRUE(notes.hasFocus());
  EXPECT_FALSE(Child(window, "Launch_CubicInch").isVisible());
  for (const char* name : {"Command11", "Command12"}) {
    auto& button = static_cast<QPushButton&>(Child(window, name));
    const int caption = button.fontMetrics().horizontalAdvance(button.text());
    EXPECT_GE(button.width(), caption + 8);
    EXPECT_LE(button.width(), caption * 2) << "as wide as a button, not as the window";
  }
  notes.insertPlainText(QStringLiteral("one\ntwo"));
  ClickOn(Child(window, "Command11"));
  EXPECT_EQ(program->context().block.Notes, "one\r\ntwo");
  EXPECT_TRUE(Child(window, "Launch_CubicInch").isVisible());

  Action("Notes").trigger();
  Settle();
  EXPECT_EQ(notes.toPlainText(), QStringLiteral("one\ntwo"));
  notes.Replace(QStringLiteral("three"));
  ClickOn(Child(window, "Command12"));
  EXPECT_EQ(program->context().block.Notes, "one\r\ntwo");
}

TEST_F(MainWindowTest, NotesThatAreTooLongAreRefusedAtOnceWhenPasted) {
  Action("Notes").trigger();
  Settle();
  auto& notes = static_cast<LinesEdit&>(Child(window, "Text22"));
  notes.Replace(QStringLiteral("kept"));
  QElapsedTimer clock;
  clock.start();
  const auto refuse = [&](const QString& text, const char* reason) {
    ExpectBox(reason);
    QApplication::clipboard()->setText(text);
    PressKey(notes, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
    EXPECT_EQ(notes.toPlainText(), QStringLiteral("kept"));
    ExpectBox(reason);
    notes.Replace(text);
    EXPECT_EQ(notes.toPlainText(), QStringLiteral("kept"));
  };
  constexpr const char* kTooLong = "The notes are longer than 1 MB, the most that they may hold.";
  refuse(QString(9 << 20, QLatin1Char('n')), kTooLong);
  refuse(QStringLiteral("a line\n").repeated(200'000), kTooLong);
  refuse(QString(100'000, QLatin1Char('n')),
         "A line of the notes is longer than 64 KB, the most that it may be.");
  EXPECT_LT(clock.elapsed(), 10'000) << "far more than a busy machine needs";
  // A text that replaces what is selected counts as what comes out.
  const QString most = QStringLiteral("1234567890123456789012345678901\n").repeated(31'000);
  notes.Replace(most);
  notes.selectAll();
  QApplication::clipboard()->setText(most);
  PressKey(notes, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
  EXPECT_EQ(notes.toPlainText().size(), most.size());
}

TEST_F(MainWindowTest, OptionPanelsAreBuiltWhenTheyShow) {
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("Text13")), nullptr);
  EXPECT_EQ(window.findChild<QWidget*>(QStringLiteral("Combo3")), nullptr);
  Model<Frame>("Main.OptionFrame").SetVisible(true);
  Settle();
  auto& list = static_cast<QComboBox&>(Child(window, "Combo3"));
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(list.count(), 3);
  EXPECT_EQ(list.accessibleName(), QStringLiteral("Alignment for Entry Text"));
}

TEST_F(MainWindowTest, WheelLeavesAListWithoutTheFocusAlone) {
  Model<Frame>("Main.OptionFrame").SetVisible(true);
  Settle();
  auto& list = static_cast<QComboBox&>(Child(window, "Combo3"));
  Model<ComboList>("Main.Combo3").Choose(1);
  Child(window, "Combo4").setFocus(Qt::TabFocusReason);
  Wheel(list, -1);
  EXPECT_EQ(list.currentIndex(), 1);
  EXPECT_EQ(Model<ComboList>("Main.Combo3").chosen(), 1);
}

TEST_F(MainWindowTest, TypingInAnOptionFieldIsNoChangeOfTheData) {
  Model<Frame>("Main.Frame8").SetVisible(true);
  Settle();
  auto& field = static_cast<FieldEdit&>(Child(window, "Text13"));
  field.setFocus(Qt::TabFocusReason);
  TypeText(field, "3");
  EXPECT_EQ(Model<Field>("Main.Text13").text(), "3");
  EXPECT_EQ(program->context().block.DataChanged, 0);
  EXPECT_EQ(program->context().block.OptionFieldActive, 1);
  window.showMinimized();
  Settle();
  EXPECT_EQ(program->context().block.OptionFieldActive, 0);
}

TEST_F(MainWindowTest, CloseBoxAsksWithoutACancelButton) {
  program->context().block.DataChanged = 1;
  ExpectBox("Do you want to Save Your Data before Exiting VELDOX?", Button::No);
  window.close();
  Settle();
  EXPECT_EQ(host.messages.back().buttons, (std::vector<Button>{Button::Yes, Button::No}));
  EXPECT_TRUE(shell().ended());
  EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, ExitCanBeCancelledAndTriedAgain) {
  program->context().block.DataChanged = 1;
  ExpectBox("Do you want to Save Your Data before Exiting VELDOX?", Button::Cancel);
  Action("Exit").trigger();
  EXPECT_TRUE(window.isVisible());
  ExpectBox("Do you want to Save Your Data before Exiting VELDOX?", Button::No);
  Action("Exit").trigger();
  Settle();
  EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, ExitClosesAllWindows) {
  QWidget& form = Open("CubicInch");
  Action("Exit").trigger();
  Settle();
  EXPECT_FALSE(form.isVisible());
  EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, OpeningAnOpenScreenBringsItBack) {
  QWidget& form = Open("CubicInch");
  form.showMinimized();
  Settle();
  Action("CubicInch").trigger();
  Settle();
  EXPECT_FALSE(form.isMinimized());
}

TEST_F(MainWindowTest, FitsASmallScreen) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  EXPECT_LE(window.minimumSizeHint().width(), 700);
  EXPECT_LE(window.minimumSizeHint().height(), 480);
}

}  // namespace
}  // namespace veldox::testing
