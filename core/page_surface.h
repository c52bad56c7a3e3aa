#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace veldox {

/// A font of a printed page.
struct PageFont {
  std::string name;
  int size = 10;  ///< points
  bool bold = false;

  bool operator==(const PageFont&) const = default;
};

/// Where pages are drawn: a printer, a PDF, a preview, a test. It only draws: where every text
/// stands is worked out by core/pages.h, from metrics of its own, so that a report breaks into
/// the same pages everywhere. Places are in twips (1/1440 inch) from the top left corner of the
/// sheet of PageSheet(landscape()); a surface whose paper holds less draws that sheet smaller.
///
/// What a surface cannot do it throws as CommandError (File). A surface that goes away before
/// EndJob has printed nothing more.
class PageSurface {
 public:
  PageSurface() = default;
  PageSurface(const PageSurface&) = delete;
  PageSurface& operator=(const PageSurface&) = delete;
  virtual ~PageSurface() = default;

  virtual bool landscape() const = 0;
  /// Draws one line of text with its left top corner at X and Y.
  virtual void PlaceText(int x, int y, const PageFont& font, std::string_view text) = 0;
  /// Draws a black line between two places. @param width  twips
  virtual void PlaceLine(int fromX, int fromY, int toX, int toY, int width) = 0;
  /// Sends the page and begins the next one.
  virtual void NewPage() = 0;
  /// Sends the last page and ends the job.
  virtual void EndJob() = 0;
};

/// A text on a page.
struct PlacedText {
  int x = 0;  ///< twips
  int y = 0;  ///< twips
  PageFont font;
  std::string text;
};

/// A line on a page, in twips.
struct PlacedLine {
  int fromX = 0;
  int fromY = 0;
  int toX = 0;
  int toY = 0;
  int width = 0;
};

/// What stands on one page.
struct Page {
  bool landscape = false;
  std::vector<PlacedText> texts;
  std::vector<PlacedLine> lines;
};

/// A rectangle of a page in twips.
struct PageArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

/// What a report has drawn over its text where it is printed.
struct PagePicture {
  int height = 0;  ///< twips
  std::function<void(PageSurface&, const PageArea&)> draw{};
};

/// Keeps the pages of a job instead of drawing them.
class PageRecorder : public PageSurface {
 public:
  explicit PageRecorder(bool landscape = false) : landscape_(landscape) {
    pages_.push_back({landscape_, {}, {}});
  }

  bool landscape() const override { return landscape_; }
  void PlaceText(int x, int y, const PageFont& font, std::string_view text) override {
    pages_.back().texts.push_back({x, y, font, std::string(text)});
  }
  void PlaceLine(int fromX, int fromY, int toX, int toY, int width) override {
    pages_.back().lines.push_back({fromX, fromY, toX, toY, width});
  }
  void NewPage() override { pages_.push_back({landscape_, {}, {}}); }
  void EndJob() override { ended_ = true; }

  const std::vector<Page>& pages() const { return pages_; }
  bool ended() const { return ended_; }

 private:
  bool landscape_;
  bool ended_ = false;
  std::vector<Page> pages_;
};

}  // namespace veldox
