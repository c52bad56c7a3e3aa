#pragma once

#include <functional>
#include <string>

#include "core/appearance.h"
#include "core/host.h"
#include "core/screen_part.h"

namespace veldox {

/// How all screens look: fonts, colors, alignment and borders, chosen by items of the menu and by
/// lists that take the launcher's place.
class AppearancePanel : public ScreenPart {
 public:
  /// @param pickFont   asks the user for a font
  /// @param pickColor  asks the user for a color, as decimal text
  /// @param ownColors  what shows where no color is chosen
  AppearancePanel(Screen& screen, std::function<FontChoice()> pickFont,
                  std::function<std::string()> pickColor, std::function<PlainColors()> ownColors);

  /// What is done when the appearance was changed here.
  void SetListener(std::function<void()> listener) { listener_ = std::move(listener); }
  /// Puts the rows into the lists.
  void FillLists();
  /// Puts the shared values on the lists and tells the listener.
  void TellChanged();
  /// Tells that the appearance has changed, where the panel shows it already.
  void TellListener() const;
  /// The user has picked a row of one of the lists.
  void Picked(const Control& list);

  // What the items of the menu do. @throws CommandError (Cancelled)
  void PickHelpFont();
  void PickHelpColor();
  void PickHelpGround();
  void PickEntryFont();
  void PickLabelFont();
  void PickLabelColor();
  void PickCommandFont();
  void PickFrameGround();
  void PickQuitGround();
  void UseClassicLabels() { UseClassicFont(block().LabelBoxFontName); }
  void UseClassicCommands() { UseClassicFont(block().CommandButtonFontName); }
  void OpenAlignments() { OpenList(Combo3); }
  void OpenEntryBorders() { OpenList(Combo4); }
  void OpenOptionStyles() { OpenList(Combo5); }
  void UseDefaultLook();

 private:
  /// The letters of one kind of control in the shared values.
  struct FontSlots {
    std::string& name;
    std::int16_t& size;
    std::int16_t& bold;
    std::int16_t& italic;
  };
  void PickFontInto(const FontSlots& slots);
  void PickColorInto(std::int32_t& slot);
  void UseClassicFont(std::string& name);
  void OpenList(ComboList& list);
  /// Tells a contrast in which a text is hard to read.
  void TellContrast(ColorCode text, ColorCode ground);

  std::function<FontChoice()> pickFont_;
  std::function<std::string()> pickColor_;
  std::function<PlainColors()> ownColors_;
  std::function<void()> listener_;

 public:
  Frame OptionFrame{screen(), "OptionFrame", "User Selectable Entry GUI Options"};
  ComboList Combo3{OptionFrame, "Combo3", "Alignment for Entry Text"};
  ComboList Combo4{OptionFrame, "Combo4", "Entry Text Box Border Style"};
  ComboList Combo5{OptionFrame, "Combo5", "Option/Check Box Border Style"};
  ComboList Combo6{OptionFrame, "Combo6", "Color"};
  Command Exit_Sel_GUI{OptionFrame, "Exit_Sel_GUI", "Exit", "Close this panel.",
                       CommandWork([this] { Hide(); }, CommandRole::Closes)};
};

}  // namespace veldox
