#include "airfuel/port_panel.h"

namespace veldox {

namespace {

constexpr const char* kCornersMeet =
    "and the arc beside it are together longer than the side of the port between them.";
/// Decimals do not always add up to the last bit.
constexpr double kTouching = 1e-9;

}  // namespace

void PortPanel::ShowArea(Field& field, double area, DividesBy divisors) {
  ShowPlain(field, area, divisors);
  ShowPlain(Text126, EquivalentDiameter(area));
}

void PortPanel::SolveSection() {
  PortSection section;
  section.width = Read(Text108);
  section.height = Read(Text109);
  section.topLeft = Read(Text105);
  section.topRight = Read(Text107);
  section.bottomLeft = Read(Text106);
  section.bottomRight = Read(Text104);
  const auto fits = [](double arc, double other, double side) {
    return arc + other <= side + kTouching;
  };
  Require(fits(section.topLeft, section.topRight, section.width), Text105, kCornersMeet);
  Require(fits(section.bottomLeft, section.bottomRight, section.width), Text106, kCornersMeet);
  Require(fits(section.topLeft, section.bottomLeft, section.height), Text105, kCornersMeet);
  Require(fits(section.topRight, section.bottomRight, section.height), Text107, kCornersMeet);
  ShowArea(Text100, PortSectionArea(section));
}

void PortPanel::SolveAverageArea() {
  ShowArea(Text111, AverageArea(Read(Text103), Read(Text110)), {&Text110});
}

void PortPanel::SolveVolume() {
  ShowPlain(Text103, PortVolume(Read(Text111), Read(Text110)));
}

void PortPanel::SolveLength() {
  ShowPlain(Text110, PortLength(Read(Text103), Read(Text111)), {&Text111});
}

void PortPanel::SolveSpeed() {
  ShowPlain(Text102, PortSpeed(Read(Text101), Read(Text112)), {&Text112});
}

void PortPanel::SolveFlow() {
  ShowPlain(Text101, PortFlow(Read(Text102), Read(Text112)));
}

void PortPanel::SolveAreaForFlow() {
  ShowArea(Text112, PortAreaForFlow(Read(Text101), Read(Text102)), {&Text102});
}

void PortPanel::SolveTaper() {
  const PortTaper taper{Read(Text115), Read(Text116), Read(Text118)};
  ShowPlain(Text117, TaperAngle(taper), {&Text118});
  ShowPlain(Text119, SideLength(taper));
}

void PortPanel::SolveTaperLength() {
  const PortTaper taper{Read(Text115), Read(Text116), 0};
  const double angle = Read(Text117);
  const double side = SideLengthByAngle(taper, angle);
  ShowPlain(Text119, side, {&Text117});
  ShowPlain(Text118, AxisLength(side, angle));
}

void PortPanel::SolveLargeEnd() {
  PortTaper taper{Read(Text115), 0, Read(Text118)};
  taper.large = LargeEnd(taper, Read(Text117));
  ShowPlain(Text116, taper.large);
  ShowPlain(Text119, SideLength(taper));
}

}  // namespace veldox
