#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "core/appearance.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The appearance and the company block, chosen in the menu of the main form.
class AppearanceTest : public testing::Test {
 protected:
  AppearanceTest() {
    host_.folder = folder_.path();
    program_.Start();
  }

  Shell& shell() { return program_.shell(); }
  ParameterBlock& block() { return program_.context().block; }
  void Choose(std::string_view name) { shell().Choose(*Shell::FindMenuItem(name)); }
  void ChooseColor(std::string_view name, std::int32_t color) {
    host_.AnswerColor(color);
    Choose(name);
  }
  std::string Help() { return shell().Label77.caption(); }
  void Read(const std::string& text) {
    std::ofstream(folder_ / "a.prm", std::ios::binary) << text;
    host_.AnswerFile(folder_ / "a.prm");
    host_.Answer(Button::OK);
    Choose("Read");
  }
  std::string Written() {
    host_.AnswerFile(folder_ / "w.prm");
    host_.Answer(Button::OK);
    Choose("Write");
    std::ifstream stream(folder_ / "w.prm", std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(AppearanceTest, EachFontItemSetsItsOwnFourKeys) {
  struct Case {
    const char* item;
    std::string ParameterBlock::*name;
    std::int16_t ParameterBlock::*size;
    std::int16_t ParameterBlock::*bold;
    std::int16_t ParameterBlock::*italic;
  };
  using P = ParameterBlock;
  const Case cases[] = {{"EntryFont", &P::EntryBoxFontName, &P::EntryBoxFontSize,
                         &P::EntryBoxFontBold, &P::EntryBoxFontItalic},
                        {"LabelFont", &P::LabelBoxFontName, &P::LabelBoxFontSize,
                         &P::LabelBoxFontBold, &P::LabelBoxFontItalic},
                        {"CommandFont", &P::CommandButtonFontName, &P::CommandButtonFontSize,
                         &P::CommandButtonFontBold, &P::CommandButtonFontItalic},
                        {"Fonts", &P::HelpBoxFontName, &P::HelpBoxFontSize, &P::HelpBoxFontBold,
                         &P::HelpBoxFontItalic}};
  int size = 10;
  for (const Case& each : cases) {
    host_.AnswerFont(FontChoice{"Sans Mixed Case", ++size, true, true});
    Choose(each.item);
    EXPECT_EQ(block().*each.name, "Sans Mixed Case") << each.item;
    EXPECT_EQ(block().*each.size, size) << each.item;
    EXPECT_EQ(block().*each.bold, 1) << each.item;
    EXPECT_EQ(block().*each.italic, 1) << each.item;
  }
  EXPECT_EQ(block().EntryBoxFontSize, 11) << "no later font has touched it";
  EXPECT_EQ(block().DataChanged, 0) << "it is no data";
}

TEST_F(AppearanceTest, ACancelledDialogChangesNothing) {
  const Appearance before = AppearanceOf(block());
  for (const char* item : {"EntryFont", "LabelFont", "CommandFont", "Fonts"}) {
    host_.AnswerFont(std::nullopt);
    Choose(item);
  }
  for (const char* item : {"LabelColor", "FrameColor", "QuitColor", "BoxColor", "BoxFColor"}) {
    host_.AnswerColor(std::nullopt);
    Choose(item);
  }
  EXPECT_EQ(AppearanceOf(block()), before);
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(AppearanceTest, AFontOfNoPossibleSizeIsTheNearestAndIsTold) {
  host_.AnswerFont(FontChoice{"Sans", 500, false, false});
  Choose("EntryFont");
  EXPECT_EQ(block().EntryBoxFontSize, 32);
  EXPECT_EQ(Help(), "Letters can be from 6 to 32 points high: these now have 32.");
  host_.AnswerFont(FontChoice{"Sans", 12, false, false});
  Choose("EntryFont");
  EXPECT_EQ(Help(), "");
}

TEST_F(AppearanceTest, EachColorItemSetsItsOwnKey) {
  ChooseColor("LabelColor", 1000);
  ChooseColor("FrameColor", 16777000);
  ChooseColor("QuitColor", 16776000);
  ChooseColor("BoxFColor", 0x600000);
  ChooseColor("BoxColor", 16775000);
  EXPECT_EQ(block().LabelBoxColor, 1000);
  EXPECT_EQ(block().BackGroundColor, 16777000);
  EXPECT_EQ(block().QuitBackGroundColor, 16776000);
  EXPECT_EQ(block().HelpBoxFontColor, 0x600000);
  EXPECT_EQ(block().HelpBackGroundColor, 16775000);
  EXPECT_EQ(Help(), "");
}

TEST_F(AppearanceTest, ABlackThatWasChosenIsKeptAsOne) {
  ChooseColor("LabelColor", 0);
  EXPECT_EQ(block().LabelBoxColor, 1);
}

TEST_F(AppearanceTest, AColorThatIsHardToReadIsToldAndTaken) {
  constexpr std::int32_t kWhite = 0xFFFFFF;
  constexpr std::int32_t kNavy = 0x800000;
  ChooseColor("LabelColor", kWhite);
  EXPECT_THAT(Help(), HasSubstr("This text is hard to read: its contrast with the ground is 1.0"));
  EXPECT_THAT(Help(), HasSubstr("4.5 to 1 is the least that reads well."));
  EXPECT_EQ(block().LabelBoxColor, kWhite);
  ChooseColor("FrameColor", kNavy);
  EXPECT_EQ(Help(), "") << "white on navy blue reads well";
  ChooseColor("QuitColor", kNavy);
  EXPECT_THAT(Help(), HasSubstr("hard to read"));
  ChooseColor("BoxColor", kNavy);
  EXPECT_THAT(Help(), HasSubstr("hard to read"));
  ChooseColor("BoxFColor", kWhite);
  EXPECT_EQ(Help(), "");
}

TEST_F(AppearanceTest, ClassicTakesTheOlderFontFirstAndTheNewerFromThenOn) {
  block().LabelBoxFontSize = 14;
  Choose("Classic_Lab");
  EXPECT_EQ(block().LabelBoxFontName, "MS Sans Serif");
  Choose("Classic_Lab");
  EXPECT_EQ(block().LabelBoxFontName, "Tahoma");
  Choose("Classic_Lab");
  EXPECT_EQ(block().LabelBoxFontName, "Tahoma");
  EXPECT_EQ(block().LabelBoxFontSize, 14);
  EXPECT_EQ(block().CommandButtonFontName, "");
  Choose("Classic_Comm");
  EXPECT_EQ(block().CommandButtonFontName, "MS Sans Serif");
}

TEST_F(AppearanceTest, AListShowsAloneAndSetsWhatIsPicked) {
  AppearancePanel& panel = shell().appearance;
  const auto shown = [&] {
    std::string names;
    for (const ComboList* list : {&panel.Combo3, &panel.Combo4, &panel.Combo5, &panel.Combo6}) {
      if (list->Shown()) names += list->name();
    }
    return names;
  };
  EXPECT_EQ(shown(), "");
  Choose("EntryAlig");
  EXPECT_EQ(shown(), "Combo3");
  EXPECT_EQ(panel.Combo3.chosen(), 2);
  panel.Combo3.Pick(1);
  EXPECT_EQ(block().EntryBoxAlignment, 1);
  Choose("T_B_Style");
  EXPECT_EQ(shown(), "Combo4");
  EXPECT_EQ(panel.Combo4.chosen(), 1);
  panel.Combo4.Pick(0);
  EXPECT_EQ(block().EntryBoxStyle, 0);
  Choose("O_C_Style");
  EXPECT_EQ(shown(), "Combo5");
  panel.Combo5.Pick(0);
  EXPECT_EQ(block().OptionCheckBoxStyle, 0);
  EXPECT_EQ(block().DataChanged, 0);
  panel.Exit_Sel_GUI.Click();
  EXPECT_EQ(shown(), "");
  Choose("Default_Look");
  EXPECT_EQ(panel.Combo3.chosen(), 2);
  EXPECT_EQ(AppearanceOf(block()), Appearance());
}

TEST_F(AppearanceTest, TravelsInTheParameterFile) {
  host_.AnswerFont(FontChoice{"Sans Mixed Case", 13, true, false});
  Choose("LabelFont");
  ChooseColor("FrameColor", 0xC0FFFF);
  Choose("EntryAlig");
  shell().appearance.Combo3.Pick(0);
  Choose("FullScrRes");
  const Appearance chosen = AppearanceOf(block());
  const std::string file = Written();
  EXPECT_THAT(file, HasSubstr(";   User Selected GUI Options -- Keep This Order\r\n"
                              "Quit BackGround Color = 0\r\nBackGround Color = 12648447\r\n"
                              "Option Check Box Style = 1\r\nLarge Screen = No\r\n"
                              "Full Screen = Yes\r\nEntry Box Font Name = \r\n"));
  EXPECT_THAT(file, HasSubstr("Entry Box Alignment = 0\r\nEntry Box Style = 1\r\n"
                              "Label Box Font Name = Sans Mixed Case\r\n"
                              "Label Box Font Size = 13\r\nLabel Box Font Bold = 1\r\n"
                              "Label Box Font Italic = 0\r\n"));
  Choose("Default_Look");
  EXPECT_EQ(block().FullScreen, 0);
  Read(file);
  EXPECT_EQ(AppearanceOf(block()), chosen);
  EXPECT_EQ(block().FullScreen, 1);
  EXPECT_EQ(shell().appearance.Combo3.chosen(), 0);
}

TEST_F(AppearanceTest, AFileFromBeforeTheChoiceLeavesTheLists) {
  const std::string older =
      "Option Check Box Style = 0\r\nEntry Box Font Name = \r\nEntry Box Alignment = 0\r\n"
      "Entry Box Style = 0\r\nLabel Box Font Name = \r\n";
  Read(older);
  EXPECT_EQ(AppearanceOf(block()), Appearance());
  // They are kept as they were chosen, not as they begin.
  Choose("EntryAlig");
  shell().appearance.Combo3.Pick(1);
  Read(older);
  EXPECT_EQ(block().EntryBoxAlignment, 1);
  EXPECT_EQ(block().EntryBoxStyle, 1);
}

TEST_F(AppearanceTest, AFileThatNamesAFontOrASingleListMeansIt) {
  Read(
      "Option Check Box Style = 0\r\nEntry Box Alignment = 0\r\nEntry Box Style = 0\r\n"
      "Help Box Font Name = Courier\r\n");
  EXPECT_EQ(block().EntryBoxAlignment, 0);
  EXPECT_EQ(block().EntryBoxStyle, 0);
  EXPECT_EQ(block().OptionCheckBoxStyle, 0);
  Choose("Default_Look");
  Read("Entry Box Alignment = 0\r\nEntry Box Style = 1\r\nOption Check Box Style = 0\r\n");
  EXPECT_EQ(block().EntryBoxAlignment, 0);
  EXPECT_EQ(block().OptionCheckBoxStyle, 0);
}

TEST_F(AppearanceTest, WhatAFileCannotMeanIsToldAndTheNearestTaken) {
  const struct {
    const char* record;
    std::int64_t held;
    std::function<std::int64_t()> value;
  } cases[] = {
      {"Entry Box Font Size = 500", 32, [&] { return block().EntryBoxFontSize; }},
      {"Label Box Font Size = 2", 6, [&] { return block().LabelBoxFontSize; }},
      {"Help Box Font Size = -1", 6, [&] { return block().HelpBoxFontSize; }},
      {"Label Box Color = 99999999999", 16777215, [&] { return block().LabelBoxColor; }},
      {"BackGround Color = -2147483633", 0, [&] { return block().BackGroundColor; }},
      {"Entry Box Alignment = 3", 2, [&] { return block().EntryBoxAlignment; }},
      {"Entry Box Style = 70000", 1, [&] { return block().EntryBoxStyle; }},
      {"Option Check Box Style = -1", 0, [&] { return block().OptionCheckBoxStyle; }},
  };
  for (const auto& each : cases) {
    host_.messages.clear();
    host_.Answer(Button::OK);
    Read(std::string(each.record) + "\r\nBore = 4.125\r\n");
    ASSERT_EQ(host_.messages.size(), 2U) << each.record;
    EXPECT_EQ(host_.messages[0].text, std::string("Invalid Input Record # - 1   Data --> ") +
                                          each.record + "\r\nFile: a.prm");
    EXPECT_EQ(each.value(), each.held) << each.record;
    EXPECT_EQ(host_.messages[1].text, "2 Records Read") << "the reading goes on";
  }
}

TEST_F(AppearanceTest, WhatIsNotChosenIsNeverTold) {
  Read(
      "Entry Box Font Size = 0\r\nLabel Box Color = 0\r\nHelp Box Font Bold = -1\r\n"
      "Label Box Font Italic = 7\r\nEntry Box Font Bold = 0\r\n");
  EXPECT_EQ(host_.messages.size(), 1U);
  EXPECT_EQ(block().HelpBoxFontBold, 1);
  EXPECT_EQ(block().LabelBoxFontItalic, 1);
}

// ---------------------------------------------------------------- the screen's size

TEST_F(AppearanceTest, OneScreenSizeTakesTheOthersPlace) {
  Choose("LrgScrRes");
  EXPECT_EQ(block().LargeScreen, 1);
  EXPECT_EQ(block().FullScreen, 0);
  Choose("FullScrRes");
  EXPECT_EQ(block().LargeScreen, 0);
  EXPECT_EQ(block().FullScreen, 1);
  EXPECT_THAT(host_.messages, IsEmpty());
}

// ---------------------------------------------------------------- the company block

TEST_F(AppearanceTest, CompanyTextsArePrintedAsTheyAreTypedAndStayOutOfTheFile) {
  Choose("Co_Name");
  CompanyPanel& panel = shell().company;
  EXPECT_TRUE(panel.Text94.Shown());
  panel.Text94.Edit("Acme");
  panel.Text98.Edit("acme.example");
  EXPECT_EQ(block().CompanyName, "Acme");
  EXPECT_EQ(block().CompanyWebSite, "acme.example");
  shell().MoveFocus(&panel.Text94);
  panel.Text94.FilterKey(U'x');
  shell().MoveFocus(nullptr);
  EXPECT_EQ(block().DataChanged, 0);
  EXPECT_EQ(Written().find("Acme"), std::string::npos);
  panel.Exit_Co_Name.Click();
  EXPECT_FALSE(panel.Text94.Shown());
}

TEST_F(AppearanceTest, CompanyTextsAreSavedAndLoadedByDialogs) {
  Choose("Co_Name");
  shell().company.Text95.Edit("1 Main Street ");
  host_.AnswerFile(folder_ / "shop.dcn");
  shell().company.Save_Co_Name.Click();
  EXPECT_EQ(host_.fileDialogs.back().kind, FileDialog::Kind::Save);
  EXPECT_EQ(host_.fileDialogs.back().filter,
            "Text Files (All Files (*.*)|*.*|Customer Data Files (*.dcn)|*.dcn");
  EXPECT_EQ(host_.fileDialogs.back().filterIndex, 2);
  shell().company.Text95.Edit("");
  host_.AnswerFile(folder_ / "shop.dcn");
  Choose("Load_Co_Name");
  EXPECT_EQ(host_.fileDialogs.back().filter,
            "Text Files (All Files (*.*)|*.*|Company Name Data Files (*.dcn)|*.dcn");
  EXPECT_EQ(host_.fileDialogs.back().filterIndex, 2);
  EXPECT_EQ(shell().company.Text95.text(), "1 Main Street ");
  EXPECT_EQ(block().CompanyAddress, "1 Main Street ");
  host_.AnswerFile(std::nullopt);
  Choose("Load_Co_Name");
  host_.AnswerFile(std::nullopt);
  shell().company.Save_Co_Name.Click();
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(AppearanceTest, ABadCompanyRecordIsToldAndTheReadingGoesOn) {
  std::ofstream(folder_ / "bad.dcn", std::ios::binary)
      << "Company Name = A\r\nnonsense\r\nCompany City = C\r\n";
  host_.AnswerFile(folder_ / "bad.dcn");
  host_.Answer(Button::OK);
  Choose("Load_Co_Name");
  ASSERT_EQ(host_.messages.size(), 1U);
  EXPECT_EQ(host_.messages[0].text, "Bad or Invalid Record Read #2 ->>> nonsense");
  EXPECT_EQ(host_.messages[0].title, "VELDOX-Math-Formula-Calculator");
  EXPECT_EQ(host_.messages[0].buttons, std::vector<Button>{Button::OK});
  EXPECT_EQ(block().CompanyName, "A");
  EXPECT_EQ(block().CompanyCity, "C");
}

TEST_F(AppearanceTest, AFileOfNothingButBadRecordsEndsInAFewBoxes) {
  {
    std::ofstream stream(folder_ / "long.dcn", std::ios::binary);
    for (int i = 0; i < 5000; ++i) stream << "nonsense\n";
  }
  for (int i = 0; i < 20; ++i) host_.Answer(Button::OK);
  host_.AnswerFile(folder_ / "long.dcn");
  Choose("Load_Co_Name");
  ASSERT_EQ(host_.messages.size(), 20U);
  EXPECT_EQ(host_.messages.back().text,
            "4981 more records of this file are bad or invalid. The first of them:\r\n"
            "Bad or Invalid Record Read #20 ->>> nonsense");
}

TEST_F(AppearanceTest, ACompanyFileThatCannotBeReadIsToldByItsName) {
  host_.AnswerFile(folder_ / "missing.dcn");
  host_.Answer(Button::OK);
  Choose("Load_Co_Name");
  EXPECT_THAT(host_.messages.back().text, HasSubstr("missing.dcn"));
  std::filesystem::create_directory(folder_ / "taken.dcn");
  Choose("Co_Name");
  host_.AnswerFile(folder_ / "taken.dcn");
  host_.Answer(Button::OK);
  shell().company.Save_Co_Name.Click();
  EXPECT_THAT(host_.messages.back().text, HasSubstr("taken.dcn"));
}

TEST_F(AppearanceTest, ThePrintLocationIsAnIndexInTheFile) {
  Choose("Print_Head_Location");
  OptionGroup& place = shell().companyPlace.Option4;
  EXPECT_TRUE(place.Shown());
  place.buttons()[2]->Click();
  EXPECT_EQ(block().CompanyNameLocation, 2);
  EXPECT_THAT(Written(), HasSubstr("Company Name Location = 2\r\n"));
  Read("Company Name Location = 1\r\n");
  EXPECT_EQ(place.chosen(), 1);
  shell().companyPlace.Exit_Sel_Co_Name.Click();
  EXPECT_FALSE(place.Shown());
}

TEST_F(AppearanceTest, APanelThatAnotherHasCoveredOpensAgain) {
  Choose("Print_Head_Location");
  Choose("Co_Name");
  shell().company.Exit_Co_Name.Click();
  Choose("Print_Head_Location");
  EXPECT_TRUE(shell().companyPlace.Frame95.visible());
}

}  // namespace
}  // namespace veldox
