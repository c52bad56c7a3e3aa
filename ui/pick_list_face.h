#pragma once

#include <QAbstractListModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QStringList>
#include <QStyledItemDelegate>
#include <vector>

#include "core/pick_list.h"
#include "ui/face.h"

namespace veldox {

/// The rows of a pick list in sight, for a view.
class PickRowsModel : public QAbstractListModel {
 public:
  PickRowsModel(const PickList& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  /// The list has other rows.
  void Reset();

 private:
  const PickList& list_;
};

/// Where the name and the figures of a row stand, so that the figures make columns with
/// their decimal points in line.
class PickColumns {
 public:
  struct Column {
    int left = 0;   ///< pixels from the left edge of the row
    int point = 0;  ///< where the decimal point of a figure stands
    int right = 0;
  };

  /// Measures all rows of a list.
  void Measure(const PickList& list, const QFontMetrics& metrics);
  /// Sets the columns up so that a row is as wide as this where that is possible: long names
  /// give way, short ones leave room at the right.
  void Fit(int width);
  int nameWidth() const { return nameWidth_; }
  int signLeft() const { return signLeft_; }
  const std::vector<Column>& columns() const { return columns_; }

 private:
  int longestName_ = 0;  ///< pixels
  int shortestName_ = 0;
  int nameWidth_ = 0;
  int signLeft_ = 0;
  int figuresWidth_ = 0;  ///< the sign, its gaps and all columns
  std::vector<Column> columns_;
};

/// Paints the rows of a pick list.
class PickRowPainter : public QStyledItemDelegate {
 public:
  PickRowPainter(const PickList& list, const PickColumns& columns, QObject* parent)
      : QStyledItemDelegate(parent), list_(list), columns_(columns) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  const PickList& list_;
  const PickColumns& columns_;
};

/// The rows of a pick list under the heads of their columns.
class PickView : public QListView {
 public:
  PickView(PickList& list, QWidget* parent);

  /// Follows the list: its rows, its current row and its place.
  void Follow();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  class Heads;
  void Measure();
  int RowHeight() const;

  PickList& list_;
  PickRowsModel rows_;
  PickColumns columns_;
  Heads* heads_;
  unsigned edition_ = 0;
  unsigned offers_ = 0;
  bool following_ = false;
};

/// A pick list: a line to type in, which narrows the list, the number of rows in sight, and
/// the rows. The line has the keyboard; arrow keys move through the rows, Enter picks.
class PickListFace : public Face {
 public:
  PickListFace(FaceSet& set, PickList& list, QWidget* parent);

  /// Line, count and rows.
  QWidget* panel() const { return panel_; }
  PickView* view() const { return view_; }
  QLineEdit* line() const { return line_; }
  void Follow() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// True for a key that the list takes.
  bool TakeKey(int key);

  PickList& list_;
  QLineEdit* line_;
  QWidget* panel_;
  QLabel* name_;
  QLabel* count_;
  PickView* view_;
};

}  // namespace veldox
