#include "ui/fixed_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPlainTextEdit>

#include "tests/ui/window_test.h"

namespace veldox::testing {
namespace {

/// A family of the system whose letters differ in width, empty where there is none.
QString ProportionalFamily() {
  for (const QString& family : QFontDatabase::families()) {
    const QFontMetricsF metrics{QFont(family)};
    if (metrics.horizontalAdvance(QLatin1Char('W')) >
        1.2 * metrics.horizontalAdvance(QLatin1Char('i'))) {
      return family;
    }
  }
  return {};
}

double Width(const QFont& font, const char* text) {
  return QFontMetricsF(font).horizontalAdvance(QString::fromUtf8(text));
}

TEST(FixedFont, AProportionalFontIsReplacedInItsSize) {
  const QString family = ProportionalFamily();
  ASSERT_FALSE(family.isEmpty()) << "this test needs a font with letters of several widths";
  const QFont wanted(family, 13);
  EXPECT_FALSE(IsFixedPitch(wanted));
  const QFont font = FixedPitchFont(wanted);
  EXPECT_TRUE(IsFixedPitch(font)) << FromQt(QFontInfo(font).family());
  EXPECT_NEAR(Width(font, "iiiiiiiiii"), Width(font, "WWWW 12.50"), 0.1);
  EXPECT_EQ(font.pointSize(), 13);
}

TEST(FixedFont, AFontThatIsFixedIsKept) {
  const QFont fixed = FixedPitchFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  EXPECT_EQ(FixedPitchFont(fixed), fixed);
}

class ReportFontTest : public WindowTest {};

TEST_F(ReportFontTest, ColumnsOfAReportStandUnderEachOther) {
  QWidget& window = Open("CubicInch");
  Model<TextControl>("Form1.Text39").SetText("10");
  Model<Command>("Form1.Command20").Click();
  Settle();
  const QFont font = Child(window, "Text38").font();
  EXPECT_TRUE(IsFixedPitch(font)) << FromQt(QFontInfo(font).family());
}

}  // namespace
}  // namespace veldox::testing
