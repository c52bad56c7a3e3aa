// Windows with tables, panels and pages, on screens that only tests know.

#include <QClipboard>
#include <QHelpEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QWindow>

#include "graph/curve_colors.h"
#include "tests/support/sample_screens.h"
#include "tests/ui/window_test.h"
#include "ui/screen_window.h"
#include "ui/table_face.h"

namespace veldox::testing {
namespace {

template <class S>
class SampleTest : public WindowTest {
 protected:
  SampleTest() {
    window.show();
    QApplication::setActiveWindow(&window);
    veldox::testing::Settle();
  }

  FieldEdit& Edit(const char* name) { return static_cast<FieldEdit&>(Child(window, name)); }
  void ClickCommand(const char* name) { ClickOn(Child(window, name)); }
  static std::string FocusName() {
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr ? "none" : FromQt(focus->objectName());
  }
  static void PressKeyHere(int key, Qt::KeyboardModifiers held = Qt::NoModifier,
                           const char* text = "") {
    PressKey(*QApplication::focusWidget(), key, QString::fromUtf8(text), held);
  }
  /// Presses a key as the window system does, which asks the shortcuts first.
  void PressShortcut(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(window.windowHandle(), key, held);
    veldox::testing::Settle();
  }

  S screen{program->context()};
  ScreenWindow window{screen, [](Screen&, QWidget*) -> QWidget* { return nullptr; },
                      AppearanceOf(shell().block()), shell().scaling()};
};

class TableWindowTest : public SampleTest<FlowBench> {
 protected:
  TableWindowTest() {
    ClickCommand("Command35");
    Settle();
  }
};

TEST_F(TableWindowTest, EachCellIsNamedByColumnAndRow) {
  EXPECT_EQ(Child(window, "Text49(3)").accessibleName(), QStringLiteral("Flow, row 4"));
  EXPECT_EQ(Child(window, "Text51(2)").accessibleName(), QStringLiteral("Flow, 3rd"));
  screen.Exhaust.SetHead(1, "CFM");
  Settle();
  EXPECT_EQ(Child(window, "Text51(2)").accessibleName(), QStringLiteral("CFM, 3rd"));
  EXPECT_EQ(Child<QLabel>(window, "Label2(51)").text(), QStringLiteral("CFM"));
}

TEST_F(TableWindowTest, CellsStandInRowsUnderTheirHeads) {
  const QWidget& lift = Edit("Text48(5)");
  const QWidget& flow = Edit("Text49(5)");
  EXPECT_EQ(lift.y(), flow.y());
  EXPECT_LT(lift.x(), flow.x());
  EXPECT_GT(Edit("Text48(6)").y(), lift.y());
  EXPECT_EQ(Edit("Text48(6)").x(), lift.x());
  const QLabel& head = Child<QLabel>(window, "Label2(51)");
  const QWidget& under = Edit("Text51(0)");
  EXPECT_EQ(head.mapTo(&window, QPoint()).x(), under.mapTo(&window, QPoint()).x());
  EXPECT_EQ(head.width(), under.width());
}

TEST_F(TableWindowTest, DecimalPointsStandInLine) {
  const auto pointOf = [&](const char* name) {
    const FieldEdit& edit = Edit(name);
    const qsizetype at = edit.text().indexOf(QLatin1Char('.'));
    const QString fraction = at < 0 ? QString() : edit.text().mid(at);
    return edit.textMargins().right() + edit.fontMetrics().horizontalAdvance(fraction);
  };
  EXPECT_EQ(pointOf("Text49(0)"), pointOf("Text49(1)"));
  EXPECT_EQ(pointOf("Text49(0)"), pointOf("Text49(2)"));
  // And they stay so when a longer number comes.
  Edit("Text49(1)").setFocus(Qt::TabFocusReason);
  TypeText(Edit("Text49(1)"), "7.12345");
  Settle();
  EXPECT_EQ(pointOf("Text49(0)"), pointOf("Text49(1)"));
  EXPECT_EQ(pointOf("Text49(4)"), pointOf("Text49(1)"));
}

TEST_F(TableWindowTest, ALongNumberIsNotCutOff) {
  screen.Text49[0].SetText("12345.67");
  screen.Text49[1].SetText("0.123456");
  Settle();
  for (const char* name : {"Text49(0)", "Text49(1)"}) {
    const FieldEdit& edit = Edit(name);
    EXPECT_LE(edit.fontMetrics().horizontalAdvance(edit.text()) + edit.textMargins().left() +
                  edit.textMargins().right(),
              edit.width() - 4)
        << name;
  }
}

TEST_F(TableWindowTest, ArrowsEnterAndTabMove) {
  Edit("Text48(0)").setFocus(Qt::TabFocusReason);
  PressKeyHere(Qt::Key_Down);
  EXPECT_EQ(FocusName(), "Text48(1)");
  EXPECT_EQ(screen.focus(), &screen.Text48[1]);
  PressKeyHere(Qt::Key_Right);
  EXPECT_EQ(FocusName(), "Text49(1)") << "the text is all selected";
  PressKeyHere(Qt::Key_Left);
  EXPECT_EQ(FocusName(), "Text48(1)");
  PressKeyHere(Qt::Key_Return, Qt::NoModifier, "\r");
  EXPECT_EQ(FocusName(), "Text48(2)");
  PressKeyHere(Qt::Key_Return, Qt::ShiftModifier, "\r");
  EXPECT_EQ(FocusName(), "Text48(1)");
  PressKeyHere(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "Text49(1)");
  PressKeyHere(Qt::Key_Tab);
  PressKeyHere(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "Text48(2)") << "the first of the next row";
  PressKeyHere(Qt::Key_Up);
  PressKeyHere(Qt::Key_Up);
  PressKeyHere(Qt::Key_Up);
  EXPECT_EQ(FocusName(), "Text48(0)") << "the first row is the last word";
  PressKeyHere(Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(FocusName(), "Text52(15)");
  PressKeyHere(Qt::Key_Tab);
  EXPECT_EQ(FocusName(), "CommandF3(0)") << "behind the last cell the table is left";
}

TEST_F(TableWindowTest, InsideATextTheArrowsMoveTheCaret) {
  auto& edit = Edit("Text49(0)");
  edit.setFocus(Qt::TabFocusReason);
  TypeText(edit, "123");
  PressKeyHere(Qt::Key_Left);
  EXPECT_EQ(FocusName(), "Text49(0)");
  EXPECT_EQ(edit.cursorPosition(), 2);
  PressKeyHere(Qt::Key_Right);
  PressKeyHere(Qt::Key_Right);
  EXPECT_EQ(FocusName(), "Text52(0)");
}

TEST_F(TableWindowTest, KeysGoThroughTheRuleOfTheField) {
  auto& edit = Edit("Text49(0)");
  edit.setFocus(Qt::TabFocusReason);
  TypeText(edit, "1a2-3");
  EXPECT_EQ(screen.Text49[0].text(), "123");
  Edit("Text52(0)").setFocus(Qt::TabFocusReason);
  TypeText(Edit("Text52(0)"), "5");
  EXPECT_EQ(screen.Text52[0].text(), "");
}

TEST_F(TableWindowTest, AColumnFromASpreadsheetFillsDownwardAndIsTakenBack) {
  QApplication::clipboard()->setText(QStringLiteral("10\n20.5\n30\n"));
  Edit("Text49(1)").setFocus(Qt::TabFocusReason);
  PressKeyHere(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(screen.Text49[1].text(), "10");
  EXPECT_EQ(screen.Text49[2].text(), "20.5");
  EXPECT_EQ(screen.Text49[3].text(), "30");
  EXPECT_EQ(Edit("Text49(3)").text(), QStringLiteral("30"));
  EXPECT_TRUE(Edit("Text49(2)").inRange());
  PressKeyHere(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(screen.Text49[1].text(), "65");
  EXPECT_EQ(screen.Text49[3].text(), "165");
}

TEST_F(TableWindowTest, WhatIsPastedAndDoesNotFitIsTold) {
  QApplication::clipboard()->setText(QStringLiteral("1\tx\n2\t3\n"));
  Edit("Text48(15)").setFocus(Qt::TabFocusReason);
  ExpectBox(
      "1 text was pasted, 3 were not:\r\n\"Flow, row 16\" does not take \"x\".\r\n\"2\" has no "
      "place in the rows of this table.\r\n\"3\" has no place in the rows of this table.");
  PressKeyHere(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(screen.Text48[15].text(), "1");
  EXPECT_EQ(screen.Text49[15].text(), "0");
}

TEST_F(TableWindowTest, SelectedCellsAreCopiedAndEmptied) {
  Edit("Text48(0)").setFocus(Qt::TabFocusReason);
  PressKeyHere(Qt::Key_Down, Qt::ShiftModifier);
  PressKeyHere(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_TRUE(Edit("Text49(1)").inRange());
  EXPECT_FALSE(Edit("Text49(2)").inRange());
  PressKeyHere(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral(".050\t32.5\n.100\t65\n"));
  PressKeyHere(Qt::Key_Delete);
  EXPECT_EQ(screen.Text48[1].text(), "");
  EXPECT_EQ(screen.Text49[0].text(), "");
  EXPECT_EQ(screen.Text49[2].text(), "120.25");
  PressKeyHere(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(screen.Text49[0].text(), "32.5");
  // Escape leaves the cells alone, and only then the panel.
  PressKeyHere(Qt::Key_Down, Qt::ShiftModifier);
  PressKeyHere(Qt::Key_Escape);
  EXPECT_FALSE(Edit("Text48(0)").inRange());
  EXPECT_EQ(screen.topPanel(), &screen.Frame11);
  PressKeyHere(Qt::Key_Escape);
  EXPECT_EQ(screen.topPanel(), nullptr);
}

TEST_F(TableWindowTest, AHeadSelectsItsColumnAndAllIsTheTable) {
  Mouse(Child(window, "Label2(51)"), QEvent::MouseButtonPress);
  Settle();
  EXPECT_EQ(FocusName(), "Text51(0)");
  PressKeyHere(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("50\n50\n50\n50\n50\n50\n50\n50\n"));
  Edit("Text50(0)").setFocus(Qt::TabFocusReason);
  PressKeyHere(Qt::Key_A, Qt::ControlModifier);
  PressKeyHere(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral(".1\t50\n.1\t50\n")));
}

TEST_F(TableWindowTest, AnErrorInACellBringsItIntoView) {
  window.resize(window.width(), 360);
  Settle();
  screen.Text48[15].SetText("0");
  ExpectBox(
      "\"Lift, row 16\" is 0, and \"Flow / Lift, row 16\" cannot be computed by dividing by 0. "
      "Please enter another value.");
  ClickCommand("CommandF3(0)");
  ASSERT_TRUE(WaitFor([&] { return FocusName() == "Text48(15)"; }));
  const auto& edit = Edit("Text48(15)");
  EXPECT_EQ(edit.mark(), Mark::Error);
  EXPECT_FALSE(edit.visibleRegion().isEmpty());
  EXPECT_EQ(edit.visibleRegion().boundingRect().height(), edit.height());
}

TEST_F(TableWindowTest, HeadsHaveTheUnitsSign) {
  const auto hasSign = [&](const char* sign) {
    int count = 0;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (label->isVisible() && label->text() == QLatin1String(sign)) ++count;
    }
    return count;
  };
  EXPECT_EQ(hasSign("in"), 2);
  ClickCommand("Command91(9)");
  ClickCommand("Check1");
  ClickCommand("Command35");
  EXPECT_EQ(hasSign("mm"), 2);
  EXPECT_EQ(hasSign("in"), 0);
}

TEST_F(TableWindowTest, RowsThatAreNotInUseArePalerAndStillReadable) {
  screen.Intake.DimRows([this](int row) { return screen.Text49[row].text() == "0"; });
  const auto ink = [&](const char* name) { return Edit(name).palette().color(QPalette::Text); };
  const auto contrast = [&](const char* name) {
    const auto plain = [](const QColor& color) {
      return Color{static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
                   static_cast<std::uint8_t>(color.blue())};
    };
    return Contrast(plain(ink(name)), plain(Edit(name).palette().color(QPalette::Base)));
  };
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    ApplyTheme(*qApp, theme);
    Settle();
    EXPECT_NE(ink("Text49(4)"), ink("Text49(3)"));
    EXPECT_EQ(ink("Text48(4)"), ink("Text49(4)"));
    EXPECT_LT(contrast("Text49(4)"), contrast("Text49(3)"));
    EXPECT_GE(contrast("Text49(4)"), 4.5);
  }
  Edit("Text49(4)").setFocus(Qt::TabFocusReason);
  TypeText(Edit("Text49(4)"), "190");
  Settle();
  EXPECT_EQ(ink("Text49(4)"), ink("Text49(3)"));
  EXPECT_NE(ink("Text49(5)"), ink("Text49(3)"));
}

TEST_F(TableWindowTest, CommandsFollowATableWhateverTheHeight) {
  const auto gap = [&] {
    const QWidget& last = Edit("Text48(15)");
    const QWidget& below = Child(window, "CommandF3(0)");
    return below.mapTo(&window, QPoint()).y() - last.mapTo(&window, QPoint(0, last.height())).y();
  };
  window.resize(window.width(), 1400);
  Settle();
  ASSERT_TRUE(WaitFor([&] { return !Edit("Text48(15)").visibleRegion().isEmpty(); }));
  EXPECT_GE(gap(), 2);
  EXPECT_LE(gap(), 24);
  // Nor do the heads drift down from the frame's title.
  const QWidget& frame = Child(window, "Frame11a");
  EXPECT_LE(Edit("Text48(0)").mapTo(&frame, QPoint()).y(), 80);
}

TEST_F(TableWindowTest, TheWheelChangesNoCell) {
  const std::string before = screen.Intake.CopyText(screen.Intake.all());
  Wheel(Edit("Text49(2)"), -3);
  EXPECT_EQ(screen.Intake.CopyText(screen.Intake.all()), before);
}

class PanelWindowTest : public SampleTest<FlowBench> {};

TEST_F(PanelWindowTest, APanelCoversThePageAndDoneGivesItBack) {
  EXPECT_TRUE(Edit("Text1").isVisible());
  EXPECT_FALSE(Edit("Text48(0)").isVisible());
  ClickCommand("Command35");
  EXPECT_FALSE(Edit("Text1").isVisible());
  EXPECT_TRUE(Edit("Text48(0)").isVisible());
  EXPECT_EQ(FocusName(), "Text48(0)");
  EXPECT_TRUE(Child(window, "subend").isVisible());
  ClickCommand("Command91(9)");
  EXPECT_TRUE(Edit("Text1").isVisible());
  EXPECT_EQ(FocusName(), "Command35");
  EXPECT_EQ(screen.focus(), &screen.Command35);
}

TEST_F(PanelWindowTest, ThePathToAPanelIsInSight) {
  const auto shows = [&](const QString& text) {
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (label->isVisible() && label->text() == text) return true;
    }
    return false;
  };
  ClickCommand("Command35");
  EXPECT_TRUE(shows(QStringLiteral("Air Flow Details")));
  ClickCommand("Command50(1)");
  EXPECT_TRUE(shows(QString::fromUtf8("Air Flow Details  \u203a  Valve and Throat Sizing")));
  PressKeyHere(Qt::Key_Escape);
  EXPECT_TRUE(shows(QStringLiteral("Air Flow Details")));
  EXPECT_EQ(FocusName(), "Command50(1)");
  PressKeyHere(Qt::Key_Escape);
  EXPECT_EQ(screen.topPanel(), nullptr);
  EXPECT_TRUE(window.isVisible());
  ClickCommand("Command50(0)");
  EXPECT_TRUE(shows(QStringLiteral("Valve and Throat Sizing")));
}

TEST_F(PanelWindowTest, TabStaysInThePanel) {
  ClickCommand("Command50(0)");
  std::vector<std::string> walked{FocusName()};
  for (int i = 0; i < 20; ++i) {
    PressKeyHere(Qt::Key_Tab);
    if (FocusName() == walked.front()) break;
    walked.push_back(FocusName());
  }
  EXPECT_EQ(walked, (std::vector<std::string>{"Text7(0)", "Text8", "Command8", "Command91(4)",
                                              "subend", "KeepUpToDate"}));
}

TEST_F(PanelWindowTest, ScrollAndFocusAreKeptUnderAPanel) {
  ClickCommand("Command35");
  window.resize(window.width(), 340);
  Settle();
  Edit("Text48(12)").setFocus(Qt::TabFocusReason);
  Settle();
  int scrolled = 0;
  QScrollBar* bar = nullptr;
  for (QWidget* at = &Edit("Text48(12)"); at != nullptr && bar == nullptr;
       at = at->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(at)) bar = area->verticalScrollBar();
  }
  ASSERT_NE(bar, nullptr);
  scrolled = bar->value();
  EXPECT_GT(scrolled, 0);
  screen.Frame8.Open();
  Settle();
  EXPECT_FALSE(Edit("Text48(12)").isVisible());
  ClickCommand("Command91(4)");
  EXPECT_EQ(FocusName(), "Text48(12)");
  EXPECT_EQ(bar->value(), scrolled);
}

TEST_F(PanelWindowTest, EveryPanelFitsASmallScreen) {
  EXPECT_LE(window.height(), kScreenHeight);
  EXPECT_LE(window.width(), kScreenWidth);
  for (Panel* panel : screen.panels()) {
    panel->Open();
    Settle();
    for (const QWidget* child : window.findChildren<QWidget*>()) {
      if (!child->isVisible() || qobject_cast<const QPushButton*>(child) == nullptr) continue;
      EXPECT_EQ(child->visibleRegion().boundingRect().size(), child->size())
          << panel->name() << ' ' << FromQt(child->objectName());
    }
  }
}

TEST_F(PanelWindowTest, DoneWorksWhateverAFieldIsLeftWith) {
  ClickCommand("Command50(0)");
  Edit("Text7(0)").Replace({});
  ClickCommand("Command91(4)");
  EXPECT_EQ(screen.topPanel(), nullptr);
}

TEST_F(PanelWindowTest, OptionsOfSeveralFramesAreOneGroup) {
  auto& psi = Child<QRadioButton>(window, "Option1(1)");
  auto& inches = Child<QRadioButton>(window, "Option1(11)");
  EXPECT_TRUE(psi.isChecked());
  ClickOn(inches);
  EXPECT_TRUE(inches.isChecked());
  EXPECT_FALSE(psi.isChecked());
  EXPECT_EQ(screen.Option1.chosen(), 11);
  screen.Option1.Choose(2);
  EXPECT_FALSE(inches.isChecked());
  EXPECT_TRUE(Child<QRadioButton>(window, "Option1(2)").isChecked());
}

TEST_F(PanelWindowTest, ResultsInLabelsAreReachedAndCopied) {
  ClickCommand("Command1");
  auto& label = Edit("L1");
  EXPECT_EQ(label.text(), QStringLiteral("23.92187"));
  EXPECT_EQ(label.mark(), Mark::Changed);
  EXPECT_TRUE(label.plain());
  label.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(label.selectedText(), label.text());
  TypeText(label, "5");
  EXPECT_EQ(label.text(), QStringLiteral("23.92187"));
  label.selectAll();
  PressKey(label, Qt::Key_C, {}, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("23.92187"));
  EXPECT_EQ(label.accessibleName(), QStringLiteral("Average Flow"));
}

TEST_F(PanelWindowTest, ResultLinesAreReadAndCopiedAndHaveNoKeys) {
  ClickCommand("Command1");
  ClickCommand("Command3");
  auto& lines = Child<QPlainTextEdit>(window, "Text3");
  lines.setFocus(Qt::TabFocusReason);
  for (const char* key : {"x", ".", ","}) TypeText(lines, key);
  PressKey(lines, Qt::Key_Backspace);
  PressKey(lines, Qt::Key_Escape);
  EXPECT_TRUE(lines.isVisible());
  EXPECT_EQ(lines.toPlainText(), QStringLiteral("Average: 23.92187\nLift: 0.8"));
  EXPECT_TRUE(lines.isReadOnly());
  lines.selectAll();
  PressKey(lines, Qt::Key_C, {}, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), lines.toPlainText());
}

TEST_F(PanelWindowTest, AFieldTurnsReadOnlyAndBack) {
  auto& edit = Edit("Text1");
  ClickCommand("Check2");
  edit.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(edit.hasFocus());
  EXPECT_TRUE(edit.output());
  TypeText(edit, "9");
  EXPECT_EQ(edit.text(), QStringLiteral("28"));
  EXPECT_FALSE(edit.acceptDrops());
  ClickCommand("Check2");
  edit.setFocus(Qt::TabFocusReason);
  TypeText(edit, "9");
  EXPECT_EQ(edit.text(), QStringLiteral("9"));
  EXPECT_TRUE(edit.acceptDrops());
}

TEST_F(PanelWindowTest, CtrlEnterRunsTheLastCalculationAgain) {
  Edit("Text1").setFocus(Qt::TabFocusReason);
  PressShortcut(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(screen.averages, 1) << "the first one, while none was run";
  EXPECT_EQ(FocusName(), "Text1");
  ClickCommand("Command3");
  Edit("Text1").setFocus(Qt::TabFocusReason);
  PressShortcut(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
  EXPECT_EQ(screen.graphs, 2);
  EXPECT_EQ(screen.averages, 1);
}

TEST_F(PanelWindowTest, TheCommandOfCtrlEnterSaysSo) {
  auto& button = Child<QPushButton>(window, "Command1");
  const auto tipOf = [](QPushButton& shown) {
    QHelpEvent ask(QEvent::ToolTip, QPoint(4, 4), shown.mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(&shown, &ask);
    return QToolTip::text();
  };
  EXPECT_EQ(tipOf(button), QStringLiteral("Average flow of the intake port.\nCtrl+Enter anywhere "
                                          "in this window does the same."));
  EXPECT_EQ(tipOf(Child<QPushButton>(window, "Command3")), QStringLiteral("Write the results."));
}

TEST_F(PanelWindowTest, ASharedAccessKeyClicksInTheFrameOfTheFocus) {
  Edit("Text1").setFocus(Qt::TabFocusReason);
  PressShortcut(Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(screen.averages, 1);
  EXPECT_EQ(screen.graphs, 0);
  PressShortcut(Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(screen.averages, 2);
  Edit("L1").setFocus(Qt::TabFocusReason);
  PressShortcut(Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(screen.averages, 2);
  EXPECT_EQ(screen.graphs, 1);
}

class PagesWindowTest : public SampleTest<PagedBench> {};

TEST_F(PagesWindowTest, PagesTakeTurnsUnderTheirSwitches) {
  EXPECT_TRUE(Edit("Text1").isVisible());
  ClickCommand("Command8");
  EXPECT_FALSE(Edit("Text1").isVisible());
  EXPECT_TRUE(Edit("Text3").isVisible());
  for (const char* name : {"Command1", "Command8", "Command3"}) {
    EXPECT_TRUE(Child(window, name).isVisible()) << name;
  }
  ClickCommand("Command3");
  EXPECT_TRUE(Edit("Text83(3)").isVisible());
  EXPECT_EQ(Edit("Text83(3)").accessibleName(), QStringLiteral("Rate, Right Rear"));
  ClickCommand("Command1");
  ClickCommand("Command2");
  EXPECT_EQ(screen.Text2.text(), "3200.0");
}

TEST_F(PagesWindowTest, TheButtonOfThePageInSightIsMarked) {
  const auto marked = [this] {
    std::string names;
    for (const char* name : {"Command1", "Command8", "Command3"}) {
      if (static_cast<QPushButton&>(Child(window, name)).isChecked()) names += name;
    }
    return names;
  };
  EXPECT_EQ(marked(), "Command1");
  ClickCommand("Command8");
  EXPECT_EQ(marked(), "Command8");
  ClickCommand("Command8");
  EXPECT_EQ(marked(), "Command8");
  screen.pages().front()->Open();
  EXPECT_EQ(marked(), "Command1");
}

}  // namespace
}  // namespace veldox::testing
