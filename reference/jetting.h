#pragma once

#include <string>
#include <vector>

#include "core/numbers.h"
#include "reference/weather.h"

namespace veldox {

/// Carburettor jets for another weather: the fuel follows the mass of the air, so that the area of
/// a jet changes with the pressure of the dry air and with its temperature. Diameters are in
/// inches.
///
/// Results are not finite where there is no air (see Air), and with a metering rod that is thicker
/// than its jet.

/// What a carburettor was set up for, and what it meets now.
struct WeatherChange {
  Air before;
  Air after;
};

/// The new jet. The pressures count new over old and the temperatures old over new.
double JetForWeather(double jet, const WeatherChange& change);

/// The new bypass jet of a fuel injection, which returns what the engine is not to get: the same
/// with both proportions turned round.
double BypassJetForWeather(double jet, const WeatherChange& change);

/// The new jet without a metering rod that flows what the old jet with its rod is to flow, plus
/// the rod's own area.
double JetWithRodForWeather(double jet, double rod, const WeatherChange& change);

/// The new metering rod while the jet stays. Not finite where even the open jet is too small.
double MeteringRodForWeather(double jet, double rod, const WeatherChange& change);

/// A jet with the metering rod that makes it right.
struct JettingRow {
  double jet = 0;
  double rod = 0;
};

/// The jets in whole thousandths from the old one up to 1.3 times it, each with the rod that makes
/// it right; jets that would be too small without any rod are left out.
/// @throws CommandError (InvalidArgument) beyond a jet of 10 inches, for a rod thicker than its
///         jet, where there is no air, and where no jet is large enough
std::vector<JettingRow> JettingRows(double jet, double rod, const WeatherChange& change);

/// What the jetting report tells of.
struct JettingReportInput {
  double jet = 0;
  double rod = 0;
  WeatherChange change;
  double humidity = 0;     ///< percent
  double humidityNew = 0;  ///< percent
  bool metric = false;     ///< pressures are told in millibar, temperatures in degrees Celsius
};

/// The weathers, the old jet and rod, and every pair of JettingRows.
/// @throws CommandError as JettingRows and FormatByPattern do
std::string JettingReport(const JettingReportInput& input, DecimalMark mark);

}  // namespace veldox
