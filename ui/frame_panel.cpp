#include "ui/frame_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "core/caution_frame.h"
#include "core/frame_row.h"
#include "core/panel.h"
#include "ui/control_faces.h"
#include "ui/drawing_face.h"
#include "ui/pick_list_face.h"
#include "ui/qt_text.h"
#include "ui/table_face.h"

namespace veldox {
namespace {

/// Room beside a command's caption beyond what the style gives.
constexpr int kCaptionAir = 4;
constexpr int kMostCommandsInRow = 3;
/// Proportions of a button that holds a single sign.
constexpr int kSignWidth = 5;
constexpr int kSignHeight = 4;
/// Commands of a frame that holds nothing else may make it this wide.
constexpr int kCommandFrameWidth = 300;

bool Contains(const std::vector<const Control*>& list, const Control* control) {
  return std::find(list.begin(), list.end(), control) != list.end();
}

int Widest(const std::vector<QWidget*>& widgets) {
  int widest = 0;
  for (const QWidget* widget : widgets) widest = std::max(widest, widget->sizeHint().width());
  return widest;
}

bool IsSheet(const Control& frame) {
  return dynamic_cast<const Panel*>(&frame) != nullptr ||
         dynamic_cast<const ScreenPage*>(&frame) != nullptr;
}

/// True for a frame that stands beside all pages of its screen.
bool IsBesidePages(const Frame& frame) {
  return !frame.screen().pages().empty() && frame.frame() == nullptr && !IsSheet(frame);
}

/// The frames of a row, each column as high as it must be.
QWidget* BuildFrameRow(FaceSet& faces, const FrameRow& row,
                       const std::vector<const Control*>& placed, int gap, QWidget* parent) {
  std::vector<Frame*> frames;
  for (Control* control : row.controls()) AppendFrames(static_cast<Frame&>(*control), frames);
  auto* built = new QWidget(parent);
  auto* side = new QHBoxLayout(built);
  side->setContentsMargins(0, 0, 0, 0);
  side->setSpacing(gap);
  for (QWidget* column : BuildFrameColumns(faces, frames, placed, gap, built)) {
    side->addWidget(column, 1, Qt::AlignTop);
  }
  return built;
}

}  // namespace

void AppendFrames(Frame& frame, std::vector<Frame*>& frames) {
  frames.push_back(&frame);
  if (dynamic_cast<const FrameRow*>(&frame) != nullptr) return;
  for (Control* control : frame.controls()) {
    if (control->kind() == ControlKind::Frame) AppendFrames(static_cast<Frame&>(*control), frames);
  }
}

bool HasOwnControls(const Frame& frame, const std::vector<const Control*>& placed) {
  return std::any_of(frame.controls().begin(), frame.controls().end(), [&](Control* control) {
    return control->kind() != ControlKind::OptionButton && control->kind() != ControlKind::Frame &&
           !Contains(placed, control);
  });
}

std::vector<QWidget*> BuildFrameColumns(FaceSet& faces, const std::vector<Frame*>& frames,
                                        const std::vector<const Control*>& placed, int gap,
                                        QWidget* parent, const Frame* sheet) {
  int columns = 1;
  for (const Frame* frame : frames) columns = std::max(columns, frame->column() + 1);
  std::vector<QWidget*> built;
  for (int i = 0; i < columns; ++i) {
    auto* column = new QWidget(parent);
    auto* pile = new QVBoxLayout(column);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(gap);
    std::vector<FramePanel*> panels;
    int labelWidth = 0;
    int unitWidth = 0;
    for (Frame* frame : frames) {
      if (frame->column() != i) continue;
      if (const auto* row = dynamic_cast<const FrameRow*>(frame)) {
        pile->addWidget(BuildFrameRow(faces, *row, placed, gap, column));
        continue;
      }
      if (!HasOwnControls(*frame, placed)) continue;
      panels.push_back(new FramePanel(faces, *frame, placed, column));
      if (frame == sheet) {
        panels.back()->setTitle({});
      } else {
        faces.Make<FrameFace>(*frame, panels.back());
      }
      labelWidth = std::max(labelWidth, panels.back()->labelWidth());
      unitWidth = std::max(unitWidth, panels.back()->unitWidth());
      pile->addWidget(panels.back());
    }
    for (FramePanel* panel : panels) panel->Align(labelWidth, unitWidth);
    built.push_back(column);
  }
  return built;
}

FramePanel::FramePanel(FaceSet& faces, Frame& frame, const std::vector<const Control*>& placed,
                       QWidget* parent)
    : QGroupBox(ToQt(frame.caption()), parent),
      grid_(new QGridLayout(this)),
      asksForCare_(dynamic_cast<const CautionFrame*>(&frame) != nullptr),
      isBesidePages_(IsBesidePages(frame)),
      ground_(faces.look().frameGround()) {
  faces.look().DressFrame(*this);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setHorizontalSpacing(6);
  grid_->setVerticalSpacing(3);
  grid_->setColumnStretch(0, 1);
  std::vector<Command*> commands;
  for (Control* control : frame.controls()) {
    // A cell stands in its table.
    if (Contains(placed, control) || control->whole() != nullptr) continue;
    if (control->kind() == ControlKind::Command) {
      commands.push_back(static_cast<Command*>(control));
    } else {
      Place(faces, *control);
    }
  }
  PlaceCommands(faces, commands);
  // What a table cannot use stands below all else.
  if (growsToAnEnd_) {
    grid_->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding),
                   grid_->rowCount(), 0);
  }
}

