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

  void Use() { ReadFields({&Text1}); }
  void UseTemperature() { ReadFields({&Text4}); }
  void StoreTemperature(double fahrenheit) { Store(Text4, fahrenheit); }
  void Check1_Click() {
    Use();
    SwitchUnits([this] { Show(Text3, Read(Text1) / Read(Text2)); });
  }

  Frame Frame1{*this, "Frame1", ""};
  Field Text1{Frame1, "Text1", "Bore", "4.0",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
  Field Text2{Frame1, "Text2", "Own Length", "1.0", Entry(KeyRule::UnsignedReal, Unit::Length)};
  Field Text3{Frame1, "Text3", "Ratio", "4", KeyRule::OutputOnly};
  Field Text4{Frame1, "Text4", "Temperature", "59",
              Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::Temperature).KeptInUs())};
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
  first_.Text1.SetText("4.006996");
  first_.Check1.Click();
  EXPECT_EQ(first_.Text1.text(), "101.7776");
  shell_.Open(second_);
  EXPECT_EQ(second_.Text1.text(), "4.006996");
  EXPECT_EQ(context_->block.Bore, 4.006996);
  EXPECT_EQ(second_.Text2.text(), "1.0");
  EXPECT_EQ(first_.Text1.text(), "101.7776");
  EXPECT_EQ(first_.Text2.text(), "25.4");
  EXPECT_TRUE(first_.Check1.on());
  EXPECT_TRUE(first_.metric());
}

TEST_F(MetricTest, SwitchingThereAndBackWithNothingBetweenIsTheIdentity) {
  shell_.Open(first_);
  for (const char* text : {"120", "4.0069961", ".1", "555.00", "1e-7", "0.3333333333"}) {
    first_.Text1.SetText(text);
    first_.Text2.SetText("0.70000");
    first_.Text3.SetText("stale");
    first_.Check1.Click();
    const std::string metric = first_.Text1.text();
    const std::string ratio = first_.Text3.text();
    for (int i = 0; i < 3; ++i) {
      first_.Check1.Click();
      EXPECT_EQ(first_.Text1.text(), text);
      EXPECT_EQ(first_.Text2.text(), "0.70000");
      EXPECT_EQ(first_.Text3.text(), "stale");
      EXPECT_EQ(context_->block.Bore, ParseNumber(text, DecimalMark::Point));
      first_.Check1.Click();
      EXPECT_EQ(first_.Text1.text(), metric);
      EXPECT_EQ(first_.Text3.text(), ratio);
      EXPECT_EQ(context_->block.Bore, ParseNumber(text, DecimalMark::Point) * 25.4);
    }
    first_.Check1.Click();
  }
}

TEST_F(MetricTest, MillimetresThatWereTypedComeBackFromInches) {
  shell_.Open(first_);
  first_.Check1.Click();
  first_.Text1.SetText("120");
  first_.Check1.Click();
  EXPECT_EQ(first_.Text1.text(), "4.724409");
  EXPECT_DOUBLE_EQ(context_->block.Bore, 120 / 25.4);
  first_.Check1.Click();
  EXPECT_EQ(first_.Text1.text(), "120");
  EXPECT_EQ(context_->block.Bore, 120);
  context_->HandOver(nullptr);
  EXPECT_DOUBLE_EQ(context_->block.Bore, 120 / 25.4);
}

TEST_F(MetricTest, WhatWasChangedSinceTheSwitchIsConvertedFromItsText) {
  shell_.Open(first_);
  first_.Text1.SetText("4.00");
  first_.Text2.SetText("2.00");
  first_.Check1.Click();
  first_.Text2.SetText("25.4");
  first_.Check1.Click();
  EXPECT_EQ(first_.Text1.text(), "4.00");
  EXPECT_EQ(first_.Text2.text(), "1.0");
  EXPECT_EQ(first_.Text3.text(), "4.0");  // worked out anew
}

TEST_F(MetricTest, AValueKeptInUsUnitsIsMetricInItsFieldAlone) {
  shell_.Open(first_);
  first_.Text4.SetText("212");
  first_.Check1.Click();
  EXPECT_EQ(first_.Text4.text(), "100.0");
  EXPECT_EQ(context_->block.Temperature, 59);
  first_.Perform([this] { first_.UseTemperature(); });
  EXPECT_DOUBLE_EQ(context_->block.Temperature, 212);
  first_.Perform([this] { first_.StoreTemperature(32); });
  EXPECT_EQ(first_.Text4.text(), "0.0");
  EXPECT_EQ(context_->block.Temperature, 32);
  context_->HandOver(nullptr);
  EXPECT_EQ(context_->block.Temperature, 32);
}

TEST_F(MetricTest, AValueKeptInUsUnitsKeepsTheDigitsThatItsFieldCannotShow) {
  shell_.Open(first_);
  first_.Text4.SetText("70");
  first_.Check1.Click();
  EXPECT_EQ(first_.Text4.text(), "21.11111");
  first_.Perform([this] { first_.StoreTemperature(70.0123456789); });
  EXPECT_EQ(first_.Text4.text(), "21.11797");
  first_.Perform([this] { first_.UseTemperature(); });
  EXPECT_EQ(context_->block.Temperature, 70.0123456789);
  first_.Text4.Edit("21.11798");
  first_.Perform([this] { first_.UseTemperature(); });
  EXPECT_DOUBLE_EQ(context_->block.Temperature, 21.11798 * 9 / 5 + 32);
  // What is stored in metric stands in the inches' text too.
  first_.Perform([this] { first_.StoreTemperature(88); });
  EXPECT_EQ(first_.Text4.text(), "31.11111");
  first_.Check1.Click();
  EXPECT_EQ(first_.Text4.text(), "88.0");
  // In inches the text is the value.
  first_.Perform([this] { first_.StoreTemperature(70.0123456789); });
  first_.Perform([this] { first_.UseTemperature(); });
  EXPECT_EQ(context_->block.Temperature, 70.01234);
}

