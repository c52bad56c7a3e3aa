#pragma once

#include <string>
#include <utility>

#include "core/screen.h"

namespace veldox {

/// Frames side by side under each other's common top, below the frames before it in its column
/// of the window, of a page, a panel or another row. The columns that the frames in it are
/// declared with are counted in the row. It holds nothing but frames.
class FrameRow : public Frame {
 public:
  FrameRow(Screen& screen, std::string name, int column)
      : Frame(screen, std::move(name), "", column) {}
  /// In a panel, a page or another row.
  FrameRow(Frame& outer, std::string name, int column)
      : Frame(outer, std::move(name), "", column) {}
};

}  // namespace veldox
