#include <array>
#include <cmath>
#include <string>

#include "airfuel/flow_file.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"

namespace veldox {
namespace {

void CheckPort(const FlowFilePort& port) {
  RequireSound(port.lifts.size() <= kFlowRows && port.flows.size() <= port.lifts.size(),
               "a port has more rows than the table, or flow without lift");
  for (const double flow : port.flows) {
    RequireSound(std::isfinite(FlowAtTablePressure(flow, port.testPressure)), "a flow is none");
  }
}

/// What was read can be written, and is read again as it was written.
void WriteAgain(const FlowFile& file) {
  FlowTable intake{}, exhaust{};
  const auto fill = [](const FlowFilePort& port, FlowTable& table) {
    for (std::size_t i = 0; i < port.flows.size(); ++i) table[i] = {port.lifts[i], port.flows[i]};
  };
  fill(file.intake, intake);
  fill(file.exhaust, exhaust);
  const FlowExportText written = WriteFlowFile(
      {file.intake.valveSize.value_or(0), file.exhaust.valveSize.value_or(0), intake, exhaust},
      "title", DecimalMark::Point);
  // Reading takes a header line more than writing makes.
  std::string text = written.text;
  text.insert(text.find('\n') + 1, "-\r\n");
  const FlowFile again = ParseFlowFile(text, "again.dfw", DecimalMark::Point);
  RequireSound(!again.fault && !again.hasNoFlow, "a written file cannot be read");
  RequireSound(static_cast<int>(again.intake.flows.size()) == written.intakePoints &&
                   static_cast<int>(again.exhaust.flows.size()) == written.exhaustPoints,
               "rows are lost between writing and reading");
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldox;
  const std::string text = DecodeText(std::string(BytesOf(data, size)));
  constexpr std::array<const char*, 5> kNames = {"a.flw", "a.dfw", "a.dyn", "a.cqu", "a.dym"};
  for (const char* name : kNames) {
    for (const DecimalMark mark : {DecimalMark::Point, DecimalMark::Comma}) {
      const FlowFile file = ParseFlowFile(text, name, mark);
      RequireSound(!file.fault || file.fault->kind() == ErrorKind::File,
                   "a refusal is not of a file");
      RequireSound(!file.hasNoFlow || !file.intake.valveSize, "flow is there and is not");
      CheckPort(file.intake);
      CheckPort(file.exhaust);
      if (!file.fault) WriteAgain(file);
    }
  }
  return 0;
}
