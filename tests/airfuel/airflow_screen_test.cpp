#include "airfuel/airflow_screen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <memory>
#include <numbers>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/field_copy.h"
#include "core/report.h"
#include "graph/grapher_screen.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class AirflowScreen : public testing::Test {
 protected:
  AirflowScreen() {
    context_->rules.BuildMessages();
    form_.SetVisible(true);
  }

  void Set(Field& field, const char* text) { field.Edit(text); }
  /// Clicks as a mouse does: the focus goes to the command first.
  bool Click(Command& command) {
    return command.Reachable() && form_.MoveFocus(&command) && command.Click();
  }
  void OpenInjectors() { EXPECT_TRUE(Click(form_.Command37)); }
  /// A warning is expected; returns what it said.
  std::string WarnedBy(int index) {
    host_.Answer(Button::OK);
    Click(injectors_.CommandF3[index]);
    return host_.messages.empty() ? std::string{} : host_.messages.back().text;
  }

  TestHost host_;
  std::unique_ptr<ProgramContext> context_ = std::make_unique<ProgramContext>(host_);
  Form8 grapher_{*context_};
  CamFiles camFiles_{*context_};
  Form4 form_{*context_, grapher_, camFiles_};
  AirflowPage& page_ = form_.Page;
  InjectorPanel& injectors_ = form_.Injectors;
  ParameterBlock& block_ = context_->block;
};

TEST_F(AirflowScreen, OpensWithTheSharedValues) {
  block_.CubicInches = 302;
  block_.RPM = 7250;
  block_.HorsePower = 410;
  block_.BlowerPressure = 6.5;
  block_.NumberofCylinders = 6;
  block_.PeakTorqueRPM = 5200;
  block_.PortDiameter = 1.9;
  block_.Temperature = 77;
  block_.BarometricPressure = 29.5;
  block_.CompressionRatio = 10.25;
  block_.VolumetricEfficiency = 0.93;
  block_.BSFC = 0.44;
  form_.CopyShared();
  EXPECT_EQ(page_.Text1.text(), "302.0");
  EXPECT_EQ(page_.Text2.text(), "7250");
  EXPECT_EQ(page_.Text3.text(), "410.0");
  EXPECT_EQ(page_.Text4.text(), "6.5");
  EXPECT_EQ(page_.Text29.text(), "6");
  EXPECT_EQ(page_.Text32.text(), "5200");
  EXPECT_EQ(page_.Text33.text(), "1.9");
  EXPECT_EQ(page_.Text71.text(), "77.0");
  EXPECT_EQ(page_.Text79.text(), "29.5");
  EXPECT_EQ(page_.Text84.text(), "10.25");
  EXPECT_EQ(page_.Text11.text(), "0.93");
  EXPECT_EQ(page_.Text10.text(), ".5");
}

TEST_F(AirflowScreen, TakesUpToOneAndAHalfForLambda) {
  Set(page_.Text30, "1.5");
  page_.ReadAirFuelValue();
  EXPECT_DOUBLE_EQ(block_.AirFuelRatio, 22.05);
  Set(page_.Text30, "1.51");
  page_.ReadAirFuelValue();
  EXPECT_DOUBLE_EQ(block_.AirFuelRatio, 1.51);
  form_.Fuel.Option7.Choose(3);
  Set(page_.Text30, ".75");
  page_.ReadAirFuelValue();
  EXPECT_DOUBLE_EQ(block_.AirFuelRatio, .75 * 6.4);
}

TEST_F(AirflowScreen, ShowsTheMixtureInTheOtherMeasure) {
  EXPECT_EQ(page_.Mixture.caption(), "Lambda of Gasoline");
  EXPECT_EQ(page_.Mixture.text(), "0.85");
  Set(page_.Text30, "0.9");
  EXPECT_EQ(page_.Mixture.caption(), "Air Fuel Ratio of Gasoline");
  EXPECT_EQ(page_.Mixture.text(), "13.23");
  form_.Fuel.Option7.Choose(1);
  EXPECT_EQ(page_.Mixture.caption(), "Air Fuel Ratio of E85");
  EXPECT_EQ(page_.Mixture.text(), "8.793");
  EXPECT_EQ(injectors_.Mixture.text(), "8.793");
  EXPECT_EQ(form_.Fuel.Stoichiometric.text(), "9.77");
  for (const char* nothing : {"", ".", "1e999", "-1e308"}) {
    Set(page_.Text30, nothing);
    EXPECT_EQ(page_.Mixture.text(), "") << nothing;
  }
}

