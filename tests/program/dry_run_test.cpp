// What a command would do is found out without doing it: on every screen, for every command.

#include "core/dry_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/field_copy.h"
#include "program/program.h"
#include "tests/support/program_state.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

/// Counts what windows are told.
class CountingFace : public ControlFace, public ScreenFace, public ShellFace, public GraphFace {
 public:
  void ControlChanged(Control&) override { ++told; }
  void FocusRequested(Control&) override { ++told; }
  void ScreenVisibilityChanged(Screen&) override { ++told; }
  void MenuChanged() override { ++told; }
  void AppearanceChanged() override { ++told; }
  void LookChanged() override { ++told; }
  void TitleChanged() override { ++told; }
  void Ended() override { ++told; }
  void GraphChanged() override { ++told; }
  int told = 0;
};

/// What the values are that commands are tried with: the defaults or a sample, in inches or metric.
struct Start {
  const char* name;
  const char* sample;
  bool metric;
};

class DryRuns : public testing::TestWithParam<Start> {
 protected:
  DryRuns() {
    program_.Start();
    Shell& shell = program_.shell();
    for (Screen* screen : shell.screens()) screens_.push_back(screen);
    screens_.push_back(&shell);
    if (*GetParam().sample != '\0') {
      host_.Answer(Button::OK);
      shell.OpenFile(std::filesystem::path(VELDOX_SOURCE_DIR) / "samples" / GetParam().sample);
    }
    if (GetParam().metric) {
      shell.Metric();
      for (Screen* screen : shell.screens()) shell.Open(*screen);
    }
  }

  std::vector<Command*> Commands() const {
    std::vector<Command*> commands;
    for (Screen* screen : screens_) {
      for (Control* control : screen->controls()) {
        if (control->kind() != ControlKind::Command) continue;
        auto* command = static_cast<Command*>(control);
        if (command->isBuilt()) commands.push_back(command);
      }
    }
    return commands;
  }

  static std::string NameOf(const Command& command) {
    return command.screen().name() + '.' + command.name();
  }

  TestHost host_;
  Program program_{host_};
  std::vector<Screen*> screens_;
};

TEST_P(DryRuns, ChangeNothingToTheLastBitAndTellNobody) {
  CountingFace face;
  for (Screen* screen : screens_) {
    screen->SetFace(&face);
    for (Control* control : screen->controls()) control->SetFace(&face);
  }
  program_.shell().SetShellFace(&face);
  program_.grapher().SetGraphFace(&face);
  const auto boxes = host_.messages.size();
  const int busy = host_.busyCount;
  int changing = 0;
  int failing = 0;
  const std::vector<Command*> commands = Commands();
  ASSERT_GT(commands.size(), 400U);
  // The user is typing into a field, and goes on afterwards.
  auto& typed = static_cast<TextControl&>(*program_.shell().FindControl("Form1.Text5"));
  typed.screen().MoveFocus(&typed);
  typed.Edit("6400");
  face.told = 0;
  ProgramState before(program_, ProgramState::Part::All);
  for (Command* command : commands) {
    const Preview preview = PreviewOf(*command);
    changing += preview.changes.empty() ? 0 : 1;
    failing += preview.error.empty() ? 0 : 1;
    ProgramState after(program_, ProgramState::Part::All);
    ASSERT_EQ(ProgramState::Difference(before, after), "") << "by " << NameOf(*command);
  }
  EXPECT_TRUE(program_.context().history.IsTyping(typed));
  typed.Edit("6450");
  EXPECT_EQ(program_.context().history.Told().size(), program_.context().history.done());
  EXPECT_NE(program_.context().history.Told().back().find(" to 6450"), std::string::npos);
  face.told = 0;
  EXPECT_GT(changing, 100);
  EXPECT_GT(failing, 20);
  EXPECT_EQ(face.told, 0);
  EXPECT_EQ(host_.messages.size(), boxes);
  EXPECT_TRUE(host_.fileDialogs.empty());
  EXPECT_EQ(host_.busyCount, busy);
  for (Screen* screen : screens_) {
    screen->SetFace(nullptr);
    for (Control* control : screen->controls()) control->SetFace(nullptr);
  }
  program_.shell().SetShellFace(nullptr);
  program_.grapher().SetGraphFace(nullptr);
}

/// What all controls show that a preview tells of.
std::map<const Control*, std::string> Texts(const std::vector<Screen*>& screens) {
  std::map<const Control*, std::string> texts;
  for (const Screen* screen : screens) {
    for (const Control* control : screen->controls()) {
      const bool isTold = control != control->screen().HelpPlace() &&
                          control->kind() != ControlKind::ReportBox &&
                          control->kind() != ControlKind::OptionButton &&
                          dynamic_cast<const FieldCopy*>(control) == nullptr &&
                          dynamic_cast<const FieldTwin*>(control) == nullptr;
      if (isTold) texts.emplace(control, ShownText(*control));
    }
  }
  return texts;
}

