#include "ui/table_face.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/control_faces.h"
#include "ui/qt_text.h"
#include "ui/step_keys.h"

namespace veldox {
namespace {

/// Room for a number of eight characters with its point where the column has it.
constexpr int kCellDigits = 10;
constexpr int kCellEdges = 14;
constexpr int kCellGap = 2;
constexpr int kCaptionGap = 8;
constexpr int kSideMargin = 3;  ///< of a text in its cell, pixels
constexpr int kLeastRows = 6;   ///< in sight before anything else scrolls
constexpr int kWantedRows = 18;

/// The rows of a table, which scroll down under their heads.
class RowsScroll : public QScrollArea {
 public:
  RowsScroll(int rows, QWidget* parent) : QScrollArea(parent), rows_(rows) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed,
                  rows > kLeastRows ? QSizePolicy::Expanding : QSizePolicy::Fixed);
  }

  QSize sizeHint() const override { return Sized(std::min(rows_, kWantedRows)); }
  QSize minimumSizeHint() const override { return Sized(std::min(rows_, kLeastRows)); }
  int rowsInSight() const { return std::max(1, viewport()->height() / RowHeight()); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // More height than all rows take would part the table from what stands below it.
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
      setMaximumHeight(widget()->sizeHint().height());
    }
    return QScrollArea::eventFilter(watched, event);
  }

 private:
  int RowHeight() const {
    const int all = widget() == nullptr ? 0 : widget()->sizeHint().height();
    return std::max(1, all / std::max(1, rows_));
  }
  QSize Sized(int rows) const {
    if (widget() == nullptr) return QScrollArea::sizeHint();
    // Room for the bar is kept, so that the columns stand still.
    return {widget()->sizeHint().width() + verticalScrollBar()->sizeHint().width(),
            rows >= rows_ ? widget()->sizeHint().height() : rows * RowHeight()};
  }

  int rows_;
};

QLabel* MakeText(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// The part of a number's text from its decimal mark on.
QString Fraction(const QString& text, QChar mark) {
  const qsizetype at = text.indexOf(mark);
  return at < 0 ? QString() : text.mid(at);
}

bool IsAllSelected(const QLineEdit& edit) {
  return edit.selectedText().size() == edit.text().size();
}

}  // namespace

// ---------------------------------------------------------------- a cell

CellEdit::CellEdit(Field& field, TableFace& table, QWidget* parent)
    : FieldEdit(field, parent), table_(table) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void CellEdit::LeaveRight(int pixels) {
  const int room = width() - kCellEdges - fontMetrics().horizontalAdvance(text());
  const int right = kSideMargin + std::clamp(pixels, 0, std::max(0, room));
  if (textMargins().right() != right) setTextMargins(kSideMargin, 0, right, 0);
}

void CellEdit::SetDimmed(bool dimmed) {
  if (dimmed == dimmed_) return;
  dimmed_ = dimmed;
  ShowInk();
}

void CellEdit::ShowInk() {
  QPalette ink;
  if (dimmed_) {
    ink.setColor(QPalette::Text, QApplication::palette(this).color(QPalette::PlaceholderText));
  }
  setPalette(ink);
}

bool CellEdit::event(QEvent* event) {
  // A palette of its own does not follow the desktop's.
  if (event->type() == QEvent::PaletteChange && dimmed_) ShowInk();
  return FieldEdit::event(event);
}

void CellEdit::keyPressEvent(QKeyEvent* event) {
  if (table_.TakeKey(*this, static_cast<Field&>(field()), *event)) {
    event->accept();
  } else {
    FieldEdit::keyPressEvent(event);
  }
}

void CellEdit::focusInEvent(QFocusEvent* event) {
  FieldEdit::focusInEvent(event);
  if (MovedOnPurpose(event->reason())) table_.CellEntered(static_cast<Field&>(field()));
}

void CellEdit::mousePressEvent(QMouseEvent* event) {
  table_.CellEntered(static_cast<Field&>(field()));
  FieldEdit::mousePressEvent(event);
}

