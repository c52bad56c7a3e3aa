// What screens do to each other's values when one of them shows metric units.

#include <gtest/gtest.h>

#include "core/shell.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

/// A screen that shows the bore and has a length of its own.
class BoreScreen : public Screen {
 public:
  BoreScreen(ProgramContext& context, const char* name) : Screen(context, name, name, name) {}
  CheckBox* MetricBox() override { return &Check1; }
  void CopyFromBlock() override { Text1.SetText(FormatField(block().Bore, mark())); }

  void Use() { ReadInto(block().Bore, Text1); }
  void Check1_Click() {
    Use();
    const bool toMetric = block().MetricSwitch != 1;
    const double factor = toMetric ? kMillimetresPerInch : 1 / kMillimetresPerInch;
    Store(block().Bore, Text1, block().Bore * factor);
    Show(Text2, Read(Text2) * factor);
    block().MetricSwitch = toMetric ? 1 : 0;
    SetMetricShown(toMetric);
  }

  Frame Frame1{*this, "Frame1", ""};
  Field Text1{Frame1, "Text1", "Bore", "4.0", KeyRule::UnsignedReal, Unit::Length};
  Field Text2{Frame1, "Text2", "Own Length", "1.0", KeyRule::UnsignedReal, Unit::Length};
  CheckBox Check1{Frame1, "Check1", "Metric", "", &BoreScreen::Check1_Click};
  Command Command1{Frame1, "Command1", "Use", "Reads the bore.", &BoreScreen::Use};
};

class MetricTest : public testing::Test {
 protected:
  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  Shell shell_{*context_};
  BoreScreen first_{*context_, "First"};
  BoreScreen second_{*context_, "Second"};
};

TEST_F(MetricTest, AScreenOpensInInchesWhileAnotherShowsMillimetres) {
  shell_.Open(first_);
  first_.Check1.Click();
  first_.Text1.SetText("101.7777");
  shell_.Open(second_);
  EXPECT_EQ(second_.Text1.text(), "4.006996");  // 101.7777 / 25.4
  EXPECT_EQ(second_.Text2.text(), "1.0");
  EXPECT_EQ(first_.Text1.text(), "101.7777");
  EXPECT_EQ(first_.Text2.text(), "25.4");
  EXPECT_TRUE(first_.Check1.on());
  EXPECT_TRUE(first_.metric());
}

TEST_F(MetricTest, ValuesOfAnInchScreenReachAMetricOneInMillimetres) {
  shell_.Open(first_);
  first_.Check1.Click();
  shell_.Open(second_);
  second_.Text1.SetText("3.5");
  second_.Command1.Click();
  shell_.Open(first_);
  EXPECT_EQ(first_.Text1.text(), "88.9");
  EXPECT_EQ(first_.Text2.text(), "25.4");
  EXPECT_TRUE(first_.Check1.on());
}

TEST_F(MetricTest, EachScreensCommandsTakeItsOwnUnits) {
  shell_.Open(first_);
  shell_.Open(second_);
  first_.Check1.Click();
  second_.Command1.Click();
  EXPECT_EQ(context_->block.MetricSwitch, 0);
  first_.Command1.Click();
  EXPECT_EQ(context_->block.MetricSwitch, 1);
}

TEST_F(MetricTest, ANumberThatCannotBeConvertedIsToldAndNothingIsCopied) {
  shell_.Open(first_);
  first_.Check1.Click();
  first_.Text1.SetText("wide");
  host_.Answer(Button::OK);
  shell_.Open(second_);
  EXPECT_EQ(second_.Text1.text(), "4.0");
  EXPECT_TRUE(first_.Check1.on());
}

}  // namespace
}  // namespace veldox
