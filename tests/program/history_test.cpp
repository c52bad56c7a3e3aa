// Steps are undone and done again, whatever they were.

#include "core/history.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "core/dry_run.h"
#include "program/program.h"
#include "tests/support/program_state.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using State = ProgramState;

template <class H>
class HistoryOf : public testing::Test {
 protected:
  HistoryOf() { program_.Start(); }

  Shell& shell() { return program_.shell(); }
  History& history() { return program_.context().history; }
  ParameterBlock& block() { return program_.context().block; }
  template <class C = Field>
  C& Find(const char* name) {
    auto* control = dynamic_cast<C*>(shell().FindControl(name));
    EXPECT_NE(control, nullptr) << name;
    return *control;
  }
  void Open(const char* form) { shell().Open(*shell().FindScreen(form)); }
  void Choose(const char* item) { shell().Choose(*Shell::FindMenuItem(item)); }
  /// As typing does it, a character after the other.
  void Type(const char* name, const std::string& text) {
    auto& field = Find<TextControl>(name);
    ASSERT_TRUE(field.screen().MoveFocus(&field));
    for (std::size_t i = 1; i <= text.size(); ++i) field.Edit(text.substr(0, i));
  }
  std::vector<std::string> Done() {
    std::vector<std::string> told = history().Told();
    told.resize(history().done());
    return told;
  }
  State Now() { return State(program_, State::Part::Data); }

  H host_;
  Program program_{host_};
};

class HistoryTest : public HistoryOf<TestHost> {};

TEST_F(HistoryTest, TypingIntoAFieldIsOneStepUntilItIsLeft) {
  Open("Form1");
  const State before = Now();
  Type("Form1.Text1", "4.125");
  EXPECT_TRUE(history().IsTyping(Find("Form1.Text1")));
  Type("Form1.Text3", "3.5");
  EXPECT_EQ(Done(), (std::vector<std::string>{"Bore: 4.0 to 4.125", "Stroke: 3.25 to 3.5"}));
  history().Undo();
  EXPECT_EQ(Find("Form1.Text3").text(), "3.25");
  EXPECT_EQ(Find("Form1.Text1").text(), "4.125");
  history().Undo();
  EXPECT_EQ(State::Difference(before, Now()), "");
  EXPECT_EQ(block().DataChanged, 0);
  history().Undo();
  EXPECT_EQ(State::Difference(before, Now()), "");
  history().Redo();
  history().Redo();
  history().Redo();
  EXPECT_EQ(Find("Form1.Text1").text(), "4.125");
  EXPECT_EQ(Find("Form1.Text3").text(), "3.5");
  EXPECT_EQ(block().DataChanged, 1);
}

TEST_F(HistoryTest, ATextThatIsSetToWhatItWasIsNoStep) {
  Open("Form1");
  Type("Form1.Text1", "4.0");
  EXPECT_TRUE(Done().empty());
  // The same click a second time changes nothing any more.
  Find<Command>("Form1.Command1").Click();
  const auto once = Done();
  Find<Command>("Form1.Command1").Click();
  EXPECT_EQ(Done(), once);
}

TEST_F(HistoryTest, AClickIsUndoneWithAllThatItWroteAndANewStepEndsRedoing) {
  Open("Form1");
  Type("Form1.Text1", "4.125");
  Find<Command>("Form1.Command1").Click();
  // 4.125 in of bore, 3.25 in of stroke, eight cylinders: pi / 4 * 4.125^2 * 3.25 * 8.
  EXPECT_EQ(Find("Form1.Text6").text(), "347.4650");
  EXPECT_EQ(Done().back(), "Engine Size: Engine Size: 326.7256 to 347.4650");
  history().Undo();
  EXPECT_EQ(Find("Form1.Text6").text(), "326.7256");
  EXPECT_EQ(block().Bore, 4.0);
  EXPECT_EQ(block().CubicInches, 326.72564);
  EXPECT_EQ(Find("Form1.Text6").mark(), Mark::Changed);
  history().Redo();
  EXPECT_EQ(block().Bore, 4.125);
  history().Undo();
  Type("Form1.Text3", "4");
  EXPECT_EQ(history().Told(),
            (std::vector<std::string>{"Bore: 4.0 to 4.125", "Stroke: 3.25 to 4"}));
}

TEST_F(HistoryTest, AStepThatFailedHalfWayIsUndoneToo) {
  Open("Form1");
  Type("Form1.Text3", "4");
  Type("Form1.Text2", "8");
  Find("Form1.Text2").Edit("");
  history().EndEntry();
  const State before = Now();
  host_.Answer(Button::OK);
  EXPECT_FALSE(Find<Command>("Form1.Command1").Click());
  EXPECT_EQ(block().Stroke, 4) << "the stroke is read before the cylinders that are missing";
  EXPECT_EQ(Done().back(), "Engine Size");
  history().Undo();
  EXPECT_EQ(block().Stroke, 3.25);
  EXPECT_EQ(State::Difference(before, Now()), "");
}

