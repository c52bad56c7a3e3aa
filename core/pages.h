#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/host.h"
#include "core/page_surface.h"
#include "core/parameter_block.h"
#include "core/report.h"

namespace veldox {

/// Width and height in twips.
struct SheetSize {
  int width = 0;
  int height = 0;
};

/// The sheet that pages are laid out on: what a printer can cover of a letter sheet in width,
/// and as high as the footer needs.
constexpr SheetSize PageSheet(bool landscape) {
  return landscape ? SheetSize{15120, 12455} : SheetSize{11520, 16080};
}

/// Height of a line in twips, the gap to the next line included: 1.125 of the size for
/// "Courier", 1.15 for "Arial", 1.2 for any other font.
int LineHeight(const PageFont& font);

/// Width of a text in twips. Every character of "Courier" is 0.6 of the size wide; the
/// characters of other fonts have the widths that are common to plain sans-serif faces.
int TextWidth(const PageFont& font, std::string_view text);

/// What heads the pages: the company block and when the job was printed.
struct PageHeader {
  std::array<std::string, 5> companyLines;  ///< empty ones are left out
  int location = 0;                         ///< of the block: 0 left, 1 centre, 2 right
  bool onEveryPage = false;                 ///< else on the first page only
  ClockTime printed;
};

/// The header that the shared values ask for.
PageHeader HeaderOf(const ParameterBlock& block, const ClockTime& now);

/// Where PrintAligned puts a text.
enum class PageAlignment : std::uint8_t { Left = 1, Centre = 2, Right = 3 };

/// Lays reports out on pages. One printer is one job.
class ReportPrinter {
 public:
  ReportPrinter(PageSurface& surface, PageHeader header);

  /// Prints a whole report with the marks of its lines and ends the job. The first line, the
  /// prompt, is left out.
  /// @param picture  stands over the text of the first page
  /// @throws CommandError (IndexOutOfRange) for a twelfth heading line, and what the surface throws
  void PrintReport(std::string_view report, int fontSize, const PagePicture& picture = {});

  /// The most heading lines that a report repeats on every page.
  static constexpr std::size_t kMostHeadingLines = 11;

 private:
  void PrintLine(const MarkedLine& line);
  /// Draws both sides of a column along the line that was printed last.
  void PrintSidesOf(const SetOffColumn& column);
  void NewPage();
  void PrintFooter();
  void PrintCompanyHeader();
  void PrintPicture(const PagePicture& picture);
  void PrintAligned(std::string_view text, const PageFont& font, int x, int y,
                    PageAlignment alignment);
  void PrintText(std::string_view text, bool bold);
  int PageEnd() const;

  PageSurface& surface_;
  PageHeader header_;
  SheetSize sheet_;
  bool landscape_;
  PageFont textFont_;
  PageFont boldFont_;
  int y_ = 0;
  std::int16_t pageNumber_ = 1;
  bool boldLineSeen_ = false;
  std::vector<std::string> headingLines_;
};

}  // namespace veldox
