#include "ui/pick_list_face.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QToolTip>

#include "tests/ui/window_test.h"

namespace veldox::testing {
namespace {

class PickListFaceTest : public WindowTest {
 protected:
  PickListFaceTest() : window_(Open("Chevy_SB")) {}

  PickList& List() { return Model<PickList>("Form21.Combo1"); }
  QLineEdit& Line() { return Child<QLineEdit>(window_, "Combo1"); }
  PickView& View() { return static_cast<PickView&>(Child<QListView>(window_, "Combo1_Rows")); }
  QString Count() { return Child<QLabel>(window_, "Combo1_Count").text(); }
  QPoint At(int row) {
    View().scrollTo(View().model()->index(row, 0));
    return View().visualRect(View().model()->index(row, 0)).center();
  }
  void ClickRow(int row) {
    const QPoint at = At(row);
    Mouse(*View().viewport(), QEvent::MouseButtonPress, at);
    Mouse(*View().viewport(), QEvent::MouseButtonRelease, at);
    Settle();
  }
  std::string Bore() { return Model<Field>("Form1.Text1").text(); }

  QWidget& window_;
};

TEST_F(PickListFaceTest, ShowsTheRowsAndTheirNumberAndFitsTheScreen) {
  EXPECT_EQ(View().model()->rowCount(), 76);
  EXPECT_EQ(Count(), QStringLiteral("76 rows"));
  EXPECT_TRUE(Line().hasFocus());
  EXPECT_LE(window_.width(), kScreenWidth);
  EXPECT_LE(window_.height(), kScreenHeight);
  EXPECT_GE(View().viewport()->height() / View().sizeHintForRow(0), 20);
  EXPECT_EQ(window_.windowTitle(), QStringLiteral("Select Engine - Bore - Stroke - Rod Length - "
                                                  "Number of Cylinders"));
}

TEST_F(PickListFaceTest, EveryTypedLetterNarrowsTheList) {
  TypeText(Line(), "350");
  const int first = View().model()->rowCount();
  TypeText(Line(), " 4.0");
  EXPECT_LT(View().model()->rowCount(), first);
  EXPECT_EQ(View().model()->rowCount(), 1);
  EXPECT_EQ(View().model()->index(0, 0).data().toString(), QStringLiteral("350 | 4.00 3.48 5.7 8"));
  EXPECT_EQ(Count(), QStringLiteral("1 of 76 rows"));
  PressKey(Line(), Qt::Key_Escape);
  EXPECT_TRUE(Line().text().isEmpty());
  EXPECT_EQ(View().model()->rowCount(), 76);
}

TEST_F(PickListFaceTest, EnterPicksTheFirstRowFound) {
  TypeText(Line(), "350 4.0");
  PressKey(Line(), Qt::Key_Return);
  EXPECT_EQ(List().chosenText(), "350 | 4.00 3.48 5.7 8");
  EXPECT_EQ(Bore(), "4.00000");
}

TEST_F(PickListFaceTest, ArrowKeysMoveAndPickNothing) {
  const std::string before = Bore();
  for (int i = 0; i < 3; ++i) PressKey(Line(), Qt::Key_Down);
  EXPECT_EQ(List().current(), 2);
  PressKey(Line(), Qt::Key_PageDown);
  EXPECT_GT(List().current(), 15);
  PressKey(Line(), Qt::Key_End, {}, Qt::ControlModifier);
  const QRect last = View().visualRect(View().model()->index(List().current(), 0));
  EXPECT_TRUE(View().viewport()->rect().contains(last));
  PressKey(Line(), Qt::Key_Home, {}, Qt::ControlModifier);
  EXPECT_EQ(List().current(), 0);
  EXPECT_EQ(Bore(), before);
}

TEST_F(PickListFaceTest, AClickPicksARowAndTheLineKeepsTheFocus) {
  ClickRow(9);
  EXPECT_EQ(List().chosenText(), "350 | 4.00 3.48 5.7 8");
  EXPECT_EQ(Bore(), "4.00000");
  EXPECT_TRUE(Line().hasFocus());
  EXPECT_EQ(List().screen().focus(), &List());
  // A name without figures picks nothing.
  ASSERT_EQ(List().RowAt(11).text, "299");
  ClickRow(11);
  EXPECT_EQ(List().chosenText(), "350 | 4.00 3.48 5.7 8");
}

TEST_F(PickListFaceTest, HoverTellsTheSourceBelowAndInATip) {
  const QPoint at = At(2);
  Mouse(*View().viewport(), QEvent::MouseMove, at);
  const std::string told = List().RowAt(2).text + "\r\n" + List().RowAt(2).note;
  EXPECT_EQ(Model<Label>("Form21.Label1").caption(), told);
  EXPECT_EQ(FromQt(View().model()->index(2, 0).data(Qt::ToolTipRole).toString()), told);
  EXPECT_EQ(List().RowAt(2).note.rfind("Source: ", 0), 0U);
  EXPECT_EQ(View().model()->index(11, 0).data(Qt::ToolTipRole).toString(),
            QStringLiteral("Values not verified - add your own row in user_bsr.prm"));
}

TEST_F(PickListFaceTest, TheListGrowsAndShrinksWithTheWindow) {
  window_.resize(900, 700);
  Settle();
  const QSize large = View().size();
  EXPECT_GT(large.width(), 850);
  EXPECT_GT(large.height(), 520);
  window_.resize(520, 320);
  Settle();
  EXPECT_LT(View().height(), 240);
  // The rows' last figure is still inside.
  EXPECT_LE(View().geometry().right(), View().parentWidget()->width());
}

TEST_F(PickListFaceTest, ComesBackToItsPlace) {
  View().scrollTo(View().model()->index(40, 0), QAbstractItemView::PositionAtTop);
  const int top = View().indexAt(QPoint(8, 2)).row();
  EXPECT_GT(top, 30);
  Open("AMC");
  EXPECT_EQ(View().indexAt(QPoint(8, 2)).row(), 0);
  Open("Chevy_SB");
  EXPECT_EQ(View().indexAt(QPoint(8, 2)).row(), top);
}

TEST_F(PickListFaceTest, TheLauncherOpensAllMakes) {
  window_.close();
  ClickOn(Child(windows->main(), "Launch_Engine_Spec"));
  EXPECT_TRUE(window_.isVisible());
  EXPECT_EQ(Count(), QStringLiteral("1647 rows"));
  TypeText(Line(), "mazda 81ci");
  EXPECT_EQ(View().model()->rowCount(), 2);
}

}  // namespace
}  // namespace veldox::testing
