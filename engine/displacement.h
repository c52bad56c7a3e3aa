#pragma once

namespace veldox {

/// Displacement, stack-up and piston speed of a reciprocating engine. Lengths are in one
/// unit throughout (inches, or millimetres or centimetres where the caller says so), areas
/// and volumes in its powers; formulas with a speed name their units.

/// Area of a bore.
double PistonArea(double bore);

/// Swept volume of all cylinders: piston area times stroke times cylinders.
double EngineSize(double bore, double stroke, double cylinders);

/// Bore that gives an engine size. Not finite when stroke or cylinders are 0.
double BoreForEngineSize(double engineSize, double stroke, double cylinders);

/// Stroke that gives an engine size. Not finite when bore or cylinders are 0.
double StrokeForEngineSize(double engineSize, double bore, double cylinders);

struct BoreAndStroke {
  double bore = 0;
  double stroke = 0;
};

/// Bore and stroke of a cylinder of a given volume and bore / stroke ratio, found digit by
/// digit: the bore is truncated, not rounded, at a millionth of the unit.
/// @throws CommandError (InvalidArgument) for a ratio that is not above 0 or a negative
///         volume, (Overflow) for a bore beyond kLargestBore
BoreAndStroke BoreAndStrokeByDigits(double cylinderVolume, double boreStrokeRatio);
inline constexpr double kLargestBore = 1e6;

/// The volume of a cylinder with the largest bore that BoreAndStrokeByDigits searches.
double LargestVolumeByDigits(double boreStrokeRatio);

/// Bore and stroke of a cylinder of a given volume and stroke / bore ratio.
BoreAndStroke BoreAndStrokeForStrokeBoreRatio(double cylinderVolume, double strokeBoreRatio);

/// Mean piston speed in feet a minute; stroke in inches, crank speed in RPM.
double MeanPistonSpeed(double stroke, double rpm);

/// Crank speed in RPM at a mean piston speed in feet a minute; stroke in inches.
double RpmForMeanPistonSpeed(double pistonSpeed, double stroke);

/// Stroke in inches that gives a mean piston speed in feet a minute at a crank speed in RPM.
double StrokeForMeanPistonSpeed(double pistonSpeed, double rpm);

/// Deck stack: half the stroke, rod, piston compression height and deck clearance add up to
/// the height of the block's deck over the crank's axis.
double BlockDeckHeight(double stroke, double rodLength, double compressionHeight,
                       double deckClearance);
double PistonCompressionHeight(double blockDeckHeight, double stroke, double rodLength,
                               double deckClearance);
double DeckClearance(double blockDeckHeight, double stroke, double rodLength,
                     double compressionHeight);

/// Horsepower that a larger bore may gain at the same engine size and rod ratio: the growth
/// of the piston area over 2.5, a rule of thumb.
double HorsepowerGain(double horsepower, double bore, double boreIncrease);

/// Surface speed of a bearing journal: inches and RPM give feet a second.
double JournalSpeed(double journalDiameter, double rpm);

/// Crank angle in degrees after top dead centre at which crank and rod stand at a right angle.
double CrankRodRightAngle(double rodLength, double stroke);

/// Crank angle in degrees at which piston and crank pin have the same speed.
double EqualSpeedCrankAngle(double rodLength, double stroke);

}  // namespace veldox
