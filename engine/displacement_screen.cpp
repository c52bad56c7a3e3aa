#include "engine/displacement_screen.h"

#include <cmath>
#include <vector>

#include "core/report.h"

namespace veldox {

namespace {

constexpr double kFastestGraphedRpm = 100000;
constexpr double kSmallestStroke = 0.00001;
constexpr double kCubicMillimetresPerCc = 1000;
constexpr double kMillimetresPerCentimetre = 10;
/// A piston speed formula in inches gives feet; with millimetres in it, this gives metres.
constexpr double kFootFormulaToMetres = 12.0 / 1000;
/// The same for the bearing speed, whose formula has seconds and inches in its divisor.
constexpr double kBearingFormulaToMetres = 12.0 / 1000;

}  // namespace

Form1::Form1(ProgramContext& context, Grapher& grapher)
    : Screen(context, "Form1", "Engine Displacement Calculator", "CubicIn"), grapher_(grapher) {}

void Form1::ReadEngineFields() {
  ParameterBlock& b = block();
  ReadFields({&Text1, &Text3, &Text2, &Text4, &Text17, &Text5, &Text6, &Text8, &Text9, &Text10,
              &Text11, &Text16, &Text12, &Text13, &Text26, &Text27, &Text28, &Text32, &Text20});
  if (b.Stroke <= 0) b.Stroke = kSmallestStroke;
  if (b.Stroke / 2 > b.RodLength) {
    b.RodLength = b.Stroke / 2;
    ShowAs<"0.00000">(Text4, b.RodLength);
  }
}

void Form1::DeriveEngineFields() {
  ParameterBlock& b = block();
  Store(Text8, BlockDeckHeight(b.Stroke, b.RodLength, b.PistonCompressionHeight, b.DeckClearance));
  Store(Text9, PistonCompressionHeight(b.BlockDeckHeight, b.Stroke, b.RodLength, b.DeckClearance));
  Store(Text10, DeckClearance(b.BlockDeckHeight, b.Stroke, b.RodLength, b.PistonCompressionHeight));
  Store(Text11, b.Bore / b.Stroke, {&Text3});
  Store(Text16, b.Stroke / b.Bore, {&Text1});
  Store(Text12, b.RodLength / b.Stroke, {&Text3});
  Show(Text7, 2 * b.RodStrokeRatio);
  StoreMeanPistonSpeed();
  Store(Text24, PistonArea(b.Bore));
  Show(Text25, CrankRodRightAngle(b.RodLength, b.Stroke), {&Text3});
}

void Form1::StoreMeanPistonSpeed() {
  ParameterBlock& b = block();
  double speed = MeanPistonSpeed(b.Stroke, b.RPM);
  if (b.MetricSwitch == 1) speed *= kFootFormulaToMetres;
  Store(Text13, speed);
}

double Form1::PistonSpeedInFormulaUnits() const {
  const ParameterBlock& b = block();
  return b.MetricSwitch == 1 ? b.AveragePistonSpeed / kFootFormulaToMetres : b.AveragePistonSpeed;
}

double Form1::EngineSizeInFieldUnits() const {
  const ParameterBlock& b = block();
  const double size = EngineSize(b.Bore, b.Stroke, b.NumberofCylinders);
  return b.MetricSwitch == 1 ? size / kCubicMillimetresPerCc : size;
}

double Form1::CylinderVolume() {
  const ParameterBlock& b = block();
  const double volume = b.CubicInches / b.NumberofCylinders;
  RequireResult(Text1, volume, {&Text2});
  return volume;
}

void Form1::StoreBoreAndStroke(const BoreAndStroke& size) {
  ParameterBlock& b = block();
  // In Metric the volume is in cc, so the formulas have run in centimetres.
  const double scale = b.MetricSwitch == 1 ? kMillimetresPerCentimetre : 1;
  Store(Text1, size.bore * scale, {&Text16});
  Store(Text3, size.stroke * scale, {&Text11});
}

void Form1::SolveEngineSize() {
  ReadEngineFields();
  Store(Text6, EngineSizeInFieldUnits());
  DeriveEngineFields();
}

void Form1::SolveBore() {
  ReadEngineFields();
  ParameterBlock& b = block();
  const double volume =
      b.MetricSwitch == 1 ? b.CubicInches * kCubicMillimetresPerCc : b.CubicInches;
  Store(Text1, BoreForEngineSize(volume, b.Stroke, b.NumberofCylinders), {&Text2});
  DeriveEngineFields();
}

void Form1::SolveStroke() {
  ReadEngineFields();
  ParameterBlock& b = block();
  double stroke = StrokeForEngineSize(b.CubicInches, b.Bore, b.NumberofCylinders);
  if (b.MetricSwitch == 1) stroke *= kCubicMillimetresPerCc;
  Store(Text3, stroke, {&Text1, &Text2});
  DeriveEngineFields();
}

void Form1::SolveSizeForBoreStrokeRatio() {
  ReadEngineFields();
  const double volume = CylinderVolume();
  Require(block().BoreStrokeRatio > 0, Text11, "must be greater than 0 for this command.");
  Require(volume >= 0, Text6, "must not be negative for this command.");
  Require(LargestVolumeByDigits(block().BoreStrokeRatio) >= volume, Text6,
          "is too large for this command.");
  StoreBoreAndStroke(BoreAndStrokeByDigits(volume, block().BoreStrokeRatio));
  DeriveEngineFields();
}

void Form1::SolveSizeForStrokeBoreRatio() {
  ReadEngineFields();
  StoreBoreAndStroke(BoreAndStrokeForStrokeBoreRatio(CylinderVolume(), block().StrokeBoreRatio));
  DeriveEngineFields();
}

void Form1::SolveRodLength() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text4, b.Stroke * b.RodStrokeRatio);
  DeriveEngineFields();
}

