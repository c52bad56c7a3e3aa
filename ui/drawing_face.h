#pragma once

#include <QWidget>

#include "graph/drawing.h"
#include "ui/face.h"

namespace veldox {

/// Paints a drawing in the window's colours, as large as there is room.
class DrawingView : public QWidget {
 public:
  DrawingView(const Drawing& drawing, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Drawing& drawing_;
};

class DrawingFace : public Face {
 public:
  DrawingFace(FaceSet& set, Drawing& drawing, QWidget* parent);
  void Follow() override;

 private:
  Drawing& drawing_;
};

}  // namespace veldox
