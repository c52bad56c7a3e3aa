#include "airfuel/time_area_reports.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "airfuel/report_table.h"
#include "cam/lift_analysis.h"
#include "core/report.h"
#include "core/text.h"
#include "core/units.h"

namespace veldox {

namespace {

/// Where the columns of the tables end, under their heads.
constexpr std::array<std::size_t, 6> kTimingEnds = {14, 25, 34, 44, 52, 59};
constexpr std::array<std::size_t, 14> kLiftTableEnds = {5,  15, 25, 35, 42,  53,  63,
                                                        70, 77, 86, 95, 104, 112, 117};
constexpr std::array<std::size_t, 14> kLiftFileEnds = {6,  13, 20, 28, 37, 47,  55,
                                                       62, 69, 77, 86, 95, 105, 110};
constexpr std::string_view kTotals = "Totals              ";
constexpr std::string_view kAverage = "Average";
constexpr double kHalfTurn = 180;

/// A row of a table, cell by cell.
class Cells {
 public:
  Cells(std::string_view text, std::span<const std::size_t> ends, DecimalMark mark)
      : row_(text, mark), ends_(ends) {}

  template <PatternText Pattern>
  Cells& Add(double value) {
    row_.EndAt<Pattern>(ends_[column_++], value);
    return *this;
  }
  /// What is no number stands as a dash.
  template <PatternText Pattern>
  Cells& Add(const std::optional<double>& value) {
    if (value) return Add<Pattern>(*value);
    row_.EndAt(ends_[column_++], "-");
    return *this;
  }
  Cells& Skip(std::size_t columns = 1) {
    column_ += columns;
    return *this;
  }
  const std::string& text() const { return row_.text(); }

 private:
  TableRow row_;
  std::span<const std::size_t> ends_;
  std::size_t column_ = 0;
};

/// Builds one of the reports; what several of them have stands here.
class Reporter {
 public:
  Reporter(const TimeAreaValues& values, DecimalMark mark)
      : values_(values), mark_(mark), report_(mark) {}

  void AddEngine() {
    const TimeAreaEngine& engine = values_.engine;
    report_
        .Add("Bore = " + Number(engine.bore) + "   Stroke = " + Number(engine.stroke) +
             "   Rod Length = " + Number(engine.rod) + "   Wrist Pin Offset = " +
             Number(engine.offset) + "   RPM = " + FormatInt(engine.rpm, mark_))
        .EndLine();
    report_.Add("User DC = " + Number(values_.userCoefficient));
    if (values_.inMillimetres) report_.Add("   Lifts and Lash in Millimeters");
    report_.EndLine();
    report_.EndLine();
  }

  /// Where the figures of the lift tables come from.
  void AddLiftTables() {
    const auto source = [](const TimeAreaSide& side) {
      return side.tableCam.empty() ? std::string("As Entered") : side.tableCam;
    };
    report_
        .Add("From the Lift Table   Intake = " + source(values_.intake) +
             "   Exhaust = " + source(values_.exhaust))
        .EndLine();
    report_.EndLine();
  }

  /// What the lift file says of itself.
  void AddCamHeader() {
    const TimeAreaCam& cam = values_.cam;
    if (cam.title.empty()) return;
    report_.Add("Cam = " + cam.title).EndLine();
    if (cam.isCamDoctor && !cam.header.empty()) {
      report_.Add("C1 File - Header Information").EndLine(LineMark::Bold);
    }
    for (std::string_view line : Lines(cam.header)) {
      // Lines of comment have their mark in the file.
      if (line.starts_with(';')) line.remove_prefix(1);
      if (!Trim(line).empty()) report_.Add(Trim(line)).EndLine();
    }
    report_.EndLine();
  }

