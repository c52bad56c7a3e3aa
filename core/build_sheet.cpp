#include "core/build_sheet.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "core/field_copy.h"
#include "core/panel.h"
#include "core/report.h"
#include "core/report_text.h"
#include "core/table.h"
#include "core/text.h"
#include "core/units.h"

namespace veldox {

namespace {

/// What a printed line holds in letters of 10 points.
constexpr std::size_t kSheetWidth = 94;
constexpr std::size_t kGap = 4;
constexpr std::size_t kColumnWidth = (kSheetWidth - kGap) / 2;

/// The lines of a text, which may break them by CR LF or LF.
std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string line(text.substr(0, end));
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

/// What the sheet tells of one control.
struct SheetEntry {
  std::string label;
  std::string value;
};

/// A column of a table on the sheet.
struct SheetColumn {
  std::vector<std::string> head;
  std::vector<std::string> cells;
  std::size_t width = 0;
};

/// Writes the sheet of one screen after the other.
class SheetWriter {
 public:
  void Line(const std::string& text, char mark = 0) {
    text_ += WithoutMark(text);
    if (mark != 0) text_ += mark;
    text_ += "\r\n";
  }

  void WriteHead(const BuildSheetHead& head, const ParameterBlock& block) {
    text_ = ReportPrompt;
    Line("Build Sheet", kBold);
    const ClockTime& made = head.made;
    const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    Line(LeftAligned("File: " + (head.fileName.empty() ? "not saved yet" : head.fileName),
                     kColumnWidth + kGap) +
         "Date: " + std::to_string(made.year) + '-' + two(made.month) + '-' + two(made.day));
    for (const std::string* company :
         {&block.CompanyName, &block.CompanyAddress, &block.CompanyCity, &block.CompanyPhone,
          &block.CompanyWebSite}) {
      if (!company->empty()) Line(*company);
    }
    const std::vector<std::string> notes = LinesOf(block.Notes);
    if (notes.empty()) return;
    Line("");
    Line("Notes", kBold);
    for (const std::string& note : notes) {
      for (const std::string& line : Wrapped(note, kSheetWidth)) Line("  " + line);
    }
  }

  void WriteScreen(const Screen& screen) {
    Line("");
    Line(screen.title(), kBold);
    Line(std::string(std::min(CharacterCount(screen.title()), kSheetWidth), '='));
    for (const Control* control : screen.ReadingOrder()) {
      if (control->kind() == ControlKind::Frame) WriteFrame(static_cast<const Frame&>(*control));
    }
  }

  std::string Finish() {
    while (text_.ends_with("\r\n")) text_.resize(text_.size() - 2);
    return std::move(text_);
  }

 private:
  static constexpr char kBold = static_cast<char>(LineMark::Bold);

  void WriteFrame(const Frame& frame) {
    std::vector<SheetEntry> entries;
    std::vector<const Table*> tables;
    std::vector<const Control*> texts;
    for (const Control* control : frame.controls()) {
      if (control->whole() != nullptr || !control->visible()) continue;
      // What stands a second time is told where it belongs.
      if (IsShownTwice(*control)) continue;
      Collect(*control, entries, tables, texts);
    }
    if (entries.empty() && tables.empty() && texts.empty()) return;
    Line("");
    if (const std::string caption = frame.PlainCaption(); !caption.empty()) Line(caption, kBold);
    WriteEntries(entries);
    for (const Table* table : tables) WriteTable(*table);
    for (const Control* control : texts) {
      const auto& area = static_cast<const TextControl&>(*control);
      for (const std::string& line : LinesOf(area.text())) Line("  " + line);
    }
  }

  static void Collect(const Control& control, std::vector<SheetEntry>& entries,
                      std::vector<const Table*>& tables, std::vector<const Control*>& texts) {
    switch (control.kind()) {
      case ControlKind::Field: AddField(static_cast<const Field&>(control), entries); break;
      case ControlKind::CheckBox:
        entries.push_back(
            {LabelOf(control), static_cast<const CheckBox&>(control).on() ? "yes" : "no"});
        break;
      case ControlKind::OptionGroup: {
        const auto& group = static_cast<const OptionGroup&>(control);
        for (const auto& button : group.buttons()) {
          if (button->on()) AddChoice(group, *button, entries);
        }
        break;
      }
      case ControlKind::ComboList: {
        const auto& list = static_cast<const ComboList&>(control);
        if (list.chosen() >= 0) entries.push_back({LabelOf(control), list.chosenText()});
        break;
      }
      case ControlKind::Table: tables.push_back(&static_cast<const Table&>(control)); break;
      case ControlKind::TextArea:
        if (!static_cast<const TextControl&>(control).text().empty()) texts.push_back(&control);
        break;
      default: break;
    }
  }

  static void AddChoice(const OptionGroup& group, const OptionButton& chosen,
                        std::vector<SheetEntry>& entries) {
    std::string label = group.PlainCaption();
    if (label.empty()) label = "Chosen";
    entries.push_back({std::move(label), chosen.PlainCaption()});
  }

  static std::string LabelOf(const Control& control) {
    std::string label(Trim(control.PlainCaption()));
    return label.empty() ? control.name() : label;
  }

