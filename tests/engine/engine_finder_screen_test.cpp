#include "engine/engine_finder_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class Form21Test : public testing::Test {
 protected:
  Form21Test() { host_.folder = folder_.path(); }
  void SetUp() override { program_.Start(); }

  Shell& shell() { return program_.shell(); }
  ParameterBlock& block() { return program_.context().block; }
  Form1& form1() { return static_cast<Form1&>(*shell().FindScreen("Form1")); }
  Form21& finder() { return static_cast<Form21&>(*shell().FindScreen("Form21")); }
  PickList& list() { return finder().Combo1; }
  void Choose(std::string_view item) { shell().Choose(*Shell::FindMenuItem(item)); }
  void Pick(const std::string& row) {
    const auto& rows = list().rows();
    const auto found = std::find(rows.begin(), rows.end(), row);
    ASSERT_NE(found, rows.end()) << row;
    list().Choose(static_cast<int>(found - rows.begin()));
  }
  /// Bore, stroke, rod length and cylinders as the displacement screen shows them.
  std::vector<std::string> Shown() {
    return {form1().Text1.text(), form1().Text3.text(), form1().Text4.text(), form1().Text2.text()};
  }
  void UserRows(const std::string& text) {
    std::ofstream(folder_ / "user_bsr.prm", std::ios::binary) << text;
    Choose("User_BSR");
  }
  void ExpectBox() { host_.Answer(Button::OK); }
  const std::string& LastBox() { return host_.messages.back().text; }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

TEST_F(Form21Test, EveryMenuEntryShowsItsMake) {
  std::size_t makes = 0;
  for (const MenuItem& item : Shell::Menu()) {
    if (item.kind != MenuKind::List || item.screen != "Form21" || item.name == "User_BSR") continue;
    Choose(item.name);
    EXPECT_TRUE(finder().visible());
    std::string make(item.name);
    std::replace(make.begin(), make.end(), '_', ' ');
    const auto group = std::find_if(EngineTable().begin(), EngineTable().end(),
                                    [&](const TableGroup& g) { return g.name == make; });
    ASSERT_NE(group, EngineTable().end()) << item.name;
    ASSERT_EQ(list().rows().size(), group->rows.size()) << item.name;
    for (std::size_t i = 0; i < group->rows.size(); ++i) {
      EXPECT_THAT(list().all()[i].text, HasSubstr(std::string(group->rows[i].name)));
    }
    ++makes;
    finder().Quit();
  }
  EXPECT_EQ(makes, EngineTable().size());
}

TEST_F(Form21Test, AllMakesStandUnderTheirNames) {
  Choose("Engine_Spec");
  EXPECT_EQ(list().count(), 1647);
  EXPECT_EQ(list().rows().front(), "      -- AMC - Jeep - Ramble --");
  std::set<std::string> makes;
  for (const PickRow& row : list().all()) {
    if (row.kind == PickRow::Kind::Group) {
      EXPECT_TRUE(makes.insert(row.text).second) << row.text;
    }
  }
  EXPECT_EQ(makes.size(), 38U);
  for (const char* make : {"BMW", "MotorCycle - BMW", "Chevy - SB", "Foreign - Other",
                           "MotorCycle - Other", "MotorCycle - Suzuki", "AirCraft"}) {
    EXPECT_EQ(makes.count(PickHeader(make)), 1U) << make;
  }
}

TEST_F(Form21Test, TheDisplacementScreenOpensAllMakes) {
  Choose("CubicInch");
  EXPECT_TRUE(form1().EngineFinder.Click());
  EXPECT_TRUE(finder().visible());
  EXPECT_EQ(list().count(), 1647);
}

