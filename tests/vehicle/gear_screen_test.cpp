#include "vehicle/gear_screen.h"

#include <gtest/gtest.h>

#include "program/program.h"
#include "tests/support/test_host.h"

namespace veldox {
namespace {

class GearScreenTest : public testing::Test {
 protected:
  void SetUp() override {
    program_.Start();
    program_.shell().Choose(*Shell::FindMenuItem("GEAR"));
  }

  Form5& gear() { return static_cast<Form5&>(*program_.shell().FindScreen("Form5")); }

  TestHost host_;
  Program program_{host_};
};

TEST_F(GearScreenTest, GearsThatTheGearboxLacksAreDimmed) {
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(gear().Gears.IsDimmed(i)) << i;
  for (int i = 5; i < kMostGears; ++i) EXPECT_TRUE(gear().Gears.IsDimmed(i)) << i;
  gear().Text2[5].SetText("0.72");
  gear().Text2[1].SetText("0");
  EXPECT_FALSE(gear().Gears.IsDimmed(5));
  EXPECT_TRUE(gear().Gears.IsDimmed(1));
  // What is no number is the user's to mend, and stays plain.
  gear().Text2[1].SetText("");
  EXPECT_FALSE(gear().Gears.IsDimmed(1));
}

TEST_F(GearScreenTest, GearsFollowWhatACommandMakesOfThem) {
  gear().Text75.SetText("80");
  EXPECT_TRUE(gear().Command24.Click());
  for (int i = 0; i < kMostGears; ++i) EXPECT_FALSE(gear().Gears.IsDimmed(i)) << i;
}

TEST_F(GearScreenTest, GearsWithoutTeethAreDimmed) {
  EXPECT_FALSE(gear().Teeth.IsDimmed(7));
  EXPECT_TRUE(gear().Teeth.IsDimmed(8));
  gear().Text11[8].SetText("28");
  EXPECT_TRUE(gear().Teeth.IsDimmed(8)) << "its other wheel has none yet";
  gear().Text12[8].SetText("18");
  EXPECT_FALSE(gear().Teeth.IsDimmed(8));
}

}  // namespace
}  // namespace veldox
