#include "airfuel/airflow.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "core/numbers.h"
#include "core/units.h"

namespace veldox {

namespace {

/// Of a polynomial fitted to the fuel consumption of engines by compression ratio, from the
/// lowest power up.
constexpr std::array<double, 8> kBsfcCoefficients{
    -1.26538397676127E-06, 0.499758323174949,    -0.148831416616693,    0.0210218970526189,
    -0.00163637297570242,  7.19168313510107E-05, -1.67271685629789E-06, 1.60077802355565E-08};

}  // namespace

double IntakeFlowOf(double horsepower, double cylinders, double flowPerHorsepower) {
  return horsepower / cylinders * flowPerHorsepower;
}

double HorsepowerOfFlow(double intakeFlow, double cylinders, double flowPerHorsepower) {
  return intakeFlow / flowPerHorsepower * cylinders;
}

double RpmOfMostHorsepower(double intakeFlow, double cubicInches, double cylinders) {
  return 1111 * intakeFlow / (cubicInches / cylinders);
}

double CarburetorFlow(double cubicInches, double rpm, double volumetricEfficiency) {
  return cubicInches * rpm / kSweptPerCubicFoot * volumetricEfficiency;
}

double BlownCarburetorFlow(double cubicInches, double rpm, double boost,
                           double volumetricEfficiency) {
  return cubicInches * rpm / kSweptPerCubicFoot * (boost + kStandardAtmospherePsi) /
         kStandardAtmospherePsi * volumetricEfficiency;
}

double RaceCarburetorFlow(double carburetorFlow, double vacuum) {
  return std::pow(1.5 / vacuum, 0.5) * carburetorFlow;
}

double AlcoholHorsepower(double horsepower) {
  return horsepower * 1.1574985;
}

double RunnerLength(double cubicInches, double portDiameter, double peakTorqueRpm) {
  return cubicInches * 690 / (portDiameter * portDiameter * peakTorqueRpm);
}

double RunnerLengthForPower(double rpmOfMostPower) {
  return 93500 / rpmOfMostPower;
}

double FilterArea(double cubicInches, double rpm, double element) {
  return cubicInches * rpm / element;
}

double FilterHeight(double area, double diameter) {
  return area / (diameter * kPi);
}

double FlowAtDepression(double flow, double depression, double newDepression) {
  return std::pow(newDepression / depression, 0.5) * flow;
}

double VolumetricEfficiencyOfPower(double horsepower, double cubicInches, double rpm,
                                   double compressionRatio) {
  return (792000 / kStandardAtmospherePsi) * horsepower / (cubicInches * rpm * compressionRatio);
}

double BsfcOfCompression(double compressionRatio) {
  double bsfc = kBsfcCoefficients[0];
  for (std::size_t power = 1; power < kBsfcCoefficients.size(); ++power) {
    bsfc += kBsfcCoefficients[power] * std::pow(compressionRatio, static_cast<double>(power));
  }
  return bsfc;
}

}  // namespace veldox
