#pragma once

#include <memory>
#include <vector>

#include "core/tool_screen.h"
#include "core/vary.h"
#include "graph/grapher.h"

namespace veldox {

/// Vary: what comes of the values of a field, and of a second one, as a report, as curves and as
/// a file.
class VaryScreen : public ToolScreen {
 public:
  VaryScreen(ProgramContext& context, Grapher& grapher);

  Control* HelpPlace() override { return &HelpText; }
  ReportBox* ReportPane() override { return &Series; }
  void Edited(const Control& control) override;

 protected:
  void FieldChosen(const Field& field) override;
  void OfferResults(bool anew) override;
  void ChooseResult(Field& result) override;
  Field* ChosenResult() const override { return static_cast<Field*>(Results[0].chosenControl()); }

 private:
  /// Where the values of a field are entered.
  struct Entries {
    Field& from;
    Field& to;
    Field& step;
    Field& list;
  };
  /// The lists of the results, called "Result1" and on, as many as a series has at most.
  class ResultLists {
   public:
    explicit ResultLists(Frame& frame);
    ControlList& operator[](std::size_t index) const { return *lists_[index]; }
    const std::vector<std::unique_ptr<ControlList>>& all() const { return lists_; }

   private:
    std::vector<std::unique_ptr<ControlList>> lists_;
  };

  void ShowSeries();
  void ShowCurves();
  void SaveSeries();

  Variation ReadVariation();
  std::vector<double> ReadValues(const Entries& entries);
  std::vector<VariedSeries> WorkOut(const Variation& variation);
  void FillRange(const Entries& entries, const Field& field);
  std::vector<GraphCurve> Curves(const Variation& variation,
                                 const std::vector<VariedSeries>& all) const;
  std::vector<Control*> ChosenResults() const;
  void OfferCurves();
  void EnableSecond();

  Grapher& grapher_;

 public:
  Frame ValuesFrame{*this, "ValuesFrame", "Values of the Field", 0};
  Field From{ValuesFrame, "From", "From", "0", KeyRule::SignedReal, "The first value."};
  Field To{ValuesFrame,
           "To",
           "To",
           "10",
           KeyRule::SignedReal,
           "The last value is the last one that is not beyond this."};
  Field Step{ValuesFrame,
             "Step",
             "Step",
             "1",
             KeyRule::SignedReal,
             "How far each value is from the one before it; below 0 the values go down."};
  TextField Values{
      ValuesFrame, "Values", "Or Values",
      "Single values in place of From, To and Step, with blanks between them: 300 350 400",
      kValuesCharacters};

  Frame ResultFrame{*this, "ResultFrame", "Results", 1};
  ResultLists Results{ResultFrame};

  Frame SecondFrame{*this, "SecondFrame", "For Each Value of a Second Field", 2};
  ControlList SecondList{
      SecondFrame, "SecondList", "Second Field",
      "A field whose values each give a series of their own: a family of curves.", "(none)"};
  Field SecondFrom{SecondFrame, "SecondFrom", "From", "0", KeyRule::SignedReal, "The first value."};
  Field SecondTo{
      SecondFrame, "SecondTo",          "To",
      "10",        KeyRule::SignedReal, "The last value is the last one that is not beyond this."};
  Field SecondStep{SecondFrame,
                   "SecondStep",
                   "Step",
                   "1",
                   KeyRule::SignedReal,
                   "How far each value is from the one before it; below 0 the values go down."};
  TextField SecondValues{
      SecondFrame, "SecondValues", "Or Values",
      "Single values in place of From, To and Step, with blanks between them: 300 350 400",
      kValuesCharacters};

  Frame ShowFrame{*this, "ShowFrame", "Work Out", 2};
  ControlList CurveList{ShowFrame, "CurveList", "Curve of",
                        "The result whose curve is drawn. All results have one scale.",
                        "All Results"};
  Command Show_Series{ShowFrame, "Show_Series", "&Report",
                      "Run the Command with each value of the Field and show the Results as a "
                      "report. Nothing is changed on the screen.",
                      &VaryScreen::ShowSeries};
  Command Show_Curves{ShowFrame,
                      "Show_Curves",
                      "&Graph",
                      "Run the Command with each value of the Field and draw the results over it. "
                      "A Second Field gives a family of curves.",
                      &VaryScreen::ShowCurves,
                      CommandRole::Serves};
  Command Save_Series{ShowFrame,
                      "Save_Series",
                      "&CSV File",
                      "Run the Command with each value of the Field and write the values and the "
                      "Results to a file that spreadsheets read.",
                      &VaryScreen::SaveSeries,
                      CommandRole::Serves};

  Frame FootFrame{*this, "FootFrame", ""};
  ReportBox Series{FootFrame, "Series"};
  Label HelpText{FootFrame, "HelpText", ""};
  Command subend{FootFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};

 private:
  static constexpr int kValuesCharacters = 22;
};

}  // namespace veldox
