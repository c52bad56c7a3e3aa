#include "ui/pick_list_face.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/qt_text.h"
#include "ui/theme.h"

namespace veldox {
namespace {

constexpr int kIndent = 24;     ///< of a heading
constexpr int kEdge = 6;        ///< left and right of a row
constexpr int kSignGap = 8;     ///< left and right of the sign between name and figures
constexpr int kColumnGap = 16;  ///< between two figures
constexpr int kRowAir = 5;      ///< above and below the text of a row together
constexpr int kWantedRows = 23;
constexpr int kFewestRows = 6;
/// What a list would like to be wide, in digits of its font.
constexpr int kWantedDigits = 94;
/// And how much wider for each figure beyond these.
constexpr int kUsualFigures = 4;
constexpr int kDigitsOfFigure = 7;
constexpr int kFewestDigits = 30;
constexpr int kMostFigures = 12;
constexpr int kMostDigits = 12;
constexpr int kShortestName = 14;  ///< digits
constexpr int kLastRow = 1 << 24;  ///< further than any list goes

/// A row's name and figures.
struct Parts {
  QString name;
  QStringList figures;
};

Parts SplitRow(const std::string& text) {
  const auto sign = text.find(kFiguresSign);
  Parts parts{ToQt(std::string_view(text).substr(0, sign)).trimmed(), {}};
  for (const std::string& figure : PickedFigures(text, kMostFigures)) {
    parts.figures.append(ToQt(figure));
  }
  return parts;
}

/// Signs before the point of a figure, and with the point behind it.
struct Digits {
  int before;
  int behind;
};

Digits CountDigits(const std::string& figure) {
  const auto point = std::min(figure.find_first_of(".,"), figure.size());
  return {static_cast<int>(point), static_cast<int>(figure.size() - point)};
}

}  // namespace

// ---------------------------------------------------------------- rows

int PickRowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list_.rows().size());
}

QVariant PickRowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const PickRow& row = list_.RowAt(index.row());
  switch (role) {
    case Qt::DisplayRole: return ToQt(row.text);
    case Qt::ToolTipRole: {
      const QString tip = ToQt(list_.Told(index.row()));
      // What a user has written is no markup.
      return Qt::mightBeRichText(tip) ? QStringLiteral("<p>%1</p>").arg(tip.toHtmlEscaped()) : tip;
    }
    case Qt::AccessibleDescriptionRole: return ToQt(row.note);
    default: return {};
  }
}

