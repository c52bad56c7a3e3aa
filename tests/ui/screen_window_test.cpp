#include <QAbstractButton>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "tests/ui/window_test.h"
#include "ui/field_edit.h"
#include "ui/screen_window.h"

namespace veldox::testing {
namespace {

class Form1WindowTest : public WindowTest {
 protected:
  Form1WindowTest() : window(Open("CubicInch")) {}

  FieldEdit& Edit(const char* name) { return static_cast<FieldEdit&>(Child(window, name)); }
  std::string Text(const char* name) {
    return Model<Field>((std::string("Form1.") + name).c_str()).text();
  }
  std::string UnitBeside(const char* name) {
    const Field& field = Model<Field>((std::string("Form1.") + name).c_str());
    QWidget& edit = Child(window, name);
    for (QLabel* label : edit.parentWidget()->findChildren<QLabel*>()) {
      const bool sameRow =
          std::abs(label->geometry().center().y() - edit.geometry().center().y()) < 6;
      if (sameRow && label->x() > edit.x()) return FromQt(label->text());
    }
    ADD_FAILURE() << "no unit beside " << field.name();
    return {};
  }

  QWidget& window;
};

TEST_F(Form1WindowTest, EveryControlHasAWidgetOfItsName) {
  for (const Control* control : shell().FindScreen("Form1")->controls()) {
    if (control->name() == "HelpFrame") continue;  // its controls stand at the foot
    EXPECT_NE(window.findChild<QWidget*>(ToQt(control->name())), nullptr) << control->name();
  }
  EXPECT_EQ(window.objectName(), QStringLiteral("Form1"));
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Engine Displacement Calculator"));
}

TEST_F(Form1WindowTest, EachLabelIsItsFieldsBuddyAndName) {
  int fields = 0;
  for (const Control* control : shell().FindScreen("Form1")->controls()) {
    if (control->kind() != ControlKind::Field) continue;
    ++fields;
    QWidget& edit = Child(window, control->name().c_str());
    EXPECT_EQ(edit.accessibleName(), ToQt(control->PlainCaption()));
    bool named = false;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
      if (label->buddy() == &edit) named = label->text() == ToQt(control->caption());
    }
    EXPECT_TRUE(named) << control->name();
  }
  EXPECT_EQ(fields, 37);
}

TEST_F(Form1WindowTest, HelpIsTooltipAndAccessibleDescriptionOfACommand) {
  const QString help = QStringLiteral(
      "Calculate Engine Size in Cubic Inches from Bore, Stroke and number of cylinders");
  EXPECT_EQ(Child(window, "Command1").toolTip(), help);
  EXPECT_EQ(Child(window, "Command1").accessibleDescription(), help);
}

TEST_F(Form1WindowTest, LongHelpIsBrokenIntoLinesInATooltip) {
  const std::string& help = Model<OptionButton>("Form1.Option1(19)").help();
  QString tip = Child(window, "Option1(19)").toolTip();
  ASSERT_GT(help.size(), 150U);
  for (const QString& line : tip.split(QLatin1Char('\n'))) EXPECT_LE(line.size(), 90);
  EXPECT_EQ(FromQt(tip.replace(QLatin1Char('\n'), QLatin1Char(' '))), help);
}

/// A screen with a command that does nothing yet.
class HalfBuilt : public Screen {
 public:
  explicit HalfBuilt(ProgramContext& context) : Screen(context, "HalfBuilt", "Half Built", "") {}
  void Work() {}
  Frame Frame1{*this, "Frame1", ""};
  Command Later{Frame1, "Later", "Later", "Will work."};
  Command Now{Frame1, "Now", "Now", "Works.", &HalfBuilt::Work};
};

TEST_F(Form1WindowTest, CommandThatIsNotBuiltSaysSo) {
  HalfBuilt screen(program->context());
  ScreenWindow half(
      screen, [](Screen&, QWidget*) -> QWidget* { return nullptr; }, Appearance{}, ScreenScaling{});
  EXPECT_FALSE(Child(half, "Later").isEnabled());
  EXPECT_EQ(Child(half, "Later").toolTip(), QStringLiteral("Not available yet"));
  // One that only cannot be used now keeps its own words.
  screen.Now.SetEnabled(false);
  EXPECT_FALSE(Child(half, "Now").isEnabled());
  EXPECT_EQ(Child(half, "Now").toolTip(), QStringLiteral("Works."));
}

TEST_F(Form1WindowTest, AnAccessKeyThatCommandsShareComputes) {
  // "&Engine Size" and "B&earing Speed" share Alt+E.
  Edit("Text1").setFocus(Qt::TabFocusReason);
  QTest::keyClick(window.windowHandle(), Qt::Key_E, Qt::AltModifier);
  Settle();
  // 8 cylinders of 4 by 3.25 inches: 4 * 4 * 3.25 * 8 * pi / 4
  EXPECT_EQ(Text("Text6"), "326.7256");
  EXPECT_TRUE(Edit("Text1").hasFocus());
  EXPECT_EQ(Model<Field>("Form1.Text6").mark(), Mark::Changed);
  Command& bearing = Model<Command>("Form1.Command26");
  ASSERT_EQ(bearing.accessKey(), 'e');
  for (Control* control : bearing.frame()->controls()) {
    if (control->kind() != ControlKind::Field) continue;
    Child(window, control->name().c_str()).setFocus(Qt::TabFocusReason);
    break;
  }
  QTest::keyClick(window.windowHandle(), Qt::Key_E, Qt::AltModifier);
  Settle();
  EXPECT_EQ(Model<Field>("Form1.Text6").mark(), Mark::None) << "another command has run";
  EXPECT_TRUE(bearing.isNextCalculation());
}

TEST_F(Form1WindowTest, CtrlEnterComputesAgain) {
  Model<Command>("Form1.Command1").Click();
  Edit("Text1").Replace(QStringLiteral("4.030"));
  Edit("Text1").setFocus(Qt::TabFocusReason);
  QTest::keyClick(window.windowHandle(), Qt::Key_Return, Qt::ControlModifier);
  Settle();
  // 8 * 4.03 * 4.03 * 3.25 * pi / 4 = 331.6448...
  EXPECT_EQ(Text("Text6").substr(0, 5), "331.6");
  EXPECT_TRUE(Edit("Text1").hasFocus());
}

TEST_F(Form1WindowTest, TabKeyWalksInReadingOrder) {
  Edit("Text1").setFocus(Qt::TabFocusReason);
  std::vector<QWidget*> visited{QApplication::focusWidget()};
  for (int i = 0; i < 200; ++i) {
    PressKey(*QApplication::focusWidget(), Qt::Key_Tab);
    if (QApplication::focusWidget() == visited.front()) break;
    visited.push_back(QApplication::focusWidget());
  }
  // All fields, the four boxes, one button of each option group, the commands that are
  // built, Quit, and the switch in the foot.
  std::size_t expected = 1;
  for (const Control* control : shell().FindScreen("Form1")->controls()) {
    const ControlKind kind = control->kind();
    const bool one = kind == ControlKind::Field || kind == ControlKind::CheckBox ||
                     kind == ControlKind::OptionGroup || kind == ControlKind::Command;
    if (one && control->enabled()) ++expected;
  }
  EXPECT_EQ(visited.size(), expected);
  EXPECT_EQ(visited.back()->objectName(), QStringLiteral("KeepUpToDate"));
  visited.pop_back();
  const auto panelOf = [](const QWidget* widget) {
    while (widget != nullptr && qobject_cast<const QGroupBox*>(widget) == nullptr) {
      widget = widget->parentWidget();
    }
    return widget;
  };
  for (std::size_t i = 1; i + 1 < visited.size(); ++i) {
    const QPoint before = visited[i - 1]->mapTo(&window, QPoint(0, 0));
    const QPoint now = visited[i]->mapTo(&window, QPoint(0, 0));
    const QWidget* from = panelOf(visited[i - 1]);
    const QWidget* to = panelOf(visited[i]);
    const std::string step =
        FromQt(visited[i - 1]->objectName() + QStringLiteral(" to ") + visited[i]->objectName());
    if (from == to) {
      EXPECT_TRUE(now.y() > before.y() + 6 || now.x() > before.x()) << step;
    } else {
      EXPECT_TRUE(to->mapTo(&window, QPoint()).x() > from->mapTo(&window, QPoint()).x() ||
                  to->mapTo(&window, QPoint()).y() > from->mapTo(&window, QPoint()).y())
          << step;
    }
  }
  EXPECT_EQ(visited.back()->objectName(), QStringLiteral("subend"));
}

TEST_F(Form1WindowTest, TypedKeysPassTheRuleOfTheField) {
  FieldEdit& bore = Edit("Text1");
  bore.setFocus(Qt::TabFocusReason);
  TypeText(bore, "4x-1");
  EXPECT_EQ(Text("Text1"), "41");
  TypeText(bore, ".");
  TypeText(bore, "25");
  PressKey(bore, Qt::Key_Backspace, QStringLiteral("\b"));
  EXPECT_EQ(Text("Text1"), "41.2");
  EXPECT_EQ(bore.text(), QStringLiteral("41.2"));
  ExpectBox("NOTE: This field only accepts Numbers\r\nand one period (Decimal Point)!");
  TypeText(bore, ".");
  EXPECT_EQ(Text("Text1"), "41.2");
}

TEST_F(Form1WindowTest, EnteringByTabSelectsAndByMousePlacesTheCaret) {
  FieldEdit& bore = Edit("Text1");
  Edit("Text3").setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Edit("Text3").selectedText(), QStringLiteral("3.25"));
  bore.setFocus(Qt::MouseFocusReason);
  ClickOn(bore);
  EXPECT_FALSE(bore.hasSelectedText());
}

