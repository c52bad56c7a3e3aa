#include "chassis/spring_rates_page.h"

#include "chassis/wheel_rates.h"

namespace veldox {

namespace {

constexpr const char* kNothingSprung =
    "must be smaller than the weight of its corner: nothing would rest on the spring.";
constexpr double kSecondsPerMinute = 60;

}  // namespace

SpringRatesPage::SpringRatesPage(Screen& screen, ScreenPage& page, CornerWeightsPage& corners,
                                 UnsprungWeights& unsprung)
    : ChassisPart(screen), page_(page), corners_(corners), unsprung_(unsprung) {}

Corners SpringRatesPage::ReadSprungWeights() {
  const Corners sprung = ReadCorners(corners_.Weights)
                             .Each(unsprung_.ReadWeights(), [](double weight, double unsprung) {
                               return weight - unsprung;
                             });
  CornerFields& fields = unsprung_.Weights;
  Require(sprung.leftFront > 0, fields.leftFront, kNothingSprung);
  Require(sprung.rightFront > 0, fields.rightFront, kNothingSprung);
  Require(sprung.leftRear > 0, fields.leftRear, kNothingSprung);
  Require(sprung.rightRear > 0, fields.rightRear, kNothingSprung);
  return sprung;
}

Corners SpringRatesPage::ReadWheelRates() {
  return ReadCorners(WheelRates).Each(barWheelRates_, [](double spring, double bar) {
    return spring + bar;
  });
}

Axles SpringRatesPage::ReadTrackWidths() {
  ReadFields({&Text113, &Text114});
  return {block().FrontTrackWidth, block().RearTrackWidth};
}

std::vector<std::string> SpringRatesPage::StiffnessTexts() const {
  std::vector<std::string> texts;
  for (const CornerFields* fields : {&SpringRates, &SpringMoves, &BarMoves}) {
    for (const Field* field :
         {&fields->leftFront, &fields->rightFront, &fields->leftRear, &fields->rightRear}) {
      texts.push_back(field->text());
    }
  }
  for (const Field* field : {&Text111, &Text112, &Text113, &Text114}) {
    texts.push_back(field->text());
  }
  return texts;
}

void SpringRatesPage::Bring() {
  if (calculatedFrom_ != StiffnessTexts()) Calculate();
}

void SpringRatesPage::Calculate() {
  calculatedFrom_.clear();
  const Corners sprung = ReadSprungWeights();
  const Corners rates = ReadCorners(SpringRates);
  const Corners moves = ReadCorners(SpringMoves);
  const Corners barMoves = ReadCorners(BarMoves);
  ReadFields({&Text111, &Text112});
  const Axles tracks = ReadTrackWidths();
  const ParameterBlock& b = block();

  StoreCorners(SprungWeights, sprung);
  const Corners wheelRates = rates.Each(moves, WheelRate);
  StoreCorners(WheelRates, wheelRates);
  barWheelRates_ = {WheelRate(b.FrontSwayBarRate, barMoves.leftFront),
                    WheelRate(b.FrontSwayBarRate, barMoves.rightFront),
                    WheelRate(b.RearSwayBarRate, barMoves.leftRear),
                    WheelRate(b.RearSwayBarRate, barMoves.rightRear)};
  StoreCorners(BarWheelRates, barWheelRates_);
  const Corners frequencies = wheelRates.Each(sprung, SuspensionFrequency);
  StoreCorners(Frequencies, frequencies);
  StoreCorners(Hertz, frequencies.Each([](double cpm) { return cpm / kSecondsPerMinute; }));
  StoreCorners(Deflections, wheelRates.Each(sprung, StaticDeflection), WheelRates);

  const Corners& bars = barWheelRates_;
  const Axles stiffness{RollStiffness(tracks.front, wheelRates.leftFront, wheelRates.rightFront,
                                      bars.leftFront, bars.rightFront),
                        RollStiffness(tracks.rear, wheelRates.leftRear, wheelRates.rightRear,
                                      bars.leftRear, bars.rightRear)};
  Store(Text124, stiffness.front);
  Store(Text125, stiffness.rear);
  Show(Text126, stiffness.front / stiffness.Sum() * 100, {&Text113, &Text114});
  Show(Text127, stiffness.rear / stiffness.Sum() * 100);
  calculatedFrom_ = StiffnessTexts();
}

void SpringRatesPage::SolveWheelRates() {
  const Corners sprung = ReadSprungWeights();
  const Corners frequencies = ReadCorners(Frequencies);
  const Corners wheelRates = frequencies.Each(sprung, WheelRateForFrequency);
  StoreCorners(SprungWeights, sprung);
  StoreCorners(WheelRates, wheelRates);
  StoreCorners(Hertz, frequencies.Each([](double cpm) { return cpm / kSecondsPerMinute; }));
  StoreCorners(Deflections, wheelRates.Each(sprung, StaticDeflection), Frequencies);
}

void SpringRatesPage::SolveSpringRates() {
  const Corners wheelRates = ReadCorners(WheelRates);
  StoreCorners(SpringRates, wheelRates.Each(ReadCorners(SpringMoves), SpringRateForWheel),
               SpringMoves);
}

void SpringRatesPage::SolveMovement() {
  const double length1 = Read(Text36);
  const double length2 = Read(Text46);
  Show(Text115, MotionRatio(length1, length2, Read(Text48)), {&Text46});
}

}  // namespace veldox
