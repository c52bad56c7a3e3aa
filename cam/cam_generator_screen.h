#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cam/cam_files.h"
#include "cam/curve_fit.h"
#include "cam/duration_table.h"
#include "cam/lift_curve.h"
#include "core/field_array.h"
#include "core/kept.h"
#include "core/results.h"
#include "core/screen.h"
#include "core/table.h"

namespace veldox {

/// The cam lift curve generator: makes lift files without a cam in hand, by a motion law scaled to
/// a duration and a lift, or by a curve through the durations of a cam report.
class Form33 : public Screen {
 public:
  /// @param files  what keeps the lift tables
  Form33(ProgramContext& context, CamFiles& files);

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }
  void Edited(const Control& control) override;

 private:
  static constexpr int kReportRows = 24;
  static constexpr int kTopRow = kReportRows;

  /// Maximum lift and flanks of a generation.
  struct Generation {
    double lift = 0;
    LobeSize size;
    std::string durationText;  ///< as the file tells it
  };
  /// What a command has generated, line by line.
  struct Output {
    std::string comments;
    std::string step;
    std::vector<std::string> records;
    std::size_t nose = 0;
    bool isLiftFile = true;  ///< false: columns to read, no lift file
  };

  /// The work of a command that makes a lobe by a law.
  static CommandWork Generates(const MotionLaw& law);
  void GenerateByLaw(const MotionLaw& law);
  void GenerateModifiedEllipse();
  void GenerateLashRamp();
  void GenerateLashRampByRate();
  void GenerateFromDurations();
  void GenerateFromEvents();
  void GenerateCurve() { MakeCurve(false); }
  void GenerateCurveWithInputs() { MakeCurve(true); }
  void SolveMaxVelocity();
  void SolveMinDiameter();
  void ClearDurations();
  void SortByLift();
  void SortByDuration();
  void SolveDurations();
  void StoreIntakeTable();
  void StoreExhaustTable();
  void ConvertLengths();

  void Tell(const std::string& text);
  /// Tells why and ends the command. @throws CommandError (Cancelled)
  [[noreturn]] void Stop(const std::string& text);
  std::optional<double> NumberIn(const Field& field) const;
  /// A cell of a column into its shared value: 0 when it is blank, below 0 when it is no number.
  double ReadCell(Field& field);
  double ReadStep();

  /// Maximum lift and the duration at no lift; what is missing is told and replaced.
  Generation BeginGeneration();
  /// The same with both flanks of a lobe by law.
  Generation BeginLobe();
  double DurationOrUsual(Field& field, const char* missing);
  /// A duration of more records than can be read becomes 360 degrees, which is told.
  bool LimitDuration(Generation& generation);
  /// Ends the command for more records than a lift file may have.
  void RequireReadable(double records);
  /// A flank must have a record between the base circle and the nose.
  void RequireFlank(const LobeSize& size);
  Output OutputOf(const std::string& name, const Generation& generation) const;
  void FinishLobe(Output output, const LiftCurve& curve, double step);

  struct Ramp {
    std::vector<double> rising;
    double height = 0;
  };
  using RampMaker = std::function<Ramp(const Generation& generation, double length)>;
  void GenerateRamp(const std::string& kind, const RampMaker& makeRamp);

  void GenerateFromTable(FlankSource source);
  /// The events of a row, both 0 where both cells are blank. Nothing where only one of them is, or
  /// where one is no number.
  std::optional<ValveEvents> ReadEvents(Field& open, Field& close);
  std::vector<DurationRow> ReadRows(FlankSource source);
  void TellIgnoredRows(const std::vector<int>& rows);
  FittedCurve Fit(const std::vector<CurvePoint>& points);
  std::string CommentsOf(const FittedCurve& curve) const;
  std::string PairComment(double lift, double duration) const;

  void MakeCurve(bool withInputs);
  std::vector<CurvePoint> ReadCurvePoints();
  /// True for a row of the table that is a point of a curve.
  bool HoldsPoint(int row) const;

