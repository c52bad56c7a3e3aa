#include "core/pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/error.h"

namespace veldox {
namespace {

// A line of "Courier" at 10 is 225 twips high; without a company block the text begins under
// the time (230) and the gap (125), at 355.
constexpr int kLine = 225;
constexpr int kFirst = 355;

std::string Rows(int count, const std::string& text = "row") {
  std::string rows;
  for (int i = 0; i < count; ++i) rows += "\r\n" + text + ' ' + std::to_string(i);
  return rows;
}

std::vector<Page> Print(const std::string& report, PageHeader header = {}, bool landscape = false,
                        int fontSize = 10) {
  PageRecorder recorder(landscape);
  ReportPrinter(recorder, std::move(header)).PrintReport(report, fontSize);
  EXPECT_TRUE(recorder.ended());
  return recorder.pages();
}

/// The texts of a page in "Courier".
std::vector<PlacedText> Body(const Page& page) {
  std::vector<PlacedText> body;
  for (const PlacedText& text : page.texts) {
    if (text.font.name == "Courier") body.push_back(text);
  }
  return body;
}

const PlacedText& Footer(const Page& page) {
  return page.texts.back();
}

PageHeader Company(int location = 0, bool onEveryPage = false) {
  return {
      {"Siostek Engines", "", "Anytown", "", "web"}, location, onEveryPage, {2026, 3, 7, 9, 5, 2}};
}

TEST(Pages, MetricsAreThoseOfTheTable) {
  EXPECT_EQ(LineHeight({"Courier", 10, false}), 225);
  EXPECT_EQ(LineHeight({"Courier", 9, true}), 202);
  EXPECT_EQ(LineHeight({"Arial", 14, false}), 322);
  EXPECT_EQ(LineHeight({"Tahoma", 10, false}), 240);
  EXPECT_EQ(TextWidth({"Courier", 10, false}, "0123456789"), 1200);
  EXPECT_EQ(TextWidth({"Courier", 10, false}, "\xC3\xA9"), 120) << "one character of two bytes";
  EXPECT_EQ(TextWidth({"Arial", 10, false}, " "), 55);
  EXPECT_EQ(TextWidth({"Arial", 10, false}, "Aa~"), (667 + 556 + 584) / 5);
}

TEST(Pages, AReportWithoutALineBreakIsOneLineWithTheFooter) {
  const auto pages = Print("alone");
  ASSERT_EQ(pages.size(), 1U);
  ASSERT_EQ(pages[0].texts.size(), 3U);
  EXPECT_EQ(pages[0].texts[1].text, "alone");
  EXPECT_EQ(pages[0].texts[1].x, 150);
  EXPECT_EQ(pages[0].texts[1].y, kFirst);
  EXPECT_EQ(Footer(pages[0]).text, "Page 1");
  EXPECT_EQ(Footer(pages[0]).font, (PageFont{"Tahoma", 10, false}));
  EXPECT_EQ(Footer(pages[0]).y, 15800);
}

TEST(Pages, TheFirstLineIsNeverPrinted) {
  const auto body = Body(Print("prompt\r\n\r\none\r\ntwo").at(0));
  ASSERT_EQ(body.size(), 2U);
  EXPECT_EQ(body[0].text, "one");
  EXPECT_EQ(body[0].y, kFirst + kLine) << "under the empty line";
  EXPECT_EQ(body[1].text, "two");
  EXPECT_EQ(body[1].y, kFirst + 2 * kLine);
}

TEST(Pages, HeadingsAreBoldAndRepeatedUntilTheirEnd) {
  // Lines fit from 355 to 15150: 66 of them on the first page.
  const auto pages = Print("prompt\r\nfirst_\r\nsecond_" + Rows(66) + "\r\nend~" + Rows(70));
  ASSERT_EQ(pages.size(), 3U);
  const auto first = Body(pages[0]), second = Body(pages[1]), third = Body(pages[2]);
  EXPECT_EQ(first.size(), 66U);
  EXPECT_TRUE(first[0].font.bold);
  EXPECT_TRUE(first[1].font.bold);
  EXPECT_FALSE(first[2].font.bold);
  EXPECT_EQ(first.back().text, "row 63");
  EXPECT_LE(first.back().y, 15150);
  EXPECT_GT(first.back().y + kLine, 15150);
  // A blank line, the headings, a blank line, the next row.
  EXPECT_EQ(second[0].text, "first");
  EXPECT_EQ(second[0].y, kLine);
  EXPECT_TRUE(second[0].font.bold);
  EXPECT_EQ(second[1].text, "second");
  EXPECT_EQ(second[2].text, "row 64");
  EXPECT_EQ(second[2].y, 4 * kLine);
  EXPECT_FALSE(second[2].font.bold);
  EXPECT_EQ(second[4].text, "end");
  EXPECT_EQ(third[0].text.substr(0, 3), "row") << "no headings any more";
  EXPECT_EQ(third[0].y, kLine);
  EXPECT_EQ(Footer(pages[2]).text, "Page 3");
}

TEST(Pages, ATwelfthHeadingBeforeTheirEndIsAFailure) {
  std::string eleven = "prompt";
  for (int i = 0; i < 11; ++i) eleven += "\r\nhead_";
  EXPECT_NO_THROW(Print(eleven + "\r\nrow"));
  EXPECT_NO_THROW(Print(eleven + "\r\n~\r\nhead_\r\nrow"));
  PageRecorder recorder;
  try {
    ReportPrinter(recorder, {}).PrintReport(eleven + "\r\nhead_\r\nrow", 10);
    FAIL();
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::IndexOutOfRange);
  }
  EXPECT_FALSE(recorder.ended());
}

// Rows 0 to 62 of a report fill the lines up to 14305, so the line behind them stands at 14530.
TEST(Pages, AHeadingNearTheEndBeginsANewPage) {
  const auto kept = Print("prompt" + Rows(62) + "\r\nhead_\r\nrow");
  EXPECT_EQ(kept.size(), 1U);
  const auto moved = Print("prompt" + Rows(63) + "\r\nhead_\r\nrow");
  ASSERT_EQ(moved.size(), 2U);
  const auto body = Body(moved[1]);
  EXPECT_EQ(body[0].text, "head");
  EXPECT_EQ(body[0].y, kLine) << "once, not stored before the page began";
  EXPECT_EQ(body[1].text, "row");
}

TEST(Pages, OnlyTheFirstBoldLineNearTheEndBeginsANewPage) {
  const auto first = Print("prompt" + Rows(63) + "\r\nbold^\r\nrow");
  ASSERT_EQ(first.size(), 2U);
  EXPECT_EQ(Body(first[1])[0].text, "bold");
  EXPECT_TRUE(Body(first[1])[0].font.bold);
  EXPECT_FALSE(Body(first[1])[1].font.bold);
  const auto later = Print("prompt\r\nbold^" + Rows(62) + "\r\nbold^\r\nrow");
  EXPECT_EQ(later.size(), 1U);
}

TEST(Pages, BoldLinesAreNotRepeated) {
  const auto pages = Print("prompt\r\nbold^" + Rows(80));
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(Body(pages[1])[0].text.substr(0, 3), "row");
}

TEST(Pages, AColumnUnderAnArrowStandsBetweenLines) {
  const Page page = Print("prompt\r\n          \\|/\r\n  1.1   12.222   3.3\r\n\r\nend").at(0);
  ASSERT_EQ(page.lines.size(), 2U);
  // Characters 8 to 13 of 120 twips each, in the second printed line; half a character apart.
  EXPECT_EQ(page.lines[0].fromX, 150 + 7 * 120 + 60);
  EXPECT_EQ(page.lines[0].toX, page.lines[0].fromX);
  EXPECT_EQ(page.lines[1].fromX, 150 + 14 * 120 + 60);
  EXPECT_EQ(page.lines[0].fromY, kFirst + kLine);
  EXPECT_EQ(page.lines[0].toY, kFirst + 2 * kLine);
}

TEST(Pages, LandscapeBreaksAt11700AndHasItsFooterAt12175) {
  const auto pages = Print("prompt" + Rows(60), {}, true);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_TRUE(pages[0].landscape);
  const auto body = Body(pages[0]);
  EXPECT_LE(body.back().y, 11700);
  EXPECT_GT(body.back().y + kLine, 11700);
  EXPECT_EQ(Footer(pages[0]).y, 12175);
  EXPECT_EQ(Footer(pages[0]).x, (15120 - TextWidth({"Tahoma", 10, false}, "Page 1")) / 2);
}

TEST(Pages, ASmallerFontFitsMoreLines) {
  EXPECT_EQ(Print("prompt" + Rows(73), {}, false, 9).size(), 1U);
  EXPECT_EQ(Print("prompt" + Rows(73), {}, false, 10).size(), 2U);
}

TEST(Pages, TheCompanyBlockHeadsTheFirstPage) {
  const auto pages = Print("prompt" + Rows(80), Company());
  ASSERT_EQ(pages.size(), 2U);
  const auto& texts = pages[0].texts;
  EXPECT_EQ(texts[0].text, "Siostek Engines");
  EXPECT_EQ(texts[0].font, (PageFont{"Arial", 14, false}));
  EXPECT_EQ(texts[0].x, 150);
  EXPECT_EQ(texts[0].y, 0);
  EXPECT_EQ(texts[1].text, "Anytown");
  EXPECT_EQ(texts[1].font, (PageFont{"Arial", 10, false}));
  EXPECT_EQ(texts[1].y, 322 + 75);
  EXPECT_EQ(texts[2].text, "web");
  EXPECT_EQ(texts[2].y, 322 + 75 + 230 + 75);
  EXPECT_EQ(texts[3].text, "Printed: March 7 2026 9:5:2");
  EXPECT_EQ(texts[3].y, 0);
  EXPECT_NEAR(texts[3].x + TextWidth(texts[3].font, texts[3].text), 11520 - 150, 1);
  EXPECT_EQ(texts[4].text, "row 0");
  EXPECT_EQ(texts[4].y, 322 + 75 + 230 + 75 + 230 + 100 + 125);
  EXPECT_EQ(pages[1].texts[0].text.substr(0, 3), "row");
}

TEST(Pages, TheCompanyBlockHeadsEveryPageWhenAskedTo) {
  const auto pages = Print("prompt\r\nhead_" + Rows(80), Company(0, true));
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[1].texts[0].text, "Siostek Engines");
  EXPECT_EQ(pages[1].texts[3].text, "Printed: March 7 2026 9:5:2");
  EXPECT_EQ(pages[1].texts[4].text, "head");
  EXPECT_EQ(pages[1].texts[4].y, Body(pages[0])[0].y + kLine);
}