TEST_F(Form21Test, APickFillsTheDisplacementScreenAndCalculates) {
  Choose("AMC");
  block().DataChanged = 0;
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_THAT(Shown(), ElementsAre("4.00000", "3.00", "6.05", "4"));
  // 2 x 2 x pi x 3 x 4 = 48 pi
  EXPECT_NEAR(block().CubicInches, 150.79644737, 1e-8);
  EXPECT_EQ(form1().Text6.text(), "150.7964");
  EXPECT_EQ(block().RodLength, 6.05);
  EXPECT_EQ(block().NumberofCylinders, 4);
  EXPECT_EQ(block().DataChanged, 1);
  EXPECT_EQ(form1().Text1.mark(), Mark::Changed);
  EXPECT_THAT(finder().Label1.caption(), HasSubstr("Engine Size 150.7964 cubic inches"));
  EXPECT_FALSE(form1().visible());
}

TEST_F(Form21Test, AnUnknownRodIsLiftedToHalfTheStrokeAndSaid) {
  Choose("Packard");
  Pick("I6-237 ci | 3.44 4.25 0.0 6");
  EXPECT_EQ(block().RodLength, 2.125);
  EXPECT_EQ(form1().Text4.text(), "2.12500");
  EXPECT_THAT(finder().Label1.caption(), EndsWith("please enter it there."));
}

TEST_F(Form21Test, HeadersSpacersAndNamesWithoutFiguresChangeNothing) {
  Choose("Chrysler_SB");
  const auto before = Shown();
  for (std::size_t i = 0; i < list().rows().size(); ++i) {
    if (list().rows()[i].find('|') == std::string::npos) list().Choose(static_cast<int>(i));
  }
  EXPECT_EQ(Shown(), before);
  EXPECT_EQ(list().chosenText(), "");
  EXPECT_EQ(block().CubicInches, ParameterBlock{}.CubicInches);
}

TEST_F(Form21Test, RowsWithoutFiguresSayWhy) {
  Choose("AMC");
  const PickRow& row = list().all().back();
  EXPECT_EQ(row.text, "499");
  EXPECT_EQ(row.note, "Values not verified - add your own row in user_bsr.prm");
}

TEST_F(Form21Test, AClosedDisplacementScreenPutsNoOldValuesBack) {
  Choose("CompRatio");
  Screen& compression = *shell().FindScreen("Form1CR");
  static_cast<Field&>(*compression.Find("Text10")).Edit("0.010");
  static_cast<Command&>(*compression.Find("Command1")).Click();
  ASSERT_EQ(block().DeckClearance, 0.010);
  Choose("AMC");
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_NEAR(block().DeckClearance, 0.010, 1e-12);
  EXPECT_EQ(form1().Text10.text(), "0.01");
}

TEST_F(Form21Test, APickGivesTheSameWhetherTheDisplacementScreenWasOpenedOrNot) {
  Choose("AMC");
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  // Half the stroke, the rod, 1.904 and no deck clearance.
  EXPECT_EQ(form1().Text8.text(), "9.454");
  EXPECT_EQ(block().HorsePower, ParameterBlock{}.HorsePower);
  EXPECT_EQ(block().CompressionRatio, ParameterBlock{}.CompressionRatio);
  Choose("CubicInch");
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_EQ(form1().Text8.text(), "9.454");
}

TEST_F(Form21Test, AnOpenDisplacementScreenKeepsWhatIsTypedInIt) {
  Choose("CubicInch");
  form1().Text5.Edit("4321");
  Choose("AMC");
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_EQ(block().RPM, 4321);
}

TEST_F(Form21Test, InchesAreWrittenAsTheyStandIntoMillimetresAndThatIsSaid) {
  Choose("CubicInch");
  form1().Check1.Click();
  Choose("AMC");
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_THAT(Shown(), ElementsAre("4.00000", "3.00", "6.05", "4"));
  EXPECT_THAT(finder().Label1.caption(), HasSubstr("these inches stand there as millimetres"));
}