void Form1::SolveMaxRpm() {
  ReadEngineFields();
  ParameterBlock& b = block();
  const double rpm = RpmForMeanPistonSpeed(PistonSpeedInFormulaUnits(), b.Stroke);
  Store(Text5, rpm, {&Text3});
  DeriveEngineFields();
}

void Form1::SolveStrokeForPistonSpeed() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text3, StrokeForMeanPistonSpeed(PistonSpeedInFormulaUnits(), b.RPM), {&Text5});
  DeriveEngineFields();
}

void Form1::SolveDeckHeight() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text8, BlockDeckHeight(b.Stroke, b.RodLength, b.PistonCompressionHeight, b.DeckClearance));
  DeriveEngineFields();
}

void Form1::SolvePistonHeight() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text9, PistonCompressionHeight(b.BlockDeckHeight, b.Stroke, b.RodLength, b.DeckClearance));
  DeriveEngineFields();
}

void Form1::SolveDeckClearance() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text10, DeckClearance(b.BlockDeckHeight, b.Stroke, b.RodLength, b.PistonCompressionHeight));
  DeriveEngineFields();
}

void Form1::EstimateHorsepowerGain() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text28, HorsepowerGain(b.HorsePower, b.Bore, b.BoreIncrease), {&Text1});
  DeriveEngineFields();
}

void Form1::SolveBoreStrokeRatios() {
  ReadEngineFields();
  ParameterBlock& b = block();
  Store(Text11, b.Bore / b.Stroke, {&Text3});
  Store(Text16, b.Stroke / b.Bore, {&Text1});
}

void Form1::SolveRodStrokeRatio() {
  ReadEngineFields();
  const double ratio = block().RodLength / block().Stroke;
  Show(Text12, ratio, {&Text3});
  Show(Text7, 2 * ratio);
}

void Form1::SolveBearingSpeed() {
  ReadEngineFields();
  ParameterBlock& b = block();
  ReadFields({&Text33});
  double speed = JournalSpeed(b.JournalDiameter, b.RPM);
  if (b.MetricSwitch == 1) speed *= kBearingFormulaToMetres;
  Show(Text34, speed);
}

void Form1::SolveEqualSpeedAngle() {
  ReadEngineFields();
  ShowAs<"0.00000000000">(Text15, EqualSpeedCrankAngle(block().RodLength, block().Stroke),
                          {&Text3});
}

