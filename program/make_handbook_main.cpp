#include <cstdio>
#include <string_view>

#include "core/error.h"
#include "core/files.h"
#include "program/handbook.h"

namespace {

/// A world that nobody asks anything.
class SilentHost : public veldox::Host {
 public:
  veldox::Button Ask(const veldox::Message& message) override { return message.buttons.front(); }
  std::optional<std::filesystem::path> AskFile(const veldox::FileDialog&) override { return {}; }
  std::optional<veldox::FontChoice> AskFont() override { return {}; }
  std::optional<std::int32_t> AskColor() override { return {}; }
  veldox::ClockTime Now() override { return {}; }
  veldox::DecimalMark SystemDecimalMark() override { return veldox::DecimalMark::Point; }
  std::filesystem::path ProgramFolder() override { return {}; }
  veldox::ScreenSize MeasureScreen() override { return {1366, 768, 96}; }
  void SetBusy(bool) override {}
};

}  // namespace

/// Prints the handbook, or the script of its pictures.
///   make_handbook SOURCE_FOLDER [--pictures]
int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: make_handbook SOURCE_FOLDER [--pictures]\n", stderr);
    return 2;
  }
  try {
    const std::filesystem::path root = argv[1];
    SilentHost host;
    veldox::Program program(host);
    program.Start();
    const bool pictures = argc > 2 && std::string_view(argv[2]) == "--pictures";
    const std::string text =
        pictures
            ? veldox::ComposePictureScript(program.shell())
            : veldox::ComposeHandbook(
                  program.shell(),
                  veldox::ParseIntroductions(veldox::LoadFile(root / "docs" / "introductions.md")),
                  veldox::FormulaNotes::FromSources(root));
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
  } catch (const veldox::CommandError& error) {
    std::fprintf(stderr, "make_handbook: %s\n", error.message().c_str());
    return 2;
  }
}