  void AddSideHead(const TimeAreaSide& side) {
    const PortValves& valves = side.port.port.valves;
    report_.AddLines(
        {side.port.isExhaust ? "       E  X  H  A  U  S  T^" : "       I  N  T  A  K  E^"});
    report_.Add("Rocker Arm Ratio = " + Number(side.gear.ratio)).EndLine();
    report_.Add("         Valve Lash = " + Number(Shown(side.gear.lash))).EndLine();
    report_.Add("        Valve Angle = " + Number(side.port.valveAngle)).EndLine();
    report_
        .Add("         Valve Size = " + Number(valves.size) + " x " +
             FormatInt(valves.count, mark_))
        .EndLine();
    if (valves.HasSeat()) {
      report_.Add("Using Valve Seat Angle and Width for Area Calculation").EndLine();
    }
    report_.EndLine();
  }

  /// Where the lift file stands on the crank.
  void AddPlace(const TimeAreaSide& side) {
    const bool isExhaust = side.port.isExhaust;
    report_
        .Add((isExhaust ? "Exhaust - Rocker Arm Ratio = " : "Intake - Rocker Arm Ratio = ") +
             Number(side.gear.ratio) + " - Valve Open = " + Number(side.valveOpen) +
             (isExhaust ? " BBDC - Valve Lash = " : " BTDC - Valve Lash = ") +
             Number(Shown(side.gear.lash)) + "  A/R = " + Number(side.advance))
        .EndLine();
    report_.Add("Lift File = Every " + Number(side.step) + " Crank Degrees");
    if (values_.cam.inCamDegrees) {
      report_.Add(", " + Number(side.step / kCrankDegreesPerCamDegree) + " Cam Degrees");
    }
    report_.EndLine();
    report_.EndLine();
  }

  /// False, and told, for a side whose valves never open.
  bool AddTiming(const TimeAreaSide& side) {
    if (!EventsAt(side.curve, 0, &ValvePoint::lift)) {
      report_.Add("No lift data.").EndLine();
      report_.EndLine();
      return false;
    }
    const bool isExhaust = side.port.isExhaust;
    report_.AddLines({"VALVE     Lift      Opens   Closes  Duration^",
                      isExhaust ? "                 Deg BBDC  Deg ATDC             Area^"
                                : "                 Deg BTDC  Deg ABDC             Area^"});
    for (const double lift : side.lifts) AddEvents(side, lift, &ValvePoint::lift);
    report_.AddLines({isExhaust ? "CAM                                                     ECL^"
                                : "CAM                                                     ICL^"});
    for (const double lift : kRatedLifts) AddEvents(side, lift, &ValvePoint::camLift);
    if (side.curve.front().camLift > kRatedLifts[0]) {
      report_
          .Add("         The lobe is not known below " +
               FormatValue<"0.000">(Shown(side.curve.front().camLift), mark_) +
               ", where its lift data begins")
          .EndLine();
    }
    AddIntensity(side.curve, "         Minor Intensity ", kMinorIntensityLift);
    AddIntensity(side.curve, "         Major Intensity ", kMajorIntensityLift);
    report_.EndLine();
    return true;
  }

