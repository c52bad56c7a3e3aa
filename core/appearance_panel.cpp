#include "core/appearance_panel.h"

#include <algorithm>
#include <utility>

namespace veldox {

namespace {

constexpr const char* kClassicFont = "MS Sans Serif";
/// What follows where the letters have been changed already.
constexpr const char* kNewerClassicFont = "Tahoma";

ColorCode ChosenOr(std::int32_t chosen, ColorCode own) {
  return chosen != kNoColor ? chosen : own;
}

}  // namespace

AppearancePanel::AppearancePanel(Screen& screen, std::function<FontChoice()> pickFont,
                                 std::function<std::string()> pickColor,
                                 std::function<PlainColors()> ownColors)
    : ScreenPart(screen),
      pickFont_(std::move(pickFont)),
      pickColor_(std::move(pickColor)),
      ownColors_(std::move(ownColors)) {
  SetFrames({&OptionFrame});
  SetAreOptions();
  // It has no item in the menu.
  Combo6.SetVisible(false);
}

void AppearancePanel::FillLists() {
  Combo3.SetRows({"0 - Left", "1 - Right", "2 - Center (Default)"});
  Combo4.SetRows({"0 - None", "1 - 3d Fixed (Default)"});
  Combo5.SetRows({"0 - Flat", "1 - 3d Fixed (Default)"});
  Combo6.SetRows({"white", "black", "green", "blue", "cyan", "red", "magenta", "yellow", "brown",
                  "dark gray", "dark green", "dark red", "light gray", "light green",
                  "light yellow", "orange"});
}

void AppearancePanel::TellChanged() {
  Combo3.Choose(static_cast<int>(NearestAlignment(block().EntryBoxAlignment)));
  Combo4.Choose(static_cast<int>(NearestStyle(block().EntryBoxStyle)));
  Combo5.Choose(static_cast<int>(NearestStyle(block().OptionCheckBoxStyle)));
  TellListener();
}

void AppearancePanel::TellListener() const {
  if (listener_) listener_();
}

void AppearancePanel::Picked(const Control& list) {
  const auto take = [&](const ComboList& from, std::int16_t& slot) {
    if (&list != &from || from.chosen() < 0) return;
    slot = static_cast<std::int16_t>(from.chosen());
    TellChanged();
  };
  take(Combo3, block().EntryBoxAlignment);
  take(Combo4, block().EntryBoxStyle);
  take(Combo5, block().OptionCheckBoxStyle);
}

void AppearancePanel::OpenList(ComboList& list) {
  for (ComboList* each : {&Combo3, &Combo4, &Combo5}) each->SetVisible(each == &list);
  Show();
  list.Focus();
}

void AppearancePanel::PickFontInto(const FontSlots& slots) {
  const FontChoice font = pickFont_();
  const double size = NearestFontSize(font.size);
  slots.name = font.name;
  slots.size = static_cast<std::int16_t>(size);
  slots.bold = font.bold ? 1 : 0;
  slots.italic = font.italic ? 1 : 0;
  TellChanged();
  screen().ShowHelp(size == font.size
                        ? std::string{}
                        : "Letters can be from " + FormatInt(kSmallestFontSize, mark()) + " to " +
                              FormatInt(kLargestFontSize, mark()) +
                              " points high: these now have " + FormatInt(size, mark()) + '.');
}

void AppearancePanel::PickHelpFont() {
  PickFontInto({block().HelpBoxFontName, block().HelpBoxFontSize, block().HelpBoxFontBold,
                block().HelpBoxFontItalic});
}

void AppearancePanel::PickEntryFont() {
  PickFontInto({block().EntryBoxFontName, block().EntryBoxFontSize, block().EntryBoxFontBold,
                block().EntryBoxFontItalic});
}

void AppearancePanel::PickLabelFont() {
  PickFontInto({block().LabelBoxFontName, block().LabelBoxFontSize, block().LabelBoxFontBold,
                block().LabelBoxFontItalic});
}

void AppearancePanel::PickCommandFont() {
  PickFontInto({block().CommandButtonFontName, block().CommandButtonFontSize,
                block().CommandButtonFontBold, block().CommandButtonFontItalic});
}

void AppearancePanel::PickColorInto(std::int32_t& slot) {
  const double color = NearestColor(ParseNumber(pickColor_(), DecimalMark::Point));
  slot = std::max(kBlack, static_cast<ColorCode>(color));
  TellChanged();
}

void AppearancePanel::TellContrast(ColorCode text, ColorCode ground) {
  const double contrast = ContrastRatio(text, ground);
  // Cut, so that what is too little never reads as enough.
  constexpr double kHundredths = 100;
  screen().ShowHelp(
      contrast >= kReadableContrast
          ? std::string{}
          : "This text is hard to read: its contrast with the ground is " +
                FormatValue<"0.00">(Floor(contrast * kHundredths) / kHundredths, mark()) +
                " to 1, and " + FormatValue<"0.0">(kReadableContrast, mark()) +
                " to 1 is the least that reads well.");
}

void AppearancePanel::PickHelpColor() {
  PickColorInto(block().HelpBoxFontColor);
  TellContrast(block().HelpBoxFontColor,
               ChosenOr(block().HelpBackGroundColor, ownColors_().ground));
}

void AppearancePanel::PickHelpGround() {
  PickColorInto(block().HelpBackGroundColor);
  TellContrast(ChosenOr(block().HelpBoxFontColor, ownColors_().text), block().HelpBackGroundColor);
}

void AppearancePanel::PickLabelColor() {
  PickColorInto(block().LabelBoxColor);
  TellContrast(block().LabelBoxColor, ChosenOr(block().BackGroundColor, ownColors_().ground));
}

void AppearancePanel::PickFrameGround() {
  PickColorInto(block().BackGroundColor);
  TellContrast(ChosenOr(block().LabelBoxColor, ownColors_().text), block().BackGroundColor);
}

void AppearancePanel::PickQuitGround() {
  PickColorInto(block().QuitBackGroundColor);
  TellContrast(ownColors_().buttonText, block().QuitBackGroundColor);
}

void AppearancePanel::UseClassicFont(std::string& name) {
  name = name.empty() ? kClassicFont : kNewerClassicFont;
  TellChanged();
}

void AppearancePanel::UseDefaultLook() {
  ResetAppearance(block());
  TellChanged();
  screen().ShowHelp({});
}

}  // namespace veldox
