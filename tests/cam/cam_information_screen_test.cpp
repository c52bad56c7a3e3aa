#include "cam/cam_information_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "cam/cam_generator_screen.h"
#include "core/files.h"
#include "graph/grapher_screen.h"
#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;

/// Four records a side; a valve is open at three of the intake, ratio 1.5 and lash .024.
constexpr const char* kInches =
    "every x degrees = 10\nintake\n.01\n.05\n.12\n.05\n"
    "exhaust\n.02\n.1\n.08\n.02\n";

class Form2Test : public testing::Test {
 protected:
  Form2Test() { host_.folder = folder_.path(); }
  void SetUp() override {
    program_.Start();
    Choose("CAM_INFO");
  }

  void Choose(const char* item) { program_.shell().Choose(*Shell::FindMenuItem(item)); }
  template <class S>
  S& ScreenOf(const char* name) {
    return static_cast<S&>(*program_.shell().FindScreen(name));
  }
  Form2& screen() { return ScreenOf<Form2>("Form2"); }
  ParameterBlock& block() { return program_.context().block; }
  void Write(const std::string& name, const std::string& text) {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  /// Draws the first graph of a file.
  void GraphFile(const std::string& text) {
    Write("lobe.cmm", text);
    host_.AnswerFile(folder_ / "lobe.cmm");
    host_.Answer(Button::OK);
    ASSERT_TRUE(screen().Command11.Click());
  }
  /// The lifts of the curve that was drawn last.
  std::vector<double> Drawn() {
    std::vector<double> lifts;
    for (const GraphPoint& point : ScreenOf<Form8>("Form8").plot().series().back().points) {
      lifts.push_back(point.y);
    }
    return lifts;
  }

  TemporaryFolder folder_;
  TestHost host_;
  Program program_{host_};
};

// .05 * 1.5 - .024 = .051 and .12 * 1.5 - .024 = .156.
TEST_F(Form2Test, TheMetricBoxConvertsTheLiftsThatWereRead) {
  screen().Option2.Pick(1);
  GraphFile(kInches);
  EXPECT_THAT(Drawn(), ElementsAre(DoubleNear(0.051, 1e-12), DoubleNear(0.156, 1e-12),
                                   DoubleNear(0.051, 1e-12)));
  const ParameterBlock before = block();
  ASSERT_TRUE(screen().Check1.Click());
  ASSERT_TRUE(screen().Command12.Click());
  EXPECT_THAT(Drawn(), ElementsAre(DoubleNear(1.2954, 1e-9), DoubleNear(3.9624, 1e-9),
                                   DoubleNear(1.2954, 1e-9)));
  EXPECT_NEAR(block().IntakeCamLift[3], 3.048, 1e-12);
  EXPECT_NEAR(block().IntakeValveLift[3], 3.9624, 1e-12);
  EXPECT_NEAR(block().ExhaustCamLift[2], 2.54, 1e-12);
  EXPECT_NEAR(block().ExhaustValveLift[2], before.ExhaustValveLift[2] * 25.4, 1e-12);
  EXPECT_THAT(screen().LiftFigures.text(), HasSubstr("Peak lift 3.048 mm"));
  screen().Option1.Pick(1);
  screen().Option2.Pick(0);
  ASSERT_TRUE(screen().Command12.Click());
  EXPECT_NEAR(Drawn()[2], 2.54, 1e-12);
  ASSERT_TRUE(screen().Check1.Click());
  for (std::size_t i = 0; i < before.IntakeCamLift.size(); ++i) {
    ASSERT_NEAR(block().IntakeCamLift[i], before.IntakeCamLift[i], 1e-12);
    ASSERT_NEAR(block().IntakeValveLift[i], before.IntakeValveLift[i], 1e-12);
    ASSERT_NEAR(block().ExhaustCamLift[i], before.ExhaustCamLift[i], 1e-12);
    ASSERT_NEAR(block().ExhaustValveLift[i], before.ExhaustValveLift[i], 1e-12);
  }
}

TEST_F(Form2Test, AFileInMillimetresIsInInchesWithoutTheBox) {
  ASSERT_TRUE(screen().Check1.Click());
  GraphFile("every x degrees = 10\nintake\n2.54\n5.08\n2.54\n");
  EXPECT_EQ(block().IntakeCamLift[2], 5.08);
  screen().Quit();
  EXPECT_NEAR(block().IntakeCamLift[2], 0.2, 1e-12);
}

TEST_F(Form2Test, LiftsOfOthersAreInInchesUnderTheMetricBox) {
  ASSERT_TRUE(screen().Check1.Click());
  // A converted file is in the units that it was read in.
  Write("pro.c1", "cam pro plus\n.1,.2\n.3,.4\n");
  host_.AnswerFile(folder_ / "pro.c1");
  host_.AnswerFile(folder_ / "new.cmm");
  host_.Answer(Button::OK);  // records read
  host_.Answer(Button::OK);  // records written
  Choose("Cx_File");
  EXPECT_THAT(LoadFile(folder_ / "new.cmm"), HasSubstr("intake\r\n0.1\r\n0.3\r\n"));
  ASSERT_TRUE(screen().Command12.Click());
  EXPECT_NEAR(Drawn()[1], 7.62, 1e-12);
  // A lobe that was made here stands beside it.
  Choose("Cam_Gen");
  auto& generator = ScreenOf<Form33>("Form33");
  generator.Text58[24].SetText(".36");
  generator.Text59[0].SetText("300");
  host_.AnswerFile(folder_ / "lobe.cmm");
  ASSERT_TRUE(generator.Command2.Click());
  ASSERT_TRUE(generator.ExhaustTable.Click());
  screen().Option1.Pick(1);
  ASSERT_TRUE(screen().Command12.Click());
  EXPECT_NEAR(Drawn()[76], 9.144, 1e-12);
  screen().Quit();
  EXPECT_NEAR(block().IntakeCamLift[1], 0.3, 1e-12);
  EXPECT_NEAR(block().ExhaustCamLift[76], 0.36, 1e-12);
}

}  // namespace
}  // namespace veldox
