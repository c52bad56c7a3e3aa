#include "vehicle/acceleration_page.h"

#include <cmath>
#include <vector>

#include "core/numbers.h"
#include "vehicle/field_bounds.h"
#include "vehicle/road_load.h"
#include "vehicle/torque_table.h"

namespace veldox {

AccelerationPage::AccelerationPage(Screen& screen, TorqueTablePanel& torques)
    : ScreenPart(screen), torques_(torques) {}

double AccelerationPage::ReadPrimaryDrive() {
  if (!Check2.on()) return 1;
  ReadFields({&Text62});
  return block().PrimaryDrive;
}

void AccelerationPage::ShowDrag(bool withArea) {
  const auto show = [this](Field& field, double number) {
    screen().ShowShared(field, number);
    field.SetMark(Mark::Changed);
  };
  show(Text64, block().CoefficientofDrag);
  if (withArea) show(Text65, block().FrontalArea);
}

AccelerationPage::RoadLoad AccelerationPage::ReadRoadLoad() {
  ReadFields({&Text1, &Text64, &Text65, &Text73, &Text51, &Text66});
  const ParameterBlock& b = block();
  RequireNotNegative(b.MPH, Text1);
  RequireNotNegative(b.CoefficientofDrag, Text64);
  RequireNotNegative(b.FrontalArea, Text65);
  RequireNotNegative(b.TrackBP, Text73);
  RequireNotNegative(b.CarWeight, Text51);
  RequireNotNegative(b.TireRollingResistance, Text66);
  return {AeroHorsepower(b.MPH, b.CoefficientofDrag, b.FrontalArea, b.TrackBP),
          RollingHorsepower(b.CarWeight, b.TireRollingResistance, b.MPH)};
}

void AccelerationPage::SolveRoadLoad() {
  const RoadLoad load = ReadRoadLoad();
  Show(Text63, load.aero);
  Show(Text68, load.rolling);
}

void AccelerationPage::EstimateFrontalArea() {
  ReadFields({&Text10, &Text11});
  Store(Text65, FrontalAreaOf(block().VehWidth, block().VehHeight));
}

void AccelerationPage::SolveTopSpeedPower() {
  const RoadLoad load = ReadRoadLoad();
  ReadFields({&Text28, &Text47, &Text67});
  const ParameterBlock& b = block();
  RequireLoss(b.PercentRearEndPowerLoss, Text28);
  RequireLoss(b.PercentDriveTrainPowerLoss, Text47);
  RequireUsual(b.DynoCorrection, Text67);
  const double loss = b.PercentRearEndPowerLoss + b.PercentDriveTrainPowerLoss;
  if (!(loss < 100)) {
    FailAt(Text47, "\"% Rear End Power Loss\" and \"% Drive Train Power Loss\" add up to " +
                       FormatField(loss, mark()) + ". They must add up to less than 100.");
  }
  const double power = (load.aero + load.rolling) / (1 - loss / 100);
  RequireResult(Text81, power);
  Show(Text81, power);
  Show(Text82, power * b.DynoCorrection);
}

void AccelerationPage::ShiftTorqueCurve() {
  ReadFields({&Text72});
  RequireUsable(block().ShiftTorque, Text72);
  const double rise = std::nearbyint(block().ShiftTorque);
  std::vector<TorquePoint> points = TorquePoints(block());
  RequireTorquePoints(points);
  for (TorquePoint& point : points) {
    double& rpm = point[0];
    if (!(rpm > 0)) continue;
    Require(rpm + rise > 0, Text72,
            "would bring the lowest point of the torque table to 0 RPM or below.");
    ScaleTorque(point, (rise + rpm) / rpm);
    rpm += rise;
  }
  TakeTorqueCurve(points, Text72);
}

void AccelerationPage::CorrectTorqueCurve() {
  ReadFields({&Text67});
  RequireUsual(block().DynoCorrection, Text67);
  std::vector<TorquePoint> points = TorquePoints(block());
  RequireTorquePoints(points);
  for (TorquePoint& point : points) {
    if (point[0] > 0) ScaleTorque(point, 1 / block().DynoCorrection);
  }
  TakeTorqueCurve(points, Text67);
}

void AccelerationPage::ScaleTorque(TorquePoint& point, double factor) {
  point[1] *= factor;
  if (point[2] > 0) point[2] *= factor;
}

void AccelerationPage::TakeTorqueCurve(const std::vector<TorquePoint>& points, Field& field) {
  for (const TorquePoint& point : points) {
    Require(std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2]), field,
            "makes numbers of the torque table too large.");
  }
  torques_.PutIntoUse(points);
  screen().ShowHelp("Torque table: " + TorquePeaksText(points, mark()) + '.');
}

}  // namespace veldox
