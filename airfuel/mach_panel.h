#pragma once

#include <string>

#include "airfuel/airflow_page.h"
#include "airfuel/mach.h"
#include "core/field_array.h"
#include "core/field_copy.h"
#include "core/panel.h"
#include "core/screen_part.h"
#include "graph/grapher.h"

namespace veldox {

/// Mach index of the intake valve and tuned length of the intake, each solved for any of its
/// terms.
class MachPanel : public ScreenPart {
 public:
  MachPanel(Screen& screen, AirflowPage& page, Grapher& grapher);

  void Open() { Frame7.Open(); }

 private:
  void SolveMachNumber();
  void SolveRpm();
  void SolveLift();
  void SolveDiameter();
  void SolveMachByArea();
  void SolveAreaBySpeed();
  void SolveMachByCoefficient();
  void GraphMach();
  void GraphSpeed();
  void SolveTunedRpm();
  void SolveTunedLength();
  void GraphTunedLength();

  /// Parses bore, stroke, valve, lift and RPM as far as a formula needs them.
  enum class Needs { All, NoRpm, NoLift, NoDiameter, NoValve };
  MachEngine ReadEngine(Needs needs);
  /// Solves a term from the Mach number.
  double WalkTo(MachTerm term, const MachEngine& engine, Field& result);
  void ShowSpeed(double speed, double sound);
  /// Graphs velocity or Mach number over RPM, for two coefficients of discharge.
  /// @param sound  what the velocity is divided by
  void GraphByCoefficient(double sound);
  HelmholtzIntake ReadIntake();

  AirflowPage& page_;
  Grapher& grapher_;
  double speed_ = 0;        ///< feet per second
  double area_ = 0;         ///< square inches
  double coefficient_ = 0;  ///< of discharge
  double valves_ = 0;
  double sound_ = 0;  ///< feet per second

 public:
  Panel Frame7{screen(), "Frame7", "Valve Mach Sizing / Helmholtz Tuning"};

