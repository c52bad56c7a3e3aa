#include "vehicle/road_charts.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "core/report.h"
#include "vehicle/field_bounds.h"

namespace veldox {
namespace {

constexpr const char* kImpossibleChart =
    "The chart cannot be made: the values give numbers that are too large or none. Please check "
    "the road table, the weight, the gears and the tires.";
constexpr double kRadiansPerDegree = 0.017453292519943278;
constexpr double kLastDirection = 359;
constexpr double kAllOfIt = 100;  // percent

/// The rows of a road table that are in use.
template <class Column>
std::span<const double> Rows(const Column& column, int count) {
  const int most = static_cast<int>(column.size());
  return std::span<const double>(column).first(
      static_cast<std::size_t>(std::clamp(count, 0, most)));
}

}  // namespace

RoadCharts::RoadCharts(Screen& screen, RunInputs& inputs)
    : ScreenPart(screen), page_(inputs.page), shifts_(inputs.shifts), inputs_(inputs) {}

double RoadCharts::ReadAboveZero(Field& field, double P::*value) {
  ReadFields({&field});
  RequireUsual(block().*value, field);
  return block().*value;
}

double RoadCharts::ReadPrimaryDrive() {
  const double primary = page_.ReadPrimaryDrive();
  RequireUsual(primary, page_.Text62);
  return primary;
}

RoadCar RoadCharts::ReadDrag() {
  RoadCar car;
  car.weight = ReadAboveZero(page_.Text51, &P::CarWeight);
  ReadFields({&page_.Text64, &page_.Text65, &page_.Text73});
  const ParameterBlock& b = block();
  car.dragCoefficient = b.CoefficientofDrag;
  car.frontalArea = b.FrontalArea;
  car.trackPressure = b.TrackBP;
  for (Field* field : {&page_.Text64, &page_.Text65, &page_.Text73}) {
    RequireNotNegative(Read(*field), *field);
  }
  return car;
}

RoadCar RoadCharts::ReadCar() {
  RoadCar car = ReadDrag();
  ReadFields({&page_.Text66, &page_.Text37, &page_.Text38});
  const ParameterBlock& b = block();
  RequireNotNegative(b.TireRollingResistance, page_.Text66);
  RequireUsable(b.WindSpeed, page_.Text37);
  RequireUsable(b.WindDirection, page_.Text38);
  if (b.WindDirection > kLastDirection) inputs_.Listener().windDirectionLowered(kLastDirection);
  car.rollingResistance = b.TireRollingResistance;
  car.headWind = b.WindSpeed * std::cos(b.WindDirection * kRadiansPerDegree);
  return car;
}

RoadGear RoadCharts::ReadGear() {
  RoadGear gear;
  ReadFields({&page_.Text12});
  gear.number = block().TransGear;
  if (gear.number < 1 || gear.number > kRunGears) {
    FailAt(page_.Text12, "\"Trans Gear\" must be a gear of the transmission, 1 to " +
                             std::to_string(kRunGears) + '.');
  }
  const int row = gear.number - 1;
  RoadDrive& drive = gear.drive;
  drive.gear = shifts_.ReadTransRatio(row);
  RequireUsual(drive.gear, shifts_.Text2[row]);
  ReadFields({&shifts_.Text32[row]});
  drive.tireGrowth = block().TireGrowth[static_cast<std::size_t>(row)];
  RequireUsable(drive.tireGrowth, shifts_.Text32[row]);
  Require(drive.tireGrowth > -kAllOfIt, shifts_.Text32[row], "must be above -100.");
  drive.rearGearRatio = ReadAboveZero(page_.Text18, &P::RearGearRatio);
  drive.tireDiameter = ReadAboveZero(page_.Text21, &P::TireDiameter);
  drive.primaryDrive = ReadPrimaryDrive();
  return gear;
}

void RoadCharts::ShowChart(const std::function<std::string()>& build) {
  std::string report = BuildReport(build, kImpossibleChart);
  const int size = FontSizeByWidth(report);
  ShowReport(std::move(report), size);
}

void RoadCharts::ChartSpeeds() {
  const RoadCar car = ReadCar();
  const RoadGear gear = ReadGear();
  ShowChart([&] {
    const ParameterBlock& b = block();
    return RoadSpeedChart(car, gear, Rows(b.RoadMph, b.RoadMphRowCount),
                          Rows(b.RoadMphTime, b.RoadMphRowCount), mark());
  });
}

void RoadCharts::ChartEngineSpeeds() {
  const RoadCar car = ReadCar();
  const RoadGear gear = ReadGear();
  const double rate = Read(page_.Text70);
  RequireNotNegative(rate, page_.Text70);
  Require(rate == 0 || IsOfUsualSize(rate), page_.Text70, kMustBeUsual);
  ShowChart([&] {
    const ParameterBlock& b = block();
    return RoadEngineChart(car, gear, Rows(b.RoadRpm, b.RoadRpmRowCount),
                           Rows(b.RoadRpmTime, b.RoadRpmRowCount), rate, mark());
  });
}

void RoadCharts::ChartWeight() {
  const RoadCar car = ReadDrag();
  ShowChart([&] {
    const ParameterBlock& b = block();
    return RoadWeightChart(car, Rows(b.RoadMph, b.RoadMphRowCount),
                           Rows(b.RoadMphTime, b.RoadMphRowCount), mark());
  });
}

void RoadCharts::ChartStartingLine() {
  StartingLine line;
  line.tireDiameter = ReadAboveZero(page_.Text21, &P::TireDiameter);
  line.firstGear = shifts_.ReadTransRatio(0);
  RequireUsual(line.firstGear, shifts_.Text2[0]);
  line.rearGearRatio = ReadAboveZero(page_.Text18, &P::RearGearRatio);
  line.primaryDrive = ReadPrimaryDrive();
  line.automatic = page_.Check1.on();
  if (line.automatic) {
    ReadFields({&page_.Text41});
    line.converterSlippage = block().ConverterSlippage;
    RequireLoss(line.converterSlippage, page_.Text41);
  }
  ShowChart([&] { return StartingLineChart(line, mark()); });
}

}  // namespace veldox
