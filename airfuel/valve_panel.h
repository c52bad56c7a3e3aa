#pragma once

#include <string>

#include "airfuel/flow_bench.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"

namespace veldox {

/// Usual stem diameters; the one that is picked goes into a field.
class StemList : public ComboList {
 public:
  StemList(Frame& frame, std::string name, std::string caption, Field& stem);
  StemList(const StemList&) = delete;
  StemList& operator=(const StemList&) = delete;

  void Choose(int row) override;

 private:
  /// Shows the row that the field stands for, none for a diameter of another size.
  void Follow();

  Field& stem_;
};

/// Valves, seats, throats and minimum cross-sections of the air and fuel screen, which the flow
/// data and all that is made of it work with.
class ValvePanel : public ScreenPart {
 public:
  explicit ValvePanel(Screen& screen);

  void Open() { Frame8.Open(); }

  /// Both ports of a cylinder.
  struct Ports {
    FlowPort intake;
    FlowPort exhaust;
  };
  /// Parses valves, throats and seats. @throws CommandError that names the field
  Ports ReadValves();
  /// The same with the areas of the throats; valves and areas must be above 0.
  Ports ThroatAreas();
  /// Parses the minimum cross-sections; 0 stands for the usual one of the valves.
  void McsaDefaults(Ports& ports);
  /// Requires seats that a flow area can be made of.
  void RequireSeats(const Ports& ports);
  /// The same of those whose angle and width are both above 0.
  void RequireSeatsInUse(const Ports& ports);
  /// What is odd about the throats, a line each; empty for nothing.
  static std::string ThroatNotes(const Ports& ports);

 private:
  ThroatMeasure Measure() const { return static_cast<ThroatMeasure>(Option1.chosen()); }
  void ShowThroats();
  static void RequireSeat(const PortValves& valves, Field& angle, Field& width);

  // What was read last.
  double IntakeStemSize() const { return block().IntakeValveStemDiameter; }
  double ExhaustStemSize() const { return block().ExhaustValveStemDiameter; }
  double IntakeThroat() const { return block().IntakeBowlCSAPercent; }
  double ExhaustThroat() const { return block().ExhaustBowlCSAPercent; }
  double IntakeSeatAngle() const { return block().SeatAngle; }
  double ExhaustSeatAngle() const { return block().ExhSeatAngle; }
  double IntakeSeatWidth() const { return block().SeatWidth; }
  double ExhaustSeatWidth() const { return block().ExhSeatWidth; }

 public:
  Panel Frame8{screen(), "Frame8", "Valve and Throat Sizing"};

