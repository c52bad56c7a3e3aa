#include "core/line_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  LineReader reader(text, "lift.txt");
  while (reader.Next()) {
    lines.emplace_back(reader.line());
    EXPECT_EQ(static_cast<std::size_t>(reader.number()), lines.size());
  }
  return lines;
}

std::string RefusalOf(const std::string& text) {
  LineReader reader(text, "lift.txt");
  try {
    while (reader.Next()) {
    }
  } catch (const CommandError& error) {
    EXPECT_EQ(error.kind(), ErrorKind::File);
    return error.message();
  }
  return {};
}

TEST(LineReader, TakesEveryEndOfALine) {
  EXPECT_THAT(Lines("one\r\ntwo\nthree"), ElementsAre("one", "two", "three"));
  EXPECT_THAT(Lines("one\r\n"), ElementsAre("one"));
  EXPECT_THAT(Lines("one\r"), ElementsAre("one"));
  EXPECT_THAT(Lines("a\rb\n"), ElementsAre("a\rb"));
}

TEST(LineReader, LeavesBlankLinesToItsCaller) {
  EXPECT_THAT(Lines("\n\r\n  \n\nx\n\n"), ElementsAre("", "", "  ", "", "x", ""));
  EXPECT_THAT(Lines(""), IsEmpty());
}

TEST(LineReader, TellsFileLineAndTextInItsRefusals) {
  LineReader reader("head\r\n0.1 0.2 x\r\n", "lift.txt");
  EXPECT_EQ(reader.number(), 0);
  ASSERT_TRUE(reader.Next());
  ASSERT_TRUE(reader.Next());
  EXPECT_EQ(reader.File(), "File: lift.txt");
  EXPECT_EQ(reader.Place(), "File: lift.txt   Record # 2");
  const CommandError refusal = reader.Refusal("A lift is no number.");
  EXPECT_EQ(refusal.kind(), ErrorKind::File);
  EXPECT_EQ(refusal.message(),
            "A lift is no number.\r\nFile: lift.txt   Record # 2\r\nData --> 0.1 0.2 x");
}

TEST(LineReader, RefusesALineBeyond64Kb) {
  std::string text = "first\n";
  text.append(kLongestLine, 'x');
  EXPECT_EQ(Lines(text + "\r\nlast").size(), 3U);
  EXPECT_EQ(RefusalOf(text + "x\nlast"),
            "A line of the file is longer than 64 KB.\r\nFile: lift.txt   Record # 2\r\nData --> " +
                std::string(300, 'x') + "...");
}

TEST(LineReader, RefusesANul) {
  EXPECT_EQ(RefusalOf(std::string("a\0b", 3)),
            "The file is no text: a line of it holds a NUL byte.\r\n"
            "File: lift.txt   Record # 1\r\nData --> a b");
}

}  // namespace
}  // namespace veldox
