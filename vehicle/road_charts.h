#pragma once

#include "core/screen_part.h"
#include "vehicle/road_horsepower.h"
#include "vehicle/run_inputs.h"

namespace veldox {

/// The commands of the acceleration screen that chart power from times taken on the road, and
/// starting line ratios. They stand beside the rate that may take the place of the times.
class RoadCharts : public ScreenPart {
 public:
  RoadCharts(Screen& screen, RunInputs& inputs);

 private:
  void ChartSpeeds();
  void ChartEngineSpeeds();
  void ChartWeight();
  void ChartStartingLine();

  /// Parses weight, drag, area and air. @throws CommandError that names the field
  RoadCar ReadDrag();
  /// Parses rolling resistance and wind as well.
  RoadCar ReadCar();
  /// Parses the gear that the car was in, and what stands between engine and road.
  RoadGear ReadGear();
  double ReadAboveZero(Field& field, double P::*value);
  /// The primary drive where it is in use, else 1.
  double ReadPrimaryDrive();
  /// Shows a chart that `build` makes.
  void ShowChart(const std::function<std::string()>& build);

  AccelerationPage& page_;
  ShiftPanel& shifts_;
  RunInputs& inputs_;

 public:
  Command Command26{
      page_.RoadFrame, "Command26", "&Road HP",
      "Horse Power Prediction Chart using MPH and Times from Parameter File also Coefficient of "
      "Drag, Frontal Area, Tire Rolling Resistance, Tire Growth, Tire Diameter, Vehicle Weight "
      "with Driver, Trans Gear (Ratio).",
      Runs(&RoadCharts::ChartSpeeds)};
  Command Command27{
      page_.RoadFrame, "Command27", "R&Oad HP",
      "Horse Power Prediction Chart using RPM and Times from Parameter File also Coefficient of "
      "Drag, Frontal Area, Tire Rolling Resistance, Tire Growth, Tire Diameter, Vehicle Weight "
      "with Driver, Trans Gear (Ratio).",
      Runs(&RoadCharts::ChartEngineSpeeds)};
  /// Apart from the other command of the same caption.
  Frame WeightFrame{page_.Frame1, "WeightFrame", "From Weight Alone, Starting Line", 1};
  Command Command29{
      WeightFrame, "Command29", "Road HP",
      "Horse Power Prediction Chart using MPH and Times from Parameter File and Vehicle Weight "
      "with Driver. Also optional Coefficient of Drag, Frontal Area and Track BP or Air Density "
      "for Calculating Aero Drag HP.",
      Runs(&RoadCharts::ChartWeight)};
  Command Command32{
      WeightFrame, "Command32", "SLR Chart",
      "Produce a Automatic (Torque Convertor) or Manual (Clutch) Transmission - N/A Starting Line "
      "Gear Ratio Chart Using Tire Diameter and Automatic Trans Check Box.",
      Runs(&RoadCharts::ChartStartingLine)};
};

}  // namespace veldox
