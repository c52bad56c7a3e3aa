#include "airfuel/blower_maps.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "core/report.h"
#include "core/step_bound.h"
#include "core/text.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr double kRatioStep = 0.2;
constexpr double kLastReportedRatio = 3;
constexpr double kBoostStepPsi = 2;
constexpr double kLastReportedPsi = 24;
constexpr double kGraphedRatio = 3;
constexpr std::size_t kCaptionWidth = 14;
constexpr std::size_t kCellGap = 2;
constexpr std::size_t kLeastCellWidth = 6;

/// A step of boost in the unit of the pressure outside.
double PressureOfStep(const FlowMapInput& in) {
  const double boost = in.air.units.celsius ? kBoostStepPsi * kKilopascalsPerPsi : kBoostStepPsi;
  return boost * in.air.units.boostToAir;
}

/// A column of a map.
struct MapColumn {
  double boostPsi;
  double pressureRatio;
  double densityRatio;
};

MapColumn ColumnOf(const FlowMapInput& in, double index) {
  if (in.kind == FlowMapKind::PressureRatio) {
    const double ratio = 1 + index * kRatioStep;
    return {0, ratio, in.DensityRatio(0, ratio)};
  }
  const double psi = index * kBoostStepPsi;
  const double boost = in.air.units.celsius ? psi * kKilopascalsPerPsi : psi;
  BlowerAir air = in.air;
  air.boost = boost;
  const double ratio = PressureRatio(air);
  return {psi, ratio, in.DensityRatio(boost, ratio)};
}

std::vector<MapColumn> ReportedColumns(const FlowMapInput& in) {
  const double steps = in.kind == FlowMapKind::PressureRatio ? (kLastReportedRatio - 1) / kRatioStep
                                                             : kLastReportedPsi / kBoostStepPsi;
  std::vector<MapColumn> columns;
  for (int i = 0; i <= std::lround(steps); ++i) columns.push_back(ColumnOf(in, i));
  return columns;
}

/// The columns that reach up to a pressure ratio; of very many, some.
std::vector<MapColumn> ColumnsUpTo(const FlowMapInput& in, double pressureRatio) {
  constexpr double kMostSteps = 200;
  const double rise = pressureRatio - 1;
  const double steps = in.kind == FlowMapKind::PressureRatio
                           ? rise / kRatioStep
                           : rise * in.air.Outside() / PressureOfStep(in);
  const double every = std::fmax(1, std::ceil(steps / kMostSteps));
  std::vector<MapColumn> columns;
  StepBound bound(static_cast<int>(kMostSteps) + 2);
  do {
    bound.Step();
    columns.push_back(ColumnOf(in, every * static_cast<double>(columns.size())));
  } while (columns.size() < 2 || columns.back().pressureRatio < pressureRatio);
  return columns;
}

// ---------------------------------------------------------------- the report

/// A part of the report: numbers by RPM and column.
struct MapTable {
  std::string heading;
  std::function<double(double rpm, const MapColumn&)> number;
};

/// All numbers of a table with as many decimals as make the largest about three digits.
std::string CellText(double value, double largest, DecimalMark mark) {
  if (largest < 10) return FormatValue<"0.00">(value, mark);
  if (largest < 100) return FormatValue<"0.0">(value, mark);
  return FormatInt(value, mark);
}

class MapWriter {
 public:
  MapWriter(const FlowMapInput& in, DecimalMark mark)
      : in_(in), mark_(mark), columns_(ReportedColumns(in)), speeds_(FlowMapSpeeds(in.maxRpm)) {}

