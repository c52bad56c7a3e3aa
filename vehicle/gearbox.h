#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace veldox {

/// The most forward gears that a transmission of the program can have.
inline constexpr int kMostGears = 10;

/// Teeth of a pair of gears or sprockets.
struct ToothCounts {
  std::int16_t driven = 0;
  std::int16_t driving = 0;
};

/// A transmission as its row in a list tells it.
struct Gearbox {
  std::vector<double> ratios;  ///< from first gear up, at most kMostGears
  std::optional<double> primaryDrive;
  std::optional<double> finalDrive;
  std::optional<ToothCounts> primaryTeeth;
  std::optional<ToothCounts> finalTeeth;
  bool isAutomatic = false;
};

/// Reads a row such as "'09 RSV4 P-1.6591 S-2.5 PT-73/44 ST-40/16 | 2.6 2.0625 1.7": the tags in
/// its name are the ratios of primary and secondary drive and their teeth, the rest the gears.
/// @param row  with points, whatever the system has
/// @throws CommandError that tells the row and what of it is no number or out of range
Gearbox ReadGearbox(std::string_view row, bool isAutomatic);

/// A screen that shows the transmission picked in the finder. The shared values hold it already.
class GearboxTaker {
 public:
  GearboxTaker() = default;
  GearboxTaker(const GearboxTaker&) = delete;
  GearboxTaker& operator=(const GearboxTaker&) = delete;
  virtual ~GearboxTaker() = default;

  virtual void TakeGearbox(const Gearbox& gearbox) = 0;
};

}  // namespace veldox
