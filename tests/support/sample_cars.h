#pragma once

#include <array>
#include <string>
#include <vector>

#include "vehicle/acceleration.h"

namespace veldox::test {

/// A car for runs, with its torque table.
struct SampleCar {
  std::string name;
  std::vector<double> rpm;
  std::vector<double> torque;
  AccelerationInputs inputs;

  /// The inputs, with this car's table.
  const AccelerationInputs& Run() {
    inputs.tableRpm = rpm;
    inputs.tableTorque = torque;
    return inputs;
  }
};

/// What the cars have in common.
inline SampleCar CarOf(std::string name, double weight, std::vector<double> rpm,
                       std::vector<double> torque) {
  SampleCar car{std::move(name), std::move(rpm), std::move(torque), {}};
  AccelerationInputs& in = car.inputs;
  in.gearLoss.fill(6);
  in.shiftTime.fill(0.05);
  in.shiftRpm.fill(car.rpm.back());
  in.carWeight = weight;
  in.dragCoefficient = 0.34;
  in.frontalArea = 19.4;
  in.rollingResistance = 0.015;
  in.rearEndLoss = 6.5;
  in.frictionMu = 5;
  in.rollout = 11.75;
  in.trackPressure = 29.92126;
  in.launchRpm = car.rpm.front();
  in.tireDiameter = 24;
  in.tireRollingRadius = 12;
  return car;
}

/// The table and gears that the program starts with.
inline SampleCar StartCar() {
  SampleCar car =
      CarOf("start", 3500, {5000, 5500, 6000, 6500, 7000, 7500, 8000, 8500, 9000, 9500, 10000},
            {700, 720, 750, 780, 810, 840, 820, 815, 780, 737, 685});
  car.inputs.transRatio = {3.25, 2.25, 1.25, 1.0, 0.87};
  car.inputs.rearGearRatio = 4.1;
  car.inputs.launchRpm = 5200;
  return car;
}

/// An automatic family car with head wind and a converter that slips.
inline SampleCar StockCar() {
  SampleCar car =
      CarOf("stock car", 3650, {1000, 1500, 2000, 2500, 3000, 3500, 4000, 4500, 5000, 5500},
            {250, 285, 310, 330, 345, 350, 340, 325, 300, 270});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {2.84, 1.55, 1.0, 0.7};
  in.rearGearRatio = 3.55;
  in.tireDiameter = 27;
  in.tireRollingRadius = 13.1;
  in.automatic = true;
  in.converterSlippage = 6;
  in.converterStallSpeed = 2600;
  in.torqueMultiplier = 1.9;
  in.launchRpm = 1800;
  in.shiftTime.fill(0.3);
  in.windSpeed = 12;
  in.windDirection = 30;
  in.dynoCorrection = 1.04;
  return car;
}

/// A drag car held by its tires, with a scoop and nitrous by gear and by time.
inline SampleCar DragCar() {
  SampleCar car =
      CarOf("drag car", 2350, {4800, 5200, 5600, 6000, 6400, 6800, 7200, 7600, 8000, 8400},
            {590, 615, 640, 655, 660, 655, 640, 615, 580, 535});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {2.48, 1.67, 1.2, 1.0};
  in.rearGearRatio = 3.9;
  in.tireDiameter = 33;
  in.tireRollingRadius = 15.6;
  in.tireGrowth = {0.5, 1.5, 2.5, 4};
  in.launchRpm = 5500;
  in.shiftRpm.fill(8000);
  in.shiftTime.fill(0.12);
  in.frictionMu = 1.6;
  in.hoodScoop = true;
  in.nitrous = true;
  in.nitrousStages[0] = {2, 150, 6200, 40, 7400};
  in.nitrousStages[1] = {3, 200, 6000, 100, 6000};
  in.nitrousStages[7] = {80, 0.8, 25, 2.0, 4.5};
  in.trackPressure = 0.0731;
  return car;
}

/// A motorcycle with a primary drive and wind from the side and behind.
inline SampleCar Motorcycle() {
  SampleCar car =
      CarOf("motorcycle", 640, {4000, 5000, 6000, 7000, 8000, 9000, 10000, 11000, 12000, 13000},
            {52, 58, 63, 66, 70, 73, 75, 73, 69, 62});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {2.6, 2.05, 1.7, 1.48, 1.33, 1.22};
  in.rearGearRatio = 2.65;
  in.usesPrimaryDrive = true;
  in.primaryDrive = 1.6;
  in.rearEndLoss = 4;
  in.gearLoss.fill(5);
  in.tireDiameter = 25.4;
  in.tireRollingRadius = 12.4;
  in.dragCoefficient = 0.6;
  in.frontalArea = 6.2;
  in.launchRpm = 7000;
  in.frictionMu = 1.1;
  in.shiftRpm.fill(12500);
  in.windSpeed = 8;
  in.windDirection = 140;
  return car;
}

/// A loaded truck of ten gears.
inline SampleCar Truck() {
  SampleCar car = CarOf("truck", 26000, {900, 1050, 1200, 1350, 1500, 1650, 1800, 2000, 2200},
                        {1350, 1500, 1550, 1540, 1480, 1400, 1300, 1150, 950});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {11.1, 8.2, 6.1, 4.5, 3.35, 2.48, 1.83, 1.36, 1.0, 0.75};
  in.rearGearRatio = 3.7;
  in.tireDiameter = 40.5;
  in.tireRollingRadius = 19.5;
  in.dragCoefficient = 0.75;
  in.frontalArea = 95;
  in.rollingResistance = 0.008;
  in.launchRpm = 1100;
  in.shiftRpm.fill(2000);
  in.shiftTime.fill(0.8);
  in.frictionMu = 0.8;
  in.rollout = 16;
  return car;
}

/// A kart of one tall gear.
inline SampleCar Kart() {
  SampleCar car =
      CarOf("kart", 375, {5000, 6000, 7000, 8000, 9000, 10000, 11000, 12000, 13000, 14000},
            {11.5, 12.5, 13.4, 14, 14.3, 14.2, 13.6, 12.6, 11.3, 9.6});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {1};
  in.rearGearRatio = 5.6;
  in.tireDiameter = 11;
  in.tireRollingRadius = 5.4;
  in.dragCoefficient = 0.8;
  in.frontalArea = 5.5;
  in.rearEndLoss = 3;
  in.gearLoss.fill(2);
  in.launchRpm = 6000;
  in.frictionMu = 1.3;
  in.rollout = 6;
  return car;
}

/// A car for the salt, which drag holds at its top speed.
inline SampleCar TopSpeedCar() {
  SampleCar car = CarOf("top speed car", 4200,
                        {3000, 3500, 4000, 4500, 5000, 5500, 6000, 6500, 7000, 7500, 8000},
                        {520, 560, 600, 640, 670, 690, 695, 680, 650, 605, 540});
  AccelerationInputs& in = car.inputs;
  in.transRatio = {3.1, 2.2, 1.65, 1.3, 1.1, 0.95};
  in.rearGearRatio = 2.4;
  in.tireDiameter = 28;
  in.tireRollingRadius = 13.6;
  in.tireGrowth = {0, 0, 0.5, 1, 1.5, 2};
  in.rollingResistance = 0.05;
  in.dragCoefficient = 0.24;
  in.frontalArea = 14;
  in.launchRpm = 4200;
  in.shiftRpm.fill(7500);
  in.shiftTime.fill(0.4);
  in.frictionMu = 0.7;
  in.trackPressure = 25.65;
  in.throttleStop = true;
  in.throttleStopRpm = 6000;
  in.throttleStopTime = 0.7;
  in.hoodScoop = true;
  return car;
}

}  // namespace veldox::test
