#include "core/company_file.h"

#include "core/error.h"
#include "core/files.h"
#include "core/line_reader.h"
#include "fuzz/fuzz_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = veldox::DecodeText(std::string(veldox::BytesOf(data, size)));
  veldox::CompanyTexts texts;
  try {
    veldox::ReadCompanyFile(text, "shop.dcn", texts, [](int number, std::string_view line) {
      veldox::RequireSound(number > 0, "a bad record has no number");
      veldox::RequireSound(line.size() <= veldox::kLongestLine, "a bad record is too long");
    });
  } catch (const veldox::CommandError& error) {
    veldox::RequireSound(error.kind() == veldox::ErrorKind::File, "a refusal is not of a file");
  }
  // What was taken comes back from a file of its own.
  veldox::CompanyTexts again;
  try {
    veldox::ReadCompanyFile(veldox::ComposeCompanyFile(texts), "again.dcn", again,
                            [](int, std::string_view) { veldox::RequireSound(false, "bad"); });
  } catch (const veldox::CommandError&) {
    // The prefix of the line may make it too long.
    return 0;
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    std::string sent = texts[i];
    for (char& c : sent) c = c == '\r' || c == '\n' ? ' ' : c;
    veldox::RequireSound(again[i] == sent, "a text has changed");
  }
  return 0;
}
