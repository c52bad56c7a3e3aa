#pragma once

namespace veldox {

/// Belt drives from the crank to an accessory, such as a blower. Diameters of a call share a unit.

/// Turns of the accessory for one of the crank. Not finite without an accessory pulley.
inline double DriveRatio(double crankPulley, double accessoryPulley) {
  return crankPulley / accessoryPulley;
}

/// What the new ratio takes from the original one, in percent: a faster drive is negative.
inline double DriveChangePercent(double originalRatio, double newRatio) {
  return ((originalRatio - newRatio) / originalRatio) * 100;
}

}  // namespace veldox
