#include "airfuel/mach_panel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace veldox {

namespace {

constexpr const char* kAboveZero = "must be above 0.";
constexpr const char* kAboveOne = "must be above 1.";
constexpr const char* kNoRpm =
    "is not reached up to 32767 RPM. Please check the Mach number and the valve.";
constexpr const char* kNoSize =
    "is not found up to 100 inches. Please check the Mach number and the engine.";

constexpr int kGraphSteps = 100;

}  // namespace

MachPanel::MachPanel(Screen& screen, AirflowPage& page, Grapher& grapher)
    : ScreenPart(screen), page_(page), grapher_(grapher) {}

MachEngine MachPanel::ReadEngine(Needs needs) {
  ReadFields({&Text52, &Text53});
  if (needs != Needs::NoDiameter && needs != Needs::NoValve) ReadFields({&Text54});
  if (needs != Needs::NoLift && needs != Needs::NoValve) ReadFields({&Text55});
  if (needs != Needs::NoRpm) ReadFields({&page_.Text2});
  const ParameterBlock& b = block();
  return {b.Bore, b.Stroke, b.MachValveDiameter, b.MachValveLift, static_cast<double>(b.RPM)};
}

// ---------------------------------------------------------------- Mach index

void MachPanel::SolveMachNumber() {
  const MachEngine engine = ReadEngine(Needs::All);
  const double index = MachIndex(engine);
  RequireResult(Text56, index, {&Text54, &Text55});
  block().MachNumber = index;
  ShowAs<"0.0000000">(Text56, index);
  ShowAs<"0.0000000">(Text57, index * kSoundOfMachIndex);
}

double MachPanel::WalkTo(MachTerm term, const MachEngine& engine, Field& result) {
  ReadFields({&Text56});
  // Without these no step of the walk would ever change the index.
  Require(engine.bore > 0, Text52, kAboveZero);
  Require(engine.stroke > 0, Text53, kAboveZero);
  if (term != MachTerm::Diameter) Require(engine.valveDiameter > 0, Text54, kAboveZero);
  if (term != MachTerm::Lift) Require(engine.valveLift > 0, Text55, kAboveZero);
  if (term != MachTerm::Rpm) Require(engine.rpm > 0, page_.Text2, kAboveZero);
  Require(block().MachNumber > 0, Text56, kAboveZero);
  const std::optional<double> found = WalkToMachIndex(term, engine, block().MachNumber);
  Require(found.has_value(), result, term == MachTerm::Rpm ? kNoRpm : kNoSize);
  RequireResult(result, *found);
  return *found;
}

void MachPanel::SolveRpm() {
  const double rpm = WalkTo(MachTerm::Rpm, ReadEngine(Needs::NoRpm), page_.Text2);
  Store(page_.Text2, rpm);
}

void MachPanel::SolveLift() {
  const double lift = WalkTo(MachTerm::Lift, ReadEngine(Needs::NoLift), Text55);
  block().MachValveLift = lift;
  ShowAs<"0.00000">(Text55, lift);
}

void MachPanel::SolveDiameter() {
  const double diameter = WalkTo(MachTerm::Diameter, ReadEngine(Needs::NoDiameter), Text54);
  block().MachValveDiameter = diameter;
  ShowAs<"0.00000">(Text54, diameter);
}

void MachPanel::ShowSpeed(double speed, double sound) {
  ShowAs<"0.00000">(Text57, speed);
  block().MachNumber = speed / sound;
  ShowAs<"0.00000">(Text56, block().MachNumber);
}

void MachPanel::SolveMachByArea() {
  const MachEngine engine = ReadEngine(Needs::NoValve);
  ReadFields({&Text58});
  const double speed = SpeedThroughArea(engine, area_);
  RequireResult(Text57, speed, {&Text58});
  ShowSpeed(speed, kSoundOfArea);
}

void MachPanel::SolveAreaBySpeed() {
  const MachEngine engine = ReadEngine(Needs::NoValve);
  ReadFields({&Text57});
  ShowAs<"0.00000">(Text58, AreaForSpeed(engine, speed_), {&Text57});
}

void MachPanel::SolveMachByCoefficient() {
  const MachEngine engine = ReadEngine(Needs::NoLift);
  ReadFields({&Text60, &Text59});
  const double speed = SpeedByCoefficient(engine, valves_, coefficient_);
  RequireResult(Text57, speed, {&Text54, &Text60, &Text59});
  ShowSpeed(speed, kSoundOfCoefficient);
}

void MachPanel::GraphMach() {
  GraphByCoefficient(kSoundOfCoefficient);
}

void MachPanel::GraphSpeed() {
  GraphByCoefficient(1);
}