void CellEdit::ExtendMenu(QMenu& menu) {
  const auto& cell = static_cast<Field&>(field());
  if (auto* paste = menu.findChild<QAction*>(QLatin1String("edit-paste"))) {
    disconnect(paste, &QAction::triggered, nullptr, nullptr);
    connect(paste, &QAction::triggered, &table_, [this, &cell] { table_.Paste(cell); });
  }
  const Table& table = table_.table();
  const int column = table.PlaceOf(cell).column;
  menu.addSeparator();
  if (const auto& range = table_.range()) {
    connect(menu.addAction(QStringLiteral("Copy Selected Cells")), &QAction::triggered, &table_,
            [this, selected = *range] { table_.Copy(selected); });
  }
  connect(menu.addAction(QStringLiteral("Copy Column")), &QAction::triggered, &table_,
          [this, column, rows = table.rows()] {
            table_.Copy({0, column, rows - 1, column});
          });
  connect(menu.addAction(QStringLiteral("Copy Table")), &QAction::triggered, &table_,
          [this, whole = table.all()] { table_.Copy(whole); });
}

CellFace::CellFace(FaceSet& set, Field& field, TableFace& table, QWidget* parent)
    : Face(set, field, new CellEdit(field, table, parent)),
      field_(field),
      table_(table),
      edit_(static_cast<CellEdit*>(widget())) {
  set.look().DressEntry(*edit_);
}

void CellFace::Follow() {
  Face::Follow();
  edit_->Describe(field_);
  edit_->Follow();
  table_.CellChanged();
}

// ---------------------------------------------------------------- the table

TableFace::TableFace(FaceSet& set, Table& table, QWidget* parent)
    : Face(set, table, new QWidget(parent)),
      table_(table),
      scroll_(new RowsScroll(table.rows(), widget())),
      heads_(new QWidget(widget())) {
  auto* pile = new QVBoxLayout(widget());
  pile->setContentsMargins(0, 0, 0, 0);
  pile->setSpacing(2);
  pile->setSizeConstraint(QLayout::SetMinAndMaxSize);
  BuildHeads(*heads_);
  heads_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* rows = new QWidget(scroll_);
  BuildRows(*rows);
  scroll_->setWidget(rows);
  pile->addWidget(heads_, 0, Qt::AlignLeft);
  pile->addWidget(scroll_, 1, Qt::AlignLeft);
  rows->setAutoFillBackground(false);
  scroll_->viewport()->setAutoFillBackground(false);
}

bool TableFace::grows() const {
  return table_.rows() > kLeastRows;
}

int TableFace::CaptionWidth() const {
  const QFontMetrics metrics = widget()->fontMetrics();
  int widest = metrics.horizontalAdvance(ToQt(table_.rowHead()));
  for (int row = 0; row < table_.rows(); ++row) {
    widest = std::max(widest, metrics.horizontalAdvance(ToQt(table_.RowCaption(row))));
  }
  return widest + kCaptionGap;
}

int TableFace::CellWidth(int column) const {
  const QFontMetrics metrics = widget()->fontMetrics();
  QWidget cell;
  set().look().DressEntry(cell);
  int width = cell.fontMetrics().horizontalAdvance(QLatin1Char('0')) *
              std::max(kCellDigits, table_.column(column).characters);
  for (const QString& word : ToQt(table_.Head(column)).split(QLatin1Char(' '))) {
    width = std::max(width, metrics.horizontalAdvance(word));
  }
  return width + kCellEdges;
}

