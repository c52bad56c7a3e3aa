#include "twostroke/expansion_chamber.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace veldox {

namespace {

constexpr double kKelvinAtZero = 273.15;

// Places of the measures in lines of text below the chamber.
constexpr double kFirstMeasure = 1.5;
constexpr double kNextMeasure = 2.5;
constexpr double kTick = 0.35;
/// A name stands under its measure's line, or over it where there is no room beside the last.
constexpr double kUnderMeasure = 0.25;
constexpr double kOverMeasure = -1.2;
constexpr double kOverOutline = -1.2;

/// A section that is drawn.
struct Drawn {
  const ChamberSection* section;
  double start;
};

void DrawMeasure(Sketch& sketch, const std::string& row, double from, double length, double lines) {
  const double bottom = sketch.height;
  const double to = from + length;
  const auto at = [&](double x, double offset) { return SketchPoint{x, bottom, lines + offset}; };
  sketch.lines.push_back({at(from, 0), at(to, 0), SketchStroke::Measure});
  for (const double x : {from, to}) {
    sketch.lines.push_back({at(x, -kTick), at(x, kTick), SketchStroke::Measure});
  }
  sketch.names.push_back({at((from + to) / 2, kUnderMeasure), row, kOverMeasure - kUnderMeasure});
}

}  // namespace

double HeaderDiameter(double portWidth, double portHeight) {
  return std::sqrt(portWidth * 4 * portHeight / kPi);
}

double ExhaustGasTemperature(double meanPressureBar) {
  return std::exp(meanPressureBar * 0.0485) * 534.67 - kKelvinAtZero;
}

double SpeedOfSound(double celsius) {
  return std::sqrt((celsius + kKelvinAtZero) * 401.79999999999995);
}

double TunedLength(double speedOfSound, double exhaustDuration, double rpm) {
  return speedOfSound * 1000 * exhaustDuration / (rpm * 12);
}

double DiameterBetweenCones(double part, double bellyDiameter) {
  return std::pow(part, 1.33) * bellyDiameter;
}

double HornDiameter(double start, double part, double coefficient, double growth) {
  return start * std::exp(std::pow(part, coefficient) * growth);
}

double ConeLength(double narrowDiameter, double wideDiameter, double degrees) {
  return ((wideDiameter - narrowDiameter) / 2) * Cot(degrees * kPi / 180);
}

Sketch SketchOf(const Chamber& chamber) {
  Sketch sketch;
  std::vector<Drawn> drawn;
  double length = 0;
  double widest = 0;
  for (const ChamberSection& section : chamber.sections) {
    if (!(section.length > 0)) continue;
    drawn.push_back({&section, length});
    length += section.length;
    widest = std::max({widest, section.from, section.to});
  }
  if (drawn.empty() || !(widest > 0)) return sketch;
  sketch.height = widest;
  sketch.width = length;
  const double axis = widest / 2;
  const auto seam = [&](double x, double diameter, SketchStroke stroke) {
    sketch.lines.push_back({{x, axis - diameter / 2}, {x, axis + diameter / 2}, stroke});
  };
  double last = 0;
  for (const auto& [section, start] : drawn) {
    const double end = start + section->length;
    for (const double side : {-0.5, 0.5}) {
      sketch.lines.push_back({{start, axis + side * section->from},
                              {end, axis + side * section->to},
                              SketchStroke::Outline});
    }
    // Where a section was left out the diameters may jump.
    if (section->from != last) {
      seam(start, std::max(section->from, last), SketchStroke::Outline);
    } else {
      seam(start, last, SketchStroke::Seam);
    }
    last = section->to;
    for (const double x : {start, end}) {
      const double diameter = x == start ? section->from : section->to;
      sketch.lines.push_back(
          {{x, axis + diameter / 2}, {x, widest, kFirstMeasure}, SketchStroke::Measure});
    }
    DrawMeasure(sketch, section->row, start, section->length, kFirstMeasure);
  }
  seam(length, last, SketchStroke::Outline);
  sketch.lines.push_back({{0, axis}, {length, axis}, SketchStroke::Axis});
  double lines = kFirstMeasure;
  for (const std::vector<ChamberMeasure>& row : chamber.measures) {
    lines += kNextMeasure;
    for (const ChamberMeasure& measure : row) {
      if (!(measure.length > 0) || measure.from < 0) continue;
      DrawMeasure(sketch, measure.row, measure.from, measure.length, lines);
      sketch.width = std::max(sketch.width, measure.from + measure.length);
    }
  }
  for (const Chamber::Diameter& named : chamber.diameters) {
    const ChamberSection* wanted = &chamber.sections[named.section];
    for (const auto& [section, start] : drawn) {
      if (section != wanted) continue;
      const double x = named.inMiddle ? start + section->length / 2 : start;
      sketch.names.push_back(
          {{x, axis - section->from / 2, kOverOutline}, named.row, kOverOutline});
    }
  }
  sketch.linesAbove = -2 * kOverOutline;
  sketch.linesBelow = lines + kNextMeasure / 2;
  return sketch;
}

}  // namespace veldox