  void Add(ReportWriter& report, const MapTable& table) {
    if (std::exchange(follows_, true)) report.EndLine(LineMark::HeadingsEnd);
    std::vector<std::vector<double>> rows;
    double largest = 0;
    for (const double rpm : speeds_) {
      std::vector<double>& row = rows.emplace_back();
      for (const MapColumn& column : columns_) {
        row.push_back(table.number(rpm, column));
        largest = std::fmax(largest, std::abs(row.back()));
      }
    }
    const auto text = [&](double value) { return CellText(value, largest, mark_); };
    std::size_t width = kLeastCellWidth;
    for (const auto& row : rows) {
      for (const double value : row) width = std::max(width, text(value).size() + kCellGap);
    }

    report.Add(table.heading).EndLine(LineMark::Heading);
    AddHeads(report, width);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      report.Add(RightAligned(FormatInt(speeds_[i], mark_), kCaptionWidth));
      for (const double value : rows[i]) report.Add(RightAligned(text(value), width));
      report.EndLine();
    }
  }

 private:
  void AddHead(ReportWriter& report, const char* caption, std::size_t width,
               const std::function<std::string(const MapColumn&)>& head) const {
    report.Add(RightAligned(caption, kCaptionWidth));
    for (const MapColumn& column : columns_) report.Add(RightAligned(head(column), width));
    report.EndLine(LineMark::Heading);
  }

  void AddHeads(ReportWriter& report, std::size_t width) const {
    if (in_.kind == FlowMapKind::PressureRatio) {
      AddHead(report, "Pressure Ratio", width, [this](const MapColumn& column) {
        return FormatValue<"0.0">(column.pressureRatio, mark_);
      });
    } else {
      AddHead(report, "Boost psi", width,
              [this](const MapColumn& column) { return FormatInt(column.boostPsi, mark_); });
      if (in_.air.units.celsius) {
        AddHead(report, "Boost kPa", width, [this](const MapColumn& column) {
          return FormatValue<"0.0">(column.boostPsi * kKilopascalsPerPsi, mark_);
        });
      }
      AddHead(report, "Pressure Ratio", width, [this](const MapColumn& column) {
        return FormatValue<"0.000">(column.pressureRatio, mark_);
      });
      AddHead(report, "Density Ratio", width, [this](const MapColumn& column) {
        return FormatValue<"0.000">(column.densityRatio, mark_);
      });
    }
    report.Add(RightAligned("RPM", kCaptionWidth)).EndLine(LineMark::Heading);
  }

  const FlowMapInput& in_;
  DecimalMark mark_;
  bool follows_ = false;  ///< a table stands already
  std::vector<MapColumn> columns_;
  std::vector<double> speeds_;
};

std::string FlowUnit(const FlowMapInput& in) {
  return in.inPounds ? "Lbs / Min" : "CFM";
}

// ---------------------------------------------------------------- graphs

/// The end of an axis from 0 that holds a value and divides well into ten parts.
double AxisEnd(double value) {
  if (!(value > 0) || !std::isfinite(value)) return 1;
  const double unit = std::pow(10, std::floor(std::log10(value)));
  for (const double end : {1.0, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (value <= end * unit) return end * unit;
  }
  return 10 * unit;
}

GraphCurve PointOnAxes(double flow, double pressureRatio, double lowest, std::string note) {
  return {std::move(note), {{0, pressureRatio}, {flow, pressureRatio}, {flow, lowest}}, {}};
}

}  // namespace

double FlowMapInput::DensityRatio(double boost, double pressureRatio) const {
  if (kind == FlowMapKind::PressureRatio) return pressureRatio;
  BlowerAir blown = air;
  blown.boost = boost;
  return BlowerDensityRatio(blown,
                            kind == FlowMapKind::Intercooled
                                ? intercoolerOutlet
                                : CompressedTemperature(blown, pressureRatio, blowerEfficiency));
}

double FlowMapInput::Flow(double rpm, double densityRatio) const {
  const double cfm = engine.FlowCfm(rpm, volumetricEfficiency.At(rpm), densityRatio);
  return inPounds ? cfm * poundsPerCubicFoot : cfm;
}

std::vector<double> FlowMapSpeeds(double maxRpm) {
  std::vector<double> speeds;
  for (double rpm = kFirstTableRpm; rpm <= maxRpm; rpm += kTableRpmStep) speeds.push_back(rpm);
  return speeds;
}

std::string FlowMapTitle(FlowMapKind kind) {
  switch (kind) {
    case FlowMapKind::PressureRatio: return "Blower / Turbo Flow Map Driven by Pressure Ratio";
    case FlowMapKind::Boost:
      return "Blower / Turbo Flow Map Driven by Boost Pressure and Density Ratio";
    case FlowMapKind::Intercooled: break;
  }
  return "Blower / Turbo Flow Map Driven by Boost Pressure and Density Ratio with Intercooler";
}

std::string FlowMapReport(const FlowMapInput& input, const ValueByRpm& bsac,
                          const std::vector<std::string>& title, DecimalMark mark) {
  ReportWriter report(mark);
  report.Add(FlowMapTitle(input.kind)).EndLine(LineMark::Heading);
  for (const std::string& line : title) report.Add(line).EndLine(LineMark::Heading);
  report.EndLine();
  const auto flow = [&input](double rpm, const MapColumn& column) {
    return input.Flow(rpm, column.densityRatio);
  };
  MapWriter writer(input, mark);
  const std::string turbos = FormatInt(input.turbos, mark);
  const bool several = input.turbos > 1;
  writer.Add(report, {"Flow in " + FlowUnit(input) +
                          (several ? ", all " + turbos + " Turbos together" : std::string()),
                      flow});
  FlowMapInput inPounds = input;
  inPounds.inPounds = true;
  const std::string need =
      bsac.table ? "the B S A C Table" : "a BSAC of " + FormatField(bsac.always, mark);
  writer.Add(report,
             {"Horsepower of this Flow by " + need, [&](double rpm, const MapColumn& column) {
                return HorsepowerOfAir(inPounds.Flow(rpm, column.densityRatio), bsac.At(rpm));
              }});
  if (several) {
    writer.Add(report, {"Flow in " + FlowUnit(input) + " of one of " + turbos + " Turbos",
                        [&](double rpm, const MapColumn& column) {
                          return flow(rpm, column) / input.turbos;
                        }});
  }
  return report.Finish();
}

