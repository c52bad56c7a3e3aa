#pragma once

#include <cstdint>
#include <string>

#include "core/parameter_block.h"

namespace veldox {

/// A colour as red + 256 * green + 65536 * blue. In the shared values 0 says that none was chosen.
using ColorCode = std::int32_t;

inline constexpr ColorCode kNoColor = 0;
inline constexpr ColorCode kLargestColor = 0xFFFFFF;
/// What stands for a black that was chosen.
inline constexpr ColorCode kBlack = 1;
/// The sizes of letters that can be shown, in points. 0 says that none was chosen.
inline constexpr int kSmallestFontSize = 6;
inline constexpr int kLargestFontSize = 32;
/// Below this contrast a text is hard to read (WCAG 2.1, success criterion 1.4.3).
inline constexpr double kReadableContrast = 4.5;

// The nearest of what a value of the appearance can be.
double NearestFontSize(double size);
double NearestColor(double color);
double NearestAlignment(double index);
double NearestStyle(double index);

/// The contrast of two colours, 1 (none) to 21 (black and white), by WCAG 2.1.
double ContrastRatio(ColorCode a, ColorCode b);

/// The letters of one kind of control. What is empty, 0 or false is not chosen.
struct FontLook {
  std::string name;
  int size = 0;  ///< points
  bool bold = false;
  bool italic = false;

  bool operator==(const FontLook&) const = default;
};

enum class EntryAlignment { Left, Right, Center };

/// How all screens look as far as the user has chosen it; kNoColor leaves a colour to the desktop.
struct Appearance {
  FontLook entry;
  FontLook label;
  FontLook command;
  FontLook help;
  EntryAlignment alignment = EntryAlignment::Center;
  bool entryBorder = true;    ///< text boxes have a line around them
  bool raisedOptions = true;  ///< option and check boxes are filled, not flat
  ColorCode labelText = kNoColor;
  ColorCode frameGround = kNoColor;
  ColorCode quitGround = kNoColor;
  ColorCode helpText = kNoColor;
  ColorCode helpGround = kNoColor;

  bool operator==(const Appearance&) const = default;
};

/// What the shared values say of the appearance, each the nearest that can be shown.
Appearance AppearanceOf(const ParameterBlock& block);

/// Puts all values of the appearance back to what a fresh program has.
void ResetAppearance(ParameterBlock& block);

}  // namespace veldox