void FramePanel::Place(FaceSet& faces, Control& control) {
  const int row = grid_->rowCount();
  switch (control.kind()) {
    case ControlKind::Field: {
      auto& face = faces.Make<FieldFace>(static_cast<Field&>(control), this);
      grid_->addWidget(face.label(), row, 0);
      grid_->addWidget(face.edit(), row, 1);
      grid_->addWidget(face.unit(), row, 2);
      labels_.push_back(face.label());
      units_.push_back(static_cast<Field&>(control).unit());
      break;
    }
    case ControlKind::ComboList: {
      auto& face = faces.Make<ComboFace>(static_cast<ComboList&>(control), this);
      grid_->addWidget(face.label(), row, 0);
      grid_->addWidget(face.combo(), row, 1, 1, 2);
      labels_.push_back(face.label());
      break;
    }
    case ControlKind::PickList:
      // The list's own policy makes the row grow; a stretch of the row would keep the place of
      // one that is put away.
      grows_ = true;
      grid_->addWidget(faces.Make<PickListFace>(static_cast<PickList&>(control), this).panel(), row,
                       0, 1, 3);
      break;
    case ControlKind::Label:
      grid_->addWidget(faces.Make<LabelFace>(static_cast<Label&>(control), this).widget(), row, 0,
                       1, 3);
      break;
    case ControlKind::Drawing:
      grid_->addWidget(faces.Make<DrawingFace>(static_cast<Drawing&>(control), this).widget(), row,
                       0, 1, 3);
      break;
    case ControlKind::CheckBox:
      grid_->addWidget(faces.Make<CheckBoxFace>(static_cast<CheckBox&>(control), this).widget(),
                       row, 0, 1, 3);
      break;
    case ControlKind::OptionGroup:
    case ControlKind::OptionPart:
      grid_->addWidget(faces.Make<OptionRowsFace>(static_cast<OptionRows&>(control), this).widget(),
                       row, 0, 1, 3);
      break;
    case ControlKind::Table: {
      auto& face = faces.Make<TableFace>(static_cast<Table&>(control), this);
      if (face.grows()) grid_->setRowStretch(row, 1);
      growsToAnEnd_ = growsToAnEnd_ || face.grows();
      grid_->addWidget(face.widget(), row, 0, 1, 3,
                       face.grows() ? Qt::Alignment() : Qt::AlignTop | Qt::AlignLeft);
      break;
    }
    case ControlKind::TextArea:
      grid_->setRowStretch(row, 1);
      grows_ = true;
      grid_->addWidget(faces.Make<TextAreaFace>(static_cast<TextControl&>(control), this).widget(),
                       row, 0, 1, 3);
      break;
    case ControlKind::OptionButton:  // stands in its group
    case ControlKind::Command:       // stands below, with the others
    case ControlKind::Frame:         // stands beside this one
    case ControlKind::ReportBox:     // opens at the foot of the window
      break;
  }
}

