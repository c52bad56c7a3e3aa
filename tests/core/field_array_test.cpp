#include "core/field_array.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/sample_screens.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class FieldArrayTest : public testing::Test {
 protected:
  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  FlowBench bench_{*context_};
};

TEST_F(FieldArrayTest, MembersAreFieldsOfTheirOwnNames) {
  EXPECT_EQ(bench_.Text48.count(), 16);
  EXPECT_EQ(bench_.Find("Text48(3)"), &bench_.Text48[3]);
  EXPECT_EQ(bench_.Find("Text48(15)"), &bench_.Text48[15]);
  EXPECT_EQ(bench_.Find("Text48(16)"), nullptr);
  EXPECT_EQ(bench_.Text48[3].rule(), KeyRule::UnsignedReal);
  EXPECT_EQ(bench_.Text48[3].unit(), Unit::Length);
  EXPECT_EQ(bench_.Text48[3].help(), "Valve lift of the row.");
}

TEST_F(FieldArrayTest, RowsBehindTheLastTextHaveThatOne) {
  EXPECT_EQ(bench_.Text48[0].text(), ".050");
  EXPECT_EQ(bench_.Text48[8].text(), ".800");
  EXPECT_EQ(bench_.Text48[15].text(), ".800");
  EXPECT_EQ(bench_.Text51[7].text(), "50");
}

TEST_F(FieldArrayTest, AnIndexThatIsNoneIsRefused) {
  for (const int index : {-1, 16}) {
    try {
      bench_.Text48[index];
      FAIL() << index;
    } catch (const CommandError& error) {
      EXPECT_EQ(error.kind(), ErrorKind::IndexOutOfRange);
    }
  }
  EXPECT_THROW(bench_.CommandF3[1], CommandError);
}

TEST_F(FieldArrayTest, AMessageNamesColumnAndRow) {
  bench_.Text49[4].SetText("x");
  host_.Answer(Button::OK);
  EXPECT_FALSE(bench_.Command1.Click());
  EXPECT_EQ(host_.messages.back().text.rfind("\"Flow, row 5\" ", 0), 0U)
      << host_.messages.back().text;
  EXPECT_EQ(bench_.focus(), &bench_.Text49[4]);
}

TEST_F(FieldArrayTest, CommandsHaveTheirIndexesAndFrames) {
  EXPECT_EQ(bench_.Find("CommandF3(7)"), &bench_.CommandF3[7]);
  EXPECT_EQ(bench_.CommandF3[7].frame(), &bench_.Frame11a);
  EXPECT_EQ(bench_.Command91[9].frame(), &bench_.Frame11b);
  EXPECT_EQ(bench_.Command91[4].frame(), &bench_.Frame8);
  bench_.Frame11.Open();
  EXPECT_TRUE(bench_.CommandF3[7].Click());
  EXPECT_EQ(bench_.lastReset, 7);
  EXPECT_EQ(bench_.Text51[0].text(), "0");
  EXPECT_EQ(bench_.Text49[0].text(), "32.5");
  EXPECT_TRUE(bench_.CommandF3[3].Click());
  EXPECT_EQ(bench_.Text49[0].text(), "0");
}

TEST_F(FieldArrayTest, ClearAndCommaGoOverAllMembers) {
  bench_.ConvertDefaultsToComma();
  EXPECT_EQ(bench_.Text49[2].text(), "120,25");
  bench_.ClearFields();
  for (const auto& field : bench_.Text49.fields()) EXPECT_EQ(field->text(), "");
}

TEST_F(FieldArrayTest, OptionsOfSeveralFramesAreOneGroup) {
  EXPECT_TRUE(bench_.Option1.isParted());
  auto* inches = dynamic_cast<OptionButton*>(bench_.Find("Option1(11)"));
  ASSERT_NE(inches, nullptr);
  EXPECT_EQ(inches->frame(), &bench_.Frame6);
  auto* psi = dynamic_cast<OptionButton*>(bench_.Find("Option1(1)"));
  EXPECT_EQ(psi->frame(), &bench_.Frame5);
  EXPECT_TRUE(psi->on());
  inches->Click();
  EXPECT_EQ(bench_.Option1.chosen(), 11);
  EXPECT_TRUE(inches->on());
  EXPECT_FALSE(psi->on());
  // Each stands where its frame stands.
  bench_.Frame6.SetVisible(false);
  EXPECT_FALSE(inches->Shown());
  EXPECT_TRUE(psi->Shown());
}

TEST_F(FieldArrayTest, AFieldTurnsReadOnlyAndBack) {
  bench_.Check2.Click();
  EXPECT_EQ(bench_.Text1.FilterKey(U'5'), 0U);
  EXPECT_TRUE(bench_.Text1.enabled());
  EXPECT_EQ(bench_.Text1.text(), "28");
  bench_.Check2.Click();
  EXPECT_EQ(bench_.Text1.FilterKey(U'5'), U'5');
}

TEST_F(FieldArrayTest, ResultsInLabelsObeyTheRulesOfResults) {
  EXPECT_TRUE(bench_.Command1.Click());
  // (32.5 + 65 + 120.25 + 165) / 16 = 23.921875, cut to eight characters
  EXPECT_EQ(bench_.L1.text(), "23.92187");
  EXPECT_EQ(bench_.L1.mark(), Mark::Changed);
  EXPECT_EQ(bench_.L1.FilterKey(U'1'), 0U);
  bench_.Text2.SetText("0");
  host_.Answer(Button::OK);
  EXPECT_FALSE(bench_.Command1.Click());
  EXPECT_EQ(
      host_.messages.back().text,
      "\"Ports\" is 0, and \"Average Flow\" cannot be computed by dividing by 0. Please enter "
      "another value.");
  EXPECT_EQ(bench_.L1.text(), "23.92187");
  bench_.Command3.Click();
  EXPECT_EQ(bench_.Text3.text(), "Average: 23.92187\r\nLift: 0.8");
  EXPECT_EQ(bench_.Text3.FilterKey(U'1'), 0U);
  bench_.ClearFields();
  EXPECT_EQ(bench_.L1.text(), "");
  EXPECT_EQ(bench_.Text3.text(), "");
}

}  // namespace
}  // namespace veldox
