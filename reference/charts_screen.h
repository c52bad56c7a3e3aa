#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/screen.h"
#include "reference/charts.h"

namespace veldox {

/// Equivalence charts: drills, taps, steels and dash sizes, and tables from one unit to another,
/// each a report to read, to search and to print.
class Form10 : public Screen {
 public:
  explicit Form10(ProgramContext& context);

  Control* HelpPlace() override { return &Text38; }
  ReportBox* ReportPane() override { return &Text38; }
  bool UsesSharedValues() const override { return false; }

 private:
  /// What a command for one of the charts does.
  template <std::string (*Chart)(DecimalMark)>
  void ShowChart() {
    ShowReport(Chart(mark()));
  }
  void ShowConversionChart(int command) { ShowReport(ConversionChart(command, mark())); }

  /// The commands for tables from one unit to another. They stand in data/conversions.tsv: each
  /// of its subjects makes a frame, each of its tables a command.
  class Conversions {
   public:
    explicit Conversions(Screen& screen);

   private:
    std::vector<std::unique_ptr<Frame>> frames_;
    std::vector<std::unique_ptr<Command>> commands_;
  };

 public:
  Frame Frame1{*this, "Frame1", "Fractions and Drills", 0};
  Command Command1{Frame1, "Command1", "Decimal <---> Fraction",
                   "Show the fractions of an inch by 64ths, in inches and millimetres.",
                   CommandWork(&Form10::ShowChart<FractionChart>, CommandRole::Serves)};
  Command Command2{Frame1, "Command2", "Number Drill Sizes in Decimal",
                   "Show the diameters of the number drills, 1 to 80.",
                   CommandWork(&Form10::ShowChart<NumberDrillChart>, CommandRole::Serves)};
  Command Command3{Frame1, "Command3", "Alpha Drill Sizes in Decimal",
                   "Show the diameters of the letter drills, A to Z.",
                   CommandWork(&Form10::ShowChart<LetterDrillChart>, CommandRole::Serves)};
  Command Command30{Frame1, "Command30", "All Drill Sizes in Decimal",
                    "Show the drills by fractions, numbers and letters in the order of their "
                    "size, in inches and millimetres.",
                    CommandWork(&Form10::ShowChart<AllDrillChart>, CommandRole::Serves)};

  Frame Frame2{*this, "Frame2", "Taps", 0};
  Command Command18{Frame2, "Command18", "Tap ---> Drill Size",
                    "Show the drills for National Coarse and National Fine taps.",
                    CommandWork(&Form10::ShowChart<TapDrillChart>, CommandRole::Serves)};
  Command Command19{Frame2, "Command19", "Pipe Tap ---> Drill Size",
                    "Show the drills for taps of taper pipe threads.",
                    CommandWork(&Form10::ShowChart<PipeTapChart>, CommandRole::Serves)};
  Command Command20{Frame2, "Command20", "Metric Tap ---> Drill Size",
                    "Show the drills for metric taps.",
                    CommandWork(&Form10::ShowChart<MetricTapChart>, CommandRole::Serves)};

  Frame Frame3{*this, "Frame3", "Steels and Fittings", 3};
  Command Command31{Frame3, "Command31", "Basic Numbering System - SAE Steels",
                    "Show what the numbers of steels tell.",
                    CommandWork(&Form10::ShowChart<SteelChart>, CommandRole::Serves)};
  Command Command32{Frame3, "Command32", "AN Dash Size",
                    "Show the diameters and threads of AN hoses, tubes and fittings.",
                    CommandWork(&Form10::ShowChart<DashSizeChart>, CommandRole::Serves)};

  Conversions ConversionCommands{*this};

  Frame HelpFrame{*this, "HelpFrame", ""};
  ReportBox Text38{HelpFrame, "Text38"};
  Command subend{HelpFrame, "subend", "&Quit", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
