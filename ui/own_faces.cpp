#include "ui/own_faces.h"

#include "ui/graph_view.h"

namespace veldox {

QWidget* MakeOwnFace(Screen& screen, QWidget* parent) {
  if (auto* grapher = dynamic_cast<Form8*>(&screen)) return new GraphView(*grapher, parent);
  return nullptr;
}

}  // namespace veldox