  /// Sorts the rows by their keys; those without a key stand at the end.
  using SortKey = std::optional<double> (Form33::*)(int row) const;
  void SortRows(SortKey key);
  std::optional<double> LiftKey(int row) const;
  std::optional<double> DurationKey(int row) const;

  /// A record of a file. @throws CommandError (InvalidArgument) for what is no number
  std::string RecordText(double number) const;
  /// Shows the text, asks for a file and writes it.
  void Save(const Output& output);
  void ShowLobe(const LiftCurve& curve, double step);
  void ForgetLobe();
  /// Compares the lobe's velocity with what the tappet allows.
  void JudgeVelocity();
  void StoreTable(bool exhaust);

  CamFiles& files_;
  Kept<LiftCurve> lobe_{*this};   ///< the last one generated; empty for none
  Kept<double> lobeStep_{*this};  ///< degrees
  Kept<bool> lobeIsMetric_{*this};

 public:
  Frame Frame1{*this, "Frame1", "Cam Report", 0};
  FieldArray Text58{
      Frame1,
      "Text58",
      kReportRows + 1,
      "Lift",
      {".000", ".004", ".006", ".010", ".020", ".050", ".075", ".100", ".150", ".200", ".250",
       ".300", ""},
      Entry(KeyRule::UnsignedReal, Unit::Length, HoldsColumn<&P::CamGenL>().ConvertedAsShown())};
  FieldArray Text59{
      Frame1,      "Text59",
      kReportRows, "Duration",
      "0",         Entry(KeyRule::UnsignedReal, Unit::Degrees, HoldsColumn<&P::CamGenD>())};
  FieldArray Text60{
      Frame1,
      "Text60",
      kReportRows,
      "Open",
      {"44", "25", "22.5", "18.5", "11.5", "-.5", "-8", "-14", "-25", "-35", "-45.5", "-58.5", ""},
      Entry(KeyRule::SignedReal, Unit::Degrees, HoldsColumn<&P::CamGenO>())};
  FieldArray Text61{
      Frame1,
      "Text61",
      kReportRows,
      "Close",
      {"76", "59.5", "57", "53", "46.5", "34", "26", "19.5", "7.5", "-3.5", "-15", "-28.5", ""},
      Entry(KeyRule::SignedReal, Unit::Degrees, HoldsColumn<&P::CamGenC>())};
  FieldArray Text62{
      Frame1,
      "Text62",
      kReportRows,
      "Open",
      {"79", "58.5", "55.5", "51", "42.5", "27", "17.5", "9.5", "-5", "-19", "-33.5", "-50", ""},
      Entry(KeyRule::SignedReal, Unit::Degrees, HoldsColumn<&P::CamGenAsymO>())};
  FieldArray Text63{
      Frame1,
      "Text63",
      kReportRows,
      "Close",
      {"111", "90.5", "87.5", "83", "74.5", "59", "49.5", "41.5", "27", "13", "-1.5", "-18", ""},
      Entry(KeyRule::SignedReal, Unit::Degrees, HoldsColumn<&P::CamGenAsymC>())};
  Label Label2{Frame1, "Label2", "USER MUST Supply .000 Duration --->"};
  Table ReportTable{Frame1,
                    "ReportTable",
                    "Cam Report",
                    {Text58, Text59, Text60, Text61, {"Asym Open", Text62}, {"Asym Close", Text63}},
                    {"", {".000",   "Row 1",  "Row 2",  "Row 3",   "Row 4",  "Row 5",  "Row 6",
                          "Row 7",  "Row 8",  "Row 9",  "Row 10",  "Row 11", "Row 12", "Row 13",
                          "Row 14", "Row 15", "Row 16", "Row 17",  "Row 18", "Row 19", "Row 20",
                          "Row 21", "Row 22", "Row 23", "Max Lift"}}};
  Label Label3{Frame1, "Label3", "<- Max Lift MUST HAVE"};
  Command Command26{Frame1, "Command26", "Calculate Duration",
                    "Using Open and Close for each Lift from a Cam Report Calculate Needed "
                    "Duration.",
                    &Form33::SolveDurations};
  Command Command8{Frame1, "Command8", "Clear Duration",
                   "This will Clear / Set to Zero the Duration, Open and Close Degree Fields.",
                   &Form33::ClearDurations};
  Command Command23{Frame1, "Command23", "Sort by Lift -->",
                    "Let's you sort the Lift number in Ascending order (Duration for each Lift is "
                    "also moved).",
                    &Form33::SortByLift};
  Command Command25{Frame1, "Command25", "Sort by Duration",
                    "Let's you sort the Duration number in Ascending order (Lift for each Duration "
                    "is also moved). This is of use when Generating Curve Data.",
                    &Form33::SortByDuration};

