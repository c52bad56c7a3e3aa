#include "core/screen_part.h"

#include <cfenv>
#include <variant>

namespace veldox {

void ScreenPart::Warn(const std::string& text) const {
  // Whatever a window computes while the box is open is no part of the command.
  std::fexcept_t flags{};
  std::fegetexceptflag(&flags, FE_ALL_EXCEPT);
  const ProgramContext& context = screen_.context();
  context.host.Ask({Icon::Warning, context.rules.messages().MessageTitle, text, {Button::OK}});
  std::fesetexceptflag(&flags, FE_ALL_EXCEPT);
}

void ScreenPart::TakeTyped(const std::vector<Field*>& fields) const {
  for (Field* field : fields) {
    if (!field->holds().isShared() || field->rule() == KeyRule::OutputOnly) continue;
    if (!IsNumber(field->text(), mark())) continue;
    // A value that is shown as it is keeps the digits behind those that are shown.
    const Holds::Slot slot = field->holds().In(block());
    auto* const* value = std::get_if<double*>(&slot);
    if (value != nullptr && field->text() == FormatField(**value, mark())) continue;
    ReadFields({field});
  }
}

}  // namespace veldox