Qt::ItemFlags PickRowsModel::flags(const QModelIndex& index) const {
  if (!index.isValid() || index.row() >= rowCount()) return Qt::NoItemFlags;
  const bool picks = list_.RowAt(index.row()).kind == PickRow::Kind::Choice;
  return picks ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

void PickRowsModel::Reset() {
  beginResetModel();
  endResetModel();
}

// ---------------------------------------------------------------- columns

void PickColumns::Measure(const PickList& list, const QFontMetrics& metrics) {
  std::vector<Digits> widest;
  const auto nameOf = [](const PickRow& row) {
    return std::string_view(row.text).substr(
        0, std::min(row.text.find(kFiguresSign), row.text.size()));
  };
  std::size_t longest = 0;
  for (const PickRow& row : list.all()) longest = std::max(longest, nameOf(row).size());
  longestName_ = 0;
  for (const PickRow& row : list.all()) {
    // Narrow signs make a text no wider than half as many wide ones.
    const std::string_view name = nameOf(row);
    if (2 * name.size() >= longest) {
      longestName_ = std::max(longestName_, metrics.horizontalAdvance(ToQt(name).trimmed()) + 1);
    }
    if (row.kind != PickRow::Kind::Choice) continue;
    std::size_t column = 0;
    for (const std::string& figure : PickedFigures(row.text, kMostFigures)) {
      if (widest.size() == column) widest.push_back({0, 0});
      const Digits digits = CountDigits(figure);
      widest[column].before = std::min(std::max(widest[column].before, digits.before), kMostDigits);
      widest[column].behind = std::min(std::max(widest[column].behind, digits.behind), kMostDigits);
      ++column;
    }
  }
  const auto headWidth = [&](std::size_t head) {
    return head < list.heads().size() ? metrics.horizontalAdvance(ToQt(list.heads()[head])) : 0;
  };
  const int digit = metrics.horizontalAdvance(QLatin1Char('0'));
  shortestName_ = kShortestName * digit;
  // Measured from the sign; Fit moves them to their places.
  int x = kSignGap + metrics.horizontalAdvance(QLatin1Char(kFiguresSign)) + kSignGap;
  columns_.clear();
  for (std::size_t i = 0; i < widest.size(); ++i) {
    const int before = widest[i].before * digit;
    const int wide = std::max(before + widest[i].behind * digit, headWidth(i + 1));
    // Figures stand in the middle under a wider head.
    const int spare = (wide - before - widest[i].behind * digit) / 2;
    columns_.push_back({x, x + spare + before, x + wide});
    x += wide + kColumnGap;
  }
  figuresWidth_ = x;
  signLeft_ = 0;
}

void PickColumns::Fit(int width) {
  const int most = std::max(shortestName_, width - figuresWidth_ - 2 * kEdge);
  nameWidth_ = std::clamp(longestName_, shortestName_, most);
  const int moved = kEdge + nameWidth_ + kSignGap - signLeft_;
  signLeft_ += moved;
  for (Column& column : columns_) {
    column.left += moved;
    column.point += moved;
    column.right += moved;
  }
}

// ---------------------------------------------------------------- painting

void PickRowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  const PickRow& row = list_.RowAt(index.row());
  const QPalette& palette = option.palette;
  const bool current = index.row() == list_.current();
  painter->save();
  QColor ink = palette.color(QPalette::Active, QPalette::Text);
  if (current) {
    painter->fillRect(option.rect, palette.color(QPalette::Active, QPalette::Highlight));
    ink = palette.color(QPalette::Active, QPalette::HighlightedText);
  } else if (row.kind == PickRow::Kind::Choice && (option.state & QStyle::State_MouseOver) != 0) {
    painter->fillRect(option.rect, palette.color(QPalette::Active, QPalette::Midlight));
  }
  if (row.kind == PickRow::Kind::NameOnly) {
    ink = palette.color(QPalette::Active, QPalette::PlaceholderText);
  }
  const QRect inner = option.rect.adjusted(kEdge, 0, -kEdge, 0);
  const QFontMetrics metrics = option.fontMetrics;
  constexpr int kLeft = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
  const Parts parts = SplitRow(row.text);
  if (row.kind == PickRow::Kind::Group) {
    painter->fillRect(option.rect, palette.color(QPalette::Active, QPalette::AlternateBase));
  }
  if (row.kind != PickRow::Kind::Choice || parts.figures.isEmpty()) {
    QFont font = option.font;
    font.setBold(row.kind == PickRow::Kind::Group);
    painter->setFont(font);
    const bool section = row.kind == PickRow::Kind::Section;
    painter->setPen(section ? palette.color(QPalette::Active, QPalette::Link) : ink);
    const int indent = section && !parts.name.isEmpty() && row.text.front() == ' ' ? kIndent : 0;
    const QRect room = inner.adjusted(indent, 0, 0, 0);
    painter->drawText(room, kLeft,
                      QFontMetrics(font).elidedText(
                          parts.figures.isEmpty() ? ToQt(row.text).trimmed() : parts.name,
                          Qt::ElideRight, room.width()));
    painter->restore();
    return;
  }
  painter->setPen(ink);
  painter->setFont(option.font);
  const QRect name(inner.left(), inner.top(), columns_.nameWidth(), inner.height());
  painter->drawText(name, kLeft, metrics.elidedText(parts.name, Qt::ElideRight, name.width()));
  const int x = option.rect.left();
  const QColor pale = current ? ink : palette.color(QPalette::Active, QPalette::PlaceholderText);
  painter->setPen(pale);
  painter->drawText(QRect(x + columns_.signLeft(), inner.top(), kSignGap * 2, inner.height()),
                    kLeft, QString(QLatin1Char(kFiguresSign)));
  painter->setPen(ink);
  const auto& columns = columns_.columns();
  for (qsizetype i = 0; i < parts.figures.size(); ++i) {
    const QString& figure = parts.figures[i];
    const PickColumns::Column& column = columns[static_cast<std::size_t>(i)];
    const Digits digits = CountDigits(FromQt(figure));
    const int left = column.point - metrics.horizontalAdvance(figure.left(digits.before));
    painter->drawText(
        QRect(x + left, inner.top(), option.rect.width() - left - kEdge, inner.height()), kLeft,
        metrics.elidedText(figure, Qt::ElideRight, option.rect.width() - left - kEdge));
  }
  painter->restore();
}

