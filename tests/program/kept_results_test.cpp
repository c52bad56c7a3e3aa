// Results that are kept up to date, on every screen, after every command: no box comes, nothing
// moves, and what runs by itself leaves what a click would.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "core/dry_run.h"
#include "program/program.h"
#include "tests/support/program_state.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class KeptResults : public testing::Test {
 protected:
  KeptResults() { program_.Start(); }

  Shell& shell() { return program_.shell(); }
  KeepCurrent& current() { return program_.context().current; }

  /// The first field that a number can be typed into.
  static Field* EntryOf(const Screen& screen) {
    for (Control* control : screen.controls()) {
      auto* field = dynamic_cast<Field*>(control);
      if (field == nullptr || !field->Reachable() || !field->enabled()) continue;
      const bool takesNumbers =
          field->rule() == KeyRule::UnsignedReal || field->rule() == KeyRule::Digits;
      if (takesNumbers) return field;
    }
    return nullptr;
  }

  std::vector<bool> ScreensInSight() {
    std::vector<bool> visible;
    for (const Screen* screen : shell().screens()) visible.push_back(screen->visible());
    return visible;
  }

  TestHost host_;
  Program program_{host_};
};

TEST_F(KeptResults, AreThoseThatAClickWouldGive) {
  int kept = 0;
  int resting = 0;
  int failing = 0;
  for (Screen* screen : shell().screens()) {
    CheckBox* box = current().SwitchOf(*screen);
    if (box == nullptr) continue;
    shell().Open(*screen);
    box->Click();
    for (Control* control : std::vector<Control*>(screen->controls())) {
      auto* command = dynamic_cast<Command*>(control);
      if (command == nullptr || command->role() != CommandRole::Calculates) continue;
      BringIntoReach(shell(), *command);
      if (!command->enabled() || !command->Reachable()) continue;
      const Preview preview = PreviewOf(*command);
      if (!preview.error.empty() || !preview.notes.empty()) continue;
      if (!command->Click() || screen->lastCalculation() != command) continue;
      Field* field = EntryOf(*screen);
      if (field == nullptr) continue;
      const std::string name = screen->name() + '.' + command->name();
      screen->MoveFocus(field);
      const std::string before = field->text();
      const auto inSight = ScreensInSight();
      for (const char* text : {"2", "", before.c_str()}) {
        field->Edit(text);
        current().Run(true);
        EXPECT_EQ(field->text(), text) << name;
        EXPECT_EQ(screen->focus(), field) << name;
        EXPECT_EQ(ScreensInSight(), inSight) << name;
        if (box->help().ends_with("is up to date.")) {
          ++kept;
          for (const ControlChange& change : PreviewOf(*command).changes) {
            EXPECT_EQ(change.control, field) << name << " changes " << change.control->name();
          }
        } else if (box->help().starts_with("Rests")) {
          ++resting;
        } else {
          EXPECT_TRUE(box->help().starts_with("Out of date: ")) << name << ": " << box->help();
          ++failing;
        }
      }
    }
    box->Click();
  }
  EXPECT_TRUE(host_.messages.empty());
  EXPECT_GT(kept, 300);
  EXPECT_GT(resting, 20);
  EXPECT_GT(failing, 100);
}

TEST(SwitchesOfScreens, AreRememberedAndOffAtFirst) {
  const std::filesystem::path file =
      std::filesystem::path(testing::TempDir()) / "veldox_keep_current.ini";
  std::filesystem::remove(file);
  {
    TestHost host;
    host.settingsFile = file;
    Program program(host);
    program.Start();
    EXPECT_TRUE(program.context().current.forms().empty());
    auto* box = dynamic_cast<CheckBox*>(program.shell().FindControl("Form5.KeepUpToDate"));
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(box->on());
    EXPECT_TRUE(box->Click());
    EXPECT_EQ(program.shell().FindControl("Main.KeepUpToDate"), nullptr);
    EXPECT_EQ(program.shell().FindControl("Form15.KeepUpToDate"), nullptr) << "it tells alone";
  }
  TestHost host;
  host.settingsFile = file;
  Program program(host);
  program.Start();
  EXPECT_TRUE(static_cast<CheckBox*>(program.shell().FindControl("Form5.KeepUpToDate"))->on());
  EXPECT_FALSE(static_cast<CheckBox*>(program.shell().FindControl("Form1.KeepUpToDate"))->on());
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace veldox
