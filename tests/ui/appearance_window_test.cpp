#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>

#include "tests/ui/window_test.h"
#include "ui/field_edit.h"
#include "ui/frame_panel.h"
#include "ui/screen_window.h"

namespace veldox::testing {
namespace {

/// What is chosen of the appearance reaches the windows.
class AppearanceWindowTest : public WindowTest {
 protected:
  ~AppearanceWindowTest() override {
    Choose("Default_Look");
    EXPECT_EQ(windows->main().faces().look().appearance(), Appearance());
  }

  void Choose(const char* menuItem) {
    shell().Choose(*Shell::FindMenuItem(menuItem));
    Settle();
  }
  void ChooseFont(const char* menuItem, int size, bool bold = false) {
    host.AnswerFont(FontChoice{"DejaVu Sans", size, bold, false});
    Choose(menuItem);
  }
  void ChooseColor(const char* menuItem, std::int32_t color) {
    host.AnswerColor(color);
    Choose(menuItem);
  }
  static FieldEdit& Edit(QWidget& window, const char* name) {
    return static_cast<FieldEdit&>(Child(window, name));
  }
  static QLabel& LabelOf(QWidget& window, const QWidget& edit) {
    for (QLabel* label : window.findChildren<QLabel*>()) {
      if (label->buddy() == &edit) return *label;
    }
    throw std::runtime_error("no label");
  }
};

TEST_F(AppearanceWindowTest, FontsReachWindowsThatAreOpenAndThatOpenLater) {
  QWidget& engine = Open("CubicInch");
  const int before = Edit(engine, "Text1").width();
  ChooseFont("EntryFont", 17, true);
  ChooseFont("LabelFont", 15);
  ChooseFont("CommandFont", 14);
  ChooseFont("Fonts", 13);
  for (QWidget* window : {&engine, &Open("WEATHER")}) {
    FieldEdit& edit = Edit(*window, "Text1");
    EXPECT_EQ(edit.font().pointSize(), 17);
    EXPECT_TRUE(edit.font().bold());
    EXPECT_EQ(LabelOf(*window, edit).font().pointSize(), 15);
    EXPECT_FALSE(LabelOf(*window, edit).font().bold());
    EXPECT_EQ(Child(*window, "Command1").font().pointSize(), 14);
    EXPECT_EQ(Child(*window, "subend").font().pointSize(), 14);
  }
  // The box has grown with its letters.
  EXPECT_GT(Edit(engine, "Text1").width(), before);
  FieldEdit& bore = Edit(engine, "Text1");
  EXPECT_GE(bore.width(), bore.fontMetrics().horizontalAdvance(QStringLiteral("123.12345678")));
}

TEST_F(AppearanceWindowTest, TheWindowKeepsWhatItHoldsAndWhereTheKeyboardIs) {
  QWidget& engine = Open("CubicInch");
  Edit(engine, "Text3").setFocus(Qt::TabFocusReason);
  TypeText(Edit(engine, "Text3"), "3.875");
  ChooseFont("EntryFont", 15);
  EXPECT_EQ(FromQt(Edit(engine, "Text3").text()), "3.875");
  EXPECT_EQ(engine.focusWidget(), &Edit(engine, "Text3"));
  EXPECT_EQ(shell().FindScreen("Form1")->focus(), shell().FindControl("Form1.Text3"));
  // And it still works.
  ClickOn(Child(engine, "Command1"));
  EXPECT_EQ(Model<Field>("Form1.Text6").text(), FromQt(Edit(engine, "Text6").text()));
  EXPECT_NE(Model<Field>("Form1.Text6").text(), "326.7256");
}

TEST_F(AppearanceWindowTest, DefaultLookGivesAWindowItsSizeBack) {
  QWidget& engine = Open("CubicInch");
  QWidget& gear = Open("GEAR");
  const QSize size = engine.size();
  const QSize gearSize = gear.size();
  ChooseFont("EntryFont", 20);
  ChooseFont("LabelFont", 20);
  EXPECT_NE(engine.size(), size);
  EXPECT_LE(engine.width(), kScreenWidth);
  EXPECT_LE(engine.height(), kScreenHeight);
  Choose("Default_Look");
  EXPECT_EQ(engine.size(), size);
  EXPECT_EQ(gear.size(), gearSize);
  EXPECT_EQ(Edit(engine, "Text1").font(), QApplication::font());
}

TEST_F(AppearanceWindowTest, ASizeThatTheUserGaveStays) {
  QWidget& engine = Open("CubicInch");
  engine.resize(900, 555);
  Settle();
  ChooseFont("LabelFont", 14);
  EXPECT_EQ(engine.size(), QSize(900, 555));
}

TEST_F(AppearanceWindowTest, ColorsReachTheirParts) {
  QWidget& engine = Open("CubicInch");
  ChooseColor("LabelColor", 0x0000FF);
  ChooseColor("FrameColor", 0xC0FFFF);
  ChooseColor("QuitColor", 0x8080FF);
  ChooseColor("BoxColor", 0x00FFFF);
  ChooseColor("BoxFColor", 0xFF0000);
  const QLabel& label = LabelOf(engine, Edit(engine, "Text1"));
  EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(255, 0, 0));
  const auto* panel = dynamic_cast<const FramePanel*>(label.parentWidget());
  ASSERT_NE(panel, nullptr);
  EXPECT_EQ(panel->ground(), QColor(0xFF, 0xFF, 0xC0));
  // The corners are round; inside, at the edge, is the ground.
  EXPECT_EQ(const_cast<FramePanel*>(panel)->grab().toImage().pixelColor(panel->width() / 2, 3),
            QColor(0xFF, 0xFF, 0xC0));
  EXPECT_EQ(Child(engine, "subend").palette().color(QPalette::Button), QColor(0xFF, 0x80, 0x80));
  EXPECT_NE(Child(engine, "Command1").palette().color(QPalette::Button), QColor(0xFF, 0x80, 0x80));
  shell().FindScreen("Form1")->ShowHelp("A sentence.");
  Settle();
  const auto labels = engine.findChildren<QLabel*>();
  const auto found = std::find_if(labels.begin(), labels.end(), [](const QLabel* each) {
    return each->text() == QStringLiteral("A sentence.");
  });
  ASSERT_NE(found, labels.end());
  QLabel& help = **found;
  EXPECT_EQ(help.palette().color(QPalette::WindowText), QColor(0, 0, 255));
  EXPECT_EQ(help.parentWidget()->grab().toImage().pixelColor(help.parentWidget()->width() - 20, 8),
            QColor(255, 255, 0));
}

TEST_F(AppearanceWindowTest, AChosenColorHoldsInLightAndInDark) {
  QWidget& engine = Open("CubicInch");
  ChooseColor("LabelColor", 0x0000FF);
  auto& app = *static_cast<QApplication*>(QCoreApplication::instance());
  ApplyTheme(app, Theme::Dark);
  Settle();
  const FieldEdit& edit = Edit(engine, "Text1");
  EXPECT_EQ(LabelOf(engine, edit).palette().color(QPalette::WindowText), QColor(255, 0, 0));
  EXPECT_LT(edit.palette().color(QPalette::Base).lightness(), 80) << "the rest is dark";
  ApplyTheme(app, Theme::Light);
  Settle();
  EXPECT_GT(edit.palette().color(QPalette::Base).lightness(), 200);
}

TEST_F(AppearanceWindowTest, AlignmentAndBordersAreTakenFromTheirLists) {
  QWidget& engine = Open("CubicInch");
  EXPECT_EQ(Edit(engine, "Text1").alignment() & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);
  Choose("EntryAlig");
  auto* list = &static_cast<QComboBox&>(Child(windows->main(), "Combo3"));
  list->setCurrentIndex(1);
  Q_EMIT list->activated(1);
  Settle();
  EXPECT_EQ(Edit(engine, "Text1").alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
  // The panel is still there, on the row that was picked.
  list = &static_cast<QComboBox&>(Child(windows->main(), "Combo3"));
  EXPECT_TRUE(list->isVisible());
  EXPECT_EQ(list->currentIndex(), 1);

  const auto edge = [&] {
    return Edit(engine, "Text6").grab().toImage().pixelColor(Edit(engine, "Text6").width() / 2, 0);
  };
  const QColor line = edge();
  Choose("T_B_Style");
  Model<ComboList>("Main.Combo4").Pick(0);
  Settle();
  EXPECT_NE(edge(), line);
  const auto sign = [&] { return Child(engine, "Check1").grab().toImage(); };
  const QImage raised = sign();
  Choose("O_C_Style");
  Model<ComboList>("Main.Combo5").Pick(0);
  Settle();
  EXPECT_NE(sign(), raised);
}

TEST_F(AppearanceWindowTest, AReportTakesTheHelpLettersAndStaysInColumns) {
  Model<TextControl>("Form1.Text39").SetText("1");
  QWidget& engine = Open("CubicInch");
  ClickOn(Child(engine, "Command20"));
  ChooseFont("Fonts", 14);
  ChooseColor("BoxColor", 0x00FFFF);
  const auto& report = Child<QPlainTextEdit>(engine, "Text38");
  EXPECT_TRUE(report.isVisible());
  EXPECT_NE(FromQt(report.toPlainText()), "");
  EXPECT_EQ(report.font().pointSize(), 14);
  // The font that was chosen has letters of many widths; a report's have one.
  const QFontMetrics letters(report.font());
  EXPECT_EQ(letters.horizontalAdvance(QLatin1Char('i')),
            letters.horizontalAdvance(QLatin1Char('W')));
  EXPECT_EQ(report.palette().color(QPalette::Base), QColor(255, 255, 0));
  EXPECT_LE(engine.height(), kScreenHeight);
}

TEST_F(AppearanceWindowTest, TheLargestLettersLeaveEveryWindowOnTheScreen) {
  for (const char* item : {"EntryFont", "LabelFont", "CommandFont", "Fonts"}) ChooseFont(item, 32);
  for (const MenuItem& item : Shell::Menu()) {
    if (item.kind != MenuKind::Screen || !shell().MenuEnabled(item)) continue;
    QWidget& window = Open(std::string(item.name).c_str());
    EXPECT_LE(window.width(), kScreenWidth) << item.name;
    EXPECT_LE(window.height(), kScreenHeight) << item.name;
    const Control* quit = shell().FindScreen(item.screen)->QuitCommand();
    if (quit == nullptr) continue;
    const QWidget& button = Child(window, quit->name().c_str());
    EXPECT_EQ(button.visibleRegion().boundingRect(), button.rect()) << item.name;
  }
}

TEST_F(AppearanceWindowTest, AFontThatIsNotThereIsShownByAnother) {
  QWidget& engine = Open("CubicInch");
  host.AnswerFont(FontChoice{"No Such Font", 14, false, false});
  Choose("EntryFont");
  const FieldEdit& edit = Edit(engine, "Text1");
  EXPECT_EQ(edit.font().pointSize(), 14);
  EXPECT_GT(edit.fontMetrics().horizontalAdvance(QStringLiteral("4.0")), 0);
}

TEST_F(AppearanceWindowTest, AScreenSizeReachesTheNextWindowAndLeavesTheOpenOne) {
  QWidget& engine = Open("CubicInch");
  const QSize size = engine.size();
  QWidget& springs = Open("SPRINGS");
  const QSize springsSize = springs.size();
  Choose("LrgScrRes");
  EXPECT_EQ(engine.size(), size);
  // 1300 / 1000 across on this screen, and nothing down.
  ClickOn(Child(springs, "subend"));
  QWidget& again = Open("SPRINGS");
  EXPECT_EQ(again.width(), std::min(1300, qRound(springsSize.width() * 1.3)));
  EXPECT_EQ(again.height(), std::min(700, springsSize.height()));
  Choose("Default_Look");
  ClickOn(Child(again, "subend"));
  EXPECT_EQ(Open("SPRINGS").size(), springsSize);
}

TEST_F(AppearanceWindowTest, OnALargerScreenTheLettersGrowWithTheWindow) {
  ScreenScaling scaling;
  scaling.DetectScreenSize({1920, 1080, 96});
  shell().block().LargeScreen = 1;
  const ScreenWindow large(
      *shell().FindScreen("Form7"), [](Screen&, QWidget*) -> QWidget* { return nullptr; },
      Appearance(), scaling);
  const auto* edit = large.findChild<QWidget*>(QStringLiteral("Text1"));
  ASSERT_NE(edit, nullptr);
  EXPECT_NEAR(edit->font().pointSizeF(), QApplication::font().pointSizeF() * 1000 / 700, 0.06);
  EXPECT_LE(large.width(), 1800);
  EXPECT_LE(large.height(), 1000);
  shell().block().LargeScreen = 0;
}

}  // namespace
}  // namespace veldox::testing
