#pragma once

#include "core/panel.h"
#include "core/results.h"
#include "core/screen_part.h"

namespace veldox {

/// The fuel of the air and fuel screen: what a lambda value is taken for.
class FuelPanel : public ScreenPart {
 public:
  explicit FuelPanel(Screen& screen);

  void Open() { Frame18.Open(); }
  /// Pounds of air that burn a pound of the chosen fuel completely.
  double StoichRatio() const;
  /// The name of the chosen fuel.
  const std::string& FuelName() const;

  Panel Frame18{screen(), "Frame18", "Select Fuel Type for Use with Lambda Value"};
  OptionGroup Option7{Frame18,
                      "Option7",
                      "",
                      {{0, "Gasoline", "Gasoline burns with 14.7 times its weight of air."},
                       {1, "E85", "E85 burns with 9.77 times its weight of air."},
                       {2, "Ethanol", "Ethanol burns with 9.0 times its weight of air."},
                       {3, "Methanol", "Methanol burns with 6.4 times its weight of air."},
                       {4, "Diesel", "Diesel fuel burns with 14.6 times its weight of air."},
                       {5, "Propane", "Propane burns with 15.5 times its weight of air."},
                       {6, "Natural Gas", "Natural gas burns with 17.2 times its weight of air."}}};
  ResultLabel Stoichiometric{
      Frame18,
      "Stoichiometric",
      "Stoichiometric Air Fuel Ratio",
      Unit::None,
      "Pounds of air that burn a pound of the fuel completely: what a lambda of 1 stands for.",
      "14.7"};
  Command Command91{Frame18, "Command91(1)", "Done", "Back to the air and fuel flow.", PutsAway()};
};

}  // namespace veldox
