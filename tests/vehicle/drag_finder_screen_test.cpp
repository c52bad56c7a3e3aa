#include "vehicle/drag_finder_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "data/tables.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(DragTable, HasBothListsWithAllTheirCars) {
  struct Count {
    int groups = 0;
    int cars = 0;
    int known = 0;
    int withArea = 0;
  };
  std::map<std::string, Count> lists;
  for (const TableGroup& group : DragTable()) {
    Count& count = lists[std::string(group.list)];
    ++count.groups;
    for (const TableRow& row : group.rows) {
      EXPECT_NE(row.kind, TableRow::Kind::Header) << row.name;
      ++count.cars;
      if (row.kind != TableRow::Kind::Figures) continue;
      ++count.known;
      const DragFigures figures =
          ReadDragRow(std::string(row.name) + " | " + std::string(row.figures));
      EXPECT_GT(figures.coefficient, 0.1) << row.name;
      EXPECT_LT(figures.coefficient, 0.9) << row.name;
      if (!figures.frontalArea) continue;
      ++count.withArea;
      EXPECT_GT(*figures.frontalArea, 3) << row.name;
      EXPECT_LT(*figures.frontalArea, 45) << row.name;
    }
  }
  ASSERT_EQ(lists.size(), 2U);
  EXPECT_EQ(lists["american"].groups, 16);
  EXPECT_EQ(lists["american"].cars, 219);
  EXPECT_EQ(lists["other"].groups, 45);
  EXPECT_EQ(lists["other"].cars, 437);
  EXPECT_EQ(lists["american"].known + lists["other"].known, 418);
}

TEST(ReadDragRow, TakesTheAreaWhereThereIsOne) {
  const DragFigures both = ReadDragRow("Polo G40 (Supercharged) | 0.38 23.7");
  EXPECT_EQ(both.coefficient, 0.38);
  EXPECT_EQ(both.frontalArea, 23.7);
  const DragFigures one = ReadDragRow("'08 Tiguan | 0.37");
  EXPECT_EQ(one.coefficient, 0.37);
  EXPECT_FALSE(one.frontalArea);
}

class RefusedDragRow : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(RefusedDragRow, TellsRowAndFigure) {
  try {
    ReadDragRow(GetParam().first);
    FAIL() << GetParam().first;
  } catch (const CommandError& error) {
    EXPECT_THAT(error.message(), HasSubstr(GetParam().second));
    EXPECT_THAT(error.message(), HasSubstr(GetParam().first));
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, RefusedDragRow,
    testing::Values(std::pair{"A |", "The coefficient of drag of the row"},
                    std::pair{"B | 0", "must be above 0."}, std::pair{"C | 11", "is too large."},
                    std::pair{"D | 0.3x 20", "The coefficient of drag of the row"},
                    std::pair{"E | 0.3 twenty", "The frontal area of the row"},
                    std::pair{"F | 0.3 -20", "The frontal area of the row"},
                    std::pair{"G | 0.3 20 21", "The frontal area of the row"},
                    std::pair{"H | 0.3 1e9", "The frontal area of the row"}));

/// Keeps what it is told.
struct Taker : DragTaker {
  void TakeDrag(const DragFigures& figures) override { taken.push_back(figures); }
  std::vector<DragFigures> taken;
};

class Form20Test : public testing::Test {
 protected:
  Form20Test() { host_.folder = folder_.path(); }
  void SetUp() override {
    program_.Start();
    finder().AddTaker(taker_);
  }

