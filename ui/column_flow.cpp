#include "ui/column_flow.h"

#include <QEvent>
#include <QLayout>
#include <algorithm>
#include <utility>

namespace veldox {
namespace {

/// True for a widget that can use any height.
bool Grows(const QWidget& widget) {
  return widget.layout() != nullptr &&
         widget.layout()->expandingDirections().testFlag(Qt::Vertical);
}

}  // namespace

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

std::vector<ColumnFlow::Pile> ColumnFlow::Stack(std::size_t piles, Heights heights) const {
  std::vector<Pile> result(piles);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const auto shortest =
        std::min_element(result.begin(), result.end(),
                         [](const Pile& a, const Pile& b) { return a.height < b.height; });
    Pile& pile = i < piles ? result[i] : *shortest;
    const bool grows = Grows(*columns_[i]);
    const QSize size = columns_[i]->sizeHint();
    pile.width = std::max(pile.width, size.width());
    pile.height += (grows && heights == Heights::Least ? columns_[i]->minimumSizeHint().height()
                                                       : size.height()) +
                   (pile.columns.empty() ? 0 : gap_);
    pile.grows = pile.grows || grows;
    pile.columns.push_back(columns_[i]);
  }
  return result;
}

int ColumnFlow::TotalWidth(const std::vector<Pile>& piles) const {
  int total = 2 * margin_ - gap_;
  for (const Pile& pile : piles) total += pile.width + gap_;
  return total;
}

std::vector<ColumnFlow::Pile> ColumnFlow::Piles(int width, Heights heights) const {
  for (std::size_t count = columns_.size(); count > 1; --count) {
    std::vector<Pile> piles = Stack(count, heights);
    if (TotalWidth(piles) <= width) return piles;
  }
  return Stack(1, heights);
}

int ColumnFlow::Highest(const std::vector<Pile>& piles) const {
  int highest = 0;
  for (const Pile& pile : piles) highest = std::max(highest, pile.height);
  return highest + 2 * margin_;
}

int ColumnFlow::heightForWidth(int width) const {
  return Highest(Piles(width, Heights::Least));
}

int ColumnFlow::WantedHeight(int width) const {
  return Highest(Piles(width, Heights::Wanted));
}

QSize ColumnFlow::sizeHint() const {
  const std::vector<Pile> piles = Stack(std::max<std::size_t>(1, columns_.size()), Heights::Wanted);
  return QSize(TotalWidth(piles), Highest(piles));
}

QSize ColumnFlow::minimumSizeHint() const {
  return QSize(TotalWidth(Stack(1, Heights::Least)), 0);
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
  const std::vector<Pile> piles = Piles(width(), Heights::Least);
  const auto growing = static_cast<int>(
      std::count_if(piles.begin(), piles.end(), [](const Pile& pile) { return pile.grows; }));
  const int spare = std::max(0, width() - TotalWidth(piles));
  // Where no widget can use it, the width that is left over goes to both sides.
  int x = margin_ + (growing == 0 ? spare / 2 : 0);
  for (const Pile& pile : piles) {
    const int wide = pile.width + (pile.grows ? spare / growing : 0);
    int left = std::max(0, height() - 2 * margin_ - pile.height);
    int y = margin_;
    for (QWidget* column : pile.columns) {
      int high = column->sizeHint().height();
      if (Grows(*column)) high = column->minimumSizeHint().height() + std::exchange(left, 0);
      column->setGeometry(x, y, wide, high);
      y += high + gap_;
    }
    x += wide + gap_;
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
