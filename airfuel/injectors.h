#pragma once

namespace veldox {

/// Sizes of fuel injectors and what they are opened for. Injectors are rated by the pounds of
/// gasoline that they let through in an hour while they are open all the time; the duty cycle is
/// the fraction of the time that they are open.

/// The pressure drop at 28 inches of water that throttle bodies are rated at, to that of an engine.
inline constexpr double kThrottleBodyFactor = 1.17177;

/// How long one cycle of a four-stroke engine takes, in milliseconds: two revolutions.
double CycleMs(double rpm);

/// The same as pulse width and duty cycle go by it.
double FullPulse(double rpm);

/// Grams in a minute of a flow of pounds in an hour.
double GramsPerMinuteOf(double poundsPerHour);

/// Cubic centimetres of gasoline in a minute of a flow of pounds in an hour.
double CcPerMinuteOf(double poundsPerHour);

/// Gallons in an hour that the pump has to deliver at least.
/// @param rating  of an injector, in pounds an hour
double FuelPumpFlowOf(double rating, double injectors, double dutyCycle);

/// The rating of injectors for a horsepower.
/// @param bsfc  pounds of fuel an hour for a horsepower
double RatingForHorsepower(double horsepower, double bsfc, double injectors, double dutyCycle);

/// The most horsepower that injectors are good for at another fuel pressure than they are rated at.
double HorsepowerOfInjectors(double rating, double ratedPressure, double pressure, double dutyCycle,
                             double injectors, double bsfc);

/// The rating at another fuel pressure: the flow goes with the square root of the pressure.
double RatingAtPressure(double rating, double ratedPressure, double pressure);

/// The duty cycle that gives as much fuel at another pressure.
double DutyAtPressure(double dutyCycle, double ratedPressure, double pressure);

/// The pressure at which an injector lets through what one of another rating does.
double PressureForRating(double wantedRating, double rating, double ratedPressure);

/// Pounds of fuel in an hour that an engine needs, from the air that it sweeps.
double FuelFlowOf(double cubicInches, double rpm, double volumetricEfficiency, double airFuelRatio);

/// CFM of a throttle body at 28 inches of water.
double ThrottleBodyFlowOf(double cubicInches, double rpm, double volumetricEfficiency);

/// What an engine and its injectors work with.
struct InjectedEngine {
  double cubicInches;
  double rpm;
  double boost;                 ///< psi; 0 without a blower
  double volumetricEfficiency;  ///< a fraction
  double airFuelRatio;
  double injectors;
};

/// The rating of injectors for an engine. @param dutyCycle  while they let fuel through
double RatingForEngine(const InjectedEngine& engine, double dutyCycle);

/// The usual catalogue rating that is the next at or above a rating; 0 where there is none.
double NextStandardRating(double rating);

}  // namespace veldox