void TableFace::BuildHeads(QWidget& heads) {
  auto* row = new QGridLayout(&heads);
  row->setContentsMargins(0, 0, 0, 0);
  row->setHorizontalSpacing(kCellGap);
  row->setVerticalSpacing(0);
  QLabel* corner = MakeText(ToQt(table_.rowHead()), &heads);
  corner->setFixedWidth(CaptionWidth());
  corner->setAlignment(Qt::AlignRight | Qt::AlignBottom);
  corner->setContentsMargins(0, 0, kCaptionGap, 0);
  row->addWidget(corner, 0, 0);
  for (int column = 0; column < table_.columns(); ++column) {
    Label* named = table_.column(column).headLabel;
    QLabel* head = named != nullptr ? set().Make<LabelFace>(*named, &heads).label()
                                    : MakeText(ToQt(table_.Head(column)), &heads);
    QLabel* unit = MakeText(QString(), &heads);
    set().look().MakeFaint(*unit);
    for (QLabel* label : {head, unit}) {
      label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
      label->setMinimumWidth(0);
      label->setFixedWidth(CellWidth(column));
      label->setWordWrap(true);
      label->installEventFilter(this);
    }
    head->setToolTip(QStringLiteral("Select this column."));
    row->addWidget(head, 0, column + 1, Qt::AlignBottom);
    row->addWidget(unit, 1, column + 1);
    headLabels_.push_back(head);
    unitLabels_.push_back(unit);
  }
}

void TableFace::BuildRows(QWidget& rows) {
  auto* grid = new QGridLayout(&rows);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kCellGap);
  grid->setVerticalSpacing(kCellGap);
  for (int row = 0; row < table_.rows(); ++row) {
    QLabel* caption = MakeText(ToQt(table_.RowCaption(row)), &rows);
    caption->setFixedWidth(CaptionWidth());
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caption->setContentsMargins(0, 0, kCaptionGap, 0);
    caption->installEventFilter(this);
    grid->addWidget(caption, row, 0);
    rowLabels_.push_back(caption);
    for (int column = 0; column < table_.columns(); ++column) {
      Field* field = table_.Cell(row, column);
      if (field == nullptr) continue;
      CellEdit* edit = set().Make<CellFace>(*field, *this, &rows).edit();
      edit->setFixedWidth(CellWidth(column));
      grid->addWidget(edit, row, column + 1);
    }
  }
  grid->setRowStretch(table_.rows(), 1);
  grid->setColumnStretch(table_.columns() + 1, 1);
}

CellEdit* TableFace::EditOf(const Field* field) const {
  const Face* face = field == nullptr ? nullptr : set().Of(*field);
  return face == nullptr ? nullptr : static_cast<CellEdit*>(face->widget());
}

void TableFace::Follow() {
  Face::Follow();
  CellChanged();
}

void TableFace::CellChanged() {
  if (refreshing_) return;
  refreshing_ = true;
  QMetaObject::invokeMethod(
      this, [this] { Refresh(); }, Qt::QueuedConnection);
}

void TableFace::Refresh() {
  refreshing_ = false;
  bool hasUnits = false;
  for (int column = 0; column < table_.columns(); ++column) {
    const auto at = static_cast<std::size_t>(column);
    bool shown = false;
    for (int row = 0; row < table_.rows(); ++row) {
      const Field* cell = table_.Cell(row, column);
      shown = shown || (cell != nullptr && cell->visible());
    }
    const QString unit = ToQt(UnitSign(table_.column(column).unit, table_.screen().metric()));
    hasUnits = hasUnits || !unit.isEmpty();
    headLabels_[at]->setText(ToQtLines(table_.Head(column)));
    headLabels_[at]->setVisible(shown);
    unitLabels_[at]->setText(unit);
    unitLabels_[at]->setVisible(shown);
    AlignPoints(column);
  }
  for (std::size_t column = 0; column < unitLabels_.size(); ++column) {
    if (!hasUnits) unitLabels_[column]->hide();
  }
  for (int row = 0; row < table_.rows(); ++row) {
    bool shown = false;
    for (int column = 0; column < table_.columns(); ++column) {
      const Field* cell = table_.Cell(row, column);
      shown = shown || (cell != nullptr && cell->visible());
    }
    rowLabels_[static_cast<std::size_t>(row)]->setVisible(shown);
    DimRow(row);
  }
}

void TableFace::DimRow(int row) {
  const bool dimmed = table_.IsDimmed(row);
  rowLabels_[static_cast<std::size_t>(row)]->setForegroundRole(dimmed ? QPalette::PlaceholderText
                                                                      : QPalette::WindowText);
  for (int column = 0; column < table_.columns(); ++column) {
    if (CellEdit* edit = EditOf(table_.Cell(row, column))) edit->SetDimmed(dimmed);
  }
}

