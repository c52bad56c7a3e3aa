#pragma once

#include "airfuel/airflow_page.h"
#include "airfuel/injectors.h"
#include "core/field_array.h"
#include "core/field_copy.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"

namespace veldox {

/// Fuel injectors of the air and fuel screen: their size and that of the fuel pump, fuel pressure,
/// pulse width and duty cycle. The engine is that of the main page.
class InjectorPanel : public ScreenPart {
 public:
  InjectorPanel(Screen& screen, AirflowPage& page);

  void Open() { Frame3.Open(); }

 private:
  void InjectorSizeFromHp();
  void MaxHpFromInjector();
  void InjectorAtNewPressure();
  void PressureForInjector();
  void EstimateFuelFlow();
  void ThrottleBodyFlow();
  void PulseWidthFromDuty();
  void DutyFromPulseWidth();
  void InjectorSizeFromDuty();
  void InjectorSizeFromPulse();

  void ShowInjectorConversions();
  /// Shows the usual rating next to the injector size.
  void ShowStandardRating();
  /// Warns where a pulse lasts as long as the engine's cycle.
  void CheckPulseWidth() const;
  /// What sizes injectors for the engine, as the fields were read last.
  InjectedEngine EngineOfPage() const;

  AirflowPage& page_;

 public:
  Panel Frame3{screen(), "Frame3", "EFI - Injector Sizing"};
  Frame InjectorFrame{Frame3, "InjectorFrame", "Injectors", 0};
  Field Text6{
      InjectorFrame, "Text6", "Injector Size lbs/hr", "18.0",
      Entry(KeyRule::UnsignedReal, Unit::PoundsPerHour, Holds(&P::LbsHour), LeaveCheck::HasDigits)};
  ResultLabel StandardRating{InjectorFrame, "StandardRating", "Next Standard Rating",
                             Unit::PoundsPerHour,
                             "The usual rating of injectors on sale that is the next at or above "
                             "this size."};
  Field Text7Grams{InjectorFrame, "Text7(0)", "Injector Size grams/min", "225.3",
                   Entry(KeyRule::OutputOnly, Unit::GramsPerMinute, Holds().Pattern<"0.0##">())};
  Field Text7Ccs{InjectorFrame, "Text7(1)", "Injector Size cc's/min", "325.3",
                 Entry(KeyRule::OutputOnly, Unit::CcPerMinute, Holds().Pattern<"0.0##">())};
  Field Text14{InjectorFrame, "Text14", "Number of Injector", "8",
               Entry(KeyRule::Digits, Holds(&P::NumberInjectors), LeaveCheck::HasDigits)};
  Field Text12{InjectorFrame,
               "Text12",
               "Duty Cycle",
               ".85",
               Entry(KeyRule::UnsignedReal, Holds(&P::DutyCycle), LeaveCheck::HasDigits),
               "The part of the time that the injectors are open: .85 is 85 percent."};
  Field Text28{InjectorFrame, "Text28", "Min Fuel Pump Flow", "19.5",
               Entry(KeyRule::OutputOnly, Unit::GallonsPerHour, Holds(&P::FuelPumpFlow))};

  Frame PulseFrame{Frame3, "PulseFrame", "Pulse Width", 0};
  Field Text41{PulseFrame, "Text41", "Pulse Width in Milliseconds", "15.6923",
               Entry(KeyRule::UnsignedReal, Unit::Milliseconds, Holds(&P::PulseWidth),
                     LeaveCheck::HasDigits)};
  Field Text82{PulseFrame,
               "Text82",
               "Injector Dead Time in Milliseconds",
               "0.0",
               Entry(KeyRule::UnsignedReal, Unit::Milliseconds, Holds(&P::InjectorDeadTime),
                     LeaveCheck::HasDigits),
               "What passes of a pulse before the injector is open."};

  Frame PressureFrame{Frame3, "PressureFrame", "Fuel Pressure", 1};
  Field Text8{
      PressureFrame, "Text8", "Fuel Pressure", "43.5",
      Entry(KeyRule::UnsignedReal, Unit::Psi, Holds(&P::OldFuelPressure), LeaveCheck::HasDigits)};
  Field Text9{
      PressureFrame, "Text9", "New Fuel Pressure", "55.0",
      Entry(KeyRule::UnsignedReal, Unit::Psi, Holds(&P::NewFuelPressure), LeaveCheck::HasDigits)};
  Field Text13{PressureFrame, "Text13", "Injector Size-New", "20.23994",
               Entry(KeyRule::UnsignedReal, Unit::PoundsPerHour, Holds(&P::NewLbsHour),
                     LeaveCheck::HasDigits)};
  Field Text125{PressureFrame, "Text125", "New Duty Cycle", ".7559", KeyRule::OutputOnly};

