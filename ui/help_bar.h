#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QWidget>
#include <optional>
#include <string>
#include <vector>

#include "core/report.h"
#include "ui/face.h"
#include "ui/field_edit.h"

namespace veldox {

/// The strip at the foot of a window where help sentences stand: as high as three lines,
/// whether it holds one or not, so that nothing moves.
class HelpBar : public QWidget {
 public:
  HelpBar(const WindowLook& look, QWidget* parent);
  QLabel* label() const { return label_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* label_;
  std::optional<QColor> ground_;
};

/// Stands for a label, or a text box of its own, that is the help place of its screen.
class HelpFace : public Face {
 public:
  HelpFace(FaceSet& set, Control& place, HelpBar* bar);
  void Follow() override;

 private:
  QLabel* label_;
};

/// The column heads of a report, which stay in sight over its rows and move sideways
/// with them.
class ReportHeads : public QWidget {
 public:
  explicit ReportHeads(LinesEdit& rows);
  /// Takes the heads from a report: its heading lines, up to the first row.
  void SetReport(const std::string& report);
  /// Shows the heads when the rows have been scrolled past them.
  void Follow();
  /// Scrolls the row of the caret out from under the heads.
  void KeepCaretInSight();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LinesEdit& rows_;
  QStringList lines_;
  int lastLine_ = -1;  ///< line of the report that holds the last head
};

/// Looks for a text in a report.
class FindBar : public QWidget {
 public:
  explicit FindBar(LinesEdit& text);
  void Open();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Find(bool backward);

  LinesEdit& text_;
  QLineEdit* wanted_;
  QLabel* answer_;
};

/// A report in a fixed-pitch font, with buttons that press the report's keys.
class ReportPanel : public QWidget {
 public:
  ReportPanel(ReportBox& box, const WindowLook& look, QWidget* parent);
  LinesEdit* edit() const { return edit_; }
  /// Shows what the box holds, and whether it is out of date.
  void Follow();
  /// What the tab key walks through, in reading order.
  std::vector<QWidget*> TabChain() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPushButton* AddButton(QBoxLayout& row, const char* caption, const char* tip);
  void SaveAsPdf();
  /// Gives the columns that arrows point at a ground of their own.
  void SetOff(const std::vector<SetOffColumn>& columns);

  ReportBox& box_;
  WindowLook look_;
  LinesEdit* edit_;
  ReportHeads* heads_;
  FindBar* find_;
  QLabel* age_;  ///< says that it is out of date
  std::string shown_;
};

/// Stands for a report box. Where it is the help place as well, sentences go into the
/// strip and only what is longer opens the panel.
class ReportFace : public Face {
 public:
  ReportFace(FaceSet& set, ReportBox& box, ReportPanel* panel, HelpBar* help);
  void Follow() override;

 private:
  ReportBox& box_;
  ReportPanel* panel_;
  HelpBar* help_;
};

}  // namespace veldox
