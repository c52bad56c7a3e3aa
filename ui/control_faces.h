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

/// The buttons of an option group in rows, under the group's caption where it has one.
class OptionGroupFace : public Face {
 public:
  OptionGroupFace(FaceSet& set, OptionGroup& group, QWidget* parent);
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

 private:
  QPushButton* button_;
};

/// Free text over several lines.
class TextAreaFace : public Face {
 public:
  TextAreaFace(FaceSet& set, TextArea& area, QWidget* parent);
  LinesEdit* edit() const { return edit_; }
  void Follow() override;

 private:
  TextArea& area_;
  LinesEdit* edit_;
};

}  // namespace veldox
