#include "core/pages.h"

#include <algorithm>
#include <utility>

#include "core/error.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr int kTwipsPerPoint = 20;

// Places of a page in twips.
constexpr int kTextLeft = 150;
constexpr int kLastHeadingTop = 14500;
constexpr int kLastLineTop = 15150;
constexpr int kPageEnd = 15400;
constexpr int kLastLineTopLandscape = 11700;
constexpr int kPageEndLandscape = 11900;
constexpr int kFooterTop = 15800;
constexpr int kFooterTopLandscape = 12175;

// Gaps of the header in twips.
constexpr int kCompanyLineGap = 75;
constexpr int kUnderCompanyBlock = 100;
constexpr int kUnderHeader = 125;

constexpr int kCompanyNameSize = 14;
constexpr int kHeaderSize = 10;
constexpr int kFooterSize = 10;

/// The sides of a column that is set off: half a point.
constexpr int kHairline = 10;

constexpr std::string_view kTextFontName = "Courier";
constexpr std::string_view kHeaderFontName = "Arial";
constexpr std::string_view kFooterFontName = "Tahoma";

constexpr const char* kMonths[] = {"January",   "February", "March",    "April",
                                   "May",       "June",     "July",     "August",
                                   "September", "October",  "November", "December"};

/// Widths of the characters from blank to tilde in thousandths of a sans-serif face's size.
constexpr std::array<int, 95> kSansSerifWidths{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr int kOtherCharacterWidth = 556;
constexpr int kFixedWidth = 600;

std::string PrintedLine(const ClockTime& time) {
  const int month = std::clamp(time.month, 1, 12);
  return "Printed: " + std::string(kMonths[month - 1]) + ' ' + std::to_string(time.day) + ' ' +
         std::to_string(time.year) + ' ' + std::to_string(time.hour) + ':' +
         std::to_string(time.minute) + ':' + std::to_string(time.second);
}

}  // namespace

int LineHeight(const PageFont& font) {
  const int height = font.size * kTwipsPerPoint;
  if (font.name == kTextFontName) return height * 1125 / 1000;
  if (font.name == kHeaderFontName) return height * 1150 / 1000;
  return height * 1200 / 1000;
}

int TextWidth(const PageFont& font, std::string_view text) {
  const bool fixed = font.name == kTextFontName;
  int thousandths = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsContinuationByte(c)) continue;  // not the first byte of its character
    if (fixed) {
      thousandths += kFixedWidth;
    } else if (byte >= ' ' && byte <= '~') {
      thousandths += kSansSerifWidths[byte - std::size_t{' '}];
    } else {
      thousandths += kOtherCharacterWidth;
    }
  }
  return thousandths * font.size * kTwipsPerPoint / 1000;
}

PageHeader HeaderOf(const ParameterBlock& block, const ClockTime& now) {
  return {{block.CompanyName, block.CompanyAddress, block.CompanyCity, block.CompanyPhone,
           block.CompanyWebSite},
          block.CompanyNameLocation,
          block.PrintHeads == 1,
          now};
}

ReportPrinter::ReportPrinter(PageSurface& surface, PageHeader header)
    : surface_(surface),
      header_(std::move(header)),
      sheet_(PageSheet(surface.landscape())),
      landscape_(surface.landscape()) {}

int ReportPrinter::PageEnd() const {
  return landscape_ ? kPageEndLandscape : kPageEnd;
}

void ReportPrinter::PrintReport(std::string_view report, int fontSize, const PagePicture& picture) {
  textFont_ = {std::string(kTextFontName), fontSize, false};
  boldFont_ = textFont_;
  boldFont_.bold = true;
  PrintCompanyHeader();
  PrintPicture(picture);
  const std::vector<MarkedLine> lines = ReportLines(report);
  if (lines.size() == 1) {
    PrintText(lines.front().text, false);
  } else {
    const std::vector<SetOffColumn> columns = SetOffColumns(lines);
    auto column = columns.begin();
    for (std::size_t i = 1; i < lines.size(); ++i) {
      PrintLine(lines[i]);
      while (column != columns.end() && column->endLine <= i) ++column;
      if (column != columns.end() && column->firstLine <= i) PrintSidesOf(*column);
    }
  }
  PrintFooter();
  surface_.EndJob();
}