TEST_F(AirflowScreen, WorksOutHorsepowerFromTheDigitsOfTheFuelFlow) {
  Set(page_.Text1, "526.4");
  Set(page_.Text2, "8650");
  Set(page_.Text4, "42");
  Set(page_.Text11, "1.21");
  Set(page_.Text30, "4.48");
  Set(page_.Text10, "1.35");
  EXPECT_TRUE(Click(page_.Command54));
  // Beyond 1000 lb/hr the field has three decimals.
  ASSERT_EQ(page_.Text69.text().size(), 8U);
  const double fuel = ParseNumber(page_.Text69.text(), DecimalMark::Point);
  EXPECT_GT(fuel, 1000);
  EXPECT_NE(fuel, block_.MassAirFlow / 4.48);
  EXPECT_EQ(block_.HorsePower, std::round(fuel / 1.35 * 100) / 100);
}

TEST_F(AirflowScreen, ConvertsOnlyTheOldDepressionAndFlow) {
  Set(page_.Text15, "28");
  Set(page_.Text16, "28");
  Set(page_.Text17, "100");
  EXPECT_TRUE(Click(page_.Command1));
  EXPECT_EQ(page_.Text18.text(), "100.000");
  page_.Option3.Choose(1);
  EXPECT_TRUE(Click(page_.Command1));
  // 100 x 25.4 ^ 0.5
  EXPECT_EQ(page_.Text18.text(), "503.984");
  EXPECT_EQ(page_.Text15.text(), "28");
  EXPECT_DOUBLE_EQ(block_.OldDepression, 28 / 25.4);
  page_.Option3.Choose(0);
  page_.Option4.Choose(1);
  Set(page_.Text17, ".1");
  EXPECT_TRUE(Click(page_.Command1));
  // 0.1 m3/s is 211.888 CFM
  EXPECT_EQ(page_.Text18.text(), "211.888");
}

TEST_F(AirflowScreen, SolvesBackWhatItSolved) {
  for (const char* horsepower : {"88.5", "555", "2750"}) {
    for (auto [flow, power] : {std::pair{&page_.Command6, &page_.Command17},
                               std::pair{&page_.Command15, &page_.Command18},
                               std::pair{&page_.Command16, &page_.Command19}}) {
      Set(page_.Text3, horsepower);
      EXPECT_TRUE(Click(*flow));
      EXPECT_TRUE(Click(*power));
      const double wanted = ParseNumber(horsepower, DecimalMark::Point);
      EXPECT_NEAR(block_.HorsePower / wanted, 1, 2e-6);
    }
  }
  EXPECT_TRUE(Click(page_.Command54));
  Set(page_.Text11, "1");
  EXPECT_TRUE(Click(page_.Command82));
  EXPECT_NEAR(block_.VolumetricEfficiency, .85, .85 * 2e-6);
  Set(page_.Text2, "1000");
  EXPECT_TRUE(Click(page_.Command88));
  EXPECT_EQ(page_.Text2.text(), "6500");
}

TEST_F(AirflowScreen, ReadsEveryListedFieldAlsoWhereItIsOverwritten) {
  host_.Answer(Button::OK);
  page_.Text3.SetText("");
  EXPECT_FALSE(page_.Command17.Click());
  EXPECT_TRUE(host_.messages.back().text.starts_with("\"Horsepower\" is empty."));
  page_.Text3.SetText("1");
  page_.Text20.SetText("");
  EXPECT_TRUE(page_.Command17.Click());
}

TEST_F(AirflowScreen, LetsNoClickThroughWhileAFieldIsEmpty) {
  page_.Text1.Focus();
  Set(page_.Text1, "");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(page_.Command8));
  EXPECT_EQ(host_.messages.back().text,
            "Note: This field can not be blank.\r\nNothing has been done for \"Carb Size\".");
  EXPECT_EQ(host_.messages.back().icon, Icon::Warning);
  EXPECT_EQ(form_.focus(), &page_.Text1);
  Set(page_.Text1, "0");
  EXPECT_TRUE(Click(page_.Command8));
  Set(page_.Text1, "");
  page_.Text1.Focus();
  EXPECT_TRUE(Click(form_.subend));
  EXPECT_FALSE(form_.visible());
}

TEST_F(AirflowScreen, LeavesResultsUnchecked) {
  for (Field* result :
       {&page_.Text5, &page_.Text86, &page_.Text39, &page_.Text18, &page_.Text36, &page_.Text37,
        &page_.Text80, &page_.Text69, &injectors_.Text28, &injectors_.Text31, &injectors_.Text40,
        &injectors_.Text125, &injectors_.Text7Grams, &injectors_.Text7Ccs}) {
    EXPECT_EQ(result->leaveCheck(), LeaveCheck::None) << result->name();
    EXPECT_EQ(result->rule(), KeyRule::OutputOnly) << result->name();
  }
  for (Field* entry :
       {&page_.Text2, &page_.Text27, &page_.Text29, &page_.Text32, &injectors_.Text14}) {
    EXPECT_EQ(entry->rule(), KeyRule::Digits) << entry->name();
    EXPECT_EQ(entry->leaveCheck(), LeaveCheck::HasDigits) << entry->name();
  }
  EXPECT_EQ(page_.Text71.rule(), KeyRule::SignedReal);
}

