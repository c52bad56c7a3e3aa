#include "vehicle/acceleration_screen.h"

#include <gtest/gtest.h>

#include "core/dry_run.h"
#include "core/parameter_file.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class AccelerationScreenTest : public testing::Test {
 protected:
  void SetUp() override { program_.Start(); }

  void Open() { program_.shell().Choose(*Shell::FindMenuItem("ACCELERATION")); }
  Form13& screen() { return static_cast<Form13&>(*program_.shell().FindScreen("Form13")); }
  ParameterBlock& block() { return program_.context().block; }
  void ReadFile(const std::string& name) {
    program_.shell().parameterFile().ReadParameterFile(std::string(VELDOX_SOURCE_DIR) + '/' + name);
  }

  void ReadBytes(const std::string& bytes) {
    program_.shell().parameterFile().ReadBytes(bytes, "car.prm");
  }

  TestHost host_;
  Program program_{host_};
};

TEST_F(AccelerationScreenTest, OpensWithTheStartsValuesAndTheFieldsOwn) {
  Open();
  AccelerationPage& page = screen().Page;
  EXPECT_EQ(page.Text21.text(), "24.0");
  EXPECT_EQ(page.Text49.text(), "12.0");
  EXPECT_EQ(page.Text41.text(), "3.25");
  EXPECT_EQ(page.Text45.text(), "444.0");
  // Nobody has set these: 0 in the shared values leaves the field's text.
  EXPECT_EQ(page.Text67.text(), "1.00");
  EXPECT_EQ(page.Text69.text(), "5200");
  EXPECT_EQ(page.Text28.text(), "6.5");
  EXPECT_EQ(page.Text42.text(), "5.0");
  EXPECT_EQ(screen().Shifts.Text22[0].text(), "10000");
  EXPECT_EQ(screen().Shifts.Text2[4].text(), "0.87");
  EXPECT_EQ(screen().Shifts.Text2[5].text(), "0.0");
}

TEST_F(AccelerationScreenTest, ShiftsAreKeptByTheGearThatIsLeft) {
  Open();
  screen().Shifts.Text22[0].SetText("7100");
  screen().Shifts.Text52[16].SetText("0.4");
  screen().Shifts.ReadGearTables();
  EXPECT_EQ(block().ShiftRPM[1], 7100);
  EXPECT_EQ(block().ShiftTime[17], 0.4);
  const AccelerationInputs inputs = screen().Inputs.ReadRun();
  EXPECT_EQ(inputs.shiftRpm[0], 7100);
  EXPECT_EQ(inputs.shiftTime[16], 0.4);
}

TEST_F(AccelerationScreenTest, GearsAndShiftsBehindTheLastGearAreDimmed) {
  Open();
  EXPECT_FALSE(screen().Shifts.Gears.IsDimmed(4));
  EXPECT_TRUE(screen().Shifts.Gears.IsDimmed(5));
  // The last gear's shift RPM ends the run.
  EXPECT_FALSE(screen().Shifts.Shifts.IsDimmed(4));
  EXPECT_TRUE(screen().Shifts.Shifts.IsDimmed(5));
}

TEST_F(AccelerationScreenTest, TimedStagesFollowTheGearStages) {
  Open();
  screen().Stages.TimedText90[0].SetText("60");
  screen().Stages.TimedText94[6].SetText("9.5");
  EXPECT_EQ(screen().Find("Text90(7)"), &screen().Stages.TimedText90[0]);
  EXPECT_EQ(screen().Find("Text94(13)"), &screen().Stages.TimedText94[6]);
  EXPECT_TRUE(screen().Stages.Command9.Reachable() == false);
  screen().Stages.ReadStages();
  EXPECT_EQ(block().NitrousMS[7][0], 60);
  EXPECT_EQ(block().NitrousMS[13][4], 9.5);
  EXPECT_EQ(block().NitrousMS[0], (NitrousStage{1, 110, 1, 100, 1}));
  EXPECT_EQ(block().NitrousMS[1][0], 9);
}

