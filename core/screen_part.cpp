#include "core/screen_part.h"

#include <cfenv>

namespace veldox {

void ScreenPart::Warn(const std::string& text) const {
  // Whatever a window computes while the box is open is no part of the command.
  std::fexcept_t flags{};
  std::fegetexceptflag(&flags, FE_ALL_EXCEPT);
  const ProgramContext& context = screen_.context();
  context.host.Ask({Icon::Warning, context.rules.messages().MessageTitle, text, {Button::OK}});
  std::fesetexceptflag(&flags, FE_ALL_EXCEPT);
}

}  // namespace veldox
