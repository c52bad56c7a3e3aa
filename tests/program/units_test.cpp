// Screens in inches and in millimetres side by side: one block of values, and files, that hold
// what they say.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class UnitsTest : public testing::Test {
 protected:
  UnitsTest() {
    host_.folder = folder_.path();
    program_.Start();
  }

  ParameterBlock& block() { return program_.context().block; }
  void Menu(std::string_view item) { program_.shell().Choose(*Shell::FindMenuItem(item)); }
  template <class T>
  T& Find(const char* name) {
    return dynamic_cast<T&>(*program_.shell().FindControl(name));
  }
  void Set(const char* field, const char* text) { Find<Field>(field).Edit(text); }
  std::string Text(const char* field) { return Find<Field>(field).text(); }
  void Click(const char* command) { Find<Command>(command).Click(); }
  void Tick(const char* box) { EXPECT_TRUE(Find<CheckBox>(box).Click()); }
  void Quit(const char* screen) { program_.shell().FindScreen(screen)->Quit(); }
  std::string WriteFile() {
    host_.AnswerFile(folder_ / "out.prm");
    host_.Answer(Button::OK);
    Menu("Write");
    std::ifstream file(folder_ / "out.prm");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
  void ReadFile(const std::string& text) {
    std::ofstream(folder_ / "in.prm") << text;
    block().DataChanged = 0;
    host_.AnswerFile(folder_ / "in.prm");
    host_.Answer(Button::OK);
    Menu("Read");
  }
  static std::string Line(const std::string& file, const std::string& key) {
    const auto at = file.find("\n" + key + " =");
    return at == std::string::npos ? "" : file.substr(at + 1, file.find('\r', at) - at - 1);
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(UnitsTest, AThirdScreenGetsInchesWhateverRanLast) {
  Menu("CubicInch");
  Set("Form1.Text10", ".016");
  Set("Form1.Text27", "500");
  Click("Form1.Command1");
  Tick("Form1.Check1");
  EXPECT_EQ(block().Bore, 4 * 25.4);
  Menu("CompGauge");
  Click("Form12.Command18");
  EXPECT_EQ(block().Bore, 4);
  Menu("CompRatio");
  EXPECT_EQ(Text("Form1CR.Text10"), "0.016");
  EXPECT_EQ(Text("Form1CR.Text27"), "500.0");
}

TEST_F(UnitsTest, AMetricScreenReopensWithWhatItShowed) {
  Menu("CompRatio");
  Set("Form1CR.Text10", ".016");
  Set("Form1CR.Text27", "500");
  Tick("Form1CR.Check1");
  EXPECT_EQ(Text("Form1CR.Text10"), "0.4064");
  Menu("CompGauge");
  Click("Form12.Command18");
  Menu("CompRatio");
  EXPECT_EQ(Text("Form1CR.Text10"), "0.4064");
  EXPECT_EQ(Text("Form1CR.Text27"), "372.8505");
  Tick("Form1CR.Check1");
  EXPECT_EQ(Text("Form1CR.Text10"), ".016");
}

TEST_F(UnitsTest, AFileShowsAtOnceOnEveryOpenScreenInItsUnits) {
  Menu("CubicInch");
  Menu("CompRatio");
  Tick("Form1CR.Check1");
  ReadFile(
      "Bore = 4.5\nNumber of Cylinders = 6\nDeck Clearance = 0.02\nHorse Power Increase = 7\n");
  EXPECT_EQ(Text("Form1.Text1"), "4.5");
  EXPECT_EQ(Text("Form1.Text2"), "6");
  EXPECT_EQ(Text("Form1.Text10"), "0.02");
  EXPECT_EQ(Text("Form1.Text28"), "7.0");
  EXPECT_EQ(Text("Form1CR.Text1"), "114.3");
  EXPECT_EQ(Text("Form1CR.Text10"), "0.508");
  EXPECT_EQ(Text("Form12.Text1"), "4.000");  // closed: its opener shows it
  Click("Form1.Command1");
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(block().NumberofCylinders, 6);
  Click("Form1CR.Command12");
  EXPECT_NEAR(block().Bore, 4.5 * 25.4, 1e-12);
}

TEST_F(UnitsTest, AfterClearAFileShowsNothingAndLosesNothing) {
  Menu("CubicInch");
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  Menu("Clear");
  ReadFile("Bore = 4.5\nBlock Deck Height = 9.1\nNew Compression Ratio = 12.5\n");
  EXPECT_EQ(Text("Form1.Text1"), "");
  EXPECT_EQ(Text("Form1.Text8"), "");
  EXPECT_EQ(Text("Form1CR.Text29"), "");
  const std::string written = WriteFile();
  EXPECT_EQ(Line(written, "Bore"), "Bore = 4.5");
  EXPECT_EQ(Line(written, "Block Deck Height"), "Block Deck Height = 9.1");
  EXPECT_EQ(Line(written, "New Compression Ratio"), "New Compression Ratio = 12.5");
}

TEST_F(UnitsTest, WeatherIsConvertedOnce) {
  Menu("CompGauge");
  const std::string inHg = Text("Form12.Text30");
  const std::string fahrenheit = Text("Form12.Text31");
  Tick("Form12.Check1");
  const std::string mbar = Text("Form12.Text30");
  Menu("CubicInch");
  Click("Form1.Command1");
  EXPECT_EQ(block().Temperature, 59);
  Menu("CompGauge");
  EXPECT_EQ(Text("Form12.Text30"), mbar);
  EXPECT_EQ(Text("Form12.Text31"), "15.0");
  Tick("Form12.Check1");
  EXPECT_EQ(Text("Form12.Text31"), fahrenheit);
  EXPECT_NEAR(block().BarometricPressure, 29.92, 1e-4) << inHg;
}

TEST_F(UnitsTest, TheWeatherScreensValuesStayInUsUnitsBesideAnotherMetricScreen) {
  Menu("CubicInch");
  Tick("Form1.Check1");
  Set("Form1.Text27", "74.5701");
  Click("Form1.Command1");
  Menu("WEATHER");
  EXPECT_EQ(Text("Form7.Text15"), "100.0");
  Set("Form7.Text11", "86");
  Tick("Form7.Check1");
  EXPECT_EQ(Text("Form7.Text15"), "74.5701");
  EXPECT_EQ(Text("Form7.Text11"), "30.0");
  EXPECT_EQ(Text("Form7.Text10"), "1013.207");
  Set("Form7.Text15", "149.1402");
  Set("Form7.Text3", "15");
  Click("Form7.Command1");
  EXPECT_DOUBLE_EQ(block().HorsePower, 200);
  EXPECT_EQ(block().BarometricPressure, 29.92);
  EXPECT_EQ(block().Temperature, 86);
  // 200 x 546 / 519 - 200, in kilowatts 7.758738...
  EXPECT_NEAR(block().HorsePowerIncrease, 10.404624, 1e-6);
  EXPECT_EQ(Text("Form7.Text18"), "7.758739");
  Menu("CubicInch");
  EXPECT_EQ(Text("Form1.Text27"), "149.1402");
  Click("Form1.Command1");
  EXPECT_NEAR(block().HorsePower, 149.1402, 1e-9);
  Menu("WEATHER");
  EXPECT_DOUBLE_EQ(block().HorsePower, 200);
  EXPECT_EQ(Text("Form7.Text15"), "149.1402");
}

TEST_F(UnitsTest, TheWeatherScreenPointsAtTheFieldAtFault) {
  Menu("WEATHER");
  Set("Form7.Text21", "0.09");
  host_.Answer(Button::OK);
  Click("Form7.Command12");
  EXPECT_EQ(Find<Field>("Form7.Text21").mark(), Mark::Error);
  EXPECT_EQ(Find<Field>("Form7.Text21").screen().focus(), &Find<Field>("Form7.Text21"));
  Set("Form7.Text21", "0.01");
  Set("Form7.Text10", "12");
  host_.Answer(Button::OK);
  Click("Form7.Command12");
  EXPECT_EQ(Find<Field>("Form7.Text21").mark(), Mark::None);
  EXPECT_EQ(Find<Field>("Form7.Text19").mark(), Mark::Error);
  EXPECT_FALSE(Find<ReportBox>("Form7.Text43").showsReport());
}

TEST_F(UnitsTest, DeckHeightSurvivesTwoMetricScreens) {
  Menu("CubicInch");
  Click("Form1.Command1");
  const double deckHeight = block().BlockDeckHeight;
  Quit("Form1");
  Menu("Metric");
  Menu("CubicInch");
  Click("Form1.Command1");
  Menu("CompRatio");
  EXPECT_NEAR(block().BlockDeckHeight, deckHeight * 25.4, 1e-3);
  Click("Form1CR.Command10");
  EXPECT_NEAR(block().BlockDeckHeight, deckHeight * 25.4, 1e-3);
  Quit("Form1");
  Quit("Form1CR");
  EXPECT_NEAR(block().BlockDeckHeight, deckHeight, 1e-5);
}

TEST_F(UnitsTest, DeckHeightSurvivesACommandInInchesWhileTheOtherShowsMillimetres) {
  Menu("CubicInch");
  Click("Form1.Command1");
  Quit("Form1");
  Menu("CompRatio");
  Tick("Form1CR.Check1");
  Menu("CubicInch");
  Click("Form1.Command1");
  const double deckHeight = block().BlockDeckHeight;
  Quit("Form1CR");
  EXPECT_DOUBLE_EQ(block().BlockDeckHeight, deckHeight);
}

TEST_F(UnitsTest, AFileReadWhileAScreenShowsMillimetresReachesTheNextScreen) {
  Menu("CubicInch");
  Tick("Form1.Check1");
  ReadFile("Bore = 4.5\nStroke = 3.5\nBlock Deck Height = 9.1\nBore Increase = 0.03\n");
  EXPECT_EQ(block().Bore, 4.5);
  // What shows at once shows in the screen's units.
  EXPECT_EQ(Text("Form1.Text8"), "231.14");
  EXPECT_EQ(Text("Form1.Text26"), "0.762");
  Menu("CompRatio");
  EXPECT_EQ(Text("Form1CR.Text1"), "4.5");
  EXPECT_EQ(Text("Form1CR.Text3"), "3.5");
  Menu("CubicInch");
  EXPECT_EQ(Text("Form1.Text1"), "114.3");
  Tick("Form1.Check1");
  EXPECT_EQ(Text("Form1.Text1"), "4.5");
  EXPECT_EQ(Text("Form1.Text8"), "9.1");
}

TEST_F(UnitsTest, FilesHoldInchesWhateverTheScreensShow) {
  Menu("CubicInch");
  Click("Form1.Command1");
  Menu("CompRatio");
  Click("Form1CR.Command10");
  const std::string inches = WriteFile();
  Tick("Form1CR.Check1");
  Tick("Form1.Check1");
  const std::string metric = WriteFile();
  for (const char* key :
       {"Bore", "Stroke", "Rod Length", "Block Deck Height", "Head Gasket", "Head Gasket Bore",
        "Dish Bore", "Journal Diameter", "Cubic Inches", "Horse Power", "Piston Travel"}) {
    EXPECT_NE(Line(inches, key), "") << key;
    EXPECT_EQ(Line(metric, key), Line(inches, key));
  }
}

TEST_F(UnitsTest, FieldsThatStandForAValueAreWrittenInInches) {
  // No command has read the journal's diameter yet: the file takes it from the field.
  Menu("CubicInch");
  Tick("Form1.Check1");
  block().JournalDiameter = 0;
  program_.context().HandOver(nullptr);
  block().JournalDiameter = 0;
  EXPECT_EQ(Text("Form1.Text33"), "63.5");
  EXPECT_EQ(Line(WriteFile(), "Journal Diameter"), "Journal Diameter = 2.5");
}

TEST_F(UnitsTest, ValuesTooLargeForTheOtherUnitsEndNothing) {
  Menu("CubicInch");
  Tick("Form1.Check1");
  ReadFile("Bore = 1e308\n");
  Menu("CubicInch");
  EXPECT_TRUE(std::isfinite(block().Bore));
  Menu("CompRatio");
  EXPECT_EQ(block().Bore, 1e308) << "what nobody has changed comes back";
  Menu("CubicInch");
  Set("Form1.Text1", "101.6");
  Set("Form1.Text27", "1.7e308");
  Click("Form1.Command22");
  Menu("CompRatio");
  EXPECT_DOUBLE_EQ(block().Bore, 4);
  EXPECT_TRUE(std::isfinite(block().HorsePower));
  // The screen that holds it can put it right.
  Set("Form1.Text27", "74.5701");
  Click("Form1.Command22");
  Menu("CompRatio");
  EXPECT_DOUBLE_EQ(block().HorsePower, 100);
}

TEST_F(UnitsTest, OpeningAScreenKeepsItsMarks) {
  Menu("Chevy_SB");
  Find<ComboList>("Form21.Combo1").Choose(9);
  Menu("CubicInch");
  EXPECT_EQ(Find<Field>("Form1.Text1").mark(), Mark::Changed);
  EXPECT_EQ(Find<Field>("Form1.Text6").mark(), Mark::Changed);
}

TEST_F(UnitsTest, BlankScreensTakeTooLargeNumbersToo) {
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  Menu("Clear");
  Menu("CubicInch");
  Set("Form1.Text1", "1e308");
  Menu("Metric");
  Menu("CubicInch");
  EXPECT_EQ(Text("Form1.Text1"), "1e308");
  EXPECT_TRUE(Find<CheckBox>("Form1.Check1").on());
}

TEST_F(UnitsTest, WhatATickWorksOutAnewReachesOtherScreensInInches) {
  Menu("CubicInch");
  Set("Form1.Text1", "4.5");
  Set("Form1.Text33", "3");
  Tick("Form1.Check1");
  EXPECT_EQ(Text("Form1.Text6"), "6776.249");
  Menu("GRAPHER");
  EXPECT_EQ(block().Bore, 4.5);
  EXPECT_EQ(block().JournalDiameter, 3);
  // 4.5 x 4.5 / 4 x pi x 3.25 x 8
  EXPECT_NEAR(block().CubicInches, 413.512134, 1e-6);
  EXPECT_NEAR(block().PistonArea, 15.904313, 1e-6);
  Menu("CubicInch");
  EXPECT_EQ(Text("Form1.Text6"), "6776.249");
}

TEST_F(UnitsTest, AFieldWithoutANumberIsLeftAloneButItsValueIsNot) {
  Menu("CubicInch");
  Click("Form1.Command26");
  Tick("Form1.Check1");
  EXPECT_EQ(block().JournalDiameter, 63.5);
  Set("Form1.Text33", "");
  Tick("Form1.Check1");
  EXPECT_EQ(block().JournalDiameter, 2.5);
  EXPECT_EQ(Text("Form1.Text33"), "");
}

TEST_F(UnitsTest, AFailedTickLeavesNoMarks) {
  Menu("CubicInch");
  Set("Form1.Text1", "1e200");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Find<CheckBox>("Form1.Check1").Click());
  EXPECT_EQ(Text("Form1.Text1"), "1e200");
  EXPECT_EQ(Find<Field>("Form1.Text3").mark(), Mark::None);
  EXPECT_EQ(Find<Field>("Form1.Text4").mark(), Mark::None);
}

TEST_F(UnitsTest, AnEnginePickKeepsWhatAFileOrAnotherScreenHasSet) {
  ReadFile("Horse Power = 628.161\nRPM = 7200\nDeck Clearance = 0.01\n");
  Menu("Chevy_SB");
  auto& list = Find<ComboList>("Form21.Combo1");
  list.Choose(9);
  EXPECT_EQ(list.chosenText(), "350 | 4.00 3.48 5.7 8");
  EXPECT_EQ(block().HorsePower, 628.161);
  EXPECT_EQ(block().RPM, 7200);
  EXPECT_NEAR(block().DeckClearance, 0.01, 1e-12);
  Menu("CubicInch");
  Menu("CompRatio");
  Set("Form1CR.Text27", "500");
  Click("Form1CR.Command10");
  Quit("Form1");
  list.Choose(10);
  EXPECT_EQ(block().HorsePower, 500);
}

TEST_F(UnitsTest, AFieldTooLargeToConvertDoesNotStopAFile) {
  Menu("CubicInch");
  Tick("Form1.Check1");
  Set("Form1.Text5", "0");
  Click("Form1.Command1");
  Set("Form1.Text13", "1e308");
  EXPECT_NE(Line(WriteFile(), "Bore"), "");
}

TEST_F(UnitsTest, FieldsThatNoOpenerFillsKeepTheirTextsAndShowAFileAtOnce) {
  Menu("CompGauge");
  Click("Form12.Command18");
  Set("Form12.Text10", "30");
  Find<ComboList>("Form12.Combo1").Choose(10);
  Quit("Form12");
  Menu("CompGauge");
  EXPECT_EQ(Text("Form12.Text10"), "30");
  EXPECT_EQ(Find<ComboList>("Form12.Combo1").chosenText(), "1.48");
  ReadFile("Crank Angle CG = 25\nBase Exponent = 1.35\n");
  EXPECT_EQ(Text("Form12.Text10"), "25.0");
  EXPECT_EQ(Find<ComboList>("Form12.Combo1").chosenText(), "1.35");
  ReadFile("Crank Angle CG = 0\nBase Exponent = 0.0\n");
  EXPECT_EQ(Text("Form12.Text10"), "25.0");
  EXPECT_EQ(Find<ComboList>("Form12.Combo1").chosenText(), "1.35");
}

}  // namespace
}  // namespace veldox
