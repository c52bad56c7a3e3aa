#include "graph/vary_screen.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

#include "core/files.h"
#include "core/report.h"
#include "core/series_report.h"
#include "graph/axis_growth.h"

namespace veldox {

namespace {

/// The values of a range reach this part of the field's number below and above it at first.
constexpr double kReach = 0.1;
/// One value of a command that takes longer has its place in the report, but no result.
constexpr std::chrono::seconds kLongestValue(5);
/// Each curve has a colour of its own.
constexpr std::size_t kMostCurves = kCurveColorCount + 1;
constexpr const char* kNoResult =
    "The Command shows no other number in any field when this Field changes.";
constexpr const char* kSeriesFilter = "CSV Files (*.csv)|*.csv|All Files (*.*)|*.*";

/// The ends of an axis that holds both values.
AxisSpan SpanOf(double low, double high) {
  constexpr double kAir = 0.1;
  if (low == high) {
    const double air = low == 0 ? 1 : std::abs(low) * kAir;
    low -= air;
    high += air;
  }
  if (low >= 0) return AxisSpanOf(low, high);
  if (high <= 0) {
    const AxisSpan mirrored = AxisSpanOf(-high, -low);
    return {-mirrored.high, -mirrored.low};
  }
  const double limit = AxisLimit(std::max(-low, high));
  return {-limit, limit};
}

/// The limits of axes that hold all points of some curves.
AxisRange RangeOf(const std::vector<GraphCurve>& curves) {
  constexpr double kMost = std::numeric_limits<double>::max();
  AxisSpan x{kMost, -kMost};
  AxisSpan y{kMost, -kMost};
  for (const GraphCurve& curve : curves) {
    for (const GraphPoint& point : curve.points) {
      x = {std::min(x.low, point.x), std::max(x.high, point.x)};
      y = {std::min(y.low, point.y), std::max(y.high, point.y)};
    }
  }
  x = SpanOf(x.low, x.high);
  y = SpanOf(y.low, y.high);
  return {x.low, x.high, y.low, y.high};
}

/// The reason why no value could be worked out, where it is the same for all; else empty.
std::string CommonError(const std::vector<VariedSeries>& all) {
  const std::string& first = all.front().lines.front().error;
  for (const VariedSeries& series : all) {
    for (const VariedLine& line : series.lines) {
      if (line.error != first) return {};
    }
  }
  return first;
}

}  // namespace

VaryScreen::ResultLists::ResultLists(Frame& frame) {
  for (std::size_t i = 0; i < kMostVariedResults; ++i) {
    const std::string number = std::to_string(i + 1);
    lists_.push_back(std::make_unique<ControlList>(
        frame, "Result" + number, "Result " + number,
        "What the report shows in this column after each value. Those come first that the "
        "Command shows another number in when the Field changes.",
        "(none)"));
  }
}

VaryScreen::VaryScreen(ProgramContext& context, Grapher& grapher)
    : ToolScreen(context, "Vary", "Vary a Field"), grapher_(grapher) {
  EnableSecond();
}

// ---------------------------------------------------------------- what is chosen

void VaryScreen::FillRange(const Entries& entries, const Field& field) {
  const TidyRange range = RangeAbout(field, kReach);
  entries.from.SetText(FormatField(range.from, mark()));
  entries.to.SetText(FormatField(range.to, mark()));
  entries.step.SetText(FormatField(range.by, mark()));
  entries.list.SetText({});
}

void VaryScreen::FieldChosen(const Field& field) {
  FillRange({From, To, Step, Values}, field);
}

void VaryScreen::OfferResults(bool anew) {
  std::size_t depending = 0;
  const std::vector<Control*> results = FindResults(depending);
  for (std::size_t i = 0; i < Results.all().size(); ++i) {
    Results[i].Offer(results);
    if (anew) Results[i].ChooseControl(i < depending ? results[i] : nullptr);
  }
  if (anew && depending == 0 && subject() != nullptr) ShowHelp(kNoResult);
  SecondList.Offer(FieldList.controls());
  if (anew && SecondList.chosenControl() == FieldList.chosenControl()) {
    SecondList.ChooseControl(nullptr);
  }
  EnableSecond();
  OfferCurves();
  if (anew) CurveList.ChooseControl(Results[0].chosenControl());
}

void VaryScreen::EnableSecond() {
  const bool isChosen = SecondList.chosenControl() != nullptr;
  for (Field* field : {&SecondFrom, &SecondTo, &SecondStep, static_cast<Field*>(&SecondValues)}) {
    field->SetEnabled(isChosen);
  }
  if (isChosen) return;
  // Nothing of another field stays behind.
  SecondFrom.SetText("0");
  SecondTo.SetText("10");
  SecondStep.SetText("1");
  SecondValues.SetText({});
}

void VaryScreen::ChooseResult(Field& result) {
  // It comes first, and what was first takes its place.
  Control* first = Results[0].chosenControl();
  for (const auto& list : Results.all()) {
    if (list->chosenControl() == &result) list->ChooseControl(first);
  }
  Results[0].ChooseControl(&result);
  OfferCurves();
  CurveList.ChooseControl(&result);
}

std::vector<Control*> VaryScreen::ChosenResults() const {
  std::vector<Control*> chosen;
  for (const auto& list : Results.all()) {
    if (Control* result = list->chosenControl()) chosen.push_back(result);
  }
  return chosen;
}

void VaryScreen::OfferCurves() {
  CurveList.Offer(ChosenResults());
}

void VaryScreen::Edited(const Control& control) {
  ToolScreen::Edited(control);
  if (&control == &SecondList) {
    EnableSecond();
    if (const Control* second = SecondList.chosenControl()) {
      FillRange({SecondFrom, SecondTo, SecondStep, SecondValues},
                static_cast<const Field&>(*second));
    }
  }
  if (control.frame() == &ResultFrame) OfferCurves();
}

// ---------------------------------------------------------------- working it out

std::vector<double> VaryScreen::ReadValues(const Entries& entries) {
  constexpr std::string_view kParting = " \t;";
  const std::string& list = entries.list.text();
  std::vector<double> values;
  for (std::size_t at = 0; (at = list.find_first_not_of(kParting, at)) != std::string::npos;) {
    const std::size_t end = std::min(list.find_first_of(kParting, at), list.size());
    const std::string word = list.substr(at, end - at);
    if (!IsNumber(word, mark())) {
      throw CommandError(ErrorKind::NotANumber,
                         "holds \"" + word +
                             "\", which is no number. Please enter numbers with blanks between "
                             "them, or nothing.",
                         &entries.list);
    }
    values.push_back(ParseNumber(word, mark()));
    at = end;
  }
  if (!values.empty()) return values;
  const ValueRange range{Screen::Read(entries.from), Screen::Read(entries.to),
                         Screen::Read(entries.step)};
  try {
    return range.Values();
  } catch (const CommandError& error) {
    FailAt(entries.step, error.message());
  }
}

Variation VaryScreen::ReadVariation() {
  RequireSeenUnits();
  Variation variation;
  variation.field = &ChosenField();
  variation.command = &ChosenCommand();
  variation.values = ReadValues({From, To, Step, Values});
  if (Control* second = SecondList.chosenControl()) {
    variation.second = static_cast<Field*>(second);
    variation.secondValues = ReadValues({SecondFrom, SecondTo, SecondStep, SecondValues});
  }
  variation.results = ChosenResults();
  if (variation.results.empty()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "has nothing chosen. Please choose a number that the Command shows, or "
                       "a Field that its numbers depend on.",
                       &Results[0]);
  }
  variation.limit = kLongestValue;
  return variation;
}

