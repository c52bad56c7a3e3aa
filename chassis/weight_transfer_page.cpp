#include "chassis/weight_transfer_page.h"

namespace veldox {

namespace {

constexpr const char* kNoCenter =
    "makes a center of gravity that is not above the ground. Please check it, Weight Front and the "
    "heights.";

}  // namespace

WeightTransferPage::WeightTransferPage(Screen& screen, ScreenPage& page, CornerWeightsPage& corners,
                                       UnsprungWeights& unsprung, SpringRatesPage& springs)
    : ChassisPart(screen), page_(page), corners_(corners), unsprung_(unsprung), springs_(springs) {}

void WeightTransferPage::FindCenter(LiftRule rule) {
  CornerWeightsPage& c = corners_;
  ReadFields({&c.Text9, &c.Text10, &c.Text20, &Text23, &Text24, &Text22, &c.Text21, &c.Text13});
  const Corners unsprung = unsprung_.ReadWeights();
  const ParameterBlock& b = block();
  RequireNotNegative(Text23, b.HeightFrontWheelHub);
  RequireNotNegative(Text24, b.HeightRearWheel);
  const bool isUnderHub = rule == LiftRule::Hub && b.HeightRearWheel <= b.HeightFrontWheelHub;
  Require(!isUnderHub, Text24, "must be more than Height Front Wheel Hub.");
  RequireNotNegative(c.Text9, b.CarWeight);
  RequireNotNegative(c.Text10, b.WeightFront);
  RequireNotNegative(c.Text13, b.WeightRight);
  RequirePositive(Text22, b.RaisedWeightFront);
  const double height =
      VerticalCenter({b.CarWeight, b.WeightFront, b.WheelBase, b.HeightFrontWheelHub,
                      b.HeightRearWheel, b.RaisedWeightFront},
                     rule);
  RequireResult(Text26, height, {&c.Text9, &Text24});
  Require(height > 0, Text22, kNoCenter);
  Store(Text25, HorizontalCenter(b.CarWeight, b.WeightFront, b.WheelBase), {&c.Text9});
  Store(Text26, height);
  Store(Text35_0, LateralCenter(b.CarWeight, b.WeightRight, b.TrackWidth), {&c.Text9});
  unsprung_.RequireSprung(b.CarWeight, unsprung);
  const SprungMass sprung =
      SprungMassOf(b.CarWeight, b.WeightFront, b.WeightRight, unsprung, b.WheelBase, b.TrackWidth);
  Store(Text35_1, sprung.weight);
  Store(Text35_2, sprung.horizontalCenter);
  Store(Text35_3, sprung.lateralCenter);
  const double across = RollOverAngle(b.TrackWidth, b.VerticalCG);
  const double along = RollOverAngle(b.WheelBase, b.VerticalCG);
  Show(Text35_4, across);
  Show(Text35_5, across);
  Show(Text35_6, along);
  Show(Text35_7, along);
}

void WeightTransferPage::TransferWeight() {
  const SpringRatesPage::AtWheels springs = springs_.SolveStiffness();
  ReadFields({&corners_.Text9});
  const Corners unsprung = unsprung_.ReadWeights();
  RequirePositive(corners_.Text9, block().CarWeight);
  unsprung_.RequireSprung(block().CarWeight, unsprung);
  TransferLaterally(unsprung, springs);
  TransferLengthwise(unsprung);
}

void WeightTransferPage::TransferLaterally(const Corners& unsprung,
                                           const SpringRatesPage::AtWheels& springs) {
  CornerWeightsPage& c = corners_;
  ReadFields(
      {&Text31, &Text26, &Text33, &Text34, &Text25, &c.Text10, &c.Text11, &c.Text15, &c.Text21});
  const ParameterBlock& b = block();
  const Axles tracks{b.FrontTrackWidth, b.RearTrackWidth};
  const RollTransfer roll =
      RollTransferOf({b.SkidPadGs,
                      b.CarWeight,
                      b.VerticalCG,
                      b.TrackWidth,
                      b.PercentWeightRear,
                      {b.WeightFront - unsprung.Front(), b.WeightRear - unsprung.Rear()},
                      {b.FrontRollCenterHeight, b.RearRollCenterHeight},
                      tracks,
                      {b.FrontRollStiffness, b.RearRollStiffness}});
  // The first that is none tells what it comes from.
  RequireFinite(Text35_8, roll.rollAxisHeight);
  RequireFinite(Text35_9, roll.rollAxisToCenter);
  RequireFinite(Text37, roll.weightTransfer, {&c.Text21});
  RequireFinite(Text35_10, roll.rollMoment);
  RequireFinite(Text35_11, roll.rollAngle);
  RequireFinite(Text35_12, roll.rolling.front, {&springs_.Text113});
  RequireFinite(Text35_13, roll.rolling.rear, {&springs_.Text114});
  RequireFinite(Text35_14, roll.nonRolling.front, {&springs_.Text113});
  RequireFinite(Text35_15, roll.nonRolling.rear, {&springs_.Text114});
  const Corners travel = WheelTravel(
      roll.total,
      springs.springs.Each(springs.bars, [](double spring, double bar) { return spring + bar; }));
  RequireFinite(Travel, travel, springs_.SpringRates, springs_.SpringMoves);
  Store(Text35_8, roll.rollAxisHeight);
  Store(Text35_9, roll.rollAxisToCenter);
  Store(Text37, roll.weightTransfer);
  Store(Text35_10, roll.rollMoment);
  Store(Text35_11, roll.rollAngle);
  Show(Text35_12, roll.rolling.front);
  Show(Text35_13, roll.rolling.rear);
  Show(Text35_14, roll.nonRolling.front);
  Show(Text35_15, roll.nonRolling.rear);
  Show(Text35_16, roll.total.front);
  Show(Text35_17, roll.total.rear);
  StoreCorners(Travel, travel);
  StoreCorners(Deflection, RollDeflection(tracks, roll.rollAngle));
}

void WeightTransferPage::TransferLengthwise(const Corners& unsprung) {
  CornerWeightsPage& c = corners_;
  ReadFields({&Text32, &c.Text20});
  const ParameterBlock& b = block();
  const LengthwiseTransfer whole =
      LengthwiseTransferOf(b.LongAcelGs, b.CarWeight, b.WeightFront, b.VerticalCG, b.WheelBase);
  RequireFinite(Text35_26, whole.shift, {&c.Text20});
  Show(Text35_26, whole.shift, {&c.Text9});
  Show(Text35_27, whole.front);
  Show(Text35_28, whole.frontPercent);
  Show(Text35_29, whole.rear);
  Show(Text35_30, whole.rearPercent);
  const double sprungWeight = b.CarWeight - unsprung.Sum();
  const LengthwiseTransfer sprung = LengthwiseTransferOf(
      b.LongAcelGs, sprungWeight, b.WeightFront - unsprung.Front(), b.VerticalCG, b.WheelBase);
  Store(Text35_1, sprungWeight);
  Show(Text35_31, sprung.shift);
  Show(Text35_32, sprung.front);
  Show(Text35_33, sprung.frontPercent);
  Show(Text35_34, sprung.rear);
  Show(Text35_35, sprung.rearPercent);
}

}  // namespace veldox
