#include "core/screen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "tests/support/test_host.h"

namespace veldox {
namespace {

class Bench : public Screen {
 public:
  explicit Bench(ProgramContext& context) : Screen(context, "Bench", "Test Bench", "Bench") {}
  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Label1; }
  void Edited(const Control& control) override { edited.push_back(control.name()); }

  std::vector<std::string> edited;  ///< the names of what the user has worked

  void Divide() { Store(Result, Read(A) / Read(B), {&B}); }
  void Grow() { Store(Result, Read(A) * 1e300); }
  void Root() { Store(Result, std::sqrt(Read(A))); }
  void Quotient() { Show(Result, Read(A) / 0.0); }
  void Count() { ReadCount(block().NumberofCylinders, A); }
  void Two() {
    Show(Result, 1);
    Read(B);
  }
  void ReadSecond() { Read(C); }
  void Cancel() { throw CommandError(ErrorKind::Cancelled, ""); }
  void Lost() { std::vector<int>().at(3); }
  void Toggle() {
    Read(A);
    SwitchUnits();
  }

  Frame Frame1{*this, "Frame1", "Frame"};
  Field A{Frame1, "A", "&Value A", "8.5", Entry(KeyRule::SignedReal, Unit::Length)};
  Field B{Frame1, "B", "Value B", "2", KeyRule::SignedReal};
  Field Result{Frame1, "Result", "Result", "", Entry(KeyRule::OutputOnly, Holds(&P::Bore))};
  Command DivideCommand{Frame1, "DivideCommand", "Divide", "Divides.", &Bench::Divide};
  Command NotYet{Frame1, "NotYet", "Not yet", "Will do something."};
  CheckBox Check1{Frame1, "Check1", "Metric", "Metric help", &Bench::Toggle};
  OptionGroup Option1{Frame1,
                      "Option1",
                      "Options",
                      {{0, "Zero", "first"}, {1, "One", "second"}, {100, "Hidden", "", false}}};
  Label Label1{Frame1, "Label1", ""};
  Frame Frame2{*this, "Frame2", "Second Engine"};
  Field C{Frame2, "C", "Value &B", "2", KeyRule::SignedReal};
};

class ScreenTest : public testing::Test {
 protected:
  bool Run(void (Bench::*command)()) {
    return bench_.Perform([&] { (bench_.*command)(); });
  }
  const std::string& LastText() const { return host_.messages.back().text; }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  Bench bench_{*context_};
};

TEST_F(ScreenTest, StoreShowsAndKeepsAResult) {
  EXPECT_TRUE(Run(&Bench::Divide));
  EXPECT_EQ(bench_.Result.text(), "4.25");
  EXPECT_EQ(context_->block.Bore, 4.25);
  EXPECT_EQ(bench_.Result.mark(), Mark::Changed);
}

TEST_F(ScreenTest, IsToldWhatTheUserTypesTurnsAndPicks) {
  bench_.SetVisible(true);
  bench_.A.SetText("7");
  bench_.Option1.Choose(1);
  EXPECT_TRUE(bench_.edited.empty());
  bench_.A.Edit("8");
  bench_.Option1.Pick(0);
  bench_.Option1.Pick(0);  // is chosen already
  bench_.Check1.Click();
  EXPECT_EQ(bench_.edited, (std::vector<std::string>{"A", "Option1", "Check1"}));
}

TEST_F(ScreenTest, MarksLastUntilTheNextCommand) {
  Run(&Bench::Divide);
  Run(&Bench::Count);
  EXPECT_EQ(bench_.Result.mark(), Mark::None);
}

TEST_F(ScreenTest, BadNumberNamesTheFieldMarksItAndFocusesIt) {
  host_.Answer(Button::OK);
  bench_.A.SetText("eight");
  EXPECT_FALSE(Run(&Bench::Divide));
  EXPECT_EQ(LastText().rfind("\"Value A\" ", 0), 0U) << LastText();
  EXPECT_NE(LastText().find("eight"), std::string::npos);
  EXPECT_EQ(host_.messages.back().icon, Icon::Warning);
  EXPECT_EQ(bench_.A.mark(), Mark::Error);
  EXPECT_EQ(bench_.focus(), &bench_.A);
}

TEST_F(ScreenTest, DivisionByZeroNamesTheDivisorThatIsZero) {
  host_.Answer(Button::OK);
  bench_.B.SetText("0.0");
  bench_.Result.SetText("before");
  context_->block.Bore = 3;
  EXPECT_FALSE(Run(&Bench::Divide));
  EXPECT_EQ(LastText().rfind("\"Value B\" (Frame) is 0", 0), 0U) << LastText();
  EXPECT_EQ(bench_.B.mark(), Mark::Error);
  EXPECT_EQ(bench_.Result.text(), "before");
  EXPECT_EQ(context_->block.Bore, 3);
}

TEST_F(ScreenTest, MessagesTellFieldsOfOneCaptionApartByTheirFrames) {
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  bench_.B.SetText("two");
  EXPECT_FALSE(Run(&Bench::Two));
  EXPECT_EQ(LastText().rfind("\"Value B\" (Frame) holds", 0), 0U) << LastText();
  bench_.C.SetText("three");
  EXPECT_FALSE(Run(&Bench::ReadSecond));
  EXPECT_EQ(LastText().rfind("\"Value B\" (Second Engine) holds", 0), 0U) << LastText();
}

TEST_F(ScreenTest, ZeroOverZeroIsADivisionByZeroToo) {
  host_.Answer(Button::OK);
  bench_.A.SetText("0");
  bench_.B.SetText("0");
  EXPECT_FALSE(Run(&Bench::Divide));
  EXPECT_EQ(LastText().rfind("\"Value B\" (Frame) is 0", 0), 0U) << LastText();
}

TEST_F(ScreenTest, DivisionByZeroWithoutAKnownDivisorNamesTheResult) {
  host_.Answer(Button::OK);
  EXPECT_FALSE(Run(&Bench::Quotient));
  EXPECT_EQ(LastText().rfind("\"Result\" cannot be computed", 0), 0U) << LastText();
}

TEST_F(ScreenTest, OverflowAndImpossibleRootsAreToldApart) {
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  bench_.A.SetText("1e100");
  EXPECT_FALSE(Run(&Bench::Grow));
  EXPECT_NE(LastText().find("too large"), std::string::npos);
  bench_.A.SetText("-1");
  EXPECT_FALSE(Run(&Bench::Root));
  EXPECT_NE(LastText().find("no number fits"), std::string::npos);
}

TEST_F(ScreenTest, AnEarlierErrorLeavesNoTraceInTheNextCommand) {
  host_.Answer(Button::OK);
  bench_.B.SetText("0");
  EXPECT_FALSE(Run(&Bench::Divide));
  bench_.B.SetText("2");
  EXPECT_TRUE(Run(&Bench::Divide));
}

TEST_F(ScreenTest, CountsRoundHalfToEvenAndOverflowIsAnError) {
  for (const auto& [text, count] : {std::pair{"8.5", 8}, {"9.5", 10}, {"-2.5", -2}}) {
    bench_.A.SetText(text);
    EXPECT_TRUE(Run(&Bench::Count));
    EXPECT_EQ(context_->block.NumberofCylinders, count);
  }
  host_.Answer(Button::OK);
  bench_.A.SetText("32768");
  EXPECT_FALSE(Run(&Bench::Count));
  EXPECT_EQ(LastText().rfind("\"Value A\" ", 0), 0U) << LastText();
}

TEST_F(ScreenTest, WhatWasWrittenBeforeAFailureStays) {
  host_.Answer(Button::OK);
  bench_.B.SetText("");
  EXPECT_FALSE(Run(&Bench::Two));
  EXPECT_EQ(bench_.Result.text(), "1.0");
}

TEST_F(ScreenTest, ACancelEndsACommandInSilence) {
  EXPECT_FALSE(Run(&Bench::Cancel));
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(ScreenTest, AnUnforeseenFailureBecomesABoxToo) {
  host_.Answer(Button::OK);
  EXPECT_FALSE(Run(&Bench::Lost));
}

TEST_F(ScreenTest, ABoxWhoseHandlerFailsTurnsBack) {
  host_.Answer(Button::OK);
  bench_.A.SetText("");
  EXPECT_FALSE(bench_.Check1.Click());
  EXPECT_FALSE(bench_.Check1.on());
  bench_.A.SetText("1");
  EXPECT_TRUE(bench_.Check1.Click());
  EXPECT_TRUE(bench_.Check1.on());
  EXPECT_TRUE(bench_.metric());
}

TEST_F(ScreenTest, BoundSwitchesFollowBoxesAndGroups) {
  std::int16_t box = 7, group = 7;
  bench_.Check1.Bind(box);
  bench_.Option1.Bind(group);
  EXPECT_EQ(box, 0);
  EXPECT_EQ(group, 0);
  bench_.Check1.Click();
  EXPECT_TRUE(bench_.Option1.Choose(100));
  EXPECT_EQ(box, 1);
  EXPECT_EQ(group, 100);
  EXPECT_FALSE(bench_.Option1.Choose(7));
  EXPECT_EQ(group, 100);
}

TEST_F(ScreenTest, ACommandThatIsNotBuiltIsDisabledAndDoesNothing) {
  EXPECT_FALSE(bench_.NotYet.enabled());
  bench_.NotYet.Click();
  EXPECT_TRUE(bench_.DivideCommand.enabled());
}

TEST_F(ScreenTest, HoverShowsTheHelpSentenceAndTheBackgroundHidesIt) {
  bench_.Hover(&bench_.DivideCommand);
  EXPECT_EQ(bench_.Label1.caption(), "Divides.");
  EXPECT_TRUE(bench_.Label1.visible());
  bench_.Hover(nullptr);
  EXPECT_EQ(bench_.Label1.caption(), "");
  EXPECT_FALSE(bench_.Label1.visible());
}

TEST_F(ScreenTest, QuitUnticksMetricAndHides) {
  bench_.SetVisible(true);
  bench_.Check1.Click();
  bench_.Quit();
  EXPECT_FALSE(bench_.Check1.on());
  EXPECT_FALSE(bench_.visible());
}

TEST_F(ScreenTest, TabOrderIsReadingOrderWithoutHiddenAndDisabledControls) {
  EXPECT_EQ(bench_.NextInTabOrder(bench_.A), &bench_.B);
  EXPECT_EQ(bench_.NextInTabOrder(bench_.DivideCommand), &bench_.Check1);
  EXPECT_EQ(bench_.NextInTabOrder(bench_.Check1), bench_.Find("Option1(0)"));
  EXPECT_EQ(bench_.NextInTabOrder(*bench_.Find("Option1(0)")), &bench_.C);
  // The switch at the window's foot stands behind all of the screen's own.
  const Control* last = bench_.context().current.SwitchOf(bench_);
  EXPECT_EQ(bench_.NextInTabOrder(bench_.C), last);
  EXPECT_EQ(bench_.NextInTabOrder(*last), &bench_.A);
}

TEST_F(ScreenTest, OnlyTheFirstPointOfADefaultTextBecomesAComma) {
  bench_.A.SetText("1.2.3");
  bench_.ConvertDefaultsToComma();
  EXPECT_EQ(bench_.A.text(), "1,2.3");
  EXPECT_EQ(bench_.B.text(), "2");
}

}  // namespace
}  // namespace veldox
