#include <cmath>

#include "core/error.h"
#include "core/files.h"
#include "fuzz/fuzz_target.h"
#include "graph/graph_script.h"

namespace veldox {
namespace {

void RequireFinite(const GraphPoint& point) {
  RequireSound(std::isfinite(point.x) && std::isfinite(point.y), "a point is no number");
}

void Read(const std::string& text, DecimalMark mark) {
  GraphScriptFailure failure;
  std::optional<GraphScript> script;
  try {
    script = ReadGraphScript(text, "fuzz.txt", mark, failure);
  } catch (const CommandError& error) {
    RequireSound(error.kind() == ErrorKind::File, "a refusal is not of a file");
    return;
  }
  if (!script) {
    RequireSound(!failure.text.empty() && failure.text.size() < 2000, "a failure is not told");
    return;
  }
  std::size_t pieces = script->circles.size();
  for (const GraphScript::Curve& curve : script->curves) {
    pieces += curve.starts.size();
    RequireSound(!curve.points.empty() && !curve.starts.empty() && curve.starts.front() == 0,
                 "a curve has no beginning");
    for (const GraphPoint& point : curve.points) RequireFinite(point);
    for (const std::size_t start : curve.starts) {
      RequireSound(start < curve.points.size(), "a curve begins behind its end");
    }
  }
  for (const GraphScript::Circle& circle : script->circles) {
    RequireFinite(circle.center);
    RequireSound(std::isfinite(circle.radius) && circle.radius >= 0, "a radius is no number");
  }
  RequireSound(pieces <= kMostScriptCurves, "there are too many curves");
}

}  // namespace
}  // namespace veldox

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = veldox::DecodeText(std::string(veldox::BytesOf(data, size)));
  veldox::Read(text, veldox::DecimalMark::Point);
  veldox::Read(text, veldox::DecimalMark::Comma);
  return 0;
}
