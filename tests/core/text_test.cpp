#include "core/text.h"

#include <gtest/gtest.h>

namespace veldox {
namespace {

TEST(Clipped, LeavesAShortTextAsItIs) {
  EXPECT_EQ(Clipped("", 3), "");
  EXPECT_EQ(Clipped("abc", 3), "abc");
  EXPECT_EQ(Clipped("abcd", 3), "abc...");
}

TEST(Clipped, CutsBetweenCharacters) {
  const std::string text = "\xC3\xA9\xC3\xBC\xE2\x82\xAC";  // e acute, u umlaut, euro sign
  EXPECT_EQ(Clipped(text, 3), text);
  EXPECT_EQ(Clipped(text, 2), "\xC3\xA9\xC3\xBC...");
  EXPECT_EQ(Clipped(text, 1), "\xC3\xA9...");
}

TEST(CharacterCount, CountsCharactersAndNotBytes) {
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("90\u00b0 \u20ac"), 5U);
}

TEST(Aligned, FillsToAWidthInCharacters) {
  EXPECT_EQ(LeftAligned("\u00b0C", 4), "\u00b0C  ");
  EXPECT_EQ(RightAligned("\u00b0C", 4), "  \u00b0C");
  EXPECT_EQ(LeftAligned("bore", 3), "bore");
  EXPECT_EQ(RightAligned("bore", 3), "bore");
}

TEST(SwitchCaption, EndsWithHowTheSwitchStands) {
  EXPECT_EQ(SwitchCaption("Metric Mode -- Is OFF", true), "Metric Mode -- Is ON");
  EXPECT_EQ(SwitchCaption("Metric Mode -- Is ON", true), "Metric Mode -- Is ON");
  EXPECT_EQ(SwitchCaption("Metric Mode -- Is ON", false), "Metric Mode -- Is OFF");
}

}  // namespace
}  // namespace veldox