TEST_P(DryRuns, TellWhatTheClickDoesAndTheClickIsUndoneAndDoneAgain) {
  using State = ProgramState;
  std::size_t compared = 0;
  for (Command* command : Commands()) {
    const std::string name = NameOf(*command);
    BringIntoReach(program_.shell(), *command);
    if (!command->enabled() || !command->Reachable()) continue;
    const Preview preview = PreviewOf(*command);
    const bool isRefused = preview.error.starts_with("It ");
    if (isRefused || command == command->screen().QuitCommand()) continue;
    ++compared;
    const State before(program_, State::Part::Data);
    const auto textsBefore = Texts(screens_);
    const auto boxes = host_.messages.size();
    for (std::size_t i = 0; i < preview.notes.size(); ++i) host_.Answer(Button::OK);
    if (!preview.error.empty()) host_.Answer(Button::OK);
    const std::size_t steps = program_.context().history.done();
    const bool done = command->Click();
    EXPECT_EQ(done, preview.error.empty()) << name << ": " << preview.error;
    std::vector<std::string> told;
    for (std::size_t i = boxes; i < host_.messages.size(); ++i) {
      told.push_back(host_.messages[i].text);
    }
    std::vector<std::string> foretold = preview.notes;
    if (!preview.error.empty()) foretold.push_back(preview.error);
    EXPECT_EQ(told, foretold) << name;
    if (preview.error.empty()) {
      std::map<const Control*, std::string> expected = textsBefore;
      for (const ControlChange& change : preview.changes) {
        EXPECT_EQ(expected[change.control], change.before) << name;
        expected[change.control] = change.after;
      }
      for (const auto& [control, text] : Texts(screens_)) {
        EXPECT_EQ(text, expected[control])
            << name << " changes " << control->screen().name() << '.' << control->name();
      }
    }
    const State after(program_, State::Part::Data);
    History& history = program_.context().history;
    if (history.done() == steps) {
      // It was no step: nothing has changed but what is shown where.
      EXPECT_TRUE(preview.changes.empty()) << name << " is no step";
      continue;
    }
    ASSERT_EQ(history.done(), steps + 1) << name;
    history.Undo();
    EXPECT_EQ(history.done(), steps);
    EXPECT_EQ(State::Difference(before, State(program_, State::Part::Data)), "")
        << "undone " << name;
    history.Redo();
    EXPECT_EQ(State::Difference(after, State(program_, State::Part::Data)), "")
        << "done again " << name;
    history.Undo();
    EXPECT_EQ(State::Difference(before, State(program_, State::Part::Data)), "")
        << "undone again " << name;
  }
  EXPECT_GT(compared, 300U);
}

/// What a screen keeps beside its controls and the shared values has to be put back too.
TEST(ValuesOfScreens, AreKeptUnlessTheyTellWhereTheUserIs) {
  // The place in a list, the last kind of file in a dialog, the mouse on the graph.
  const std::set<std::string> places = {"places_",   "filterIndex_",   "cardFilter_", "frame_",
                                        "strokeAt_", "moveableLines_", "parts_"};
  const std::regex member(
      R"(^  (double|float|int|bool|unsigned|std::(string|optional|vector|array|map|pair|size_t|int\d+_t|filesystem::path)\b[^&*()]*|[A-Z]\w*) (\w+_)( = [^;]*|\{[^;]*\})?;)");
  int kept = 0;
  for (const char* folder :
       {"airfuel", "cam", "chassis", "engine", "graph", "reference", "twostroke", "vehicle"}) {
    const std::filesystem::path path = std::filesystem::path(VELDOX_SOURCE_DIR) / folder;
    for (const auto& file : std::filesystem::directory_iterator(path)) {
      const std::string name = file.path().filename().string();
      if (!std::regex_search(name, std::regex(R"((_screen|_panel|_page)\.h$)"))) continue;
      std::ifstream stream(file.path());
      const std::string text(std::istreambuf_iterator<char>(stream), {});
      std::istringstream lines(text);
      for (std::string line; std::getline(lines, line);) {
        kept += line.starts_with("  Kept<") ? 1 : 0;
        std::smatch found;
        if (!std::regex_search(line, found, member)) continue;
        const std::string value = found[3];
        const bool isShown = text.find("Holds(" + value + ')') != std::string::npos;
        EXPECT_TRUE(isShown || places.contains(value))
            << folder << '/' << name << ": " << value << " should be a Kept<...> (core/kept.h)";
      }
    }
  }
  EXPECT_GT(kept, 15);
}

#ifdef __SANITIZE_ADDRESS__
// Every command is clicked four times from each start, which takes half a minute here: the values
// are those of the build without sanitizers, which takes all starts.
const auto kStarts = testing::Values(Start{"Defaults", "", false},
                                     Start{"RoadRaceFourInMetric", "road_race_four.prm", true});
#else
const auto kStarts =
    testing::Values(Start{"Defaults", "", false}, Start{"DefaultsInMetric", "", true},
                    Start{"SmallBlock", "small_block_drag.prm", false},
                    Start{"Motorcycle", "motorcycle.prm", false},
                    Start{"RoadRaceFour", "road_race_four.prm", false},
                    Start{"RoadRaceFourInMetric", "road_race_four.prm", true});
#endif
INSTANTIATE_TEST_SUITE_P(OfAllCommands, DryRuns, kStarts,
                         [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace veldox