TEST_F(Form1WindowTest, FieldMouseDownHoldsWhileTheButtonIsDown) {
  FieldEdit& bore = Edit("Text1");
  Mouse(bore, QEvent::MouseButtonPress);
  EXPECT_EQ(program->context().block.FieldMouseDown, 1);
  Mouse(bore, QEvent::MouseButtonRelease);
  EXPECT_EQ(program->context().block.FieldMouseDown, 0);
}

TEST_F(Form1WindowTest, AnEmojiDoesNotPassTheRuleOfANumberField) {
  FieldEdit& bore = Edit("Text1");
  bore.setFocus(Qt::TabFocusReason);
  const std::string before = Text("Text1");
  // A character beyond 16 bits, one made of several, and signs without a shape of their own.
  for (const char* typed : {"\U0001F600", "\U0001F468\u200D\U0001F527", "\u200D", "\uE000"}) {
    PressKey(bore, 0, QString::fromUtf8(typed));
    EXPECT_EQ(Text("Text1"), before);
    EXPECT_EQ(bore.text().toStdString(), before);
  }
  PressKey(bore, 0, QStringLiteral("4"));
  EXPECT_EQ(Text("Text1"), "4");
}

TEST_F(Form1WindowTest, PasteTakesTheTextAsItStandsAndCountsAsAChange) {
  program->context().block.DataChanged = 0;
  FieldEdit& bore = Edit("Text1");
  bore.setFocus(Qt::TabFocusReason);
  QApplication::clipboard()->setText(QStringLiteral("4 1/8"));
  PressKey(bore, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
  EXPECT_EQ(Text("Text1"), "4 1/8");
  EXPECT_EQ(program->context().block.DataChanged, 1);
}

TEST_F(Form1WindowTest, OutputFieldRefusesTypingAndPasteButIsShortenedByBackspace) {
  FieldEdit& ratio = Edit("Text7");
  ASSERT_EQ(Text("Text7"), "3.5077");
  ratio.setFocus(Qt::TabFocusReason);
  TypeText(ratio, "9");
  QApplication::clipboard()->setText(QStringLiteral("9"));
  PressKey(ratio, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
  EXPECT_EQ(Text("Text7"), "3.5077");
  EXPECT_FALSE(ratio.acceptDrops());
  ratio.deselect();
  ratio.end(false);
  PressKey(ratio, Qt::Key_Backspace, QStringLiteral("\b"));
  EXPECT_EQ(Text("Text7"), "3.507");
  PressKey(ratio, Qt::Key_Z, QStringLiteral("\x1a"), Qt::ControlModifier);
  EXPECT_EQ(Text("Text7"), "3.5077");
}

TEST_F(Form1WindowTest, ResultCanBeCopied) {
  FieldEdit& ratio = Edit("Text7");
  ratio.setFocus(Qt::TabFocusReason);
  PressKey(ratio, Qt::Key_C, QStringLiteral("\x03"), Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("3.5077"));
}

TEST_F(Form1WindowTest, EnterInAFieldDoesNothing) {
  FieldEdit& size = Edit("Text6");
  size.setFocus(Qt::TabFocusReason);
  const std::string before = Text("Text6");
  PressKey(size, Qt::Key_Return, QStringLiteral("\r"));
  EXPECT_EQ(Text("Text6"), before);
  EXPECT_TRUE(size.hasFocus());
}

TEST_F(Form1WindowTest, WheelChangesNothing) {
  std::vector<std::string> before;
  const auto state = [&] {
    std::vector<std::string> texts;
    for (const Control* control : shell().FindScreen("Form1")->controls()) {
      if (const auto* text = dynamic_cast<const TextControl*>(control))
        texts.push_back(text->text());
      if (const auto* group = dynamic_cast<const OptionGroup*>(control)) {
        texts.push_back(std::to_string(group->chosen()));
      }
    }
    return texts;
  };
  before = state();
  for (QWidget* widget : window.findChildren<QWidget*>()) Wheel(*widget, 1);
  EXPECT_EQ(state(), before);
}

TEST_F(Form1WindowTest, CommandMarksWhatItChanged) {
  ClickOn(Child(window, "Command1"));
  // 4.000 bore, 3.25 stroke, 8 cylinders: pi / 4 * 16 * 3.25 * 8
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("326.7256"));
  EXPECT_EQ(Edit("Text6").mark(), Mark::Changed);
  const QColor changed = Edit("Text6").grab().toImage().pixelColor(100, 10);
  const QColor input = Edit("Text1").grab().toImage().pixelColor(100, 10);
  const QColor output = Edit("Text34").grab().toImage().pixelColor(100, 10);
  EXPECT_NE(changed, input);
  EXPECT_NE(output, input);
  EXPECT_NE(output, changed);
}

TEST_F(Form1WindowTest, WrongFieldIsToldMarkedAndEntered) {
  FieldEdit& stroke = Edit("Text3");
  stroke.setFocus(Qt::TabFocusReason);
  stroke.Replace(QStringLiteral("-"));
  ExpectBox("\"Stroke\" holds \"-\", which is not a number.");
  ClickOn(Child(window, "Command1"));
  EXPECT_EQ(stroke.mark(), Mark::Error);
  EXPECT_TRUE(stroke.hasFocus());
  EXPECT_EQ(stroke.selectedText(), QStringLiteral("-"));
}

TEST_F(Form1WindowTest, UnitsFollowTheMetricBox) {
  EXPECT_EQ(UnitBeside("Text1"), "in");
  EXPECT_EQ(UnitBeside("Text6"), "cu in");
  ClickOn(Child(window, "Check1"));
  EXPECT_EQ(UnitBeside("Text1"), "mm");
  EXPECT_EQ(UnitBeside("Text6"), "cc");
  EXPECT_EQ(Edit("Text1").text(), QStringLiteral("101.6"));
  ClickOn(Child(window, "Check1"));
  EXPECT_EQ(UnitBeside("Text1"), "in");
}

TEST_F(Form1WindowTest, BoxTurnsBackWhenItsCommandFails) {
  Edit("Text1").Replace(QStringLiteral("x"));
  ExpectBox("\"Bore\" holds \"x\", which is not a number.");
  auto& metric = static_cast<QAbstractButton&>(Child(window, "Check1"));
  ClickOn(metric);
  EXPECT_FALSE(metric.isChecked());
}

TEST_F(Form1WindowTest, OptionsAreChosenByMouseAndByArrowKeys) {
  auto& second = static_cast<QAbstractButton&>(Child(window, "Option1(1)"));
  ClickOn(second);
  EXPECT_EQ(Model<OptionGroup>("Form1.Option1").chosen(), 1);
  second.setFocus(Qt::TabFocusReason);
  PressKey(second, Qt::Key_Right);
  EXPECT_EQ(Model<OptionGroup>("Form1.Option1").chosen(), 2);
  EXPECT_EQ(Model<OptionGroup>("Form1.Option2").chosen(), 0);
  EXPECT_FALSE(Child(window, "Option1(100)").isVisible());
}

TEST_F(Form1WindowTest, HelpStandsAtTheFootOnHoverAndOnKeyboardFocus) {
  auto& help = static_cast<QLabel&>(Child(window, "Label7"));
  EnterWidget(Child(window, "Command23"));
  EXPECT_EQ(help.text(), QStringLiteral("Calculate Rod Stroke Ratio."));
  EXPECT_TRUE(help.isVisible());
  Mouse(window, QEvent::MouseMove);
  EXPECT_FALSE(help.isVisible());
  Child(window, "Command26").setFocus(Qt::TabFocusReason);
  EXPECT_EQ(help.text(), QStringLiteral("Calculate Bearing Speed from Journal Diameter and RPM."));
}

TEST_F(Form1WindowTest, NothingMovesWhenHelpComes) {
  const QRect before = Child(window, "Text1").geometry();
  const int foot = Child(window, "subend").y();
  EnterWidget(Child(window, "Command17"));
  Settle();
  EXPECT_EQ(Child(window, "Text1").geometry(), before);
  EXPECT_EQ(Child(window, "subend").y(), foot);
}

TEST_F(Form1WindowTest, AccessKeysAreThoseOfTheCaptions) {
  EXPECT_EQ(static_cast<QPushButton&>(Child(window, "Command1")).shortcut(),
            QKeySequence(QStringLiteral("Alt+E")));
  EXPECT_EQ(static_cast<QPushButton&>(Child(window, "subend")).shortcut(),
            QKeySequence(QStringLiteral("Alt+Q")));
}

TEST_F(Form1WindowTest, CloseBoxQuitsAsTheButtonDoes) {
  ClickOn(Child(window, "Check1"));
  window.close();
  Settle();
  EXPECT_FALSE(window.isVisible());
  EXPECT_FALSE(shell().FindScreen("Form1")->visible());
  EXPECT_FALSE(Model<CheckBox>("Form1.Check1").on());
  EXPECT_EQ(Text("Text1"), "4.0");
}

TEST_F(Form1WindowTest, WindowIsKeptAndShownAgain) {
  Edit("Text17").Replace(QStringLiteral("6.25"));
  ClickOn(Child(window, "subend"));
  EXPECT_FALSE(window.isVisible());
  QWidget& again = Open("CubicInch");
  EXPECT_EQ(&again, &window);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(Edit("Text17").text(), QStringLiteral("6.25"));
}

TEST_F(Form1WindowTest, ReportOpensInAFixedPitchAndGoesWithTheScreen) {
  auto& report = Model<ReportBox>("Form1.Text38");
  EXPECT_FALSE(Child(window, "Text38").isVisible());
  report.SetText("first line\r\nsecond line");
  report.SetVisible(true);
  Settle();
  auto& pane = static_cast<LinesEdit&>(Child(window, "Text38"));
  EXPECT_TRUE(pane.isVisible());
  EXPECT_EQ(pane.toPlainText(), QStringLiteral("first line\nsecond line"));
  EXPECT_TRUE(QFontInfo(pane.font()).fixedPitch());
  EXPECT_LE(window.height(), kScreenHeight);
  EXPECT_TRUE(Child(window, "subend").isVisible());
  ClickOn(Child(window, "subend"));
  EXPECT_EQ(pane.toPlainText(), QString());
}

/// Every caption has the room it asks for.
void ExpectNothingCut(QWidget& window) {
  for (const QPushButton* button : window.findChildren<QPushButton*>()) {
    if (!button->isVisible()) continue;
    EXPECT_GE(button->width(),
              button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + 8)
        << FromQt(button->text());
  }
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (!label->isVisible() || label->wordWrap()) continue;
    EXPECT_GE(label->width(),
              label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width())
        << FromQt(label->text());
  }
}

