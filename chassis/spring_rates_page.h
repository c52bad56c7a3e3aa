#pragma once

#include "chassis/corner_weights_page.h"
#include "chassis/weight_transfer.h"

namespace veldox {

/// What the wheels carry beside the springs: of the page on the center of gravity, and read by the
/// springs' page too.
class UnsprungWeights : public ChassisPart {
 public:
  UnsprungWeights(Screen& screen, Frame& frame) : ChassisPart(screen), frame_(frame) {}

  Corners ReadWeights() { return ReadUnsignedCorners(Weights); }
  /// Ends the command where the car weighs no more than what is unsprung of it.
  void RequireSprung(double carWeight, const Corners& unsprung);

 private:
  Frame& frame_;

 public:
  CornerFields Weights{frame_,
                       {"Text27", "Text28", "Text29", "Text30"},
                       "Unsprung Weight",
                       {"75", "75", "80", "80"},
                       KeyRule::UnsignedReal,
                       Unit::Weight,
                       {Holds(&P::UnsprungWeightLeftFront), Holds(&P::UnsprungWeightRightFront),
                        Holds(&P::UnsprungWeightLeftRear), Holds(&P::UnsprungWeightRightRear)},
                       "Wheel, brake and what else goes up and down with the tire."};
  Table UnsprungTable{frame_,
                      "UnsprungTable",
                      "Unsprung Weights",
                      {Weights.Column("Unsprung Weight")},
                      CornerRows()};
};

/// Springs and sway bars at the wheels: rates, frequencies, roll stiffness.
class SpringRatesPage : public ChassisPart {
 public:
  SpringRatesPage(Screen& screen, ScreenPage& page, CornerWeightsPage& corners,
                  UnsprungWeights& unsprung);

  /// What springs and sway bars do at the wheels, pounds an inch.
  struct AtWheels {
    Corners springs;
    Corners bars;
  };
  /// Works out the roll stiffness of the springs and sway bars as they are entered, and shows it
  /// with the rates of the bars. The wheel rates and frequencies stay as they are shown: they are
  /// what the other commands of the page work with.
  AtWheels SolveStiffness();

 private:
  void Calculate();
  void SolveWheelRates();
  void SolveSpringRates();
  void SolveMovement();

  /// Parses the corners' weights and what of them is unsprung. @return what the springs carry
  /// @throws CommandError where that is nothing
  Corners ReadSprungWeights();
  /// Shows what the springs carry, and what it makes of them.
  void StoreOnSprings(const Corners& sprung, const Corners& frequencies,
                      const Corners& deflections);
  /// Parses a sway bar's rate.
  double ReadBarRate(Field& field);

  ScreenPage& page_;
  CornerWeightsPage& corners_;
  UnsprungWeights& unsprung_;

 public:
  Frame SpringFrame{page_, "SpringFrame", "Springs and Sway Bars at the Wheels", 0};
  CornerFields SprungWeights{SpringFrame,
                             {"Text120", "Text121", "Text122", "Text123"},
                             "Corner Sprung Weight",
                             Unit::Weight,
                             "Weight of the corner less its Unsprung Weight, from the pages "
                             "before."};
  CornerFields SpringRates{SpringFrame,
                           {"Text83", "Text84", "Text85", "Text86"},
                           "Spring Rate",
                           {"800", "800", "600", "600"},
                           KeyRule::UnsignedReal,
                           Unit::SpringRate,
                           {Holds(&P::LeftFrontSpringRate), Holds(&P::RightFrontSpringRate),
                            Holds(&P::LeftRearSpringRate), Holds(&P::RightRearSpringRate)},
                           "Of the spring itself."};
  CornerFields SpringMoves{SpringFrame,
                           {"Text95", "Text96", "Text97", "Text98"},
                           "Spring Movement",
                           {"0.8", "0.8", "0.6", "0.6"},
                           KeyRule::UnsignedReal,
                           Unit::Inches,
                           {Holds(&P::LeftFrontSpringMove).ZeroKeepsText(),
                            Holds(&P::RightFrontSpringMove).ZeroKeepsText(),
                            Holds(&P::LeftRearSpringMove).ZeroKeepsText(),
                            Holds(&P::RightRearSpringMove).ZeroKeepsText()},
                           "How far the spring is pressed when the wheel goes up one inch."};
  CornerFields WheelRates{SpringFrame,
                          {"Text87", "Text88", "Text89", "Text90"},
                          "Spring Wheel Rate",
                          {"512", "512", "216", "216"},
                          KeyRule::UnsignedReal,
                          Unit::SpringRate,
                          {},
                          "Of the spring as the wheel feels it. Calc Spring Rate works with it."};
  CornerFields BarMoves{SpringFrame,
                        {"Text103", "Text104", "Text105", "Text106"},
                        "Sway Bar Movement",
                        {"0.75", "0.75", "0.55", "0.55"},
                        KeyRule::UnsignedReal,
                        Unit::Inches,
                        {Holds(&P::LeftFrontSwayBarMove), Holds(&P::RightFrontSwayBarMove),
                         Holds(&P::LeftRearSwayBarMove), Holds(&P::RightRearSwayBarMove)},
                        "How far the end of the sway bar goes when the wheel goes up one inch."};
  CornerFields BarWheelRates{SpringFrame,
                             {"Text107", "Text108", "Text109", "Text110"},
                             "Sway Bar Wheel Rate",
                             Unit::SpringRate,
                             "Of the sway bar as the wheel feels it."};
  CornerFields Frequencies{SpringFrame,
                           {"Text91", "Text92", "Text93", "Text94"},
                           "Frequency CPM",
                           {"179.6513", "183.5473", "125.4584", "128.6197"},
                           KeyRule::UnsignedReal,
                           Unit::None,
                           {},
                           "Cycles a minute at which the corner swings on its spring. Calc Wheel "
                           "Rate works with it."};
  CornerFields Hertz{SpringFrame,
                     {"Text116", "Text117", "Text118", "Text119"},
                     "Frequency Hz",
                     Unit::None,
                     "The same in cycles a second."};
  CornerFields Deflections{SpringFrame,
                           {"Text99", "Text100", "Text101", "Text102"},
                           "Static Deflection",
                           Unit::Inches,
                           "How far the wheel is pressed up by the weight that its spring "
                           "carries."};
  Table SpringTable{SpringFrame,
                    "SpringTable",
                    "Springs and Sway Bars at the Wheels",
                    {SprungWeights.Column("Sprung Weight"), SpringRates.Column("Spring Rate"),
                     SpringMoves.Column("Spring Movement"), WheelRates.Column("Spring Wheel Rate"),
                     Frequencies.Column("Frequency CPM"), Hertz.Column("Frequency Hz"),
                     Deflections.Column("Static Deflection"), BarMoves.Column("Sway Bar Movement"),
                     BarWheelRates.Column("Sway Bar Wheel Rate")},
                    CornerRows()};
  Command Command24{SpringFrame, "Command24", "Calculate", "Calcualte All Results",
                    Runs(&SpringRatesPage::Calculate)};
  Command Command25{SpringFrame, "Command25", "Calc Wheel Rate",
                    "Calculate Spring Wheels Rates from Suspension Frequency CPM and Corner Sprung "
                    "Weights (Previous Screen)",
                    Runs(&SpringRatesPage::SolveWheelRates)};
  Command Command26{SpringFrame, "Command26", "Calc Spring Rate",
                    "Calculate Spring Rates from Spring Wheel Rates and Spring Movement @ Wheel",
                    Runs(&SpringRatesPage::SolveSpringRates)};