TEST_F(Form21Test, AFieldThatCannotBeReadEndsThePickWithItsBox) {
  Choose("CubicInch");
  form1().Text8.Edit("high");
  Choose("AMC");
  ExpectBox();
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_THAT(LastBox(), StartsWith("\"Block Deck Height\" holds \"high\""));
  EXPECT_EQ(finder().Label1.caption(), list().help());
}

TEST_F(Form21Test, EachListRemembersItsPlace) {
  Choose("AMC");
  Pick("290 | 3.75 3.28 0.0 8");
  list().SetTop(17);
  Choose("Buick");
  EXPECT_EQ(list().chosenText(), "");
  list().Narrow("455");
  Choose("AMC");
  EXPECT_EQ(list().RowAt(list().current()).text, "290 | 3.75 3.28 0.0 8");
  EXPECT_EQ(list().chosenText(), "");
  EXPECT_EQ(list().place().top, 17);
  EXPECT_EQ(list().words(), "");
}

TEST_F(Form21Test, UserRowsStandAsTheyAreWritten) {
  UserRows("My engines\r\nBlue 355 | 4.030 3.48 5.7 8\r\n\r\nSingle | 3.5 3.0 5.0 1");
  EXPECT_THAT(list().rows(), ElementsAre("My engines", "Blue 355 | 4.030 3.48 5.7 8", "",
                                         "Single | 3.5 3.0 5.0 1"));
  EXPECT_EQ(list().all()[3].note, "Source: user_bsr.prm, line 4");
  Pick("Blue 355 | 4.030 3.48 5.7 8");
  EXPECT_THAT(Shown(), ElementsAre("4.03000", "3.48", "5.7", "8"));
  list().Choose(0);
  EXPECT_EQ(list().chosenText(), "Blue 355 | 4.030 3.48 5.7 8");
}

TEST_F(Form21Test, AMissingUserFileGivesTheBoxAndAnEmptyList) {
  Choose("AMC");
  ExpectBox();
  Choose("User_BSR");
  EXPECT_THAT(LastBox(), HasSubstr("user_bsr.prm\" could not be read"));
  EXPECT_THAT(list().rows(), IsEmpty());
  EXPECT_TRUE(finder().visible());
}

TEST_F(Form21Test, AnEmptyUserFileIsAnEmptyList) {
  UserRows("");
  EXPECT_THAT(list().rows(), IsEmpty());
  UserRows("\n");
  EXPECT_THAT(list().rows(), ElementsAre(""));
  EXPECT_EQ(list().count(), 0);
}

TEST_F(Form21Test, AShortUserRowLeavesTheLaterFieldsAsTheyWere) {
  UserRows("Short | 4.25 3.5\n");
  Pick("Short | 4.25 3.5");
  EXPECT_THAT(Shown(), ElementsAre("4.25000", "3.5", "5.7", "8"));
  EXPECT_THAT(finder().Label1.caption(), HasSubstr("does not know the Rod Length"));
}