QSize PickRowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return QSize(option.rect.width(), option.fontMetrics.height() + kRowAir);
}

// ---------------------------------------------------------------- view

/// The heads of the columns, which stay in sight over the rows.
class PickView::Heads : public QWidget {
 public:
  explicit Heads(PickView& view) : QWidget(&view), view_(view) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const ThemeColors colors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.card);
    painter.setPen(colors.border);
    painter.drawLine(0, height() - 1, width(), height() - 1);
    painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
    const auto& heads = view_.list_.heads();
    const auto& columns = view_.columns_.columns();
    if (heads.empty()) return;
    painter.drawText(QRect(kEdge, 0, view_.columns_.nameWidth(), height()),
                     Qt::AlignLeft | Qt::AlignVCenter, ToQt(heads.front()));
    for (std::size_t i = 0; i < columns.size() && i + 1 < heads.size(); ++i) {
      painter.drawText(QRect(columns[i].left, 0, columns[i].right - columns[i].left, height()),
                       Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextDontClip, ToQt(heads[i + 1]));
    }
  }

 private:
  PickView& view_;
};

PickView::PickView(PickList& list, QWidget* parent)
    : QListView(parent), list_(list), rows_(list, this), heads_(new Heads(*this)) {
  setModel(&rows_);
  setItemDelegate(new PickRowPainter(list_, columns_, this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(NoSelection);
  // The line above the rows has the keyboard; what is typed there narrows the list.
  setFocusPolicy(Qt::ClickFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // The columns stay in their places when the list gets shorter.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setVerticalScrollMode(ScrollPerItem);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_Hover);
  connect(this, &QListView::entered, this,
          [this](const QModelIndex& index) { list_.HoverRow(index.row()); });
  Measure();
}

int PickView::RowHeight() const {
  return fontMetrics().height() + kRowAir;
}

void PickView::Measure() {
  columns_.Measure(list_, fontMetrics());
  columns_.Fit(viewport()->width());
  setViewportMargins(0, list_.heads().empty() ? 0 : RowHeight(), 0, 0);
  heads_->setVisible(!list_.heads().empty());
  heads_->update();
}

QSize PickView::sizeHint() const {
  const int figures = static_cast<int>(list_.heads().size()) - 1;
  const int digits = kWantedDigits + std::max(0, figures - kUsualFigures) * kDigitsOfFigure;
  return QSize(digits * fontMetrics().horizontalAdvance(QLatin1Char('0')),
               (kWantedRows + 1) * RowHeight() + 2 * frameWidth());
}

QSize PickView::minimumSizeHint() const {
  return QSize(kFewestDigits * fontMetrics().horizontalAdvance(QLatin1Char('0')),
               (kFewestRows + 1) * RowHeight() + 2 * frameWidth());
}

void PickView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  columns_.Fit(viewport()->width());
  const QRect below = viewport()->geometry();
  heads_->setGeometry(below.left(), below.top() - RowHeight(), below.width(), RowHeight());
}

void PickView::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) Measure();
}

bool PickView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) list_.HoverRow(-1);
  return QListView::viewportEvent(event);
}

void PickView::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!list_.rows().empty() || list_.words().empty()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Active, QPalette::PlaceholderText));
  painter.drawText(viewport()->rect().adjusted(0, RowHeight(), 0, 0),
                   Qt::AlignHCenter | Qt::AlignTop,
                   QStringLiteral("Nothing matches. Escape shows all rows."));
}

void PickView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton) return;
  const QModelIndex index = indexAt(event->position().toPoint());
  Screen& screen = list_.screen();
  if (!index.isValid() || (screen.focus() != &list_ && !screen.MoveFocus(&list_))) return;
  list_.Choose(index.row());
}

void PickView::scrollContentsBy(int dx, int dy) {
  QListView::scrollContentsBy(dx, dy);
  if (following_) return;
  const QModelIndex top = indexAt(QPoint(kEdge, 1));
  if (top.isValid()) list_.SetTop(list_.shown()[static_cast<std::size_t>(top.row())]);
}

