#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <fstream>
#include <iterator>

#include "tests/ui/window_test.h"
#include "ui/help_bar.h"
#include "ui/qt_printer.h"

namespace veldox::testing {
namespace {

class ReportPanelTest : public WindowTest {
 protected:
  ReportPanelTest() : window_(Open("CubicInch")) {
    Model<TextControl>("Form1.Text39").SetText("1");
    auto& button = Child<QPushButton>(window_, "Command20");
    button.setFocus();
    button.click();
    Settle();
  }

  ReportBox& Box() { return Model<ReportBox>("Form1.Text38"); }
  QPlainTextEdit& Edit() { return Child<QPlainTextEdit>(window_, "Text38"); }
  QPushButton& ButtonOf(const char* caption) {
    for (QPushButton* button : window_.findChildren<QPushButton*>()) {
      if (button->text().startsWith(QLatin1String(caption))) return *button;
    }
    throw std::runtime_error(std::string("no button ") + caption);
  }

  QWidget& window_;
};

TEST_F(ReportPanelTest, OpensWithTheFocusAndFitsTheScreen) {
  EXPECT_TRUE(Edit().isVisible());
  EXPECT_TRUE(Edit().hasFocus());
  EXPECT_LE(window_.height(), kScreenHeight);
  EXPECT_GE(Edit().height(), 15 * QFontMetrics(Edit().font()).lineSpacing());
}

TEST_F(ReportPanelTest, ComesBeforeFramesThatDoNotFitBesideIt) {
  QWidget& window = Open("CompRatio");
  Child<QPushButton>(window, "Command8").click();
  Settle();
  const auto& edit = Child<QPlainTextEdit>(window, "Text38");
  EXPECT_GE(edit.height(), 22 * QFontMetrics(edit.font()).lineSpacing());
  // The frames have their two fifths, and all they want when it is closed.
  const auto* frames = window.findChild<QScrollArea*>();
  const int shared = frames->height();
  EXPECT_GE(shared, edit.height() / 2);
  Model<ReportBox>("Form1CR.Text38").CloseReport();
  Settle();
  EXPECT_GT(frames->height(), shared);
  EXPECT_EQ(frames->verticalScrollBar()->maximum(), 0);
}

TEST_F(ReportPanelTest, ShowsAllLinesOfALongReport) {
  Box().CloseReport();
  Model<TextControl>("Form1.Text39").SetText("0.1");
  host.Answer(Button::OK);
  Model<Command>("Form1.Command20").Click();
  host.messages.clear();
  // 3600 rows, the lines before them and the closing line.
  EXPECT_GT(Edit().blockCount(), 3601);
}

TEST_F(ReportPanelTest, AnyKeyClosesItAndTheCommandHasTheFocusAgain) {
  const int before = window_.height();
  PressKey(Edit(), Qt::Key_X, QStringLiteral("x"));
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_TRUE(Box().report().empty());
  EXPECT_TRUE(Child(window_, "Command20").hasFocus());
  EXPECT_LT(window_.height(), before);
}

TEST_F(ReportPanelTest, EscapeClosesItAndCtrlKeysDoNot) {
  PressKey(Edit(), Qt::Key_C, QStringLiteral("\x03"), Qt::ControlModifier);
  PressKey(Edit(), Qt::Key_Down);
  EXPECT_TRUE(Edit().isVisible());
  PressKey(Edit(), Qt::Key_Escape, QStringLiteral("\x1b"));
  EXPECT_FALSE(Edit().isVisible());
}

TEST_F(ReportPanelTest, KeepsItsColumnHeadsInSight) {
  auto* heads = dynamic_cast<QWidget*>(
      *std::find_if(Edit().children().begin(), Edit().children().end(),
                    [](QObject* child) { return dynamic_cast<ReportHeads*>(child) != nullptr; }));
  ASSERT_NE(heads, nullptr);
  EXPECT_FALSE(heads->isVisible());
  Edit().verticalScrollBar()->setValue(100);
  Settle();
  EXPECT_TRUE(heads->isVisible());
  EXPECT_EQ(heads->width(), Edit().viewport()->width());
  Edit().verticalScrollBar()->setValue(0);
  Settle();
  EXPECT_FALSE(heads->isVisible());
  // The keyboard keeps them too, and the row with the caret is never under them.
  const QPoint top = Edit().viewport()->geometry().topLeft();
  const auto expectInSight = [&] {
    EXPECT_TRUE(heads->isVisible());
    EXPECT_EQ(heads->pos(), top);
    EXPECT_GE(Edit().cursorRect().top(), heads->height() - 2);
  };
  for (int i = 0; i < 40; ++i) PressKey(Edit(), Qt::Key_Down);
  expectInSight();
  for (int i = 0; i < 2; ++i) PressKey(Edit(), Qt::Key_PageDown);
  expectInSight();
  PressKey(Edit(), Qt::Key_PageUp);
  expectInSight();
  PressKey(Edit(), Qt::Key_End, {}, Qt::ControlModifier);
  expectInSight();
  for (int i = 0; i < 25; ++i) PressKey(Edit(), Qt::Key_Up);
  expectInSight();
}

TEST_F(ReportPanelTest, ItsCloseButtonGivesTheKeyboardBackToTheCommand) {
  QPushButton& close = ButtonOf("Close");
  close.setFocus(Qt::TabFocusReason);
  close.click();
  Settle();
  EXPECT_FALSE(Edit().isVisible());
  EXPECT_TRUE(Child(window_, "Command20").hasFocus());
  EXPECT_NE(Model<Label>("Form1.Label7").caption(), Model<Command>("Form1.subend").help());
}

TEST_F(ReportPanelTest, TabGoesThroughItsButtonsBeforeWhatStandsUnderIt) {
  Edit().setFocus(Qt::TabFocusReason);
  QStringList visited;
  for (int i = 0; i < 7; ++i) {
    PressKey(*QApplication::focusWidget(), Qt::Key_Tab);
    visited.append(static_cast<QPushButton*>(QApplication::focusWidget())->text().left(4));
  }
  EXPECT_EQ(visited.join(QLatin1Char(' ')), QStringLiteral("Find Save Prev Writ Prin Clos &Qui"));
  EXPECT_EQ(Model<Label>("Form1.Label7").caption(), Model<Command>("Form1.subend").help());
  ButtonOf("Preview").setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Model<Label>("Form1.Label7").caption(),
            "Show the pages of this report as they would be printed.");
}

TEST_F(ReportPanelTest, FindsATextRoundItsEnd) {
  ButtonOf("Find").click();
  auto& bar = Child(window_, "FindBar");
  ASSERT_TRUE(bar.isVisible());
  auto& wanted = *bar.findChild<QLineEdit*>();
  wanted.setText(QStringLiteral("Total Number"));
  PressKey(wanted, Qt::Key_Return, QStringLiteral("\r"));
  EXPECT_EQ(Edit().textCursor().selectedText(), QStringLiteral("Total Number"));
  PressKey(wanted, Qt::Key_Return, QStringLiteral("\r"));
  EXPECT_EQ(Edit().textCursor().selectedText(), QStringLiteral("Total Number"));
  wanted.setText(QStringLiteral("no such text"));
  PressKey(wanted, Qt::Key_Return, QStringLiteral("\r"));
  bool told = false;
  for (const QLabel* label : bar.findChildren<QLabel*>()) {
    told = told || label->text() == QStringLiteral("Not in this report.");
  }
  EXPECT_TRUE(told);
  PressKey(wanted, Qt::Key_Escape);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_TRUE(Edit().isVisible());
}

TEST_F(ReportPanelTest, SavesItsPagesAsPdf) {
  const std::filesystem::path file = host.folder / "report.pdf";
  host.AnswerFile(file);
  ButtonOf("Save as PDF").click();
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(stream)),
                          std::istreambuf_iterator<char>());
  EXPECT_EQ(bytes.rfind("%PDF-", 0), 0U);
  EXPECT_NE(bytes.find("%%EOF"), std::string::npos);
  EXPECT_TRUE(Edit().isVisible());
}

TEST_F(ReportPanelTest, WritesToAFileByItsButton) {
  const std::filesystem::path file = host.folder / "report.txt";
  host.AnswerFile(file);
  ButtonOf("Write to File").click();
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_FALSE(Edit().isVisible());
}

}  // namespace
}  // namespace veldox::testing
