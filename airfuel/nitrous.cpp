#include "airfuel/nitrous.h"

#include <array>
#include <cmath>

#include "core/numbers.h"

namespace veldox {

namespace {

constexpr double kBasePressure = 950;

constexpr std::array<NitrousBaseline, kNitrousBaselineCount> kBaselines = {{
    {57500, 0.9, 6.0},
    {49000, 1.0, 6.0},
    {57500, 1.261, 6.0},
    {57500, 0.7, 6.0},
    {42500, 0.59, 6.0, true},
    {42500, 0.59, 5.5, true},
}};

/// What a fuel needs beside gasoline.
struct FuelNeed {
  double area;     ///< of the jet, to that for gasoline
  double gravity;  ///< at which it holds
};

constexpr double kGasGravity = 0.74;

constexpr FuelNeed NeedOf(NitrousFuel fuel) {
  switch (fuel) {
    case NitrousFuel::Methanol: return {2.25, 0.79};
    case NitrousFuel::Ethanol: return {1.67, 0.79};
    case NitrousFuel::E85: return {1.406, 0.78};
    case NitrousFuel::Gas: break;
  }
  return {1, kGasGravity};
}

/// The flow of nitrous to that at the base pressure.
double PressureFlow(double nitrousPressure) {
  return std::sqrt(nitrousPressure / kBasePressure);
}

double JetOfArea(double area) {
  return 2 * std::sqrt(area / kPi);
}

AdviceRange RangeFrom(double lower, double factor) {
  return {lower, lower * factor};
}

}  // namespace

const NitrousBaseline& NitrousBaselineOf(int option) {
  return kBaselines.at(static_cast<std::size_t>(option));
}

double JetArea(double diameter) {
  return (diameter / 2) * (diameter / 2) * kPi;
}

double NitrousHorsepower(const NitrousBaseline& baseline, double nitrousPressure, double jetSize,
                         double jets) {
  return PressureFlow(nitrousPressure) * (JetArea(jetSize) * jets * baseline.hpFactor);
}

double NitrousJetSize(const NitrousBaseline& baseline, double nitrousPressure, double horsepower,
                      double jets) {
  return 2 *
         std::sqrt(horsepower / (PressureFlow(nitrousPressure) * (kPi * jets * baseline.hpFactor)));
}

double HorsepowerPerEight(double horsepower, double cylinders) {
  return horsepower * 8 / cylinders;
}

AdviceRange TimingRetard(const NitrousBaseline& baseline, double perEight) {
  return baseline.lean ? RangeFrom(perEight / 50 * 2, 1.25) : RangeFrom(perEight / 75 * 2, 1.5);
}

AdviceRange PlugHeatRange(const NitrousBaseline& baseline, double perEight) {
  return baseline.lean ? RangeFrom(perEight / 175, 1.2) : RangeFrom(perEight / 150, 1.5);
}

double BaseFuelJet(const NitrousBaseline& baseline, double nitrousPressure, double nitrousJet,
                   double fuelPressure) {
  const double nitrousFlow =
      PressureFlow(nitrousPressure) * (JetArea(nitrousJet) * baseline.fuelRatio);
  return JetOfArea((1 / std::sqrt(fuelPressure / baseline.baseFuelPressure)) * nitrousFlow);
}

double FuelJetForGravity(NitrousFuel fuel, double baseJet, double gravity) {
  const FuelNeed need = NeedOf(fuel);
  return JetOfArea(JetArea(baseJet) * need.area * (need.gravity / gravity));
}

double FuelJetForGasJet(NitrousFuel fuel, double gasJet, double gasGravity, double gravity) {
  const FuelNeed need = NeedOf(fuel);
  return JetOfArea(JetArea(gasJet) * need.area * (gasGravity / kGasGravity) *
                   (need.gravity / gravity));
}

double JetOfSameFlow(double jetSize, double jets) {
  return JetOfArea(JetArea(jetSize) * jets);
}

double JetOfSameFlow(double jetSize, double jets, double jetSize2, double jets2) {
  return JetOfArea(JetArea(jetSize) * jets + JetArea(jetSize2) * jets2);
}

double FuelPressureForJets(const NitrousBaseline& baseline, double nitrousPressure,
                           double nitrousJet, double fuelJet) {
  const double jetRatio = JetArea(fuelJet) / (JetArea(nitrousJet) * baseline.fuelRatio);
  const double root = 1 / (std::sqrt(kBasePressure / nitrousPressure) * jetRatio);
  return root * root * baseline.baseFuelPressure;
}

}  // namespace veldox