void PickView::Follow() {
  if (edition_ == list_.edition()) {
    if (list_.current() >= 0 && list_.current() == list_.first()) {
      // The headings over the first row that can be picked come into sight with it.
      scrollToTop();
    } else if (list_.current() >= 0) {
      scrollTo(rows_.index(list_.current()));
    }
    viewport()->update();
    return;
  }
  edition_ = list_.edition();
  following_ = true;
  rows_.Reset();
  // Narrowing leaves the columns where they are.
  if (offers_ != list_.offers()) Measure();
  offers_ = list_.offers();
  const auto& shown = list_.shown();
  if (!list_.words().empty()) {
    scrollToTop();
  } else if (!shown.empty()) {
    scrollTo(rows_.index(list_.place().top), PositionAtTop);
    // Out of sight, the row picked last comes back into it.
    if (list_.current() >= 0) scrollTo(rows_.index(list_.current()));
  }
  following_ = false;
  viewport()->update();
}

// ---------------------------------------------------------------- face

PickListFace::PickListFace(FaceSet& set, PickList& list, QWidget* parent)
    : Face(set, list, new QLineEdit),
      list_(list),
      line_(static_cast<QLineEdit*>(widget())),
      panel_(new QWidget(parent)),
      name_(new QLabel(panel_)),
      count_(new QLabel(panel_)),
      view_(new PickView(list, panel_)) {
  set.look().DressEntry(*line_);
  set.look().DressEntry(*view_);
  line_->setClearButtonEnabled(true);
  line_->setPlaceholderText(QStringLiteral("Type to narrow the list"));
  view_->setFocusProxy(line_);
  name_->setTextFormat(Qt::PlainText);
  name_->setBuddy(line_);
  count_->setObjectName(ToQt(list.name()) + QStringLiteral("_Count"));
  view_->setObjectName(ToQt(list.name()) + QStringLiteral("_Rows"));
  auto* top = new QHBoxLayout;
  top->setSpacing(8);
  top->addWidget(name_);
  top->addWidget(line_, 1);
  top->addWidget(count_);
  auto* pile = new QVBoxLayout(panel_);
  pile->setContentsMargins(0, 0, 0, 0);
  pile->setSpacing(6);
  pile->addLayout(top);
  pile->addWidget(view_, 1);
  connect(line_, &QLineEdit::textChanged, this,
          [this](const QString& now) { list_.Narrow(FromQt(now)); });
}

void PickListFace::Follow() {
  Face::Follow();
  panel_->setVisible(list_.visible());
  // Assistive tools read the row where the arrow keys are.
  if (list_.current() >= 0) {
    line_->setAccessibleDescription(ToQt(list_.RowAt(list_.current()).text + ". " + list_.help()));
  }
  name_->setText(ToQt(list_.caption()));
  view_->setAccessibleName(ToQt(list_.PlainCaption()));
  if (const QString words = ToQt(list_.words()); words != line_->text()) line_->setText(words);
  const QString all = QString::number(list_.count());
  count_->setText(list_.words().empty()
                      ? all + QStringLiteral(" rows")
                      : QStringLiteral("%1 of %2 rows").arg(list_.shownCount()).arg(all));
  view_->Follow();
}

bool PickListFace::TakeKey(int key) {
  const int page = std::max(1, view_->viewport()->height() / view_->sizeHintForRow(0) - 1);
  switch (key) {
    case Qt::Key_Up: list_.MoveCurrent(-1); return true;
    case Qt::Key_Down: list_.MoveCurrent(1); return true;
    case Qt::Key_PageUp: list_.MoveCurrent(-page); return true;
    case Qt::Key_PageDown: list_.MoveCurrent(page); return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: list_.Choose(list_.current()); return true;
    case Qt::Key_Escape:
      if (list_.words().empty()) return false;
      list_.Narrow({});
      return true;
    default: return false;
  }
}

bool PickListFace::eventFilter(QObject* watched, QEvent* event) {
  if (Face::eventFilter(watched, event)) return true;
  if (watched != line_ || event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_Home) {
    list_.MoveCurrent(-kLastRow);
    return true;
  }
  if (key.modifiers() == Qt::ControlModifier && key.key() == Qt::Key_End) {
    list_.MoveCurrent(kLastRow);
    return true;
  }
  return TakeKey(key.key());
}

}  // namespace veldox
