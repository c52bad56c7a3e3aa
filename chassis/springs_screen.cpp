#include "chassis/springs_screen.h"

#include <cmath>

namespace veldox {

namespace {

constexpr const char* kHoleTooWide = "must not be larger than the outer diameter of the bar.";

}  // namespace

Form16::Form16(ProgramContext& context)
    : Screen(context, "Form16", "Springs and Bars", "Springs") {}

void Form16::ReadSpringFields() {
  ReadFields({&Text1,  &Text2,  &Text3,  &Text18, &Text4,  &Text22, &Text5,  &Text25,
              &Text6,  &Text8,  &Text26, &Text9,  &Text33, &Text34, &Text35, &Text36,
              &Text10, &Text11, &Text12, &Text13, &Text14, &Text16});
}

CoilSpring Form16::Coil() const {
  const ParameterBlock& b = block();
  return {b.SpringWireDiameter, b.NumberActiveCoils, b.DiameterCoils, b.ModulusofRigidity,
          b.SpringRate};
}

void Form16::MeasureCoil() {
  const ParameterBlock& b = block();
  Show(Text19, CoilOuterDiameter(b.SpringWireDiameter, b.DiameterCoils));
  Show(Text20, CoilInnerDiameter(b.SpringWireDiameter, b.DiameterCoils));
  Show(Text21, CoilSpringIndex(b.SpringWireDiameter, b.DiameterCoils), {&Text1});
  Show(Text23, CoilSolidHeight(b.SpringWireDiameter, b.NumberCoils));
}

void Form16::SolveSpringRate() {
  ReadSpringFields();
  Store(Text4, CoilSpringRate(Coil()), {&Text3, &Text2});
  MeasureCoil();
}

void Form16::SolveWireDiameter() {
  ReadSpringFields();
  Store(Text1, CoilWireDiameter(Coil()), {&Text18});
  MeasureCoil();
}

void Form16::SolveActiveCoils() {
  ReadSpringFields();
  Store(Text2, CoilActiveCoils(Coil()), {&Text3, &Text4});
  MeasureCoil();
}

void Form16::SolveCoilDiameter() {
  ReadSpringFields();
  Store(Text3, CoilDiameter(Coil()), {&Text4, &Text2});
  MeasureCoil();
}

void Form16::SolveModulus() {
  ReadSpringFields();
  Store(Text18, CoilModulusOfRigidity(Coil()), {&Text1});
  MeasureCoil();
}

TorsionBar Form16::Torsion() const {
  const ParameterBlock& b = block();
  return {b.TorsionBarDiameter, b.TorsionBarIntDiameter, b.TorsionBarLength,
          b.TorsionArmLength,   b.ModulusofTorsion,      b.TorsionBarRate};
}

void Form16::SolveTorsionBarRate() {
  ReadSpringFields();
  Require(std::abs(block().TorsionBarIntDiameter) <= std::abs(block().TorsionBarDiameter), Text25,
          kHoleTooWide);
  Store(Text9, TorsionBarRate(Torsion()), {&Text8, &Text6});
}

void Form16::SolveTorsionBarDiameter() {
  ReadSpringFields();
  Store(Text5, TorsionBarOutDiameter(Torsion()), {&Text26});
}

void Form16::SolveLeafSpringRate() {
  ReadSpringFields();
  const ParameterBlock& b = block();
  Show(Text37,
       LeafSpringRate(b.MainLeafLength, b.MainLeafWidth, b.MainLeafThickness, b.NumberLeafs),
       {&Text33});
}

void Form16::ShowSwayBarRate(Field& rate, double outDiameter) {
  const ParameterBlock& b = block();
  Require(std::abs(b.SwayBarIntDiameter) <= std::abs(outDiameter), Text11, kHoleTooWide);
  const SwayBar bar{outDiameter, b.SwayBarIntDiameter, b.SwayBarCenterLength, b.SwayBarArmLength,
                    b.EffectiveArmLength};
  const SwayBarRule rule = Option1.chosen() == 0 ? SwayBarRule::Old : SwayBarRule::New;
  Show(rate, SwayBarRate(bar, rule), {&Text14, &Text12});
}

void Form16::SolveSwayBarRate() {
  ReadSpringFields();
  ShowSwayBarRate(Text15, block().SwayBarOutDiameter);
}

void Form16::SolveSwayBarChange() {
  ReadSpringFields();
  const ParameterBlock& b = block();
  Show(Text17, SwayBarChangePercent(b.SwayBarOutDiameter, b.NewSwayBarOutDiameter), {&Text10});
  ShowSwayBarRate(Text24, b.NewSwayBarOutDiameter);
}

}  // namespace veldox
