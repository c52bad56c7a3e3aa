#include "core/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core/error.h"
#include "core/pages.h"
#include "core/screen.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

TEST(Report, LinesLoseTheirMarksAndKeepThemBeside) {
  EXPECT_THAT(
      ReportLines("a\r\nhead_\r\nbold^\r\nend~\r\n_\r\nlast"),
      ElementsAre(MarkedLine{"a", LineMark::None}, MarkedLine{"head", LineMark::Heading},
                  MarkedLine{"bold", LineMark::Bold}, MarkedLine{"end", LineMark::HeadingsEnd},
                  MarkedLine{"", LineMark::Heading}, MarkedLine{"last", LineMark::None}));
}

TEST(Report, ATextWithoutALineBreakIsOneLine) {
  EXPECT_THAT(ReportLines("alone"), ElementsAre(MarkedLine{"alone", LineMark::None}));
  EXPECT_THAT(ReportLines(""), ElementsAre(MarkedLine{"", LineMark::None}));
  EXPECT_THAT(ReportLines("a\r\n"),
              ElementsAre(MarkedLine{"a", LineMark::None}, MarkedLine{"", LineMark::None}));
}

TEST(Report, TheNumbersUnderAnArrowAreSetOffToTheEndOfTheirBlock) {
  const std::vector<MarkedLine> lines = ReportLines(
      "prompt\r\n"
      "          \\|/^\r\n"
      "Head     at its own place^\r\n"
      "  1.10   2.20   3.30^\r\n"
      "  1.1   12.222   3.3^\r\n"
      "\r\n"
      "  4.0    5.0     6.0^\r\n"
      "     \\|/^\r\n"
      " 1.5  -12^\r\n"
      " 2^");
  EXPECT_THAT(SetOffColumns(lines),
              ElementsAre(SetOffColumn{3, 5, 8, 14}, SetOffColumn{8, 10, 6, 9}));
}

TEST(Report, AnArrowOverNothingSetsNothingOff) {
  EXPECT_THAT(SetOffColumns(ReportLines("prompt\r\n     \\|/\r\n 1\r\n\r\n    2000")),
              testing::IsEmpty());
  EXPECT_THAT(SetOffColumns(ReportLines("prompt\r\n     \\|/\r\n    word")), testing::IsEmpty());
  EXPECT_THAT(SetOffColumns(ReportLines("prompt\r\n 1  \\|/")), testing::IsEmpty());
}

TEST(Report, OnlyTheLastCharacterOfALineIsAMark) {
  EXPECT_EQ(ReportBoxText("a_b^c~d\r\nx__\r\ny"), "a_b^c~d\r\nx_\r\ny");
}

TEST(Report, TheBoxShowsNoMarksAndTheFileEndsWithALineBreak) {
  const std::string report = std::string(ReportPrompt) + "head_\r\nbold^\r\nend~\r\nrow";
  const std::string shown =
      "Press the . key to Write this Data to a Disk File Or , key to Print this Data\r\n\r\n"
      "head\r\nbold\r\nend\r\nrow";
  EXPECT_EQ(ReportBoxText(report), shown);
  EXPECT_EQ(ReportFileText(report), shown + "\r\n");
}

TEST(Report, AMarkThatNoLineBreakFollowsStaysInTheFile) {
  EXPECT_EQ(ReportFileText("a\r\nb_"), "a\r\nb_\r\n");
}

TEST(Report, TheWriterEndsWithoutALineBreak) {
  ReportWriter writer(DecimalMark::Comma);
  writer.Add("Bore = ").Add<"0.0#####">(4.125).EndLine(LineMark::Bold);
  writer.AddLines({"one_", "two_"});
  writer.Add<"0.00">(1.005, 8).Add(" mm").EndLine();
  EXPECT_EQ(writer.Finish(),
            std::string(ReportPrompt) + "Bore = 4,125^\r\none_\r\ntwo_\r\n    1,01 mm");
}

class ReportScreen : public Screen {
 public:
  explicit ReportScreen(ProgramContext& context) : Screen(context, "Form1", "Title", "Tag") {}
  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }
  void Show(std::string report) { ShowReport(std::move(report)); }

  Frame Frame1{*this, "Frame1", ""};
  Command Command1{Frame1, "Command1", "Command", "A sentence.", &Screen::Quit};
  ReportBox Text38{Frame1, "Text38"};
};

/// The box of a screen that shows its help sentences in the same place.
class ReportBoxTest : public testing::Test {
 protected:
  ReportBoxTest() {
    host_.folder = folder_.path();
    screen_.Show("prompt\r\nhead_\r\nrow");
  }
  bool Closed() const { return !box_.visible() && box_.text().empty() && box_.report().empty(); }
  bool Open() const { return box_.visible() && box_.text() == "prompt\r\nhead\r\nrow"; }

  TemporaryFolder folder_;
  TestHost host_;
  ProgramContext context_{host_};
  ReportScreen screen_{context_};
  ReportBox& box_ = screen_.Text38;
};

TEST_F(ReportBoxTest, AnyKeyClosesTheReport) {
  EXPECT_TRUE(Open());
  EXPECT_EQ(box_.FilterKey(U'x'), 0U);
  EXPECT_TRUE(Closed());
  EXPECT_EQ(box_.FilterKey(U'.'), 0U) << "no report, nothing to write, and never a text";
}