  Frame FlowFrame{Frame3, "FlowFrame", "Fuel and Air Flow", 1};
  Field Text31{FlowFrame, "Text31", "Fuel Flow Lbs per Hour", "225.3",
               Entry(KeyRule::OutputOnly, Unit::PoundsPerHour, Holds(&P::FuelFlow))};
  Field Text40{FlowFrame, "Text40", "Throttle Body Flow in CFM", "578.3",
               Entry(KeyRule::OutputOnly, Unit::CubicFeetPerMinute, Holds().Pattern<".00">())};

  Frame EngineFrame{Frame3, "EngineFrame", "Engine of the Main Page", 2};
  FieldCopy EngineSize{EngineFrame, page_.Text1};
  FieldCopy Rpm{EngineFrame, page_.Text2};
  FieldCopy Horsepower{EngineFrame, page_.Text3};
  FieldCopy BlowerPressure{EngineFrame, page_.Text4};
  FieldCopy VolumetricEfficiency{EngineFrame, page_.Text11};
  FieldCopy AirFuelValue{EngineFrame, page_.Text30};
  FieldCopy Mixture{EngineFrame, page_.Mixture};
  FieldCopy Bsfc{EngineFrame, page_.Text10};

  CommandArray CommandF3{
      InjectorFrame,
      "CommandF3",
      {{0, "&Injector Size",
        "Calculate EFI Injector Size and Fuel Pump Flow needed from Horsepower, BSFC, Number of "
        "Injectors and Duty Cycle.",
        Runs(&InjectorPanel::InjectorSizeFromHp)},
       {1, "Max &HP",
        "Calculate Max Horsepower from EFI Injector Size, Fuel Pressure (Rated), New Fuel Pressure "
        "(Running) BSFC, Duty Cycle, and Number of Injectors. NOTE: If you have not change fuel "
        "pressure set New Fuel Pressure the same as Fuel Pressure.",
        Runs(&InjectorPanel::MaxHpFromInjector)},
       CommandArray::Member(2, "Change &Press",
                            "Calculate change in Injector Flow Rating and Duty Cycle from Fuel "
                            "Pressure Change, using Fuel Pressure, New Fuel Pressure, Injector "
                            "Size, and Duty Cycle.",
                            Runs(&InjectorPanel::InjectorAtNewPressure))
           .In(PressureFrame),
       CommandArray::Member(3, "&Needed Press",
                            "Calculate needed Fuel Pressure Change for Desired Injector Flow Rate "
                            "from Injector Size, New Injector Size and Fuel Pressure.",
                            Runs(&InjectorPanel::PressureForInjector))
           .In(PressureFrame),
       CommandArray::Member(4, "Estim &Fuel Flow",
                            "Estimate Fuel Flow needed for a given Engine Size, RPM, Air Fuel "
                            "Ratio and Volumetric Efficiency.",
                            Runs(&InjectorPanel::EstimateFuelFlow))
           .In(FlowFrame),
       CommandArray::Member(5, "Throttle Bdy Flow",
                            "Estimate Throttle Body Flow in CFM @ 28 inches of water. Using Engine "
                            "Size, Rpm, and Volumetric Efficiency",
                            Runs(&InjectorPanel::ThrottleBodyFlow))
           .In(FlowFrame),
       CommandArray::Member(6, "Pulse Width", "Calculate Pulse Width From Duty Cycle and RPM.",
                            Runs(&InjectorPanel::PulseWidthFromDuty))
           .In(PulseFrame),
       CommandArray::Member(7, "Duty Cycle", "Calculate Duty Cycle From Pulse Width and RPM.",
                            Runs(&InjectorPanel::DutyFromPulseWidth))
           .In(PulseFrame),
       {8, "Injector Size 2",
        "Estimate Fuel Injector Size needed for a given Engine Size, RPM, Air Fuel Ratio, Duty "
        "Cycle, Number of Injectors, Volumetric Efficiency and Blower Pressure.\r\nFor N/A engine "
        "make sure Blower Pressure is set to zero (0.0).",
        Runs(&InjectorPanel::InjectorSizeFromDuty)},
       CommandArray::Member(9, "Injector Size 3",
                            "Estimate Fuel Injector Size needed for a given Engine Size, RPM, Air "
                            "Fuel Ratio, Pulse Width, Number of Injectors, Volumetric Efficiency, "
                            "Injector Dead Time and Blower Pressure.\r\nFor N/A engine make sure "
                            "Blower Pressure is set to zero (0.0).",
                            Runs(&InjectorPanel::InjectorSizeFromPulse))
           .In(PulseFrame)}};
  Command Command91{Frame3, "Command91(8)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