void ReportPrinter::PrintLine(const MarkedLine& line) {
  switch (line.mark) {
    case LineMark::Heading:
      if (headingLines_.empty() && y_ > kLastHeadingTop) NewPage();
      if (headingLines_.size() == kMostHeadingLines) {
        throw CommandError(ErrorKind::IndexOutOfRange,
                           "The report cannot be printed: it has more than " +
                               std::to_string(kMostHeadingLines) + " heading lines.");
      }
      headingLines_.emplace_back(line.text);
      break;
    case LineMark::Bold:
      if (y_ > kLastHeadingTop && !boldLineSeen_) NewPage();
      boldLineSeen_ = true;
      break;
    case LineMark::HeadingsEnd: headingLines_.clear(); break;
    case LineMark::None: break;
  }
  if (y_ > kLastLineTop) y_ = kPageEnd;
  if (landscape_ && y_ > kLastLineTopLandscape) y_ = kPageEndLandscape;
  if (y_ >= PageEnd()) NewPage();
  PrintText(line.text, line.mark == LineMark::Heading || line.mark == LineMark::Bold);
}

void ReportPrinter::PrintSidesOf(const SetOffColumn& column) {
  const int character = TextWidth(textFont_, " ");
  const int top = y_ - LineHeight(textFont_);
  // In the middle of the blanks before and behind the column.
  for (const std::size_t side :
       {2 * column.begin - std::min<std::size_t>(column.begin, 1), 2 * column.end + 1}) {
    const int x = kTextLeft + static_cast<int>(side) * character / 2;
    surface_.PlaceLine(x, top, x, y_, kHairline);
  }
}

void ReportPrinter::NewPage() {
  PrintFooter();
  surface_.NewPage();
  y_ = 0;
  if (header_.onEveryPage) PrintCompanyHeader();
  ++pageNumber_;
  PrintText({}, false);
  if (headingLines_.empty()) return;
  for (const std::string& heading : headingLines_) PrintText(heading, true);
  PrintText({}, false);
}

void ReportPrinter::PrintFooter() {
  const PageFont font{std::string(kFooterFontName), kFooterSize, false};
  PrintAligned("Page " + std::to_string(pageNumber_), font, kTextLeft,
               landscape_ ? kFooterTopLandscape : kFooterTop, PageAlignment::Centre);
}

void ReportPrinter::PrintCompanyHeader() {
  const auto alignment = static_cast<PageAlignment>(std::clamp(header_.location, 0, 2) + 1);
  const PageFont font{std::string(kHeaderFontName), kHeaderSize, false};
  int y = 0;
  for (std::size_t i = 0; i < header_.companyLines.size(); ++i) {
    if (header_.companyLines[i].empty()) continue;
    PageFont lineFont = font;
    if (i == 0) lineFont.size = kCompanyNameSize;
    if (y > 0) y += kCompanyLineGap;
    PrintAligned(header_.companyLines[i], lineFont, kTextLeft, y, alignment);
    y += LineHeight(lineFont);
  }
  if (y > 0) y += kUnderCompanyBlock;
  // A block that stands at the right itself has the corner; the time goes under it.
  const int printedTop = alignment == PageAlignment::Right ? y : 0;
  PrintAligned(PrintedLine(header_.printed), font, kTextLeft, printedTop, PageAlignment::Right);
  y_ = std::max(y, printedTop + LineHeight(font)) + kUnderHeader;
}

void ReportPrinter::PrintPicture(const PagePicture& picture) {
  if (!picture.draw) return;
  const int height = std::min(picture.height, PageEnd() - y_);
  picture.draw(surface_, {kTextLeft, y_, sheet_.width - 2 * kTextLeft, height});
  y_ += height + kUnderHeader;
}

void ReportPrinter::PrintAligned(std::string_view text, const PageFont& font, int x, int y,
                                 PageAlignment alignment) {
  const int width = TextWidth(font, text);
  int left = x;
  if (width <= sheet_.width) {
    if (alignment == PageAlignment::Centre) left = (sheet_.width - width) / 2;
    if (alignment == PageAlignment::Right) left = std::max(sheet_.width - kTextLeft - width, 0);
  }
  surface_.PlaceText(left, y, font, text);
}

void ReportPrinter::PrintText(std::string_view text, bool bold) {
  const PageFont& font = bold ? boldFont_ : textFont_;
  if (!text.empty()) surface_.PlaceText(kTextLeft, y_, font, text);
  y_ += LineHeight(font);
}

}  // namespace veldox
