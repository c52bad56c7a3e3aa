#include "core/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "tests/support/test_host.h"

namespace veldox {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace fs = std::filesystem;

Settings Parsed(std::string_view text) {
  Settings settings;
  settings.Parse(text);
  return settings;
}

TEST(Settings, ComeBackFromTheirText) {
  Settings settings;
  settings.look = LookChoice::Dark;
  settings.AddRecentFile("/home/a b/eng=ine.prm");
  settings.AddRecentFile("/tmp/\xFC.prm");
  settings.places["Main"] = {-5, 20, 0, 0, true};
  settings.places["Form1"] = {100, 200, 900, 650, false};
  const Settings back = Parsed(settings.Compose());
  EXPECT_EQ(back.look, LookChoice::Dark);
  EXPECT_THAT(back.recentFiles(), ElementsAre("/tmp/\xFC.prm", "/home/a b/eng=ine.prm"));
  EXPECT_EQ(back.places, settings.places);
}

TEST(Settings, HoldTheTenFilesWorkedOnLast) {
  Settings settings;
  for (int i = 0; i < 12; ++i) settings.AddRecentFile("/f" + std::to_string(i));
  ASSERT_THAT(settings.recentFiles(), SizeIs(10));
  EXPECT_EQ(settings.recentFiles().front(), "/f11");
  EXPECT_EQ(settings.recentFiles().back(), "/f2");
  settings.AddRecentFile("/f5");
  EXPECT_THAT(settings.recentFiles(), SizeIs(10));
  EXPECT_EQ(settings.recentFiles().front(), "/f5");
  settings.DropRecentFile(0);
  settings.DropRecentFile(99);
  EXPECT_THAT(settings.recentFiles(), SizeIs(9));
  EXPECT_EQ(settings.recentFiles().front(), "/f11");
}

TEST(Settings, PassOverWhatMakesNoSense) {
  const Settings settings = Parsed(
      "Look = Purple\nRecent = relative.prm\nRecent = \nnonsense\n\n=\nWindow\nWindow X\n"
      "Window A = 1 2 3\nWindow B = 1 2 3 4 five\nWindow C = 1 2 -3 4 0\nWindow D = 1 2 3 4 0 9\n"
      "Window E = 99999999999 2 3 4 0\nRecent = /a\nWindow F = 1 2 3 4 0");
  EXPECT_EQ(settings.look, LookChoice::Desktop);
  EXPECT_THAT(settings.recentFiles(), ElementsAre("/a"));
  EXPECT_THAT(settings.places, SizeIs(1));
  EXPECT_TRUE(settings.places.contains("F"));
}

TEST(Settings, TakeNoMoreThanThereIsRoomFor) {
  std::string text;
  for (int i = 0; i < 500; ++i) {
    text += "Recent = /r" + std::to_string(i) + "\nWindow W" + std::to_string(i) + " = 1 1 0 0 0\n";
  }
  const Settings settings = Parsed(text);
  EXPECT_THAT(settings.recentFiles(), SizeIs(10));
  EXPECT_LE(settings.places.size(), 100U);
}

TEST(Settings, KeepANameOfTwoLinesOutOfTheirFile) {
  Settings settings;
  settings.AddRecentFile("/two\nlines");
  settings.AddRecentFile("/one");
  EXPECT_THAT(Parsed(settings.Compose()).recentFiles(), ElementsAre("/one"));
}

TEST(Settings, OfAnyBytesAreSound) {
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    Settings settings;
    settings.look = LookChoice::Light;
    settings.AddRecentFile("/a/b.prm");
    settings.places["Main"] = {1, 2, 3, 4, true};
    std::string text = settings.Compose();
    for (int i = 0; i < 5; ++i) text[random() % text.size()] = static_cast<char>(random() % 256);
    const Settings parsed = Parsed(text);
    EXPECT_LE(parsed.recentFiles().size(), 10U);
    for (const auto& [form, place] : parsed.places) EXPECT_GE(place.width, 0) << form;
  }
}

TEST(SettingsFile, IsMadeWithItsFolderAndReadAgain) {
  const TemporaryFolder folder;
  const fs::path file = folder.path() / "new" / "veldox" / "settings.txt";
  Settings settings;
  settings.look = LookChoice::Light;
  SaveSettings(file, settings);
  EXPECT_EQ(LoadSettings(file).look, LookChoice::Light);
}

TEST(SettingsFile, ThatIsMissingDamagedOrHugeGivesWhatAFreshProgramHas) {
  const TemporaryFolder folder;
  EXPECT_EQ(LoadSettings(folder / "missing").look, LookChoice::Desktop);
  EXPECT_EQ(LoadSettings({}).look, LookChoice::Desktop);
  EXPECT_EQ(LoadSettings(folder.path()).look, LookChoice::Desktop);
  std::ofstream(folder / "bytes", std::ios::binary) << std::string(1000, '\0') << "\xFF\xFE Look";
  EXPECT_THAT(LoadSettings(folder / "bytes").recentFiles(), IsEmpty());
  {
    std::ofstream huge(folder / "huge", std::ios::binary);
    huge << "Look = Dark\n" << std::string(1 << 20, ' ');
  }
  EXPECT_EQ(LoadSettings(folder / "huge").look, LookChoice::Desktop);
}

TEST(SettingsFile, ThatCannotBeWrittenIsPassedOverInSilence) {
  const TemporaryFolder folder;
  std::ofstream(folder / "taken") << "no folder";
  SaveSettings(folder.path() / "taken" / "settings.txt", Settings());
  SaveSettings(folder.path(), Settings());
  SaveSettings({}, Settings());
  SUCCEED() << "nothing was thrown";
}

}  // namespace
}  // namespace veldox
