#pragma once

#include "chassis/springs.h"
#include "core/screen.h"

namespace veldox {

/// Springs and bars: rates of coil springs, torsion bars, leaf springs and sway bars, and the
/// sizes that make them.
class Form16 : public Screen {
 public:
  explicit Form16(ProgramContext& context);

  Control* HelpPlace() override { return &Text38; }

 private:
  void SolveSpringRate();
  void SolveWireDiameter();
  void SolveActiveCoils();
  void SolveCoilDiameter();
  void SolveModulus();
  void SolveTorsionBarRate();
  void SolveTorsionBarDiameter();
  void SolveLeafSpringRate();
  void SolveSwayBarRate();
  void SolveSwayBarChange();

  void ReadSpringFields();
  /// The coil spring as the last command has read it.
  CoilSpring Coil() const;
  /// Shows what follows from wire and coils.
  void MeasureCoil();
  TorsionBar Torsion() const;
  /// Shows the rate of the sway bar with an outer diameter.
  void ShowSwayBarRate(Field& rate, double outDiameter);

 public:
  Frame Frame7{*this, "Frame7", "Coil Springs", 0};
  Field Text1{Frame7, "Text1", "Wire Diameter", "0.5",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::SpringWireDiameter))};
  Field Text2{Frame7,
              "Text2",
              "Number Of Active Coils",
              "10.0",
              Entry(KeyRule::UnsignedReal, Holds(&P::NumberActiveCoils)),
              "The coils that move: all of them, without those that are closed at the ends."};
  Field Text3{Frame7,
              "Text3",
              "Mean Coil Diameter",
              "4.0",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::DiameterCoils)),
              "Diameter of the Coils, from wire center to wire center."};
  Field Text18{Frame7,
               "Text18",
               "Modulus of Regidity",
               "12000000",
               Entry(KeyRule::UnsignedReal, Unit::Modulus, Holds(&P::ModulusofRigidity)),
               "Of the spring's steel: 11.5 to 12 million."};
  Field Text4{Frame7, "Text4", "Spring Rate", "146.48",
              Entry(KeyRule::UnsignedReal, Unit::SpringRate, Holds(&P::SpringRate))};
  Field Text22{Frame7,
               "Text22",
               "Number Of Coils",
               "12.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::NumberCoils)),
               "All coils, the closed ones at the ends among them: they make the Solid Height."};
  Field Text19{Frame7, "Text19", "Outer Diameter of  Coils", "4.5",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text20{Frame7, "Text20", "Inter Diameter of  Coils", "3.5",
               Entry(KeyRule::OutputOnly, Unit::Length)};
  Field Text21{Frame7,
               "Text21",
               "Spring Index",
               "8.0",
               KeyRule::OutputOnly,
               "Coil diameter over wire diameter."};
  Field Text23{Frame7,
               "Text23",
               "Solid Height",
               "6.0",
               Entry(KeyRule::OutputOnly, Unit::Length),
               "Height of the spring when its coils touch."};
  Command Command1{
      Frame7, "Command1", " Coil &Spring Rate",
      "Calculate Coil Spring Rate from Wire Diameter, Number of Active Coils, Modulus of "
      "Rigidity, and the Diameter of the Coils (from wire center to wire center).",
      &Form16::SolveSpringRate};
  Command Command6{
      Frame7, "Command6", " W&ire Diameter",
      "Calculate Wire Diameter from Coil Spring Rate, Number of Active Coils, Modulus of "
      "Rigidity, and the Diameter of the Coils (from wire center to wire center).",
      &Form16::SolveWireDiameter};
  Command Command7{
      Frame7, "Command7", " &Number of Coils",
      "Calculate Number of Active Coils needed from Coil Spring Rate, Wire Diameter, Modulus of "
      "Rigidity, and the Diameter of the Coils (from wire center to wire center).",
      &Form16::SolveActiveCoils};
  Command Command8{
      Frame7, "Command8", "Coil Diameter",
      "Calculate Diameter of the Coils (from wire center to wire center) from Coil Spring Rate, "
      "Wire Diameter, Number of Active Coils, and Modulus of Rigidity.",
      &Form16::SolveCoilDiameter};
  Command Command9{
      Frame7, "Command9", "&Modulus Regidity",
      "Calculate Modulus of Rigidity from Coil Spring Rate, Wire Diameter, Number of Active "
      "Coils, and the Diameter of the Coils (from wire center to wire center).",
      &Form16::SolveModulus};

  Frame Frame1{*this, "Frame1", "Torsion Bar", 1};
  Field Text5{Frame1, "Text5", "Bar Diameter", "0.88",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TorsionBarDiameter))};
  Field Text25{Frame1,
               "Text25",
               "Int Diameter",
               "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TorsionBarIntDiameter)),
               "Zero for a solid bar."};
  Field Text6{Frame1, "Text6", "Bar Length", "35.8",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TorsionBarLength))};
  Field Text8{Frame1, "Text8", "Arm Length", "13.5",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::TorsionArmLength))};
  Field Text26{Frame1,
               "Text26",
               "Modulus of Bar",
               "1178000",
               Entry(KeyRule::UnsignedReal, Unit::Modulus, Holds(&P::ModulusofTorsion)),
               "pi / 32 of the Modulus of Rigidity."};
  Field Text9{Frame1,
              "Text9",
              "Bar Rate lb/inch",
              "108.27",
              Entry(KeyRule::UnsignedReal, Holds(&P::TorsionBarRate)),
              "Rate at the end of the arm."};
  Command Command2{Frame1, "Command2", "&Torsion Bar",
                   "Calculate Torsion Bar Rate from Bar Diameter, Bar Int Diameter, Length of "
                   "Bar, Arm Length and Modulus Torsion.",
                   &Form16::SolveTorsionBarRate};
  Command Command10{Frame1, "Command10", "Tor &Bar Diameter",
                    "Calculate Bar (Outer) Diameter from Torsion Bar Rate, Torsion Bar Int "
                    "Diameter, Length of Bar, Arm Length and Modulus Torsion.",
                    &Form16::SolveTorsionBarDiameter};

  Frame Frame3{*this, "Frame3", "Leaf Spring", 1};
  Field Text33{Frame3, "Text33", "Main Leaf Length", "48.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::MainLeafLength))};
  Field Text34{Frame3, "Text34", "Main Leaf Width", "2.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::MainLeafWidth))};
  Field Text35{Frame3, "Text35", "Main Leaf Thickness", "0.25",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::MainLeafThickness))};
  Field Text36{Frame3, "Text36", "Number of Leafs", "5",
               Entry(KeyRule::UnsignedReal, Holds(&P::NumberLeafs))};
  Field Text37{Frame3, "Text37", "Leaf Spring Rate", "117.73",
               Entry(KeyRule::OutputOnly, Unit::SpringRate)};
  Command Command5{Frame3, "Command5", "&Leaf Spring",
                   "Calculate Leaf Spring Rate from Main Leaf Length, Main Leaf Width, Main Leaf "
                   "Thickness, and number of Leafs.",
                   &Form16::SolveLeafSpringRate};

  Frame Frame2{*this, "Frame2", "Sway Bar", 2};
  Field Text10{Frame2, "Text10", "Out Diameter", "0.875",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::SwayBarOutDiameter))};
  Field Text11{Frame2,
               "Text11",
               "Int Diameter",
               "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::SwayBarIntDiameter)),
               "Zero for a solid bar."};
  Field Text12{Frame2,
               "Text12",
               "Bar Center Length",
               "40.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::SwayBarCenterLength)),
               "The part between the arms, which is twisted."};
  Field Text13{Frame2,
               "Text13",
               "Arm Length",
               "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::SwayBarArmLength)),
               "Length of the arm itself, which bends; zero for arms that do not."};
  Field Text14{Frame2,
               "Text14",
               "Effective Arm Length",
               "9.0",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::EffectiveArmLength)),
               "From the end of the arm to the center part, square to it."};
  OptionGroup Option1{Frame2,
                      "Option1",
                      "Arm bending",
                      {{0, "Old", "The bending of the arms counts by the square of their length."},
                       {1, "New", "The bending of the arms counts by the cube of their length."}},
                      1,
                      2};
  Field Text15{Frame2, "Text15", "Bar Rate lb/inch", "213.148", KeyRule::OutputOnly};
  Field Text16{Frame2, "Text16", "New Out Diameter", "0.975",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::NewSwayBarOutDiameter))};
  Field Text17{Frame2,
               "Text17",
               "Percent Change",
               "54.16",
               Entry(KeyRule::OutputOnly, Unit::Percent),
               "What the new Out Diameter adds to the rate of a solid bar."};
  Field Text24{Frame2,
               "Text24",
               "New Rate",
               "328.6",
               Entry(KeyRule::OutputOnly, Unit::SpringRate),
               "Bar rate with the new Out Diameter, all else as it is."};
  Command Command3{Frame2, "Command3", "S&way Bar",
                   "Calculate Sway Bar Rate from Bar Outer Diameter, Bar Inter Diameter (If bar is "
                   "solid use zero), Length of Center Bar, Arm Length, and Effective Arm Length.",
                   &Form16::SolveSwayBarRate};
  Command Command4{Frame2, "Command4", "Swa&y Change",
                   "Calculate Sway Bar Rate Change from change in Bar Outer Diameter.",
                   &Form16::SolveSwayBarChange};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