TEST_F(AirflowScreen, PrintsWideReportsSmall) {
  const auto sizeOf = [&](Command& command, int option) {
    page_.Option8.Choose(option);
    EXPECT_TRUE(command.Click());
    const int size = form_.Text78.fontSize();
    form_.Text78.CloseReport();
    return size;
  };
  for (const int option : {0, 1, 4}) {
    EXPECT_EQ(sizeOf(page_.Command36, option), 10);
    EXPECT_EQ(sizeOf(page_.Command38, option), 8);
    EXPECT_EQ(sizeOf(page_.Command42, option), 8);
    EXPECT_EQ(sizeOf(page_.Command123, option), 10);
  }
  for (const int option : {2, 3, 5}) {
    EXPECT_EQ(sizeOf(page_.Command36, option), 10);
    EXPECT_EQ(sizeOf(page_.Command38, option), 10);
    EXPECT_EQ(sizeOf(page_.Command42, option), 10);
  }
}

TEST_F(AirflowScreen, TellsTheMixtureBesideAReport) {
  Set(page_.Text30, ".9");
  EXPECT_TRUE(Click(page_.Command38));
  EXPECT_NE(form_.Text78.report().find("Air / Fuel Ratio = 0.90000^"), std::string::npos);
  EXPECT_EQ(form_.Text78.sentence(),
            "Gasoline, air fuel ratio 13.23, lambda 0.9. The middle column, under \\|/, holds the "
            "value entered.");
  form_.Text78.CloseReport();
  EXPECT_TRUE(Click(page_.Command123));
  EXPECT_NE(form_.Text78.report().find("    Air / Fuel Ratio = 13.23 "), std::string::npos);
}

TEST_F(AirflowScreen, NamesTheSpeedThatAReportCannotBeginAt) {
  Set(page_.Text2, "1200");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(page_.Command123));
  EXPECT_EQ(page_.Text2.mark(), Mark::Error);
  EXPECT_FALSE(form_.Text78.showsReport());
}

TEST_F(AirflowScreen, KeepsPanelsThatAreNotThereShut) {
  for (Command* command :
       {&form_.Command35, &form_.Command39, &form_.Command43, &form_.Command48, &form_.Command55,
        &form_.Command50, &form_.Command80, &form_.Command69}) {
    EXPECT_EQ(command->isBuilt(), command->enabled()) << command->name();
  }
}

TEST_F(AirflowScreen, EveryPanelHasADone) {
  for (Panel* panel : form_.panels()) {
    ASSERT_NE(panel->closingCommand(), nullptr) << panel->name();
    EXPECT_TRUE(panel->closingCommand()->name().starts_with("Command91(") ||
                panel->closingCommand()->PlainCaption() == "Done")
        << panel->name();
  }
}

// ---------------------------------------------------------------- the injector panel

TEST_F(AirflowScreen, WarnsOfADutyAboveNinetyFivePercentOnly) {
  OpenInjectors();
  Set(page_.Text2, "6000");
  Set(injectors_.Text41, "19");
  EXPECT_TRUE(Click(injectors_.CommandF3[7]));
  EXPECT_EQ(injectors_.Text12.text(), "0.95");
  Set(injectors_.Text41, "19.000002");
  EXPECT_EQ(WarnedBy(7), "Warning! Duty Cycle is Greater Than 95%");
  EXPECT_EQ(host_.messages.back().icon, Icon::Warning);
  EXPECT_EQ(host_.messages.back().title, "VELDOX-Math-Formula-Calculator");
  EXPECT_GT(block_.DutyCycle, .95);

  Set(injectors_.Text8, "45");
  Set(injectors_.Text9, "45");
  Set(injectors_.Text12, ".95");
  EXPECT_TRUE(Click(injectors_.CommandF3[2]));
  EXPECT_EQ(injectors_.Text125.text(), "0.95");
  EXPECT_EQ(injectors_.Text13.text(), "18.0");
  // The text is judged, which is .95 still.
  Set(injectors_.Text12, ".9500001");
  EXPECT_TRUE(Click(injectors_.CommandF3[2]));
  EXPECT_EQ(injectors_.Text125.text(), "0.95");
  Set(injectors_.Text12, ".950001");
  EXPECT_EQ(WarnedBy(2), "Warning! Duty Cycle is Greater Than 95%");
}

TEST_F(AirflowScreen, WarnsOfAPulseAsLongAsTheCycle) {
  OpenInjectors();
  Set(page_.Text2, "6000");
  Set(injectors_.Text12, "1");
  EXPECT_EQ(WarnedBy(6), "Warning! Pulse Width is to Great for Entered RPM");
  EXPECT_EQ(injectors_.Text41.text(), "20.0");
  // At 8000 the pulse is the last digit short of the cycle.
  Set(page_.Text2, "8000");
  EXPECT_TRUE(Click(injectors_.CommandF3[6]));
  EXPECT_EQ(injectors_.Text41.text(), "15.0");
}

