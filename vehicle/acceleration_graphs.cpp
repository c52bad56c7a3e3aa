#include "vehicle/acceleration_graphs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "cam/curve_fit.h"
#include "graph/axis_growth.h"
#include "graph/curve_colors.h"
#include "vehicle/elapsed_time.h"

namespace veldox {

namespace {

constexpr double kGravity = 32.17405;  // feet a second squared
constexpr double kPoundMphOfHp = 375;
constexpr double kCoastGs = -0.5;  // where the axis of a graph with the coast-down begins

/// What a graph shows, and how its axes come about.
struct GraphKind {
  RunKind kind = RunKind::Launched;
  const char* xName = "";
  const char* yName = "";
  const char* title = "";
  bool xFromUser = false;  ///< the axis ends where the user says, and begins at 0
  bool yFromUser = false;
  bool xIsTime = false;
};

GraphKind KindOf(RunGraph graph) {
  constexpr const char* kRpm = "RPM";
  constexpr const char* kMph = "MPH";
  constexpr const char* kTime = "Time";
  constexpr const char* kElapsed = "ET";
  constexpr const char* kWheelTorque = "Wheel Torque";
  constexpr const char* kForce = "G Force";
  switch (graph) {
    case RunGraph::WheelTorqueOverRpm: return {RunKind::EachGear, kRpm, kWheelTorque, kWheelTorque};
    case RunGraph::AccelerationOverTime:
      return {RunKind::Launched, kTime, kForce, "G Forces over Time", false, false, true};
    case RunGraph::AccelerationOverRpm:
      return {RunKind::EachGear, kRpm, kForce, "G Forces over RPM"};
    case RunGraph::DragPowerOverSpeed:
      return {RunKind::Launched,
              kMph,
              "HP",
              "Aero Drag HP, Rolling Resistance HP and Wheel HP",
              true,
              true};
    case RunGraph::TimeOverSpeed:
      return {RunKind::Launched, kMph, kElapsed, "ET over MPH", true, true};
    case RunGraph::RpmOverSpeed: return {RunKind::EachGear, kMph, kRpm, "RPM over MPH", true, true};
    case RunGraph::WheelTorqueOverSpeed:
      return {RunKind::EachGear, kMph, kWheelTorque, "Wheel Torque over MPH", true, true};
    case RunGraph::NitrousOverTime:
      return {RunKind::Launched, kElapsed, "Nitrous HP", "Nitrous HP over ET", true, true, true};
    case RunGraph::SpeedOverRpm: return {RunKind::EachGear, kRpm, kMph, "MPH over RPM", true, true};
    case RunGraph::RateOverTime:
      return {RunKind::Launched,
              kElapsed,
              "RPS Rate",
              "RPS Acceleration Rate over ET",
              true,
              true,
              true};
  }
  return {};
}

bool ShowsForce(RunGraph graph) {
  return graph == RunGraph::AccelerationOverTime || graph == RunGraph::AccelerationOverRpm;
}

GraphPoint PointOf(RunGraph graph, const RunRow& row) {
  switch (graph) {
    case RunGraph::WheelTorqueOverRpm: return {row.rpm, row.wheelTorque};
    case RunGraph::AccelerationOverTime: return {row.elapsed, row.acceleration / kGravity};
    case RunGraph::AccelerationOverRpm: return {row.rpm, row.acceleration / kGravity};
    case RunGraph::DragPowerOverSpeed: return {row.mph, row.engineHp};
    case RunGraph::TimeOverSpeed: return {row.mph, row.elapsed};
    case RunGraph::RpmOverSpeed: return {row.mph, row.rpm};
    case RunGraph::WheelTorqueOverSpeed: return {row.mph, row.wheelTorque};
    case RunGraph::NitrousOverTime: return {row.elapsed, row.nitrousHp};
    case RunGraph::SpeedOverRpm: return {row.rpm, row.mph};
    case RunGraph::RateOverTime: return {row.elapsed, row.rpsRate};
  }
  return {};
}

/// Takes the points of a run apart into curves.
class CurveSink final : public ListenedSink {
 public:
  CurveSink(RunGraph graph, double carWeight, bool coastGs, const RunListener& listener)
      : ListenedSink(listener),
        graph_(graph),
        kind_(KindOf(graph)),
        carWeight_(carWeight),
        coastGs_(coastGs && ShowsForce(graph)) {}

  bool TakesSamples() const override { return true; }
  void Sample(const RunRow& row) override {
    GoOn();
    if (Begins(row)) {
      if (graph_ == RunGraph::DragPowerOverSpeed) {
        AddPowers(row);
      } else {
        AddToGear(row);
      }
    }
  }

