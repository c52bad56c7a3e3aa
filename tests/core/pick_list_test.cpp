#include "core/pick_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = PickRow::Kind;

class Finder : public Screen {
 public:
  explicit Finder(ProgramContext& context) : Screen(context, "Finder", "Finder", "") {}
  Control* HelpPlace() override { return &Help; }
  void Picked() { picked.push_back(List.chosenText()); }

  std::vector<std::string> picked;
  Frame Frame1{*this, "Frame1", ""};
  PickList List{Frame1, "List", "List", "Pick one.", &Finder::Picked};
  Label Help{Frame1, "Help", ""};
};

class PickListTest : public testing::Test {
 protected:
  PickListTest() { Offer(); }
  void Offer(PickPlace place = {}) {
    list_.Offer({{Kind::Group, "      -- Ford --", {}},
                 {Kind::Section, "      -- Windsor --", {}},
                 {Kind::Choice, "302 | 4.00 3.00 5.09 8", "Source: a book"},
                 {Kind::NameOnly, "306", "not verified"},
                 {Kind::Section, " ", {}},
                 {Kind::Choice, "Boss 302 | 4.00 3.00 5.155 8", "Source: a book"},
                 {Kind::Group, "      -- Honda --", {}},
                 {Kind::Section, "      -- V6 --", {}},
                 {Kind::Choice, "3.2L 3206 cc | 3.5 3.4 0.0 6", "Source: a page"}},
                place);
  }
  std::vector<std::string> Narrowed(const char* words) {
    list_.Narrow(words);
    return list_.rows();
  }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  Finder finder_{*context_};
  PickList& list_ = finder_.List;
};

TEST_F(PickListTest, ShowsAllRowsUntilItIsNarrowed) {
  EXPECT_EQ(list_.rows().size(), 9U);
  EXPECT_EQ(list_.count(), 4);
  EXPECT_EQ(list_.shownCount(), 4);
  EXPECT_EQ(Narrowed("  ").size(), 9U);
}

TEST_F(PickListTest, ShowsRowsThatHoldEveryWordUnderTheirHeadings) {
  EXPECT_THAT(Narrowed("302 5.09"),
              ElementsAre("      -- Ford --", "      -- Windsor --", "302 | 4.00 3.00 5.09 8"));
  EXPECT_EQ(list_.shownCount(), 1);
  EXPECT_EQ(list_.count(), 4);
  // The order of the words makes no difference.
  EXPECT_EQ(Narrowed("5.09 302").size(), 3U);
  EXPECT_THAT(Narrowed("4.1"), IsEmpty());
  EXPECT_EQ(list_.shownCount(), 0);
}

TEST_F(PickListTest, LeavesABlankHeadingOutWhereRowsAreMissing) {
  EXPECT_THAT(Narrowed("boss"), ElementsAre("      -- Ford --", "Boss 302 | 4.00 3.00 5.155 8"));
}

TEST_F(PickListTest, FindsRowsByTheirHeadingsToo) {
  EXPECT_THAT(Narrowed("windsor"), ElementsAre("      -- Ford --", "      -- Windsor --",
                                               "302 | 4.00 3.00 5.09 8", "306"));
  EXPECT_THAT(Narrowed("honda 3.5"),
              ElementsAre("      -- Honda --", "      -- V6 --", "3.2L 3206 cc | 3.5 3.4 0.0 6"));
  // A heading of another group does not reach over.
  EXPECT_THAT(Narrowed("windsor 3206"), IsEmpty());
}

TEST_F(PickListTest, TakesCapitalsAndCommasForWhatTheyMean) {
  EXPECT_EQ(Narrowed("BOSS 5,155").size(), 2U);
  EXPECT_EQ(Narrowed("3.2l").size(), 3U);
}

TEST_F(PickListTest, PicksARowAndRunsItsHandlerEachTime) {
  list_.Choose(2);
  list_.Choose(2);
  EXPECT_THAT(finder_.picked, ElementsAre("302 | 4.00 3.00 5.09 8", "302 | 4.00 3.00 5.09 8"));
  EXPECT_EQ(list_.chosen(), 2);
  EXPECT_EQ(list_.place().picked, 2);
}

TEST_F(PickListTest, HeadingsAndNamesWithoutFiguresPickNothing) {
  list_.Choose(2);
  for (const int row : {0, 1, 3, 4, -1, 9}) list_.Choose(row);
  EXPECT_EQ(finder_.picked.size(), 1U);
  EXPECT_EQ(list_.chosenText(), "302 | 4.00 3.00 5.09 8");
}

TEST_F(PickListTest, KeepsThePickWhileItIsNarrowedAway) {
  list_.Choose(5);
  Narrowed("honda");
  EXPECT_EQ(list_.chosen(), -1);
  EXPECT_EQ(list_.chosenText(), "Boss 302 | 4.00 3.00 5.155 8");
  Narrowed("");
  EXPECT_EQ(list_.chosen(), 5);
}

