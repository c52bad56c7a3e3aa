#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/kept.h"
#include "core/pick_list.h"
#include "core/screen.h"
#include "vehicle/gearbox.h"

namespace veldox {

/// The transmission finder: a pick from the lists of production transmissions puts its ratios, and
/// what is known of the drives before and behind it, into the shared values and into all screens
/// that show them.
class Form19 : public Screen {
 public:
  explicit Form19(ProgramContext& context);

  /// Has a screen told of every transmission picked.
  void AddTaker(GearboxTaker& taker) { takers_.push_back(&taker); }

  /// @param menuItem  a list's menu entry, "User_Trans" for the user's own rows, or "Trans" for the
  ///                  rows of all lists
  void LoadList(std::string_view menuItem) override;
  Control* HelpPlace() override { return &Label1; }

 private:
  void PickGearbox();
  void ReadUserRows();
  /// Shows rows with the one in use marked.
  void Offer(std::vector<PickRow> rows);
  void StoreGearbox(const Gearbox& gearbox);
  /// True for a row whose ratios are those of the shared values.
  bool IsInUse(const PickRow& row) const;
  /// True where the row picked stands in a list of automatic transmissions.
  bool PickedIsAutomatic() const;

  std::vector<GearboxTaker*> takers_;
  Kept<std::string> list_{*this, {}, Aspect::Place};  ///< menu entry of the rows shown
  std::map<std::string, PickPlace, std::less<>> places_;

 public:
  Frame Frame1{*this, "Frame1", "Trans Ratio Finder"};
  PickList Combo1{Frame1, "Combo1", "Transmissions",
                  "Type to narrow the list, for example a maker and a name. A click or Enter puts "
                  "the ratios into the screens that work with gears.",
                  &Form19::PickGearbox};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label1{HelpFrame, "Label1", ""};
  Command subend{HelpFrame, "subend", "&O K", "Close this screen.", &Screen::Quit};
};

}  // namespace veldox