std::vector<VariedSeries> VaryScreen::WorkOut(const Variation& variation) {
  const std::string& command = variation.command->PlainCaption();
  std::vector<VariedSeries> all;
  {
    const auto progress = context().host.ShowProgress(
        "Running \"" + command + "\" with each value of \"" + variation.field->PlainCaption() +
            "\" ...",
        variation.values.size() * std::max<std::size_t>(1, variation.secondValues.size()));
    all = Vary(variation, [&](std::size_t done) { return !progress || progress->GoOn(done); });
  }
  const std::string error = CommonError(all);
  if (!error.empty()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       '"' + command + "\" cannot be run with any of the values: " + error);
  }
  return all;
}

void VaryScreen::ShowSeries() {
  RefuseDryRun("It shows a report.");
  const Variation variation = ReadVariation();
  const std::vector<VariedSeries> all = WorkOut(variation);
  const std::size_t wanted =
      variation.values.size() * std::max<std::size_t>(1, variation.secondValues.size());
  std::string report = SeriesReport(variation, all, wanted);
  const int fontSize = FontSizeForPage(report);
  ShowReport(std::move(report), fontSize);
}

void VaryScreen::SaveSeries() {
  RefuseDryRun("It works on files.");
  const Variation variation = ReadVariation();
  const std::string csv = SeriesCsv(variation, WorkOut(variation));
  Host& host = context().host;
  auto file = host.AskFile({FileDialog::Kind::Save, kSeriesFilter, 1, host.ProgramFolder()});
  if (!file) throw CommandError(ErrorKind::Cancelled, "");
  if (file->extension().empty()) *file += ".csv";
  SaveFile(*file, csv);
  ShowHelp("Written: " + PathText(file->filename()));
}

