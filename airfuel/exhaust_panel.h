#pragma once

#include "airfuel/airflow_page.h"
#include "airfuel/exhaust_tuning.h"
#include "core/field_array.h"
#include "core/field_copy.h"
#include "core/panel.h"
#include "core/screen_part.h"

namespace veldox {

/// Header tubes, collector and exhaust system of the air and fuel screen. The engine is that of
/// the main page.
class ExhaustPanel : public ScreenPart {
 public:
  ExhaustPanel(Screen& screen, AirflowPage& page) : ScreenPart(screen), page_(page) {}

  void Open() { Frame2.Open(); }

 private:
  void SolveTubeLength();
  void TubeLengthFromPower();
  void SolveTubeDiameter();
  void TubeDiameterFromTorque();
  void TubeDiameterFromFlow();
  void SolveAffectedRpm();
  void SizeCollector();
  void SizeSystem();
  void SolvePeakTorqueRpm();

  /// Parses engine size and number of cylinders.
  HeaderEngine ReadEngine();

  AirflowPage& page_;

 public:
  Panel Frame2{screen(), "Frame2", "Exhaust/Header"};

  Frame TubeFrame{Frame2, "HeaderTubeFrame", "Header Tubes", 0};
  Field Text22{
      TubeFrame,
      "Text22",
      "Tube Length",
      "28.0",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::TubeLength), LeaveCheck::HasDigits),
      "The length of a primary tube, from the port to the collector."};
  Field Text23{
      TubeFrame,
      "Text23",
      "Tube Diameter",
      "1.75",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::TubeDiameter), LeaveCheck::HasDigits),
      "The inside diameter of a primary tube."};
  Field Text24{
      TubeFrame,
      "Text24",
      "Affected RPM",
      "7500",
      Entry(KeyRule::OutputOnly, Unit::RevolutionsPerMinute, Holds(&P::AffectedRPM).Pattern<"0">()),
      "The speed at which length and diameter of the tubes work together."};

  Frame EngineFrame{Frame2, "HeaderEngineFrame", "Engine", 0};
  FieldTwin EngineSize{EngineFrame, page_.Text1};
  FieldTwin Cylinders{EngineFrame, page_.Text29};
  FieldTwin Rpm{EngineFrame, page_.Text2};

  Frame SpeedFrame{Frame2, "HeaderSpeedFrame", "Tubes by Engine Size and RPM", 1};
  Frame PeakPowerFrame{Frame2, "HeaderPowerFrame", "Tubes by RPM of Most Horsepower", 1};
  FieldTwin PeakPowerRpm{PeakPowerFrame, page_.Text27};
  Frame PeakTorqueFrame{Frame2, "HeaderTorqueFrame", "Tubes by RPM of Most Torque", 1};
  FieldTwin PeakTorqueRpm{PeakTorqueFrame, page_.Text32};
  Frame FlowFrame{Frame2, "HeaderFlowFrame", "Tubes by Exhaust Flow", 2};
  FieldTwin ExhaustFlow{FlowFrame, page_.Text20};

  Frame CollectorFrame{Frame2, "CollectorFrame", "Collector", 2};
  Field Text25{CollectorFrame,
               "Text25",
               "Collector Length",
               "18.0",
               Entry(KeyRule::OutputOnly, Unit::Inches, Holds(&P::CollectorLength)),
               "The least length that the collector should have."};
  Field Text26{CollectorFrame, "Text26", "Collector Diameter", "4.00",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::CollectorDiameter),
                     LeaveCheck::HasDigits)};

  Frame SystemFrame{Frame2, "ExhaustSystemFrame", "Exhaust System", 2};
  FieldTwin Horsepower{SystemFrame, page_.Text3};
  Field Text38{SystemFrame,
               "Text38",
               "Exhaust System Flow",
               "678",
               Entry(KeyRule::OutputOnly, Unit::CubicFeetPerMinute),
               "What pipes and mufflers should flow in all."};

  CommandArray CommandF2{
      SpeedFrame,
      "CommandF2",
      {{0, "&Exhaust Len",
        "Estimate Header Tube Length using Cubic Inches, RPM, Number of Cylinders and Tube "
        "Diameter.",
        Runs(&ExhaustPanel::SolveTubeLength)},
       CommandArray::Member(1, "Exh&aust Len", "Estimate Header Tube Length using Peak HP RPM.",
                            Runs(&ExhaustPanel::TubeLengthFromPower))
           .In(PeakPowerFrame),
       {2, "E&xhaust Dia",
        "Estimate Header Tube Optimum Diameter using Engine Size, RPM, Number of Cylinders, and "
        "Tube Length.",
        Runs(&ExhaustPanel::SolveTubeDiameter)},
       CommandArray::Member(3, "Exha&ust Dia",
                            "Estimate Header Tube Optimum Diameter using Engine Size, Peak Torque "
                            "RPM, and Number of Cylinders.",
                            Runs(&ExhaustPanel::TubeDiameterFromTorque))
           .In(PeakTorqueFrame),
       CommandArray::Member(
           4, "Exhaust &Dia",
           "Estimate Header Tube Optimum Inside Diameter using Exhaust Flow at Max lift.",
           Runs(&ExhaustPanel::TubeDiameterFromFlow))
           .In(FlowFrame),
       {5, "&Affected RPM",
        "Estimate Affect RPM from Header Tube Diameter and Length, Engine Size and Number of "
        "Cylinders.",
        Runs(&ExhaustPanel::SolveAffectedRpm)},
       CommandArray::Member(6, "&Collect Len",
                            "Estimate Minimum Collector Length using Engine Size, Number of "
                            "Cylinders, and Collector Diameter.",
                            Runs(&ExhaustPanel::SizeCollector))
           .In(CollectorFrame),
       CommandArray::Member(7, "Exh S&ystem",
                            "Estimate Exhaust/Muffler(s) airflow needed for no Horsepower lose "
                            "using Horsepower.",
                            Runs(&ExhaustPanel::SizeSystem))
           .In(SystemFrame),
       CommandArray::Member(8, "&PeakTorq RPM",
                            "Estimate Peak Torque RPM from Header Tube Diameter, Engine Size and "
                            "Number of Cylinders.",
                            Runs(&ExhaustPanel::SolvePeakTorqueRpm))
           .In(PeakTorqueFrame)}};

  Command Command91{Frame2, "Command91(7)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
