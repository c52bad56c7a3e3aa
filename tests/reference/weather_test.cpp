#include "reference/weather.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>

#include "core/units.h"

namespace veldox {
namespace {

/// Air with its water by the temperature and the humidity.
Air MoistAir(double pressure, double fahrenheit, double humidity) {
  return {pressure, fahrenheit,
          VaporPressureAt(humidity, SaturationVaporPressure(CelsiusOf(fahrenheit)), 0)};
}

TEST(VaporPressure, IsNearTheSteamTables) {
  // Published saturation pressures of water in hPa.
  const double tables[][2] = {{0, 6.11}, {15, 17.06}, {20, 23.39}, {30, 42.47}};
  for (const auto& [celsius, hectopascals] : tables) {
    EXPECT_NEAR(SaturationVaporPressure(celsius) * kMillibarsPerInchMercury / hectopascals, 1,
                0.005)
        << celsius;
  }
}

TEST(VaporPressure, IsThePartThatTheHumidityTells) {
  EXPECT_DOUBLE_EQ(VaporPressureAt(25, 0.5, 7), 0.125);
  EXPECT_DOUBLE_EQ(VaporPressureAt(100, 0.5, 7), 0.5);
  EXPECT_DOUBLE_EQ(VaporPressureAt(0, 0.5, 7), 7);
  EXPECT_DOUBLE_EQ(VaporPressureAt(-5, 0.5, 7), 7);
  // 59 degrees and 5 %.
  EXPECT_NEAR(SaturationVaporPressure(15), 0.503, 0.0005);
  EXPECT_NEAR(MoistAir(29.92, 59, 5).vaporPressure, 0.02515, 0.000005);
}

TEST(VaporPressure, HasAPole) {
  for (const double celsius : {-237.7, CelsiusOf(-395.86), CelsiusOf(FahrenheitOf(-237.7))}) {
    std::feclearexcept(FE_ALL_EXCEPT);
    EXPECT_FALSE(std::isfinite(SaturationVaporPressure(celsius)));
    EXPECT_NE(std::fetestexcept(FE_DIVBYZERO), 0) << celsius;
  }
  EXPECT_FALSE(std::isfinite(SaturationVaporPressure(-250)));
  EXPECT_FALSE(std::isfinite(SaturationVaporPressure(-1000)));
  EXPECT_LT(SaturationVaporPressure(-200), 1e-30);
}

TEST(DewPoint, IsThatOfThePsychrometers) {
  EXPECT_NEAR(DewPoint(MoistAir(29.92, 86, 50).vaporPressure), 65.1, 0.1);
  EXPECT_NEAR(DewPoint(MoistAir(29.92, 68, 60).vaporPressure), 53.6, 0.1);
  EXPECT_NEAR(DewPoint(MoistAir(29.92, 59, 5).vaporPressure), -11.82, 0.005);
}

TEST(DewPoint, OfSaturatedAirIsItsTemperature) {
  for (double fahrenheit = -40; fahrenheit <= 120; fahrenheit += 8) {
    EXPECT_NEAR(DewPoint(MoistAir(29.92, fahrenheit, 100).vaporPressure), fahrenheit, 1e-9);
  }
  EXPECT_FALSE(std::isfinite(DewPoint(0)));
}

TEST(HorsepowerGain, ByOneQuantity) {
  // 555 x 519 / 520 - 555
  EXPECT_NEAR(HorsepowerGainOfTemperature(555, 59, 60), -1.0673076923, 1e-9);
  EXPECT_NEAR(HorsepowerGainOfHumidity(555, 5, 25), -4.44, 1e-12);
  // 555 x 29.62 / 29.92 - 555
  EXPECT_NEAR(HorsepowerGainOfBarometer(555, 29.92, 29.62), -5.5648395722, 1e-9);
  EXPECT_NEAR(HorsepowerGainOfAltitude(555, 33.33, 80), -0.90656475, 1e-9);
  EXPECT_EQ(HorsepowerGainOfTemperature(300, 80, 80), 0);
  EXPECT_GT(HorsepowerGainOfTemperature(300, 80, 40), 0);
  EXPECT_GT(HorsepowerGainOfAltitude(300, 5000, 0), 0);
}

TEST(HorsepowerGain, NeedsAirOnBothSides) {
  EXPECT_FALSE(std::isfinite(HorsepowerGainOfTemperature(555, 59, -460)));
  EXPECT_FALSE(std::isfinite(HorsepowerGainOfTemperature(555, 59, -500)));
  EXPECT_FALSE(std::isfinite(HorsepowerGainOfTemperature(555, -500, 59)));
  EXPECT_FALSE(std::isfinite(HorsepowerGainOfBarometer(555, 0, 29)));
  EXPECT_FALSE(std::isfinite(HorsepowerGainOfBarometer(555, -29, 29)));
  EXPECT_FALSE(std::isfinite(HorsepowerGainOfBarometer(555, 29, -29)));
}

TEST(DynoCorrection, IsOneInItsStandardAir) {
  EXPECT_EQ(J816Correction({29.92, 60, 0}), 1);
  EXPECT_EQ(J607FordCorrection({29.92, 60, 0}), 1);
  EXPECT_EQ(J607DtsCorrection({29.92, 60, 0}), 1);
  EXPECT_EQ(J1349PlainCorrection({29.23, 77, 0}), 1);
  EXPECT_DOUBLE_EQ(J1349Correction({29.31, 77, 0}), 1);
  EXPECT_DOUBLE_EQ(J1349Jun90Correction({29.235, 77, 0}), 1);
  // Only the dry air counts.
  EXPECT_DOUBLE_EQ(J1349Jun90Correction({29.735, 77, 0.5}), 1);
}

TEST(DynoCorrection, OfAFreshScreen) {
  const Air air = MoistAir(29.92, 59, 5);
  EXPECT_NEAR(J816Correction(air), 0.9989, 0.00005);
  EXPECT_NEAR(J607FordCorrection(air), 0.99985, 0.00001);
  EXPECT_NEAR(J607DtsCorrection(air), 0.99988, 0.00001);
  EXPECT_NEAR(J1349PlainCorrection(air), 0.94499, 0.00001);
  EXPECT_NEAR(J1349Correction(air), 0.9573, 0.0001);
  EXPECT_NEAR(J1349Jun90Correction(air), 0.95445, 0.00001);
  EXPECT_NEAR(QuarterMileCorrection(J1349Jun90Correction(air)), 0.984, 0.001);
  EXPECT_NEAR(AirDensityPercent(air, {}), 99.916, 0.0005);
  EXPECT_NEAR(CorrectedBarometer(air), 29.89, 0.005);
  EXPECT_NEAR(GrainsOfWater(air), 3.66, 0.005);
  EXPECT_NEAR(DryVirtualTemperature(air), 59.44, 0.005);
  EXPECT_NEAR(MoistVirtualTemperature(air), 59.16, 0.005);
  EXPECT_NEAR(DryDensityAltitude(air, {}), 28.73, 0.02);
  EXPECT_NEAR(MoistDensityAltitude(air, {}), 10.86, 0.01);
  EXPECT_NEAR(DensityAltitude(air, {}), 10.2, 0.05);
  EXPECT_EQ(PressureAltitude(29.92, {}), 0);
  EXPECT_NEAR(PressureAltitude(29.92, {29.92126, 59}), 1.165, 0.001);
}

TEST(DynoCorrection, OfAHotDayInTheMountains) {
  // 24.9 in Hg, 95 degrees, 0.4 in Hg of water: 24.5 dry; 29.92 / 24.5 = 1.221224489796,
  // 555 / 520 = 1.067307692308, 555 / 537 = 1.033519553073.
  const Air air{24.9, 95, 0.4};
  EXPECT_NEAR(J816Correction(air), 1.221224489796 * 1.067307692308, 1e-10);
  EXPECT_NEAR(std::log(J607FordCorrection(air)),
              1.2 * std::log(1.221224489796) + 0.6 * std::log(1.067307692308), 1e-10);
  EXPECT_NEAR(J607DtsCorrection(air), 1.221224489796 * 1.033105847, 1e-9);
  EXPECT_NEAR(J1349PlainCorrection(air), 29.23 / 24.5 * 1.033519553073, 1e-10);
  EXPECT_NEAR(J1349Correction(air), 1.18 * 29.31 / 24.5 * 1.016621638123 - 0.18, 1e-8);
  EXPECT_NEAR(J1349Jun90Correction(air), 1.18 * 29.235 / 24.5 * 1.016621638123 - 0.18, 1e-8);
  EXPECT_NEAR(QuarterMileCorrection(1.331), 1.1, 1e-12);
}

TEST(Formulas, GiveWhatFortyDigitsGive) {
  // The rules worked out apart from the program, with forty decimal digits.
  EXPECT_NEAR(SaturationVaporPressure(30), 1.25003308463426, 1e-13);
  const Air air{24.9, 95, 0.4};
  EXPECT_NEAR(DewPoint(0.4), 52.6701578650931, 1e-11);
  EXPECT_NEAR(AirDensity(air), 0.0591891303790999, 1e-15);
  constexpr StandardAir kOther{30.1, 60};
  EXPECT_NEAR(DensityAltitude(air, {}), 8518.96300131543, 1e-8);
  EXPECT_NEAR(DensityAltitude(air, kOther), 8729.80648932420, 1e-8);
  EXPECT_NEAR(PressureAltitude(24.9, {}), 4994.38884950070, 1e-8);
  EXPECT_NEAR(PressureAltitude(24.9, kOther), 5164.51104896978, 1e-8);
  EXPECT_NEAR(DryDensityAltitude(air, {}), 8842.69524465015, 1e-8);
  EXPECT_NEAR(DryDensityAltitude(air, kOther), 8990.62295241821, 1e-8);
  EXPECT_NEAR(MoistDensityAltitude(air, {}), 8518.01834016414, 1e-8);
  EXPECT_NEAR(MoistDensityAltitude(air, kOther), 8665.63114822058, 1e-8);
}

TEST(AirDensity, IsThatOfAnIdealGas) {
  // Pounds a cubic foot of the dry part and the water by their own gas constants.
  constexpr double kPoundsPerCubicFoot = 0.45359237 / (0.3048 * 0.3048 * 0.3048);
  for (double fahrenheit = 0; fahrenheit <= 110; fahrenheit += 10) {
    for (double humidity = 10; humidity <= 100; humidity += 30) {
      const Air air = MoistAir(28.5, fahrenheit, humidity);
      const double kelvin = CelsiusOf(fahrenheit) + 273.15;
      const double dry = (air.pressure - air.vaporPressure) * 3386.389 / (287.05 * kelvin);
      const double water = air.vaporPressure * 3386.389 / (461.5 * kelvin);
      EXPECT_NEAR(AirDensity(air) * kPoundsPerCubicFoot / (dry + water), 1, 0.001);
    }
  }
  EXPECT_NEAR(AirDensity(MoistAir(29.92, 59, 5)), 0.0765, 0.00005);
}

TEST(Altitudes, AreThoseOfTheStandardAtmosphere) {
  constexpr StandardAir kStandard{29.92126, 59};
  EXPECT_NEAR(BarometerAtAltitude(5000, kStandard) / 24.896, 1, 3e-5);
  EXPECT_NEAR(BarometerAtAltitude(10000, kStandard) / 20.577, 1, 3e-5);
  EXPECT_EQ(BarometerAtAltitude(0, kStandard), 29.92126);
  for (const double temperature : {59.0, 60.0}) {
    for (double altitude = -1000; altitude <= 30000; altitude += 500) {
      const StandardAir standard{30.1, temperature};
      EXPECT_NEAR(PressureAltitude(BarometerAtAltitude(altitude, standard), standard), altitude,
                  0.02);
    }
  }
  EXPECT_FALSE(std::isfinite(BarometerAtAltitude(150000, kStandard)));
}

TEST(Altitudes, OfTheDensityAgree) {
  // Two rules of different makers for one thing, feet.
  for (double fahrenheit = 30; fahrenheit <= 95; fahrenheit += 5) {
    for (double humidity = 5; humidity <= 80; humidity += 5) {
      const Air air = MoistAir(29.92, fahrenheit, humidity);
      EXPECT_NEAR(DensityAltitude(air, {}), MoistDensityAltitude(air, {}), 3)
          << fahrenheit << ' ' << humidity;
    }
  }
}

TEST(Altitudes, OfTheDensityOfStandardAirAreTheAltitude) {
  // The standard atmosphere is 3.56616 degrees colder each 1000 feet, and dry.
  constexpr StandardAir kStandard{29.92126, 59};
  for (double altitude = 0; altitude <= 15000; altitude += 1000) {
    const Air air{BarometerAtAltitude(altitude, kStandard), 59 - 0.00356616 * altitude, 0};
    EXPECT_NEAR(DryDensityAltitude(air, kStandard), altitude, 0.01);
    EXPECT_NEAR(MoistDensityAltitude(air, kStandard), altitude, 0.01);
    EXPECT_NEAR(DensityAltitude(air, kStandard), altitude, 5);
  }
}

TEST(VirtualTemperature, IsThatOfDryAirOfTheSameDensity) {
  const Air air = MoistAir(29.1, 88, 70);
  const double rankine = 88 + 459.67;
  // Densities by the gas law, up to a factor: water weighs 0.622 of air.
  const double dryPart = (air.pressure - air.vaporPressure) / rankine;
  const double whole = dryPart + 0.622 * air.vaporPressure / rankine;
  EXPECT_NEAR(air.pressure / (DryVirtualTemperature(air) + 459.67) / dryPart, 1, 1e-12);
  EXPECT_NEAR(air.pressure / (MoistVirtualTemperature(air) + 459.67) / whole, 1, 1e-12);
  EXPECT_NEAR(GrainsOfWater(air) / 7000, (whole - dryPart) / dryPart, 1e-12);
}

TEST(DryAir, HasNoWaterInAnything) {
  const Air air{29.92, 60, 0};
  EXPECT_EQ(GrainsOfWater(air), 0);
  EXPECT_NEAR(DryVirtualTemperature(air), 60, 1e-12);
  EXPECT_EQ(CorrectedBarometer(air), 29.92);
  std::feclearexcept(FE_ALL_EXCEPT);
  EXPECT_TRUE(std::isfinite(DensityAltitude(air, {})));
  EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW), 0);
  // Warmer by a degree: 29.92 x 520 / 519 in the density.
  EXPECT_NEAR(AirDensityPercent(air, {}), 100 * 519 / 520.0, 1e-12);
}