TEST_F(HistoryTest, WhatWasSavedSinceCountsAsChangedWhenItIsUndone) {
  const TemporaryFolder folder;
  host_.folder = folder.path();
  Open("Form1");
  Type("Form1.Text1", "4.125");
  history().EndEntry();
  EXPECT_EQ(shell().WindowTitle().back(), '*');
  host_.AnswerFile(folder / "engine.prm");
  host_.Answer(Button::OK);
  Choose("Write");
  EXPECT_EQ(block().DataChanged, 0);
  EXPECT_EQ(history().done(), 1U) << "saving is no step";
  history().Undo();
  EXPECT_EQ(block().DataChanged, 1);
  history().Redo();
  EXPECT_EQ(block().DataChanged, 0);
  EXPECT_EQ(shell().WindowTitle().find('*'), std::string::npos);
}

TEST_F(HistoryTest, ReadingAFileIsUndoneWithItsNameInTheTitle) {
  for (const char* form : {"Form1", "Form5", "Form7"}) Open(form);
  Type("Form1.Text1", "4.125");
  history().EndEntry();
  const State before = Now();
  host_.Answer(Button::No);  // not to be saved
  host_.Answer(Button::OK);
  shell().OpenFile(std::filesystem::path(VELDOX_SOURCE_DIR) / "samples" / "motorcycle.prm");
  EXPECT_EQ(Done().back(), "motorcycle.prm");
  const State after = Now();
  ASSERT_NE(State::Difference(before, after), "");
  history().Undo();
  EXPECT_EQ(State::Difference(before, Now()), "");
  EXPECT_EQ(shell().WindowTitle().find("motorcycle"), std::string::npos);
  history().Redo();
  EXPECT_EQ(State::Difference(after, Now()), "");
}

TEST_F(HistoryTest, ClearIsUndoneAsAWhole) {
  Open("Form1");
  Open("Form4");
  Type("Form1.Text1", "4.125");
  history().EndEntry();
  const State before = Now();
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  Choose("Clear");
  EXPECT_EQ(Find("Form1.Text1").text(), "");
  EXPECT_EQ(block().FormsCleared, 1);
  EXPECT_EQ(Done().back(), "Clear All Data Fields on All Forms");
  history().Undo();
  EXPECT_EQ(State::Difference(before, Now()), "");
  EXPECT_EQ(block().FormsCleared, 0);
}

TEST_F(HistoryTest, AUnitSwitchIsUndoneToTheLastDigit) {
  Open("Form1");
  const State before = Now();
  ASSERT_TRUE(Find<CheckBox>("Form1.Check1").Click());
  EXPECT_EQ(Find("Form1.Text1").text(), "101.6");
  EXPECT_EQ(block().Bore, 101.6);
  history().Undo();
  EXPECT_EQ(State::Difference(before, Now()), "");
  EXPECT_FALSE(Find<CheckBox>("Form1.Check1").on());
  history().Redo();
  EXPECT_EQ(block().Bore, 101.6);
  EXPECT_TRUE(shell().FindScreen("Form1")->metric());
}

TEST_F(HistoryTest, APickOfAFinderIsUndoneInTheScreenThatItFilled) {
  Open("Form1");
  Choose("Chevy_SB");
  auto& list = Find<PickList>("Form21.Combo1");
  const State before = Now();
  list.Choose(list.first());
  ASSERT_NE(State::Difference(before, Now()), "");
  history().Undo();
  EXPECT_EQ(State::Difference(before, Now()), "");
  EXPECT_EQ(list.chosenText(), "");
}

TEST_F(HistoryTest, OpeningAndClosingScreensIsNoStep) {
  Open("Form1");
  shell().Metric();
  Type("Form1.Text1", "4.2");
  const std::size_t steps = history().done();
  for (Screen* screen : shell().screens()) shell().Open(*screen);
  for (Screen* screen : shell().screens()) screen->Quit();
  EXPECT_EQ(history().done(), steps);
  history().Undo();
  EXPECT_FALSE(shell().screens().front()->visible()) << "screens stay as they are";
}

TEST_F(HistoryTest, AListOfTheStepsGoesBackToAnyOfThem) {
  Open("Form1");
  for (const char* bore : {"4.1", "4.2", "4.3", "4.4"}) {
    Type("Form1.Text1", bore);
    history().EndEntry();
  }
  Choose("Steps");
  auto& list = Find<PickList>("Main.StepList");
  ASSERT_EQ(list.rows().size(), 5U);
  EXPECT_EQ(list.rows()[0], "Before the first step");
  EXPECT_EQ(list.rows()[4], "Bore: 4.3 to 4.4");
  list.Choose(2);
  EXPECT_EQ(Find("Form1.Text1").text(), "4.2");
  EXPECT_EQ(history().done(), 2U);
  EXPECT_EQ(list.rows()[3], "(undone) Bore: 4.2 to 4.3");
  list.Choose(4);
  EXPECT_EQ(Find("Form1.Text1").text(), "4.4");
  list.Choose(0);
  EXPECT_EQ(Find("Form1.Text1").text(), "4.0");
  Choose("Redo");
  EXPECT_EQ(Find("Form1.Text1").text(), "4.1");
  Choose("Undo");
  EXPECT_EQ(Find("Form1.Text1").text(), "4.0");
  EXPECT_EQ(history().Told().size(), 4U);
}

