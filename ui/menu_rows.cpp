#include "ui/menu_rows.h"

#include <QActionEvent>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QToolTip>
#include <algorithm>
#include <numeric>

namespace veldox {

MenuRow::MenuRow(bool first, QWidget* parent) : QMenuBar(parent), first_(first) {
  // A bar outside the window has one row, and this one has several.
  setNativeMenuBar(false);
}

bool MenuRow::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QAction* action = actionAt(help.pos());
    if (action != nullptr && !action->isEnabled()) {
      QToolTip::showText(help.globalPos(), action->toolTip(), this);
    } else {
      QToolTip::hideText();
    }
    return true;
  }
  return QMenuBar::event(event);
}

void MenuRow::keyPressEvent(QKeyEvent* event) {
  const bool right = event->key() == Qt::Key_Right;
  if (right || event->key() == Qt::Key_Left) {
    const QList<QAction*> items = actions();
    const auto enabled = [](const QAction* action) { return action->isEnabled(); };
    const auto last = std::find_if(items.rbegin(), items.rend(), enabled);
    const auto start = std::find_if(items.begin(), items.end(), enabled);
    const bool atEnd = right ? last != items.rend() && *last == activeAction()
                             : start != items.end() && *start == activeAction();
    if (activeAction() != nullptr && atEnd) {
      static_cast<MenuRows*>(parentWidget())->Cross(*this, right);
      event->accept();
      return;
    }
  }
  QMenuBar::keyPressEvent(event);
  if (event->key() == Qt::Key_Escape) static_cast<MenuRows*>(parentWidget())->Leave();
}

MenuRows::MenuRows(QWidget* parent) : QWidget(parent) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
    const auto isRow = [this](const QWidget* widget) {
      return std::find(rows_.begin(), rows_.end(), widget) != rows_.end();
    };
    if (isRow(now) && old != nullptr && !isRow(old)) before_ = old;
  });
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void MenuRows::Add(QAction* action) {
  actions_.push_back(action);
  breaks_.clear();
  updateGeometry();
}

int MenuRows::ItemWidth(const QAction& action) const {
  const QFont font = this->font();
  const QFontMetrics metrics(font);
  QStyleOptionMenuItem option;
  option.initFrom(this);
  option.text = action.text();
  option.menuItemType = QStyleOptionMenuItem::Normal;
  const QSize text = metrics.size(Qt::TextShowMnemonic, action.text());
  return style()->sizeFromContents(QStyle::CT_MenuBarItem, &option, text, this).width() +
         style()->pixelMetric(QStyle::PM_MenuBarItemSpacing, nullptr, this);
}

std::vector<int> MenuRows::Break(int width) const {
  std::vector<int> widths;
  for (const QAction* action : actions_) widths.push_back(ItemWidth(*action));
  const int margin = 2 * (style()->pixelMetric(QStyle::PM_MenuBarHMargin, nullptr, this) +
                          style()->pixelMetric(QStyle::PM_MenuBarPanelWidth, nullptr, this)) +
                     8;
  const auto fill = [&](int room) {
    std::vector<int> ends;
    int used = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      if (used > 0 && used + widths[i] > room) {
        ends.push_back(static_cast<int>(i) - 1);
        used = 0;
      }
      used += widths[i];
    }
    ends.push_back(static_cast<int>(widths.size()) - 1);
    return ends;
  };
  const int room = std::max(1, width - margin);
  std::vector<int> best = fill(room);
  // As few rows as the width allows, and those about equally long.
  const std::size_t rows = best.size();
  for (int narrow = room; narrow > 0; narrow -= 8) {
    std::vector<int> tried = fill(narrow);
    if (tried.size() > rows) break;
    best = std::move(tried);
  }
  return best;
}

void MenuRows::Distribute() {
  std::vector<int> breaks = Break(width());
  if (breaks != breaks_) {
    breaks_ = std::move(breaks);
    while (rows_.size() < breaks_.size()) {
      rows_.push_back(new MenuRow(rows_.empty(), this));
      rows_.back()->setObjectName(QStringLiteral("MenuRow%1").arg(rows_.size()));
    }
    for (MenuRow* row : rows_) row->clear();
    int next = 0;
    for (std::size_t i = 0; i < breaks_.size(); ++i) {
      for (; next <= breaks_[i]; ++next) {
        rows_[i]->addAction(actions_[static_cast<std::size_t>(next)]);
      }
    }
    shownRows_ = static_cast<int>(breaks_.size());
    updateGeometry();
  }
  const int rowHeight = RowHeight();
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i) {
    MenuRow* row = rows_[static_cast<std::size_t>(i)];
    row->setVisible(i < shownRows_);
    row->setGeometry(0, i * rowHeight, width(), rowHeight);
  }
}

int MenuRows::RowHeight() const {
  if (!rows_.empty()) return rows_.front()->sizeHint().height();
  return MenuRow(true, nullptr).sizeHint().height();
}

int MenuRows::heightForWidth(int width) const {
  return RowHeight() * static_cast<int>(Break(width).size());
}

QSize MenuRows::sizeHint() const {
  return QSize(minimumSizeHint().width(), RowHeight() * std::max(1, shownRows_));
}

QSize MenuRows::minimumSizeHint() const {
  int widest = 0;
  for (const QAction* action : actions_) widest = std::max(widest, ItemWidth(*action));
  return QSize(widest, RowHeight() * std::max(1, shownRows_));
}

void MenuRows::resizeEvent(QResizeEvent*) {
  Distribute();
}

void MenuRows::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    breaks_.clear();
    if (!actions_.empty()) Distribute();
    updateGeometry();
  }
  QWidget::changeEvent(event);
}

void MenuRows::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
}

void MenuRows::Leave() {
  for (MenuRow* row : rows_) row->setActiveAction(nullptr);
  if (before_ != nullptr) before_->setFocus(Qt::MenuBarFocusReason);
}

void MenuRows::Cross(MenuRow& from, bool forward) {
  const int at = static_cast<int>(std::find(rows_.begin(), rows_.end(), &from) - rows_.begin());
  for (int step = 1; step <= shownRows_; ++step) {
    const int index = (at + (forward ? step : shownRows_ - step)) % shownRows_;
    MenuRow* row = rows_[static_cast<std::size_t>(index)];
    QList<QAction*> items = row->actions();
    if (!forward) std::reverse(items.begin(), items.end());
    for (QAction* action : items) {
      if (!action->isEnabled()) continue;
      if (row != &from) from.setActiveAction(nullptr);
      row->setFocus(Qt::MenuBarFocusReason);
      row->setActiveAction(action);
      return;
    }
  }
}

}  // namespace veldox
