#include "cam/lift_reports.h"

#include <algorithm>
#include <vector>

#include "core/report.h"

namespace veldox {

namespace {

// Each number ends under the last letter of its heading, or a little behind it.
constexpr int kRecordWidth = 3;
constexpr int kLiftWidth = 14;
constexpr int kVelocityWidth = 16;
constexpr int kAccelerationWidth = 18;
constexpr int kJerkWidth = 15;
constexpr int kSmoothLiftWidth = 16;

template <PatternText Pattern>
void AddValue(ReportWriter& report, const LiftValues& values, int record, bool isThere, int width) {
  if (isThere && values.Has(record)) {
    report.Add<Pattern>(values[record], width);
  } else {
    report.Add(std::string(static_cast<std::size_t>(width), ' '));
  }
}

}  // namespace

std::string LiftReport(const LiftAnalysis& analysis, bool ofValve, bool exhaust,
                       const std::string& smoothingName, DecimalMark mark) {
  const bool isSmooth = analysis.smoothing.has_value();
  const bool showsSmoothLift = isSmooth && analysis.smoothsLift;
  const std::vector<double> lifts = AnalysedLifts(analysis);
  LiftAnalysis asRead = analysis;
  if (showsSmoothLift) asRead.smoothing.reset();
  const LiftValues lift = Analyse(asRead, {0, ofValve, false});
  const LiftValues velocity = Analyse(analysis, {1, ofValve, false});
  const LiftValues acceleration = Analyse(analysis, {2, ofValve, false});
  const LiftValues jerk = Analyse(analysis, {3, ofValve, false});

  ReportWriter report(mark);
  report.Add(isSmooth ? "Smooth Type = " + smoothingName : "Smooth = NO").EndLine();
  report.AddLines({exhaust ? "       E X H A U S T_" : "       I N T A K E_"});
  report.Add("         Cam Lift        Velocity      Acceleration       Jerk");
  if (showsSmoothLift) {
    report.AddLines({"         Smooth Lift_"});
  } else {
    report.EndLine(LineMark::Heading);
  }
  report.AddLines({"_"});
  const int last = static_cast<int>(lifts.size()) - 1;
  for (int i = 1; i <= last; ++i) {
    const auto index = static_cast<std::size_t>(i);
    const double analysed = lifts[index];
    const double shown = showsSmoothLift ? analysis.table.lifts[index] : analysed;
    const bool isThere = !ofValve || IsOffSeat(analysis, analysed);
    report.Add<"###">(i, kRecordWidth);
    report.Add<"0.00000">(!ofValve || IsOffSeat(analysis, shown) ? lift[i] : 0, kLiftWidth);
    AddValue<"0.0000000">(report, velocity, i, isThere, kVelocityWidth);
    AddValue<"0.000000000">(report, acceleration, i, isThere, kAccelerationWidth);
    AddValue<"0.000000000">(report, jerk, i, isThere, kJerkWidth);
    if (showsSmoothLift) {
      const double smooth = ofValve ? analysed * analysis.ratio - analysis.lash : analysed;
      report.Add<"0.00000">(isThere ? smooth : 0, kSmoothLiftWidth);
    }
    report.ReportLine.erase(report.ReportLine.find_last_not_of(' ') + 1);
    report.EndLine(i == last ? LineMark::HeadingsEnd : LineMark::None);
  }
  // A mark shows where no line break follows it.
  report.EndLine();
  return report.Finish();
}

}  // namespace veldox
