#pragma once

#include <string>

#include "airfuel/mass_air.h"
#include "core/error.h"
#include "core/numbers.h"

namespace veldox {

/// Tables of the air, fuel and horsepower of an engine around its values, as reports.

/// From, to and step of a table's rows, columns or blocks, as offsets from the value entered. The
/// end may be a little beyond the last step, so that rounding does not lose it.
struct ReportRange {
  double from;
  double to;
  double step;
};

/// How far and how finely the reports go around the values entered.
struct ReportGrid {
  ReportRange rpm;
  ReportRange volumetricEfficiency;
  ReportRange airFuel;         ///< columns of the report of air and fuel
  ReportRange bsfc;            ///< columns
  ReportRange airFuelOfSpeed;  ///< blocks of the report of one speed
  bool isLarge;                ///< the layout of many columns
};

inline constexpr int kReportGridCount = 6;

/// The grid of a choice. @throws std::out_of_range beyond them
const ReportGrid& ReportGridOf(int option);

/// What the reports are made of.
struct MassAirValues {
  double cubicInches = 0;
  double cylinders = 0;
  double rpm = 0;
  double boost = 0;                 ///< psi
  double volumetricEfficiency = 0;  ///< a fraction
  double airFuelRatio = 0;
  double lambdaOrRatio = 0;  ///< as it was entered
  double bsfc = 0;           ///< pounds an hour for a horsepower
  double fahrenheit = 0;
  double inchesMercury = 0;
  InletAir air{};
};

/// How a report is to be made.
struct MassAirLayout {
  const ReportGrid& grid;
  bool oneBlock;  ///< only the block of the value entered
  DecimalMark mark;
};

/// Which of the values makes a report impossible.
enum class ReportAxis { Rpm, VolumetricEfficiency, AirFuel, Bsfc, Cylinders };

/// Thrown by reports that cannot be made.
struct ReportFault {
  ReportAxis axis;
  ErrorKind kind;
  const char* message;  ///< follows the name of the value
};

// The reports. All throw ReportFault, and CommandError (Overflow) for numbers that cannot be
// written.

/// Fuel flow by speed, volumetric efficiency and air/fuel ratio.
std::string AirFuelReport(const MassAirValues& values, const MassAirLayout& layout);

/// Horsepower by speed, volumetric efficiency and BSFC.
std::string BsfcReport(const MassAirValues& values, const MassAirLayout& layout);

/// Horsepower at one speed by air/fuel ratio, volumetric efficiency and BSFC.
std::string SpeedReport(const MassAirValues& values, const MassAirLayout& layout);

/// What an engine takes and makes at one speed.
struct DynoPoint {
  double poundsOfAir;   ///< an hour
  double poundsOfFuel;  ///< an hour
  double horsepower;
};

/// A dyno sheet and its last row.
struct DynoSheet {
  std::string report;
  DynoPoint last;
};

/// Uncorrected horsepower, torque, fuel and air up to and beyond the peak's speed, once with the
/// same volumetric efficiency all the way and once with one that falls on both sides of the peak.
/// @param oneRow  only the speed entered
DynoSheet DynoReport(const MassAirValues& values, bool oneRow, DecimalMark mark);

}  // namespace veldox
