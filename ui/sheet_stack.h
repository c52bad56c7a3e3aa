#pragma once

#include <QLabel>
#include <QStackedWidget>
#include <vector>

#include "core/panel.h"
#include "ui/column_flow.h"
#include "ui/face.h"

namespace veldox {

/// One page or panel of a window: its frames in columns, which scroll where they must.
struct SheetView {
  Frame* frame;        ///< the page or panel; null for the frames of the screen itself
  QWidget* page;       ///< with all that stands around the columns
  FlowScroll* scroll;  ///< null for the strip of frames over several pages
  ColumnFlow* flow;
};

/// The pages and panels of a screen, of which the top one is in sight. Each keeps its place
/// while another one covers it.
class SheetStack : public QStackedWidget {
 public:
  /// @param placed  controls that the window shows elsewhere
  SheetStack(FaceSet& faces, std::vector<const Control*> placed, QWidget* parent);

  /// Brings what the screen shows on top into sight.
  void Follow();
  /// All of them, the page that shows first in front.
  const std::vector<SheetView>& views() const { return views_; }
  /// The one in sight.
  const SheetView& current() const;
  /// The height at which the columns of one have the size they would like.
  int WantedHeight(const SheetView& view, int width) const;
  int WantedWidth() const;

 private:
  QWidget* AddSheet(Frame* frame, const std::vector<Frame*>& frames, QWidget* parent);
  QWidget* BuildPages(QWidget* page);
  void BuildPanel(veldox::Panel& panel);
  /// What of a view's height its columns do not have.
  int Around(const SheetView& view) const;

  FaceSet& faces_;
  std::vector<const Control*> placed_;
  std::vector<SheetView> views_;
  QStackedWidget* pages_ = nullptr;  ///< the pages that take turns, null for one page
  QWidget* strip_ = nullptr;         ///< the frames that show over every page
  QWidget* main_;
};

/// Stands for a panel, with its name at the top and its closing command at the foot, or for a
/// page, with its name alone.
class SheetFace : public Face {
 public:
  SheetFace(FaceSet& set, Frame& frame, SheetStack& stack, QWidget* page, QLabel* name);
  void Follow() override;

 private:
  SheetStack& stack_;
  QLabel* name_;
};

}  // namespace veldox
