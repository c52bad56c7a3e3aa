#pragma once

#include <QTimer>
#include <QWidget>
#include <array>

#include "core/shell.h"
#include "ui/face.h"

class QLabel;

namespace veldox {

/// The title of the main window, whose letters and lines slide in from the right.
class TitleArea : public QWidget {
 public:
  TitleArea(Shell& shell, FaceSet& faces, QWidget* parent);

  /// Puts every piece to rest.
  void Finish();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Place();

  Shell& shell_;
  std::array<QLabel*, TitleAnimation::kPieces> pieces_{};
  QTimer timer_;
};

}  // namespace veldox