void FramePanel::PlaceCommands(FaceSet& faces, const std::vector<Command*>& commands) {
  if (commands.empty()) return;
  auto* cells = new QGridLayout;
  cells->setSpacing(6);
  // A cell holds a command and, small behind it, those whose caption is a single sign.
  struct Cell {
    QPushButton* button;
    std::vector<QPushButton*> signs;
  };
  std::vector<Cell> filled;
  int width = 0;
  for (Command* command : commands) {
    QPushButton* button = faces.Make<CommandFace>(*command, this).button();
    if (command->PlainCaption().size() == 1 && !filled.empty()) {
      button->setFixedWidth(button->sizeHint().height() * kSignWidth / kSignHeight);
      filled.back().signs.push_back(button);
    } else {
      filled.push_back({button, {}});
    }
  }
  for (const Cell& cell : filled) {
    int wide = cell.button->sizeHint().width() + kCaptionAir;
    for (const QPushButton* sign : cell.signs) wide += sign->minimumWidth() + cells->spacing();
    width = std::max(width, wide);
  }
  // Beside pages they take as much of the window's width as a screen gives them.
  constexpr int kWindowEdges = 60;
  const int room = isBesidePages_ ? screen()->availableSize().width() - kWindowEdges
                                  : std::max(grid_->minimumSize().width(), kCommandFrameWidth);
  const int fitting = (room + cells->spacing()) / (width + cells->spacing());
  const int count = static_cast<int>(filled.size());
  const int inRow = grows_ ? count : isBesidePages_ ? std::min(fitting, count) : fitting;
  const int columns = std::clamp(inRow, 1, kMostCommandsInRow);
  for (int i = 0; i < count; ++i) {
    const Cell& cell = filled[static_cast<std::size_t>(i)];
    // The column's share of the width, not the caption, makes the buttons equal.
    cell.button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (cell.signs.empty()) {
      cell.button->setMinimumWidth(width);
      cells->addWidget(cell.button, i / columns, i % columns);
      continue;
    }
    auto* row = new QHBoxLayout;
    row->setSpacing(cells->spacing());
    row->addWidget(cell.button, 1);
    for (QPushButton* sign : cell.signs) row->addWidget(sign);
    cells->addLayout(row, i / columns, i % columns);
    cells->setColumnMinimumWidth(i % columns, width);
  }
  if (grows_) {
    // The frame is as wide as the window, its commands are not.
    cells->setColumnStretch(columns, 1);
  } else {
    for (int i = 0; i < columns; ++i) cells->setColumnStretch(i, 1);
  }
  const int row = grid_->rowCount();
  if (row > 1) grid_->setRowMinimumHeight(row, 2);
  grid_->addLayout(cells, row + 1, 0, 1, 3);
}

int FramePanel::labelWidth() const {
  return Widest(labels_);
}

int FramePanel::unitWidth() const {
  int widest = 0;
  for (const Unit unit : units_) {
    for (const bool metric : {false, true}) {
      widest = std::max(widest, fontMetrics().horizontalAdvance(ToQt(UnitSign(unit, metric))));
    }
  }
  // A label asks for a little more than its text.
  return widest == 0 ? 0 : widest + 3;
}

void FramePanel::Align(int labelWidth, int unitWidth) {
  if (labels_.empty()) return;
  grid_->setColumnMinimumWidth(0, labelWidth);
  grid_->setColumnMinimumWidth(2, unitWidth);
}

FrameFace::FrameFace(FaceSet& set, Frame& frame, FramePanel* panel) : Face(set, frame, panel) {}

void FrameFace::Follow() {
  Face::Follow();
  // It goes with the frame it stands in, but keeps its place on a page or panel that is covered.
  bool shown = true;
  for (const Control* at = &control(); at != nullptr && !IsSheet(*at); at = at->frame()) {
    shown = shown && at->visible();
  }
  widget()->setVisible(shown);
  static_cast<FramePanel*>(widget())->setTitle(ToQt(control().caption()));
}

}  // namespace veldox
