#pragma once

#include <QWidget>

#include "core/screen_scaling.h"
#include "ui/face.h"

namespace veldox {

class SheetStack;

/// Makes the widget that a screen shows beside its frames, or null.
using OwnFaceMaker = QWidget* (*)(Screen& screen, QWidget* parent);

/// The window of any screen: its frames in columns, which scroll where they must, and at
/// the foot the report, the help strip and the "&Quit" button. Pages take turns, and panels
/// cover them, over the foot. The face that a screen has of its own takes all the room at the
/// right of the frames. Escape puts a panel away; Ctrl+Enter runs the last calculation again.
class ScreenWindow : public QWidget {
 public:
  /// @param scaling  how it uses a large screen
  ScreenWindow(Screen& screen, OwnFaceMaker makeOwnFace, const Appearance& appearance = {},
               const ScreenScaling& scaling = {});

  Screen& screen() const { return screen_; }
  FaceSet& faces() { return faces_; }
  /// How it uses a large screen.
  ScreenScaling::Mode mode() const { return mode_; }
  /// Fills the window anew where it is to look otherwise. It keeps its place, and the size that
  /// the user or a large screen has given it.
  void SetAppearance(const Appearance& appearance);
  /// It has another size than its contents or a large screen give it.
  bool sizedByUser() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  /// Makes all that stands in the window.
  void Fill();
  /// Makes it anew.
  void FillAnew(WindowLook look);
  void SizeByLargeScreen(const ScreenScaling& scaling);
  void FollowPointerOverBackgrounds();
  QLayout* BuildFoot(Control* quit);
  void SizeToScreen();
  /// The frames' columns at the left, as wide as they must be, and the screen's own face.
  QLayout* BesideOwnFace();
  /// A report opens: the window grows to the height of the screen while it is shown.
  void MakeRoomForReport();
  void GiveRoomBack();
  /// Divides the height between the frames and an open report.
  void ShareRoom();

  Screen& screen_;
  OwnFaceMaker makeOwnFace_;
  FaceSet faces_;
  SheetStack* sheets_ = nullptr;
  QWidget* ownFace_ = nullptr;  ///< null for most screens
  QWidget* report_ = nullptr;
  int heightWithoutReport_ = 0;
  ScreenScaling::Mode mode_ = ScreenScaling::Mode::Off;
  QSize ownSize_;  ///< what its contents would like
  std::vector<const QObject*> backgrounds_;
};

/// The size of a window whose contents would like `wanted`: as much of it as the screen
/// has room for, title bar and borders counted.
QSize FittingSize(const QWidget& window, QSize wanted);

/// Walks the tab key through the controls in the screen's reading order.
void OrderTabs(const FaceSet& faces);

}  // namespace veldox
