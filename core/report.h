#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/report_columns.h"

namespace veldox {

/// A report is one text of lines that end with CR LF, the last one without. The last character
/// of a line may be a mark for the printer, which no reader ever sees.
enum class LineMark : char {
  None = 0,
  Heading = '_',      ///< bold, and repeated at the top of the pages that follow
  Bold = '^',         ///< bold
  HeadingsEnd = '~',  ///< no headings are repeated from here on
};

/// What every report begins with: the keys of the report box. It is shown and written to files,
/// never printed.
inline constexpr std::string_view ReportPrompt =
    "Press the . key to Write this Data to a Disk File Or , key to Print this Data\r\n\r\n";

/// The beginning of a page that can only be written to a file.
inline constexpr std::string_view PagePrompt =
    "Pressing the . key will cause this Page to be Written to a Disk File.\r\n\r\n";

/// What a chart begins with in place of ReportPrompt.
inline constexpr std::string_view ChartPrompt =
    "               Please press , To Print this Chart\r\n";

/// The warning before a report that is longer than a text box may hold.
inline constexpr std::string_view OverflowNote =
    "You could be trying to Generate More Lines than can fit in the Text Box\r\n\r\n"
    "Note if you save the Data to a File or Print the Data to a Printer all of the Data should be "
    "There\r\n";

/// One line of a report, without its mark and line break. It points into the report's text.
struct MarkedLine {
  std::string_view text;
  LineMark mark = LineMark::None;

  bool operator==(const MarkedLine&) const = default;
};

/// The lines of a report in order; a text without a line break is one line.
std::vector<MarkedLine> ReportLines(std::string_view report);

/// What stands over a column that a report sets off: that of the value that was entered.
inline constexpr std::string_view kColumnArrow = "\\|/";

/// A column of a report that is set off: the rows of numbers under its arrow and its heads.
struct SetOffColumn {
  std::size_t firstLine = 0;  ///< the first row
  std::size_t endLine = 0;    ///< the line behind the last one
  std::size_t begin = 0;      ///< first character of the widest number
  std::size_t end = 0;        ///< behind its last one

  bool operator==(const SetOffColumn&) const = default;
};

/// The columns of a report that an arrow points at, in order.
std::vector<SetOffColumn> SetOffColumns(const std::vector<MarkedLine>& lines);

/// The report as the report box shows it: without the marks at line ends.
std::string ReportBoxText(std::string_view report);

/// The report as it is written to a file: without marks, and with a line break behind the last
/// line. A mark that no line break follows stays.
std::string ReportFileText(std::string_view report);

/// The points that a report is printed in where its width decides: 9 when a printed line is wider
/// than 80 characters, else 10.
int FontSizeByWidth(std::string_view report);

/// The same for tables of many columns: the largest size, not above 10, in which a portrait page
/// holds the widest line.
int FontSizeForPage(std::string_view report);

/// Builds a report line by line: cells of numbers by ReportColumns, texts as they are.
class ReportWriter : public ReportColumns {
 public:
  /// Begins a report. @param prompt  its first line, which is never printed
  explicit ReportWriter(DecimalMark mark, std::string_view prompt = ReportPrompt)
      : ReportColumns(mark) {
    ReportLine = prompt;
  }

  /// Appends a text to the line.
  ReportWriter& Add(std::string_view text) {
    ReportLine += text;
    return *this;
  }

  /// Appends a number by a pattern, with blanks on its left up to `width`.
  template <PatternText Pattern>
  ReportWriter& Add(double value, int width = 0) {
    AddCell<Pattern>(value, width);
    return *this;
  }

  /// Ends the line. A text that already carries its mark needs none here.
  void EndLine(LineMark mark = LineMark::None);

  /// Appends whole lines, each with its mark as its last character.
  void AddLines(std::initializer_list<std::string_view> lines);

  /// The report, without a line break behind its last line. The writer is empty then.
  std::string Finish();
};

}  // namespace veldox