void TableFace::AlignPoints(int column) {
  const QChar mark =
      table_.screen().mark() == DecimalMark::Comma ? QLatin1Char(',') : QLatin1Char('.');
  std::vector<std::pair<CellEdit*, int>> cells;
  int widest = 0;
  for (int row = 0; row < table_.rows(); ++row) {
    CellEdit* edit = EditOf(table_.Cell(row, column));
    if (edit == nullptr) continue;
    cells.emplace_back(edit, edit->fontMetrics().horizontalAdvance(Fraction(edit->text(), mark)));
    widest = std::max(widest, cells.back().second);
  }
  for (const auto& [edit, wide] : cells) edit->LeaveRight(widest - wide);
}

// ---------------------------------------------------------------- keys and mouse

void TableFace::MoveTo(Field* field) {
  if (CellEdit* edit = EditOf(field)) edit->setFocus(Qt::TabFocusReason);
}

void TableFace::CellEntered(const Field& field) {
  SetRange(std::nullopt);
  anchor_ = far_ = table_.PlaceOf(field);
}

void TableFace::SetRange(std::optional<Table::Range> range) {
  if (range && range->count() <= 1) range.reset();
  range_ = range;
  for (int row = 0; row < table_.rows(); ++row) {
    for (int column = 0; column < table_.columns(); ++column) {
      CellEdit* edit = EditOf(table_.Cell(row, column));
      if (edit != nullptr) edit->SetInRange(range_ && range_->Holds(row, column));
    }
  }
}

void TableFace::Extend(int rowStep, int columnStep) {
  far_.row = std::clamp(far_.row + rowStep, 0, table_.rows() - 1);
  far_.column = std::clamp(far_.column + columnStep, 0, table_.columns() - 1);
  SetRange(Table::Range{std::min(anchor_.row, far_.row), std::min(anchor_.column, far_.column),
                        std::max(anchor_.row, far_.row), std::max(anchor_.column, far_.column)});
  if (CellEdit* edit = EditOf(table_.Cell(far_.row, far_.column))) {
    scroll_->ensureWidgetVisible(edit, 0, kCellGap);
  }
}

void TableFace::Copy(const Table::Range& range) const {
  QApplication::clipboard()->setText(ToQt(table_.CopyText(range)));
}

void TableFace::Paste(const Field& field) {
  const std::string text = FromQt(QApplication::clipboard()->text());
  Table::Place at = table_.PlaceOf(field);
  if (range_) at = {range_->top, range_->left};
  CellEdit* edit = EditOf(table_.Cell(at.row, at.column));
  if (!Table::IsBlock(text)) {
    if (edit != nullptr && !edit->output()) edit->paste();
    return;
  }
  SetRange(table_.Paste(at, text));
  anchor_ = at;
  far_ = range_ ? Table::Place{range_->bottom, range_->right} : at;
}

bool TableFace::TakeKey(CellEdit& edit, Field& field, const QKeyEvent& event) {
  const Table::Place place = table_.PlaceOf(field);
  return TakeMove(edit, place, event) || TakeEdit(edit, field, event);
}