TEST_F(AirflowScreen, WarnsOfThePulseBeforeTheDuty) {
  OpenInjectors();
  Set(page_.Text2, "6000");
  Set(injectors_.Text41, "30");
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  EXPECT_TRUE(Click(injectors_.CommandF3[7]));
  ASSERT_EQ(host_.messages.size(), 2U);
  EXPECT_EQ(host_.messages[0].text, "Warning! Pulse Width is to Great for Entered RPM");
  EXPECT_EQ(host_.messages[1].text, "Warning! Duty Cycle is Greater Than 95%");
  EXPECT_EQ(injectors_.Text12.text(), "1.5");
}

TEST_F(AirflowScreen, SizesInjectorsByTheUsualRule) {
  OpenInjectors();
  Set(page_.Text3, "500");
  Set(page_.Text10, ".50");
  Set(injectors_.Text12, ".80");
  EXPECT_TRUE(Click(injectors_.CommandF3[0]));
  EXPECT_EQ(injectors_.Text6.text(), "39.0625");
  EXPECT_EQ(injectors_.StandardRating.text(), "42");
  // 39.0625 x 8 / 6.2 x .8
  EXPECT_EQ(injectors_.Text28.text(), "40.32258");
  // 39.0625 x 453.59237 / 60 and x 10.51
  EXPECT_EQ(injectors_.Text7Grams.text(), "295.308");
  EXPECT_EQ(injectors_.Text7Ccs.text(), "410.547");
  Set(injectors_.Text9, "43.5");
  EXPECT_TRUE(Click(injectors_.CommandF3[1]));
  EXPECT_EQ(page_.Text3.text(), "500.0");
}

TEST_F(AirflowScreen, SizesInjectorsForAnEngineByDutyAndByPulse) {
  OpenInjectors();
  Set(page_.Text4, "0");
  EXPECT_TRUE(Click(injectors_.CommandF3[8]));
  const double byDuty = block_.LbsHour;
  EXPECT_TRUE(Click(injectors_.CommandF3[9]));
  EXPECT_NEAR(block_.LbsHour / byDuty, 1, 2e-6);
  EXPECT_TRUE(Click(injectors_.CommandF3[4]));
  EXPECT_NEAR(block_.FuelFlow / (byDuty * .85 * 8), 1, 2e-6);
  // Dead time takes from the pulse, and leaves the duty cycle as it was entered.
  Set(injectors_.Text82, "1.5");
  EXPECT_TRUE(Click(injectors_.CommandF3[9]));
  EXPECT_NEAR(block_.LbsHour / byDuty, 15.6923 / (15.6923 - 1.5), 1e-5);
  EXPECT_EQ(injectors_.Text12.text(), ".85");
  EXPECT_EQ(block_.DutyCycle, .85);
}

TEST_F(AirflowScreen, ShowsThePagesValuesInThePanel) {
  OpenInjectors();
  EXPECT_EQ(&injectors_.Horsepower.of(), &page_.Text3);
  EXPECT_EQ(injectors_.Horsepower.caption(), "Horsepower");
  EXPECT_TRUE(Click(injectors_.CommandF3[1]));
  EXPECT_EQ(injectors_.Horsepower.text(), page_.Text3.text());
  EXPECT_EQ(injectors_.Horsepower.mark(), Mark::Changed);
  EXPECT_TRUE(Click(injectors_.CommandF3[5]));
  EXPECT_EQ(injectors_.Horsepower.mark(), Mark::None);
}

TEST_F(AirflowScreen, MarksAFaultOfThePageInThePanelAndLeavesTheKeyboardThere) {
  Set(page_.Text10, "0");
  OpenInjectors();
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(injectors_.CommandF3[1]));
  EXPECT_EQ(page_.Text10.mark(), Mark::Error);
  EXPECT_EQ(injectors_.Bsfc.mark(), Mark::Error);
  EXPECT_EQ(form_.focus(), &injectors_.CommandF3[1]);
  // A field of the page that cannot be reached does not hold the panel.
  page_.Text10.SetText("");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(injectors_.CommandF3[1]));
  EXPECT_TRUE(Click(injectors_.CommandF3[6]));
  EXPECT_TRUE(Click(injectors_.Command91));
  EXPECT_EQ(form_.topPanel(), nullptr);
}

TEST_F(AirflowScreen, RefusesDeadTimeByItsName) {
  OpenInjectors();
  Set(injectors_.Text41, "10");
  for (const char* dead : {"10", "12.5"}) {
    Set(injectors_.Text82, dead);
    EXPECT_EQ(WarnedBy(9),
              "\"Injector Dead Time in Milliseconds\" must be less than the pulse width, or the "
              "injectors never open.");
  }
  EXPECT_EQ(injectors_.Text6.text(), "18.0");
  EXPECT_EQ(injectors_.Text82.mark(), Mark::Error);
}