TEST_F(ReportBoxTest, SentencesLeaveAReportAloneAndComeBackAfterIt) {
  screen_.Hover(&screen_.Command1);
  EXPECT_TRUE(Open());
  screen_.Hover(nullptr);
  EXPECT_TRUE(Open());
  box_.FilterKey(U' ');
  screen_.Hover(&screen_.Command1);
  EXPECT_EQ(box_.text(), "A sentence.");
  EXPECT_TRUE(box_.visible());
}

TEST_F(ReportBoxTest, QuitAndClearCloseTheReport) {
  screen_.Quit();
  EXPECT_TRUE(Closed());
  screen_.Show("again");
  screen_.ClearFields();
  EXPECT_TRUE(Closed());
}

TEST_F(ReportBoxTest, ThePointWritesAFileAndCloses) {
  host_.AnswerFile(folder_ / "table.prt");
  box_.FilterKey(U'.');
  EXPECT_TRUE(Closed());
  std::ifstream file(folder_ / "table.prt", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(bytes, "prompt\r\nhead\r\nrow\r\n");
  ASSERT_EQ(host_.fileDialogs.size(), 1U);
  EXPECT_EQ(host_.fileDialogs[0].kind, FileDialog::Kind::Save);
  EXPECT_EQ(host_.fileDialogs[0].filter,
            "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Printer Files (*.prt)|*.prt");
  EXPECT_EQ(host_.fileDialogs[0].filterIndex, 3);
  EXPECT_EQ(host_.fileDialogs[0].folder, folder_.path());
}

TEST_F(ReportBoxTest, ACancelledDialogIsAKeyLikeAnyOther) {
  host_.AnswerFile(std::nullopt);
  box_.FilterKey(U'.');
  EXPECT_TRUE(Closed());
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(ReportBoxTest, AFileThatCannotBeWrittenCostsNothing) {
  host_.AnswerFile(folder_ / "none/table.prt");
  host_.Answer(Button::OK);
  box_.FilterKey(U'.');
  EXPECT_TRUE(Open());
}

TEST_F(ReportBoxTest, TheCommaPrintsAndCloses) {
  host_.printer = std::make_unique<PageRecorder>();
  box_.FilterKey(U',');
  EXPECT_TRUE(Closed());
  EXPECT_EQ(host_.printer, nullptr);
}

TEST_F(ReportBoxTest, APrinterErrorCostsNothing) {
  class Broken : public PageRecorder {
    void EndJob() override { throw CommandError(ErrorKind::File, "Out of paper."); }
  };
  host_.printer = std::make_unique<Broken>();
  host_.Answer(Button::OK);
  box_.FilterKey(U',');
  EXPECT_TRUE(Open());
  EXPECT_EQ(host_.messages.back().text, "Out of paper.");
}

TEST_F(ReportBoxTest, TooManyHeadingsFailTheCommandAndKeepTheReport) {
  std::string report = "prompt";
  for (int i = 0; i < 12; ++i) report += "\r\nhead_";
  screen_.Show(report);
  host_.printer = std::make_unique<PageRecorder>();
  host_.Answer(Button::OK);
  box_.FilterKey(U',');
  EXPECT_TRUE(box_.showsReport());
  EXPECT_EQ(box_.report(), report);
}

TEST(FontSizeForPage, IsTheLargestThatAPageHasRoomFor) {
  const auto sizeOf = [](std::size_t width) {
    return FontSizeForPage("prompt\r\n" + std::string(width, 'x') + "\r\nend");
  };
  EXPECT_EQ(sizeOf(0), 10);
  EXPECT_EQ(sizeOf(94), 10);
  EXPECT_EQ(sizeOf(95), 9);
  EXPECT_EQ(sizeOf(104), 9);
  EXPECT_EQ(sizeOf(118), 7);
  EXPECT_EQ(sizeOf(1000), 5);
  // 0.6 of the size a character, in what a page has beside its edges.
  for (std::size_t width = 60; width < 180; ++width) {
    const double points = 0.6 * static_cast<double>(sizeOf(width)) * static_cast<double>(width);
    EXPECT_LE(points * 20, PageSheet(false).width - 150) << width;
  }
}

TEST(FontSizeByWidth, IsSmallerWhereAPrintedLineIsWide) {
  const std::string wide(80, 'x');
  EXPECT_EQ(FontSizeByWidth("prompt\r\n" + wide + "\r\nend"), 10);
  EXPECT_EQ(FontSizeByWidth("prompt\r\n" + wide + "_\r\nend"), 10) << "a mark is not printed";
  EXPECT_EQ(FontSizeByWidth("prompt\r\n" + wide + "x\r\nend"), 9);
  // The first line is never printed.
  EXPECT_EQ(FontSizeByWidth(wide + "x\r\nend"), 10);
  EXPECT_EQ(FontSizeByWidth(""), 10);
}

TEST(ReportTexts, ArePrecise) {
  EXPECT_THAT(std::string(PagePrompt),
              "Pressing the . key will cause this Page to be Written to a Disk File.\r\n\r\n");
  EXPECT_THAT(std::string(OverflowNote), StartsWith("You could be trying to Generate"));
  EXPECT_THAT(std::string(OverflowNote), EndsWith("all of the Data should be There\r\n"));
}

}  // namespace
}  // namespace veldox
