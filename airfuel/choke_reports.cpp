#include "airfuel/choke_reports.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "airfuel/flow_graphs.h"
#include "airfuel/port_shape.h"
#include "airfuel/report_table.h"
#include "graph/axis_growth.h"

namespace veldox {

namespace {

/// The velocity that the first cross-sections are told for, feet per second.
constexpr double kUsualVelocity = 300;
/// A lift has four decimals, which end a character behind its head.
constexpr std::size_t kLiftEnd = 6;

constexpr std::string_view kGroups =
    " Valve                   Minimum CFM @      CSA @ 300     Throat Velocity    CSA @ ";
constexpr std::string_view kUnits =
    " Lift    Choke RPM      28 Inches Water   fps Velocity     fps - User CSA   fps Velocity      "
    "L/D Ratio ";
constexpr std::string_view kPorts =
    "       Intake Exhaust   Intake  Exhaust  Intake Exhaust   Intake  Exhaust  Intake Exhaust  "
    "Intake Exhaust";

void AddRow(ReportWriter& report, const ChokeValues& values, double lift, DecimalMark mark) {
  std::vector<std::size_t> ends = EndsOf(kPorts);
  auto end = ends.begin();
  TableRow row({}, mark);
  row.EndAt<".0000">(kLiftEnd, lift);
  const PortPair rpm = ChokeRpm(values.engine, lift);
  row.EndAt<"0">(*end++, rpm.intake);
  row.EndAt<"0">(*end++, rpm.exhaust);
  const PortPair flow = MinimumFlow(values.engine, lift);
  row.EndAt<"0.0">(*end++, flow.intake);
  row.EndAt<"0.0">(*end++, flow.exhaust);
  row.EndAt<".000">(*end++, PortAreaForFlow(flow.intake, kUsualVelocity));
  row.EndAt<".000">(*end++, PortAreaForFlow(flow.exhaust, kUsualVelocity));
  row.EndAt<"0.0">(*end++, PortSpeed(flow.intake, values.throats.intake));
  row.EndAt<"0.0">(*end++, PortSpeed(flow.exhaust, values.throats.exhaust));
  row.EndAt<".000">(*end++, PortAreaForFlow(flow.intake, values.userVelocity));
  row.EndAt<".000">(*end++, PortAreaForFlow(flow.exhaust, values.userVelocity));
  row.EndAt<".000">(*end++, lift / values.engine.intakeValve);
  row.EndAt<".000">(*end++, lift / values.engine.exhaustValve);
  report.Add(row.text()).EndLine();
}

}  // namespace

std::string ChokeReport(const ChokeValues& values, DecimalMark mark) {
  const ChokeEngine& engine = values.engine;
  const auto number = [mark](double value) { return FormatValue<"0.0#####">(value, mark); };
  const auto valves = [&](const char* name, double size, double count) {
    return std::string(name) + " Valve = " + number(size) + " x " + FormatInt(count, mark);
  };
  ReportWriter report(mark);
  report
      .Add("Bore = " + number(engine.bore) + "   Stroke = " + number(engine.stroke) +
           "   RPM = " + FormatInt(values.rpm, mark) +
           "   Volumetric Efficiency = " + number(values.volumetricEfficiency) +
           "   User DC = " + number(engine.dischargeCoefficient))
      .EndLine();
  AddPair(report, valves("Intake", engine.intakeValve, engine.intakeCount),
          valves("Exhaust", engine.exhaustValve, engine.exhaustCount));
  AddPair(report, "User - Intake Throat CSA = " + number(values.throats.intake),
          "User - Exhaust Throat CSA = " + number(values.throats.exhaust));
  report.Add(engine.logic == ExhaustLogic::Old ? "Old Exhaust Logic" : "New Exhaust Logic")
      .EndLine();
  report.EndLine();
  const auto lifts = [&](const char* intake, const char* exhaust, const PortPair& lift) {
    report.Add(intake).Add<"0.0000">(lift.intake).Add("    ");
    report.Add(exhaust).Add<"0.0000">(lift.exhaust).EndLine();
  };
  lifts("Choke RPM       Minimum Intake Lift = ", "Minimum Exhaust Lift = ",
        {MinimumIntakeLift(engine, values.rpm), MinimumExhaustLift(engine, values.rpm)});
  lifts("                Maximum Intake Lift = ", "Maximum Exhaust Lift = ",
        MaximumLifts(engine, values.rpm));
  report.EndLine();
  const bool isWhole = values.userVelocity == std::floor(values.userVelocity);
  report.Add(kGroups)
      .Add(isWhole ? FormatInt(values.userVelocity, mark) : FormatField(values.userVelocity, mark))
      .EndLine(LineMark::Heading);
  report.Add(kUnits).EndLine(LineMark::Heading);
  report.Add(kPorts).EndLine(LineMark::Heading);
  for (const double lift : values.lifts) AddRow(report, values, lift, mark);
  // The heads of an empty table are no last line.
  if (values.lifts.empty()) report.EndLine();
  return report.Finish();
}

ChokePlot PlotChoke(const ChokeValues& values) {
  ChokePlot plot;
  plot.curves.resize(2);
  GraphCurve& intake = plot.curves[0];
  GraphCurve& exhaust = plot.curves[1];
  intake.note = "Intake Choke RPM ";
  exhaust.note = "Exhaust Choke RPM ";
  intake.standardLine = values.rpm;
  double largestLift = 0;
  double highest = values.rpm;
  for (const double lift : values.lifts) {
    const PortPair rpm = ChokeRpm(values.engine, lift);
    intake.points.push_back({lift, rpm.intake});
    exhaust.points.push_back({lift, rpm.exhaust});
    largestLift = std::max(largestLift, lift);
    highest = std::max({highest, rpm.intake, rpm.exhaust});
  }
  plot.frame.range = {0, AxisLimit(largestLift), 0, AxisLimit(highest)};
  plot.frame.xPointer = "<--- Lift";
  plot.frame.xName = "Lift";
  plot.frame.yPointer =
      "<--- Choke RPM     Line across: " + FormatInt(values.rpm, DecimalMark::Point) + " RPM";
  plot.frame.title = "Intake Choke RPM   Green";
  return plot;
}

}  // namespace veldox
