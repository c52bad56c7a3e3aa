#include "core/title_animation.h"

#include <algorithm>

namespace veldox {

bool TitleAnimation::Tick() {
  const auto moving =
      std::find_if(offsets_.begin(), offsets_.end(), [](int offset) { return offset > 0; });
  if (moving == offsets_.end()) return false;
  *moving = std::max(0, *moving - kStep);
  return running();
}

}  // namespace veldox
