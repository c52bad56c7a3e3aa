#pragma once

#include "chassis/corner_fields.h"
#include "core/frame_row.h"
#include "core/panel.h"
#include "graph/drawing.h"

namespace veldox {

/// What stands on each tire, in pounds and in percent, and ballast.
class CornerWeightsPage : public ChassisPart {
 public:
  CornerWeightsPage(Screen& screen, ScreenPage& page);

 private:
  void WeighByPercents();
  void FindPercents();
  void WeighByTargets();
  void ReportBallast();
  void PlaceBallast();
  void PutBallastOnCorners();

  /// Refuses weights of which no percentages can be computed, before anything is changed.
  void RequireShares(const Corners& weights);
  /// Stores the corners' percentages and what follows from the corners.
  void StorePercents(const Corners& weights);
  /// Stores the sums of front, rear, left, right and diagonal, and their percentages.
  void StoreSides(const Corners& weights);
  /// The car's weight as it stands, which may not be negative.
  double ReadCarWeight();
  /// Parses ballast, its place and the chassis. @return what parts of it stand where
  BallastShare ReadBallast();
  /// Draws the car as its weights stand now, or nothing where they are none.
  void DrawCar();
  /// False where the corners' weights are no car's. Asks nothing.
  bool TakeWeights(Corners& weights) const;

  ScreenPage& page_;

