#pragma once

#include <optional>
#include <string_view>

#include "graph/surface.h"

namespace veldox {

/// The number of curve colours behind the first graph's green; then they repeat.
inline constexpr int kCurveColorCount = 28;

/// The colour a curve is drawn in and its name in the legend.
struct CurveColorEntry {
  std::string_view name;
  Color color;
};

/// The legend's text for curves in the colour that the user chose.
inline constexpr std::string_view kUserColorName = "User Selected Color";

/// The colour of a curve by its index: 0 is the first graph's "Green", 1 to 28 are the
/// table's, 29 and up repeat 1 and up. A negative index counts as 0.
CurveColorEntry CurveColorOf(int index);

/// Below this contrast with the background a curve is hard to see.
inline constexpr double kFaintContrast = 2.6;
/// How well two colours can be told apart, from 1 for not at all to 21.
double Contrast(Color a, Color b);
/// A colour as it can be seen on a background: one that is hard to see on a dark background
/// becomes lighter in its own hue, every other stays as it is.
Color SeenOn(Color color, Color background);

/// A colour by the name that graph files give it, in small letters; nothing for an
/// unknown one.
std::optional<CurveColorEntry> ColorByName(std::string_view name);

}  // namespace veldox
