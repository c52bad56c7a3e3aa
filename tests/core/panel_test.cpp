#include "core/panel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tests/support/sample_screens.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class PanelTest : public testing::Test {
 protected:
  PanelTest() { context_->rules.BuildMessages(); }

  /// Clicks as a mouse does: the focus goes to the command first.
  static bool Click(Command& command) {
    return command.Reachable() && command.screen().MoveFocus(&command) && command.Click();
  }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  FlowBench bench_{*context_};
  PagedBench pages_{*context_};
};

TEST_F(PanelTest, IsHiddenUntilItsCommandShowsIt) {
  EXPECT_FALSE(bench_.Frame11.Shown());
  EXPECT_FALSE(bench_.Text48[0].Shown());
  EXPECT_TRUE(Click(bench_.Command35));
  EXPECT_TRUE(bench_.Text48[0].Shown());
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame11);
  EXPECT_EQ(bench_.focus(), &bench_.Text48[0]);
}

TEST_F(PanelTest, DoneGivesTheFocusBackAndResetsNothing) {
  Click(bench_.Command35);
  bench_.Text48[0].SetText(".025");
  EXPECT_TRUE(Click(bench_.Command91[9]));
  EXPECT_FALSE(bench_.Frame11.Shown());
  EXPECT_EQ(bench_.topPanel(), nullptr);
  EXPECT_EQ(bench_.focus(), &bench_.Command35);
  Click(bench_.Command35);
  EXPECT_EQ(bench_.Text48[0].text(), ".025");
}

TEST_F(PanelTest, APanelOpenedFromAPanelLiesOnTopOfIt) {
  Click(bench_.Command35);
  Click(bench_.Command50b);
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame8);
  EXPECT_TRUE(bench_.Frame11.Shown());
  EXPECT_TRUE(bench_.Text48[0].Shown());
  EXPECT_FALSE(bench_.Text48[0].Reachable());
  EXPECT_TRUE(bench_.Text7.Reachable());
  Click(bench_.Command91[4]);
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame11);
  EXPECT_FALSE(bench_.Frame8.Shown());
  EXPECT_TRUE(bench_.Text48[0].Reachable());
  EXPECT_EQ(bench_.focus(), &bench_.Command50b);
}

TEST_F(PanelTest, WhatLiesUnderAPanelTakesNoClick) {
  Click(bench_.Command35);
  EXPECT_FALSE(bench_.Command1.Click());
  EXPECT_EQ(bench_.averages, 0);
  EXPECT_FALSE(bench_.Check2.Click());
  EXPECT_FALSE(bench_.Check2.on());
  dynamic_cast<OptionButton&>(*bench_.Find("Option1(11)")).Click();
  EXPECT_EQ(bench_.Option1.chosen(), 1);
  Click(bench_.Command50b);
  EXPECT_FALSE(bench_.CommandF3[0].Click());
  EXPECT_FALSE(bench_.Command91[9].Click());
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame8);
}

TEST_F(PanelTest, OnlyTheTopPanelIsInTheTabOrder) {
  Click(bench_.Command50);
  std::vector<const Control*> walked{&bench_.Text7};
  for (const Control* at = bench_.NextInTabOrder(bench_.Text7); at != &bench_.Text7;
       at = bench_.NextInTabOrder(*at)) {
    walked.push_back(at);
    ASSERT_LT(walked.size(), 50U);
  }
  const std::vector<const Control*> expected{
      &bench_.Text7,        &bench_.Text8,  &bench_.Command8,
      &bench_.Command91[4], &bench_.subend, bench_.context().current.SwitchOf(bench_)};
  EXPECT_EQ(walked, expected);
}

TEST_F(PanelTest, EscapeIsItsDone) {
  Click(bench_.Command35);
  Click(bench_.Command50b);
  bench_.PutAwayPanel();
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame11);
  bench_.PutAwayPanel();
  EXPECT_EQ(bench_.topPanel(), nullptr);
  bench_.PutAwayPanel();
  EXPECT_EQ(bench_.topPanel(), nullptr);
}

TEST_F(PanelTest, APanelThatIsShownComesToTheTopAndHasOnePlace) {
  bench_.Frame11.Open();
  bench_.Frame8.Open();
  bench_.Frame11.Open();
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame11);
  EXPECT_EQ(bench_.openPanels().size(), 2U);
  bench_.Frame11.PutAway();
  EXPECT_EQ(bench_.topPanel(), &bench_.Frame8);
}

TEST_F(PanelTest, DoneAndQuitWorkWhateverAFieldIsLeftWith) {
  bench_.Text2.Focus();
  bench_.Text2.SetText("");
  host_.Answer(Button::OK);  // the command is not reached
  EXPECT_FALSE(Click(bench_.Command1));
  EXPECT_EQ(bench_.averages, 0);
  bench_.SetVisible(true);
  EXPECT_TRUE(Click(bench_.subend));
  EXPECT_FALSE(bench_.visible());
  EXPECT_EQ(bench_.Text2.text(), "");
}

