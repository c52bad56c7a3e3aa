#include "core/file_comparison.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr DecimalMark kMark = DecimalMark::Point;

TEST(FileContents, NumbersTheRowsThatTheFileDoesNot) {
  const FileContents contents = ContentsOf(
      "; Bore = 1\r\nbore = 4.0\r\nT Gear 3 = 1.5\r\nVE RPM = .8\r\nVE RPM = .9\r\n"
      "Acceleration = 2000 300\r\nnothing\r\nAcceleration = 2500 310\r\n"
      "Notes = first = one\r\nsecond\r\n");
  EXPECT_THAT(
      contents.records,
      ElementsAre(FileRecord{"Bore", "Bore", "4.0"}, FileRecord{"T Gear 3", "T Gear 3", "1.5"},
                  FileRecord{"VE RPM 1", "VE RPM", ".8"}, FileRecord{"VE RPM 2", "VE RPM", ".9"},
                  FileRecord{"Acceleration 1", "Acceleration", "2000 300"},
                  FileRecord{"Acceleration 2", "Acceleration", "2500 310"}));
  EXPECT_EQ(contents.notes, "first = one\r\nsecond");  // lines of the file end, notes do not
}

TEST(FileContents, TellsTheRoadTablesApartByTheirCase) {
  EXPECT_THAT(ContentsOf("Road HP = 40 1\nROad HP = 3000 1\nRoad HP = 50 2").records,
              ElementsAre(FileRecord{"Road HP 1", "Road HP", "40 1"},
                          FileRecord{"ROad HP 1", "ROad HP", "3000 1"},
                          FileRecord{"Road HP 2", "Road HP", "50 2"}));
}

TEST(FileComparison, TellsWhatDiffersAndWhatOneSideLacks) {
  const FileContents here = ContentsOf(
      "Bore = 4.0\nStroke = 3.25\nAcceleration = 2000 300\nAcceleration = 2500 310\nRPM = 1\n");
  const FileContents there =
      ContentsOf("Bore = 4.125\nStroke = 3.25\nTorque = 5\nAcceleration = 2000 305\nRPM = 1\n");
  const FileComparison comparison = Compare(here, there);
  EXPECT_THAT(comparison.differences,
              ElementsAre(KeyDifference{"Bore", "Bore", "4.0", "4.125"},
                          KeyDifference{"Torque", "Torque", "-", "5"},
                          KeyDifference{"Acceleration 1", "Acceleration", "2000 300", "2000 305"},
                          KeyDifference{"Acceleration 2", "Acceleration", "2500 310", "-"}));
  EXPECT_FALSE(comparison.notesDiffer);
  EXPECT_THAT(Compare(here, here).differences, IsEmpty());
  EXPECT_THAT(Compare(ContentsOf("Bore = .5\nShow Dots = 1 2.0\n"),
                      ContentsOf("Bore = 0.50\nShow Dots = 1.0 2\n"))
                  .differences,
              IsEmpty());
}

TEST(FileComparison, AKeyThatTheFileLacksIsNoneOfIts) {
  const FileContents here = ContentsOf("Bore = 4.0\nStroke = 3.25\nNotes = mine");
  // Read over the present state, the file's own stroke is that state's.
  const FileContents there = ContentsOf("Bore = 4.125\nStroke = 3.25\nNotes = theirs");
  const FileFindings findings{{"bore"}, {{"Bora", "9"}}, {}};
  const FileComparison comparison = Compare(here, OfFile(there, findings));
  EXPECT_THAT(comparison.differences, ElementsAre(KeyDifference{"Bore", "Bore", "4.0", "4.125"},
                                                  KeyDifference{"Stroke", "Stroke", "3.25", "-"},
                                                  KeyDifference{"Bora", "Bora", "-", "9"}));
  EXPECT_TRUE(comparison.notesDiffer);
}

TEST(ComparisonReport, TellsNumbersByScreenThenOptionsThenNotes) {
  FileComparison comparison;
  comparison.differences = {{"Bore", "Bore", "4.0", "4.125"},
                            {"Metric Mode", "Metric Mode", "No", "Yes"},
                            {"Cubicin Option", "Cubicin Option", "0", "2"},
                            {"IntakeFlow 1", "IntakeFlow", "0.1 68.0", "0.1 70.0"},
                            {"RPM", "RPM", "-", "6500"}};
  comparison.notesDiffer = true;
  const auto placeOf = [](const KeyDifference& difference) {
    if (difference.key == "Bore") return KeyPlace{"Engine", "Bore", "in"};
    KeyPlace place;
    place.isOption = difference.key == "Cubicin Option";
    return place;
  };
  const std::string report = ComparisonReport(comparison, "as it is", "a.prm", placeOf, kMark);
  // 0.125 of 4 is 3.125 percent.
  EXPECT_THAT(report, HasSubstr("Engine^\r\n"));
  EXPECT_THAT(report, HasSubstr("\r\n  Bore                                    in      "
                                "            4.0          4.125     +3.13 %\r\n"));
  EXPECT_THAT(report, HasSubstr("Options and Texts^\r\n"));
  EXPECT_THAT(report, HasSubstr("The notes differ.\r\n5 keys differ."));
  // A choice is none of the numbers, and a table's rows are.
  const auto options = report.find("Options and Texts");
  for (const char* number : {"  RPM ", "  IntakeFlow 1 "}) EXPECT_LT(report.find(number), options);
  for (const char* option : {"  Metric Mode ", "  Cubicin Option "}) {
    EXPECT_LT(options, report.find(option)) << option;
  }
}

}  // namespace
}  // namespace veldox
