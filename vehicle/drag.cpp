#include "vehicle/drag.h"

#include <string>
#include <vector>

#include "core/error.h"
#include "core/pick_list.h"

namespace veldox {
namespace {

/// Far beyond every body, and far within what the screens can hold.
constexpr double kLargestCoefficient = 10;
constexpr double kLargestArea = 10000;  // square feet

}  // namespace

DragFigures ReadDragRow(std::string_view row) {
  constexpr std::size_t kFigures = 2;
  const std::vector<std::string> figures = PickedFigures(row, kFigures);
  if (figures.empty()) {
    FailAtRow(ErrorKind::InvalidArgument, "The coefficient of drag", row,
              "must stand behind the \"|\".");
  }
  DragFigures read;
  read.coefficient = ReadFigure(figures[0], "The coefficient of drag", row, kLargestCoefficient);
  if (figures.size() == kFigures) {
    read.frontalArea = ReadFigure(figures[1], "The frontal area", row, kLargestArea);
  }
  return read;
}

}  // namespace veldox
