#include "core/key_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace veldox {
namespace {

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

std::vector<const KeyRow*> Keys() {
  std::vector<const KeyRow*> keys;
  for (const KeyRow& row : KeyTable()) {
    if (row.form != KeyForm::Comment) keys.push_back(&row);
  }
  return keys;
}

bool IsGear(const KeyRow& row) {
  return row.tableForm == TableForm::GearIndexed || row.tableForm == TableForm::GearChangeRpm ||
         row.tableForm == TableForm::GearChangeTime;
}

TEST(KeyTable, KeysAreUniqueWithoutCase) {
  std::set<std::string> seen;
  for (const KeyRow* row : Keys()) EXPECT_TRUE(seen.insert(Lower(row->key)).second) << row->key;
}

TEST(KeyTable, NoKeyWithItsEqualsSignIsAPrefixOfAnother) {
  for (const KeyRow* row : Keys()) {
    for (const KeyRow* other : Keys()) {
      if (row == other) continue;
      // Indexed keys are known by their word alone.
      const std::string prefix = Lower(row->key) + (IsGear(*row) ? "" : " =");
      EXPECT_FALSE((Lower(other->key) + " =").starts_with(prefix)) << row->key << other->key;
    }
  }
}

TEST(KeyTable, KeysHaveNoBlanksAtTheirEndsAndNoEqualsSign) {
  for (const KeyRow* row : Keys()) {
    EXPECT_FALSE(row->key.empty());
    EXPECT_NE(row->key.front(), ' ') << row->key;
    EXPECT_NE(row->key.back(), ' ') << row->key;
    EXPECT_EQ(row->key.find('='), std::string_view::npos) << row->key;
    EXPECT_NE(row->key.front(), ';') << row->key;
  }
}

TEST(KeyTable, CommentsBeginWithASemicolon) {
  int comments = 0;
  for (const KeyRow& row : KeyTable()) {
    if (row.form != KeyForm::Comment) continue;
    ++comments;
    EXPECT_TRUE(row.key.starts_with(";   ")) << row.key;
    EXPECT_EQ(FindKey(row.key), nullptr);
  }
  EXPECT_EQ(comments, 24);
}

TEST(KeyTable, EveryKeyHasAMemberThatItsFormCanHold) {
  for (const KeyRow* row : Keys()) {
    const bool isReal = std::holds_alternative<double ParameterBlock::*>(row->member);
    const bool isCount = std::holds_alternative<std::int16_t ParameterBlock::*>(row->member);
    const bool isColor = std::holds_alternative<std::int32_t ParameterBlock::*>(row->member);
    const bool isText = std::holds_alternative<std::string ParameterBlock::*>(row->member);
    switch (row->form) {
      case KeyForm::Number:
      case KeyForm::NumberOrField:
      case KeyForm::FieldText: EXPECT_TRUE(isReal) << row->key; break;
      case KeyForm::Integer:
      case KeyForm::IntegerOrField: EXPECT_TRUE(isReal || isCount || isColor) << row->key; break;
      case KeyForm::FieldLiteral:
      case KeyForm::Text: EXPECT_TRUE(isText) << row->key; break;
      case KeyForm::Flag:
      case KeyForm::YesNo:
      case KeyForm::OnOff: EXPECT_TRUE(isCount) << row->key; break;
      case KeyForm::Table:
        EXPECT_TRUE(std::holds_alternative<std::monostate>(row->member)) << row->key;
        break;
      case KeyForm::Comment: break;
    }
    EXPECT_EQ(row->form == KeyForm::Table, row->cell != nullptr) << row->key;
    EXPECT_EQ(row->form == KeyForm::Table, row->tableForm != TableForm::None) << row->key;
  }
}

TEST(KeyTable, ColorsAre32Bit) {
  for (const KeyRow* row : Keys()) {
    const bool isColor = row->key.ends_with("Color") && row->key != "Graph Line Color";
    EXPECT_EQ(isColor, std::holds_alternative<std::int32_t ParameterBlock::*>(row->member))
        << row->key;
  }
}

TEST(KeyTable, NoTwoKeysShareAMember) {
  ParameterBlock block;
  std::set<const void*> seen;
  for (const KeyRow* row : Keys()) {
    if (!row->columnOf.empty()) continue;  // a column of another key's table
    const void* place = std::visit(
        [&](auto member) -> const void* {
          if constexpr (std::is_same_v<decltype(member), std::monostate>) {
            return nullptr;
          } else {
            return &(block.*member);
          }
        },
        row->member);
    if (row->cell != nullptr) place = &row->cell(block, 0, 0);
    EXPECT_TRUE(seen.insert(place).second) << row->key;
  }
}

TEST(KeyTable, OwnersNameAScreenAndPerhapsAControl) {
  const std::set<std::string, std::less<>> screens = {
      "Main",  "Form1",  "Form1CR", "Form2",  "Form3",  "Form4",  "Form5",  "Form6",  "Form7",
      "Form8", "Form11", "Form12",  "Form13", "Form14", "Form16", "Form17", "Form18", "Form33"};
  for (const KeyRow* row : Keys()) {
    const std::size_t dot = row->owner.find('.');
    EXPECT_TRUE(screens.contains(row->owner.substr(0, dot))) << row->key << ' ' << row->owner;
    if (dot == std::string_view::npos) continue;
    EXPECT_GT(row->owner.size(), dot + 1) << row->key;
    EXPECT_EQ(row->owner.find('.', dot + 1), std::string_view::npos) << row->key;
  }
}

struct ArrayKey {
  const char* key;
  TableForm form;
  int firstRow;
  int rows;
  int rowWidth;
};

TEST(KeyTable, ArraysHaveTheirBounds) {
  const std::array<ArrayKey, 18> arrays = {{
      {"VE RPM", TableForm::Fields, 0, 54, 1},
      {"BSAC RPM", TableForm::Fields, 0, 54, 1},
      {"IntakeFlow", TableForm::Pairs, 0, 16, 2},
      {"ExhaustFlow", TableForm::Pairs, 0, 16, 2},
      {"IntakeLift", TableForm::Pairs, 0, 16, 2},
      {"ExhaustLift", TableForm::Pairs, 0, 16, 2},
      {"Lift Table", TableForm::Fields, 0, 16, 1},
      {"T Gear", TableForm::GearIndexed, 0, 18, 1},
      {"Shift RPM", TableForm::GearChangeRpm, 1, 18, 1},
      {"Shift Time", TableForm::GearChangeTime, 1, 18, 1},
      {"Power Loss", TableForm::GearIndexed, 0, 18, 1},
      {"Tire Growth", TableForm::GearIndexed, 0, 18, 1},
      {"Nitrous MS", TableForm::NitrousStages, 0, 14, 5},
      {"Cam Gen L", TableForm::Smart, 0, 25, 1},
      {"Cam Gen D", TableForm::Smart, 0, 24, 1},
      {"Cam Gen O", TableForm::Smart, 0, 24, 1},
      {"Cam Gen C", TableForm::Smart, 0, 24, 1},
      {"Cam Gen Asym O", TableForm::Smart, 0, 24, 1},
  }};
  ParameterBlock block;
  for (const ArrayKey& expected : arrays) {
    const KeyRow* row = FindKey(expected.key);
    ASSERT_NE(row, nullptr) << expected.key;
    EXPECT_EQ(row->tableForm, expected.form) << expected.key;
    EXPECT_EQ(row->firstRow, expected.firstRow) << expected.key;
    EXPECT_EQ(row->rows, expected.rows) << expected.key;
    EXPECT_EQ(row->rowWidth, expected.rowWidth) << expected.key;
    EXPECT_NO_THROW(row->cell(block, expected.rows - 1, expected.rowWidth - 1)) << expected.key;
    EXPECT_THROW(row->cell(block, expected.rows, 0), std::out_of_range) << expected.key;
    EXPECT_THROW(row->cell(block, -1, 0), std::out_of_range) << expected.key;
  }
  EXPECT_EQ(std::ranges::count_if(Keys(), [](auto* row) { return row->cell != nullptr; }), 19);
}

TEST(KeyTable, FindsKeysInAnyCase) {
  const KeyRow* row = FindKey("cAlCuLaTe eVeRy X.XX LIFT");
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->key, "Calculate Every x.xx lift");
  EXPECT_EQ(FindKey("Calculate Every x.xx"), nullptr);
  EXPECT_EQ(FindKey(""), nullptr);
}

