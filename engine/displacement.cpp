#include "engine/displacement.h"

#include <cmath>

#include "core/error.h"
#include "core/numbers.h"
#include "core/step_bound.h"

namespace veldox {

double PistonArea(double bore) {
  return (bore / 2) * (bore / 2) * kPi;
}

double EngineSize(double bore, double stroke, double cylinders) {
  return (bore / 2) * (bore / 2) * kPi * stroke * cylinders;
}

double BoreForEngineSize(double engineSize, double stroke, double cylinders) {
  return 2 * std::sqrt(engineSize / (stroke * kPi * cylinders));
}

double StrokeForEngineSize(double engineSize, double bore, double cylinders) {
  return engineSize / ((bore / 2) * (bore / 2) * kPi * cylinders);
}

double LargestVolumeByDigits(double boreStrokeRatio) {
  return PistonArea(kLargestBore) * (kLargestBore / boreStrokeRatio);
}

BoreAndStroke BoreAndStrokeByDigits(double cylinderVolume, double boreStrokeRatio) {
  if (!(boreStrokeRatio > 0)) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "The bore / stroke ratio must be greater than 0.");
  }
  if (!(cylinderVolume >= 0)) {
    throw CommandError(ErrorKind::InvalidArgument, "The volume of a cylinder cannot be negative.");
  }
  // The walk takes as many steps as the bore has hundreds, so a bore out of all proportion
  // is refused before it.
  if (cylinderVolume > LargestVolumeByDigits(boreStrokeRatio)) {
    throw CommandError(ErrorKind::Overflow, "The volume of a cylinder is too large.");
  }
  double bore = 0;
  double step = 1000;
  StepBound bound(kMostDigitSteps);
  for (int digit = 0; digit < 9; ++digit) {
    step /= 10;
    double volume = 0;
    while (volume <= cylinderVolume) {
      bound.Step();
      bore += step;
      const double stroke = bore / boreStrokeRatio;
      volume = PistonArea(bore) * stroke;
    }
    bore -= step;
  }
  return {bore, bore / boreStrokeRatio};
}

BoreAndStroke BoreAndStrokeForStrokeBoreRatio(double cylinderVolume, double strokeBoreRatio) {
  const double bore = std::pow(4 * cylinderVolume / (strokeBoreRatio * kPi), 1.0 / 3);
  return {bore, bore * strokeBoreRatio};
}

double MeanPistonSpeed(double stroke, double rpm) {
  return stroke * rpm / 360 * 60;
}

double RpmForMeanPistonSpeed(double pistonSpeed, double stroke) {
  return pistonSpeed * 360 / stroke / 60;
}

double StrokeForMeanPistonSpeed(double pistonSpeed, double rpm) {
  return pistonSpeed * 360 / (rpm * 60);
}

double BlockDeckHeight(double stroke, double rodLength, double compressionHeight,
                       double deckClearance) {
  return stroke / 2 + rodLength + compressionHeight + deckClearance;
}

double PistonCompressionHeight(double blockDeckHeight, double stroke, double rodLength,
                               double deckClearance) {
  return blockDeckHeight - stroke / 2 - rodLength - deckClearance;
}

double DeckClearance(double blockDeckHeight, double stroke, double rodLength,
                     double compressionHeight) {
  return blockDeckHeight - stroke / 2 - rodLength - compressionHeight;
}

double HorsepowerGain(double horsepower, double bore, double boreIncrease) {
  const double oldArea = PistonArea(bore);
  const double newArea = PistonArea(bore + boreIncrease);
  const double fraction = (newArea / oldArea - 1) / 2.5;
  return horsepower * fraction;
}

double JournalSpeed(double journalDiameter, double rpm) {
  return journalDiameter * rpm * kPi / (60 * 12);
}

double CrankRodRightAngle(double rodLength, double stroke) {
  return std::atan(2 * rodLength / stroke) * 180 / kPi;
}

double EqualSpeedCrankAngle(double rodLength, double stroke) {
  const double ratio = 2 * rodLength / stroke;
  return ArcSin((std::sqrt(ratio * ratio + 8) - ratio) * (ratio / 4)) * 180 / kPi;
}

}  // namespace veldox