  Frame Frame7{*this, "Frame7", "Constant Lash Ramps", 0};
  OptionGroup Option1{Frame7,
                      "Option1",
                      "",
                      {{0, "V-1", "Constant velocity."},
                       {1, "A-2", "Constant acceleration."},
                       {2, "J-3", "Constant jerk."},
                       {3, "S-4", "Constant snap."},
                       {4, "C-5", "Constant crackle."},
                       {5, "P-6", "Constant pop."}},
                      0,
                      6};
  Command Command14{Frame7, "Command14", "Constant Lash Ramp",
                    "Generate a Constant Lash Ramp based on the style / radio buttom clicked and "
                    "using .000 Lift Duration for the Lash Length",
                    &Form33::GenerateLashRamp};
  Command Command21{Frame7, "Command21", "Constant Lash Ramp User Rate",
                    "Generate a Constant Velocity, Acceleration, Jerk, or Snap Lash Ramp using "
                    ".000 Lift Duration for the Lash Length",
                    &Form33::GenerateLashRampByRate};
  Command Command22{Frame7, "Command22", "Constant Lash Ramp User Rate",
                    "Generate a Constant Velocity, Acceleration, Jerk, or Snap Lash Ramp using "
                    ".000 Lift Duration for the Lash Length",
                    &Form33::GenerateLashRampByRate};

