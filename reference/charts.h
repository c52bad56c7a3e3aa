#pragma once

#include <string>

#include "core/numbers.h"

namespace veldox {

/// Charts to hang up in the workshop. Each is a report that begins with ChartPrompt: title and
/// heads are headings, which printed pages repeat. Their figures stand in tables of data/, each
/// with its source; what converts takes the factors of the unit screen.

/// Fractions of an inch by 64ths, in inches and millimetres.
std::string FractionChart(DecimalMark mark);

/// Number drills, their diameters in inches.
std::string NumberDrillChart(DecimalMark mark);

/// Letter drills, their diameters in inches.
std::string LetterDrillChart(DecimalMark mark);

/// Drills by 64ths, number and letter in the order of their size, in inches and millimetres.
std::string AllDrillChart(DecimalMark mark);

/// Drills for inch taps of the coarse and the fine thread.
std::string TapDrillChart(DecimalMark mark);

/// Drills for taps of taper pipe threads.
std::string PipeTapChart(DecimalMark mark);

/// Drills for metric taps.
std::string MetricTapChart(DecimalMark mark);

/// What the numbers of steels tell.
std::string SteelChart(DecimalMark mark);

/// Hoses, tubes and threads of dash sizes.
std::string DashSizeChart(DecimalMark mark);

/// A table from one unit to another, its first hundred steps.
/// @param command  number of the chart's button
/// @throws CommandError (IndexOutOfRange) for a button without such a table
std::string ConversionChart(int command, DecimalMark mark);

}  // namespace veldox
