#include "graph/curve_colors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>

namespace veldox {

namespace {

constexpr CurveColorEntry kFirstPen{"Green", {0, 128, 0}};

constexpr std::array<CurveColorEntry, kCurveColorCount> kCurveColors = {{
    {"Blue", {0, 0, 255}},
    {"Cyan", {0, 255, 255}},
    {"Magenta", {255, 0, 255}},
    {"Red", {255, 0, 0}},
    {"Tan", {210, 180, 140}},
    {"Dark Magenta", {139, 0, 139}},
    {"Gray", {105, 105, 105}},
    {"Blue Violet", {138, 43, 226}},
    {"Indian Red", {205, 92, 92}},
    {"Dark Olive Green", {85, 107, 47}},
    {"Orange", {255, 165, 0}},
    {"Light Gray", {211, 211, 211}},
    {"Light Cyan", {224, 255, 255}},
    {"Light Blue", {173, 216, 230}},
    {"Dark Gray", {169, 169, 169}},
    {"Light Green", {144, 238, 144}},
    {"Chocolate", {210, 105, 30}},
    {"Deep Pink", {255, 20, 147}},
    {"Dark Salmon", {233, 150, 122}},
    {"Maroon", {128, 0, 0}},
    {"Light Lime", {50, 205, 50}},
    {"Yellow", {255, 255, 0}},
    {"Brown", {165, 42, 42}},
    {"Dark Cyan", {139, 139, 0}},
    {"Dark Blue", {0, 0, 139}},
    {"Dark Red", {139, 0, 0}},
    {"Dark Green", {0, 100, 0}},
    {"Red", {255, 0, 0}},
}};

/// A colour of graph files: the word in the file, the legend's name, the colour.
struct FileColor {
  std::string_view word;
  CurveColorEntry entry;
};

constexpr FileColor kFileColors[] = {
    {"white", {"White", {255, 255, 255}}},
    {"black", {"Black", {0, 0, 0}}},
    {"green", kFirstPen},
    {"blue", {"Blue", {0, 0, 255}}},
    {"cyan", {"Cyan", {0, 255, 255}}},
    {"red", {"Red", {255, 0, 0}}},
    {"magenta", {"Magenta", {255, 0, 255}}},
    {"yellow", {"Yellow", {255, 255, 0}}},
    {"brown", {"Brown", {165, 42, 42}}},
    {"chocolate", {"Chocolate", {210, 105, 30}}},
    {"dark blue", {"Dark Blue", {0, 0, 139}}},
    {"dark cyan", {"Dark Cyan", {0, 139, 139}}},
    {"dark gray", {"Dark Gray", {169, 169, 169}}},
    {"dark green", {"Dark Green", {0, 100, 0}}},
    {"dark red", {"Dark Red", {139, 0, 0}}},
    {"light blue", {"Light Blue", {173, 216, 230}}},
    {"light cyan", {"Light Cyan", {224, 255, 255}}},
    {"light gray", {"Light Gray", {211, 211, 211}}},
    {"light green", {"Light Green", {144, 238, 144}}},
    {"light yellow", {"Light Yellow", {255, 255, 224}}},
    {"orange", {"Orange", {255, 165, 0}}},
};

/// The light that a colour gives, 0 to 1.
double Luminance(Color color) {
  const auto linear = [](std::uint8_t part) { return std::pow(part / 255.0, 2.2); };
  return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// A colour with so much of the way to white gone, 0 to 1.
Color Tint(Color color, double part) {
  const auto lighter = [part](std::uint8_t from) {
    return static_cast<std::uint8_t>(from + std::lround((255 - from) * part));
  };
  return {lighter(color.red), lighter(color.green), lighter(color.blue)};
}

}  // namespace

double Contrast(Color a, Color b) {
  const double first = Luminance(a) + 0.05;
  const double second = Luminance(b) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

Color SeenOn(Color color, Color background) {
  constexpr double kWellSeen = 4;
  constexpr int kSteps = 32;
  const Color white{255, 255, 255};
  const bool dark = Contrast(white, background) > Contrast({0, 0, 0}, background);
  if (!dark || Contrast(color, background) >= kFaintContrast) return color;
  Color tint = color;
  for (int i = 1; i <= kSteps && Contrast(tint, background) < kWellSeen; ++i) {
    tint = Tint(color, static_cast<double>(i) / kSteps);
  }
  return tint;
}

CurveColorEntry CurveColorOf(int index) {
  if (index <= 0) return kFirstPen;
  return kCurveColors[static_cast<std::size_t>((index - 1) % kCurveColorCount)];
}

std::optional<CurveColorEntry> ColorByName(std::string_view name) {
  const auto found = std::find_if(std::begin(kFileColors), std::end(kFileColors),
                                  [&](const FileColor& color) { return color.word == name; });
  if (found == std::end(kFileColors)) return std::nullopt;
  return found->entry;
}

}  // namespace veldox