TEST_F(Form1WindowTest, FitsASmallScreenWithNothingCutOff) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  ExpectNothingCut(window);
  window.resize(760, 420);
  Settle();
  ExpectNothingCut(window);
  // It scrolls down only, and the foot stays.
  const auto* scroll = window.findChild<QScrollArea*>();
  EXPECT_LE(scroll->widget()->width(), scroll->viewport()->width());
  EXPECT_LE(Child(window, "subend").geometry().bottom(), window.height());
}

TEST_F(Form1WindowTest, LongestResultFitsItsField) {
  ClickOn(Child(window, "Command10"));
  FieldEdit& angle = Edit("Text15");
  EXPECT_GE(angle.text().size(), 13);
  const int text = angle.fontMetrics().horizontalAdvance(angle.text());
  EXPECT_LE(text, angle.width() - 14);
}

TEST(Theme, TextIsLegibleOnEveryMark) {
  // Relative luminance and contrast as the accessibility guidelines for the web define them.
  const auto luminance = [](const QColor& color) {
    const auto part = [](double c) {
      return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF());
  };
  const auto contrast = [&](const QColor& a, const QColor& b) {
    const double x = luminance(a);
    const double y = luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
  };
  auto& app = static_cast<QApplication&>(*QCoreApplication::instance());
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    ApplyTheme(app, theme);
    const QPalette palette = QApplication::palette();
    const ThemeColors colors(palette);
    const QColor text = palette.color(QPalette::Text);
    EXPECT_EQ(colors.dark, theme == Theme::Dark);
    for (const QColor& ground :
         {colors.card, colors.outputFill, colors.changedFill, colors.errorFill}) {
      EXPECT_GE(contrast(text, ground), 4.5) << FromQt(ground.name());
    }
    EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), colors.card), 4.5);
    EXPECT_GE(contrast(colors.errorBorder, colors.card), 3);
    EXPECT_GE(contrast(colors.accent, colors.card), 3);
  }
}

}  // namespace
}  // namespace veldox::testing