  static void AddField(const Field& field, std::vector<SheetEntry>& entries) {
    std::string value(Trim(field.text()));
    const std::string_view unit = UnitSign(field.unit(), field.screen().metric());
    if (!value.empty() && !unit.empty()) value.append(1, ' ').append(unit);
    entries.push_back({LabelOf(field), value.empty() ? "-" : std::move(value)});
  }

  /// Two columns, read down the left one first; what is too long for one takes its own line.
  void WriteEntries(const std::vector<SheetEntry>& entries) {
    std::vector<const SheetEntry*> run;
    const auto flush = [&] {
      const std::size_t rows = (run.size() + 1) / 2;
      for (std::size_t row = 0; row < rows; ++row) {
        std::string line = Laid(*run[row], kColumnWidth);
        if (row + rows < run.size()) {
          line += std::string(kGap, ' ') + Laid(*run[row + rows], kColumnWidth);
        }
        Line(line);
      }
      run.clear();
    };
    for (const SheetEntry& entry : entries) {
      if (Fits(entry)) {
        run.push_back(&entry);
        continue;
      }
      flush();
      Line(Laid(entry, kSheetWidth));
    }
    flush();
  }

  static bool Fits(const SheetEntry& entry) {
    return CharacterCount(entry.label) + CharacterCount(entry.value) + 3 <= kColumnWidth;
  }

  /// The label at the left, dots, and the value at the right.
  static std::string Laid(const SheetEntry& entry, std::size_t width) {
    std::string label = "  " + entry.label + ' ';
    const std::size_t taken = CharacterCount(label) + CharacterCount(entry.value) + 1;
    if (taken >= width) return label + entry.value;
    return label + std::string(width - taken, '.') + ' ' + entry.value;
  }

  void WriteTable(const Table& table) {
    std::vector<SheetColumn> columns;
    SheetColumn names;
    for (int row = 0; row < table.rows(); ++row) names.cells.push_back(table.RowCaption(row));
    const bool isNamed = std::any_of(names.cells.begin(), names.cells.end(),
                                     [](const std::string& name) { return !name.empty(); });
    if (isNamed) {
      names.head = Wrapped(table.rowHead(), kHeadWidth);
      columns.push_back(std::move(names));
    }
    for (int column = 0; column < table.columns(); ++column) {
      SheetColumn made;
      std::string head = table.Head(column);
      const std::string_view unit = UnitSign(table.column(column).unit, table.screen().metric());
      if (!unit.empty()) head.append(" (").append(unit).append(")");
      made.head = Wrapped(head, kHeadWidth);
      for (int row = 0; row < table.rows(); ++row) {
        const Field* cell = table.Cell(row, column);
        made.cells.push_back(cell == nullptr ? std::string{} : std::string(Trim(cell->text())));
      }
      columns.push_back(std::move(made));
    }
    std::size_t heads = 0;
    for (SheetColumn& column : columns) {
      heads = std::max(heads, column.head.size());
      for (const std::string& word : column.head)
        column.width = std::max(column.width, CharacterCount(word));
      for (const std::string& cell : column.cells) {
        column.width = std::max(column.width, CharacterCount(cell));
      }
    }
    if (const std::string caption = table.PlainCaption(); !caption.empty()) Line("  " + caption);
    // As many columns at a time as a line holds, the rows' names always first.
    const std::size_t first = isNamed ? 1 : 0;
    for (std::size_t begin = first; begin < columns.size();) {
      std::size_t width = isNamed ? columns.front().width : 0;
      std::size_t end = begin;
      while (end < columns.size() &&
             (end == begin || width + columns[end].width + 4 <= kSheetWidth)) {
        width += columns[end].width + 2;
        ++end;
      }
      WriteColumns(columns, isNamed, begin, end, heads, table.rows());
      begin = end;
    }
  }

  void WriteColumns(const std::vector<SheetColumn>& columns, bool isNamed, std::size_t begin,
                    std::size_t end, std::size_t heads, int rows) {
    const auto line = [&](const auto& cellOf) {
      std::string text = "  ";
      if (isNamed) text += LeftAligned(cellOf(columns.front()), columns.front().width);
      for (std::size_t i = begin; i < end; ++i) {
        text += "  " + RightAligned(cellOf(columns[i]), columns[i].width);
      }
      return text;
    };
    for (std::size_t i = 0; i < heads; ++i) {
      Line(line([&](const SheetColumn& column) {
        // Short heads stand on the last lines.
        const std::size_t missing = heads - column.head.size();
        return i < missing ? std::string{} : column.head[i - missing];
      }));
    }
    for (int row = 0; row < rows; ++row) {
      Line(line(
          [&](const SheetColumn& column) { return column.cells[static_cast<std::size_t>(row)]; }));
    }
  }

  static constexpr std::size_t kHeadWidth = 12;

  std::string text_;
};

}  // namespace

std::string BuildSheet(std::span<const Screen* const> screens, const BuildSheetHead& head,
                       const ParameterBlock& block) {
  SheetWriter writer;
  writer.WriteHead(head, block);
  for (const Screen* screen : screens) writer.WriteScreen(*screen);
  return writer.Finish();
}

}  // namespace veldox
