#pragma once

#include <QScrollArea>
#include <QWidget>
#include <vector>

namespace veldox {

/// Widgets side by side as far as the width goes; the others move under the shortest of
/// those, so that a narrow window scrolls down only and never sideways. A widget that can use
/// any height (a list) gets the height and width that are left over, and gives height back
/// before anything scrolls.
class ColumnFlow : public QWidget {
 public:
  ColumnFlow(int margin, int gap, QWidget* parent);

  void Add(QWidget* column);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  /// The height at which every widget has the size it would like.
  int WantedHeight(int width) const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  enum class Heights { Least, Wanted };
  struct Pile {
    int width = 0;
    int height = 0;
    bool grows = false;  ///< holds a widget that can use any height
    std::vector<QWidget*> columns;
  };
  std::vector<Pile> Piles(int width, Heights heights) const;
  std::vector<Pile> Stack(std::size_t piles, Heights heights) const;
  int Highest(const std::vector<Pile>& piles) const;
  int TotalWidth(const std::vector<Pile>& piles) const;

  std::vector<QWidget*> columns_;
  int margin_;
  int gap_;
};

/// Scrolls a ColumnFlow down. A bar shows only where the columns do not fit without one:
/// the bar's own width must not be what makes them too many.
class FlowScroll : public QScrollArea {
 public:
  explicit FlowScroll(QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ChooseBar();
};

}  // namespace veldox
