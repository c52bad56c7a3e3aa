// The switch at the foot of a window keeps results up to date while the user types.

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <algorithm>

#include "tests/ui/window_test.h"
#include "ui/field_edit.h"

namespace veldox::testing {
namespace {

class KeepCurrentWindowTest : public WindowTest {
 protected:
  KeepCurrentWindowTest() : window(Open("CubicInch")) {}

  FieldEdit& Edit(const char* name) { return static_cast<FieldEdit&>(Child(window, name)); }
  QLabel& Line() { return Child<QLabel>(window, "PreviewLine"); }
  QCheckBox& Switch() { return Child<QCheckBox>(window, "KeepUpToDate"); }
  void Enter(const char* name) {
    Edit(name).setFocus(Qt::TabFocusReason);
    Settle();
  }

  /// Results come at once, or after a rest where the machine has much to do.
  bool Comes(const char* name, const char* text) {
    return WaitFor([&] { return Edit(name).text() == QLatin1String(text); });
  }

  QWidget& window;
};

TEST_F(KeepCurrentWindowTest, ResultsFollowTheTypingAndOneStepTakesBothBack) {
  ClickOn(Child<QPushButton>(window, "Command1"));
  EXPECT_FALSE(Switch().isChecked());
  ClickOn(Switch());
  EXPECT_TRUE(Switch().isChecked());
  EXPECT_EQ(Line().text(), QStringLiteral("\"Engine Size\" will run again after every entry."));
  Enter("Text1");
  TypeText(Edit("Text1"), "4.125");
  EXPECT_TRUE(Comes("Text6", "347.4650"));
  EXPECT_EQ(Edit("Text1").text(), QStringLiteral("4.125"));
  EXPECT_TRUE(Edit("Text1").hasFocus());
  EXPECT_EQ(Edit("Text1").cursorPosition(), 5);
  Enter("Text3");
  program->context().history.Undo();
  Settle();
  EXPECT_EQ(Edit("Text1").text(), QStringLiteral("4.0"));
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("326.7256"));
}

TEST_F(KeepCurrentWindowTest, TypingInTheMiddleKeepsTheCaret) {
  ClickOn(Child<QPushButton>(window, "Command1"));
  ClickOn(Switch());
  Enter("Text1");
  TypeText(Edit("Text1"), "4.0");
  Edit("Text1").setCursorPosition(2);
  TypeText(Edit("Text1"), "1");
  EXPECT_EQ(Edit("Text1").text(), QStringLiteral("4.10"));
  EXPECT_EQ(Edit("Text1").cursorPosition(), 3);
  EXPECT_TRUE(Comes("Text6", "343.2661"));
}

TEST_F(KeepCurrentWindowTest, ResultsThatAreOutOfDateAreSlantedAndSayIt) {
  ClickOn(Child<QPushButton>(window, "Command1"));
  ClickOn(Switch());
  Enter("Text1");
  PressKey(Edit("Text1"), Qt::Key_Backspace, QStringLiteral("\b"));
  EXPECT_EQ(Edit("Text1").text(), QString());
  EXPECT_TRUE(WaitFor([&] {
    return Line().text().startsWith(QStringLiteral("Out of date: \"Bore\""));
  })) << FromQt(Line().text());
  EXPECT_TRUE(Edit("Text6").font().italic());
  EXPECT_TRUE(Edit("Text6").toolTip().startsWith(QStringLiteral("Out of date")));
  EXPECT_TRUE(Edit("Text6").accessibleDescription().startsWith(QStringLiteral("Out of date")));
  EXPECT_FALSE(Edit("Text1").font().italic());
  Enter("Text1");
  TypeText(Edit("Text1"), "4");
  EXPECT_TRUE(WaitFor([&] { return !Edit("Text6").font().italic(); }));
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("326.7256"));
  EXPECT_FALSE(Edit("Text6").toolTip().startsWith(QStringLiteral("Out of date")));
}

TEST_F(KeepCurrentWindowTest, TheTabKeyComesToTheSwitchLast) {
  auto& quit = Child<QPushButton>(window, "subend");
  quit.setFocus(Qt::TabFocusReason);
  PressKey(quit, Qt::Key_Tab, QStringLiteral("\t"));
  EXPECT_TRUE(Switch().hasFocus());
  PressKey(Switch(), Qt::Key_Space, QStringLiteral(" "));
  EXPECT_TRUE(Switch().isChecked());
  EXPECT_EQ(Line().text(),
            QStringLiteral("Click the command whose results are to be kept up to date."));
}

TEST_F(KeepCurrentWindowTest, AReportThatIsMadeAnewStaysScrolled) {
  Model<TextControl>("Form1.Text39").SetText("1");
  ClickOn(Child<QPushButton>(window, "Command20"));
  auto& report = Child<QPlainTextEdit>(window, "Text38");
  ClickOn(Switch());
  report.verticalScrollBar()->setValue(100);
  const QString before = report.toPlainText();
  Enter("Text3");
  TypeText(Edit("Text3"), "3.5");
  EXPECT_TRUE(
      WaitFor([&] { return report.toPlainText().contains(QStringLiteral("Stroke = 3.5 ")); }));
  EXPECT_NE(report.toPlainText(), before);
  EXPECT_EQ(report.verticalScrollBar()->value(), 100);
  EXPECT_TRUE(Edit("Text3").hasFocus());
  for (int i = 0; i < 3; ++i) PressKey(Edit("Text3"), Qt::Key_Backspace, QStringLiteral("\b"));
  const auto isTold = [&] {
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
      return label->isVisible() && label->text() == QLatin1String(kOutOfDate);
    });
  };
  EXPECT_TRUE(WaitFor(isTold)) << "beside the report";
}

}  // namespace
}  // namespace veldox::testing