  std::vector<GraphCurve> Curves();

 private:
  /// The clock runs, and the car still gains speed, where the graph needs that.
  bool Begins(const RunRow& row) const {
    const bool overTime = kind_.xIsTime || graph_ == RunGraph::TimeOverSpeed;
    if (overTime && row.distance < 0) return false;
    // Where no time goes by, a curve over time would be a wall.
    if (row.acceleration > 0) return true;
    return !overTime && (!ShowsForce(graph_) || coastGs_);
  }
  static void Append(GraphCurve& curve, GraphPoint point) {
    if (curve.points.empty() || curve.points.back() != point) curve.points.push_back(point);
  }
  GraphCurve& CurveOf(std::size_t index, const char* note) {
    if (curves_.size() <= index) curves_.resize(index + 1);
    if (curves_[index].note.empty()) curves_[index].note = note;
    return curves_[index];
  }
  void AddToGear(const RunRow& row) {
    const std::string note = "Gear " + std::to_string(row.gear);
    Append(CurveOf(static_cast<std::size_t>(row.gear - 1), note.c_str()), PointOf(graph_, row));
    if (!coastGs_) return;
    const double resistance = (row.aeroHp + row.rollHp) * kPoundMphOfHp / row.mph;
    coast_.note = "Coast Down G's";
    // Gears of one RPM follow each other, and no line leads from one to the next.
    if (row.gear != coastGear_ && !coast_.points.empty() && !kind_.xIsTime) {
      coast_.moves.push_back(coast_.points.size());
    }
    coastGear_ = row.gear;
    coast_.points.push_back({PointOf(graph_, row).x, -resistance / carWeight_});
  }
  void AddPowers(const RunRow& row) {
    Append(CurveOf(0, "Aero Drag HP"), {row.mph, row.aeroHp});
    Append(CurveOf(1, "Tire Rolling Resistance HP"), {row.mph, row.rollHp});
    Append(CurveOf(2, "Total HP Drag"), {row.mph, row.aeroHp + row.rollHp});
    Append(CurveOf(3, "Corrected HP at Drive Wheel(s)"), {row.mph, row.engineHp});
  }

