#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "ui/face.h"
#include "ui/field_edit.h"

namespace veldox {

/// Label, text box and unit sign of a field.
class FieldFace : public Face {
 public:
  FieldFace(FaceSet& set, Field& field, QWidget* parent);

  QLabel* label() const { return label_; }
  FieldEdit* edit() const { return edit_; }
  QLabel* unit() const { return unit_; }
  void Follow() override;

 private:
  Field& field_;
  QLabel* label_;
  FieldEdit* edit_;
  QLabel* unit_;
};

/// A caption on its own.
class LabelFace : public Face {
 public:
  LabelFace(FaceSet& set, Label& label, QWidget* parent);
  QLabel* label() const { return label_; }
  void Follow() override;

 private:
  QLabel* label_;
};

class CheckBoxFace : public Face {
 public:
  CheckBoxFace(FaceSet& set, CheckBox& box, QWidget* parent);
  void Follow() override;

 private:
  CheckBox& box_;
  QCheckBox* widget_;
};

class OptionButtonFace : public Face {
 public:
  OptionButtonFace(FaceSet& set, OptionButton& option, QWidget* parent);
  void Follow() override;

 private:
  OptionButton& option_;
  QRadioButton* button_;
};

/// Buttons of an option group in rows, under the group's caption where it has one.
class OptionRowsFace : public Face {
 public:
  OptionRowsFace(FaceSet& set, OptionRows& rows, QWidget* parent);
  void Follow() override;

 private:
  std::vector<OptionButtonFace*> buttons_;
};

class ComboFace : public Face {
 public:
  ComboFace(FaceSet& set, ComboList& list, QWidget* parent);
  QLabel* label() const { return label_; }
  QComboBox* combo() const { return combo_; }
  void Follow() override;

 private:
  ComboList& list_;
  QLabel* label_;
  QComboBox* combo_;
};

class CommandFace : public Face {
 public:
  CommandFace(FaceSet& set, Command& command, QWidget* parent);
  QPushButton* button() const { return button_; }
  void Follow() override;
  /// Shows whether the page that the command turns to is in sight.
  void FollowPage();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Command& command_;
  QPushButton* button_;
};

/// A text over several lines: notes, or results to be read and copied.
class TextAreaFace : public Face {
 public:
  TextAreaFace(FaceSet& set, TextControl& area, QWidget* parent);
  LinesEdit* edit() const { return edit_; }
  void Follow() override;

 private:
  TextControl& area_;
  LinesEdit* edit_;
};

}  // namespace veldox