/// A screen that knows no inches.
class MillimetreScreen : public Screen {
 public:
  explicit MillimetreScreen(ProgramContext& context) : Screen(context, "Mm", "Mm", "Mm") {
    SetAlwaysMetric();
  }
  void Double() {
    ReadFields({&Text1});
    Store(Text1, block().Bore * 2);
  }
  Frame Frame1{*this, "Frame1", ""};
  Field Text1{Frame1, "Text1", "Bore", "39.5",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
};

TEST_F(MetricTest, AScreenThatIsAlwaysMetricHandsOverInches) {
  MillimetreScreen screen(*context_);
  shell_.Open(screen);
  EXPECT_EQ(screen.Text1.text(), "101.6");
  screen.Text1.SetText("39.5");
  EXPECT_TRUE(screen.Perform([&] { screen.Double(); }));
  EXPECT_EQ(screen.Text1.text(), "79.0");
  EXPECT_EQ(context_->block.Bore, 79);
  shell_.Open(second_);
  EXPECT_DOUBLE_EQ(context_->block.Bore, 79 / 25.4);
  EXPECT_EQ(second_.Text1.text(), "3.110236");
}

TEST_F(MetricTest, WhatAnOpenerShowsInMillimetresComesBackToTheLastDigit) {
  shell_.Open(first_);
  first_.Check1.Click();
  context_->HandOver(nullptr);
  for (const double bore : {4.0069961, 0.1, 92.5196851, 3.3333333333}) {
    context_->block.Bore = bore;
    shell_.Open(first_);
    first_.Check1.Click();
    EXPECT_EQ(context_->block.Bore, bore);
    EXPECT_EQ(first_.Text1.text(), FormatField(bore, DecimalMark::Point));
    EXPECT_EQ(first_.Text3.text(), FormatField(ParseNumber(first_.Text1.text(), DecimalMark::Point),
                                               DecimalMark::Point));  // worked out anew
    first_.Check1.Click();
    context_->HandOver(nullptr);
  }
}

TEST_F(MetricTest, WhatNoCommandHasReadReachesNoOtherScreen) {
  shell_.Open(first_);
  first_.Check1.Click();
  first_.Text1.SetText("120");
  shell_.Open(second_);
  EXPECT_EQ(second_.Text1.text(), "4.0");
  // Not even what is no number.
  first_.Text1.SetText("wide");
  shell_.Open(second_);
  EXPECT_EQ(second_.Text1.text(), "4.0");
  EXPECT_TRUE(first_.Check1.on());
}

TEST_F(MetricTest, ValuesComeBackToTheLastDigitOrAreConverted) {
  ParameterBlock& b = context_->block;
  shell_.Open(first_);
  first_.Text1.SetText("0.1");
  first_.Check1.Click();
  for (int i = 0; i < 100; ++i) {
    context_->HandOver(nullptr);
    EXPECT_EQ(b.Bore, 0.1);
    context_->HandOver(&first_);
    EXPECT_EQ(b.Bore, 0.1 * 25.4);
  }
  b.Bore = 50.8;
  context_->HandOver(nullptr);
  EXPECT_DOUBLE_EQ(b.Bore, 2);
}

TEST_F(MetricTest, AConversionThatFailsChangesNothing) {
  shell_.Open(first_);
  first_.Text2.SetText("1e308");
  host_.Answer(Button::OK);
  EXPECT_FALSE(first_.Check1.Click());
  EXPECT_EQ(first_.Text1.text(), "4.0");
  EXPECT_EQ(context_->block.Bore, 4);
  EXPECT_FALSE(first_.metric());
  EXPECT_FALSE(first_.Check1.on());
}

TEST_F(MetricTest, AScreenWithBlankFieldsCanBeClosed) {
  shell_.Open(first_);
  first_.Check1.Click();
  context_->block.FormsCleared = 1;
  first_.ClearFields();
  first_.Text2.SetText("50.8");
  first_.Quit();
  EXPECT_FALSE(first_.visible());
  EXPECT_FALSE(first_.metric());
  EXPECT_FALSE(first_.Check1.on());
  EXPECT_EQ(first_.Text1.text(), "");
  EXPECT_EQ(first_.Text2.text(), "2.0");
  EXPECT_EQ(context_->block.Bore, 4);
}

TEST_F(MetricTest, AScreenWithBlankFieldsOpensInMetricWithoutABox) {
  context_->block.FormsCleared = 1;
  context_->block.MetricMenuOn = -1;
  first_.ClearFields();
  shell_.Open(first_);
  EXPECT_TRUE(first_.metric());
  EXPECT_TRUE(first_.Check1.on());
  EXPECT_EQ(context_->block.Bore, 4);
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

}  // namespace
}  // namespace veldox
