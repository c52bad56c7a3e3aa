#pragma once

#include <QLabel>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/table.h"
#include "ui/face.h"
#include "ui/field_edit.h"

class QScrollArea;

namespace veldox {

class TableFace;

/// A field as a cell of a table. What a sheet does with a key, the table does; the rest is
/// the field's own.
class CellEdit : public FieldEdit {
 public:
  CellEdit(Field& field, TableFace& table, QWidget* parent);

  /// Makes the text end this many pixels from the right, where it has the room.
  void LeaveRight(int pixels);
  /// Shows the text of a row that is not in use paler, still to be read.
  void SetDimmed(bool dimmed);
  bool dimmed() const { return dimmed_; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void ExtendMenu(QMenu& menu) override;

 private:
  void ShowInk();

  TableFace& table_;
  bool dimmed_ = false;
};

/// Stands for one field of a table.
class CellFace : public Face {
 public:
  CellFace(FaceSet& set, Field& field, TableFace& table, QWidget* parent);
  CellEdit* edit() const { return edit_; }
  void Follow() override;

 private:
  Field& field_;
  TableFace& table_;
  CellEdit* edit_;
};

/// A table: heads over its columns, which stay in sight, captions before its rows, and the
/// fields as cells with their decimal points in line. Arrow keys, Enter and Tab move; with
/// Shift they select several cells, which can be copied, pasted over and emptied together.
class TableFace : public Face {
 public:
  TableFace(FaceSet& set, Table& table, QWidget* parent);

  void Follow() override;
  /// True for a table that can use more height than its least rows take.
  bool grows() const;
  /// A cell has changed: heads and decimal points are brought in line once all have.
  void CellChanged();

  /// A key in a cell. False for one that is the field's own business.
  bool TakeKey(CellEdit& edit, Field& field, const QKeyEvent& event);
  /// The focus came to a cell: what was selected is so no more.
  void CellEntered(const Field& field);
  void Copy(const Table::Range& range) const;
  /// Pastes the clipboard from a cell on.
  void Paste(const Field& field);
  const std::optional<Table::Range>& range() const { return range_; }
  Table& table() const { return table_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildHeads(QWidget& heads);
  void BuildRows(QWidget& rows);
  /// Lines up heads, captions and decimal points, and dims the rows that are not in use.
  void Refresh();
  void DimRow(int row);
  void AlignPoints(int column);
  int CellWidth(int column) const;
  int CaptionWidth() const;
  CellEdit* EditOf(const Field* field) const;
  void MoveTo(Field* field);
  bool TakeMove(const CellEdit& edit, Table::Place place, const QKeyEvent& event);
  bool TakeEdit(CellEdit& edit, Field& field, const QKeyEvent& event);
  void Extend(int rowStep, int columnStep);
  void SetRange(std::optional<Table::Range> range);

  Table& table_;
  QScrollArea* scroll_;
  QWidget* heads_;
  std::vector<QLabel*> headLabels_;
  std::vector<QLabel*> unitLabels_;
  std::vector<QLabel*> rowLabels_;
  std::optional<Table::Range> range_;
  Table::Place anchor_;
  Table::Place far_;
  bool refreshing_ = false;
};

}  // namespace veldox