  Frame IntakeFrame{Frame8, "IntakeValveFrame", "Intake", 0};
  Field Text42{
      IntakeFrame,
      "Text42",
      "Intake Valve Size",
      "2.02",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::IntakeValveSize), LeaveCheck::HasDigits),
      "The diameter of one intake valve."};
  Field Text43{IntakeFrame,
               "Text43",
               "Intake Valve Stem Diameter",
               "0.3415",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::IntakeValveStemDiameter),
                     LeaveCheck::HasDigits),
               "The stem takes its circle off the throat."};
  StemList Combo1{IntakeFrame, "Combo1", "Usual Intake Stems", Text43};
  Field Text44{IntakeFrame,
               "Text44",
               "Intake Throat CSA",
               "0.91",
               Entry(KeyRule::UnsignedReal, Holds(&P::IntakeBowlCSAPercent), LeaveCheck::HasDigits),
               "The throat of one intake valve, as \"Throat Is Given As\" says: its diameter by "
               "the valve's, its area or its diameter."};
  ResultLabel IntakeThroatArea{IntakeFrame, "IntakeThroatArea", "Throat Area less Stem, Intake",
                               Unit::SquareInches, "What is open of the throat of one valve."};
  Field Text62{IntakeFrame,
               "Text62",
               "Number of Intake Valves",
               "1",
               Entry(KeyRule::Digits, Holds(&P::NumberofIntakeValves), LeaveCheck::HasDigits),
               "Intake valves of a cylinder."};
  Field Text120{IntakeFrame,
                "Text120",
                "Seat Angle",
                "45",
                Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::SeatAngle).NotConverted(),
                      LeaveCheck::HasDigits),
                "The angle of the intake seat against the valve's face plane."};
  Field Text121{
      IntakeFrame,
      "Text121",
      "Seat Width",
      ".08",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::SeatWidth), LeaveCheck::HasDigits),
      "The width of the intake seat along its slope."};

  Frame ExhaustFrame{Frame8, "ExhaustValveFrame", "Exhaust", 1};
  Field Text45{ExhaustFrame,
               "Text45",
               "Exhaust Valve Size",
               "1.60",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::ExhaustValveSize),
                     LeaveCheck::HasDigits),
               "The diameter of one exhaust valve."};
  Field Text46{ExhaustFrame,
               "Text46",
               "Exhaust Valve Stem Diameter",
               "0.3415",
               Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::ExhaustValveStemDiameter),
                     LeaveCheck::HasDigits),
               "The stem takes its circle off the throat."};
  StemList Combo2{ExhaustFrame, "Combo2", "Usual Exhaust Stems", Text46};
  Field Text47{
      ExhaustFrame,
      "Text47",
      "Exhaust Throat CSA",
      "0.91",
      Entry(KeyRule::UnsignedReal, Holds(&P::ExhaustBowlCSAPercent), LeaveCheck::HasDigits),
      "The throat of one exhaust valve, as \"Throat Is Given As\" says: its diameter by the "
      "valve's, its area or its diameter."};
  ResultLabel ExhaustThroatArea{ExhaustFrame, "ExhaustThroatArea", "Throat Area less Stem, Exhaust",
                                Unit::SquareInches, "What is open of the throat of one valve."};
  Field Text63{ExhaustFrame,
               "Text63",
               "Number of Exhaust Valves",
               "1",
               Entry(KeyRule::Digits, Holds(&P::NumberofExhaustValves), LeaveCheck::HasDigits),
               "Exhaust valves of a cylinder."};
  Field Text122{ExhaustFrame,
                "Text122",
                "Seat Angle",
                "45",
                Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::ExhSeatAngle).NotConverted(),
                      LeaveCheck::HasDigits),
                "The angle of the exhaust seat against the valve's face plane."};
  Field Text123{
      ExhaustFrame,
      "Text123",
      "Seat Width",
      ".08",
      Entry(KeyRule::UnsignedReal, Unit::Inches, Holds(&P::ExhSeatWidth), LeaveCheck::HasDigits),
      "The width of the exhaust seat along its slope."};

  Frame MeasureFrame{Frame8, "ThroatMeasureFrame", "Throat Is Given As", 2};
  OptionGroup Option1{
      MeasureFrame,
      "Option1",
      "",
      {{0, "CSA % of Valve Size",
        "The throat's diameter as a part of the valve's: .91 of a 2.02 valve is 1.838 inches."},
       {1, "CSA in Sq. Inches", "The area of the throat in square inches, with the stem in it."},
       {2, "Diameter", "The diameter of the throat in inches."}}};

  Frame McsaFrame{Frame8, "McsaFrame", "Only used by the Analyze Flow Data Form - Sq. In", 2};
  Field Text89{McsaFrame,
               "Text89",
               "Intake Port MCSA",
               "0.0",
               Entry(KeyRule::UnsignedReal, Unit::SquareInches, Holds(&P::IntakeMCSA),
                     LeaveCheck::HasDigits),
               "The smallest cross-section of the intake port, for all of its valves. 0 stands for "
               "the usual .7765 of the valve area."};
  Field Text90{McsaFrame,
               "Text90",
               "Exhaust Port MCSA",
               "0.0",
               Entry(KeyRule::UnsignedReal, Unit::SquareInches, Holds(&P::ExhaustMCSA),
                     LeaveCheck::HasDigits),
               "The smallest cross-section of the exhaust port, for all of its valves. 0 stands "
               "for the usual .7877 of the valve area."};

  Command Command91{Frame8, "Command91(4)", "Done", "Back to where this was opened.", PutsAway()};
};

}  // namespace veldox
