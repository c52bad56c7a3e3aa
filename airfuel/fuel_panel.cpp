#include "airfuel/fuel_panel.h"

#include "airfuel/mass_air.h"

namespace veldox {

FuelPanel::FuelPanel(Screen& screen) : ScreenPart(screen) {
  Option7.WhenChanged(
      [this] { Stoichiometric.SetText(FormatValue<"0.0#">(StoichRatio(), mark())); });
}

double FuelPanel::StoichRatio() const {
  return StoichiometricRatio(Option7.chosen());
}

const std::string& FuelPanel::FuelName() const {
  return Option7.buttons()[static_cast<std::size_t>(Option7.chosen())]->caption();
}

}  // namespace veldox