TEST_F(PanelTest, QuitIsReachedFromAPanel) {
  bench_.SetVisible(true);
  Click(bench_.Command35);
  EXPECT_TRUE(bench_.subend.Reachable());
  EXPECT_TRUE(Click(bench_.subend));
  EXPECT_FALSE(bench_.visible());
}

TEST_F(PanelTest, FieldsOfAHiddenPanelAreRead) {
  bench_.Text49[0].SetText("100");
  EXPECT_TRUE(bench_.Command1.Click());
  // (100 + 65 + 120.25 + 165) / 16 = 28.140625, cut to eight characters
  EXPECT_EQ(bench_.L1.text(), "28.14062");
}

TEST_F(PanelTest, AFrameInsideAFrameGoesWithIt) {
  EXPECT_EQ(bench_.Frame4.frame(), &bench_.Frame1);
  EXPECT_TRUE(bench_.L1.Shown());
  bench_.Frame1.SetVisible(false);
  EXPECT_FALSE(bench_.L1.Shown());
  bench_.Frame1.SetVisible(true);
  bench_.Frame4.SetVisible(false);
  EXPECT_FALSE(bench_.L1.Shown());
  EXPECT_TRUE(bench_.Text1.Shown());
}

TEST_F(PanelTest, PagesTakeTurnsAndTheirSwitchesStay) {
  EXPECT_TRUE(pages_.Text1.Reachable());
  EXPECT_FALSE(pages_.Text3.Reachable());
  EXPECT_FALSE(pages_.Command4.Click());
  EXPECT_EQ(pages_.Text3.text(), "18");
  EXPECT_TRUE(Click(pages_.Command8));
  EXPECT_TRUE(pages_.Command4.Click());
  EXPECT_EQ(pages_.Text3.text(), "19.0");
  EXPECT_FALSE(pages_.Text1.Shown());
  EXPECT_TRUE(Click(pages_.Command3));
  EXPECT_TRUE(pages_.Text83[0].Reachable());
  EXPECT_FALSE(pages_.Text3.Shown());
  EXPECT_TRUE(Click(pages_.Command1));
  EXPECT_TRUE(pages_.Text1.Reachable());
}

TEST_F(PanelTest, ASharedAccessKeyClicksInTheFrameOfTheFocusElseTheFirst) {
  EXPECT_EQ(bench_.Command1.accessKey(), 'a');
  EXPECT_EQ(bench_.AccessKeyTarget('a'), &bench_.Command1);
  bench_.MoveFocus(&bench_.L1);
  EXPECT_EQ(bench_.AccessKeyTarget('a'), &bench_.Command3);
  bench_.MoveFocus(&bench_.Text1);
  EXPECT_EQ(bench_.AccessKeyTarget('a'), &bench_.Command1);
  bench_.Command1.SetEnabled(false);
  EXPECT_EQ(bench_.AccessKeyTarget('a'), &bench_.Command3);
  EXPECT_EQ(bench_.AccessKeyTarget('z'), nullptr);
  // Of two panels, the one that can be reached.
  bench_.Frame11.Open();
  EXPECT_EQ(bench_.AccessKeyTarget('v'), &bench_.Command50b);
}

TEST_F(PanelTest, TheLastCalculationRunsAgain) {
  EXPECT_EQ(bench_.NextCalculation(), &bench_.Command1) << "the first, while none was run";
  EXPECT_TRUE(bench_.CalculateAgain());
  EXPECT_EQ(bench_.averages, 1);
  bench_.Command3.Click();
  EXPECT_TRUE(bench_.CalculateAgain());
  EXPECT_EQ(bench_.graphs, 2);
  // What shows a panel or closes it is none, and in a panel the panel's own count.
  Click(bench_.Command50);
  EXPECT_EQ(bench_.NextCalculation(), &bench_.Command8);
  Click(bench_.Command91[4]);
  EXPECT_EQ(bench_.NextCalculation(), &bench_.Command3);
  Click(bench_.Command50);
  bench_.Command8.Click();
  Click(bench_.Command91[4]);
  EXPECT_EQ(bench_.NextCalculation(), &bench_.Command1) << "the last one lies in the panel";
}

TEST_F(PanelTest, AFieldThatIsRefusedHoldsTheCalculationBack) {
  bench_.MoveFocus(&bench_.Text2);
  bench_.Text2.SetText("");
  host_.Answer(Button::OK);
  EXPECT_FALSE(bench_.CalculateAgain());
  EXPECT_EQ(bench_.averages, 0);
}

}  // namespace
}  // namespace veldox
