#include "engine/piston_motion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/error.h"
#include "core/numbers.h"

namespace veldox {
namespace {

struct Engine {
  const char* name;
  CrankSlider slider;
  double rpm;
};

const std::vector<Engine> kEngines{
    {"small block", {1.625, 5.7, 0}, 6500},
    {"small block, offset to one side", {1.625, 5.7, 0.06}, 6500},
    {"small block, offset to the other side", {1.625, 5.7, -0.06}, 6500},
    {"long stroke, short rod", {2.125, 6.135, 0.1}, 5000},
    {"motorcycle, wide offset", {0.82, 3.6, -0.35}, 14500},
    {"model engine", {0.25, 1.1, 0.02}, 22000},
    {"crosshead of a long rod", {3, 60, 1}, 400},
};

/// The derivative of a function of the crank angle in degrees by its angle, from four points
/// at two distances, so that the error falls with the fourth power of the distance.
template <class Function>
double Derivative(Function f, double degrees) {
  constexpr double h = 0.05;
  return (8 * (f(degrees + h) - f(degrees - h)) - (f(degrees + 2 * h) - f(degrees - 2 * h))) /
         (12 * h);
}

/// Largest size of a function over the turn, what its errors are measured by.
template <class Function>
double Largest(Function f) {
  double largest = 0;
  for (int d = 0; d < 360; ++d) largest = std::max(largest, std::abs(f(d)));
  return largest;
}

TEST(PistonMotion, VelocityIsTheDerivativeOfTravel) {
  for (const auto& [name, slider, rpm] : kEngines) {
    const auto travel = [&, s = slider](double d) { return PistonTravelAt(s, d); };
    const auto velocity = [&, s = slider, n = rpm](double d) {
      return PistonStateAt(s, n, d).velocity;
    };
    // Inches a degree to feet a second: rpm * 6 degrees a second, 12 inches a foot. The
    // velocity's pi has 15 digits, far more than the comparison asks for.
    const double scale = rpm * 6 / 12;
    const double size = Largest(velocity);
    for (double d = 0; d <= 360; d += 0.25) {
      ASSERT_NEAR(velocity(d), Derivative(travel, d) * scale, size * 1e-6) << name << " at " << d;
      if (std::abs(velocity(d)) > size / 1000) {
        ASSERT_NEAR(velocity(d) / (Derivative(travel, d) * scale), 1, 1e-6) << name << " at " << d;
      }
    }
  }
}

TEST(PistonMotion, AccelerationIsTheDerivativeOfVelocity) {
  for (const auto& [name, slider, rpm] : kEngines) {
    const auto velocity = [&, s = slider, n = rpm](double d) {
      return PistonStateAt(s, n, d).velocity;
    };
    const auto acceleration = [&, s = slider, n = rpm](double d) {
      return PistonStateAt(s, n, d).acceleration;
    };
    const double scale = rpm * 6;
    const double size = Largest(acceleration);
    for (double d = 0; d <= 360; d += 0.25) {
      ASSERT_NEAR(acceleration(d), Derivative(velocity, d) * scale, size * 1e-6)
          << name << " at " << d;
      if (std::abs(acceleration(d)) > size / 1000) {
        ASSERT_NEAR(acceleration(d) / (Derivative(velocity, d) * scale), 1, 1e-6)
            << name << " at " << d;
      }
    }
  }
}

TEST(PistonMotion, TravelIsTheFallOfThePistonsHeight) {
  for (const auto& [name, s, rpm] : kEngines) {
    for (double d = -180; d <= 360; d += 7.5) {
      // The pin on its circle and the wrist pin on its line are a rod's length apart.
      const double top =
          std::sqrt((s.rodLength + s.radius) * (s.rodLength + s.radius) - s.offset * s.offset);
      const double height = top - PistonTravelAt(s, d);
      const double along = height - s.radius * std::cos(d * kPi / 180);
      const double across = s.radius * std::sin(d * kPi / 180) + s.offset;
      EXPECT_NEAR(std::hypot(along, across), s.rodLength, 1e-12 * s.rodLength) << name << ' ' << d;
      EXPECT_NEAR(std::sin(RodAngleAt(s, d)) * s.rodLength, across, 1e-12 * s.rodLength);
      EXPECT_DOUBLE_EQ(PistonStateAt(s, rpm, d).travel, PistonTravelAt(s, d));
    }
  }
}

TEST(PistonMotion, ThePistonIsFastestWhereTheAccelerationIsZero) {
  for (const auto& [name, slider, rpm] : kEngines) {
    const double fastest = FastestCrankAngle(slider, rpm);
    const double size =
        Largest([&, s = slider, n = rpm](double d) { return PistonStateAt(s, n, d).acceleration; });
    EXPECT_NEAR(PistonStateAt(slider, rpm, fastest).acceleration / size, 0, 1e-12) << name;
    const double speed = PistonStateAt(slider, rpm, fastest).velocity;
    for (double d = 0; d <= 180; d += 1) {
      EXPECT_LE(PistonStateAt(slider, rpm, d).velocity, speed * (1 + 1e-12)) << name << ' ' << d;
    }
  }
}

TEST(PistonMotion, TheFastestAngleCountsFromItsOrigin) {
  const CrankSlider slider{1.625, 5.7, 0.06};
  const double top = TopDeadCentre(slider);
  EXPECT_NEAR(FastestCrankAngle(slider, 6500, top) + top, FastestCrankAngle(slider, 6500), 1e-11);
}

TEST(PistonMotion, ThePeakSpeedIsTheSpeedAtTheFastestAngle) {
  for (const auto& [stroke, rod] : {std::pair{3.25, 5.7}, {4.25, 6.135}, {2.0, 8.0}}) {
    const CrankSlider slider{stroke / 2, rod, 0};
    const double atAngle = PistonStateAt(slider, 6500, FastestCrankAngle(slider, 6500)).velocity;
    // The fraction stops after its second term.
    EXPECT_NEAR(FastestPistonSpeed(stroke, rod, 6500) / (atAngle * 60), 1, 1e-5) << stroke;
  }
}

TEST(PistonMotion, AnEngineWithoutAHighestSpeedFailsAndDoesNotHang) {
  EXPECT_THROW(FastestCrankAngle({1.625, 5.7, 0}, 0), CommandError);
  EXPECT_THROW(FastestCrankAngle({1.625, 5.7, 0.1}, 0), CommandError);
}

TEST(PistonMotion, TheDeadCentresAreWhereThePistonStandsStill) {
  for (const auto& [name, slider, rpm] : kEngines) {
    const double top = TopDeadCentre(slider);
    const double bottom = BottomDeadCentre(slider);
    EXPECT_NEAR(PistonStateAt(slider, rpm, top).velocity, 0, 1e-9) << name;
    EXPECT_NEAR(PistonStateAt(slider, rpm, bottom).velocity, 0, 1e-9) << name;
    EXPECT_NEAR(PistonTravelAt(slider, top), 0, 1e-12) << name;
    EXPECT_NEAR(PistonTravelAt(slider, bottom), ActualStroke(slider), 1e-12) << name;
  }
}

TEST(PistonMotion, CrankAndRodAreSquareAtTheRightAngle) {
  for (const auto& [name, slider, rpm] : kEngines) {
    const double d = RightAngleCrankDegrees(slider);
    EXPECT_NEAR(180 - (RodAngleAt(slider, d) * 180 / kPi + d), 90, 1e-10) << name;
  }
}

TEST(PistonMotion, CrankDegreesAreTheInverseOfTravel) {
  for (double d = 0.5; d < 180; d += 0.5) {
    EXPECT_NEAR(CrankDegreesAtTravel(3.25, 5.7, PistonTravelAt({1.625, 5.7, 0}, d)), d, 1e-8) << d;
  }
  for (const double offset : {0.06, -0.06, 0.2}) {
    const CrankSlider slider{1.625, 5.7, offset};
    // Before the true top and behind the true bottom a travel comes twice; the walk ends at 180.
    const double first = std::max(TopDeadCentre(slider), 0.0) + 0.5;
    const double largest = PistonTravelAt(slider, 180);
    int found = 0;
    for (double d = first; d < 180; d += 0.5) {
      const double travel = PistonTravelAt(slider, d);
      if (travel >= largest) break;
      EXPECT_NEAR(CrankDegreesAtTravel(slider, travel), d, 1.01e-7) << offset << ' ' << d;
      ++found;
    }
    EXPECT_GT(found, 340);
  }
}

TEST(PistonMotion, TheWholeStrokeIsExactlyHalfATurn) {
  EXPECT_EQ(CrankDegreesAtTravel(3.25, 5.7, 3.25), 180);
  EXPECT_EQ(CrankDegreesAtTravel(82.55, 144.78, 82.55), 180);
}

TEST(PistonMotion, ATravelBeyondTheStrokeFailsInWords) {
  const auto message = [](auto call) {
    try {
      call();
    } catch (const CommandError& error) {
      return error.message();
    }
    return std::string("no error");
  };
  EXPECT_EQ(message([] { CrankDegreesAtTravel(3.25, 5.7, 3.250001); }),
            "Piston travel Greater Than Stroke");
  EXPECT_EQ(message([] {
              CrankDegreesAtTravel(CrankSlider{1.625, 5.7, 0.1}, 3.3);
            }),
            "Piston travel Greater Than Stroke");
}

TEST(PistonMotion, AnImpossibleRodHasNoTravel) {
  EXPECT_TRUE(std::isnan(PistonTravelAt({1.625, 1.5, 0}, 90)));
  EXPECT_TRUE(std::isnan(PistonStateAt({1.625, 5.7, 5}, 6500, 90).velocity));
}

// A bore of 4 inches moves 12.566371 square inches; at 100 feet a second that is 8.726646 cubic
// feet a second, 523.598776 a minute, half of which counts.
TEST(PistonMotion, FlowIsAreaTimesSpeed) {
  EXPECT_NEAR(PistonFlowCfm(4, 100), 261.799388, 1e-6);
  // 0.028316847 cubic metres are a cubic foot.
  EXPECT_NEAR(PistonFlowCubicMetres(101.6, 100), 261.799388 / 60 * 0.028316847, 1e-8);
  EXPECT_NEAR(PortSpeedRatio(0.85, 4, 2), 3.4, 1e-12);
}

TEST(PistonMotion, ForcesFollowFromWeightsAndAcceleration) {
  const RodWeights weights{600, 700, 200};
  for (const auto& [name, slider, rpm] : kEngines) {
    for (double d = 0; d <= 360; d += 30) {
      const double metres = PistonStateAt(slider, rpm, d).acceleration * 0.3048;
      const CrankpinForces forces = CrankpinForcesAt(slider, rpm, weights, d);
      const double newtons = 0.8 * metres;  // piston and small end weigh 800 g
      const double size = std::abs(newtons) + 1;
      EXPECT_NEAR(forces.reciprocatingNewtons, newtons, 1e-12 * size) << name;
      EXPECT_NEAR(forces.inertiaNewtons, 0.6 * metres, 1e-12 * size) << name;
      EXPECT_NEAR(forces.sidePounds * 4.448222, newtons * std::tan(RodAngleAt(slider, d)),
                  1e-11 * size);
      EXPECT_NEAR(forces.torqueNewtonMetres, forces.tangentNewtons * slider.radius * 0.0254,
                  1e-12 * size);
      EXPECT_NEAR(CrankpinLoadNewtons(weights, metres / 0.3048), 1.3 * metres, 1e-11 * size);
    }
  }
}

// At the top the piston's pull and the big end's add up; the big end's 500 g on a circle of
// 1.625 inches at 6500 RPM pull with m w^2 r.
TEST(PistonMotion, TheTotalForceAtTheTopIsASum) {
  const RodWeights weights{600, 700, 200};
  const CrankSlider slider{1.625, 5.7, 0};
  const double w = 2 * kPi * 6500 / 60;
  const double rotating = 0.5 * w * w * 1.625 * 0.0254 / 4.448222;
  const CrankpinForces top = CrankpinForcesAt(slider, 6500, weights, 0);
  EXPECT_NEAR(top.totalPounds / (rotating + top.reciprocatingNewtons / 4.448222), 1, 1e-6);
  EXPECT_NEAR(BigEndRotationalForce(500, 82.55, 6500) / 4.448222 / rotating, 1, 1e-12);
  EXPECT_NEAR(CrankpinAcceleration(3.25, 6500, 12), w * w * 1.625 / 12, 1e-6);
  EXPECT_NEAR(CrankpinAcceleration(82.55, 6500, 1000), w * w * 0.041275, 1e-6);
}

// The power of the torque is that of the reciprocating weight: torque times crank speed is
// force times piston speed where the wrist pin has no offset.
TEST(PistonMotion, TheTorqueDoesTheWorkOfTheReciprocatingForce) {
  const RodWeights weights{600, 700, 200};
  const CrankSlider slider{1.625, 5.7, 0};
  const double w = 2 * kPi * 6500 / 60;
  for (double d = 5; d < 360; d += 5) {
    const CrankpinForces forces = CrankpinForcesAt(slider, 6500, weights, d);
    const double metres = PistonStateAt(slider, 6500, d).velocity * 0.3048;
    EXPECT_NEAR(forces.torqueNewtonMetres * w, forces.reciprocatingNewtons * metres,
                1e-9 * std::abs(forces.reciprocatingNewtons * 30) + 1e-6)
        << d;
  }
}

}  // namespace
}  // namespace veldox
