#include <array>
#include <cmath>

#include "core/delimited_file.h"
#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

void Read(const std::string& text, DecimalMark mark) {
  try {
    for (const char* delimiter : {"", ",", "\t", "ab"}) {
      const DelimitedRows file =
          ParseDelimited(text, "fuzz.csv", delimiter, std::array{2, 1}, mark);
      for (const auto& row : file.rows) {
        RequireSound(row.size() == 2 && std::isfinite(row[0]) && std::isfinite(row[1]),
                     "a row is none");
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