  void AddLiftTableWalk(const TimeAreaSide& side) {
    // The valve's rise is told in the unit of the lifts.
    constexpr std::string_view kInchRise = "Inch/Deg";
    constexpr std::string_view kMillimetreRise = "  mm/Deg";
    std::string units =
        "                           cm^2/cc              cc     Inch/Deg       28\" CFM Velocity "
        "DC of "
        "1  User DC Velocity Area Velocity_";
    if (values_.inMillimetres) {
      units.replace(units.find(kInchRise), kInchRise.size(), kMillimetreRise);
    }
    report_.AddLines(
        {"Valve  Duration Time Port Time Port Piston   Cylinder   Valve  Degrees Piston Curtain  "
         "Depress- Depress- Throat_",
         "Lift            Area cm^2   Area    Travel    Volume   Velocity  ATDC  Flow @  Area    "
         "ion for  ion for  Area    Eff._",
         units});
    const std::vector<TimeAreaRow> rows = Walk(side);
    // The flanks of a lift table are alike.
    const double middle =
        EventsAt(side.curve, 0, &ValvePoint::lift).value_or(LiftEvents{}).middle();
    TimeAreaRow sum;
    double count = 0;
    for (const TimeAreaRow& row : rows) {
      Cells cells({}, kLiftTableEnds, mark_);
      AddLift(cells, row.lift);
      cells.Add<"0.0">(2 * std::abs(row.degrees - middle))
          .Add<"0.0000">(row.timeArea)
          .Add<"0.000000">(row.timeAreaPerCc)
          .Add<"0.0000">(row.travel)
          .Add<"0.00">(row.volume)
          .Add<"0.00000">(ShownRise(row.rise))
          .Add<"0.0">(row.degrees)
          .Add<"0.0">(row.demand)
          .Add<"0.0">(row.areaSpeed)
          .Add<"0.00">(row.depression)
          .Add<"0.00">(row.userDepression)
          .Add<"0.0">(row.throatSpeed)
          .Add<"0.0">(row.effectiveSpeed);
      AddLine(cells);
      // Where the piston pushes the other way, next to nothing is open.
      if (!(row.demand > 0)) continue;
      ++count;
      sum.demand += row.demand;
      sum.areaSpeed += row.areaSpeed;
      sum.depression += row.depression;
      sum.userDepression += row.userDepression;
      sum.throatSpeed += row.throatSpeed;
      sum.effectiveSpeed += row.effectiveSpeed;
    }
    EndTable();
    const TimeAreaTotals totals = Totals(side, rows);
    AddTotals(totals, kLiftTableEnds, 2);
    if (count > 0) {
      Cells cells(kAverage, kLiftTableEnds, mark_);
      cells.Skip(8)
          .Add<"0.0">(sum.demand / count)
          .Add<"0.0">(sum.areaSpeed / count)
          .Add<"0.00">(sum.depression / count)
          .Add<"0.00">(sum.userDepression / count)
          .Add<"0.0">(sum.throatSpeed / count)
          .Add<"0.0">(sum.effectiveSpeed / count);
      AddLine(cells);
    }
    AddSums(totals);
    AddCycle(side, rows);
  }

  void AddLiftFileWalk(const TimeAreaSide& side) {
    report_.AddLines(
        {"Cam     Valve  Crank    Time    Time     Valve    Valve  Valve  Valve  Piston Cylinder   "
         "User           L/D_",
         "Lift    Lift   Angle    Port    Port   Velocity Acceler  Lift   Lift   Travel   Volume "
         "Supplied Valve  Ratio_",
         "                        Area    Area      FPS     ation  Vert   Horiz             cc     "
         "Air  Discharge_",
         "                        cm^2  cm^2/cc             FPS^2                                  "
         "Flow Coefficient_"});
    const std::vector<TimeAreaRow> rows = Walk(side);
    double flow = 0;
    double coefficient = 0;
    for (const TimeAreaRow& row : rows) {
      Cells cells({}, kLiftFileEnds, mark_);
      AddLift(cells, row.camLift);
      AddLift(cells, row.lift);
      cells.Add<"0.0#">(row.degrees)
          .Add<"0.0000">(row.timeArea)
          .Add<"0.000000">(row.timeAreaPerCc)
          .Add<"0.00">(row.speed)
          .Add<"0.0">(row.acceleration);
      AddLift(cells, row.vertical);
      AddLift(cells, row.horizontal);
      cells.Add<"0.0000">(row.travel)
          .Add<"0.00">(row.volume)
          .Add<"0.0">(row.flow)
          .Add<"0.0000">(row.coefficient)
          .Add<".000">(row.liftRatio);
      AddLine(cells);
      flow += row.flow;
      coefficient += row.coefficient;
    }
    EndTable();
    const TimeAreaTotals totals = Totals(side, rows);
    AddTotals(totals, kLiftFileEnds, 3);
    if (!rows.empty()) {
      const auto count = static_cast<double>(rows.size());
      Cells cells(kAverage, kLiftFileEnds, mark_);
      cells.Skip(11).Add<"0.0">(flow / count).Add<"0.0000">(coefficient / count);
      AddLine(cells);
    }
    AddSums(totals);
    AddCycle(side, rows);
    AddClearance(rows);
  }

