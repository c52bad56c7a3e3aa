#include "core/error.h"
#include "core/files.h"
#include "core/line_reader.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

/// Whatever the bytes are, their text is UTF-8, so that it is its own text.
void Decode(std::string_view bytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const std::string text = DecodeText(std::string(bytes));
  if (text.starts_with(kByteOrderMark)) return;  // a mark behind the mark is one of the text
  RequireSound(DecodeText(text) == text, "a text is not UTF-8");
}

/// The lines of a text, with their ends, are the text.
void TakeLines(const std::string& text) {
  LineReader lines(text, "fuzz.txt");
  std::size_t size = 0;
  try {
    while (lines.Next()) {
      const auto from = static_cast<std::size_t>(lines.line().data() - text.data());
      RequireSound(from >= size && from + lines.line().size() <= text.size(),
                   "a line is not there");
      for (std::size_t i = size; i < from; ++i) {
        RequireSound(text[i] == '\r' || text[i] == '\n', "a part of the text is left out");
      }
      size = from + lines.line().size();
    }
  } catch (const CommandError& error) {
    RequireSound(error.kind() == ErrorKind::File, "a refusal is not of a file");
  }
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = veldox::BytesOf(data, size);
  veldox::Decode(bytes);
  veldox::TakeLines(veldox::DecodeText(std::string(bytes)));
  return 0;
}
