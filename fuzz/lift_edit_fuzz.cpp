#include <cmath>

#include "cam/lift_file.h"
#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

void Read(const std::string& text, DecimalMark mark) {
  try {
    for (const LiftEdit edit :
         {LiftEdit::InchesToMm, LiftEdit::MmToInches, LiftEdit::Multiply, LiftEdit::Add}) {
      const EditedLiftFile file = EditLifts(text, "fuzz.cmm", edit, -1.5, mark);
      RequireSound(static_cast<std::size_t>(file.lines) <= kMostEditedLines, "too many lines");
      // What was written can be edited again, and no line is lost.
      RequireSound(EditLifts(file.text, "fuzz.cmm", LiftEdit::Add, 0, mark).lines == file.lines,
                   "a line was lost");
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
