#include "program/handbook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "core/files.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::filesystem::path kRoot = VELDOX_SOURCE_DIR;

class HandbookTest : public testing::Test {
 protected:
  HandbookTest() { program_.Start(); }

  static Introductions Written() {
    return ParseIntroductions(LoadFile(kRoot / "docs" / "introductions.md"));
  }
  static std::vector<std::string> Lines(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
  }

  TestHost host_;
  Program program_{host_};
};

TEST_F(HandbookTest, IsWhatTheProgramHolds) {
  const std::vector<std::string> held =
      Lines(ComposeHandbook(program_.shell(), Written(), FormulaNotes::FromSources(kRoot)));
  const std::vector<std::string> book = Lines(LoadFile(kRoot / "docs" / "handbook.md"));
  for (std::size_t i = 0; i < std::max(held.size(), book.size()); ++i) {
    const std::string now = i < held.size() ? held[i] : "(the end)";
    const std::string then = i < book.size() ? book[i] : "(the end)";
    ASSERT_EQ(then, now) << "docs/handbook.md, line " << i + 1
                         << ": please run tools/renew_handbook.sh";
  }
}

TEST_F(HandbookTest, EveryScreenHasAnIntroduction) {
  EXPECT_THAT(WithoutIntroduction(program_.shell(), Written()), IsEmpty())
      << "please write some words under their names in docs/introductions.md";
}

TEST_F(HandbookTest, NoIntroductionIsOfAScreenThatThereIsNot) {
  for (const auto& [name, words] : Written()) {
    if (name == "Handbook" || name == "Main") continue;
    const bool isInMenu = std::any_of(Shell::Menu().begin(), Shell::Menu().end(),
                                      [&](const MenuItem& item) { return item.screen == name; });
    EXPECT_TRUE(isInMenu || program_.shell().FindScreen(name) != nullptr) << name;
  }
}

TEST_F(HandbookTest, ItsPicturesAreThere) {
  const std::string book = LoadFile(kRoot / "docs" / "handbook.md");
  const std::regex picture("\\]\\((handbook/[^)]*)\\)");
  int pictures = 0;
  for (auto at = std::sregex_iterator(book.begin(), book.end(), picture);
       at != std::sregex_iterator(); ++at) {
    EXPECT_TRUE(std::filesystem::exists(kRoot / "docs" / (*at)[1].str())) << (*at)[1];
    ++pictures;
  }
  EXPECT_GE(pictures, 10);
}

TEST_F(HandbookTest, TellsFieldsCommandsAndFormulas) {
  FormulaNotes notes;
  notes.AddHeader(
      "/// Swept volume of a *cylinder*.\n/// @param bore  in inches\ndouble Size(double bore);\n");
  notes.AddRoutines("\nvoid Form1::SolveSize() {\n  Store(Text6, Size(b.Bore));\n}\n");
  notes.AddDeclarations(
      "Command Command1{Frame1, \"Command1\", \"&X\", \"help\", &Form1::SolveSize};");
  EXPECT_THAT(notes.Of("Form1", "Command1"), ElementsAre("Swept volume of a *cylinder*."));
  EXPECT_THAT(notes.Of("Form1", "Command2"), IsEmpty());
  const std::string book = ComposeHandbook(program_.shell(), {{"Form1", "Of engines."}}, notes);
  EXPECT_THAT(book, HasSubstr("| Bore | in / mm | number | 4.000 |\n"));
  EXPECT_THAT(book, HasSubstr("  - *In words:* Swept volume of a \\*cylinder\\*.\n"));
  EXPECT_THAT(book,
              HasSubstr("![Engine Displacement Calculator](handbook/Form1.png)\n\nOf engines.\n"));
  EXPECT_THAT(book, HasSubstr("- **\"Stroke\"**: Calculate Stroke needed from"));
}

TEST(FormulaNotesTest, AFunctionWithWordsOfItsOwnTakesNoneOfTheOneAboveIt) {
  FormulaNotes notes;
  notes.AddHeader(
      "/// The rate.\ndouble Rate(double d);\n/// The wire.\ndouble Wire(double k);\n"
      "double Coils(double k);\n");
  notes.AddRoutines("\nvoid Form1::Solve() {\n  Show(Rate(1), Wire(2), Coils(3));\n}\n");
  notes.AddDeclarations("Command Command1{Frame1, \"Command1\", \"&X\", \"help\", &Form1::Solve};");
  EXPECT_THAT(notes.Of("Form1", "Command1"), ElementsAre("The rate.", "The wire."));
}

TEST(FormulaNotesTest, APanelsCommandHasTheFormulasOfItsFolder) {
  FormulaNotes notes;
  notes.AddHeader("/// Of runners.\ndouble Length(double d);\n", "airfuel");
  notes.AddHeader("/// Of pipes.\ndouble Length(double d);\n", "twostroke");
  notes.AddHeader("/// A report.\nstd::string Sheet(double d);\n", "airfuel");
  notes.AddDeclarations("\nclass Form4 : public Screen {\n  MachPanel Mach{*this, Page};\n};",
                        "airfuel");
  notes.AddDeclarations(
      "\nclass MachPanel : public ScreenPart {\n"
      "  Command CommandF7{Frame7, \"CommandF7(1)\", \"&X\", \"help\", "
      "Runs(&MachPanel::Solve)};\n};",
      "airfuel");
  notes.AddRoutines("\nvoid MachPanel::Solve() {\n  Show(Length(1), Sheet(2));\n}\n");
  EXPECT_THAT(notes.Of("Form4", "CommandF7(1)"), ElementsAre("Of runners."));
  EXPECT_THAT(notes.Of("Form5", "CommandF7(1)"), IsEmpty());
}

TEST_F(HandbookTest, AScreenThatKnowsNoInchesTellsMetricUnitsAlone) {
  const std::string book = ComposeHandbook(program_.shell(), {}, FormulaNotes());
  EXPECT_THAT(book, HasSubstr("| Bore | mm | number | 39.5 |\n"));
}

TEST(Introductions, StandUnderTheNamesOfTheirForms) {
  const Introductions written = ParseIntroductions(
      "Of this file.\n\n## Form1\n\nOne.\n\nTwo.\r\n\n## Form2\n\n## Form3\nThree.\n");
  EXPECT_EQ(written.size(), 2U);
  EXPECT_EQ(written.at("Form1"), "One.\n\nTwo.");
  EXPECT_EQ(written.at("Form3"), "Three.");
}

}  // namespace
}  // namespace veldox
