#include "airfuel/flow_reports.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "airfuel/airflow.h"
#include "airfuel/report_table.h"
#include "core/report.h"
#include "core/units.h"

namespace veldox {

namespace {

constexpr double kFeetPerSecondOfFlowPerArea = 2.4;  // 144 square inches by 60 seconds

constexpr std::string_view kFigureHeads =
    " Lift      CFM     fps       DC     Area    Area      fps       DC      fps       DC      fps "
    "      DC";
constexpr std::string_view kStepHeads =
    " Lift      CFM  Increase   Throat    Valve  Curtain     MCSA  Ratio   mm    M^3/s";

constexpr std::string_view kIntakeStepHeads =
    " Lift      CFM  Increase   Throat    Valve  Curtain     MCSA  Ratio   mm    M^3/s    Area    "
    "fps     CFM";

/// Sums of columns over the rows of a table.
class Averages {
 public:
  void Add(const std::vector<double>& row) {
    sums_.resize(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) sums_[i] += row[i];
    ++rows_;
  }
  int rows() const { return rows_; }
  double Of(std::size_t column) const { return sums_[column] / rows_; }

 private:
  std::vector<double> sums_;
  int rows_ = 0;
};

constexpr std::string_view kAverage = "Avg";

void AddHeader(ReportWriter& report, const FlowReportValues& values, DecimalMark mark) {
  const auto number = [mark](double value) { return FormatValue<"0.0#####">(value, mark); };
  report
      .Add("Bore = " + number(values.bore) + "   Stroke = " + number(values.stroke) +
           "   Rod Length = " + number(values.rod))
      .EndLine();
  const auto valves = [&](const char* name, const PortValves& v) {
    return std::string(name) + " Valve = " + number(v.size) + " x " + FormatInt(v.count, mark) +
           "  Stem = " + number(v.stem);
  };
  AddPair(report, valves("Intake", values.intake.valves), valves("Exhaust", values.exhaust.valves));
  AddPair(report, "Intake Throat Area = " + number(values.intake.throatArea),
          "Exhaust Throat Area = " + number(values.exhaust.throatArea));
}

/// Ends the repeated heads of the table before.
void EndTable(ReportWriter& report) {
  report.EndLine(LineMark::HeadingsEnd);
}

void AddHeads(ReportWriter& report, std::string_view groups, std::string_view columns) {
  report.Add(groups).EndLine(LineMark::Heading);
  report.Add(columns).EndLine(LineMark::Heading);
}

void AddFigures(ReportWriter& report, const FlowReportValues& values, const FlowPort& port,
                const FlowTable& table, DecimalMark mark) {
  const std::vector<std::size_t> ends = EndsOf(kFigureHeads);
  const auto add = [&](TableRow row, const std::vector<double>& cells) {
    std::size_t column = 1;
    const auto speed = [&](double value) { row.EndAt<".000">(ends[column++], value); };
    const auto coefficient = [&](double value) { row.EndAt<".0000">(ends[column++], value); };
    speed(cells[0]);  // the flow
    speed(cells[1]);
    coefficient(cells[2]);
    speed(cells[3]);
    speed(cells[4]);
    for (std::size_t i = 5; i < cells.size(); i += 2) {
      speed(cells[i]);
      coefficient(cells[i + 1]);
    }
    report.Add(row.text()).EndLine();
  };
  Averages averages;
  for (const FlowPoint& point : table) {
    if (!(point.lift > 0)) continue;
    const double area = CurtainArea(port, point.lift);
    const double coefficient = CurtainCoefficient(port, point, values.testVelocity);
    const std::vector<double> cells = {point.flow,
                                       CurtainSpeed(port, point),
                                       coefficient,
                                       area,
                                       coefficient * area,
                                       ThroatSpeed(port, point.flow),
                                       ThroatCoefficient(port, point.flow, values.testVelocity),
                                       ValveSpeed(port, point.flow),
                                       ValveCoefficient(port, point.flow, values.testVelocity),
                                       McsaSpeed(port, point.flow),
                                       McsaCoefficient(port, point.flow, values.testVelocity)};
    averages.Add(cells);
    TableRow row({}, mark);
    row.EndAt<".0000">(ends[0], point.lift);
    add(std::move(row), cells);
  }
  if (averages.rows() == 0) return;
  std::vector<double> cells;
  for (std::size_t i = 0; i < ends.size() - 1; ++i) cells.push_back(averages.Of(i));
  add(TableRow(kAverage, mark), cells);
}

/// @param throatTotal  of all valves, for the columns of the flow area; nothing leaves them out
void AddSteps(ReportWriter& report, const FlowPort& port, const FlowTable& table,
              std::optional<double> throatTotal, DecimalMark mark) {
  const std::vector<std::size_t> ends = EndsOf(kStepHeads);
  constexpr std::size_t kFirstPerArea = 3;  // column of the first CFM per square inch
  constexpr std::size_t kAreaWidth = 8;
  Averages averages;
  double before = 0;
  for (const FlowPoint& point : table) {
    if (!(point.lift > 0)) continue;
    const std::vector<double> perArea = {ThroatFlow(port, point.flow), ValveFlow(port, point.flow),
                                         CurtainFlow(port, point), McsaFlow(port, point.flow)};
    averages.Add(perArea);
    TableRow row({}, mark);
    row.EndAt<".0000">(ends[0], point.lift);
    row.EndAt<".000">(ends[1], point.flow);
    row.EndAt<".00">(ends[2], before != 0 ? (point.flow - before) / before * 100 : 0);
    before = point.flow;
    std::size_t column = kFirstPerArea;
    for (const double flow : perArea) row.EndAt<".000">(ends[column++], flow);
    row.EndAt<".000">(ends[column++], point.lift / port.valves.size);
    // Five digits do not fit under the two letters of the head.
    row.EndAt<"0.00">(ends[column++] + 1, point.lift * kMillimetresPerInch);
    row.EndAt<".0000">(ends[column], point.flow * kCubicMetresPerSecondOfCfm);
    if (throatTotal) {
      const double area = FlowAreaAtLift(port.valves, point.lift, *throatTotal);
      std::size_t end = ends[column];
      row.EndAt<".0000">(end += kAreaWidth, area);
      row.EndAt<"0.00">(end += kAreaWidth, point.flow / area * kFeetPerSecondOfFlowPerArea);
      row.EndAt<"0.00">(end += kAreaWidth, point.flow / area);
    }
    report.Add(row.text()).EndLine();
  }
  if (averages.rows() == 0) return;
  TableRow row(kAverage, mark);
  for (std::size_t i = 0; i < 4; ++i) row.EndAt<".000">(ends[kFirstPerArea + i], averages.Of(i));
  report.Add(row.text()).EndLine();
}

}  // namespace

std::string FlowReport(const FlowReportValues& values, DecimalMark mark) {
  const auto number = [mark](double value) { return FormatValue<"0.0#####">(value, mark); };
  const auto minor = [mark](const PortValves& valves) {
    return FormatValue<"0.0000">(SeatMinorDiameter(valves), mark);
  };
  ReportWriter report(mark);
  AddHeader(report, values, mark);
  AddPair(report, "User - Intake MCSA = " + number(values.intake.mcsa),
          "User - Exhaust MCSA = " + number(values.exhaust.mcsa));
  AddPair(report, "Intake Seat Minor Diameter = " + minor(values.intake.valves),
          "Exhaust Seat Minor Diameter = " + minor(values.exhaust.valves));
  report.EndLine();

  AddHeads(report,
           "     Intake        ------ Curtain -----   Effective  --- Throat --    ---- Valve ---   "
           " ---- MCSA ----",
           kFigureHeads);
  AddFigures(report, values, values.intake, values.intakeFlow, mark);
  EndTable(report);

  AddHeads(report,
           "     Intake       % Step   -------- CFM per Sq. In. -------    L/D   Lift           "
           "----- Flow Area -----",
           kIntakeStepHeads);
  AddSteps(report, values.intake, values.intakeFlow, values.IntakeThroatTotal(), mark);
  EndTable(report);

  AddHeads(report,
           "     Exhaust       ------ Curtain -----   Effective  --- Throat --    ---- Valve ---   "
           " ---- MCSA ----",
           kFigureHeads);
  AddFigures(report, values, values.exhaust, values.exhaustFlow, mark);
  EndTable(report);

  AddHeads(report, "     Exhaust      % Step   -------- CFM per Sq. In. -------    L/D   Lift",
           kStepHeads);
  AddSteps(report, values.exhaust, values.exhaustFlow, {}, mark);
  // The heads of an empty table are no last line.
  report.EndLine();
  return report.Finish();
}

std::string PistonDemandReport(const FlowReportValues& values, DecimalMark mark) {
  constexpr int kFirstRpm = 1000;
  constexpr int kLastRpm = 18000;
  constexpr int kRpmStep = 500;
  constexpr int kRpmWidth = 5;
  constexpr int kFlowWidth = 7;
  constexpr int kWidth = 9;
  ReportWriter report(mark);
  AddHeader(report, values, mark);
  report.EndLine();
  AddHeads(report,
           "     Intake       --- Throat --    ---- Valve ---    ---- MCSA ----  ---- CFM per Sq. "
           "In. ---- ",
           "  RPM    CFM      fps       DC      fps       DC      fps       DC    Throat    Valve  "
           "  MCSA ");
  const auto addCells = [&report](const std::vector<double>& cells) {
    constexpr std::size_t kSpeedsAndCoefficients = 6;
    report.Add<"0.0">(cells[0], kFlowWidth);
    for (std::size_t i = 1; i < cells.size(); ++i) {
      if (i <= kSpeedsAndCoefficients && i % 2 == 0) {
        report.Add<".0000">(cells[i], kWidth);
      } else {
        report.Add<".000">(cells[i], kWidth);
      }
    }
    report.EndLine();
  };
  const FlowPort& port = values.intake;
  Averages averages;
  std::size_t columns = 0;
  for (int rpm = kFirstRpm; rpm <= kLastRpm; rpm += kRpmStep) {
    const double flow = PeakPistonCfm(values.bore, values.stroke, values.rod, rpm);
    const std::vector<double> cells = {flow,
                                       ThroatSpeed(port, flow),
                                       ThroatCoefficient(port, flow, values.testVelocity),
                                       ValveSpeed(port, flow),
                                       ValveCoefficient(port, flow, values.testVelocity),
                                       McsaSpeed(port, flow),
                                       McsaCoefficient(port, flow, values.testVelocity),
                                       ThroatFlow(port, flow),
                                       ValveFlow(port, flow),
                                       McsaFlow(port, flow)};
    averages.Add(cells);
    columns = cells.size();
    report.Add<"0">(rpm, kRpmWidth);
    addCells(cells);
  }
  std::vector<double> cells;
  for (std::size_t i = 0; i < columns; ++i) cells.push_back(averages.Of(i));
  report.Add("Avg  ");
  addCells(cells);
  return report.Finish();
}

}  // namespace veldox
