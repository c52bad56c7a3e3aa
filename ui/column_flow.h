#pragma once

#include <QScrollArea>
#include <QWidget>
#include <vector>

namespace veldox {

/// Widgets side by side as far as the width goes; the others move under the shortest of
/// those, so that a narrow window scrolls down only and never sideways.
class ColumnFlow : public QWidget {
 public:
  ColumnFlow(int margin, int gap, QWidget* parent);

  void Add(QWidget* column);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Pile {
    int width = 0;
    int height = 0;
    std::vector<QWidget*> columns;
  };
  std::vector<Pile> Piles(int width) const;
  std::vector<Pile> Stack(std::size_t piles) const;
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