BlowerPlot PlotFlowMap(const FlowMapInput& input, const FlowMapLimits& limits,
                       const std::optional<OperatingPoint>& point, DecimalMark mark) {
  BlowerPlot plot;
  AxisRange& range = plot.frame.range;
  range.yLow = 1;
  const double wanted = point ? std::fmax(kGraphedRatio, point->pressureRatio) : kGraphedRatio;
  const std::vector<MapColumn> columns = ColumnsUpTo(input, limits.pressureRatio.value_or(wanted));
  // The last step of boost goes beyond what was wanted.
  range.yHigh = limits.pressureRatio.value_or(1 + AxisEnd(columns.back().pressureRatio - 1));
  double largest = 0;
  for (const double rpm : FlowMapSpeeds(input.maxRpm)) {
    GraphCurve& curve = plot.curves.emplace_back();
    curve.note = FormatInt(rpm, mark) + " RPM";
    for (const MapColumn& column : columns) {
      curve.points.push_back({input.Flow(rpm, column.densityRatio), column.pressureRatio});
      largest = std::fmax(largest, curve.points.back().x);
    }
  }
  if (point) {
    BlowerAir air = input.air;
    const double boost = (point->pressureRatio - 1) * air.Outside() / air.units.boostToAir;
    const double flow = input.Flow(point->rpm, input.DensityRatio(boost, point->pressureRatio));
    const std::string here =
        FormatInt(point->rpm, mark) + " RPM at " + FormatValue<"0.0##">(point->pressureRatio, mark);
    largest = std::fmax(largest, flow);
    plot.curves.push_back(PointOnAxes(flow, point->pressureRatio, range.yLow, "Now " + here));
    if (input.turbos > 1) {
      plot.curves.push_back(PointOnAxes(flow / input.turbos, point->pressureRatio, range.yLow,
                                        "One of " + FormatInt(input.turbos, mark) + " Turbos"));
    }
  }
  range.xHigh = limits.flow.value_or(AxisEnd(largest));
  plot.frame.title = FlowMapTitle(input.kind);
  plot.frame.xPointer = "<--- Flow " + FlowUnit(input);
  plot.frame.xName = FlowUnit(input);
  plot.frame.yPointer = "<--- Pressure Ratio";
  return plot;
}

BlowerPlot PlotDensityGain(std::span<const double> rpm, std::span<const double> torque,
                           double gain) {
  BlowerPlot plot;
  plot.curves = {{"HP", {}, {}}, {"Torque", {}, {}}, {"New HP", {}, {}}, {"New Torque", {}, {}}};
  double largest = 0;
  double least = 0;
  for (std::size_t i = 0; i < rpm.size(); ++i) {
    const double horsepower = torque[i] * rpm[i] / kRpmOfEqualTorqueAndPower;
    std::size_t curve = 0;
    for (const double y : {horsepower, torque[i], horsepower * gain, torque[i] * gain}) {
      plot.curves[curve++].points.push_back({rpm[i], y});
      largest = std::fmax(largest, y);
      least = std::fmin(least, y);
    }
  }
  GraphFrame& frame = plot.frame;
  frame.range.xLow = kTableRpmStep * std::floor(rpm.front() / kTableRpmStep);
  frame.range.xHigh = kTableRpmStep * std::ceil(rpm.back() / kTableRpmStep);
  if (frame.range.xHigh <= frame.range.xLow) frame.range.xHigh = frame.range.xLow + kTableRpmStep;
  frame.range.yLow = least < 0 ? -AxisEnd(-least) : 0;
  frame.range.yHigh = AxisEnd(largest);
  frame.zeroLine = least < 0;
  frame.title = "Horsepower and Torque with the Old and New Density Ratio";
  frame.xPointer = "<--- RPM";
  frame.xName = "RPM";
  frame.yPointer = "<--- Horsepower, Torque (lb-ft)";
  return plot;
}

}  // namespace veldox
