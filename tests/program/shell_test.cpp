#include "core/shell.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "engine/displacement_screen.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class ShellTest : public testing::Test {
 protected:
  ShellTest() { host_.folder = folder_.path(); }

  Shell& shell() { return program_.shell(); }
  ParameterBlock& block() { return program_.context().block; }
  void Choose(std::string_view name) { shell().Choose(*Shell::FindMenuItem(name)); }
  Form1& form1() { return static_cast<Form1&>(*shell().FindScreen("Form1")); }
  void WriteFile(const char* name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(ShellTest, StartsSilentlyWithItsDefaults) {
  program_.Start();
  EXPECT_TRUE(host_.messages.empty());
  EXPECT_EQ(block().Bore, 4.0);
  EXPECT_EQ(block().DataChanged, 0);
  EXPECT_EQ(block().CustomGridLineCountx, 10);
  EXPECT_EQ(block().CustomGridLineCounty, 10);
  EXPECT_EQ(shell().appearance.Combo3.rows(),
            (std::vector<std::string>{"0 - Left", "1 - Right", "2 - Center (Default)"}));
  EXPECT_EQ(shell().appearance.Combo6.rows().size(), 16U);
  EXPECT_TRUE(shell().visible());
  EXPECT_EQ(form1().Text1.text(), "4.000");
}

TEST_F(ShellTest, ReadsTheStartUpFileOfItsFolder) {
  WriteFile("zxqvwu00.prm", "Bore = 4.5\r\nBore Increase = 0.03\r\n");
  program_.Start();
  EXPECT_TRUE(host_.messages.empty());
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(form1().Text26.text(), "0.03");
}

TEST_F(ShellTest, ComparesAFileMadeByHand) {
  program_.Start();
  WriteFile("hand.prm",
            "bore = 4.125\r\nBora = 9\r\n; a comment\r\nAcceleration = 5000 700\r\n"
            "Accelerat hp = 5252 700\r\nT Gear 3 = 1.5\r\nShift RPM 1 - 2 = 8000\r\n");
  std::vector<std::string> told;
  for (const KeyDifference& difference : shell().CompareWith(folder_ / "hand.prm").differences) {
    if (difference.there != "-") told.push_back(difference.name + " : " + difference.there);
  }
  // 700 HP at 5252 RPM are 700 foot pounds.
  EXPECT_EQ(told,
            (std::vector<std::string>{"Bore : 4.125", "T Gear 3 : 1.5", "Shift RPM 1-2 : 8000",
                                      "Acceleration 2 : 5252 700.0", "Bora : 9"}));
  EXPECT_EQ(block().Bore, 4.0);
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(ShellTest, ComparesNoFileThatCannotBeReadThrough) {
  program_.Start();
  WriteFile("broken.prm", "Bore = 4.125\r\nStroke = abc\r\nRod Length = 6.1\r\n");
  EXPECT_THROW(shell().CompareWith(folder_ / "broken.prm"), CommandError);
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(ShellTest, TellsWhatIsWrongWithTheStartUpFile) {
  WriteFile("zxqvwu00.prm", "Bore = 4.5\r\nnonsense\r\nStroke = 3\r\n");
  host_.Answer(Button::OK);
  program_.Start();
  EXPECT_EQ(host_.messages.back().text,
            "Invalid Input Record # - 2   Data --> nonsense\r\nFile: zxqvwu00.prm");
  EXPECT_EQ(block().Stroke, 3);
}

TEST_F(ShellTest, ADamagedStartUpFileIsRefusedByOneBox) {
  std::string binary;
  for (int i = 0; i < 20000; ++i) binary += "\x01\x02\n";
  WriteFile("zxqvwu00.prm", binary);
  host_.Answer(Button::OK);
  program_.Start();
  ASSERT_EQ(host_.messages.size(), 1U);
  EXPECT_EQ(host_.messages[0].text,
            "This is no parameter file: none of its first ten lines begins with a key.\r\n"
            "File: zxqvwu00.prm");
  EXPECT_EQ(block().Bore, 4.0);
}

TEST_F(ShellTest, AMarkerFileRunsTheCommandOfItsScreenSize) {
  WriteFile("veldox.lrg", "");
  program_.Start();
  EXPECT_EQ(block().LargeScreen, 1);
  EXPECT_EQ(block().FullScreen, 0);
}

TEST_F(ShellTest, OfTwoMarkerFilesTheFullScreensCommandRunsLast) {
  WriteFile("veldox.lrg", "");
  WriteFile("veldox.ful", "");
  program_.Start();
  EXPECT_EQ(block().LargeScreen, 0);
  EXPECT_EQ(block().FullScreen, 1);
}

TEST_F(ShellTest, OnASmallScreenMarkerFilesDoNothing) {
  host_.screen = {1024, 699, 96};
  WriteFile("veldox.ful", "");
  program_.Start();
  EXPECT_EQ(block().FullScreen, 0);
  EXPECT_FALSE(shell().MenuEnabled(*Shell::FindMenuItem("LrgScrRes")));
  EXPECT_FALSE(shell().MenuEnabled(*Shell::FindMenuItem("FullScrRes")));
}

TEST_F(ShellTest, CommaSystemsAreToldAndConverted) {
  host_.decimalMark = DecimalMark::Comma;
  host_.Answer(Button::OK);
  program_.Start();
  EXPECT_EQ(host_.messages.back().text, "Program Set for Decimal Point to be >>,<< [Comma] ");
  EXPECT_EQ(host_.messages.back().icon, Icon::Information);
  EXPECT_EQ(form1().Text3.text(), "3,25");
  EXPECT_EQ(block().DecimalCommaMode, 1);
}

TEST_F(ShellTest, OpeningCopiesTheSharedValuesAndSetsTheTag) {
  program_.Start();
  block().Bore = 4.1255559;
  block().NumberofCylinders = 6;
  block().RPM = 7123.6;
  Choose("CubicInch");
  EXPECT_TRUE(form1().visible());
  EXPECT_EQ(form1().Text1.text(), "4.125556");
  EXPECT_EQ(form1().Text2.text(), "6");
  EXPECT_EQ(form1().Text5.text(), "7124");
  EXPECT_EQ(form1().Text27.text(), "555.0");
  EXPECT_EQ(form1().Text20.text(), "2.25");
  EXPECT_EQ(form1().Text21.text(), "0.85");
  EXPECT_EQ(form1().Text22.text(), "13.59405");
  EXPECT_EQ(form1().Text8.text(), "9.245");
  EXPECT_EQ(block().CurrentScreenTag, "CubicIn");
}

TEST(ShellWithoutScreens, ItemsWhoseScreenIsNotThereAreDisabledAndDoNothing) {
  const TemporaryFolder folder;
  TestHost host;
  host.folder = folder.path();
  ProgramContext context(host);
  Shell shell(context);
  shell.Start();
  EXPECT_FALSE(shell.MenuEnabled(*Shell::FindMenuItem("CHASSIS")));
  shell.Choose(*Shell::FindMenuItem("CHASSIS"));
  shell.Choose(*Shell::FindMenuItem("LrgScrRes"));
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(ShellTest, TheMenuTreeIsWhole) {
  std::set<std::string_view> names;
  int top = 0;
  for (const MenuItem& item : Shell::Menu()) {
    EXPECT_TRUE(names.insert(item.name).second) << item.name << " stands twice";
    EXPECT_FALSE(item.caption.empty()) << item.name;
    if (item.parent.empty()) {
      ++top;
    } else {
      const MenuItem* parent = Shell::FindMenuItem(item.parent);
      ASSERT_NE(parent, nullptr) << item.name;
      EXPECT_EQ(parent->kind, MenuKind::Submenu);
      EXPECT_TRUE(names.contains(item.parent)) << item.name << " stands before its menu";
    }
  }
  EXPECT_EQ(top, 22);
  for (const LauncherItem& item : Shell::Launcher()) {
    const MenuItem* opens = Shell::FindMenuItem(item.menuItem);
    ASSERT_NE(opens, nullptr) << item.menuItem;
    // A submenu's button shows all its lists.
    EXPECT_TRUE(opens->kind == MenuKind::Screen || opens->kind == MenuKind::Submenu);
    EXPECT_FALSE(opens->screen.empty()) << item.menuItem;
  }
}

TEST_F(ShellTest, EveryScreenOfTheMenuBarHasALauncherButton) {
  std::set<std::string_view> launched;
  for (const LauncherItem& item : Shell::Launcher()) launched.insert(item.menuItem);
  for (const MenuItem& item : Shell::Menu()) {
    // Tools stand in the File menu.
    if (item.kind == MenuKind::Screen && item.parent.empty()) {
      EXPECT_TRUE(launched.contains(item.name)) << item.name;
    }
  }
}

TEST_F(ShellTest, ClosingTheWindowWithChangedDataOffersNoCancel) {
  program_.Start();
  block().DataChanged = 1;
  host_.Answer(Button::No);
  shell().CloseWindow();
  EXPECT_EQ(host_.messages.back().text, "Do you want to Save Your Data before Exiting VELDOX?");
  EXPECT_EQ(host_.messages.back().icon, Icon::Question);
  EXPECT_EQ(host_.messages.back().buttons, (std::vector<Button>{Button::Yes, Button::No}));
  EXPECT_TRUE(shell().ended());
}

TEST_F(ShellTest, ExitFromTheMenuCanBeCancelledAndTriedAgain) {
  program_.Start();
  block().DataChanged = 1;
  host_.Answer(Button::Cancel);
  Choose("Exit");
  EXPECT_EQ(host_.messages.back().buttons,
            (std::vector<Button>{Button::Yes, Button::No, Button::Cancel}));
  EXPECT_FALSE(shell().ended());
  EXPECT_EQ(block().ExitInProgress, 0);
  host_.Answer(Button::Yes);
  host_.AnswerFile(std::nullopt);
  Choose("Exit");
  EXPECT_FALSE(shell().ended()) << "the save dialog was cancelled";
  host_.Answer(Button::Yes);
  host_.Answer(Button::OK);
  host_.AnswerFile(folder_ / "out.prm");
  Choose("Exit");
  EXPECT_TRUE(shell().ended());
  EXPECT_TRUE(std::filesystem::exists(folder_ / "out.prm"));
}

TEST_F(ShellTest, ExitAsksNothingWhenNothingHasChanged) {
  program_.Start();
  shell().CloseWindow();
  EXPECT_TRUE(shell().ended());
}

TEST_F(ShellTest, SaveDialogsBeginInTheProgramsFolder) {
  program_.Start();
  host_.AnswerFile(std::nullopt);
  Choose("Write");
  EXPECT_EQ(host_.fileDialogs.back().folder, folder_.path());
  EXPECT_EQ(host_.fileDialogs.back().kind, FileDialog::Kind::Save);
  EXPECT_EQ(host_.fileDialogs.back().filterIndex, 3);
  EXPECT_EQ(host_.fileDialogs.back().filter,
            "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm");
}

TEST_F(ShellTest, AFileThatCannotBeWrittenIsToldAndTheOldOneStays) {
  program_.Start();
  WriteFile("old", "a folder's name follows");
  std::filesystem::create_directory(folder_ / "taken.prm");
  host_.AnswerFile(folder_ / "taken.prm");
  host_.Answer(Button::OK);
  Choose("Write");
  EXPECT_EQ(host_.messages.back().icon, Icon::Warning);
  EXPECT_NE(host_.messages.back().text.find("taken.prm"), std::string::npos);
  EXPECT_EQ(shell().Label8.caption(), "");
}

/// Unsaved work goes only when it was saved, or when the data that take its place are there.
class UnsavedWorkTest : public ShellTest {
 protected:
  UnsavedWorkTest() {
    program_.Start();
    block().DataChanged = 1;
    WriteFile("engine.prm", "Bore = 4.5\r\nStroke = 3.5\r\n");
    // A name that can neither be read nor written.
    std::filesystem::create_directory(folder_ / "folder.prm");
  }

  bool HasChanged() { return block().DataChanged == 1; }
};

TEST_F(UnsavedWorkTest, IsKeptByReadNoCancel) {
  host_.Answer(Button::No);
  host_.AnswerFile(std::nullopt);
  Choose("Read");
  EXPECT_EQ(host_.messages.back().text,
            "Do you want to Save Your Data before Reading in New Data?");
  EXPECT_EQ(host_.messages.back().buttons, (std::vector<Button>{Button::Yes, Button::No}));
  EXPECT_TRUE(HasChanged());
}

TEST_F(UnsavedWorkTest, IsKeptByReadNoAndAFileThatCannotBeOpened) {
  for (const char* name : {"missing.prm", "folder.prm"}) {
    host_.Answer(Button::No);
    host_.AnswerFile(folder_ / name);
    host_.Answer(Button::OK);
    Choose("Read");
    EXPECT_TRUE(HasChanged()) << name;
  }
}

TEST_F(UnsavedWorkTest, IsKeptByReadYesAndASaveThatIsCancelledOrFails) {
  host_.Answer(Button::Yes);
  host_.AnswerFile(std::nullopt);
  Choose("Read");
  EXPECT_TRUE(HasChanged());
  ASSERT_EQ(host_.fileDialogs.size(), 1U) << "nothing is read";

  host_.Answer(Button::Yes);
  host_.AnswerFile(folder_ / "folder.prm");
  host_.Answer(Button::OK);
  Choose("Read");
  EXPECT_TRUE(HasChanged());
  EXPECT_EQ(host_.fileDialogs.size(), 2U) << "nothing is read";
}

TEST_F(UnsavedWorkTest, IsSettledByTheSaveEvenWhereNothingIsReadThen) {
  host_.Answer(Button::Yes);
  host_.AnswerFile(folder_ / "saved.prm");
  host_.Answer(Button::OK);
  host_.AnswerFile(std::nullopt);
  Choose("Read");
  EXPECT_FALSE(HasChanged());
  EXPECT_TRUE(std::filesystem::exists(folder_ / "saved.prm"));
}

TEST_F(UnsavedWorkTest, IsSettledByAWrite) {
  host_.AnswerFile(folder_ / "folder.prm");
  host_.Answer(Button::OK);
  Choose("Write");
  EXPECT_TRUE(HasChanged()) << "the save failed";
  host_.AnswerFile(folder_ / "saved.prm");
  host_.Answer(Button::OK);
  Choose("Write");
  EXPECT_FALSE(HasChanged());
  Choose("Exit");
  EXPECT_TRUE(shell().ended()) << "nothing was left to ask about";
}

TEST_F(UnsavedWorkTest, IsSettledOnceTheReadingHasBegun) {
  // Cancel in the box of a bad record ends the reading; what was read stays.
  WriteFile("bad.prm", "Bore = 4.5\r\nnonsense\r\nStroke = 3.5\r\n");
  host_.Answer(Button::No);
  host_.AnswerFile(folder_ / "bad.prm");
  host_.Answer(Button::Cancel);
  host_.Answer(Button::OK);
  Choose("Read");
  EXPECT_FALSE(HasChanged());
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(block().Stroke, 3.25);
}

TEST_F(UnsavedWorkTest, KeepsTheProgramUpWhereItsSaveIsCancelledOrFails) {
  for (const bool byWindow : {false, true}) {
    const auto leave = [&] { byWindow ? shell().CloseWindow() : Choose("Exit"); };
    host_.Answer(Button::Yes);
    host_.AnswerFile(std::nullopt);
    leave();
    EXPECT_FALSE(shell().ended());
    host_.Answer(Button::Yes);
    host_.AnswerFile(folder_ / "folder.prm");
    host_.Answer(Button::OK);
    leave();
    EXPECT_FALSE(shell().ended());
    EXPECT_NE(host_.messages.back().text.find("folder.prm"), std::string::npos);
    EXPECT_TRUE(HasChanged());
    EXPECT_EQ(block().ExitInProgress, 0);
    EXPECT_EQ(block().ExitFromWindowClose, 0);
  }
}

TEST_F(UnsavedWorkTest, IsMadeByABoxAnOptionAndAPickThatTheFileHolds) {
  auto& gauge = *shell().FindScreen("Form12");
  auto& exponent = static_cast<ComboList&>(*gauge.Find("Combo1"));
  const auto changes = [&](const std::function<void()>& touch) {
    block().DataChanged = 0;
    touch();
    return HasChanged();
  };
  EXPECT_TRUE(changes([&] { form1().Check3.Click(); }));
  EXPECT_TRUE(changes([&] { form1().Option1.buttons()[4]->Click(); }));
  EXPECT_FALSE(changes([&] { form1().Option1.buttons()[4]->Click(); })) << "it stood so";
  EXPECT_TRUE(changes([&] { exponent.Pick(exponent.chosen() + 1); }));
  EXPECT_FALSE(changes([&] { exponent.Pick(exponent.chosen()); })) << "it stood so";
  // The file does not hold these.
  EXPECT_FALSE(changes([&] { form1().Check2.Click(); }));
  EXPECT_FALSE(changes([&] { form1().Option2.buttons()[1]->Click(); }));
  // Nor does it ask about the main form's options, nor about what a file brings.
  Choose("Graph");
  EXPECT_FALSE(changes([&] { shell().graphOptions.Check1.Click(); }));
  EXPECT_FALSE(changes([&] { shell().graphOptions.Option5.buttons()[2]->Click(); }));
  EXPECT_EQ(block().GridSwitch, 2);
  WriteFile("boxes.prm", "Show 3 Decimals = No\r\nCubicin Option = 2\r\nBase Exponent = 1.4\r\n");
  host_.AnswerFile(folder_ / "boxes.prm");
  host_.Answer(Button::OK);
  EXPECT_FALSE(changes([&] { Choose("Read"); }));
  EXPECT_EQ(form1().Option1.chosen(), 2);
}

TEST_F(UnsavedWorkTest, IsNotMadeByTheStartUpFile) {
  WriteFile("zxqvwu00.prm", "Base Exponent = 1.4\r\nShow 3 Decimals = Yes\r\n");
  Program fresh(host_);
  fresh.Start();
  EXPECT_EQ(fresh.context().block.DataChanged, 0);
}

TEST_F(ShellTest, AFileThatCannotBeOpenedGetsOneBoxAndNothingElseChanges) {
  program_.Start();
  std::filesystem::create_directory(folder_ / "folder.prm");
  WriteFile("engine.prm", "Bore = 4.5\r\nNotes = block 7\r\n");
  host_.AnswerFile(folder_ / "engine.prm");
  host_.Answer(Button::OK);
  Choose("Read");
  Choose("CubicInch");
  for (const char* name : {"missing.prm", "folder.prm"}) {
    host_.messages.clear();
    host_.AnswerFile(folder_ / name);
    host_.Answer(Button::OK);
    Choose("Read");
    ASSERT_EQ(host_.messages.size(), 1U) << name;
    EXPECT_EQ(host_.messages[0].icon, Icon::Warning);
    EXPECT_NE(host_.messages[0].text.find(name), std::string::npos);
    EXPECT_EQ(shell().Label8.caption(), "Parameter File -- engine.prm");
    EXPECT_EQ(std::filesystem::path(block().ParameterFileName).filename(), "engine.prm");
    EXPECT_EQ(block().Bore, 4.5);
    EXPECT_EQ(block().Notes, "block 7");
    EXPECT_EQ(form1().Text1.text(), "4.5");
  }
}

TEST_F(ShellTest, AnErrorHalfWayThroughAFileStillTellsTheCount) {
  program_.Start();
  WriteFile("half.prm", "Bore = 4.5\r\nStroke = three\r\nRod Length = 6\r\n");
  host_.AnswerFile(folder_ / "half.prm");
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  Choose("Read");
  ASSERT_EQ(host_.messages.size(), 2U);
  EXPECT_NE(host_.messages[0].text.find("Record # 2"), std::string::npos);
  EXPECT_EQ(host_.messages[1].text, "2 Records Read");
  EXPECT_EQ(shell().Label8.caption(), "Parameter File -- half.prm");
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(block().RodLength, 5.7);
}

TEST_F(ShellTest, TheControlsOfItsPanelsAreItsOwn) {
  program_.Start();
  std::vector<Frame*> inReadingOrder{&shell().TitleFrame};
  for (const ScreenPart* panel : shell().Panels()) {
    for (Frame* frame : panel->frames()) {
      EXPECT_FALSE(frame->visible()) << frame->name();
      EXPECT_EQ(&frame->screen(), &shell());
      inReadingOrder.push_back(frame);
      for (Control* control : frame->controls()) {
        EXPECT_EQ(shell().FindControl("Main." + control->name()), control);
      }
    }
  }
  EXPECT_EQ(shell().frames(), inReadingOrder);
}

TEST_F(ShellTest, APanelThatOpensOrClosesTakesTheHelpSentenceAway) {
  program_.Start();
  shell().ShowHelp("Of the launcher.");
  Choose("Graph");
  EXPECT_EQ(shell().Label77.caption(), "");
  shell().Hover(&shell().graphOptions.DrawLn);
  EXPECT_EQ(shell().Label77.caption(), shell().graphOptions.DrawLn.help());
  shell().graphOptions.Command2.Click();
  EXPECT_EQ(shell().Label77.caption(), "");
}

TEST_F(ShellTest, NotesOfAFileShowOnTheOpenPanel) {
  program_.Start();
  WriteFile("notes.prm", "Notes = 5 of 8\r\n");
  Choose("Notes");
  host_.AnswerFile(folder_ / "notes.prm");
  host_.Answer(Button::OK);
  Choose("Read");
  EXPECT_EQ(shell().notes.Text22.text(), "5 of 8");
  shell().notes.Command11.Click();
  EXPECT_EQ(block().Notes, "5 of 8");
}

TEST_F(ShellTest, TypingInAnOptionFieldIsNoChangeOfTheData) {
  program_.Start();
  shell().MoveFocus(&shell().delimitedColumns.Text13);
  EXPECT_EQ(block().OptionFieldActive, 1);
  shell().delimitedColumns.Text13.FilterKey(U'2');
  EXPECT_EQ(block().DataChanged, 0);
  shell().MoveFocus(nullptr);
  EXPECT_EQ(block().OptionFieldActive, 0);
  shell().MoveFocus(&shell().delimitedColumns.Text13);
  shell().Minimised();
  EXPECT_EQ(block().OptionFieldActive, 0);
}

TEST_F(ShellTest, MetricModeAndPrintHeadsOfAFileTurnTheMenu) {
  program_.Start();
  WriteFile("modes.prm", "Metric Mode = ON\r\nPrint Heads = ON\r\n");
  host_.AnswerFile(folder_ / "modes.prm");
  host_.Answer(Button::OK);
  Choose("Read");
  EXPECT_EQ(host_.messages.back().text, "2 Records Read");
  EXPECT_EQ(shell().MenuCaption(*Shell::FindMenuItem("Metric")), "Metric Mode -- Is ON");
  EXPECT_EQ(shell().MenuCaption(*Shell::FindMenuItem("Print_CI")),
            "Print Company Info Multi Page -- Is ON");
  Choose("CubicInch");
  EXPECT_TRUE(form1().Check1.on());
  EXPECT_EQ(form1().Text1.text(), "101.6");
}

TEST_F(ShellTest, PickFontAndPickColorReportACancelToTheirCaller) {
  program_.Start();
  host_.AnswerFont(FontChoice{"Sans", 11, true, false});
  EXPECT_EQ(shell().PickFont().name, "Sans");
  host_.AnswerColor(255 + 256 * 128);
  EXPECT_EQ(shell().PickColor(), "33023");
  host_.AnswerFont(std::nullopt);
  host_.AnswerColor(std::nullopt);
  EXPECT_THROW(shell().PickFont(), CommandError);
  EXPECT_THROW(shell().PickColor(), CommandError);
}

TEST(TitleAnimation, BringsOnePieceAfterTheOtherToRestAndStops) {
  TitleAnimation title;
  int ticks = 0;
  while (title.Tick()) {
    ++ticks;
    for (int piece = 1; piece < TitleAnimation::kPieces; ++piece) {
      if (title.offset(piece) < TitleAnimation::kStart) {
        EXPECT_EQ(title.offset(piece - 1), 0);
      }
    }
    ASSERT_LT(ticks, 1000);
  }
  for (int piece = 0; piece < TitleAnimation::kPieces; ++piece) EXPECT_EQ(title.offset(piece), 0);
  EXPECT_FALSE(title.Tick());
}

}  // namespace
}  // namespace veldox
