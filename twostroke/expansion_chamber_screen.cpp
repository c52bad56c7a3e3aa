#include "twostroke/expansion_chamber_screen.h"

#include <array>
#include <cmath>

#include "core/report.h"
#include "engine/compression.h"
#include "twostroke/mean_pressure.h"

namespace veldox {

namespace {

constexpr const char* kUnused = "------";
constexpr double kAbsoluteZero = -273.15;
// Of a one-stage chamber, by the port's diameter.
constexpr double kOneStageHeader = 1.2;
constexpr double kOneStageBelly = 2.5;
constexpr double kOneStageTail = 0.6;
constexpr int kReportFontSize = 10;
constexpr int kPictureHeight = 3800;  // twips

}  // namespace

Form11::Form11(ProgramContext& context)
    : Screen(context, "Form11", "Two Stroke Exhaust", "2_S_Exhaust") {
  SetAlwaysMetric();
  Frame5.SetVisible(false);
  StageHints.SetVisible(false);
  SingleHints.SetVisible(false);
  Remark.SetVisible(false);
}

Form11::Basis Form11::ReadChamberFields() {
  ReadFields({&Text36, &Text2, &Text3, &Text4, &Text5, &Text14, &Text6});
  ParameterBlock& b = block();
  Show(Text12, b.PowerKW / kKilowattsPerHorsepower);
  ReadFields({&Text1, &Text11});
  Store(Text10, ToCc(DiscVolume(b.Bore, b.Stroke), true));
  const double pressure = MeanPressureBar(b.PowerKW / b.NumberofCylinders, b.CubicInches, b.RPM);
  Show(Text9, pressure, {&Text36, &Text1, &Text11, &Text5});
  if (Check1.on()) {
    Store(Text15, ExhaustGasTemperature(pressure));
  } else {
    ReadFields({&Text15});
  }
  ReadFields({&Text26, &Text28, &Text29});
  Require(b.ExhaustPortWidth * b.ExhaustPortHeight >= 0, b.ExhaustPortWidth < 0 ? Text3 : Text4,
          "must not be negative: a pipe on this port has no diameter.");
  const double header = HeaderDiameter(b.ExhaustPortWidth, b.ExhaustPortHeight);
  if (Check3.on()) {
    Require(b.ExhaustGasTemp >= kAbsoluteZero, Text15, "must not be below -273.15.");
    Store(Text7, SpeedOfSound(b.ExhaustGasTemp));
  } else {
    ReadFields({&Text7});
  }
  ShowHints();
  ForgetChamber();
  const double tuned = TunedLength(b.SpeedofSound, b.ExhaustDuration, b.RPM);
  Show(LT, tuned, {&Text5});
  Show(L1, kHeaderPart * tuned);
  return {header, tuned};
}

void Form11::ShowDiameter(Field& cell, double diameter, DividesBy divisors) {
  const double circumference = diameter * kPi;
  RequireResult(cell, diameter, divisors);
  RequireResult(cell, circumference);
  ShowText(cell, FormatField(diameter, mark()) + '-' + FormatField(circumference, mark()));
}

void Form11::ShowUnused(std::initializer_list<Field*> cells) {
  for (Field* cell : cells) cell->SetText(kUnused);
}

void Form11::SolveTwoStage() {
  const auto [header, tuned] = ReadChamberFields();
  const ParameterBlock& b = block();
  const auto [first, second] = kTwoStageDiffusers;
  Show(L2, first * tuned);
  Show(L3, second * tuned);
  Show(L4, kBellyPart * tuned);
  Show(L5, kBafflePart * tuned);
  ShowUnused({&L6, &D5});
  Show(L7, kBafflePart * tuned);
  const double d1 = b.KonstantK1 * header;
  const double d3 = b.KonstantK2 * header;
  ShowDiameter(D1, d1);
  ShowDiameter(D3, d3);
  const double part = first * tuned / (first * tuned + second * tuned);
  const double d2 = DiameterBetweenCones(part, d3);
  ShowDiameter(D2, d2, {&Text2, &Text7});
  const double d4 = b.KonstantK0 * header;
  ShowDiameter(D4, d4);
  ShowChamber("2 Stage",
              {{{"L1", "Header", kHeaderPart * tuned, header, d1},
                {"L2", "Diffuser 1", first * tuned, d1, d2},
                {"L3", "Diffuser 2", second * tuned, d2, d3},
                {"L4", "Belly", kBellyPart * tuned, d3, d3},
                {"L5", "Baffle", kBafflePart * tuned, d3, d4},
                {"L7", "Tail pipe", kBafflePart * tuned, d4, d4}},
               {{{"LT", 0, tuned}}},
               {{"D1", 1}, {"D2", 2}, {"D3", 3, true}, {"D4", 5, true}}},
              Stages);
}

void Form11::SolveThreeStage() {
  const auto [header, tuned] = ReadChamberFields();
  const ParameterBlock& b = block();
  const auto [first, second, third] = kThreeStageDiffusers;
  Show(L2, first * tuned);
  Show(L3, second * tuned);
  Show(L4, third * tuned);
  Show(L5, kBellyPart * tuned);
  Show(L6, kBafflePart * tuned);
  Show(L7, kBafflePart * tuned);
  const double d1 = b.KonstantK1 * header;
  const double d4 = b.KonstantK2 * header;
  ShowDiameter(D1, d1);
  ShowDiameter(D4, d4);
  for (Field* field : {&Text3, &Text4, &Text28, &Text29}) {
    Require(Read(*field) > 0, *field, "must be greater than 0 for a horn.");
  }
  const double whole = first * tuned + second * tuned + third * tuned;
  const double growth = std::log(d4 / d1);
  const double d2 = HornDiameter(d1, first * tuned / whole, b.HornCoeff, growth);
  ShowDiameter(D2, d2, {&Text2, &Text7});
  const double d3 = HornDiameter(d1, (first * tuned + second * tuned) / whole, b.HornCoeff, growth);
  ShowDiameter(D3, d3);
  const double d5 = b.KonstantK0 * header;
  ShowDiameter(D5, d5);
  ShowChamber("3 Stage",
              {{{"L1", "Header", kHeaderPart * tuned, header, d1},
                {"L2", "Diffuser 1", first * tuned, d1, d2},
                {"L3", "Diffuser 2", second * tuned, d2, d3},
                {"L4", "Diffuser 3", third * tuned, d3, d4},
                {"L5", "Belly", kBellyPart * tuned, d4, d4},
                {"L6", "Baffle", kBafflePart * tuned, d4, d5},
                {"L7", "Tail pipe", kBafflePart * tuned, d5, d5}},
               {{{"LT", 0, tuned}}},
               {{"D1", 1}, {"D2", 2}, {"D3", 3}, {"D4", 4, true}, {"D5", 6, true}}},
              Stages);
}

void Form11::SolveSingleStage() {
  const Basis basis = ReadChamberFields();
  ReadFields({&Text32, &Text33});
  const ParameterBlock& b = block();
  const double d1 = (b.Diameter1 / 100 + 1) * basis.header;
  const double d2 = std::sqrt(d1 * d1 * 6.25);
  SingleStageSections("Single", basis, d1, d2, d1 * b.Diameter3);
}

void Form11::SolveOneStage() {
  const Basis basis = ReadChamberFields();
  SingleStageSections("One", basis, kOneStageHeader * basis.header, kOneStageBelly * basis.header,
                      kOneStageTail * basis.header);
}

void Form11::SingleStageSections(const char* kind, const Basis& basis, double d1, double d2,
                                 double d3) {
  ReadFields({&Text30, &Text31, &Text34, &Text35});
  const ParameterBlock& b = block();
  const double point = ConeLength(0, d2, b.Angel2);
  RequireResult(L1, point, {&Text31});
  const double toBaffle = basis.tuned - point / 2;
  Show(L2, toBaffle);
  const double header = d1 * b.Length3;
  const double diffuser = ConeLength(d1, d2, b.Angel1);
  RequireResult(L4, diffuser, {&Text30});
  const double belly = toBaffle - (diffuser + header);
  const double baffle = ConeLength(d3, d2, b.Angel2);
  const double tail = d3 * b.Length7;
  Show(L1, point);
  Show(L3, header);
  Show(L4, diffuser);
  Show(L5, belly);
  Show(L6, baffle);
  Show(L7, tail);
  ShowDiameter(D1, d1);
  ShowDiameter(D2, d2);
  ShowDiameter(D3, d3);
  ShowUnused({&D4, &D5});
  Chamber chamber{{{"L3", "Header", header, d1, d1},
                   {"L4", "Diffuser", diffuser, d1, d2},
                   {"L5", "Belly", belly, d2, d2},
                   {"L6", "Baffle", baffle, d2, d3},
                   {"L7", "Tail pipe", tail, d3, d3}},
                  {{{"L2", 0, toBaffle}, {"L1", toBaffle, point}}, {{"LT", 0, basis.tuned}}},
                  {{"D1", 0, true}, {"D2", 2, true}, {"D3", 4, true}}};
  if (!(belly > 0)) chamber.diameters[1] = {"D2", 3};
  ShowChamber(kind, std::move(chamber), SingleStage);
}

void Form11::ShowChamber(std::string kind, Chamber chamber, Drawing& drawing) {
  kind_ = std::move(kind);
  chamber_ = std::move(chamber);
  const auto keep = [this](std::string name, const Field& field) {
    computedFrom_.Change().emplace_back(
        std::move(name), field.text() + ' ' + std::string(UnitSign(field.unit(), true)));
  };
  for (const Field* field :
       {&Text1, &Text11, &Text5, &Text6, &Text2, &Text3, &Text4, &Text15, &Text7}) {
    keep(field->PlainCaption(), *field);
  }
  keep("Tuned Length LT", LT);
  std::string remark;
  const auto add = [&](const std::string& row, double length, const char* what) {
    if (length >= 0) return;
    if (!remark.empty()) remark += "\r\n";
    remark += row + what;
  };
  for (const ChamberSection& section : chamber_->sections) {
    add(section.row + " (" + section.part + ')', section.length,
        " is negative: the others are too long for the tuned length. It is left out of the "
        "drawing.");
  }
  for (const auto& line : chamber_->measures) {
    for (const ChamberMeasure& measure : line) {
      add(measure.row, measure.length, " is negative and left out of the drawing.");
    }
  }
  Tell(Remark, std::move(remark));
  drawing.Draw(SketchOf(chamber_));
  const bool isSingle = &drawing == &SingleStage;
  Frame4.SetVisible(!isSingle);
  Frame5.SetVisible(isSingle);
}

void Form11::ForgetChamber() {
  kind_ = {};
  chamber_ = Chamber{};
  computedFrom_.Change().clear();
  Stages.Draw({});
  SingleStage.Draw({});
  Tell(Remark, {});
}

void Form11::ClearFields() {
  Screen::ClearFields();
  ForgetChamber();
  Frame4.SetVisible(true);
  Frame5.SetVisible(false);
  ShowHints();
}

void Form11::ShowHints() {
  ShowHints(StageHints,
            {{&Text26, 0.6, 0.7}, {&Text28, 1.05, 1.125}, {&Text29, 2.125, 3.25}, {&Text14, 1, 2}});
  ShowHints(SingleHints, {{&Text32, 10, 15},
                          {&Text33, 0.58, 0.62},
                          {&Text30, 7, 10},
                          {&Text31, 14, 20},
                          {&Text34, 6, 11}});
}

void Form11::ShowHints(Label& label, std::initializer_list<UsualRange> ranges) const {
  std::string hints;
  for (const auto& [field, low, high] : ranges) {
    if (!IsNumber(field->text(), mark())) continue;
    const double value = ParseNumber(field->text(), mark());
    if (value >= low && value <= high) continue;
    if (!hints.empty()) hints += "\r\n";
    hints += field->PlainCaption() + ": an unusual value.";
  }
  Tell(label, std::move(hints));
}

void Form11::Tell(Label& label, std::string text) {
  label.SetVisible(!text.empty());
  label.SetCaption(std::move(text));
}

void Form11::ReportChamber() {
  if (chamber_->sections.empty()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There is no chamber to report: please press 2 Stage, 3 Stage, Single or "
                       "One first.");
  }
  constexpr int kNumberWidth = 12;
  constexpr int kRowWidth = 5;
  constexpr int kPartWidth = 12;
  ReportWriter report(mark());
  report.Add("Two Stroke Exhaust - " + *kind_).EndLine(LineMark::Bold);
  report.EndLine();
  for (const auto& [name, text] : *computedFrom_) {
    report.LeftCellText = name;
    report.PadTextCell(kRowWidth + kPartWidth + kNumberWidth / 2);
    report.Add(text).EndLine();
  }
  report.EndLine();
  const auto head = [&](std::string_view row, std::string_view part) {
    report.LeftCellText = row;
    report.PadTextCell(kRowWidth);
    report.LeftCellText = part;
    report.PadTextCell(kPartWidth);
  };
  head("Row", "Section");
  for (const char* column : {"Length", "Diameter", "Circumf.", "To Diameter", "Circumf."}) {
    report.CellText = column;
    report.AddPadCell(kNumberWidth);
  }
  report.EndLine(LineMark::Bold);
  for (const ChamberSection& section : chamber_->sections) {
    head(section.row, section.part);
    report.Add<"0.0">(section.length, kNumberWidth);
    for (const double diameter : {section.from, section.to}) {
      report.Add<"0.0">(diameter, kNumberWidth).Add<"0.0">(diameter * kPi, kNumberWidth);
    }
    report.EndLine();
  }
  report.EndLine();
  report.Add("All lengths are in mm, along the axis; diameters are inside.").EndLine();
  if (Remark.visible()) report.Add(Remark.caption()).EndLine();
  ShowReport(report.Finish(), kReportFontSize, {}, PictureOf(SketchOf(chamber_), kPictureHeight));
}

}  // namespace veldox