TEST(Pages, TheBlockStandsLeftCentreOrRight) {
  const PageFont name{"Arial", 14, false};
  const int width = TextWidth(name, "Siostek Engines");
  EXPECT_EQ(Print("a\r\nb", Company(1))[0].texts[0].x, (11520 - width) / 2);
  const auto right = Print("a\r\nb", Company(2))[0].texts;
  EXPECT_EQ(right[0].x, 11520 - 150 - width);
  EXPECT_GT(right[3].y, right[2].y) << "the time does not stand on the block";
}

TEST(Pages, ATextWiderThanThePageBeginsAtTheLeft) {
  PageHeader header = Company(1);
  header.companyLines[0] = std::string(200, 'W');
  EXPECT_EQ(Print("a\r\nb", header)[0].texts[0].x, 150);
}

TEST(Pages, TheHeaderComesFromTheSharedValues) {
  ParameterBlock block;
  block.CompanyName = "Name";
  block.CompanyWebSite = "web";
  block.CompanyNameLocation = 2;
  block.PrintHeads = 1;
  const PageHeader header = HeaderOf(block, {2026, 1, 2, 3, 4, 5});
  EXPECT_EQ(header.companyLines[0], "Name");
  EXPECT_EQ(header.companyLines[4], "web");
  EXPECT_EQ(header.location, 2);
  EXPECT_TRUE(header.onEveryPage);
  EXPECT_EQ(header.printed.day, 2);
}

}  // namespace
}  // namespace veldox
