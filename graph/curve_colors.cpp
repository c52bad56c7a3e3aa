#include "graph/curve_colors.h"

#include <algorithm>
#include <array>
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

}  // namespace

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
