#include "vehicle/acceleration_report.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "core/report.h"

namespace veldox {

namespace {

constexpr double kGravity = 32.17405;  // feet a second squared
constexpr double kFeetInMile = 5280;
constexpr double kChartFeet = 6600;  // beyond it distances are in miles
constexpr double kEighthMile = 660;
constexpr double kSixtyFeet = 60;
constexpr double kThirdOfEighth = 330;
constexpr double kThousandFeet = 1000;
constexpr double kQuarterMile = 1320;
/// Rows of the longest chart: no car of usual numbers comes near.
constexpr int kMostRows = 20000;

/// Writes the chart while the run goes on.
class ChartSink final : public ListenedSink {
 public:
  ChartSink(const AccelerationInputs& inputs, bool showsRate, bool varies, DecimalMark mark,
            const RunListener& listener)
      : ListenedSink(listener),
        inputs_(inputs),
        showsRate_(showsRate),
        varies_(varies),
        report_(mark),
        extension_(mark, {}) {
    report_.AddLines({varies ? "        Acceleration and Top Speed Prediction Chart.^"
                             : "                Acceleration and Top Speed Prediction Chart.^"});
    WriteChartHeader();
  }

  void Row(const RunRow& row) override {
    ListenedSink::Row(row);
    WriteChartRow(row);
  }
  void RolloutEnds(double elapsed) override {
    lines_->Add(">>>>--- RollOut Ends <-> 1/4 Mile Distance and ET Starts Now -- ")
        .Add<"0.00000">(elapsed)
        .EndLine(LineMark::Bold);
  }
  void ThrottleStopStarts() override { report_.AddLines({">>>>--- Throttle Stop Start"}); }
  void ThrottleStopEnds() override { report_.AddLines({">>>>--- Throttle Stop End", ""}); }
  void GearChange(int from, int to, bool belowTable) override {
    if (belowTable) report_.AddLines({"   RPM After Shift is Lower than any RPM in Table"});
    report_.Add(">>>>--- Gear Change ").Add<"0">(from).Add(" -> ").Add<"0">(to);
    report_.EndLine(LineMark::Bold);
    WriteChartHeader();
  }
  void GearTooShort(int from, int to) override {
    report_.Add("The run ends in gear ").Add<"0">(from).Add(": the Trans Gear Ratio of gear ");
    report_.Add<"0">(to).Add(" is too short for the speed that was reached.").EndLine();
  }
  void ExtensionBegins() override {
    lines_ = &extension_;
    rollsOut_ = true;
  }

  std::string Finish(const RunResult& result);

 private:
  void WriteChartHeader();
  void WriteChartRow(const RunRow& row);
  void AddSpeeds(const RunResult& result);
  void AddTime(ReportWriter& lines, std::string_view name, double time);
  void AddSpeed(ReportWriter& lines, std::string_view name, double mph);
  void AddMarks(const RunResult& result, double from, double to);