bool TableFace::TakeMove(const CellEdit& edit, Table::Place place, const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
  const bool shift = held == Qt::ShiftModifier;
  const bool control = held == Qt::ControlModifier;
  if (held != Qt::NoModifier && !shift && !control) return false;
  // Inside a text, left and right are for the caret.
  const bool whole = IsAllSelected(edit) || range_.has_value() || edit.output();
  const bool atStart = whole || (!edit.hasSelectedText() && edit.cursorPosition() == 0);
  const bool atEnd =
      whole || (!edit.hasSelectedText() && edit.cursorPosition() == edit.text().size());
  const int page = static_cast<RowsScroll*>(scroll_)->rowsInSight();
  int rowStep = 0;
  int columnStep = 0;
  switch (event.key()) {
    case Qt::Key_Up: rowStep = -1; break;
    case Qt::Key_Down: rowStep = 1; break;
    case Qt::Key_PageUp: rowStep = -page; break;
    case Qt::Key_PageDown: rowStep = page; break;
    case Qt::Key_Left:
      if (!atStart) return false;
      columnStep = -1;
      break;
    case Qt::Key_Right:
      if (!atEnd) return false;
      columnStep = 1;
      break;
    case Qt::Key_Home:
    case Qt::Key_End:
      if (!control) return false;
      MoveTo(event.key() == Qt::Key_Home
                 ? table_.Cell(0, 0)
                 : table_.Next({table_.rows(), table_.columns() - 1}, -1, 0));
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      if (control) return false;
      Field& field = *table_.Cell(place.row, place.column);
      field.FilterKey(U'\r');
      if (shift) {
        MoveTo(table_.Next(place, -1, 0));
      } else if (Control* next = table_.NextByEnter(field)) {
        MoveTo(static_cast<Field*>(next));
      }
      return true;
    }
    default: return false;
  }
  if (control) {
    // To the edge of the table, as far as a step can be.
    rowStep *= table_.rows();
    columnStep *= table_.columns();
  }
  if (shift) {
    if (!range_) anchor_ = far_ = place;
    Extend(rowStep, columnStep);
    return true;
  }
  const int row = std::clamp(place.row + rowStep, 0, table_.rows() - 1);
  const int column = std::clamp(place.column + columnStep, 0, table_.columns() - 1);
  Field* target = table_.Cell(row, column);
  // Over what is hidden, to the next cell that way.
  if (target == nullptr || !target->visible()) {
    target = table_.Next({row, column}, (rowStep > 0) - (rowStep < 0),
                         (columnStep > 0) - (columnStep < 0));
  }
  MoveTo(target);
  return true;
}

bool TableFace::TakeEdit(CellEdit& edit, Field& field, const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut)) {
    if (!range_) {
      if (edit.hasSelectedText()) return false;
      QApplication::clipboard()->setText(edit.text());
      return true;
    }
    Copy(*range_);
    if (event.matches(QKeySequence::Cut)) table_.Empty(*range_);
    return true;
  }
  if (event.matches(QKeySequence::Paste)) {
    if (!range_ && !Table::IsBlock(FromQt(QApplication::clipboard()->text()))) return false;
    Paste(field);
    return true;
  }
  if (event.matches(QKeySequence::SelectAll)) {
    if (!IsAllSelected(edit)) return false;
    anchor_ = {0, 0};
    far_ = {table_.rows() - 1, table_.columns() - 1};
    SetRange(table_.all());
    return true;
  }
  if (StepOf(event) != 0) {
    SetRange(std::nullopt);
    return false;
  }
  if (!range_) return false;
  if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) {
    table_.Empty(*range_);
    return true;
  }
  const bool escapes = event.key() == Qt::Key_Escape;
  // Whatever is typed now goes into the one cell that has the focus.
  if (escapes || !event.text().isEmpty()) SetRange(std::nullopt);
  return escapes;
}

bool TableFace::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress) {
    const auto& press = static_cast<QMouseEvent&>(*event);
    const auto head = std::ranges::find(headLabels_, watched);
    const auto row = std::ranges::find(rowLabels_, watched);
    if (press.button() == Qt::LeftButton && head != headLabels_.end()) {
      const auto column = static_cast<int>(head - headLabels_.begin());
      MoveTo(table_.Next({-1, column}, 1, 0));
      anchor_ = {0, column};
      far_ = {table_.rows() - 1, column};
      SetRange(Table::Range{0, column, table_.rows() - 1, column});
      return true;
    }
    if (press.button() == Qt::LeftButton && row != rowLabels_.end()) {
      const auto index = static_cast<int>(row - rowLabels_.begin());
      MoveTo(table_.Next({index, -1}, 0, 1));
      anchor_ = {index, 0};
      far_ = {index, table_.columns() - 1};
      SetRange(Table::Range{index, 0, index, table_.columns() - 1});
      return true;
    }
  }
  return Face::eventFilter(watched, event);
}

}  // namespace veldox