  Frame EngineFrame{Frame7, "MachEngineFrame", "Engine and Intake Valve", 0};
  Field Text52{EngineFrame, "Text52", "Bore", "4.000",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::Bore).NotConverted(),
                     LeaveCheck::HasDigits)};
  Field Text53{EngineFrame, "Text53", "Stroke", "3.25",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::Stroke).NotConverted(),
                     LeaveCheck::HasDigits)};
  Field Text54{EngineFrame, "Text54", "Valve Diameter", "2.02",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::MachValveDiameter),
                     LeaveCheck::HasDigits)};
  Field Text55{
      EngineFrame, "Text55", "Valve Lift", ".5",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::MachValveLift), LeaveCheck::HasDigits)};
  FieldTwin Rpm{EngineFrame, page_.Text2};
  Field Text56{EngineFrame, "Text56", "Mach Number", ".53436",
               Entry(KeyRule::UnsignedReal, Holds(&P::MachNumber), LeaveCheck::HasDigits)};
  Field Text57{
      EngineFrame, "Text57", "Velocity", "619.73",
      Entry(KeyRule::UnsignedReal, Unit::FeetPerSecond, Holds(speed_), LeaveCheck::HasDigits)};
  Field Text58{
      EngineFrame,
      "Text58",
      "C S A",
      "2.2",
      Entry(KeyRule::UnsignedReal, Unit::SquareInches, Holds(area_), LeaveCheck::HasDigits),
      "The cross-section of the intake port."};
  Field Text59{EngineFrame,
               "Text59",
               "C D",
               ".55",
               Entry(KeyRule::UnsignedReal, Holds(coefficient_), LeaveCheck::HasDigits),
               "The valve's coefficient of discharge: the part of its area that the flow fills."};
  Field Text60{EngineFrame, "Text60", "Number of Ports / Valves", "1",
               Entry(KeyRule::Digits, Holds(valves_), LeaveCheck::HasDigits)};

  Frame MachFrame{Frame7, "MachIndexFrame", "By Valve Lift", 1};
  Label Sound1160{MachFrame, "Sound1160", "Based 1160 fps Speed of Sound"};
  Frame AreaFrame{Frame7, "MachAreaFrame", "By Cross-Section", 1};
  Label Sound1200{AreaFrame, "Sound1200", "Based 1200 fps Speed of Sound"};
  Frame CoefficientFrame{Frame7, "MachCoefficientFrame", "By Coefficient of Discharge", 1};
  Label Sound1128{CoefficientFrame, "Sound1128", "Based 1128 fps Speed of Sound"};

  Frame HelmholtzFrame{Frame7, "HelmholtzFrame", "Helmholtz Tuning", 2};
  FieldTwin CompressionRatio{HelmholtzFrame, page_.Text84};
  Field Text114{HelmholtzFrame,
                "Text114",
                "H Factor",
                "77",
                Entry(KeyRule::UnsignedReal, Holds(&P::HFactor), LeaveCheck::HasDigits),
                "77 for usual engines; taken as a whole number."};
  FieldTwin PortLength{HelmholtzFrame, page_.Text34, "Length - Port + Runner"};
  Field Text99{
      HelmholtzFrame, "Text99", "Speed of Sound", "1128",
      Entry(KeyRule::UnsignedReal, Unit::FeetPerSecond, Holds(sound_), LeaveCheck::HasDigits)};
  FieldTwin PeakTorqueRpm{HelmholtzFrame, page_.Text32, "RPM (Peak Torque)"};

  CommandArray CommandF7{
      MachFrame,
      "CommandF7",
      {{0, "&Mach Number",
        "Calculate Mach Number and Velocity From Bore, Stroke, Valve Diameter, Valve Lift and RPM.",
        Runs(&MachPanel::SolveMachNumber)},
       {1, "RPM", "Calculate RPM From Bore, Stroke, Valve Diameter, Valve Lift and Mach Number.",
        Runs(&MachPanel::SolveRpm)},
       {2, "Lift", "Calculate Valve Lift From Bore, Stroke, Valve Diameter, RPM and Mach Number.",
        Runs(&MachPanel::SolveLift)},
       {3, "Valve Diameter",
        "Calculate Valve Diameter From Bore, Stroke, RPM, Valve Lift and Mach Number.",
        Runs(&MachPanel::SolveDiameter)},
       CommandArray::Member(4, "Mach Number (CSA)",
                            "Calculate Mach Number and Velocity From Bore, Stroke, CSA, and RPM.",
                            Runs(&MachPanel::SolveMachByArea))
           .In(AreaFrame),
       CommandArray::Member(5, "CSA from Velocity",
                            "Calculate CSA from Velocity, Bore, Stroke, and RPM.",
                            Runs(&MachPanel::SolveAreaBySpeed))
           .In(AreaFrame),
       CommandArray::Member(6, "Mach Number (CD)",
                            "Calculate Mach Number and Velocity From Bore, Stroke, Valve Size, "
                            "Coefficient of Discharge, and RPM.",
                            Runs(&MachPanel::SolveMachByCoefficient))
           .In(CoefficientFrame),
       CommandArray::Member(7, "Graph Mach (CD)",
                            "Graph Mach Number From Bore, Stroke, Valve Size, Coefficient of "
                            "Discharge, and RPM.",
                            Runs(&MachPanel::GraphMach))
           .In(CoefficientFrame),
       CommandArray::Member(8, "Graph Velocity (CD)",
                            "Graph Velocity From Bore, Stroke, Valve Size, Coefficient of "
                            "Discharge, and RPM.",
                            Runs(&MachPanel::GraphSpeed))
           .In(CoefficientFrame),
       CommandArray::Member(9, "Helmholtz RPM",
                            "Calculate RPM (Peak Torque) From Bore, Stroke, Length - Port + "
                            "Runner, CSA, Compression Ratio, and Speed of Sound.",
                            Runs(&MachPanel::SolveTunedRpm))
           .In(HelmholtzFrame),
       CommandArray::Member(10, "Helmholtz Len",
                            "Calculate Length - Port + Runner From Bore, Stroke, RPM (Peak "
                            "Torque), CSA, Compression Ratio, and Speed of Sound.",
                            Runs(&MachPanel::SolveTunedLength))
           .In(HelmholtzFrame),
       CommandArray::Member(11, "Graph Vary CSA",
                            "Graph Length - Port + Runner Varying CSA From Bore, Stroke, RPM (Peak "
                            "Torque), CSA, Compression Ratio, and Speed of Sound.",
                            Runs(&MachPanel::GraphTunedLength))
           .In(HelmholtzFrame)}};

  Command Command91{Frame7, "Command91(6)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
