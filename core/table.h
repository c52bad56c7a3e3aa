#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/field_array.h"

namespace veldox {

/// A column of a table: a head and the fields that stand under it.
struct TableColumn {
  /// An array under its own label.
  // NOLINTNEXTLINE(google-explicit-constructor): a list of arrays is a list of columns
  TableColumn(FieldArray& array);
  TableColumn(std::string head, FieldArray& array);
  /// Under a label, whose caption a command may rewrite by `Table::SetHead`.
  TableColumn(Label& headLabel, FieldArray& array);
  /// Single fields from the first row on; null for a row that has none here.
  TableColumn(std::string head, std::initializer_list<Field*> fields);

  /// The same with room for longer texts than numbers.
  TableColumn Wide(int itsCharacters) && {
    characters = itsCharacters;
    return std::move(*this);
  }

  std::string head;
  Label* headLabel = nullptr;
  std::vector<Field*> cells;
  /// What all of the column measures; its sign stands in the head.
  Unit unit = Unit::None;
  /// How long its texts are; 0 for numbers as fields show them.
  int characters = 0;
};

/// What the rows of a table are called.
struct TableRows {
  std::string head{};                   ///< stands over the captions
  std::vector<std::string> captions{};  ///< rows without one are numbered from 1
};

/// Fields in rows and columns, for windows to show as a sheet. The fields answer to their own
/// names everywhere; messages and assistive tools call them by column and row.
class Table : public Control {
 public:
  /// The rows and columns from one cell to another, both counted in.
  struct Range {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
    int count() const { return (bottom - top + 1) * (right - left + 1); }
    bool Holds(int row, int column) const {
      return row >= top && row <= bottom && column >= left && column <= right;
    }
    friend bool operator==(const Range&, const Range&) = default;
  };
  struct Place {
    int row = -1;
    int column = -1;
    friend bool operator==(const Place&, const Place&) = default;
  };

  Table(Frame& frame, std::string name, std::string caption, std::vector<TableColumn> columns,
        TableRows rows = {});

  int rows() const { return rows_; }
  int columns() const { return static_cast<int>(columns_.size()); }
  const TableColumn& column(int column) const { return columns_[static_cast<std::size_t>(column)]; }
  /// Null where the column has no field in that row.
  Field* Cell(int row, int column) const;
  /// Where a field stands; -1 for one that is none of the table's.
  Place PlaceOf(const Control& control) const;
  const std::string& rowHead() const { return rowNames_.head; }
  std::string RowCaption(int row) const;
  const std::string& Head(int column) const;
  /// Gives a column another head; its fields are called by it from then on.
  void SetHead(int column, std::string head);
  /// Rows that are not in use are shown dimmed; their texts stay, and they take input as ever.
  /// @param unused  asked of a row whenever the table is shown anew
  void DimRows(std::function<bool(int row)> unused);
  bool IsDimmed(int row) const { return unused_ != nullptr && unused_(row); }
  Range all() const { return {0, 0, rows() - 1, columns() - 1}; }

  /// The nearest cell that is shown, in a direction; null where there is none.
  Field* Next(Place from, int rowStep, int columnStep) const;
  /// Where the Enter key goes: down the column, then to the head of the next; null at the end.
  Control* NextByEnter(const Control& from) const;
  void AppendReadingOrder(std::vector<Control*>& order) override;

  /// The texts of a range, columns parted by tabs and each row ended by a line break.
  std::string CopyText(const Range& range) const;
  /// Lays a text in rows and columns, as spreadsheets copy it, over the table from a cell on.
  /// Every text must go through its field's key rule; what does not, or has no field to go to,
  /// is told in one box, and the fields concerned keep what they had.
  /// @return the cells that were gone over
  Range Paste(Place at, std::string_view text);
  /// Empties the fields of a range that take input.
  void Empty(const Range& range);

  /// The table that a control is a cell of, if it is one.
  static Table* Of(const Control& control);
  /// True for a text that goes over several cells.
  static bool IsBlock(std::string_view text);

 private:
  void NameCells();

  std::vector<TableColumn> columns_;
  TableRows rowNames_;
  std::function<bool(int row)> unused_;
  int rows_ = 0;
};

}  // namespace veldox
