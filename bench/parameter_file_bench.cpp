#include "core/parameter_file.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

namespace veldox {
namespace {

/// A world in which nothing is ever asked.
class SilentHost : public Host {
 public:
  Button Ask(const Message&) override { return Button::OK; }
  std::optional<std::filesystem::path> AskFile(const FileDialog&) override { return std::nullopt; }
  std::optional<FontChoice> AskFont() override { return std::nullopt; }
  std::optional<std::int32_t> AskColor() override { return std::nullopt; }
  ClockTime Now() override { return {}; }
  DecimalMark SystemDecimalMark() override { return DecimalMark::Point; }
  std::filesystem::path ProgramFolder() override { return {}; }
  ScreenSize MeasureScreen() override { return {}; }
  void SetBusy(bool) override {}
};

/// A block with a number of its own, with decimals, under every key.
void Fill(ParameterBlock& block) {
  double number = 1.23457;
  for (const KeyRow& row : KeyTable()) {
    number += 1.01;
    if (row.cell != nullptr) {
      for (int i = row.firstRow; i < row.rows; ++i) {
        for (int column = 0; column < row.rowWidth; ++column) {
          row.cell(block, i, column) = number += 0.11;
        }
      }
    } else if (const auto* real = std::get_if<double ParameterBlock::*>(&row.member)) {
      block.** real = number;
    } else if (const auto* text = std::get_if<std::string ParameterBlock::*>(&row.member)) {
      block.** text = "Sans Serif";
    }
  }
  for (std::size_t i = 0; i < block.AccelFuel.size(); ++i) {
    block.AccelRpm[i] = 1000 + 10 * static_cast<double>(i);
    block.AccelTorque[i] = 301.37 + static_cast<double>(i) / 7;
    block.AccelFuel[i] = 88.125;
  }
}

struct Program {
  explicit Program(std::int16_t torqueRows) {
    Fill(context.block);
    context.block.AccelRowCount = torqueRows;
    context.block.Notes = "first line\r\nsecond line";
  }

  SilentHost host;
  ProgramContext context{host};
  ParameterFile file{context};
};

void BM_Compose(benchmark::State& state) {
  const Program program(static_cast<std::int16_t>(state.range(0)));
  std::size_t bytes = 0;
  for (auto _ : state) {
    const ParameterFile::Written written = program.file.Compose();
    bytes = written.bytes.size();
    benchmark::DoNotOptimize(written.bytes.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}
BENCHMARK(BM_Compose)->Arg(11)->Arg(kTorqueRows)->Unit(benchmark::kMicrosecond);

void BM_Read(benchmark::State& state) {
  Program program(static_cast<std::int16_t>(state.range(0)));
  const std::string bytes = program.file.Compose().bytes;
  for (auto _ : state) benchmark::DoNotOptimize(program.file.ReadBytes(bytes, "bench.prm"));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(BM_Read)->Arg(11)->Arg(kTorqueRows)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace veldox
