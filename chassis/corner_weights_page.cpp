#include "chassis/corner_weights_page.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "chassis/car_plan.h"
#include "core/report.h"

namespace veldox {

namespace {

constexpr int kReportFontSize = 10;
constexpr int kNameWidth = 17;
constexpr int kPercentWidth = 6;
constexpr int kWeightWidth = 8;
constexpr int kColumnWidth = 12;

/// Share of the car's weight by which a corner may be short of nothing for the digits of the
/// targets alone.
constexpr double kRounding = 1e-9;

/// Pounds; nothing on four tires weighs more.
constexpr double kHeaviest = 1e7;

/// Wheel bases or track widths; no ballast lies farther from the car.
constexpr double kFarthest = 1e100;
constexpr const char* kTooFar = "is too far from the car to be calculated with.";

constexpr const char* kNoWeight =
    "The four corner weights add up to 0. Please enter what the scales read.";

struct NamedWeight {
  const char* name;
  double weight;
};

/// A number in a message: as fields show it, or with its exponent where it has more digits than
/// anybody reads.
std::string InMessage(double number, DecimalMark mark) {
  constexpr double kWidest = 1e8;
  if (std::abs(number) < kWidest) return FormatField(number, mark);
  constexpr int kDigits = 6;
  std::array<char, 32> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                 std::chars_format::general, kDigits)
                       .ptr;
  std::replace(text.data(), end, '.', static_cast<char>(mark));
  return {text.data(), end};
}

/// A sum of percentages that is refused, with as many digits as tell it from one that is not.
std::string RefusedSum(double sum, DecimalMark mark) {
  std::string text = InMessage(sum, mark);
  if (!AddUpToHundred({ParseNumber(text, mark), 0, 0, 0})) return text;
  text = FormatShortest(sum);
  std::replace(text.begin(), text.end(), '.', static_cast<char>(mark));
  return text;
}

}  // namespace

CornerWeightsPage::CornerWeightsPage(Screen& screen, ScreenPage& page)
    : ChassisPart(screen), page_(page) {
  for (Field* field : Weights.fields()) field->WhenChanged([this] { DrawCar(); });
  DrawCar();
}

bool CornerWeightsPage::TakeWeights(Corners& weights) const {
  double* const slots[] = {&weights.leftFront, &weights.rightFront, &weights.leftRear,
                           &weights.rightRear};
  const Field* const fields[] = {&Weights.leftFront, &Weights.rightFront, &Weights.leftRear,
                                 &Weights.rightRear};
  for (std::size_t i = 0; i < std::size(slots); ++i) {
    const std::string& text = fields[i]->text();
    if (!IsNumber(text, mark())) return false;
    *slots[i] = ParseNumber(text, mark());
    if (!(*slots[i] >= 0)) return false;
  }
  const double sum = weights.Sum();
  return sum > 0 && sum < kHeaviest;
}

void CornerWeightsPage::DrawCar() {
  Corners weights;
  Car.Draw(TakeWeights(weights) ? SketchOf(weights, mark()) : Sketch());
}

// ---------------------------------------------------------------- weights

void CornerWeightsPage::RequireShares(const Corners& weights) {
  RequireResult(Text14, weights.Front() / block().CarWeight * 100, {&Text9});
}

void CornerWeightsPage::StoreSides(const Corners& weights) {
  const double car = block().CarWeight;
  Store(Text10, weights.Front());
  Store(Text11, weights.Rear());
  Store(Text12, weights.Left());
  Store(Text13, weights.Right());
  Store(Text18, weights.Cross());
  const auto percent = [&](Field& field, double weight) {
    Store(field, weight / car * 100, {&Text9});
  };
  percent(Text14, weights.Front());
  percent(Text15, weights.Rear());
  percent(Text16, weights.Left());
  percent(Text17, weights.Right());
  percent(Text19, weights.Cross());
  Show(Text128, 100 - block().PercentCrossWeight);
}

void CornerWeightsPage::StorePercents(const Corners& weights) {
  StoreCorners(Percents, PercentsOfWeights(weights, block().CarWeight));
  StoreSides(weights);
}

double CornerWeightsPage::ReadCarWeight() {
  ReadFields({&Text9});
  RequireNotNegative(Text9, block().CarWeight);
  return block().CarWeight;
}

void CornerWeightsPage::WeighByPercents() {
  const Corners percents{Read(Percents.leftFront), Read(Percents.rightFront),
                         Read(Percents.leftRear), Read(Percents.rightRear)};
  if (!AddUpToHundred(percents)) {
    FailAt(Percents.leftFront, "The four corner percentages add up to " +
                                   RefusedSum(percents.Sum(), mark()) +
                                   ". They must add up to 100.");
  }
  RequireNoneNegative(Percents, percents);
  ReadCorners(Percents);
  const double car = ReadCarWeight();
  const Corners weights = WeightsOfPercents(percents, car);
  RequireFinite(Weights, weights);
  RequireShares(weights);
  StoreCorners(Weights, weights);
  StoreSides(weights);
}

void CornerWeightsPage::FindPercents() {
  const Corners weights = ReadUnsignedCorners(Weights);
  if (weights.Sum() == 0) FailAt(Weights.leftFront, kNoWeight);
  Store(Text9, weights.Sum());
  StorePercents(weights);
}

