#include "engine/piston_motion.h"

#include <cmath>

#include "core/error.h"
#include "core/numbers.h"
#include "core/step_bound.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr double kDegreesInTurn = 360;

double Radians(double degrees) {
  return degrees * kPi / 180;
}

double Degrees(double radians) {
  return radians * 180 / kPi;
}

double RodSine(const CrankSlider& s, double t) {
  return (s.radius * std::sin(t) + s.offset) / s.rodLength;
}

double TravelAt(const CrankSlider& s, double t, double rodSine) {
  const double top = s.rodLength + s.radius;
  return std::sqrt(top * top - s.offset * s.offset) - s.radius * std::cos(t) -
         std::sqrt(1 - rodSine * rodSine) * s.rodLength;
}

/// RPM^2 pi^2 2r / 21600: the centripetal acceleration of the crank pin.
double PinAcceleration(const CrankSlider& s, double rpm) {
  return rpm * rpm * (kPi * kPi) * (2 * s.radius) / 21600;
}

/// Acceleration of a piston without offset, in the form that has no angle of the rod.
double AlignedAcceleration(const CrankSlider& s, double rpm, double degrees) {
  const double t = Radians(degrees);
  const double ratio = (2 * s.rodLength) / (2 * s.radius);
  const double squared = ratio * ratio;
  const double sine = std::sin(t);
  return PinAcceleration(s, rpm) *
         ((std::pow(sine, 4) + squared * std::cos(2 * t)) / std::pow(squared - sine * sine, 1.5) +
          std::cos(t));
}

[[noreturn]] void FailBeyondStroke() {
  throw CommandError(ErrorKind::InvalidArgument, "Piston travel Greater Than Stroke");
}

}  // namespace

PistonState PistonStateAt(const CrankSlider& slider, double rpm, double degrees) {
  const double t = Radians(degrees);
  const double sine = std::sin(t);
  const double cosine = std::cos(t);
  const double rodSine = (slider.radius * sine + slider.offset) / slider.rodLength;
  const double rodCosine = std::sqrt(1 - rodSine * rodSine);
  const double top = slider.rodLength + slider.radius;
  PistonState state;
  state.rodAngle = ArcSin(rodSine);
  const double rodTangent = std::tan(state.rodAngle);
  state.travel = std::sqrt(top * top - slider.offset * slider.offset) - slider.radius * cosine -
                 rodCosine * slider.rodLength;
  state.velocity = (kPi * rpm * (2 * slider.radius) / 720) * (cosine * rodTangent + sine);
  state.acceleration =
      PinAcceleration(slider, rpm) *
      (cosine * cosine * (slider.radius / slider.rodLength) / std::pow(rodCosine, 3) + cosine -
       sine * rodTangent);
  return state;
}

double PistonTravelAt(const CrankSlider& slider, double degrees) {
  const double t = Radians(degrees);
  return TravelAt(slider, t, RodSine(slider, t));
}

double RodAngleAt(const CrankSlider& slider, double degrees) {
  return ArcSin(RodSine(slider, Radians(degrees)));
}

double FastestCrankAngle(const CrankSlider& slider, double rpm, double origin) {
  constexpr int kDigits = 14;
  double degrees = 0;
  double step = 10;
  StepBound bound(kMostDigitSteps);
  for (int digit = 0; digit < kDigits; ++digit) {
    double acceleration = 0;
    while (acceleration >= 0) {
      bound.Step();
      degrees += step;
      if (degrees > kDegreesInTurn) {
        throw CommandError(ErrorKind::InvalidArgument,
                           "The piston of this engine has no highest speed within a turn of the "
                           "crank.");
      }
      acceleration = slider.offset == 0 ? AlignedAcceleration(slider, rpm, degrees)
                                        : PistonStateAt(slider, rpm, origin + degrees).acceleration;
    }
    degrees -= step;
    step /= 10;
  }
  return degrees;
}

double FastestPistonSpeed(double stroke, double rodLength, double rpm) {
  const double ratio = 2 * rodLength / stroke;
  const double tangent =
      ratio +
      (stroke / 2) / ((stroke / 2) / (ratio + (stroke / 3 + stroke) / rodLength) + rodLength);
  const double angle = std::atan(tangent);
  const double sine = std::sin(angle);
  return (kPi * rpm * stroke / 12) * sine *
         (std::cos(angle) / std::sqrt(ratio * ratio - sine * sine) + 1);
}

double TopDeadCentre(const CrankSlider& slider) {
  return Degrees(ArcSin(-slider.offset / (slider.radius + slider.rodLength)));
}

double BottomDeadCentre(const CrankSlider& slider) {
  return Degrees(ArcSin(-slider.offset / (slider.rodLength - slider.radius))) + 180;
}

