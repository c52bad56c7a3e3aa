#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/kept.h"
#include "core/results.h"
#include "core/screen.h"
#include "core/table.h"
#include "graph/drawing.h"
#include "twostroke/expansion_chamber.h"

namespace veldox {

/// Two-stroke exhaust: the lengths and diameters of an expansion chamber from the exhaust port,
/// the speed and the power. It knows millimetres and Celsius only.
class Form11 : public Screen {
 public:
  explicit Form11(ProgramContext& context);

  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }
  void Edited(const Control&) override { ShowHints(); }
  void ClearFields() override;

 private:
  void SolveTwoStage();
  void SolveThreeStage();
  void SolveSingleStage();
  void SolveOneStage();
  void ReportChamber();
  void ChooseGasTemperature() { Text15.SetReadOnly(Check1.on()); }
  void ChooseSpeedOfSound() { Text7.SetReadOnly(Check3.on()); }

  /// What every chamber begins with.
  struct Basis {
    double header = 0;  ///< diameter at the port
    double tuned = 0;   ///< length
  };
  Basis ReadChamberFields();
  /// Computes and shows a chamber of three diameters.
  void SingleStageSections(const char* kind, const Basis& basis, double d1, double d2, double d3);
  /// Shows a diameter with its circumference.
  void ShowDiameter(Field& cell, double diameter, DividesBy divisors = {});
  static void ShowUnused(std::initializer_list<Field*> cells);
  /// Draws what was computed, in the place for its kind.
  void ShowChamber(std::string kind, Chamber chamber, Drawing& drawing);
  /// Nothing that was computed stands any more.
  void ForgetChamber();
  /// A field and what is usual in it.
  struct UsualRange {
    Field* field;
    double low;
    double high;
  };
  void ShowHints();
  void ShowHints(Label& label, std::initializer_list<UsualRange> ranges) const;
  static void Tell(Label& label, std::string text);

  // What was computed last; empty where nothing stands.
  Kept<std::string> kind_{*this};
  Kept<Chamber> chamber_{*this};
  Kept<std::vector<std::pair<std::string, std::string>>> computedFrom_{*this};  ///< names and texts

