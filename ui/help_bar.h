#pragma once

#include <QLabel>
#include <QWidget>

#include "ui/face.h"
#include "ui/field_edit.h"

namespace veldox {

/// The strip at the foot of a window where help sentences stand: as high as three lines,
/// whether it holds one or not, so that nothing moves.
class HelpBar : public QWidget {
 public:
  explicit HelpBar(QWidget* parent);
  QLabel* label() const { return label_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* label_;
};

/// Stands for a label that is the help place of its screen.
class HelpFace : public Face {
 public:
  HelpFace(FaceSet& set, Control& place, HelpBar* bar);
  void Follow() override;

 private:
  QLabel* label_;
};

/// A report in a fixed-pitch font, with buttons that press the report's keys.
class ReportPanel : public QWidget {
 public:
  ReportPanel(ReportBox& box, QWidget* parent);
  LinesEdit* edit() const { return edit_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  LinesEdit* edit_;
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
