#include "airfuel/time_area_graphs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <utility>

#include "core/units.h"

namespace veldox {

namespace {

constexpr double kReach = 280;  ///< degrees to either side of top dead centre
constexpr double kWideReach = 360;
constexpr int kPistonStep = 2;  ///< degrees between points of the piston

/// How the upper end of the Y axis is rounded up.
enum class AxisTop { Tens, Hundredths, NextHundredth, NextThousandth };

struct CurveKind {
  std::string_view name;
  std::string_view caption;
  std::string_view pointer;
  AxisTop top;
};
constexpr std::array<CurveKind, kTimeAreaCurves> kKinds = {{
    {"Flow", "Flow / CFM", "<--- Flow / CFM", AxisTop::Tens},
    {"Lift", "Valve Lift", "<--- Valve Lift", AxisTop::Hundredths},
    {"Cur DC", "Curtain DC", "<--- Curtain DC", AxisTop::Hundredths},
    {"Cur Area", "Curtain/Fow Area", "<--- Curtain/Flow Area", AxisTop::Hundredths},
    {"Time Area", "Time Area", "<--- Time Area", AxisTop::NextHundredth},
    {"Time Area/cc", "Time Area/cc", "<--- Time Area/cc", AxisTop::NextThousandth},
    {"Lift Vert", "Valve Lift Vertical", "<--- Valve Lift Vertical", AxisTop::Hundredths},
    {"Lift Horiz", "Valve Lift Horizontal", "<--- Valve Lift Horizontal", AxisTop::Hundredths},
    {"Piston Travel", "Piston Travel", "<--- Piston Travel", AxisTop::Hundredths},
    {"Piston Flow", "Flow / CFM", "<--- Flow / CFM", AxisTop::Tens},
    {"Cur Vel", "Velocity fps", "<--- Velocity fps", AxisTop::Tens},
    {"Throat Vel", "Velocity fps", "<--- Velocity fps", AxisTop::Tens},
    {"Min CSA Vel", "Velocity fps", "<--- Velocity fps", AxisTop::Tens},
    {"Piston Velocity", "Velocity fps", "<--- Velocity fps", AxisTop::Tens},
    {"Piston Acceler", "Piston Acceleration", "<--- Piston Acceleration", AxisTop::Tens},
}};

const CurveKind& KindOf(TimeAreaCurve curve) {
  return kKinds.at(static_cast<std::size_t>(curve));
}

double TopOf(AxisTop top, double highest) {
  switch (top) {
    case AxisTop::Tens: return std::floor(highest / 10 + 1) * 10;
    case AxisTop::Hundredths: return std::floor(highest * 100 + 2) / 100;
    case AxisTop::NextHundredth: return std::floor(highest * 100 + 1) / 100;
    case AxisTop::NextThousandth: break;
  }
  return std::floor(highest * 1000 + 1) / 1000;
}

bool IsLift(TimeAreaCurve curve) {
  return curve == TimeAreaCurve::Lift || curve == TimeAreaCurve::VerticalLift ||
         curve == TimeAreaCurve::HorizontalLift;
}

double ValueOf(TimeAreaCurve curve, const TimeAreaRow& row) {
  switch (curve) {
    case TimeAreaCurve::Flow: return row.flow;
    case TimeAreaCurve::Lift: return row.lift;
    case TimeAreaCurve::CurtainCoefficient: return row.coefficient;
    case TimeAreaCurve::Area: return row.area;
    case TimeAreaCurve::TimeArea: return row.timeArea;
    case TimeAreaCurve::TimeAreaPerCc: return row.timeAreaPerCc;
    case TimeAreaCurve::VerticalLift: return row.vertical;
    case TimeAreaCurve::HorizontalLift: return row.horizontal;
    case TimeAreaCurve::AreaSpeed: return std::abs(row.areaSpeed);
    case TimeAreaCurve::ThroatSpeed: return std::abs(row.throatSpeed);
    case TimeAreaCurve::McsaSpeed: return std::abs(row.mcsaSpeed);
    default: break;
  }
  return 0;
}

/// @param highest  is raised to what the Y axis must hold of the curve
GraphCurve PortCurve(const TimeAreaGraph& graph, const TimeAreaValues& values,
                     const TimeAreaSide& side, double& highest) {
  GraphCurve curve;
  curve.note = std::string(side.port.isExhaust ? "Exhaust " : "Intake ");
  curve.note += KindOf(graph.curve).name;
  if (!values.cam.title.empty()) curve.note += "   " + values.cam.title;
  curve.fewestPoints = 0;
  const double scale = IsLift(graph.curve) && values.inMillimetres ? kMillimetresPerInch : 1;
  for (const TimeAreaRow& row :
       WalkCurve(side.curve, side.port, values.engine, values.userCoefficient)) {
    if (graph.curve == TimeAreaCurve::AreaSpeed && row.lift < kLeastGraphedLift) continue;
    const double y = ValueOf(graph.curve, row) * scale;
    curve.points.push_back({row.degrees, y});
    highest = std::max(highest, y);
  }
  return curve;
}

GraphCurve PistonCurve(const TimeAreaGraph& graph, const TimeAreaEngine& engine, double reach) {
  GraphCurve curve;
  curve.note = KindOf(graph.curve).name;
  const CrankSlider slider = engine.Slider();
  const auto valueAt = [&](double degrees) {
    const PistonState piston = PistonStateAt(slider, engine.rpm, degrees);
    switch (graph.curve) {
      case TimeAreaCurve::PistonTravel: return piston.travel;
      case TimeAreaCurve::PistonFlow: return std::abs(PistonFlowCfm(engine.bore, piston.velocity));
      case TimeAreaCurve::PistonSpeed: return std::abs(piston.velocity) * graph.pistonScale;
      default: return std::abs(piston.acceleration) * graph.pistonScale;
    }
  };
  const int last = static_cast<int>(reach);
  for (int degrees = -last; degrees <= last; degrees += kPistonStep) {
    curve.points.push_back({static_cast<double>(degrees), valueAt(degrees)});
  }
  return curve;
}

}  // namespace

bool IsOfPiston(TimeAreaCurve curve) {
  return curve == TimeAreaCurve::PistonTravel || curve == TimeAreaCurve::PistonFlow ||
         curve == TimeAreaCurve::PistonSpeed || curve == TimeAreaCurve::PistonAcceleration;
}

FlowPlot PlotTimeArea(const TimeAreaGraph& graph, const TimeAreaValues& values) {
  const CurveKind& kind = KindOf(graph.curve);
  const double reach = graph.isWide ? kWideReach : kReach;
  FlowPlot plot;
  double highest = 0;
  if (IsOfPiston(graph.curve)) {
    plot.curves.push_back(PistonCurve(graph, values.engine, reach));
    for (const GraphPoint& point : plot.curves[0].points) highest = std::max(highest, point.y);
  } else {
    if (graph.hasIntake) plot.curves.push_back(PortCurve(graph, values, values.intake, highest));
    if (graph.hasExhaust) plot.curves.push_back(PortCurve(graph, values, values.exhaust, highest));
  }
  const double zoom = graph.zoom > 0 ? graph.zoom : 1;
  plot.frame.range = {-reach * zoom, reach * zoom, 0, TopOf(kind.top, highest) * zoom};
  plot.frame.crankAngle = true;
  plot.frame.xPointer = "<--- Degrees";
  plot.frame.xName = "Degrees";
  plot.frame.yPointer = kind.pointer;
  if (IsLift(graph.curve) && values.inMillimetres) plot.frame.yPointer += "  mm";
  plot.frame.title = kind.caption;
  if (!values.cam.title.empty() && !IsOfPiston(graph.curve)) {
    plot.frame.title += "   " + values.cam.title;
  }
  return plot;
}

}  // namespace veldox
