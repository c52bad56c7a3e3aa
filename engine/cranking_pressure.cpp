#include "engine/cranking_pressure.h"

#include <array>
#include <cmath>

#include "core/error.h"
#include "core/numbers.h"
#include "core/step_bound.h"
#include "core/units.h"
#include "engine/displacement.h"
#include "reference/weather.h"

namespace veldox {

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943278;
constexpr double kDegreesPerRadian = 57.29577951308238;
/// Of the compression at cranking speed, which loses little heat.
constexpr double kCompressionExponent = 1.29;

/// The crank angle at which an offset piston stands at its bottom, less half a turn.
double BottomLead(const CylinderSize& size) {
  return ArcSin(-size.offset / (size.rodLength - size.stroke / 2)) * kDegreesPerRadian;
}

ClosedCylinder CylinderAt(const CylinderSize& size, double crankAngle) {
  ClosedCylinder cylinder;
  const CrankSlider slider = size.Slider();
  cylinder.dynamicStroke = PistonTravelAt(slider, crankAngle);
  cylinder.actualStroke = ActualStroke(slider);
  cylinder.pistonArea = PistonArea(size.bore);
  cylinder.sweptCc = cylinder.pistonArea * cylinder.actualStroke / kCubicInchesPerCc;
  cylinder.closedCc = cylinder.pistonArea * cylinder.dynamicStroke / kCubicInchesPerCc;
  return cylinder;
}

[[noreturn]] void Fail(const char* message) {
  throw CommandError(ErrorKind::InvalidArgument, message);
}

}  // namespace

VaporPressures VaporPressuresAt(double celsius, double humidity) {
  constexpr double kTrace = 1e-33;
  VaporPressures vapor;
  vapor.saturated = SaturationVaporPressure(celsius);
  vapor.actual = (humidity == 0 ? kTrace : humidity) / 100 * vapor.saturated;
  return vapor;
}

ClosedCylinder ClosedCylinderAt(const CylinderSize& size, double intakeClose) {
  return CylinderAt(size, BottomLead(size) + 180 + intakeClose);
}

ClosedCylinder CylinderAfterTop(const CylinderSize& size, double degrees) {
  return CylinderAt(size, CrankAngleAfterTop(size, degrees));
}

double CrankAngleAfterTop(const CylinderSize& size, double degrees) {
  return BottomLead(size) + degrees;
}

double CrankingPressure(double ratio, double base, DosRule rule) {
  const double absolute = std::pow(ratio, kCompressionExponent) * base;
  return rule == DosRule::On ? absolute - base : absolute;
}

double CompressionRatioForPressure(double reading, double base, DosRule rule,
                                   const ClosedCylinder& cylinder) {
  const double absolute = rule == DosRule::On ? reading + base : reading;
  return (std::pow(absolute / base, 1 / kCompressionExponent) - 1) * cylinder.sweptCc /
             cylinder.closedCc +
         1;
}

double CompressionRatioForDynamicRatio(double dynamicRatio, const ClosedCylinder& cylinder) {
  return (dynamicRatio - 1) * cylinder.actualStroke / cylinder.dynamicStroke + 1;
}

double OffsetForTopAngle(double degrees, double stroke, double rodLength) {
  return std::sin(degrees * kRadiansPerDegree) * (stroke / 2 + rodLength);
}

double DegreesBeforeTop(double stroke, double rodLength, double travel) {
  const double halfStroke = stroke / 2;
  const double height = halfStroke + rodLength - travel;
  const double cosine = (halfStroke * halfStroke + height * height - rodLength * rodLength) /
                        (2 * halfStroke * height);
  // At the ends the quotient may be rounded beyond 1.
  return ArcCos(std::fmax(-1, std::fmin(1, cosine))) * 180 / kPi;
}

double IntakeCloseForTravel(double stroke, double rodLength, double travel) {
  return 180 - DegreesBeforeTop(stroke, rodLength, travel);
}

double IntakeCloseForDynamicRatio(const CylinderSize& size, double compressionRatio,
                                  double dynamicRatio) {
  if (!(dynamicRatio >= 1 && dynamicRatio < compressionRatio)) {
    Fail("The dynamic compression ratio must be from 1 up to below the compression ratio.");
  }
  const CrankSlider slider = size.Slider();
  const double area = PistonArea(size.bore);
  const double swept = area * (size.offset == 0 ? size.stroke : ActualStroke(slider));
  const double clearance = swept / (compressionRatio - 1);
  const double closed = dynamicRatio * clearance - clearance;
  const double target = closed / area;
  if (size.offset == 0) return IntakeCloseForTravel(size.stroke, size.rodLength, target);

  constexpr int kDigits = 9;
  const double bottom = ArcSin(-size.offset / (size.rodLength - slider.radius)) * 180 / kPi + 180;
  double angle = 360;
  double step = 100;
  StepBound bound(kMostDigitSteps);
  for (int digit = 0; digit < kDigits; ++digit) {
    step /= 10;
    double travel = 0;
    // A wide step may pass over the bottom, beyond which the piston rises again.
    while (travel <= target && angle >= bottom) {
      bound.Step();
      angle -= step;
      travel = PistonTravelAt(slider, angle);
    }
    angle += step;
  }
  return angle - bottom;
}

