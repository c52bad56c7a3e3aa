#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "core/shell.h"
#include "ui/main_window.h"
#include "ui/qt_pictures.h"
#include "ui/screen_window.h"
#include "ui/theme_follower.h"

namespace veldox {

/// Opens and closes the windows of all screens. A window is built when its screen is
/// first opened, and kept.
class WindowManager : public ScreenFace {
 public:
  explicit WindowManager(Shell& shell);
  ~WindowManager() override;

  MainWindow& main() { return main_; }
  ThemeFollower& theme() { return theme_; }
  QtPictures& pictures() { return pictures_; }
  /// The window of a screen, the main form among them; null while it was never opened.
  QWidget* WindowOf(const Screen& screen);
  /// The same; a window that was never opened is built, and stays hidden.
  QWidget& Window(Screen& screen);
  /// What stands for a control; null where its window is not built.
  Face* FaceOf(const Control& control);

  void ScreenVisibilityChanged(Screen& screen) override;

 private:
  ScreenWindow* Find(const Screen& screen) const;
  /// Brings the look of all windows in line with the shared values. What is open follows; a window
  /// that is closed is made anew when it opens, as the screen's size then says.
  void FollowAppearance();
  /// Has the results kept up to date that an entry has made old.
  void ScheduleRun(std::chrono::milliseconds rest);

  Shell& shell_;
  ThemeFollower theme_;
  QtPictures pictures_;
  MainWindow main_;
  QTimer rest_;  ///< nothing is entered meanwhile
  std::vector<std::unique_ptr<ScreenWindow>> windows_;
  bool following_ = false;  ///< all windows are about to be brought in line
};

}  // namespace veldox
