#include "core/series_report.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "core/report.h"
#include "core/report_text.h"
#include "core/text.h"
#include "core/units.h"

namespace veldox {

namespace {

/// What a printed line holds.
constexpr std::size_t kLineWidth = 94;
/// Captions longer than this take several lines.
constexpr std::size_t kHeadWidth = 12;
constexpr std::size_t kGap = 3;
constexpr std::string_view kNothing = "-";
constexpr char kBold = static_cast<char>(LineMark::Bold);
constexpr char kHeading = static_cast<char>(LineMark::Heading);
constexpr char kHeadingsEnd = static_cast<char>(LineMark::HeadingsEnd);

std::string UnitOf(const Control& control) {
  if (control.kind() != ControlKind::Field) return {};
  const auto& field = static_cast<const Field&>(control);
  return std::string(UnitSign(field.unit(), field.screen().metric()));
}

/// A number, or whatever else a control shows, in one line.
std::string CellText(const std::string& text) {
  std::string cell(Trim(text.substr(0, text.find_first_of("\r\n"))));
  return cell.empty() ? std::string(kNothing) : cell;
}

/// A column of numbers whose decimal marks stand under each other.
class Column {
 public:
  Column(const Control& of, DecimalMark mark)
      : mark_(mark), head_(Wrapped(of.PlainCaption(), kHeadWidth)), unit_(UnitOf(of)) {
    width_ = CharacterCount(unit_);
    for (const std::string& word : head_) width_ = std::max(width_, CharacterCount(word));
  }

  std::size_t headLines() const { return head_.size(); }
  std::size_t width() const { return width_; }

  /// Takes room for a text.
  void Measure(const std::string& text) {
    const std::string cell = CellText(text);
    if (!IsNumber(cell, mark_)) {
      width_ = std::max(width_, CharacterCount(cell));
      return;
    }
    const std::size_t at = std::min(cell.find(static_cast<char>(mark_)), cell.size());
    before_ = std::max(before_, at);
    behind_ = std::max(behind_, cell.size() - at);
    width_ = std::max(width_, before_ + behind_);
  }
  /// A line of the head from the top on; short heads stand on the last lines.
  std::string HeadLine(std::size_t line, std::size_t lines) const {
    const std::size_t missing = lines - head_.size();
    return RightAligned(line < missing ? std::string{} : head_[line - missing], width_);
  }
  std::string UnitLine() const { return RightAligned(unit_, width_); }
  std::string Cell(const std::string& text) const {
    std::string cell = CellText(text);
    if (IsNumber(cell, mark_)) {
      const std::size_t at = std::min(cell.find(static_cast<char>(mark_)), cell.size());
      cell = LeftAligned(cell, at + behind_);
    }
    return RightAligned(cell, width_);
  }

 private:
  DecimalMark mark_;
  std::vector<std::string> head_;
  std::string unit_;
  std::size_t width_ = 0;
  std::size_t before_ = 0;  ///< characters before the mark of the widest number
  std::size_t behind_ = 0;  ///< from the mark on
};

class SeriesWriter {
 public:
  SeriesWriter(const Variation& variation, std::span<const VariedSeries> all)
      : variation_(variation),
        all_(all),
        mark_(variation.field->screen().mark()),
        first_(*variation.field, mark_) {
    for (const Control* result : variation.results) columns_.emplace_back(*result, mark_);
    for (const VariedSeries& series : all) {
      for (const VariedLine& line : series.lines) {
        first_.Measure(line.text);
        for (std::size_t i = 0; i < line.results.size(); ++i) columns_[i].Measure(line.results[i]);
      }
    }
    headLines_ = first_.headLines();
    for (const Column& column : columns_) headLines_ = std::max(headLines_, column.headLines());
  }

  std::string Write(std::size_t wanted) {
    text_ = ReportPrompt;
    const Command& command = *variation_.command;
    const std::string field = variation_.field->PlainCaption();
    Line(command.screen().title() + ": " + field + " Varied", kBold);
    const auto counted = [](std::size_t count, const Control& of) {
      return std::to_string(count) + (count == 1 ? " value of " : " values of ") +
             of.PlainCaption();
    };
    std::string told = "Command \"" + std::string(Trim(command.PlainCaption())) + "\" with " +
                       counted(variation_.values.size(), *variation_.field);
    if (variation_.second != nullptr) {
      told += ", for each of " + counted(variation_.secondValues.size(), *variation_.second);
    }
    Line(told);
    std::size_t done = 0;
    for (const VariedSeries& series : all_) {
      done += series.lines.size();
      WriteSeries(series);
    }
    if (done < wanted) {
      Line("");
      Line("Ended by Cancel behind " + std::to_string(done) + " of " + std::to_string(wanted) +
           " values.");
    }
    while (text_.ends_with("\r\n")) text_.resize(text_.size() - 2);
    return std::move(text_);
  }

