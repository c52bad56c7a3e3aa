#include "chassis/spring_rates_page.h"

#include <algorithm>
#include <cmath>

#include "chassis/wheel_rates.h"

namespace veldox {

namespace {

constexpr const char* kNothingSprung =
    "must be smaller than the weight of its corner: nothing would rest on the spring.";
constexpr const char* kNothingLeft =
    "and the others leave nothing of the car to rest on the springs.";
constexpr const char* kTooStiff =
    "and the rates at the wheels make a roll stiffness that is too large. Please check them.";
constexpr double kSecondsPerMinute = 60;

}  // namespace

SpringRatesPage::SpringRatesPage(Screen& screen, ScreenPage& page, CornerWeightsPage& corners,
                                 UnsprungWeights& unsprung)
    : ChassisPart(screen), page_(page), corners_(corners), unsprung_(unsprung) {}

void UnsprungWeights::RequireSprung(double carWeight, const Corners& unsprung) {
  if (carWeight - unsprung.Sum() > 0) return;
  // The heaviest is the likeliest to be wrong.
  const double heaviest =
      std::max({unsprung.leftFront, unsprung.rightFront, unsprung.leftRear, unsprung.rightRear});
  Require(unsprung.leftFront != heaviest, Weights.leftFront, kNothingLeft);
  Require(unsprung.rightFront != heaviest, Weights.rightFront, kNothingLeft);
  Require(unsprung.leftRear != heaviest, Weights.leftRear, kNothingLeft);
  Require(unsprung.rightRear != heaviest, Weights.rightRear, kNothingLeft);
}

Corners SpringRatesPage::ReadSprungWeights() {
  const Corners sprung = ReadUnsignedCorners(corners_.Weights)
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

double SpringRatesPage::ReadBarRate(Field& field) {
  ReadFields({&field});
  const double rate = Read(field);
  RequireNotNegative(field, rate);
  return rate;
}

SpringRatesPage::AtWheels SpringRatesPage::SolveStiffness() {
  const Corners rates = ReadUnsignedCorners(SpringRates);
  const Corners moves = ReadUnsignedCorners(SpringMoves);
  const Corners barMoves = ReadUnsignedCorners(BarMoves);
  const double frontBar = ReadBarRate(Text111);
  const double rearBar = ReadBarRate(Text112);
  ReadFields({&Text113, &Text114});
  const Axles tracks{block().FrontTrackWidth, block().RearTrackWidth};

  const AtWheels at{rates.Each(moves, WheelRate),
                    Corners{frontBar, frontBar, rearBar, rearBar}.Each(barMoves, WheelRate)};
  RequireFinite(WheelRates, at.springs);
  RequireFinite(BarWheelRates, at.bars);
  const Axles stiffness{RollStiffness(tracks.front, at.springs.leftFront, at.springs.rightFront,
                                      at.bars.leftFront, at.bars.rightFront),
                        RollStiffness(tracks.rear, at.springs.leftRear, at.springs.rightRear,
                                      at.bars.leftRear, at.bars.rightRear)};
  Require(std::isfinite(stiffness.front), Text113, kTooStiff);
  Require(std::isfinite(stiffness.rear), Text114, kTooStiff);
  StoreCorners(BarWheelRates, at.bars);
  Store(Text124, stiffness.front);
  Store(Text125, stiffness.rear);
  Show(Text126, stiffness.front / stiffness.Sum() * 100,
       {&Text113, &Text114, &SpringRates.leftFront, &SpringMoves.leftFront});
  Show(Text127, stiffness.rear / stiffness.Sum() * 100);
  return at;
}

void SpringRatesPage::Calculate() {
  const Corners sprung = ReadSprungWeights();
  const Corners wheelRates = SolveStiffness().springs;
  const Corners deflections = wheelRates.Each(sprung, StaticDeflection);
  RequireFinite(Deflections, deflections, SpringRates, SpringMoves);
  StoreCorners(WheelRates, wheelRates);
  const Corners frequencies = wheelRates.Each(sprung, SuspensionFrequency);
  StoreCorners(Frequencies, frequencies);
  StoreOnSprings(sprung, frequencies, deflections);
}

void SpringRatesPage::SolveWheelRates() {
  const Corners sprung = ReadSprungWeights();
  const Corners frequencies = ReadUnsignedCorners(Frequencies);
  const Corners wheelRates = frequencies.Each(sprung, WheelRateForFrequency);
  RequireFinite(WheelRates, wheelRates);
  const Corners deflections = wheelRates.Each(sprung, StaticDeflection);
  RequireFinite(Deflections, deflections, Frequencies);
  StoreCorners(WheelRates, wheelRates);
  StoreOnSprings(sprung, frequencies, deflections);
}

void SpringRatesPage::StoreOnSprings(const Corners& sprung, const Corners& frequencies,
                                     const Corners& deflections) {
  StoreCorners(SprungWeights, sprung);
  StoreCorners(Hertz, frequencies.Each([](double cpm) { return cpm / kSecondsPerMinute; }));
  StoreCorners(Deflections, deflections);
}

void SpringRatesPage::SolveSpringRates() {
  const Corners rates =
      ReadUnsignedCorners(WheelRates).Each(ReadUnsignedCorners(SpringMoves), SpringRateForWheel);
  RequireFinite(SpringRates, rates, SpringMoves);
  StoreCorners(SpringRates, rates);
}

void SpringRatesPage::SolveMovement() {
  const double length1 = Read(Text36);
  const double length2 = Read(Text46);
  Show(Text115, MotionRatio(length1, length2, Read(Text48)), {&Text46});
}

}  // namespace veldox