 public:
  Frame Frame1{*this, "Frame1", "Engine", 0};
  Field Text1{Frame1, "Text1", "Bore", "39.5",
              Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Bore))};
  Field Text11{Frame1, "Text11", "Stroke", "39.5",
               Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::Stroke))};
  Field Text36{Frame1, "Text36", "Number of Cylinders", "1",
               Entry(KeyRule::Digits, Holds(&P::NumberofCylinders))};
  Field Text5{Frame1, "Text5", "RPM", "11000",
              Entry(KeyRule::Digits, Unit::RevolutionsPerMinute, Holds(&P::RPM).Pattern<"0">())};
  Field Text6{Frame1, "Text6", "Power-KW", "3.71",
              Entry(KeyRule::UnsignedReal, Unit::Power, Holds(&P::PowerKW).NotConverted())};
  Field Text12{Frame1, "Text12", "Horse Power", "4.975", KeyRule::OutputOnly};
  Field Text10{Frame1,
               "Text10",
               "Cylinder Size - cc",
               "48.404",
               Entry(KeyRule::OutputOnly, Unit::Volume,
                     Holds(&P::CubicInches).By(kEngineSizeRule).NotShownAtOpening()),
               "Of one cylinder."};
  Field Text9{Frame1, "Text9", "BMEP - Bars", "6.5697",
              Entry(KeyRule::OutputOnly, Unit::MeanPressure, Holds().NotConverted())};

  Frame Frame2{*this, "Frame2", "Exhaust Port and Gas", 0};
  Field Text2{
      Frame2, "Text2", "Duration ", "125.5",
      Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::ExhaustDuration).ShownAtOpening())};
  Field Text3{
      Frame2, "Text3", "Port Width", "19.5",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ExhaustPortWidth).NotConverted())};
  Field Text4{
      Frame2, "Text4", "Port Height", "9.25",
      Entry(KeyRule::UnsignedReal, Unit::Length, Holds(&P::ExhaustPortHeight).NotConverted())};
  Field Text15{
      Frame2, "Text15", "Gas Temp   C", "381.856",
      Entry(KeyRule::SignedReal, Unit::Temperature, Holds(&P::ExhaustGasTemp).NotConverted())};
  CheckBox Check1{Frame2, "Check1", "Calc Exh Temp",
                  "The gas temperature is worked out from the BMEP and takes no entry.",
                  &Form11::ChooseGasTemperature};
  Field Text7{
      Frame2, "Text7", "Speed of Sound", "518.15",
      Entry(KeyRule::UnsignedReal, Unit::SurfaceSpeed, Holds(&P::SpeedofSound).NotConverted())};
  CheckBox Check3{Frame2, "Check3", "Calc Speed of Sound",
                  "The speed of sound is worked out from the gas temperature and takes no entry.",
                  &Form11::ChooseSpeedOfSound};

  Frame Frame3{*this, "Frame3", "Two and Three Stages", 1};
  Field Text26{Frame3,
               "Text26",
               "K0 (0.6 - 0.7)",
               "0.7",
               Entry(KeyRule::UnsignedReal, Holds(&P::KonstantK0)),
               "Diameter of the tail pipe by that of the port."};
  Field Text28{Frame3,
               "Text28",
               "K1 (1.05 - 1.125)",
               "1.125",
               Entry(KeyRule::UnsignedReal, Holds(&P::KonstantK1)),
               "Diameter at the header's end by that of the port."};
  Field Text29{Frame3,
               "Text29",
               "K2 (2.125 - 3.250)",
               "2.25",
               Entry(KeyRule::UnsignedReal, Holds(&P::KonstantK2)),
               "Diameter of the belly by that of the port."};
  Field Text14{Frame3,
               "Text14",
               "Horn Coeff  (1 - 2)",
               "2",
               Entry(KeyRule::UnsignedReal, Holds(&P::HornCoeff)),
               "How late the horn of three stages widens."};
  Command Command1{Frame3, "Command1", "&2 Stage",
                   "Calculate the Lengths and Diameters of a Chamber with a Two Stage Diffuser.",
                   &Form11::SolveTwoStage};
  Command Command2{Frame3, "Command2", "&3 Stage",
                   "Calculate the Lengths and Diameters of a Chamber with a Three Stage Diffuser "
                   "in the form of a Horn.",
                   &Form11::SolveThreeStage};
  Label StageHints{Frame3, "StageHints", ""};

  Frame Frame6{*this, "Frame6", "Single and One Stage", 1};
  Field Text32{Frame6,
               "Text32",
               "D1 (10 - 15%)",
               "12.5",
               Entry(KeyRule::UnsignedReal, Unit::Percent, Holds(&P::Diameter1)),
               "What the header is wider than the port; for Single only."};
  Field Text33{Frame6,
               "Text33",
               "D3 (.58 - .62)",
               "0.6",
               Entry(KeyRule::UnsignedReal, Holds(&P::Diameter3)),
               "Diameter of the tail pipe by that of the header; for Single only."};
  Field Text30{Frame6,
               "Text30",
               "Angle 1 (7 - 10)",
               "8.5",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::Angel1)),
               "Of the diffuser's side to its axis."};
  Field Text31{Frame6,
               "Text31",
               "Angle 2 (14 - 20)",
               "17.0",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::Angel2)),
               "Of the baffle's side to its axis."};
  Field Text34{Frame6,
               "Text34",
               "L3 (6 - 11)",
               "8.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::Length3)),
               "Length of the header by its diameter."};
  Field Text35{Frame6,
               "Text35",
               "L7 (12)",
               "12.0",
               Entry(KeyRule::UnsignedReal, Holds(&P::Length7)),
               "Length of the tail pipe by its diameter."};
  Command Command3{Frame6, "Command3", "&Single",
                   "Calculate the Lengths and Diameters of a Chamber with a Single Stage Diffuser "
                   "by D1, D3 and the Angles.",
                   &Form11::SolveSingleStage};
  Command Command4{Frame6, "Command4", "&One",
                   "Calculate the Lengths and Diameters of a Chamber with a One Stage Diffuser of "
                   "1.2, 2.5 and 0.6 times the Port's Diameter, by the Angles.",
                   &Form11::SolveOneStage};
  Label SingleHints{Frame6, "SingleHints", ""};
  /// Tells of sections that cannot be made.
  Label Remark{Frame6, "Remark", ""};

  Frame Frame4{*this, "Frame4", "Two / Three Stage Diffuser", 2};
  Drawing Stages{Frame4, "Stages",
                 "2 Stage, 3 Stage, Single or One draws the chamber here, to scale."};
  Frame Frame5{*this, "Frame5", "Single / One Stage Diffuser", 2};
  Drawing SingleStage{Frame5, "SingleStage", "Single or One draws the chamber here, to scale."};

  Frame Frame7{*this, "Frame7", "Sections", 2};
  ResultLabel L1{Frame7, "L1", "L1", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel L2{Frame7, "L2", "L2", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel L3{Frame7, "L3", "L3", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel L4{Frame7, "L4", "L4", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel L5{Frame7, "L5", "L5", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel L6{Frame7, "L6", "L6", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel L7{Frame7, "L7", "L7", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel LT{Frame7, "LT", "LT", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel D1{Frame7, "D1", "D1", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel D2{Frame7, "D2", "D2", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel D3{Frame7, "D3", "D3", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel D4{Frame7, "D4", "D4", Unit::Length, {}, {}, Holds().NotConverted()};
  ResultLabel D5{Frame7, "D5", "D5", Unit::Length, {}, {}, Holds().NotConverted()};
  Table Rows{Frame7,
             "Rows",
             "Sections",
             {{"Section Length", {&L1, &L2, &L3, &L4, &L5, &L6, &L7, &LT}},
              TableColumn("Inside Diameter", {&D1, &D2, &D3, &D4, &D5}).Wide(18)},
             {"", {"L1 / D1", "L2 / D2", "L3 / D3", "L4 / D4", "L5 / D5", "L6", "L7", "LT"}}};
  Command ChamberReport{Frame7, "ChamberReport", "Chamber &Report",
                        "Show the Sections with their Diameters and Circumferences as a Report, "
                        "which is printed with the Drawing on one page.",
                        CommandWork(&Form11::ReportChamber, CommandRole::Serves)};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
