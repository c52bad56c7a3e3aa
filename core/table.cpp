#include "core/table.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace veldox {

namespace {

std::vector<Field*> CellsOf(const FieldArray& array) {
  std::vector<Field*> cells;
  for (const auto& field : array.fields()) cells.push_back(field.get());
  return cells;
}

Unit UnitOf(const std::vector<Field*>& cells) {
  const auto first = std::ranges::find_if(cells, [](const Field* cell) { return cell != nullptr; });
  if (first == cells.end()) return Unit::None;
  const bool agree = std::all_of(first, cells.end(), [&](const Field* cell) {
    return cell == nullptr || cell->unit() == (*first)->unit();
  });
  return agree ? (*first)->unit() : Unit::None;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \r\v\f";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, char sign) {
  std::vector<std::string_view> pieces;
  for (std::size_t from = 0; from <= text.size();) {
    const auto end = std::min(text.find(sign, from), text.size());
    pieces.push_back(text.substr(from, end - from));
    from = end + 1;
  }
  return pieces;
}

/// The lines of a copied block; the line break that ends the last one begins no further line.
std::vector<std::string_view> Lines(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  return Split(text, '\n');
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kLongest = 24;
  return '"' + Clipped(text, kLongest) + '"';
}

/// What a paste could not do, for one box.
class Refusals {
 public:
  void Add(std::string line) {
    constexpr std::size_t kMostTold = 8;
    if (++count_ <= kMostTold) lines_ += "\r\n" + std::move(line);
  }
  bool any() const { return count_ > 0; }
  std::string Text(std::size_t taken) const {
    std::string text = std::to_string(taken) + (taken == 1 ? " text was" : " texts were") +
                       " pasted, " + std::to_string(count_) +
                       (count_ == 1 ? " was not:" : " were not:") + lines_;
    if (const auto told = static_cast<std::size_t>(std::ranges::count(lines_, '\n'));
        told < count_) {
      text += "\r\nand " + std::to_string(count_ - told) + " more.";
    }
    return text;
  }

 private:
  std::string lines_;
  std::size_t count_ = 0;
};

}  // namespace

TableColumn::TableColumn(FieldArray& array) : TableColumn(array.label(), array) {}

TableColumn::TableColumn(std::string itsHead, FieldArray& array)
    : head(std::move(itsHead)), cells(CellsOf(array)), unit(UnitOf(cells)) {}

TableColumn::TableColumn(Label& itsLabel, FieldArray& array)
    : head(itsLabel.caption()), headLabel(&itsLabel), cells(CellsOf(array)), unit(UnitOf(cells)) {}

TableColumn::TableColumn(std::string itsHead, std::initializer_list<Field*> fields)
    : head(std::move(itsHead)), cells(fields), unit(UnitOf(cells)) {}

Table::Table(Frame& frame, std::string name, std::string caption, std::vector<TableColumn> columns,
             TableRows rows)
    : Control(frame.screen(), &frame, ControlKind::Table, std::move(name), std::move(caption), {}),
      columns_(std::move(columns)),
      rowNames_(std::move(rows)) {
  for (const TableColumn& column : columns_) {
    rows_ = std::max(rows_, static_cast<int>(column.cells.size()));
    if (column.headLabel != nullptr) Adopt(*column.headLabel);
    for (Field* cell : column.cells) {
      if (cell != nullptr) Adopt(*cell);
    }
  }
  NameCells();
}

void Table::NameCells() {
  for (int column = 0; column < columns(); ++column) {
    for (int row = 0; row < rows(); ++row) {
      Field* cell = Cell(row, column);
      if (cell == nullptr) continue;
      const bool hasCaption = static_cast<std::size_t>(row) < rowNames_.captions.size();
      cell->SetCaption(std::string(Trimmed(Head(column))) + (hasCaption ? ", " : ", row ") +
                       RowCaption(row));
    }
  }
}

Field* Table::Cell(int row, int column) const {
  if (row < 0 || column < 0 || column >= columns()) return nullptr;
  const std::vector<Field*>& cells = this->column(column).cells;
  return static_cast<std::size_t>(row) < cells.size() ? cells[static_cast<std::size_t>(row)]
                                                      : nullptr;
}

Table::Place Table::PlaceOf(const Control& control) const {
  for (int column = 0; column < columns(); ++column) {
    const std::vector<Field*>& cells = this->column(column).cells;
    const auto found = std::find(cells.begin(), cells.end(), &control);
    if (found != cells.end()) return {static_cast<int>(found - cells.begin()), column};
  }
  return {};
}