TEST_F(AirflowScreen, AFieldInTwoPlacesIsOne) {
  FieldTwin& twin = form_.Mach.Rpm;
  EXPECT_EQ(twin.text(), page_.Text2.text());
  Set(twin, "7100");
  EXPECT_EQ(page_.Text2.text(), "7100");
  Set(page_.Text2, "6900");
  EXPECT_EQ(twin.text(), "6900");
  EXPECT_EQ(twin.rule(), page_.Text2.rule());
  EXPECT_EQ(twin.leaveCheck(), page_.Text2.leaveCheck());
  page_.Text2.SetMark(Mark::Error);
  EXPECT_EQ(twin.mark(), Mark::Error);
}

TEST_F(AirflowScreen, FlowTablesArePastedByColumns) {
  Click(form_.Command35);
  FlowPanel& flow = form_.Flow;
  flow.IntakeTable.Paste({0, 0}, ".15\t72\r\n.25\t131.5\r\n");
  EXPECT_EQ(flow.Text48[0].text(), ".15");
  EXPECT_EQ(flow.Text49[1].text(), "131.5");
  EXPECT_EQ(flow.Text48[2].text(), ".300");
  flow.ExhaustTable.Paste({0, 1}, "50\n90\n120\n");
  EXPECT_EQ(flow.Text49Exhaust[2].text(), "120");
  EXPECT_EQ(flow.Text49[2].text(), "229");
}

TEST_F(AirflowScreen, HeadsOfTheFlowTablesFollowTheFigures) {
  Click(form_.Command35);
  FlowPanel& flow = form_.Flow;
  EXPECT_EQ(flow.IntakeTable.Head(2), "Velocity @ Throat");
  flow.Option2.Choose(4);
  EXPECT_TRUE(Click(flow.Command33));
  EXPECT_EQ(flow.IntakeTable.Head(2), "CFM per Sq In @ Throat");
  EXPECT_EQ(flow.ExhaustTable.Head(3), "CFM per Sq In @ Valve");
}

TEST_F(AirflowScreen, AStemThatIsPickedGoesIntoItsField) {
  ValvePanel& valves = form_.Valves;
  Click(form_.Command50);
  EXPECT_EQ(valves.Combo1.chosenText(), ".3415");
  valves.Combo1.Pick(3);
  EXPECT_EQ(valves.Text43.text(), ".2756");
  Set(valves.Text43, "0.311");
  EXPECT_EQ(valves.Combo1.chosenText(), ".3110");
  Set(valves.Text43, ".3");
  EXPECT_EQ(valves.Combo1.chosen(), -1);
  valves.Combo1.Pick(3);
  EXPECT_EQ(valves.Text43.text(), ".2756");
}

// ---------------------------------------------------------------- port time area

/// A lobe that rises and falls by .04 inches every 10 crank degrees, up to .4 over 200 degrees.
LiftFile StraightLobe(double unit = 1) {
  LiftFile file;
  file.step = 10;
  for (LiftSide* side : {&file.intake, &file.exhaust}) {
    side->step = 10;
    for (int i = 0; i <= 20; ++i) side->lifts.push_back(.04 * (i <= 10 ? i : 20 - i) * unit);
  }
  file.intakeLash = .05;
  file.exhaustLash = .05;
  return file;
}

TEST_F(AirflowScreen, TimeAreaTellsWhichCamIsLoaded) {
  TimeAreaPanel& panel = form_.TimeArea;
  EXPECT_TRUE(Click(form_.Command48));
  EXPECT_EQ(panel.CamNotes.text().substr(0, 18), "No cam is loaded: ");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(panel.Command71));
  EXPECT_FALSE(form_.Text78.showsReport());
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  panel.Command53.Click();
  EXPECT_TRUE(Click(form_.Command48));
  EXPECT_EQ(panel.CamNotes.text().substr(0, 12), "straight.cmm");
  EXPECT_TRUE(Click(panel.Command71));
  EXPECT_TRUE(form_.Text78.showsReport());
  EXPECT_EQ(form_.Text78.fontSize(), 8);
}

TEST_F(AirflowScreen, TimeAreaShowsTheLashesOfTheCamScreen) {
  TimeAreaPanel& panel = form_.TimeArea;
  block_.IntakeLash = .018;
  block_.ExhaustLash = .02;
  block_.RockerArmRatio = 1.65;
  form_.CopyShared();
  EXPECT_EQ(panel.Text88.text(), "0.018");
  EXPECT_EQ(panel.Text91.text(), "0.02");
  EXPECT_EQ(panel.Text92.text(), "1.65");
  form_.TakeLashes(.0125, std::nullopt);
  EXPECT_EQ(panel.Text88.text(), "0.0125");
  EXPECT_EQ(panel.Text91.text(), "0.02");
  EXPECT_TRUE(Click(form_.Command48));
  EXPECT_TRUE(panel.Metric.Click());
  form_.TakeLashes(std::nullopt, .02);
  EXPECT_EQ(panel.Text91.text(), "0.508");
}

