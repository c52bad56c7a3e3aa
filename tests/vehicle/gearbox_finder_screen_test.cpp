#include "vehicle/gearbox_finder_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "program/program.h"
#include "tests/support/test_host.h"
#include "vehicle/elapsed_time_screen.h"
#include "vehicle/gear_screen.h"

namespace veldox {
namespace {

using testing::HasSubstr;

class Form19Test : public testing::Test {
 protected:
  Form19Test() { host_.folder = folder_.path(); }
  void SetUp() override { program_.Start(); }

  Shell& shell() { return program_.shell(); }
  ParameterBlock& block() { return program_.context().block; }
  Form5& gear() { return static_cast<Form5&>(*shell().FindScreen("Form5")); }
  Form19& finder() { return static_cast<Form19&>(*shell().FindScreen("Form19")); }
  PickList& list() { return finder().Combo1; }
  void Choose(std::string_view item) { shell().Choose(*Shell::FindMenuItem(item)); }
  void Pick(const std::string& row) {
    const auto& rows = list().rows();
    const auto found = std::find(rows.begin(), rows.end(), row);
    ASSERT_NE(found, rows.end()) << row;
    list().Choose(static_cast<int>(found - rows.begin()));
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(Form19Test, EveryMenuEntryShowsItsListAndTellsItsKind) {
  struct Entry {
    const char* item;
    int rows;
    bool automatic;
  };
  for (const Entry& entry :
       {Entry{"Automatic", 235, true}, Entry{"Automatic_GM", 209, true},
        Entry{"Quaife", 114, false}, Entry{"Stick34", 125, false}, Entry{"Stick56", 330, false},
        Entry{"Tremec", 138, false}, Entry{"Motorc", 84, false}}) {
    Choose(entry.item);
    EXPECT_TRUE(finder().visible());
    EXPECT_EQ(list().count(), entry.rows) << entry.item;
    list().Choose(list().first());
    EXPECT_EQ(block().AutomaticTrans, entry.automatic ? 1 : 0) << entry.item;
  }
}

TEST_F(Form19Test, AllListsTogetherKnowTheKindOfARow) {
  Choose("Trans");
  EXPECT_EQ(list().count(), 1235);
  Pick("68RC | 3.74 1.96 1.34 1.00 0.77 0.63");
  EXPECT_EQ(block().AutomaticTrans, 1);
  Pick("TKO-600 SOD | 2.87 1.89 1.28 1.00 0.64");
  EXPECT_EQ(block().AutomaticTrans, 0);
}

TEST_F(Form19Test, TheRowInUseIsMarked) {
  Choose("Automatic");
  EXPECT_EQ(list().current(), -1) << "none has the gears of a new program";
  Pick("68RC | 3.74 1.96 1.34 1.00 0.77 0.63");
  Choose("Trans");
  ASSERT_GE(list().current(), 0);
  EXPECT_THAT(list().RowAt(list().current()).text, HasSubstr("68RC"));
  block().TGear[1] = 2;
  Choose("Automatic");
  EXPECT_EQ(list().current(), -1) << "the gears were changed since";
}

TEST_F(Form19Test, HeadingsBlankRowsAndNamesAlonePickNothing) {
  Choose("Automatic");
  const auto before = block().TGear;
  for (std::size_t i = 0; i < list().all().size(); ++i) {
    if (list().all()[i].kind != PickRow::Kind::Choice) list().Choose(static_cast<int>(i));
  }
  EXPECT_EQ(block().TGear, before);
  EXPECT_EQ(list().rows()[0], "       -- Aisin --");
  EXPECT_EQ(list().rows()[3], "  ");
}

TEST_F(Form19Test, APickFillsAClosedScreenWithTheSharedValues) {
  block().TireDiameter = 31.5;
  Choose("Motorc");
  list().Narrow("rsv4 '11");
  list().Choose(list().first());
  EXPECT_EQ(gear().Text21.text(), "31.5") << "as if it had been opened";
  EXPECT_EQ(gear().Text2[0].text(), "2.375");
  EXPECT_EQ(gear().Text2[9].text(), "0.0");
  EXPECT_TRUE(gear().Check2.on());
  EXPECT_EQ(block().DataChanged, 1);
  EXPECT_FALSE(gear().visible());
}

TEST_F(Form19Test, GearsBehindTheLastOneAreEmptied) {
  block().TGear[10] = 7;
  Choose("Automatic");
  Pick("68RC | 3.74 1.96 1.34 1.00 0.77 0.63");
  EXPECT_EQ(block().TGear[9], 0);
  EXPECT_EQ(block().TGear[10], 0) << "a car with room for eighteen gears would shift into it";
}

TEST_F(Form19Test, AMissingUserTableIsToldAndTheListIsEmpty) {
  host_.Answer(Button::OK);
  Choose("User_Trans");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("user_trans.prm"));
  EXPECT_EQ(list().count(), 0);
  EXPECT_TRUE(finder().visible());
}

}  // namespace
}  // namespace veldox