  const AccelerationInputs& inputs_;
  const bool showsRate_;
  const bool varies_;
  ReportWriter report_;
  ReportWriter extension_;  ///< stands behind the summary, which its times belong to
  ReportWriter* lines_ = &report_;
  bool firstRow_ = true;
  bool rollsOut_ = false;
  int rows_ = 0;
};

void ChartSink::WriteChartHeader() {
  const bool nitrous = inputs_.nitrous, scoop = inputs_.hoodScoop;
  if (varies_) {
    report_.AddLines({"                            Aero     Elapsed           Accele_"});
    report_.Add("  RPM      MPH   Velocity  dynamic    Time      Total  ration");
    report_.Add(nitrous ? "  Nitrous" : "").Add(scoop ? "  H S PSI" : "");
    report_.EndLine(LineMark::Heading);
    report_.Add("                  ft/sec  Drag - HP   (ET)    Distance in G's");
    report_.Add(nitrous ? "     HP" : "").EndLine(LineMark::Heading);
  } else {
    report_.AddLines(
        {"                                   Force    Aero     Rolling  Elapsed     "
         "      Accele^"});
    report_.Add(
        "  RPM      MPH   Velocity  Motor     @     dynamic   Resist.   Time      Total  ration");
    report_.Add(nitrous ? "  Nitrous" : "").Add(showsRate_ ? " RPS Rate" : "");
    report_.Add(scoop ? " Hood Scp" : "").EndLine(LineMark::Bold);
    report_.Add(
        "                  ft/sec  Torque   Wheel  Drag - HP    HP      (ET)    Distance in G's");
    report_.Add(nitrous ? "HP   " : "").Add(showsRate_ ? "  Change" : "");
    report_.Add(scoop ? " Pressure" : "").EndLine(LineMark::Bold);
  }
  report_.EndLine();
  firstRow_ = true;
}

void ChartSink::WriteChartRow(const RunRow& row) {
  if (++rows_ > kMostRows) {
    if (rows_ == kMostRows + 1) {
      lines_->Add("The chart has its ").Add<"0">(kMostRows);
      lines_->Add(" rows. Those that follow are left out.").EndLine();
    }
    return;
  }
  ReportWriter& lines = *lines_;
  lines.Add<"0.0">(row.rpm, 7).Add<"0.00">(row.mph, 8).Add<".000">(row.feetASecond, 9);
  if (!varies_) {
    if (rollsOut_) {
      lines.Add("                ");
    } else {
      lines.Add<"0.0">(row.torque, 8).Add<"0.0">(row.wheelForce, 8);
    }
  }
  lines.Add<".000">(row.aeroHp, 10);
  if (!varies_) lines.Add<".000">(row.rollHp, 9);
  lines.Add<".0000">(row.elapsed, 9);
  if (row.distance < kChartFeet) {
    lines.Add<".000">(row.distance, 10);
  } else {
    lines.Add<".0000">(row.distance / kFeetInMile, 10);
  }
  lines.Add<".000">(row.acceleration / kGravity, 8);
  if (!rollsOut_) {
    if (inputs_.nitrous) lines.Add<"0.00">(row.nitrousHp, 9);
    if (showsRate_) {
      if (firstRow_) {
        lines.Add("        ");
      } else {
        lines.Add<"0.0">(row.rpsRate, 8);
      }
    }
    if (inputs_.hoodScoop) lines.Add<".0000">(row.hoodPressure, 8);
  }
  lines.EndLine();
  firstRow_ = false;
}

void ChartSink::AddTime(ReportWriter& lines, std::string_view name, double time) {
  lines.Add(name).Add<".0000">(time).EndLine();
}

void ChartSink::AddSpeed(ReportWriter& lines, std::string_view name, double mph) {
  lines.Add(name).Add<".00">(mph).EndLine();
}

/// The lines of the marks beyond one distance, up to another.
void ChartSink::AddMarks(const RunResult& result, double from, double to) {
  const auto within = [&](double feet) { return feet > from && feet <= to; };
  if (within(kSixtyFeet)) AddTime(report_, "60 Foot ET   = ", result.Et60());
  if (within(kThirdOfEighth)) {
    AddTime(report_, "330 Foot ET  = ", result.at(StripMark::Feet330).time);
  }
  if (within(kEighthMile)) {
    AddTime(report_, "1/8 Mile ET  = ", result.Et8());
    AddSpeed(report_, "1/8 Mile MPH = ", result.EighthMileMph());
  }
  if (within(kThousandFeet)) {
    AddTime(report_, "1000 Foot ET = ", result.at(StripMark::Feet1000).time);
  }
  if (within(kQuarterMile)) {
    AddTime(report_, "1/4 Mile ET  = ", result.Et());
    AddSpeed(report_, "1/4 Mile MPH = ", result.QuarterMileMph());
  }
}

void ChartSink::AddSpeeds(const RunResult& result) {
  report_.EndLine();
  AddSpeed(report_, "Top Speed MPH = ", result.topSpeed);
  switch (result.end) {
    case RunEnd::Power: report_.Add("The power ends there: drag takes all of the thrust"); break;
    case RunEnd::Gearing: report_.Add("The gearing ends there: the car still gains speed"); break;
    case RunEnd::GearTooShort: report_.Add("The next gear is too short to go on"); break;
    case RunEnd::NextGear:
      report_.Add("The run ends there: gear ").Add<"0">(result.refusedGear);
      report_.Add(" cannot pull at this speed");
      break;
    case RunEnd::Distance: report_.Add("The chart ends there: the car still gains speed"); break;
    case RunEnd::NoThrust: break;
  }
  if (!varies_) report_.Add(", in gear ").Add<"0">(result.topSpeedGear);
  report_.Add(" at ").Add<"0">(result.topSpeedRpm).Add(" RPM.").EndLine();
  if (result.tractionLimitedFeet) {
    report_.Add("The tires (Coefficient of Mu) limit the run until ");
    report_.Add<"0.0">(*result.tractionLimitedFeet).Add(" feet.").EndLine();
  }
}

std::string ChartSink::Finish(const RunResult& result) {
  report_.EndLine();
  if (result.end == RunEnd::NoThrust) {
    report_.AddLines({kDoesNotMove});
    return report_.Finish();
  }
  const double reached = result.last.distance;
  AddMarks(result, 0, reached);
  if (result.tryRearGearRatio) {
    report_.Add("Try Using Rear Gear Ratio = ").Add<"0.0##">(*result.tryRearGearRatio).EndLine();
  }
  if (result.rest == RunRest::Deceleration) {
    report_.AddLines({"------- Calculated From DeAcceleration"});
    report_.Add(extension_.ReportLine);
  } else if (result.rest == RunRest::ConstantVelocity) {
    report_.AddLines({"------- Calculated From Constant Velocity"});
  }
  // The eighth and the quarter mile are told of every car, what lies before only if it got there.
  if (result.rest != RunRest::None) {
    AddMarks(result, std::max(reached, kThirdOfEighth), kQuarterMile);
  }
  for (std::size_t i = 0; i < kFurtherMarks; ++i) {
    const RunMark& mark = result.further[i];
    if (!mark.reached()) continue;
    const std::string name = FurtherMarkName(i);
    report_.Add(name).Add(" ET = ").Add<".000">(mark.time).Add(" -- ");
    report_.Add(name).Add(" MPH = ").Add<".00">(mark.mph).EndLine();
  }
  AddSpeeds(result);
  return report_.Finish();
}

}  // namespace

AccelerationChart ChartRun(const AccelerationInputs& inputs, bool showsRate, DecimalMark mark,
                           const RunListener& listener) {
  ChartSink sink(inputs, showsRate, false, mark, listener);
  AccelerationChart chart;
  chart.result = SimulateRun(inputs, sink);
  chart.report = sink.Finish(chart.result);
  return chart;
}

AccelerationChart ChartCvtRun(const AccelerationInputs& inputs, DecimalMark mark,
                              const RunListener& listener) {
  ChartSink sink(inputs, false, true, mark, listener);
  AccelerationChart chart;
  chart.result = SimulateCvtRun(inputs, sink);
  chart.report = sink.Finish(chart.result);
  return chart;
}

std::string SummaryOf(const RunResult& result, DecimalMark mark) {
  if (result.end == RunEnd::NoThrust) return {};
  std::string line;
  const auto add = [&](const char* name, StripMark at, std::optional<double> mph = std::nullopt) {
    if (!result.at(at).reached()) return;
    if (!line.empty()) line += ",  ";
    line += name + FormatValue<"0.0000">(result.at(at).time, mark);
    if (mph) line += " @ " + FormatValue<"0.00">(*mph, mark) + " MPH";
  };
  add("60 Foot ", StripMark::Feet60);
  add("330 Foot ", StripMark::Feet330);
  add("1/8 Mile ", StripMark::Feet660, result.EighthMileMph());
  add("1000 Foot ", StripMark::Feet1000);
  add("1/4 Mile ", StripMark::Feet1320, result.QuarterMileMph());
  if (!line.empty()) line += ",  ";
  return line + "Top Speed " + FormatValue<"0.00">(result.topSpeed, mark) + " MPH";
}

}  // namespace veldox