void CornerWeightsPage::WeighByTargets() {
  const WeightTargets targets{Read(Text16), Read(Text15), Read(Text19)};
  const double car = ReadCarWeight();
  const Corners weights = WeightsOfTargets(targets, car);
  RequireFinite(Weights, weights);
  const NamedWeight corners[] = {{"Left Front", weights.leftFront},
                                 {"Right Front", weights.rightFront},
                                 {"Left Rear", weights.leftRear},
                                 {"Right Rear", weights.rightRear}};
  for (const auto& [name, weight] : corners) {
    if (weight >= -kRounding * std::abs(car)) continue;
    FailAt(Text19, "No car has " + InMessage(targets.left, mark()) + " percent on the left, " +
                       InMessage(targets.rear, mark()) + " on the rear and " +
                       InMessage(targets.cross, mark()) + " across: the " + name + " would weigh " +
                       InMessage(weight, mark()) + '.');
  }
  ReadFields({&Text16, &Text15, &Text19});
  RequireShares(weights);
  StoreCorners(Weights, weights);
  StorePercents(weights);
}

// ---------------------------------------------------------------- ballast

BallastShare CornerWeightsPage::ReadBallast() {
  ReadFields({&Text39, &Text40, &Text41, &Text20, &Text21});
  const ParameterBlock& b = block();
  RequirePositive(Text20, b.WheelBase);
  RequirePositive(Text21, b.TrackWidth);
  const BallastShare share = ShareOfBallast({b.BallastX, b.BallastY}, b.WheelBase, b.TrackWidth);
  Require(std::abs(share.front) < kFarthest, Text40, kTooFar);
  Require(std::abs(share.left) < kFarthest, Text41, kTooFar);
  return share;
}

void CornerWeightsPage::ReportBallast() {
  const BallastShare share = ReadBallast();
  const double ballast = block().Ballast;
  const Corners parts = share.OnCorners();
  ReportWriter report(mark());
  report.Add("Ballast").EndLine(LineMark::Bold);
  const auto line = [&](std::string_view name, double part, double weight) {
    Require(std::isfinite(weight), Text39, "is too large to be calculated with.");
    report.Add(name).Add<"0.00">(part * 100, kPercentWidth).Add("%     ");
    report.Add<"0.00">(weight, kWeightWidth).Add("#").EndLine();
  };
  const double front = ballast * share.front;
  const double left = ballast * share.left;
  line("on Front         ", share.front, front);
  line("on Rear          ", share.Rear(), ballast - front);
  line("on Left          ", share.left, left);
  line("on Right         ", share.Right(), ballast - left);
  line("on Left Front    ", parts.leftFront, ballast * parts.leftFront);
  line("on Right Front   ", parts.rightFront, ballast * parts.rightFront);
  line("on Left Rear     ", parts.leftRear, ballast * parts.leftRear);
  line("on Right Rear    ", parts.rightRear, ballast * parts.rightRear);

  Corners before;
  const bool hasCar = TakeWeights(before);
  const Corners after =
      before.Each(parts, [&](double weight, double part) { return weight + ballast * part; });
  if (hasCar && after.Sum() > 0) {
    report.EndLine();
    report.LeftCellText = "The Car";
    report.PadTextCell(kNameWidth);
    for (const char* head : {"Without", "Percent", "With", "Percent"}) {
      report.CellText = head;
      report.AddPadCell(kColumnWidth);
    }
    report.EndLine(LineMark::Bold);
    const auto row = [&](std::string_view name, double without, double with) {
      report.LeftCellText = name;
      report.PadTextCell(kNameWidth);
      report.Add<"0.00">(without, kColumnWidth);
      report.Add<"0.00">(without / before.Sum() * 100, kColumnWidth);
      report.Add<"0.00">(with, kColumnWidth);
      report.Add<"0.00">(with / after.Sum() * 100, kColumnWidth).EndLine();
    };
    row("Left Front", before.leftFront, after.leftFront);
    row("Right Front", before.rightFront, after.rightFront);
    row("Left Rear", before.leftRear, after.leftRear);
    row("Right Rear", before.rightRear, after.rightRear);
    row("Front", before.Front(), after.Front());
    row("Rear", before.Rear(), after.Rear());
    row("Left", before.Left(), after.Left());
    row("Right", before.Right(), after.Right());
    row("Cross (RF + LR)", before.Cross(), after.Cross());
    row("Car Weight", before.Sum(), after.Sum());
  }
  ShowReport(report.Finish(), kReportFontSize);
}

void CornerWeightsPage::PlaceBallast() {
  ReadFields({&Text20, &Text21, &Text15, &Text17});
  const ParameterBlock& b = block();
  const BallastPlace place =
      PlaceOfBallast(b.PercentWeightRear, b.PercentWeightRight, b.WheelBase, b.TrackWidth);
  Store(Text40, place.x);
  Store(Text41, place.y);
}

void CornerWeightsPage::PutBallastOnCorners() {
  const BallastShare share = ReadBallast();
  const double ballast = block().Ballast;
  const Corners weights = ReadUnsignedCorners(Weights).Each(
      share.OnCorners(), [&](double weight, double part) { return weight + ballast * part; });
  const double lowest =
      std::min({weights.leftFront, weights.rightFront, weights.leftRear, weights.rightRear});
  Require(lowest >= 0, Text39, "would lift a tire off the ground there. Please check its place.");
  StoreCorners(Weights, weights);
  Store(Text9, weights.Sum());
  StorePercents(weights);
}

}  // namespace veldox