  std::string Finish() {
    // A mark shows where no line break follows it.
    report_.EndLine();
    return report_.Finish();
  }

 private:
  static std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
      const std::size_t end = text.find('\n');
      lines.push_back(text.substr(0, end));
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
  }
  std::string Number(double value) const { return FormatValue<"0.0#####">(value, mark_); }
  /// A lift in inches as the report tells it.
  double Shown(double lift) const {
    return values_.inMillimetres ? lift * kMillimetresPerInch : lift;
  }
  std::optional<double> ShownRise(std::optional<double> rise) const {
    if (rise) rise = Shown(*rise);
    return rise;
  }
  void AddLift(Cells& cells, double lift) const {
    if (values_.inMillimetres) {
      cells.Add<"0.000">(Shown(lift));
    } else {
      cells.Add<".0000">(lift);
    }
  }
  void AddLine(const Cells& cells) { report_.Add(cells.text()).EndLine(); }
  void EndTable() { report_.EndLine(LineMark::HeadingsEnd); }

  std::vector<TimeAreaRow> Walk(const TimeAreaSide& side) const {
    return WalkCurve(side.curve, side.port, values_.engine, values_.userCoefficient);
  }
  TimeAreaTotals Totals(const TimeAreaSide& side, std::span<const TimeAreaRow> rows) const {
    const auto events = EventsAt(side.curve, 0, &ValvePoint::lift);
    return TotalsOf(rows, side.port, values_.engine, events ? events->duration() : 0);
  }

  /// A line of a valve or a lobe at a lift; none where it is not that high.
  void AddEvents(const TimeAreaSide& side, double lift, double ValvePoint::*which) {
    const auto events = EventsAt(side.curve, lift, which);
    if (!events) return;
    // Before the dead centre that the side opens at, and behind the one half a turn later.
    const double opensAt = side.port.isExhaust ? -kHalfTurn : 0;
    Cells cells({}, kTimingEnds, mark_);
    if (values_.inMillimetres) {
      cells.Add<"0.000">(Shown(lift));
    } else {
      cells.Add<"0.000">(lift);
    }
    cells.Add<"0.0">(opensAt - events->opens)
        .Add<"0.0">(events->closes - opensAt - kHalfTurn)
        .Add<"0.0">(events->duration())
        .Add<"0.00">(Shown(events->area));
    if (which == &ValvePoint::camLift) {
      cells.Add<"0.0">(side.port.isExhaust ? -events->middle() : events->middle());
    }
    AddLine(cells);
  }

  void AddIntensity(const ValveCurve& curve, const char* text, double lower) {
    const auto intensity = IntensityOf(curve, lower);
    if (!intensity) return;
    const auto lift = [this](double inches) { return FormatValue<"0.000">(Shown(inches), mark_); };
    report_
        .Add(text + FormatValue<"0.0">(*intensity, mark_) + "   (Duration @ " + lift(lower) +
             " less @ " + lift(kIntensityTop) + ")")
        .EndLine();
  }

  void AddTotals(const TimeAreaTotals& totals, std::span<const std::size_t> ends,
                 std::size_t column) {
    Cells cells(kTotals, ends, mark_);
    cells.Skip(column).Add<"0.0000">(totals.timeArea).Add<"0.000000">(totals.timeAreaPerCc);
    AddLine(cells);
  }

