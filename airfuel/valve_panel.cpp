#include "airfuel/valve_panel.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace veldox {

namespace {

/// Stems of usual valves, inches: 5, 5.5, 6, 7 and 8 mm, and those of American engines.
const std::vector<std::string> kStems = {".1969", ".2165", ".2362", ".2756", ".3110",
                                         ".3150", ".3415", ".3715", ".3725"};

constexpr const char* kAboveZero = "must be above 0.";
constexpr const char* kBetweenZeroAndNinety = "must be above 0 and below 90 degrees.";
constexpr const char* kNoThroat =
    "leaves no area beside the valve stem. Please check the number, and how the throat is given "
    "(\"Throat Is Given As\").";
constexpr const char* kNoSeat = "leaves nothing of the valve inside its seat.";

/// A throat below this part of the valve's area was hardly meant.
constexpr double kSmallThroat = 0.4;

std::string ThroatNote(const FlowPort& port, const char* name) {
  const double valve = CircleArea(port.valves.size);
  const bool isLarge = port.throatArea > valve;
  if (!isLarge && port.throatArea >= kSmallThroat * valve) return {};
  return std::string("The ") + name + " throat is " +
         (isLarge ? "larger than its valve" : "less than 40 percent of its valve") +
         ": please check how it is given in Valve Sizing.\r\n";
}

}  // namespace

// ---------------------------------------------------------------- StemList

StemList::StemList(Frame& frame, std::string name, std::string caption, Field& stem)
    : ComboList(frame, std::move(name), std::move(caption)), stem_(stem) {
  SetRows(kStems);
  SetHelp("Picks a stem diameter of usual valves.");
  stem_.WhenChanged([this] { Follow(); });
  Follow();
}

void StemList::Choose(int row) {
  if (!HasRow(row)) return;
  ComboList::Choose(row);
  std::string stem = chosenText();
  std::ranges::replace(stem, '.', static_cast<char>(screen().mark()));
  stem_.SetText(std::move(stem));
}

void StemList::Follow() {
  const DecimalMark mark = screen().mark();
  int row = -1;
  if (IsNumber(stem_.text(), mark)) {
    const double stem = ParseNumber(stem_.text(), mark);
    const auto found = std::ranges::find_if(rows(), [&](const std::string& text) {
      return ParseNumber(text, DecimalMark::Point) == stem;
    });
    if (found != rows().end()) row = static_cast<int>(found - rows().begin());
  }
  if (row == chosen()) return;
  SetChosen(row);
  Changed();
}

// ---------------------------------------------------------------- ValvePanel

ValvePanel::ValvePanel(Screen& screen) : ScreenPart(screen) {
  for (Control* control : std::initializer_list<Control*>{&Text42, &Text43, &Text44, &Text45,
                                                          &Text46, &Text47, &Option1}) {
    control->WhenChanged([this] { ShowThroats(); });
  }
  ShowThroats();
}

void ValvePanel::ShowThroats() {
  const auto show = [this](ResultLabel& label, const Field& size, const Field& stem,
                           const Field& throat) {
    const auto areNumbers = {&size, &stem, &throat};
    if (!std::ranges::all_of(areNumbers,
                             [this](const Field* f) { return IsNumber(f->text(), mark()); })) {
      label.SetText({});
      return;
    }
    PortValves valves;
    valves.size = ParseNumber(size.text(), mark());
    valves.stem = ParseNumber(stem.text(), mark());
    valves.throat = ParseNumber(throat.text(), mark());
    const double area = ThroatArea(valves, Measure());
    label.SetText(std::isfinite(area) ? FormatValue<"0.000">(area, mark()) : std::string{});
  };
  show(IntakeThroatArea, Text42, Text43, Text44);
  show(ExhaustThroatArea, Text45, Text46, Text47);
}

ValvePanel::Ports ValvePanel::ReadValves() {
  ReadFields({&Text42, &Text43, &Text44, &Text62, &Text45, &Text46, &Text47, &Text63, &Text120,
              &Text121, &Text122, &Text123});
  const ParameterBlock& b = block();
  Ports ports;
  ports.intake.valves = {b.IntakeValveSize, IntakeStemSize(),
                         IntakeThroat(),    static_cast<double>(b.NumberofIntakeValves),
                         IntakeSeatAngle(), IntakeSeatWidth()};
  ports.exhaust.valves = {b.ExhaustValveSize, ExhaustStemSize(),
                          ExhaustThroat(),    static_cast<double>(b.NumberofExhaustValves),
                          ExhaustSeatAngle(), ExhaustSeatWidth()};
  ports.intake.CountAsIntake();
  ports.exhaust.CountAsExhaust(ports.intake.valves.count);
  return ports;
}

ValvePanel::Ports ValvePanel::ThroatAreas() {
  Ports ports = ReadValves();
  Require(ports.intake.valves.size > 0, Text42, kAboveZero);
  Require(ports.intake.valves.count > 0, Text62, kAboveZero);
  Require(ports.exhaust.valves.size > 0, Text45, kAboveZero);
  Require(ports.exhaust.valves.count > 0, Text63, kAboveZero);
  ports.intake.throatArea = ThroatArea(ports.intake.valves, Measure());
  ports.exhaust.throatArea = ThroatArea(ports.exhaust.valves, Measure());
  Require(ports.intake.throatArea > 0, Text44, kNoThroat);
  Require(ports.exhaust.throatArea > 0, Text47, kNoThroat);
  RequireResult(Text44, ports.intake.throatArea);
  RequireResult(Text47, ports.exhaust.throatArea);
  return ports;
}

void ValvePanel::McsaDefaults(Ports& ports) {
  ReadFields({&Text89, &Text90});
  const auto mcsa = [](double typed, const PortValves& valves, double part) {
    return typed > 0 ? typed : UsualMcsa(valves, part);
  };
  ports.intake.mcsa = mcsa(block().IntakeMCSA, ports.intake.valves, kIntakeMcsaPart);
  ports.exhaust.mcsa = mcsa(block().ExhaustMCSA, ports.exhaust.valves, kExhaustMcsaPart);
}

void ValvePanel::RequireSeat(const PortValves& valves, Field& angle, Field& width) {
  constexpr double kRightAngle = 90;
  Require(valves.seatAngle > 0 && valves.seatAngle < kRightAngle, angle, kBetweenZeroAndNinety);
  Require(SeatMinorDiameter(valves) > 0, width, kNoSeat);
}

void ValvePanel::RequireSeats(const Ports& ports) {
  RequireSeat(ports.intake.valves, Text120, Text121);
  RequireSeat(ports.exhaust.valves, Text122, Text123);
}

void ValvePanel::RequireSeatsInUse(const Ports& ports) {
  if (ports.intake.valves.HasSeat()) RequireSeat(ports.intake.valves, Text120, Text121);
  if (ports.exhaust.valves.HasSeat()) RequireSeat(ports.exhaust.valves, Text122, Text123);
}

std::string ValvePanel::ThroatNotes(const Ports& ports) {
  return ThroatNote(ports.intake, "intake") + ThroatNote(ports.exhaust, "exhaust");
}

}  // namespace veldox