bool Form1::CheckDegreeRange() {
  constexpr double kManyLongLines = 723;
  constexpr double kManyShortLines = 1200;
  ParameterBlock& b = block();
  ReadFields({&Text39, &Text40, &Text41});
  Require(b.EveryXDegrees > 0, Text39, "must be greater than 0 for this command.");
  Require(b.StartDegrees + b.EveryXDegrees > b.StartDegrees &&
              b.EndDegrees + b.EveryXDegrees > b.EndDegrees,
          Text39, "is too small beside the Start Degrees and End Degrees.");
  const double lines = DegreeLines(b.StartDegrees, b.EndDegrees, b.EveryXDegrees);
  std::string wrong;
  if (lines > kMostDegreeLines) {
    wrong += "\r\nYou can generate no more than 3600 degree lines and you want " +
             FormatInt(lines, mark()) +
             "\r\nYou can increase your Every xx Degrees or your Start Degrees or decrease your "
             "End Degrees.";
  } else if (lines >= (Check3.on() ? kManyShortLines : kManyLongLines)) {
    context().host.Ask({Icon::Information,
                        context().rules.messages().MessageTitle,
                        std::string(OverflowNote),
                        {Button::OK}});
  }
  if (b.StartDegrees > b.EndDegrees) {
    wrong += "\r\nYour Starting Degrees is greater than your Ending Degrees.";
  }
  if (b.EndDegrees > 360) wrong += "\r\nYour Ending Degrees is greater then 360";
  if (wrong.empty()) return true;
  ShowReport(std::move(wrong));
  return false;
}

void Form1::ReadWeights() {
  ParameterBlock& b = block();
  ReadFields({&Text30, &Text31});
  if (Check2.on()) {
    ReadFields({&Text14});
  } else {
    b.SmallEndRodWeight = b.RodWeight / 3;
  }
}

PistonTable Form1::Table() const {
  const ParameterBlock& b = block();
  PistonTable table;
  table.bore = b.Bore;
  table.stroke = b.Stroke;
  table.rodLength = b.RodLength;
  table.offset = b.WristPinOffset;
  table.rpm = b.RPM;
  table.cylinders = b.NumberofCylinders;
  table.weights = {b.PistonWeight, b.RodWeight, b.SmallEndRodWeight};
  table.metric = b.MetricSwitch == 1;
  table.compact = Check3.on();
  table.startDegrees = b.StartDegrees;
  table.endDegrees = b.EndDegrees;
  table.everyDegrees = b.EveryXDegrees;
  return table;
}

void Form1::FailForGeometry(const CommandError& error) {
  const ParameterBlock& b = block();
  const double reach = b.Stroke / 2 + std::abs(b.WristPinOffset);
  if (reach > b.RodLength) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "is too large for this Stroke and Rod Length: the rod cannot follow the "
                       "crank all the way round.",
                       &Text32);
  }
  if (reach == b.RodLength) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "is too short for this Stroke: the rod would stand square to the bore.",
                       &Text4);
  }
  throw error;
}

void Form1::ShowTable(const std::function<std::string(const PistonTable&)>& build) {
  std::string report;
  try {
    report = BuildReport([&] { return build(Table()); },
                         "The table cannot be computed for this engine. Please check the Bore, "
                         "Stroke, Rod Length, Engine RPM, Wrist Pin Offset and weights.");
  } catch (const CommandError& error) {
    FailForGeometry(error);
  }
  ShowReport(std::move(report));
  DeriveEngineFields();
}

void Form1::ShowVelocityTable(AngleOrigin origin) {
  ReadEngineFields();
  ParameterBlock& b = block();
  ReadFields({&Text21});
  Require(b.PortDiameter != 0, Text20, "must not be 0 for this command.");
  if (!CheckDegreeRange()) return;
  Require(b.RPM != 0, Text5, "must not be 0 for this command.");
  ShowTable([&](const PistonTable& table) { return VelocityReport(table, origin, mark()); });
}

void Form1::TabulateVelocity() {
  ShowVelocityTable(AngleOrigin::Crank);
}

void Form1::TabulateDegreeWheel() {
  ShowVelocityTable(AngleOrigin::DegreeWheel);
}

void Form1::TabulateTravel() {
  ReadEngineFields();
  if (!CheckDegreeRange()) return;
  Require(block().RPM != 0, Text5, "must not be 0 for this command.");
  ShowTable([&](const PistonTable& table) { return TravelReport(table, mark()); });
}

void Form1::TabulateCrankpinForce() {
  ReadEngineFields();
  if (!CheckDegreeRange()) return;
  ReadWeights();
  Require(block().RodWeight != 0, Text31, "must not be 0 for this command.");
  ShowTable([&](const PistonTable& table) { return CrankpinForceReport(table, mark()); });
}

void Form1::TabulateCrankpinLoad() {
  ReadEngineFields();
  if (!CheckDegreeRange()) return;
  ReadWeights();
  ShowTable([&](const PistonTable& table) { return CrankpinLoadReport(table, mark()); });
}

