// The window of the blower screen and its tables.

#include <QClipboard>
#include <QLabel>
#include <QScrollArea>
#include <cctype>
#include <map>

#include "airfuel/blower_screen.h"
#include "tests/ui/window_test.h"
#include "ui/field_edit.h"

namespace veldox::testing {
namespace {

class BlowerWindowTest : public WindowTest {
 protected:
  BlowerWindowTest() : window(Open("Blowers")) {}

  FieldEdit& Edit(const char* name) { return Child<FieldEdit>(window, name); }

  Form14& form = static_cast<Form14&>(*shell().FindScreen("Form14"));
  QWidget& window;
};

TEST_F(BlowerWindowTest, FitsTheSmallestScreen) {
  EXPECT_LE(window.width(), kScreenWidth);
  EXPECT_LE(window.height(), kScreenHeight);
  for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
    if (!area->isVisible()) continue;
    EXPECT_GE(area->viewport()->width(), area->widget()->minimumSizeHint().width());
  }
}

TEST_F(BlowerWindowTest, NoTwoCommandsHaveTheSameKey) {
  std::map<char, std::string> taken;
  for (const Control* control : form.ReadingOrder()) {
    if (control->kind() != ControlKind::Command) continue;
    const std::size_t at = control->caption().find('&');
    if (at == std::string::npos) continue;
    const char key = static_cast<char>(std::toupper(control->caption().at(at + 1)));
    const auto [other, isFree] = taken.emplace(key, control->caption());
    EXPECT_TRUE(isFree) << control->caption() << " and " << other->second;
  }
  EXPECT_GE(taken.size(), 20U);
}

TEST_F(BlowerWindowTest, ATableTakesAColumnFromASpreadsheet) {
  ClickOn(Child(window, "Command22"));
  EXPECT_TRUE(Edit("Text29(0)").isVisible());
  QApplication::clipboard()->setText(QStringLiteral("0.80\n0.82\n0.85\n"));
  Edit("Text29(1)").setFocus(Qt::TabFocusReason);
  PressKey(Edit("Text29(1)"), Qt::Key_V, {}, Qt::ControlModifier);
  EXPECT_EQ(form.Text29[0].text(), "0.75");
  EXPECT_EQ(form.Text29[1].text(), "0.80");
  EXPECT_EQ(form.Text29[3].text(), "0.85");
  EXPECT_EQ(form.Text29[4].text(), "0.75");
  EXPECT_EQ(FromQt(Edit("Text29(53)").accessibleName()), "Volumetric Efficiency, 27500");
  ClickOn(Child(window, "Command23"));
  EXPECT_FALSE(form.Frame9.Shown());
}

TEST_F(BlowerWindowTest, UnitsStandBesideTheFields) {
  const auto unitsShown = [this] {
    QStringList units;
    for (const QLabel* label : Child(window, "Frame5").findChildren<QLabel*>()) {
      units << label->text();
    }
    return units;
  };
  EXPECT_TRUE(unitsShown().contains(QStringLiteral("psi")));
  EXPECT_TRUE(unitsShown().contains(QStringLiteral("deg F")));
  ClickOn(Child(window, "Check1"));
  EXPECT_TRUE(unitsShown().contains(QStringLiteral("kPa")));
  EXPECT_TRUE(unitsShown().contains(QStringLiteral("deg C")));
}

}  // namespace
}  // namespace veldox::testing
