#include "vehicle/run_comparison.h"

#include <optional>
#include <string_view>

#include "core/report.h"

namespace veldox {

namespace {

constexpr int kNameWidth = 26;
constexpr int kColumnWidth = 13;

using Figure = std::optional<double>;

/// A figure of both runs and what the present one has more.
template <PatternText Pattern>
void AddRow(ReportWriter& report, std::string_view name, const Figure& last, const Figure& now) {
  report.LeftCellText = name;
  report.PadTextCell(kNameWidth);
  const auto add = [&](const Figure& figure) {
    if (figure) {
      report.Add<Pattern>(*figure, kColumnWidth);
    } else {
      report.CellText = "-";
      report.AddPadCell(kColumnWidth);
    }
  };
  add(last);
  add(now);
  add(last && now ? Figure(*now - *last) : Figure());
  report.EndLine();
}

Figure TimeAt(const RunResult& run, StripMark mark) {
  return run.at(mark).reached() ? Figure(run.at(mark).time) : Figure();
}

Figure SpeedAt(const RunResult& run, StripMark mark) {
  if (!run.at(mark).reached()) return {};
  switch (mark) {
    case StripMark::Feet660: return run.EighthMileMph();
    case StripMark::Feet1320: return run.QuarterMileMph();
    default: return run.at(mark).mph;
  }
}

}  // namespace

std::string CompareRuns(const RunResult& last, const RunResult& now, DecimalMark mark) {
  ReportWriter report(mark);
  report.AddLines({"                     Two Runs Side by Side.^", ""});
  report.AddLines({"                               Last Run     This Run   Difference_"});
  const auto addMark = [&](const char* time, const char* speed, StripMark at) {
    AddRow<"0.0000">(report, time, TimeAt(last, at), TimeAt(now, at));
    AddRow<"0.00">(report, speed, SpeedAt(last, at), SpeedAt(now, at));
  };
  addMark("60 Foot ET", "60 Foot MPH", StripMark::Feet60);
  addMark("330 Foot ET", "330 Foot MPH", StripMark::Feet330);
  addMark("1/8 Mile ET", "1/8 Mile MPH", StripMark::Feet660);
  addMark("1000 Foot ET", "1000 Foot MPH", StripMark::Feet1000);
  addMark("1/4 Mile ET", "1/4 Mile MPH", StripMark::Feet1320);
  const auto topSpeed = [](const RunResult& run) {
    return run.end == RunEnd::NoThrust ? Figure() : Figure(run.topSpeed);
  };
  AddRow<"0.00">(report, "Top Speed MPH", topSpeed(last), topSpeed(now));
  AddRow<"0.0">(report, "Tires Limit Until Feet", last.tractionLimitedFeet,
                now.tractionLimitedFeet);
  report.EndLine();
  report.AddLines(
      {"Last Run is the chart that was last clicked, Acceleration or CVT; This Run has the present "
       "values."});
  if (last.rest != RunRest::None || now.rest != RunRest::None) {
    report.AddLines({"Beyond the end of a run its times are as its chart tells them."});
  }
  return report.Finish();
}

}  // namespace veldox
