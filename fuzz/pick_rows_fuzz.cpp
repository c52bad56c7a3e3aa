#include "core/error.h"
#include "core/files.h"
#include "core/line_reader.h"
#include "core/pick_list.h"
#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = veldox::DecodeText(std::string(veldox::BytesOf(data, size)));
  std::vector<veldox::PickRow> rows;
  try {
    rows = veldox::UserPickRows(text, "user_bsr.prm");
  } catch (const veldox::CommandError& error) {
    veldox::RequireSound(error.kind() == veldox::ErrorKind::File, "a refusal is not of a file");
    return 0;
  }
  constexpr std::size_t kFigures = 4;
  for (const veldox::PickRow& row : rows) {
    veldox::RequireSound(row.text.size() <= veldox::kLongestLine, "a row is too long");
    veldox::RequireSound(row.text.find('\n') == std::string::npos, "a row is more than a line");
    veldox::RequireSound(veldox::PickedFigures(row.text, kFigures).size() <= kFigures,
                         "a row has too many figures");
  }
  return 0;
}