TEST(NoAir, GivesNoNumber) {
  const StandardAir standard;
  for (const Air& air : {Air{0.4, 95, 0.5}, Air{0.5, 95, 0.5}, Air{0, 60, 0}, Air{-29, 60, 0},
                         Air{29.92, -460, 0}, Air{29.92, -500, 0.1}}) {
    for (const double value :
         {J816Correction(air), J607FordCorrection(air), J607DtsCorrection(air),
          J1349PlainCorrection(air), J1349Correction(air), J1349Jun90Correction(air)}) {
      EXPECT_FALSE(std::isfinite(value)) << air.pressure << ' ' << air.temperature;
    }
  }
  for (const Air& air : {Air{0.4, 95, 0.5}, Air{0, 60, 0}, Air{-29, 60, 0}, Air{29.92, -460, 0}}) {
    for (const double value :
         {AirDensityPercent(air, standard), AirDensity(air), DensityAltitude(air, standard),
          CorrectedBarometer(air), DryDensityAltitude(air, standard),
          MoistDensityAltitude(air, standard), GrainsOfWater(air), DryVirtualTemperature(air),
          MoistVirtualTemperature(air)}) {
      EXPECT_FALSE(std::isfinite(value)) << air.pressure << ' ' << air.temperature;
    }
  }
  EXPECT_FALSE(std::isfinite(PressureAltitude(-1, standard)));
  EXPECT_FALSE(std::isfinite(PressureAltitude(29, {0, 59})));
  EXPECT_FALSE(std::isfinite(AirDensityPercent({29, 59, 0}, {-29.92, 59})));
  EXPECT_FALSE(std::isfinite(QuarterMileCorrection(-0.1)));
}

}  // namespace
}  // namespace veldox
