#include "core/parameter_file.h"

#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

/// Passes over every line that is asked about.
class PatientHost : public Host {
 public:
  Button Ask(const Message& message) override {
    RequireSound(++boxes_ <= kMostBoxes, "a file gives more boxes than anybody reads");
    return message.buttons.front();
  }
  std::optional<std::filesystem::path> AskFile(const FileDialog&) override { return std::nullopt; }
  std::optional<FontChoice> AskFont() override { return std::nullopt; }
  std::optional<std::int32_t> AskColor() override { return std::nullopt; }
  ClockTime Now() override { return {}; }
  DecimalMark SystemDecimalMark() override { return DecimalMark::Point; }
  std::filesystem::path ProgramFolder() override { return {}; }
  ScreenSize MeasureScreen() override { return {}; }
  void SetBusy(bool) override {}

  /// Boxes since the last call.
  int TakeBoxes() { return std::exchange(boxes_, 0); }

 private:
  static constexpr int kMostBoxes = 21;  // nineteen records, the rest, and what ended the reading
  int boxes_ = 0;
};

/// Whatever was read must be written so that it reads without a box, and be stable from the
/// second writing on.
void ReadAndWrite(std::string_view bytes, bool comma) {
  PatientHost host;
  ProgramContext context(host);
  context.block.DecimalCommaMode = comma ? 1 : 0;
  ParameterFile file(context);
  try {
    file.ReadBytes(bytes, "fuzz.prm");
  } catch (const CommandError& error) {
    RequireSound(error.kind() == ErrorKind::File, "a refusal is not of a file");
  }
  host.TakeBoxes();
  file.ReadBytes(file.Compose().bytes, "fuzz.prm");
  RequireSound(host.TakeBoxes() == 0, "what was written cannot be read back");
  const std::string notes = context.block.Notes;
  const std::string second = file.Compose().bytes;
  file.ReadBytes(second, "fuzz.prm");
  RequireSound(host.TakeBoxes() == 0, "what was written cannot be read back");
  RequireSound(context.block.Notes == notes, "notes do not come back to the letter");
  RequireSound(file.Compose().bytes == second, "a file changes with each writing");
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  veldox::ReadAndWrite(veldox::BytesOf(data, size), false);
  veldox::ReadAndWrite(veldox::BytesOf(data, size), true);
  return 0;
}
