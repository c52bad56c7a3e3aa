#pragma once

// Screens that only tests know: they hold what several screens of the program need, in one
// place and without their formulas.

#include <string>

#include "core/field_array.h"
#include "core/kept.h"
#include "core/panel.h"
#include "core/results.h"
#include "core/screen.h"
#include "core/table.h"

namespace veldox {

/// A flow bench: tables in a panel, a panel over that panel, results in labels and lines.
class FlowBench : public Screen {
 public:
  explicit FlowBench(ProgramContext& context)
      : Screen(context, "FlowBench", "Flow Bench", "Bench") {}

  CheckBox* MetricBox() override { return &Check1; }
  Control* HelpPlace() override { return &Label7; }
  ReportBox* ReportPane() override { return &Text78; }

  Kept<int> averages{*this};       ///< how often Command1 has run
  Kept<int> graphs{*this};         ///< how often Command3 has run
  Kept<int> lastReset{*this, -1};  ///< index of the command that has reset a table

  Frame Frame1{*this, "Frame1", "Flow", 0};
  Field Text1{Frame1, "Text1", "Test Pressure", "28", KeyRule::UnsignedReal};
  Field Text2{
      Frame1,           "Text2", "Ports", "1", Entry(KeyRule::Digits, LeaveCheck::HasDigits),
      "How many ports."};
  CheckBox Check1{Frame1, "Check1", "Metric", "Lifts in millimetres.", &FlowBench::SwitchMetric};
  CheckBox Check2{Frame1, "Check2", "Fixed Pressure", "", &FlowBench::FixPressure};
  Command Command1{Frame1, "Command1", "&Average", "Average flow of the intake port.",
                   &FlowBench::Average};
  Command Command35{Frame1, "Command35", "Analyze &Flow Data", "Enter the flows of both ports.",
                    Opens(&FlowBench::Frame11)};
  Command Command50{Frame1, "Command50(0)", "&Valve Sizing", "", Opens(&FlowBench::Frame8)};

  Frame Frame4{Frame1, "Frame4", "Results", 1};
  ResultLabel L1{Frame4, "L1", "Average Flow", Unit::None, "Mean of the intake flows."};
  ResultLabel L2{Frame4, "L2", "Largest Lift", Unit::Length};
  ResultLabel L3{Frame4, "L3", "Flow per Lift"};
  Command Command3{Frame4, "Command3", "&Answers", "Write the results.", &FlowBench::Answers};
  ResultLines Text3{Frame4, "Text3", "Answers", "The results in words."};

  Frame Frame5{*this, "Frame5", "Pressure Units", 1};
  OptionGroup Option1{Frame5, "Option1", "", {{1, "PSI", ""}, {2, "kPa", ""}}, 1, 2};
  Frame Frame6{*this, "Frame6", "Length Units", 1};
  OptionPart Option1Lengths{Frame6, Option1, {{9, "MilliMeters (MM)", ""}, {11, "Inches", ""}}, 2};

  Panel Frame11{*this, "Frame11", "Air Flow Details"};
  Frame Frame11a{Frame11, "Frame11a", "Intake Port", 0};
  FieldArray Text48{Frame11a,
                    "Text48",
                    16,
                    "Lift",
                    {".050", ".100", ".200", ".300", ".400", ".500", ".600", ".700", ".800"},
                    Entry(KeyRule::UnsignedReal, Unit::Length),
                    "Valve lift of the row."};
  FieldArray Text49{
      Frame11a, "Text49", 16, "Flow", {"32.5", "65", "120.25", "165", "0"}, KeyRule::UnsignedReal};
  FieldArray Text52{Frame11a, "Text52", 16, "Flow / Lift", "", KeyRule::OutputOnly};
  Table Intake{Frame11a, "Intake", "Intake", {Text48, Text49, Text52}};
  CommandArray CommandF3{Frame11a,
                         "CommandF3",
                         {{0, "Flow &per Lift", "Divide flow by lift.", &FlowBench::Divide},
                          {3, "&Reset Intake", "", &FlowBench::Reset},
                          {7, "Reset &Exhaust", "", &FlowBench::Reset}}};
  Frame Frame11b{Frame11, "Frame11b", "Exhaust Port", 1};
  LabelArray Label2{Frame11b, "Label2", {{50, "Lift"}, {51, "Flow"}}};
  FieldArray Text50{Frame11b, "Text50", 8,
                    "Lift",   ".1",     Entry(KeyRule::UnsignedReal, Unit::Length)};
  FieldArray Text51{Frame11b, "Text51", 8, "Flow", "50", KeyRule::SignedReal};
  Table Exhaust{Frame11b,
                "Exhaust",
                "Exhaust",
                {{Label2[50], Text50}, {Label2[51], Text51}},
                {"Gear", {"1st", "2nd", "3rd", "4th", "5th", "6th", "7th", "8th"}}};
  Command Command50b{Frame11b, "Command50(1)", "&Valve Sizing", "", Opens(&FlowBench::Frame8)};

