#include "engine/compression.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <utility>
#include <vector>

#include "core/numbers.h"
#include "engine/compression_charts.h"
#include "engine/compression_graphs.h"

namespace veldox {
namespace {

TEST(CompressionVolumes, AreInCcInBothUnits) {
  // 2 x 2 x pi x 3.25 = 13 pi cubic inches
  EXPECT_DOUBLE_EQ(DiscVolume(4, 3.25), 13 * kPi);
  EXPECT_NEAR(ToCc(DiscVolume(4, 3.25), false), 669.259, 0.0005);
  EXPECT_NEAR(ToCc(DiscVolume(101.6, 82.55), true), 669.259, 0.0005);
  EXPECT_DOUBLE_EQ(FromCc(ToCc(17.25, false), false), 17.25);
  EXPECT_DOUBLE_EQ(FromCc(ToCc(17.25, true), true), 17.25);
}

TEST(CompressionVolumes, OfTheRingLandAreARing) {
  // (2^2 - 1.5^2) pi x 0.5 = 0.875 pi
  EXPECT_DOUBLE_EQ(RingLandVolume(4, 3, 0.5), 0.875 * kPi);
  EXPECT_EQ(RingLandVolume(4, 4, 0.5), 0);
}

TEST(CompressionRatio, IsSolvedForTheClearance) {
  EXPECT_DOUBLE_EQ(RatioOfVolumes(900, 100), 10);
  EXPECT_DOUBLE_EQ(ClearanceForRatio(900, 10), 100);
  std::mt19937 random(1);
  std::uniform_real_distribution<double> volumes(20, 1500), ratios(1.1, 25);
  for (int i = 0; i < 1000; ++i) {
    const double swept = volumes(random), ratio = ratios(random);
    EXPECT_NEAR(RatioOfVolumes(swept, ClearanceForRatio(swept, ratio)), ratio, 1e-12 * ratio);
  }
  EXPECT_FALSE(std::isfinite(ClearanceForRatio(900, 1)));
  EXPECT_FALSE(std::isfinite(RatioOfVolumes(900, 0)));
}

TEST(CompressionRatio, ADomeTakesAndADishGives) {
  const ClearanceVolumes dome{65, 19.5, 4.35, 3.3, 0.9};
  EXPECT_DOUBLE_EQ(dome.Total(), 54.05);
  EXPECT_DOUBLE_EQ(dome.WithoutChamber(), -10.95);
  EXPECT_DOUBLE_EQ(dome.WithoutDome(), 73.55);
  const ClearanceVolumes dish{65, -19.5, 4.35, -3.3, 0.9};
  EXPECT_DOUBLE_EQ(dish.Total(), 86.45);
}

/// A production engine as it is published, in inches and cc.
struct PublishedEngine {
  const char* name;
  double bore, stroke;
  int cylinders;
  double size, sizeTolerance;  ///< of the whole engine, cc
  double chamber, dome, gasket, deck;
  double ratio, tolerance;
  double ring = 0;  ///< published for one of them only
};

double Cc(double bore, double height) {
  return ToCc(DiscVolume(bore, height), false);
}

double Cc(double cubicInches) {
  return ToCc(cubicInches, false);
}

double Inches(double millimetres) {
  return millimetres / 25.4;
}

/// Engines by figures that go back to their makers: from the makers' papers, or as clubs and
/// specialists give them of the standard engine.
std::vector<PublishedEngine> EnginesOfTheirMakers() {
  return {
      // The maker's service table, as it stands at sysrk.wordpress.com: 62.4 cc with the plug in.
      // That must be all of it: the head alone would leave no ratio of 9.
      {"Yamaha XT 500", Inches(87), Inches(84), 1, 499, 0.5, 62.4, 0, 0, 0, 9.0, 0.01},
      // The maker's homologation sheet, DMSB KM 31/09: at least 13.4 cc in the head and 19.6 cc in
      // all, at most 13.8 to 1.
      {"GM 250 Griffon", Inches(78), Inches(52.22), 1, 249.53, 0.01, 13.4, 0, 19.6 - 13.4, 0, 13.8,
       0.1},
      // The workshop manual of the XPAG as quoted at mg-cars.net: 39.3 cc in the head and 4.5 cc in
      // the gasket. Crown and deck are not given: a flat crown level with the deck is taken.
      {"MG TF 1250", Inches(66.5), Inches(90), 4, 1250, 1, 39.3, 0, 4.5, 0, 8.1, 0.05},
      // chesapeakechaptermgtclub.com: heads of 45.5 cc give 7.25 and, on the 1466 cc of the larger
      // block (a bore of 72), 8.3 to 1; mg-cars.net: 8.33. The gasket as above.
      {"MG TB, TC and TD", Inches(66.5), Inches(90), 4, 1250, 1, 45.5, 0, 4.5, 0, 7.25, 0.02},
      {"MG TF 1500", Inches(72), Inches(90), 4, 1466, 1, 45.5, 0, 4.5, 0, 8.33, 0.02},
      // turbo-mini.com: what the standard engine has, the land above the ring too; size and ratio
      // at retrocaricons.com.
      {"MG Metro Turbo", Inches(70.6), Inches(81.3), 4, 1275, 2.5, 21.4, -12, 3.8, 0, 9.4, 0.05,
       0.8},
  };
}

std::vector<PublishedEngine> PublishedEngines() {
  std::vector<PublishedEngine> engines = EnginesOfTheirMakers();
  engines.insert(
      engines.end(),
      {
          // Sizes and ratios from the maker's service figures (5665 cc; 10.1 and 10.5 to 1),
          // volumes as measured at ls1tech.com: a gasket of 0.060 on 3.910, pistons 0.008 above the
          // deck. A graphite gasket of 0.052 alone would raise these ratios by 0.2.
          {"Chevrolet LS1", Inches(99), Inches(92), 8, 5665, 1, 66.67, 0, Cc(3.910, 0.060),
           Cc(Inches(99), -0.008), 10.1, 0.15},
          {"Chevrolet LS6", Inches(99), Inches(92), 8, 5665, 1, 64.43, 0, Cc(3.910, 0.060),
           Cc(Inches(99), -0.008), 10.5, 0.05},
          // accessnorton.com: a head of 49 cc, a gasket of 0.030, the piston 0.020 below the deck;
          // 828 cc and 8.5 to 1 in the road tests.
          {"Norton Commando 850", Inches(77), Inches(89), 2, 828, 1.5, 49, 0, Cc(Inches(77), 0.030),
           Cc(Inches(77), 0.020), 8.5, 0.1},
          // mgbmga.com: chambers of 42.5 to 43.5 cc, dishes of 6 cc, 8.7 to 1, and 1822 cc at a
          // bore of 3.180; the workshop book's gasket of 4.5 cc and deck of 0.040.
          {"MGB 1800", 3.160, 3.5, 4, 1822 * (3.160 * 3.160) / (3.180 * 3.180), 1, 43, -6, 4.5,
           Cc(3.160, 0.040), 8.7, 0.15},
      });
  // antiqueautoranch.com: six heads of the Model T by their cubic inches, each with the gasket of
  // 0.92 and a piston that stands 2.86 out of its bore, and the ratio worked out for it.
  const std::vector<std::pair<double, double>> heads{{17.9, 3.77}, {15.6, 4.24}, {16.6, 4.02},
                                                     {13.7, 4.76}, {12.8, 5.07}, {12.2, 5.31}};
  for (const auto& [head, ratio] : heads) {
    engines.push_back({"Ford Model T", 3.75, 4, 4, Cc(177), Cc(0.5), Cc(head), 0, Cc(0.92),
                       Cc(-2.86), ratio, 0.01});
  }
  // pontiaction.com: true ratios of stock engines with gaskets of 10 cc, valve reliefs of 6 cc and
  // pistons 0.023 below the deck (5 cc), by the size of the chambers. A 428 has 426.6 cu in.
  struct Pontiac {
    const char* name;
    double bore, stroke, cubicInches, chamber, ratio;
  };
  const std::vector<Pontiac> pontiacs{
      {"Pontiac 389", 4.0625, 3.75, 389, 70, 9.75}, {"Pontiac 400", 4.12, 3.75, 400, 70, 10.00},
      {"Pontiac 400", 4.12, 3.75, 400, 100, 7.77},  {"Pontiac 421", 4.09375, 4, 421, 75, 10.00},
      {"Pontiac 428", 4.12, 4, 428, 75, 10.10},     {"Pontiac 455", 4.15, 4.21, 455, 85, 9.81},
      {"Pontiac 455", 4.15, 4.21, 455, 115, 7.86}};
  for (const Pontiac& p : pontiacs) {
    engines.push_back({p.name, p.bore, p.stroke, 8, Cc(p.cubicInches), Cc(1.5), p.chamber, -6, 10,
                       5, p.ratio, 0.03});
  }
  return engines;
}

TEST(CompressionRatio, AgreesWithPublishedEngines) {
  for (const PublishedEngine& e : PublishedEngines()) {
    const double swept = Cc(e.bore, e.stroke);
    EXPECT_NEAR(swept * e.cylinders, e.size, e.sizeTolerance) << e.name;
    ClearanceVolumes volumes;
    volumes.chamber = e.chamber;
    volumes.dome = e.dome;
    volumes.gasket = e.gasket;
    volumes.deck = e.deck;
    volumes.ring = e.ring;
    EXPECT_NEAR(RatioOfVolumes(swept, volumes.Total()), e.ratio, e.tolerance) << e.name;
    EXPECT_NEAR(ClearanceForRatio(swept, RatioOfVolumes(swept, volumes.Total())), volumes.Total(),
                1e-9)
        << e.name;
  }
}

TEST(CompressionRatio, AgreesWithAnEngineThatIsPublishedByItsVolumes) {
  // The homologation sheet of the TECH F1 R, DMSB KM 28/07: 249.5 cc, 21.9 cc in all, 12.4 to 1.
  EXPECT_NEAR(RatioOfVolumes(249.5, 21.9), 12.4, 0.05);
  EXPECT_NEAR(ClearanceForRatio(249.5, 12.4), 21.9, 0.1);
}

TEST(CompressionRatio, AgreesWithAMeasuredEngineWithARingLand) {
  // turbobricks.com, in mm: bore 87, stroke 67.4, chamber 36 cc, flycut 2.1 cc, a crown of 86.15
  // that stands 0.65 out of the bore, gasket 1.5 on 87.2, first ring 8 down. The page lists 3.790,
  // 8.961 and 0.925 cc (with 3.14285 for pi) and 445.027 cc below the head at the bottom.
  ClearanceVolumes volumes;
  volumes.chamber = 36 + 2.1;
  volumes.dome = ToCc(DiscVolume(86.15, 0.65), true);
  volumes.gasket = ToCc(DiscVolume(87.2, 1.5), true);
  volumes.deck = 0;
  volumes.ring = ToCc(RingLandVolume(87, 86.15, 8), true);
  EXPECT_NEAR(volumes.dome, 3.790, 0.002);
  EXPECT_NEAR(volumes.gasket, 8.961, 0.004);
  EXPECT_NEAR(volumes.ring, 0.925, 0.001);
  const double swept = ToCc(DiscVolume(87, 67.4), true);
  EXPECT_NEAR(swept + volumes.Total(), 445.027, 0.3);
}

TEST(SweptVolume, AgreesWithPublishedEngines) {
  // Bore and stroke in mm, and the cc of one cylinder by the size their makers give.
  EXPECT_NEAR(ToCc(DiscVolume(86, 86), true), 1998.0 / 4, 0.5);       // square two litre four
  EXPECT_NEAR(ToCc(DiscVolume(81, 77.4), true), 1595.0 / 4, 0.5);     // 1.6 litre four
  EXPECT_NEAR(ToCc(DiscVolume(67, 42.5), true), 599.0 / 4, 0.5);      // 600 motorcycle four
  EXPECT_NEAR(ToCc(DiscVolume(85.5, 69), true), 1584.0 / 4, 0.5);     // 1.6 litre flat four
  EXPECT_NEAR(ToCc(DiscVolume(88.8, 101.6), true), 1258.0 / 2, 0.5);  // 1250 V twin
  EXPECT_NEAR(ToCc(DiscVolume(102, 76.4), true), 3746.0 / 6, 0.5);    // 3.8 litre flat six
}

TEST(GasketThickness, IsTheInverseOfTheGasketsVolume) {
  EXPECT_NEAR(GasketThickness(DiscVolume(4.01, 0.021), 4.01), 0.021, 1e-16);
  EXPECT_FALSE(std::isfinite(GasketThickness(0.2, 0)));
}

TEST(HorsepowerGainOfRatio, FollowsBothRules) {
  // Worked out apart: from 9 to 10 at 400 HP the rules give 13.99 and 8.20.
  const double byRatio = (1.0 / 9) / 810 * 400 * 255;
  const double byFit = (5.525185664008953 - 4.159254351708244) * 400 / 100 * 1.5;
  EXPECT_NEAR(HorsepowerGainOfRatio(400, 9, 10), (byRatio + byFit) / 2, 1e-9);
  EXPECT_EQ(HorsepowerGainOfRatio(400, 9, 9), 0);
  EXPECT_LT(HorsepowerGainOfRatio(400, 10, 9), 0);
  EXPECT_DOUBLE_EQ(HorsepowerGainOfRatio(800, 9, 10), 2 * HorsepowerGainOfRatio(400, 9, 10));
}

TEST(Dish, WithoutARadiusIsADisc) {
  EXPECT_DOUBLE_EQ(DishVolume({4, 0.25, 0}), kPi);
  EXPECT_DOUBLE_EQ(DishWithDepthFor(kPi, {4, 9, 0}).depth, 0.25);
  EXPECT_DOUBLE_EQ(DishWithBoreFor(kPi, {9, 0.25, 0}).bore, 4);
}

TEST(Dish, LosesItsBottomCornerToTheRadius) {
  // A square of 0.1 x 0.1 less a quarter circle, all round a bore of 3.
  EXPECT_NEAR(DishBottomCorner({3, 0.2, 0.1}), (0.01 - kPi * 0.0025) * 3 * kPi, 1e-15);
}

TEST(Dish, IsSolvedForDepthAndBore) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> bores(1, 5), depths(0.05, 0.8), parts(0, 1);
  for (int i = 0; i < 1000; ++i) {
    const Dish dish{bores(random), depths(random), 0};
    const Dish rounded{dish.bore, dish.depth, dish.depth * parts(random)};
    const double volume = DishVolume(rounded);
    const Dish byDepth = DishWithDepthFor(volume, {rounded.bore, 0, rounded.radius});
    EXPECT_NEAR(byDepth.depth, rounded.depth, 1e-12);
    EXPECT_EQ(byDepth.radius, rounded.radius);
    const Dish byBore = DishWithBoreFor(volume, {0, rounded.depth, rounded.radius});
    EXPECT_NEAR(byBore.bore, rounded.bore, 1e-9);
    EXPECT_EQ(byBore.radius, rounded.radius);
  }
}

TEST(Dish, BoreIsThatOfTheClosedForm) {
  // depth pi / 4 x bore^2 - (1 - pi / 4) r^2 pi x bore = volume, solved for the bore.
  const double volume = 2, depth = 0.3, radius = 0.25;
  const double a = depth * kPi / 4;
  const double b = (1 - kPi / 4) * radius * radius * kPi;
  const double bore = (b + std::sqrt(b * b + 4 * a * volume)) / (2 * a);
  EXPECT_NEAR(DishWithBoreFor(volume, {0, depth, radius}).bore, bore, 1e-12);
}

TEST(Dish, RadiusIsNoGreaterThanTheDepth) {
  EXPECT_EQ(WithFittingRadius({4, 0.1, 0.1}).radius, 0.1);
  EXPECT_EQ(WithFittingRadius({4, 0.1, 0.1001}).radius, 0.1);
  EXPECT_EQ(DishWithBoreFor(1, {0, 0.1, 0.5}).radius, 0.1);
  // A depth of its own radius: d = v / A + (1 - pi / 4) B pi / A d^2, the smaller root.
  const double volume = 0.7, bore = 3.9;
  const double area = bore * bore * kPi / 4;
  const double c = (1 - kPi / 4) * bore * kPi / area;
  const double depth = (1 - std::sqrt(1 - 4 * c * volume / area)) / (2 * c);
  const Dish dish = DishWithDepthFor(volume, {bore, 0, 0.5});
  EXPECT_NEAR(dish.depth, depth, 1e-12);
  EXPECT_NEAR(dish.radius, depth, 1e-12);
}

CompressionInput SomeEngine(bool metric) {
  CompressionInput input;
  const double unit = metric ? 25.4 : 1;
  input.bore = 4 * unit;
  input.stroke = 3.25 * unit;
  input.deckClearance = 0.016 * unit;
  input.gasketThickness = 0.021 * unit;
  input.gasketBore = 4.01 * unit;
  input.metric = metric;
  input.sweptCc = ToCc(DiscVolume(input.bore, input.stroke), metric);
  input.volumes = {65, 19.5, ToCc(DiscVolume(input.gasketBore, input.gasketThickness), metric), 3.3,
                   0.9};
  return input;
}

TEST(CompressionCharts, NeedWhatIsThereAtTheEnginesOwnRatio) {
  for (const bool metric : {false, true}) {
    const CompressionInput in = SomeEngine(metric);
    const double ratio = RatioOfVolumes(in.sweptCc, in.volumes.Total());
    EXPECT_NEAR(NeededForRatio(RatioChart::TotalVolume, in, ratio), in.volumes.Total(), 1e-10);
    EXPECT_NEAR(NeededForRatio(RatioChart::Chamber, in, ratio), 65, 1e-10);
    EXPECT_NEAR(NeededForRatio(RatioChart::Dome, in, ratio), 19.5, 1e-10);
    EXPECT_NEAR(NeededForRatio(RatioChart::GasketThickness, in, ratio), in.gasketThickness, 1e-10);
  }
}

TEST(CompressionCharts, NeedWhatGivesTheRatioAskedFor) {
  CompressionInput in = SomeEngine(false);
  CompressionInput other = in;
  other.volumes.chamber = NeededForRatio(RatioChart::Chamber, in, 11);
  EXPECT_NEAR(RatioOfVolumes(in.sweptCc, other.volumes.Total()), 11, 1e-12);
  other = in;
  other.volumes.dome = NeededForRatio(RatioChart::Dome, in, 11);
  EXPECT_NEAR(RatioOfVolumes(in.sweptCc, other.volumes.Total()), 11, 1e-12);
  other = in;
  other.volumes.gasket =
      ToCc(DiscVolume(in.gasketBore, NeededForRatio(RatioChart::GasketThickness, in, 11)), false);
  EXPECT_NEAR(RatioOfVolumes(in.sweptCc, other.volumes.Total()), 11, 1e-12);
}

TEST(CompressionGraphs, GoThroughTheEnginesOwnPoint) {
  const CompressionInput in = SomeEngine(false);
  const RatioSweep sweep = SweepAroundChamber(65);
  const GraphCurve curve =
      RatioGraphCurve(RatioGraph::Chamber, in, sweep, 0, true, DecimalMark::Point);
  ASSERT_EQ(curve.points.size(), 201U);
  EXPECT_NEAR(curve.points[100].x, 65, 1e-12);
  EXPECT_NEAR(curve.points[100].y, RatioOfVolumes(in.sweptCc, in.volumes.Total()), 1e-12);
  EXPECT_NEAR(curve.points.back().x, 85, 1e-12);
}

TEST(CompressionGraphs, LeaveOutWhatLeavesNoVolume) {
  CompressionInput in = SomeEngine(false);
  in.volumes = {10, 0, 1, 1, 0};
  const GraphCurve curve =
      RatioGraphCurve(RatioGraph::Chamber, in, SweepAroundChamber(10), 0, true, DecimalMark::Point);
  ASSERT_FALSE(curve.points.empty());
  EXPECT_GT(curve.points.front().x, -2);
  EXPECT_LT(curve.points.front().x, -1.75);
  for (const GraphPoint& point : curve.points) EXPECT_GT(point.y, 1);
}

TEST(CompressionGraphs, EndForAnyVolume) {
  const CompressionInput in = SomeEngine(false);
  for (const double volume : {1e-9, 3.0, 1e17, 1e300}) {
    for (const RatioSweep& sweep : {SweepAroundChamber(volume), SweepAroundTotal(volume)}) {
      const GraphCurve curve =
          RatioGraphCurve(RatioGraph::Chamber, in, sweep, 0, true, DecimalMark::Point);
      EXPECT_LE(curve.points.size(), 1001U);
    }
  }
}

}  // namespace
}  // namespace veldox
