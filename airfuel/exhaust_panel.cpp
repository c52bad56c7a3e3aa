#include "airfuel/exhaust_panel.h"

namespace veldox {

HeaderEngine ExhaustPanel::ReadEngine() {
  ReadFields({&page_.Text1, &page_.Text29});
  return {block().CubicInches, static_cast<double>(block().NumberofCylinders)};
}

void ExhaustPanel::SolveTubeLength() {
  const HeaderEngine engine = ReadEngine();
  ReadFields({&page_.Text2, &Text23});
  const ParameterBlock& b = block();
  Store(Text22, TubeLengthFor(engine, b.TubeDiameter, b.RPM),
        {&page_.Text29, &Text23, &page_.Text2});
}

void ExhaustPanel::TubeLengthFromPower() {
  ReadFields({&page_.Text27});
  Store(Text22, TubeLengthForPower(block().RPMMaxHorsePower), {&page_.Text27});
}

void ExhaustPanel::SolveTubeDiameter() {
  const HeaderEngine engine = ReadEngine();
  ReadFields({&page_.Text2, &Text22});
  const ParameterBlock& b = block();
  Store(Text23, TubeDiameterFor(engine, b.TubeLength, b.RPM),
        {&page_.Text29, &Text22, &page_.Text2});
}

void ExhaustPanel::TubeDiameterFromTorque() {
  const HeaderEngine engine = ReadEngine();
  ReadFields({&page_.Text32});
  Store(Text23, TubeDiameterForTorque(engine, block().PeakTorqueRPM), {&page_.Text29});
}

void ExhaustPanel::TubeDiameterFromFlow() {
  ReadFields({&page_.Text20});
  Store(Text23, TubeDiameterForFlow(block().ExhaustFlow));
}

void ExhaustPanel::SolveAffectedRpm() {
  const HeaderEngine engine = ReadEngine();
  ReadFields({&Text23, &Text22});
  const ParameterBlock& b = block();
  Store(Text24, RpmOfTube(engine, b.TubeDiameter, b.TubeLength), {&page_.Text29, &Text23, &Text22});
}

void ExhaustPanel::SizeCollector() {
  const HeaderEngine engine = ReadEngine();
  ReadFields({&Text26});
  Store(Text25, CollectorLengthFor(engine, block().CollectorDiameter), {&page_.Text29, &Text26});
}

void ExhaustPanel::SizeSystem() {
  ReadFields({&page_.Text3});
  Show(Text38, SystemFlowFor(block().HorsePower));
}

void ExhaustPanel::SolvePeakTorqueRpm() {
  const HeaderEngine engine = ReadEngine();
  ReadFields({&Text23});
  Store(page_.Text32, TorqueRpmOfTube(engine, block().TubeDiameter), {&page_.Text29, &page_.Text1});
}

}  // namespace veldox
