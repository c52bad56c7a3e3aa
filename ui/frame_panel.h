#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <optional>
#include <vector>

#include "ui/face.h"

namespace veldox {

/// A frame of a screen: its fields, boxes and options in a grid of label, text box and
/// unit, and its commands in rows of equal width below.
class FramePanel : public QGroupBox {
 public:
  /// @param placed  controls of the frame that the window shows elsewhere
  FramePanel(FaceSet& faces, Frame& frame, const std::vector<const Control*>& placed,
             QWidget* parent);

  int labelWidth() const;
  int unitWidth() const;
  /// It is drawn so that it stands out.
  bool asksForCare() const { return asksForCare_; }
  /// The colour that the user has chosen for it.
  const std::optional<QColor>& ground() const { return ground_; }
  /// Lines the grid up with those of the other frames in its column.
  void Align(int labelWidth, int unitWidth);

 private:
  void Place(FaceSet& faces, Control& control);
  void PlaceCommands(FaceSet& faces, const std::vector<Command*>& commands);

  QGridLayout* grid_;
  std::vector<QWidget*> labels_;
  std::vector<Unit> units_;
  bool asksForCare_;
  bool isBesidePages_;  ///< its commands take no height from the pages
  std::optional<QColor> ground_;
  bool grows_ = false;         ///< holds something that takes all the room there is
  bool growsToAnEnd_ = false;  ///< holds a table that takes room until all its rows are in sight
};

/// Stands for a frame that is shown and hidden in its place.
class FrameFace : public Face {
 public:
  FrameFace(FaceSet& set, Frame& frame, FramePanel* panel);
  void Follow() override;
};

/// Adds a frame and those inside it, in the order of declaration. What stands in a row of frames
/// goes with the row.
void AppendFrames(Frame& frame, std::vector<Frame*>& frames);

/// True when a frame has something to show besides the controls placed elsewhere.
bool HasOwnControls(const Frame& frame, const std::vector<const Control*>& placed);

/// Frames in their columns, under each other in the order of declaration and lined up. A
/// column is a widget; frames with nothing to show are left out.
/// @param gap  pixels between the frames of a column
/// @param sheet  the page or panel they stand in, which has its name and its face elsewhere
std::vector<QWidget*> BuildFrameColumns(FaceSet& faces, const std::vector<Frame*>& frames,
                                        const std::vector<const Control*>& placed, int gap,
                                        QWidget* parent, const Frame* sheet = nullptr);

}  // namespace veldox
