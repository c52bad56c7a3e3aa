#include "core/build_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>

#include "core/report.h"
#include "core/table.h"
#include "tests/support/sample_screens.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::HasSubstr;

/// A frame of each kind of thing that a sheet tells.
class Sheeted : public Screen {
 public:
  explicit Sheeted(ProgramContext& context)
      : Screen(context, "Sheeted", "A Sheeted Screen", "Sheeted") {}

  Frame Frame1{*this, "Frame1", "Engine", 0};
  Field Text1{Frame1, "Text1", "&Bore", "4.125", Entry(KeyRule::UnsignedReal, Unit::Length)};
  Field Text2{Frame1, "Text2", "Stroke", "3.48", Entry(KeyRule::UnsignedReal, Unit::Length)};
  Field Text3{Frame1, "Text3", "Cylinders", "", Entry(KeyRule::Digits)};
  Field Text4{Frame1, "Text4",
              "A rate that is used in place of the times of the file where it is other than 0",
              "12345.678", Entry(KeyRule::UnsignedReal)};
  CheckBox Check1{Frame1, "Check1", "Primary Drive", ""};
  OptionGroup Option1{Frame1, "Option1", "Fuel", {{0, "Gas", ""}, {1, "E85", ""}}, 1};
};

std::vector<std::string> Lines(const std::string& report) {
  std::vector<std::string> lines;
  for (const MarkedLine& line : ReportLines(report)) lines.emplace_back(line.text);
  return lines;
}

class BuildSheetTest : public testing::Test {
 protected:
  BuildSheetTest() { context_->rules.BuildMessages(); }

  std::vector<std::string> Sheet(const Screen& screen, const BuildSheetHead& head = {}) const {
    const std::array<const Screen*, 1> screens{&screen};
    return Lines(BuildSheet(screens, head, context_->block));
  }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
};

TEST_F(BuildSheetTest, TellsFileDateCompanyAndNotesFirst) {
  Sheeted screen(*context_);
  context_->block.CompanyName = "Siostek Engines";
  context_->block.Notes = "Fresh bearings_\r\n\r\nRuns hot";
  const auto lines = Sheet(screen, {"drag.prm", {2026, 3, 7, 9, 5, 2}});
  const std::vector<std::string> expected = {
      "Press the . key to Write this Data to a Disk File Or , key to Print this Data",
      "",
      "Build Sheet",
      "File: drag.prm                                   Date: 2026-03-07",
      "Siostek Engines",
      "",
      "Notes",
      "  Fresh bearings_ ",  // else the printer would take the sign for a heading's
      "",
      "  Runs hot",
      "",
      "A Sheeted Screen",
      "================"};
  ASSERT_GE(lines.size(), expected.size());
  EXPECT_EQ(std::vector(lines.begin(), lines.begin() + static_cast<int>(expected.size())),
            expected);
}

TEST_F(BuildSheetTest, LaysLabelsValuesAndUnitsInTwoColumns) {
  Sheeted screen(*context_);
  const auto lines = Sheet(screen);
  const auto engine = std::find(lines.begin(), lines.end(), "Engine");
  ASSERT_NE(engine, lines.end());
  EXPECT_EQ(std::vector(engine + 1, lines.end()),
            (std::vector<std::string>{
                // two columns of 45 characters, four apart
                "  Bore ............................. 4.125 in      Cylinders "
                "............................... -",
                "  Stroke ............................ 3.48 in",
                "  A rate that is used in place of the times of the file where it is other than 0 "
                "... 12345.678",
                "  Primary Drive .......................... no      Fuel "
                ".................................. E85"}));
}

TEST_F(BuildSheetTest, NoLabelIsCutAndNoLineIsWiderThanAPage) {
  FlowBench bench(*context_);
  const auto lines = Sheet(bench);
  std::size_t widest = 0;
  for (std::size_t i = 1; i < lines.size(); ++i) widest = std::max(widest, lines[i].size());
  EXPECT_LE(widest, 94U);
  // The table's cells stand in the sheet, each row on a line.
  EXPECT_THAT(lines, testing::Contains(HasSubstr(".050")));
  EXPECT_THAT(lines, testing::Contains(testing::AllOf(HasSubstr(".100"), HasSubstr("65"))));
}

}  // namespace
}  // namespace veldox
