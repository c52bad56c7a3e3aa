#include "core/screen_scaling.h"

#include <gtest/gtest.h>

namespace veldox {
namespace {

using Mode = ScreenScaling::Mode;

ScreenScaling On(int width, int height, double scale = 1) {
  ScreenScaling scaling;
  scaling.DetectScreenSize({width, height, 96, scale});
  return scaling;
}

TEST(ScreenScaling, IsOffBelow1020By700) {
  EXPECT_FALSE(On(1019, 768).detected());
  EXPECT_FALSE(On(1366, 699).detected());
  EXPECT_TRUE(On(1020, 700).detected());
  EXPECT_EQ(On(1020, 700).widthLimit(), 1000);
  EXPECT_EQ(On(1020, 700).heightLimit(), 700);
}

TEST(ScreenScaling, LimitsGrowBySteps) {
  // The width from 1050 on, the height from 850 on, by hundreds.
  EXPECT_EQ(On(1049, 800).widthLimit(), 1000);
  EXPECT_EQ(On(1050, 800).widthLimit(), 1000);
  EXPECT_EQ(On(1150, 800).widthLimit(), 1100);
  EXPECT_EQ(On(1366, 768).widthLimit(), 1300);
  EXPECT_EQ(On(1366, 768).heightLimit(), 700);
  EXPECT_EQ(On(1366, 849).heightLimit(), 700);
  EXPECT_EQ(On(1366, 850).heightLimit(), 800);
  EXPECT_EQ(On(1920, 1080).widthLimit(), 1800);
  EXPECT_EQ(On(1920, 1080).heightLimit(), 1000);
  EXPECT_EQ(On(9999, 9999).widthLimit(), 4500);
  EXPECT_EQ(On(9999, 9999).heightLimit(), 3000);
}

TEST(ScreenScaling, CountsPixelsOfTheWindowsWhereTheDesktopEnlarges) {
  EXPECT_EQ(On(2732, 1536, 2).widthLimit(), 1300);
  EXPECT_EQ(On(2732, 1536, 2).heightLimit(), 700);
  EXPECT_FALSE(On(1920, 1080, 2).detected());
}

TEST(ScreenScaling, FullGoesBeforeLargeAndASmallScreenBeforeBoth) {
  ParameterBlock block;
  EXPECT_EQ(On(1920, 1080).ModeOf(block), Mode::Off);
  block.LargeScreen = 1;
  EXPECT_EQ(On(1920, 1080).ModeOf(block), Mode::Large);
  block.FullScreen = 1;
  EXPECT_EQ(On(1920, 1080).ModeOf(block), Mode::Full);
  EXPECT_EQ(On(800, 600).ModeOf(block), Mode::Off);
}

TEST(ScreenScaling, LargeScalesLettersByTheHeight) {
  // 1800 / 1000 across, 1000 / 700 down.
  const ScaleFactors factors = On(1920, 1080).FactorsFor(Mode::Large, 1200, 650);
  EXPECT_DOUBLE_EQ(factors.width, 1.8);
  EXPECT_DOUBLE_EQ(factors.height, 1000.0 / 700);
  EXPECT_DOUBLE_EQ(factors.font, 1000.0 / 700);
}

TEST(ScreenScaling, FullKeepsLettersThatFitAndTakesStepsForOthers) {
  const ScreenScaling scaling = On(1920, 1080);
  const auto font = [&](double width, double height) {
    return scaling.FactorsFor(Mode::Full, width, height).font;
  };
  EXPECT_DOUBLE_EQ(font(1200, 690), 1000.0 / 700) << "1714 by 986 fit into 1800 by 1000";
  EXPECT_DOUBLE_EQ(font(1400, 690), 1.2) << "1680 by 828 do";
  EXPECT_DOUBLE_EQ(font(1600, 690), 1.1);
  EXPECT_DOUBLE_EQ(font(1700, 690), 1.05);
  EXPECT_DOUBLE_EQ(font(1799, 690), 1.0);
  EXPECT_DOUBLE_EQ(font(3000, 690), 1.0) << "what does not fit at all is scrolled";
}

TEST(ScreenScaling, ScalesPlacesSizesBordersAndLetters) {
  const ControlBox box = ScaleControl({10, 20, 30, 40, 2, 9}, {1.5, 2, 1.2});
  EXPECT_DOUBLE_EQ(box.left, 15);
  EXPECT_DOUBLE_EQ(box.top, 40);
  EXPECT_DOUBLE_EQ(box.width, 45);
  EXPECT_DOUBLE_EQ(box.height, 80);
  EXPECT_DOUBLE_EQ(box.borderWidth, 4);
  EXPECT_DOUBLE_EQ(box.fontSize, 10.8);
}

}  // namespace
}  // namespace veldox
