#include "chassis/springs.h"

#include <cmath>
#include <limits>

namespace veldox {

namespace {

double Cubed(double x) {
  return x * x * x;
}

double ToTheFourth(double x) {
  return x * x * x * x;
}

/// What twists of a round bar, up to a factor.
double BarSection(double outDiameter, double intDiameter) {
  if (intDiameter > outDiameter) return std::numeric_limits<double>::quiet_NaN();
  return ToTheFourth(outDiameter) - ToTheFourth(intDiameter);
}

}  // namespace

double CoilSpringRate(const CoilSpring& spring) {
  return ToTheFourth(spring.wireDiameter) * spring.modulusOfRigidity /
         (Cubed(spring.coilDiameter) * 8 * spring.activeCoils);
}

double CoilWireDiameter(const CoilSpring& spring) {
  return std::pow((Cubed(spring.coilDiameter) * 8 * spring.activeCoils) * spring.rate /
                      spring.modulusOfRigidity,
                  0.25);
}

double CoilActiveCoils(const CoilSpring& spring) {
  return ToTheFourth(spring.wireDiameter) * spring.modulusOfRigidity /
         (Cubed(spring.coilDiameter) * spring.rate * 8);
}

double CoilDiameter(const CoilSpring& spring) {
  return std::pow(ToTheFourth(spring.wireDiameter) * spring.modulusOfRigidity /
                      (spring.rate * 8 * spring.activeCoils),
                  1.0 / 3);
}

double CoilModulusOfRigidity(const CoilSpring& spring) {
  return (Cubed(spring.coilDiameter) * spring.rate * 8 * spring.activeCoils) /
         ToTheFourth(spring.wireDiameter);
}

double CoilOuterDiameter(double wireDiameter, double coilDiameter) {
  return wireDiameter + coilDiameter;
}

double CoilInnerDiameter(double wireDiameter, double coilDiameter) {
  return coilDiameter - wireDiameter;
}

double CoilSpringIndex(double wireDiameter, double coilDiameter) {
  return coilDiameter / wireDiameter;
}

double CoilSolidHeight(double wireDiameter, double coils) {
  return coils * wireDiameter;
}

double TorsionBarRate(const TorsionBar& bar) {
  return BarSection(bar.outDiameter, bar.intDiameter) * bar.modulus /
         (bar.armLength * bar.armLength * bar.length);
}

double TorsionBarOutDiameter(const TorsionBar& bar) {
  return std::pow(ToTheFourth(bar.intDiameter) +
                      (bar.armLength * bar.armLength * (bar.rate * bar.length)) / bar.modulus,
                  0.25);
}

double SwayBarRate(const SwayBar& bar, SwayBarRule rule) {
  const double squared = bar.armLength * bar.armLength;
  const double bending = 0.2264 * (rule == SwayBarRule::New ? squared * bar.armLength : squared);
  const double twist =
      bar.effectiveArmLength * bar.effectiveArmLength * (0.4244 * bar.centerLength);
  return BarSection(bar.outDiameter, bar.intDiameter) * 500000 / (bending + twist);
}

double SwayBarChangePercent(double outDiameter, double newOutDiameter) {
  return ToTheFourth(newOutDiameter / outDiameter) * 100 - 100;
}

double LeafSpringRate(double length, double width, double thickness, double leafs) {
  return Cubed(1000 * thickness / length) * (width * leafs / 12);
}

}  // namespace veldox