TEST_F(Form21Test, MalformedUserRowsAreRefusedByNameAndChangeNothing) {
  UserRows(
      "a | abc 3.5 6 8\nb | 4 3.5x 6 8\nc | 4 3.5 6 8 cyl\nd |\ne | 0 3 6 8\nf | 4 3 -6 8\n"
      "g | 4 3 6 0\nh | 4,1 3 6 8\ni | 4 3 6 8.5\nj | 4 3 6 40000\nk | 1e300 3 6 8\n");
  const auto before = Shown();
  const std::vector<std::pair<std::string, std::string>> boxes{
      {"a | abc 3.5 6 8", "Bore of the row \"a | abc 3.5 6 8\" holds \"abc\""},
      {"b | 4 3.5x 6 8", "Stroke of the row"},
      {"c | 4 3.5 6 8 cyl", "Number of Cylinders of the row \"c | 4 3.5 6 8 cyl\" holds \"8 cyl\""},
      {"d |", "There are no figures behind the \"|\" of the row \"d |\"."},
      {"e | 0 3 6 8", "Bore of the row \"e | 0 3 6 8\" must be above 0."},
      {"f | 4 3 -6 8", "Rod Length of the row \"f | 4 3 -6 8\" must not be below 0."},
      {"g | 4 3 6 0", "Number of Cylinders of the row \"g | 4 3 6 0\" must be above 0."},
      {"h | 4,1 3 6 8", "Bore of the row \"h | 4,1 3 6 8\" holds \"4,1\", which is not a number."},
      {"i | 4 3 6 8.5", "Number of Cylinders of the row \"i | 4 3 6 8.5\" must be a whole number."},
      {"j | 4 3 6 40000", "Number of Cylinders of the row \"j | 4 3 6 40000\" is too large."},
      {"k | 1e300 3 6 8", "Bore of the row \"k | 1e300 3 6 8\" is too large."}};
  for (const auto& [row, box] : boxes) {
    ExpectBox();
    Pick(row);
    EXPECT_THAT(LastBox(), StartsWith(box));
    EXPECT_EQ(Shown(), before) << row;
  }
  EXPECT_EQ(host_.messages.size(), boxes.size());
}

TEST_F(Form21Test, AVeryLongUserRowIsTakenAndQuotedInPart) {
  const std::string name(60'000, 'x');
  UserRows(name + " | 4.5 3.5 6 8\n" + name + " | bore\n");
  Pick(name + " | 4.5 3.5 6 8");
  EXPECT_EQ(form1().Text1.text(), "4.50000");
  ExpectBox();
  Pick(name + " | bore");
  EXPECT_LT(LastBox().size(), 300U);
}

TEST_F(Form21Test, AUserRowBeyond64KbIsRefusedAndTheListStaysEmpty) {
  ExpectBox();
  UserRows("first | 4 3 6 8\n" + std::string(1'000'000, 'x') + " | 4 3 6 8\n");
  EXPECT_THAT(LastBox(), StartsWith("A line of the file is longer than 64 KB.\r\n"
                                    "File: user_bsr.prm   Record # 2\r\nData --> xxx"));
  EXPECT_LT(LastBox().size(), 500U);
  EXPECT_THAT(list().rows(), IsEmpty());
  EXPECT_TRUE(finder().visible());
}

TEST_F(Form21Test, ManyUserRowsAreTaken) {
  std::string rows;
  for (int i = 0; i < 20000; ++i) rows += "e" + std::to_string(i) + " | 4 3 6 8\n";
  UserRows(rows);
  EXPECT_EQ(list().count(), 20000);
  list().Narrow("e19999 4");
  EXPECT_EQ(list().shownCount(), 1);
}

class Form21CommaTest : public Form21Test {
 protected:
  void SetUp() override {
    host_.decimalMark = DecimalMark::Comma;
    ExpectBox();
    program_.Start();
  }
};

TEST_F(Form21CommaTest, TheFieldsGetTheSystemsDecimalMark) {
  Choose("AMC");
  Pick("I-151 (Pontiac) | 4.00 3.00 6.05 4");
  EXPECT_THAT(Shown(), ElementsAre("4,00000", "3,00", "6,05", "4"));
  EXPECT_EQ(form1().Text6.text(), "150,7964");
}

TEST_F(Form21CommaTest, UserRowsMayHaveEither) {
  UserRows("comma | 4,25 3,5 6,1 8\npoint | 4.125 3.25 6.2 8\n");
  Pick("comma | 4,25 3,5 6,1 8");
  EXPECT_THAT(Shown(), ElementsAre("4,25000", "3,5", "6,1", "8"));
  EXPECT_EQ(block().Bore, 4.25);
  Pick("point | 4.125 3.25 6.2 8");
  EXPECT_THAT(Shown(), ElementsAre("4,12500", "3,25", "6,2", "8"));
}

}  // namespace
}  // namespace veldox