std::string Table::RowCaption(int row) const {
  const auto index = static_cast<std::size_t>(row);
  return index < rowNames_.captions.size() ? std::string(Trimmed(rowNames_.captions[index]))
                                           : std::to_string(row + 1);
}

const std::string& Table::Head(int column) const {
  return this->column(column).head;
}

void Table::SetHead(int column, std::string head) {
  TableColumn& changed = columns_[static_cast<std::size_t>(column)];
  if (changed.headLabel != nullptr) changed.headLabel->SetCaption(head);
  Assign(changed.head, std::move(head), Aspect::Work);
  NameCells();
  Changed();
}

void Table::DimRows(std::function<bool(int row)> unused) {
  unused_ = std::move(unused);
  Changed();
}

Field* Table::Next(Place from, int rowStep, int columnStep) const {
  const Range whole = all();
  while (true) {
    from.row += rowStep;
    from.column += columnStep;
    if (!whole.Holds(from.row, from.column)) return nullptr;
    if (Field* cell = Cell(from.row, from.column); cell != nullptr && cell->visible()) return cell;
  }
}

Control* Table::NextByEnter(const Control& from) const {
  const Place place = PlaceOf(from);
  if (place.row < 0) return nullptr;
  if (Field* below = Next(place, 1, 0)) return below;
  for (int column = place.column + 1; column < columns(); ++column) {
    if (Field* head = Next({-1, column}, 1, 0)) return head;
  }
  return nullptr;
}

void Table::AppendReadingOrder(std::vector<Control*>& order) {
  order.push_back(this);
  for (const TableColumn& column : columns_) {
    if (column.headLabel != nullptr) order.push_back(column.headLabel);
  }
  for (int row = 0; row < rows(); ++row) {
    for (int column = 0; column < columns(); ++column) {
      if (Field* cell = Cell(row, column)) order.push_back(cell);
    }
  }
}

std::string Table::CopyText(const Range& range) const {
  std::string text;
  for (int row = range.top; row <= range.bottom; ++row) {
    for (int column = range.left; column <= range.right; ++column) {
      if (column > range.left) text += '\t';
      if (const Field* cell = Cell(row, column)) text += cell->text();
    }
    text += '\n';
  }
  return text;
}

Table* Table::Of(const Control& control) {
  return dynamic_cast<Table*>(control.whole());
}

bool Table::IsBlock(std::string_view text) {
  return text.find('\t') != std::string_view::npos || text.find('\n') != std::string_view::npos;
}

Table::Range Table::Paste(Place at, std::string_view text) {
  const History::Step step(*this, History::Kind::Other);
  const FieldRules& rules = screen().context().rules;
  Range gone{at.row, at.column, at.row, at.column};
  Refusals refused;
  std::size_t taken = 0;
  int row = at.row;
  for (const std::string_view line : Lines(text)) {
    int column = at.column;
    for (const std::string_view piece : Split(line, '\t')) {
      const std::string_view entry = Trimmed(piece);
      Field* cell = Cell(row, column);
      if (cell == nullptr || !cell->visible() || !cell->enabled()) {
        // A blank that has nowhere to go is no loss.
        if (!entry.empty()) {
          refused.Add(Quoted(entry) + " has no place in " +
                      (row < rows() ? "the columns" : "the rows") + " of this table.");
        }
      } else if (cell->rule() == KeyRule::OutputOnly) {
        if (entry != cell->text()) {
          refused.Add('"' + cell->PlainCaption() + "\" shows a result and does not take " +
                      Quoted(entry) + '.');
        }
      } else if (!rules.Takes(cell->rule(), entry)) {
        refused.Add('"' + cell->PlainCaption() + "\" does not take " + Quoted(entry) + '.');
      } else {
        cell->Edit(std::string(entry));
        ++taken;
      }
      gone.right = std::max(gone.right, std::min(column, columns() - 1));
      ++column;
    }
    gone.bottom = std::max(gone.bottom, std::min(row, rows() - 1));
    ++row;
  }
  if (refused.any()) {
    screen().context().host.Ask(
        {Icon::Warning, rules.messages().MessageTitle, refused.Text(taken), {Button::OK}});
  }
  return gone;
}

void Table::Empty(const Range& range) {
  const History::Step step(*this, History::Kind::Other);
  for (int row = range.top; row <= range.bottom; ++row) {
    for (int column = range.left; column <= range.right; ++column) {
      Field* cell = Cell(row, column);
      if (cell == nullptr || cell->rule() == KeyRule::OutputOnly || !cell->enabled()) continue;
      if (!cell->text().empty()) cell->Edit({});
    }
  }
}

}  // namespace veldox