 private:
  void Line(const std::string& text, char mark = 0) {
    text_ += WithoutMark(text);
    if (mark != 0) text_ += mark;
    text_ += "\r\n";
  }

  void WriteSeries(const VariedSeries& series) {
    // Heads of the table before are not repeated on the next page.
    Line("", kHeadingsEnd);
    if (variation_.second != nullptr) {
      const std::string unit = UnitOf(*variation_.second);
      Line(variation_.second->PlainCaption() + ' ' + series.text +
               (unit.empty() ? unit : ' ' + unit),
           kHeading);
      Line("");
    }
    for (std::size_t i = 0; i < headLines_; ++i) {
      WriteCells(
          first_.HeadLine(i, headLines_),
          [&](const Column& column) { return column.HeadLine(i, headLines_); }, kHeading);
    }
    WriteCells(
        first_.UnitLine(), [](const Column& column) { return column.UnitLine(); }, kHeading);
    for (const VariedLine& line : series.lines) {
      if (!line.error.empty()) {
        WriteError(line);
        continue;
      }
      std::size_t i = 0;
      WriteCells(first_.Cell(line.text),
                 [&](const Column& column) { return column.Cell(line.results[i++]); });
    }
  }

  template <class CellOf>
  void WriteCells(const std::string& first, const CellOf& cellOf, char mark = 0) {
    std::string text = ' ' + first;
    for (const Column& column : columns_) text += std::string(kGap, ' ') + cellOf(column);
    Line(text, mark);
  }

  void WriteError(const VariedLine& line) {
    const std::string value = ' ' + first_.Cell(line.text) + std::string(kGap, ' ');
    const std::vector<std::string> words =
        Wrapped(line.error, kLineWidth - std::min(kLineWidth / 2, CharacterCount(value)));
    Line(value + words.front());
    for (std::size_t i = 1; i < words.size(); ++i) {
      Line(std::string(CharacterCount(value), ' ') + words[i]);
    }
  }

  const Variation& variation_;
  std::span<const VariedSeries> all_;
  DecimalMark mark_;
  Column first_;
  std::vector<Column> columns_;
  std::size_t headLines_ = 0;
  std::string text_;
};

/// A text as a cell of a table that other programs read.
std::string Quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"') result += '"';
    result += c == '\r' || c == '\n' ? ' ' : c;
  }
  return result + '"';
}

std::string HeadOf(const Control& control) {
  const std::string unit = UnitOf(control);
  return Quoted(control.PlainCaption() + (unit.empty() ? unit : " (" + unit + ")"));
}

}  // namespace

std::string SeriesReport(const Variation& variation, std::span<const VariedSeries> all,
                         std::size_t wanted) {
  return SeriesWriter(variation, all).Write(wanted);
}

std::string SeriesCsv(const Variation& variation, std::span<const VariedSeries> all) {
  const DecimalMark mark = variation.field->screen().mark();
  const char sign = mark == DecimalMark::Comma ? ';' : ',';
  const auto cell = [&](const std::string& text) {
    return IsNumber(text, mark) ? std::string(Trim(text)) : Quoted(text);
  };
  std::string csv;
  if (variation.second != nullptr) csv += HeadOf(*variation.second) + sign;
  csv += HeadOf(*variation.field);
  for (const Control* result : variation.results) csv += sign + HeadOf(*result);
  csv += "\r\n";
  for (const VariedSeries& series : all) {
    for (const VariedLine& line : series.lines) {
      if (variation.second != nullptr) csv += cell(series.text) + sign;
      csv += cell(line.text);
      for (std::size_t i = 0; i < variation.results.size(); ++i) {
        csv += sign;
        if (line.error.empty()) csv += cell(line.results[i]);
      }
      if (!line.error.empty()) csv += sign + Quoted(line.error);
      csv += "\r\n";
    }
  }
  return csv;
}

}  // namespace veldox
