#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <cmath>
#include <vector>

#include "cam/timing_tape.h"
#include "tests/ui/window_test.h"
#include "ui/qt_printer.h"

namespace veldox::testing {
namespace {

constexpr int kDotsPerInch = 300;
constexpr int kTwipsPerInch = 1440;

class TimingTapeWindowTest : public WindowTest {
 protected:
  /// The page of a tape as a printer would print it, from its PDF file.
  QImage Printed(const char* diameter) {
    const std::filesystem::path pdf = host.folder / "tape.pdf";
    shell().Choose(*Shell::FindMenuItem("Timing_Tape"));
    Settle();
    Model<Field>("Main.Text18").SetText(diameter);
    host.AnswerFile(pdf);
    Model<Command>("Main.Command19").Click();
    QProcess converter;
    converter.start(QStringLiteral("pdftoppm"),
                    {QStringLiteral("-gray"), QStringLiteral("-r"), QString::number(kDotsPerInch),
                     ToQt(pdf.string()), ToQt((host.folder / "tape").string())});
    EXPECT_TRUE(converter.waitForFinished(60'000)) << "pdftoppm of poppler-utils is missing";
    const QDir folder(ToQt(host.folder.string()));
    const QStringList pages = folder.entryList({QStringLiteral("tape*.pgm")});
    EXPECT_EQ(pages.size(), 1);
    return pages.isEmpty() ? QImage() : QImage(folder.filePath(pages.first()));
  }
};

/// The middles of the marks that a line through the page meets, in dots.
std::vector<double> MarksOn(const QImage& page, int y) {
  constexpr int kDark = 128;
  std::vector<double> marks;
  int begin = -1;
  for (int x = 0; x < page.width(); ++x) {
    const bool isDark = qGray(page.pixel(x, y)) < kDark;
    if (isDark && begin < 0) begin = x;
    if (!isDark && begin >= 0) {
      marks.push_back((begin + x - 1) / 2.0);
      begin = -1;
    }
  }
  return marks;
}

/// A line through the middle of the row of marks that begins at a height in twips.
int LineThrough(int y, int tickSize) {
  constexpr int kMarginPoints = 12;
  constexpr int kTwipsPerPoint = 20;
  return (y + tickSize * kTwipsPerPoint * 6 / 10 + kMarginPoints * kTwipsPerPoint) * kDotsPerInch /
         kTwipsPerInch;
}

TEST_F(TimingTapeWindowTest, MarksMeasureTheDegreesOfTheBalancer) {
  const QImage page = Printed("6.75");
  ASSERT_FALSE(page.isNull());
  EXPECT_GT(page.width(), page.height());
  const std::vector<double> coarse = MarksOn(page, LineThrough(2500, 42));
  ASSERT_EQ(coarse.size(), 13U);
  // 6.75 * pi * 10 / 360 inches; a mark is no more than a dot and a twip away from its place.
  constexpr double kTenDegrees = 0.5890;
  constexpr double kTolerance = 1.0 / kDotsPerInch + 1.0 / kTwipsPerInch;
  for (std::size_t i = 1; i < coarse.size(); ++i) {
    EXPECT_NEAR((coarse[i] - coarse[0]) / kDotsPerInch, kTenDegrees * static_cast<double>(i),
                kTolerance + 5e-5 * static_cast<double>(i))
        << i;
  }
  EXPECT_EQ(MarksOn(page, LineThrough(3700, 42)).size(), 61U);
}

TEST_F(TimingTapeWindowTest, TheLongestTapeOfLetterPaperIsWhole) {
  const QImage page = Printed("10");
  ASSERT_FALSE(page.isNull());
  const std::vector<double> coarse = MarksOn(page, LineThrough(4200, 42));
  ASSERT_EQ(coarse.size(), 13U);
  // 10 * pi * 120 / 360
  EXPECT_NEAR((coarse.back() - coarse.front()) / kDotsPerInch, 10.4720, 0.003);
}

TEST_F(TimingTapeWindowTest, ThePrinterIsSetToPortraitAgain) {
  for (const auto before : {QPageLayout::Portrait, QPageLayout::Landscape}) {
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt((host.folder / "tape.pdf").string()));
    printer.setPageOrientation(before);
    {
      const PaperLayout layout(printer, PageJob::Measured);
      EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
      PainterPageSurface surface(printer, PageJob::Measured);
      EXPECT_TRUE(surface.landscape());
      PrintTimingTape(surface, 6.75, DecimalMark::Point);
    }
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Portrait);
    // A report leaves the paper as it lies.
    printer.setPageOrientation(before);
    { const PaperLayout layout(printer, PageJob::Report); }
    EXPECT_EQ(printer.pageLayout().orientation(), before);
  }
}

TEST_F(TimingTapeWindowTest, ItsPanelTakesTheLaunchersPlaceAndGoes) {
  QWidget* window = windows->WindowOf(shell());
  ASSERT_NE(window, nullptr);
  shell().Choose(*Shell::FindMenuItem("Timing_Tape"));
  Settle();
  auto& diameter = Child<QLineEdit>(*window, "Text18");
  EXPECT_TRUE(diameter.isVisible());
  EXPECT_TRUE(diameter.hasFocus());
  Child<QPushButton>(*window, "Command20").click();
  Settle();
  EXPECT_FALSE(diameter.isVisible());
}

}  // namespace
}  // namespace veldox::testing
