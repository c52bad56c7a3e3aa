#include <cmath>

#include "cam/cam_card.h"
#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

void Read(const std::string& text, DecimalMark mark) {
  try {
    for (const char* name : {"fuzz.cam", "fuzz.cqu"}) {
      const CamCard card = ParseCamCard(text, name, true, mark);
      RequireSound(card.found || card.caption == "---", "a caption without a standard");
      RequireSound(card.found || !card.intakeValveLift, "a lift without a standard");
      for (const auto& value : {card.intakeValveLift, card.exhaustValveLift, card.intakeOpen,
                                card.intakeClose, card.exhaustOpen, card.exhaustClose}) {
        RequireSound(!value || std::isfinite(*value), "a value is no number");
      }
      if (card.fault) throw CommandError(*card.fault);
    }
  } catch (const CommandError& error) {
    RequireSound(error.kind() == ErrorKind::File, "a refusal is not of a file");
  }
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = veldox::DecodeText(std::string(veldox::BytesOf(data, size)));
  veldox::Read(text, veldox::DecimalMark::Point);
  veldox::Read(text, veldox::DecimalMark::Comma);
  return 0;
}