double TravelForCrankingPressure(const CylinderSize& size, double compressionRatio, double reading,
                                 double base, DosRule rule) {
  const double area = PistonArea(size.bore);
  if (!(area > 0 && base > 0 && compressionRatio > 1)) {
    Fail("There is no pressure without a bore, air outside and a compression ratio above 1.");
  }
  if (!(reading > CrankingPressure(1, base, rule))) {
    Fail("No closing angle of the intake valve gives a Compression Gauge reading this low.");
  }
  const double clearance = (area * size.stroke / kCubicInchesPerCc) / (compressionRatio - 1);
  const auto pressureAt = [&](double travel) {
    const double closed = area * travel / kCubicInchesPerCc;
    return CrankingPressure((clearance + closed) / clearance, base, rule);
  };
  constexpr double kLongestTravel = 1000;
  constexpr double kFinestTravel = 0.00001;
  if (size.stroke < kFinestTravel) {
    Fail("The Stroke must not be below 0.00001, as fine as the closing angle is searched for.");
  }
  if (!(reading <= pressureAt(std::fmin(size.stroke, kLongestTravel)))) {
    Fail("No closing angle of the intake valve gives a Compression Gauge reading this high.");
  }
  constexpr int kDigits = 9;
  constexpr double kBeyondAll = 10000000;
  double step = 10 * kLongestTravel;
  double travel = kLongestTravel;
  StepBound bound(kMostDigitSteps);
  for (int digit = 0; digit < kDigits; ++digit) {
    step /= 10;
    double pressure = kBeyondAll;
    // At the top there is no compression left that the reading, above the base, could show.
    while (pressure >= reading && travel > 0) {
      bound.Step();
      travel -= step;
      pressure = pressureAt(travel);
    }
    travel += step;
  }
  // The walk ends up to a step beyond, which at the bottom is beyond the stroke.
  return std::fmin(travel, size.stroke);
}

double EstimatedOctane(double gauge, double inletAir, double water) {
  return (gauge - 185) / 5 + 93 + (inletAir - 120) / 10 + (water - 170) / 10;
}

std::vector<ExpansionPoint> PressureCurve(const Expansion& expansion) {
  constexpr int kStepsInDegree = 2;
  constexpr int kMostDegrees = 720;
  std::vector<ExpansionPoint> points;
  const ClosedCylinder start = CylinderAfterTop(expansion.size, expansion.startDegrees);
  const double clearance = start.sweptCc / (expansion.compressionRatio - 1);
  double pressure = expansion.startPressure;
  double volume = start.closedCc + clearance;
  points.push_back({expansion.startDegrees, pressure});
  StepBound bound(kMostDegrees * kStepsInDegree);
  for (int step = 1;; ++step) {
    bound.Step();
    const double degrees = expansion.startDegrees + static_cast<double>(step) / kStepsInDegree;
    if (!(degrees <= 180)) break;
    const double previous = volume;
    volume = CylinderAfterTop(expansion.size, degrees).closedCc + clearance;
    pressure = std::pow(previous / volume, expansion.exponent) * pressure;
    points.push_back({degrees, pressure});
  }
  return points;
}

double TurningForce(const CylinderSize& size, double pressure, double degrees, double armUnits) {
  const double crank = CrankAngleAfterTop(size, degrees);
  const double halfStroke = size.stroke / 2;
  const double rod =
      ArcSin((halfStroke * std::sin(crank * kRadiansPerDegree) + size.offset) / size.rodLength) *
      kDegreesPerRadian;
  return PistonArea(size.bore) * pressure * std::sin((180 - (rod + crank)) * kRadiansPerDegree) *
         std::cos(rod * kRadiansPerDegree) * (halfStroke / armUnits);
}

double TurningForceByRatio(const CylinderSize& size, double pressure, double degrees,
                           double armUnits) {
  const double crank = CrankAngleAfterTop(size, degrees) * kRadiansPerDegree;
  const double halfStroke = size.stroke / 2;
  return PistonArea(size.bore) * pressure * (halfStroke * std::sin(crank)) *
         ((halfStroke / size.rodLength) * std::cos(crank) + 1) / armUnits;
}

double LargestTurningForcePart(double startDegrees) {
  struct Step {
    double from;  ///< degrees
    double part;
  };
  constexpr std::array<Step, 11> kSteps = {{{60, 1.11},
                                            {55, 1.08},
                                            {50, 1.04},
                                            {45, 0.99},
                                            {40, 0.93},
                                            {35, 0.85},
                                            {30, 0.76},
                                            {25, 0.65},
                                            {20, 0.55},
                                            {15, 0.47},
                                            {10, 0.40}}};
  for (const Step& step : kSteps) {
    if (startDegrees >= step.from) return step.part;
  }
  return 0.36;
}

}  // namespace veldox
