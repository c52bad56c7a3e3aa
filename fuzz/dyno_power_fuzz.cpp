#include <cmath>

#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"
#include "vehicle/dyno_file.h"

namespace veldox {
namespace {

void Read(const std::string& text, DecimalMark mark) {
  try {
    for (const char* name : {"fuzz.dyn", "fuzz.dym", "fuzz.txt"}) {
      const auto file = ParseDynoPower(text, name, mark);
      if (!file) continue;
      RequireSound(!file->rows.empty(), "a table without rows");
      try {
        const PowerLines lines = PowerLinesOf(file->rows, PowerRecord::Horsepower, mark);
        RequireSound(lines.lines + lines.left == static_cast<int>(file->rows.size()),
                     "a row was lost");
      } catch (const CommandError& error) {
        RequireSound(error.kind() == ErrorKind::InvalidArgument, "a refusal of another kind");
      }
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
