#pragma once

#include <QMenuBar>
#include <QPointer>
#include <vector>

namespace veldox {

/// One row of the menu.
class MenuRow : public QMenuBar {
 public:
  MenuRow(bool first, QWidget* parent);
  /// True for the row into which the Alt key leads.
  bool first() const { return first_; }

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool first_;
};

/// A menu bar that breaks into as many rows as its items need, so that each of them can
/// be read and reached at any width. The arrow keys go from row to row.
class MenuRows : public QWidget {
 public:
  explicit MenuRows(QWidget* parent);

  /// Appends an item at the end.
  void Add(QAction* action);
  int rowCount() const { return shownRows_; }
  const std::vector<MenuRow*>& rows() const { return rows_; }

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  friend class MenuRow;
  /// Index of the last item of each row at a width.
  std::vector<int> Break(int width) const;
  int ItemWidth(const QAction& action) const;
  int RowHeight() const;
  void Distribute();
  /// Goes on from an end of a row at the other row's end.
  void Cross(MenuRow& from, bool forward);
  /// The keyboard goes back to where it came from.
  void Leave();

  std::vector<QAction*> actions_;
  std::vector<MenuRow*> rows_;
  QPointer<QWidget> before_;  ///< what had the keyboard before the menu
  std::vector<int> breaks_;
  int shownRows_ = 0;
};

}  // namespace veldox
