#include "vehicle/run_inputs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace veldox {

void RunInputs::ReadCar() {
  KeepOptions();
  ReadFields({&page.Text18, &page.Text21, &page.Text49, &page.Text28, &page.Text51, &page.Text64,
              &page.Text65, &page.Text66, &page.Text73, &page.Text37, &page.Text38, &page.Text29,
              &page.Text42, &page.Text67, &page.Text12});
  page.ReadPrimaryDrive();
  if (page.Check3.on()) stages.ReadStages();
}

void RunInputs::KeepOptions() {
  TakeTyped({&page.Text62, &page.Text41, &page.Text30, &page.Text31, &page.Text69, &page.Text77,
             &page.Text78, &page.Text79, &page.Text80});
  stages.KeepStages();
  shifts.KeepGearTables();
}

AccelerationInputs RunInputs::ReadRun() {
  ReadCar();
  ReadFields({&page.Text69});
  if (page.Check1.on()) ReadFields({&page.Text41, &page.Text30, &page.Text31});
  if (page.Check6.on()) ReadFields({&page.Text79, &page.Text80});
  shifts.ReadGearTables();
  return Inputs();
}

AccelerationInputs RunInputs::ReadCvtRun() {
  ReadCar();
  ReadFields({&page.Text77, &page.Text78});
  return Inputs();
}

void RunInputs::KeepResult(const RunResult& result) {
  ParameterBlock& b = block();
  const auto keep = [](double& value, double found) {
    if (std::isfinite(found)) value = found;
  };
  keep(b.ET60, result.Et60());
  keep(b.ET8, result.Et8());
  keep(b.ET, result.Et());
  keep(b.MPH8, result.Mph8());
  b.VerticalCG = kRunCenterOfGravity;
  b.WheelBase = kRunWheelBase;
}

AccelerationInputs RunInputs::Inputs() {
  const ParameterBlock& b = block();
  AccelerationInputs inputs;
  const auto rows = static_cast<std::size_t>(std::clamp<int>(b.AccelRowCount, 0, kTorqueRows));
  inputs.tableRpm = std::span(b.AccelRpm).first(rows);
  inputs.tableTorque = std::span(b.AccelTorque).first(rows);
  inputs.transRatio = b.TGear;
  inputs.tireGrowth = b.TireGrowth;
  inputs.gearLoss = b.PowerLoss;
  // The block counts a shift by the gear that is left, the first being 1.
  std::copy(b.ShiftRPM.begin() + 1, b.ShiftRPM.end(), inputs.shiftRpm.begin());
  std::copy(b.ShiftTime.begin() + 1, b.ShiftTime.end(), inputs.shiftTime.begin());
  inputs.rearGearRatio = b.RearGearRatio;
  inputs.primaryDrive = b.PrimaryDrive;
  inputs.tireDiameter = b.TireDiameter;
  inputs.tireRollingRadius = b.TireRollingRadius;
  inputs.converterSlippage = b.ConverterSlippage;
  inputs.converterStallSpeed = b.ConverterStallSpeed;
  inputs.torqueMultiplier = b.TorqueMultiplier;
  inputs.rearEndLoss = b.PercentRearEndPowerLoss;
  inputs.carWeight = b.CarWeight;
  inputs.dragCoefficient = b.CoefficientofDrag;
  inputs.frontalArea = b.FrontalArea;
  inputs.rollingResistance = b.TireRollingResistance;
  inputs.dynoCorrection = b.DynoCorrection;
  inputs.launchRpm = b.LaunchRPM;
  inputs.rollout = b.RollOut;
  inputs.frictionMu = b.CoefficientofMu;
  inputs.trackPressure = b.TrackBP;
  inputs.windSpeed = b.WindSpeed;
  inputs.windDirection = b.WindDirection;
  inputs.throttleStopRpm = b.ThrottleStopRPM;
  inputs.throttleStopTime = b.ThrottleStopTime;
  inputs.cvtRpm = b.CVTRPM;
  inputs.cvtLoss = b.CVTPowerLoss;
  inputs.automatic = page.Check1.on();
  inputs.usesPrimaryDrive = page.Check2.on();
  inputs.nitrous = page.Check3.on();
  inputs.hoodScoop = page.Check4.on();
  inputs.nitrousAtWheels = page.Check5.on();
  inputs.throttleStop = page.Check6.on();
  if (inputs.nitrous) inputs.nitrousStages = b.NitrousMS;
  return inputs;
}

RunListener RunInputs::Listener() {
  RunListener listener;
  listener.message = [this](const std::string& text) { Warn(text); };
  listener.tireDiameterRaised = [this](double inches) { Store(page.Text21, inches); };
  listener.windDirectionLowered = [this](double degrees) {
    block().WindDirection = degrees;
    ShowAs<"0">(page.Text38, degrees);
  };
  listener.goesOn = [this] { screen().context().StopInTime(); };
  return listener;
}

Field* RunInputs::FieldOf(const RunInputError& error) {
  const auto row = static_cast<int>(error.index());
  switch (error.field()) {
    case RunField::TorqueTable: return nullptr;
    case RunField::TransRatio: return &shifts.Text2[row];
    case RunField::TireGrowth: return &shifts.Text32[row];
    case RunField::GearLoss: return &shifts.Text13[row];
    case RunField::ShiftRpm: return &shifts.Text22[row];
    case RunField::ShiftTime: return &shifts.Text52[row];
    case RunField::RearGearRatio: return &page.Text18;
    case RunField::PrimaryDrive: return &page.Text62;
    case RunField::TireDiameter: return &page.Text21;
    case RunField::TireRollingRadius: return &page.Text49;
    case RunField::ConverterSlippage: return &page.Text41;
    case RunField::ConverterStallSpeed: return &page.Text30;
    case RunField::TorqueMultiplier: return &page.Text31;
    case RunField::RearEndLoss: return &page.Text28;
    case RunField::CarWeight: return &page.Text51;
    case RunField::DragCoefficient: return &page.Text64;
    case RunField::FrontalArea: return &page.Text65;
    case RunField::RollingResistance: return &page.Text66;
    case RunField::DynoCorrection: return &page.Text67;
    case RunField::LaunchRpm: return &page.Text69;
    case RunField::Rollout: return &page.Text29;
    case RunField::FrictionMu: return &page.Text42;
    case RunField::TrackPressure: return &page.Text73;
    case RunField::WindSpeed: return &page.Text37;
    case RunField::WindDirection: return &page.Text38;
    case RunField::ThrottleStopRpm: return &page.Text79;
    case RunField::ThrottleStopTime: return &page.Text80;
    case RunField::CvtRpm: return &page.Text77;
    case RunField::CvtLoss: return &page.Text78;
    case RunField::Nitrous: return &stages.Cell(error.index(), error.column());
  }
  return nullptr;
}

void RunInputs::Raise(const RunInputError& error) {
  Field* const field = FieldOf(error);
  if (field == nullptr) throw error;
  throw CommandError(error.kind(), error.reason(), field);
}

}  // namespace veldox
