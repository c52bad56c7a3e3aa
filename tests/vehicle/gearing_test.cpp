#include "vehicle/gearing.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace veldox {
namespace {

using testing::HasSubstr;

constexpr double kPiExact = 3.14159265358979323846;
constexpr auto kMark = DecimalMark::Point;

TEST(RoadSpeed, IsTheWheelsCircumferenceByItsTurns) {
  // 24 inches at 1000 turns a minute: 24 pi x 60000 inches an hour
  EXPECT_NEAR(RoadSpeed(24, 1000, 1), 24 * kPiExact * 60000 / 63360, 71.4 * 1e-7);
  EXPECT_NEAR(RoadSpeed(24, 1000, 4), RoadSpeed(24, 1000, 1) / 4, 1e-12);
}

TEST(RoadSpeed, IsSolvedForRpmAndRearGear) {
  const double speed = RoadSpeed(27.3, 6200, 3.73 * 1.35);
  EXPECT_NEAR(EngineSpeed(speed, 3.73 * 1.35, 27.3), 6200, 1e-9);
  EXPECT_NEAR(RearRatioForSpeed(27.3, 6200, 1.35, speed), 3.73, 1e-12);
  EXPECT_NEAR(ConverterSlip(speed * 0.9, 27.3, 6200, 3.73 * 1.35), 10, 1e-9);
}

TEST(RoadSpeed, AgreesWithAPublishedExample) {
  // A light two-seater at 6800 RPM with an axle of 3.636, by the rolling circumference of its
  // tires in inches (www.7-dna.com/eugene, whole MPH, so within one and a bit).
  struct Gear {
    double ratio, of72Inches, of66Inches;
  };
  for (const Gear& gear :
       {Gear{3.337, 38, 35}, Gear{1.995, 63, 58}, Gear{1.418, 89, 83}, Gear{1.00, 127, 117}}) {
    EXPECT_NEAR(RoadSpeed(72 / kPiExact, 6800, 3.636 * gear.ratio), gear.of72Inches, 1.2);
    EXPECT_NEAR(RoadSpeed(66.5 / kPiExact, 6800, 3.636 * gear.ratio), gear.of66Inches, 1.2);
  }
}

TEST(TireDiameter, AgreesWithTireTables) {
  EXPECT_NEAR(NominalTireDiameter(205, 55, 16), 24.88, 0.005);
  EXPECT_NEAR(NominalTireDiameter(205, 55, 16) * 25.4, 631.9, 0.05);
  EXPECT_NEAR(NominalTireDiameter(275, 40, 17), 25.66, 0.005);
}

TEST(RoadSpeed, OfNominalTiresIsAboveRoadTestsByWhatATireGivesUnderLoad) {
  // A tire rolls a few percent less than its nominal circumference, so that speeds by the
  // tire code lie above measured ones, never below.
  const auto excess = [](double computed, double published) { return computed / published - 1; };
  // The road test of a light two-seater (Autocar, March 1975, as quoted in
  // autox.team.net/html/spitfires/2001-12/msg00274.html): 18.0 MPH at 1000 RPM in direct top,
  // axle 3.63, tires 155 SR 13, of aspect ratio 80 or a little above.
  const double inTop = excess(RoadSpeed(NominalTireDiameter(155, 80, 13), 1000, 3.63 * 1), 18.0);
  EXPECT_GT(inTop, 0);
  EXPECT_LT(inTop, 0.04);
  // Turns a mile of tires: a data book (www.7-dna.com/eugene/suspension.html), a maker's
  // figures (www.peachparts.com/shopforum/466779-post9.html).
  struct Tire {
    double width, aspectRatio, wheel, turnsAMile;
  };
  for (const Tire& tire : {Tire{185, 70, 13, 881}, Tire{185, 60, 13, 954}, Tire{195, 65, 15, 837},
                           Tire{185, 65, 15, 849}}) {
    const double nominal = NominalTireDiameter(tire.width, tire.aspectRatio, tire.wheel);
    const double slow = excess(RoadSpeed(nominal, tire.turnsAMile, 1), 60);
    EXPECT_GT(slow, 0) << tire.turnsAMile;
    EXPECT_LT(slow, 0.04) << tire.turnsAMile;
  }
  // Two tires of a car whose gears are the same (Motor 20/68, www.renault16.com/1500_en2.htm):
  // 17.2 MPH on 145-14, 17.8 on 155-14.
  EXPECT_NEAR(NominalTireDiameter(155, 80, 14) / NominalTireDiameter(145, 80, 14), 17.8 / 17.2,
              0.01);
}

TEST(Laps, AreSolvedForEachOther) {
  EXPECT_DOUBLE_EQ(LapSpeed(2.5, 60), 150);
  EXPECT_DOUBLE_EQ(LapTime(2.5, 150), 60);
  EXPECT_DOUBLE_EQ(LapLength(150, 60), 2.5);
}

TEST(Acceleration, OfPhysics) {
  // A circle of r feet in t seconds: 4 pi^2 r / t^2; the rule's 1.225 is 0.17 % low.
  const double exact = 4 * kPiExact * kPiExact * 100 / (15 * 15) / 32.17405;
  EXPECT_NEAR(SkidPadAcceleration(100, 15), exact, 0.0018 * exact);
  EXPECT_LT(SkidPadAcceleration(100, 15), exact);
  // One g is 21.937 MPH a second.
  EXPECT_NEAR(MeanAccelerationTo(21.937, 1), 1, 1e-4);
  EXPECT_NEAR(MeanAccelerationOver(0.5 * 32.17405 * 9, 3), 1, 1e-6);
  // 60 MPH is 88 ft/s: 7744 / 200 ft/s^2
  EXPECT_NEAR(CorneringAcceleration(200, 60), 7744.0 / 200 / 32.17405, 1e-4);
}

TEST(Gears, RulesOfThumb) {
  EXPECT_DOUBLE_EQ(FirstGearManual(60, 200, 4000), 3);
  EXPECT_DOUBLE_EQ(FirstGearAutomatic(60, 200, 4000), 3 / 1.8);
  EXPECT_DOUBLE_EQ(EffectiveRatio(12, 13.5), 12 / (13.5 / 12));
  // Four gears from 3.2 to 0.4: each half the one before
  EXPECT_NEAR(GearStep(3.2, 0.4, 4), 0.5, 1e-12);
}

TEST(LapChart, CountsItsLines) {
  EXPECT_EQ(LapChartErrors({1, 1, 2050, 1}, kMark), "") << "2050 lines";
  EXPECT_EQ(LapChartErrors({1, 1, 2050.5, 1}, kMark),
            "You can generate no more than 2050 lines and you want 2050.5\r\nYou can increase "
            "your Every xx Seconds or Start Seconds or decrease you End Seconds");
  EXPECT_EQ(LapChartErrors({1, 5, 5, 1}, kMark),
            "Your Starting Seconds is greater than or equal to your Ending Seconds");
  EXPECT_EQ(LapChartErrors({1, 5, 4, 1}, kMark),
            "Your Starting Seconds is greater than or equal to your Ending Seconds");
}

TEST(LapChart, IsOneTableInThreeColumns) {
  // 30 to 35: 6 times in 2 rows, (5 + 2) / 3 = 2.33
  EXPECT_EQ(LapChartReport({2, 30, 35, 1}, kMark),
            "Press the . key to Write this Data to a Disk File Or , key to Print this Data\r\n\r\n"
            "Track Size is 2.0 Miles\r\n\r\n"
            "Lap Time      MPH     |  Lap Time      MPH     |  Lap Time      MPH_\r\n"
            " 30.000    240.00000  |   32.000    225.00000  |   34.000    211.76471\r\n"
            " 31.000    232.25806  |   33.000    218.18182  |   35.000    205.71429");
}

TEST(LapChart, LastRowMayPassTheEnd) {
  // 30 to 31: 2 times, (1 + 2) / 3 = 1 row of three
  EXPECT_THAT(LapChartReport({2, 30, 31, 1}, kMark), HasSubstr("32.000    225.00000"));
  // Half a row goes to the even count: (2.5 + 2) / 3 = 1.5 and next to nothing less
  EXPECT_THAT(LapChartReport({2, 30, 32.5, 1}, kMark), HasSubstr("|   32.000"));
}

}  // namespace
}  // namespace veldox