TEST_F(PickListTest, PicksInTheNarrowedListByTheRowsInSight) {
  Narrowed("honda");
  list_.Choose(2);
  EXPECT_THAT(finder_.picked, ElementsAre("3.2L 3206 cc | 3.5 3.4 0.0 6"));
  EXPECT_EQ(list_.place().picked, 8);
}

TEST_F(PickListTest, TheCurrentRowGoesOverRowsThatCanBePickedOnly) {
  EXPECT_EQ(list_.current(), -1);
  std::vector<int> rows;
  for (const int by : {1, 1, 1, 1, -1, -1, -1, 2, -100, 100}) {
    list_.MoveCurrent(by);
    rows.push_back(list_.current());
  }
  EXPECT_THAT(rows, ElementsAre(2, 5, 8, 8, 5, 2, 2, 8, 2, 8));
  EXPECT_THAT(finder_.picked, IsEmpty());
}

TEST_F(PickListTest, TheFirstRowFoundIsTheCurrentOne) {
  Narrowed("302");
  EXPECT_EQ(list_.RowAt(list_.current()).text, "302 | 4.00 3.00 5.09 8");
  Narrowed("306");
  EXPECT_EQ(list_.current(), -1);
}

TEST_F(PickListTest, ComesBackToThePlaceWhereItWasLeft) {
  list_.Choose(5);
  list_.SetTop(4);
  const PickPlace place = list_.place();
  list_.Offer({});
  EXPECT_EQ(list_.chosenText(), "");
  Offer(place);
  EXPECT_EQ(list_.current(), 5);
  EXPECT_EQ(list_.place().top, 4);
  // Nothing is picked by that.
  EXPECT_EQ(list_.chosen(), -1);
  EXPECT_EQ(list_.chosenText(), "");
  // A list that has got shorter meanwhile begins anew.
  list_.Offer({{Kind::Choice, "a | 1", {}}}, place);
  EXPECT_EQ(list_.place().picked, -1);
  EXPECT_EQ(list_.place().top, 0);
}

TEST_F(PickListTest, ScrollingThroughWhatWasFoundIsNotItsPlace) {
  list_.SetTop(3);
  Narrowed("302");
  list_.SetTop(1);
  EXPECT_EQ(list_.place().top, 3);
}

TEST_F(PickListTest, TellsTheNoteOfTheRowUnderThePointer) {
  list_.HoverRow(2);
  EXPECT_EQ(finder_.Help.caption(), "302 | 4.00 3.00 5.09 8\r\nSource: a book");
  list_.HoverRow(3);
  EXPECT_EQ(finder_.Help.caption(), "not verified");
  list_.HoverRow(-1);
  EXPECT_EQ(finder_.Help.caption(), "Pick one.");
}

TEST(PickedFigures, AreTheWordsBehindTheSign) {
  EXPECT_THAT(PickedFigures("350 | 4.00 3.48 5.7 8", 4), ElementsAre("4.00", "3.48", "5.7", "8"));
  EXPECT_THAT(PickedFigures("350 | 4.00 3.48", 4), ElementsAre("4.00", "3.48"));
  EXPECT_THAT(PickedFigures("350 | 4.00 3.48 5.7 8 or 6 ", 4),
              ElementsAre("4.00", "3.48", "5.7", "8 or 6"));
  EXPECT_THAT(PickedFigures("350 |4.00   3.48\t5.7 8", 4), ElementsAre("4.00", "3.48", "5.7", "8"));
  EXPECT_THAT(PickedFigures("350", 4), IsEmpty());
  EXPECT_THAT(PickedFigures("350 |", 4), IsEmpty());
  EXPECT_THAT(PickedFigures("350 |   ", 4), IsEmpty());
  EXPECT_THAT(PickedFigures("| 4 | 5", 4), ElementsAre("4", "|", "5"));
}

TEST(PickRowsOf, OfferNamesWithFiguresNamesAloneAndHeadings) {
  const TableRow rows[] = {{TableRow::Kind::Header, "4 Cylinder", "", ""},
                           {TableRow::Kind::Figures, "I-134", "3.125 4.375 9.1875 4", "maker"},
                           {TableRow::Kind::Header, "", "", ""},
                           {TableRow::Kind::NameOnly, "304", "", ""},
                           {TableRow::Kind::Figures, "I-151", "4.00 3.00 6.05 4", "given"}};
  const std::vector<PickRow> offered = PickRowsOf({"AMC", rows}, "not verified");
  ASSERT_EQ(offered.size(), 5U);
  EXPECT_EQ(offered[0].text, "      -- 4 Cylinder --");
  EXPECT_EQ(offered[0].kind, Kind::Section);
  EXPECT_EQ(offered[1].text, "I-134 | 3.125 4.375 9.1875 4");
  EXPECT_EQ(offered[1].note, "Source: maker");
  EXPECT_EQ(offered[2].text, " ");
  EXPECT_EQ(offered[2].kind, Kind::Section);
  EXPECT_EQ(offered[3].text, "304");
  EXPECT_EQ(offered[3].kind, Kind::NameOnly);
  EXPECT_EQ(offered[3].note, "not verified");
  EXPECT_EQ(offered[4].note, "Source: the program's own table");
}

}  // namespace
}  // namespace veldox
