#include "ui/column_flow.h"

#include <QEvent>
#include <algorithm>

namespace veldox {

ColumnFlow::ColumnFlow(int margin, int gap, QWidget* parent)
    : QWidget(parent), margin_(margin), gap_(gap) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void ColumnFlow::Add(QWidget* column) {
  columns_.push_back(column);
  updateGeometry();
}

std::vector<ColumnFlow::Pile> ColumnFlow::Stack(std::size_t piles) const {
  std::vector<Pile> result(piles);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const auto shortest =
        std::min_element(result.begin(), result.end(),
                         [](const Pile& a, const Pile& b) { return a.height < b.height; });
    Pile& pile = i < piles ? result[i] : *shortest;
    const QSize size = columns_[i]->sizeHint();
    pile.width = std::max(pile.width, size.width());
    pile.height += size.height() + (pile.columns.empty() ? 0 : gap_);
    pile.columns.push_back(columns_[i]);
  }
  return result;
}

int ColumnFlow::TotalWidth(const std::vector<Pile>& piles) const {
  int total = 2 * margin_ - gap_;
  for (const Pile& pile : piles) total += pile.width + gap_;
  return total;
}

std::vector<ColumnFlow::Pile> ColumnFlow::Piles(int width) const {
  for (std::size_t count = columns_.size(); count > 1; --count) {
    std::vector<Pile> piles = Stack(count);
    if (TotalWidth(piles) <= width) return piles;
  }
  return Stack(1);
}

int ColumnFlow::heightForWidth(int width) const {
  int highest = 0;
  for (const Pile& pile : Piles(width)) highest = std::max(highest, pile.height);
  return highest + 2 * margin_;
}

QSize ColumnFlow::sizeHint() const {
  const std::vector<Pile> piles = Stack(std::max<std::size_t>(1, columns_.size()));
  int highest = 0;
  for (const Pile& pile : piles) highest = std::max(highest, pile.height);
  return QSize(TotalWidth(piles), highest + 2 * margin_);
}

QSize ColumnFlow::minimumSizeHint() const {
  return QSize(TotalWidth(Stack(1)), 0);
}

bool ColumnFlow::event(QEvent* event) {
  // A frame has appeared, gone, or changed its size.
  if (event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    resizeEvent(nullptr);
  }
  return QWidget::event(event);
}

void ColumnFlow::resizeEvent(QResizeEvent*) {
  const std::vector<Pile> piles = Piles(width());
  // What is left over goes to both sides.
  int x = margin_ + std::max(0, width() - TotalWidth(piles)) / 2;
  for (const Pile& pile : piles) {
    int y = margin_;
    for (QWidget* column : pile.columns) {
      const int height = column->sizeHint().height();
      column->setGeometry(x, y, pile.width, height);
      y += height + gap_;
    }
    x += pile.width + gap_;
  }
}

FlowScroll::FlowScroll(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
}

void FlowScroll::ChooseBar() {
  if (widget() == nullptr) return;
  const QSize room = maximumViewportSize();
  const bool fits = widget()->heightForWidth(room.width()) <= room.height();
  setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void FlowScroll::resizeEvent(QResizeEvent* event) {
  ChooseBar();
  QScrollArea::resizeEvent(event);
}

bool FlowScroll::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) ChooseBar();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace veldox