TEST_F(AirflowScreen, SetLiftTableTakesTheDurationsOfTheCam) {
  TimeAreaPanel& panel = form_.TimeArea;
  FlowPanel& flow = form_.Flow;
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text92, "1.5");
  Set(panel.Text88, ".06");
  Set(flow.Text48[2], ".24");
  EXPECT_TRUE(Click(panel.Command87));
  // The flow begins at .1: the row of no lift stands before it. The valve leaves its seat behind
  // .04 at the lobe, the record at 10 degrees, whose part of a degree is straight.
  EXPECT_EQ(panel.Text95[0].text(), "0.0");
  EXPECT_NEAR(block_.IntakeLiftTable[0].Flow, 180, 1e-9);
  // .24 at the valve is .2 at the lobe, from 50 to 150 degrees; .1 is .10667, from 26.667.
  EXPECT_EQ(panel.Text95[3].text(), "0.24");
  EXPECT_NEAR(block_.IntakeLiftTable[3].Flow, 100, 1e-9);
  EXPECT_NEAR(block_.IntakeLiftTable[1].Flow, 200 - 2 * (.16 / 1.5) * 250, 1e-9);
  // The lobe has .54 for the valve: .55 is not reached.
  EXPECT_EQ(panel.Text95[6].text(), "0.55");
  EXPECT_EQ(panel.Text96[6].text(), "0.0");
  EXPECT_TRUE(panel.IntakeTable.IsDimmed(6));
  EXPECT_FALSE(panel.IntakeTable.IsDimmed(3));
}

TEST_F(AirflowScreen, LiftTablesStayAsTheyAreWithoutALobe) {
  TimeAreaPanel& panel = form_.TimeArea;
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text95[3], ".21");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(panel.Command87));
  EXPECT_EQ(host_.messages.back().text.substr(0, 17), "No cam is loaded.");
  EXPECT_EQ(panel.Text95[3].text(), ".21");
  EXPECT_EQ(panel.Text96[3].text(), "208");
  EXPECT_EQ(panel.Text95Exhaust[1].text(), ".050");
  // A file of the intake alone.
  LiftFile file = StraightLobe();
  file.exhaust.lifts.clear();
  camFiles_.StoreTables(file, "intake.cmm", false);
  EXPECT_TRUE(Click(panel.Command87));
  EXPECT_NE(panel.Text95[3].text(), ".21");
  EXPECT_EQ(panel.Text95Exhaust[1].text(), ".050");
  EXPECT_EQ(panel.Text96Exhaust[1].text(), "270");
  EXPECT_EQ(form_.Text78.text(),
            "The lift file has no exhaust: its lift table is as it was. The intake's is that of "
            "the cam.");
}

TEST_F(AirflowScreen, LiftTablesTellTheCamThatFilledThem) {
  TimeAreaPanel& panel = form_.TimeArea;
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  const auto source = [&] {
    EXPECT_TRUE(Click(panel.Command52));
    const std::string report = form_.Text78.report();
    form_.Text78.CloseReport();
    const std::size_t from = report.find("From the Lift Table");
    return report.substr(from, report.find("\r\n", from) - from);
  };
  EXPECT_EQ(source(), "From the Lift Table   Intake = As Entered   Exhaust = As Entered");
  EXPECT_TRUE(Click(panel.Command87));
  EXPECT_EQ(source(), "From the Lift Table   Intake = straight.cmm   Exhaust = straight.cmm");
  // Neither millimetres nor another cam that is loaded change what the table is of.
  EXPECT_TRUE(panel.Metric.Click());
  camFiles_.StoreTables(StraightLobe(), "other.cmm", false);
  EXPECT_EQ(source(), "From the Lift Table   Intake = straight.cmm   Exhaust = straight.cmm");
  EXPECT_TRUE(panel.Metric.Click());
  Set(panel.Text96Exhaust[1], "143");
  EXPECT_EQ(source(), "From the Lift Table   Intake = straight.cmm   Exhaust = As Entered");
}

