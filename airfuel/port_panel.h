#pragma once

#include "airfuel/port_shape.h"
#include "core/field_array.h"
#include "core/panel.h"
#include "core/screen_part.h"

namespace veldox {

/// The port calculator of the air and fuel screen: cross-section, volume, flow and taper of a port.
class PortPanel : public ScreenPart {
 public:
  explicit PortPanel(Screen& screen) : ScreenPart(screen) {}

  void Open() { Frame10.Open(); }

 private:
  void SolveSection();
  void SolveAverageArea();
  void SolveSpeed();
  void SolveFlow();
  void SolveAreaForFlow();
  void SolveTaper();
  void SolveTaperLength();
  void SolveLargeEnd();
  void SolveVolume();
  void SolveLength();

  void ShowPlain(Field& field, double value, DividesBy divisors = {}) const {
    ShowAs<"0.00000">(field, value, divisors);
  }
  /// Shows an area and the diameter of its circle.
  void ShowArea(Field& field, double area, DividesBy divisors = {});

 public:
  Panel Frame10{screen(), "Frame10", "Calculators"};

  Frame SectionFrame{Frame10, "PortSectionFrame", "Port Cross-Section", 0};
  Field Text108{SectionFrame, "Text108", "Port Width", "1.25",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits)};
  Field Text109{SectionFrame, "Text109", "Port Height", "2.2",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits)};
  Field Text105{SectionFrame,
                "Text105",
                "Top Left Arc",
                ".25",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits),
                "The radius of the corner."};
  Field Text107{SectionFrame,
                "Text107",
                "Top Right Arc",
                ".25",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits),
                "The radius of the corner."};
  Field Text106{SectionFrame,
                "Text106",
                "Bottom Left Arc",
                ".25",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits),
                "The radius of the corner."};
  Field Text104{SectionFrame,
                "Text104",
                "Bottom Right Arc",
                ".25",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits),
                "The radius of the corner."};
  Field Text100{SectionFrame, "Text100", "Port CSA", "2.69635",
                Entry(KeyRule::OutputOnly, Unit::SquareInches)};
  Field Text126{SectionFrame,
                "Text126",
                "Equivalent Diameter",
                "1.85286",
                Entry(KeyRule::OutputOnly, Unit::Inches),
                "The diameter of a round port of the cross-section that was calculated last."};

  Frame VolumeFrame{Frame10, "PortVolumeFrame", "Port Volume", 1};
  Field Text110{VolumeFrame,
                "Text110",
                "Port Length",
                "5.5",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits),
                "The length of the port along its centerline."};
  Field Text103{VolumeFrame, "Text103", "Port cc's", "215",
                Entry(KeyRule::UnsignedReal, Unit::Cc, {}, LeaveCheck::HasDigits)};
  Field Text111{VolumeFrame, "Text111", "Port Avg CSA", "2.38547",
                Entry(KeyRule::UnsignedReal, Unit::SquareInches, {}, LeaveCheck::HasDigits)};

  Frame FlowFrame{Frame10, "PortFlowFrame", "Port Flow", 1};
  Field Text101{FlowFrame, "Text101", "CFM", "300",
                Entry(KeyRule::UnsignedReal, Unit::CubicFeetPerMinute, {}, LeaveCheck::HasDigits)};
  Field Text112{FlowFrame, "Text112", "CSA", "2.4",
                Entry(KeyRule::UnsignedReal, Unit::SquareInches, {}, LeaveCheck::HasDigits)};
  Field Text102{FlowFrame, "Text102", "Air Speed / Port Velocity", "300",
                Entry(KeyRule::UnsignedReal, Unit::FeetPerSecond, {}, LeaveCheck::HasDigits)};

  Frame TaperFrame{Frame10, "PortTaperFrame", "Port Taper", 2};
  Field Text115{TaperFrame, "Text115", "Small End Diameter", "2.0",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits)};
  Field Text116{TaperFrame, "Text116", "Large End Diameter", "2.25",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits)};
  Field Text118{TaperFrame,
                "Text118",
                "Port Length",
                "6.0",
                Entry(KeyRule::UnsignedReal, Unit::Inches, {}, LeaveCheck::HasDigits),
                "The length of the cone along its axis."};
  Field Text117{
      TaperFrame,
      "Text117",
      "Taper Degrees",
      "1.19349",
      Entry(KeyRule::SignedReal, Unit::Degrees, Holds().NotConverted(), LeaveCheck::HasDigits),
      "The angle between the port's side and its axis."};
  Field Text119{TaperFrame, "Text119", "Side Length", "6.00130",
                Entry(KeyRule::OutputOnly, Unit::Inches)};

  CommandArray CommandF10{
      SectionFrame,
      "CommandF10",
      {{0, "Calculate CSA", "Calculate Port's CSA from it's Dimensions and Corner Radius.",
        Runs(&PortPanel::SolveSection)},
       CommandArray::Member(
           1, "Calculate ACSA",
           "Calculate Port's Average CSA from it's Volume and Port CenterLine Length.",
           Runs(&PortPanel::SolveAverageArea))
           .In(VolumeFrame),
       CommandArray::Member(2, "Calculate FPS",
                            "Calculate Port's Average FPS from it's CFM and CSA.",
                            Runs(&PortPanel::SolveSpeed))
           .In(FlowFrame),
       CommandArray::Member(3, "Calculate CFM",
                            "Calculate Port's Average CFM from it's FPS and CSA.",
                            Runs(&PortPanel::SolveFlow))
           .In(FlowFrame),
       CommandArray::Member(4, "Calcualte CSA",
                            "Calculate Port's Average CSA from it's CFM and FPS.",
                            Runs(&PortPanel::SolveAreaForFlow))
           .In(FlowFrame),
       CommandArray::Member(5, "Calculate Taper",
                            "Calculate Port's Taper from it's Small End Diameter, Large End "
                            "Diameter, and Port Length.",
                            Runs(&PortPanel::SolveTaper))
           .In(TaperFrame),
       CommandArray::Member(6, "Calculate Length",
                            "Calculate Port's Length from it's Small End Diameter, Large End "
                            "Diameter, and Port Taper.",
                            Runs(&PortPanel::SolveTaperLength))
           .In(TaperFrame),
       CommandArray::Member(7, "Calculate Large End",
                            "Calculate Port's Large End from it's Small End Diameter, Port Length, "
                            "and Port Taper.",
                            Runs(&PortPanel::SolveLargeEnd))
           .In(TaperFrame),
       CommandArray::Member(
           8, "Calculate Port cc's",
           "Calculate Port's Volume (cc's) From it's Average CSA, and Port CenterLine Length.",
           Runs(&PortPanel::SolveVolume))
           .In(VolumeFrame),
       CommandArray::Member(
           9, "Calc Port Length",
           "Calculate Port's CenterLine Length from it's Volume (cc's) and Average CSA.",
           Runs(&PortPanel::SolveLength))
           .In(VolumeFrame)}};

  Command Command91{Frame10, "Command91(0)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