  FrameRow Below{page_, "SpringRow", 0};
  Frame EndFrame{Below, "EndFrame", "Front and Rear", 0};
  Field Text111{EndFrame,
                "Text111",
                "Sway Bar Rate Front",
                "175",
                Entry(KeyRule::UnsignedReal, Unit::SpringRate, Holds(&P::FrontSwayBarRate)),
                "At the end of the bar's arm; 0 without a bar."};
  Field Text112{EndFrame,
                "Text112",
                "Sway Bar Rate Rear",
                "175",
                Entry(KeyRule::UnsignedReal, Unit::SpringRate, Holds(&P::RearSwayBarRate)),
                "At the end of the bar's arm; 0 without a bar."};
  Field Text113{
      EndFrame,
      "Text113",
      "Track Width Front",
      "175",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::FrontTrackWidth).ZeroKeepsText()),
      "From the center of the left front tire to that of the right one."};
  Field Text114{
      EndFrame,
      "Text114",
      "Track Width Rear",
      "175",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::RearTrackWidth).ZeroKeepsText()),
      "From the center of the left rear tire to that of the right one."};

  Frame StiffnessFrame{Below, "StiffnessFrame", "Roll Stiffness, foot pounds a degree", 1};
  Field Text124{StiffnessFrame,
                "Text124",
                "Front",
                "",
                Entry(KeyRule::OutputOnly, Holds(&P::FrontRollStiffness)),
                "What springs and sway bar of the front hold against roll."};
  Field Text126{StiffnessFrame,
                "Text126",
                "% Front",
                "",
                Entry(KeyRule::OutputOnly, Unit::Percent),
                "Share of the front in the roll stiffness."};
  Field Text125{StiffnessFrame,
                "Text125",
                "Rear",
                "",
                Entry(KeyRule::OutputOnly, Holds(&P::RearRollStiffness)),
                "What springs and sway bar of the rear hold against roll."};
  Field Text127{StiffnessFrame,
                "Text127",
                "% Rear",
                "",
                Entry(KeyRule::OutputOnly, Unit::Percent),
                "Share of the rear in the roll stiffness."};

  Frame MovementFrame{Below, "MovementFrame", "Spring Movement of an Arm", 2};
  Field Text36{MovementFrame,
               "Text36",
               "Length 1",
               "12.5",
               Entry(KeyRule::UnsignedReal, Unit::Inches),
               "From the arm's pivot to the spring or shock."};
  Field Text46{MovementFrame,
               "Text46",
               "Length 2",
               "14.0",
               Entry(KeyRule::UnsignedReal, Unit::Inches),
               "From the arm's pivot to the ball joint or wheel."};
  Field Text48{MovementFrame,
               "Text48",
               "Angle",
               "63.5",
               Entry(KeyRule::UnsignedReal, Unit::Degrees),
               "Between arm and spring; 90 for a spring that stands square on the arm."};
  Field Text115{MovementFrame,
                "Text115",
                "Movement",
                "",
                Entry(KeyRule::OutputOnly, Unit::Inches),
                "Of the spring for one inch of the wheel: what the column Spring Movement asks "
                "for."};
  Command Command27{
      MovementFrame, "Command27", "Calc Wheel Mov't",
      "Calculate Motion / Movement Ratio Using Length 1, Length 2 and Angle of Sock / Spring.",
      Runs(&SpringRatesPage::SolveMovement)};
};

}  // namespace veldox
