#pragma once

#include "core/numbers.h"
#include "core/page_surface.h"

namespace veldox {

/// A degree tape for a harmonic balancer: how large it is printed, and how far it goes.
struct TimingTape {
  double fine = 0;      ///< twips between the fine marks: 2 crank degrees, or 1 on the largest
  double coarse = 0;    ///< twips of 10 crank degrees
  int labelSize = 0;    ///< points
  int tickSize = 0;     ///< points
  int coarseCount = 0;  ///< the last coarse mark; the first is 0
  int fineCount = 0;    ///< the last fine mark; the first is 0

  /// Twips from the first mark to the last.
  double length() const { return coarse * coarseCount; }
};

/// The largest balancer that a tape is printed for, in inches.
inline constexpr double kLargestBalancer = 100;
/// The longest tape that paper 11 inches wide holds, in twips: its margins and a mark's own place
/// taken off.
inline constexpr double kLongestOnLetter = 15088;

/// @param diameter  of the balancer in inches, above 0 and at most kLargestBalancer
TimingTape TimingTapeOf(double diameter);

/// Prints the tape of a balancer on one page, with a bar to check its size by, and ends the job.
/// @param diameter  as TimingTapeOf
void PrintTimingTape(PageSurface& surface, double diameter, DecimalMark mark);

}  // namespace veldox