void MachPanel::GraphByCoefficient(double sound) {
  constexpr double kLess = 0.16;  // of the first curve's coefficient
  constexpr double kFast = 10000;
  constexpr double kFastReach = 2000;
  constexpr double kReach = 1500;
  constexpr double kSpeedStep = 100;  // of the axis
  MachEngine engine = ReadEngine(Needs::NoLift);
  ReadFields({&Text60, &Text59});
  Require(engine.bore > 0, Text52, kAboveZero);
  Require(engine.stroke > 0, Text53, kAboveZero);
  Require(engine.valveDiameter > 0, Text54, kAboveZero);
  Require(valves_ > 0, Text60, kAboveZero);
  Require(coefficient_ > kLess, Text59, "must be above .16 for this graph.");
  const bool isMach = sound != 1;
  const double rpm = engine.rpm;
  const double reach = rpm >= kFast ? kFastReach : kReach;
  const auto text = [this](double value) { return FormatField(value, mark()); };

  GraphFrame frame;
  frame.range.xLow = std::max(0.0, rpm - reach);
  frame.range.xHigh = rpm + reach;
  double highest = 0;
  const auto curve = [&](double coefficient) {
    GraphCurve made;
    made.note = "C D   = " + text(coefficient);
    for (int i = 0; i <= kGraphSteps; ++i) {
      engine.rpm = frame.range.xLow + (frame.range.xHigh - frame.range.xLow) * i / kGraphSteps;
      const double y = SpeedByCoefficient(engine, valves_, coefficient) / sound;
      RequireResult(Text57, y);
      highest = std::max(highest, y);
      made.points.push_back({engine.rpm, y});
    }
    return made;
  };
  const std::array<GraphCurve, 2> curves{curve(coefficient_ - kLess), curve(coefficient_)};
  frame.range.yHigh = isMach ? 1 : (std::floor(highest / kSpeedStep) + 1) * kSpeedStep;
  frame.xPointer = "<--- RPM";
  frame.xName = "RPM";
  frame.yPointer = isMach ? "<--- Mach Number" : "<--- Velocity fps";
  frame.title = "Bore = " + text(engine.bore) + "  Stroke = " + text(engine.stroke) +
                "  Valve Size = " + text(engine.valveDiameter) +
                "  C D   = " + text(coefficient_ - kLess) + "  Green";
  grapher_.DrawGraph(frame, curves);
  grapher_.ShowGraph();
}

// ---------------------------------------------------------------- tuned length

HelmholtzIntake MachPanel::ReadIntake() {
  ReadFields({&Text52, &Text53, &Text58, &page_.Text84, &Text114, &Text99});
  const ParameterBlock& b = block();
  HelmholtzIntake intake;
  intake.bore = b.Bore;
  intake.stroke = b.Stroke;
  intake.area = area_;
  intake.ratio = b.CompressionRatio;
  // It is counted in whole numbers, and stays on the screen as it was typed.
  std::int16_t factor = 0;
  ReadCount(factor, Text114);
  intake.hFactor = factor;
  intake.sound = sound_;
  Require(intake.ratio > 1, page_.Text84, kAboveOne);
  return intake;
}

void MachPanel::SolveTunedRpm() {
  const HelmholtzIntake intake = ReadIntake();
  const double length = Read(page_.Text34);
  Store(page_.Text32, TunedRpm(intake, length), {&Text52, &Text53, &page_.Text34});
}

void MachPanel::SolveTunedLength() {
  const HelmholtzIntake intake = ReadIntake();
  ReadFields({&page_.Text32});
  Show(page_.Text34, TunedLength(intake, block().PeakTorqueRPM), {&Text52, &Text53, &page_.Text32});
}

void MachPanel::GraphTunedLength() {
  constexpr double kLeast = 0.9;
  constexpr double kMost = 1.1;
  HelmholtzIntake intake = ReadIntake();
  ReadFields({&page_.Text32});
  const double rpm = block().PeakTorqueRPM;
  Require(intake.area > 0, Text58, kAboveZero);
  Require(intake.hFactor > 0, Text114, kAboveZero);
  Require(intake.sound > 0, Text99, kAboveZero);
  const double area = intake.area;
  GraphCurve curve;
  curve.note = "Length ";
  for (int i = 0; i <= kGraphSteps; ++i) {
    intake.area = area * (kLeast + (kMost - kLeast) * i / kGraphSteps);
    const double length = TunedLength(intake, rpm);
    RequireResult(page_.Text34, length, {&Text52, &Text53, &page_.Text32});
    curve.points.push_back({intake.area, length});
  }
  const auto text = [this](double value) { return FormatField(value, mark()); };
  GraphFrame frame;
  frame.range = {curve.points.front().x, curve.points.back().x, curve.points.front().y,
                 curve.points.back().y};
  frame.xPointer = "<--- CSA";
  frame.xName = "CSA";
  frame.yPointer = "<--- Length";
  frame.title = "Bore = " + text(intake.bore) + "  Stroke = " + text(intake.stroke) +
                "  CR = " + text(intake.ratio) + "  Peak RPM = " + FormatInt(rpm, mark()) +
                "  Speed of Sound = " + text(intake.sound);
  grapher_.DrawGraph(frame, {&curve, 1});
  grapher_.ShowGraph();
}

}  // namespace veldox