void Form1::SolvePistonTravel() {
  ReadEngineFields();
  ParameterBlock& b = block();
  ReadFields({&Text47});
  // A travel has the unit of the lengths it comes from.
  const auto travelWith = [&b](double rodLength) {
    return PistonTravelAt({b.Stroke / 2, rodLength, b.WristPinOffset}, b.CrankDegrees);
  };
  const double travel = travelWith(b.RodLength);
  Store(Text48, travel, {&Text4});
  const double travel2 = travelWith(b.RodLength2);
  Show(Text18, travel2, {&Text17});
  Show(Text19, travel - travel2);
}

void Form1::SolveCrankDegrees() {
  ReadEngineFields();
  ParameterBlock& b = block();
  ReadFields({&Text48});
  Require(b.PistonTravel >= 0, Text48, "must not be negative for this command.");
  try {
    if (b.WristPinOffset == 0) {
      Store(Text47, CrankDegreesAtTravel(b.Stroke, b.RodLength, b.PistonTravel));
    } else {
      Show(Text47,
           CrankDegreesAtTravel({b.Stroke / 2, b.RodLength, b.WristPinOffset}, b.PistonTravel));
    }
  } catch (const CommandError& error) {
    // Its sentence stands alone in the box, so the field is pointed at here.
    if (error.control() == nullptr) {
      Text48.SetMark(Mark::Error);
      Text48.Focus();
    }
    throw;
  }
}

PistonGraphInput Form1::ReadGraphInput() {
  ReadEngineFields();
  ParameterBlock& b = block();
  const int option = Option1.chosen();
  if (option < 0 || option >= kPistonGraphCount) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "This graph is drawn from the port time area panel.");
  }
  PistonGraphInput input;
  input.graph = static_cast<PistonGraph>(option);
  input.axis = static_cast<CrankAxis>(Option2.chosen());
  input.absolute = Check4.on();
  Require(b.RPM > 0, Text5, "must be greater than 0 for a graph.");
  Require(b.RPM <= kFastestGraphedRpm, Text5, "must not be above 100000 for a graph.");
  switch (input.graph) {
    case PistonGraph::SideForce:
    case PistonGraph::ReciprocatingForce:
    case PistonGraph::InertiaForce:
    case PistonGraph::TangentForce:
    case PistonGraph::Torque:
      ReadWeights();
      Require(b.RodWeight != 0, Text31, "must not be 0 for this command.");
      break;
    case PistonGraph::BearingSpeed: ReadFields({&Text33}); break;
    case PistonGraph::PortVelocity:
    case PistonGraph::PortDepression:
      ReadFields({&Text21});
      Require(b.PortDiameter != 0, Text20, "must not be 0 for this command.");
      break;
    case PistonGraph::TotalVolumeChange:
    case PistonGraph::PressureDifferential:
      ReadFields({&Text22});
      Require(b.CompressionRatio > 1, Text22, "must be greater than 1 for this command.");
      break;
    default: break;
  }
  input.table = Table();
  input.journalDiameter = b.JournalDiameter;
  input.portDiameter = b.PortDiameter;
  input.volumetricEfficiency = b.VolumetricEfficiency;
  input.compressionRatio = b.CompressionRatio;
  return input;
}

void Form1::GraphPiston(bool first) {
  const PistonGraphInput input = ReadGraphInput();
  try {
    const GraphCurve curve = PistonGraphCurve(input, mark());
    if (first || !grapher_.HasGraph()) {
      grapher_.DrawGraph(PistonGraphFrame(input), {&curve, 1});
    } else {
      grapher_.AddToGraph({&curve, 1});
    }
  } catch (const CommandError& error) {
    FailForGeometry(error);
  }
  DeriveEngineFields();
  grapher_.ShowGraph();
}

void Form1::GraphFirst() {
  GraphPiston(true);
}

void Form1::GraphFurther() {
  GraphPiston(false);
}

void Form1::ConvertEngineUnits() {
  ReadEngineFields();
  SwitchUnits([this] {
    ParameterBlock& b = block();
    Store(Text6, EngineSizeInFieldUnits());
    Store(Text11, b.Bore / b.Stroke);
    // Without a bore the ratio stays as it is: the unit has no part in it.
    if (b.Bore != 0) Store(Text16, b.Stroke / b.Bore);
    Store(Text12, b.RodLength / b.Stroke);
    Show(Text7, 2 * b.RodStrokeRatio);
    StoreMeanPistonSpeed();
    Store(Text24, PistonArea(b.Bore));
  });
}

}  // namespace veldox
