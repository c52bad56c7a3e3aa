#pragma once

namespace veldox {

/// Rates of coil springs, torsion bars, sway bars and leaf springs. Lengths are in inches, rates in
/// pounds an inch, moduli in pounds a square inch. Every function that solves for a member of its
/// argument leaves that member unread. A result that needs a division by 0 is not finite.

/// A coil spring of round wire.
struct CoilSpring {
  double wireDiameter = 0;
  double activeCoils = 0;
  double coilDiameter = 0;       ///< from wire centre to wire centre
  double modulusOfRigidity = 0;  ///< about 12e6 for spring steel
  double rate = 0;
};

/// k = d^4 G / (8 D^3 n): the textbook rate of a close-coiled helical spring.
double CoilSpringRate(const CoilSpring& spring);
/// The wire diameter for a rate.
double CoilWireDiameter(const CoilSpring& spring);
/// The number of active coils for a rate, with its fraction.
double CoilActiveCoils(const CoilSpring& spring);
/// The diameter of the coils, from wire centre to wire centre, for a rate.
double CoilDiameter(const CoilSpring& spring);
/// The modulus of rigidity that a measured rate tells.
double CoilModulusOfRigidity(const CoilSpring& spring);

double CoilOuterDiameter(double wireDiameter, double coilDiameter);
double CoilInnerDiameter(double wireDiameter, double coilDiameter);
/// Coil diameter over wire diameter.
double CoilSpringIndex(double wireDiameter, double coilDiameter);
/// Length of the spring with its coils closed. @param coils  all of them, the inactive ones too
double CoilSolidHeight(double wireDiameter, double coils);

/// A torsion bar with its arm.
struct TorsionBar {
  double outDiameter = 0;
  double intDiameter = 0;  ///< 0 for a solid bar
  double length = 0;
  double armLength = 0;
  double modulus = 0;  ///< pi / 32 of the modulus of rigidity
  double rate = 0;     ///< at the end of the arm
};

/// Rate at the end of the arm: (O^4 - I^4) M / (A^2 L). Not finite for a hole wider than the bar.
double TorsionBarRate(const TorsionBar& bar);
/// The outer diameter for a rate.
double TorsionBarOutDiameter(const TorsionBar& bar);

/// How the bending of a sway bar's arms counts.
enum class SwayBarRule {
  Old,  ///< by the square of their length
  New,  ///< by its cube
};

struct SwayBar {
  double outDiameter = 0;
  double intDiameter = 0;  ///< 0 for a solid bar
  double centerLength = 0;
  double armLength = 0;           ///< what bends
  double effectiveArmLength = 0;  ///< what twists the centre: square to it
};

/// Rate at the ends of the arms, by the published rule for steel bars:
/// 500000 (O^4 - I^4) / (0.4244 E^2 B + 0.2264 A^3), with A^2 by the old rule. Not finite for a
/// hole wider than the bar.
double SwayBarRate(const SwayBar& bar, SwayBarRule rule);

/// What another outer diameter adds to the rate of a solid bar, in percent.
double SwayBarChangePercent(double outDiameter, double newOutDiameter);

/// Rate of a leaf spring with leaves of one thickness, by a rule of thumb that stands for
/// (8 / 3) E n w t^3 / L^3 with E = 31.25e6.
double LeafSpringRate(double length, double width, double thickness, double leafs);

}  // namespace veldox
