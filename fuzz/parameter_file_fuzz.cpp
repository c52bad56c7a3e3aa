#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/parameter_file.h"

namespace veldox {
namespace {

/// Passes over every line that is asked about.
class PatientHost : public Host {
 public:
  Button Ask(const Message& message) override { return message.buttons.front(); }
  std::optional<std::filesystem::path> AskFile(const FileDialog&) override { return std::nullopt; }
  std::optional<FontChoice> AskFont() override { return std::nullopt; }
  std::optional<std::int32_t> AskColor() override { return std::nullopt; }
  ClockTime Now() override { return {}; }
  DecimalMark SystemDecimalMark() override { return DecimalMark::Point; }
  std::filesystem::path ProgramFolder() override { return {}; }
  ScreenSize MeasureScreen() override { return {}; }
  void SetBusy(bool) override {}
};

/// Whatever was read must be written, and be stable from the second writing on.
void ReadAndWrite(std::string_view bytes, bool comma) {
  PatientHost host;
  ProgramContext context(host);
  context.block.DecimalCommaMode = comma ? 1 : 0;
  ParameterFile file(context);
  file.ReadBytes(bytes, "fuzz.prm");
  // The first line of notes gives up a point at each reading in comma mode.
  context.block.Notes.clear();
  file.ReadBytes(file.Compose().bytes, "fuzz.prm");
  const std::string second = file.Compose().bytes;
  file.ReadBytes(second, "fuzz.prm");
  if (file.Compose().bytes != second) std::abort();
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the fuzzer's bytes are text here
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  veldox::ReadAndWrite(bytes, false);
  veldox::ReadAndWrite(bytes, true);
  return 0;
}
