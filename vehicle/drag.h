#pragma once

#include <optional>
#include <string_view>

namespace veldox {

/// What a row of the drag lists tells of a vehicle.
struct DragFigures {
  double coefficient = 0;             ///< of drag
  std::optional<double> frontalArea;  ///< square feet
};

/// Reads a row such as "'08 Avenger | 0.326 25.15" or "'75-80 Pacer | 0.32".
/// @param row  with points, whatever the system has
/// @throws CommandError that tells the row and what of it is no number or out of range
DragFigures ReadDragRow(std::string_view row);

/// A screen that shows the vehicle picked in the drag finder. The shared values hold it already.
class DragTaker {
 public:
  DragTaker() = default;
  DragTaker(const DragTaker&) = delete;
  DragTaker& operator=(const DragTaker&) = delete;
  virtual ~DragTaker() = default;

  /// @param figures  without a frontal area where no row picked had one
  virtual void TakeDrag(const DragFigures& figures) = 0;
};

}  // namespace veldox
