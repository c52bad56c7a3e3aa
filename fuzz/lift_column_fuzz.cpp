#include <cmath>

#include "cam/lift_file.h"
#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

void Read(const std::string& text, DecimalMark mark) {
  try {
    const LiftColumnFile file = ParseS96(text, "fuzz.s96", mark);
    RequireSound(file.side.count() <= kLastLiftIndex, "a table is too long");
    for (std::size_t i = 1; i + 1 < file.side.lifts.size(); ++i) {
      RequireSound(file.side.lifts[i] != 0, "a zero line was kept");
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