 public:
  Frame WeightFrame{page_, "WeightFrame", "Corners", 0};
  Field Text9{WeightFrame,
              "Text9",
              "Car Weight",
              "2350",
              Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::CarWeight)),
              "The whole car. The button Percent makes it the sum of the four corners."};
  CornerFields Weights{WeightFrame,
                       {"Text1", "Text2", "Text3", "Text4"},
                       "Weight",
                       {"634.5", "611", "564", "540.5"},
                       KeyRule::UnsignedReal,
                       Unit::Weight,
                       {Holds(&P::WeightLeftFront), Holds(&P::WeightRightFront),
                        Holds(&P::WeightLeftRear), Holds(&P::WeightRightRear)},
                       "What the scale under the tire reads: the button Percent works with it."};
  CornerFields Percents{
      WeightFrame,
      {"Text5", "Text6", "Text7", "Text8"},
      "Percent",
      {"27", "26", "24", "23"},
      KeyRule::UnsignedReal,
      Unit::Percent,
      {Holds(&P::PercentWeightLeftFront), Holds(&P::PercentWeightRightFront),
       Holds(&P::PercentWeightLeftRear), Holds(&P::PercentWeightRightRear)},
      "Share of the Car Weight: the button Weight works with it. The four add up to 100."};
  Table WeightTable{WeightFrame,
                    "WeightTable",
                    "Corners",
                    {Weights.Column("Weight"), Percents.Column("Percent")},
                    CornerRows()};
  Command Command6{
      WeightFrame, "Command6", "&Weight",
      "From corner percentages and vehicle weight -- Calculate all other percentages and weights.",
      Runs(&CornerWeightsPage::WeighByPercents)};
  Command Command7{WeightFrame, "Command7", "&Percent",
                   "From Weight on Each Corner -- Calculate all other percentages and weights.",
                   Runs(&CornerWeightsPage::FindPercents)};

  Frame SideFrame{page_, "SideFrame", "Ends, Sides and Diagonals", 0};
  Field Text10{SideFrame,
               "Text10",
               "Weight Front",
               "1245.5",
               Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::WeightFront)),
               "Both front tires, the car level."};
  Field Text11{SideFrame,
               "Text11",
               "Weight Rear",
               "1104.5",
               Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::WeightRear)),
               "Both rear tires, the car level."};
  Field Text12{SideFrame,
               "Text12",
               "Weight Left",
               "1198.5",
               Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::WeightLeft)),
               "Both left tires."};
  Field Text13{SideFrame,
               "Text13",
               "Weight Right",
               "1151.5",
               Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::WeightRight)),
               "Both right tires."};
  Field Text18{SideFrame,
               "Text18",
               "Cross Weight",
               "1175",
               Entry(KeyRule::OutputOnly, Unit::Weight, Holds(&P::CrossWeight)),
               "Right front and left rear tires together."};
  Field Text14{SideFrame,
               "Text14",
               "Percent Front",
               "53",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentWeightFront)),
               "Share of the Car Weight on the front tires."};
  Field Text15{SideFrame,
               "Text15",
               "Percent Rear",
               "47",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentWeightRear)),
               "Share of the Car Weight on the rear tires, as it is or as the buttons Weight and "
               "Place Ballast are to have it."};
  Field Text16{SideFrame,
               "Text16",
               "Percent Left",
               "51",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentWeightLeft)),
               "Share of the Car Weight on the left tires, as it is or as it is to be."};
  Field Text17{SideFrame,
               "Text17",
               "Percent Right",
               "49",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentWeightRight)),
               "Share of the Car Weight on the right tires, as it is or as Place Ballast is to "
               "have it."};
  Field Text19{SideFrame,
               "Text19",
               "Percent Cross Weight",
               "50",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::PercentCrossWeight)),
               "Share of the Car Weight on the right front and left rear tires, as it is or as it "
               "is to be."};
  Field Text128{SideFrame,
                "Text128",
                "Percent Opposite",
                "50",
                Entry(KeyRule::OutputOnly, Unit::Percent),
                "What the other diagonal has: left front and right rear tires."};
  Table SideTable{
      SideFrame,
      "SideTable",
      "Ends, Sides and Diagonals",
      {{"Weight", {&Text10, &Text11, &Text12, &Text13, &Text18, nullptr}},
       {"Percent", {&Text14, &Text15, &Text16, &Text17, &Text19, &Text128}}},
      {"On", {"Front", "Rear", "Left", "Right", "Cross (RF + LR)", "Opposite (LF + RR)"}}};
  Command Command9{SideFrame, "Command9", "W&eight",
                   "From Desired Left, Rear, and Cross Percentages and Total Vehicle Weight -- "
                   "Calculate all other percentages and weights.",
                   Runs(&CornerWeightsPage::WeighByTargets)};

  Frame CarFrame{page_, "CarFrame", "The Car from Above", 1};
  Drawing Car{CarFrame, "Car", "The weights of the four corners draw the car here."};

  FrameRow BallastRow{page_, "BallastRow", 1};
  Frame ChassisFrame{BallastRow, "ChassisFrame", "Chassis", 0};
  Field Text20{ChassisFrame,
               "Text20",
               "Wheel Base",
               "108",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::WheelBase).ZeroKeepsText()),
               "From the center of the front wheels to that of the rear wheels."};
  Field Text21{ChassisFrame,
               "Text21",
               "Track Width",
               "60",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::TrackWidth).ZeroKeepsText()),
               "From the center of the left tires to that of the right tires."};
  Frame BallastFrame{BallastRow, "BallastFrame", "Ballast", 1};
  Field Text39{BallastFrame,
               "Text39",
               "Ballast",
               "100",
               Entry(KeyRule::UnsignedReal, Unit::Weight, Holds(&P::Ballast)),
               "What is added to the car."};
  Field Text40{BallastFrame,
               "Text40",
               "Ballast X",
               "27",
               Entry(KeyRule::SignedReal, Unit::Inches, Holds(&P::BallastX)),
               "How far the ballast lies ahead of the rear axle; negative for behind it."};
  Field Text41{BallastFrame,
               "Text41",
               "Ballast Y",
               "30",
               Entry(KeyRule::SignedReal, Unit::Inches, Holds(&P::BallastY)),
               "How far the ballast lies to the left of the right tires' centers."};
  Command Command11{BallastFrame, "Command11", "Add &Ballast",
                    "Calculate Amount of Ballast on each corner from Wheelbase, Track Width, "
                    "Ballast and X and Y position of Ballast.",
                    Runs(&CornerWeightsPage::ReportBallast)};
  Command Command12{BallastFrame, "Command12", "&Place Ballast",
                    "Calculate X and Y position to Place Ballast from Wheelbase, Track Width, Rear "
                    "and Right Percent.",
                    Runs(&CornerWeightsPage::PlaceBallast)};
  Command Command5{BallastFrame, "Command5", "Ballast &to Corners",
                   "Add the ballast's share to the Weight on Each Corner -- Calculate all other "
                   "percentages and weights with it.",
                   Runs(&CornerWeightsPage::PutBallastOnCorners)};
};

}  // namespace veldox