TEST_F(AirflowScreen, LobesAreToldWholeWhateverTheLashIs) {
  TimeAreaPanel& panel = form_.TimeArea;
  // .36 sin^2(180 x / 300), every 2 crank degrees.
  LiftFile file;
  file.step = 2;
  for (LiftSide* side : {&file.intake, &file.exhaust}) {
    side->step = 2;
    for (int i = 0; i <= 150; ++i) {
      side->lifts.push_back(.36 * std::pow(std::sin(std::numbers::pi * i / 150), 2));
    }
  }
  camFiles_.StoreTables(file, "sine.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  for (const char* lash : {"0", ".012", ".024", ".036"}) {
    Set(panel.Text88, lash);
    EXPECT_TRUE(Click(panel.Command111));
    std::string report = form_.Text78.report();
    form_.Text78.CloseReport();
    report =
        report.substr(report.find("CAM      "), report.find("E  X  H") - report.find("CAM   "));
    std::vector<std::string> durations;
    std::vector<std::string> middles;
    std::istringstream lines(report.substr(report.find('\n') + 1));
    for (std::string line; std::getline(lines, line) && line.find("Minor") == std::string::npos;) {
      std::istringstream words(line);
      const std::vector<std::string> row{std::istream_iterator<std::string>(words), {}};
      ASSERT_EQ(row.size(), 6U) << line;
      durations.push_back(row[3]);
      middles.push_back(row[5]);
    }
    // 300 (1 - 2 asin(sqrt(lift / .36)) / 180): 275.27 for .006, 254.59, 227.08, 193.23 and 133.65
    // for the others; 268.02 for .010.
    ASSERT_EQ(durations.size(), 5U) << lash;
    EXPECT_EQ(durations[0], "275.3") << lash;
    EXPECT_EQ(durations[1], "254.6") << lash;
    EXPECT_EQ(durations[2], "227.1") << lash;
    for (const std::string& middle : middles) EXPECT_EQ(middle, middles[0]) << lash;
    EXPECT_NE(report.find("Minor Intensity 40.9 "), std::string::npos) << report;
    EXPECT_NE(report.find("Major Intensity 27.5 "), std::string::npos) << report;
  }
}

TEST_F(AirflowScreen, LiftsOfAReportTellTheirDegrees) {
  TimeAreaPanel& panel = form_.TimeArea;
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  const auto has = [&](const char* text) {
    EXPECT_TRUE(Click(panel.Command111));
    const std::string report = form_.Text78.report();
    form_.Text78.CloseReport();
    return report.find(text) != std::string::npos;
  };
  EXPECT_TRUE(has("Lift File = Every 10.0 Crank Degrees\r\n"));
  EXPECT_TRUE(panel.CamDegrees.Click());
  EXPECT_TRUE(has("Lift File = Every 20.0 Crank Degrees, 10.0 Cam Degrees\r\n"));
}

TEST_F(AirflowScreen, SingleColumnsHaveTheDegreesOfTheirConvertedFile) {
  TimeAreaPanel& panel = form_.TimeArea;
  LiftFile columns;
  columns.format = LiftFormat::S96;
  columns.step = 2;
  for (LiftSide* side : {&columns.intake, &columns.exhaust}) {
    *side = ParseS96("0.1\n0.2\n0.3\n0.2\n0.1\n", "a.s96", DecimalMark::Point).side;
  }
  camFiles_.StoreTables(columns, "a.s96", false);
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text88, "0");
  const std::string inMemory = panel.CamNotes.text();
  EXPECT_NE(inMemory.find("every 2.0 crank degrees"), std::string::npos) << inMemory;
  const auto written = ParseLiftFile(
      "every x degrees = 2\nintake\n0.0\n0.1\n0.2\n0.3\n0.2\n0.1\nexhaust\n0.0\n0.1\n0.2\n"
      "0.3\n0.2\n0.1\n",
      "a.s96", DecimalMark::Point);
  camFiles_.StoreTables(*written, "a.s96", false);
  panel.ShowCam();
  EXPECT_EQ(panel.CamNotes.text(), inMemory);
}

TEST_F(AirflowScreen, LiftTablesInMillimetersGiveTheSameReport) {
  TimeAreaPanel& panel = form_.TimeArea;
  EXPECT_TRUE(Click(form_.Command48));
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  EXPECT_TRUE(Click(panel.Command71));
  const std::string inches = form_.Text78.report();
  form_.Text78.CloseReport();
  LiftFile metric = StraightLobe(25.4);
  camFiles_.StoreTables(metric, "straight.cmm", true);
  EXPECT_TRUE(Click(panel.Command71));
  EXPECT_EQ(form_.Text78.report(), inches);
}

TEST_F(AirflowScreen, CamDoctorFilesAreInCamDegreesAndBeginAnywhere) {
  TimeAreaPanel& panel = form_.TimeArea;
  LiftFile file = StraightLobe();
  file.format = LiftFormat::CamDoctor;
  for (LiftSide* side : {&file.intake, &file.exhaust}) {
    side->step = 2;
    side->lifts.insert(side->lifts.begin(), 5, 0.0);
    // The count is one more than the index of the closing zero.
    side->lifts.push_back(0);
  }
  camFiles_.StoreTables(file, "tester.c1", false);
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text88, "0");
  Set(panel.Text85, "30");
  const auto has = [&](const char* text) {
    return panel.CamNotes.text().find(text) != std::string::npos;
  };
  // 20 steps of 4 crank degrees.
  EXPECT_TRUE(has("Intake: every 4.0 crank degrees\r\n  Open 30.0 BTDC, close -130.0 ABDC"))
      << panel.CamNotes.text();
  EXPECT_TRUE(panel.Skip.Click());
  EXPECT_TRUE(has("Open 10.0 BTDC, close -110.0 ABDC")) << panel.CamNotes.text();
}

