#pragma once

#include "chassis/spring_rates_page.h"
#include "core/field_copy.h"

namespace veldox {

/// Center of gravity, roll-over angles, and what cornering, accelerating and braking move from tire
/// to tire.
class WeightTransferPage : public ChassisPart {
 public:
  WeightTransferPage(Screen& screen, ScreenPage& page, CornerWeightsPage& corners,
                     UnsprungWeights& unsprung, SpringRatesPage& springs);

 private:
  void FindCenterByGround() { FindCenter(LiftRule::Ground); }
  void FindCenterByHub() { FindCenter(LiftRule::Hub); }
  void FindCenter(LiftRule rule);
  void TransferWeight();
  void TransferLaterally(const Corners& unsprung, const SpringRatesPage::AtWheels& springs);
  void TransferLengthwise(const Corners& unsprung);

  ScreenPage& page_;
  CornerWeightsPage& corners_;
  UnsprungWeights& unsprung_;
  SpringRatesPage& springs_;

 public:
  Frame LiftFrame{page_, "LiftFrame", "Rear Raised on the Scales", 0};
  FieldTwin CarWeight{LiftFrame, corners_.Text9};
  FieldTwin WeightFront{LiftFrame, corners_.Text10, "Weight Front"};
  FieldTwin WeightRight{LiftFrame, corners_.Text13, "Weight Right"};
  FieldTwin WheelBase{LiftFrame, corners_.Text20};
  FieldTwin TrackWidth{LiftFrame, corners_.Text21};
  Field Text22{
      LiftFrame,
      "Text22",
      "Raised Weight Front",
      "1278",
      Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::RaisedWeightFront).ZeroKeepsText()),
      "Both front tires while the rear is raised: more than Weight Front."};
  Field Text23{
      LiftFrame,
      "Text23",
      "Height Front Wheel Hub",
      "12",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::HeightFrontWheelHub).ZeroKeepsText()),
      "Center of the front wheels above the ground."};
  Field Text24{
      LiftFrame,
      "Text24",
      "Height Rear Wheel",
      "20",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::HeightRearWheel).ZeroKeepsText()),
      "How far the rear is raised. CG / Roll Angle takes all of it, CG/Roll Angle 3.29.0 what is "
      "above the hub height."};
  Command Command2{
      LiftFrame, "Command2", "CG / Roll Angle",
      "Calculate Center of Gravity CG (Horizontal, Vertical, and Lateral), RollOver Angles using "
      "Wheelbase, Front Weight / Front Weight when rear is raised, Height rear is raised, and "
      "Height Front Hub / Weight Right, Track Width.",
      Runs(&WeightTransferPage::FindCenterByGround)};
  Command Command4{
      LiftFrame, "Command4", "CG/Roll Angle 3.29.0",
      "Calculate Center of Gravity CG (Horizontal, Vertical 3.29.0, and Lateral), RollOver Angles "
      "3.29.0 using Wheelbase, Front Weight / Front Weight when rear is raised, Height rear is "
      "raised, and Height Front Hub / Weight Right, Track Width.",
      Runs(&WeightTransferPage::FindCenterByHub)};

  Frame CenterFrame{page_, "CenterFrame", "CG and Roll Over Angles", 1};
  Field Text25{CenterFrame,
               "Text25",
               "Horizontal CG",
               "50.76",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::HorizontalCG).ZeroKeepsText()),
               "Behind the center of the front wheels."};
  Field Text26{CenterFrame,
               "Text26",
               "Vertical CG",
               "20.06553",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::VerticalCG).ZeroKeepsText()),
               "Above the ground. Weight Transfer works with it."};
  Field Text35_0{CenterFrame,
                 "Text35(0)",
                 "Lateral CG",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Inches, Holds(&P::LateralCG)),
                 "To the left of the right tires' centers."};
  Field Text35_1{CenterFrame,
                 "Text35(1)",
                 "Sprung Weight",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Weight, Holds(&P::SprungWeight)),
                 "Car Weight less all Unsprung Weight."};
  Field Text35_2{CenterFrame,
                 "Text35(2)",
                 "Sprung Horizontal CG",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Inches, Holds(&P::SprungHorizontalCG)),
                 "Of what rests on the springs, behind the center of the front wheels."};
  Field Text35_3{CenterFrame,
                 "Text35(3)",
                 "Sprung Lateral CG",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Inches, Holds(&P::SprungLateralCG)),
                 "Of what rests on the springs, to the left of the right tires' centers."};
  Field Text35_4{CenterFrame,
                 "Text35(4)",
                 "Roll Over Left",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Degrees),
                 "Slope at which a car with its weight in the middle tips over to the left."};
  Field Text35_5{CenterFrame,
                 "Text35(5)",
                 "Roll Over Right",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Degrees),
                 "Slope at which a car with its weight in the middle tips over to the right."};
  Field Text35_6{CenterFrame,
                 "Text35(6)",
                 "Roll Over Front",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Degrees),
                 "Slope at which a car with its weight in the middle tips over its front."};
  Field Text35_7{CenterFrame,
                 "Text35(7)",
                 "Roll Over Rear",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Degrees),
                 "Slope at which a car with its weight in the middle tips over its rear."};

  Frame LateralFrame{page_, "LateralFrame", "Weight Transfer", 2};
  Field Text31{LateralFrame,
               "Text31",
               "Lateral G's",
               "1.54321",
               Entry(KeyRule::SignedReal, Holds(&P::SkidPadGs)),
               "Lateral acceleration: + left - right."};
  Field Text32{LateralFrame,
               "Text32",
               "Longitudinal G's",
               "0.5",
               Entry(KeyRule::SignedReal, Holds(&P::LongAcelGs).ShownAtOpening().ZeroKeepsText()),
               "Longitudinal acceleration: + acceleration - braking."};
  Field Text33{LateralFrame,
               "Text33",
               "Front Roll Center Height",
               "2",
               Entry(KeyRule::SignedReal, Unit::Inches, Holds(&P::FrontRollCenterHeight)),
               "Above the ground; negative for one below it."};
  Field Text34{LateralFrame,
               "Text34",
               "Rear Roll Center Height",
               "9",
               Entry(KeyRule::SignedReal, Unit::Inches, Holds(&P::RearRollCenterHeight)),
               "Above the ground; negative for one below it."};
  FieldTwin PercentRear{LateralFrame, corners_.Text15, "Percent Weight Rear"};
  FieldTwin TrackFront{LateralFrame, springs_.Text113};
  FieldTwin TrackRear{LateralFrame, springs_.Text114};
  Command Command10{
      LateralFrame, "Command10", "Weight T&ransfer Lateral / Longitudinal",
      "Calculate Cornering/Lateral Weight Transfer using Lateral acceleration (+ left - Right) in "
      "G's, Longitudinal acceleration (+ Acceleration - Braking) in G's.",
      Runs(&WeightTransferPage::TransferWeight)};

  Frame RollFrame{page_, "RollFrame", "Lateral: Roll", 2};
  Field Text37{RollFrame,
               "Text37",
               "Weight Transfer",
               "",
               Entry(KeyRule::OutputOnly, Unit::Weight, Holds(&P::WeightTransfer)),
               "What the car as one rigid body moves from side to side."};
  Field Text35_8{RollFrame,
                 "Text35(8)",
                 "Roll Axis Height",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Inches, Holds(&P::RollAxisHeight)),
                 "At the center of gravity, above the ground."};
  Field Text35_9{RollFrame,
                 "Text35(9)",
                 "Roll Axis to CG",
                 "",
                 Entry(KeyRule::OutputOnly, Unit::Inches, Holds(&P::RollAxisToCG)),
                 "The arm by which the car rolls."};
  Field Text35_10{RollFrame,
                  "Text35(10)",
                  "Roll Moment",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Torque, Holds(&P::RollMoment)),
                  "What rolls the car."};
  Field Text35_11{RollFrame,
                  "Text35(11)",
                  "Roll Angle",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Degrees, Holds(&P::RollAngle)),
                  "What roll moment and roll stiffness make."};

  Frame EndFrame{page_, "TransferFrame", "Lateral: Transfer of Each End", 3};
  Field Text35_12{EndFrame,
                  "Text35(12)",
                  "Rolling",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What roll moves at the front, by the share of the front in the roll stiffness."};
  Field Text35_13{EndFrame,
                  "Text35(13)",
                  "Rolling",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What roll moves at the rear, by the share of the rear in the roll stiffness."};
  Field Text35_14{EndFrame,
                  "Text35(14)",
                  "Non-Rolling",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What goes through the front roll center without roll."};
  Field Text35_15{EndFrame,
                  "Text35(15)",
                  "Non-Rolling",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What goes through the rear roll center without roll."};
  Field Text35_16{EndFrame,
                  "Text35(16)",
                  "Total",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "Rolling and non-rolling together."};
  Field Text35_17{EndFrame,
                  "Text35(17)",
                  "Total",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "Rolling and non-rolling together."};
  Table EndTable{EndFrame,
                 "EndTable",
                 "Lateral: Transfer of Each End",
                 {{"Rolling", {&Text35_12, &Text35_13}},
                  {"Non-Rolling", {&Text35_14, &Text35_15}},
                  {"Total", {&Text35_16, &Text35_17}}},
                 {"End", {"Front", "Rear"}}};

  Frame TravelFrame{page_, "TravelFrame", "Lateral: Wheel Travel from Roll", 3};
  CornerFields Travel{TravelFrame,
                      {"Text35(18)", "Text35(19)", "Text35(20)", "Text35(21)"},
                      "Wheel Travel",
                      Unit::Inches,
                      "Half the total transfer of the end over the rates of spring and sway bar at "
                      "the wheel; the right side goes the other way."};
  CornerFields Deflection{TravelFrame,
                          {"Text35(22)", "Text35(23)", "Text35(24)", "Text35(25)"},
                          "Deflection",
                          Unit::Inches,
                          "What the roll angle makes at the wheel, by the track width of the end; "
                          "the right side goes the other way."};
  Table TravelTable{TravelFrame,
                    "TravelTable",
                    "Lateral: Wheel Travel from Roll",
                    {Travel.Column("Wheel Travel"), Deflection.Column("Deflection")},
                    CornerRows()};

  Frame LengthFrame{page_, "LengthFrame", "Longitudinal: Dynamic Load", 3};
  Field Text35_26{LengthFrame,
                  "Text35(26)",
                  "Whole Car",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What goes from the front to the rear."};
  Field Text35_27{LengthFrame,
                  "Text35(27)",
                  "Whole Car",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What the front carries then."};
  Field Text35_28{
      LengthFrame,         "Text35(28)", "Whole Car", "", Entry(KeyRule::OutputOnly, Unit::Percent),
      "The front's share."};
  Field Text35_29{LengthFrame,
                  "Text35(29)",
                  "Whole Car",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What the rear carries then."};
  Field Text35_30{
      LengthFrame,        "Text35(30)", "Whole Car", "", Entry(KeyRule::OutputOnly, Unit::Percent),
      "The rear's share."};
  Field Text35_31{LengthFrame,
                  "Text35(31)",
                  "Sprung Weight",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What goes from the front to the rear."};
  Field Text35_32{LengthFrame,
                  "Text35(32)",
                  "Sprung Weight",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What the front carries then."};
  Field Text35_33{LengthFrame,
                  "Text35(33)",
                  "Sprung Weight",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Percent),
                  "The front's share."};
  Field Text35_34{LengthFrame,
                  "Text35(34)",
                  "Sprung Weight",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Weight),
                  "What the rear carries then."};
  Field Text35_35{LengthFrame,
                  "Text35(35)",
                  "Sprung Weight",
                  "",
                  Entry(KeyRule::OutputOnly, Unit::Percent),
                  "The rear's share."};
  Table LengthTable{
      LengthFrame,
      "LengthTable",
      "Longitudinal: Dynamic Load",
      {{"Whole Car", {&Text35_26, &Text35_27, &Text35_28, &Text35_29, &Text35_30}},
       {"Sprung Weight", {&Text35_31, &Text35_32, &Text35_33, &Text35_34, &Text35_35}}},
      {"Load", {"Shift, lb", "Front, lb", "Front, %", "Rear, lb", "Rear, %"}}};
};

}  // namespace veldox
