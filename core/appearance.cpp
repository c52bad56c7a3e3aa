#include "core/appearance.h"

#include <algorithm>
#include <cmath>

namespace veldox {

namespace {

constexpr double kLastAlignment = 2;
constexpr double kLastStyle = 1;

/// The relative luminance of a colour, 0 (black) to 1 (white).
double Luminance(ColorCode color) {
  const auto linear = [color](int shift) {
    const double part = ((color >> shift) & 0xFF) / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
}

FontLook FontOf(const std::string& name, std::int16_t size, std::int16_t bold,
                std::int16_t italic) {
  return {name, static_cast<int>(NearestFontSize(size)), bold != 0, italic != 0};
}

ColorCode ColorOf(std::int32_t color) {
  return static_cast<ColorCode>(NearestColor(color));
}

}  // namespace

double NearestFontSize(double size) {
  return size == 0 ? 0 : std::clamp<double>(size, kSmallestFontSize, kLargestFontSize);
}

double NearestColor(double color) {
  return std::clamp<double>(color, kNoColor, kLargestColor);
}

double NearestAlignment(double index) {
  return std::clamp(index, 0.0, kLastAlignment);
}

double NearestStyle(double index) {
  return std::clamp(index, 0.0, kLastStyle);
}

double ContrastRatio(ColorCode a, ColorCode b) {
  // The light that a screen throws back itself.
  constexpr double kFlare = 0.05;
  const double one = Luminance(a) + kFlare;
  const double other = Luminance(b) + kFlare;
  return std::max(one, other) / std::min(one, other);
}

Appearance AppearanceOf(const ParameterBlock& block) {
  Appearance look;
  look.entry = FontOf(block.EntryBoxFontName, block.EntryBoxFontSize, block.EntryBoxFontBold,
                      block.EntryBoxFontItalic);
  look.label = FontOf(block.LabelBoxFontName, block.LabelBoxFontSize, block.LabelBoxFontBold,
                      block.LabelBoxFontItalic);
  look.command = FontOf(block.CommandButtonFontName, block.CommandButtonFontSize,
                        block.CommandButtonFontBold, block.CommandButtonFontItalic);
  look.help = FontOf(block.HelpBoxFontName, block.HelpBoxFontSize, block.HelpBoxFontBold,
                     block.HelpBoxFontItalic);
  look.alignment =
      static_cast<EntryAlignment>(static_cast<int>(NearestAlignment(block.EntryBoxAlignment)));
  look.entryBorder = NearestStyle(block.EntryBoxStyle) != 0;
  look.raisedOptions = NearestStyle(block.OptionCheckBoxStyle) != 0;
  look.labelText = ColorOf(block.LabelBoxColor);
  look.frameGround = ColorOf(block.BackGroundColor);
  look.quitGround = ColorOf(block.QuitBackGroundColor);
  look.helpText = ColorOf(block.HelpBoxFontColor);
  look.helpGround = ColorOf(block.HelpBackGroundColor);
  return look;
}

void ResetAppearance(ParameterBlock& block) {
  const ParameterBlock fresh;
  block.QuitBackGroundColor = fresh.QuitBackGroundColor;
  block.BackGroundColor = fresh.BackGroundColor;
  block.OptionCheckBoxStyle = fresh.OptionCheckBoxStyle;
  block.LargeScreen = fresh.LargeScreen;
  block.FullScreen = fresh.FullScreen;
  block.EntryBoxFontName = fresh.EntryBoxFontName;
  block.EntryBoxFontSize = fresh.EntryBoxFontSize;
  block.EntryBoxFontBold = fresh.EntryBoxFontBold;
  block.EntryBoxFontItalic = fresh.EntryBoxFontItalic;
  block.EntryBoxAlignment = fresh.EntryBoxAlignment;
  block.EntryBoxStyle = fresh.EntryBoxStyle;
  block.LabelBoxFontName = fresh.LabelBoxFontName;
  block.LabelBoxFontSize = fresh.LabelBoxFontSize;
  block.LabelBoxFontBold = fresh.LabelBoxFontBold;
  block.LabelBoxFontItalic = fresh.LabelBoxFontItalic;
  block.LabelBoxColor = fresh.LabelBoxColor;
  block.CommandButtonFontName = fresh.CommandButtonFontName;
  block.CommandButtonFontSize = fresh.CommandButtonFontSize;
  block.CommandButtonFontBold = fresh.CommandButtonFontBold;
  block.CommandButtonFontItalic = fresh.CommandButtonFontItalic;
  block.HelpBoxFontName = fresh.HelpBoxFontName;
  block.HelpBoxFontSize = fresh.HelpBoxFontSize;
  block.HelpBoxFontBold = fresh.HelpBoxFontBold;
  block.HelpBoxFontItalic = fresh.HelpBoxFontItalic;
  block.HelpBoxFontColor = fresh.HelpBoxFontColor;
  block.HelpBackGroundColor = fresh.HelpBackGroundColor;
}

}  // namespace veldox