  void AddSums(const TimeAreaTotals& totals) {
    const auto number = [this](double value) { return FormatValue<"0.0">(value, mark_); };
    report_
        .Add("Theoretical Cycle VE = " + FormatValue<"0.0#">(totals.cycleEfficiency * 100, mark_) +
             "%")
        .EndLine();
    report_.EndLine();
    report_
        .Add(
            "    Max Total CFM Sq In Area = Valve Duration @ 0.000 * 146 (Only good if head flow "
            "is @ 28\" of Water)")
        .EndLine();
    report_.Add("    Max Total CFM Sq In Area = " + number(totals.maxTotal)).EndLine();
    report_.Add("    Total CFM Sq In Throat Area = " + number(totals.throatTotal)).EndLine();
    report_
        .Add("    Total CFM Sq In Net Valve Area (Valve Area - Valve Stem Area) = " +
             number(totals.netValveTotal))
        .EndLine();
    report_.Add("    Total CFM Sq In Valve Area = " + number(totals.valveTotal)).EndLine();
    report_.EndLine();
  }

  /// How the time area falls on the strokes.
  void AddCycle(const TimeAreaSide& side, const std::vector<TimeAreaRow>& rows) {
    constexpr double kEnd = std::numeric_limits<double>::max();
    const auto line = [&](const char* text, double from, double to) {
      report_.Add(text + FormatValue<"0.0000">(TimeAreaBetween(rows, from, to), mark_) + " cm^2 ms")
          .EndLine();
    };
    const auto intake = EventsAt(values_.intake.curve, 0, &ValvePoint::lift);
    const auto exhaust = EventsAt(values_.exhaust.curve, 0, &ValvePoint::lift);
    if (side.port.isExhaust) {
      line("Exhaust Blow-Down (EVO to BDC) = ", -kEnd, -kHalfTurn);
      line("Exhaust Pumping (BDC to TDC) = ", -kHalfTurn, 0);
      line("Exhaust ATDC (TDC to EVC) = ", 0, kEnd);
      if (intake) line("Exhaust Overlap (IVO to EVC) = ", intake->opens, kEnd);
    } else {
      line("Intake BTDC (IVO to TDC) = ", -kEnd, 0);
      line("Intake Pumping (TDC to BDC) = ", 0, kHalfTurn);
      line("Intake Ramming (BDC to IVC) = ", kHalfTurn, kEnd);
      if (exhaust) line("Intake Overlap (IVO to EVC) = ", -kEnd, exhaust->closes);
    }
    report_.EndLine();
  }

  void AddClearance(const std::vector<TimeAreaRow>& rows) {
    if (!(values_.valveClearance > 0)) return;
    const auto clearance = LeastClearance(rows, values_.valveClearance);
    if (!clearance) return;
    report_
        .Add("Least Valve to Piston Clearance = " +
             FormatValue<"0.000">(Shown(clearance->least), mark_) + " @ " +
             FormatValue<"0.0">(clearance->degrees, mark_) + " Degrees")
        .EndLine();
    report_.EndLine();
  }

  const TimeAreaValues& values_;
  DecimalMark mark_;
  ReportWriter report_;
};

}  // namespace

std::string TimeAreaReport(const TimeAreaValues& values, DecimalMark mark) {
  Reporter reporter(values, mark);
  reporter.AddEngine();
  reporter.AddLiftTables();
  for (const TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    reporter.AddSideHead(*side);
    if (reporter.AddTiming(*side)) reporter.AddLiftTableWalk(*side);
  }
  return reporter.Finish();
}

std::string TimeAreaReport2(const TimeAreaValues& values, DecimalMark mark) {
  Reporter reporter(values, mark);
  reporter.AddEngine();
  reporter.AddCamHeader();
  for (const TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    reporter.AddSideHead(*side);
    reporter.AddPlace(*side);
    if (reporter.AddTiming(*side)) reporter.AddLiftFileWalk(*side);
  }
  return reporter.Finish();
}

std::string CamSpecReport(const TimeAreaValues& values, DecimalMark mark) {
  Reporter reporter(values, mark);
  reporter.AddCamHeader();
  for (const TimeAreaSide* side : {&values.intake, &values.exhaust}) {
    reporter.AddSideHead(*side);
    reporter.AddPlace(*side);
    reporter.AddTiming(*side);
  }
  return reporter.Finish();
}

}  // namespace veldox