  Frame Frame2{*this, "Frame2", "Cam File", 1};
  Field Text2{Frame2,
              "Text2",
              "Every x Degrees",
              "2.0",
              Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(), LeaveCheck::HasDigits),
              "Degrees between the records of the file."};
  CheckBox Check3{Frame2, "Check3", "Output S96 File",
                  "Write only the lifts, padded to 360 degrees. Every x Degrees must be 2."};
  CheckBox Check2{Frame2, "Check2", "Asymmetrical",
                  "The closing flank has a duration of its own, or events of its own."};
  Field Text20{Frame2,
               "Text20",
               ".000 Duration --->",
               "370",
               Entry(KeyRule::UnsignedReal, Unit::Degrees, Holds(&P::AsymmetricalZeroDurat)),
               "Duration at no lift that the closing flank is half of, where the lobe is "
               "asymmetrical."};
  CheckBox Check1{Frame2, "Check1", "Metric", "Show and enter lifts and diameters in millimetres.",
                  &Form33::ConvertLengths};

  Frame Frame3{*this, "Frame3", "Data Generation Method", 1};
  OptionGroup Option2{
      Frame3,
      "Option2",
      "",
      {{0, "Poly", "A polynomial that comes near to all points."},
       {1, "Spline", "A cubic spline through all points."},
       {2, "Spline I", "Cubics through all points that rise and fall only where the points do."}},
      0,
      3};
  ComboList Combo1{Frame3, "Combo1", "Degree of Poly"};
  Command Generate{Frame3, "Generate", "Generate Lift Data",
                   "Generate a Lift Data File using User supplied Duration for different Lift "
                   "points. Note this will only Generate a Symmetrical Profile.",
                   &Form33::GenerateFromDurations};
  Command Generate_OC{Frame3, "Generate_OC", "Gen Lift Data O C",
                      "Generate a Lift Data File using User supplied Open and Close degrees for "
                      "different Lift points. Note this can be used a Generate an Asymmetrical "
                      "Profile.",
                      &Form33::GenerateFromEvents};
  Command Gen_Curv{Frame3, "Gen_Curv", "Generate Curve Data",
                   "Generate Curve Data. Unlike Generating Cam Data this does not Sequence Check "
                   "the Lift Data Col. Min Number of Data Point 3.",
                   &Form33::GenerateCurve};
  Command Gen_Curv2{Frame3, "Gen_Curv2", "Generate Curve Data 2",
                    "Generate Curve Data Outputing both Inputs. Unlike Generating Cam Data this "
                    "does not Sequence Check the Lift Data Col. Min Number of Data Point 3.",
                    &Form33::GenerateCurveWithInputs};

  Frame Frame4{*this, "Frame4", "Flat Tappet or Bucket", 1};
  Field Text5{Frame4, "Text5", "Tappet / Bucket Diameter", ".842",
              Entry(KeyRule::UnsignedReal, Unit::Length,
                    Holds(&P::TappetBucketDiameter).ConvertedAsShown())};
  Field Text1{Frame4,
              "Text1",
              "Max Velocity",
              ".007",
              Entry(KeyRule::UnsignedReal, Unit::LengthPerDegree,
                    Holds(&P::TappetMaxVelocity).ConvertedAsShown()),
              "Lift by degree of the camshaft."};
  Command Command9{Frame4, "Command9", "Calculate Max Velocity",
                   "Using Tappet / Bucket Diameter calculate the Maximium Velocity before the cam "
                   "lobe will run over the edge of the Tappet / Bucket.",
                   &Form33::SolveMaxVelocity};
  Command Command24{Frame4, "Command24", "Calculate Min Diameter",
                    "Using Maximium Velocity calculate the Minimum Tappet / Bucket Diameter before "
                    "the cam lobe will run over the edge of the Tappet / Bucket.",
                    &Form33::SolveMinDiameter};

  Frame Frame5{*this, "Frame5", "Generated Lobe", 1};
  ResultLabel LobeRecords{
      Frame5, "LobeRecords",         "Records", Unit::None, "Records of the lobe in the file.",
      "",     Holds().Pattern<"0">()};
  ResultLabel LobeAreaText{Frame5, "LobeAreaText", "Area", Unit::LengthDegrees,
                           "Area under the lift curve, in degrees of the file."};
  ResultLabel PeakVelocityText{Frame5, "PeakVelocityText", "Peak Velocity", Unit::LengthPerDegree,
                               "The fastest lift of the lobe by degree of the camshaft."};
  OptionGroup Option3{
      Frame5,
      "Option3",
      "",
      {{0, "Crank Degrees", "Durations are crank degrees, as cam cards tell them."},
       {1, "Cam Degrees", "Durations are degrees of the camshaft, half of those of the crank."}},
      0,
      2};
  Label VelocityNote{Frame5, "VelocityNote", ""};
  Command IntakeTable{Frame5,
                      "IntakeTable",
                      "To Intake Table",
                      "Put this lobe into the intake lift table, as if its file had been read.",
                      &Form33::StoreIntakeTable,
                      CommandRole::Serves};
  Command ExhaustTable{Frame5,
                       "ExhaustTable",
                       "To Exhaust Table",
                       "Put this lobe into the exhaust lift table, as if its file had been read.",
                       &Form33::StoreExhaustTable,
                       CommandRole::Serves};

  Frame Frame6{*this, "Frame6", "Motion Laws", 2};
  Label Label1{Frame6, "Label1", "MUST HAVE .000 Duration and Max Lift - Other Inputs are Ignored"};
  Command Command3{Frame6, "Command3", "Polynomial 3th",
                   "On unit lift and flank: peak velocity 1.5, peak acceleration 6 and -6, with a "
                   "jump where it leaves the base circle.",
                   Generates(kPolynomial3)};
  Command Command2{Frame6, "Command2", "Polynomial 5th",
                   "On unit lift and flank: peak velocity 1.875, peak acceleration 5.77 and -5.77.",
                   Generates(kPolynomial5)};
  Command Command19{
      Frame6, "Command19", "Polynomial 5th N1",
      "On unit lift and flank: peak velocity 1.733, peak acceleration 4.58 and -6.67.",
      Generates(kPolynomial5N1)};
  Command Command7{Frame6, "Command7", "Polynomial 5th N2",
                   "On unit lift and flank: peak velocity 1.733, peak acceleration 6.67 and -4.58, "
                   "with a jump where it leaves the base circle.",
                   Generates(kPolynomial5N2)};
  Command Command1{Frame6, "Command1", "Polynomial 7th",
                   "On unit lift and flank: peak velocity 2.188, peak acceleration 7.51 and -7.51.",
                   Generates(kPolynomial7)};
  Command Command18{
      Frame6, "Command18", "Polynomial 9th",
      "On unit lift and flank: peak velocity 2.461, peak acceleration 9.37 and -9.37.",
      Generates(kPolynomial9)};
  Command Command16{
      Frame6, "Command16", "Polynomial 11th",
      "On unit lift and flank: peak velocity 2.051, peak acceleration 7.91 and -7.91.",
      Generates(kPolynomial11)};
  Command Command17{
      Frame6, "Command17", "Polynomial 11th Dw",
      "On unit lift and flank: peak velocity 1.758, peak acceleration 8.37 and -8.37.",
      Generates(kPolynomial11Dwell)};
  Command Command20{
      Frame6, "Command20", "Polynomial 3-4-5",
      "On unit lift and flank: peak velocity 1.733, peak acceleration 4.58 and -6.67.",
      Generates(kPolynomial345)};
  Command Command11{Frame6, "Command11", "Polynomial 3-4-5-6",
                    "On unit lift and flank: peak velocity 1.717, peak acceleration 4.8 and -6.",
                    Generates(kPolynomial3456)};
  Command Command12{
      Frame6, "Command12", "Polynomial 3-4-5-6-7 D",
      "On unit lift and flank: peak velocity 1.809, peak acceleration 5.63 and -5.63.",
      Generates(kPolynomial34567D)};
  Command Command13{
      Frame6, "Command13", "Polynomial 3-4-5-6-7 E",
      "On unit lift and flank: peak velocity 2.016, peak acceleration 6.43 and -6.41.",
      Generates(kPolynomial34567E)};
  Command Command4{Frame6, "Command4", "Double Harmonic 1",
                   "On unit lift and flank: peak velocity 2.041, peak acceleration 5.55 and -9.87.",
                   Generates(kDoubleHarmonic1)};
  Command Command5{Frame6, "Command5", "Double Harmonic 2",
                   "On unit lift and flank: peak velocity 2.041, peak acceleration 9.87 and -5.55, "
                   "with a jump where it leaves the base circle.",
                   Generates(kDoubleHarmonic2)};
  Command Command6{Frame6, "Command6", "Harmonic Sinusoidal",
                   "On unit lift and flank: peak velocity 1.571, peak acceleration 4.93 and -4.93, "
                   "with a jump where it leaves the base circle.",
                   Generates(kHarmonic)};
  Command Command10{Frame6, "Command10", "Cycloidal (Purdue)",
                    "On unit lift and flank: peak velocity 2, peak acceleration 6.28 and -6.28.",
                    Generates(kCycloidal)};
  Command Command15{
      Frame6, "Command15", "Modified Ellipse",
      "Harmonic motion, flatter or steeper in the middle of the flank by the M E Ratio.",
      &Form33::GenerateModifiedEllipse};
  Field Text21{Frame6,
               "Text21",
               "M E Ratio",
               ".005",
               Entry(KeyRule::SignedReal, Holds(&P::MERatio), LeaveCheck::HasDigits),
               "Ratio of the Modified Ellipse, from -.9999 to .9999."};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
