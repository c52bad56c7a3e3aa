#pragma once

namespace veldox {

/// Estimates of air flow, power, carburettors, intakes and filters of four-stroke engines. Flows
/// are in CFM: those of ports for one cylinder at 28 inches of water.

/// Cubic inches times RPM of a four-stroke engine that sweeps one cubic foot in a minute.
inline constexpr double kSweptPerCubicFoot = 3456;

/// How much intake flow a kind of engine needs for a horsepower of each cylinder.
inline constexpr double kProStockFlow = 3.1875;
inline constexpr double kRacingFlow = 3.773;
inline constexpr double kStreetFlow = 3.125 * 1.31;
/// Horsepower of each cylinder for a CFM of intake flow, by the formula for air flow.
inline constexpr double kHorsepowerPerFlow = 0.25714;

/// Flow of the intake port of one cylinder.
/// @param flowPerHorsepower  of the kind of engine
double IntakeFlowOf(double horsepower, double cylinders, double flowPerHorsepower);

/// The horsepower that an intake port is good for: the inverse of IntakeFlowOf.
double HorsepowerOfFlow(double intakeFlow, double cylinders, double flowPerHorsepower);

/// The speed of most power in RPM of an engine with an intake flow.
double RpmOfMostHorsepower(double intakeFlow, double cubicInches, double cylinders);

/// CFM of air that an engine draws through its carburettor or throttle body.
/// @param volumetricEfficiency  a fraction
double CarburetorFlow(double cubicInches, double rpm, double volumetricEfficiency);

/// The same under a blower. @param boost  psi
double BlownCarburetorFlow(double cubicInches, double rpm, double boost,
                           double volumetricEfficiency);

/// The carburettor for the little vacuum that a race engine has at full throttle.
/// @param vacuum  inches of mercury at wide open throttle
double RaceCarburetorFlow(double carburetorFlow, double vacuum);

/// Horsepower on alcohol of an engine that makes a horsepower on gasoline.
double AlcoholHorsepower(double horsepower);

/// Length in inches of an intake runner. @param portDiameter  inches
double RunnerLength(double cubicInches, double portDiameter, double peakTorqueRpm);

/// Length in inches of an intake runner, by the speed of most power.
double RunnerLengthForPower(double rpmOfMostPower);

/// What a square inch of a filter element lets through, in cubic inches times RPM.
inline constexpr double kPaperElement = kSweptPerCubicFoot * 7.25;
inline constexpr double kFoamElement = 20839 * 1.3767;

/// Square inches of a filter element. @param element  what a square inch lets through
double FilterArea(double cubicInches, double rpm, double element);

/// Height in inches of a round filter of an area and a diameter in inches.
double FilterHeight(double area, double diameter);

/// The flow at another depression: flow goes with the square root of the pressure. The
/// depressions are in one unit, whichever.
double FlowAtDepression(double flow, double depression, double newDepression);

inline constexpr double kMillimetresWaterPerInch = 25.4;
inline constexpr double kCubicMetresPerSecondOfCfm = 0.0004719474431666667;

/// Volumetric efficiency, a fraction, of an engine that makes a horsepower: its mean effective
/// pressure in atmospheres over the compression ratio.
double VolumetricEfficiencyOfPower(double horsepower, double cubicInches, double rpm,
                                   double compressionRatio);

/// Brake specific fuel consumption in pounds an hour for a horsepower, from the compression ratio.
double BsfcOfCompression(double compressionRatio);

}  // namespace veldox