// ---------------------------------------------------------------- curves

std::vector<GraphCurve> VaryScreen::Curves(const Variation& variation,
                                           const std::vector<VariedSeries>& all) const {
  std::vector<GraphCurve> curves;
  const Control* chosen = CurveList.chosenControl();
  // The curves of a family are of one result.
  if (chosen == nullptr && variation.second != nullptr) chosen = variation.results.front();
  for (const VariedSeries& series : all) {
    for (std::size_t i = 0; i < variation.results.size(); ++i) {
      const Control& result = *variation.results[i];
      if (chosen != nullptr && chosen != &result) continue;
      GraphCurve curve;
      curve.note = NameWithUnit(result);
      if (variation.second != nullptr) {
        const std::string_view unit =
            UnitSign(variation.second->unit(), variation.second->screen().metric());
        curve.note = variation.second->PlainCaption() + ' ' + series.text;
        if (!unit.empty()) curve.note.append(1, ' ').append(unit);
      }
      bool isParted = false;
      for (const VariedLine& line : series.lines) {
        if (!line.error.empty() || !IsNumber(line.results[i], mark())) {
          isParted = true;
          continue;
        }
        if (isParted && !curve.points.empty()) curve.moves.push_back(curve.points.size());
        isParted = false;
        curve.points.push_back(
            {ParseNumber(line.text, mark()), ParseNumber(line.results[i], mark())});
      }
      if (curve.points.size() >= kFewestCurvePoints) curves.push_back(std::move(curve));
      // A result that was chosen twice has one curve.
      if (chosen != nullptr) break;
    }
  }
  return curves;
}

void VaryScreen::ShowCurves() {
  RefuseDryRun("It draws a graph.");
  const Variation variation = ReadVariation();
  if (variation.secondValues.size() > kMostCurves) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "has more than " + std::to_string(kMostCurves) +
                           " values: a graph could not tell so many curves apart.",
                       &SecondList);
  }
  const std::vector<GraphCurve> curves = Curves(variation, WorkOut(variation));
  if (curves.empty()) {
    throw CommandError(ErrorKind::InvalidArgument,
                       "There are fewer than two numbers that a curve could be drawn through.");
  }
  const Control* chosen = CurveList.chosenControl();
  if (chosen == nullptr && (variation.second != nullptr || variation.results.size() == 1)) {
    chosen = variation.results.front();
  }
  const std::string over = NameWithUnit(*variation.field);
  GraphFrame frame;
  frame.range = RangeOf(curves);
  frame.xPointer = "<--- " + over;
  frame.xName = over;
  frame.yPointer = "<--- " + (chosen != nullptr ? NameWithUnit(*chosen) : std::string("Results"));
  frame.title = (chosen != nullptr ? chosen->PlainCaption() : variation.command->PlainCaption()) +
                " over " + variation.field->PlainCaption();
  frame.zeroLine = frame.range.yLow < 0;
  const History::Step step(context(), History::Kind::Other, "Graph: " + frame.title);
  grapher_.DrawGraph(frame, curves);
  grapher_.ShowGraph();
}

}  // namespace veldox