  const RunGraph graph_;
  const GraphKind kind_;
  const double carWeight_;
  const bool coastGs_;
  std::vector<GraphCurve> curves_;
  GraphCurve coast_;
  int coastGear_ = 0;
};

std::vector<GraphCurve> CurveSink::Curves() {
  constexpr int kDarkBlue = 25;
  if (graph_ == RunGraph::DragPowerOverSpeed && curves_.size() > 2) {
    curves_[2].color = CurveColorOf(kDarkBlue);
  }
  // A gear that is passed over in less than two points has no curve.
  if (curves_.size() > 1) {
    std::erase_if(curves_,
                  [](const GraphCurve& curve) { return curve.points.size() < kFewestCurvePoints; });
  }
  if (!coast_.points.empty()) curves_.push_back(std::move(coast_));
  return std::move(curves_);
}

constexpr const char* kStaysInRollout =
    "The car does not get beyond the Rollout Distance, so that there is no time to graph.";

/// The range of all points.
AxisRange RangeOf(std::span<const GraphCurve> curves) {
  constexpr double kMost = std::numeric_limits<double>::max();
  AxisRange range{kMost, -kMost, kMost, -kMost};
  for (const GraphCurve& curve : curves) {
    for (const GraphPoint& point : curve.points) {
      range.xLow = std::min(range.xLow, point.x);
      range.xHigh = std::max(range.xHigh, point.x);
      range.yLow = std::min(range.yLow, point.y);
      range.yHigh = std::max(range.yHigh, point.y);
    }
  }
  return range;
}

/// The end of an axis: the user's while it holds the curves.
double Grown(double user, double needed) {
  return needed > user ? AxisLimit(needed) : user;
}

/// The lower end of an axis that curves may go below.
double Lowered(double end, double needed) {
  return needed < end ? -AxisLimit(-needed) : end;
}

void SetAxes(GraphFrame& frame, const GraphKind& kind, std::span<const GraphCurve> curves,
             const RunGraphLimits& limits, double yLow) {
  frame.xPointer = std::string("<--- ") + kind.xName;
  frame.xName = kind.xName;
  frame.yPointer = std::string("<--- ") + kind.yName;
  frame.title = kind.title;
  if (curves.empty()) return;
  const AxisRange all = RangeOf(curves);
  AxisRange& range = frame.range;
  if (kind.xFromUser) {
    range.xLow = 0;
    range.xHigh = Grown(limits.xHigh, all.xHigh);
  } else if (kind.xIsTime) {
    range.xLow = 0;
    range.xHigh = AxisLimit(all.xHigh);
  } else {
    const AxisSpan span = AxisSpanOf(std::max(0.0, all.xLow), all.xHigh);
    range.xLow = span.low;
    range.xHigh = span.high;
  }
  const double low = kind.yFromUser ? limits.yLow : yLow;
  range.yLow = std::min(low, all.yLow) < 0 ? Lowered(low, all.yLow) : std::min(low, all.yLow);
  range.yHigh = kind.yFromUser ? Grown(limits.yHigh, all.yHigh) : AxisLimit(all.yHigh);
  frame.zeroLine = range.yLow < 0;
}

/// @throws CommandError (InvalidArgument) for a run that there is nothing to draw of
void RequireCurves(const RunPlot& plot) {
  const bool moves = plot.result.end != RunEnd::NoThrust;
  if (moves && !plot.curves.empty()) return;
  const bool stays = !moves || !(plot.result.last.distance < 0);
  throw CommandError(ErrorKind::InvalidArgument, stays ? kDoesNotMove : kStaysInRollout);
}

}  // namespace

RunPlot PlotRun(RunGraph graph, const AccelerationInputs& inputs, const RunGraphLimits& limits,
                bool coastGs, const RunListener& listener) {
  const GraphKind kind = KindOf(graph);
  CurveSink sink(graph, inputs.carWeight, coastGs, listener);
  RunPlot plot;
  plot.result = SimulateRun(inputs, sink, kind.kind);
  plot.curves = sink.Curves();
  RequireCurves(plot);
  SetAxes(plot.frame, kind, plot.curves, limits, coastGs && ShowsForce(graph) ? kCoastGs : 0);
  return plot;
}

// ---------------------------------------------------------------- the dyno sheet

namespace {

/// Power of each row, smoothed by a cubic through its neighbours where that is asked for.
std::vector<double> PowersOf(const DynoColumns& columns, bool smooth) {
  const std::size_t count = columns.rpm.size();
  std::vector<double> powers(count);
  for (std::size_t i = 0; i < count; ++i) {
    powers[i] = PowerForTorque(columns.torque[i], columns.rpm[i]);
  }
  constexpr std::size_t kReach = 3;
  constexpr std::size_t kWindow = 2 * kReach + 1;
  if (!smooth || count < kWindow) return powers;
  std::vector<double> smoothed(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t first = std::min(i < kReach ? 0 : i - kReach, count - kWindow);
    std::vector<CurvePoint> window;
    for (std::size_t k = first; k < first + kWindow; ++k) {
      window.push_back({columns.rpm[k], powers[k]});
    }
    smoothed[i] = FitCurve(std::move(window), FitMethod::Poly, kLowestDegree).at(columns.rpm[i]);
  }
  return smoothed;
}

void RequireSheet(const DynoColumns& columns) {
  if (columns.rpm.size() < kFewestCurvePoints || columns.torque.size() != columns.rpm.size()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "The torque table needs at least two rows for a graph.");
  }
}

struct DynoKind {
  const char* yName;
  const char* title;
  std::span<const double> DynoColumns::*column = nullptr;  ///< null for what torque gives
};

DynoKind KindOf(DynoGraph graph) {
  switch (graph) {
    case DynoGraph::Bsac: return {"BSAC", "BSAC", &DynoColumns::bsac};
    case DynoGraph::CorrectionFactor: return {"Factor", "Corrected TorqueFactor"};
    case DynoGraph::Fuel: return {"lbs/hr", "Fuel lbs/hr", &DynoColumns::fuel};
    case DynoGraph::Bsfc: return {"BSFC", "BSFC", &DynoColumns::bsfc};
    case DynoGraph::AirFuel: return {"A/F Ratio", "Air / Fuel Ratio", &DynoColumns::airFuel};
    case DynoGraph::Scfm: return {"SCFM", "SCFM", &DynoColumns::scfm};
    case DynoGraph::VolumetricEfficiency: return {"% VE", "% VE", &DynoColumns::scfm};
    case DynoGraph::Power: return {"HP", "UnCorrected HP"};
    case DynoGraph::Torque: return {"Torque", "UnCorrected Torque"};
    case DynoGraph::MeanPressure: return {"BMEP", "UnCorrected BMEP"};
    case DynoGraph::CorrectedPower: return {"HP", "Corrected HP"};
    case DynoGraph::CorrectedTorque: return {"Torque", "Corrected Torque"};
  }
  return {"", ""};
}

/// Percent of the cylinders' volume that is filled in two turns.
double FilledPercent(double cubicFeetAMinute, double cubicInches, double rpm) {
  constexpr double kInchesInTwoTurns = 3456;  // cubic inches in a cubic foot, for every other turn
  constexpr double kPercent = 100;
  return cubicFeetAMinute * kInchesInTwoTurns / (cubicInches * rpm) * kPercent;
}

double ValueOf(DynoGraph graph, const DynoColumns& columns, const DynoGraphValues& values,
               std::span<const double> powers, std::size_t i) {
  switch (graph) {
    case DynoGraph::CorrectionFactor: return values.correction;
    case DynoGraph::Power: return powers[i];
    case DynoGraph::CorrectedPower: return powers[i] * values.correction;
    case DynoGraph::Torque: return columns.torque[i];
    case DynoGraph::CorrectedTorque: return columns.torque[i] * values.correction;
    case DynoGraph::MeanPressure:
      return MeanPressureForTorque(columns.torque[i], values.cubicInches);
    case DynoGraph::VolumetricEfficiency:
      return FilledPercent(columns.scfm[i], values.cubicInches, columns.rpm[i]);
    default: return (columns.*KindOf(graph).column)[i];
  }
}

}  // namespace

