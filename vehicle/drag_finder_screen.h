#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/kept.h"
#include "core/pick_list.h"
#include "core/screen.h"
#include "vehicle/drag.h"

namespace veldox {

/// The drag finder: a pick from the lists of production cars puts the coefficient of drag and,
/// where the row has one, the frontal area into the shared values; closing the screen puts them
/// into the screens that work with them.
class Form20 : public Screen {
 public:
  explicit Form20(ProgramContext& context);

  /// Has a screen told of the vehicle picked when the finder closes.
  void AddTaker(DragTaker& taker) { takers_.push_back(&taker); }

  /// @param menuItem  "CD_FA" for the American cars, "CD_FA_Other" for the others, or
  ///                  "CoeffDrag_FrontalArea" for the rows of both lists
  void LoadList(std::string_view menuItem) override;
  Control* HelpPlace() override { return &Label1; }
  /// Hands on what was picked; nothing without a pick.
  void Closed() override;

 private:
  void PickAmerican() { PickCar(Combo1); }
  void PickOther() { PickCar(Combo2); }
  void PickCar(const PickList& list);
  /// The list that is shown.
  PickList& Shown() { return Combo2.visible() ? Combo2 : Combo1; }
  /// The group of the user's own rows; nothing where there is no file of them.
  /// @throws CommandError (File) for a file that cannot be read
  std::vector<PickRow> UserRows(PickRow::Kind heading) const;

  std::vector<DragTaker*> takers_;
  Kept<std::optional<DragFigures>> picked_{*this};    ///< since the finder opened
  Kept<std::string> list_{*this, {}, Aspect::Place};  ///< menu entry of the rows shown
  std::map<std::string, PickPlace, std::less<>> places_;

 public:
  Frame Frame1{*this, "Frame1", "CD / Frontal Area Finder"};
  PickList Combo1{Frame1, "Combo1", "American cars",
                  "Type to narrow the list, for example a year and a model. A click or Enter takes "
                  "the car, O K puts it into the Acceleration screen.",
                  &Form20::PickAmerican};
  PickList Combo2{
      Frame1, "Combo2", "Other cars",
      "Type to narrow the list, for example a maker and a model. A click or Enter takes "
      "the car, O K puts it into the Acceleration screen.",
      &Form20::PickOther};

  Frame HelpFrame{*this, "HelpFrame", ""};
  Label Label1{HelpFrame, "Label1", ""};
  Command subend{HelpFrame, "subend", "&O K",
                 "Put the car picked into the Acceleration screen and close this one.",
                 &Screen::Quit};
};

}  // namespace veldox
