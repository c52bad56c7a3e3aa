#include "reference/charts_screen.h"

#include <string_view>

#include "reference/frame_columns.h"

namespace veldox {

namespace {

/// Commands that a column of the window holds.
constexpr int kCommandsInColumn = 9;

}  // namespace

Form10::Conversions::Conversions(Screen& screen) {
  const std::vector<ConversionChartTitle> charts = ConversionCharts();
  FrameColumns columns(1, kCommandsInColumn);
  for (auto chart = charts.begin(); chart != charts.end();) {
    const std::string_view subject = chart->subject;
    auto end = chart;
    while (end != charts.end() && end->subject == subject) ++end;
    const auto count = static_cast<int>(end - chart);
    frames_.push_back(std::make_unique<Frame>(screen,
                                              "Conversions" + std::to_string(frames_.size() + 1),
                                              std::string(subject), columns.ColumnOf(count)));
    for (; chart != end; ++chart) {
      commands_.push_back(std::make_unique<Command>(
          *frames_.back(), "Command" + std::to_string(chart->command), std::string(chart->caption),
          "Show a table from " + std::string(chart->values) + " to " +
              std::string(chart->converses) + " in a hundred steps of " + std::string(chart->step) +
              '.',
          CommandWork(&Form10::ShowConversionChart, CommandRole::Serves), chart->command));
    }
  }
}

Form10::Form10(ProgramContext& context)
    : Screen(context, "Form10", "Equivalence Charts", "EquivalenceCharts") {}

}  // namespace veldox
