#include "vehicle/gearbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "core/error.h"
#include "core/pick_list.h"
#include "data/tables.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(GearboxTable, HasAllListsWithAllTheirRows) {
  const std::map<std::string, std::pair<int, int>> lists{
      {"AutomaticList1", {235, 104}}, {"AutomaticList2", {209, 54}}, {"ManualList4", {114, 8}},
      {"ManualList1", {125, 54}},     {"ManualList2", {330, 141}},   {"ManualList3", {138, 47}},
      {"MotorcycleList", {84, 38}}};
  ASSERT_EQ(GearboxTable().size(), lists.size());
  for (const TableGroup& group : GearboxTable()) {
    int rows = 0;
    int known = 0;
    for (const TableRow& row : group.rows) {
      if (row.kind != TableRow::Kind::Header) ++rows;
      if (row.kind == TableRow::Kind::Figures) ++known;
    }
    EXPECT_EQ(rows, lists.at(std::string(group.name)).first) << group.name;
    EXPECT_EQ(known, lists.at(std::string(group.name)).second) << group.name;
  }
}

TEST(GearboxTable, RowsCanBeReadAndFallFromGearToGear) {
  // What is given with a gear that is longer than the one before.
  const std::set<std::string> kRising{"17 GT Dual Clutch"};
  int read = 0;
  for (const TableGroup& group : GearboxTable()) {
    for (const TableRow& row : group.rows) {
      if (row.kind != TableRow::Kind::Figures) continue;
      const std::string name(row.name);
      const Gearbox gearbox = ReadGearbox(name + " | " + std::string(row.figures), false);
      ++read;
      ASSERT_GE(gearbox.ratios.size(), 2U) << name;
      for (std::size_t i = 1; i < gearbox.ratios.size() && kRising.count(name) == 0; ++i) {
        EXPECT_LT(gearbox.ratios[i], gearbox.ratios[i - 1]) << group.name << ": " << name;
      }
      EXPECT_LT(gearbox.ratios.front(), 12) << name;
    }
  }
  EXPECT_EQ(read, 446);
}

TEST(GearboxTable, TeethAgreeWithTheRatiosOfTheirRows) {
  // Names whose teeth and ratio were given apart.
  const std::set<std::string> kOdd{"'03 V Rod", "'12-13 1199", "900 / 1200"};
  int checked = 0;
  for (const TableGroup& group : GearboxTable()) {
    for (const TableRow& row : group.rows) {
      const std::string name(row.name);
      if (row.kind == TableRow::Kind::Header) continue;
      bool odd = false;
      for (const std::string& start : kOdd) odd = odd || name.rfind(start, 0) == 0;
      const Gearbox gearbox = ReadGearbox(name + " | 1", false);
      const auto check = [&](const auto& ratio, const auto& teeth) {
        if (!ratio || !teeth || odd) return;
        const double ofTeeth = static_cast<double>(teeth->driven) / teeth->driving;
        EXPECT_NEAR(ofTeeth / *ratio, 1, 0.005) << name;
        ++checked;
      };
      check(gearbox.primaryDrive, gearbox.primaryTeeth);
      check(gearbox.finalDrive, gearbox.finalTeeth);
    }
  }
  EXPECT_GT(checked, 30);
}

TEST(ReadGearbox, TakesTheTagsOfTheName) {
  const Gearbox gearbox = ReadGearbox(
      "'09 RSV4 P-1.6591 S-2.5 PT-73/44 ST-40/16 | 2.6 2.0625 1.7 1.4545 1.3077 1.2222", false);
  EXPECT_EQ(gearbox.primaryDrive, 1.6591);
  EXPECT_EQ(gearbox.finalDrive, 2.5);
  ASSERT_TRUE(gearbox.primaryTeeth && gearbox.finalTeeth);
  EXPECT_EQ(gearbox.primaryTeeth->driven, 73);
  EXPECT_EQ(gearbox.primaryTeeth->driving, 44);
  EXPECT_EQ(gearbox.finalTeeth->driven, 40);
  EXPECT_EQ(gearbox.finalTeeth->driving, 16);
  EXPECT_THAT(gearbox.ratios, ElementsAre(2.6, 2.0625, 1.7, 1.4545, 1.3077, 1.2222));
  EXPECT_FALSE(gearbox.isAutomatic);
}

TEST(ReadGearbox, TellsTagsFromNames) {
  for (const char* row : {"S-Tronic | 3 2 1", "5R55S - Mustang | 3 2 1", "P-5 | 2 1",
                          "XPT-73/44 | 2 1", "S5-42 Close / Ford | 3 1"}) {
    const Gearbox gearbox = ReadGearbox(row, true);
    EXPECT_FALSE(gearbox.primaryDrive || gearbox.finalDrive) << row;
    EXPECT_FALSE(gearbox.primaryTeeth || gearbox.finalTeeth) << row;
    EXPECT_TRUE(gearbox.isAutomatic);
  }
  EXPECT_EQ(ReadGearbox("T135 P-2.875| 3 2 1", false).primaryDrive, 2.875) << "no blank behind it";
}

TEST(ReadGearbox, MendsTheMisprintedTeeth) {
  EXPECT_EQ(ReadGearbox("'03 V Rod P-1.8281 PT-177/64 | 1", false).primaryTeeth->driven, 117);
  EXPECT_EQ(ReadGearbox("Mine PT-178/64 | 1", false).primaryTeeth->driven, 178);
}

TEST(ReadGearbox, TellsWhatOfARowIsWrong) {
  const std::map<std::string, std::string> rows{
      {"A P-x | 2 1", "The primary drive of the row \"A P-x | 2 1\" holds \"x\""},
      {"A S- | 2 1", "The secondary drive of the row"},
      {"A PT-73 | 2 1", "must be two numbers with a \"/\" between them"},
      {"A ST-40/0 | 2 1", "The secondary teeth of the row \"A ST-40/0 | 2 1\" must be above 0."},
      {"A ST-40.5/2 | 2 1", "must be whole numbers."},
      {"A | 2 two", "Gear 2 of the row \"A | 2 two\" holds \"two\""},
      {"A | 2 -1", "must be above 0."},
      {"A | 2 1e9", "is too large."},
      {"A |", "must be 1 to 10 ratios"},
      {"A | 1 1 1 1 1 1 1 1 1 1 1", "must be 1 to 10 ratios"}};
  for (const auto& [row, words] : rows) {
    try {
      ReadGearbox(row, false);
      ADD_FAILURE() << row;
    } catch (const CommandError& error) {
      EXPECT_THAT(error.message(), HasSubstr(words)) << row;
    }
  }
}

}  // namespace
}  // namespace veldox
