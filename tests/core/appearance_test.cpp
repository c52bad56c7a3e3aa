#include "core/appearance.h"

#include <gtest/gtest.h>

#include <set>

#include "core/key_table.h"

namespace veldox {
namespace {

constexpr ColorCode Rgb(int red, int green, int blue) {
  return red + 256 * green + 65536 * blue;
}

TEST(Contrast, IsThatOfPublishedPairs) {
  // Black on white, by the definition; the greys on white from WebAIM's contrast checker.
  EXPECT_DOUBLE_EQ(ContrastRatio(Rgb(0, 0, 0), Rgb(255, 255, 255)), 21);
  EXPECT_DOUBLE_EQ(ContrastRatio(Rgb(9, 99, 199), Rgb(9, 99, 199)), 1);
  EXPECT_NEAR(ContrastRatio(Rgb(0x76, 0x76, 0x76), Rgb(255, 255, 255)), 4.54, 0.005);
  EXPECT_NEAR(ContrastRatio(Rgb(0x77, 0x77, 0x77), Rgb(255, 255, 255)), 4.48, 0.005);
  // Pure red 4.0, pure green 1.37, pure blue 8.59 on white: red comes first, blue last.
  EXPECT_NEAR(ContrastRatio(Rgb(255, 0, 0), Rgb(255, 255, 255)), 4.00, 0.005);
  EXPECT_NEAR(ContrastRatio(Rgb(255, 255, 255), Rgb(0, 255, 0)), 1.37, 0.005);
  EXPECT_NEAR(ContrastRatio(Rgb(0, 0, 255), Rgb(255, 255, 255)), 8.59, 0.005);
}

TEST(Appearance, OfAFreshProgramChoosesNothing) {
  const ParameterBlock block;
  const Appearance look = AppearanceOf(block);
  EXPECT_EQ(look, Appearance());
  EXPECT_EQ(look.alignment, EntryAlignment::Center);
  EXPECT_TRUE(look.entryBorder);
  EXPECT_TRUE(look.raisedOptions);
  EXPECT_EQ(look.entry, FontLook());
}

TEST(Appearance, ShowsTheNearestOfWhatCannotBe) {
  ParameterBlock block;
  block.EntryBoxFontSize = 500;
  block.LabelBoxFontSize = 1;
  block.CommandButtonFontSize = 0;
  block.HelpBoxFontSize = -7;
  block.LabelBoxColor = 0x1000000;
  block.BackGroundColor = -5;
  block.EntryBoxAlignment = 9;
  block.EntryBoxStyle = -1;
  block.OptionCheckBoxStyle = 3;
  block.EntryBoxFontBold = -1;
  const Appearance look = AppearanceOf(block);
  EXPECT_EQ(look.entry.size, 32);
  EXPECT_EQ(look.label.size, 6);
  EXPECT_EQ(look.command.size, 0);
  EXPECT_EQ(look.help.size, 6);
  EXPECT_EQ(look.labelText, 0xFFFFFF);
  EXPECT_EQ(look.frameGround, kNoColor);
  EXPECT_EQ(look.alignment, EntryAlignment::Center);
  EXPECT_FALSE(look.entryBorder);
  EXPECT_TRUE(look.raisedOptions);
  EXPECT_TRUE(look.entry.bold);
}

/// The rows of the file's section of the appearance.
std::vector<const KeyRow*> AppearanceKeys() {
  std::vector<const KeyRow*> keys;
  bool inSection = false;
  for (const KeyRow& row : KeyTable()) {
    if (row.form == KeyForm::Comment) {
      inSection = row.key == ";   User Selected GUI Options -- Keep This Order";
    } else if (inSection && row.key != "Metric Mode" && row.key != "Print Heads") {
      keys.push_back(&row);
    }
  }
  return keys;
}

TEST(Appearance, ResetPutsEveryKeyOfItsSectionBack) {
  ParameterBlock fresh;
  ParameterBlock changed;
  const auto keys = AppearanceKeys();
  EXPECT_EQ(keys.size(), 26U);
  for (const KeyRow* row : keys) {
    std::visit(
        [&](auto member) {
          using Member = decltype(member);
          if constexpr (std::is_same_v<Member, std::string ParameterBlock::*>) {
            changed.*member = "Other";
          } else if constexpr (!std::is_same_v<Member, std::monostate>) {
            changed.*member = 7;
          }
        },
        row->member);
    EXPECT_NE(KeyValueText(*row, changed, 0), KeyValueText(*row, fresh, 0)) << row->key;
  }
  changed.GridColor = 12;
  ResetAppearance(changed);
  for (const KeyRow* row : keys) {
    EXPECT_EQ(KeyValueText(*row, changed, 0), KeyValueText(*row, fresh, 0)) << row->key;
  }
  EXPECT_EQ(changed.GridColor, 12) << "graphs are no screens";
}

}  // namespace
}  // namespace veldox
