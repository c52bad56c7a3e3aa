#include <cmath>
#include <optional>

#include "cam/cam_card.h"
#include "core/files.h"
#include "core/line_reader.h"
#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = veldox::DecodeText(std::string(veldox::BytesOf(data, size)));
  for (const char* name : {"card.cam", "card.cqu"}) {
    for (const bool at050 : {false, true}) {
      const veldox::CamCard card =
          veldox::ParseCamCard(text, name, at050, veldox::DecimalMark::Point);
      const std::optional<double>* const numbers[] = {&card.intakeValveLift, &card.exhaustValveLift,
                                                      &card.intakeOpen,      &card.intakeClose,
                                                      &card.exhaustOpen,     &card.exhaustClose};
      bool isWhole = true;
      for (const std::optional<double>* number : numbers) {
        isWhole = isWhole && number->has_value();
        veldox::RequireSound(!*number || std::isfinite(**number), "a number is none");
        veldox::RequireSound(card.found || !*number, "a number of a card that is none");
      }
      veldox::RequireSound(!card.found || card.fault || isWhole, "a card without fault has gaps");
      veldox::RequireSound(!card.fault || card.fault->kind() == veldox::ErrorKind::File,
                           "a refusal is not of a file");
      veldox::RequireSound(card.caption.size() <= 2 * veldox::kLongestLine,
                           "a caption is too long");
    }
  }
  return 0;
}