TEST_F(AirflowScreen, CamshaftsOfTheirOwnAreAdvancedAlone) {
  TimeAreaPanel& panel = form_.TimeArea;
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text88, "0");
  Set(panel.Text91, "0");
  Set(panel.Text85, "30");
  Set(panel.Text87, "70");
  Set(panel.Text74, "4");
  Set(panel.Text75, "-3");
  const auto has = [&](const char* text) {
    return panel.CamNotes.text().find(text) != std::string::npos;
  };
  EXPECT_TRUE(has("Open 34.0 BTDC"));
  EXPECT_TRUE(has("Open 74.0 BBDC"));
  EXPECT_TRUE(panel.Dohc.Click());
  EXPECT_TRUE(has("Open 34.0 BTDC"));
  EXPECT_TRUE(has("Open 67.0 BBDC"));
}

TEST_F(AirflowScreen, MetricChangesTheTimeAreaPanelAlone) {
  TimeAreaPanel& panel = form_.TimeArea;
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text88, ".02");
  EXPECT_TRUE(panel.Metric.Click());
  EXPECT_EQ(panel.Text88.text(), "0.508");
  EXPECT_EQ(panel.Text95[2].text(), "2.54");
  EXPECT_EQ(panel.Text68.text(), "1.27");
  EXPECT_EQ(form_.Flow.Text48[0].text(), ".100");
  EXPECT_EQ(form_.Valves.Text42.text(), "2.02");
  EXPECT_EQ(form_.Mach.Text52.text(), "4.000");
  EXPECT_EQ(block_.IntakeLash, .02);
  EXPECT_EQ(block_.Bore, 4);
  EXPECT_TRUE(panel.Metric.Click());
  EXPECT_EQ(panel.Text88.text(), ".02");
  EXPECT_EQ(panel.Text95[2].text(), ".100");
}

TEST_F(AirflowScreen, ACamBeyondAllNumbersSpoilsNoCommand) {
  TimeAreaPanel& panel = form_.TimeArea;
  camFiles_.StoreTables(StraightLobe(1e300), "huge.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  Set(panel.Text92, "1e20");
  Set(panel.Text93, "1e20");
  // The notes are made anew while the lashes are converted.
  EXPECT_TRUE(panel.Metric.Click());
  EXPECT_EQ(panel.Text68.text(), "1.27");
  host_.Answer(Button::OK);
  EXPECT_FALSE(Click(panel.Command111));
}

TEST_F(AirflowScreen, GraphsHaveTheMarksOfTheirOptions) {
  GraphPanel& graphs = form_.Graphs;
  FlowPanel& flow = form_.Flow;
  EXPECT_TRUE(Click(form_.Command69));
  EXPECT_TRUE(graphs.ShowDots.Click());
  EXPECT_TRUE(graphs.Circle.Click());
  Set(graphs.Text67, ".8");
  graphs.Command91.Click();
  EXPECT_TRUE(Click(form_.Command35));
  EXPECT_TRUE(flow.Command61[0].Click());
  const PlotEngine& plot = grapher_.plot();
  EXPECT_EQ(plot.XHigh, .8);
  EXPECT_EQ(plot.boxes().size(), kFlowRows);
  EXPECT_EQ(plot.circles().size(), kFlowRows);
  EXPECT_EQ(plot.series()[0].starts.size(), 1U);
  // Without lines and circles there are dots; a further curve has its own.
  graphs.ShowDots.SetOn(false);
  graphs.Circle.SetOn(false);
  graphs.Line.SetOn(false);
  EXPECT_TRUE(flow.Command61[0].Click());
  EXPECT_EQ(grapher_.plot().boxes().size(), kFlowRows);
  EXPECT_EQ(grapher_.plot().circles().size(), 0U);
  EXPECT_EQ(grapher_.plot().series()[0].starts.size(), kFlowRows);
  EXPECT_TRUE(flow.Command64.Click());
  EXPECT_EQ(grapher_.plot().boxes().size(), 2 * kFlowRows);
}

TEST_F(AirflowScreen, TimeAreaGraphsAreOfThePortsThatAreChosen) {
  TimeAreaPanel& panel = form_.TimeArea;
  camFiles_.StoreTables(StraightLobe(), "straight.cmm", false);
  EXPECT_TRUE(Click(form_.Command48));
  panel.Option6.Choose(1);
  EXPECT_TRUE(Click(panel.Command67));
  EXPECT_EQ(grapher_.plot().series().size(), 2U);
  form_.Graphs.Option5.Choose(2);
  EXPECT_TRUE(panel.Command67.Click());
  ASSERT_EQ(grapher_.plot().series().size(), 1U);
  EXPECT_LT(grapher_.plot().series()[0].points.front().x, -180);
  // A further curve stands on the same axes.
  const AxisRange axes = grapher_.plot().scale();
  panel.Option6.Choose(13);
  EXPECT_TRUE(panel.Command68.Click());
  EXPECT_EQ(grapher_.plot().series().size(), 2U);
  EXPECT_EQ(grapher_.plot().scale(), axes);
}

}  // namespace
}  // namespace veldox