  Shell& shell() { return program_.shell(); }
  ParameterBlock& block() { return program_.context().block; }
  Form20& finder() { return static_cast<Form20&>(*shell().FindScreen("Form20")); }
  void Choose(std::string_view item) { shell().Choose(*Shell::FindMenuItem(item)); }
  static void Pick(PickList& list, const std::string& row) {
    const auto& rows = list.rows();
    const auto found = std::find(rows.begin(), rows.end(), row);
    ASSERT_NE(found, rows.end()) << row;
    list.Choose(static_cast<int>(found - rows.begin()));
  }
  void UserRows(const std::string& text) {
    std::ofstream(folder_ / "user_cdfa.prm", std::ios::binary) << text;
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
  Taker taker_;
};

TEST_F(Form20Test, EachMenuEntryShowsItsOwnList) {
  Choose("CD_FA");
  EXPECT_TRUE(finder().visible());
  EXPECT_TRUE(finder().Combo1.visible());
  EXPECT_FALSE(finder().Combo2.visible());
  EXPECT_EQ(finder().Combo1.count(), 219);
  EXPECT_EQ(finder().Combo1.caption(), "CD FA - American");
  const auto& rows = finder().Combo1.rows();
  EXPECT_EQ(rows[0], "       -- AMC --");
  EXPECT_EQ(rows[1], "'75-80 Pacer | 0.32");
  EXPECT_EQ(rows[2], " ");
  EXPECT_EQ(rows[3], "       -- Chrysler --");
  EXPECT_EQ(rows[4], "'11-14 300C | 0.32");
  // A name that stands alone has no sign behind it.
  EXPECT_NE(std::find(rows.begin(), rows.end(), "'21 Yamaha YZF R6"), rows.end());
  Choose("CD_FA_Other");
  EXPECT_FALSE(finder().Combo1.visible());
  EXPECT_TRUE(finder().Combo2.visible());
  EXPECT_EQ(finder().Combo2.count(), 437);
  EXPECT_EQ(finder().Combo2.rows().front(), "       -- Acura --");
  EXPECT_EQ(finder().Combo2.caption(), "CD FA - Other");
}

TEST_F(Form20Test, OneSearchGoesOverBothLists) {
  Choose("CoeffDrag_FrontalArea");
  EXPECT_TRUE(finder().Combo1.visible());
  EXPECT_FALSE(finder().Combo2.visible());
  EXPECT_EQ(finder().Combo1.count(), 656);
  EXPECT_EQ(finder().Combo1.caption(), "All cars");
  finder().Combo1.Narrow("'08 0.3");
  int american = 0;
  int other = 0;
  bool inOther = false;
  for (const std::string& row : finder().Combo1.rows()) {
    if (row == "       -- CD FA - Other --") inOther = true;
    if (row.find('|') == std::string::npos) continue;
    ++(inOther ? other : american);
  }
  EXPECT_GT(american, 0);
  EXPECT_GT(other, 0);
  finder().Combo1.Narrow("american avenger");
  EXPECT_EQ(finder().Combo1.shownCount(), 2);
}

TEST_F(Form20Test, APickSetsTheSharedValuesAndOKHandsThemOn) {
  Choose("CD_FA");
  block().DataChanged = 0;
  block().FrontalArea = 17.5;
  Pick(finder().Combo1, "'08 Avenger | 0.326 25.15");
  EXPECT_EQ(block().CoefficientofDrag, 0.326);
  EXPECT_EQ(block().FrontalArea, 25.15);
  EXPECT_EQ(block().DataChanged, 1);
  EXPECT_THAT(finder().Label1.caption(), HasSubstr("Frontal Area 25.15 square feet"));
  EXPECT_TRUE(taker_.taken.empty());
  finder().subend.Click();
  EXPECT_FALSE(finder().visible());
  ASSERT_EQ(taker_.taken.size(), 1U);
  EXPECT_EQ(taker_.taken[0].coefficient, 0.326);
  EXPECT_EQ(taker_.taken[0].frontalArea, 25.15);
}

TEST_F(Form20Test, ARowWithoutAnAreaLeavesTheAreaAsItWas) {
  Choose("CD_FA_Other");
  block().FrontalArea = 17.5;
  Pick(finder().Combo2, "'08 Tiguan | 0.37");
  EXPECT_EQ(block().CoefficientofDrag, 0.37);
  EXPECT_EQ(block().FrontalArea, 17.5);
  EXPECT_THAT(finder().Label1.caption(), HasSubstr("stays 17.5 square feet"));
  finder().subend.Click();
  ASSERT_EQ(taker_.taken.size(), 1U);
  EXPECT_FALSE(taker_.taken[0].frontalArea);
  // The area of a pick before it stays the shared one, and goes with it.
  Choose("CD_FA_Other");
  Pick(finder().Combo2, "Polo G40 (Supercharged) | 0.38 23.7");
  Pick(finder().Combo2, "'08 Tiguan | 0.37");
  EXPECT_EQ(block().FrontalArea, 23.7);
  finder().subend.Click();
  ASSERT_EQ(taker_.taken.size(), 2U);
  EXPECT_EQ(taker_.taken[1].coefficient, 0.37);
  EXPECT_EQ(taker_.taken[1].frontalArea, 23.7);
}

TEST_F(Form20Test, OKWithoutAPickHandsOnNothing) {
  Choose("CD_FA");
  const double before = block().CoefficientofDrag;
  Pick(finder().Combo1, "       -- AMC --");
  Pick(finder().Combo1, "'94 Grand Caravan LE");
  finder().subend.Click();
  EXPECT_EQ(block().CoefficientofDrag, before);
  EXPECT_TRUE(taker_.taken.empty());
  // What was picked before is not handed on twice.
  Choose("CD_FA");
  Pick(finder().Combo1, "'75-80 Pacer | 0.32");
  finder().subend.Click();
  Choose("CD_FA");
  finder().subend.Click();
  EXPECT_EQ(taker_.taken.size(), 1U);
}

TEST_F(Form20Test, AUsersOwnCarsAreTheLastGroupOfBothLists) {
  UserRows("; my cars\r\nMy roadster | .41 16.5\r\nBad | x\r\n");
  for (const char* item : {"CD_FA", "CD_FA_Other", "CoeffDrag_FrontalArea"}) {
    Choose(item);
    PickList& list = finder().Combo2.visible() ? finder().Combo2 : finder().Combo1;
    const auto& rows = list.rows();
    ASSERT_GT(rows.size(), 5U);
    EXPECT_EQ(rows[rows.size() - 5], " ") << item;
    EXPECT_EQ(rows[rows.size() - 4], "       -- User Table --") << item;
    EXPECT_EQ(rows[rows.size() - 3], "; my cars") << item;
    EXPECT_EQ(rows[rows.size() - 2], "My roadster | .41 16.5") << item;
    Pick(list, "My roadster | .41 16.5");
    EXPECT_EQ(block().CoefficientofDrag, 0.41);
    EXPECT_EQ(block().FrontalArea, 16.5);
    host_.Answer(Button::OK);
    Pick(list, "Bad | x");
    EXPECT_THAT(host_.messages.back().text,
                HasSubstr("The coefficient of drag of the row \"Bad | x\""));
    EXPECT_EQ(block().CoefficientofDrag, 0.41);
  }
}

TEST_F(Form20Test, AUserTableThatCannotBeReadLeavesTheProgramsRows) {
  std::filesystem::create_directory(folder_ / "user_cdfa.prm");
  host_.Answer(Button::OK);
  Choose("CD_FA");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("user_cdfa.prm"));
  EXPECT_EQ(finder().Combo1.count(), 219);
  EXPECT_TRUE(finder().visible());
}

}  // namespace
}  // namespace veldox
