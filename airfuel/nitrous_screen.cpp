#include "airfuel/nitrous_screen.h"

namespace veldox {

namespace {

constexpr const char* kNoRoot = "must not be negative for this command.";

}  // namespace

Form17::Form17(ProgramContext& context)
    : Screen(context, "Form17", "Nitrous Jet Size / HP", "Nitrous") {}

void Form17::ReadNitrousInputs() {
  ReadFields({&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text12, &Text13, &Text15});
}

void Form17::ShowRange(Field& field, const AdviceRange& range) {
  RequireResult(field, range.lower, {&Text5});
  RequireResult(field, range.upper, {&Text5});
  ShowText(field,
           FormatValue<".0">(range.lower, mark()) + " - " + FormatValue<".0">(range.upper, mark()));
}

void Form17::NitrousAdvice(double hp) {
  const ParameterBlock& b = block();
  const double perEight = HorsepowerPerEight(hp, b.NumberofCylinders);
  ShowRange(Text11, TimingRetard(Baseline(), perEight));
  ShowRange(Text16, PlugHeatRange(Baseline(), perEight));
  Require(b.NitrousPressure >= 0, Text2, kNoRoot);
  Require(b.FuelPressure >= 0, Text1, kNoRoot);
  const double baseJet =
      BaseFuelJet(Baseline(), b.NitrousPressure, b.NitrousJetSize, b.FuelPressure);
  Require(b.SpecificGravityGas >= 0, Text6, kNoRoot);
  Store(Text19, FuelJetForGravity(NitrousFuel::Gas, baseJet, b.SpecificGravityGas),
        {&Text1, &Text6});
  Require(b.SpecificGravityMethanol >= 0, Text12, kNoRoot);
  Show(Text20, FuelJetForGravity(NitrousFuel::Methanol, baseJet, b.SpecificGravityMethanol),
       {&Text12});
  Require(b.SpecificGravityEthanol >= 0, Text13, kNoRoot);
  Show(Text21, FuelJetForGravity(NitrousFuel::Ethanol, baseJet, b.SpecificGravityEthanol),
       {&Text13});
  Require(b.SpecificGravityE85 >= 0, Text15, kNoRoot);
  Show(Text14, FuelJetForGravity(NitrousFuel::E85, baseJet, b.SpecificGravityE85), {&Text15});
}

void Form17::SolveHorsepower() {
  ReadNitrousInputs();
  const ParameterBlock& b = block();
  Require(b.NitrousPressure >= 0, Text2, kNoRoot);
  const double hp =
      NitrousHorsepower(Baseline(), b.NitrousPressure, b.NitrousJetSize, b.NumberNitrousJets);
  Show(Text18, hp);
  NitrousAdvice(hp);
}

void Form17::SolveNitrousJet() {
  ReadNitrousInputs();
  const ParameterBlock& b = block();
  const double hp = Read(Text18);
  Require(b.NitrousPressure >= 0, Text2, kNoRoot);
  Require(hp >= 0, Text18, kNoRoot);
  Require(b.NumberNitrousJets >= 0, Text4, kNoRoot);
  Store(Text3, NitrousJetSize(Baseline(), b.NitrousPressure, hp, b.NumberNitrousJets),
        {&Text2, &Text4});
  NitrousAdvice(hp);
}

void Form17::SolveFuelPressure() {
  ReadFields({&Text19, &Text2, &Text3});
  const ParameterBlock& b = block();
  Require(b.NitrousPressure >= 0, Text2, kNoRoot);
  Store(Text1, FuelPressureForJets(Baseline(), b.NitrousPressure, b.NitrousJetSize, b.FuelJetSize),
        {&Text3, &Text2, &Text19});
}

void Form17::ConvertGasJet() {
  ReadFields({&Text6, &Text12, &Text13, &Text15, &Text19});
  const ParameterBlock& b = block();
  const auto jetFor = [&b](NitrousFuel fuel, double gravity) {
    return FuelJetForGasJet(fuel, b.FuelJetSize, b.SpecificGravityGas, gravity);
  };
  Require(b.SpecificGravityGas >= 0, Text6, kNoRoot);
  Require(b.SpecificGravityMethanol >= 0, Text12, kNoRoot);
  Show(Text20, jetFor(NitrousFuel::Methanol, b.SpecificGravityMethanol), {&Text12});
  Require(b.SpecificGravityEthanol >= 0, Text13, kNoRoot);
  Show(Text21, jetFor(NitrousFuel::Ethanol, b.SpecificGravityEthanol), {&Text13});
  Require(b.SpecificGravityE85 >= 0, Text15, kNoRoot);
  Show(Text14, jetFor(NitrousFuel::E85, b.SpecificGravityE85), {&Text15});
}

void Form17::SolveFlowJet() {
  ReadFields({&Text19, &Text7});
  const ParameterBlock& b = block();
  Require(b.NumberFuelJets >= 0, Text7, kNoRoot);
  Show(Text8, JetOfSameFlow(b.FuelJetSize, b.NumberFuelJets));
}

void Form17::SolveFlowJetOfTwoStages() {
  ReadFields({&Text19, &Text7, &Text10, &Text9});
  const ParameterBlock& b = block();
  Require(b.NumberFuelJets >= 0, Text7, kNoRoot);
  Require(b.NumberFuelJetsS2 >= 0, Text9, kNoRoot);
  Show(Text8, JetOfSameFlow(b.FuelJetSize, b.NumberFuelJets, b.FuelJetSizeS2, b.NumberFuelJetsS2));
}

}  // namespace veldox