RunPlot PlotDyno(DynoGraph graph, const DynoColumns& columns, const DynoGraphValues& values) {
  RequireSheet(columns);
  const DynoKind kind = KindOf(graph);
  const std::span<const double> column =
      kind.column == nullptr ? std::span<const double>() : columns.*kind.column;
  const bool needsSize =
      graph == DynoGraph::VolumetricEfficiency || graph == DynoGraph::MeanPressure;
  if (needsSize && !(values.cubicInches > 0)) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "The engine's size in Cubic Inches must be above 0 for this graph.");
  }
  const std::vector<double> powers = PowersOf(columns, values.smooth);
  GraphCurve curve;
  curve.note = kind.title;
  for (std::size_t i = 0; i < columns.rpm.size(); ++i) {
    // Rows that do not have the column hold 0 there.
    const bool has = kind.column == nullptr || (i < column.size() && column[i] > 0);
    if (!has || !(columns.rpm[i] > 0)) continue;
    curve.points.push_back({columns.rpm[i], ValueOf(graph, columns, values, powers, i)});
  }
  if (kind.column != nullptr && curve.points.size() < kFewestCurvePoints) {
    throw CommandError(ErrorKind::InvalidArgument,
                       std::string("The torque table holds no ") +
                           (graph == DynoGraph::VolumetricEfficiency ? "SCFM" : kind.title) +
                           ", so that there is nothing to graph.");
  }
  RunPlot plot;
  plot.curves.push_back(std::move(curve));
  const GraphKind axes{RunKind::Launched, "RPM", kind.yName, kind.title};
  SetAxes(plot.frame, axes, plot.curves, {}, 0);
  return plot;
}

TorquePowerPlot PlotTorquePower(const AccelerationInputs& inputs, const DynoGraphValues& values,
                                int gear) {
  const DynoColumns columns{inputs.tableRpm, inputs.tableTorque, {}, {}, {}, {}, {}};
  RequireSheet(columns);
  TorquePowerPlot plot;
  if (inputs.nitrous) plot.shot = NitrousShot(inputs, gear);
  const std::vector<double> powers = PowersOf(columns, values.smooth);
  std::array<GraphCurve, 1> all;
  for (std::size_t i = 0; i < columns.rpm.size(); ++i) {
    const double rpm = columns.rpm[i];
    if (!(rpm > 0)) continue;
    PlotEngine::DynoRow row{rpm, powers[i], columns.torque[i], 0, 0};
    if (plot.shot) {
      const double shot = EngineNitrous(inputs, gear, rpm);
      row.otherHorsepower = row.horsepower + shot;
      row.otherTorque = row.torque + TorqueForPower(shot, rpm);
    } else {
      row.otherHorsepower = row.horsepower * values.correction;
      row.otherTorque = row.torque * values.correction;
    }
    for (const double y : {row.horsepower, row.torque, row.otherHorsepower, row.otherTorque}) {
      all[0].points.push_back({rpm, y});
    }
    plot.rows.push_back(row);
  }
  GraphFrame frame;
  SetAxes(frame, {RunKind::Launched, "RPM", "HP/Torque", ""}, all, {}, 0);
  plot.range = frame.range;
  return plot;
}

}  // namespace veldox
