// Results follow entries: the last command of a screen runs again by itself, where that is safe.

#include "core/keep_current.h"

#include <gtest/gtest.h>

#include <string>

#include "core/field_copy.h"
#include "core/kept.h"
#include "core/report.h"
#include "core/screen.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

/// A screen with commands of every kind.
class Workshop : public Screen {
 public:
  explicit Workshop(ProgramContext& context) : Screen(context, "FormW", "Workshop", "") {}
  ReportBox* ReportPane() override { return &Report; }

  int runs = 0;

 private:
  void SolveArea() {
    ++runs;
    Show(Area, Read(Side) * Read(Side));
  }
  void RoundSide() {
    Show(Side, Read(Side));
    Show(Area, Read(Side) * Read(Side));
  }
  void SolveSide() { Show(Side, Read(Area) / 2); }
  void AddUp() { Show(Area, Read(Area) + Read(Side)); }
  void Ask() {
    context().host.Ask({Icon::Question, "", "Sure?", {Button::Yes, Button::No}});
    SolveArea();
  }
  void Say() {
    SolveArea();
    if (Read(Side) > 100) context().host.Ask({Icon::Warning, "", "Large.", {Button::OK}});
  }
  void Tell() { ShowReport("Area\r\n" + FormatField(Read(Side) * Read(Side), mark()) + "\r\n"); }
  void CountOn() {
    count_ = *count_ + 1;
    Show(Area, *count_);
  }

  void TakeLong() {
    SolveArea();
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    while (std::chrono::steady_clock::now() < end) context().StopInTime();
  }

  Kept<double> count_{*this, 0.0};

 public:
  Frame Sizes{*this, "Sizes", "Sizes"};
  Field Side{Sizes, "Side", "Side", "2.0", KeyRule::UnsignedReal};
  Field Area{Sizes, "Area", "Area", "0", KeyRule::UnsignedReal};
  CheckBox Round{Sizes, "Round", "Round"};
  FieldTwin SideTwin{Sizes, Side};
  Command Square{Sizes, "Square", "Square", "", &Workshop::SolveArea};
  Command Rounded{Sizes, "Rounded", "Rounded", "", &Workshop::RoundSide};
  Command Half{Sizes, "Half", "Half", "", &Workshop::SolveSide};
  Command Sum{Sizes, "Sum", "Sum", "", &Workshop::AddUp};
  Command Asks{Sizes, "Asks", "Asks", "", &Workshop::Ask};
  Command Says{Sizes, "Says", "Says", "", &Workshop::Say};
  Command Tells{Sizes, "Tells", "Tells", "", &Workshop::Tell};
  Command Counts{Sizes, "Counts", "Counts", "", &Workshop::CountOn};
  Command Slow{Sizes, "Slow", "Slow", "", &Workshop::TakeLong};
  Frame Foot{*this, "Foot", ""};
  ReportBox Report{Foot, "Report"};
};

class KeepCurrentTest : public testing::Test {
 protected:
  KeepCurrentTest() { context.history.Begin(); }

  void TurnOn() { ASSERT_TRUE(current.SwitchOf(screen)->Click()); }
  void Enter(Field& field, const char* text) {
    screen.MoveFocus(&field);
    field.Edit(text);
    current.Run(true);
  }
  std::string Told() { return current.SwitchOf(screen)->help(); }

  TestHost host;
  ProgramContext context{host};
  Workshop screen{context};
  KeepCurrent& current = context.current;
};

TEST_F(KeepCurrentTest, NothingFollowsAnEntryWhileTheSwitchIsOff) {
  screen.Square.Click();
  Enter(screen.Side, "3");
  EXPECT_EQ(screen.Area.text(), "4.0");
  EXPECT_EQ(screen.Area.mark(), Mark::Changed);
  EXPECT_EQ(screen.runs, 1);
  EXPECT_TRUE(current.forms().empty());
}

TEST_F(KeepCurrentTest, TheLastCommandRunsAgainAfterAnEntryAndBelongsToItsStep) {
  TurnOn();
  EXPECT_TRUE(context.history.Told().empty()) << "the switch is no data";
  EXPECT_EQ(context.block.DataChanged, 0);
  Enter(screen.Side, "3");
  EXPECT_EQ(screen.Area.text(), "0") << "no command was clicked yet";
  screen.Square.Click();
  EXPECT_EQ(Told(), "\"Square\" will run again after every entry.");
  Enter(screen.Side, "4");
  EXPECT_EQ(screen.Area.text(), "16.0");
  EXPECT_EQ(screen.focus(), &screen.Side);
  EXPECT_EQ(Told(), "\"Square\" is up to date.");
  EXPECT_TRUE(context.history.IsTyping(screen.Side));
  Enter(screen.Side, "45");
  EXPECT_EQ(screen.Area.text(), "2025.0");
  EXPECT_EQ(
      context.history.Told(),
      (std::vector<std::string>{"Side: 2.0 to 3", "Square: Area: 0 to 9.0", "Side: 3 to 45"}));
  context.history.Undo();
  EXPECT_EQ(screen.Side.text(), "3");
  EXPECT_EQ(screen.Area.text(), "9.0") << "one step takes both back";
  context.history.Redo();
  EXPECT_EQ(screen.Side.text(), "45");
  EXPECT_EQ(screen.Area.text(), "2025.0");
}