TEST(KeyTable, ValuesAsPlainText) {
  ParameterBlock block;
  block.Bore = 4.125;
  block.NumberofCylinders = 6;
  block.GridColor = 16777215;
  block.HelpBoxFontName = "Courier";
  block.IntakeFlowTable[15] = {0.55, 271.25};
  EXPECT_EQ(KeyValueText(*FindKey("Bore"), block, 0), "4.125");
  EXPECT_EQ(KeyValueText(*FindKey("Number of Cylinders"), block, 0), "6");
  EXPECT_EQ(KeyValueText(*FindKey("Grid Color"), block, 0), "16777215");
  EXPECT_EQ(KeyValueText(*FindKey("Help Box Font Name"), block, 0), "Courier");
  EXPECT_EQ(KeyValueText(*FindKey("IntakeFlow"), block, 15), "0.55 271.25");
  EXPECT_THROW(KeyValueText(*FindKey("IntakeFlow"), block, 16), std::out_of_range);
}

TEST(KeyTable, MetricModeIsHeldAsMinusOne) {
  EXPECT_EQ(FindKey("Metric Mode")->onValue, -1);
  EXPECT_EQ(FindKey("Print Heads")->onValue, 1);
  EXPECT_EQ(FindKey("DOHC")->onValue, 1);
}

}  // namespace
}  // namespace veldox
