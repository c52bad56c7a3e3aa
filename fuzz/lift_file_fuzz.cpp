#include <cmath>
#include <memory>

#include "cam/lift_file.h"
#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

void RequireSide(const LiftSide& side) {
  RequireSound(side.count() <= kLastLiftIndex, "a table is too long");
  if (side.lifts.empty()) return;
  RequireSound(side.lifts.back() == 0, "a table does not end with a zero");
  RequireSound(side.step > 0, "a step is not above 0");
  for (const double lift : side.lifts) RequireSound(std::isfinite(lift), "a lift is no number");
}

/// What was read, written as a *.cmm file and read again, has as many records.
void RequireReadable(const LiftFile& file, DecimalMark mark) {
  if (file.intake.lifts.empty()) return;
  // Digits beyond the eighth decimal are lost, and so what they were.
  const std::string text = CmmText({"", "2", file.intake.lifts, {}}, mark);
  const auto again = ParseLiftFile(text, "again.cmm", mark);
  RequireSound(again.has_value(), "a written file is none");
}

void Read(const std::string& text, const std::string& name, DecimalMark mark) {
  static const auto block = std::make_unique<ParameterBlock>();
  try {
    const auto file = ParseLiftFile(text, name, mark);
    if (!file) return;
    RequireSide(file->intake);
    RequireSide(file->exhaust);
    StoreLifts(*file, name, *block);
    for (const double lift : block->ExhaustValveLift) {
      RequireSound(std::isfinite(lift), "a valve lift is no number");
    }
    // A full table and its two zeros are more records than a file may have.
    if (file->intake.count() < kMostLiftRecords - 1) RequireReadable(*file, mark);
  } catch (const CommandError& error) {
    RequireSound(error.kind() == ErrorKind::File || error.kind() == ErrorKind::Overflow,
                 "a refusal is not of a file");
  }
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = veldox::DecodeText(std::string(veldox::BytesOf(data, size)));
  veldox::Read(text, "fuzz.cmm", veldox::DecimalMark::Point);
  veldox::Read(text, "fuzz.c10", veldox::DecimalMark::Point);
  veldox::Read(text, "fuzz.c1", veldox::DecimalMark::Comma);
  return 0;
}
