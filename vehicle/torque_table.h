#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "core/parameter_block.h"

namespace veldox {

/// A point of the torque table: RPM, torque in lb-ft, and what a dyno has measured beside it, each
/// 0 where it has not: fuel in pounds an hour, BSFC, air/fuel ratio, SCFM, BSAC.
using TorquePoint = std::array<double, 7>;

/// @return the points in use
std::vector<TorquePoint> TorquePoints(const ParameterBlock& block);

/// Puts points into use in place of those there were.
/// @throws CommandError (InvalidArgument) as RequireTorquePoints, and for more than kTorqueRows
void SetTorquePoints(ParameterBlock& block, const std::vector<TorquePoint>& points);

/// @throws CommandError (InvalidArgument) for fewer than two points, and for ones whose RPM does
///         not rise
void RequireTorquePoints(const std::vector<TorquePoint>& points);

/// One line a point under each other, below a line that names the columns; measured columns stand
/// where a point has one of them.
std::string TorqueTableText(const std::vector<TorquePoint>& points, DecimalMark mark);

/// Reads lines of RPM, torque and up to five more numbers, parted by blanks, tabs or semicolons;
/// lines of a parameter file ("Acceleration = 5000 700", "Accelerat HP = 5000 666") among them.
/// Empty lines and those that begin with a semicolon say nothing.
/// @throws CommandError (InvalidArgument, NotANumber) that tells the line
std::vector<TorquePoint> ReadTorqueTable(std::string_view text, DecimalMark mark);

/// Such as "11 points from 5000 to 10000 RPM; most torque 840.0 lb-ft at 7500 RPM, most power
/// 1340.4 HP at 9000 RPM".
std::string TorquePeaksText(const std::vector<TorquePoint>& points, DecimalMark mark);

}  // namespace veldox