TEST_F(KeepCurrentTest, ABoxThatIsTurnedIsFollowedTooAndUndoneWithIt) {
  TurnOn();
  screen.Square.Click();
  screen.Side.SetText("3");  // by the program: no entry
  current.Run(true);
  EXPECT_EQ(screen.Area.text(), "4.0");
  screen.Round.Click();
  current.Run(true);
  EXPECT_EQ(screen.Area.text(), "9.0");
  context.history.Undo();
  EXPECT_FALSE(screen.Round.on());
  EXPECT_EQ(screen.Area.text(), "4.0");
}

TEST_F(KeepCurrentTest, WhatCannotBeComputedIsSaidInTheLineAndTheResultsAreMarked) {
  TurnOn();
  screen.Square.Click();
  Enter(screen.Side, "abc");
  EXPECT_TRUE(Told().starts_with("Out of date: \"Side\" ")) << Told();
  EXPECT_EQ(screen.Area.mark(), Mark::Outdated);
  EXPECT_EQ(screen.Area.text(), "4.0") << "what was worked out stays to be read";
  EXPECT_NE(screen.Side.mark(), Mark::Outdated);
  Enter(screen.Side, "");
  EXPECT_EQ(screen.Area.mark(), Mark::Outdated);
  Enter(screen.Side, "5");
  EXPECT_EQ(screen.Area.text(), "25.0");
  EXPECT_EQ(screen.Area.mark(), Mark::Changed);
  Enter(screen.Side, "x");
  EXPECT_EQ(screen.Area.mark(), Mark::Outdated);
  current.SwitchOf(screen)->Click();
  EXPECT_EQ(screen.Area.mark(), Mark::Changed) << "nobody keeps it up to date any more";
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(KeepCurrentTest, ACommandThatWouldAddUpRests) {
  TurnOn();
  screen.Sum.Click();
  EXPECT_EQ(screen.Area.text(), "2.0");
  Enter(screen.Side, "3");
  EXPECT_EQ(screen.Area.text(), "2.0");
  EXPECT_EQ(screen.Area.mark(), Mark::Outdated);
  EXPECT_EQ(Told(), "Rests at \"Sum\". It changes what it works with, and would add up.");
  // What adds up may be kept where no control shows it.
  screen.Counts.Click();
  EXPECT_EQ(screen.Area.text(), "1.0");
  Enter(screen.Side, "4");
  EXPECT_EQ(screen.Area.text(), "1.0");
  EXPECT_TRUE(Told().starts_with("Rests at \"Counts\". ")) << Told();
}

TEST_F(KeepCurrentTest, ACommandThatWorksOutWhatWasEnteredRests) {
  TurnOn();
  screen.Area.SetText("10");
  screen.Half.Click();
  EXPECT_EQ(screen.Side.text(), "5.0");
  Enter(screen.Side, "7");
  EXPECT_EQ(screen.Side.text(), "7") << "it is not written over";
  EXPECT_EQ(Told(), "Rests at \"Half\". It works out \"Side\" itself, which was entered.");
  Enter(screen.Area, "12");
  EXPECT_EQ(screen.Side.text(), "6.0");
}

TEST_F(KeepCurrentTest, WhatIsTypedKeepsItsForm) {
  TurnOn();
  screen.Rounded.Click();
  for (const char* text : {"4", "4.", "4.0", "4.05"}) {
    Enter(screen.Side, text);
    EXPECT_EQ(screen.Side.text(), text) << "the command would show it in another form";
  }
  EXPECT_EQ(screen.Area.text(), "16.4025");
}

TEST_F(KeepCurrentTest, WhatIsTypedIntoTheTwinOfAFieldIsLeftAloneToo) {
  TurnOn();
  screen.Area.SetText("10");
  screen.Half.Click();
  Enter(screen.SideTwin, "7");
  EXPECT_EQ(screen.Side.text(), "7");
  EXPECT_TRUE(Told().starts_with("Rests at \"Half\".")) << Told();
  screen.Rounded.Click();
  Enter(screen.SideTwin, "4.");
  EXPECT_EQ(screen.SideTwin.text(), "4.");
  EXPECT_EQ(screen.Area.text(), "16.0");
}

TEST_F(KeepCurrentTest, QuestionsAndMessagesRestAndNoBoxComes) {
  TurnOn();
  host.Answer(Button::Yes);
  screen.Asks.Click();
  Enter(screen.Side, "3");
  EXPECT_EQ(Told(), "Rests at \"Asks\". It asks a question first.");
  screen.Says.Click();
  Enter(screen.Side, "50");
  EXPECT_EQ(screen.Area.text(), "2500.0");
  Enter(screen.Side, "500");
  EXPECT_EQ(screen.Area.text(), "2500.0");
  EXPECT_EQ(screen.Area.mark(), Mark::Outdated);
  EXPECT_EQ(Told(), "Rests at \"Says\". It says: Large.");
  EXPECT_EQ(host.messages.size(), 1U);
}

TEST_F(KeepCurrentTest, AReportIsShownAnewOnlyWhereItIsInSight) {
  TurnOn();
  screen.Tells.Click();
  screen.MoveFocus(&screen.Side);
  Enter(screen.Side, "3");
  EXPECT_NE(screen.Report.text().find("9.0"), std::string::npos);
  EXPECT_EQ(screen.focus(), &screen.Side) << "the keyboard stays where it is";
  EXPECT_TRUE(context.history.IsTyping(screen.Side));
  Enter(screen.Side, "");
  EXPECT_NE(screen.Report.text().find("9.0"), std::string::npos) << "the old one stays";
  EXPECT_EQ(screen.Report.mark(), Mark::Outdated);
  Enter(screen.Side, "6");
  EXPECT_NE(screen.Report.text().find("36.0"), std::string::npos);
  EXPECT_EQ(screen.Report.mark(), Mark::None);
  screen.Report.CloseReport();
  Enter(screen.Side, "7");
  EXPECT_FALSE(screen.Report.showsReport());
  EXPECT_EQ(Told(), "Rests at \"Tells\". It shows a report that is not in sight.");
}

TEST_F(KeepCurrentTest, TheSwitchStandsInNoListOfTheScreen) {
  CheckBox* box = current.SwitchOf(screen);
  EXPECT_EQ(screen.Find(KeepCurrent::kSwitchName), nullptr);
  EXPECT_TRUE(box->Reachable());
  EXPECT_EQ(screen.NextInTabOrder(screen.Slow), box) << "it is the last that the tab key comes to";
  EXPECT_EQ(screen.NextInTabOrder(*box), &screen.Side);
  class Bare : public Screen {
   public:
    explicit Bare(ProgramContext& of) : Screen(of, "FormB", "Bare", "") {}
    Frame Only{*this, "Only", ""};
    Field Text{Only, "Text", "Text", "1", KeyRule::UnsignedReal};
    Command subend{Only, "subend", "Quit", "", &Screen::Quit};
  } bare(context);
  EXPECT_EQ(current.SwitchOf(bare), nullptr) << "nothing is worked out there";
}

TEST_F(KeepCurrentTest, ASlowCommandWaitsForARest) {
  std::vector<std::chrono::milliseconds> scheduled;
  current.SetScheduler([&](std::chrono::milliseconds rest) { scheduled.push_back(rest); });
  TurnOn();
  screen.Square.Click();
  screen.MoveFocus(&screen.Side);
  screen.Side.Edit("3");
  screen.Side.Edit("4");
  ASSERT_FALSE(scheduled.empty());
  EXPECT_EQ(scheduled.front().count(), 0) << "at the end of the event";
  EXPECT_EQ(screen.Area.text(), "4.0");
  current.Run(false);
  EXPECT_EQ(screen.Area.text(), "16.0");
  const int runs = screen.runs;
  current.Run(false);
  EXPECT_EQ(screen.runs, runs) << "once for an entry";
  screen.Slow.Click();
  screen.Side.Edit("5");
  current.Run(false);
  EXPECT_EQ(screen.Area.text(), "16.0");
  EXPECT_EQ(scheduled.back(), KeepCurrent::kRest);
  scheduled.clear();
  current.Run(true);
  EXPECT_EQ(screen.Area.text(), "25.0");
  screen.Side.Edit("6");
  EXPECT_EQ(scheduled, (std::vector<std::chrono::milliseconds>{KeepCurrent::kRest}))
      << "it is known to be slow";
  current.SetScheduler({});
}

}  // namespace
}  // namespace veldox