TEST_F(AccelerationScreenTest, WhatNobodyHasSetIsWrittenFromItsField) {
  ParameterFile& file = program_.shell().parameterFile();
  const std::string text = file.Compose().bytes;
  for (const char* line :
       {"\r\nTire Rolling Resistance = 0.015\r\n", "\r\nTrack BP = 29.92126\r\n",
        "\r\nShift Torque = 2350\r\n", "\r\nThrottle Stop RPM = 4000\r\n",
        "\r\nLaunch RPM = 5200\r\n", "\r\nShift RPM 1-2 = 10000\r\n",
        "\r\nShift Time 17-18 = 0.05\r\n", "\r\nPower Loss 17 = 6.0\r\n",
        "\r\nNitrous MS = 1 110.0 1.0 100.0 1.0\r\n", "\r\nCoefficient of Mu = 5.0\r\n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line;
  }
}

TEST_F(AccelerationScreenTest, AChangedTorqueCurveAsksToBeSaved) {
  Open();
  block().DataChanged = 0;
  screen().Page.Text72.SetText("500");
  EXPECT_TRUE(screen().Page.Command8.Click());
  EXPECT_EQ(block().DataChanged, 1);
  // Torque first, by the old RPM: power at 5000 RPM is power at 5500 RPM times 1.1 squared.
  EXPECT_EQ(block().AccelRpm[0], 5500);
  EXPECT_NEAR(block().AccelTorque[0], 700 * 5500.0 / 5000, 1e-9);
  block().DataChanged = 0;
  screen().Page.Text67.SetText("1.25");
  EXPECT_TRUE(screen().Page.Command14.Click());
  EXPECT_EQ(block().DataChanged, 1);
  EXPECT_NEAR(block().AccelTorque[0], 700 * 5500.0 / 5000 / 1.25, 1e-9);
}

TEST_F(AccelerationScreenTest, FuelIsScaledWithTheCurveAndTheRestStays) {
  Open();
  ReadFile("samples/road_race_four.prm");
  screen().Page.Text72.SetText("-1000");
  EXPECT_TRUE(screen().Page.Command8.Click());
  EXPECT_EQ(block().AccelRpm[0], 2000);
  EXPECT_NEAR(block().AccelTorque[0], 121.5 * 2 / 3, 1e-9);
  EXPECT_NEAR(block().AccelFuel[0], 33.8 * 2 / 3, 1e-9);
  EXPECT_EQ(block().AccelBsfc[0], 0.487);
  EXPECT_EQ(block().AccelAirFuel[0], 13.1);
}

TEST_F(AccelerationScreenTest, APointAt0RpmStaysWhereItIs) {
  Open();
  block().AccelRpm[0] = 0;
  screen().Page.Text72.SetText("-1000");
  EXPECT_TRUE(screen().Page.Command8.Click());
  EXPECT_EQ(block().AccelRpm[0], 0);
  EXPECT_EQ(block().AccelTorque[0], 700);
  EXPECT_EQ(block().AccelRpm[1], 4500);
}

TEST_F(AccelerationScreenTest, TheTorquePanelFollowsTheTableUnlessItWasEdited) {
  Open();
  TorqueTablePanel& panel = screen().Torques;
  panel.Open();
  panel.TorqueText.Edit("3000 300\r\n4000 310");
  block().AccelTorque[0] = 701;
  panel.Follow();
  EXPECT_EQ(panel.TorqueText.text(), "3000 300\r\n4000 310") << "what was typed is not lost";
  EXPECT_TRUE(panel.ShowTorque.Click());
  EXPECT_NE(panel.TorqueText.text().find("701"), std::string::npos);
  block().AccelTorque[0] = 702;
  panel.Follow();
  EXPECT_NE(panel.TorqueText.text().find("702"), std::string::npos);
}

TEST_F(AccelerationScreenTest, TheTorquePanelShowsTheTableOfAFileThatIsRead) {
  Open();
  TorqueTablePanel& panel = screen().Torques;
  panel.Open();
  host_.Answer(Button::OK);  // of the records read
  program_.shell().OpenFile(std::string(VELDOX_SOURCE_DIR) + "/tests/scripts/cars/truck.prm");
  EXPECT_EQ(panel.TorquePeaks.caption(),
            "In use: 13 points from 1000 to 3400 RPM; most torque 865.0 lb-ft at 1800 RPM, most "
            "power 417.6 HP at 3000 RPM.");
}

TEST_F(AccelerationScreenTest, AStepHoldsTheTorqueTableAndItsText) {
  Open();
  History& history = program_.context().history;
  const TorqueTablePanel& panel = screen().Torques;
  const std::string before = panel.TorqueText.text();
  const std::string peaks = panel.TorquePeaks.caption();
  EXPECT_NE(before.find("     5000        700"), std::string::npos) << before;
  screen().Page.Text72.Edit("-500");
  EXPECT_TRUE(screen().Page.Command8.Click());
  const std::string after = panel.TorqueText.text();
  EXPECT_NE(after.find("     4500   630.0000"), std::string::npos) << after;
  ASSERT_EQ(history.done(), 2U);
  EXPECT_EQ(history.Told()[1],
            "Shift Torq Data: RPM and Torque of each point: 5000 700 to 4500 630.0000");
  // Looking at it is no step, and changes nothing that a later one would put back.
  EXPECT_TRUE(screen().TorqueTable.Click());
  EXPECT_EQ(history.done(), 2U);
  history.Undo();
  EXPECT_EQ(block().AccelRpm[0], 5000);
  EXPECT_EQ(panel.TorqueText.text(), before);
  EXPECT_EQ(panel.TorquePeaks.caption(), peaks);
  EXPECT_TRUE(screen().Torques.TakeTorque.Click()) << "the table that is shown is in use";
  EXPECT_EQ(block().AccelRpm[0], 5000);
  EXPECT_EQ(history.done(), 1U);
  history.Redo();
  EXPECT_EQ(block().AccelRpm[0], 4500);
  EXPECT_EQ(panel.TorqueText.text(), after);
}

TEST_F(AccelerationScreenTest, AStepThatReadsAFileHoldsTheTorqueText) {
  History& history = program_.context().history;
  const TorqueTablePanel& panel = screen().Torques;
  const std::string before = panel.TorqueText.text();
  host_.Answer(Button::OK);  // of the records read, with the screen closed
  program_.shell().OpenFile(std::string(VELDOX_SOURCE_DIR) + "/tests/scripts/cars/truck.prm");
  EXPECT_NE(panel.TorqueText.text().find("     1800        865"), std::string::npos);
  history.Undo();
  EXPECT_EQ(block().AccelRpm[0], 5000);
  EXPECT_EQ(panel.TorqueText.text(), before);
  history.Redo();
  EXPECT_NE(panel.TorqueText.text().find("     1800        865"), std::string::npos);
}

TEST_F(AccelerationScreenTest, APreviewTellsWhatBecomesOfTheTorqueTable) {
  Open();
  screen().Page.Text72.SetText("-500");
  screen().Page.Text67.SetText("1.25");
  Preview preview = PreviewOf(screen().Page.Command8);
  ASSERT_EQ(preview.changes.size(), 2U);
  EXPECT_EQ(preview.changes[0].control, &screen().Torques.TorqueText);
  const auto fits = [](const std::string& line) { return line.size() < 120; };
  EXPECT_EQ(TellPreview(preview, fits).substr(0, 58),
            "RPM and Torque of each point 5000 700 to 4500 630.0000, an");
  preview = PreviewOf(screen().Page.Command14);
  EXPECT_EQ(TellPreview(preview, fits).substr(0, 52),
            "RPM and Torque of each point 5000 700 to 5000 560.0,");
}

TEST_F(AccelerationScreenTest, TheTorquePanelIsEmptiedByClearAndPutBack) {
  Open();
  TorqueTablePanel& panel = screen().Torques;
  const std::string before = panel.TorqueText.text();
  host_.Answer(Button::OK);
  host_.Answer(Button::OK);
  program_.shell().Choose(*Shell::FindMenuItem("Clear"));
  EXPECT_EQ(panel.TorqueText.text(), "");
  EXPECT_TRUE(screen().TorqueTable.Click());
  EXPECT_EQ(panel.TorqueText.text(), "");
  program_.context().history.Undo();
  EXPECT_EQ(panel.TorqueText.text(), before);
}

TEST_F(AccelerationScreenTest, AZeroOfAFileIsShownWhereItIsANumberOfItsOwn) {
  ReadBytes("Dyno Temp = 0.0\r\nThrottle Stop RPM = 0\r\nLaunch RPM = 0\r\n");
  Open();
  EXPECT_EQ(screen().Dyno.Text85.text(), "0.0");
  EXPECT_EQ(screen().Page.Text79.text(), "0");
  EXPECT_EQ(screen().Page.Text69.text(), "5200");
  ReadBytes("Dyno Temp = 61.5\r\nThrottle Stop RPM = 3900\r\n");
  EXPECT_EQ(screen().Dyno.Text85.text(), "61.5");
  ReadBytes("Dyno Temp = 0.0\r\nThrottle Stop RPM = 0\r\n");
  EXPECT_EQ(screen().Dyno.Text85.text(), "0.0");
  EXPECT_EQ(screen().Page.Text79.text(), "0");
  const std::string text = program_.shell().parameterFile().Compose().bytes;
  EXPECT_NE(text.find("\r\nDyno Temp = 0.0\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\nThrottle Stop RPM = 0\r\n"), std::string::npos);
}

TEST_F(AccelerationScreenTest, NumbersBeyondAllCarsAreRefusedAtTheirFields) {
  Open();
  AccelerationPage& page = screen().Page;
  block().RoadMphRowCount = block().RoadRpmRowCount = 3;
  for (std::size_t i = 0; i < 3; ++i) {
    block().RoadMph[i] = 20 + 10 * static_cast<double>(i);
    block().RoadRpm[i] = 3000 + 500 * static_cast<double>(i);
    block().RoadMphTime[i] = block().RoadRpmTime[i] = static_cast<double>(i);
  }
  RoadCharts& roads = screen().Roads;
  struct Case {
    Command& command;
    std::vector<Field*> fields;
  };
  page.Check1.SetOn(true);
  const std::vector<Field*> drag{&page.Text64, &page.Text65, &page.Text73, &page.Text51};
  const std::vector<Field*> drive{&page.Text66,
                                  &page.Text37,
                                  &page.Text18,
                                  &page.Text21,
                                  &screen().Shifts.Text2[0],
                                  &screen().Shifts.Text32[0]};
  const Case cases[] = {
      {roads.Command26, drag},
      {roads.Command26, drive},
      {roads.Command27, drag},
      {roads.Command27, drive},
      {roads.Command29, drag},
      {roads.Command32, {&page.Text41, &page.Text21, &screen().Shifts.Text2[0]}},
      {page.Command17, drag},
      {page.Command17, {&page.Text1, &page.Text66, &page.Text28, &page.Text47, &page.Text67}},
      {page.Command8, {&page.Text72}}};
  for (const Case& tested : cases) {
    ASSERT_TRUE(tested.command.name() == "Command8" || tested.command.Run())
        << tested.command.name();
    for (Field* field : tested.fields) {
      SCOPED_TRACE(tested.command.name() + ' ' + field->name());
      const std::string before = field->text();
      field->SetText("1e300");
      host_.Answer(Button::OK);
      screen().Page.Open();
      EXPECT_FALSE(tested.command.Run());
      EXPECT_EQ(field->mark(), Mark::Error);
      field->SetText(before);
    }
  }
  page.Text41.SetText("-2");
  host_.Answer(Button::OK);
  EXPECT_FALSE(roads.Command32.Run());
  EXPECT_EQ(page.Text41.mark(), Mark::Error);
}

TEST_F(AccelerationScreenTest, ATableThatWasOnlyLookedAtKeepsAllItsDigits) {
  Open();
  block().AccelTorque[0] = 700.123456789;
  screen().Torques.Follow();
  EXPECT_TRUE(screen().TorqueTable.Click());
  EXPECT_TRUE(screen().Torques.TakeTorque.Click());
  EXPECT_EQ(block().AccelTorque[0], 700.123456789);
}

TEST_F(AccelerationScreenTest, AGearboxReachesTheClosedScreen) {
  Gearbox gearbox;
  gearbox.ratios = {2.8, 1.9};
  gearbox.isAutomatic = true;
  block().TGear.fill(0);
  block().TGear[0] = 2.8;
  block().TGear[1] = 1.9;
  screen().TakeGearbox(gearbox);
  EXPECT_EQ(screen().Shifts.Text2[0].text(), "2.8");
  EXPECT_EQ(screen().Shifts.Text2[2].text(), "0.0");
  EXPECT_TRUE(screen().Page.Check1.on());
  EXPECT_FALSE(screen().Page.Check2.on());
  Open();
  EXPECT_EQ(screen().Shifts.Text2[1].text(), "1.9");
}

TEST_F(AccelerationScreenTest, WhatIsTypedForASwitchedOffOptionIsWrittenAfterARun) {
  Open();
  block().PrimaryDrive = block().ConverterSlippage = block().ConverterStallSpeed = 1;
  block().TorqueMultiplier = block().ThrottleStopRPM = block().ThrottleStopTime = 1;
  block().CVTRPM = block().CVTPowerLoss = 1;
  block().NitrousMS[2] = {1, 1, 1, 1, 1};
  block().NitrousMS[7] = {1, 1, 1, 1, 1};
  AccelerationPage& page = screen().Page;
  page.Text62.SetText("1.37");
  page.Text41.SetText("9.5");
  page.Text30.SetText("2600");
  page.Text31.SetText("1.9");
  page.Text79.SetText("4321");
  page.Text80.SetText("0.7");
  page.Text77.SetText("8800");
  page.Text78.SetText("17");
  screen().Stages.Text91[2].SetText("77.5");
  screen().Stages.TimedText90[0].SetText("66.5");
  screen().Shifts.Text32[11].SetText("1.5");
  ASSERT_TRUE(screen().Command25.Click());
  const std::string text = program_.shell().parameterFile().Compose().bytes;
  for (const char* line :
       {"\r\nPrimary Drive = 1.37\r\n", "\r\nConverter Slippage = 9.5\r\n",
        "\r\nConverter Stall Speed = 2600\r\n", "\r\nTorque Multiplier = 1.9\r\n",
        "\r\nThrottle Stop RPM = 4321\r\n", "\r\nThrottle Stop Time = 0.7\r\n",
        "\r\nCVT RPM = 8800\r\n", "\r\nCVT Power Loss = 17\r\n", "\r\nTire Growth 11 = 1.5\r\n",
        "\r\nNitrous MS = 9 77.5 1.0 100.0 1.0\r\n",
        "\r\nNitrous MS = 66.5 0.0 100.0 0.0 0.0\r\n"}) {
    EXPECT_NE(text.find(line), std::string::npos) << line;
  }
  // Nor does a CVT's run lose what it does not need.
  screen().Shifts.Text22[0].SetText("7650");
  page.Text69.SetText("5450");
  ASSERT_TRUE(screen().Command13.Click());
  EXPECT_EQ(block().ShiftRPM[1], 7650);
  EXPECT_EQ(block().LaunchRPM, 5450);
}

TEST_F(AccelerationScreenTest, WhatStandsInASwitchedOffOptionStopsNoRun) {
  Open();
  AccelerationPage& page = screen().Page;
  for (Field* field :
       {&page.Text62, &page.Text41, &page.Text30, &page.Text31, &page.Text79, &page.Text80,
        &page.Text77, &page.Text78, &screen().Stages.Text93[0], &screen().Stages.TimedText94[3],
        &screen().Shifts.Text13[9], &screen().Shifts.Text52[9], &screen().Shifts.Text2[9]}) {
    field->SetText("none");
  }
  EXPECT_TRUE(screen().Command25.Click());
  page.Text77.SetText("9000");
  page.Text78.SetText("20");
  page.Text69.SetText("");
  screen().Shifts.Text2[0].SetText("");
  EXPECT_TRUE(screen().Command13.Click());
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(AccelerationScreenTest, AGearsOwnRatioIsCheckedBeforeItsPlace) {
  Open();
  for (const int gear : {0, 1}) {
    for (const char* ratio : {"-5", "1e-300", "1e300"}) {
      const std::string before = screen().Shifts.Text2[gear].text();
      screen().Shifts.Text2[gear].SetText(ratio);
      host_.Answer(Button::OK);
      EXPECT_FALSE(screen().Command25.Click());
      EXPECT_EQ(screen().Shifts.Text2[gear].mark(), Mark::Error) << gear << ' ' << ratio;
      screen().Shifts.Text2[gear].SetText(before);
    }
  }
}

/// A car's run as forces integrated in steps of 0.2 milliseconds give it, apart from the program.
struct IntegratedRun {
  const char* file;
  double et60;
  double et8;
  double et;
};

class CarRunTest : public AccelerationScreenTest,
                   public testing::WithParamInterface<IntegratedRun> {};

TEST_P(CarRunTest, AgreesWithItsForcesIntegratedInTime) {
  Open();
  ReadFile(GetParam().file);
  ASSERT_TRUE(screen().Command25.Click());
  EXPECT_NEAR(block().ET60 / GetParam().et60, 1, 2e-4);
  EXPECT_NEAR(block().ET8 / GetParam().et8, 1, 2e-4);
  EXPECT_NEAR(block().ET / GetParam().et, 1, 2e-4);
  EXPECT_EQ(block().VerticalCG, 21);
  EXPECT_EQ(block().WheelBase, 108);
  EXPECT_TRUE(screen().Text58.showsReport());
  EXPECT_EQ(screen().Text58.fontSize(), 9);
}

INSTANTIATE_TEST_SUITE_P(
    Cars, CarRunTest,
    testing::Values(IntegratedRun{"tests/scripts/cars/stock_car.prm", 1.99603, 8.21223, 12.82224},
                    IntegratedRun{"tests/scripts/cars/truck.prm", 1.86910, 9.10083, 14.43345},
                    IntegratedRun{"tests/scripts/cars/salt_flats.prm", 1.90617, 7.02307, 10.44012},
                    IntegratedRun{"samples/small_block_drag.prm", 1.35322, 5.88687, 9.19842},
                    IntegratedRun{"samples/motorcycle.prm", 1.65694, 6.21197, 9.44622},
                    IntegratedRun{"samples/road_race_four.prm", 1.74193, 7.25088, 11.34065}),
    [](const auto& tested) {
      const std::string file = tested.param.file;
      const auto from = file.rfind('/') + 1;
      return file.substr(from, file.rfind('.') - from);
    });

TEST_F(AccelerationScreenTest, AKartWithACvtAgreesWithConstantPowerIntegratedInTime) {
  Open();
  ReadFile("tests/scripts/cars/kart.prm");
  ASSERT_TRUE(screen().Command25.Click());
  EXPECT_NEAR(block().ET60 / 3.00708, 1, 2e-4);
  ASSERT_TRUE(screen().Command13.Click());
  EXPECT_NEAR(block().ET60 / 1.544248, 1, 2e-4);
  EXPECT_NEAR(block().ET8 / 7.886699, 1, 2e-4);
  EXPECT_NEAR(block().ET / 13.165109, 1, 2e-4);
}

}  // namespace
}  // namespace veldox
