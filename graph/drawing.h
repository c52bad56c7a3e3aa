#pragma once

#include <string>
#include <utility>

#include "core/screen.h"
#include "graph/sketch.h"

namespace veldox {

/// A drawing on a screen, which follows what the screen hands it.
class Drawing : public Control {
 public:
  /// @param caption  what stands there while nothing is drawn
  Drawing(Frame& frame, std::string name, std::string caption)
      : Control(frame.screen(), &frame, ControlKind::Drawing, std::move(name), std::move(caption),
                {}) {}

  const Sketch& sketch() const { return sketch_; }
  void Draw(Sketch sketch) {
    Assign(sketch_, std::move(sketch), Aspect::Work);
    Changed();
  }

 private:
  Sketch sketch_;
};

}  // namespace veldox