double ActualStroke(const CrankSlider& slider) {
  const double longest = slider.rodLength + slider.radius;
  const double shortest = slider.rodLength - slider.radius;
  const double offset = slider.offset * slider.offset;
  return std::sqrt(longest * longest - offset) - std::sqrt(shortest * shortest - offset);
}

double RightAngleCrankDegrees(const CrankSlider& slider) {
  // The crank pin stands where r sin t + e = L cos t.
  const double hypotenuse =
      std::sqrt(slider.rodLength * slider.rodLength + slider.radius * slider.radius);
  return Degrees(ArcCos(slider.offset / hypotenuse) - std::atan(slider.radius / slider.rodLength));
}

double CrankDegreesAtTravel(double stroke, double rodLength, double travel) {
  if (travel > stroke) FailBeyondStroke();
  if (travel == stroke) return 180;
  const double radius = stroke / 2;
  const double height = rodLength + radius - travel;
  const double cosine =
      (height * height + radius * radius - rodLength * rodLength) / (height * (2 * radius));
  // At the ends the quotient may be rounded beyond 1.
  if (cosine >= 1) return 0;
  if (cosine <= -1) return 180;
  return Degrees(ArcCos(cosine));
}

double CrankDegreesAtTravel(const CrankSlider& slider, double travel) {
  constexpr int kDigits = 9;
  double angle = 0;
  double step = 100;
  StepBound bound(kMostDigitSteps);
  for (int digit = 0; digit < kDigits; ++digit) {
    step /= 10;
    double reached = 0;
    while (reached <= travel) {
      bound.Step();
      angle += step;
      if (angle > 180) FailBeyondStroke();
      reached = PistonTravelAt(slider, angle);
    }
    angle -= step;
  }
  return angle;
}

double PistonFlowCfm(double bore, double velocity) {
  return (kPi * ((bore / 2) * (bore / 2)) / 144) * (velocity * 60) / 2;
}

double PistonFlowCubicMetres(double bore, double velocity) {
  return (kPi * ((bore / 2) * (bore / 2)) / 1000000) * (velocity * kMetresPerFoot) / 2;
}

double PortSpeedRatio(double volumetricEfficiency, double bore, double portDiameter) {
  return volumetricEfficiency * (bore * bore / 144) / (portDiameter * portDiameter / 144);
}

CrankpinForces CrankpinForcesAt(const CrankSlider& slider, double rpm, const RodWeights& weights,
                                double degrees) {
  constexpr double kFeetPerSecondSquared = 32.17405;  // of gravity
  // The rod's weight is shared between its ends as its centre of gravity stands between them.
  const double bigEndShare = weights.BigEnd() / weights.rod;
  const double rotatingPounds = bigEndShare * weights.rod / kGramsPerPound;
  const double reciprocatingKilograms = ((1 - bigEndShare) * weights.rod + weights.piston) / 1000;

  const double t = Radians(degrees);
  const double sine = std::sin(t);
  const double cosine = std::cos(t);
  const PistonState piston = PistonStateAt(slider, rpm, degrees);
  const double metric = piston.acceleration * kMetresPerFoot;
  const double ratio = slider.rodLength / slider.radius;
  CrankpinForces forces;
  forces.reciprocatingNewtons = metric * reciprocatingKilograms;
  const double reciprocatingPounds = forces.reciprocatingNewtons / kNewtonsPerPound;
  const double spin = 2 * (rpm * rpm) * (kPi * kPi) * (rotatingPounds / kFeetPerSecondSquared) *
                      slider.radius / 21600;
  const double along = spin * cosine + reciprocatingPounds;
  const double across = spin * sine;
  forces.totalPounds = std::sqrt(along * along + across * across);
  forces.sidePounds = std::tan(piston.rodAngle) * reciprocatingPounds;
  forces.inertiaNewtons = metric * weights.piston / 1000;
  forces.tangentNewtons =
      (cosine / std::sqrt(ratio * ratio - sine * sine) + 1) * sine * forces.reciprocatingNewtons;
  forces.torqueNewtonMetres = slider.radius * forces.tangentNewtons * kMillimetresPerInch / 1000;
  return forces;
}

double CrankpinLoadNewtons(const RodWeights& weights, double acceleration) {
  return acceleration * kMetresPerFoot * ((weights.piston + weights.rod) / 1000);
}

double CrankpinAcceleration(double stroke, double rpm, double perUnit) {
  const double speed = 2 * rpm * kPi / 60;
  return speed * speed * stroke / (2 * perUnit);
}

double BigEndRotationalForce(double bigEndWeight, double stroke, double rpm) {
  const double speed = 2 * rpm * kPi / 60;
  return speed * speed * (bigEndWeight / 1000) * (stroke / (2 * 1000));
}

}  // namespace veldox
