// What holds for every screen, whichever it is.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "core/key_table.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class Screens : public testing::Test {
 protected:
  Screens() { program_.Start(); }
  TestHost host_;
  Program program_{host_};
};

TEST_F(Screens, HaveControlsWithNamesOfTheirOwn) {
  for (Screen* screen : program_.shell().screens()) {
    std::set<std::string> names;
    for (const Control* control : screen->controls()) {
      EXPECT_TRUE(names.insert(control->name()).second)
          << screen->name() << '.' << control->name() << " stands twice";
    }
    EXPECT_FALSE(screen->title().empty());
    const bool quits = std::any_of(
        screen->controls().begin(), screen->controls().end(), [](const Control* control) {
          return control->kind() == ControlKind::Command && control->caption() == "&Quit";
        });
    EXPECT_TRUE(quits || screen->QuitCommand() != nullptr) << screen->name() << " cannot be closed";
  }
}

TEST_F(Screens, HaveLabelsOnAllFieldsAndSentencesOnAllCommands) {
  for (const Screen* screen : program_.shell().screens()) {
    for (const Control* control : screen->controls()) {
      const std::string where = screen->name() + '.' + control->name();
      if (control->kind() == ControlKind::Field) {
        EXPECT_FALSE(control->caption().empty()) << where;
      }
      if (control->kind() == ControlKind::Command) {
        EXPECT_FALSE(control->caption().empty()) << where;
        EXPECT_FALSE(control->help().empty()) << where;
      }
    }
  }
}

TEST_F(Screens, OwnTheControlsThatTheKeyTableNames) {
  for (const KeyRow& row : KeyTable()) {
    const auto dot = row.owner.find('.');
    const Screen* screen = program_.shell().FindScreen(row.owner.substr(0, dot));
    if (screen == nullptr || dot == std::string_view::npos) continue;
    if (Shell::FindMenuItem(row.owner.substr(dot + 1)) != nullptr) continue;
    EXPECT_NE(program_.shell().FindControl(row.owner), nullptr)
        << row.key << " is owned by " << row.owner;
  }
}

TEST_F(Screens, DeclareTheValuesThatTheKeyTableSaysTheyOwn) {
  ParameterBlock& block = program_.context().block;
  int owned = 0;
  for (const KeyRow& row : KeyTable()) {
    const Control* control = program_.shell().FindControl(row.owner);
    if (control == nullptr || control->screen().name() == "Main") continue;
    if (control->kind() != ControlKind::Field && control->kind() != ControlKind::ComboList) {
      continue;
    }
    // Its text, which is no number, is the value itself.
    if (row.form == KeyForm::FieldLiteral) continue;
    const void* place = Screen::SharedPlace(*control);
    ASSERT_NE(place, nullptr) << row.owner << " does not say that it holds " << row.key;
    EXPECT_EQ(FindKeyOfSlot(block, place), &row) << row.owner << " holds another value";
    ++owned;
  }
  EXPECT_GT(owned, 40);
}

TEST_F(Screens, ShowNumbersThatTheirCommandsCanRead) {
  for (const Screen* screen : program_.shell().screens()) {
    for (const Control* control : screen->controls()) {
      const auto* field = dynamic_cast<const Field*>(control);
      if (field == nullptr || field->rule() == KeyRule::AnyText) continue;
      // A result that no command has worked out yet.
      if (field->rule() == KeyRule::OutputOnly && field->text().empty()) continue;
      // A row of a table that the user has not filled.
      if (field->whole() != nullptr && field->text().empty()) continue;
      EXPECT_TRUE(IsNumber(field->text(), DecimalMark::Point))
          << screen->name() << '.' << field->name() << ": " << field->text();
    }
  }
}

/// The folders in the order in which they may include each other: a folder includes those
/// of its own line and of the lines below.
const std::map<std::string, int> kLevels{
    {"ui", 6},      {"script", 5},    {"program", 4}, {"engine", 3},  {"cam", 3},
    {"airfuel", 3}, {"twostroke", 3}, {"vehicle", 3}, {"chassis", 3}, {"reference", 3},
    {"graph", 2},   {"core", 1},      {"data", 0}};

TEST(Folders, IncludeDownwardsOnly) {
  const std::filesystem::path root = VELDOX_SOURCE_DIR;
  const std::regex include("^\\s*#include\\s+([\"<])([^\">]+)[\">]");
  int files = 0;
  for (const auto& [folder, level] : kLevels) {
    if (!std::filesystem::exists(root / folder)) continue;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
      const auto extension = entry.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      ++files;
      std::ifstream stream(entry.path());
      for (std::string line; std::getline(stream, line);) {
        std::smatch found;
        if (!std::regex_search(line, found, include)) continue;
        const std::string name = found[2];
        if (folder != "ui") {
          EXPECT_FALSE(found[1] == "<" && name.front() == 'Q') << entry.path() << ": " << line;
        }
        const auto other = kLevels.find(name.substr(0, name.find('/')));
        if (other == kLevels.end() || name.find('/') == std::string::npos) continue;
        EXPECT_LE(other->second, level) << entry.path() << ": " << line;
      }
    }
  }
  EXPECT_GT(files, 20);
}

}  // namespace
}  // namespace veldox