TEST_F(HistoryTest, AReportThatWasReadAndClosedIsPassedOver) {
  Open("Form1");
  Type("Form1.Text1", "4.125");
  Find<Command>("Form1.Command1").Click();
  const std::size_t steps = history().done();
  // A click that shows a report alone.
  Command* shows = nullptr;
  for (Control* control : shell().FindScreen("Form1")->controls()) {
    auto* command = dynamic_cast<Command*>(control);
    if (command == nullptr || shows != nullptr || !command->Reachable()) continue;
    const Preview preview = PreviewOf(*command);
    if (preview.report && preview.changes.empty()) shows = command;
  }
  if (shows == nullptr) GTEST_SKIP() << "every report of this screen changes a field";
  // The first time it reads the fields, the second time it shows the report and nothing else.
  for (int i = 0; i < 2; ++i) {
    shows->Click();
    EXPECT_TRUE(shell().FindScreen("Form1")->ReportPane()->showsReport());
    shell().FindScreen("Form1")->ReportPane()->FilterKey(U' ');
  }
  ASSERT_EQ(history().done(), steps + 2);
  history().Undo();
  EXPECT_EQ(history().done(), steps);
  history().Undo();
  EXPECT_EQ(Find("Form1.Text6").text(), "326.7256");
}

/// Says yes to every box.
class PatientHost : public TestHost {
 public:
  Button Ask(const Message& message) override { return message.buttons.front(); }
};

class RandomSteps : public HistoryOf<PatientHost>, public testing::WithParamInterface<unsigned> {};

TEST_P(RandomSteps, AreUndoneToWhereTheyBeganAndDoneAgainToWhereTheyEnded) {
  std::mt19937 random(GetParam());
  const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
  std::vector<Control*> controls;
  for (Screen* screen : shell().screens()) {
    shell().Open(*screen);
    // Tools have no steps, and may be told to run a command a hundred thousand times.
    if (screen->IsTool()) continue;
    for (Control* control : screen->controls()) {
      switch (control->kind()) {
        case ControlKind::Field:
        case ControlKind::CheckBox:
        case ControlKind::OptionButton:
        case ControlKind::ComboList:
        case ControlKind::PickList:
        case ControlKind::Command: controls.push_back(control); break;
        default: break;
      }
    }
  }
  const State start = Now();
  constexpr std::size_t kSteps = 2000;
  std::size_t worked = 0;
  while (history().done() < kSteps) {
    ASSERT_LT(++worked, 40 * kSteps);
    Control& control = *controls[below(controls.size())];
    Screen& screen = control.screen();
    if (below(40) == 0 && worked > 40) {
      screen.visible() ? screen.Quit() : shell().Open(screen);
      continue;
    }
    if (below(200) == 0) {
      shell().Metric();
      continue;
    }
    if (auto* command = dynamic_cast<Command*>(&control)) {
      BringIntoReach(shell(), *command);
      if (!command->enabled() || !command->Reachable()) continue;
      const Preview preview = PreviewOf(*command);
      if (preview.error.starts_with("It ") || command == screen.QuitCommand()) continue;
      command->Click();
    } else if (auto* field = dynamic_cast<Field*>(&control)) {
      if (field->rule() == KeyRule::OutputOnly) continue;
      static const std::vector<std::string> kTexts = {"4",    "1.5", ".75", "350", "8",
                                                      "6500", "0",   "",    "12",  "100.25"};
      field->Edit(kTexts[below(kTexts.size())]);
      history().EndEntry();
    } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
      box->Click();
    } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
      option->Click();
    } else if (auto* list = dynamic_cast<PickList*>(&control)) {
      if (!list->rows().empty()) list->Choose(static_cast<int>(below(list->rows().size())));
    } else if (auto* combo = dynamic_cast<ComboList*>(&control)) {
      if (!combo->rows().empty()) combo->Pick(static_cast<int>(below(combo->rows().size())));
    }
  }
  EXPECT_LE(history().Bytes(), History::kMostBytes);
  ASSERT_GE(history().done(), kSteps);
  const State end = Now();
  history().GoTo(0);
  ASSERT_EQ(State::Difference(start, Now()), "");
  history().GoTo(kSteps);
  ASSERT_EQ(State::Difference(end, Now()), "");
  // Back and forth, wherever it stops.
  for (int i = 0; i < 20; ++i) history().GoTo(below(kSteps + 1));
  history().GoTo(0);
  EXPECT_EQ(State::Difference(start, Now()), "");
  RecordProperty("bytes", static_cast<int>(history().Bytes()));
}

INSTANTIATE_TEST_SUITE_P(Sequences, RandomSteps, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace veldox
