#include "reference/unit_conversion_screen.h"

#include <string>
#include <string_view>

#include "reference/frame_columns.h"
#include "reference/unit_conversion.h"

namespace veldox {

namespace {

constexpr int kFirstChosen = 1;
/// Rows of buttons that a column of the window holds, a frame's title and edges counted as two.
constexpr int kRowsInColumn = 25;
constexpr int kRowsOfFrame = 2;

}  // namespace

Form9::Units::Units(Screen& screen) {
  const std::vector<ConversionUnit> units = ConversionUnits();
  FrameColumns columns(1, kRowsInColumn);
  for (auto unit = units.begin(); unit != units.end();) {
    const std::string_view heading = unit->heading;
    std::vector<OptionChoice> choices;
    for (; unit != units.end() && unit->heading == heading; ++unit) {
      choices.push_back({unit->option, std::string(unit->name), {}});
    }
    const int height = static_cast<int>(choices.size()) + kRowsOfFrame;
    frames_.push_back(std::make_unique<Frame>(screen, "Units" + std::to_string(frames_.size() + 1),
                                              std::string(heading), columns.ColumnOf(height)));
    if (group_ == nullptr) {
      group_ = std::make_unique<OptionGroup>(*frames_.back(), "Option1", "", choices, kFirstChosen);
    } else {
      parts_.push_back(std::make_unique<OptionPart>(*frames_.back(), *group_, choices));
    }
  }
}

Form9::Form9(ProgramContext& context)
    : Screen(context, "Form9", "Unit Conversion", "UnitConversion") {}

void Form9::ConvertValue() {
  const double value = Read(Text1);
  std::string lines;
  try {
    lines = ConvertedLines(value, Option1.group().chosen(), mark());
  } catch (const CommandError& error) {
    if (error.kind() != ErrorKind::Overflow) throw;
    throw CommandError(ErrorKind::Overflow, "is too large to be converted.", &Text1);
  }
  ShowText(Text2, std::move(lines));
}

void Form9::Edited(const Control& control) {
  if (&control != &Text1 && &control != &Option1.group()) return;
  if (!IsNumber(Text1.text(), mark())) return;
  try {
    Text2.SetText(
        ConvertedLines(ParseNumber(Text1.text(), mark()), Option1.group().chosen(), mark()));
  } catch (const CommandError&) {
    // Too large: the command tells so.
  }
}

}  // namespace veldox