  Panel Frame8{*this, "Frame8", "Valve and Throat Sizing"};
  Field Text7{Frame8, "Text7(0)", "Valve Diameter", "2.02",
              Entry(KeyRule::UnsignedReal, Unit::Length)};
  Field Text8{Frame8, "Text8", "Throat", "1.8", Entry(KeyRule::UnsignedReal, Unit::Length)};
  Command Command8{Frame8, "Command8", "&Throat", "Throat of 0.91 of the valve.",
                   &FlowBench::Throat};
  CommandArray Command91{Frame8,
                         "Command91",
                         {{4, "&Done", "Back.", PutsAway()},
                          CommandArray::Member(9, "&Done", "Back.", PutsAway()).In(Frame11b)}};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label7{HelpFrame, "Label7", ""};
  ReportBox Text78{HelpFrame, "Text78"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};

 private:
  void Average() {
    ++averages.Change();
    double sum = 0;
    for (const auto& field : Text49.fields()) sum += Read(*field);
    Show(L1, sum / Text49.count() / Read(Text2), {&Text2});
    Show(L2, Read(Text48[15]));
  }
  void Divide() {
    for (int i = 0; i < Text48.count(); ++i) {
      Show(Text52[i], Read(Text49[i]) / Read(Text48[i]), {&Text48[i]});
    }
  }
  void Reset(int index) {
    lastReset = index;
    for (const auto& field : (index == 3 ? Text49 : Text51).fields()) ShowText(*field, "0");
  }
  void Answers() {
    ++graphs.Change();
    Text3.SetText("Average: " + L1.text() + "\r\nLift: " + L2.text());
  }
  void Throat() { Show(Text8, Read(Text7) * 0.91); }
  void SwitchMetric() { SwitchUnits(); }
  void FixPressure() { Text1.SetReadOnly(Check2.on()); }
};

/// A screen of three pages.
class PagedBench : public Screen {
 public:
  explicit PagedBench(ProgramContext& context)
      : Screen(context, "PagedBench", "Paged Bench", "Pages") {}
  Control* HelpPlace() override { return &Label7; }

  Frame Frame1{*this, "Frame1", ""};
  Command Command1{Frame1, "Command1", "&Corner Weights", "", Opens(&PagedBench::Weights)};
  Command Command8{Frame1, "Command8", "C&G Height", "", Opens(&PagedBench::Height)};
  Command Command3{Frame1, "Command3", "&Spring Rate", "", Opens(&PagedBench::Springs)};
  ScreenPage Weights{*this, "Weights", "Corner Weights and Percentages"};
  Field Text1{Weights, "Text1", "Left Front", "800", KeyRule::UnsignedReal};
  Field Text2{Weights, "Text2", "Car Weight", "", KeyRule::OutputOnly};
  Command Command2{Weights, "Command2", "Car &Weight", "", &PagedBench::Weigh};
  ScreenPage Height{*this, "Height", "CG Height"};
  Field Text3{Height, "Text3", "Height", "18", Entry(KeyRule::UnsignedReal, Unit::Length)};
  Command Command4{Height, "Command4", "&Height", "", &PagedBench::Raise};
  ScreenPage Springs{*this, "Springs", "Spring Rate / Frequency"};
  Frame SpringFrame{Springs, "SpringFrame", "Springs", 0};
  FieldArray Text83{SpringFrame,          "Text83", 4, "Rate", {"800", "800", "600", "600"},
                    KeyRule::UnsignedReal};
  Table Corners{SpringFrame,
                "Corners",
                "Corners",
                {Text83},
                {"Corner", {"Left Front", "Right Front", "Left Rear", "Right Rear"}}};
  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label7{HelpFrame, "Label7", ""};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};

 private:
  void Weigh() { Show(Text2, Read(Text1) * 4); }
  void Raise() { Show(Text3, Read(Text3) + 1); }
};

}  // namespace veldox
