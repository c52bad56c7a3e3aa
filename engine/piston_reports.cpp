#include "engine/piston_reports.h"

#include <utility>

#include "core/report.h"
#include "core/step_bound.h"
#include "core/units.h"
#include "engine/displacement.h"

namespace veldox {

namespace {

double Degrees(double radians) {
  return radians * 180 / kPi;
}

/// Crank angle of a reading of the table.
double OriginOf(const PistonTable& table, const CrankSlider& slider, AngleOrigin origin) {
  return origin == AngleOrigin::DegreeWheel && table.offset != 0 ? TopDeadCentre(slider) : 0;
}

VelocityRow RowAt(const PistonTable& table, const CrankSlider& slider, double crankDegrees) {
  const PistonState state = PistonStateAt(slider, table.rpm, crankDegrees);
  if (table.metric) {
    return {state.travel * kMillimetresPerInch, state.velocity * kMetresPerFoot,
            state.acceleration * kMetresPerFoot, PistonFlowCubicMetres(table.bore, state.velocity)};
  }
  return {state.travel, state.velocity, state.acceleration,
          PistonFlowCfm(table.bore, state.velocity)};
}

TravelRow RowAt(const PistonTable& table, const CrankSlider& slider, double area, double degrees) {
  TravelRow row;
  row.rodAngle = Degrees(RodAngleAt(slider, degrees));
  row.crankRodAngle = 180 - (row.rodAngle + degrees);
  const double travel = PistonTravelAt(slider, degrees);
  row.travel = table.metric ? travel * kMillimetresPerInch : travel;
  row.cubicInches = area * travel;
  row.cc = row.cubicInches / kCubicInchesPerCc;
  return row;
}

/// Runs a row for every angle of the table; the angle is a running sum.
template <class Row>
void ForEachAngle(const PistonTable& table, Row row) {
  constexpr int kMostRows = 4000;
  static_assert(kMostRows > kMostDegreeLines);
  StepBound bound(kMostRows);
  for (double d = table.startDegrees; d <= table.endDegrees; d += table.everyDegrees) {
    bound.Step();
    row(d);
  }
}

/// Makes room for a whole table, so that the text grows in one place.
void ReserveRows(ReportWriter& report, const PistonTable& table, std::size_t rowWidth) {
  constexpr std::size_t kTop = 2000;
  const double rows = DegreeLines(table.startDegrees, table.endDegrees, table.everyDegrees);
  if (rows >= 0 && rows <= kMostDegreeLines) {
    report.ReportLine.reserve(kTop + (static_cast<std::size_t>(rows) + 1) * rowWidth);
  }
}

void WriteEngineHeader(ReportWriter& report, const PistonTable& table) {
  report.Add("Bore = ").Add<"0.0#####">(table.bore);
  report.Add("   Stroke = ").Add<"0.0#####">(table.stroke);
  report.Add("   Rod Length = ").Add<"0.0#####">(table.rodLength);
  report.Add("   RPM = ").Add<"0">(table.rpm).EndLine(LineMark::Bold);
  report.Add("Wrist Pin Offset = ").Add<"0.0#####">(table.offset).EndLine();
}

void WriteMaxVelocityLine(ReportWriter& report, const PistonTable& table,
                          const FastestPoint& fastest) {
  report.Add(table.offset >= 0 ? "Maximum Piston Velocity "
                               : "Maximum Piston Velocity on Down Stroke ");
  report.Add<"#.000000">(fastest.speed, 10).Add(table.metric ? " MPM" : " FPM");
  if (table.offset < 0) report.EndLine();
  report.Add(" @ ").Add<"0.00000000000">(fastest.degrees).Add(" Degrees").EndLine();
}

void WritePistonPosition(ReportWriter& report, const PistonTable& table, double degrees) {
  CrankSlider slider = table.Slider();
  slider.offset = 0;
  const double travel = PistonTravelAt(slider, degrees);
  const double volume = PistonArea(table.Inches(table.bore)) * travel;
  report.Add("Piston Travel from TDC ").Add<"0.00000">(travel).Add(" Inches ");
  report.Add<"0.00000">(travel * kMillimetresPerInch, 9).Add(" mm").EndLine();
  report.Add("Bore Rod Angle  ");
  report.Add<"0.00000">(Degrees(RodAngleAt(slider, degrees)), 10).EndLine();
  report.Add("Cylinder Volume ").Add<"0.00000">(volume, 10).Add(" CI        ");
  report.Add<"0.00000">(volume / kCubicInchesPerCc, 10).Add(" cc").EndLine();
}

void WriteMeanSpeed(ReportWriter& report, const PistonTable& table) {
  const double mean = table.Inches(table.stroke) * table.rpm / 360;
  report.Add("Piston Speed is ").Add<"0.00000">(mean, 10).Add(" Feet per Second ");
  report.Add<"0.00000">(mean * kMetresPerFoot, 10).Add(" Meters per Second").EndLine();
  report.Add("Piston Speed is ").Add<"0.00000">(mean * 60, 10).Add(" Feet per Minute ");
  report.Add<"0.00000">(mean * 60 * kMetresPerFoot, 10).Add(" Meters per Minute").EndLine();
}

void WriteCrankHeading(ReportWriter& report, const PistonTable& table) {
  if (table.compact) {
    report.AddLines({"             Piston     Piston      Piston_",
                     "Crank Angle Velocity Acceleration Flow @ 28\" Velocity_"});
    if (table.offset == 0) {
      report.AddLines({table.metric ? "   Degree    M/Sec    M/Sec/Sec     M^3/S      M/Min_"
                                    : "   Degree    FT/Sec   FT/Sec/Sec     CFM      FT/Min_"});
    } else {
      report.AddLines({table.metric ? "Degree-ATDC  M/Sec    M/Sec/Sec     M^3/S      M/Min_"
                                    : "Degree-ATDC  FT/Sec   FT/Sec/Sec     CFM      FT/Min_"});
    }
    return;
  }
  report.AddLines(
      {"                         Piston              Piston       Piston_",
       "Crank Angle             Velocity          Acceleration  Flow @ 28\"      Velocity_"});
  if (table.offset == 0) {
    report.AddLines(
        {table.metric
             ? "   Degree                M/Sec             M/Sec/Sec      M^3/S           M/Min_"
             : "   Degree                FT/Sec            FT/Sec/Sec      CFM           FT/Min_"});
  } else {
    report.AddLines(
        {table.metric
             ? "Degree-ATDC              M/Sec             M/Sec/Sec      M^3/S           M/Min_"
             : "Degree-ATDC              FT/Sec            FT/Sec/Sec      CFM           FT/Min_"});
  }
}

void WriteWheelHeading(ReportWriter& report, const PistonTable& table) {
  if (table.compact) {
    report.AddLines({" Degree             Piston    Piston      Piston_",
                     "  Wheel    Piston  Velocity Acceleration Flow @ 28\"_",
                     table.metric ? " Reading   Travel   M/Sec    M/Sec/Sec    M^3/S_"
                                  : " Reading   Travel   FT/Sec   FT/Sec/Sec     CFM_"});
    return;
  }
  report.AddLines({"  Degree                       Piston          Piston        Piston_",
                   "   Wheel        Piston        Velocity       Acceleration  Flow @ 28\"_",
                   table.metric
                       ? "  Reading       Travel         M/Sec          M/Sec/Sec      M^3/S_"
                       : "  Reading       Travel         FT/Sec         FT/Sec/Sec      CFM_"});
}

/// The angle that begins a row, in the pattern that the range of the table asks for.
void AddCrankAngle(ReportWriter& report, const PistonTable& table, double degrees,
                   int compactWidth) {
  constexpr double kSinglePoint = 0.00000000001;
  if (table.compact) {
    report.Add<".000">(degrees, compactWidth);
  } else if (table.endDegrees - table.startDegrees < kSinglePoint) {
    report.Add<"0.0000000000000">(degrees, 17);
  } else {
    report.Add<"0.00000000000">(degrees, 15);
  }
}

void AddCrankRow(ReportWriter& report, const PistonTable& table, double degrees,
                 const VelocityRow& row) {
  AddCrankAngle(report, table, degrees, 8);
  report.Add(" ");
  if (table.compact) {
    report.Add<".000">(row.velocity, 10).Add(" ").Add<".000">(row.acceleration, 13).Add(" ");
  } else {
    report.Add<"0.000000000000">(row.velocity, 18).Add(" ");
    report.Add<"0.000000000000">(row.acceleration, 21).Add(" ");
  }
  if (table.metric) {
    report.Add<"0.00000">(row.flow, 8).Add(" ");
  } else {
    report.Add<"0.00">(row.flow, 7).Add(" ");
  }
  if (table.compact) {
    report.Add<".000">(row.velocity * 60, 10).EndLine();
  } else {
    report.Add<"0.000000000000">(row.velocity * 60, 18).EndLine();
  }
}

void AddWheelRow(ReportWriter& report, const PistonTable& table, double degrees,
                 const VelocityRow& row) {
  if (table.compact) {
    report.Add<".000">(degrees, 7).Add(" ").Add<".000">(row.travel, 7).Add("  ");
    report.Add<".000">(row.velocity, 9).Add(" ").Add<".000">(row.acceleration, 12).Add(" ");
  } else {
    report.Add<"#.000000">(degrees, 10).Add(" ").Add<"#.000000">(row.travel, 10).Add("  ");
    report.Add<"0.000000000">(row.velocity, 15).Add(" ");
    report.Add<"0.000000000">(row.acceleration, 18).Add(" ");
  }
  if (table.metric) {
    report.Add<"0.00000">(row.flow, 9).EndLine();
  } else {
    report.Add<".00">(row.flow, 9).EndLine();
  }
}

}  // namespace

double PistonTable::Inches(double length) const {
  return metric ? length / kMillimetresPerInch : length;
}

CrankSlider PistonTable::Slider() const {
  return {Inches(stroke / 2), Inches(rodLength), Inches(offset)};
}

VelocityRow VelocityRowAt(const PistonTable& table, AngleOrigin origin, double degrees) {
  const CrankSlider slider = table.Slider();
  return RowAt(table, slider, OriginOf(table, slider, origin) + degrees);
}

FastestPoint FastestPointOf(const PistonTable& table, AngleOrigin origin) {
  const CrankSlider slider = table.Slider();
  const double first = OriginOf(table, slider, origin);
  FastestPoint point;
  point.degrees = FastestCrankAngle(slider, table.rpm, first);
  if (table.offset == 0) {
    point.speed = FastestPistonSpeed(table.stroke, table.rodLength, table.rpm);
    if (table.metric) point.speed /= kMillimetresPerInch;
  } else {
    point.speed = PistonStateAt(slider, table.rpm, first + point.degrees).velocity * 60;
  }
  if (table.metric) point.speed *= kMetresPerFoot;
  return point;
}

TravelRow TravelRowAt(const PistonTable& table, double degrees) {
  return RowAt(table, table.Slider(), PistonArea(table.Inches(table.bore)), degrees);
}

double DegreeLines(double startDegrees, double endDegrees, double everyDegrees) {
  return (endDegrees - startDegrees) * (1 / everyDegrees) + 1;
}

std::string VelocityReport(const PistonTable& table, AngleOrigin origin, DecimalMark mark) {
  ReportWriter report(mark);
  ReserveRows(report, table, table.compact ? 60 : 90);
  WriteEngineHeader(report, table);
  const bool aligned = table.offset == 0;
  if (aligned) WriteMeanSpeed(report, table);
  const FastestPoint fastest = FastestPointOf(table, origin);
  WriteMaxVelocityLine(report, table, fastest);
  if (aligned) {
    WritePistonPosition(report, table, fastest.degrees);
    const double rightAngle = CrankRodRightAngle(table.rodLength, table.stroke);
    report.Add("Crankshaft Degrees at which Rod and Crank are 90 Degrees ");
    report.Add<"0.0#####">(rightAngle).EndLine();
    WritePistonPosition(report, table, rightAngle);
  }
  const bool wheel = origin == AngleOrigin::DegreeWheel;
  wheel ? WriteWheelHeading(report, table) : WriteCrankHeading(report, table);

  const CrankSlider slider = table.Slider();
  const double first = OriginOf(table, slider, origin);
  int count = 0;
  double sum = 0;
  ForEachAngle(table, [&](double degrees) {
    const VelocityRow row = RowAt(table, slider, first + degrees);
    wheel ? AddWheelRow(report, table, degrees, row) : AddCrankRow(report, table, degrees, row);
    ++count;
    sum += row.flow;
  });
  report.Add("Total Number Of Points = ").Add<"0">(count);
  report.Add(" -- Average Piston Flow Demand = ").Add<".000">(sum / count).EndLine();
  return report.Finish();
}

std::string TravelReport(const PistonTable& table, DecimalMark mark) {
  ReportWriter report(mark);
  ReserveRows(report, table, 62);
  const CrankSlider slider = table.Slider();
  const double area = PistonArea(table.Inches(table.bore));
  const double perDegree = 1000 / (table.rpm * 6);
  report.Add("Rotation Time of crank per degree in Milliseconds    ");
  report.Add<"0.0000000">(perDegree).EndLine();
  report.Add("Rotation Time of crank per rev in Milliseconds       ");
  report.Add<"0.0000000">(perDegree * 360).EndLine();
  report.Add("Crankshaft rev's per Second                          ");
  report.Add<"0.0000000">(table.rpm / 60).Add(" (Hz)").EndLine();

  const char* unit = table.metric ? "  mm  " : "Inches";
  const bool aligned = table.offset == 0;
  if (aligned) {
    report.AddLines({"   Crank            Piston        Rod    Cylinder   Cylinder_",
                     "   Angle            Travel       Angle    Volume     Volume_"});
    report.Add("   Degree           ").Add(unit).Add("                  CI         cc_").EndLine();
  } else {
    report.Add("Crankshaft Degrees at which Rod and Crank are 90 Degrees ");
    report.Add<"0.0000">(RightAngleCrankDegrees(slider)).EndLine();
    report.AddLines({"Crank      Piston     Crank       Rod    Cylinder   Cylinder_",
                     "Angle      Travel      Rod       Bore     Volume     Volume_"});
    report.Add("Degree     ").Add(unit).Add("     Angle      Angle      CI         cc_").EndLine();
    report.AddLines({"-ATDC _"});
    const double stroke = ActualStroke(slider);
    const double volume = area * stroke;
    const double size = volume * table.cylinders;
    report.Add("Actual Piston Stroke ");
    report.Add<"0.00000000000">(table.metric ? stroke * kMillimetresPerInch : stroke).EndLine();
    report.Add("Cylinder Volume ").Add<"#.000000">(volume, 11).Add(" CI    ");
    report.Add<"#.000000">(volume / kCubicInchesPerCc, 12).Add(" cc").EndLine();
    report.Add("Engine Size     ").Add<"#.000000">(size, 11).Add(" CI    ");
    report.Add<"#.000000">(size / kCubicInchesPerCc, 12).Add(" cc").EndLine();
    report.Add("Crank Angle Piston TDC ").Add<"0.0#####">(TopDeadCentre(slider)).Add("  ");
    report.Add("Piston BDC ").Add<"0.0#####">(BottomDeadCentre(slider)).EndLine();
  }

  ForEachAngle(table, [&](double degrees) {
    const TravelRow row = RowAt(table, slider, area, degrees);
    if (aligned) {
      report.Add<"0.000000000">(degrees, 13).Add<"0.00000000000">(row.travel, 16);
    } else {
      report.Add<".0000">(degrees, 8).Add<"#.000000">(row.travel, 10);
      report.Add<"0.00000">(row.crankRodAngle, 10).Add(" ");
    }
    report.Add<"0.00000">(row.rodAngle, 9).Add(" ").Add<"0.00000">(row.cubicInches, 8).Add("  ");
    report.Add<"0.00000">(row.cc, 10).Add(" ").EndLine();
  });
  return report.Finish();
}

std::string CrankpinForceReport(const PistonTable& table, DecimalMark mark) {
  ReportWriter report(mark);
  ReserveRows(report, table, table.compact ? 85 : 110);
  WriteEngineHeader(report, table);
  const RodWeights& weights = table.weights;
  // Distance of the rod's centre of gravity from the small end, in the unit of the rod.
  const double centre = weights.BigEnd() / weights.rod * table.rodLength;
  const double pinAcceleration =
      CrankpinAcceleration(table.stroke, table.rpm, table.metric ? 1000 : 12);
  const double bigEndForce =
      table.metric
          ? BigEndRotationalForce(weights.BigEnd(), table.stroke, table.rpm)
          : BigEndRotationalForce(weights.BigEnd(), table.stroke * kMillimetresPerInch, table.rpm) /
                kNewtonsPerPound;
  report.Add("Piston Weight = ").Add<"0.0#####">(weights.piston);
  report.Add("   Rod Weight = ").Add<"0.0#####">(weights.rod).EndLine();
  report.Add("Small End Rod Weight = ").Add<"0.0#####">(weights.smallEnd);
  report.Add("   Big End Rod Weight = ").Add<"0.0#####">(weights.BigEnd()).EndLine();
  report.Add("Rod CG / Distance from Small End = ").Add<"0.0#####">(centre);
  report.Add("      GAS PRESSURE = 0").EndLine();
  report.Add("Crankpin / Rod Big End Acceleration = ").Add<"0.0#####">(pinAcceleration).EndLine();
  report.Add("Crankpin / Rod Big End Rotational Force = ");
  report.Add<"0.0#####">(bigEndForce).EndLine();
  if (table.compact) {
    report.AddLines(
        {"            Reciprocating    Total     Piston Side   Piston      Crank Pin  "
         "Instantaneous_",
         "Crank Angle    Force         Force        Force  Inertia Force  Tangent Force  Torque_",
         table.metric
             ? "  Degree      Newtons       Newtons      Newtons     Newtons      Newtons  "
               "  Newton-M_"
             : "  Degree       Pounds        Pounds       Pounds      Pounds       Pounds  "
               " FT-Pounds_"});
  } else {
    report.AddLines(
        {"                     Reciprocating        Total         Piston Side      Piston      "
         "Crank Pin  Instantaneous_",
         "Crank Angle             Force             Force            Force     Inertia Force  "
         "Tangent Force  Torque_",
         table.metric
             ? "  Degree               Newtons           Newtons          Newtons        Newtons   "
               "   Newtons    Newton-M_"
             : "  Degree                Pounds            Pounds           Pounds        Pounds    "
               "    Pounds   FT-Pounds_"});
  }

  const CrankSlider slider = table.Slider();
  const double perPound = table.metric ? kNewtonsPerPound : 1;
  const double perNewton = table.metric ? 1 : kNewtonsPerPound;
  const double perNewtonMetre = table.metric ? 1 : kNewtonMetresPerFootPound;
  ForEachAngle(table, [&](double degrees) {
    const CrankpinForces forces = CrankpinForcesAt(slider, table.rpm, weights, degrees);
    AddCrankAngle(report, table, degrees, 7);
    report.Add(" ");
    const double reciprocating = forces.reciprocatingNewtons / perNewton;
    const double total = forces.totalPounds * perPound;
    const double side = forces.sidePounds * perPound;
    if (table.compact) {
      report.Add<".000">(reciprocating, 13).Add(" ").Add<".000">(total, 13).Add(" ");
      report.Add<".000">(side, 12).Add(" ");
    } else {
      report.Add<"0.0000000">(reciprocating, 17).Add(" ").Add<"0.0000000">(total, 17).Add(" ");
      report.Add<"0.0000000">(side, 16).Add(" ");
    }
    report.Add<".000">(forces.inertiaNewtons / perNewton, 11).Add(" ");
    report.Add<".000">(forces.tangentNewtons / perNewton, 12).Add(" ");
    report.Add<".000">(forces.torqueNewtonMetres / perNewtonMetre, 11).EndLine();
  });
  return report.Finish();
}

std::string CrankpinLoadReport(const PistonTable& table, DecimalMark mark) {
  ReportWriter report(mark);
  ReserveRows(report, table, 50);
  WriteEngineHeader(report, table);
  report.Add("Piston Weight = ").Add<"0.0#####">(table.weights.piston);
  report.Add("   Rod Weight = ").Add<"0.0#####">(table.weights.rod).EndLine();
  report.AddLines(
      {"                        Crankpin_", "Crank Angle               Load_",
       table.metric ? "  Degree                 Newtons_" : "  Degree                 Pounds_"});
  const CrankSlider slider = table.Slider();
  ForEachAngle(table, [&](double degrees) {
    const PistonState state = PistonStateAt(slider, table.rpm, degrees);
    double load = CrankpinLoadNewtons(table.weights, state.acceleration);
    if (!table.metric) load /= kNewtonsPerPound;
    AddCrankAngle(report, table, degrees, 7);
    report.Add("      ");
    if (table.compact) {
      report.Add<".000">(load, 17).EndLine();
    } else {
      report.Add<"0.000000">(load).EndLine();
    }
  });
  return report.Finish();
}

}  // namespace veldox
