#include <cmath>

#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"
#include "graph/graph_conversion.h"

namespace veldox {
namespace {

void Read(const std::string& text, DecimalMark mark) {
  try {
    const ReversedScript once = ReverseAxes(text, "fuzz.prm");
    RequireSound(once.linesRead >= 0, "a count below 0");
    // A place has as many numbers when it is turned back.
    ReverseAxes(once.text, "fuzz.prm");
    (void)mark;
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
